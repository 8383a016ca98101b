#pragma once

#include "pantallas.h"

struct Entorno;
struct EstadoFormulario;
struct TablasPanel;
class QWidget;

// The load of the products form, step by step in its fixed order: the frames, the panels'
// size on a small screen, the colour scheme, the program type, the button flags and the count
// of this opening, the translation of the captions, the program type's exceptions, the
// adjustment to the screen, the printers and units, the employee's restrictions and the
// families panel. A step that fails is written to the error log with the context
// "frmProductos1024_Load", and the load goes on with the next.
void CargarFormulario(Entorno& entorno, EstadoFormulario& estado, ControlesFormulario& controles,
                      TablasPanel& tablas, QWidget* formulario);

// Adapts the screen to the program type: a fast-food installation of a restaurant's data names
// the special product "Producto Ropero"; a fast-food program hides it.
void ExcepcionesSegunPrograma(Entorno& entorno, PantallaGenerico& gen);

// Fills the printer list (names, and their codes in the hidden list at the same positions)
// and shows the printer buttons only with more than two printers.
void cargarimpresorasdisponibles(Entorno& entorno, EstadoFormulario& estado,
                                 ControlesFormulario& controles);

// Reloads both families panels from the live families.
void CargarPanelFamilias(Entorno& entorno, ControlesFormulario& controles, TablasPanel& tablas);
