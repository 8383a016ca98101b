#include "origenes_datos.h"

#include <QDir>

using namespace Qt::Literals::StringLiterals;

OrigenesDatos OrigenesDatos::DesdeIni(const ArchivoIni& ini, const QString& carpetaBase) {
  OrigenesDatos origenes;
  for (const QString& seccion : ini.secciones()) {
    // "[dsn NAME]": the name is all that follows, blanks included, as ODBC allows them.
    if (!seccion.startsWith(u"dsn"_s, Qt::CaseInsensitive) || seccion.size() < 4 ||
        !seccion.at(3).isSpace()) {
      continue;
    }
    const QString nombre = seccion.mid(4).trimmed();
    if (nombre.isEmpty())
      continue;
    OrigenDatos o;
    const QString tipo = ini.valor(seccion, u"tipo"_s).toLower();
    if (tipo == u"sqlite"_s) {
      o.tipo = OrigenDatos::Tipo::SQLite;
      // The suite writes paths with '\\', the folder separator of whatever platform runs it.
      QString archivo = ini.valor(seccion, u"archivo"_s);
      archivo.replace(u'\\', u'/');
      o.archivo = QDir::cleanPath(QDir(carpetaBase).absoluteFilePath(archivo));
    } else if (tipo == u"postgresql"_s) {
      o.tipo = OrigenDatos::Tipo::PostgreSQL;
      o.servidor = ini.valor(seccion, u"servidor"_s, u"localhost"_s);
      bool puertoValido = false;
      o.puerto = ini.valor(seccion, u"puerto"_s, u"5432"_s).toInt(&puertoValido);
      if (!puertoValido || o.puerto <= 0 || o.puerto > 65535)
        o.puerto = 5432;
      o.baseDatos = ini.valor(seccion, u"basedatos"_s, nombre);
      o.usuario = ini.valor(seccion, u"usuario"_s);
      o.clave = ini.valor(seccion, u"clave"_s);
    } else {
      continue;  // "odbc" or unknown: the name goes to ODBC as given
    }
    origenes.mapear(nombre, o);
  }
  return origenes;
}

void OrigenesDatos::mapear(const QString& dsn, const OrigenDatos& origen) {
  mapa_.insert(dsn.toLower(), origen);
}

const OrigenDatos* OrigenesDatos::buscar(const QString& dsn) const {
  const auto it = mapa_.constFind(dsn.toLower());
  return it == mapa_.constEnd() ? nullptr : &it.value();
}

QMap<QString, QString> ParesDeCadena(const QString& cadena) {
  QMap<QString, QString> pares;
  qsizetype i = 0;
  while (i < cadena.size()) {
    const qsizetype igual = cadena.indexOf(u'=', i);
    const qsizetype puntoYComa = cadena.indexOf(u';', i);
    if (igual < 0)
      break;
    if (puntoYComa >= 0 && puntoYComa < igual) {  // a piece without '=' names nothing
      i = puntoYComa + 1;
      continue;
    }
    const QString clave = cadena.mid(i, igual - i).trimmed().toLower();
    qsizetype j = igual + 1;
    QString valor;
    if (j < cadena.size() && cadena.at(j) == u'{') {
      const qsizetype cierre = cadena.indexOf(u'}', j);
      valor = cadena.mid(j + 1, (cierre < 0 ? cadena.size() : cierre) - j - 1);
      j = cierre < 0 ? cadena.size() : cierre + 1;
      const qsizetype pc = cadena.indexOf(u';', j);
      j = pc < 0 ? cadena.size() : pc + 1;
    } else {
      const qsizetype pc = cadena.indexOf(u';', j);
      valor = cadena.mid(j, (pc < 0 ? cadena.size() : pc) - j);
      j = pc < 0 ? cadena.size() : pc + 1;
    }
    // As ODBC reads a connection string, the first value given for a key is the one used.
    if (!clave.isEmpty() && !pares.contains(clave))
      pares.insert(clave, valor);
    i = j;
  }
  return pares;
}
