#pragma once

#include "dialogos.h"

class QCoreApplication;
class QTranslator;
class QWidget;

// Loads Qt's own Spanish texts (Debian's Qt translations) into the application, so that every
// standard dialog speaks Spanish; false when they are not installed.
bool CargarTraduccionesQt(QCoreApplication& app, QTranslator& traductor);

// The desktop's own dialogs and programs.
class DialogosQt : public ServicioDialogos {
 public:
  Respuesta mensaje(const QString& texto, const QString& titulo, Icono icono,
                    Botones botones = Botones::Aceptar) override;
  QString abrirArchivo(const QString& titulo, const QString& carpeta,
                       const QString& filtro) override;
  std::optional<QColor> elegirColor(const QColor& inicial) override;
  bool abrirDocumento(const QString& documento) override;
  bool iniciarPrograma(const QString& ruta, const QString& carpetaTrabajo) override;
  bool programaEnEjecucion(const QString& nombreProceso) override;
  bool cerrarPrograma(const QString& nombreProceso) override;
};

// The process ids whose program name is nombreProceso (letter case and ".exe" ignored), read
// from a /proc-like folder.
QList<qint64> ProcesosConNombre(const QString& nombreProceso, const QString& carpetaProc);
