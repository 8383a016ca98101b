#pragma once

#include <QList>
#include <QString>
#include <QStringList>

class Conexion;

// The links of a parent product to its sub-products ("subproductos"), which the till offers
// with the parent, read and replaced as plain functions.

inline const QString kTituloSubproductos = QStringLiteral("Añadir Sub-Productos");
inline const QString kMensajeSubproductosIncluidos =
    QStringLiteral("Ha terminado de incluir subproductos al producto ");
inline const QString kContextoCargarSubproductos = QStringLiteral("SubProductos  1");
inline const QString kContextoGrabarSubproductos = QStringLiteral("SubProductos  2");
inline const QString kContextoPanelSubproductos = QStringLiteral("SubProductos  3");

struct Subproducto {
  QString nombre;
  QString codigo;
};

QString SentenciaProductosHijos(qint32 padre);
QString SentenciaBorrarSubproductos(qint32 padre);
QString SentenciaInsertarSubproducto(qint32 padre, const QString& hijo);

// The parent's current sub-products, in the database's order. A link to a product that no
// longer exists has no code to show or to write back, and is left out. Database failures are
// left to the caller (ErrorBD).
QList<Subproducto> LeerProductosHijos(Conexion& conexion, qint32 padre);

// Replaces the parent's links by the given codes, in that order: the old links are deleted and
// one link inserted per code, all in one transaction, so that a failure leaves the old links
// as they were. Throws ErrorBD then.
void GrabarSubproductos(Conexion& conexion, qint32 padre, const QStringList& hijos);
