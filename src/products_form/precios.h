#pragma once

struct Entorno;

// Hands over to the suite's prices program: writes the hand-off file "ModoPrecio.txt" of the
// program's folder anew with the text "0" (prices mode, no line end), closes a prices program
// that is already running and starts "Tarvelo.exe" from the program's folder.
void Boton_SM1(Entorno& entorno);
