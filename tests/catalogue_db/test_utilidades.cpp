#include <QDir>
#include <QTemporaryDir>
#include <QTest>

#include "archivo_ini.h"
#include "conexion.h"
#include "origenes_datos.h"
#include "val.h"

using namespace Qt::Literals::StringLiterals;

class TestUtilidades : public QObject {
  Q_OBJECT

 private slots:
  void valJet_data();
  void valJet();
  void paresDeCadena();
  void archivoIni();
  void archivoIniDeDisco();
  void origenesDesdeIni();
  void conexionPorElIni();
};

void TestUtilidades::valJet_data() {
  QTest::addColumn<QString>("texto");
  QTest::addColumn<double>("valor");
  QTest::newRow("number then letters") << u"12abc"_s << 12.0;
  QTest::newRow("leading blank") << u" 12abc"_s << 12.0;
  QTest::newRow("empty") << u""_s << 0.0;
  QTest::newRow("letters") << u"abc"_s << 0.0;
  QTest::newRow("exponent") << u"-3.5e2"_s << -350.0;
  QTest::newRow("blanks anywhere") << u" 1 2\t3\n4"_s << 1234.0;
  QTest::newRow("blank after the sign") << u"-  4"_s << -4.0;
  QTest::newRow("plus sign") << u"+5"_s << 5.0;
  QTest::newRow("second point ends it") << u"3.14.15"_s << 3.14;
  QTest::newRow("leading point") << u".5"_s << 0.5;
  QTest::newRow("negative leading point") << u"-.5"_s << -0.5;
  QTest::newRow("point alone") << u"."_s << 0.0;
  QTest::newRow("sign alone") << u"-"_s << 0.0;
  QTest::newRow("comma is not a decimal point") << u"1,5"_s << 1.0;
  QTest::newRow("exponent without digits") << u"7e"_s << 7.0;
  QTest::newRow("exponent sign without digits") << u"7e+"_s << 7.0;
  QTest::newRow("D exponent") << u"1d2"_s << 100.0;
  QTest::newRow("negative exponent") << u"25E-1"_s << 2.5;
  QTest::newRow("hexadecimal") << u"&H1F"_s << 31.0;
  QTest::newRow("octal, small letter") << u"&o17"_s << 15.0;
  QTest::newRow("hexadecimal without digits") << u"&H"_s << 0.0;
  QTest::newRow("ampersand alone") << u"&12"_s << 0.0;
  QTest::newRow("non-ASCII digits are not digits") << u"\u0661\u0662"_s << 0.0;
  QTest::newRow("product code") << u"10"_s << 10.0;
  QTest::newRow("code with leading zeros") << u"007"_s << 7.0;
}

void TestUtilidades::valJet() {
  QFETCH(QString, texto);
  QFETCH(double, valor);
  QCOMPARE(ValJet(texto), valor);
}

void TestUtilidades::paresDeCadena() {
  const auto p = ParesDeCadena(u"dsn=velandria;pwd=KorvanitesX%QQRT;"_s);
  QCOMPARE(p.size(), 2);
  QCOMPARE(p.value(u"dsn"_s), u"velandria"_s);
  QCOMPARE(p.value(u"pwd"_s), u"KorvanitesX%QQRT"_s);

  // Keys in any case come back in lower case; values keep theirs.
  const auto q = ParesDeCadena(u"DSN=LumbraCopas;PWD=Ab"_s);
  QCOMPARE(q.value(u"dsn"_s), u"LumbraCopas"_s);
  QCOMPARE(q.value(u"pwd"_s), u"Ab"_s);

  // A value in braces keeps its ';' and '='; a value may hold '=' after the first.
  const auto r = ParesDeCadena(u"pwd={a;b=c};dsn=informes;uid=x=y"_s);
  QCOMPARE(r.value(u"pwd"_s), u"a;b=c"_s);
  QCOMPARE(r.value(u"dsn"_s), u"informes"_s);
  QCOMPARE(r.value(u"uid"_s), u"x=y"_s);

  // A piece with no '=' is skipped and does not swallow the next key.
  const auto s = ParesDeCadena(u"velandria;pwd=x;;"_s);
  QCOMPARE(s.size(), 1);
  QCOMPARE(s.value(u"pwd"_s), u"x"_s);

  // As ODBC does, the first occurrence of a key wins.
  QCOMPARE(ParesDeCadena(u"dsn=uno;dsn=dos"_s).value(u"dsn"_s), u"uno"_s);
  QVERIFY(ParesDeCadena(QString()).isEmpty());
  QCOMPARE(ParesDeCadena(u"dsn=informes"_s).value(u"dsn"_s), u"informes"_s);
}

void TestUtilidades::archivoIni() {
  const ArchivoIni ini = ArchivoIni::DesdeTexto(
      u"\uFEFFclave suelta = 1\r\n"
      "; comment\r\n"
      "[DSN Velandria]\r\n"
      "Tipo = sqlite\r\n"
      "# another comment\r\n"
      "archivo=datos=1.db\r\n"
      "\r\n"
      "[ayuda]\n"
      "web=https://ayuda.example/productos/\n"
      "nombre=Caña\n"
      "[dsn velandria]\n"
      "tipo=odbc\n"
      "linea sin igual\n"_s);
  QCOMPARE(ini.secciones(), (QStringList{u"DSN Velandria"_s, u"ayuda"_s}));
  QCOMPARE(ini.valor(u"dsn velandria"_s, u"TIPO"_s), u"odbc"_s);  // the later value wins
  QCOMPARE(ini.valor(u"dsn velandria"_s, u"archivo"_s), u"datos=1.db"_s);
  QCOMPARE(ini.claves(u"Dsn Velandria"_s), (QStringList{u"Tipo"_s, u"archivo"_s}));
  QCOMPARE(ini.valor(u"ayuda"_s, u"web"_s), u"https://ayuda.example/productos/"_s);
  QCOMPARE(ini.valor(u"ayuda"_s, u"nombre"_s), u"Caña"_s);
  QCOMPARE(ini.valor(QString(), u"clave suelta"_s), u"1"_s);  // before any section, BOM and all
  QCOMPARE(ini.valor(u"ayuda"_s, u"falta"_s, u"def"_s), u"def"_s);
  QCOMPARE(ini.valor(u"no hay"_s, u"web"_s, u"def"_s), u"def"_s);
  QVERIFY(ini.tieneSeccion(u"AYUDA"_s));
  QVERIFY(!ini.tieneSeccion(u"otra"_s));
}

void TestUtilidades::archivoIniDeDisco() {
  QTemporaryDir dir;
  const QString ruta = dir.filePath(u"productos.ini"_s);
  const ArchivoIni falta = ArchivoIni::Leer(ruta);
  QVERIFY(falta.secciones().isEmpty());
  QCOMPARE(falta.ruta(), ruta);

  QFile f(ruta);
  QVERIFY(f.open(QIODevice::WriteOnly));
  f.write("\xEF\xBB\xBF[dsn informes]\r\ntipo=sqlite\r\narchivo=Informes.db\r\n");
  f.close();
  const ArchivoIni ini = ArchivoIni::Leer(ruta);
  QCOMPARE(ini.secciones(), QStringList{u"dsn informes"_s});
  QCOMPARE(ini.valor(u"dsn informes"_s, u"archivo"_s), u"Informes.db"_s);

  // Written by a Windows tool in its code page, not UTF-8.
  QVERIFY(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
  f.write("[fotos]\r\ncarpeta=C:\\TPV\\Fotos A\xF1o\r\n");
  f.close();
  QCOMPARE(ArchivoIni::Leer(ruta).valor(u"fotos"_s, u"carpeta"_s), u"C:\\TPV\\Fotos Año"_s);
}

void TestUtilidades::origenesDesdeIni() {
  const QString base = u"/opt/tpv"_s;
  const ArchivoIni ini = ArchivoIni::DesdeTexto(
      u"[dsn velandria]\ntipo=SQLite\narchivo=datos\\velandria.db\n"
      "[dsn informes]\ntipo=sqlite\narchivo=/srv/informes.db\n"
      "[dsn lumbraCopas]\ntipo=postgresql\nservidor=/run/pg\npuerto=5433\nbasedatos=copas\n"
      "usuario=tpv\nclave=otra\n"
      "[DSN lumbraFastFood]\ntipo=postgresql\npuerto=no\n"
      "[dsn porodbc]\ntipo=odbc\n"
      "[dsn raro]\ntipo=oracle\n"
      "[dsn  Mi Base ]\ntipo=sqlite\narchivo=mi.db\n"
      "[dsnx]\ntipo=sqlite\narchivo=x.db\n"
      "[dsn]\ntipo=sqlite\narchivo=x.db\n"
      "[ayuda]\ntipo=sqlite\narchivo=y.db\n"_s);
  const OrigenesDatos o = OrigenesDatos::DesdeIni(ini, base);

  const OrigenDatos* v = o.buscar(u"VELANDRIA"_s);
  QVERIFY(v);
  QCOMPARE(v->tipo, OrigenDatos::Tipo::SQLite);
  // The suite writes paths with '\': it is the folder separator of whatever platform runs it.
  QCOMPARE(v->archivo, QDir(base).filePath(u"datos/velandria.db"_s));

  QCOMPARE(o.buscar(u"informes"_s)->archivo, u"/srv/informes.db"_s);

  const OrigenDatos* c = o.buscar(u"lumbracopas"_s);
  QVERIFY(c);
  QCOMPARE(c->tipo, OrigenDatos::Tipo::PostgreSQL);
  QCOMPARE(c->servidor, u"/run/pg"_s);
  QCOMPARE(c->puerto, 5433);
  QCOMPARE(c->baseDatos, u"copas"_s);
  QCOMPARE(c->usuario, u"tpv"_s);
  QCOMPARE(c->clave, u"otra"_s);

  // Defaults: the local server on the standard port, a database named as the data source.
  const OrigenDatos* f = o.buscar(u"lumbraFastFood"_s);
  QVERIFY(f);
  QCOMPARE(f->servidor, u"localhost"_s);
  QCOMPARE(f->puerto, 5432);
  QCOMPARE(f->baseDatos, u"lumbraFastFood"_s);
  QVERIFY(f->clave.isEmpty());

  // ODBC, unknown kinds and sections that are not data sources map nothing.
  QVERIFY(!o.buscar(u"porodbc"_s));
  QVERIFY(!o.buscar(u"raro"_s));
  QVERIFY(!o.buscar(QString()));
  QVERIFY(!o.buscar(u"ayuda"_s));
  QVERIFY(!o.buscar(u"x"_s));
  QVERIFY(!o.buscar(u"dsnx"_s));
  // A data-source name may hold blanks.
  QVERIFY(o.buscar(u"mi base"_s));
  QCOMPARE(o.buscar(u"Mi Base"_s)->archivo, QDir(base).filePath(u"mi.db"_s));
}

// The installation's file sends the suite's connection string to a SQLite file; the engine's
// default path is that file without its extension.
void TestUtilidades::conexionPorElIni() {
  QTemporaryDir dir;
  QVERIFY(QDir(dir.path()).mkpath(u"datos"_s));
  const QString archivo = dir.filePath(u"datos/velandria.mdb"_s);
  {
    Conexion creadora;
    creadora.abrirSQLite(archivo);
    creadora.ejecutarDirecto(u"create table stock (producto integer)"_s);
  }
  const ArchivoIni ini =
      ArchivoIni::DesdeTexto(u"[dsn velandria]\ntipo=sqlite\narchivo=datos\\velandria.mdb\n"_s);
  Conexion c;
  c.abrir(u"dsn=velandria;pwd=KorvanitesX%QQRT;"_s, OrigenesDatos::DesdeIni(ini, dir.path()));
  QCOMPARE(c.motor(), Motor::SQLite);
  QCOMPARE(c.rutaPredeterminada(), dir.filePath(u"datos/velandria"_s));
  QCOMPARE(c.ejecutar(u"insert into stock (producto) values (1)"_s), 1);
}

QTEST_GUILESS_MAIN(TestUtilidades)
#include "test_utilidades.moc"
