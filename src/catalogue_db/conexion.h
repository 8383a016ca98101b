#pragma once

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>

#include "dialecto.h"
#include "origenes_datos.h"

// One open database connection, as the suite's programs hold it: opened from a connection
// string, it executes statements and feeds recordsets. Every statement passes the dialect
// adapter, is refused when it would run a second statement, and is prepared before it runs.
// Failures are thrown as ErrorBD with the driver's description.
class Conexion {
 public:
  Conexion();
  ~Conexion();
  Conexion(const Conexion&) = delete;
  Conexion& operator=(const Conexion&) = delete;

  // Opens the data source of a connection string such as "dsn=velandria;pwd=...;".
  void abrir(const QString& cadena, const OrigenesDatos& origenes);
  // Opens a SQLite file directly (tests and the demo installation).
  void abrirSQLite(const QString& archivo);
  bool abierta() const;
  void cerrar();

  // Runs a statement that returns no rows; the result is the number of rows it touched.
  int ejecutar(const QString& sentencia);
  // Runs a statement and leaves the query positioned before its first row.
  QSqlQuery consultar(const QString& sentencia);
  // Runs one of the program's own schema statements without the adapter (DDL cannot be
  // prepared on every engine); still refused when it would run a second statement.
  void ejecutarDirecto(const QString& sentencia);

  Motor motor() const { return motor_; }
  // The engine's "default database path": a file database's path without its extension,
  // a server database's name.
  QString rutaPredeterminada() const { return rutaPredeterminada_; }
  QSqlDatabase& bd() { return bd_; }

  void comenzarTransaccion();
  void confirmarTransaccion();
  void deshacerTransaccion();

 private:
  QSqlQuery preparar(const QString& sentencia);
  void despuesDeAbrir(const QString& rutaArchivo);
  void fallar(const QString& descripcion);

  QString nombre_;
  QSqlDatabase bd_;
  Motor motor_ = Motor::Access;
  QString rutaPredeterminada_;
};

// A transaction on a connection: rolled back unless confirmed.
class Transaccion {
 public:
  explicit Transaccion(Conexion& conexion);
  ~Transaccion();
  Transaccion(const Transaccion&) = delete;
  Transaccion& operator=(const Transaccion&) = delete;
  void confirmar();

 private:
  Conexion& conexion_;
  bool terminada_ = false;
};

// The description of a failed query or connection, as the driver words it.
QString DescripcionError(const class QSqlError& error);
