#include "archivo_ini.h"

#include <QFile>
#include <QStringDecoder>
#include <QStringList>

using namespace Qt::Literals::StringLiterals;

ArchivoIni ArchivoIni::Leer(const QString& ruta) {
  QFile f(ruta);
  ArchivoIni ini;
  if (f.open(QIODevice::ReadOnly)) {
    // UTF-8, or else the Windows code page that the suite's own tools write.
    const QByteArray bytes = f.readAll();
    QStringDecoder utf8(QStringDecoder::Utf8);
    QString texto = utf8(bytes);
    if (utf8.hasError())
      texto = QStringDecoder(QStringDecoder::Latin1)(bytes);
    ini = DesdeTexto(texto);
  }
  ini.ruta_ = ruta;
  return ini;
}

ArchivoIni ArchivoIni::DesdeTexto(const QString& texto) {
  ArchivoIni ini;
  QString actual;
  // A file saved by a Windows editor may start with a byte-order mark.
  const QStringList lineas = (texto.startsWith(QChar(0xFEFF)) ? texto.mid(1) : texto).split(u'\n');
  for (QString linea : lineas) {
    linea = linea.trimmed();
    if (linea.isEmpty() || linea.startsWith(u';') || linea.startsWith(u'#'))
      continue;
    if (linea.startsWith(u'[') && linea.endsWith(u']')) {
      const QString nombre = linea.mid(1, linea.size() - 2).trimmed();
      actual = nombre.toLower();
      if (!ini.secciones_.contains(actual))
        ini.ordenSecciones_.append(nombre);
      ini.secciones_[actual];
      continue;
    }
    const qsizetype igual = linea.indexOf(u'=');
    if (igual <= 0)
      continue;
    const QString clave = linea.left(igual).trimmed();
    Seccion& s = ini.secciones_[actual];
    if (!s.valores.contains(clave.toLower()))
      s.orden.append(clave);
    s.valores.insert(clave.toLower(), linea.mid(igual + 1).trimmed());
  }
  return ini;
}

QString ArchivoIni::valor(const QString& seccion, const QString& clave,
                          const QString& defecto) const {
  const auto s = secciones_.constFind(seccion.toLower());
  if (s == secciones_.constEnd())
    return defecto;
  return s->valores.value(clave.toLower(), defecto);
}

bool ArchivoIni::tieneSeccion(const QString& seccion) const {
  return secciones_.contains(seccion.toLower());
}

QStringList ArchivoIni::claves(const QString& seccion) const {
  return secciones_.value(seccion.toLower()).orden;
}

QStringList ArchivoIni::secciones() const {
  return ordenSecciones_;
}
