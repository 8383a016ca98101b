#pragma once

#include <QList>
#include <QString>

struct Entorno;
class PanelObjNuevo;
class BuscadorArchivos;

// One button of a paged panel, as the loaders read it from a family or a product. Every field is
// text, in this order; a field the loader has nothing for stays empty.
struct EntradaPanel {
  QString descNumerica;  // the number typed on the till to call it, shown small on the button
  QString colorFondo;    // decimal suite colour of the button; "16777215" (white) when none
  QString imagen;        // full path of the picture, or "" when there is none or it is missing
  QString nombre;        // the caption
  QString colorMarca;    // "65280" for a family shown on the till, else empty (families only)
  QString codigo;        // key of the family or product

  bool operator==(const EntradaPanel&) const = default;
};

using TablaPanel = QList<EntradaPanel>;

// The tables that feed the panels while the program runs. The products form and the
// sub-products dialog share one instance, which the loaders fill and the panels read.
struct TablasPanel {
  TablaPanel familias;
  TablaPanel paginaA;  // products of a family (menu index 0) and of its first menu page (1)
  TablaPanel paginaB;  // second menu page (2)
  TablaPanel paginaC;  // third menu page (3)
};

// The statements of the loaders, exactly as they run.
QString SentenciaFamilias();
QString SentenciaProductosPanel(const QString& familia, qint16 menu);

// The picture path of an entry: the photo folder, the separator and the stored name, kept only
// when the file test finds it. An empty name tests the folder itself, so a folder holding any
// file gives the folder's path; that is how the till has always behaved.
QString RutaImagenPanel(const QString& carpetaFotos, const QString& archivo);
QString RutaImagenPanel(const QString& carpetaFotos, const QString& archivo,
                        BuscadorArchivos& buscador);

// Fills the families table with the live families of the panel (not menus), in panel order.
// Database failures are left to the caller (ErrorBD).
void CargarFamilias(Entorno& entorno, TablasPanel& tablas);

// Reads the products of a family (menu index 0) or of one menu page of it (1, 2, 3) and keeps
// them in the page table of that index: 0 and 1 share table A, 2 is table B, 3 table C. Any
// other index reads the products and keeps them nowhere. Database failures are left to the
// caller (ErrorBD).
void CargarProductosPanel(Entorno& entorno, TablasPanel& tablas, const QString& familia,
                          qint16 menu);

// Hands a table to a panel: reset, white default colour, the entries, drawn, then the colour
// option and no animation.
void LlenarPanel(PanelObjNuevo* panel, const TablaPanel& tabla, bool colores);
