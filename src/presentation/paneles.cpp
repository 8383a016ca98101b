#include "paneles.h"

#include <cmath>

#include <QDir>

#include "entorno.h"
#include "lector_filas.h"
#include "panel_obj_nuevo.h"
#include "utilidades.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QString kBlanco = u"16777215"_s;
const QString kVerdeMarca = u"65280"_s;

// A column value as the till reads it into a text field: null is empty, a whole number stored
// as a real loses its ".0".
QString TextoDe(const QVariant& valor) {
  if (valor.isNull())
    return {};
  if (valor.typeId() == QMetaType::Double || valor.typeId() == QMetaType::Float) {
    const double d = valor.toDouble();
    if (std::isfinite(d) && d == std::floor(d) && std::fabs(d) < 1e15)
      return QString::number(static_cast<qint64>(d));
  }
  return valor.toString();
}

// The back colour of an entry: white when the column is null, empty or 0.
QString ColorDeFila(const QVariant& color) {
  const QString texto = TextoDe(color);
  if (texto.isEmpty())
    return kBlanco;
  bool numero = false;
  const double valor = texto.toDouble(&numero);
  if (numero && valor == 0)
    return kBlanco;
  return texto;
}

bool EsCero(const QVariant& valor) {
  if (valor.isNull())
    return false;
  if (valor.typeId() == QMetaType::Bool)  // false is 0 to the till
    return !valor.toBool();
  bool numero = false;
  const double v = TextoDe(valor).toDouble(&numero);
  return numero && v == 0;
}

TablaPanel LeerTabla(Conexion& conexion, const QString& sentencia, const QString& carpetaFotos,
                     bool esFamilias) {
  // The rows are read one by one and only the fields that the panel shows are kept.
  LectorFilas rs(conexion, sentencia);
  TablaPanel tabla;
  const QString columnaImagen = esFamilias ? u"Imagen"_s : u"foto"_s;
  BuscadorArchivos fotos;
  while (rs.siguiente()) {
    EntradaPanel e;
    e.codigo = TextoDe(rs.field(u"codigo"_s));
    e.descNumerica = TextoDe(rs.field(u"descNumerica"_s));
    e.nombre = TextoDe(rs.field(u"nombre"_s));
    if (esFamilias && EsCero(rs.field(u"mostrarencaja"_s)))
      e.colorMarca = kVerdeMarca;
    e.colorFondo = ColorDeFila(rs.field(u"Color"_s));
    const QVariant imagen = rs.field(columnaImagen);
    // A product without a picture is not looked for at all; a family always is.
    if (esFamilias || !imagen.isNull())
      e.imagen = RutaImagenPanel(carpetaFotos, TextoDe(imagen), fotos);
    tabla.append(e);
  }
  return tabla;
}

}  // namespace

QString SentenciaFamilias() {
  return u"select * from seccion where borrar = 0 and (CODIGO IS NOT NULL and CODIGO <> '') "
         "and menu =0 "_s +
         u"order by orden"_s;
}

QString SentenciaProductosPanel(const QString& familia, qint16 menu) {
  QString sql;
  if (menu == 0) {
    sql = u"select * from productos where seccion = '"_s + familia +
          u"' and borrar = 0 and mostrarencaja = 0"_s;
  } else {
    sql = u"select productos.* from productos,menu_productos where menu_productos.seccion = '"_s +
          familia +
          u"' and menu_productos.producto = productos.codigo and menu_productos.orden = "_s +
          QString::number(menu) + u" and borrar = 0 and mostrarencaja = 0"_s;
  }
  return sql + u" order by productos.orden"_s;
}

QString RutaImagenPanel(const QString& carpetaFotos, const QString& archivo) {
  BuscadorArchivos buscador;
  return RutaImagenPanel(carpetaFotos, archivo, buscador);
}

QString RutaImagenPanel(const QString& carpetaFotos, const QString& archivo,
                        BuscadorArchivos& buscador) {
  const QString ruta = carpetaFotos + QDir::separator() + archivo;
  return buscador.existe(ruta) > 0 ? ruta : QString();
}

void CargarFamilias(Entorno& entorno, TablasPanel& tablas) {
  tablas.familias =
      LeerTabla(*entorno.ConexionBD, SentenciaFamilias(), entorno.sesion.rutaFotos, true);
}

void CargarProductosPanel(Entorno& entorno, TablasPanel& tablas, const QString& familia,
                          qint16 menu) {
  TablaPanel tabla = LeerTabla(*entorno.ConexionBD, SentenciaProductosPanel(familia, menu),
                               entorno.sesion.rutaFotos, false);
  switch (menu) {
    case 0:
    case 1:
      tablas.paginaA = std::move(tabla);
      break;
    case 2:
      tablas.paginaB = std::move(tabla);
      break;
    case 3:
      tablas.paginaC = std::move(tabla);
      break;
    default:
      break;
  }
}

void LlenarPanel(PanelObjNuevo* panel, const TablaPanel& tabla, bool colores) {
  panel->reiniciar();
  panel->set_color_defecto(16777215);
  panel->cargar_objetos(tabla);
  panel->dibujar();
  panel->set_usar_colores(colores);
  panel->set_animacion(0);
}
