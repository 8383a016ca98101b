#include "subproductos.h"

#include "conexion.h"
#include "recordset.h"

using namespace Qt::Literals::StringLiterals;

QString SentenciaProductosHijos(qint32 padre) {
  return u"Select productos.nombre,productos.codigo from subproductos left join productos on "
         "subproductos.codproductohijo = productos.codigo where subproductos.codproductopadre = '"_s +
         QString::number(padre) + u"'"_s;
}

QString SentenciaBorrarSubproductos(qint32 padre) {
  return u"Delete * from subproductos where codproductopadre = '"_s + QString::number(padre) +
         u"'"_s;
}

QString SentenciaInsertarSubproducto(qint32 padre, const QString& hijo) {
  return u"Insert into subproductos (CodProductoPadre,CodProductoHijo) values ("_s +
         QString::number(padre) + u","_s + hijo + u")"_s;
}

QList<Subproducto> LeerProductosHijos(Conexion& conexion, qint32 padre) {
  QList<Subproducto> hijos;
  Recordset rs(conexion, SentenciaProductosHijos(padre));
  for (; !rs.eof(); rs.moveNext()) {
    if (rs.isNull(u"codigo"_s))
      continue;
    hijos.append({rs.field(u"nombre"_s).toString(), rs.field(u"codigo"_s).toString()});
  }
  rs.close();
  return hijos;
}

void GrabarSubproductos(Conexion& conexion, qint32 padre, const QStringList& hijos) {
  Transaccion transaccion(conexion);
  conexion.ejecutar(SentenciaBorrarSubproductos(padre));
  for (const QString& hijo : hijos)
    conexion.ejecutar(SentenciaInsertarSubproducto(padre, hijo));
  transaccion.confirmar();
}
