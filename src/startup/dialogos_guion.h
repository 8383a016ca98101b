#pragma once

#include <QList>
#include <QMap>
#include <QQueue>
#include <QSet>
#include <QString>
#include <QStringList>

#include "dialogos.h"

// A dialog service that answers from a script and records every call, for tests. An answer
// that was not scripted is the default button of the box (as Enter would press it), an open-file
// dialog that was not scripted is cancelled, and so is a colour dialog.
class DialogosGuion : public ServicioDialogos {
 public:
  struct Llamada {
    QString tipo;  // "mensaje", "abrirArchivo", "elegirColor", "abrirDocumento", ...
    QString texto;
    QString titulo;
    Icono icono = Icono::Ninguno;
    Botones botones = Botones::Aceptar;
  };

  void siguienteRespuesta(Respuesta r) { respuestas_.enqueue(r); }
  void siguienteArchivo(const QString& ruta) { archivos_.enqueue(ruta); }
  void siguienteColor(const std::optional<QColor>& color) { colores_.enqueue(color); }
  void programaAbierto(const QString& nombreProceso, int instancias = 1);

  const QList<Llamada>& llamadas() const { return llamadas_; }
  QList<Llamada> llamadasDe(const QString& tipo) const;
  // The texts of the message boxes shown, in order.
  QStringList mensajes() const;
  void olvidar() { llamadas_.clear(); }

  Respuesta mensaje(const QString& texto, const QString& titulo, Icono icono,
                    Botones botones = Botones::Aceptar) override;
  QString abrirArchivo(const QString& titulo, const QString& carpeta,
                       const QString& filtro) override;
  std::optional<QColor> elegirColor(const QColor& inicial) override;
  bool abrirDocumento(const QString& documento) override;
  bool iniciarPrograma(const QString& ruta, const QString& carpetaTrabajo) override;
  bool programaEnEjecucion(const QString& nombreProceso) override;
  bool cerrarPrograma(const QString& nombreProceso) override;

 private:
  QList<Llamada> llamadas_;
  QQueue<Respuesta> respuestas_;
  QQueue<QString> archivos_;
  QQueue<std::optional<QColor>> colores_;
  QMap<QString, int> abiertos_;  // process name in lower case -> running instances
};
