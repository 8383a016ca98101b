#pragma once

#include <QString>
#include <QStringList>
#include <optional>

// A complete installation that a newcomer can use at once: the main and reports databases
// filled with a bar-restaurant's catalogue, the pictures, the help pages, "productos.ini" and a
// stand-in for the prices program.
struct OpcionesDemo {
  QString carpeta;
  bool reemplazar = false;  // replace the files of an existing installation
  QString idioma = QStringLiteral("CASTELLANO");
  QString terminal = QStringLiteral("T1");  // T1 the manager's, T2 the trainee's
  int esquema = 0;  // the colour scheme of the terminals (1 to 5); 0: each terminal's own
};

struct ResultadoDemo {
  bool creada = false;
  QString mensaje;  // what happened, for the person at the console
};

// The files that make a folder an installation.
bool EsInstalacion(const QString& carpeta);
// Builds the installation in a work folder beside the files and moves it in only when every
// piece was written, so that a failure leaves the folder as it was. Needs a QGuiApplication.
ResultadoDemo CrearInstalacionDemo(const OpcionesDemo& opciones);

// The command line: "[--reemplazar] [--idioma IDIOMA] [--terminal T1|T2] [--esquema N]
// <carpeta>". An error or
// the usage text goes to `error`.
std::optional<OpcionesDemo> LeerArgumentos(const QStringList& argumentos, QString* error);

// The text of the files beside the databases.
QString TextoProductosIni();
QString TextoTarvelo();
