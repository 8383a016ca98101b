#pragma once

#include <QString>

struct Entorno;
class QWidget;

// Counts the opening of a form by an employee in "entradas1" (up to 6).
void RegistrarEntrada(Entorno& entorno, QWidget* formulario, qint32 empleado);
// Starts a program of the program's folder.
void SubirPrograma(Entorno& entorno, const QString& archivo);
// Closes every running instance of a program (".exe" ignored).
void CerrarPrograma(Entorno& entorno, const QString& nombreProceso);
QString LeerTipoPrograma(Entorno& entorno);
// The length of the name of the first file that matches the path; 0 when none.
qint16 ExisteArchivo(const QString& ruta);
