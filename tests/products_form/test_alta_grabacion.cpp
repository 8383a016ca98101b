#include <QtTest>

#include <QApplication>
#include <QBuffer>
#include <QCheckBox>
#include <QComboBox>
#include <QDate>
#include <QGroupBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

#include "alta_prueba.h"
#include "recordset.h"

using namespace Qt::Literals::StringLiterals;
using namespace alta;

namespace {

// A small picture for the till's button, in a folder of the manager's own.
QString Imagen(const QString& carpeta, const QString& nombre) {
  QImage imagen(24, 24, QImage::Format_RGB32);
  imagen.fill(Qt::darkRed);
  QDir().mkpath(carpeta);
  const QString ruta = QDir(carpeta).filePath(nombre);
  return imagen.save(ruta, "PNG") ? ruta : QString();
}

// A catalogue that has seen some use: two suppliers, a family, three printers (so that the
// printer button shows), two live products
// and a deleted one whose code is the largest.
QStringList Catalogo() {
  return {Proveedor(u"P1"_s, u"Distribuciones Sur"_s),
          Proveedor(u"P2"_s, u"Bodegas Norte"_s),
          Familia(u"F1"_s, u"Bebidas"_s, 1),
          u"insert into impresoras (codigo, nombre) values (1, 'Barra')"_s,
          u"insert into impresoras (codigo, nombre) values (2, 'Cocina')"_s,
          u"insert into impresoras (codigo, nombre) values (3, 'Terraza')"_s,
          Producto(u"1"_s, u"Agua"_s, {{u"orden"_s, u"4"_s}, {u"descnumerica"_s, u"7"_s}}),
          Stock(u"1"_s, u"20"_s, u"5"_s),
          Producto(u"2"_s, u"Zumo"_s, {{u"orden"_s, u"2"_s}, {u"descnumerica"_s, u"3"_s}}),
          Stock(u"2"_s, u"8"_s, u"2"_s),
          Producto(u"9"_s, u"Viejo"_s,
                   {{u"borrar"_s, u"-1"_s}, {u"orden"_s, u"40"_s}, {u"descnumerica"_s, u"50"_s}})};
}

// Tinto, long in the catalogue, bought from two suppliers, the main one P2.
QStringList ConTinto() {
  QStringList filas = Catalogo();
  filas << u"insert into productos (codigo, nombre, descripcion, codigobarras, seccion, coste, "
           "MargenComercial, Precio, IVA, FechaAlta, Foto, color, proveedor, unidadMedida, "
           "StockMinimo, MostrarEnCaja, hechoen, tipoprod, DescNumerica, Orden, impresora, "
           "productoespecial, Borrar) values ('5', 'Tinto', 'Vino', '', 'F1', 2, 1.1, 3.3, 10, "
           "'2001-02-03', 'tinto.jpg', 65280, 'P2', 'Litros', 2, 0, 2, 1, 40, 8, 2, 0, 0)"_s
        << u"insert into stock (Producto, Stock, StockMinimo, ConsumicionesDisponibles) values "
           "(5, 9, 2, 4)"_s
        << u"insert into productoproveedor values ('5', 'P1', 3.25)"_s
        << u"insert into productoproveedor values ('5', 'P2', 1)"_s;
  return filas;
}

QString CodigoEnLaLista(FormularioPrueba& f) {
  return f.forma().estado().productos->field(u"codigo"_s).toString();
}

void EnNavegacion(FormularioPrueba& f) {
  QVERIFY(f.control<QPushButton>(u"cmd_nuevo"_s)->isEnabled());
  QVERIFY(!f.control<QPushButton>(u"cmd_aceptar"_s)->isEnabled());
  QVERIFY(f.control<QLineEdit>(u"txt_nombre"_s)->isReadOnly());
  QVERIFY(f.control<QWidget>(u"frFlechasGen"_s)->isVisible());
}

}  // namespace

class TestAltaGrabacion : public QObject {
  Q_OBJECT
 private slots:
  void init() { QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain)); }
  void unGerenteDaDeAltaUnProductoSimple();
  void modificarReescribeElProductoSuStockYSusProveedores();
  void eliminarPreguntaYSoloConSiMarcaElProducto();
  void borradoElUltimoProductoModificarNoLoDevuelve();
  void unFalloAlGrabarDejaElProductoEnPantallaSinTocarNada();
};

void TestAltaGrabacion::unGerenteDaDeAltaUnProductoSimple() {
  FormularioPrueba f(Catalogo());
  const QString foto = Imagen(f.inst().carpeta() + u"/mis fotos"_s, u"vermut.png"_s);
  QVERIFY(!foto.isEmpty());
  QVERIFY(f.mostrar());
  Pulsar(f, u"cmd_ProdGenerico"_s);
  QCOMPARE(f.control<QLineEdit>(u"txt_nombre"_s)->text(), u"Agua"_s);

  Pulsar(f, u"cmd_nuevo"_s);
  // The next position and numeric description among live products, the deleted one aside.
  QCOMPARE(f.control<QLabel>(u"lblPos"_s)->text(), u"5"_s);
  QCOMPARE(f.control<QLineEdit>(u"txtDescNumericaPGen"_s)->text(), u"8"_s);
  QVERIFY(f.control<QWidget>(u"fr_Mensajenumero"_s)->isVisible());
  QTRY_COMPARE(QApplication::focusWidget(), f.control<QWidget>(u"txt_nombre"_s));
  Capturar(f, u"alta_nuevo"_s);

  Escribir(f, u"txt_nombre"_s, u"Vermut rojo"_s);
  Escribir(f, u"txtCodBarras"_s, u"8410000000024"_s);
  Escribir(f, u"txt_descripcion"_s, u"Vermut de grifo"_s);

  Pulsar(f, u"cmd_Proveedor"_s);
  TocarLinea(f, u"lb_Proveedores"_s, u"Bodegas Norte"_s);
  TocarLinea(f, u"lb_Proveedores"_s, u"Distribuciones Sur"_s);
  Pulsar(f, u"cmd_AceptarProveedor"_s);

  auto* medida = f.control<QComboBox>(u"cbo_Medida"_s);
  QVERIFY(medida->isVisible());
  for (int i = 0; i < 3; ++i)
    QTest::keyClick(medida, Qt::Key_Down);
  QCOMPARE(medida->currentText(), u"Litros"_s);
  Pulsar(f, u"opt_Venta"_s);

  Escribir(f, u"txt_coste"_s, u"2"_s);
  Escribir(f, u"txt_iva"_s, u"10"_s);
  Escribir(f, u"txt_margen"_s, u"1"_s);
  QTest::keyClick(f.control<QLineEdit>(u"txt_margen"_s), Qt::Key_Return);
  QCOMPARE(f.control<QLineEdit>(u"txt_precio"_s)->text(), u"3,30"_s);
  QCOMPARE(f.control<QLineEdit>(u"txt_margen"_s)->text(), u"1,10"_s);
  Escribir(f, u"txt_stock_minimo"_s, u"6"_s);
  Escribir(f, u"txt_stock_actual"_s, u"12"_s);
  Pulsar(f, u"optBarra"_s);

  // The till's button: the box shows the product's place in the till and its looks.
  auto* mostrar = f.control<QCheckBox>(u"ch_Mostrar"_s);
  if (mostrar->isChecked())
    Pulsar(f, u"ch_Mostrar"_s);
  Pulsar(f, u"ch_Mostrar"_s);
  QVERIFY(mostrar->isChecked());
  TocarFamilia(f, u"Bebidas"_s);
  QCOMPARE(f.control<QLabel>(u"lblnomFamilia"_s)->text(), u"Bebidas"_s);
  f.dialogos().siguienteArchivo(foto);
  QTest::mouseClick(f.control<QWidget>(u"pict_imagen"_s), Qt::LeftButton);
  Pulsar(f, u"cmdImpresoras"_s);
  TocarLinea(f, u"lb_impresoras"_s, u"Barra"_s);
  Pulsar(f, u"Command3"_s);

  // No colour yet: the accept asks for it and goes no further.
  f.dialogos().olvidar();
  f.dialogos().siguienteColor(QColor(255, 0, 0));
  Pulsar(f, u"cmd_aceptar"_s);
  QCOMPARE(f.dialogos().llamadasDe(u"elegirColor"_s).size(), 1);
  QVERIFY(f.dialogos().mensajes().isEmpty());
  QCOMPARE(f.forma().estado().colorElegido, u"255"_s);
  QVERIFY(!f.control<QWidget>(u"fr_Mensaje"_s)->isVisible());
  QVERIFY(f.control<QPushButton>(u"cmd_aceptar"_s)->isEnabled());
  QVERIFY(f.inst().filas(u"select codigo from productos where codigo = '10'"_s).isEmpty());

  Pulsar(f, u"cmd_aceptar"_s);
  QVERIFY(f.dialogos().mensajes().isEmpty());
  const QList<QVariantList> filas = f.inst().filas(kColumnasProducto + u"where codigo = '10'"_s);
  QCOMPARE(filas.size(), 1);
  const QVariantList& p = filas.first();
  // Column 12: the first supplier assigned; 15: shown on the till; 16: served at the bar; 17: a
  // sale product
  CompararFila(p, u"10"_s, u"Vermut rojo"_s, u"Vermut de grifo"_s, u"8410000000024"_s, u"F1"_s, 2.0,
               1.1, 3.3, 10.0, Hoy(), u"vermut.png"_s, 255, u"P2"_s, u"Litros"_s, 6.0, 0, 1, 1, 8,
               5, 1, 0, 0);
  QCOMPARE(f.inst().filas(kColumnasStock + u"where Producto = 10"_s),
           (QList<QVariantList>{{10, 12.0, 6.0, 0.0}}));
  QCOMPARE(f.inst().filas(kEnlaces),
           (QList<QVariantList>{{u"10"_s, u"P1"_s, 0.0}, {u"10"_s, u"P2"_s, 0.0}}));
  QVERIFY(QFile::exists(f.inst().carpeta() + u"/fotos/vermut.png"_s));

  // Back to navigation, on the saved product, in its place among the others by name.
  EnNavegacion(f);
  QCOMPARE(f.control<QLineEdit>(u"txt_nombre"_s)->text(), u"Vermut rojo"_s);
  QCOMPARE(f.control<QLineEdit>(u"txt_precio"_s)->text(), u"3,3"_s);
  QVERIFY(f.control<QWidget>(u"txt_coste"_s)->isVisible());
  QCOMPARE(f.forma().estado().codigoActual, 10);
  QCOMPARE(CodigoEnLaLista(f), u"10"_s);
  Pulsar(f, u"bt_botones_2"_s);
  QCOMPARE(f.control<QLineEdit>(u"txt_nombre"_s)->text(), u"Zumo"_s);
  QVERIFY(f.inst().erroresMostrados().isEmpty());
}

void TestAltaGrabacion::modificarReescribeElProductoSuStockYSusProveedores() {
  FormularioPrueba f(ConTinto());
  QVERIFY(f.mostrar());
  Pulsar(f, u"cmd_ProdGenerico"_s);
  Pulsar(f, u"bt_botones_2"_s);
  QCOMPARE(f.control<QLineEdit>(u"txt_nombre"_s)->text(), u"Tinto"_s);
  QCOMPARE(f.control<QLineEdit>(u"txt_margen"_s)->text(), u"1,10"_s);

  Pulsar(f, u"cmd_modificar"_s);
  // Showing the form's own values changes nothing: the number is offered to new products only.
  QCOMPARE(f.control<QLabel>(u"lblPos"_s)->text(), u"8"_s);
  Escribir(f, u"txt_nombre"_s, u"Tinto de verano"_s);
  Escribir(f, u"txt_precio"_s, u"4,4"_s);
  QCOMPARE(f.control<QLineEdit>(u"txt_margen"_s)->text(), u"2,20"_s);
  Escribir(f, u"txt_stock_minimo"_s, u"3"_s);
  Escribir(f, u"txt_stock_actual"_s, u"7"_s);
  // The main supplier goes: the other one becomes the first.
  Pulsar(f, u"cmd_Proveedor"_s);
  TocarLinea(f, u"lb_ProveedoresAsignados"_s, u"Bodegas Norte"_s);
  Pulsar(f, u"cmd_AceptarProveedor"_s);
  Pulsar(f, u"optBarra"_s);
  Pulsar(f, u"cmd_aceptar"_s);
  QVERIFY(f.dialogos().mensajes().isEmpty());

  const QList<QVariantList> filas = f.inst().filas(kColumnasProducto + u"where codigo = '5'"_s);
  QCOMPARE(filas.size(), 1);
  const QVariantList& p = filas.first();
  // Column 9: the date of creation becomes today's, as always; 10: no new picture: the stored one
  // stays
  CompararFila(p, u"5"_s, u"Tinto de verano"_s, u"Vino"_s, u""_s, u"F1"_s, 2.0, 2.2, 4.4, 10.0,
               Hoy(), u"tinto.jpg"_s, 65280, u"P1"_s, u"Litros"_s, 3.0, 0, 1, 1, 40, 8, 2, 0, 0);
  // A simple product holds no consumptions: the stock row's are written as 0.
  QCOMPARE(f.inst().filas(kColumnasStock + u"where Producto = 5"_s),
           (QList<QVariantList>{{5, 7.0, 3.0, 0.0}}));
  QCOMPARE(f.inst().filas(kEnlaces), (QList<QVariantList>{{u"5"_s, u"P1"_s, 0.0}}));
  // The other products are untouched.
  QCOMPARE(f.inst().filas(u"select nombre, precio from productos where codigo = '1'"_s),
           (QList<QVariantList>{{u"Agua"_s, 2.0}}));
  QCOMPARE(f.inst().filas(kColumnasStock + u"where Producto = 1"_s).size(), 1);

  EnNavegacion(f);
  QCOMPARE(f.control<QLineEdit>(u"txt_nombre"_s)->text(), u"Tinto de verano"_s);
  QCOMPARE(CodigoEnLaLista(f), u"5"_s);
  QCOMPARE(f.control<QPushButton>(u"cmd_Proveedor"_s)->text(), u"Distribuciones Sur"_s);
  QVERIFY(f.inst().erroresMostrados().isEmpty());
}

void TestAltaGrabacion::eliminarPreguntaYSoloConSiMarcaElProducto() {
  FormularioPrueba f(ConTinto());
  QVERIFY(f.mostrar());
  Pulsar(f, u"cmd_ProdGenerico"_s);
  Pulsar(f, u"bt_botones_2"_s);
  QCOMPARE(f.control<QLineEdit>(u"txt_nombre"_s)->text(), u"Tinto"_s);
  const QList<QVariantList> antes = f.inst().filas(kColumnasProducto + u"where codigo = '5'"_s);

  f.dialogos().olvidar();
  f.dialogos().siguienteRespuesta(ServicioDialogos::Respuesta::No);
  Pulsar(f, u"cmd_eliminar"_s);
  QCOMPARE(f.dialogos().llamadas().size(), 1);
  const DialogosGuion::Llamada pregunta = f.dialogos().llamadas().first();
  QCOMPARE(pregunta.texto, u"¿Esta seguro de que desea eliminar este producto?"_s);
  QCOMPARE(pregunta.titulo, TituloPrograma());
  QCOMPARE(pregunta.icono, ServicioDialogos::Icono::Pregunta);
  QCOMPARE(pregunta.botones, ServicioDialogos::Botones::SiNo);
  QCOMPARE(f.inst().filas(kColumnasProducto + u"where codigo = '5'"_s), antes);
  QCOMPARE(f.inst().filas(kColumnasStock + u"where Producto = 5"_s).size(), 1);
  QCOMPARE(f.control<QLineEdit>(u"txt_nombre"_s)->text(), u"Tinto"_s);

  f.dialogos().siguienteRespuesta(ServicioDialogos::Respuesta::Si);
  Pulsar(f, u"cmd_eliminar"_s);
  // Only the mark changes; the row stays for the suite's history.
  QList<QVariantList> despues = antes;
  despues[0][22] = -1;
  QCOMPARE(f.inst().filas(kColumnasProducto + u"where codigo = '5'"_s), despues);
  QVERIFY(f.inst().filas(kColumnasStock + u"where Producto = 5"_s).isEmpty());
  QCOMPARE(f.inst().filas(u"select Producto, Stock, StockMinimo from stock order by Producto"_s),
           (QList<QVariantList>{{1, 20.0, 5.0}, {2, 8.0, 2.0}}));
  // Its supplier links stay, by design.
  QCOMPARE(f.inst().filas(kEnlaces),
           (QList<QVariantList>{{u"5"_s, u"P1"_s, 3.25}, {u"5"_s, u"P2"_s, 1.0}}));
  // The list no longer holds it; the first product is shown.
  EnNavegacion(f);
  QCOMPARE(f.control<QLineEdit>(u"txt_nombre"_s)->text(), u"Agua"_s);
  QCOMPARE(f.forma().estado().codigoActual, 1);
  QCOMPARE(f.forma().estado().productos->recordCount(), 2);
  Pulsar(f, u"bt_botones_3"_s);
  QCOMPARE(f.control<QLineEdit>(u"txt_nombre"_s)->text(), u"Zumo"_s);
  QVERIFY(f.inst().erroresMostrados().isEmpty());
}

void TestAltaGrabacion::borradoElUltimoProductoModificarNoLoDevuelve() {
  FormularioPrueba f({u"insert into proveedores (codigo, nombre, borrar) values ('P1', 'Sur', 0)"_s,
                      Producto(u"1"_s, u"Caña"_s), Stock(u"1"_s, u"5"_s, u"1"_s)});
  QVERIFY(f.mostrar());
  Pulsar(f, u"cmd_ProdGenerico"_s);
  f.dialogos().siguienteRespuesta(ServicioDialogos::Respuesta::Si);
  Pulsar(f, u"cmd_eliminar"_s);
  QCOMPARE(f.inst().filas(u"select borrar from productos"_s), (QList<QVariantList>{{-1}}));
  QTest::mouseClick(f.control<QPushButton>(u"cmd_modificar"_s), Qt::LeftButton);
  QVERIFY(!f.control<QPushButton>(u"cmd_aceptar"_s)->isEnabled());
  QVERIFY(f.control<QLineEdit>(u"txt_nombre"_s)->isReadOnly());
  QCOMPARE(f.inst().filas(u"select borrar from productos"_s), (QList<QVariantList>{{-1}}));
}

void TestAltaGrabacion::unFalloAlGrabarDejaElProductoEnPantallaSinTocarNada() {
  FormularioPrueba f(ConTinto());
  QVERIFY(f.mostrar());
  Pulsar(f, u"cmd_ProdGenerico"_s);
  Pulsar(f, u"bt_botones_2"_s);
  const QList<QVariantList> antes = f.inst().filas(kColumnasProducto + u"where codigo = '5'"_s);
  const QList<QVariantList> enlaces = f.inst().filas(kEnlaces);
  Pulsar(f, u"cmd_modificar"_s);
  Escribir(f, u"txt_nombre"_s, u"Tinto de verano"_s);
  // The stock's table is gone from under the program: the product's row is written first, the
  // stock's fails, and the whole save is undone.
  f.inst().ejecutar({u"drop table stock"_s});
  Pulsar(f, u"cmd_aceptar"_s);
  QCOMPARE(f.inst().erroresMostrados().size(), 1);
  QCOMPARE(f.inst().erroresMostrados().first().first, u"Productos  8"_s);
  QCOMPARE(f.inst().filas(kColumnasProducto + u"where codigo = '5'"_s), antes);
  QCOMPARE(f.inst().filas(kEnlaces), enlaces);
  // The manager's changes are still there, to be saved again.
  QVERIFY(f.control<QPushButton>(u"cmd_aceptar"_s)->isEnabled());
  QCOMPARE(f.control<QLineEdit>(u"txt_nombre"_s)->text(), u"Tinto de verano"_s);
  QVERIFY(!f.control<QLineEdit>(u"txt_nombre"_s)->isReadOnly());
}

PRODUCTOS_TEST_MAIN(TestAltaGrabacion)
#include "test_alta_grabacion.moc"
