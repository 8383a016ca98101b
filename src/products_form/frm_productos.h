#pragma once

#include <QWidget>
#include <memory>

#include "estado_formulario.h"
#include "pantallas.h"

struct Entorno;
struct TablasPanel;
class EventosCampos;
class FiltroTeclas;
class Importes;
class Modos;
class Teclado;
class Visualizacion;

// The products maintenance form "frmProductos1024": the start screen, the screens of simple
// and elaborated products, the panels that open over them and the on-screen keyboard. The form
// owns its controls and its features and wires them together; each feature keeps its own
// behaviour (modes, display, amounts, keyboard, load, prices). It loads as it is built.
class FrmProductos1024 : public QWidget {
 public:
  FrmProductos1024(Entorno& entorno, TablasPanel& tablas, QWidget* padre = nullptr);
  ~FrmProductos1024() override;

  // The search dialog hands back the chosen product's code; "-1" means that none was chosen.
  void ProductoBuscado(const QString& codigo);

  // For the features that are wired on top of the form.
  ControlesFormulario& controles() { return controles_; }
  EstadoFormulario& estado() { return estado_; }
  Entorno& entorno() { return entorno_; }
  TablasPanel& tablas() { return tablas_; }
  FiltroTeclas& filtroTeclas() { return *filtro_; }
  Visualizacion& visualizacion() { return *visualizacion_; }
  Importes& importes() { return *importes_; }
  Modos& modos() { return *modos_; }
  EventosCampos& eventos() { return *eventos_; }
  Teclado& teclado() { return *teclado_; }

 private:
  void construir();
  void conectar();
  // The search dialog behind cmd_buscar and the sub-products dialog behind Command1 and Command4.
  void conectarDialogos();

  Entorno& entorno_;
  TablasPanel& tablas_;
  ControlesFormulario controles_;
  EstadoFormulario estado_;
  FiltroTeclas* filtro_ = nullptr;
  std::unique_ptr<Visualizacion> visualizacion_;
  Importes* importes_ = nullptr;
  EventosCampos* eventos_ = nullptr;
  Modos* modos_ = nullptr;
  Teclado* teclado_ = nullptr;
};
