#pragma once

#include <QObject>
#include <QString>
#include <functional>

#include "pantallas.h"
#include "receta.h"

class AltaProducto;
class Importes;
class ListasComponentes;
class Modos;
class Visualizacion;
struct Entorno;
struct EstadoFormulario;

// The elaborated products' page at work: each product shown with its recipe (from a line of
// lb_ProductosElaborados, or Page Down / Page Up); components chosen from lb_Productos (double
// touch, or one touch and the arrow) and given their quantity on the quantity panel; a new
// product whose fields appear as the manager reaches them; the checks and the save of the
// product with its recipe; its position on the till; and its deletion.
class Elaborados : public QObject {
 public:
  Elaborados(Entorno& entorno, EstadoFormulario& estado, ControlesFormulario& controles,
             Modos& modos, Visualizacion& visualizacion, Importes& importes,
             ListasComponentes& listas, AltaProducto& alta, QWidget* formulario);

  // Wires the page. Its keys are seen before the form's shortcuts once this has run.
  void conectar();

  // Shows the recipe of a product code in lb_ProductosSel.
  void CargarIngredientes(const QString& codigo);
  // A line of lb_ProductosElaborados touched: that product, its stock row and its recipe.
  void MostrarElaborado(const QString& codigo);
  // The candidate chosen: into the recipe, out of the candidates, and its quantity asked for.
  void ElegirComponente();
  // A line of the recipe touched again: its quantity asked for anew (Escape takes it out).
  void CambiarComponente();
  void cmd_NuevoProdEla();
  // Where a new product is prepared is chosen: its components can be chosen now.
  void AbrirComponentes();
  // True when the page may be saved; otherwise it tells what is missing and shows where.
  bool bComprobarCamposObligatoriosProdElab();
  void cmd_AceptarProdEl();
  void cmd_EliminarProdEla();
  void bt_antpelab();
  void bt_sigpelab();

  // What the page holds, as the save reads it.
  ElaboradoFormulario LeerElaborado() const;

  // Set by the colour chooser: opens the colour choice of the product being edited.
  std::function<void()> mostrarColores;

 protected:
  bool eventFilter(QObject* objeto, QEvent* evento) override;

 private:
  void limpiar();
  void ocultarNuevo();
  void restaurar();
  void nombreEscrito();
  void precioCambiado();
  void cubrirReceta(bool cubrir);
  void preguntarCantidad(const QString& linea);
  void completarComponente(double cantidad);
  void descartarComponente();
  void cerrarCantidad();
  void cmd_CancelarProdEl();
  void mostrarGrabado();
  void seleccionarEnLista();
  bool enNavegacion() const;

  Entorno& entorno_;
  EstadoFormulario& estado_;
  ControlesFormulario& c_;
  Modos& modos_;
  Visualizacion& visualizacion_;
  Importes& importes_;
  ListasComponentes& listas_;
  AltaProducto& alta_;
  QWidget* formulario_;
  // A new product's fields appear one after another while it is being created.
  bool creando_ = false;
  // The component waiting for its quantity, as a candidate line, and its row in the recipe.
  QString pendiente_;
  int filaPendiente_ = -1;
  // The list of elaborated products follows the product shown: that move shows nothing.
  bool seleccionando_ = false;
};
