#pragma once

#include <QString>
#include <QtGlobal>
#include <optional>

#include "conexion.h"

struct Entorno;

inline const QString kContextoSiguienteCodigo = QStringLiteral("Productos  1");
inline const QString kContextoPonerOrden = QStringLiteral("Productos  2");
inline const QString kContextoMensajeNumero = QStringLiteral("Productos  3");
inline const QString kContextoExisteNombre = QStringLiteral("Productos  4");
inline const QString kContextoExisteDescNumerica = QStringLiteral("Productos  5");
inline const QString kContextoExisteCodBarras = QStringLiteral("Productos  6");

// The hints shown beside the name and the numeric description.
inline const QString kAvisoNombreExiste =
    QStringLiteral("La descripción corta ya existe, por favor introduzca otra.");
inline const QString kAvisoDescNumericaExiste =
    QStringLiteral("La descripción numérica ya existe, por favor introduzca otra.");
inline const QString kAvisoDescNumericaVacia =
    QStringLiteral("Es necesario que ingrese una descripción numérica.");

// The transaction in which a new product takes its code and is written: terminals doing the
// same wait their turn, so that the largest code read stays the largest until the product is
// saved under the next one. Allocate with CodigoProductoNuevo inside it.
class TransaccionCodigos : public Transaccion {
 public:
  explicit TransaccionCodigos(Conexion& conexion);
};

// Whether a product row, live or deleted, has the code. Throws ErrorBD.
bool ExisteProducto(Conexion& conexion, qint64 codigo);

// The code for a new product: one more than the largest numeric value of every code, deleted
// products included, so that a deleted product's code is never given again; 1 on an empty
// table. Throws ErrorBD.
qint64 CodigoProductoNuevo(Conexion& conexion);
// The same for the form: a failure is logged and gives nothing.
std::optional<qint64> SiguienteCodigo(Entorno& entorno);

// The screen position offered to a new product: "0" with no live product, else the largest
// position plus one. Nothing when the database failed (logged).
std::optional<QString> ValorPonerOrden(Entorno& entorno);
// The numeric description offered to a new product of a kind (1 simple, 2 elaborated): "1" with
// no live product shown on the till, else the largest plus one. Nothing on failure (logged).
std::optional<QString> ValorMensajeNumero(Entorno& entorno, int tipoProducto);

// Whether another live product bears the name. Throws ErrorBD when the statement cannot run:
// the name is written into it as typed, and a quote breaks it.
bool ExisteNombre(Conexion& conexion, const QString& nombre, qint64 codigo);
// The same for the form: a failure is logged and answers false.
bool bcomprobarSiExisteNombre(Entorno& entorno, const QString& nombre, qint64 codigo);

struct ComprobacionDescNumerica {
  bool existe = false;  // taken or missing: the save must not go on
  QString aviso;        // the hint's text when one is to be shown
};
// Whether the numeric description typed in the box is taken by another live product shown on
// the till with a family, or missing (below 1; an empty box counts as 0). Only a product being
// modified is tested: a new product's number was offered as free and is not looked at, even
// when typed over (kept so).
ComprobacionDescNumerica bcomprobarSiExisteDescNumerica(Entorno& entorno, const QString& numero,
                                                        qint64 codigo, bool modificando);

// Whether another product, live or deleted, bears the barcode. An empty barcode is no barcode
// and never clashes. A failure is logged and answers false.
bool existeCodBarras(Entorno& entorno, const QString& codigoBarras, qint64 codigo);
