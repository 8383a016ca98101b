#pragma once

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
