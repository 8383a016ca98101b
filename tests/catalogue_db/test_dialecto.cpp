#include <QFile>
#include <QTest>

#include "dialecto.h"
#include "vectores.h"

using namespace Qt::Literals::StringLiterals;

Q_DECLARE_METATYPE(Motor)

class TestDialecto : public QObject {
  Q_OBJECT

 private slots:
  void copiaIgualALaCompartida();
  void vectores_data();
  void vectores();
  void reglasFueraDeLosVectores_data();
  void reglasFueraDeLosVectores();
  void segundaSentencia_data();
  void segundaSentencia();
};

// The copy in the repository must not drift from the measured original when both are present.
void TestDialecto::copiaIgualALaCompartida() {
  QFile copia(QStringLiteral(VECTORES_COPIA));
  QVERIFY2(copia.open(QIODevice::ReadOnly), VECTORES_COPIA);
  QFile compartida(QStringLiteral(VECTORES_COMPARTIDOS));
  if (!compartida.open(QIODevice::ReadOnly))
    return;  // a clone without the shared folder
  QVERIFY2(copia.readAll() == compartida.readAll(),
           "tests/catalogue_db/data/dialect-vectors.json differs from the shared vectors");
}

void TestDialecto::vectores_data() {
  QTest::addColumn<QString>("texto");
  QTest::addColumn<Motor>("motor");
  QTest::addColumn<QString>("esperado");
  const QList<VectorSentencia> vectores = CargarVectores(QStringLiteral(VECTORES_COPIA));
  QVERIFY(vectores.size() >= 70);
  for (const VectorSentencia& v : vectores) {
    QTest::addRow("%s sqlite", qPrintable(v.id)) << v.texto << Motor::SQLite << v.sqlite;
    QTest::addRow("%s odbc", qPrintable(v.id)) << v.texto << Motor::SQLiteODBC << v.sqliteOdbc;
    QTest::addRow("%s postgresql", qPrintable(v.id)) << v.texto << Motor::PostgreSQL << v.postgres;
  }
}

void TestDialecto::vectores() {
  QFETCH(QString, texto);
  QFETCH(Motor, motor);
  QFETCH(QString, esperado);
  QCOMPARE(AdaptarSentencia(texto, motor), esperado);
  // The adapted text must run as it stands: none of the program's statements is two.
  QVERIFY(!TieneSegundaSentencia(texto));
  QVERIFY(!TieneSegundaSentencia(esperado));
  // Adapting twice changes nothing more.
  QCOMPARE(AdaptarSentencia(esperado, motor), esperado);
}

void TestDialecto::reglasFueraDeLosVectores_data() {
  QTest::addColumn<QString>("texto");
  QTest::addColumn<Motor>("motor");
  QTest::addColumn<QString>("esperado");
  const QString enLiteral =
      u"select * from productos where nombre = 'Delete * from true <> null order by val(x)'"_s;
  for (Motor m : {Motor::SQLite, Motor::SQLiteODBC, Motor::PostgreSQL}) {
    QTest::addRow("literal untouched %d", int(m)) << enLiteral << m << enLiteral;
  }
  QTest::newRow("doubled apostrophe stays in the literal")
      << u"select * from t where a = 'it''s = null' and b = null"_s << Motor::SQLite
      << u"select * from t where a = 'it''s = null' and b is null"_s;
  QTest::newRow("whole words only")
      << u"select trueno, falseta, nullable from t where x=true and y=FALSE"_s << Motor::SQLite
      << u"select trueno, falseta, nullable from t where x=-1 and y=0"_s;
  QTest::newRow("comparison operators that are not = null")
      << u"select * from t where a >= 1 and b <= 2 and c<>NULL and d =null"_s << Motor::SQLite
      << u"select * from t where a >= 1 and b <= 2 and c is not null and d is null"_s;
  QTest::newRow("no blank before the operator")
      << u"select * from t where (a=null or b<>null)"_s << Motor::PostgreSQL
      << u"select * from t where (a is null or b is not null)"_s;
  QTest::newRow("val with nested brackets, odbc")
      << u"select * from t order by Val(trim(codigo)) desc"_s << Motor::SQLiteODBC
      << u"select * from t order by cast(trim(codigo) as real) desc"_s;
  QTest::newRow("interval is not val")
      << u"select interval(a) from t"_s << Motor::SQLiteODBC << u"select interval(a) from t"_s;
  QTest::newRow("several keys, postgresql")
      << u"select * from t order by a, b desc, c asc"_s << Motor::PostgreSQL
      << u"select * from t order by a nulls first, b desc nulls last, c asc nulls first"_s;
  QTest::newRow("order by in a subquery, postgresql")
      << u"select * from (select a from t order by a) x order by b desc"_s << Motor::PostgreSQL
      << u"select * from (select a from t order by a nulls first) x order by b desc nulls last"_s;
  QTest::newRow("keys with functions, postgresql")
      << u"select * from t order by coalesce(a, 0), val(b)"_s << Motor::PostgreSQL
      << u"select * from t order by coalesce(a, 0) nulls first, val(b) nulls first"_s;
  QTest::newRow("order by on sqlite untouched")
      << u"select * from t order by a desc"_s << Motor::SQLite
      << u"select * from t order by a desc"_s;
  QTest::newRow("access keeps delete *")
      << u"Delete * from subproductos where codproductopadre = '1'"_s << Motor::Access
      << u"Delete * from subproductos where codproductopadre = '1'"_s;
  QTest::newRow("delete * across a line end")
      << u"DELETE\n*\nFROM t"_s << Motor::PostgreSQL << u"DELETE FROM t"_s;
}

void TestDialecto::reglasFueraDeLosVectores() {
  QFETCH(QString, texto);
  QFETCH(Motor, motor);
  QFETCH(QString, esperado);
  QCOMPARE(AdaptarSentencia(texto, motor), esperado);
}

void TestDialecto::segundaSentencia_data() {
  QTest::addColumn<QString>("texto");
  QTest::addColumn<bool>("segunda");
  const QString producto = u"select * from productos where codigo = '"_s;
  QTest::newRow("spliced value that closes the quote")
      << producto + u"1'; delete from stock; --'"_s << true;
  QTest::newRow("second statement after a literal")
      << u"select * from t where a = 'x';delete from stock"_s << true;
  QTest::newRow("plain second statement") << u"select 1; delete from stock"_s << true;
  QTest::newRow("second statement on the next line") << u"select 1;\n  drop table stock"_s << true;
  QTest::newRow("comment line, then a statement")
      << u"select 1; -- nada\ndelete from stock"_s << true;
  QTest::newRow("literal after the ;") << u"select 1; 'x'"_s << true;
  // Values that read as one statement to a reader of '...' only, and as two to an engine.
  QTest::newRow("escape string") << producto + u"x' and E'\\'' = 'a'; delete from stock; --'"_s
                                 << true;
  QTest::newRow("dollar quote") << producto + u"x' and $$'$$ = 'a'; delete from stock; --'"_s
                                << true;
  QTest::newRow("tagged dollar quote")
      << producto + u"x' and $q$'$q$ = 'a'; delete from stock; --'"_s << true;
  QTest::newRow("quote inside a line comment")
      << producto + u"x' -- '\n; delete from stock; --'"_s << true;
  QTest::newRow("quote inside a block comment")
      << producto + u"x' /* ' */ ; delete from stock; --'"_s << true;
  QTest::newRow("quote inside a quoted name")
      << producto + u"x' and 1 = (select 1 as \"'\"); delete from stock; --'"_s << true;
  QTest::newRow("quote inside a bracketed name")
      << producto + u"x' and [']; delete from stock; --'"_s << true;
  QTest::newRow("backslash before the closing quote")
      << producto + u"x\\' ; delete from stock; --'"_s << true;
  QTest::newRow("$ and \\ inside plain values")
      << u"insert into traducciones (caption) values ('Precio $; total \\')"_s << false;
  QTest::newRow("parameter, not a dollar quote") << u"select $1 from t where a = 'b;c'"_s << false;
  QTest::newRow("; inside a literal") << producto + u"1; delete from stock'"_s << false;
  QTest::newRow("; inside a literal with doubled apostrophes")
      << u"insert into traducciones (caption) values ('l''a; b')"_s << false;
  QTest::newRow("trailing ;") << u"select * from stock;"_s << false;
  QTest::newRow("trailing ; and blanks") << u"select * from stock ;  \n"_s << false;
  QTest::newRow("trailing ;;") << u"select * from stock;;"_s << false;
  QTest::newRow("trailing ; and a comment") << u"select * from stock; -- fin"_s << false;
  QTest::newRow("no ; at all") << u"select * from stock"_s << false;
  QTest::newRow("unclosed literal holding ;") << producto + u"1; delete from stock"_s << false;
}

void TestDialecto::segundaSentencia() {
  QFETCH(QString, texto);
  QFETCH(bool, segunda);
  QCOMPARE(TieneSegundaSentencia(texto), segunda);
}

QTEST_GUILESS_MAIN(TestDialecto)
#include "test_dialecto.moc"
