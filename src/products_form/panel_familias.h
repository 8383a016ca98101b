#pragma once

#include <QObject>

#include "pantallas.h"

class PanelObjNuevo;
class QLabel;

// The family of the product being changed is chosen by touching it on the families panel of
// its screen: the family's name becomes the label's caption and its code goes with the label,
// for saving. Outside change mode a touch chooses nothing.
class PanelFamilias : public QObject {
 public:
  explicit PanelFamilias(ControlesFormulario& controles, QObject* padre = nullptr);

  void conectar();

  // A family touched on a panel, put on the label of its screen.
  void FamiliaTocada(PanelObjNuevo* panel, QLabel* etiqueta);

 private:
  ControlesFormulario& c_;
};
