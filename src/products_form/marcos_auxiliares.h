#pragma once

#include "pantallas.h"

// Builds the hint frames and choosers that open over the product screens, each already where
// it shows: the colour hint and frame, the supplier assignment, the printer chooser, the
// pop-up product list and the component quantity; and the printer line of the product on show.
// They are created before the screens, so that the screens cover them until they are shown.
MarcosAuxiliares CrearMarcosAuxiliares(QWidget* formulario);
