#include "lector_filas.h"

#include <QSqlError>

#include "conexion.h"
#include "error_bd.h"
#include "recordset.h"

LectorFilas::LectorFilas(Conexion& conexion, const QString& sentencia)
    : filas_(conexion.consultar(sentencia)), campos_(filas_.record()) {}

bool LectorFilas::siguiente() {
  if (filas_.next())
    return true;
  if (filas_.lastError().isValid())
    throw ErrorBD(DescripcionError(filas_.lastError()));
  return false;
}

QVariant LectorFilas::field(const QString& nombre) const {
  auto hallado = indices_.constFind(nombre);
  if (hallado == indices_.cend())
    hallado = indices_.insert(nombre, IndiceCampo(campos_, nombre));
  return filas_.value(*hallado);
}
