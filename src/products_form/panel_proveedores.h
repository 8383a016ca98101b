#pragma once

#include <QObject>
#include <QStringList>

#include "pantallas.h"

class QListWidget;
class QListWidgetItem;
class Visualizacion;
struct Entorno;
struct EstadoFormulario;

// The suppliers panel of a simple product: it opens over the screen with the suppliers not yet
// assigned on one side and the product's suppliers on the other; a touch on a line moves it to
// the other list. Accepting writes the product's links at once, even for a product not saved
// yet, and brings the unit of measure, the next step of a new product.
class PanelProveedores : public QObject {
 public:
  PanelProveedores(Entorno& entorno, EstadoFormulario& estado, ControlesFormulario& controles,
                   Visualizacion& visualizacion, QObject* padre = nullptr);

  // Wires the supplier button, both lists and the panel's buttons, and fills the lists with
  // each product that the form shows.
  void conectar();

  void cmd_Proveedor();
  // Fills both lists for a product from the database.
  void CargarListasProveedores(qint64 codigo);
  void cmd_AceptarProveedor();
  void cmd_CancelarProveedor();
  // Replaces the current product's links with the assigned list; false when it failed (logged).
  bool GuardarProveedores();

  // The lines of the assigned list, the main supplier first.
  QStringList asignados() const;

 private:
  void mover(QListWidget* desde, QListWidgetItem* linea, QListWidget* hacia);
  void mostrarMedida();
  void cerrar();

  Entorno& entorno_;
  EstadoFormulario& estado_;
  ControlesFormulario& c_;
  Visualizacion& visualizacion_;
};
