#pragma once

#include <QDate>
#include <QString>
#include <QVariantList>
#include <QtTest>

#include "grabacion_producto.h"
#include "listas_productos.h"

// Every column of a product row, in the order of the table.
inline const QString kColumnasProducto = QStringLiteral(
    "select codigo, nombre, descripcion, codigobarras, seccion, coste, MargenComercial, Precio, "
    "IVA, FechaAlta, Foto, color, proveedor, unidadMedida, StockMinimo, MostrarEnCaja, hechoen, "
    "tipoprod, DescNumerica, Orden, impresora, productoespecial, Borrar from productos ");

inline QString Hoy() {
  return QDate::currentDate().toString(Qt::ISODate);
}

// Checks a row written against the values expected, column by column: a text must be a text, a
// real and an integer are compared as numbers (each engine hands numbers back in types of its
// own), anything else as it is.
template <typename... Valores>
void CompararFila(const QVariantList& fila, const Valores&... valores) {
  const QVariantList esperado{QVariant(valores)...};
  QCOMPARE(fila.size(), esperado.size());
  for (qsizetype i = 0; i < fila.size(); ++i) {
    const QVariant &v = fila.at(i), &e = esperado.at(i);
    bool igual = v == e;
    if (e.typeId() == QMetaType::Int || e.typeId() == QMetaType::LongLong)
      igual = v.toLongLong() == e.toLongLong();
    else if (e.typeId() == QMetaType::QString)
      igual = v.typeId() == QMetaType::QString && v.toString() == e.toString();
    else if (e.typeId() == QMetaType::Double)
      igual = v.toDouble() == e.toDouble() || qFuzzyCompare(v.toDouble(), e.toDouble());
    QVERIFY2(
        igual,
        qPrintable(
            QStringLiteral("column %1: %2, expected %3").arg(i).arg(v.toString(), e.toString())));
  }
}

// A draught beer as the form hands it to the save: every field filled, amounts typed with the
// Spanish separator, two suppliers, the main one first.
inline ProductoFormulario Cana() {
  using namespace Qt::Literals::StringLiterals;
  ProductoFormulario p;
  p.nombre = u"Caña"_s;
  p.descripcion = u"Cerveza de barril"_s;
  p.codigoBarras = u"8410000000017"_s;
  p.coste = u"0,6"_s;
  p.margen = u"1"_s;
  p.precio = u"1,76"_s;
  p.iva = u"10"_s;
  p.stockActual = u"24"_s;
  p.stockMinimo = u"5"_s;
  p.unidadMedida = u"Unidades"_s;
  p.mostrarEnCaja = true;
  p.optBarra = true;
  p.optAmbos = true;
  p.color = u"255"_s;
  p.foto = u"cana.jpg"_s;
  p.impresora = u"2"_s;
  p.descNumerica = u"12"_s;
  p.posicion = u"3"_s;
  p.familia = u"7"_s;
  p.proveedores = {LineaLista(u"Mahou"_s, u"P01"_s),
                   LineaLista(u"Distribuciones Sur"_s, u"PRV123"_s)};
  return p;
}
