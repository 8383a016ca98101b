#include <QTest>

#include "error_bd.h"
#include "motores_prueba.h"
#include "recordset.h"

using namespace Qt::Literals::StringLiterals;

// The main database on a PostgreSQL server, reached by the suite's connection string through
// the installation's mapping. The server is started by the test itself; if it cannot start,
// the test fails.
class TestPostgres : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase();
  void cleanupTestCase() { motores_.reset(); }
  void conexionPorElMapeo();
  void esquemaConCitextYVal();
  void servidorQueNoArranca();

 private:
  std::unique_ptr<MotoresPrueba> motores_;
};

void TestPostgres::initTestCase() {
  motores_ = std::make_unique<MotoresPrueba>();
  PostgresPrueba* pg = motores_->postgres();
  QVERIFY2(pg, qPrintable(u"the PostgreSQL server could not be started: "_s +
                          motores_->errorPostgres()));
}

void TestPostgres::conexionPorElMapeo() {
  PostgresPrueba* pg = motores_->postgres();
  QVERIFY(pg);
  OrigenDatos origen = pg->crearBaseDatos(u"mapeo"_s);
  QVERIFY2(!origen.baseDatos.isEmpty(), qPrintable(pg->error()));
  OrigenesDatos origenes;
  origenes.mapear(u"velandria"_s, origen);

  Conexion c;
  c.abrir(u"dsn=velandria;pwd=KorvanitesX%QQRT;"_s, origenes);  // the pwd= is the password
  QCOMPARE(c.motor(), Motor::PostgreSQL);
  QCOMPARE(c.rutaPredeterminada(), u"mapeo"_s);
  QCOMPARE(FilasDe(c, u"select current_user"_s)[0][0].toString(), PostgresPrueba::usuario());

  try {
    Conexion otra;
    otra.abrir(u"dsn=VELANDRIA;pwd=otra;"_s, origenes);
    QFAIL("a wrong password opened the database");
  } catch (const ErrorBD& e) {
    QVERIFY2(e.descripcion().contains(u"password"_s), qPrintable(e.descripcion()));
    QVERIFY(!e.descripcion().contains(u"Korvanites"_s));
  }

  // A password in the installation's mapping wins over the connection string's.
  origen.clave = PostgresPrueba::clave();
  origenes.mapear(u"velandria"_s, origen);
  Conexion conClave;
  conClave.abrir(u"dsn=velandria;pwd=otra;"_s, origenes);
  QVERIFY(conClave.abierta());
}

void TestPostgres::esquemaConCitextYVal() {
  Conexion c;
  ABRIR_NUEVA(*motores_, c, u"postgresql"_s);
  auto filas = FilasDe(c,
                       u"select column_name, udt_name from information_schema.columns "
                       "where table_name = 'productos' and column_name in "
                       "('nombre', 'coste', 'borrar', 'fechaalta') order by column_name"_s);
  QCOMPARE(filas.size(), 4);
  QCOMPARE(filas[0][1].toString(), u"int2"_s);    // borrar: -1 / 0
  QCOMPARE(filas[1][1].toString(), u"float8"_s);  // coste
  QCOMPARE(filas[2][1].toString(), u"date"_s);    // fechaalta
  QCOMPARE(filas[3][1].toString(), u"citext"_s);  // nombre
  // Column names come back in lower case; the recordset finds them in any case.
  c.ejecutar(
      u"insert into productos (codigo, nombre, margencomercial) values ('1', 'Tónica', 1.5)"_s);
  Recordset rs(c, u"select * from productos where nombre = 'TÓNICA' or nombre like 'tó%'"_s);
  QCOMPARE(rs.recordCount(), 1);
  QCOMPARE(rs.field(u"MargenComercial"_s).toDouble(), 1.5);

  // The schema's val() gives what the suite's desktop database gives on the measured cases.
  filas = FilasDe(c, u"select val(' 12abc'), val(''), val('abc'), val('-3.5e2'), val(null)"_s);
  QCOMPARE(filas[0][0].toDouble(), 12.0);
  QCOMPARE(filas[0][1].toDouble(), 0.0);
  QCOMPARE(filas[0][2].toDouble(), 0.0);
  QCOMPARE(filas[0][3].toDouble(), -350.0);
  QVERIFY(filas[0][4].isNull());
  // It can be indexed, so the next-code look-up does not read the table in text order.
  c.ejecutarDirecto(u"create index productos_val_codigo on productos (val(codigo))"_s);
}

// Without the server's programs the test run fails with the reason; it never passes quietly.
void TestPostgres::servidorQueNoArranca() {
  qputenv("PRODUCTOS_PG_BIN", "/nonexistent/bin");
  PostgresPrueba pg;
  qunsetenv("PRODUCTOS_PG_BIN");
  QVERIFY(!pg.arrancado());
  QVERIFY2(pg.error().contains(u"initdb"_s), qPrintable(pg.error()));
}

QTEST_GUILESS_MAIN(TestPostgres)
#include "test_postgres.moc"
