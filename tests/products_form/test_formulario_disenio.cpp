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

template <typename T>
void Exigir(FormularioPrueba& f, const QStringList& nombres) {
  for (const QString& nombre : nombres) {
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
        !qobject_cast<QListWidget*>(w) && !qobject_cast<QGroupBox*>(w) &&
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
  Exigir<QGroupBox>(f, {u"fr_Inicial"_s,
                        u"fr_ProductoGenerico"_s,
                        u"fr_ProductosElaborados"_s,
                        u"fr_Mensaje"_s,
                        u"fr_colores"_s,
                        u"fr_Mensajenumero"_s,
                        u"fr_MensajeNombre"_s,
                        u"fr_mensajeNumeroPElab"_s,
                        u"fr_mensajeNombrePElab"_s,
                        u"frProveedores"_s,
                        u"frImpresoras"_s,
                        u"frListaProductos"_s,
                        u"fr_Cantidad"_s,
                        u"frOcultarGen"_s,
                        u"frOcultar"_s,
                        u"frFlechasGen"_s,
                        u"frMostrarCaja"_s,
                        u"frlogo1"_s,
                        u"fr_DatosProdElab"_s,
                        u"fr_teclado"_s});
  Exigir<QPushButton>(f, {u"cmd_ProdGenerico"_s,
                          u"cmd_ProdElaborado"_s,
                          u"Boton_SM1"_s,
                          u"cmd_Salir2"_s,
                          u"cmd_AceptarProveedor"_s,
                          u"cmd_CancelarProveedor"_s,
                          u"Command3"_s,
                          u"Command5"_s,
                          u"cmdCocina"_s,
                          u"cmdBarra"_s,
                          u"cmd_Proveedor"_s,
                          u"bt_botonSig"_s,
                          u"bt_botonAnt"_s,
                          u"cmd_nuevo"_s,
                          u"cmd_modificar"_s,
                          u"cmd_aceptar"_s,
                          u"cmd_cancelar"_s,
                          u"cmd_eliminar"_s,
                          u"cmd_buscar"_s,
                          u"cmd_ayuda"_s,
                          u"cmd_salir"_s,
                          u"cmd_ListaProd"_s,
                          u"Command1"_s,
                          u"Command4"_s,
                          u"cmdImpresoras"_s,
                          u"cmdImpresorasElab"_s,
                          u"cmdCInterno"_s,
                          u"cmdCVenta"_s,
                          u"Boton_SM2"_s,
                          u"cmd_SalirProdEla"_s,
                          u"cmd_AyudaProdEla"_s,
                          u"cmd_NuevoProdEla"_s,
                          u"cmd_ModificarProdEla"_s,
                          u"cmd_EliminarProdEla"_s,
                          u"cmd_AceptarProdEl"_s,
                          u"cmd_CancelarProdEl"_s,
                          u"bt_antpelab"_s,
                          u"bt_sigpelab"_s,
                          u"bt_flecha"_s});
  Exigir<QLineEdit>(
      f, {u"txt_Cantidad"_s, u"txt_nombre"_s, u"txtCodBarras"_s, u"txt_descripcion"_s,
          u"txtDescNumericaPGen"_s, u"txt_coste"_s, u"txt_iva"_s, u"txt_margen"_s, u"txt_precio"_s,
          u"txt_stock_actual"_s, u"txt_stock_minimo"_s, u"txt_NombreElaborado"_s,
          u"txt_DescElaborado"_s, u"txtDescNumerica"_s, u"txt_costeElaborado"_s,
          u"txt_ImpuestoElaborado"_s, u"txt_PrecioElaborado"_s});
  Exigir<QLabel>(f, {u"Label12"_s,
                     u"lbl_ModificarTicket"_s,
                     u"Label2"_s,
                     u"lblMensajeNumero"_s,
                     u"lblMensNombre"_s,
                     u"lblDescNumPElab"_s,
                     u"lblProducto"_s,
                     u"lblPreparado"_s,
                     u"Label6"_s,
                     u"lblnomFamilia"_s,
                     u"lblPos"_s,
                     u"pict_imagen"_s,
                     u"lbl_Insertar"_s,
                     u"pic_ColorPG"_s,
                     u"lbl_color"_s,
                     u"lblNomProd"_s,
                     u"lbl_coste"_s,
                     u"lbl_precio"_s,
                     u"lbl_iva"_s,
                     u"lbl_percent"_s,
                     u"lbl_stock_minimo"_s,
                     u"Label16"_s,
                     u"Label14"_s,
                     u"Lbl_Posicion"_s,
                     u"lblNomFamilia_elab"_s,
                     u"lblpospelab"_s,
                     u"pic_ProductoElaborado"_s,
                     u"pic_Color"_s,
                     u"lbl_colorElab"_s,
                     u"lblProdASel"_s,
                     u"lbl_ProductoElaborado"_s});
  Exigir<QListWidget>(
      f, {u"lb_Proveedores"_s, u"lb_ProveedoresAsignados"_s, u"lb_impresoras"_s, u"lbCodigos"_s,
          u"lstProductos"_s, u"lb_Productos"_s, u"lb_ProductosSel"_s, u"lb_ProductosElaborados"_s});
  Exigir<QRadioButton>(f, {u"optCocina"_s, u"optBarra"_s, u"opt_cocina"_s, u"opt_Venta"_s,
                           u"opt_ambos"_s, u"optBarraElab"_s, u"optCocinaElab"_s});
  Exigir<QCheckBox>(f, {u"ch_Mostrar"_s, u"chkProdEspecial"_s});
  Exigir<QComboBox>(f, {u"cbo_Medida"_s});
  Exigir<PanelObjNuevo>(f, {u"PanelFamilias"_s, u"PanelFamilias_Elab"_s});
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
