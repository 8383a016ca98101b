#include "grabacion_producto.h"

#include <QDate>
#include <cmath>

#include "codigos_producto.h"
#include "conexion.h"
#include "dialogos.h"
#include "entorno.h"
#include "error_bd.h"
#include "impresoras_producto.h"
#include "proveedores_producto.h"
#include "recordset.h"
#include "val.h"
#include "validacion_producto.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// A typed amount as the column takes it; a text that is no number fails the whole save.
double Numero(const QString& texto, const QString& columna) {
  const std::optional<double> valor = ValorNumerico(texto);
  if (!valor) {
    throw ErrorBD(u"El valor «%1» no es válido para el campo %2"_s.arg(texto, columna));
  }
  return *valor;
}

double NumeroOCero(const QString& texto, const QString& columna) {
  return texto.isEmpty() ? 0.0 : Numero(texto, columna);
}

// An empty box is written as the empty text, never as a missing value.
QString Texto(const QString& texto) {
  return texto.isNull() ? u""_s : texto;
}

qint64 Entero(double valor) {
  return static_cast<qint64>(std::llround(valor));
}

bool GuardaProductoEspecial(const QString& tipoPrograma) {
  return tipoPrograma == u"RESTAURANTE"_s || tipoPrograma == u"COPAS"_s;
}

// The columns of a product row, in the order the form has always written them.
void EscribirProducto(Recordset& rs, qint64 codigo, const ProductoFormulario& p,
                      const QString& tipoPrograma) {
  rs.setField(u"Codigo"_s, QString::number(codigo));
  rs.setField(u"Nombre"_s, Texto(p.nombre));
  rs.setField(u"Descripcion"_s, Texto(p.descripcion));
  rs.setField(u"codigobarras"_s, Texto(p.codigoBarras));
  rs.setField(u"Coste"_s, Numero(p.coste, u"Coste"_s));
  rs.setField(u"MargenComercial"_s, NumeroOCero(p.margen, u"MargenComercial"_s));
  rs.setField(u"Precio"_s, NumeroOCero(p.precio, u"Precio"_s));
  rs.setField(u"IVA"_s, Numero(p.iva, u"IVA"_s));
  rs.setField(u"FechaAlta"_s, QDate::currentDate());
  if (!p.foto.isEmpty())
    rs.setField(u"Foto"_s, p.foto);
  // The main supplier is the first assigned one; its line ends with the code.
  const QString primero = p.proveedores.isEmpty() ? QString() : p.proveedores.first();
  rs.setField(u"proveedor"_s, primero.right(kLargoCodigoProveedor).trimmed());
  rs.setField(u"Seccion"_s, u"-1"_s);
  rs.setField(u"Borrar"_s, 0);
  rs.setField(u"unidadMedida"_s, Texto(p.unidadMedida));
  rs.setField(u"StockMinimo"_s, Numero(p.stockMinimo, u"StockMinimo"_s));
  rs.setField(u"MostrarEnCaja"_s, p.mostrarEnCaja ? 0 : -1);
  if (const std::optional<int> hechoen = ValorHechoEn(p.optCocina, p.optBarra)) {
    rs.setField(u"hechoen"_s, *hechoen);
  }
  rs.setField(u"color"_s,
              p.color.isEmpty() ? QVariant() : QVariant(Entero(Numero(p.color, u"color"_s))));
  const QString desc = p.descNumerica.trimmed().isEmpty() ? u"1"_s : p.descNumerica;
  rs.setField(u"DescNumerica"_s, Entero(Numero(desc, u"DescNumerica"_s)));
  if (const std::optional<int> tipo = ValorTipoProd(p.optVenta, p.optAmbos, p.optCocinaBarra)) {
    rs.setField(u"tipoprod"_s, *tipo);
  }
  rs.setField(u"Orden"_s, Entero(ValJet(p.posicion)));
  rs.setField(u"impresora"_s, ValorImpresora(p.impresora));
  if (GuardaProductoEspecial(tipoPrograma)) {
    rs.setField(u"productoespecial"_s, p.chkProdEspecial ? -1 : 0);
  }
  // With no family chosen the product keeps "-1", the suite's "no family".
  if (!p.familia.isEmpty())
    rs.setField(u"seccion"_s, p.familia);
}

void EscribirStock(Recordset& rs, qint64 codigo, const ProductoFormulario& p) {
  rs.setField(u"Producto"_s, codigo);
  rs.setField(u"Stock"_s, NumeroOCero(p.stockActual, u"Stock"_s));
  rs.setField(u"StockMinimo"_s, Numero(p.stockMinimo, u"StockMinimo"_s));
  rs.setField(u"ConsumicionesDisponibles"_s, p.consumiciones.value_or(0.0));
}

void EscribirProductoNuevo(Conexion& conexion, qint64 codigo, const ProductoFormulario& p,
                           const QString& tipoPrograma) {
  Recordset productos(conexion, u"select * from productos"_s);
  productos.addNew();
  EscribirProducto(productos, codigo, p, tipoPrograma);
  productos.update();
  productos.close();

  Recordset stock(conexion, u"select * from stock"_s);
  stock.addNew();
  EscribirStock(stock, codigo, p);
  stock.update();
  stock.close();

  EscribirProveedores(conexion, codigo, p.proveedores);
}

}  // namespace

std::optional<qint64> GrabarProductoNuevo(Entorno& entorno, const ProductoFormulario& producto,
                                          const AsignadorCodigo& asignar) {
  Conexion& conexion = *entorno.ConexionBD;
  try {
    TransaccionCodigos transaccion(conexion);
    const qint64 codigo = asignar ? asignar(conexion) : CodigoProductoNuevo(conexion);
    EscribirProductoNuevo(conexion, codigo, producto, entorno.sesion.tipo_programa);
    // The links written under the code offered at "Nuevo" move with the product.
    if (producto.codigo > 0 && producto.codigo != codigo)
      BorrarProveedoresSinProducto(conexion, producto.codigo);
    transaccion.confirmar();
    return codigo;
  } catch (const ErrorBD& e) {
    entorno.RegistrarError(kContextoGrabarNuevo, e.descripcion());
    return std::nullopt;
  }
}

bool modificarProducto(Entorno& entorno, const ProductoFormulario& producto) {
  Conexion& conexion = *entorno.ConexionBD;
  const QString codigo = QString::number(producto.codigo);
  try {
    Transaccion transaccion(conexion);
    Recordset productos(conexion, u"select * from productos where codigo = '"_s + codigo + u"'"_s);
    if (productos.recordCount() < 1) {
      productos.close();
      entorno.RegistrarError(kContextoModificar, u"No existe el producto "_s + codigo);
      return false;
    }
    EscribirProducto(productos, producto.codigo, producto, entorno.sesion.tipo_programa);
    productos.update();
    productos.close();

    Recordset stock(conexion, u"select * from stock where producto = "_s + codigo);
    if (stock.recordCount() < 1)
      stock.addNew();
    EscribirStock(stock, producto.codigo, producto);
    stock.update();
    stock.close();

    EscribirProveedores(conexion, producto.codigo, producto.proveedores);
    transaccion.confirmar();
    return true;
  } catch (const ErrorBD& e) {
    entorno.RegistrarError(kContextoModificar, e.descripcion());
    return false;
  }
}

bool PreguntarEliminar(ServicioDialogos& dialogos) {
  return dialogos.mensaje(kPreguntaEliminar, TituloPrograma(), ServicioDialogos::Icono::Pregunta,
                          ServicioDialogos::Botones::SiNo) == ServicioDialogos::Respuesta::Si;
}

bool EliminarProducto(Entorno& entorno, qint64 codigo) {
  Conexion& conexion = *entorno.ConexionBD;
  const QString texto = QString::number(codigo);
  try {
    Transaccion transaccion(conexion);
    conexion.ejecutar(u"update productos set borrar = -1 where codigo = '"_s + texto + u"'"_s);
    conexion.ejecutar(u"delete from stock where producto = "_s + texto);
    transaccion.confirmar();
    return true;
  } catch (const ErrorBD& e) {
    entorno.RegistrarError(kContextoEliminar, e.descripcion());
    return false;
  }
}
