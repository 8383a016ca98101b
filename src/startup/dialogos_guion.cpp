#include "dialogos_guion.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QString Clave(QString nombre) {
  if (nombre.endsWith(u".exe"_s, Qt::CaseInsensitive))
    nombre.chop(4);
  return nombre.toLower();
}

}  // namespace

void DialogosGuion::programaAbierto(const QString& nombreProceso, int instancias) {
  abiertos_[Clave(nombreProceso)] = instancias;
}

QList<DialogosGuion::Llamada> DialogosGuion::llamadasDe(const QString& tipo) const {
  QList<Llamada> r;
  for (const Llamada& l : llamadas_) {
    if (l.tipo == tipo)
      r.append(l);
  }
  return r;
}

QStringList DialogosGuion::mensajes() const {
  QStringList r;
  for (const Llamada& l : llamadas_) {
    if (l.tipo == u"mensaje"_s)
      r.append(l.texto);
  }
  return r;
}

ServicioDialogos::Respuesta DialogosGuion::mensaje(const QString& texto, const QString& titulo,
                                                   Icono icono, Botones botones) {
  llamadas_.append({u"mensaje"_s, texto, titulo, icono, botones});
  if (!respuestas_.isEmpty())
    return respuestas_.dequeue();
  if (botones == Botones::SiNoPorDefectoNo)
    return Respuesta::No;
  return botones == Botones::SiNo || botones == Botones::SiNoCancelar ? Respuesta::Si
                                                                      : Respuesta::Aceptar;
}

QString DialogosGuion::abrirArchivo(const QString& titulo, const QString& carpeta,
                                    const QString& filtro) {
  llamadas_.append({u"abrirArchivo"_s, carpeta + u'|' + filtro, titulo});
  return archivos_.isEmpty() ? QString() : archivos_.dequeue();
}

std::optional<QColor> DialogosGuion::elegirColor(const QColor& inicial) {
  llamadas_.append({u"elegirColor"_s, inicial.name(), {}});
  return colores_.isEmpty() ? std::nullopt : colores_.dequeue();
}

bool DialogosGuion::abrirDocumento(const QString& documento) {
  llamadas_.append({u"abrirDocumento"_s, documento, {}});
  return true;
}

bool DialogosGuion::iniciarPrograma(const QString& ruta, const QString& carpetaTrabajo) {
  llamadas_.append({u"iniciarPrograma"_s, ruta, carpetaTrabajo});
  return true;
}

bool DialogosGuion::programaEnEjecucion(const QString& nombreProceso) {
  llamadas_.append({u"programaEnEjecucion"_s, nombreProceso, {}});
  return abiertos_.value(Clave(nombreProceso)) > 0;
}

bool DialogosGuion::cerrarPrograma(const QString& nombreProceso) {
  llamadas_.append({u"cerrarPrograma"_s, nombreProceso, {}});
  int& n = abiertos_[Clave(nombreProceso)];
  if (n <= 0)
    return false;
  --n;
  return true;
}
