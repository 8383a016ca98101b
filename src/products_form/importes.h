#pragma once

#include <QObject>
#include <QPointer>
#include <functional>

#include "pantallas.h"

struct Entorno;
struct EstadoFormulario;
class FiltroTeclas;
class QLineEdit;

// The amount fields of the form: the key rules of cost, tax, margin, price, quantity and
// minimum stock; the price worked out from cost, margin and tax, and the margin from the price;
// the fields of a new elaborated product shown one after another; the focus colour and the
// current field, into which the on-screen keyboard types; and OcultarImportes.
class Importes : public QObject {
 public:
  Importes(Entorno& entorno, EstadoFormulario& estado, ControlesFormulario& controles,
           QObject* padre = nullptr);

  // Puts the key rules on the fields and follows the focus of every text box of the form.
  void conectar(QWidget* formulario, FiltroTeclas& filtro);

  // The text box that last received the focus; null until one has.
  QLineEdit* campoActual() const { return campoActual_; }

  // Hides the amounts and the stock of a new simple product until its steps reach them.
  void OcultarImportes();

  // Enter in the quantity of a component: with a quantity above 0 the pending component takes
  // it (aceptarCantidad) and the field is emptied; otherwise nothing happens.
  void EnterCantidad();

  // Set by the recipes: complete the pending component with its quantity, or drop it.
  std::function<void(double cantidad)> aceptarCantidad;
  std::function<void()> descartarCantidad;

 protected:
  bool eventFilter(QObject* objeto, QEvent* evento) override;

 private:
  int reglaDecimal(QLineEdit* campo, int tecla);
  int reglaMargen(int tecla);
  int reglaCantidad(int tecla);
  int reglaStockMinimo(QLineEdit* campo, int tecla);
  void precioCambiado();
  void revelarElaborado();
  QString separador() const;
  int numDecimales() const;

  Entorno& entorno_;
  EstadoFormulario& estado_;
  PantallaGenerico& gen_;
  PantallaElaborados& elab_;
  MarcosAuxiliares& marcos_;
  QPointer<QLineEdit> campoActual_;
  QPointer<QLineEdit> enfocadoConRaton_;
};

// Clears the whole text of a field whose whole text is selected (as after it takes the focus),
// so that the key typed next replaces it.
void BorrarSiTodoSeleccionado(QLineEdit* campo);
