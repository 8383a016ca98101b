#pragma once

#include <QList>
#include <QString>
#include <QStringList>

#include "dialecto.h"

class Conexion;

// The tables and columns that the program reads and writes in the suite's shared database,
// spelled as its statements spell them. Names are matched without regard to letter case.
enum class TipoColumna {
  Texto,     // compared without regard to letter case, as the suite's desktop database does
  Entero,    // whole number
  Booleano,  // -1 true, 0 false
  Doble,
  Fecha,
};

struct Columna {
  QString nombre;
  TipoColumna tipo;
  bool noNula = false;
};

struct Tabla {
  QString nombre;
  QList<Columna> columnas;
  QStringList clave;  // empty: rows are found by all their columns
  // Columns looked up often enough to keep an index on ("a" or "a, b": one index each); an index
  // changes no statement and no result, only how fast the engine finds the rows.
  QStringList indices = {};

  const Columna* columna(const QString& nombre) const;
};

// The main database of each program type (velandria, lumbraFastFood, lumbraCopas).
const QList<Tabla>& TablasPrincipales();
// The reports data source ("informes").
const QList<Tabla>& TablasInformes();
// A table of either database by name, or nullptr.
const Tabla* BuscarTabla(const QString& nombre);

// The statements that create the tables (and, on PostgreSQL, citext and the val function).
QStringList SentenciasCrearEsquema(const QList<Tabla>& tablas, Motor motor);
// Creates the tables on an open, empty database in one transaction.
void CrearEsquema(Conexion& conexion, const QList<Tabla>& tablas);
