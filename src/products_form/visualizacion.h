#pragma once

#include <QString>
#include <functional>

#include "pantallas.h"

class Conexion;
class Recordset;
struct Entorno;
struct EstadoFormulario;
class QLabel;

// The look-ups of the record display. Each answers the empty text when nothing is found;
// database failures are left to the caller (ErrorBD).
QString obtenerNomFamiliaxCodigo(Conexion& conexion, const QString& codigo);
QString ObtenerNomImpresora(Conexion& conexion, qint16 codigo);
QString ObtenerNombreProveedor(Conexion& conexion, const QString& codigo);

// The printer line of a product: where its orders come out, or that its printer is gone.
QString LineaImpresora(const QString& nombreProducto, const QString& nombreImpresora);
QString LineaImpresoraEliminada(const QString& nombreProducto);

// A file of the photos folder, whichever separator the folder was written with.
QString RutaFoto(const QString& carpetaFotos, const QString& archivo);
// Shows a picture file in a picture box, or the folder's "defecto.gif" when the file cannot be
// shown (no name, missing or unreadable). The file shown is kept in the box's property
// "archivo" (empty when not even the default picture could be shown).
void MostrarImagen(QLabel* imagen, const QString& carpetaFotos, const QString& archivo);
// Paints a colour box with a suite colour value; an empty value paints the default white.
void MostrarColor(QLabel* caja, const QString& valor);

// Forgets the picture, colour and printer chosen for the product being edited, and empties the
// picture box, the colour box and the printer line.
void OlvidarElecciones(EstadoFormulario& estado, QLabel* imagen, QLabel* color,
                       QLabel* lineaImpresora);

// The family chosen for a product: its name is the label's caption and its code is carried
// with the label (property "codigo"; "-1" when there is none).
void PonerFamilia(QLabel* etiqueta, const QString& nombre, const QString& codigo);
QString CodigoFamilia(const QLabel* etiqueta);

// Shows products in the fields of the form and walks the form's product recordset: first,
// previous, next and last, and a product handed back by the search.
class Visualizacion {
 public:
  Visualizacion(Entorno& entorno, EstadoFormulario& estado, ControlesFormulario& controles);

  // Opens the form's product recordset for a kind: the simple products by name, or the
  // elaborated ones.
  void AbrirProductos(int tipo);

  // Fills the fields of a kind's screen from a product row and its stock row, in the order
  // that the fields have always been filled (a field's change may depend on the ones before).
  void MostrarProducto(const Recordset& producto, const Recordset& stock, int tipo);

  // Shows the current row of the form's recordset with its stock row.
  void MostrarActual();
  // The arrows: 0 first, 1 previous, 2 next, 3 last. Nothing happens without products.
  void bt_botones(int indice);
  // The product that the search hands back by its code; "-1" means that none was chosen.
  void MostrarCodigo(const QString& codigo);

  // Set by the features that show more of a product: its suppliers (simple products) and its
  // recipe (elaborated ones). Given the product's code.
  std::function<void(const QString& codigo)> cargarProveedores;
  std::function<void(const QString& codigo)> cargarIngredientes;

 private:
  void mostrarGenerico(const Recordset& producto, const Recordset& stock);
  void mostrarElaborado(const Recordset& producto);
  void mostrarConStock(const Recordset& producto, int tipo);
  QString lineaImpresora(const QString& nombre, const QString& impresora);

  Entorno& entorno_;
  EstadoFormulario& estado_;
  PantallaGenerico& gen_;
  PantallaElaborados& elab_;
  MarcosAuxiliares& marcos_;
};

// How a stored number reads in a field: in the locale's format, with no more decimals than it
// has and no grouping; the empty text for a null.
QString TextoDeValor(const QVariant& valor);
