#pragma once

#include "pantallas.h"

// Builds the screen of elaborated products: the product's data at the top left, the lists of
// elaborated products, candidate components and chosen components below them, the till's
// button on the right and the command buttons along the bottom.
PantallaElaborados CrearPantallaElaborados(QWidget* formulario);
