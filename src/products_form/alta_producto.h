#pragma once

#include <QObject>
#include <QString>
#include <functional>

#include "grabacion_producto.h"
#include "pantallas.h"
#include "validacion_producto.h"

class Modos;
class Recordset;
class Visualizacion;
struct Entorno;
struct EstadoFormulario;

// What the numeric description's hint says when a new product is offered the next free number.
inline const QString kAvisoDescNumericaPropuesta =
    QStringLiteral("Se propone la siguiente descripción numérica libre; puede cambiarla.");

// Moves a recordset of products to the row whose code is the given one, starting from the
// first row. False, and the recordset at its first row, when no row has it.
bool MoverACodigo(Recordset& productos, const QString& codigo);

// Saving and deleting a simple product on the form: the position and numeric description
// offered to a new product, the hints beside the name and the numeric description, the accept
// with its checks in their order, and the delete with its question.
class AltaProducto : public QObject {
 public:
  AltaProducto(Entorno& entorno, EstadoFormulario& estado, ControlesFormulario& controles,
               Modos& modos, Visualizacion& visualizacion, QObject* padre = nullptr);

  // Wires "Aceptar" and "Eliminar" of the simple products' screen and the offer that "Nuevo"
  // makes to a new product. A hint goes away when touched, or when the manager types in the
  // box that it is about: it has been read, and it must not keep covering the screen.
  void conectar();

  // The screen position offered to a new product of a kind (1 simple, 2 elaborated), then its
  // numeric description. A product being modified keeps its own.
  void PonerOrden(int tipo);
  // Offers the next free numeric description in the kind's box and shows its hint.
  void mensajenumero(int tipo);
  // Shows that the name is taken, and gives the name back to the manager.
  void mensajenombre(int tipo);

  void cmd_aceptar();
  void cmd_eliminar();

  // What the simple products' screen holds, as the save and the checks read it.
  ProductoFormulario LeerProducto() const;
  CamposObligatorios LeerCamposObligatorios();

  // Set by the colour chooser: opens the colour choice of the product being edited. A shown
  // product cannot be saved without a colour, so the accept opens the choice for it.
  std::function<void()> mostrarColores;

 protected:
  bool eventFilter(QObject* objeto, QEvent* evento) override;

 private:
  bool comprobarCampos();
  void pedirColor();
  bool grabar();
  void mostrarGrabado();
  void recargarProductos();

  Entorno& entorno_;
  EstadoFormulario& estado_;
  ControlesFormulario& c_;
  Modos& modos_;
  Visualizacion& visualizacion_;
};
