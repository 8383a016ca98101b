#include "motores_prueba.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>

#include "error_bd.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QString DriverOdbc(const QString& archivo) {
  QDirIterator it(u"/usr/lib"_s, {archivo}, QDir::Files, QDirIterator::Subdirectories);
  return it.hasNext() ? it.next() : QString();
}

bool Escribir(const QString& ruta, const QString& texto, QIODevice::OpenMode modo = {}) {
  QFile f(ruta);
  return f.open(QIODevice::WriteOnly | modo) && f.write(texto.toUtf8()) >= 0;
}

}  // namespace

MotoresPrueba::MotoresPrueba() {
  // unixODBC reads its driver list and data sources from the files these two name.
  const QString odbc = dir_.filePath(u"odbc"_s);
  QDir().mkpath(odbc);
  Escribir(odbc + u"/odbcinst.ini"_s,
           u"[SQLite3]\nDriver=%1\n\n[PostgreSQL Unicode]\nDriver=%2\n"_s.arg(
               DriverOdbc(u"libsqlite3odbc.so"_s), DriverOdbc(u"psqlodbcw.so"_s)));
  Escribir(odbc + u"/odbc.ini"_s,
           u"[velandria]\nDriver=SQLite3\nDatabase=%1\nTimeout=10000\n"_s.arg(archivoOdbc()));
  qputenv("ODBCSYSINI", QFile::encodeName(odbc));
  qputenv("ODBCINI", QFile::encodeName(odbc + u"/odbc.ini"_s));
}

void MotoresPrueba::agregarFilas() {
  QTest::addColumn<QString>("motor");
  for (const char* m : {"sqlite", "odbc", "postgresql"})
    QTest::newRow(m) << QString::fromLatin1(m);
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
    conexion.cerrar();
    PostgresPrueba* pg = motor == u"postgresql"_s ? postgres() : nullptr;
    if (motor == u"postgresql"_s && !pg)
      return u"PostgreSQL could not be started: "_s + postgres_->error();
    if (motor == u"sqlite"_s) {
      conexion.abrirSQLite(dir_.filePath(u"prueba%1.db"_s.arg(bases_)));
    } else if (motor == u"odbc"_s) {
      QFile::remove(archivoOdbc());
      // The SQLite ODBC driver creates the file on connecting; no mapping: straight to ODBC.
      conexion.abrir(kCadenaVelandria, OrigenesDatos());
    } else if (motor == u"postgresql"_s) {
      const OrigenDatos origen = pg->crearBaseDatos(u"prueba%1"_s.arg(bases_));
      OrigenesDatos origenes;
      origenes.mapear(u"velandria"_s, origen);
      if (origen.baseDatos.isEmpty())
        return u"cannot create a database: "_s + pg->error();
      conexion.abrir(kCadenaVelandria, origenes);
    } else {
      return u"unknown driver "_s + motor;
    }
    CrearEsquema(conexion, tablas);
  } catch (const ErrorBD& e) {
    return motor + u": "_s + e.descripcion();
  }
  return {};
}

QString MotoresPrueba::abrirPorPsqlOdbc(Conexion& conexion) {
  PostgresPrueba* pg = postgres();
  const OrigenDatos o = pg ? pg->crearBaseDatos(u"copas"_s) : OrigenDatos();
  if (o.baseDatos.isEmpty())
    return u"cannot make the database: "_s + (pg ? pg->error() : postgres_->error());
  Escribir(dir_.filePath(u"odbc/odbc.ini"_s),
           u"\n[lumbraCopas]\nDriver=PostgreSQL Unicode\nServername=%1\nPort=%2\nDatabase=copas\n"
           "Username=%3\n"_s.arg(o.servidor)
               .arg(o.puerto)
               .arg(o.usuario),
           QIODevice::Append);
  return ErrorDe(
             [&] { conexion.abrir(u"dsn=lumbraCopas;pwd=KorvanitesX%QQRT;"_s, OrigenesDatos()); })
      .remove(u"(no error)"_s);
}

QList<VectorSentencia> CargarVectores() {
  QFile f(QStringLiteral(VECTORES));
  if (!f.open(QIODevice::ReadOnly))
    return {};
  QList<VectorSentencia> vectores;
  for (const QJsonValue& v : QJsonDocument::fromJson(f.readAll()).array()) {
    const QJsonObject o = v.toObject();
    vectores.append({o[u"id"_s].toString(), o[u"text"_s].toString(), o[u"sqlite"_s].toString(),
                     o[u"sqlite_over_odbc"_s].toString(), o[u"postgresql_citext"_s].toString()});
  }
  return vectores;
}

void Sembrar(Conexion& conexion) {
  QFile f(QStringLiteral(SEMILLA));
  QVERIFY2(f.open(QIODevice::ReadOnly), SEMILLA);
  for (const QString& s : QString::fromUtf8(f.readAll()).split(u'\n', Qt::SkipEmptyParts)) {
    if (!s.startsWith(u"--"_s))
      conexion.ejecutar(s);
  }
}

QString ErrorDe(const std::function<void()>& accion) {
  try {
    accion();
  } catch (const ErrorBD& e) {
    return e.descripcion();
  }
  return u"(no error)"_s;
}
