#include <sqlite3.h>

#include <QtTest>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QSqlDriver>

#include "formulario_prueba.h"
#include "proveedores_producto.h"

using namespace Qt::Literals::StringLiterals;

// Saving and deleting simple products on the form, with their checks and their suppliers.
namespace {

// A catalogue that has seen some use: three suppliers (one deleted, still offered), a family,
// three printers (so that the printer button shows), live products, and a deleted one with the
// largest code that keeps its barcode. Tinto, long in the catalogue, is bought from two
// suppliers, the main one P2; "Sin lugar" says nowhere where it is prepared.
QStringList Catalogo() {
  return {Proveedor(u"P1"_s, u"Distribuciones Sur"_s),
          Proveedor(u"P2"_s, u"Bodegas Norte"_s),
          u"insert into proveedores (codigo, nombre, borrar) values ('P3', 'Frutas Ana', -1)"_s,
          Familia(u"F1"_s, u"Bebidas"_s, 1),
          Impresora(1, u"Barra"_s),
          Impresora(2, u"Cocina"_s),
          Impresora(3, u"Terraza"_s),
          kInsertarProductos +
              u"('1', 'Agua', null, null, 'F1', 1, 0, 2, 10, null, null, 255, null, 'Unidades', "
              "null, 0, 1, 1, 7, 4, 0, null, 0), ('2', 'Zumo', null, null, 'F1', 1, 0, 2, 10, "
              "null, null, 255, 'P1', 'Unidades', null, 0, 1, 1, 3, 2, 0, null, 0), ('3', 'Sin "
              "lugar', null, null, '-1', 1, 0, 2, 10, null, null, null, null, 'Unidades', null, "
              "0, null, 1, null, null, 0, null, 0), ('4', 'Hielo', null, null, '-1', 1, 0, 2, 10, "
              "null, null, null, null, 'Unidades', null, 0, 1, 1, 20, null, 0, null, 0), ('5', "
              "'Tinto', 'Vino', '', 'F1', 2, 1.1, 3.3, 10, '2001-02-03', 'tinto.jpg', 65280, "
              "'P2', 'Litros', 2, 0, 2, 1, 40, 8, 2, 0, 0), ('9', 'Viejo', null, '777', '-1', 1, "
              "0, 2, 10, null, null, null, null, 'Unidades', null, 0, 1, 1, 50, 40, 0, null, -1)"_s,
          u"insert into stock values (1, 20, 5, 0), (2, 8, 2, 0), (3, 1, 1, 0), (4, 0, 0, 0), "
          "(5, 9, 2, 4)"_s,
          u"insert into productoproveedor values ('2', 'P1', 0), ('5', 'P1', 3.25), "
          "('5', 'P2', 1)"_s,
          u"insert into subproductos (CodProductoPadre, CodProductoHijo) values ('5', '1')"_s};
}

// Shows the product of that name, walking the simple products from the first.
void Ir(FormularioPrueba& f, const QString& nombre) {
  Pulsar(f, u"bt_botones_0"_s);
  for (int i = 0; i < 10 && Texto(f, u"txt_nombre"_s) != nombre; ++i)
    Pulsar(f, u"bt_botones_2"_s);
  QCOMPARE(Texto(f, u"txt_nombre"_s), nombre);
}

// The simple products' screen, on the product of that name.
void Abrir(FormularioPrueba& f, const QString& nombre = u"Agua"_s) {
  QVERIFY(f.mostrar());
  Pulsar(f, u"cmd_ProdGenerico"_s);
  Ir(f, nombre);
}

QList<QVariantList> Fila(FormularioPrueba& f, const QString& codigo) {
  return f.inst().filas(kColumnasProducto + u"where codigo = '"_s + codigo + u"'"_s);
}

void Proveedores(FormularioPrueba& f, const QStringList& tocar) {
  Pulsar(f, u"cmd_Proveedor"_s);
  for (const QString& nombre : tocar)
    TocarLinea(f, nombre.startsWith(u'-') ? u"lb_ProveedoresAsignados"_s : u"lb_Proveedores"_s,
               nombre.mid(nombre.startsWith(u'-') ? 1 : 0));
}

// The accept fails on the check with that message: the two boxes, in order, with their icons;
// the form stays in change mode with the name to be typed again.
void FallaCon(FormularioPrueba& f, const QString& mensaje) {
  f.dialogos().olvidar();
  Pulsar(f, u"cmd_aceptar"_s);
  QCOMPARE(f.dialogos().mensajes(),
           (QStringList{mensaje, u"Debe establecer valor para todos los campos requeridos"_s}));
  QCOMPARE(f.dialogos().llamadas().at(0).icono, ServicioDialogos::Icono::Critico);
  QVERIFY(Activo(f, u"cmd_aceptar"_s));
  QTRY_COMPARE(QApplication::focusWidget(), f.control<QWidget>(u"txt_nombre"_s));
}

// Whether a finger meets the control at its centre, not something lying over it.
bool AlFrente(FormularioPrueba& f, const QString& nombre) {
  QWidget* w = f.control<QWidget>(nombre);
  QWidget* tocado = f.forma().childAt(w->mapTo(&f.forma(), w->rect().center()));
  return tocado && (tocado == w || w->isAncestorOf(tocado));
}

// Back in navigation on the product of that name.
void EnNavegacion(FormularioPrueba& f, const QString& nombre) {
  QVERIFY(Activo(f, u"cmd_nuevo"_s) && !Activo(f, u"cmd_aceptar"_s));
  QVERIFY(f.control<QLineEdit>(u"txt_nombre"_s)->isReadOnly());
  QCOMPARE(Texto(f, u"txt_nombre"_s), nombre);
  QVERIFY(f.inst().erroresMostrados().isEmpty());
}

int ContarFila(unsigned, void* cuenta, void*, void*) {
  ++*static_cast<qint64*>(cuenta);
  return 0;
}

// The rows that SQLite hands out while a manager accepts a new product, on a catalogue of n
// products with their stock rows and two supplier links each.
qint64 FilasLeidasAlAceptar(int n) {
  QStringList filas = {Proveedor(u"P1"_s, u"Sur"_s), Proveedor(u"P2"_s, u"Norte"_s)};
  for (int i = 1; i <= n; ++i) {
    const QString c = QString::number(i);
    filas << Producto(c, u"Producto "_s + c, {{u"descnumerica"_s, c}}) << Stock(c, u"1"_s, u"1"_s)
          << u"insert into productoproveedor values ('%1', 'P1', 0), ('%1', 'P2', 0)"_s.arg(c);
  }
  FormularioPrueba f(filas);
  Abrir(f, u"Producto 1"_s);
  Pulsar(f, u"cmd_nuevo"_s);
  Escribir(f, u"txt_nombre"_s, u"Vermut"_s);
  Proveedores(f, {u"Norte"_s});
  Pulsar(f, u"cmd_AceptarProveedor"_s);
  QTest::keyClick(f.control<QComboBox>(u"cbo_Medida"_s), Qt::Key_Down);
  Pulsar(f, u"opt_Venta"_s);
  Escribir(f, u"txt_precio"_s, u"3"_s);
  Pulsar(f, u"optBarra"_s);
  f.dialogos().siguienteColor(QColor(255, 0, 0));
  Pulsar(f, u"cmd_aceptar"_s);  // the first accept asks for the colour
  const QVariant h = f.inst().conexion().bd().driver()->handle();
  sqlite3* db = *static_cast<sqlite3* const*>(h.constData());
  qint64 cuenta = 0;
  sqlite3_trace_v2(db, SQLITE_TRACE_ROW, ContarFila, &cuenta);
  Pulsar(f, u"cmd_aceptar"_s);
  sqlite3_trace_v2(db, 0, nullptr, nullptr);
  return f.inst().filas(u"select codigo from productos where nombre = 'Vermut'"_s).size() == 1
             ? cuenta
             : -1;
}

}  // namespace

class TestAlta : public QObject {
  Q_OBJECT
 private slots:
  void init() { QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain)); }
  void unGerenteDaDeAltaUnProductoSimple();
  void modificarReescribeElProductoSuStockYSusProveedores();
  void eliminarPreguntaYSoloConSiMarcaElProducto();
  void lasComprobacionesDelFormulario();
  void laDescripcionNumericaSoloSeCompruebaAlModificar();
  void elPanelDeProveedores();
  void aceptarSoloLeeElCatalogoDondeSusSentenciasLoPiden();
};

void TestAlta::unGerenteDaDeAltaUnProductoSimple() {
  FormularioPrueba f(Catalogo());
  const QString foto = Imagen(f.inst().carpeta() + u"/mis fotos"_s, u"vermut.png"_s, 300, Qt::red);
  Abrir(f);
  Pulsar(f, u"cmd_nuevo"_s);
  QTest::keyClicks(f.control<QLineEdit>(u"txt_nombre"_s), u"Vermut"_s);
  QVERIFY(!Visible(f, u"cbo_Medida"_s));
  Proveedores(f, {});
  QCOMPARE(Texto(f, u"lblProducto"_s), u"Vermut"_s);
  QCOMPARE(Lineas(f, u"lb_Proveedores"_s).size(), 3);
  QVERIFY(Lineas(f, u"lb_ProveedoresAsignados"_s).isEmpty());
  // Accepting with nobody assigned keeps the caption and leaves no link.
  Pulsar(f, u"cmd_AceptarProveedor"_s);
  QCOMPARE(f.control<QPushButton>(u"cmd_Proveedor"_s)->text(), u"Seleccione sus proveedores"_s);
  const QList<QVariantList> antes = f.inst().filas(kEnlaces);
  Proveedores(f, {u"Bodegas Norte"_s, u"Distribuciones Sur"_s});
  Pulsar(f, u"cmd_AceptarProveedor"_s);
  // Written at once, although the product is not saved yet; the unit comes next.
  QCOMPARE(f.inst().filas(kEnlaces).mid(0, 2),
           (QList<QVariantList>{{u"10"_s, u"P1"_s, 0.0}, {u"10"_s, u"P2"_s, 0.0}}));
  QVERIFY(Visible(f, u"cbo_Medida"_s) && AlFrente(f, u"cbo_Medida"_s));
  // Abandoned: the links of the product that was never saved go, the others stay; what the new
  // product hid is on show again for the saved one.
  Pulsar(f, u"cmd_cancelar"_s);
  QCOMPARE(f.inst().filas(kEnlaces), antes);
  EnNavegacion(f, u"Agua"_s);
  Exigir(f, &Visible,
         u"txt_coste txt_precio txt_stock_minimo cbo_Medida Label6 opt_ambos ch_Mostrar "
         "optCocina pict_imagen lblPos"_s,
         true);
  QVERIFY(!Visible(f, u"frOcultarGen"_s));
  Pulsar(f, u"cmd_nuevo"_s);
  // The next position and numeric description among live products, the deleted one aside.
  QCOMPARE(Texto(f, u"lblPos"_s), u"9"_s);
  QCOMPARE(Texto(f, u"txtDescNumericaPGen"_s), u"41"_s);
  QVERIFY(Visible(f, u"fr_Mensajenumero"_s));
  QTRY_COMPARE(QApplication::focusWidget(), f.control<QWidget>(u"txt_nombre"_s));
  Escribir(f, u"txt_nombre"_s, u"Vermut rojo"_s);
  Escribir(f, u"txtCodBarras"_s, u"8410000000024"_s);
  Escribir(f, u"txt_descripcion"_s, u"Vermut de grifo"_s);
  Proveedores(f, {u"Bodegas Norte"_s, u"Distribuciones Sur"_s});
  Pulsar(f, u"cmd_AceptarProveedor"_s);
  auto* medida = f.control<QComboBox>(u"cbo_Medida"_s);
  for (int i = 0; i < 3; ++i)
    QTest::keyClick(medida, Qt::Key_Down);
  QCOMPARE(medida->currentText(), u"Litros"_s);
  Pulsar(f, u"opt_Venta"_s);
  Escribir(f, u"txt_coste"_s, u"2"_s);
  Escribir(f, u"txt_iva"_s, u"10"_s);
  Escribir(f, u"txt_margen"_s, u"1"_s);
  QTest::keyClick(f.control<QLineEdit>(u"txt_margen"_s), Qt::Key_Return);
  QCOMPARE(Texto(f, u"txt_precio"_s), u"3,30"_s);
  QCOMPARE(Texto(f, u"txt_margen"_s), u"1,10"_s);
  Escribir(f, u"txt_stock_minimo"_s, u"6"_s);
  Escribir(f, u"txt_stock_actual"_s, u"12"_s);
  Pulsar(f, u"optBarra"_s);
  if (!f.control<QCheckBox>(u"ch_Mostrar"_s)->isChecked())
    Pulsar(f, u"ch_Mostrar"_s);
  TocarFamilia(f, u"Bebidas"_s);
  QCOMPARE(Texto(f, u"lblnomFamilia"_s), u"Bebidas"_s);
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
  QVERIFY(Activo(f, u"cmd_aceptar"_s));
  QVERIFY(Fila(f, u"10"_s).isEmpty());

  Pulsar(f, u"cmd_aceptar"_s);
  QVERIFY(f.dialogos().mensajes().isEmpty());
  // The first supplier touched is the main one; shown on the till, served at the bar, for sale.
  CompararFila(Fila(f, u"10"_s).value(0), u"10"_s, u"Vermut rojo"_s, u"Vermut de grifo"_s,
               u"8410000000024"_s, u"F1"_s, 2.0, 1.1, 3.3, 10.0, Hoy(), u"vermut.png"_s, 255,
               u"P2"_s, u"Litros"_s, 6.0, 0, 1, 1, 41, 9, 1, 0, 0);
  QCOMPARE(f.inst().filas(kColumnasStock + u"where Producto = 10"_s),
           (QList<QVariantList>{{10, 12.0, 6.0, 0.0}}));
  QCOMPARE(f.inst().filas(kEnlaces).mid(0, 2),
           (QList<QVariantList>{{u"10"_s, u"P1"_s, 0.0}, {u"10"_s, u"P2"_s, 0.0}}));
  QVERIFY(QFile::exists(f.inst().carpeta() + u"/fotos/vermut.png"_s));

  // Back to navigation, on the saved product, in its place among the others by name.
  EnNavegacion(f, u"Vermut rojo"_s);
  QCOMPARE(Texto(f, u"txt_precio"_s), u"3,3"_s);
  QCOMPARE(f.forma().estado().codigoActual, 10);
  Pulsar(f, u"bt_botones_2"_s);
  QCOMPARE(Texto(f, u"txt_nombre"_s), u"Zumo"_s);
}

void TestAlta::modificarReescribeElProductoSuStockYSusProveedores() {
  FormularioPrueba f(Catalogo());
  Abrir(f, u"Tinto"_s);
  QCOMPARE(Texto(f, u"txt_margen"_s), u"1,10"_s);
  Pulsar(f, u"cmd_modificar"_s);
  // Showing the form's own values changes nothing: the number is offered to new products only.
  QCOMPARE(Texto(f, u"lblPos"_s), u"8"_s);
  Escribir(f, u"txt_nombre"_s, u"Tinto de verano"_s);
  Escribir(f, u"txt_precio"_s, u"4,4"_s);
  QCOMPARE(Texto(f, u"txt_margen"_s), u"2,20"_s);
  Escribir(f, u"txt_stock_minimo"_s, u"3"_s);
  Escribir(f, u"txt_stock_actual"_s, u"7"_s);
  // The main supplier goes: the other one becomes the first.
  Proveedores(f, {u"-Bodegas Norte"_s});
  Pulsar(f, u"cmd_AceptarProveedor"_s);
  Pulsar(f, u"optBarra"_s);
  f.inst().ejecutar({u"delete from stock where producto = 5"_s});
  Pulsar(f, u"cmd_aceptar"_s);
  QVERIFY(f.dialogos().mensajes().isEmpty());
  // The date of creation becomes today's, as always; no new picture: the stored one stays.
  CompararFila(Fila(f, u"5"_s).value(0), u"5"_s, u"Tinto de verano"_s, u"Vino"_s, u""_s, u"F1"_s,
               2.0, 2.2, 4.4, 10.0, Hoy(), u"tinto.jpg"_s, 65280, u"P1"_s, u"Litros"_s, 3.0, 0, 1,
               1, 40, 8, 2, 0, 0);
  // The missing stock row is added; a simple product holds no consumptions: written as 0.
  QCOMPARE(f.inst().filas(kColumnasStock + u"where Producto = 5"_s),
           (QList<QVariantList>{{5, 7.0, 3.0, 0.0}}));
  QCOMPARE(f.inst().filas(kEnlaces),
           (QList<QVariantList>{{u"2"_s, u"P1"_s, 0.0}, {u"5"_s, u"P1"_s, 0.0}}));
  QCOMPARE(f.inst().filas(u"select nombre, precio from productos where codigo = '1'"_s),
           (QList<QVariantList>{{u"Agua"_s, 2.0}}));
  EnNavegacion(f, u"Tinto de verano"_s);
  QCOMPARE(f.control<QPushButton>(u"cmd_Proveedor"_s)->text(), u"Distribuciones Sur"_s);
  const QList<QVariantList> antes = Fila(f, u"5"_s) + f.inst().filas(kEnlaces);
  Pulsar(f, u"cmd_modificar"_s);
  Escribir(f, u"txt_nombre"_s, u"Tinto"_s);
  // The stock's table is gone from under the program: the product's row is written first, the
  // stock's fails, and the whole save is undone.
  f.inst().ejecutar({u"drop table stock"_s});
  Pulsar(f, u"cmd_aceptar"_s);
  QCOMPARE(f.inst().erroresMostrados().size(), 1);
  QCOMPARE(f.inst().erroresMostrados().first().first, u"Productos  8"_s);
  QCOMPARE(Fila(f, u"5"_s) + f.inst().filas(kEnlaces), antes);
  // The manager's changes are still there, to be saved again.
  QVERIFY(Activo(f, u"cmd_aceptar"_s));
  QCOMPARE(Texto(f, u"txt_nombre"_s), u"Tinto"_s);
  QVERIFY(!f.control<QLineEdit>(u"txt_nombre"_s)->isReadOnly());
}

void TestAlta::eliminarPreguntaYSoloConSiMarcaElProducto() {
  FormularioPrueba f(Catalogo());
  Abrir(f, u"Tinto"_s);
  const QList<QVariantList> antes = Fila(f, u"5"_s);
  f.dialogos().siguienteRespuesta(ServicioDialogos::Respuesta::No);
  Pulsar(f, u"cmd_eliminar"_s);
  QCOMPARE(f.dialogos().llamadas().size(), 1);
  const DialogosGuion::Llamada pregunta = f.dialogos().llamadas().first();
  QCOMPARE(pregunta.texto, u"¿Esta seguro de que desea eliminar este producto?"_s);
  QCOMPARE(pregunta.titulo, TituloPrograma());
  QCOMPARE(pregunta.icono, ServicioDialogos::Icono::Pregunta);
  QCOMPARE(pregunta.botones, ServicioDialogos::Botones::SiNo);
  QCOMPARE(Fila(f, u"5"_s), antes);
  QCOMPARE(f.inst().filas(kColumnasStock + u"where Producto = 5"_s).size(), 1);

  f.dialogos().siguienteRespuesta(ServicioDialogos::Respuesta::Si);
  Pulsar(f, u"cmd_eliminar"_s);
  // Only the mark changes and the stock row goes; the links stay for the suite's history.
  QList<QVariantList> despues = antes;
  despues[0][22] = -1;
  QCOMPARE(Fila(f, u"5"_s), despues);
  QCOMPARE(f.inst().filas(u"select Producto from stock order by Producto"_s),
           (QList<QVariantList>{{1}, {2}, {3}, {4}}));
  QCOMPARE(f.inst().filas(kEnlaces).mid(1),
           (QList<QVariantList>{{u"5"_s, u"P1"_s, 3.25}, {u"5"_s, u"P2"_s, 1.0}}));
  QCOMPARE(f.inst().filas(u"select CodProductoPadre from subproductos"_s).size(), 1);
  // The list no longer holds it; the first product is shown.
  EnNavegacion(f, u"Agua"_s);
  Pulsar(f, u"bt_botones_3"_s);
  Pulsar(f, u"bt_botones_1"_s);
  QCOMPARE(Texto(f, u"txt_nombre"_s), u"Sin lugar"_s);

  // With the last product deleted, "Modificar" does not bring it back.
  FormularioPrueba uno({Proveedor(u"P1"_s, u"Sur"_s), Producto(u"1"_s, u"Caña"_s)});
  Abrir(uno, u"Caña"_s);
  uno.dialogos().siguienteRespuesta(ServicioDialogos::Respuesta::Si);
  Pulsar(uno, u"cmd_eliminar"_s);
  QTest::mouseClick(uno.control<QPushButton>(u"cmd_modificar"_s), Qt::LeftButton);
  QVERIFY(!Activo(uno, u"cmd_aceptar"_s));
  QCOMPARE(uno.inst().filas(u"select borrar from productos"_s), (QList<QVariantList>{{-1}}));
}

void TestAlta::lasComprobacionesDelFormulario() {
  FormularioPrueba f(Catalogo());
  Abrir(f);
  const int productos = f.inst().filas(u"select codigo from productos"_s).size();
  Pulsar(f, u"cmd_nuevo"_s);
  QCOMPARE(Texto(f, u"lblMensajeNumero"_s),
           u"Se propone la siguiente descripción numérica libre; puede cambiarla."_s);
  // The name comes first, even when nothing else is there.
  FallaCon(f, u"El nombre no puede estar vacio."_s);
  // The name of another live product: its hint alone, before any check.
  Escribir(f, u"txt_nombre"_s, u"Agua"_s);
  f.dialogos().olvidar();
  Pulsar(f, u"cmd_aceptar"_s);
  QVERIFY(f.dialogos().mensajes().isEmpty());
  QVERIFY(Visible(f, u"fr_MensajeNombre"_s) && AlFrente(f, u"lblMensNombre"_s));
  QCOMPARE(Texto(f, u"lblMensNombre"_s),
           u"La descripción corta ya existe, por favor introduzca otra."_s);
  // Typing the name again puts the hint away; a deleted product's name is free.
  QTest::keyClick(f.control<QLineEdit>(u"txt_nombre"_s), Qt::Key_Backspace);
  QVERIFY(!Visible(f, u"fr_MensajeNombre"_s));
  Escribir(f, u"txt_nombre"_s, u"Viejo"_s);
  FallaCon(f, u"Seleccione la unidad de medida"_s);
  // A touch on a hint puts it away too.
  Escribir(f, u"txt_nombre"_s, u"Zumo"_s);
  Pulsar(f, u"cmd_aceptar"_s);
  QTest::mouseClick(f.control<QWidget>(u"lblMensNombre"_s), Qt::LeftButton);
  QVERIFY(!Visible(f, u"fr_MensajeNombre"_s));
  QCOMPARE(f.inst().filas(u"select codigo from productos"_s).size(), productos);
  Pulsar(f, u"cmd_cancelar"_s);

  // The checks read the fields the manager typed into.
  Ir(f, u"Sin lugar"_s);
  const QList<QVariantList> antes = Fila(f, u"3"_s);
  Pulsar(f, u"cmd_modificar"_s);
  Escribir(f, u"txt_stock_minimo"_s, QString());
  Escribir(f, u"txt_precio"_s, QString());
  FallaCon(f, u"Ingrese el stock minimo que puede ser 1"_s);
  Escribir(f, u"txt_stock_minimo"_s, u"2"_s);
  FallaCon(f, u"Ingrese el precio"_s);
  Escribir(f, u"txt_precio"_s, u"2,5"_s);
  FallaCon(f, u"Seleccione el proveedor"_s);
  Proveedores(f, {u"Distribuciones Sur"_s});
  Pulsar(f, u"cmd_AceptarProveedor"_s);
  FallaCon(f, u"Seleccione el lugar de servir o preparar el producto."_s);
  Pulsar(f, u"optCocina"_s);
  Escribir(f, u"txtCodBarras"_s, u"777"_s);
  FallaCon(f, u"El codigo de barras ya existe."_s);
  QCOMPARE(Fila(f, u"3"_s), antes);

  // Shown on the till with no colour: the colour is asked for, and without one nothing is saved.
  Escribir(f, u"txtCodBarras"_s, u"778"_s);
  f.dialogos().olvidar();
  Pulsar(f, u"cmd_aceptar"_s);
  QCOMPARE(f.dialogos().llamadasDe(u"elegirColor"_s).size(), 1);
  QVERIFY(Visible(f, u"fr_Mensaje"_s) && AlFrente(f, u"lblMensaje"_s));
  QCOMPARE(Fila(f, u"3"_s), antes);
  // Hidden from the till, it needs no colour: saved at once.
  Pulsar(f, u"ch_Mostrar"_s);
  Pulsar(f, u"cmd_aceptar"_s);
  QVERIFY(f.dialogos().mensajes().isEmpty());
  QVERIFY(!Visible(f, u"fr_Mensaje"_s));
  CompararFila(Fila(f, u"3"_s).value(0), u"3"_s, u"Sin lugar"_s, u""_s, u"778"_s, u"-1"_s, 1.0, 1.4,
               2.5, 10.0, Hoy(), QVariant(), QVariant(), u"P1"_s, u"Unidades"_s, 2.0, -1, 2, 1, 1,
               0, 0, 0, 0);
  EnNavegacion(f, u"Sin lugar"_s);
}

void TestAlta::laDescripcionNumericaSoloSeCompruebaAlModificar() {
  FormularioPrueba f(Catalogo());
  Abrir(f, u"Zumo"_s);
  Pulsar(f, u"cmd_modificar"_s);
  // Agua, live, on the till and in a family, has 7; the next free number is offered instead.
  Escribir(f, u"txtDescNumericaPGen"_s, u"7"_s);
  Pulsar(f, u"cmd_aceptar"_s);
  QVERIFY(f.dialogos().mensajes().isEmpty());
  QVERIFY(Visible(f, u"fr_Mensajenumero"_s) && AlFrente(f, u"lblMensajeNumero"_s));
  QCOMPARE(Texto(f, u"lblMensajeNumero"_s),
           u"La descripción numérica ya existe, por favor introduzca otra."_s);
  QCOMPARE(Texto(f, u"txtDescNumericaPGen"_s), u"41"_s);
  QTRY_COMPARE(QApplication::focusWidget(), f.control<QWidget>(u"txtDescNumericaPGen"_s));
  // An empty box is a missing number.
  Escribir(f, u"txtDescNumericaPGen"_s, QString());
  QVERIFY(!Visible(f, u"fr_Mensajenumero"_s));
  Pulsar(f, u"cmd_aceptar"_s);
  QCOMPARE(Texto(f, u"lblMensajeNumero"_s),
           u"Es necesario que ingrese una descripción numérica."_s);
  QCOMPARE(Fila(f, u"2"_s).value(0).value(18).toInt(), 3);
  // Hielo's 20 does not clash: it has no family.
  Escribir(f, u"txtDescNumericaPGen"_s, u"20"_s);
  Pulsar(f, u"cmd_aceptar"_s);
  QVERIFY(!Visible(f, u"fr_Mensajenumero"_s));
  QCOMPARE(Fila(f, u"2"_s).value(0).value(18).toInt(), 20);

  QVERIFY(f.inst().erroresMostrados().isEmpty());
}

void TestAlta::elPanelDeProveedores() {
  FormularioPrueba f(Catalogo());
  Abrir(f, u"Tinto"_s);
  Pulsar(f, u"cmd_modificar"_s);
  const QList<QVariantList> antes = f.inst().filas(kEnlaces);
  const QString caption = f.control<QPushButton>(u"cmd_Proveedor"_s)->text();
  const QString norte = LineaProveedor(u"Bodegas Norte"_s, u"P2"_s);
  const QString sur = LineaProveedor(u"Distribuciones Sur"_s, u"P1"_s);
  const QString ana = LineaProveedor(u"Frutas Ana"_s, u"P3"_s);
  for (int vez = 0; vez < 2; ++vez) {
    Pulsar(f, u"cmd_Proveedor"_s);
    QVERIFY(AlFrente(f, u"lb_Proveedores"_s) && AlFrente(f, u"cmd_AceptarProveedor"_s));
    QCOMPARE(Texto(f, u"lblProducto"_s), u"Tinto"_s);
    // The screen waits under the panel: its own "Aceptar" cannot be taken for the panel's.
    QVERIFY(!Activo(f, u"cmd_aceptar"_s));
    // Built from the database each time: the main supplier first and once; the deleted
    // supplier is offered too.
    QCOMPARE(Lineas(f, u"lb_ProveedoresAsignados"_s), (QStringList{norte, sur}));
    QCOMPARE(Lineas(f, u"lb_Proveedores"_s), QStringList{ana});
    TocarLinea(f, u"lb_Proveedores"_s, u"Frutas Ana"_s);
    TocarLinea(f, u"lb_ProveedoresAsignados"_s, u"Distribuciones Sur"_s);
    QCOMPARE(Lineas(f, u"lb_Proveedores"_s), QStringList{sur});
    QCOMPARE(Lineas(f, u"lb_ProveedoresAsignados"_s), (QStringList{norte, ana}));
    if (vez == 0) {
      // Cancelled: nothing written, the button as it was.
      Pulsar(f, u"cmd_CancelarProveedor"_s);
      QVERIFY(!Visible(f, u"frProveedores"_s) && Activo(f, u"cmd_aceptar"_s));
      QCOMPARE(f.inst().filas(kEnlaces), antes);
      QCOMPARE(f.control<QPushButton>(u"cmd_Proveedor"_s)->text(), caption);
    }
  }
  Pulsar(f, u"cmd_AceptarProveedor"_s);
  QVERIFY(!Visible(f, u"frProveedores"_s) && Activo(f, u"cmd_aceptar"_s));
  // The button names the supplier listed last; the product's links are replaced, each at cost
  // 0, the other product's stay; the main supplier is the save's to change, not the panel's.
  QCOMPARE(f.control<QPushButton>(u"cmd_Proveedor"_s)->text(), u"Frutas Ana"_s);
  QCOMPARE(f.inst().filas(kEnlaces),
           (QList<QVariantList>{
               {u"2"_s, u"P1"_s, 0.0}, {u"5"_s, u"P2"_s, 0.0}, {u"5"_s, u"P3"_s, 0.0}}));
  QCOMPARE(f.inst().filas(u"select proveedor from productos where codigo = '5'"_s),
           (QList<QVariantList>{{u"P2"_s}}));
  QVERIFY(f.inst().erroresMostrados().isEmpty());
}

// The rows that an accept reads grow with the catalogue only through the two statements that
// must read it whole: the codes ordered for the next code, and the form's list read again. The
// tables the new rows go into are not read to add them.
void TestAlta::aceptarSoloLeeElCatalogoDondeSusSentenciasLoPiden() {
  const qint64 pocos = FilasLeidasAlAceptar(10);
  const qint64 muchos = FilasLeidasAlAceptar(110);
  QVERIFY(pocos > 0 && muchos > 0);
  QCOMPARE(muchos - pocos, 2 * 100);
}

PRODUCTOS_TEST_MAIN(TestAlta)
#include "test_alta.moc"
