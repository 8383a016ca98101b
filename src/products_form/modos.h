#pragma once

#include <QObject>
#include <functional>

#include "pantallas.h"

struct Entorno;
struct EstadoFormulario;
class EventosCampos;
class Importes;
class Visualizacion;

// The two modes of each product screen and the buttons that move between them. Navigation
// mode shows products with the fields locked; change mode unlocks them for a new or a changed
// product. New, modify and cancel switch modes; the exits leave a screen or the program;
// MostrarPantalla switches between the start screen and the screens of each kind.
class Modos : public QObject {
 public:
  Modos(Entorno& entorno, EstadoFormulario& estado, ControlesFormulario& controles,
        Visualizacion& visualizacion, Importes& importes, EventosCampos& eventos,
        QWidget* formulario);

  void conectar();

  void modonavegacion();
  void ModoCambios();
  // Locks (true) or unlocks the form's fields: text boxes and lists of values become
  // read-only, check and option buttons and pictures are switched off. The current stock is
  // left as it is.
  void BloquearCampos(bool bloquear);
  void MostrarPantalla(int tipo);
  // The start screen's choice of a kind: its screen, its products and navigation mode.
  void ElegirTipo(int tipo);
  void OcultarNuevoGen();
  // Shows again what a new simple product hid until its steps reached it, so that the screen
  // shows a whole product once more: the unit, the kinds, the amounts and stock, where it is
  // prepared, and the till's button when the product is shown on the till.
  void RestaurarPantallaGenerico();
  bool bHayProveedores();

  void cmd_nuevo();
  void cmd_modificar();
  void cmd_cancelar();
  void cmd_salir();
  void cmd_Salir2();

  // Set by the features that fill them: reload the form's product lists (change mode starts
  // with it), propose the position and numeric description of a new product, and fill the
  // lists of the elaborated screen when it is chosen.
  std::function<void()> recargarListas;
  std::function<void()> PonerOrden;
  std::function<void()> cargarListasElaborados;

 private:
  void navegacionGenerico();
  void navegacionElaborados();
  void cambiosGenerico();
  void cambiosElaborados();
  void limpiarNuevoGenerico();

  Entorno& entorno_;
  EstadoFormulario& estado_;
  ControlesFormulario& c_;
  Visualizacion& visualizacion_;
  Importes& importes_;
  EventosCampos& eventos_;
  QWidget* formulario_;
  QObject* bloqueoListas_;
};
