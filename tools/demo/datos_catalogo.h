#pragma once

#include <QList>
#include <QString>
#include <QtGlobal>

// The demo installation's data: a Spanish bar-restaurant, "Casa Velandria", as the tables of
// the main database hold it. Only data lives here; cargar_catalogo.h writes it.

// What the picture of a family or product shows (imagenes_demo.h draws it).
enum class Figura {
  Taza,
  Vaso,
  Botella,
  Jarra,
  Copa,
  Coctel,
  Plato,
  Bocadillo,
  Postre,
  Hoja,
  Pescado,
  Carne,
  Menu,
  Ninguna
};

// Colours are written as 0xRRGGBB here and stored the suite's way (red in the lowest byte).
qint64 ValorSuite(quint32 rgb);

struct FamiliaDemo {
  const char16_t* nombre;
  quint32 rgb;
  Figura figura;
  bool menu;  // a menu family: not on the families panel, its products come from menu_productos
};

// Marks of a product row.
enum MarcaProducto : int {
  kFoto = 1,       // has a picture in the fotos folder
  kOculto = 2,     // not shown on the till (MostrarEnCaja -1)
  kBorrado = 4,    // logically deleted
  kEspecial = 8,   // entry or cloakroom product
  kEnvasado = 16,  // bought packaged: the maker's barcode; otherwise an in-store barcode
};

struct ProductoDemo {
  const char16_t* nombre;
  int familia;  // position in Familias(), from 1; 0 for no family
  double coste;
  double precio;  // tax included; the margin follows from cost, tax and price
  int iva;
  const char16_t* unidad;
  int hechoen;   // 1 bar, 2 kitchen
  int tipoprod;  // 0 internal, 1 sale, 2 both, 3 elaborated
  int proveedor;
  int proveedor2;  // 0: only the main supplier
  int impresora;   // 0: no specific printer
  double stock;
  double stockMinimo;
  Figura figura;  // Figura::Ninguna: the family's
  int marcas;
  const char16_t* descripcion;
};

struct ProveedorDemo {
  int codigo;
  const char16_t* nombre;
  bool borrado;
};

struct CodigoNombre {
  int codigo;
  const char16_t* nombre;
};

struct IngredienteDemo {
  const char16_t* elaborado;
  const char16_t* componente;
  double cantidad;  // how many of the elaborated product one unit of the component yields
};

struct EnlaceDemo {
  const char16_t* padre;
  const char16_t* hijo;
};

struct PlatoMenuDemo {
  const char16_t* menu;
  int orden;  // the course: 1 first courses, 2 second courses, 3 desserts
  const char16_t* producto;
};

struct AtributoDemo {
  int codigo;
  const char16_t* boton;
  const char16_t* descripcion;
  const char16_t* auxiliar;  // nullptr: none
};

struct RestriccionDemo {
  int empleado;
  int atributo;
};

struct EsquemaColorDemo {
  int id;
  const char16_t* nombre;
  // Frame backgrounds at depth 0 to 3, button background, text, entry background, the four zoom
  // panels, separators, focus and highlight: the column order of "colores".
  quint32 colores[14];
};

struct TerminalDemo {
  const char16_t* sufijo;  // list1 of the reports source; the key is installation + suffix
  int empleado;
  int idColor;
  int tipoLetra;
};

struct TraduccionDemo {
  const char16_t* caption;
  const char16_t* control;
  const char16_t* ingles;
};

const QList<FamiliaDemo>& Familias();
// Product codes are their positions in this list, from 1.
const QList<ProductoDemo>& Productos();
const QList<ProveedorDemo>& Proveedores();
const QList<CodigoNombre>& Impresoras();
const QList<CodigoNombre>& Empleados();
const QList<IngredienteDemo>& Recetas();
const QList<EnlaceDemo>& Subproductos();
const QList<PlatoMenuDemo>& PlatosDeMenu();
const QList<AtributoDemo>& Atributos();
const QList<RestriccionDemo>& Restricciones();
const QList<EsquemaColorDemo>& EsquemasColor();
const QList<TerminalDemo>& Terminales();
// The products form's captions with their English text (traducciones_demo.cpp).
const QList<TraduccionDemo>& Traducciones();

// Installation facts shared by the loader, the configuration file and the tests.
inline constexpr char16_t kInstalacion[] = u"INST1";
inline constexpr char16_t kTipoPrograma[] = u"RESTAURANTE";
inline constexpr char16_t kFormularioProductos[] = u"frmProductos1024";
// The brand texts that are never gathered for translation.
inline constexpr char16_t kTextosExcluidos[] = u"dul vore|dulvore|Calle del Almendro|91 555 01";
