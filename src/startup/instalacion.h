#pragma once

#include <QString>
#include <QStringList>

#include "archivo_ini.h"
#include "origenes_datos.h"

// What an installation tells the program about itself: its folder (where the error log, the
// help pages, the prices program and the configuration file "productos.ini" live), where its
// named data sources are, and the web address of the help pages.
struct Instalacion {
  QString carpetaPrograma;
  QString nombreEjecutable = QStringLiteral("productos");
  ArchivoIni configuracion;
  OrigenesDatos origenes;
  QString ayudaWeb;

  // The folder named by the environment variable PRODUCTOS_CARPETA, else the executable's.
  static QString CarpetaPorDefecto();
  // Reads "productos.ini" of a folder.
  static Instalacion Cargar(const QString& carpeta);

  // A file of the program's folder.
  QString rutaEnCarpeta(const QString& nombre) const;
};
