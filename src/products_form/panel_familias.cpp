#include "panel_familias.h"

#include <QLabel>

#include "panel_obj_nuevo.h"
#include "visualizacion.h"
#include "zona_impresoras.h"

namespace {

constexpr float kAnchoBoton = 94;
constexpr float kAltoBoton = 64;
constexpr float kAltoPaginas = 52;

}  // namespace

PanelFamilias::PanelFamilias(ControlesFormulario& controles, QObject* padre)
    : QObject(padre), c_(controles) {}

void PanelFamilias::conectar() {
  // Three families by two on each page of the screen's column, each still a fingertip's size:
  // a manager reaches any family of a bar's usual dozen in one page turn.
  for (PanelObjNuevo* panel : {c_.gen.PanelFamilias, c_.elab.PanelFamilias_Elab}) {
    panel->set_ancho_boton(kAnchoBoton);
    panel->set_alto_boton(kAltoBoton);
    panel->set_alto_secundario(kAltoPaginas);
  }
  connect(c_.gen.PanelFamilias, &PanelObjNuevo::tocado, this,
          [this] { FamiliaTocada(c_.gen.PanelFamilias, c_.gen.lblnomFamilia); });
  connect(c_.elab.PanelFamilias_Elab, &PanelObjNuevo::tocado, this,
          [this] { FamiliaTocada(c_.elab.PanelFamilias_Elab, c_.elab.lblNomFamilia_elab); });
}

void PanelFamilias::FamiliaTocada(PanelObjNuevo* panel, QLabel* etiqueta) {
  if (!EstaModificando(c_))
    return;
  PonerFamilia(etiqueta, panel->nombre_seleccionado(), panel->codigo_seleccionado());
}
