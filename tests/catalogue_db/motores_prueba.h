#pragma once

#include <QString>
#include <QTemporaryDir>
#include <functional>
#include <memory>

#include "conexion.h"
#include "esquema.h"
#include "instalacion_prueba.h"
#include "postgres_prueba.h"

// The drivers "sqlite", "odbc" (SQLite ODBC, private odbc.ini) and "postgresql" (test server).
// Build one per test program, in initTestCase, before any ODBC call.
class MotoresPrueba {
 public:
  MotoresPrueba();

  // Adds one row per driver ("motor", QString) to a data-driven test.
  static void agregarFilas();

  // Opens `conexion` on a new, empty database holding the given tables. The result is empty
  // on success, else why it failed.
  QString abrirNueva(Conexion& conexion, const QString& motor,
                     const QList<Tabla>& tablas = TablasPrincipales());
  // The file behind the "velandria" ODBC data source.
  QString archivoOdbc() const { return dir_.filePath(QStringLiteral("velandria_odbc.db")); }
  PostgresPrueba* postgres();
  // Opens the data source "lumbraCopas" of the private odbc.ini, a new database "copas" of the
  // test server reached through psqlODBC, by the suite's connection string for that program type.
  QString abrirPorPsqlOdbc(Conexion& conexion);

 private:
  QTemporaryDir dir_;
  std::unique_ptr<PostgresPrueba> postgres_;
  int bases_ = 0;
};

// One statement of the program with sample values spliced in, and the text each engine must
// receive after the dialect rewrites (data/dialect-vectors.json).
struct VectorSentencia {
  QString id, texto, sqlite, sqliteOdbc, postgres;
};
QList<VectorSentencia> CargarVectores();
// Runs data/semilla.sql: a few rows in every table that the program's statements read.
void Sembrar(Conexion& conexion);

// The description of the database error that the action throws; "(no error)" when none.
QString ErrorDe(const std::function<void()>& accion);

// Opens a fresh database on the driver or fails the test function.
#define ABRIR_NUEVA(motores, conexion, motor, ...)                               \
  do {                                                                           \
    const QString error_ = (motores).abrirNueva(conexion, motor, ##__VA_ARGS__); \
    QVERIFY2(error_.isEmpty(), qPrintable(error_));                              \
  } while (false)

// Declares `c`, open on a fresh database of the data row's driver (MotoresPrueba::agregarFilas).
#define ABRIR_NUEVA_DEL_MOTOR(motores, ...) \
  QFETCH(QString, motor);                   \
  Conexion c;                               \
  ABRIR_NUEVA(motores, c, motor, ##__VA_ARGS__)
