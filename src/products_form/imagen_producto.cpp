#include "imagen_producto.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "color_vb.h"
#include "dialogos.h"
#include "entorno.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// A path of the suite's settings, written with '\' as the separator on every platform.
QString RutaLocal(QString ruta) {
  return ruta.replace(u'\\', u'/');
}

// The program's pictures folder, "fotos": an existing folder of that name in any letter case is
// the one the suite's other programs already use.
QString CarpetaFotosPrograma(const QString& carpetaPrograma) {
  const QDir programa(carpetaPrograma);
  const QStringList carpetas = programa.entryList(QDir::Dirs | QDir::NoDotAndDotDot);
  for (const QString& nombre : carpetas) {
    if (nombre.compare(u"fotos"_s, Qt::CaseInsensitive) == 0)
      return programa.filePath(nombre);
  }
  return programa.filePath(u"fotos"_s);
}

void CopiarSiFalta(Entorno& entorno, const QString& origen, const QString& carpeta,
                   const QString& archivo) {
  const QString destino = QDir(carpeta).filePath(archivo);
  if (QFileInfo::exists(destino))
    return;
  if (!QDir().mkpath(carpeta) || !QFile::copy(origen, destino)) {
    entorno.RegistrarError(kContextoCopiarImagen,
                           u"No se pudo copiar %1 en %2"_s.arg(origen, carpeta));
  }
}

}  // namespace

QString CarpetaImagenes(const Entorno& entorno, PantallaImagen pantalla) {
  if (pantalla == PantallaImagen::General) {
    return CarpetaFotosPrograma(entorno.instalacion.carpetaPrograma);
  }
  return RutaLocal(entorno.sesion.rutaFotos);
}

std::optional<ImagenElegida> AceptarImagen(Entorno& entorno, PantallaImagen pantalla,
                                           const QString& ruta) {
  const QFileInfo info(ruta);
  if (pantalla == PantallaImagen::General && info.size() > kTamanoMaximoImagen) {
    entorno.dialogos->mensaje(kMensajeImagenGrande, kTituloImagenGrande,
                              ServicioDialogos::Icono::Informacion);
    return std::nullopt;
  }
  ImagenElegida elegida;
  if (!info.isFile() || !elegida.imagen.load(ruta)) {
    entorno.dialogos->mensaje(kMensajeImagenNoValida, TituloPrograma(),
                              ServicioDialogos::Icono::Exclamacion);
    return std::nullopt;
  }
  elegida.archivo = info.fileName();
  const QString carpeta = CarpetaImagenes(entorno, pantalla);
  if (carpeta.isEmpty()) {
    entorno.RegistrarError(kContextoCopiarImagen,
                           u"No hay carpeta de fotos para copiar %1"_s.arg(ruta));
  } else {
    CopiarSiFalta(entorno, ruta, carpeta, elegida.archivo);
  }
  return elegida;
}

std::optional<ImagenElegida> ElegirImagen(Entorno& entorno, PantallaImagen pantalla) {
  const QString ruta = entorno.dialogos->abrirArchivo(TituloPrograma(),
                                                      CarpetaImagenes(entorno, pantalla), u"*.*"_s);
  if (ruta.isEmpty())
    return std::nullopt;
  return AceptarImagen(entorno, pantalla, ruta);
}

std::optional<QString> ElegirColor(ServicioDialogos& dialogos, const QString& colorActual) {
  QColor inicial = ColorDesdeTexto(colorActual);
  if (!inicial.isValid())
    inicial = Qt::white;
  const std::optional<QColor> color = dialogos.elegirColor(inicial);
  if (!color || !color->isValid())
    return std::nullopt;
  return QString::number(ValorDeColor(*color));
}
