#pragma once

#include <QList>
#include <QPoint>
#include <QRect>
#include <QSize>

struct Entorno;
class Colorear;
class PanelObjNuevo;
class QWidget;

// The height that a window manager's title bar may add above a dialog; a dialog is kept that
// much clear of the screen's bottom edge so that it is whole on screen with its title.
inline constexpr int kAltoTituloVentana = 32;

// Where a dialog opened from a form goes: over its caller, centred across it and level with its
// bottom, where the form's own keyboard lies (a dialog's keyboard then takes its place), then
// moved inside the screen's free area (title bar included) when it would stand out.
QPoint posicionar(const QRect& llamador, QSize dialogo, const QRect& pantalla);

// What a dialog of the products form runs at its load, as the form itself does: the colour
// scheme, the captions translated when the language is not the default, the adjustment that
// gathers its captions (the dialogs are drawn to fit the smallest screen, 800×600, so they are
// not rescaled) and its place over the caller on the caller's screen. A failing step is logged
// with the dialog's name and "_Load", and the load goes on. The dialog's paged button panels
// take the scheme's zoom colours with the rest.
void CargarDialogo(Entorno& entorno, QWidget* dialogo, const QWidget* llamador,
                   const QList<PanelObjNuevo*>& paneles = {});

// Paints the areas of paged button panels with the scheme's zoom colours, as the till's own
// panels are painted.
void ColorearPaneles(Colorear& colorear, const QList<PanelObjNuevo*>& paneles);
