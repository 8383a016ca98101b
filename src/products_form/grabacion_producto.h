#pragma once

#include <QString>
#include <QStringList>
#include <QtGlobal>
#include <functional>
#include <optional>

class Conexion;
class ServicioDialogos;
struct Entorno;

inline const QString kContextoGrabarNuevo = QStringLiteral("Productos  7");
inline const QString kContextoModificar = QStringLiteral("Productos  8");
inline const QString kContextoEliminar = QStringLiteral("Productos  9");

inline const QString kPreguntaEliminar =
    QStringLiteral("¿Esta seguro de que desea eliminar este producto?");

// What the simple products' screen holds when a product is saved, as the form shows it.
struct ProductoFormulario {
  qint64 codigo = 0;             // the product being modified (a new one gets its own code)
  QString nombre;                // txt_nombre
  QString descripcion;           // txt_descripcion
  QString codigoBarras;          // txtCodBarras
  QString coste;                 // txt_coste
  QString margen;                // txt_margen; empty is 0
  QString precio;                // txt_precio; empty is 0
  QString iva;                   // txt_iva
  QString stockActual;           // txt_stock_actual; empty is 0 (the form shows "0" then)
  QString stockMinimo;           // txt_stock_minimo
  QString unidadMedida;          // cbo_Medida's text
  bool mostrarEnCaja = true;     // ch_Mostrar ticked
  bool optCocina = false;        // prepared in the kitchen
  bool optBarra = false;         // served at the bar
  bool chkProdEspecial = false;  // entry or cloakroom product
  bool optVenta = false;         // opt_Venta
  bool optAmbos = false;         // opt_ambos
  bool optCocinaBarra = false;   // opt_cocina: internal product
  QString color;                 // the chosen colour's stored value; empty leaves no colour
  QString foto;                  // the chosen picture's file name; empty keeps the stored one
  QString impresora;             // the selected printer code; empty or "0" is none
  QString descNumerica;          // txtDescNumericaPGen; empty or blanks is "1"
  QString posicion;              // lblPos
  QString familia;               // the family code carried by lblnomFamilia; empty is none
  QStringList proveedores;       // lines of lb_ProveedoresAsignados, the main supplier first
  std::optional<double> consumiciones;  // consumptions available; none is 0
};

// Allocates the code of a new product on a connection (CodigoProductoNuevo by default).
using AsignadorCodigo = std::function<qint64(Conexion&)>;

// Saves a new product: its row, its stock row and its supplier links in one transaction, under
// the code allocated inside it (TransaccionCodigos), so that terminals saving at once wait
// their turn and never clash. producto.codigo is the code offered when the product was started:
// links written under it for the unsaved product move to the code saved. The result is the code
// saved; on failure it is logged, nothing is written, and there is none.
std::optional<qint64> GrabarProductoNuevo(Entorno& entorno, const ProductoFormulario& producto,
                                          const AsignadorCodigo& asignar = {});

// Rewrites the product of producto.codigo, its stock row (added when missing) and its supplier
// links in one transaction. The date of creation is set to today, as every modification has
// always done. On failure it is logged, the old rows stay, and the answer is false.
bool modificarProducto(Entorno& entorno, const ProductoFormulario& producto);

// Asks the question of "Eliminar"; true on Yes.
bool PreguntarEliminar(ServicioDialogos& dialogos);
// Marks the product deleted and removes its stock row, together. Its supplier and sub-product
// links stay. On failure it is logged and nothing changes.
bool EliminarProducto(Entorno& entorno, qint64 codigo);
