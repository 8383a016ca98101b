#pragma once

#include <QString>

class QWidget;

// With no display, the program shows what it would show by rendering its screens to PNG files:
// the start screen, each kind of product in navigation and in change mode, and the search and
// sub-products dialogs open over the form. Each step presses a button by its name, as a manager
// would, and saves the window.
// Returns the number of pictures written.
int GuardarCapturas(QWidget* formulario, const QString& carpeta);
