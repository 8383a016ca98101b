#pragma once

#include <QHash>
#include <QSqlQuery>
#include <QSqlRecord>
#include <QString>
#include <QVariant>

class Conexion;
struct sqlite3_stmt;

// The rows of a statement read one at a time, forward, and none kept: the cursor that a
// recordset or a list box fills itself from, and the reader of those that want a column or two
// of many rows (the largest code). Fields are found by name ignoring letter case, as a recordset
// finds them, and come as Qt's driver of the engine gives them. Failures throw ErrorBD.
//
// On SQLite the statement is stepped on SQLite's own handle and only the fields asked for are
// converted: Qt's driver converts every column of every row, which for "select *" over the
// catalogue costs more than SQLite's reading of it.
class LectorFilas {
 public:
  // Runs the statement.
  LectorFilas(Conexion& conexion, const QString& sentencia);
  ~LectorFilas();
  LectorFilas(const LectorFilas&) = delete;
  LectorFilas& operator=(const LectorFilas&) = delete;

  // Moves to the next row; false after the last one.
  bool siguiente();
  // A field of the current row.
  QVariant field(const QString& nombre) const;
  QVariant valor(int indice) const;
  // The statement's columns, named and typed as the engine's Qt driver names and types them.
  const QSqlRecord& campos() const { return campos_; }
  // Appends the current row's fields, from the given column on, to a compact row being built.
  void agregarFila(QByteArray& bloque, int desde) const;

  // The rows that every reader of the program has taken off its cursor so far: what a screen
  // costs the database, whatever the clock says.
  static qint64 filasLeidas() { return filasLeidas_; }

 private:
  int indice(const QString& nombre) const;

  sqlite3_stmt* sqlite_ = nullptr;  // on SQLite, the statement; else the query below
  int primerPaso_ = 0;  // SQLite's answer to the step that ran the statement, until read
  bool terminado_ = false;
  QString fallo_;  // SQLite's description of the step that failed
  QSqlQuery filas_;
  QSqlRecord campos_;
  mutable QHash<QString, int> indices_;  // field names as callers spell them
  static inline qint64 filasLeidas_ = 0;
};
