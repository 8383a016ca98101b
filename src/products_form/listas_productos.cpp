#include "listas_productos.h"

#include "entorno.h"
#include "error_bd.h"
#include "lineas_productos.h"

using namespace Qt::Literals::StringLiterals;

namespace {

bool LeerLineas(Entorno& entorno, ModeloLineas& lista, const QString& sentencia,
                const QString& contexto) {
  try {
    const auto alFallar = [&entorno, contexto](const QString& fallo) {
      entorno.RegistrarError(contexto, fallo);
    };
    if (lista.leer(*entorno.ConexionBD, sentencia, alFallar, true))
      return true;
  } catch (const ErrorBD& e) {
    entorno.RegistrarError(contexto, e.descripcion());
    return false;
  }
  entorno.dialogos->mensaje(kMensajeSinProductos, kTituloSinProductos,
                            ServicioDialogos::Icono::Informacion);
  return false;
}

}  // namespace

QString LineaLista(const QString& nombre, const QString& codigo, int blancos) {
  return nombre + QString(blancos, u' ') + codigo;
}

QString CodigoDeLineaLista(const QString& linea) {
  return linea.right(kLargoCodigoLista).trimmed();
}

bool LeerListaProductos(Entorno& entorno, ModeloLineas& lista) {
  return LeerLineas(entorno, lista, u"Select * from productos where borrar = 0 order by nombre"_s,
                    kContextoListaProductos);
}

bool LeerListaProductosPorTipo(Entorno& entorno, ModeloLineas& lista, const QString& tipo) {
  const QString sentencia =
      tipo == u"cocina"_s
          ? u"Select * from productos where borrar = 0 and tipoprod = 0 order by nombre"_s
          : u"Select * from productos where borrar = 0 and tipoprod > 0 order by nombre"_s;
  return LeerLineas(entorno, lista, sentencia, kContextoListaPorTipo);
}
