#pragma once

#include "pantallas.h"

// Builds the on-screen keyboard below the product screens: the letters (with Ñ and the space)
// on the left and a numeric pad with the regional decimal separator, Backspace and Enter on the
// right. The separator key types the separator of the locale in force when it is built.
TecladoPantalla CrearTeclado(QWidget* formulario, const QString& separadorDecimal);
