#include "busqueda_productos.h"

#include "entorno.h"
#include "error_bd.h"
#include "listas_productos.h"
#include "recordset.h"
#include "reglas_teclas.h"

using namespace Qt::Literals::StringLiterals;

bool EsModoProductos(const QString& modo) {
  return modo == kModoProductos || modo == kModoElaborados;
}

QString ConsultaBuscarProducto(const QString& modo, const CriteriosBusqueda& c) {
  QString condicion;
  if (!c.nombre.isEmpty())
    condicion += u" and Nombre like '"_s + c.nombre + u"%'"_s;
  if (!c.proveedor.isEmpty()) {
    condicion += u" and Proveedor in (select codigo from proveedores where nombre like '"_s +
                 c.proveedor + u"%')"_s;
  }
  if (!c.familia.isEmpty()) {
    condicion +=
        u" and seccion in (select codigo from seccion where nombre like '"_s + c.familia + u"%')"_s;
  }
  if (c.sinAsignar)
    condicion += u" and seccion = '-1'"_s;
  condicion += modo == kModoElaborados
                   ? u" and codigo in (select productopadre from productoelaborado_producto)"_s
                   : u" and codigo not in (select productopadre from productoelaborado_producto)"_s;
  return u"Select * from Productos "_s + u" where codigo <> null and borrar = 0"_s + condicion;
}

QStringList BuscarProducto(Entorno& entorno, const QString& modo,
                           const CriteriosBusqueda& criterios) {
  QStringList lineas;
  if (!EsModoProductos(modo))
    return lineas;
  try {
    Recordset rs(*entorno.ConexionBD, ConsultaBuscarProducto(modo, criterios));
    for (; !rs.eof(); rs.moveNext()) {
      lineas.append(LineaLista(rs.field(u"Nombre"_s).toString(), rs.field(u"codigo"_s).toString(),
                               kBlancosResultado));
    }
    rs.close();
  } catch (const ErrorBD& e) {
    entorno.RegistrarError(kContextoBuscarProducto, e.descripcion());
    lineas.clear();
  }
  return lineas;
}

bool EsCajaNumerica(const QString& nombreCaja) {
  static const QStringList kNumericas = {u"txtbusclie_0"_s, u"txtbusclie_4"_s, u"TxtBusEmp_4"_s,
                                         u"txtbusprov_4"_s};
  return kNumericas.contains(nombreCaja);
}

QString TextoTrasTecla(const QString& nombreCaja, const QString& texto, int tecla) {
  if (tecla == teclas::kRetroceso)
    return texto.chopped(qMin<qsizetype>(1, texto.size()));
  if (tecla == teclas::kEnter || (EsCajaNumerica(nombreCaja) && !EsDigito(tecla)))
    return texto;
  return texto + QChar(tecla);
}
