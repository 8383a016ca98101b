#include <sqlite3.h>

#include <QtTest>

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QSqlDriver>
#include <QTemporaryDir>

#include "codigos_producto.h"
#include "formulario_prueba.h"
#include "imagen_producto.h"
#include "impresoras_producto.h"
#include "listas_productos.h"
#include "proveedores_producto.h"
#include "validacion_producto.h"

using namespace Qt::Literals::StringLiterals;

// Saving and deleting simple products on the form, and the rules beneath that need no widget.
namespace {

// Live products, a deleted one (largest code, barcode 777); Tinto has suppliers P1 and P2 (main).
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

// The accept fails with that message and its notice; the form stays in change mode.
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

// The rows SQLite hands out while a new product is accepted on a catalogue of n products.
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

QStringList Contextos(InstalacionPrueba& prueba) {
  QStringList r;
  for (const auto& [contexto, descripcion] : prueba.erroresMostrados())
    r.append(contexto);
  return r;
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
  void esNumerico_data();
  void esNumerico();
  void lasComprobacionesVanEnSuOrden_data();
  void lasComprobacionesVanEnSuOrden();
  void unFalloDeLaBaseSeRegistraConSuContexto();
  void proveedoresDeUnProducto();
  void imagenes();
  void grabarSinCamposOpcionales_data();
  void grabarSinCamposOpcionales();
  void unaGrabacionQueFallaNoDejaNada();
};

void TestAlta::unGerenteDaDeAltaUnProductoSimple() {
  FormularioPrueba f(Catalogo());
  const QString foto = Imagen(f.inst().carpeta() + u"/mis fotos"_s, u"vermut.png"_s, 300, Qt::red);
  Abrir(f);
  Pulsar(f, u"cmd_nuevo"_s);
  QTest::keyClicks(f.control<QLineEdit>(u"txt_nombre"_s), u"Vermut"_s);
  QVERIFY(!Visible(f, u"cbo_Medida"_s));
  Proveedores(f, {});
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
  // Abandoned: the links of the product that was never saved go, the others stay.
  Pulsar(f, u"cmd_cancelar"_s);
  QCOMPARE(f.inst().filas(kEnlaces), antes);
  EnNavegacion(f, u"Agua"_s);
  QVERIFY(Visible(f, u"txt_precio"_s) && !Visible(f, u"frOcultarGen"_s));
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
  f.dialogos().siguienteColor(QColor(255, 0, 0));
  Pulsar(f, u"cmd_aceptar"_s);
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

  // The fields typed into are what is checked and saved.
  Ir(f, u"Sin lugar"_s);
  const QList<QVariantList> antes = Fila(f, u"3"_s);
  Pulsar(f, u"cmd_modificar"_s);
  Escribir(f, u"txt_stock_minimo"_s, u"2"_s);
  Escribir(f, u"txt_precio"_s, u"2,5"_s);
  Proveedores(f, {u"Distribuciones Sur"_s});
  Pulsar(f, u"cmd_AceptarProveedor"_s);
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
}

void TestAlta::elPanelDeProveedores() {
  FormularioPrueba f(Catalogo());
  Abrir(f, u"Tinto"_s);
  Pulsar(f, u"cmd_modificar"_s);
  const QList<QVariantList> antes = f.inst().filas(kEnlaces);
  const QString norte = LineaProveedor(u"Bodegas Norte"_s, u"P2"_s),
                sur = LineaProveedor(u"Distribuciones Sur"_s, u"P1"_s),
                ana = LineaProveedor(u"Frutas Ana"_s, u"P3"_s);
  // The assigned lines, then the free ones.
  const auto listas = [&f] {
    return (Lineas(f, u"lb_ProveedoresAsignados"_s) << u"|"_s) + Lineas(f, u"lb_Proveedores"_s);
  };
  for (const QString& boton : {u"cmd_CancelarProveedor"_s, u"cmd_AceptarProveedor"_s}) {
    Pulsar(f, u"cmd_Proveedor"_s);
    QVERIFY(AlFrente(f, u"lb_Proveedores"_s) && AlFrente(f, u"cmd_AceptarProveedor"_s));
    QCOMPARE(Texto(f, u"lblProducto"_s), u"Tinto"_s);
    // The screen waits under the panel: its own "Aceptar" cannot be taken for the panel's.
    QVERIFY(!Activo(f, u"cmd_aceptar"_s));
    // Built from the database each time: the main supplier first and once; the deleted
    // supplier is offered too.
    QCOMPARE(listas(), (QStringList{norte, sur, u"|"_s, ana}));
    TocarLinea(f, u"lb_Proveedores"_s, u"Frutas Ana"_s);
    TocarLinea(f, u"lb_ProveedoresAsignados"_s, u"Distribuciones Sur"_s);
    QCOMPARE(listas(), (QStringList{norte, ana, u"|"_s, sur}));
    Pulsar(f, boton);
    QVERIFY(!Visible(f, u"frProveedores"_s) && Activo(f, u"cmd_aceptar"_s));
    // Cancelled, nothing is written; accepted, the button names the supplier listed last.
    QCOMPARE(f.inst().filas(kEnlaces) == antes, boton == u"cmd_CancelarProveedor"_s);
    QCOMPARE(f.control<QPushButton>(u"cmd_Proveedor"_s)->text(),
             boton == u"cmd_CancelarProveedor"_s ? u"Bodegas Norte"_s : u"Frutas Ana"_s);
  }
  // The product's links are replaced, each at cost 0, the other product's stay; the main
  // supplier is the save's to change, not the panel's.
  QCOMPARE(f.inst().filas(kEnlaces),
           (QList<QVariantList>{
               {u"2"_s, u"P1"_s, 0.0}, {u"5"_s, u"P2"_s, 0.0}, {u"5"_s, u"P3"_s, 0.0}}));
  QCOMPARE(f.inst().filas(u"select proveedor from productos where codigo = '5'"_s),
           (QList<QVariantList>{{u"P2"_s}}));
  QVERIFY(f.inst().erroresMostrados().isEmpty());
}

// An accept reads the whole catalogue only for the next code and the list read again.
void TestAlta::aceptarSoloLeeElCatalogoDondeSusSentenciasLoPiden() {
  const qint64 pocos = FilasLeidasAlAceptar(10);
  const qint64 muchos = FilasLeidasAlAceptar(110);
  QVERIFY(pocos > 0 && muchos > 0);
  QCOMPARE(muchos - pocos, 2 * 100);
}

void TestAlta::esNumerico_data() {
  QTest::addColumn<QString>("texto");
  QTest::addColumn<QString>("decimal");
  QTest::addColumn<bool>("numerico");
  QTest::addColumn<double>("valor");
  QTest::newRow("vacío") << u""_s << u","_s << false << 0.0;
  QTest::newRow("blancos alrededor") << u" 3 "_s << u","_s << true << 3.0;
  QTest::newRow("exponente") << u"1e3"_s << u","_s << true << 1000.0;
  QTest::newRow("exponente D") << u"2D2"_s << u","_s << true << 200.0;
  QTest::newRow("punto en España son miles") << u"12.5"_s << u","_s << true << 125.0;
  QTest::newRow("miles tras la coma") << u"1,5.0"_s << u","_s << false << 0.0;
  QTest::newRow("coma de miles con punto") << u"1,234.5"_s << u"."_s << true << 1234.5;
  QTest::newRow("hexadecimal") << u"&H1F"_s << u","_s << true << 31.0;
  QTest::newRow("desbordado") << u"1e999"_s << u","_s << false << 0.0;
  QTest::newRow("cifras árabes") << u"\u0663"_s << u","_s << false << 0.0;
}

void TestAlta::esNumerico() {
  QFETCH(QString, texto);
  QFETCH(QString, decimal);
  QFETCH(bool, numerico);
  QFETCH(double, valor);
  const QString miles = decimal == u","_s ? u"."_s : u","_s;
  QCOMPARE(EsNumerico(texto, decimal, miles), numerico);
  const std::optional<double> leido = ValorNumerico(texto, decimal, miles);
  QCOMPARE(leido.has_value(), numerico);
  if (numerico)
    QCOMPARE(*leido, valor);
}

void TestAlta::lasComprobacionesVanEnSuOrden_data() {
  QTest::addColumn<int>("numero");
  QTest::addColumn<QString>("mensaje");
  QTest::addColumn<QString>("campo");
  // Each row breaks its own field and every later one: the first broken check must win.
  QTest::newRow("1") << 1 << u"El nombre no puede estar vacio."_s << u"txt_nombre"_s;
  QTest::newRow("2") << 2 << u"El coste no puede estar vacio"_s << u"txt_coste"_s;
  QTest::newRow("3") << 3 << u"Ingrese el coste del producto"_s << u"txt_coste"_s;
  QTest::newRow("4") << 4 << u"Ingrese un valor del impuesto"_s << u"txt_iva"_s;
  QTest::newRow("5") << 5 << u"Ingrese un valor de impuesto valido"_s << u"txt_iva"_s;
  QTest::newRow("6") << 6 << u"Ingrese el stock minimo que puede ser 1"_s << u"txt_stock_minimo"_s;
  QTest::newRow("6 no numérico") << 60 << u"Ingrese el stock minimo que puede ser 1."_s
                                 << u"txt_stock_minimo"_s;
  QTest::newRow("7") << 7 << u"Ingrese el precio"_s << u"txt_precio"_s;
  QTest::newRow("8") << 8 << u"Seleccione la unidad de medida"_s << u"cbo_Medida"_s;
  QTest::newRow("9") << 9 << u"Seleccione el proveedor"_s << u"cmd_Proveedor"_s;
  QTest::newRow("10") << 10 << u"Seleccione el lugar de servir o preparar el producto."_s
                      << u"optCocina"_s;
  QTest::newRow("11") << 11 << u"El codigo de barras ya existe."_s << u"txtCodBarras"_s;
  QTest::newRow("ninguna") << 12 << QString() << QString();
}

void TestAlta::lasComprobacionesVanEnSuOrden() {
  QFETCH(int, numero);
  QFETCH(QString, mensaje);
  QFETCH(QString, campo);
  const int desde = numero == 60 ? 6 : numero;
  CamposObligatorios c{.nombre = u"Caña"_s,
                       .coste = u"0,6"_s,
                       .iva = u"10"_s,
                       .stockMinimo = u"1"_s,
                       .precio = u"1,76"_s,
                       .unidadMedida = u"Unidades"_s,
                       .proveedoresAsignados = 1,
                       .optBarra = true,
                       .codigoBarras = u"8410000000017"_s,
                       .existeCodBarras = {}};
  QStringList consultados;
  c.existeCodBarras = [&](const QString& codigo) {
    consultados.append(codigo);
    return desde <= 11;
  };
  // Applied from the last down to this one, so that a field shared by two checks ends broken
  // for the earlier one.
  const QList<std::function<void()>> romper = {
      [&] { c.nombre.clear(); },
      [&] { c.coste.clear(); },
      [&] { c.coste = u"caro"_s; },
      [&] { c.iva.clear(); },
      [&] { c.iva = u"x"_s; },
      [&] { c.stockMinimo = numero == 60 ? u"uno"_s : u""_s; },
      [&] { c.precio = u"gratis"_s; },
      [&] { c.unidadMedida.clear(); },
      [&] { c.proveedoresAsignados = 0; },
      [&] { c.optBarra = false; },
  };
  for (int i = 10; i >= desde; --i)
    romper.at(i - 1)();
  DialogosGuion dialogos;
  QCOMPARE(bComprobarCamposObligatorios(dialogos, c), desde == 12);
  // The barcode is looked up with its text, and only when the earlier checks pass.
  QCOMPARE(consultados, desde >= 11 ? QStringList{c.codigoBarras} : QStringList());
  const std::optional<FalloValidacion> fallo = ComprobarCamposObligatorios(c);
  QCOMPARE(fallo.has_value(), desde != 12);
  if (!fallo) {
    QVERIFY(dialogos.llamadas().isEmpty());
    return;
  }
  QCOMPARE(fallo->numero, desde);
  QCOMPARE(fallo->mensaje, mensaje);
  QCOMPARE(fallo->campo, campo);
  QCOMPARE(dialogos.mensajes(),
           (QStringList{mensaje, u"Debe establecer valor para todos los campos requeridos"_s}));
  QCOMPARE(dialogos.llamadas().at(0).icono, ServicioDialogos::Icono::Critico);
  QCOMPARE(dialogos.llamadas().at(0).titulo, TituloPrograma());
  QCOMPARE(dialogos.llamadas().at(1).icono, ServicioDialogos::Icono::Informacion);
}

void TestAlta::unFalloDeLaBaseSeRegistraConSuContexto() {
  InstalacionPrueba prueba;
  Entorno& e = prueba.entorno();
  // An apostrophe breaks the statement, as it always has: logged, not a clash.
  QVERIFY(!bcomprobarSiExisteNombre(e, u"D'Artagnan"_s, 1));
  QVERIFY(!existeCodBarras(e, u"12'3"_s, 1));
  prueba.ejecutar({u"drop table productos"_s, u"drop table impresoras"_s});
  QCOMPARE(SiguienteCodigo(e), std::nullopt);
  QCOMPARE(ValorPonerOrden(e), std::nullopt);
  QCOMPARE(ValorMensajeNumero(e, 1), std::nullopt);
  QVERIFY(!bcomprobarSiExisteDescNumerica(e, u"4"_s, 1, true).existe);
  ModeloLineas lista;
  QVERIFY(!LeerListaProductos(e, lista));
  QVERIFY(!LeerListaProductosPorTipo(e, lista, u"barra"_s));
  const ImpresorasDisponibles impresoras = CargarImpresorasDisponibles(e);
  QVERIFY(impresoras.cantidad == 0 && !impresoras.mostrarBotones);
  QCOMPARE(Contextos(prueba),
           (QStringList{u"Productos  4"_s, u"Productos  6"_s, u"Productos  1"_s, u"Productos  2"_s,
                        u"Productos  3"_s, u"Productos  5"_s, u"ListaProductos  1"_s,
                        u"ListaProductos  2"_s, u"Impresoras  1"_s}));
  // Logged without the notice of an empty list.
  QVERIFY(prueba.dialogos().llamadas().isEmpty());
}

void TestAlta::proveedoresDeUnProducto() {
  InstalacionPrueba prueba;
  prueba.ejecutar(
      {Proveedor(u"1"_s, u"Mahou"_s), Proveedor(u"2"_s, u"Pescanova"_s),
       u"insert into productos (codigo, nombre, proveedor) values ('8', 'Merluza', '1')"_s,
       u"insert into productoproveedor values ('8', '2', 4.5)"_s,
       u"insert into productoproveedor values ('80', '2', 4.5)"_s});
  // A main supplier with no link of its own is listed as assigned and as free.
  const ListasProveedores listas = CargarListasProveedores(prueba.entorno(), 8);
  QCOMPARE(listas.asignados, (QStringList{LineaProveedor(u"Mahou"_s, u"1"_s),
                                          LineaProveedor(u"Pescanova"_s, u"2"_s)}));
  QCOMPARE(listas.libres, QStringList{LineaProveedor(u"Mahou"_s, u"1"_s)});
  QVERIFY(bProveedorAsignado(listas.asignados, u"2"_s) &&
          !bProveedorAsignado(listas.libres, u"2"_s));
  // The table refuses the second supplier half-way through the save: the old links stay.
  prueba.ejecutar({u"alter table productoproveedor rename to viejos"_s,
                   u"create table productoproveedor (producto text, proveedor text check "
                   "(proveedor <> '3'), coste double)"_s,
                   u"insert into productoproveedor select * from viejos"_s});
  QVERIFY(!GuardarProveedores(prueba.entorno(), 80,
                              {LineaProveedor(u"A"_s, u"1"_s), LineaProveedor(u"B"_s, u"3"_s)}));
  QCOMPARE(prueba.filas(kEnlaces),
           (QList<QVariantList>{{u"8"_s, u"2"_s, 4.5}, {u"80"_s, u"2"_s, 4.5}}));
  QCOMPARE(Contextos(prueba), QStringList{u"Proveedores  3"_s});
}

void TestAlta::imagenes() {
  InstalacionPrueba prueba;
  QTemporaryDir origen;
  Entorno& e = prueba.entorno();
  // Not a picture, whatever its name says; nor a missing file.
  const QString factura = QDir(origen.path()).filePath(u"factura.jpg"_s);
  QFile texto(factura);
  QVERIFY(texto.open(QIODevice::WriteOnly) && texto.write("no es una imagen") > 0);
  texto.close();
  QCOMPARE(AceptarImagen(e, PantallaImagen::Elaborados, factura), std::nullopt);
  QCOMPARE(AceptarImagen(e, PantallaImagen::General, factura + u"x"_s), std::nullopt);
  QCOMPARE(prueba.dialogos().mensajes(),
           QStringList(2, u"La imágen indicada no tiene un formato válido"_s));
  QCOMPARE(prueba.dialogos().llamadas().first().icono, ServicioDialogos::Icono::Exclamacion);
  QCOMPARE(prueba.dialogos().llamadas().first().titulo, TituloPrograma());

  // The folder is "Fotos" here: the same folder, whatever its capitals; a copy never overwrites.
  const QString fotos = QDir(prueba.carpeta()).filePath(u"Fotos"_s);
  const QString primera = Imagen(fotos, u"cana.png"_s, 2000, Qt::red);
  const QByteArray original = Contenido(primera);
  const std::optional<ImagenElegida> otra = AceptarImagen(
      e, PantallaImagen::General, Imagen(origen.path(), u"cana.png"_s, 3000, Qt::green));
  QVERIFY(otra && otra->archivo == u"cana.png"_s);
  QCOMPARE(Contenido(primera), original);
  QCOMPARE(QDir(fotos).entryList(QDir::Files), QStringList{u"cana.png"_s});
  QVERIFY(!QFileInfo::exists(QDir(prueba.carpeta()).filePath(u"fotos"_s)));

  QVERIFY(prueba.log().isEmpty());
}

void TestAlta::grabarSinCamposOpcionales_data() {
  // The special product is stored for a restaurant or a bar only, the program type spelt as the
  // suite spells it.
  QTest::addColumn<QString>("tipo");
  QTest::addColumn<QVariant>("especial");
  QTest::newRow("restaurante") << u"RESTAURANTE"_s << QVariant(-1);
  QTest::newRow("copas") << u"COPAS"_s << QVariant(-1);
  QTest::newRow("comida rápida") << u"FASTFOOD"_s << QVariant();
  QTest::newRow("otras mayúsculas") << u"Restaurante"_s << QVariant();
}

void TestAlta::grabarSinCamposOpcionales() {
  QFETCH(QString, tipo);
  QFETCH(QVariant, especial);
  InstalacionPrueba prueba;
  prueba.entorno().sesion.tipo_programa = tipo;
  ProductoFormulario p = Cana();
  p.familia = p.foto = p.color = p.codigoBarras = p.descripcion = p.margen = p.precio =
      p.stockActual = QString();
  p.optBarra = p.optAmbos = p.mostrarEnCaja = false;
  p.chkProdEspecial = p.optCocinaBarra = true;  // an entry product: no place is written
  p.impresora = p.posicion = u"0"_s;
  p.descNumerica = u"   "_s;  // blanks are no numeric description
  p.consumiciones = 6.5;
  QCOMPARE(GrabarProductoNuevo(prueba.entorno(), p), std::optional<qint64>(1));
  CompararFila(prueba.filas(kColumnasProducto).value(0), u"1"_s, u"Caña"_s, u""_s, u""_s, u"-1"_s,
               0.6, 0.0, 0.0, 10.0, Hoy(), QVariant(), QVariant(), u"P01"_s, u"Unidades"_s, 5.0, -1,
               QVariant(), 0, 1, 0, 0, especial, 0);
  QCOMPARE(prueba.filas(kColumnasStock), (QList<QVariantList>{{1, 0.0, 5.0, 6.5}}));
}

void TestAlta::unaGrabacionQueFallaNoDejaNada() {
  InstalacionPrueba prueba;
  ProductoFormulario p = Cana();
  p.codigo = 44;
  QVERIFY(!modificarProducto(prueba.entorno(), p));
  // A margin that is no number is not among the required checks: it stops the save.
  p.margen = u"uno"_s;
  QCOMPARE(GrabarProductoNuevo(prueba.entorno(), p), std::nullopt);
  QVERIFY((prueba.filas(kColumnasProducto) + prueba.filas(kColumnasStock) + prueba.filas(kEnlaces))
              .isEmpty());
  QCOMPARE(prueba.log(),
           QByteArray("Productos  8, Descripcion: No existe el producto 44\r\n"
                      "Productos  7, Descripcion: El valor \xABuno\xBB no es v\xE1lido para el "
                      "campo MargenComercial\r\n"));
}

PRODUCTOS_TEST_MAIN(TestAlta)
#include "test_alta.moc"
