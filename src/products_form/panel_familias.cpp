#include "panel_familias.h"

#include <QLabel>

#include "panel_obj_nuevo.h"
#include "visualizacion.h"
#include "zona_impresoras.h"

PanelFamilias::PanelFamilias(ControlesFormulario& controles, QObject* padre)
    : QObject(padre), c_(controles) {}

void PanelFamilias::conectar() {
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
