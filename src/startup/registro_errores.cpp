#include "registro_errores.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <cstdio>

using namespace Qt::Literals::StringLiterals;

namespace {

// Windows-1252 bytes 0x80..0x9F; 0 marks the five bytes it leaves undefined.
constexpr char16_t kAlto[32] = {0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0,      0x017D, 0,
                                0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

char ByteDe(char16_t c) {
  if (c < 0x80 || (c >= 0xA0 && c <= 0xFF))
    return static_cast<char>(c);
  for (int i = 0; i < 32; ++i) {
    if (kAlto[i] != 0 && kAlto[i] == c)
      return static_cast<char>(0x80 + i);
  }
  return '?';
}

}  // namespace

QByteArray AWindows1252(const QString& texto) {
  QByteArray bytes;
  bytes.reserve(texto.size());
  for (QChar c : texto)
    bytes.append(ByteDe(c.unicode()));
  return bytes;
}

RegistroErrores::RegistroErrores(QString carpetaPrograma, Mostrar mostrar)
    : carpeta_(std::move(carpetaPrograma)), mostrar_(std::move(mostrar)) {}

QString RegistroErrores::rutaLog() const {
  return QDir(carpeta_).filePath(u"Errores.log"_s);
}

QString EnUnaLinea(const QString& texto) {
  static const QRegularExpression saltos(uR"(\s*[\r\n]\s*)"_s);
  return QString(texto).replace(saltos, u" "_s);
}

QString RegistroErrores::RegistrarError(const QString& contexto, const QString& descripcion) {
  QFile log(rutaLog());
  const QByteArray linea =
      AWindows1252(EnUnaLinea(contexto) + u", Descripcion: "_s + EnUnaLinea(descripcion)) + "\r\n";
  QString fallo;
  if (!log.open(QIODevice::WriteOnly | QIODevice::Append) || log.write(linea) != linea.size() ||
      !log.flush()) {
    fallo = u"No se puede escribir en el registro de errores %1: %2"_s.arg(
        QDir::toNativeSeparators(rutaLog()), log.errorString());
  }
  log.close();
  if (mostrar_)
    mostrar_(contexto, descripcion);
  // The program goes on without its log; the manager is told once, not at every error.
  if (fallo.isEmpty() || falloAvisado_)
    return {};
  falloAvisado_ = true;
  std::fprintf(stderr, "%s\n", qPrintable(fallo));
  return fallo;
}
