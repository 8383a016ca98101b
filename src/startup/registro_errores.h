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

  // Appends the entry, on one line (line breaks in it become one blank), and shows it. A log
  // that cannot be written stops nothing: the first failure is written to standard error and
  // returned, for the caller to tell the manager; later ones return the empty text.
  QString RegistrarError(const QString& contexto, const QString& descripcion);

 private:
  QString carpeta_;
  Mostrar mostrar_;
  bool falloAvisado_ = false;
};

// The text with every line break, and the blanks around it, folded to one blank.
QString EnUnaLinea(const QString& texto);

// The text in Windows-1252; characters it cannot hold become '?'.
QByteArray AWindows1252(const QString& texto);
