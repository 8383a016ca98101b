#pragma once

#include <QString>

#include "grabacion_producto.h"
#include "listas_productos.h"

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
