#pragma once

#include "pantallas.h"

// Builds the start screen over the whole form: one large tile per choice (simple products,
// elaborated products, prices) with its caption label below, and the exit.
PantallaInicial CrearPantallaInicial(QWidget* formulario);
