#include <QSqlDriver>
#include <QSqlError>
#include <QSqlField>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QTest>

#include "error_bd.h"
#include "motores_prueba.h"
#include "recordset.h"

using namespace Qt::Literals::StringLiterals;

// The suite's own connection string, given to ODBC with no mapping, reaches a SQLite database
// through unixODBC and the SQLite ODBC driver (the data source is defined by the test).
class TestOdbc : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { motores_ = std::make_unique<MotoresPrueba>(); }
  void cleanupTestCase() { motores_.reset(); }
  void cadenaDelProgramaSinMapeo();
  void origenInexistente();
  void postgresPorOdbc();

 private:
  std::unique_ptr<MotoresPrueba> motores_;
};

void TestOdbc::cadenaDelProgramaSinMapeo() {
  Conexion c;
  ABRIR_NUEVA(*motores_, c, u"odbc"_s);
  QCOMPARE(MotoresPrueba::cadena(), u"dsn=velandria;pwd=KorvanitesX%QQRT;"_s);
  QCOMPARE(c.bd().driverName(), u"QODBC"_s);
  // Qt's ODBC driver hands its connection handle over as a plain void*; the engine is told by
  // asking the ODBC driver for its DBMS name through it.
  QCOMPARE(QByteArray(c.bd().driver()->handle().typeName()), QByteArray("void*"));
  QCOMPARE(c.motor(), Motor::SQLiteODBC);
  QString esperada = motores_->archivoOdbc();
  esperada.chop(3);  // ".db"
  QCOMPARE(c.rutaPredeterminada(), esperada);

  // Codes order by number through the cast that stands in for val().
  for (const QString& codigo : {u"9"_s, u"10"_s, u"2"_s, u"1"_s}) {
    c.ejecutar(
        u"insert into productos (codigo, nombre, borrar) values ('%1', 'p', 0)"_s.arg(codigo));
  }
  Recordset rs(c, u"select codigo from productos order by val(codigo)"_s);
  QCOMPARE(rs.recordCount(), 4);
  rs.moveLast();
  QCOMPARE(rs.field(u"codigo"_s).toString(), u"10"_s);
  rs.movePrevious();
  QCOMPARE(rs.field(u"codigo"_s).toString(), u"9"_s);

  // Text columns reach Qt's ODBC driver with a modest width: it sizes and clears a buffer of
  // that width for every value it fetches, and a 64 KiB one made lists four times as slow.
  QSqlQuery q = c.consultar(u"select * from productos"_s);
  QCOMPARE(q.record().field(u"nombre"_s).length(), 255);
}

void TestOdbc::origenInexistente() {
  Conexion c;
  try {
    c.abrir(u"dsn=noexiste;pwd=KorvanitesX%QQRT;"_s, OrigenesDatos());
    QFAIL("a missing data source opened");
  } catch (const ErrorBD& e) {
    QVERIFY2(e.descripcion().contains(u"not found"_s, Qt::CaseInsensitive),
             qPrintable(e.descripcion()));
    // The description goes to the error log: it must never carry the password.
    QVERIFY(!e.descripcion().contains(u"Korvanites"_s));
  }
  QVERIFY(!c.abierta());
  QVERIFY_THROWS_EXCEPTION(ErrorBD, c.ejecutar(u"select 1"_s));
}

// psqlODBC reads "%QQ" in a bare password as an escaped byte: the password must reach it in
// braces, and the engine behind the data source is PostgreSQL, with its rewrites.
void TestOdbc::postgresPorOdbc() {
  Conexion c;
  ABRIR_NUEVA(*motores_, c, u"odbc-postgresql"_s);
  QCOMPARE(c.bd().driverName(), u"QODBC"_s);
  QCOMPARE(c.motor(), Motor::PostgreSQL);
  QCOMPARE(c.rutaPredeterminada(), u"copas"_s);
  c.ejecutar(u"insert into productos (codigo, orden, borrar) values ('1', 3, 0)"_s);
  c.ejecutar(u"insert into productos (codigo, borrar) values ('2', 0)"_s);
  Recordset rs(c, u"Select orden from productos where borrar = false order by orden"_s);
  rs.moveLast();
  QCOMPARE(rs.field(u"orden"_s).toInt(), 3);  // NULL first, as on the suite's desktop database

  const QString nombre = u"sin_llaves"_s;
  {
    QSqlDatabase bd = QSqlDatabase::addDatabase(u"QODBC"_s, nombre);
    bd.setDatabaseName(u"lumbraCopas;pwd=KorvanitesX%QQRT;"_s);
    QVERIFY(!bd.open());
    QVERIFY2(bd.lastError().text().contains(u"password"_s), qPrintable(bd.lastError().text()));
  }
  QSqlDatabase::removeDatabase(nombre);
}

QTEST_GUILESS_MAIN(TestOdbc)
#include "test_odbc.moc"
