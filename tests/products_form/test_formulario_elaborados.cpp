#include <QtTest>

#include <QApplication>
#include <QDate>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>

#include "codigos_producto.h"
#include "esquema.h"
#include "formulario_prueba.h"
#include "listas_productos.h"
#include "postgres_prueba.h"
#include "principal.h"

using namespace Qt::Literals::StringLiterals;

// The recipe page by touch and by keyboard on SQLite and PostgreSQL; a simple save on PostgreSQL.

namespace {

const QString kReceta =
    u"select productopadre, productohijo, cantidad from productoElaborado_producto order by "
    "productopadre, productohijo"_s;

QStringList ConStock(const QString& codigo, const QString& nombre, const QString& unidad,
                     const QList<QPair<QString, QString>>& otras = {}) {
  return {Producto(codigo, nombre,
                   QList<QPair<QString, QString>>{{u"unidadMedida"_s, u"'"_s + unidad + u"'"_s},
                                                  {u"descnumerica"_s, codigo},
                                                  {u"orden"_s, u"1"_s}} +
                       otras),
          Stock(codigo, u"3"_s, u"1"_s)};
}

// A bar's catalogue: a tapa of two components, a sangría's components, a deleted component.
QStringList Catalogo() {
  return ConStock(u"1"_s, u"Vino tinto de la casa"_s, u"Litros"_s) +
         ConStock(u"2"_s, u"Limón"_s, u"Unidades"_s, {{u"tipoprod"_s, u"0"_s}}) +
         ConStock(u"3"_s, u"Azúcar"_s, u"Kilogramos"_s, {{u"tipoprod"_s, u"0"_s}}) +
         ConStock(u"5"_s, u"Huevo"_s, u"Unidades"_s) +
         ConStock(u"7"_s, u"Zumo (naranja)"_s, u"Litros"_s, {{u"tipoprod"_s, u"2"_s}}) +
         ConStock(u"8"_s, u"Anís viejo"_s, u"Litros"_s, {{u"borrar"_s, u"-1"_s}}) +
         ConStock(u"40000"_s, u"Hielo"_s, u"Kilogramos"_s) +
         ConStock(u"10"_s, u"Pincho de tortilla"_s, u"Unidades"_s,
                  {{u"tipoprod"_s, u"3"_s}, {u"orden"_s, u"4"_s}, {u"color"_s, u"255"_s}}) +
         QStringList{u"insert into productoElaborado_producto values ('10', '5', 4)"_s,
                     u"insert into productoElaborado_producto values ('10', '1', 0.5)"_s};
}

// Rows as texts joined by '|', so that both engines compare alike; a null reads "NULL".
QStringList Textos(FormularioPrueba& f, const QString& consulta) {
  QStringList r;
  for (const QVariantList& fila : f.inst().filas(consulta)) {
    QStringList valores;
    for (const QVariant& v : fila)
      valores.append(v.isNull() ? u"NULL"_s : v.toString());
    r.append(valores.join(u'|'));
  }
  return r;
}

void Tabular(QWidget* destino) {
  for (int i = 0; i < 400 && QApplication::focusWidget() != destino; ++i)
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  QCOMPARE(QApplication::focusWidget(), destino);
}

// A manager's hand on a control: a touch, or its key (Tab and Space for a button without one).
void Activar(FormularioPrueba& f, const QString& boton, bool tacto, Qt::Key tecla = Qt::Key_Space) {
  if (tacto)
    return Pulsar(f, boton);
  if (tecla == Qt::Key_Space)
    Tabular(f.control<QWidget>(boton));
  QTest::keyClick(QApplication::focusWidget(), tecla);
}

// Types into a field: touched, with the on-screen keyboard; or reached with Tab, with the keys.
void Teclear(FormularioPrueba& f, const QString& campo, const QString& texto, bool tacto) {
  auto* c = f.control<QLineEdit>(campo);
  QVERIFY2(c->isVisible(), qPrintable(campo));
  if (!tacto)
    Tabular(c);
  else if (QApplication::focusWidget() != c)
    QTest::mouseClick(c, Qt::LeftButton);
  for (QChar letra : texto) {
    if (tacto)
      Pulsar(f, u"bt_letra_%1"_s.arg(letra.unicode()));
    else
      QTest::sendKeyEvent(QTest::Click, c, Qt::Key_unknown, QString(letra), Qt::NoModifier);
  }
  QCOMPARE(c->text(), texto);
}

// Takes a line of a list for its quantity: a touch and the arrow, a double touch, or Enter.
void Elegir(FormularioPrueba& f, const QString& lista, const QString& inicio, bool tacto) {
  auto* l = f.control<QListView>(lista);
  if (!tacto) {
    Tabular(l);
    QTest::keyClick(l, Qt::Key_Home);
    for (int i = 0;
         i < l->model()->rowCount() && !l->currentIndex().data().toString().startsWith(inicio); ++i)
      QTest::keyClick(l, Qt::Key_Down);
    QTest::keyClick(l, Qt::Key_Return);
  } else {
    TocarLinea(f, lista, inicio);
    if (lista == u"lb_Productos"_s)
      Pulsar(f, u"bt_flecha"_s);
    else
      QTest::mouseDClick(l->viewport(), Qt::LeftButton, {},
                         l->visualRect(l->currentIndex()).center());
  }
  QTRY_VERIFY(f.control<QWidget>(u"fr_Cantidad"_s)->isVisible());
}

void Cantidad(FormularioPrueba& f, const QString& cantidad, bool tacto) {
  Teclear(f, u"txt_Cantidad"_s, cantidad, tacto);
  Activar(f, tacto ? u"bt_letra_13"_s : u"txt_Cantidad"_s, tacto, Qt::Key_Return);
  QVERIFY(!f.control<QWidget>(u"fr_Cantidad"_s)->isVisible());
}

}  // namespace

class TestFormularioElaborados : public QObject {
  Q_OBJECT
 private slots:
  void initTestCase();
  void unGerenteCreaCambiaYBorraUnaSangria_data();
  void unGerenteCreaCambiaYBorraUnaSangria();
  void lasListasSeLlenanYSeFiltranPorTipo();
  void unaRecetaQueNoSePuedeGrabarDejaLasFilasComoEstaban_data();
  void unaRecetaQueNoSePuedeGrabarDejaLasFilasComoEstaban();
  void unProductoSimpleSeGrabaEnPostgreSQL();
  void unaBaseDelServidorNoTieneNombreDeArchivo();

 private:
  // A form's installation on a new database of the test server, with the suite's tables.
  void EnPostgres(InstalacionPrueba& inst);
  std::unique_ptr<PostgresPrueba> pg_;
};

void TestFormularioElaborados::initTestCase() {
  QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain));
  pg_ = std::make_unique<PostgresPrueba>();
  QVERIFY2(pg_->arrancado(), qPrintable(pg_->error()));
}

void TestFormularioElaborados::EnPostgres(InstalacionPrueba& inst) {
  static int bases = 0;
  UsarPostgres(inst, pg_->crearBaseDatos(u"base%1"_s.arg(++bases)));
  CrearEsquema(inst.conexion(), TablasPrincipales());
}

void TestFormularioElaborados::unGerenteCreaCambiaYBorraUnaSangria_data() {
  QTest::addColumn<bool>("postgres");
  QTest::addColumn<bool>("tacto");
  QTest::newRow("SQLite, tacto") << false << true;
  QTest::newRow("PostgreSQL, teclado") << true << false;
}

void TestFormularioElaborados::unGerenteCreaCambiaYBorraUnaSangria() {
  QFETCH(bool, postgres);
  QFETCH(bool, tacto);
  // The on-screen keyboard has capitals without accents. By touch the sangría is served at the
  // bar, by keyboard it is prepared in the kitchen.
  const QString nombre = tacto ? u"SANGRIA"_s : u"Sangría"_s;
  const QString hechoen = tacto ? u"1"_s : u"2"_s;
  FormularioPrueba f;
  if (postgres) {
    EnPostgres(f.inst());
    f.inst().ejecutar(FilasDeLaInstalacion());
  }
  f.inst().ejecutar(Catalogo());
  QVERIFY(f.mostrar());
  Activar(f, u"cmd_ProdElaborado"_s, tacto);
  QCOMPARE(f.control<QLineEdit>(u"txt_NombreElaborado"_s)->text(), u"Pincho de tortilla"_s);
  QStringList receta0 = Lineas(f, u"lb_ProductosSel"_s);
  receta0.sort();
  QCOMPARE(receta0, (QStringList{LineaLista(u"Huevo (4) "_s, u"5"_s),
                                 LineaLista(u"Vino tinto de la casa (0,5) "_s, u"1"_s)}));

  if (!tacto) {
    // Page Down past the only elaborated product says so, as the arrows do; F1 is its help.
    Activar(f, u"txt_NombreElaborado"_s, tacto, Qt::Key_PageDown);
    Activar(f, u"txt_NombreElaborado"_s, tacto, Qt::Key_F1);
    QCOMPARE(f.dialogos().mensajes(), QStringList{u"Último Registro"_s});
    QVERIFY(
        f.dialogos().llamadasDe(u"abrirDocumento"_s).first().texto.endsWith(u"Elaborados.html"_s));
  }
  Activar(f, u"cmd_NuevoProdEla"_s, tacto, Qt::Key_Insert);
  QVERIFY(!f.control<QWidget>(u"txt_costeElaborado"_s)->isVisible());
  Teclear(f, u"txt_NombreElaborado"_s, nombre, tacto);
  Teclear(f, u"txt_costeElaborado"_s, u"2,5"_s, tacto);
  Teclear(f, u"txt_ImpuestoElaborado"_s, u"10"_s, tacto);
  Teclear(f, u"txt_PrecioElaborado"_s, u"6"_s, tacto);
  QCOMPARE(f.control<QLabel>(u"lblpospelab"_s)->text(), u"5"_s);
  Activar(f, u"bt_sigpelab"_s, tacto);
  QVERIFY(!f.control<QWidget>(u"lb_Productos"_s)->isEnabled());
  Activar(f, tacto ? u"optBarraElab"_s : u"optCocinaElab"_s, tacto);
  Elegir(f, u"lb_Productos"_s, u"Vino"_s, tacto);
  QCOMPARE(f.control<QLabel>(u"lbl_Cantidad"_s)->text(),
           u"¿Cuantos "_s + nombre + u" podria elaborar con un Litros de Vino tinto de l?"_s);
  Cantidad(f, u"8"_s, tacto);
  // Enter with a quantity of 0 does nothing; Escape (Quitar by touch) takes the component out.
  Elegir(f, u"lb_Productos"_s, u"Hu"_s, tacto);
  Activar(f, tacto ? u"bt_letra_13"_s : u"txt_Cantidad"_s, tacto, Qt::Key_Return);
  QVERIFY(f.control<QWidget>(u"fr_Cantidad"_s)->isVisible());
  Activar(f, u"cmd_QuitarComponente"_s, tacto, Qt::Key_Escape);
  QVERIFY(!(Lineas(f, u"lb_Productos"_s) + Lineas(f, u"lb_ProductosSel"_s))
               .join(u""_s)
               .contains(u"Huevo"_s));
  Elegir(f, u"lb_Productos"_s, u"Li"_s, tacto);
  Cantidad(f, u"4"_s, tacto);
  Elegir(f, u"lb_Productos"_s, u"Az"_s, tacto);
  Cantidad(f, u"10"_s, tacto);
  // A button of the till needs its colour: the first accept asks for it.
  f.dialogos().siguienteColor(QColor(255, 0, 0));
  Activar(f, u"cmd_AceptarProdEl"_s, tacto, Qt::Key_F10);
  Activar(f, u"cmd_AceptarProdEl"_s, tacto, Qt::Key_F10);

  const QString producto = kColumnasProducto + u"where codigo = '40001'"_s;
  QStringList fila = (u"40001|"_s + nombre + u"||NULL|-1|2.5|NULL|6|10|"_s + Hoy() +
                      u"|NULL|255|NULL|NULL|0|NULL|"_s + hechoen + u"|3|40001|6|0|NULL|0"_s)
                         .split(u'|');
  QCOMPARE(Textos(f, producto), QStringList{fila.join(u'|')});
  const QString stock = kColumnasStock + u"where Producto = 40001"_s;
  QCOMPARE(Textos(f, stock), QStringList{u"40001|0|NULL|NULL"_s});
  QStringList receta = u"10|1|0.5 10|5|4 40001|1|8 40001|2|4 40001|3|10"_s.split(u' ');
  QCOMPARE(Textos(f, kReceta), receta);
  QVERIFY(Lineas(f, u"lb_ProductosElaborados"_s).contains(LineaLista(nombre, u"40001"_s)));
  // Saved, the screen shows again what the new product's steps hid.
  Exigir(f, &Visible, u"lblpospelab lbl_Componentes txt_PrecioElaborado"_s, true);

  // One quantity changes: the row is rewritten, the recipe replaced, the stock left alone.
  Activar(f, u"cmd_ModificarProdEla"_s, tacto, Qt::Key_F2);
  Elegir(f, u"lb_ProductosSel"_s, u"Li"_s, tacto);
  Cantidad(f, u"6"_s, tacto);
  Activar(f, u"cmd_AceptarProdEl"_s, tacto, Qt::Key_F10);
  fila[6] = u"0"_s;
  QCOMPARE(Textos(f, producto), QStringList{fila.join(u'|')});
  QCOMPARE(Textos(f, stock), QStringList{u"40001|0|NULL|NULL"_s});
  receta[3] = u"40001|2|6"_s;
  QCOMPARE(Textos(f, kReceta), receta);

  f.dialogos().olvidar();
  f.dialogos().siguienteRespuesta(ServicioDialogos::Respuesta::Si);
  Activar(f, u"cmd_EliminarProdEla"_s, tacto);
  QCOMPARE(f.dialogos().mensajes(), QStringList{kPreguntaEliminar});
  QCOMPARE(f.dialogos().llamadas().first().botones, ServicioDialogos::Botones::SiNo);
  fila[22] = u"-1"_s;
  QCOMPARE(Textos(f, producto), QStringList{fila.join(u'|')});
  QVERIFY(Textos(f, stock).isEmpty());
  QCOMPARE(Textos(f, kReceta), receta);  // the recipe stays, as the suite keeps it
  QVERIFY(!Lineas(f, u"lb_ProductosElaborados"_s).contains(LineaLista(nombre, u"40001"_s)));
  QVERIFY(f.inst().erroresMostrados().isEmpty());
}

void TestFormularioElaborados::lasListasSeLlenanYSeFiltranPorTipo() {
  FormularioPrueba f(Catalogo());
  QVERIFY(f.mostrar());
  Pulsar(f, u"cmd_ProdElaborado"_s);
  QCOMPARE(Lineas(f, u"lb_ProductosElaborados"_s),
           QStringList{LineaLista(u"Pincho de tortilla"_s, u"10"_s)});
  // The live simple products by name; change mode reads them again.
  f.inst().ejecutar({Producto(u"6"_s, u"Bravas"_s, {{u"tipoprod"_s, u"0"_s}})});
  Pulsar(f, u"cmd_ModificarProdEla"_s);
  const QString azucar = LineaLista(u"Azúcar"_s, u"3"_s), bravas = LineaLista(u"Bravas"_s, u"6"_s),
                hielo = LineaLista(u"Hielo"_s, u"40000"_s), huevo = LineaLista(u"Huevo"_s, u"5"_s),
                limon = LineaLista(u"Limón"_s, u"2"_s),
                vino = LineaLista(u"Vino tinto de la casa"_s, u"1"_s),
                zumo = LineaLista(u"Zumo (naranja)"_s, u"7"_s);
  QCOMPARE(Lineas(f, u"lb_Productos"_s),
           (QStringList{azucar, bravas, hielo, huevo, limon, vino, zumo}));
  Pulsar(f, u"cmdCInterno"_s);
  QCOMPARE(Lineas(f, u"lb_Productos"_s), (QStringList{azucar, bravas, limon}));
  Pulsar(f, u"cmdCVenta"_s);
  QCOMPARE(Lineas(f, u"lb_Productos"_s), (QStringList{hielo, huevo, vino, zumo}));
  QVERIFY(f.inst().erroresMostrados().isEmpty());
}

void TestFormularioElaborados::unaRecetaQueNoSePuedeGrabarDejaLasFilasComoEstaban_data() {
  QTest::addColumn<QString>("nombre");
  QTest::addColumn<QString>("componente");
  QTest::addColumn<QString>("contexto");
  QTest::newRow("apóstrofo") << u"Pincho d'Ana"_s << QString() << u"Productos  4"_s;
  QTest::newRow("código de 16 bits") << u"Pincho"_s << u"Hielo"_s << u"ProductosElaborados  2"_s;
  QTest::newRow("paréntesis") << u"Pincho"_s << u"Zumo"_s << u"ProductosElaborados  2"_s;
}

void TestFormularioElaborados::unaRecetaQueNoSePuedeGrabarDejaLasFilasComoEstaban() {
  QFETCH(QString, nombre);
  QFETCH(QString, componente);
  QFETCH(QString, contexto);
  FormularioPrueba f(Catalogo());
  QVERIFY(f.mostrar());
  Pulsar(f, u"cmd_ProdElaborado"_s);
  const auto filas = [&f] {
    return Textos(f, kColumnasProducto) + Textos(f, kColumnasStock) + Textos(f, kReceta);
  };
  const QStringList antes = filas();
  Pulsar(f, u"cmd_ModificarProdEla"_s);
  Escribir(f, u"txt_NombreElaborado"_s, nombre);
  if (!componente.isEmpty()) {
    Elegir(f, u"lb_Productos"_s, componente, true);
    Cantidad(f, u"2"_s, false);
  }
  Pulsar(f, u"cmd_AceptarProdEl"_s);
  QCOMPARE(f.inst().erroresMostrados().size(), 1);
  QVERIFY(f.inst().log().startsWith((contexto + u", Descripcion: "_s).toLatin1()));
  QCOMPARE(filas(), antes);
  QVERIFY(f.control<QPushButton>(u"cmd_AceptarProdEl"_s)->isEnabled());  // still changing
  QCOMPARE(f.control<QLineEdit>(u"txt_NombreElaborado"_s)->text(), nombre);
  QCOMPARE(Lineas(f, u"lb_ProductosSel"_s).size(), componente.isEmpty() ? 2 : 3);
}

// A simple product's save on PostgreSQL, checked column by column.
void TestFormularioElaborados::unProductoSimpleSeGrabaEnPostgreSQL() {
  InstalacionPrueba inst;
  EnPostgres(inst);
  QCOMPARE(inst.conexion().motor(), Motor::PostgreSQL);
  inst.ejecutar({u"insert into productos (codigo, nombre, borrar) values ('9', 'Borrado', -1)"_s});
  // "10" after "9", the deleted one included.
  QCOMPARE(GrabarProductoNuevo(inst.entorno(), Cana()), std::optional<qint64>(10));
  const QString producto = kColumnasProducto + u"where codigo = '10'"_s;
  CompararFila(inst.filas(producto).value(0), u"10"_s, u"Caña"_s, u"Cerveza de barril"_s,
               u"8410000000017"_s, u"7"_s, 0.6, 1.0, 1.76, 10.0, QDate::currentDate(),
               u"cana.jpg"_s, 255, u"P01"_s, u"Unidades"_s, 5.0, 0, 1, 2, 12, 3, 2, 0, 0);
  QCOMPARE(inst.filas(kColumnasStock), (QList<QVariantList>{{10, 24.0, 5.0, 0.0}}));
  QCOMPARE(inst.filas(kEnlaces),
           (QList<QVariantList>{{u"10"_s, u"P01"_s, 0.0}, {u"10"_s, u"PRV123"_s, 0.0}}));
  // Text compares without regard to letter case, as the till expects.
  QVERIFY(bcomprobarSiExisteNombre(inst.entorno(), u"CAña"_s, 99));
  QVERIFY(!bcomprobarSiExisteNombre(inst.entorno(), u"CAña"_s, 10));

  ProductoFormulario cambio = Cana();
  cambio.codigo = 10;
  cambio.precio = u"2"_s;
  cambio.foto.clear();
  cambio.proveedores = {LineaLista(u"Sur"_s, u"PRV123"_s)};
  QVERIFY(modificarProducto(inst.entorno(), cambio));
  QCOMPARE(inst.filas(u"select precio, foto, proveedor from productos where codigo = '10'"_s),
           (QList<QVariantList>{{2.0, u"cana.jpg"_s, u"PRV123"_s}}));
  QCOMPARE(inst.filas(kEnlaces), (QList<QVariantList>{{u"10"_s, u"PRV123"_s, 0.0}}));

  QVERIFY(EliminarProducto(inst.entorno(), 10));
  QCOMPARE(inst.filas(u"select borrar from productos where codigo = '10'"_s),
           (QList<QVariantList>{{-1}}));
  QVERIFY(inst.filas(kColumnasStock).isEmpty());
  QVERIFY(inst.erroresMostrados().isEmpty());
}

// A server's database is no file on a drive: nothing to check.
void TestFormularioElaborados::unaBaseDelServidorNoTieneNombreDeArchivo() {
  InstalacionPrueba inst;
  EnPostgres(inst);
  UbicarBaseDeDatos(inst.entorno());
  QVERIFY(!inst.entorno().sesion.BDEnOtraUnidad);
  QVERIFY(inst.entorno().sesion.RutaFotosBD.isEmpty());
}

PRODUCTOS_TEST_MAIN(TestFormularioElaborados)
#include "test_formulario_elaborados.moc"
