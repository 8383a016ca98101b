#include <QtTest>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "alta_producto.h"
#include "alta_prueba.h"

using namespace Qt::Literals::StringLiterals;
using namespace alta;

namespace {

const QString kSegundo = u"Debe establecer valor para todos los campos requeridos"_s;

// Agua and Zumo are shown on the till in family F1; Hielo has no family; Viejo is deleted and
// keeps its barcode; "Sin lugar" says nowhere where it is prepared and has no supplier.
QStringList Catalogo() {
  return {
      Proveedor(u"P1"_s, u"Distribuciones Sur"_s),
      Familia(u"F1"_s, u"Bebidas"_s, 1),
      Producto(u"1"_s, u"Agua"_s,
               {{u"seccion"_s, u"'F1'"_s}, {u"descnumerica"_s, u"7"_s}, {u"color"_s, u"255"_s}}),
      Stock(u"1"_s, u"20"_s, u"5"_s),
      Producto(u"2"_s, u"Zumo"_s,
               {{u"seccion"_s, u"'F1'"_s},
                {u"descnumerica"_s, u"3"_s},
                {u"color"_s, u"255"_s},
                {u"proveedor"_s, u"'P1'"_s}}),
      Stock(u"2"_s, u"8"_s, u"2"_s),
      u"insert into productoproveedor values ('2', 'P1', 0)"_s,
      Producto(u"4"_s, u"Hielo"_s, {{u"descnumerica"_s, u"20"_s}}),
      Stock(u"4"_s, u"0"_s, u"0"_s),
      Producto(u"9"_s, u"Viejo"_s, {{u"borrar"_s, u"-1"_s}, {u"codigobarras"_s, u"'777'"_s}}),
      Producto(u"3"_s, u"Sin lugar"_s, {{u"hechoen"_s, u"null"_s}, {u"color"_s, u"null"_s}}),
      Stock(u"3"_s, u"1"_s, u"1"_s),
  };
}

// Shows a product of the simple products' screen by walking the list from its first product.
void Mostrar(FormularioPrueba& f, const QString& nombre) {
  Pulsar(f, u"bt_botones_0"_s);
  for (int i = 0; i < 10 && f.control<QLineEdit>(u"txt_nombre"_s)->text() != nombre; ++i)
    Pulsar(f, u"bt_botones_2"_s);
  QCOMPARE(f.control<QLineEdit>(u"txt_nombre"_s)->text(), nombre);
}

// The accept fails on the check with that message: the two boxes, in order, with their icons;
// the form stays in change mode with the name to be typed again.
void FallaCon(FormularioPrueba& f, const QString& mensaje) {
  f.dialogos().olvidar();
  Pulsar(f, u"cmd_aceptar"_s);
  QCOMPARE(f.dialogos().mensajes(), (QStringList{mensaje, kSegundo}));
  const QList<DialogosGuion::Llamada> llamadas = f.dialogos().llamadas();
  QCOMPARE(llamadas.at(0).icono, ServicioDialogos::Icono::Critico);
  QCOMPARE(llamadas.at(1).icono, ServicioDialogos::Icono::Informacion);
  QCOMPARE(llamadas.at(0).titulo, TituloPrograma());
  QVERIFY(f.control<QPushButton>(u"cmd_aceptar"_s)->isEnabled());
  QTRY_COMPARE(QApplication::focusWidget(), f.control<QWidget>(u"txt_nombre"_s));
}

bool AlFrente(FormularioPrueba& f, const QString& nombre) {
  QWidget* w = f.control<QWidget>(nombre);
  QWidget* tocado = f.forma().childAt(w->mapTo(&f.forma(), w->rect().center()));
  return tocado && (tocado == w || w->isAncestorOf(tocado));
}

QList<QVariantList> Fila(FormularioPrueba& f, const QString& codigo) {
  return f.inst().filas(kColumnasProducto + u"where codigo = '"_s + codigo + u"'"_s);
}

}  // namespace

class TestAltaComprobaciones : public QObject {
  Q_OBJECT
 private slots:
  void init() { QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain)); }
  void unNuevoVacioPideElNombreConLosDosMensajes();
  void elNombreDeOtroProductoVivoMuestraSuAviso();
  void lasComprobacionesVanEnSuOrden();
  void laDescripcionNumericaSoloSeCompruebaAlModificar();
};

void TestAltaComprobaciones::unNuevoVacioPideElNombreConLosDosMensajes() {
  FormularioPrueba f(Catalogo());
  QVERIFY(f.mostrar());
  Pulsar(f, u"cmd_ProdGenerico"_s);
  const int productos = f.inst().filas(u"select codigo from productos"_s).size();
  Pulsar(f, u"cmd_nuevo"_s);
  QCOMPARE(f.control<QLabel>(u"lblMensajeNumero"_s)->text(), kAvisoDescNumericaPropuesta);
  FallaCon(f, u"El nombre no puede estar vacio."_s);
  // The name comes first even when nothing else is there: the unit, for one, is not chosen.
  QCOMPARE(f.control<QComboBox>(u"cbo_Medida"_s)->currentIndex(), -1);
  QCOMPARE(f.inst().filas(u"select codigo from productos"_s).size(), productos);
  QCOMPARE(f.inst().filas(kEnlaces).size(), 1);
  QVERIFY(f.inst().erroresMostrados().isEmpty());
}

void TestAltaComprobaciones::elNombreDeOtroProductoVivoMuestraSuAviso() {
  FormularioPrueba f(Catalogo());
  QVERIFY(f.mostrar());
  Pulsar(f, u"cmd_ProdGenerico"_s);
  Pulsar(f, u"cmd_nuevo"_s);
  Escribir(f, u"txt_nombre"_s, u"Agua"_s);
  f.dialogos().olvidar();
  Pulsar(f, u"cmd_aceptar"_s);
  // The hint alone, before any check: the name is what must change.
  QVERIFY(f.dialogos().mensajes().isEmpty());
  auto* aviso = f.control<QGroupBox>(u"fr_MensajeNombre"_s);
  QVERIFY(aviso->isVisible());
  QVERIFY(AlFrente(f, u"lblMensNombre"_s));
  QCOMPARE(f.control<QLabel>(u"lblMensNombre"_s)->text(),
           u"La descripción corta ya existe, por favor introduzca otra."_s);
  QTRY_COMPARE(QApplication::focusWidget(), f.control<QWidget>(u"txt_nombre"_s));
  Capturar(f, u"aviso_nombre"_s);
  // Typing the name again puts the hint away.
  QTest::keyClick(f.control<QLineEdit>(u"txt_nombre"_s), Qt::Key_Backspace);
  QVERIFY(!aviso->isVisible());

  // A deleted product's name is free: the checks follow, with the first that fails.
  Escribir(f, u"txt_nombre"_s, u"Viejo"_s);
  FallaCon(f, u"Seleccione la unidad de medida"_s);
  QVERIFY(!aviso->isVisible());
  // A touch on a hint puts it away too.
  Escribir(f, u"txt_nombre"_s, u"Zumo"_s);
  Pulsar(f, u"cmd_aceptar"_s);
  QVERIFY(aviso->isVisible());
  QTest::mouseClick(f.control<QWidget>(u"lblMensNombre"_s), Qt::LeftButton);
  QVERIFY(!aviso->isVisible());
  QVERIFY(f.inst().erroresMostrados().isEmpty());
}

void TestAltaComprobaciones::lasComprobacionesVanEnSuOrden() {
  FormularioPrueba f(Catalogo());
  QVERIFY(f.mostrar());
  Pulsar(f, u"cmd_ProdGenerico"_s);
  Mostrar(f, u"Sin lugar"_s);
  const QList<QVariantList> antes = Fila(f, u"3"_s);
  Pulsar(f, u"cmd_modificar"_s);

  // An empty minimum stock is found before an empty price.
  Escribir(f, u"txt_stock_minimo"_s, QString());
  Escribir(f, u"txt_precio"_s, QString());
  FallaCon(f, u"Ingrese el stock minimo que puede ser 1"_s);
  Escribir(f, u"txt_stock_minimo"_s, u"2"_s);
  FallaCon(f, u"Ingrese el precio"_s);
  Escribir(f, u"txt_precio"_s, u"2,5"_s);
  FallaCon(f, u"Seleccione el proveedor"_s);
  Pulsar(f, u"cmd_Proveedor"_s);
  TocarLinea(f, u"lb_Proveedores"_s, u"Distribuciones Sur"_s);
  Pulsar(f, u"cmd_AceptarProveedor"_s);
  FallaCon(f, u"Seleccione el lugar de servir o preparar el producto."_s);
  Pulsar(f, u"optCocina"_s);
  // The barcode of a deleted product still blocks.
  Escribir(f, u"txtCodBarras"_s, u"777"_s);
  FallaCon(f, u"El codigo de barras ya existe."_s);
  QCOMPARE(Fila(f, u"3"_s), antes);

  // Shown on the till with no colour: the colour is asked for, and without one nothing is saved.
  Escribir(f, u"txtCodBarras"_s, u"778"_s);
  QVERIFY(f.control<QCheckBox>(u"ch_Mostrar"_s)->isChecked());
  f.dialogos().olvidar();
  Pulsar(f, u"cmd_aceptar"_s);
  QVERIFY(f.dialogos().mensajes().isEmpty());
  QCOMPARE(f.dialogos().llamadasDe(u"elegirColor"_s).size(), 1);
  QVERIFY(f.control<QWidget>(u"fr_Mensaje"_s)->isVisible());
  QVERIFY(AlFrente(f, u"lblMensaje"_s));
  QVERIFY(f.control<QPushButton>(u"cmd_aceptar"_s)->isEnabled());
  QCOMPARE(Fila(f, u"3"_s), antes);

  // Hidden from the till, it needs no colour: saved at once.
  Pulsar(f, u"ch_Mostrar"_s);
  Pulsar(f, u"cmd_aceptar"_s);
  QVERIFY(f.dialogos().mensajes().isEmpty());
  QVERIFY(!f.control<QWidget>(u"fr_Mensaje"_s)->isVisible());
  QVERIFY(!f.control<QPushButton>(u"cmd_aceptar"_s)->isEnabled());
  const QList<QVariantList> despues = Fila(f, u"3"_s);
  QCOMPARE(despues.size(), 1);
  QCOMPARE(despues.first().at(3).toString(), u"778"_s);  // codigobarras
  QCOMPARE(despues.first().at(7).toDouble(), 2.5);       // Precio
  QVERIFY(despues.first().at(11).isNull());              // color
  QCOMPARE(despues.first().at(12).toString(), u"P1"_s);  // proveedor
  QCOMPARE(despues.first().at(14).toDouble(), 2.0);      // StockMinimo
  QCOMPARE(despues.first().at(15).toInt(), -1);          // hidden from the till
  QCOMPARE(despues.first().at(16).toInt(), 2);           // prepared in the kitchen
  QVERIFY(f.inst().erroresMostrados().isEmpty());
}

void TestAltaComprobaciones::laDescripcionNumericaSoloSeCompruebaAlModificar() {
  FormularioPrueba f(Catalogo());
  QVERIFY(f.mostrar());
  Pulsar(f, u"cmd_ProdGenerico"_s);
  Mostrar(f, u"Zumo"_s);
  Pulsar(f, u"cmd_modificar"_s);

  // Agua, live, on the till and in a family, has 7.
  Escribir(f, u"txtDescNumericaPGen"_s, u"7"_s);
  f.dialogos().olvidar();
  Pulsar(f, u"cmd_aceptar"_s);
  QVERIFY(f.dialogos().mensajes().isEmpty());
  auto* aviso = f.control<QGroupBox>(u"fr_Mensajenumero"_s);
  QVERIFY(aviso->isVisible());
  QVERIFY(AlFrente(f, u"lblMensajeNumero"_s));
  QCOMPARE(f.control<QLabel>(u"lblMensajeNumero"_s)->text(),
           u"La descripción numérica ya existe, por favor introduzca otra."_s);
  // The next free number is offered in its place, and the box takes the focus.
  auto* numero = f.control<QLineEdit>(u"txtDescNumericaPGen"_s);
  QCOMPARE(numero->text(), u"21"_s);
  QTRY_COMPARE(QApplication::focusWidget(), numero);
  Capturar(f, u"aviso_numero"_s);
  QCOMPARE(Fila(f, u"2"_s).first().at(18).toInt(), 3);

  // An empty box is a missing number.
  Escribir(f, u"txtDescNumericaPGen"_s, QString());
  QVERIFY(!aviso->isVisible());
  Pulsar(f, u"cmd_aceptar"_s);
  QVERIFY(aviso->isVisible());
  QCOMPARE(f.control<QLabel>(u"lblMensajeNumero"_s)->text(),
           u"Es necesario que ingrese una descripción numérica."_s);
  QCOMPARE(numero->text(), u"21"_s);

  // Hielo's 20 does not clash: it has no family.
  Escribir(f, u"txtDescNumericaPGen"_s, u"20"_s);
  Pulsar(f, u"cmd_aceptar"_s);
  QVERIFY(f.dialogos().mensajes().isEmpty());
  QVERIFY(!aviso->isVisible());
  QCOMPARE(Fila(f, u"2"_s).first().at(18).toInt(), 20);

  // A new product keeps a number typed over the offered one, even a taken one; modified and
  // accepted again, it is tested.
  Pulsar(f, u"cmd_nuevo"_s);
  Escribir(f, u"txt_nombre"_s, u"Gaseosa"_s);
  Pulsar(f, u"cmd_Proveedor"_s);
  TocarLinea(f, u"lb_Proveedores"_s, u"Distribuciones Sur"_s);
  Pulsar(f, u"cmd_AceptarProveedor"_s);
  QTest::keyClick(f.control<QComboBox>(u"cbo_Medida"_s), Qt::Key_Down);
  Escribir(f, u"txt_precio"_s, u"1,5"_s);
  Pulsar(f, u"optBarra"_s);
  auto* mostrar = f.control<QCheckBox>(u"ch_Mostrar"_s);
  if (mostrar->isChecked())
    Pulsar(f, u"ch_Mostrar"_s);
  Pulsar(f, u"ch_Mostrar"_s);
  TocarFamilia(f, u"Bebidas"_s);
  Escribir(f, u"txtDescNumericaPGen"_s, u"7"_s);
  f.dialogos().siguienteColor(QColor(0, 0, 255));
  Pulsar(f, u"cmd_aceptar"_s);
  Pulsar(f, u"cmd_aceptar"_s);
  QVERIFY(f.dialogos().mensajes().isEmpty());
  const QList<QVariantList> nueva = Fila(f, u"10"_s);
  QCOMPARE(nueva.size(), 1);
  QCOMPARE(nueva.first().at(4).toString(), u"F1"_s);
  QCOMPARE(nueva.first().at(11).toLongLong(), 0xFF0000);
  QCOMPARE(nueva.first().at(18).toInt(), 7);
  QCOMPARE(f.control<QLineEdit>(u"txt_nombre"_s)->text(), u"Gaseosa"_s);
  Pulsar(f, u"cmd_modificar"_s);
  Pulsar(f, u"cmd_aceptar"_s);
  QVERIFY(aviso->isVisible());
  QCOMPARE(f.control<QLabel>(u"lblMensajeNumero"_s)->text(),
           u"La descripción numérica ya existe, por favor introduzca otra."_s);
  QVERIFY(f.inst().erroresMostrados().isEmpty());
}

PRODUCTOS_TEST_MAIN(TestAltaComprobaciones)
#include "test_alta_comprobaciones.moc"
