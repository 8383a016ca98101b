#pragma once

#include <QColor>
#include <QList>
#include <QString>
#include <QStringList>
#include <optional>

// Everything the program asks of the desktop outside its own forms: message boxes, the
// open-file and colour dialogs, help pages, and other programs. Forms receive one service;
// tests hand them a scripted one.
class ServicioDialogos {
 public:
  enum class Icono { Ninguno, Informacion, Critico, Exclamacion, Pregunta };
  // A question with "No" among its buttons has "No" as the button that Enter presses.
  enum class Botones { Aceptar, AceptarCancelar, SiNo, SiNoCancelar };
  enum class Respuesta { Aceptar, Cancelar, Si, No };

  virtual ~ServicioDialogos() = default;

  // A modal message box; the answer is the button pressed.
  virtual Respuesta mensaje(const QString& texto, const QString& titulo, Icono icono,
                            Botones botones = Botones::Aceptar) = 0;
  // The open-file dialog; the empty text when cancelled.
  virtual QString abrirArchivo(const QString& titulo, const QString& carpeta,
                               const QString& filtro) = 0;
  // The colour dialog; nothing when cancelled.
  virtual std::optional<QColor> elegirColor(const QColor& inicial) = 0;
  // Asks the desktop to open a help page, a file or a web address; true when it could.
  virtual bool abrirDocumento(const QString& documento) = 0;
  // Starts a program in a folder without waiting; true when it started.
  virtual bool iniciarPrograma(const QString& ruta, const QString& carpetaTrabajo) = 0;
  // Whether a program of that process name (".exe" ignored) is running.
  virtual bool programaEnEjecucion(const QString& nombreProceso) = 0;
  // Closes one running instance of a program; true when one was closed.
  virtual bool cerrarPrograma(const QString& nombreProceso) = 0;
};

// The program's default message-box title.
QString TituloPrograma();
