#include <QDate>
#include <QSqlError>
#include <QSqlField>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QTest>

#include "error_bd.h"
#include "motores_prueba.h"
#include "recordset.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// The first field of every row of a recordset, walked as the program walks them, NULL as "NULL".
QString ValoresDe(Conexion& c, const QString& consulta) {
  QStringList valores;
  for (Recordset rs(c, consulta); !rs.eof(); rs.moveNext())
    valores.append(rs.field(0).isNull() ? u"NULL"_s : rs.field(0).toString());
  return valores.join(u',');
}

// The rows of a query alike on every driver: NULL as QVariant(), a date as its ISO text.
QList<QVariantList> Filas(Conexion& c, const QString& consulta) {
  QList<QVariantList> filas = FilasDe(c, consulta);
  for (QVariantList& fila : filas) {
    for (QVariant& v : fila)
      v = v.isNull()                       ? QVariant()
          : v.typeId() == QMetaType::QDate ? v.toDate().toString(Qt::ISODate)
                                           : v;
  }
  return filas;
}

void Poner(Recordset& rs, const QList<std::pair<QString, QVariant>>& campos) {
  for (const auto& [campo, valor] : campos)
    rs.setField(campo, valor);
}

}  // namespace

// The program's statements, the suite's desktop database semantics and the recordset, alike on
// every driver: every test runs once per driver.
class TestMotores : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { motores_ = std::make_unique<MotoresPrueba>(); }
  void initTestCase_data() { MotoresPrueba::agregarFilas(); }
  void conexion();
  void catalogoDeSentencias();
  void semanticaDelMotorDeLaSuite();
  void transacciones();
  void recordset();

 private:
  std::unique_ptr<MotoresPrueba> motores_;
};

void TestMotores::conexion() {
  ABRIR_NUEVA_DEL_MOTOR(*motores_);
  const QMap<QString, Motor> motores{{u"sqlite"_s, Motor::SQLite},
                                     {u"odbc"_s, Motor::SQLiteODBC},
                                     {u"postgresql"_s, Motor::PostgreSQL}};
  QCOMPARE(c.motor(), motores.value(motor));
  QCOMPARE(c.bd().driverName() == u"QODBC"_s, motor == u"odbc"_s);
  // The default database path: a file's path without its extension, a server database's name.
  const QString ruta = motor == u"odbc"_s ? motores_->archivoOdbc().chopped(3)
                                          : c.bd().databaseName().remove(u".db"_s);
  QCOMPARE(c.rutaPredeterminada(), ruta);
  // Text columns reach Qt's ODBC driver with a modest width: it sizes and clears a buffer of
  // that width for every value it fetches, and a 64 KiB one made lists four times as slow.
  if (motor == u"odbc"_s)
    QCOMPARE(c.consultar(u"select * from productos"_s).record().field(u"nombre"_s).length(), 255);
  if (motor != u"postgresql"_s)
    return;
  // The types that the suite's other programs read; val() can be indexed, so the next-code
  // look-up does not read the table in text order.
  QCOMPARE(Filas(c,
                 u"select udt_name from information_schema.columns where table_name = "
                 "'productos' and column_name in ('nombre', 'coste', 'borrar', 'fechaalta') "
                 "order by column_name"_s),
           (QList<QVariantList>{{u"int2"_s}, {u"float8"_s}, {u"date"_s}, {u"citext"_s}}));
  c.ejecutarDirecto(u"create index productos_val_codigo on productos (val(codigo))"_s);
  // The connection string's pwd= is the password unless the installation's mapping gives one.
  OrigenesDatos origenes;
  OrigenDatos origen = motores_->postgres()->crearBaseDatos(u"mapeo"_s);
  origenes.mapear(u"velandria"_s, origen);
  const QString error = ErrorDe([&] { Conexion().abrir(u"dsn=VELANDRIA;pwd=Otra9;"_s, origenes); });
  QVERIFY2(error.contains(u"password"_s) && !error.contains(u"Otra9"_s), qPrintable(error));
  origen.clave = PostgresPrueba::clave();
  origenes.mapear(u"velandria"_s, origen);
  {
    Conexion conClave;
    conClave.abrir(u"dsn=velandria;pwd=otra;"_s, origenes);
    QCOMPARE(Filas(conClave, u"select current_user"_s), QList<QVariantList>{{u"tpv"_s}});
  }
  // A connection object that goes closes its session: the server drops the database at once.
  QVERIFY(motores_->postgres()->ejecutarComoAdministrador(u"postgres"_s, u"drop database mapeo"_s));
  // Through psqlODBC the password reaches the server as written ("%QQ" is no escape), the engine
  // is told by the driver, and the text guard alone refuses a second statement: psqlODBC runs it.
  Conexion odbc;
  const QString fallo = motores_->abrirPorPsqlOdbc(odbc);
  QVERIFY2(fallo.isEmpty(), qPrintable(fallo));
  QCOMPARE(std::pair(odbc.motor(), odbc.rutaPredeterminada()),
           std::pair(Motor::PostgreSQL, u"copas"_s));
  CrearEsquema(odbc, {TablasPrincipales().at(0)});
  QCOMPARE(ErrorDe([&] { odbc.ejecutar(u"select 1; create table otra (a int)"_s); }),
           u"Sentencia rechazada: contiene más de una instrucción SQL"_s);
  QCOMPARE(Filas(odbc, u"select count(*) from pg_tables where tablename = 'otra'"_s),
           QList<QVariantList>{{0}});
}

// Every statement text of the program, with its sample values, runs on the driver: selects
// through a recordset whose every field is read, the others through the connection.
void TestMotores::catalogoDeSentencias() {
  ABRIR_NUEVA_DEL_MOTOR(*motores_, TablasPrincipales() + TablasInformes());
  Sembrar(c);
  const QList<VectorSentencia> vectores = CargarVectores();
  QVERIFY(vectores.size() >= 70);
  for (const VectorSentencia& v : vectores) {
    try {
      if (!v.texto.trimmed().startsWith(u"select"_s, Qt::CaseInsensitive)) {
        c.ejecutar(v.texto);
        continue;
      }
      for (Recordset rs(c, v.texto); !rs.eof(); rs.moveNext()) {
        for (int i = 0; i < rs.fieldCount(); ++i)
          rs.field(i);
      }
    } catch (const ErrorBD& e) {
      QFAIL(qPrintable(u"%1 failed: %2\n%3"_s.arg(v.id, e.descripcion(), v.texto)));
    }
  }
  // What the statements that change data left behind, column by column. The seeded sub-product
  // link was removed, then one was written with numbers into the text columns.
  QCOMPARE(Filas(c,
                 u"select p.borrar, (select count(*) from stock where producto = 6), "
                 "(select count(*) from productoproveedor where producto = '1') "
                 "from productos p where codigo = '6'"_s),
           (QList<QVariantList>{{-1, 0, 0}}));
  QCOMPARE(Filas(c, u"select codproductopadre, codproductohijo from subproductos"_s),
           (QList<QVariantList>{{u"1"_s, u"2"_s}}));
  QCOMPARE(Filas(c, u"select caption, ingles from traducciones where caption = 'Aceptar'"_s),
           (QList<QVariantList>{{u"Aceptar"_s, QVariant()}}));
  QCOMPARE(Filas(c, u"select nombreEjecutable from ejecutablestraduccion"_s),
           (QList<QVariantList>{{u"Productos-Buscar"_s}}));
  QCOMPARE(Filas(c,
                 u"select form, form_desc, boton, boton_desc, boton_auxiliar "
                 "from atributos where codigo = 10"_s),
           (QList<QVariantList>{{u"frmProductos1024"_s, u"Productos"_s, u"cmd_eliminar"_s,
                                 u"Eliminar"_s, QVariant()}}));
}

void TestMotores::semanticaDelMotorDeLaSuite() {
  ABRIR_NUEVA_DEL_MOTOR(*motores_, TablasPrincipales() + TablasInformes());
  Sembrar(c);
  c.ejecutar(
      u"insert into productos (codigo, nombre, borrar, mostrarencaja, descnumerica) values "
      "('9', 'coca zero', 0, 0, 7), ('11', null, -1, 0, null), ('12', ' -3.5e2x', -1, 0, "
      "null)"_s);
  const QList<std::pair<QString, QString>> consultas = {
      // Codes sort by their numeric value: "10" after "9", so the next code is 13.
      {u"select codigo from productos order by val(codigo)"_s, u"1,2,3,5,6,9,10,11,12"_s},
      // NULL sorts lowest, as on the suite's desktop database: the last orden and the first
      // descnumerica are the largest ones, whatever the engine.
      {u"Select orden from productos where borrar = 0 order by orden"_s,
       u"NULL,NULL,NULL,1,2,5,6"_s},
      {u"Select descnumerica from productos where borrar = 0 and mostrarencaja = 0 order by "
       "descnumerica desc"_s,
       u"7,2,1,NULL,NULL,NULL"_s},
      // Text compares without regard to letter case, in = and in LIKE; booleans are -1 and 0.
      {u"Select codigo from productos where nombre = 'COCA COLA' and codigo <> '99' and borrar = 0"_s,
       u"1"_s},
      {u"Select nombre from Productos  where codigo <> null and borrar = 0 and Nombre like 'CO%' "
       "and codigo not in (select productopadre from productoelaborado_producto) order by codigo"_s,
       u"Coca Cola,Cocido,coca zero"_s},
      {u"Select codigo from proveedores where codigo = 'p1' and borrar = false"_s, u"P1"_s},
      {u"Select codigo from proveedores where borrar = true"_s, u"P2"_s},
      // val() reads numbers as the suite's desktop database does; NULL stays NULL.
      {u"select val(nombre) as v from productos where codigo in ('1', '11', '12') order by "
       "val(codigo)"_s,
       u"0,NULL,-350"_s}};
  for (const auto& [consulta, esperado] : consultas)
    QCOMPARE(ValoresDe(c, consulta), esperado);
  // A recipe's parent can never be NULL: "not in" would then find nothing at all. The translation
  // programs' list has one column, written without a column list.
  for (const QString& s : {u"insert into productoelaborado_producto (productohijo) values ('1')"_s,
                           u"insert into ejecutablestraduccion values ('a', 'b')"_s,
                           u"Select * from traducciones where caption = 'l'agua'"_s})
    QVERIFY_THROWS_EXCEPTION(ErrorBD, c.ejecutar(s));
  // A bare apostrophe in a spliced value breaks the statement (above); other signs are only text.
  for (const QString& nombre : {u"¿Qué? :nombre"_s, u"$1 @p ?"_s, u"a -- b /* c */"_s, u"x; y"_s,
                                u"Ñandú Caña"_s, u"C:\\fotos\\"_s}) {
    c.ejecutar(u"insert into traducciones (caption) values ('%1')"_s.arg(nombre));
    QCOMPARE(ValoresDe(c, u"Select caption from traducciones where caption = '%1'"_s.arg(nombre)),
             nombre);
  }
}

// A transaction not confirmed leaves nothing; a schema that cannot be created, nothing half made.
void TestMotores::transacciones() {
  ABRIR_NUEVA_DEL_MOTOR(*motores_, TablasInformes());
  for (const bool confirmar : {false, true}) {
    Transaccion t(c);
    c.ejecutar(u"insert into listadostemporal (tipoprograma) values ('COPAS')"_s);
    Recordset rs(c, u"select * from listadostemporal"_s);
    rs.addNew();
    rs.setField(u"list1"_s, u"T1"_s);
    rs.update();
    if (confirmar)
      t.confirmar();
  }
  QVERIFY_THROWS_EXCEPTION(ErrorBD,
                           CrearEsquema(c, {TablasPrincipales().at(0), TablasInformes().at(0)}));
  QVERIFY_THROWS_EXCEPTION(ErrorBD, c.consultar(u"select codigo from productos"_s));
  QCOMPARE(Filas(c, u"select tipoprograma, list1 from listadostemporal order by 2"_s),
           (QList<QVariantList>{{u"COPAS"_s, QVariant()}, {QVariant(), u"T1"_s}}));
}

// The recordset rules no form walks: moves past either end, the current row deleted or changed
// behind its back, rows of a table with no key, a statement that leaves out its table's key.
void TestMotores::recordset() {
  ABRIR_NUEVA_DEL_MOTOR(*motores_);
  Recordset rs(c, u"select * from productos order by codigo"_s);
  QStringList pasos;
  using Mover = void (Recordset::*)();
  const auto mover = [&](std::initializer_list<Mover> movimientos) {
    for (const Mover m : movimientos) {
      QString visto;
      const QString error = ErrorDe([&] {
        (rs.*m)();
        visto = rs.bof() && rs.eof() ? u"vacío"_s
                : rs.bof()           ? u"BOF"_s
                : rs.eof()           ? u"EOF"_s
                                     : rs.field(u"Nombre"_s).toString();
      });
      pasos << (error != u"(no error)"_s ? error.left(17) : visto);
    }
  };
  const Mover primero = &Recordset::moveFirst, ultimo = &Recordset::moveLast,
              siguiente = &Recordset::moveNext, anterior = &Recordset::movePrevious;
  mover({primero, siguiente, &Recordset::deleteRow, &Recordset::update});
  c.ejecutar(
      u"insert into productos (codigo, nombre, borrar) values ('1', 'Agua', 0), "
      "('2', 'Caña', 0), ('3', 'Vino', 0)"_s);
  mover({&Recordset::requery, siguiente, siguiente, siguiente, siguiente, anterior, primero,
         anterior, anterior, siguiente, ultimo, &Recordset::deleteRow, anterior});
  const QString e = u"BOF o EOF es True"_s;
  QCOMPARE(pasos,
           QStringList({e, e, e, u"vacío"_s, u"Agua"_s, u"Caña"_s, u"Vino"_s, u"EOF"_s, e,
                        u"Vino"_s, u"Agua"_s, u"BOF"_s, e, u"Agua"_s, u"Vino"_s, e, u"Caña"_s}));
  QCOMPARE(rs.recordCount(), 2);
  c.ejecutar(u"delete from productos where codigo = '2'"_s);
  rs.setField(u"nombre"_s, u"Tinto"_s);
  QVERIFY_THROWS_EXCEPTION(ErrorBD, rs.update());
  QVERIFY_THROWS_EXCEPTION(ErrorBD, rs.setField(u"coste"_s, u"12,5"_s));

  c.ejecutar(
      u"insert into productoproveedor (producto, proveedor, coste) values "
      "('1', 'P1', 0), ('1', 'P2', 0.1), ('2', 'P1', null)"_s);
  c.ejecutar(
      u"insert into opciones_terminal (identificador, empleado, id_color, "
      "colorpredefinido) values ('INST1T1', 3, 1, 0), ('INST1T2', 3, 1, 0)"_s);
  {
    Recordset uno(c,
                  u"select * from productoproveedor where producto = '1' and proveedor = 'P2'"_s);
    uno.setField(u"coste"_s, u"0.3"_s);
    uno.update();
    Recordset dos(c, u"select * from productoproveedor where producto = '2'"_s);
    dos.setField(u"proveedor"_s, u"P3"_s);
    dos.update();
    dos.deleteRow();
    Recordset sinClave(c,
                       u"Select id_color, colorPredefinido from opciones_terminal where "
                       "identificador = 'INST1T1'"_s);
    QCOMPARE(sinClave.fieldCount(), 2);
    Poner(sinClave, {{u"id_color"_s, 4}, {u"ColorPredefinido"_s, true}});
    sinClave.update();
  }
  QCOMPARE(Filas(c, u"select producto, proveedor, coste from productoproveedor order by 2"_s),
           (QList<QVariantList>{{u"1"_s, u"P1"_s, 0.0}, {u"1"_s, u"P2"_s, 0.3}}));
  QCOMPARE(Filas(c,
                 u"select identificador, id_color, colorpredefinido from opciones_terminal "
                 "order by 1"_s),
           (QList<QVariantList>{{u"INST1T1"_s, 4, -1}, {u"INST1T2"_s, 1, 0}}));
}

QTEST_GUILESS_MAIN(TestMotores)
#include "test_motores.moc"
