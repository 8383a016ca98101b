#include <QScrollArea>
#include <QSpinBox>
#include <QTabWidget>
#include <QtTest>

#include "controles.h"
#include "formulario_prueba.h"

using namespace Qt::Literals::StringLiterals;

// A control made of controls of its own, as the paged button panel is.
class PanelPropio : public QWidget {
  Q_OBJECT
 public:
  explicit PanelPropio(QWidget* padre) : QWidget(padre) {
    setObjectName(u"PanelFamilias"_s);
    prueba::Boton(this, u"boton_1"_s, u"Bebidas"_s, {0, 0, 80, 40});
  }
};

namespace {

QStringList Nombres(const QList<QWidget*>& controles) {
  QStringList r;
  for (const QWidget* w : controles)
    r.append(w->objectName());
  return r;
}

}  // namespace

class TestControles : public QObject {
  Q_OBJECT

 private slots:
  void recorreLosControlesDelFormularioEnOrden() {
    auto f = prueba::FormularioPrueba();
    f->findChild<QComboBox*>(u"cbo_Medida"_s)->setEditable(true);
    new PanelPropio(f->findChild<QWidget*>(u"frBotones"_s));
    QCOMPARE(Nombres(ControlesDe(f.get())),
             (QStringList{
                 u"fr_ProductoGenerico"_s, u"lbl_nombre"_s,      u"txt_nombre"_s, u"lbl_coste"_s,
                 u"txt_coste"_s,           u"cbo_Medida"_s,      u"ch_Mostrar"_s, u"fr_Importes"_s,
                 u"lbl_precio"_s,          u"fr_Detalle"_s,      u"lbl_iva"_s,    u"fr_Hondo"_s,
                 u"lbl_margen"_s,          u"fr_Zoom2"_s,        u"lbl_zoom"_s,   u"lstProductos"_s,
                 u"grdIngredientes"_s,     u"fr_SeparacionH1"_s, u"frBotones"_s,  u"cmd_nuevo"_s,
                 u"cmd_modificar"_s,       u"cmd_eliminar"_s,    u"cmd_salir"_s,  u"lbl_eliminar"_s,
                 u"PanelFamilias"_s}));
  }

  void entraEnPaginasYAreasPeroNoEnControlesPropios() {
    QWidget f;
    auto* pestanas = prueba::Crear<QTabWidget>(&f, u"tabDatos"_s, {0, 0, 400, 300});
    auto* pagina = new QWidget;
    pagina->setObjectName(u"pagGeneral"_s);
    prueba::Etiqueta(pagina, u"lblGeneral"_s, u"General"_s, {0, 0, 80, 20});
    pestanas->addTab(pagina, u"General"_s);
    auto* area = prueba::Crear<QScrollArea>(&f, u"scrLista"_s, {0, 300, 400, 100});
    auto* contenido = new QWidget;
    contenido->setObjectName(u"pnlLista"_s);
    prueba::Boton(contenido, u"cmdLista"_s, u"Lista"_s, {0, 0, 80, 20});
    area->setWidget(contenido);
    auto* agrupado = new PanelPropio(&f);
    agrupado->setObjectName(u"pnlAgrupado"_s);
    agrupado->setProperty("contenedor", true);
    prueba::Crear<QSpinBox>(&f, u"spnCantidad"_s, {0, 0, 50, 20});
    QCOMPARE(
        Nombres(ControlesDe(&f)),
        (QStringList{u"tabDatos"_s, u"pagGeneral"_s, u"lblGeneral"_s, u"scrLista"_s, u"pnlLista"_s,
                     u"cmdLista"_s, u"pnlAgrupado"_s, u"boton_1"_s, u"spnCantidad"_s}));
    QCOMPARE(ContenedorDe(f.findChild<QWidget*>(u"cmdLista"_s), &f)->objectName(), u"pnlLista"_s);
    QCOMPARE(ContenedorDe(pagina, &f)->objectName(), u"tabDatos"_s);
  }

  void reconoceLasClasesDeControl() {
    auto f = prueba::FormularioPrueba();
    const auto tipo = [&](const QString& n) { return TipoDe(f->findChild<QWidget*>(n)); };
    QCOMPARE(tipo(u"cmd_nuevo"_s), TipoControl::Boton);
    QCOMPARE(tipo(u"lbl_nombre"_s), TipoControl::Etiqueta);
    QCOMPARE(tipo(u"fr_Zoom2"_s), TipoControl::Marco);
    QCOMPARE(tipo(u"txt_nombre"_s), TipoControl::Entrada);
    QCOMPARE(tipo(u"cbo_Medida"_s), TipoControl::Entrada);
    QCOMPARE(tipo(u"lstProductos"_s), TipoControl::Entrada);
    QCOMPARE(tipo(u"grdIngredientes"_s), TipoControl::Rejilla);
    QCOMPARE(tipo(u"ch_Mostrar"_s), TipoControl::Otro);
  }

  void buscaPorNombreSinMirarMayusculasYCambiaCaptions() {
    auto f = prueba::FormularioPrueba();
    QWidget* boton = BuscarControl(f.get(), u"CMD_NUEVO"_s);
    QVERIFY(boton);
    QCOMPARE(boton->objectName(), u"cmd_nuevo"_s);
    QCOMPARE(BuscarControl(f.get(), u"cmd_nada"_s), nullptr);
    QCOMPARE(BuscarControl(f.get(), QString()), nullptr);
    PonerCaption(boton, u"Alta"_s);
    QCOMPARE(CaptionDe(boton), u"Alta"_s);
    QWidget* marco = BuscarControl(f.get(), u"fr_Importes"_s);
    PonerCaption(marco, u"Amounts"_s);
    QCOMPARE(CaptionDe(marco), u"Amounts"_s);
    QWidget* texto = BuscarControl(f.get(), u"txt_nombre"_s);
    PonerCaption(texto, u"no"_s);
    QCOMPARE(CaptionDe(texto), QString());
    QCOMPARE(qobject_cast<QLineEdit*>(texto)->text(), u"Caña de cerveza"_s);
  }

  void escalaCadaLetraUnaSolaVez() {
    auto f = prueba::FormularioPrueba();
    QWidget* etiqueta = f->findChild<QWidget*>(u"lbl_nombre"_s);  // inherits the form's 12
    QWidget* boton = f->findChild<QWidget*>(u"cmd_nuevo"_s);
    QFont propia = boton->font();
    propia.setPointSize(20);
    boton->setFont(propia);
    EscalarLetras(f.get(), 1.5);
    QCOMPARE(f->font().pointSizeF(), 18.0);
    QCOMPARE(etiqueta->font().pointSizeF(), 18.0);
    QCOMPARE(boton->font().pointSizeF(), 30.0);
    EscalarLetras(f.get(), 0.1);
    QCOMPARE(etiqueta->font().pointSizeF(), 7.0);  // never under 7 points
    QFont pixeles;
    pixeles.setPixelSize(20);
    QCOMPARE(LetraEscalada(pixeles, 2, 7).pixelSize(), 40);
  }
};

QTEST_MAIN(TestControles)
#include "test_controles.moc"
