#include "visualizacion.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateTime>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPixmap>
#include <QPixmapCache>
#include <QPushButton>
#include <QRadioButton>

#include "color_vb.h"
#include "colorear.h"
#include "conexion.h"
#include "disenio.h"
#include "entorno.h"
#include "error_bd.h"
#include "estado_formulario.h"
#include "lector_filas.h"
#include "recordset.h"
#include "val.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint64 kBlanco = 16777215;

QString PrimerCampo(Conexion& conexion, const QString& sentencia, const QString& campo) {
  LectorFilas filas(conexion, sentencia);
  return filas.siguiente() ? filas.field(campo).toString() : QString();
}

// A picture scaled to fit a box. Walking the catalogue shows the same few pictures again and
// again: each is decoded and scaled once and then taken from Qt's pixmap cache, under a key that
// holds the file's time and size, so that a picture changed on disk is read again.
bool CargarEscalada(const QString& ruta, const QSize& caja, QPixmap& dibujo) {
  const QFileInfo archivo(ruta);
  if (!archivo.isFile())
    return false;
  const QString clave = u"foto|%1|%2|%3|%4x%5"_s.arg(ruta)
                            .arg(archivo.lastModified().toMSecsSinceEpoch())
                            .arg(archivo.size())
                            .arg(caja.width())
                            .arg(caja.height());
  if (QPixmapCache::find(clave, &dibujo))
    return true;
  QPixmap original;
  if (!original.load(ruta))
    return false;
  dibujo = original.scaled(caja, Qt::KeepAspectRatio, Qt::SmoothTransformation);
  QPixmapCache::insert(clave, dibujo);
  return true;
}

void MarcarSegun(const QVariant& valor, const QList<std::pair<int, QRadioButton*>>& opciones) {
  for (const auto& opcion : opciones)
    DesmarcarOpcion(opcion.second);
  if (valor.isNull())
    return;
  const int n = valor.toInt();
  for (const auto& [clave, opcion] : opciones) {
    if (clave == n)
      opcion->setChecked(true);
  }
}

}  // namespace

QString obtenerNomFamiliaxCodigo(Conexion& conexion, const QString& codigo) {
  return PrimerCampo(conexion, u"Select nombre from seccion where codigo = '"_s + codigo + u"'"_s,
                     u"nombre"_s);
}

QString ObtenerNomImpresora(Conexion& conexion, qint16 codigo) {
  return PrimerCampo(conexion,
                     u"Select nombre from impresoras where codigo = "_s + QString::number(codigo),
                     u"nombre"_s);
}

QString ObtenerNombreProveedor(Conexion& conexion, const QString& codigo) {
  return PrimerCampo(conexion, u"Select * from proveedores where codigo = '"_s + codigo + u"'"_s,
                     u"nombre"_s);
}

QString LineaImpresora(const QString& nombreProducto, const QString& nombreImpresora) {
  return u"Producto = "_s + nombreProducto + u" = su elaboracion saldra X la impresora de "_s +
         nombreImpresora;
}

QString LineaImpresoraEliminada(const QString& nombreProducto) {
  return u"Producto = "_s + nombreProducto + u" = La impresora utilizada ha sido eliminada"_s;
}

QString RutaFoto(const QString& carpetaFotos, const QString& archivo) {
  QString carpeta = carpetaFotos;
  carpeta.replace(u'\\', u'/');
  if (!carpeta.isEmpty() && !carpeta.endsWith(u'/'))
    carpeta += u'/';
  return carpeta + archivo;
}

void MostrarImagen(QLabel* imagen, const QString& carpetaFotos, const QString& archivo) {
  QPixmap dibujo;
  const QSize caja = imagen->contentsRect().size();
  QString ruta = RutaFoto(carpetaFotos, archivo);
  bool cargada = !archivo.trimmed().isEmpty() && CargarEscalada(ruta, caja, dibujo);
  if (!cargada) {
    ruta = RutaFoto(carpetaFotos, u"defecto.gif"_s);
    cargada = CargarEscalada(ruta, caja, dibujo);
  }
  if (cargada) {
    imagen->setPixmap(dibujo);
  } else {
    imagen->clear();
  }
  imagen->setProperty("archivo", cargada ? ruta : QString());
}

void MostrarColor(QLabel* caja, const QString& valor) {
  QColor color = ColorDesdeTexto(valor);
  if (!color.isValid())
    color = ColorDesdeValor(kBlanco);
  PonerColorFondo(caja, color);
  caja->setProperty("color", valor);
}

void OlvidarElecciones(EstadoFormulario& estado, QLabel* imagen, QLabel* color,
                       QLabel* lineaImpresora) {
  estado.fotoElegida.clear();
  estado.colorElegido.clear();
  estado.impresoraElegida.clear();
  imagen->clear();
  imagen->setProperty("archivo", QString());
  MostrarColor(color, QString());
  lineaImpresora->clear();
}

void PonerFamilia(QLabel* etiqueta, const QString& nombre, const QString& codigo) {
  etiqueta->setText(nombre);
  etiqueta->setProperty("codigo", codigo);
}

QString CodigoFamilia(const QLabel* etiqueta) {
  return etiqueta->property("codigo").toString();
}

QString TextoDeValor(const QVariant& valor) {
  if (valor.isNull())
    return {};
  switch (valor.typeId()) {
    case QMetaType::Double:
    case QMetaType::Float: {
      QLocale l;
      l.setNumberOptions(QLocale::OmitGroupSeparator);
      return l.toString(valor.toDouble(), 'f', QLocale::FloatingPointShortest);
    }
    default:
      return valor.toString();
  }
}

Visualizacion::Visualizacion(Entorno& entorno, EstadoFormulario& estado,
                             ControlesFormulario& controles)
    : entorno_(entorno),
      estado_(estado),
      gen_(controles.gen),
      elab_(controles.elab),
      marcos_(controles.marcos) {}

void Visualizacion::AbrirProductos(int tipo) {
  const QString sentencia =
      tipo == 2 ? u"select * from productos where borrar = 0 AND codigo in (select productopadre "
                  "from productoElaborado_producto)"_s
                : u"select * from productos where borrar = 0 and codigo not in (select "
                  "productopadre from productoelaborado_producto) order by nombre"_s;
  estado_.productos.reset();
  estado_.productos = std::make_unique<Recordset>(*entorno_.ConexionBD, sentencia);
}

QString Visualizacion::lineaImpresora(const QString& nombre, const QString& impresora) {
  if (impresora.isEmpty() || impresora == u"0"_s)
    return {};
  // Printer codes are 16-bit; one beyond names no printer that can be looked up.
  const qint64 codigo = ValEntero(impresora).value_or(0);
  const QString nombreImpresora =
      codigo < -32768 || codigo > 32767
          ? QString()
          : ObtenerNomImpresora(*entorno_.ConexionBD, static_cast<qint16>(codigo));
  return nombreImpresora.isEmpty() ? LineaImpresoraEliminada(nombre)
                                   : LineaImpresora(nombre, nombreImpresora);
}

void Visualizacion::MostrarProducto(const Recordset& producto, const Recordset& stock, int tipo) {
  try {
    estado_.codigoActual = ValEntero(producto.field(u"Codigo"_s).toString()).value_or(0);
    estado_.colorElegido = TextoDeValor(producto.field(u"color"_s));
    estado_.fotoElegida.clear();
    estado_.impresoraElegida = TextoDeValor(producto.field(u"impresora"_s));
    if (tipo == 2) {
      mostrarElaborado(producto);
    } else {
      mostrarGenerico(producto, stock);
    }
  } catch (const ErrorBD& e) {
    entorno_.RegistrarError(u"MostrarProducto  1"_s, e.descripcion());
  }
}

void Visualizacion::mostrarGenerico(const Recordset& p, const Recordset& stock) {
  Conexion& c = *entorno_.ConexionBD;
  const QString nombre = TextoDeValor(p.field(u"nombre"_s));
  gen_.txt_nombre->setText(nombre);
  gen_.txt_coste->setText(TextoDeValor(p.field(u"coste"_s)));
  gen_.txt_margen->setText(TextoDeValor(p.field(u"MargenComercial"_s)));
  gen_.txt_precio->setText(TextoDeValor(p.field(u"Precio"_s)));
  gen_.txt_iva->setText(TextoDeValor(p.field(u"IVA"_s)));
  const QString seccion = TextoDeValor(p.field(u"seccion"_s));
  PonerFamilia(gen_.lblnomFamilia, obtenerNomFamiliaxCodigo(c, seccion), seccion);
  gen_.txtCodBarras->setText(TextoDeValor(p.field(u"codigobarras"_s)));
  const QVariant orden = p.field(u"orden"_s);
  gen_.lblPos->setText(orden.isNull() ? u"0"_s : TextoDeValor(orden));
  gen_.txt_descripcion->setText(TextoDeValor(p.field(u"descripcion"_s)));
  const QVariant mostrar = p.field(u"MostrarEnCaja"_s);
  gen_.ch_Mostrar->setChecked(!mostrar.isNull() && mostrar.toInt() == 0);
  MostrarImagen(gen_.pict_imagen, entorno_.sesion.rutaFotos, TextoDeValor(p.field(u"Foto"_s)));
  MostrarColor(gen_.pic_ColorPG, estado_.colorElegido);
  gen_.lbl_color->show();
  gen_.txtDescNumericaPGen->setText(TextoDeValor(p.field(u"descnumerica"_s)));

  const QString codigo = TextoDeValor(p.field(u"Codigo"_s));
  gen_.cmd_Proveedor->setText(ObtenerNombreProveedor(c, TextoDeValor(p.field(u"proveedor"_s))));
  if (cargarProveedores)
    cargarProveedores(codigo);
  const QVariant unidad = p.field(u"UnidadMedida"_s);
  gen_.cbo_Medida->setCurrentIndex(
      unidad.isNull() ? -1 : gen_.cbo_Medida->findText(unidad.toString(), Qt::MatchExactly));

  // A product may have no stock row (saving adds it): its stock boxes are then empty, never
  // left with the previous product's stock, which a save would write for this one.
  if (stock.recordCount() > 0) {
    gen_.txt_stock_actual->setText(TextoDeValor(stock.field(u"stock"_s)));
    const QVariant minimo = stock.field(u"stockminimo"_s);
    gen_.txt_stock_minimo->setText(minimo.isNull() ? u"0"_s : TextoDeValor(minimo));
  } else {
    gen_.txt_stock_actual->clear();
    gen_.txt_stock_minimo->clear();
  }
  MarcarSegun(p.field(u"hechoen"_s), {{1, gen_.optBarra}, {2, gen_.optCocina}});
  marcos_.lblNomProd->setText(lineaImpresora(nombre, estado_.impresoraElegida));
  MarcarSegun(p.field(u"tipoprod"_s),
              {{1, gen_.opt_Venta}, {2, gen_.opt_ambos}, {0, gen_.opt_cocina}});
  const QString tipoPrograma = entorno_.sesion.tipo_programa;
  if (tipoPrograma == u"RESTAURANTE"_s || tipoPrograma == u"COPAS"_s) {
    const QVariant especial = p.field(u"productoespecial"_s);
    gen_.chkProdEspecial->setChecked(!especial.isNull() && especial.toInt() == -1);
  }
}

void Visualizacion::mostrarElaborado(const Recordset& p) {
  Conexion& c = *entorno_.ConexionBD;
  const QString nombre = TextoDeValor(p.field(u"nombre"_s));
  elab_.txt_NombreElaborado->setText(nombre);
  const QString seccion = TextoDeValor(p.field(u"seccion"_s));
  PonerFamilia(elab_.lblNomFamilia_elab, obtenerNomFamiliaxCodigo(c, seccion), seccion);
  elab_.txt_DescElaborado->setText(TextoDeValor(p.field(u"descripcion"_s)));
  MostrarImagen(elab_.pic_ProductoElaborado, entorno_.sesion.rutaFotos,
                TextoDeValor(p.field(u"Foto"_s)));
  MostrarColor(elab_.pic_Color, estado_.colorElegido);
  elab_.txtDescNumerica->setText(TextoDeValor(p.field(u"descnumerica"_s)));
  elab_.txt_costeElaborado->setText(TextoDeValor(p.field(u"coste"_s)));
  elab_.txt_ImpuestoElaborado->setText(TextoDeValor(p.field(u"IVA"_s)));
  elab_.txt_PrecioElaborado->setText(TextoDeValor(p.field(u"Precio"_s)));
  const QVariant orden = p.field(u"Orden"_s);
  elab_.lblpospelab->setText(orden.isNull() ? u"0"_s : TextoDeValor(orden));
  MarcarSegun(p.field(u"hechoen"_s), {{1, elab_.optBarraElab}, {2, elab_.optCocinaElab}});
  marcos_.lblNomProd->setText(lineaImpresora(nombre, estado_.impresoraElegida));
  if (cargarIngredientes)
    cargarIngredientes(TextoDeValor(p.field(u"Codigo"_s)));
}

void Visualizacion::mostrarConStock(const Recordset& producto, int tipo) {
  Recordset stock(*entorno_.ConexionBD, u"select * from stock where producto = "_s +
                                            TextoDeValor(producto.field(u"Codigo"_s)));
  MostrarProducto(producto, stock, tipo);
  stock.close();
}

void Visualizacion::MostrarActual() {
  if (!estado_.hayProductos())
    return;
  mostrarConStock(*estado_.productos, estado_.tipo);
}

void Visualizacion::bt_botones(int indice) {
  try {
    if (!estado_.hayProductos())
      return;
    Recordset& rs = *estado_.productos;
    switch (indice) {
      case 0:
        rs.moveFirst();
        MostrarActual();
        break;
      case 1:
        rs.movePrevious();
        if (rs.bof()) {
          rs.moveFirst();
          entorno_.dialogos->mensaje(u"Primer Registro"_s, TituloPrograma(),
                                     ServicioDialogos::Icono::Informacion);
        } else {
          MostrarActual();
        }
        break;
      case 2:
        try {
          rs.moveNext();
        } catch (const ErrorBD&) {
          rs.moveFirst();
        }
        if (rs.eof()) {
          rs.moveLast();
          entorno_.dialogos->mensaje(u"Último Registro"_s, TituloPrograma(),
                                     ServicioDialogos::Icono::Informacion);
        } else {
          MostrarActual();
        }
        break;
      case 3:
        rs.moveLast();
        MostrarActual();
        break;
      default:
        break;
    }
  } catch (const ErrorBD& e) {
    entorno_.RegistrarError(u"bt_botones  1"_s, e.descripcion());
  }
}

void Visualizacion::MostrarCodigo(const QString& codigo) {
  if (codigo == u"-1"_s)
    return;
  try {
    Recordset producto(*entorno_.ConexionBD,
                       u"select * from productos where codigo = '"_s + codigo + u"'"_s);
    Recordset stock(*entorno_.ConexionBD, u"select * from stock where producto = "_s + codigo);
    MostrarProducto(producto, stock, estado_.tipo);
    producto.close();
    stock.close();
  } catch (const ErrorBD& e) {
    entorno_.RegistrarError(u"MostrarCodigo  1"_s, e.descripcion());
  }
}
