#pragma once

#include <QObject>

#include "pantallas.h"

struct Entorno;
struct EstadoFormulario;
class Importes;

// The on-screen keyboard: each key types its character into the current field (the text box
// that last had the focus), by the rules that the keyboard has always had — the character is
// appended at the end whatever the caret, Backspace takes off the last character, an amount
// field passes the key through the amount filter and appends whatever that answers, and Enter
// only means something in the quantity of a component.
class Teclado : public QObject {
 public:
  Teclado(Entorno& entorno, EstadoFormulario& estado, ControlesFormulario& controles,
          Importes& importes, QObject* padre = nullptr);

  void conectar();
  // One key of the keyboard, by its character code (8 Backspace, 13 Enter).
  void pulsar(int tecla);

 private:
  Entorno& entorno_;
  EstadoFormulario& estado_;
  ControlesFormulario& c_;
  Importes& importes_;
};
