#include "cargar_catalogo.h"

#include <QDate>
#include <QStringList>
#include <cmath>
#include <stdexcept>

#include "conexion.h"
#include "ean13.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// Values spliced into the statement texts: texts quoted with their apostrophes doubled.
QString Tx(const QString& texto) {
  QString t = texto;
  return u'\'' + t.replace(u'\'', u"''"_s) + u'\'';
}
QString Tx(const char16_t* texto) {
  return texto ? Tx(QString::fromUtf16(texto)) : u"null"_s;
}
QString Nu(double valor) {
  return QString::number(valor, 'g', 12);
}
QString Nu(qint64 valor) {
  return QString::number(valor);
}
QString Nu(int valor) {
  return QString::number(valor);
}
QString Bo(bool valor) {
  return valor ? u"-1"_s : u"0"_s;
}

void Insertar(Conexion& c, const QString& tabla, const QString& columnas,
              const QStringList& valores) {
  c.ejecutar(u"insert into "_s + tabla + u" ("_s + columnas + u") values ("_s +
             valores.join(u", "_s) + u')');
}

const ProductoDemo& Producto(int codigo) {
  return Productos().at(codigo - 1);
}

// Products outside every family (kitchen stock, the cloakroom) get a neutral grey button.
constexpr quint32 kGrisSinFamilia = 0xE0E0E0;

qint64 ColorProducto(const ProductoDemo& p) {
  return ValorSuite(p.familia > 0 ? Familias().at(p.familia - 1).rgb : kGrisSinFamilia);
}

void InsertarFamilias(Conexion& c) {
  for (int i = 0; i < Familias().size(); ++i) {
    const FamiliaDemo& f = Familias().at(i);
    const int codigo = i + 1;
    Insertar(c, u"seccion"_s,
             u"codigo, nombre, borrar, menu, orden, descNumerica, mostrarencaja, Color, Imagen"_s,
             {Tx(Nu(codigo)), Tx(f.nombre), Bo(false), Bo(f.menu), Nu(codigo), Nu(codigo),
              Bo(false), Nu(ValorSuite(f.rgb)), Tx(FotoFamilia(codigo))});
  }
}

void InsertarProductos(Conexion& c) {
  const QDate primeraAlta(2024, 9, 2);
  for (int codigo = 1; codigo <= Productos().size(); ++codigo) {
    const ProductoDemo& p = Producto(codigo);
    const QString foto = FotoProducto(codigo);
    Insertar(c, u"productos"_s,
             u"codigo, nombre, descripcion, codigobarras, seccion, coste, MargenComercial, "
             "Precio, IVA, FechaAlta, Foto, color, proveedor, unidadMedida, StockMinimo, "
             "MostrarEnCaja, hechoen, tipoprod, DescNumerica, Orden, impresora, "
             "productoespecial, Borrar"_s,
             {Tx(Nu(codigo)),
              Tx(p.nombre),
              Tx(p.descripcion),
              Tx(CodigoBarras(codigo)),
              Tx(p.familia > 0 ? Nu(p.familia) : u"-1"_s),
              Nu(p.coste),
              Nu(MargenComercial(codigo)),
              Nu(p.precio),
              Nu(p.iva),
              Tx(primeraAlta.addDays(codigo % 45).toString(Qt::ISODate)),
              foto.isEmpty() ? u"null"_s : Tx(foto),
              Nu(ColorProducto(p)),
              Tx(Nu(p.proveedor)),
              Tx(p.unidad),
              Nu(p.stockMinimo),
              Bo(p.marcas & kOculto),
              Nu(p.hechoen),
              Nu(p.tipoprod),
              Nu(DescripcionNumerica(codigo)),
              Nu(codigo),
              Nu(p.impresora),
              Bo(p.marcas & kEspecial),
              Bo(p.marcas & kBorrado)});
    // A deleted product loses its stock row, as the program's own delete does.
    if (!(p.marcas & kBorrado)) {
      Insertar(c, u"stock"_s, u"Producto, Stock, StockMinimo, ConsumicionesDisponibles"_s,
               {Nu(codigo), Nu(p.stock), Nu(p.stockMinimo), Nu(0)});
    }
    for (int proveedor : {p.proveedor, p.proveedor2}) {
      if (proveedor == 0)
        continue;
      Insertar(c, u"productoproveedor"_s, u"producto, proveedor, coste"_s,
               {Tx(Nu(codigo)), Tx(Nu(proveedor)), Nu(0)});
    }
  }
}

void InsertarRelaciones(Conexion& c) {
  for (const ProveedorDemo& p : Proveedores()) {
    Insertar(c, u"proveedores"_s, u"codigo, nombre, borrar"_s,
             {Tx(Nu(p.codigo)), Tx(p.nombre), Bo(p.borrado)});
  }
  for (const CodigoNombre& i : Impresoras()) {
    Insertar(c, u"impresoras"_s, u"codigo, nombre"_s, {Nu(i.codigo), Tx(i.nombre)});
  }
  for (const IngredienteDemo& r : Recetas()) {
    Insertar(c, u"productoElaborado_producto"_s, u"productopadre, productohijo, cantidad"_s,
             {Tx(Nu(CodigoProducto(QString::fromUtf16(r.elaborado)))),
              Tx(Nu(CodigoProducto(QString::fromUtf16(r.componente)))), Nu(r.cantidad)});
  }
  for (const EnlaceDemo& e : Subproductos()) {
    Insertar(c, u"subproductos"_s, u"CodProductoPadre, CodProductoHijo"_s,
             {Tx(Nu(CodigoProducto(QString::fromUtf16(e.padre)))),
              Tx(Nu(CodigoProducto(QString::fromUtf16(e.hijo))))});
  }
  for (const PlatoMenuDemo& m : PlatosDeMenu()) {
    int familia = 0;
    for (int i = 0; i < Familias().size(); ++i) {
      if (QString::fromUtf16(Familias().at(i).nombre) == QString::fromUtf16(m.menu))
        familia = i + 1;
    }
    if (familia == 0 || !Familias().at(familia - 1).menu) {
      throw std::runtime_error("the menu of a course is not a menu family");
    }
    Insertar(
        c, u"menu_productos"_s, u"seccion, producto, orden"_s,
        {Tx(Nu(familia)), Tx(Nu(CodigoProducto(QString::fromUtf16(m.producto)))), Nu(m.orden)});
  }
}

void InsertarOpciones(Conexion& c, const QString& rutaFotos, const QString& idioma, int esquema) {
  const QString instalacion = QString::fromUtf16(kInstalacion);
  Insertar(c, u"opciones"_s,
           u"identificador, idioma, tipo_programa, numDecimales, rutaFotos, modocaja, "
           "animacioncaja, Terminal"_s,
           {Tx(instalacion), Tx(idioma), Tx(kTipoPrograma), Nu(2), Tx(rutaFotos), Nu(1), Bo(false),
            Tx(QString::fromUtf16(Terminales().first().sufijo))});
  for (const TerminalDemo& t : Terminales()) {
    Insertar(c, u"opciones_terminal"_s,
             u"identificador, empleado, id_color, ColorPredefinido, Tipo_Letra, Aumento_X, "
             "Aumento_Y"_s,
             {Tx(instalacion + QString::fromUtf16(t.sufijo)), Nu(t.empleado),
              Nu(esquema > 0 ? esquema : t.idColor), Bo(true), Nu(t.tipoLetra), Nu(0), Nu(0)});
  }
  Insertar(c, u"relaciones_fijas"_s, u"indice, daton"_s,
           {Tx(u"opcion_color_panel_familias"_s), Bo(true)});
  for (const EsquemaColorDemo& e : EsquemasColor()) {
    QStringList valores = {Nu(e.id)};
    for (quint32 rgb : e.colores)
      valores.append(Nu(ValorSuite(rgb)));
    valores.append(Tx(e.nombre));
    Insertar(c, u"colores"_s,
             u"id_color, FondoMarco, FondoMarco2, FondoMarco3, FondoMarco4, FondoBoton, "
             "ColorTexto, FondoEntrada, Zoom1, Zoom2, Zoom3, Zoom4, Separador, Foco, Resalto, "
             "nombre"_s,
             valores);
  }
}

void InsertarPersonal(Conexion& c) {
  for (const CodigoNombre& e : Empleados()) {
    Insertar(c, u"empleados"_s, u"codigo, nombre"_s, {Nu(e.codigo), Tx(e.nombre)});
  }
  for (const AtributoDemo& a : Atributos()) {
    Insertar(c, u"atributos"_s, u"codigo, form, form_desc, boton, boton_desc, boton_auxiliar"_s,
             {Nu(a.codigo), Tx(kFormularioProductos), Tx(u"Mantenimiento de Productos"_s),
              Tx(a.boton), Tx(a.descripcion), Tx(a.auxiliar)});
  }
  for (const RestriccionDemo& r : Restricciones()) {
    Insertar(c, u"empleadosatributos"_s, u"codEmpleado, codatributo"_s,
             {Nu(r.empleado), Nu(r.atributo)});
  }
  for (const TraduccionDemo& t : Traducciones()) {
    Insertar(c, u"traducciones"_s, u"caption, traduccion, NombreControl, software, ingles"_s,
             {Tx(t.caption), Tx(t.ingles), Tx(t.control), Tx(u"productos"_s), Tx(t.ingles)});
  }
}

}  // namespace

void LlenarBasePrincipal(Conexion& conexion, const QString& rutaFotos, const QString& idioma,
                         int esquema) {
  Transaccion transaccion(conexion);
  InsertarFamilias(conexion);
  InsertarProductos(conexion);
  InsertarRelaciones(conexion);
  InsertarOpciones(conexion, rutaFotos, idioma, esquema);
  InsertarPersonal(conexion);
  transaccion.confirmar();
}

void LlenarBaseInformes(Conexion& conexion, const QString& sufijoTerminal) {
  Transaccion transaccion(conexion);
  Insertar(conexion, u"listadostemporal"_s, u"tipoPrograma, list1, list2"_s,
           {Tx(kTipoPrograma), Tx(sufijoTerminal), Tx(kInstalacion)});
  transaccion.confirmar();
}

QString NombreArchivo(const QString& nombre) {
  QString r;
  bool separar = false;
  for (QChar c : nombre.normalized(QString::NormalizationForm_D).toLower()) {
    if (c.category() == QChar::Mark_NonSpacing)
      continue;
    if ((c >= u'a' && c <= u'z') || (c >= u'0' && c <= u'9')) {
      if (separar && !r.isEmpty())
        r += u'_';
      r += c;
      separar = false;
    } else {
      separar = true;
    }
  }
  return r;
}

QString FotoFamilia(int familia) {
  return u"f_"_s + NombreArchivo(QString::fromUtf16(Familias().at(familia - 1).nombre)) + u".png"_s;
}

QString FotoProducto(int codigo) {
  const ProductoDemo& p = Producto(codigo);
  if (!(p.marcas & kFoto))
    return {};
  return u"p_"_s + NombreArchivo(QString::fromUtf16(p.nombre)) + u".jpg"_s;
}

QString CodigoBarras(int codigo) {
  const ProductoDemo& p = Producto(codigo);
  const QString articulo = u"%1"_s.arg(codigo, 5, 10, QChar(u'0'));
  // Packaged goods carry their maker's Spanish code (84, a maker number per supplier); what the
  // house makes carries an in-store code (prefix 20), as scales and label printers use.
  const QString base = (p.marcas & kEnvasado)
                           ? u"84"_s + u"%1"_s.arg(31000 + p.proveedor * 37, 5, 10, QChar(u'0'))
                           : u"2000000"_s;
  return CodigoEan13(base + articulo);
}

double MargenComercial(int codigo) {
  const ProductoDemo& p = Producto(codigo);
  if (p.precio <= 0)
    return 0;
  return std::round((p.precio / (1.0 + p.iva / 100.0) - p.coste) * 100.0) / 100.0;
}

int DescripcionNumerica(int codigo) {
  // What the till's staff type: the family's number then the product's place in it (101, 102
  // ... for the coffees); products outside the families from 901.
  const int familia = Producto(codigo).familia;
  int lugar = 0;
  for (int i = 1; i <= codigo; ++i) {
    if (Producto(i).familia == familia)
      ++lugar;
  }
  return (familia > 0 ? familia * 100 : 900) + lugar;
}

int CodigoProducto(const QString& nombre) {
  for (int i = 0; i < Productos().size(); ++i) {
    if (QString::fromUtf16(Productos().at(i).nombre) == nombre)
      return i + 1;
  }
  throw std::runtime_error("unknown product in the demo data: " + nombre.toStdString());
}
