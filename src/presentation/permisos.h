#pragma once

#include <QString>

class Conexion;
class QWidget;

// Buttons that an employee may not use. The form's name is its objectName, its caption its
// windowTitle; buttons are found among the form's controls by objectName.
void AplicarRestricciones(Conexion& conexion, QWidget* formulario, qint32 empleado);
void GenerarAtributos(Conexion& conexion, QWidget* formulario);
bool ExisteAtributo(Conexion& conexion, const QString& formulario, const QString& boton);
qint32 SiguienteCodigoAtributo(Conexion& conexion);
