#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

struct Entorno;
class QWidget;

// Counts the opening of a form by an employee in "entradas1": 1 with today's date
// ("dd/mm/yyyy") the first time, one more each later time up to 6; the date stays that of the
// first opening. A database failure is logged ("Utilidades  2") and the form goes on.
void RegistrarEntrada(Entorno& entorno, QWidget* formulario, qint32 empleado);
// Starts a program of the program's folder, with that folder as the current one. A program
// that cannot be started is logged ("SubirPrograma  48").
void SubirPrograma(Entorno& entorno, const QString& archivo);
// Closes every running instance of a program (".exe" ignored), one after another, while one
// runs; an instance that refuses to close is logged ("CerrarPrograma  1") and left running.
void CerrarPrograma(Entorno& entorno, const QString& nombreProceso);
// The installation's program type (opciones.tipo_programa); empty when there is no row, and on a
// database failure, which is logged ("Utilidades  3").
QString LeerTipoPrograma(Entorno& entorno);
// The length of the name of the first file that matches the path; 0 when none. As the system
// directory listing does: the name may hold the wildcards * and ?, letter case is ignored,
// folders are never a match, and a path that ends with a separator lists that folder, so the
// length of its first file name (in name order) is returned. '\' is taken as the separator. An
// empty path gives 0.
qint16 ExisteArchivo(const QString& ruta);

// ExisteArchivo for many paths: each folder is listed once, however many paths look in it
// (a panel's pictures all lie in one folder).
class BuscadorArchivos {
 public:
  qint16 existe(const QString& ruta);

 private:
  QHash<QString, QStringList> listados_;  // folder → its files, in name order
};
