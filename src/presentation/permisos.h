#pragma once

#include <QString>

class Conexion;
class QWidget;

// Buttons that an employee may not use. The form's name is its objectName, its caption its
// windowTitle; buttons are found among the form's controls by objectName (letter case
// ignored, as the suite's control names are).

// Greys out the employee's restricted buttons of the form and hides their auxiliary controls.
// Every row that names a control is applied; a row that names no control of the form then
// throws ErrorBD naming it (the data are expected to match the form), so that the caller logs
// it without leaving any other restricted button usable.
void AplicarRestricciones(Conexion& conexion, QWidget* formulario, qint32 empleado);
// A button restricted for the employee stays off for the whole opening of the form: the form's
// modes switch their buttons on and off, but never switch on a restricted one.
bool EstaRestringido(const QWidget* control);
void Habilitar(QWidget* control, bool activo);
// Registers in "atributos" every captioned command button of the form that is not registered
// yet and is not always allowed, with consecutive codes in the order of the form's controls.
void GenerarAtributos(Conexion& conexion, QWidget* formulario);
// True when the pair must not be registered: it is already in "atributos", or the button is
// always allowed (help, exit and record navigation: its name contains, in any letter case,
// "cmd_ayuda", "cmdayuda", "cmdsalir", "cmd_salir", "cmdPrimero", "cmdAnterior",
// "cmdSiguiente" or "cmdUltimo").
bool ExisteAtributo(Conexion& conexion, const QString& formulario, const QString& boton);
bool SiemprePermitido(const QString& boton);
qint32 SiguienteCodigoAtributo(Conexion& conexion);
