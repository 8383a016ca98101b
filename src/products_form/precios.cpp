#include "precios.h"

#include <QCoreApplication>
#include <QFile>

#include "entorno.h"
#include "utilidades.h"

using namespace Qt::Literals::StringLiterals;

void Boton_SM1(Entorno& entorno) {
  const QString ruta = entorno.instalacion.rutaEnCarpeta(u"ModoPrecio.txt"_s);
  if (QFile::exists(ruta)) {
    QFile::remove(ruta);
    QCoreApplication::processEvents();
  }
  QFile archivo(ruta);
  if (!archivo.open(QIODevice::WriteOnly | QIODevice::Truncate) || archivo.write("0") != 1) {
    // Without the hand-off file the prices program would not know its mode: it is not started.
    entorno.RegistrarError(u"Boton_SM1  1"_s, archivo.errorString());
    return;
  }
  archivo.close();
  CerrarPrograma(entorno, u"Tarvelo"_s);
  SubirPrograma(entorno, u"Tarvelo.exe"_s);
}
