#include "instalacion.h"

#include <QCoreApplication>
#include <QDir>

using namespace Qt::Literals::StringLiterals;

QString Instalacion::CarpetaPorDefecto() {
  const QString nombrada = qEnvironmentVariable("PRODUCTOS_CARPETA");
  if (!nombrada.isEmpty())
    return QDir(nombrada).absolutePath();
  return QCoreApplication::applicationDirPath();
}

Instalacion Instalacion::Cargar(const QString& carpeta) {
  Instalacion i;
  i.carpetaPrograma = QDir(carpeta).absolutePath();
  i.configuracion = ArchivoIni::Leer(QDir(carpeta).filePath(u"productos.ini"_s));
  i.origenes = OrigenesDatos::DesdeIni(i.configuracion, i.carpetaPrograma);
  i.ayudaWeb = i.configuracion.valor(u"ayuda"_s, u"web"_s);
  const QString ejecutable = i.configuracion.valor(u"instalacion"_s, u"ejecutable"_s);
  if (!ejecutable.isEmpty())
    i.nombreEjecutable = ejecutable;
  return i;
}

QString Instalacion::rutaEnCarpeta(const QString& nombre) const {
  return QDir(carpetaPrograma).filePath(nombre);
}
