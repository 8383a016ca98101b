#pragma once

#include <QString>
#include <QStringList>

#include "lineas_productos.h"

struct Entorno;

// The list boxes of the products form carry each record's key inside the line: the name, a run
// of blanks that pushes the key out of sight, then the code. No separate key column is kept.
inline constexpr int kBlancosLinea = 120;
// How many trailing characters of a product line hold its code: a longer code cannot be read
// back whole, and that limit is kept.
inline constexpr int kLargoCodigoLista = 10;

inline const QString kContextoListaProductos = QStringLiteral("ListaProductos  1");
inline const QString kContextoListaPorTipo = QStringLiteral("ListaProductos  2");

inline const QString kMensajeSinProductos = QStringLiteral("No hay productos dados de alta.");
inline const QString kTituloSinProductos = QStringLiteral("ATENCION");

// A list line: the name, exactly 120 blanks (or as many as given) and the code.
QString LineaLista(const QString& nombre, const QString& codigo, int blancos = kBlancosLinea);
// The code of a product line: its last 10 characters without surrounding blanks.
QString CodigoDeLineaLista(const QString& linea);

// Fills the pop-up list with the lines of every live product, by name; false when there is no
// list to show: with no product the notice "No hay productos dados de alta." is shown, and a
// database failure is logged.
bool LeerListaProductos(Entorno& entorno, ModeloLineas& lista);
// The same for the products of one kind: "cocina" lists the kitchen and bar products of
// internal use (tipoprod = 0), any other word the products for sale (tipoprod > 0).
bool LeerListaProductosPorTipo(Entorno& entorno, ModeloLineas& lista, const QString& tipo);
