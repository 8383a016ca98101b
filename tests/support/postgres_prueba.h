#pragma once

#include <QString>
#include <QTemporaryDir>

#include "origenes_datos.h"

class InstalacionPrueba;

// A throwaway PostgreSQL server for one test run: a cluster made with initdb in a temporary
// folder, reached only through a Unix socket in that folder (no TCP listener), with password
// login for the user "tpv", stopped and removed when the object goes. initdb refuses to run as
// root, so as root the server runs as the "postgres" system user, owner of the folder.
// The binaries are taken from PRODUCTOS_PG_BIN, else the newest /usr/lib/postgresql/*/bin.
// When the server cannot start, arrancado() is false and error() says why.
class PostgresPrueba {
 public:
  PostgresPrueba();
  ~PostgresPrueba();
  PostgresPrueba(const PostgresPrueba&) = delete;
  PostgresPrueba& operator=(const PostgresPrueba&) = delete;

  bool arrancado() const { return arrancado_; }
  const QString& error() const { return error_; }
  QString carpetaSocket() const { return dir_.path(); }
  int puerto() const { return 5432; }  // names the socket file only: the folder is private
  static QString usuario() { return QStringLiteral("tpv"); }
  // The suite's shared password, the one that its connection strings carry.
  static QString clave() { return QStringLiteral("KorvanitesX%QQRT"); }

  // Creates an empty database (UTF-8) and returns the data source that reaches it; the password
  // is left empty so that the connection string's pwd= is the one used. On failure the data
  // source names no database.
  OrigenDatos crearBaseDatos(const QString& nombre);
  // Runs a statement as the server's superuser on a database; false with error() on failure.
  bool ejecutarComoAdministrador(const QString& baseDatos, const QString& sentencia);

 private:
  bool arrancar();
  bool ejecutarPrograma(const QString& programa, const QStringList& argumentos);

  QTemporaryDir dir_;
  QString binarios_;
  bool comoRoot_ = false;
  bool arrancado_ = false;
  QString error_;
};

inline const QString kCadenaVelandria = QStringLiteral("dsn=velandria;pwd=KorvanitesX%QQRT;");
// Puts an installation's shared connection on a test server's database, for a restaurant.
void UsarPostgres(InstalacionPrueba& inst, const OrigenDatos& origen);
