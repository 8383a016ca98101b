#pragma once

#include <QString>
#include <QTemporaryDir>
#include <functional>
#include <memory>

#include "conexion.h"
#include "esquema.h"
#include "instalacion_prueba.h"
#include "postgres_prueba.h"

// Drivers "sqlite", "odbc" (SQLite ODBC), "postgresql"; one per program, before any ODBC call.
class MotoresPrueba {
 public:
  MotoresPrueba();

  // Adds one row per driver ("motor", QString) to a data-driven test.
  static void agregarFilas();

  // Opens `conexion` on a new database with the given tables; empty, else why it failed.
  QString abrirNueva(Conexion& conexion, const QString& motor,
                     const QList<Tabla>& tablas = TablasPrincipales());
  // The file behind the "velandria" ODBC data source.
  QString archivoOdbc() const { return dir_.filePath(QStringLiteral("velandria_odbc.db")); }
  PostgresPrueba* postgres();
  // Opens "lumbraCopas" (odbc.ini): a new server database "copas" through psqlODBC.
  QString abrirPorPsqlOdbc(Conexion& conexion);

 private:
  QTemporaryDir dir_;
  std::unique_ptr<PostgresPrueba> postgres_;
  int bases_ = 0;
};

// A program statement with sample values, and the text each engine receives after rewriting.
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
