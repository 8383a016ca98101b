#pragma once

#include "pantallas.h"

// Builds the screen of simple products. The fields follow the steps of a new product from top
// to bottom on the left (name, suppliers, unit, kind, amounts, stock, where it is prepared);
// the right column holds what the till's button shows (family, picture, colour, number and
// position); the command buttons run along the bottom.
PantallaGenerico CrearPantallaGenerico(QWidget* formulario);
