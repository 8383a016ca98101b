#include "codigos_producto.h"

#include <limits>
#include <optional>

#include "entorno.h"
#include "error_bd.h"
#include "lector_filas.h"
#include "recordset.h"
#include "val.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// A whole number read from a column, as the form adds one to it; one beyond 64 bits is refused.
qint64 Entero(const QVariant& valor, const QString& campo) {
  const std::optional<qint64> entero = ValEntero(valor.toString());
  if (!entero || *entero == std::numeric_limits<qint64>::max()) {
    throw ErrorBD(u"El valor «%1» no es válido para el campo %2"_s.arg(valor.toString(), campo));
  }
  return *entero;
}

bool HayFilas(Entorno& entorno, const QString& sentencia, const QString& contexto) {
  try {
    Recordset rs(*entorno.ConexionBD, sentencia);
    const bool hay = rs.recordCount() > 0;
    rs.close();
    return hay;
  } catch (const ErrorBD& e) {
    entorno.RegistrarError(contexto, e.descripcion());
    return false;
  }
}

}  // namespace

TransaccionCodigos::TransaccionCodigos(Conexion& conexion)
    : Transaccion(conexion, u"productos"_s) {}

bool ExisteProducto(Conexion& conexion, qint64 codigo) {
  Recordset rs(conexion, u"select codigo from productos where codigo = '"_s +
                             QString::number(codigo) + u"'"_s);
  return rs.recordCount() > 0;
}

qint64 CodigoProductoNuevo(Conexion& conexion) {
  // The last row is the one wanted: the rows before it are read past, not kept.
  LectorFilas filas(conexion, u"select codigo from productos order by val(codigo)"_s);
  std::optional<QVariant> ultimo;
  while (filas.siguiente())
    ultimo = filas.field(u"codigo"_s);
  return ultimo ? Entero(*ultimo, u"codigo"_s) + 1 : 1;
}

std::optional<qint64> SiguienteCodigo(Entorno& entorno) {
  try {
    return CodigoProductoNuevo(*entorno.ConexionBD);
  } catch (const ErrorBD& e) {
    entorno.RegistrarError(kContextoSiguienteCodigo, e.descripcion());
    return std::nullopt;
  }
}

std::optional<QString> ValorPonerOrden(Entorno& entorno) {
  try {
    LectorFilas filas(*entorno.ConexionBD,
                      u"Select orden from productos where borrar = 0 order by orden"_s);
    std::optional<QVariant> ultimo;
    while (filas.siguiente())
      ultimo = filas.field(u"orden"_s);
    return ultimo ? QString::number(Entero(*ultimo, u"orden"_s) + 1) : u"0"_s;
  } catch (const ErrorBD& e) {
    entorno.RegistrarError(kContextoPonerOrden, e.descripcion());
    return std::nullopt;
  }
}

std::optional<QString> ValorMensajeNumero(Entorno& entorno, int tipoProducto) {
  // The elaborated products' statement has always carried two blanks before "order".
  const QString sentencia =
      tipoProducto == 2
          ? u"Select descnumerica from productos where borrar = 0 and mostrarencaja = 0  order "
            "by descnumerica desc"_s
          : u"Select descnumerica from productos where borrar = 0 and mostrarencaja = 0 order by "
            "descnumerica desc"_s;
  try {
    // The first row is the one wanted: the others are not read.
    LectorFilas filas(*entorno.ConexionBD, sentencia);
    if (!filas.siguiente())
      return u"1"_s;
    return QString::number(Entero(filas.field(u"descnumerica"_s), u"descnumerica"_s) + 1);
  } catch (const ErrorBD& e) {
    entorno.RegistrarError(kContextoMensajeNumero, e.descripcion());
    return std::nullopt;
  }
}

bool ExisteNombre(Conexion& conexion, const QString& nombre, qint64 codigo) {
  Recordset rs(conexion, u"Select * from productos where nombre = '"_s + nombre +
                             u"' and codigo <> '"_s + QString::number(codigo) +
                             u"' and borrar = 0"_s);
  const bool hay = rs.recordCount() > 0;
  rs.close();
  return hay;
}

bool bcomprobarSiExisteNombre(Entorno& entorno, const QString& nombre, qint64 codigo) {
  try {
    return ExisteNombre(*entorno.ConexionBD, nombre, codigo);
  } catch (const ErrorBD& e) {
    entorno.RegistrarError(kContextoExisteNombre, e.descripcion());
    return false;
  }
}

ComprobacionDescNumerica bcomprobarSiExisteDescNumerica(Entorno& entorno, const QString& numero,
                                                        qint64 codigo, bool modificando) {
  if (!modificando)
    return {};
  const qint64 valor = ValEntero(numero).value_or(0);
  if (valor < 1)
    return {true, kAvisoDescNumericaVacia};
  const bool existe =
      HayFilas(entorno,
               u"Select * from productos where DescNumerica = "_s + QString::number(valor) +
                   u" and borrar =0 and codigo <> '"_s + QString::number(codigo) +
                   u"' and mostrarencaja = 0 and seccion <>'-1'"_s,
               kContextoExisteDescNumerica);
  return {existe, existe ? kAvisoDescNumericaExiste : QString()};
}

bool existeCodBarras(Entorno& entorno, const QString& codigoBarras, qint64 codigo) {
  if (codigoBarras.isEmpty())
    return false;
  return HayFilas(entorno,
                  u"Select * from productos where codigobarras = '"_s + codigoBarras +
                      u"' and codigo <> '"_s + QString::number(codigo) + u"'"_s,
                  kContextoExisteCodBarras);
}
