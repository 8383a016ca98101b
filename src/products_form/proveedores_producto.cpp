#include "proveedores_producto.h"

#include <cmath>
#include <limits>

#include "codigos_producto.h"
#include "conexion.h"
#include "dialogos.h"
#include "entorno.h"
#include "error_bd.h"
#include "listas_productos.h"
#include "recordset.h"
#include "val.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QString NombreProveedor(Conexion& conexion, const QString& codigo) {
  Recordset rs(conexion, u"Select * from proveedores where codigo = '"_s + codigo + u"'"_s);
  QString nombre;
  if (rs.recordCount() > 0)
    nombre = rs.field(u"nombre"_s).toString();
  rs.close();
  return nombre;
}

// The panel has always kept the main supplier's code as a small whole number, so "007" is
// compared as "7". A code that is not such a number is compared as it stands.
QString CodigoPrincipalComparado(const QString& codigo) {
  const QString t = codigo.trimmed();
  bool esNumero = !t.isEmpty();
  for (QChar c : t)
    esNumero = esNumero && c >= u'0' && c <= u'9';
  if (!esNumero)
    return t;
  const double valor = ValJet(t);
  if (valor > std::numeric_limits<qint16>::max())
    return t;
  return QString::number(static_cast<qint16>(valor));
}

void AnadirLineas(Conexion& conexion, const QString& sentencia, QStringList& lista) {
  Recordset rs(conexion, sentencia);
  if (rs.recordCount() > 0) {
    for (rs.moveFirst(); !rs.eof(); rs.moveNext()) {
      lista.append(
          LineaProveedor(rs.field(u"nombre"_s).toString(), rs.field(u"codigo"_s).toString()));
    }
  }
  rs.close();
}

}  // namespace

QString LineaProveedor(const QString& nombre, const QString& codigo) {
  return LineaLista(nombre, codigo);
}

QString CodigoDeLineaProveedor(const QString& linea) {
  return linea.right(kLargoCodigoProveedor).trimmed();
}

QString NombreDeLineaProveedor(const QString& linea) {
  const qsizetype blancos = linea.indexOf(u"   "_s);
  return blancos < 0 ? linea : linea.left(blancos);
}

bool bProveedorAsignado(const QStringList& asignados, const QString& codigo) {
  for (const QString& linea : asignados) {
    if (CodigoDeLineaProveedor(linea) == codigo)
      return true;
  }
  return false;
}

bool bHayProveedores(Entorno& entorno) {
  try {
    Recordset rs(*entorno.ConexionBD, u"Select * from proveedores where borrar = false"_s);
    const bool hay = rs.recordCount() > 0;
    rs.close();
    return hay;
  } catch (const ErrorBD& e) {
    entorno.RegistrarError(kContextoHayProveedores, e.descripcion());
    return false;
  }
}

void AvisarSinProveedores(ServicioDialogos& dialogos) {
  dialogos.mensaje(kMensajeSinProveedores, TituloPrograma(), ServicioDialogos::Icono::Informacion);
}

ListasProveedores CargarListasProveedores(Entorno& entorno, qint64 codigo) {
  ListasProveedores listas;
  Conexion& conexion = *entorno.ConexionBD;
  const QString producto = QString::number(codigo);
  try {
    AnadirLineas(conexion,
                 u"Select * from proveedores where codigo not in (Select proveedor from "
                 "productoproveedor where producto = '"_s +
                     producto + u"')"_s,
                 listas.libres);
    QString principal;
    {
      Recordset rs(conexion,
                   u"Select proveedor from productos where codigo = '"_s + producto + u"'"_s);
      if (rs.recordCount() > 0)
        principal = rs.field(u"proveedor"_s).toString().trimmed();
      rs.close();
    }
    if (!principal.isEmpty()) {
      listas.asignados.append(LineaProveedor(NombreProveedor(conexion, principal), principal));
    }
    AnadirLineas(conexion,
                 u"Select * from proveedores where codigo in (Select proveedor from "
                 "productoproveedor where producto = '"_s +
                     producto + u"') and codigo <> '"_s + CodigoPrincipalComparado(principal) +
                     u"'"_s,
                 listas.asignados);
  } catch (const ErrorBD& e) {
    entorno.RegistrarError(kContextoListasProveedores, e.descripcion());
  }
  return listas;
}

void EscribirProveedores(Conexion& conexion, qint64 codigo, const QStringList& asignados) {
  const QString producto = QString::number(codigo);
  conexion.ejecutar(u"Delete from productoproveedor where producto = '"_s + producto + u"'"_s);
  Recordset rs(conexion, u"Select * from productoproveedor"_s);
  for (const QString& linea : asignados) {
    rs.addNew();
    rs.setField(u"producto"_s, producto);
    rs.setField(u"proveedor"_s, CodigoDeLineaProveedor(linea));
    rs.setField(u"coste"_s, 0.0);
    rs.update();
  }
  rs.close();
}

bool GuardarProveedores(Entorno& entorno, qint64 codigo, const QStringList& asignados) {
  try {
    Transaccion transaccion(*entorno.ConexionBD);
    EscribirProveedores(*entorno.ConexionBD, codigo, asignados);
    transaccion.confirmar();
    return true;
  } catch (const ErrorBD& e) {
    entorno.RegistrarError(kContextoGuardarProveedores, e.descripcion());
    return false;
  }
}

std::optional<qint64> GuardarProveedoresProductoNuevo(Entorno& entorno, qint64 codigo,
                                                      const QStringList& asignados) {
  Conexion& conexion = *entorno.ConexionBD;
  try {
    TransaccionCodigos transaccion(conexion);
    if (ExisteProducto(conexion, codigo))
      codigo = CodigoProductoNuevo(conexion);
    EscribirProveedores(conexion, codigo, asignados);
    transaccion.confirmar();
    return codigo;
  } catch (const ErrorBD& e) {
    entorno.RegistrarError(kContextoGuardarProveedores, e.descripcion());
    return std::nullopt;
  }
}

void BorrarProveedoresSinProducto(Conexion& conexion, qint64 codigo) {
  conexion.ejecutar(u"Delete from productoproveedor where producto = '"_s +
                    QString::number(codigo) +
                    u"' and producto not in (Select codigo from productos)"_s);
}

void BorrarProveedoresSinProducto(Entorno& entorno, qint64 codigo) {
  try {
    BorrarProveedoresSinProducto(*entorno.ConexionBD, codigo);
  } catch (const ErrorBD& e) {
    entorno.RegistrarError(kContextoProveedoresSinProducto, e.descripcion());
  }
}

QString CaptionTrasAceptarProveedores(const QStringList& asignados, const QString& captionActual) {
  if (asignados.isEmpty())
    return captionActual;
  return NombreDeLineaProveedor(asignados.last());
}
