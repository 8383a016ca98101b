#pragma once

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QList>
#include <QString>

// One statement of the program with sample values spliced in, and the text each engine must
// receive after the dialect rewrites (data/dialect-vectors.json).
struct VectorSentencia {
  QString id;
  QString texto;
  QString sqlite;
  QString sqliteOdbc;
  QString postgres;
};

// Reads the vectors; an unreadable or empty file gives an empty list.
inline QList<VectorSentencia> CargarVectores(const QString& ruta) {
  QFile f(ruta);
  if (!f.open(QIODevice::ReadOnly))
    return {};
  QList<VectorSentencia> vectores;
  const QJsonArray lista = QJsonDocument::fromJson(f.readAll()).array();
  for (const QJsonValue& v : lista) {
    const QJsonObject o = v.toObject();
    vectores.append({o.value(QStringLiteral("id")).toString(),
                     o.value(QStringLiteral("text")).toString(),
                     o.value(QStringLiteral("sqlite")).toString(),
                     o.value(QStringLiteral("sqlite_over_odbc")).toString(),
                     o.value(QStringLiteral("postgresql_citext")).toString()});
  }
  return vectores;
}
