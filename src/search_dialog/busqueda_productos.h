#pragma once

#include <QString>
#include <QStringList>

struct Entorno;

// The product search of the search dialog, as plain functions: the query of the boxes, the
// result lines and the keys of its on-screen keyboard.

// The modes that search products: "Pr" simple products, "PrEl" elaborated products. Any other
// mode searches nothing.
inline const QString kModoProductos = QStringLiteral("Pr");
inline const QString kModoElaborados = QStringLiteral("PrEl");
bool EsModoProductos(const QString& modo);

// A result line: the name, exactly 130 blanks and the code, which the list keeps out of sight
// and hands back from the line's last 10 characters.
inline constexpr int kBlancosResultado = 130;

inline const QString kContextoBuscarProducto = QStringLiteral("Buscar  1");

// What the boxes hold: the starts of the supplier's, the family's and the product's names, and
// whether only the products without a family are wanted.
struct CriteriosBusqueda {
  QString proveedor{};
  QString familia{};
  QString nombre{};
  bool sinAsignar = false;
};

// The query of a search: every filled box adds its condition, typed text spliced as it stands;
// the mode picks the elaborated products ("PrEl") or the others. No ordering: the rows come in
// the database's order.
QString ConsultaBuscarProducto(const QString& modo, const CriteriosBusqueda& criterios);

// Runs the search of a product mode and returns its result lines; none for another mode. A
// query the database refuses (a quote in a box breaks it) is logged and gives no lines.
QStringList BuscarProducto(Entorno& entorno, const QString& modo,
                           const CriteriosBusqueda& criterios);

// The boxes of the dialog's other searches that take digits only, by control name.
bool EsCajaNumerica(const QString& nombreCaja);

// The text of a box after a key of the on-screen keyboard: Backspace takes off the last
// character, Enter types nothing, a numeric box takes digits only, any other box any key.
QString TextoTrasTecla(const QString& nombreCaja, const QString& texto, int tecla);
