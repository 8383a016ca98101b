// Creates the suite's tables on an empty database: the data source named on the command line as
// the installation's productos.ini maps it (a SQLite file is created when missing), or any ODBC
// data source by name.
//
//   productos-esquema [--informes] [--carpeta FOLDER] [--clave PWD] DSN
#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTextStream>

#include "conexion.h"
#include "error_bd.h"
#include "esquema.h"
#include "instalacion.h"

using namespace Qt::Literals::StringLiterals;

int main(int argc, char* argv[]) {
  QCoreApplication app(argc, argv);
  QCommandLineParser opciones;
  opciones.setApplicationDescription(u"Crea las tablas de Productos en una base de datos vacía."_s);
  opciones.addHelpOption();
  opciones.addOption({u"informes"_s, u"Crea la tabla del origen de informes."_s});
  opciones.addOption({u"carpeta"_s, u"Carpeta de la instalación (productos.ini)."_s, u"carpeta"_s,
                      Instalacion::CarpetaPorDefecto()});
  opciones.addOption({u"clave"_s, u"Contraseña del origen de datos."_s, u"clave"_s});
  opciones.addPositionalArgument(u"dsn"_s, u"Nombre del origen de datos."_s);
  opciones.process(app);
  QTextStream err(stderr);
  if (opciones.positionalArguments().size() != 1) {
    err << opciones.helpText();
    return 2;
  }
  const QString dsn = opciones.positionalArguments().first();
  const Instalacion instalacion = Instalacion::Cargar(opciones.value(u"carpeta"_s));
  try {
    Conexion conexion;
    const OrigenDatos* origen = instalacion.origenes.buscar(dsn);
    if (origen && origen->tipo == OrigenDatos::Tipo::SQLite) {
      conexion.abrirSQLite(origen->archivo);  // creates the file
    } else {
      QString cadena = u"dsn="_s + dsn + u';';
      if (opciones.isSet(u"clave"_s))
        cadena += u"pwd="_s + opciones.value(u"clave"_s) + u';';
      conexion.abrir(cadena, instalacion.origenes);
    }
    CrearEsquema(conexion, opciones.isSet(u"informes"_s) ? TablasInformes() : TablasPrincipales());
  } catch (const ErrorBD& e) {
    err << u"No se ha podido crear el esquema en %1: %2\n"_s.arg(dsn, e.descripcion());
    return 1;
  }
  QTextStream(stdout) << u"Esquema creado en %1\n"_s.arg(dsn);
  return 0;
}
