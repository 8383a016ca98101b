#include "receta.h"

#include <QDate>
#include <QLocale>
#include <cmath>
#include <limits>

#include "codigos_producto.h"
#include "conexion.h"
#include "entorno.h"
#include "error_bd.h"
#include "impresoras_producto.h"
#include "listas_productos.h"
#include "recordset.h"
#include "val.h"
#include "validacion_producto.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// An amount of the page as its column takes it: the empty text is 0, any other text that is no
// number fails the whole save.
double Importe(const QString& texto, const QString& columna) {
  if (texto.trimmed().isEmpty())
    return 0.0;
  const std::optional<double> valor = ValorNumerico(texto);
  if (!valor)
    throw ErrorBD(u"El valor «%1» no es válido para el campo %2"_s.arg(texto, columna));
  return *valor;
}

qint64 Entero(const QString& texto) {
  return static_cast<qint64>(std::llround(ValJet(texto)));
}

// The columns that a new and a changed elaborated product share, with the page's values.
void EscribirDatos(Recordset& rs, const ElaboradoFormulario& p) {
  rs.setField(u"Nombre"_s, p.nombre.isNull() ? u""_s : p.nombre);
  rs.setField(u"Descripcion"_s, p.descripcion.isNull() ? u""_s : p.descripcion);
  rs.setField(u"Coste"_s, Importe(p.coste, u"Coste"_s));
}

QVariant Color(const ElaboradoFormulario& p) {
  return p.color.isEmpty() ? QVariant() : QVariant(Entero(p.color));
}

QString Familia(const ElaboradoFormulario& p) {
  return p.familia.isEmpty() ? u"-1"_s : p.familia;
}

void EscribirZona(Recordset& rs, const ElaboradoFormulario& p) {
  if (const std::optional<int> hechoen = ValorHechoEn(p.optCocina, p.optBarra))
    rs.setField(u"hechoen"_s, *hechoen);
  rs.setField(u"impresora"_s, ValorImpresora(p.impresora));
}

// The column order is the one the suite's programs have always written.
void EscribirNuevo(Recordset& rs, qint64 codigo, const ElaboradoFormulario& p) {
  rs.setField(u"Codigo"_s, QString::number(codigo));
  EscribirDatos(rs, p);
  rs.setField(u"Precio"_s, Importe(p.precio, u"Precio"_s));
  rs.setField(u"IVA"_s, Importe(p.iva, u"IVA"_s));
  rs.setField(u"FechaAlta"_s, QDate::currentDate());
  if (!p.foto.isEmpty())
    rs.setField(u"Foto"_s, p.foto);
  rs.setField(u"Seccion"_s, u"-1"_s);
  rs.setField(u"Borrar"_s, 0);
  rs.setField(u"color"_s, Color(p));
  rs.setField(u"DescNumerica"_s, Entero(p.descNumerica));
  rs.setField(u"tipoprod"_s, 3);
  rs.setField(u"StockMinimo"_s, 0);
  rs.setField(u"Orden"_s, Entero(p.posicion));
  EscribirZona(rs, p);
  // The same column again, by another spelling: the family is what stays.
  rs.setField(u"seccion"_s, Familia(p));
}

void EscribirCambio(Recordset& rs, const ElaboradoFormulario& p) {
  rs.setField(u"Codigo"_s, QString::number(static_cast<qint32>(p.codigo)));
  EscribirDatos(rs, p);
  // The page has no margin.
  rs.setField(u"MargenComercial"_s, 0);
  rs.setField(u"Precio"_s, Importe(p.precio, u"Precio"_s));
  rs.setField(u"IVA"_s, Importe(p.iva, u"IVA"_s));
  rs.setField(u"FechaAlta"_s, QDate::currentDate());
  rs.setField(u"StockMinimo"_s, 0);
  if (!p.foto.isEmpty())
    rs.setField(u"Foto"_s, p.foto);
  rs.setField(u"Borrar"_s, 0);
  rs.setField(u"color"_s, Color(p));
  rs.setField(u"DescNumerica"_s, Entero(p.descNumerica));
  rs.setField(u"tipoprod"_s, 3);
  rs.setField(u"Orden"_s, Entero(p.posicion));
  EscribirZona(rs, p);
  rs.setField(u"seccion"_s, Familia(p));
}

void ReemplazarReceta(Conexion& conexion, qint64 codigo, const QStringList& lineas) {
  borrarIngredientes(conexion, codigo);
  GuardarIngredientes(conexion, codigo, lineas);
}

}  // namespace

QString SentenciaIngredientes(const QString& codigo) {
  return u"SELECT ProductoElaborado_Producto.ProductoHijo, "_s + u"       Productos.Nombre, "_s +
         u"       ProductoElaborado_Producto.Cantidad"_s +
         u"  from productos INNER JOIN ProductoElaborado_Producto ON Productos.Codigo = "
         "ProductoElaborado_Producto.ProductoHijo "_s +
         u" WHERE (((ProductoElaborado_Producto.ProductoPadre)= '"_s + codigo + u"'))"_s;
}

QString TextoCantidad(double cantidad) {
  QLocale l;
  l.setNumberOptions(QLocale::OmitGroupSeparator);
  return l.toString(cantidad, 'f', QLocale::FloatingPointShortest);
}

QString LineaComponente(const QString& nombre, double cantidad, const QString& codigo) {
  return LineaLista(nombre + u" ("_s + TextoCantidad(cantidad) + u") "_s, codigo);
}

qint64 CodigoDeLinea(const QString& linea) {
  return static_cast<qint64>(ValJet(linea.right(kLargoCodigoReceta)));
}

QString NombreDeComponente(const QString& linea) {
  QString nombre = linea.left(linea.size() - kLargoCodigoReceta);
  while (nombre.endsWith(u' '))
    nombre.chop(1);
  const qsizetype cantidad = nombre.lastIndexOf(u" ("_s);
  return cantidad < 0 ? nombre : nombre.left(cantidad);
}

QString CompletarLinea(const QString& pendiente, double cantidad) {
  QString nombre = pendiente.left(kBlancosLinea);
  while (nombre.endsWith(u' '))
    nombre.chop(1);
  QString codigo = pendiente.right(kLargoCodigoReceta);
  while (codigo.startsWith(u' '))
    codigo.remove(0, 1);
  return LineaComponente(nombre, cantidad, codigo);
}

QString PreguntaCantidad(const QString& nombreElaborado, const QString& unidad,
                         const QString& lineaComponente) {
  const QString componente = lineaComponente.left(kLargoNombrePregunta).trimmed();
  return u"¿Cuantos "_s + nombreElaborado + u" podria elaborar con un "_s + unidad + u" de "_s +
         componente + u"?"_s;
}

QStringList CargarIngredientes(Conexion& conexion, const QString& codigo) {
  Recordset rs(conexion, SentenciaIngredientes(codigo));
  QStringList lineas;
  while (!rs.eof()) {
    lineas.append(LineaComponente(rs.field(u"Nombre"_s).toString(),
                                  rs.field(u"Cantidad"_s).toDouble(),
                                  rs.field(u"ProductoHijo"_s).toString()));
    rs.moveNext();
  }
  rs.close();
  return lineas;
}

QString UnidadDeProducto(Conexion& conexion, qint64 codigo) {
  Recordset rs(conexion,
               u"Select * from productos where codigo = '"_s + QString::number(codigo) + u"'"_s);
  QString unidad;
  if (rs.recordCount() > 0 && !rs.isNull(u"UnidadMedida"_s))
    unidad = rs.field(u"UnidadMedida"_s).toString();
  rs.close();
  return unidad;
}

void borrarIngredientes(Conexion& conexion, qint64 codigo) {
  Recordset rs(conexion, u" select * from productoElaborado_producto where productopadre = '"_s +
                             QString::number(codigo) + u"'"_s);
  while (!rs.eof()) {
    rs.deleteRow();
    rs.moveNext();
  }
  rs.close();
}

void AnadirIngrediente(Recordset& receta, qint64 codigo, const QString& linea) {
  const qsizetype abre = linea.indexOf(u'(');
  const qsizetype cierra = abre < 0 ? -1 : linea.indexOf(u')', abre + 1);
  const QString texto = abre < 0 || cierra < 0 ? QString() : linea.mid(abre + 1, cierra - abre - 1);
  const std::optional<double> cantidad = ValorNumerico(texto);
  if (!cantidad)
    throw ErrorBD(
        u"No coinciden los tipos: la cantidad «%1» de «%2»"_s.arg(texto, linea.trimmed()));
  const qint64 hijo = CodigoDeLinea(linea);
  if (hijo > std::numeric_limits<qint16>::max() || hijo < std::numeric_limits<qint16>::min())
    throw ErrorBD(u"Desbordamiento: el código de componente %1"_s.arg(hijo));
  receta.addNew();
  receta.setField(u"productopadre"_s, QString::number(codigo));
  receta.setField(u"productohijo"_s, QString::number(hijo));
  receta.setField(u"cantidad"_s, *cantidad);
  receta.update();
}

void GuardarIngredientes(Conexion& conexion, qint64 codigo, const QStringList& lineas) {
  if (lineas.isEmpty())
    return;
  // Opened once for the whole recipe: it holds every recipe of the catalogue, and each line only
  // adds its row to it.
  Recordset receta(conexion, u"select * from productoElaborado_producto"_s);
  for (const QString& linea : lineas)
    AnadirIngrediente(receta, codigo, linea);
  receta.close();
}

std::optional<qint64> guardarproductoelaboradonuevo(Entorno& entorno,
                                                    const ElaboradoFormulario& producto) {
  Conexion& conexion = *entorno.ConexionBD;
  try {
    // Terminals creating products at once take their codes in turn, inside the save.
    TransaccionCodigos transaccion(conexion);
    const qint64 codigo = CodigoProductoNuevo(conexion);
    Recordset productos(conexion, u"select * from productos"_s);
    productos.addNew();
    EscribirNuevo(productos, codigo, producto);
    productos.update();
    productos.close();

    Recordset stock(conexion, u"select * from stock"_s);
    stock.addNew();
    stock.setField(u"Producto"_s, codigo);
    stock.setField(u"Stock"_s, u"0"_s);
    stock.update();
    stock.close();

    ReemplazarReceta(conexion, codigo, producto.receta);
    transaccion.confirmar();
    return codigo;
  } catch (const ErrorBD& e) {
    entorno.RegistrarError(kContextoElaboradoNuevo, e.descripcion());
    return std::nullopt;
  }
}

bool ModificarProductoElaborado(Entorno& entorno, const ElaboradoFormulario& producto) {
  Conexion& conexion = *entorno.ConexionBD;
  const QString codigo = QString::number(producto.codigo);
  try {
    Transaccion transaccion(conexion);
    Recordset productos(conexion, u"select * from productos where codigo = '"_s + codigo + u"'"_s);
    if (productos.recordCount() < 1)
      throw ErrorBD(u"No existe el producto "_s + codigo);
    EscribirCambio(productos, producto);
    productos.update();
    productos.close();
    ReemplazarReceta(conexion, producto.codigo, producto.receta);
    transaccion.confirmar();
    return true;
  } catch (const ErrorBD& e) {
    entorno.RegistrarError(kContextoModificarElaborado, e.descripcion());
    return false;
  }
}
