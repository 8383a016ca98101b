#include "listas_productos.h"

#include "entorno.h"
#include "error_bd.h"
#include "recordset.h"

using namespace Qt::Literals::StringLiterals;

namespace {

std::optional<QStringList> LeerLineas(Entorno& entorno, const QString& sentencia,
                                      const QString& contexto) {
  try {
    Recordset rs(*entorno.ConexionBD, sentencia);
    if (rs.recordCount() < 1) {
      rs.close();
      entorno.dialogos->mensaje(kMensajeSinProductos, kTituloSinProductos,
                                ServicioDialogos::Icono::Informacion);
      return std::nullopt;
    }
    QStringList lineas;
    for (rs.moveFirst(); !rs.eof(); rs.moveNext()) {
      lineas.append(LineaLista(rs.field(u"nombre"_s).toString(), rs.field(u"codigo"_s).toString()));
    }
    rs.close();
    return lineas;
  } catch (const ErrorBD& e) {
    entorno.RegistrarError(contexto, e.descripcion());
    return std::nullopt;
  }
}

}  // namespace

QString LineaLista(const QString& nombre, const QString& codigo, int blancos) {
  return nombre + QString(blancos, u' ') + codigo;
}

QString CodigoDeLineaLista(const QString& linea) {
  return linea.right(kLargoCodigoLista).trimmed();
}

std::optional<QStringList> LeerListaProductos(Entorno& entorno) {
  return LeerLineas(entorno, u"Select * from productos where borrar = 0 order by nombre"_s,
                    kContextoListaProductos);
}

std::optional<QStringList> LeerListaProductosPorTipo(Entorno& entorno, const QString& tipo) {
  const QString sentencia =
      tipo == u"cocina"_s
          ? u"Select * from productos where borrar = 0 and tipoprod = 0 order by nombre"_s
          : u"Select * from productos where borrar = 0 and tipoprod > 0 order by nombre"_s;
  return LeerLineas(entorno, sentencia, kContextoListaPorTipo);
}
