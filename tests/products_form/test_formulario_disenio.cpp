#include <QtTest>

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

#include "disenio.h"
#include "formulario_prueba.h"
#include "panel_obj_nuevo.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// Each name, of those separated by blanks, is one control of the class T, and only one.
template <typename T>
void Exigir(FormularioPrueba& f, const QString& nombres) {
  for (const QString& nombre : nombres.split(u' ', Qt::SkipEmptyParts)) {
    const QList<QWidget*> todos = f.forma().findChildren<QWidget*>(nombre);
    QVERIFY2(todos.size() == 1, qPrintable(nombre + u": uno y solo uno"_s));
    QVERIFY2(qobject_cast<T*>(todos.first()), qPrintable(nombre + u": su clase"_s));
  }
}

bool DentroDelPanel(const QWidget* w) {
  for (const QWidget* p = w->parentWidget(); p; p = p->parentWidget()) {
    if (qobject_cast<const PanelObjNuevo*>(p))
      return true;
  }
  return false;
}

// The panels that are meant to lie over others: covers, hints and choosers.
bool Superpuesto(const QWidget* w) {
  static const QStringList kEncima = {u"frOcultarGen"_s,
                                      u"frOcultar"_s,
                                      u"fr_MensajeNombre"_s,
                                      u"fr_Mensajenumero"_s,
                                      u"fr_mensajeNombrePElab"_s,
                                      u"fr_mensajeNumeroPElab"_s,
                                      u"lbCodigos"_s};
  return kEncima.contains(w->objectName());
}

// What a manager must be able to read and touch on the screen as it stands: texts of at least
// 12 points that fit their control, controls a finger can hit, inside the form, and no control
// over another of the same frame.
void Revisar(FormularioPrueba& f, const QString& estado) {
  QWidget& forma = f.forma();
  const QList<QWidget*> controles = forma.findChildren<QWidget*>();
  QList<QWidget*> visibles;
  for (QWidget* w : controles) {
    if (!w->isVisible() || DentroDelPanel(w) || w->objectName().startsWith(u"qt_"_s))
      continue;
    if (!qobject_cast<QAbstractButton*>(w) && !qobject_cast<QLabel*>(w) &&
        !qobject_cast<QLineEdit*>(w) && !qobject_cast<QComboBox*>(w) &&
        !qobject_cast<QListView*>(w) && !qobject_cast<QGroupBox*>(w) &&
        !qobject_cast<PanelObjNuevo*>(w)) {
      continue;
    }
    visibles.append(w);
    const QString quien = estado + u": "_s + w->objectName();
    const QRect r(w->mapTo(&forma, QPoint(0, 0)), w->size());
    QVERIFY2(forma.rect().contains(r), qPrintable(quien + u" fuera del formulario"_s));
    if (qobject_cast<QAbstractButton*>(w) || qobject_cast<QLineEdit*>(w) ||
        qobject_cast<QComboBox*>(w)) {
      QVERIFY2(w->height() >= disenio::kAltoToque, qPrintable(quien + u" bajo para el dedo"_s));
    }
    QVERIFY2(w->font().pointSizeF() >= disenio::kLetra, qPrintable(quien + u" letra pequeña"_s));
    const QFontMetrics fm(w->font());
    if (auto* b = qobject_cast<QPushButton*>(w)) {
      QVERIFY2(fm.horizontalAdvance(b->text()) + 12 <= b->width(),
               qPrintable(quien + u" texto cortado"_s));
    } else if (auto* l = qobject_cast<QLabel*>(w); l && l->pixmap().isNull()) {
      const bool cabe = l->wordWrap() ? l->heightForWidth(l->width()) <= l->height()
                                      : fm.horizontalAdvance(l->text()) <= l->width();
      QVERIFY2(cabe, qPrintable(quien + u" texto cortado"_s));
    } else if (auto* o = qobject_cast<QAbstractButton*>(w)) {
      QVERIFY2(o->sizeHint().width() <= o->width(), qPrintable(quien + u" texto cortado"_s));
    }
  }
  for (int i = 0; i < visibles.size(); ++i) {
    for (int j = i + 1; j < visibles.size(); ++j) {
      const QWidget* a = visibles.at(i);
      const QWidget* b = visibles.at(j);
      // The form's own children lie in layers on purpose: the panels under the screens, the
      // start screen over everything.
      if (a->parentWidget() != b->parentWidget() || a->parentWidget() == &forma || Superpuesto(a) ||
          Superpuesto(b)) {
        continue;
      }
      QVERIFY2(!a->geometry().intersects(b->geometry()),
               qPrintable(estado + u": "_s + a->objectName() + u" pisa "_s + b->objectName()));
    }
  }
  // The printer line lies in a strip that both product screens leave free.
  const QWidget* linea = f.control<QWidget>(u"lblNomProd"_s);
  const QRect lineaEnForma = linea->geometry();
  for (const QWidget* w : visibles) {
    const QWidget* p = w->parentWidget();
    if (p == &forma || !p || p->parentWidget() != &forma || Superpuesto(w))
      continue;
    if (p->objectName() == u"fr_Inicial"_s)
      continue;
    const QRect r(w->mapTo(&forma, QPoint(0, 0)), w->size());
    QVERIFY2(!r.intersects(lineaEnForma),
             qPrintable(estado + u": lblNomProd pisa "_s + w->objectName()));
  }
  // Set PRODUCTOS_CAPTURAS_PRUEBA to a folder to look at what was checked.
  const QString carpeta = qEnvironmentVariable("PRODUCTOS_CAPTURAS_PRUEBA");
  if (!carpeta.isEmpty()) {
    QDir().mkpath(carpeta);
    QVERIFY(forma.grab().save(QDir(carpeta).filePath(estado + u".png"_s)));
  }
}

}  // namespace

class TestFormularioDisenio : public QObject {
  Q_OBJECT
 private slots:
  void init() { QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain)); }
  void cadaControlConSuNombreYSuClase();
  void lasTeclasYLasFlechasLlevanSuIndice();
  void seLeeYSeTocaBienEnCadaPantalla();
};

void TestFormularioDisenio::cadaControlConSuNombreYSuClase() {
  FormularioPrueba f;
  QCOMPARE(f.forma().objectName(), u"frmProductos1024"_s);
  Exigir<QGroupBox>(f,
                    u"fr_Inicial fr_ProductoGenerico fr_ProductosElaborados fr_Mensaje "
                    "fr_colores fr_Mensajenumero fr_MensajeNombre fr_mensajeNumeroPElab "
                    "fr_mensajeNombrePElab frProveedores frImpresoras frListaProductos "
                    "fr_Cantidad frOcultarGen frOcultar frFlechasGen frMostrarCaja frlogo1 "
                    "fr_DatosProdElab fr_teclado"_s);
  Exigir<QPushButton>(f,
                      u"cmd_ProdGenerico cmd_ProdElaborado Boton_SM1 cmd_Salir2 "
                      "cmd_AceptarProveedor cmd_CancelarProveedor Command3 Command5 "
                      "cmdCocina cmdBarra cmd_Proveedor bt_botonSig bt_botonAnt cmd_nuevo "
                      "cmd_modificar cmd_aceptar cmd_cancelar cmd_eliminar cmd_buscar "
                      "cmd_ayuda cmd_salir cmd_ListaProd Command1 Command4 cmdImpresoras "
                      "cmdImpresorasElab cmdCInterno cmdCVenta Boton_SM2 cmd_SalirProdEla "
                      "cmd_AyudaProdEla cmd_NuevoProdEla cmd_ModificarProdEla "
                      "cmd_EliminarProdEla cmd_AceptarProdEl cmd_CancelarProdEl bt_antpelab "
                      "bt_sigpelab bt_flecha"_s);
  Exigir<QLineEdit>(f,
                    u"txt_Cantidad txt_nombre txtCodBarras txt_descripcion "
                    "txtDescNumericaPGen txt_coste txt_iva txt_margen txt_precio "
                    "txt_stock_actual txt_stock_minimo txt_NombreElaborado txt_DescElaborado "
                    "txtDescNumerica txt_costeElaborado txt_ImpuestoElaborado "
                    "txt_PrecioElaborado"_s);
  Exigir<QLabel>(f,
                 u"Label12 lbl_ModificarTicket Label2 lblMensajeNumero lblMensNombre "
                 "lblDescNumPElab lblProducto lblPreparado Label6 lblnomFamilia lblPos "
                 "pict_imagen lbl_Insertar pic_ColorPG lbl_color lblNomProd lbl_coste "
                 "lbl_precio lbl_iva lbl_percent lbl_stock_minimo Label16 Label14 "
                 "Lbl_Posicion lblNomFamilia_elab lblpospelab pic_ProductoElaborado "
                 "pic_Color lbl_colorElab lblProdASel lbl_ProductoElaborado"_s);
  Exigir<QListWidget>(f,
                      u"lb_Proveedores lb_ProveedoresAsignados lb_impresoras lbCodigos "
                      "lb_ProductosSel"_s);
  Exigir<QListView>(f, u"lstProductos lb_Productos lb_ProductosElaborados"_s);
  Exigir<QRadioButton>(f,
                       u"optCocina optBarra opt_cocina opt_Venta opt_ambos optBarraElab "
                       "optCocinaElab"_s);
  Exigir<QCheckBox>(f, u"ch_Mostrar chkProdEspecial"_s);
  Exigir<QComboBox>(f, u"cbo_Medida"_s);
  Exigir<PanelObjNuevo>(f, u"PanelFamilias PanelFamilias_Elab"_s);
}

void TestFormularioDisenio::lasTeclasYLasFlechasLlevanSuIndice() {
  FormularioPrueba f;
  const QStringList flechas = {u"Primero"_s, u"Anterior"_s, u"Siguiente"_s, u"Ultimo"_s};
  for (int i = 0; i < 4; ++i) {
    auto* b = f.control<QPushButton>(u"bt_botones_%1"_s.arg(i));
    QVERIFY(b);
    QCOMPARE(b->property("indice").toInt(), i);
    QCOMPARE(b->text(), flechas.at(i));
    QCOMPARE(b->parentWidget()->objectName(), u"frFlechasGen"_s);
  }
  QList<int> esperadas = {8, 13, 32, 0xD1, ','};
  for (int c = '0'; c <= '9'; ++c)
    esperadas.append(c);
  for (int c = 'A'; c <= 'Z'; ++c)
    esperadas.append(c);
  const QList<QPushButton*> teclas =
      f.control<QWidget>(u"fr_teclado"_s)->findChildren<QPushButton*>();
  QCOMPARE(teclas.size(), esperadas.size());
  for (QPushButton* tecla : teclas) {
    const int indice = tecla->property("indice").toInt();
    QVERIFY2(esperadas.contains(indice), qPrintable(tecla->objectName()));
    QCOMPARE(tecla->objectName(), u"bt_letra_%1"_s.arg(indice));
    QCOMPARE(tecla->focusPolicy(), Qt::NoFocus);
  }
}

void TestFormularioDisenio::seLeeYSeTocaBienEnCadaPantalla() {
  FormularioPrueba f(
      {u"insert into proveedores (codigo, nombre, borrar) values ('P1', "
       "'Distribuciones del Sur', 0)"_s,
       u"insert into impresoras (codigo, nombre) values (1, 'Cocina'), "
       "(2, 'Barra'), (3, 'Terraza')"_s,
       u"insert into seccion (codigo, nombre, borrar, menu, orden) values "
       "('F1', 'Cervezas', 0, 0, 1), ('F2', 'Cafés e infusiones', 0, 0, 2)"_s,
       Producto(u"1"_s, u"Cerveza de barril en jarra grande"_s,
                {{u"seccion"_s, u"'F1'"_s}, {u"impresora"_s, u"2"_s}, {u"proveedor"_s, u"'P1'"_s}}),
       Stock(u"1"_s, u"5"_s, u"1"_s), Producto(u"2"_s, u"Tortilla"_s),
       u"insert into productoElaborado_producto values ('2', '1', 3)"_s,
       Stock(u"2"_s, u"0"_s, u"0"_s)});
  QVERIFY(f.mostrar());
  Revisar(f, u"inicio"_s);
  Pulsar(f, u"cmd_ProdGenerico"_s);
  Revisar(f, u"productos"_s);
  Pulsar(f, u"cmd_modificar"_s);
  Revisar(f, u"productos-modificar"_s);
  Pulsar(f, u"cmd_cancelar"_s);
  Pulsar(f, u"cmd_nuevo"_s);
  Revisar(f, u"productos-nuevo"_s);
  Pulsar(f, u"cmd_cancelar"_s);
  Pulsar(f, u"cmd_salir"_s);
  Pulsar(f, u"cmd_ProdElaborado"_s);
  Revisar(f, u"elaborados"_s);
  Pulsar(f, u"cmd_ModificarProdEla"_s);
  Revisar(f, u"elaborados-modificar"_s);
  for (const QString& marco : {u"frProveedores"_s, u"frImpresoras"_s, u"frListaProductos"_s,
                               u"fr_Cantidad"_s, u"fr_Mensaje"_s}) {
    MostrarMarco(f.control<QWidget>(marco));
    Revisar(f, marco);
    f.control<QWidget>(marco)->hide();
  }
}

PRODUCTOS_TEST_MAIN(TestFormularioDisenio)
#include "test_formulario_disenio.moc"
