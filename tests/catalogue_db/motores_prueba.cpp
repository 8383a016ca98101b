#include "motores_prueba.h"

#include <QDir>
#include <QFile>
#include <QSqlQuery>
#include <QTest>

#include "error_bd.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QString DriverOdbc(const QString& archivo) {
  QStringList candidatas;
  for (const QString& d : QDir(u"/usr/lib"_s).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
    candidatas.append(u"/usr/lib/%1/odbc/%2"_s.arg(d, archivo));
  }
  candidatas.append(u"/usr/lib/odbc/"_s + archivo);
  for (const QString& c : std::as_const(candidatas)) {
    if (QFile::exists(c))
      return c;
  }
  return {};
}

QString DriverOdbcSQLite() {
  return DriverOdbc(u"libsqlite3odbc.so"_s);
}

QString DriverOdbcPostgres() {
  return DriverOdbc(u"psqlodbcw.so"_s);
}

bool Escribir(const QString& ruta, const QString& texto) {
  QFile f(ruta);
  if (!f.open(QIODevice::WriteOnly | QIODevice::Truncate))
    return false;
  return f.write(texto.toUtf8()) >= 0;
}

}  // namespace

MotoresPrueba::MotoresPrueba() {
  // unixODBC reads its driver list and data sources from the files these two name.
  const QString odbc = dir_.filePath(u"odbc"_s);
  QDir().mkpath(odbc);
  Escribir(odbc + u"/odbcinst.ini"_s,
           u"[SQLite3]\nDriver=%1\n\n[PostgreSQL Unicode]\nDriver=%2\n"_s.arg(
               DriverOdbcSQLite(), DriverOdbcPostgres()));
  escribirOdbcIni({});
  qputenv("ODBCSYSINI", QFile::encodeName(odbc));
  qputenv("ODBCINI", QFile::encodeName(odbc + u"/odbc.ini"_s));
}

MotoresPrueba::~MotoresPrueba() = default;

bool MotoresPrueba::escribirOdbcIni(const OrigenDatos& postgres) {
  QString texto = u"[velandria]\nDriver=SQLite3\nDatabase=%1\nTimeout=10000\n"_s.arg(archivoOdbc());
  if (!postgres.baseDatos.isEmpty()) {
    texto +=
        u"\n[lumbraCopas]\nDriver=PostgreSQL Unicode\nServername=%1\nPort=%2\n"
        "Database=%3\nUsername=%4\n"_s.arg(postgres.servidor)
            .arg(postgres.puerto)
            .arg(postgres.baseDatos, postgres.usuario);
  }
  return Escribir(dir_.filePath(u"odbc/odbc.ini"_s), texto);
}

void MotoresPrueba::agregarFilas() {
  QTest::addColumn<QString>("motor");
  for (const QString& m : {u"sqlite"_s, u"odbc"_s, u"postgresql"_s, u"odbc-postgresql"_s}) {
    QTest::newRow(m.toUtf8().constData()) << m;
  }
}

PostgresPrueba* MotoresPrueba::postgres() {
  if (!postgres_)
    postgres_ = std::make_unique<PostgresPrueba>();
  return postgres_->arrancado() ? postgres_.get() : nullptr;
}

QString MotoresPrueba::abrirNueva(Conexion& conexion, const QString& motor,
                                  const QList<Tabla>& tablas) {
  try {
    ++bases_;
    if (motor == u"sqlite"_s) {
      const QString ruta = dir_.filePath(u"prueba%1.db"_s.arg(bases_));
      conexion.abrirSQLite(ruta);
    } else if (motor == u"odbc"_s) {
      conexion.cerrar();
      if (DriverOdbcSQLite().isEmpty())
        return u"the SQLite ODBC driver is not installed"_s;
      QFile::remove(archivoOdbc());
      // The SQLite ODBC driver creates the file on connecting; no mapping: straight to ODBC.
      conexion.abrir(cadena(), OrigenesDatos());
    } else if (motor == u"postgresql"_s) {
      PostgresPrueba* pg = postgres();
      if (!pg)
        return u"PostgreSQL could not be started: "_s + postgres_->error();
      const OrigenDatos origen = pg->crearBaseDatos(u"prueba%1"_s.arg(bases_));
      if (origen.baseDatos.isEmpty())
        return u"cannot create a database: "_s + pg->error();
      OrigenesDatos origenes;
      origenes.mapear(u"velandria"_s, origen);
      conexion.abrir(cadena(), origenes);
    } else if (motor == u"odbc-postgresql"_s) {
      // psqlODBC against the same throwaway server, by the suite's string for another program
      // type: its password must reach the server as it is written.
      conexion.cerrar();
      if (DriverOdbcPostgres().isEmpty())
        return u"the PostgreSQL ODBC driver is not installed"_s;
      PostgresPrueba* pg = postgres();
      if (!pg)
        return u"PostgreSQL could not be started: "_s + postgres_->error();
      // unixODBC reads odbc.ini once per process: the data source keeps one database, made
      // anew for every test.
      if (!pg->ejecutarComoAdministrador(u"postgres"_s, u"drop database if exists copas"_s)) {
        return u"cannot drop the ODBC database: "_s + pg->error();
      }
      const OrigenDatos origen = pg->crearBaseDatos(u"copas"_s);
      if (origen.baseDatos.isEmpty())
        return u"cannot create a database: "_s + pg->error();
      if (!escribirOdbcIni(origen))
        return u"cannot write odbc.ini"_s;
      conexion.abrir(u"dsn=lumbraCopas;pwd=KorvanitesX%QQRT;"_s, OrigenesDatos());
    } else {
      return u"unknown driver "_s + motor;
    }
    CrearEsquema(conexion, tablas);
  } catch (const ErrorBD& e) {
    return motor + u": "_s + e.descripcion();
  }
  return {};
}
