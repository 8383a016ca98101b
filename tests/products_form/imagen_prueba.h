#pragma once

#include <QBuffer>
#include <QByteArray>
#include <QColor>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QString>

// A real picture of one colour padded to an exact size in bytes (readers ignore what follows
// the picture's end), written into a folder; returns its path.
inline QString Imagen(const QString& carpeta, const QString& nombre, qint64 bytes,
                      const QColor& color) {
  QImage imagen(16, 16, QImage::Format_RGB32);
  imagen.fill(color);
  QByteArray datos;
  QBuffer buffer(&datos);
  buffer.open(QIODevice::WriteOnly);
  imagen.save(&buffer, "PNG");
  datos.append(QByteArray(bytes - datos.size(), '\0'));
  QDir().mkpath(carpeta);
  const QString ruta = QDir(carpeta).filePath(nombre);
  QFile f(ruta);
  f.open(QIODevice::WriteOnly);
  f.write(datos);
  return ruta;
}

// A file's bytes; empty when it cannot be read.
inline QByteArray Contenido(const QString& ruta) {
  QFile f(ruta);
  return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}
