#pragma once

#include <QMap>
#include <QString>

// The installation's configuration: a small INI text ("[section]" lines, "key=value" lines, ';'
// or '#' comments). Section and key names are compared without regard to letter case.
//
// Why not QSettings (measured with Qt 6.4 on this file's own cases): QSettings compares section
// and key names with regard to letter case (a "[Traduccion]" section is not found as
// "traduccion", nor "Web=" as "web"), which the suite's Windows-born files need; it splits a
// value at every comma into a list and drops the blank after it ("Dul Vore, S.L." comes back as
// "Dul Vore" and "S.L."), which the untranslated captions' list cannot afford; and it reads the
// text only from a file, sorting the sections by name, where this reader keeps the order in
// which they were written.
class ArchivoIni {
 public:
  ArchivoIni() = default;
  static ArchivoIni Leer(const QString& ruta);  // a missing file gives an empty configuration
  static ArchivoIni DesdeTexto(const QString& texto);

  QString valor(const QString& seccion, const QString& clave, const QString& defecto = {}) const;
  bool tieneSeccion(const QString& seccion) const;
  QStringList secciones() const;  // names as written, in the order they were written
  QStringList claves(const QString& seccion) const;  // in the order they were written
  const QString& ruta() const { return ruta_; }

 private:
  struct Seccion {
    QStringList orden;
    QMap<QString, QString> valores;  // key in lower case
  };
  QMap<QString, Seccion> secciones_;  // name in lower case
  QStringList ordenSecciones_;
  QString ruta_;
};
