#pragma once

#include <benchmark/benchmark.h>

#include <QString>
#include <QTemporaryDir>

#include "conexion.h"
#include "esquema.h"

// The throwaway folder of a benchmark program, removed when the program ends.
inline QTemporaryDir& CarpetaBench() {
  static QTemporaryDir dir;
  return dir;
}

// Creates the program's main database in that folder: the schema, then the rows that `llenar`
// writes on the connection, in one transaction. Returns the file's path.
template <typename Llenar>
QString CrearBaseBench(Llenar llenar) {
  const QString ruta = CarpetaBench().filePath(QStringLiteral("velandria.db"));
  Conexion c;
  c.abrirSQLite(ruta);
  CrearEsquema(c, TablasPrincipales());
  Transaccion t(c);
  llenar(c);
  t.confirmar();
  return ruta;
}

// Runs the program's benchmarks with Google Benchmark's own command line; the Qt application
// (the SQL drivers are plugins, the dialogs need widgets) must exist already.
inline int EjecutarBenchmarks(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv))
    return 1;
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
