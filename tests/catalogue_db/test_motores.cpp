#include <QDate>
#include <QDir>
#include <QSqlError>
#include <QSqlField>
#include <QSqlQuery>
#include <QSqlRecord>
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

}  // namespace

// The database layer; tests with a "motor" row run once per driver.
class TestMotores : public QObject {
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
  void conexion_data() { MotoresPrueba::agregarFilas(); }
  void conexion();
  void catalogoDeSentencias_data() { MotoresPrueba::agregarFilas(); }
  void catalogoDeSentencias();
  void semanticaDelMotorDeLaSuite_data() { MotoresPrueba::agregarFilas(); }
  void semanticaDelMotorDeLaSuite();
  void transacciones_data() { MotoresPrueba::agregarFilas(); }
  void transacciones();
  void recordset_data() { MotoresPrueba::agregarFilas(); }
  void recordset();

 private:
  std::unique_ptr<MotoresPrueba> motores_;
};

void TestMotores::adaptar_data() {
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

void TestMotores::adaptar() {
  QFETCH(QString, texto);
  QFETCH(Motor, motor);
  QFETCH(QString, esperado);
  QCOMPARE(AdaptarSentencia(texto, motor), esperado);
  // None of the program's statements is two, and adapting twice changes nothing more.
  QVERIFY(!TieneSegundaSentencia(esperado));
  QCOMPARE(AdaptarSentencia(esperado, motor), esperado);
}

void TestMotores::segundaSentencia_data() {
  QTest::addColumn<QString>("texto");
  QTest::addColumn<bool>("segunda");
  const QString p = u"select * from productos where codigo = '"_s;
  // Values that read as one statement to a reader of '...' only, and as two to an engine.
  for (const QString& s :
       {p + u"1'; delete from stock; --'"_s, u"select 1; -- nada\ndelete from stock"_s,
        p + u"x' and E'\\'' = 'a'; delete from stock; --'"_s,
        p + u"x' and $q$'$q$ = 'a'; delete from stock; --'"_s})
    QTest::newRow(qPrintable(s)) << s << true;
  for (const QString& s : {u"insert into traducciones (caption) values ('Precio $; total \\')"_s,
                           u"select $1 from t where a = 'b;c'"_s, p + u"1; delete from stock'"_s,
                           u"insert into traducciones (caption) values ('l''a; b')"_s,
                           u"select * from stock ;  \n"_s, u"select * from stock;;"_s,
                           u"select * from stock; -- fin"_s, p + u"1; delete from stock"_s})
    QTest::newRow(qPrintable(s)) << s << false;
}

// Every way of running a statement refuses a second one before the engine sees it.
void TestMotores::segundaSentencia() {
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

void TestMotores::valJet_data() {
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

void TestMotores::valJet() {
  QFETCH(QString, texto);
  QFETCH(double, valor);
  QCOMPARE(ValJet(texto), valor);
}

void TestMotores::paresDeCadena() {
  using Pares = QMap<QString, QString>;
  QCOMPARE(ParesDeCadena(kCadenaVelandria),
           (Pares{{u"dsn"_s, u"velandria"_s}, {u"pwd"_s, u"KorvanitesX%QQRT"_s}}));
  // As in ODBC: braces keep ';' and '=', a piece with no '=' is skipped, the first key wins.
  QCOMPARE(ParesDeCadena(u"DSN=LumbraCopas;PWD={a;b=c};uid=x=y;velandria;;dsn=dos"_s),
           (Pares{{u"dsn"_s, u"LumbraCopas"_s}, {u"pwd"_s, u"a;b=c"_s}, {u"uid"_s, u"x=y"_s}}));
  QVERIFY(ParesDeCadena(QString()).isEmpty());
}

// productos.ini maps data-source names to SQLite files (relative to its folder) or servers.
void TestMotores::instalacion() {
  const ArchivoIni ini = ArchivoIni::DesdeTexto(
      u"\uFEFFclave suelta = 1\r\n; comment\r\n[DSN Velandria]\r\nTipo = odbc\r\n# comment\r\n"
      "archivo=datos\\velandria.mdb\r\n\r\n[dsn lumbraCopas]\ntipo=postgresql\nservidor=/run/pg\n"
      "puerto=5433\nbasedatos=copas\nusuario=tpv\nclave=a=b\n[DSN lumbraFastFood]\ntipo=postgresql"
      "\npuerto=no\n[dsn  Mi Base ]\ntipo=sqlite\narchivo=/srv/mi.db\n[dsnx]\ntipo=sqlite\n[ayuda]"
      "\ntipo=sqlite\nlinea sin igual\n[dsn raro]\ntipo=oracle\n[dsn velandria]\ntipo=SQLite\n"_s);
  QCOMPARE(ini.valor(QString(), u"clave suelta"_s), u"1"_s);
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

// An open that fails: an error to log without the password, no stray file, the connection closed.
void TestMotores::aperturaFallida() {
  const OrigenesDatos origenes = OrigenesDatos::DesdeIni(
      ArchivoIni::DesdeTexto(u"[dsn velandria]\ntipo=sqlite\narchivo=/nonexistent/velandria.db\n"
                             "[dsn lumbraCopas]\ntipo=postgresql\nservidor=/nonexistent\n"_s),
      QString());
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
  if (motor != u"postgresql"_s)
    return;
  // The types the suite's other programs read; val() can be indexed for the next-code look-up.
  QCOMPARE(Filas(c,
                 u"select udt_name from information_schema.columns where table_name = "
                 "'productos' and column_name in ('nombre', 'coste', 'borrar', 'fechaalta') "
                 "order by column_name"_s),
           (QList<QVariantList>{{u"int2"_s}, {u"float8"_s}, {u"date"_s}, {u"citext"_s}}));
  c.ejecutarDirecto(u"create index productos_val_codigo on productos (val(codigo))"_s);
  // The mapping's password, when it gives one, wins over the connection string's pwd=.
  OrigenesDatos origenes;
  OrigenDatos origen = motores_->postgres()->crearBaseDatos(u"mapeo"_s);
  origen.clave = PostgresPrueba::clave();
  origenes.mapear(u"velandria"_s, origen);
  {
    Conexion conClave;
    conClave.abrir(u"dsn=velandria;pwd=otra;"_s, origenes);
    QCOMPARE(Filas(conClave, u"select current_user"_s), QList<QVariantList>{{u"tpv"_s}});
  }
  // A connection object that goes closes its session: the server drops the database at once.
  QVERIFY(motores_->postgres()->ejecutarComoAdministrador(u"postgres"_s, u"drop database mapeo"_s));
  // Through psqlODBC: the password as written, the engine told by the driver, the text guard.
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

// Every statement text of the program runs on the driver, selects read field by field.
void TestMotores::catalogoDeSentencias() {
  ABRIR_NUEVA_DEL_MOTOR(*motores_, TablasPrincipales() + TablasInformes());
  Sembrar(c);
  for (const VectorSentencia& v : CargarVectores()) {
    try {
      if (!v.texto.trimmed().startsWith(u"select"_s, Qt::CaseInsensitive)) {
        c.ejecutar(v.texto);
        continue;
      }
      // Each value as the engine's Qt driver gives it, type included, however the rows are read.
      Recordset rs(c, v.texto);
      QSqlQuery q = c.consultar(v.texto);
      for (; !rs.eof(); rs.moveNext()) {
        QVERIFY(q.next());
        for (int i = 0; i < rs.fieldCount(); ++i) {
          QCOMPARE(rs.field(i).metaType(), q.value(i).metaType());
          QCOMPARE(rs.field(i), q.value(i));
        }
      }
      QVERIFY2(!q.next(), qPrintable(v.id));
    } catch (const ErrorBD& e) {
      QFAIL(qPrintable(u"%1 failed: %2\n%3"_s.arg(v.id, e.descripcion(), v.texto)));
    }
  }
  // What the statements that change data left behind, column by column.
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
      // NULL sorts lowest, as on the suite's desktop database.
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
  // A recipe's parent is never NULL; the translation programs' list has one column.
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

// Recordset rules no form walks: both ends, a vanished current row, keyless rows, a hidden key.
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
  // Rows not yet walked are those of the moment the statement ran, whatever is written after.
  Recordset antes(c, u"select * from productos order by codigo"_s);
  QCOMPARE(antes.field(u"codigo"_s), u"1"_s);
  c.ejecutar(u"insert into productos (codigo, nombre, borrar) values ('4', 'Zumo', 0)"_s);
  QCOMPARE(antes.recordCount(), 1);

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
    sinClave.setField(u"id_color"_s, 4);
    sinClave.setField(u"ColorPredefinido"_s, true);
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
