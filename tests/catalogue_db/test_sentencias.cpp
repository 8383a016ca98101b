#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include "archivo_ini.h"
#include "dialecto.h"
#include "error_bd.h"
#include "motores_prueba.h"
#include "recordset.h"
#include "val.h"

using namespace Qt::Literals::StringLiterals;

Q_DECLARE_METATYPE(Motor)

// What needs no database server: the dialect rewrites, the second-statement guard, val(), the
// connection string and the installation's file, and opening what cannot be opened.
class TestSentencias : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { motores_ = std::make_unique<MotoresPrueba>(); }
  void adaptar_data();
  void adaptar();
  void segundaSentencia_data();
  void segundaSentencia();
  void valJet_data();
  void valJet();
  void paresDeCadena();
  void instalacion();
  void aperturaFallida();

 private:
  std::unique_ptr<MotoresPrueba> motores_;
};

void TestSentencias::adaptar_data() {
  QTest::addColumn<QString>("texto");
  QTest::addColumn<Motor>("motor");
  QTest::addColumn<QString>("esperado");
  const QList<VectorSentencia> vectores = CargarVectores();
  QVERIFY(vectores.size() >= 70);
  for (const VectorSentencia& v : vectores) {
    QTest::addRow("%s sqlite", qPrintable(v.id)) << v.texto << Motor::SQLite << v.sqlite;
    QTest::addRow("%s odbc", qPrintable(v.id)) << v.texto << Motor::SQLiteODBC << v.sqliteOdbc;
    QTest::addRow("%s postgresql", qPrintable(v.id)) << v.texto << Motor::PostgreSQL << v.postgres;
  }
  const QString enLiteral =
      u"select * from productos where nombre = 'Delete * from true <> null order by val(x)'"_s;
  const QList<std::tuple<QString, Motor, QString>> reglas = {
      {enLiteral, Motor::SQLiteODBC, enLiteral},
      {enLiteral, Motor::PostgreSQL, enLiteral},
      {u"select * from t where a = 'it''s = null' and b = null"_s, Motor::SQLite,
       u"select * from t where a = 'it''s = null' and b is null"_s},
      {u"select trueno, falseta, nullable from t where x=true and y=FALSE"_s, Motor::SQLite,
       u"select trueno, falseta, nullable from t where x=-1 and y=0"_s},
      {u"select * from t order by Val(trim(codigo)) desc"_s, Motor::SQLiteODBC,
       u"select * from t order by cast(trim(codigo) as real) desc"_s},
      {u"select interval(a) from t"_s, Motor::SQLiteODBC, u"select interval(a) from t"_s},
      {u"select * from t order by a, b desc, c asc"_s, Motor::PostgreSQL,
       u"select * from t order by a nulls first, b desc nulls last, c asc nulls first"_s},
      {u"select * from (select a from t order by a) x order by b desc"_s, Motor::PostgreSQL,
       u"select * from (select a from t order by a nulls first) x order by b desc nulls last"_s},
      {u"Delete * from subproductos where codproductopadre = '1'"_s, Motor::Access,
       u"Delete * from subproductos where codproductopadre = '1'"_s},
      {u"DELETE\n*\nFROM t"_s, Motor::PostgreSQL, u"DELETE FROM t"_s},
  };
  for (const auto& [texto, motor, esperado] : reglas)
    QTest::addRow("%d: %s", int(motor), qPrintable(texto)) << texto << motor << esperado;
}

void TestSentencias::adaptar() {
  QFETCH(QString, texto);
  QFETCH(Motor, motor);
  QFETCH(QString, esperado);
  QCOMPARE(AdaptarSentencia(texto, motor), esperado);
  // None of the program's statements is two, and adapting twice changes nothing more.
  QVERIFY(!TieneSegundaSentencia(esperado));
  QCOMPARE(AdaptarSentencia(esperado, motor), esperado);
}

void TestSentencias::segundaSentencia_data() {
  QTest::addColumn<QString>("texto");
  QTest::addColumn<bool>("segunda");
  const QString p = u"select * from productos where codigo = '"_s;
  // Values that read as one statement to a reader of '...' only, and as two to an engine.
  for (const QString& s :
       {p + u"1'; delete from stock; --'"_s, u"select * from t where a = 'x';delete from stock"_s,
        u"select 1;\n  drop table stock"_s, u"select 1; -- nada\ndelete from stock"_s,
        u"select 1; 'x'"_s, p + u"x' and E'\\'' = 'a'; delete from stock; --'"_s,
        p + u"x' and $$'$$ = 'a'; delete from stock; --'"_s,
        p + u"x' and $q$'$q$ = 'a'; delete from stock; --'"_s,
        p + u"x' -- '\n; delete from stock; --'"_s, p + u"x' /* ' */ ; delete from stock; --'"_s,
        p + u"x' and 1 = (select 1 as \"'\"); delete from stock; --'"_s,
        p + u"x' and [']; delete from stock; --'"_s, p + u"x\\' ; delete from stock; --'"_s})
    QTest::newRow(qPrintable(s)) << s << true;
  for (const QString& s :
       {u"insert into traducciones (caption) values ('Precio $; total \\')"_s,
        u"select $1 from t where a = 'b;c'"_s, p + u"1; delete from stock'"_s,
        u"insert into traducciones (caption) values ('l''a; b')"_s, u"select * from stock;"_s,
        u"select * from stock ;  \n"_s, u"select * from stock;;"_s,
        u"select * from stock; -- fin"_s, u"select * from stock"_s, p + u"1; delete from stock"_s})
    QTest::newRow(qPrintable(s)) << s << false;
}

// Every way of running a statement refuses a second one, before the engine sees it; a ';' in a
// value is only text.
void TestSentencias::segundaSentencia() {
  QFETCH(QString, texto);
  QFETCH(bool, segunda);
  QCOMPARE(TieneSegundaSentencia(texto), segunda);
  if (!segunda)
    return;
  Conexion c;
  ABRIR_NUEVA(*motores_, c, u"sqlite"_s);
  c.ejecutar(u"insert into productos (codigo, nombre) values ('1', 'a; delete from stock')"_s);
  const QString mensaje = u"Sentencia rechazada: contiene más de una instrucción SQL"_s;
  QCOMPARE(ErrorDe([&] { c.ejecutar(texto); }), mensaje);
  QCOMPARE(ErrorDe([&] { Recordset(c, texto); }), mensaje);
  QCOMPARE(ErrorDe([&] { c.ejecutarDirecto(texto); }), mensaje);
  QCOMPARE(FilasDe(c, u"select nombre from productos;"_s).size(), 1);
}

void TestSentencias::valJet_data() {
  QTest::addColumn<QString>("texto");
  QTest::addColumn<double>("valor");
  // clang-format off
  const QList<std::pair<QString, double>> casos = {
      {u" 12abc"_s, 12}, {u""_s, 0}, {u"abc"_s, 0}, {u"-3.5e2"_s, -350}, {u" 1 2\t3\n4"_s, 1234},
      {u"-  4"_s, -4}, {u"+5"_s, 5}, {u"3.14.15"_s, 3.14}, {u"-.5"_s, -0.5}, {u"."_s, 0},
      {u"-"_s, 0}, {u"1,5"_s, 1}, {u"7e+"_s, 7}, {u"1d2"_s, 100}, {u"25E-1"_s, 2.5},
      {u"&H1F"_s, 31}, {u"&o17"_s, 15}, {u"&H"_s, 0}, {u"&12"_s, 0}, {u"\u0661\u0662"_s, 0},
      {u"007"_s, 7}};
  // clang-format on
  for (const auto& [texto, valor] : casos)
    QTest::newRow(qPrintable(u'[' + texto + u']')) << texto << valor;
}

void TestSentencias::valJet() {
  QFETCH(QString, texto);
  QFETCH(double, valor);
  QCOMPARE(ValJet(texto), valor);
}

void TestSentencias::paresDeCadena() {
  using Pares = QMap<QString, QString>;
  QCOMPARE(ParesDeCadena(kCadenaVelandria),
           (Pares{{u"dsn"_s, u"velandria"_s}, {u"pwd"_s, u"KorvanitesX%QQRT"_s}}));
  // Keys come back in lower case, values keep theirs; braces keep ';' and '='; a piece with no
  // '=' is skipped; the first occurrence of a key wins, as in ODBC.
  QCOMPARE(ParesDeCadena(u"DSN=LumbraCopas;PWD={a;b=c};uid=x=y;velandria;;dsn=dos"_s),
           (Pares{{u"dsn"_s, u"LumbraCopas"_s}, {u"pwd"_s, u"a;b=c"_s}, {u"uid"_s, u"x=y"_s}}));
  QVERIFY(ParesDeCadena(QString()).isEmpty());
}

// The installation's file (comments, a BOM, CRLF, the later value winning, sections in any letter
// case) maps data-source names to SQLite files, relative to its folder with '\' as the folder
// separator, or to PostgreSQL servers; the suite's connection string then opens them.
void TestSentencias::instalacion() {
  const ArchivoIni ini = ArchivoIni::DesdeTexto(
      u"\uFEFFclave suelta = 1\r\n; comment\r\n[DSN Velandria]\r\nTipo = odbc\r\n# comment\r\n"
      "archivo=datos\\velandria.mdb\r\n\r\n[dsn lumbraCopas]\ntipo=postgresql\nservidor=/run/pg\n"
      "puerto=5433\nbasedatos=copas\nusuario=tpv\nclave=a=b\n[DSN lumbraFastFood]\ntipo=postgresql"
      "\npuerto=no\n[dsn  Mi Base ]\ntipo=sqlite\narchivo=/srv/mi.db\n[dsnx]\ntipo=sqlite\n[ayuda]"
      "\ntipo=sqlite\nlinea sin igual\n[dsn raro]\ntipo=oracle\n[dsn velandria]\ntipo=SQLite\n"_s);
  QCOMPARE(ini.valor(QString(), u"clave suelta"_s), u"1"_s);
  QCOMPARE(ini.claves(u"dsn velandria"_s), (QStringList{u"Tipo"_s, u"archivo"_s}));
  QVERIFY(ini.tieneSeccion(u"AYUDA"_s) && !ini.tieneSeccion(u"otra"_s));
  QTemporaryDir dir;
  const OrigenesDatos o = OrigenesDatos::DesdeIni(ini, dir.path());
  const OrigenDatos* c = o.buscar(u"lumbracopas"_s);
  QVERIFY(c);
  QCOMPARE(std::tuple(c->tipo, c->servidor, c->puerto, c->baseDatos, c->usuario, c->clave),
           std::tuple(OrigenDatos::Tipo::PostgreSQL, u"/run/pg"_s, 5433, u"copas"_s, u"tpv"_s,
                      u"a=b"_s));
  // Defaults: the local server on the standard port, a database named as the data source.
  const OrigenDatos* f = o.buscar(u"lumbraFastFood"_s);
  QVERIFY(f);
  QCOMPARE(std::tuple(f->servidor, f->puerto, f->baseDatos, f->clave),
           std::tuple(u"localhost"_s, 5432, u"lumbraFastFood"_s, QString()));
  QCOMPARE(o.buscar(u"mi base"_s)->archivo, u"/srv/mi.db"_s);
  for (const QString& nada : {u"raro"_s, QString(), u"ayuda"_s, u"x"_s, u"dsnx"_s})
    QVERIFY2(!o.buscar(nada), qPrintable(nada));
  QVERIFY(QDir(dir.path()).mkpath(u"datos"_s));
  Conexion creadora;
  creadora.abrirSQLite(dir.filePath(u"datos/velandria.mdb"_s));
  creadora.ejecutarDirecto(u"create table stock (producto integer)"_s);
  Conexion c2;
  c2.abrir(kCadenaVelandria, o);
  QCOMPARE(c2.motor(), Motor::SQLite);
  QCOMPARE(c2.rutaPredeterminada(), dir.filePath(u"datos/velandria"_s));
  QCOMPARE(c2.ejecutar(u"insert into stock (producto) values (1)"_s), 1);
  // From disk, written by a Windows tool in its code page, not UTF-8.
  QFile archivo(dir.filePath(u"productos.ini"_s));
  QVERIFY(archivo.open(QIODevice::WriteOnly));
  archivo.write("[fotos]\r\ncarpeta=C:\\TPV\\Fotos A\xF1o\r\n");
  archivo.close();
  QCOMPARE(ArchivoIni::Leer(archivo.fileName()).valor(u"Fotos"_s, u"carpeta"_s),
           u"C:\\TPV\\Fotos Año"_s);
}

// A data source that cannot be opened gives an error to log (never with the password); the
// connection stays closed, and no stray database file is made in the working folder. The program
// type "Restaurante" gives an empty connection string.
void TestSentencias::aperturaFallida() {
  OrigenesDatos origenes;
  OrigenDatos archivo, servidor;
  archivo.tipo = OrigenDatos::Tipo::SQLite;
  archivo.archivo = u"/nonexistent/velandria.db"_s;
  origenes.mapear(u"velandria"_s, archivo);
  servidor.tipo = OrigenDatos::Tipo::PostgreSQL;
  servidor.servidor = u"/nonexistent"_s;
  origenes.mapear(u"lumbraCopas"_s, servidor);
  const QString sinOrigen =
      u"[unixODBC][Driver Manager]Data source name not found and no default driver specified"_s;
  QTemporaryDir carpeta;
  const QString antes = QDir::currentPath();
  QDir::setCurrent(carpeta.path());
  for (const auto& [cadena, mensaje] :
       {std::pair(kCadenaVelandria,
                  u"No se encuentra el archivo de base de datos /nonexistent/velandria.db"_s),
        std::pair(QString(), sinOrigen), std::pair(u"dsn=;pwd=x;"_s, sinOrigen),
        std::pair(u"pwd=KorvanitesX%QQRT;"_s, sinOrigen),
        std::pair(u"dsn=noexiste;pwd=KorvanitesX%QQRT;"_s, sinOrigen),
        std::pair(u"dsn=lumbraCopas;pwd=Otra9;"_s, QString())}) {
    Conexion c;
    const QString error = ErrorDe([&] { c.abrir(cadena, origenes); });
    QVERIFY2(mensaje.isEmpty() ? !error.contains(u"Otra9"_s) : error == mensaje, qPrintable(error));
    QVERIFY(!c.abierta());
    QCOMPARE(ErrorDe([&] { c.ejecutar(u"delete from stock"_s); }),
             u"La conexión con la base de datos no está abierta"_s);
    QVERIFY_THROWS_EXCEPTION(ErrorBD, Recordset(c, u"select * from stock"_s));
    QVERIFY_THROWS_EXCEPTION(ErrorBD, Transaccion{c});
  }
  QDir::setCurrent(antes);
  QVERIFY(QDir(carpeta.path()).isEmpty());
}

QTEST_GUILESS_MAIN(TestSentencias)
#include "test_sentencias.moc"
