#pragma once

#include <QHash>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QString>
#include <QVariant>

class Conexion;

// The rows of a statement read one at a time, forward, and none kept: for the readers that
// want a column or two of many rows (a list of the catalogue, the largest code), which a
// recordset would hold whole, every column of every row. Fields are found by name ignoring
// letter case, as a recordset finds them. Failures throw ErrorBD.
class LectorFilas {
 public:
  // Runs the statement.
  LectorFilas(Conexion& conexion, const QString& sentencia);

  // Moves to the next row; false after the last one.
  bool siguiente();
  // A field of the current row.
  QVariant field(const QString& nombre) const;

 private:
  QSqlQuery filas_;
  QSqlRecord campos_;
  mutable QHash<QString, int> indices_;  // field names as callers spell them
};
