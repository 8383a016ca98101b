#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include "error_bd.h"
#include "motores_prueba.h"
#include "recordset.h"
#include "vectores.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QList<Tabla> TodasLasTablas() {
  return TablasPrincipales() + TablasInformes();
}

// A few rows in every table that the statements read, so that their joins and sub-queries
// have something to work on. Codes are chosen so that the catalogue's inserts do not clash.
void Sembrar(Conexion& c) {
  const QStringList filas = {
      u"insert into opciones (identificador, idioma, tipo_programa, numdecimales) "
      "values ('INST1', 'CASTELLANO', 'RESTAURANTE', 2)"_s,
      u"insert into opciones_terminal (identificador, empleado, id_color, colorpredefinido, "
      "tipo_letra, aumento_x, aumento_y) values ('INST1T1', 12, 2, 0, 1, 100, 100)"_s,
      u"insert into listadostemporal (tipoprograma, list1, list2) values ('RESTAURANTE', 'INST1', 'T1')"_s,
      u"insert into relaciones_fijas (indice, daton) values ('opcion_color_panel_familias', -1)"_s,
      u"insert into proveedores (codigo, nombre, borrar) values ('P1', 'Distribuciones Sur', 0)"_s,
      u"insert into proveedores (codigo, nombre, borrar) values ('P2', 'Bebidas Norte', -1)"_s,
      u"insert into seccion (codigo, nombre, borrar, menu, orden) values ('1', 'Bebidas', 0, 0, 1)"_s,
      u"insert into seccion (codigo, nombre, borrar, menu, orden) values ('2', 'Cocina', 0, 0, 2)"_s,
      u"insert into seccion (codigo, nombre, borrar, menu, orden) values ('', 'Sin código', 0, 0, 3)"_s,
      u"insert into productos (codigo, nombre, seccion, proveedor, borrar, mostrarencaja, "
      u"tipoprod, "
      "orden, descnumerica, codigobarras) values ('1', 'Coca Cola', '1', 'P1', 0, 0, 1, 1, 1, '8410001')"_s,
      u"insert into productos (codigo, nombre, seccion, proveedor, borrar, mostrarencaja, "
      u"tipoprod, "
      "orden, descnumerica) values ('2', 'Agua', '1', 'P1', 0, 0, 0, 2, 2)"_s,
      u"insert into productos (codigo, nombre, seccion, proveedor, borrar, mostrarencaja, "
      u"tipoprod) "
      "values ('3', 'Cocido', '-1', 'P1', 0, 0, 2)"_s,
      u"insert into productos (codigo, nombre, seccion, borrar, mostrarencaja, tipoprod, orden) "
      "values ('5', 'Menú', '-1', 0, 0, 1, 5)"_s,
      u"insert into productos (codigo, nombre, seccion, borrar, mostrarencaja, tipoprod, orden) "
      "values ('6', 'Borrable', '2', 0, -1, 1, 6)"_s,
      u"insert into productos (codigo, nombre, seccion, borrar, mostrarencaja, tipoprod) "
      "values ('10', 'Vino', '2', 0, 0, 1)"_s,
      u"insert into stock (producto, stock, stockminimo) values (3, 1, 0)"_s,
      u"insert into stock (producto, stock, stockminimo) values (6, 1, 0)"_s,
      u"insert into productoproveedor (producto, proveedor, coste) values ('1', 'P1', 0)"_s,
      u"insert into productoelaborado_producto (productopadre, productohijo, cantidad) "
      "values ('5', '1', 2)"_s,
      u"insert into subproductos (codproductopadre, codproductohijo) values ('1', '2')"_s,
      u"insert into menu_productos (seccion, producto, orden) values ('1', '1', 2)"_s,
      u"insert into impresoras (codigo, nombre) values (2, 'Cocina')"_s,
      u"insert into colores (id_color, fondomarco, nombre) values (1, 255, 'Claro')"_s,
      u"insert into colores (id_color, fondomarco, nombre) values (2, 0, 'Oscuro')"_s,
      u"insert into atributos (codigo, form, boton) values (1, 'frmProductos1024', 'cmd_nuevo')"_s,
      u"insert into empleadosatributos (codempleado, codatributo) values (7, 1)"_s,
      u"insert into traducciones (caption, ingles) values ('Nuevo', 'New')"_s,
      u"insert into entradas1 (formulario, empleado, entradas, ultimafecha) "
      "values ('frmProductos1024', '12', 3, '01/02/2024')"_s,
  };
  for (const QString& s : filas)
    c.ejecutar(s);
}

QStringList ValoresDe(Conexion& c, const QString& consulta, const QString& campo) {
  QStringList valores;
  Recordset rs(c, consulta);
  while (!rs.eof()) {
    const QVariant v = rs.field(campo);
    valores.append(v.isNull() ? u"NULL"_s : v.toString());
    rs.moveNext();
  }
  return valores;
}

}  // namespace

// The program's statements and the suite's desktop database semantics on every driver.
class TestMotores : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { motores_ = std::make_unique<MotoresPrueba>(); }
  void cleanupTestCase() { motores_.reset(); }
  // Every test runs on every driver.
  void initTestCase_data() { MotoresPrueba::agregarFilas(); }

  void catalogoDeSentencias();
  void semanticaDelMotorDeLaSuite();
  void valComoJet();
  void segundaSentenciaRechazada();
  void transacciones();
  void esquemaEnUnaTransaccion();
  void aperturaFallida();
  void signosEnLosValores();

 private:
  std::unique_ptr<MotoresPrueba> motores_;
};

// Every statement text of the program, with its sample values, runs on the driver: selects
// through a recordset whose every field is read, the others through the connection.
void TestMotores::catalogoDeSentencias() {
  ABRIR_NUEVA_DEL_MOTOR(*motores_, TodasLasTablas());
  Sembrar(c);
  const QList<VectorSentencia> vectores = CargarVectores(QStringLiteral(VECTORES_COPIA));
  QVERIFY(vectores.size() >= 70);
  for (const VectorSentencia& v : vectores) {
    try {
      if (v.texto.trimmed().startsWith(u"select"_s, Qt::CaseInsensitive)) {
        Recordset rs(c, v.texto);
        while (!rs.eof()) {
          for (int i = 0; i < rs.fieldCount(); ++i)
            rs.field(i);
          rs.moveNext();
        }
      } else {
        c.ejecutar(v.texto);
      }
    } catch (const ErrorBD& e) {
      QFAIL(qPrintable(u"%1 failed: %2\n%3"_s.arg(v.id, e.descripcion(), v.texto)));
    }
  }
  // What the statements that change data left behind, column by column.
  auto filas = FilasDe(c, u"select borrar from productos where codigo = '6'"_s);
  QCOMPARE(filas[0][0].toInt(), -1);
  QVERIFY(FilasDe(c, u"select * from stock where producto = 6"_s).isEmpty());
  QVERIFY(FilasDe(c, u"select * from productoproveedor where producto = '1'"_s).isEmpty());
  filas = FilasDe(c, u"select codproductopadre, codproductohijo from subproductos"_s);
  QCOMPARE(filas.size(), 1);  // S49 removed the seeded one, S50 wrote numbers into text columns
  QCOMPARE(filas[0][0].toString(), u"1"_s);
  QCOMPARE(filas[0][1].toString(), u"2"_s);
  filas = FilasDe(c, u"select caption, ingles from traducciones where caption = 'Aceptar'"_s);
  QCOMPARE(filas.size(), 1);
  QVERIFY(filas[0][1].isNull());
  QCOMPARE(FilasDe(c, u"select nombreEjecutable from ejecutablestraduccion"_s),
           (QList<QVariantList>{{u"Productos-Buscar"_s}}));
  filas = FilasDe(c,
                  u"select codigo, form, form_desc, boton, boton_desc, boton_auxiliar "
                  "from atributos where codigo = 10"_s);
  QCOMPARE(filas.size(), 1);
  QCOMPARE(filas[0][1].toString(), u"frmProductos1024"_s);
  QCOMPARE(filas[0][2].toString(), u"Productos"_s);
  QCOMPARE(filas[0][3].toString(), u"cmd_eliminar"_s);
  QCOMPARE(filas[0][4].toString(), u"Eliminar"_s);
  QVERIFY(filas[0][5].isNull());
}

void TestMotores::semanticaDelMotorDeLaSuite() {
  ABRIR_NUEVA_DEL_MOTOR(*motores_, TodasLasTablas());
  Sembrar(c);
  c.ejecutar(
      u"insert into productos (codigo, nombre, borrar, mostrarencaja, descnumerica) "
      "values ('9', 'coca zero', 0, 0, 7)"_s);

  // Codes sort by their numeric value: "10" after "9", so the next code is 11.
  QCOMPARE(ValoresDe(c, u"select codigo from productos order by val(codigo)"_s, u"codigo"_s),
           (QStringList{u"1"_s, u"2"_s, u"3"_s, u"5"_s, u"6"_s, u"9"_s, u"10"_s}));
  // NULL sorts lowest, as on the suite's desktop database: the last orden and first descnumerica
  // are the largest ones, whatever the engine.
  QCOMPARE(
      ValoresDe(c, u"Select orden from productos where borrar = 0 order by orden"_s, u"orden"_s),
      (QStringList{u"NULL"_s, u"NULL"_s, u"NULL"_s, u"1"_s, u"2"_s, u"5"_s, u"6"_s}));
  QCOMPARE(ValoresDe(c,
                     u"Select descnumerica from productos where borrar = 0 and mostrarencaja = 0 "
                     "order by descnumerica desc"_s,
                     u"DescNumerica"_s),
           (QStringList{u"7"_s, u"2"_s, u"1"_s, u"NULL"_s, u"NULL"_s, u"NULL"_s}));

  // Text compares without regard to letter case, in = and in LIKE.
  QCOMPARE(ValoresDe(c,
                     u"Select * from productos where nombre = 'COCA COLA' and codigo <> '99' "
                     "and borrar = 0"_s,
                     u"codigo"_s),
           QStringList{u"1"_s});
  QCOMPARE(ValoresDe(c,
                     u"Select * from Productos  where codigo <> null and borrar = 0 and Nombre "
                     "like 'CO%' and codigo not in (select productopadre from "
                     "productoelaborado_producto) order by codigo"_s,
                     u"nombre"_s),
           (QStringList{u"Coca Cola"_s, u"Cocido"_s, u"coca zero"_s}));
  QCOMPARE(ValoresDe(c, u"Select * from proveedores where codigo = 'p1'"_s, u"codigo"_s),
           QStringList{u"P1"_s});

  // The search with empty boxes lists every live product that is not elaborated.
  QCOMPARE(ValoresDe(c,
                     u"Select * from Productos  where codigo <> null and borrar = 0 and codigo "
                     "not in (select productopadre from productoelaborado_producto)"_s,
                     u"codigo"_s)
               .size(),
           6);
  // Live suppliers, with the suite's false.
  QCOMPARE(ValoresDe(c, u"Select * from proveedores where borrar = false"_s, u"nombre"_s),
           QStringList{u"Distribuciones Sur"_s});
  QCOMPARE(ValoresDe(c, u"Select * from proveedores where borrar = true"_s, u"codigo"_s),
           QStringList{u"P2"_s});

  // A recipe's parent can never be NULL: "not in" would then find nothing at all.
  QVERIFY_THROWS_EXCEPTION(
      ErrorBD, c.ejecutar(u"insert into productoelaborado_producto (productohijo) values ('1')"_s));
  // The translation programs' list has exactly one column, written without a column list.
  QVERIFY_THROWS_EXCEPTION(ErrorBD,
                           c.ejecutar(u"insert into ejecutablestraduccion values ('a', 'b')"_s));
  // A bare apostrophe in a spliced value still breaks the statement.
  QVERIFY_THROWS_EXCEPTION(ErrorBD,
                           Recordset(c, u"Select * from traducciones where caption = 'l'agua'"_s));
}

// val() reads numbers as the suite's desktop database does (SQLite: a function of the connection;
// through ODBC: a cast; PostgreSQL: a function of the schema).
void TestMotores::valComoJet() {
  ABRIR_NUEVA_DEL_MOTOR(*motores_);
  const QList<QPair<QString, double>> casos = {
      {u" 12abc"_s, 12}, {u""_s, 0}, {u"abc"_s, 0}, {u"-3.5e2"_s, -350}, {u"7"_s, 7}};
  int n = 0;
  for (const auto& [texto, valor] : casos) {
    c.ejecutar(u"insert into productos (codigo, nombre) values ('%1', '%2')"_s.arg(++n).arg(texto));
  }
  c.ejecutar(u"insert into productos (codigo) values ('%1')"_s.arg(++n));
  Recordset rs(c, u"select codigo, val(nombre) as v from productos order by val(codigo)"_s);
  for (const auto& [texto, valor] : casos) {
    QVERIFY(!rs.eof());
    QCOMPARE(rs.field(u"v"_s).toDouble(), valor);
    rs.moveNext();
  }
  QVERIFY(rs.isNull(u"v"_s));  // NULL stays NULL
}

void TestMotores::segundaSentenciaRechazada() {
  ABRIR_NUEVA_DEL_MOTOR(*motores_);
  c.ejecutar(u"insert into stock (producto, stock) values (1, 5)"_s);
  c.ejecutar(u"insert into productos (codigo, nombre) values ('1', 'Agua')"_s);
  const QString mensaje = u"Sentencia rechazada: contiene más de una instrucción SQL"_s;
  const QString inyectada = u"select * from productos where codigo = '1'; delete from stock; --'"_s;
  // Values that hide their ';' from a reader that knows only '...' strings.
  const QString conEscape =
      u"select * from productos where codigo = 'x' and E'\\'' = 'a'; delete from stock; --'"_s;
  const QString conDolares =
      u"select * from productos where codigo = 'x' and $$'$$ = 'a'; delete from stock; --'"_s;
  for (const QString& s : {u"select 1; delete from stock"_s, inyectada, conEscape, conDolares}) {
    try {
      c.ejecutar(s);
      QFAIL("a text with a second statement ran");
    } catch (const ErrorBD& e) {
      QCOMPARE(e.descripcion(), mensaje);
    }
    QVERIFY_THROWS_EXCEPTION(ErrorBD, Recordset(c, s));
    QVERIFY_THROWS_EXCEPTION(ErrorBD, c.consultar(s));
    QVERIFY_THROWS_EXCEPTION(ErrorBD, c.ejecutarDirecto(s));
  }
  QCOMPARE(FilasDe(c, u"select producto, stock from stock"_s).size(), 1);
  // The connection is still usable, and a ';' inside a value is only text.
  c.ejecutar(u"update productos set nombre = 'a; delete from stock' where codigo = '1'"_s);
  QCOMPARE(FilasDe(c, u"select nombre from productos"_s)[0][0].toString(),
           u"a; delete from stock"_s);
  QCOMPARE(FilasDe(c, u"select producto from stock;"_s).size(), 1);
}

void TestMotores::transacciones() {
  ABRIR_NUEVA_DEL_MOTOR(*motores_);
  {
    Transaccion t(c);
    c.ejecutar(u"insert into stock (producto, stock) values (1, 5)"_s);
    Recordset rs(c, u"select * from productos"_s);
    rs.addNew();
    rs.setField(u"codigo"_s, u"1"_s);
    rs.update();
  }  // not confirmed: nothing stays
  QVERIFY(FilasDe(c, u"select * from stock"_s).isEmpty());
  QVERIFY(FilasDe(c, u"select * from productos"_s).isEmpty());
  {
    Transaccion t(c);
    c.ejecutar(u"insert into stock (producto, stock) values (2, 5)"_s);
    t.confirmar();
  }
  QCOMPARE(FilasDe(c, u"select producto from stock"_s)[0][0].toInt(), 2);
}

// A schema that cannot be created leaves nothing half made.
void TestMotores::esquemaEnUnaTransaccion() {
  ABRIR_NUEVA_DEL_MOTOR(*motores_, TablasInformes());
  const QList<Tabla> tablas = {TablasPrincipales().at(0), TablasInformes().at(0)};
  QVERIFY_THROWS_EXCEPTION(ErrorBD, CrearEsquema(c, tablas));  // listadostemporal exists
  QVERIFY_THROWS_EXCEPTION(ErrorBD, c.consultar(u"select codigo from productos"_s));
  QVERIFY(FilasDe(c, u"select tipoprograma from listadostemporal"_s).isEmpty());
}

// Spliced values are only text, whatever signs they hold: placeholders of the drivers, comment
// marks, a ';', letters outside ASCII.
void TestMotores::signosEnLosValores() {
  ABRIR_NUEVA_DEL_MOTOR(*motores_);
  const QStringList nombres = {u"¿Qué? :nombre"_s, u"$1 @p ?"_s,    u"a -- b /* c */"_s,
                               u"x; y"_s,          u"Ñandú Caña"_s, u"C:\\fotos\\"_s};
  int n = 0;
  for (const QString& nombre : nombres) {
    c.ejecutar(
        u"insert into productos (codigo, nombre) values ('%1', '%2')"_s.arg(++n).arg(nombre));
  }
  n = 0;
  for (const QString& nombre : nombres) {
    Recordset rs(c,
                 u"Select * from productos where nombre = '%1' and codigo <> '99'"_s.arg(nombre));
    QCOMPARE(rs.recordCount(), 1);
    QCOMPARE(rs.field(u"codigo"_s).toString(), QString::number(++n));
    QCOMPARE(rs.field(u"nombre"_s).toString(), nombre);
  }
}

// A data source that cannot be opened gives an error to log, and the connection stays closed.
void TestMotores::aperturaFallida() {
  const QString cerrada = u"La conexión con la base de datos no está abierta"_s;
  OrigenesDatos origenes;
  OrigenDatos archivo;
  archivo.tipo = OrigenDatos::Tipo::SQLite;
  archivo.archivo = u"/nonexistent/velandria.db"_s;
  origenes.mapear(u"velandria"_s, archivo);
  OrigenDatos servidor;
  servidor.tipo = OrigenDatos::Tipo::PostgreSQL;
  servidor.servidor = u"/nonexistent"_s;
  servidor.baseDatos = u"copas"_s;
  origenes.mapear(u"lumbraCopas"_s, servidor);

  Conexion c;
  try {
    c.abrir(MotoresPrueba::cadena(), origenes);
    QFAIL("a missing database file opened");
  } catch (const ErrorBD& e) {
    QCOMPARE(e.descripcion(),
             u"No se encuentra el archivo de base de datos /nonexistent/velandria.db"_s);
  }
  QVERIFY(!c.abierta());
  // The program type "Restaurante" gives an empty connection string: nothing opens, and no
  // stray database file is made in the working folder.
  QTemporaryDir carpeta;
  const QString antes = QDir::currentPath();
  QDir::setCurrent(carpeta.path());
  for (const QString& vacia : {QString(), u"dsn=;pwd=x;"_s, u"pwd=KorvanitesX%QQRT;"_s}) {
    try {
      c.abrir(vacia, origenes);
      QFAIL(qPrintable(u"opened: "_s + vacia));
    } catch (const ErrorBD& e) {
      QCOMPARE(e.descripcion(),
               u"[unixODBC][Driver Manager]Data source name not found and no default driver "
               "specified"_s);
    }
    QVERIFY(!c.abierta());
  }
  QDir::setCurrent(antes);
  QVERIFY(QDir(carpeta.path()).isEmpty());
  QVERIFY_THROWS_EXCEPTION(ErrorBD, c.abrir(u"dsn=lumbraCopas;pwd=x;"_s, origenes));
  QVERIFY(!c.abierta());
  try {
    c.ejecutar(u"delete from stock"_s);
    QFAIL("a closed connection ran a statement");
  } catch (const ErrorBD& e) {
    QCOMPARE(e.descripcion(), cerrada);
  }
  QVERIFY_THROWS_EXCEPTION(ErrorBD, Recordset(c, u"select * from stock"_s));
  QVERIFY_THROWS_EXCEPTION(ErrorBD, Transaccion{c});
}

QTEST_GUILESS_MAIN(TestMotores)
#include "test_motores.moc"
