#pragma once

#include <QElapsedTimer>
#include <QList>
#include <QObject>
#include <QSet>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>
#include <QVariant>

#include "dialecto.h"
#include "origenes_datos.h"

struct sqlite3;
struct sqlite3_stmt;

// How long a SQLite connection waits for the write lock while the file stands still.
inline constexpr qint64 kEsperaSQLiteMs = 10000;
struct EsperaSQLite {
  QByteArray archivo;
  qint64 marca = 0;  // the file's last modification time seen, in nanoseconds
  QElapsedTimer reloj;
};

// A reader whose rows are still partly in its cursor (a recordset, a list box filling): it reads
// the rest before its connection writes, and a slice at a time while the program is idle.
class LecturaPendiente {
 public:
  // Reads up to the given number of rows more; a reader whose cursor has given its last row
  // leaves the connection's notes (olvidarLectura).
  virtual void leerMas(int filas) = 0;
  // Reads every row left.
  virtual void terminarLectura() = 0;

 protected:
  ~LecturaPendiente() = default;
};

// One open database connection, as the suite's programs hold it: opened from a connection
// string, it executes statements and feeds recordsets. Every statement passes the dialect
// adapter and is refused when the text sent would run a second statement; the engine itself
// refuses one too where it can: SQLite's prepare, and on PostgreSQL the extended query protocol
// (see postgres_nativo.h). A text goes to the driver as it stands, with no placeholder rewritten.
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
  // On a SQLite connection, the statement adapted, guarded and prepared on SQLite's own handle,
  // for a reader that steps it itself and reads only the columns it wants (finalize it with
  // sqlite3_finalize); nullptr on the other engines.
  sqlite3_stmt* prepararEnSQLite(const QString& sentencia);
  // Runs one of the program's own schema statements without the adapter (DDL cannot be
  // prepared on every engine); still refused when it would run a second statement.
  void ejecutarDirecto(const QString& sentencia);
  // Runs a statement of the program's own making, with no value spliced in, binding the values
  // to its "?" marks in order; the result is the number of rows it touched.
  int ejecutar(const QString& sentencia, const QList<QVariant>& valores);

  Motor motor() const { return motor_; }
  // The engine's "default database path": a file database's path without its extension,
  // a server database's name.
  QString rutaPredeterminada() const { return rutaPredeterminada_; }
  QSqlDatabase& bd() { return bd_; }

  // Starts a transaction. Given a table name, it is serialised: one connection at a time,
  // among those that name the same table, holds such a transaction, from its start to its end,
  // so that what it reads (the largest code) stays true until it writes.
  void comenzarTransaccion(const QString& serializarEn = {});
  void confirmarTransaccion();
  void deshacerTransaccion();

  // Readers that read their rows as far as they are needed are noted here: before the
  // connection writes, they read the rest of their rows, so that what they read is what the
  // database held when their statement ran; while the program is idle, they read them a slice
  // at a time, so that no statement stays open long.
  void anotarLectura(LecturaPendiente* lectura);
  void olvidarLectura(LecturaPendiente* lectura);
  bool hayLecturasPendientes() const { return !lecturas_.isEmpty(); }

 private:
  void terminarLecturas();
  QString textoParaMotor(const QString& sentencia) const;
  void comprobarUnaSentencia(const QString& texto) const;
  QSqlQuery correr(const QString& texto);
  void despuesDeAbrir(const QString& rutaArchivo);
  void fallar(const QString& descripcion);
  void pedirPausa();
  void leerEnPausa();

  QString nombre_;
  QSqlDatabase bd_;
  Motor motor_ = Motor::Access;
  QString rutaPredeterminada_;
  EsperaSQLite espera_;
  sqlite3* sqlite_ = nullptr;  // SQLite's own handle of a SQLite connection
  QSet<LecturaPendiente*> lecturas_;
  bool pausaPedida_ = false;
  QObject contexto_;  // the idle reading's calls go with the connection
};

// A transaction on a connection: rolled back unless confirmed. Given a table name, serialised
// as Conexion::comenzarTransaccion says.
class Transaccion {
 public:
  explicit Transaccion(Conexion& conexion, const QString& serializarEn = {});
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
