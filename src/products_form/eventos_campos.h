#pragma once

#include <QObject>

#include "pantallas.h"

class FiltroTeclas;

// The field events of the simple-product screen that change what is shown: the unit of
// measure brings the product kinds, showing on the till brings the picture and colour, a
// special (entry or cloakroom) product is never shown on the till; and the numeric
// descriptions take digits only. The arrows beside the position move the product one place
// back or on among the till's buttons.
class EventosCampos : public QObject {
 public:
  explicit EventosCampos(ControlesFormulario& controles, QObject* padre = nullptr);

  void conectar(FiltroTeclas& filtro);

  // The controls of the till's button, shown or hidden as one group.
  void MostrarImagenColor();
  void ocultarImagenColor();

 protected:
  bool eventFilter(QObject* objeto, QEvent* evento) override;

 private:
  void cbo_MedidaClick(int indice);
  void ch_MostrarClick(bool marcado);
  void chkProdEspecialClick(bool marcado);
  void MoverPosicion(int paso);

  ControlesFormulario& c_;
};
