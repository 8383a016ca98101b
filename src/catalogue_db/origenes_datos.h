#pragma once

#include <QMap>
#include <QString>

#include "archivo_ini.h"

// Where a named data source really lives. The suite names its databases by ODBC data-source
// name; an installation may map a name to a SQLite file or a PostgreSQL server instead, in its
// configuration file:
//
//   [dsn velandria]
//   tipo=sqlite
//   archivo=velandria.db          ; relative to the program's folder
//
//   [dsn lumbraCopas]
//   tipo=postgresql
//   servidor=localhost            ; or the folder of a Unix socket
//   puerto=5432
//   basedatos=copas
//   usuario=tpv                   ; the password is the pwd= of the connection string
//
// A name with no mapping goes to ODBC as the connection string gives it.
struct OrigenDatos {
  enum class Tipo { ODBC, SQLite, PostgreSQL };
  Tipo tipo = Tipo::ODBC;
  QString archivo;  // SQLite: absolute path of the file
  QString servidor;
  int puerto = 5432;
  QString baseDatos;
  QString usuario;
  QString clave;  // PostgreSQL: overrides the pwd of the connection string when set
};

class OrigenesDatos {
 public:
  OrigenesDatos() = default;
  // Reads every "[dsn NAME]" section; relative file paths are taken from carpetaBase.
  static OrigenesDatos DesdeIni(const ArchivoIni& ini, const QString& carpetaBase);

  void mapear(const QString& dsn, const OrigenDatos& origen);
  // The mapping of a data-source name (compared without regard to letter case), if any.
  const OrigenDatos* buscar(const QString& dsn) const;

 private:
  QMap<QString, OrigenDatos> mapa_;
};

// The key=value pairs of a connection string such as "dsn=velandria;pwd=x;". Keys are returned in
// lower case; a value in braces keeps its ';'.
QMap<QString, QString> ParesDeCadena(const QString& cadena);
