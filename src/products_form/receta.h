#pragma once

#include <QString>
#include <QStringList>
#include <QtGlobal>
#include <optional>

class Conexion;
class Recordset;
struct Entorno;

// The recipe of an elaborated product and its save. A recipe is the rows of
// productoElaborado_producto whose productopadre is the product's code: one per component, with
// how many units of the elaborated product one unit of measure of the component yields. On the
// page each component is a line of lb_ProductosSel: its name, " (", the quantity, ") ", 120
// blanks and the component's code; a candidate line is the name, 120 blanks and the code.

inline const QString kContextoElaboradoNuevo = QStringLiteral("ProductosElaborados  1");
inline const QString kContextoModificarElaborado = QStringLiteral("ProductosElaborados  2");
inline const QString kContextoCargarIngredientes = QStringLiteral("ProductosElaborados  3");
inline const QString kContextoComponente = QStringLiteral("ProductosElaborados  4");
inline const QString kContextoMostrarElaborado = QStringLiteral("ProductosElaborados  5");

// How many trailing characters of a line of this page hold the code.
inline constexpr int kLargoCodigoReceta = 15;
// How many leading characters of a candidate line name the component in the question.
inline constexpr int kLargoNombrePregunta = 15;

// The recipe's statement for a product code.
QString SentenciaIngredientes(const QString& codigo);
// A component line of lb_ProductosSel.
QString LineaComponente(const QString& nombre, double cantidad, const QString& codigo);
// A quantity as the recipe lines write it: in the user's format, no grouping, no exponent.
QString TextoCantidad(double cantidad);
// The name of a component line: its text before the quantity.
QString NombreDeComponente(const QString& linea);
// The code of any line of this page: the numeric value of its last 15 characters.
qint64 CodigoDeLinea(const QString& linea);
// The candidate line chosen, completed with its quantity: its name (the first 120 characters
// without trailing blanks), the quantity, and its code.
QString CompletarLinea(const QString& pendiente, double cantidad);
// The question of the quantity panel. The component's name is the first 15 characters of its
// line, trimmed: a longer name is cut (the suite's programs have always asked so).
QString PreguntaCantidad(const QString& nombreElaborado, const QString& unidad,
                         const QString& lineaComponente);

// The component lines of a product's recipe, in the order the database gives them. Throws
// ErrorBD.
QStringList CargarIngredientes(Conexion& conexion, const QString& codigo);
// The unit of measure of a product, as stored; empty when it has none. Throws ErrorBD.
QString UnidadDeProducto(Conexion& conexion, qint64 codigo);

// Deletes the recipe rows of a product, one by one. Throws ErrorBD.
void borrarIngredientes(Conexion& conexion, qint64 codigo);
// Writes one recipe row per component line, first to last. Throws ErrorBD when a line cannot
// be read: a quantity that is no number (a name holding "(" puts its own text there) or a
// component code beyond a 16-bit integer, the width the suite's programs read it with.
void GuardarIngredientes(Conexion& conexion, qint64 codigo, const QStringList& lineas);
void AnadirIngrediente(Recordset& receta, qint64 codigo, const QString& linea);

// What the elaborated products' page holds when a product is saved, as the page shows it.
struct ElaboradoFormulario {
  qint64 codigo = 0;       // the product being modified (a new one gets its own code)
  QString nombre;          // txt_NombreElaborado
  QString descripcion;     // txt_DescElaborado
  QString coste;           // txt_costeElaborado; empty is 0
  QString iva;             // txt_ImpuestoElaborado; empty is 0
  QString precio;          // txt_PrecioElaborado; empty is 0
  QString foto;            // the chosen picture's file name; empty keeps the stored one
  QString color;           // the chosen colour's stored value; empty leaves no colour
  QString descNumerica;    // txtDescNumerica, by its numeric value
  QString posicion;        // lblpospelab, by its numeric value
  bool optCocina = false;  // optCocinaElab
  bool optBarra = false;   // optBarraElab
  QString impresora;       // the chosen printer code; empty or "0" is none
  QString familia;         // the family code carried by lblNomFamilia_elab; empty is none
  QStringList receta;      // the lines of lb_ProductosSel
};

// Saves a new elaborated product: its row, its stock row (stock 0) and its recipe, together in
// one transaction, under a code allocated now. The result is the code; on failure it is logged,
// nothing is written, and there is none.
std::optional<qint64> guardarproductoelaboradonuevo(Entorno& entorno,
                                                    const ElaboradoFormulario& producto);
// Rewrites the row of producto.codigo (margin 0, created today as every change has always
// done) and replaces its recipe, together; its stock row is left alone. On failure it is
// logged, the old rows stay, and the answer is false.
bool ModificarProductoElaborado(Entorno& entorno, const ElaboradoFormulario& producto);
