#pragma once

#include <QByteArray>
#include <QString>
#include <functional>

// The error log "Errores.log" of the program's folder. Each entry is one line, the context, ",
// Descripcion: " and the description, with no date or time, in the ANSI code page (Windows-1252)
// that the suite's other tools read. After writing, the entry is shown on the error form.
class RegistroErrores {
 public:
  using Mostrar = std::function<void(const QString& contexto, const QString& descripcion)>;

  explicit RegistroErrores(QString carpetaPrograma = {}, Mostrar mostrar = {});

  void setCarpeta(const QString& carpeta) { carpeta_ = carpeta; }
  void setMostrar(Mostrar mostrar) { mostrar_ = std::move(mostrar); }
  QString rutaLog() const;

  // Appends the entry and shows it. A log that cannot be written throws std::runtime_error:
  // the log itself has no guard.
  void RegistrarError(const QString& contexto, const QString& descripcion);

 private:
  QString carpeta_;
  Mostrar mostrar_;
};

// The text in Windows-1252; characters it cannot hold become '?'.
QByteArray AWindows1252(const QString& texto);
