#pragma once

#include <QString>
#include <QTemporaryDir>

#include "origenes_datos.h"

class InstalacionPrueba;

// A throwaway socket-only server, login "tpv"; binaries: PRODUCTOS_PG_BIN, else the newest.
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
  static QString clave() { return QStringLiteral("KorvanitesX%QQRT"); }

  // A new empty database's data source (no password: pwd= is used); no database on failure.
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
