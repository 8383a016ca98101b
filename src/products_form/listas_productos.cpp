#include "listas_productos.h"

#include "entorno.h"
#include "error_bd.h"
#include "lector_filas.h"
#include "lineas_productos.h"
#include "recordset.h"

using namespace Qt::Literals::StringLiterals;

namespace {

std::optional<LineasProductos> LeerLineas(Entorno& entorno, const QString& sentencia,
                                          const QString& contexto) {
  try {
    LineasProductos lineas = LineasDeProductos(entorno, sentencia);
    if (lineas.isEmpty()) {
      entorno.dialogos->mensaje(kMensajeSinProductos, kTituloSinProductos,
                                ServicioDialogos::Icono::Informacion);
      return std::nullopt;
    }
    return lineas;
  } catch (const ErrorBD& e) {
    entorno.RegistrarError(contexto, e.descripcion());
    return std::nullopt;
  }
}

}  // namespace

LineasProductos LineasDeProductos(Entorno& entorno, const QString& sentencia) {
  // The rows are taken off the cursor one by one and only their name and code are kept: a list
  // of the catalogue is never held whole, every column of it, as a recordset would hold it.
  LectorFilas filas(*entorno.ConexionBD, sentencia);
  LineasProductos lineas;
  while (filas.siguiente())
    lineas.anadir(filas.field(u"nombre"_s).toString(), filas.field(u"codigo"_s).toString());
  return lineas;
}

QString LineaLista(const QString& nombre, const QString& codigo, int blancos) {
  return nombre + QString(blancos, u' ') + codigo;
}

QString CodigoDeLineaLista(const QString& linea) {
  return linea.right(kLargoCodigoLista).trimmed();
}

std::optional<LineasProductos> LeerListaProductos(Entorno& entorno) {
  return LeerLineas(entorno, u"Select * from productos where borrar = 0 order by nombre"_s,
                    kContextoListaProductos);
}

std::optional<LineasProductos> LeerListaProductosPorTipo(Entorno& entorno, const QString& tipo) {
  const QString sentencia =
      tipo == u"cocina"_s
          ? u"Select * from productos where borrar = 0 and tipoprod = 0 order by nombre"_s
          : u"Select * from productos where borrar = 0 and tipoprod > 0 order by nombre"_s;
  return LeerLineas(entorno, sentencia, kContextoListaPorTipo);
}
