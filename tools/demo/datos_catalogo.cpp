#include "datos_catalogo.h"

namespace {

using F = Figura;

constexpr const char16_t* U = u"Unidades";
constexpr const char16_t* KG = u"Kilogramos";
constexpr const char16_t* L = u"Litros";

constexpr int BAR = 1;
constexpr int COC = 2;
constexpr int INT = 0;  // internal use
constexpr int VEN = 1;  // sale
constexpr int AMB = 2;  // both
constexpr int ELA = 3;  // elaborated

constexpr int FOT = kFoto;
constexpr int ENV = kEnvasado;

}  // namespace

qint64 ValorSuite(quint32 rgb) {
  const qint64 r = (rgb >> 16) & 0xFF;
  const qint64 g = (rgb >> 8) & 0xFF;
  const qint64 b = rgb & 0xFF;
  return r | (g << 8) | (b << 16);
}

// clang-format off
const QList<FamiliaDemo>& Familias() {
  static const QList<FamiliaDemo> familias = {
      {u"Cafés e infusiones",       0xD7B899, F::Taza,      false},
      {u"Refrescos y aguas",        0x9ED8E8, F::Vaso,      false},
      {u"Cervezas",                 0xF5D76E, F::Jarra,     false},
      {u"Vinos y cavas",            0xD99AAE, F::Copa,      false},
      {u"Copas y cócteles",         0xB9A6E3, F::Coctel,    false},
      {u"Tapas",                    0xF4B183, F::Plato,     false},
      {u"Raciones",                 0xF19C8B, F::Plato,     false},
      {u"Bocadillos y hamburguesas",0xE8C872, F::Bocadillo, false},
      {u"Platos",                   0xA8D5A2, F::Plato,     false},
      {u"Postres",                  0xF7C6D9, F::Postre,    false},
      {u"Menú del día",             0x9CC3E6, F::Menu,      true},
      {u"Menú infantil",            0xFFE08A, F::Menu,      true},
  };
  return familias;
}

const QList<ProductoDemo>& Productos() {
  static const QList<ProductoDemo> productos = {
  // nombre                        fam coste  precio iva unid hecho tipo prov p2 impr stock  min  figura        marcas            descripcion
  {u"Café solo",                     1, 0.15,  1.20, 10, U,  BAR, VEN,  1,  0, 0,    0,   1, F::Ninguna,  FOT,              u"Espresso de mezcla 80/20"},
  {u"Café cortado",                  1, 0.20,  1.30, 10, U,  BAR, VEN,  1, 10, 0,    0,   1, F::Ninguna,  FOT,              u"Espresso con una nube de leche"},
  {u"Café con leche",                1, 0.25,  1.50, 10, U,  BAR, VEN,  1, 10, 0,    0,   1, F::Ninguna,  FOT,              u"Taza grande"},
  {u"Capuchino",                     1, 0.35,  2.00, 10, U,  BAR, VEN,  1, 10, 5,    0,   1, F::Ninguna,  FOT,              u"Con espuma de leche y cacao"},
  {u"Descafeinado",                  1, 0.18,  1.30, 10, U,  BAR, VEN,  1,  0, 0,    0,   1, F::Ninguna,  0,                u"De máquina o de sobre"},
  {u"Infusión de manzanilla",        1, 0.10,  1.40, 10, U,  BAR, VEN,  1,  0, 0,   60,  20, F::Ninguna,  FOT | ENV,        u"Bolsita"},
  {u"Té verde",                      1, 0.12,  1.40, 10, U,  BAR, VEN,  1,  0, 0,   50,  20, F::Ninguna,  ENV,              u"Bolsita"},
  {u"Leche de avena",                1, 0.10,  0.30, 10, U,  BAR, VEN, 10,  0, 0,   12,   4, F::Botella,  FOT | ENV,        u"Suplemento para cafés"},
  {u"Agua mineral 50 cl",            2, 0.30,  1.50, 10, U,  BAR, VEN,  2,  0, 0,   96,  24, F::Botella,  FOT | ENV,        u"Botella de plástico"},
  {u"Agua con gas",                  2, 0.40,  1.80, 10, U,  BAR, VEN,  2,  0, 0,   48,  12, F::Botella,  FOT | ENV,        u"Botella de vidrio 33 cl"},
  {u"Refresco de cola",              2, 0.55,  2.20, 10, U,  BAR, VEN,  2,  0, 0,   72,  24, F::Ninguna,  FOT | ENV,        u"Lata 33 cl"},
  {u"Refresco de naranja",           2, 0.55,  2.20, 10, U,  BAR, AMB,  2,  0, 0,   48,  24, F::Ninguna,  FOT | ENV,        u"Lata 33 cl"},
  {u"Zumo de naranja natural",       2, 0.70,  3.00, 10, U,  BAR, VEN,  6,  0, 0,    0,   1, F::Ninguna,  FOT,              u"Exprimido al momento"},
  {u"Tónica",                        2, 0.50,  2.20, 10, U,  BAR, AMB,  2,  0, 0,   60,  24, F::Botella,  FOT | ENV,        u"Botellín 20 cl"},
  {u"Bitter sin alcohol",            2, 0.60,  2.40, 10, U,  BAR, VEN,  2,  0, 0,   24,  12, F::Botella,  ENV,              u"Botellín 20 cl"},
  {u"Caña",                          3, 0.35,  1.80, 10, U,  BAR, VEN,  3,  0, 0,    0,   1, F::Ninguna,  FOT,              u"Cerveza de barril 20 cl"},
  {u"Tercio",                        3, 0.70,  2.50, 10, U,  BAR, VEN,  3,  0, 0,   72,  24, F::Botella,  FOT | ENV,        u"Botella 33 cl"},
  {u"Jarra de cerveza",              3, 0.80,  3.50, 10, U,  BAR, VEN,  3,  0, 3,    0,   1, F::Ninguna,  FOT,              u"Cerveza de barril 50 cl"},
  {u"Cerveza sin alcohol",           3, 0.65,  2.50, 10, U,  BAR, VEN,  3,  0, 0,   48,  12, F::Botella,  FOT | ENV,        u"Botella 33 cl"},
  {u"Clara con limón",               3, 0.40,  2.00, 10, U,  BAR, VEN,  3,  0, 0,    0,   1, F::Ninguna,  FOT,              u"Caña con gaseosa de limón"},
  {u"Cerveza tostada",               3, 0.90,  2.80, 10, U,  BAR, VEN,  3,  0, 0,   24,  12, F::Botella,  ENV,              u"Botella 33 cl"},
  {u"Copa de Rioja crianza",         4, 0.90,  3.00, 10, U,  BAR, VEN,  4,  0, 0,    0,   1, F::Ninguna,  FOT,              u"Tinto, D.O.Ca. Rioja"},
  {u"Copa de Ribera del Duero",      4, 1.00,  3.20, 10, U,  BAR, VEN,  4,  0, 0,    0,   1, F::Ninguna,  FOT,              u"Tinto roble"},
  {u"Copa de Albariño",              4, 0.95,  3.00, 10, U,  BAR, VEN,  4,  0, 0,    0,   1, F::Ninguna,  FOT,              u"Blanco, Rías Baixas"},
  {u"Copa de Verdejo",               4, 0.80,  2.80, 10, U,  BAR, VEN,  4,  0, 0,    0,   1, F::Ninguna,  FOT,              u"Blanco, Rueda"},
  {u"Vermut de grifo",               4, 0.60,  2.50, 10, U,  BAR, VEN,  4,  0, 3,    0,   1, F::Ninguna,  FOT,              u"Con hielo y naranja"},
  {u"Botella de cava brut",          4, 6.50, 18.00, 21, U,  BAR, VEN,  4,  0, 0,   18,   6, F::Botella,  FOT | ENV,        u"Para llevar o para la mesa"},
  {u"Tinto de verano",               4, 0.60,  2.80, 10, U,  BAR, VEN,  4,  2, 3,    0,   1, F::Ninguna,  FOT,              u"Vino tinto con gaseosa"},
  {u"Gin tonic",                     5, 2.20,  8.00, 10, U,  BAR, VEN,  5,  2, 0,    0,   1, F::Ninguna,  FOT,              u"Ginebra con tónica y cítricos"},
  {u"Ron con cola",                  5, 1.90,  7.00, 10, U,  BAR, VEN,  5,  2, 0,    0,   1, F::Ninguna,  FOT,              u"Ron añejo y refresco de cola"},
  {u"Whisky con hielo",              5, 2.10,  7.50, 10, U,  BAR, VEN,  5,  0, 0,    0,   1, F::Vaso,     FOT,              u"Blended escocés"},
  {u"Chupito de orujo",              5, 0.50,  2.50, 10, U,  BAR, VEN,  5,  0, 0,    0,   1, F::Vaso,     FOT,              u"Orujo de hierbas gallego"},
  {u"Pacharán",                      5, 0.80,  3.50, 10, U,  BAR, VEN,  5,  0, 0,    0,   1, F::Vaso,     0,                u"Navarro, con hielo"},
  {u"Patatas bravas",                6, 1.10,  4.50, 10, U,  COC, VEN,  6,  0, 1,    0,   1, F::Ninguna,  FOT,              u"Con salsa brava de la casa"},
  {u"Aceitunas aliñadas",            6, 0.50,  2.50, 10, U,  BAR, VEN,  6,  0, 0,   10,   3, F::Ninguna,  FOT | ENV,        u"Manzanilla aliñada"},
  {u"Croquetas de jamón",            6, 1.80,  6.50, 10, U,  COC, VEN,  7,  0, 1,    0,   1, F::Ninguna,  FOT,              u"Seis unidades"},
  {u"Boquerones en vinagre",         6, 1.60,  5.50, 10, U,  COC, VEN,  8,  0, 1,    0,   1, F::Pescado,  FOT,              u"Con ajo y perejil"},
  {u"Pimientos de Padrón",           6, 1.30,  5.00, 10, U,  COC, VEN,  6,  0, 1,    0,   1, F::Hoja,     FOT,              u"Unos pican y otros no"},
  {u"Ensaladilla rusa",              6, 1.00,  4.50, 10, U,  COC, VEN,  6,  0, 1,    0,   1, F::Ninguna,  0,                u"Con atún y mayonesa"},
  {u"Jamón ibérico",                 7, 8.50, 18.00, 10, U,  COC, VEN,  7,  0, 1,    0,   1, F::Carne,    FOT,              u"Ración cortada a cuchillo"},
  {u"Queso manchego curado",         7, 4.80, 12.00, 10, U,  COC, VEN, 10,  0, 1,    0,   1, F::Ninguna,  FOT,              u"D.O. Queso Manchego"},
  {u"Calamares a la romana",         7, 3.60, 11.00, 10, U,  COC, VEN,  8,  0, 1,    0,   1, F::Pescado,  FOT,              u"Rebozados, con limón"},
  {u"Pulpo a la gallega",            7, 6.20, 16.00, 10, U,  COC, VEN,  8,  0, 1,    0,   1, F::Pescado,  FOT,              u"Con cachelos y pimentón"},
  {u"Gambas al ajillo",              7, 5.00, 13.50, 10, U,  COC, VEN,  8,  0, 1,    0,   1, F::Pescado,  FOT,              u"En cazuela de barro"},
  {u"Chipirones fritos",             7, 4.20, 12.00, 10, U,  COC, VEN,  8,  0, 1,    0,   1, F::Pescado,  0,                u"Chipirón de anzuelo"},
  {u"Bocadillo de calamares",        8, 1.80,  6.00, 10, U,  COC, VEN,  9,  8, 4,    0,   1, F::Ninguna,  FOT,              u"En barra de pan recién hecha"},
  {u"Bocadillo de tortilla",         8, 1.30,  5.00, 10, U,  COC, VEN,  9,  0, 0,    0,   1, F::Ninguna,  FOT,              u"Tortilla de patatas casera"},
  {u"Bocadillo de lomo con queso",   8, 2.00,  6.50, 10, U,  COC, VEN,  9,  7, 4,    0,   1, F::Ninguna,  FOT,              u"Lomo a la plancha"},
  {u"Sándwich mixto",                8, 1.00,  4.00, 10, U,  COC, VEN,  9,  0, 4,    0,   1, F::Ninguna,  0,                u"Jamón york y queso"},
  {u"Hamburguesa de ternera",        8, 3.20,  9.50, 10, U,  COC, VEN,  7,  9, 4,    0,   1, F::Ninguna,  FOT,              u"180 g, con patatas"},
  {u"Extra de queso",                8, 0.25,  1.00, 10, U,  COC, VEN, 10,  0, 0,    0,   1, F::Ninguna,  FOT,              u"Suplemento"},
  {u"Extra de bacon",                8, 0.40,  1.50, 10, U,  COC, VEN,  7,  0, 0,    0,   1, F::Carne,    FOT,              u"Suplemento"},
  {u"Ensalada mixta",                9, 2.00,  7.50, 10, U,  COC, VEN,  6,  0, 1,    0,   1, F::Hoja,     FOT,              u"Lechuga, tomate, cebolla y atún"},
  {u"Gazpacho andaluz",              9, 1.40,  6.00, 10, U,  COC, VEN,  6,  0, 1,    0,   1, F::Ninguna,  FOT,              u"Bien frío, con guarnición"},
  {u"Lentejas estofadas",            9, 1.50,  7.00, 10, U,  COC, VEN,  6,  7, 1,    0,   1, F::Ninguna,  FOT,              u"Con chorizo y verduras"},
  {u"Macarrones con tomate",         9, 1.20,  6.00, 10, U,  COC, VEN,  6,  0, 1,    0,   1, F::Ninguna,  FOT,              u"Gratinados"},
  {u"Pollo asado con patatas",       9, 3.00, 10.00, 10, U,  COC, VEN,  7,  0, 1,    0,   1, F::Carne,    FOT,              u"Medio pollo de corral"},
  {u"Merluza a la romana",           9, 4.50, 13.00, 10, U,  COC, VEN,  8,  0, 1,    0,   1, F::Pescado,  FOT,              u"Con pimientos del piquillo"},
  {u"Entrecot a la plancha",         9, 7.50, 19.00, 10, U,  COC, VEN,  7,  0, 4,    0,   1, F::Carne,    FOT,              u"300 g, con guarnición"},
  {u"Nuggets de pollo",              9, 1.80,  6.50, 10, U,  COC, VEN,  7,  0, 1,    0,   1, F::Carne,    0,                u"Con patatas fritas"},
  {u"Flan casero",                  10, 0.80,  4.00, 10, U,  COC, VEN, 10,  0, 0,    0,   1, F::Ninguna,  FOT,              u"Con caramelo"},
  {u"Arroz con leche",              10, 0.70,  4.00, 10, U,  COC, VEN, 10,  0, 0,    0,   1, F::Ninguna,  FOT,              u"Con canela"},
  {u"Tarta de queso",               10, 1.50,  5.50, 10, U,  COC, VEN, 10,  0, 0,    0,   1, F::Ninguna,  FOT,              u"Al horno, cremosa"},
  {u"Fruta del tiempo",             10, 0.90,  3.50, 10, U,  COC, VEN,  6,  0, 0,    0,   1, F::Hoja,     FOT,              u"Según temporada"},
  {u"Helado de vainilla",           10, 0.90,  3.50, 10, U,  BAR, VEN, 10,  0, 0,   30,  10, F::Ninguna,  FOT | ENV,        u"Tarrina individual"},
  {u"Crema catalana",               10, 0.90,  4.50, 10, U,  COC, VEN, 10,  0, 0,    0,   1, F::Ninguna,  0,                u"Quemada al momento"},
  {u"Servicio de ropero",            0, 0.00,  2.00, 21, U,  BAR, VEN,  9,  0, 0,    0,   0, F::Ninguna,  kOculto | kEspecial, u"Guardarropa de eventos"},
  {u"Patatas",                       0, 0.90,  0.00, 10, KG, COC, INT,  6,  0, 0,   40,  10, F::Ninguna,  kOculto,          u"Saco de patata agria"},
  {u"Huevos",                        0, 0.20,  0.00, 10, U,  COC, INT,  6,  0, 0,  180,  60, F::Ninguna,  kOculto,          u"Camperos, talla L"},
  {u"Cebolla",                       0, 1.10,  0.00, 10, KG, COC, INT,  6,  0, 0,   15,   5, F::Ninguna,  kOculto,          u"Cebolla dulce"},
  {u"Aceite de oliva virgen extra",  0, 7.50,  0.00, 10, L,  COC, INT,  6,  0, 0,   25,  10, F::Ninguna,  kOculto,          u"Garrafa de 5 litros"},
  {u"Ron blanco",                    0,14.00,  0.00, 21, L,  BAR, INT,  5,  0, 0,    6,   2, F::Ninguna,  kOculto,          u"Para coctelería"},
  {u"Hierbabuena",                   0, 0.80,  0.00, 10, U,  BAR, INT,  6,  0, 0,   10,   4, F::Ninguna,  kOculto,          u"Manojo fresco"},
  {u"Limas",                         0, 3.20,  0.00, 10, KG, BAR, INT,  6,  0, 0,    5,   2, F::Ninguna,  kOculto,          u"Lima ácida"},
  {u"Vino tinto de mesa",            0, 2.50,  0.00, 10, L,  BAR, INT,  4,  0, 0,   30,  10, F::Ninguna,  kOculto,          u"Bag in box de 15 litros"},
  {u"Azúcar",                        0, 1.00,  0.00, 10, KG, BAR, INT,  2,  0, 0,   20,   5, F::Ninguna,  kOculto,          u"Azúcar blanco"},
  {u"Naranjas",                      0, 1.20,  0.00, 10, KG, BAR, INT,  6,  0, 0,   30,  10, F::Ninguna,  kOculto,          u"De zumo"},
  {u"Pincho de tortilla",            6, 0.60,  3.00, 10, U,  COC, ELA,  6,  0, 1,    0,   0, F::Ninguna,  FOT,              u"Tortilla de patatas con cebolla"},
  {u"Mojito",                        5, 1.80,  7.50, 10, U,  BAR, ELA,  5,  0, 0,    0,   0, F::Ninguna,  FOT,              u"Ron blanco, lima y hierbabuena"},
  {u"Jarra de sangría",               4, 2.90, 12.00, 10, U,  BAR, ELA,  4,  0, 3,    0,   0, F::Jarra,    FOT,              u"Jarra de litro"},
  {u"Limonada casera",               2, 0.70,  3.00, 10, U,  BAR, ELA,  6,  0, 0,    0,   0, F::Ninguna,  FOT,              u"Con lima y hierbabuena"},
  {u"Zumo de piña",                  2, 0.60,  2.20, 10, U,  BAR, VEN, 11,  0, 0,    0,   0, F::Ninguna,  kBorrado | ENV,   u"Descatalogado"},
  {u"Bocadillo de chorizo",          8, 1.20,  4.50, 10, U,  COC, VEN, 12,  9, 0,    0,   0, F::Ninguna,  kBorrado,         u"Fuera de carta"},
  };
  return productos;
}

const QList<ProveedorDemo>& Proveedores() {
  static const QList<ProveedorDemo> proveedores = {
      { 1, u"Cafés La Tostadora",               false},
      { 2, u"Distribuciones Hostemar",          false},
      { 3, u"Cervezas del Norte",               false},
      { 4, u"Bodegas Valdeolmos",               false},
      { 5, u"Licores Ribera",                   false},
      { 6, u"Frutas y Verduras Huerta Viva",    false},
      { 7, u"Carnes Selectas Pardo",            false},
      { 8, u"Pescados Cantábrico",              false},
      { 9, u"Panadería San Roque",              false},
      {10, u"Lácteos Sierra Verde",             false},
      {11, u"Hielos Polar",                     true},
      {12, u"Suministros Ortega",               true},
  };
  return proveedores;
}

// Four printers, so that the specific-printer chooser shows. Code 5, "Cafetera", was removed;
// the Capuchino still points at it.
const QList<CodigoNombre>& Impresoras() {
  static const QList<CodigoNombre> impresoras = {
      {1, u"Cocina"}, {2, u"Barra"}, {3, u"Terraza"}, {4, u"Plancha"},
  };
  return impresoras;
}

const QList<CodigoNombre>& Empleados() {
  static const QList<CodigoNombre> empleados = {
      {1, u"Carmen Ruiz (encargada)"},
      {2, u"Javier Morales"},
      {3, u"Lucía Fernández"},
      {4, u"Andrés Gil (en prácticas)"},
  };
  return empleados;
}

const QList<IngredienteDemo>& Recetas() {
  static const QList<IngredienteDemo> recetas = {
      {u"Pincho de tortilla", u"Patatas",                       8},
      {u"Pincho de tortilla", u"Huevos",                        1.5},
      {u"Pincho de tortilla", u"Cebolla",                       20},
      {u"Pincho de tortilla", u"Aceite de oliva virgen extra",  40},
      {u"Mojito",             u"Ron blanco",                    20},
      {u"Mojito",             u"Hierbabuena",                   8},
      {u"Mojito",             u"Limas",                         12},
      {u"Mojito",             u"Azúcar",                        60},
      {u"Jarra de sangría",    u"Vino tinto de mesa",            1.5},
      {u"Jarra de sangría",    u"Naranjas",                      4},
      {u"Jarra de sangría",    u"Azúcar",                        20},
      {u"Jarra de sangría",    u"Refresco de naranja",           2},
      {u"Limonada casera",    u"Limas",                         6},
      {u"Limonada casera",    u"Azúcar",                        25},
      {u"Limonada casera",    u"Hierbabuena",                   10},
  };
  return recetas;
}

const QList<EnlaceDemo>& Subproductos() {
  static const QList<EnlaceDemo> enlaces = {
      {u"Hamburguesa de ternera",      u"Extra de queso"},
      {u"Hamburguesa de ternera",      u"Extra de bacon"},
      {u"Bocadillo de lomo con queso", u"Extra de bacon"},
      {u"Café con leche",              u"Leche de avena"},
      {u"Café cortado",                u"Leche de avena"},
      {u"Gin tonic",                   u"Tónica"},
  };
  return enlaces;
}

const QList<PlatoMenuDemo>& PlatosDeMenu() {
  static const QList<PlatoMenuDemo> platos = {
      {u"Menú del día",  1, u"Ensalada mixta"},
      {u"Menú del día",  1, u"Gazpacho andaluz"},
      {u"Menú del día",  1, u"Lentejas estofadas"},
      {u"Menú del día",  2, u"Pollo asado con patatas"},
      {u"Menú del día",  2, u"Merluza a la romana"},
      {u"Menú del día",  2, u"Entrecot a la plancha"},
      {u"Menú del día",  3, u"Flan casero"},
      {u"Menú del día",  3, u"Arroz con leche"},
      {u"Menú del día",  3, u"Fruta del tiempo"},
      {u"Menú infantil", 1, u"Macarrones con tomate"},
      {u"Menú infantil", 2, u"Nuggets de pollo"},
      {u"Menú infantil", 3, u"Helado de vainilla"},
  };
  return platos;
}

const QList<AtributoDemo>& Atributos() {
  static const QList<AtributoDemo> atributos = {
      {1, u"cmd_nuevo",            u"Nuevo",     nullptr},
      {2, u"cmd_modificar",        u"Modificar", nullptr},
      {3, u"cmd_eliminar",         u"Eliminar",  nullptr},
      {4, u"Boton_SM1",            u"Precios",   u"Label2"},
      {5, u"cmd_NuevoProdEla",     u"Nuevo",     nullptr},
      {6, u"cmd_ModificarProdEla", u"Modificar", nullptr},
      {7, u"cmd_EliminarProdEla",  u"Eliminar",  nullptr},
  };
  return atributos;
}

// The trainee may create and change products but not delete them nor touch the prices.
const QList<RestriccionDemo>& Restricciones() {
  static const QList<RestriccionDemo> restricciones = {{4, 3}, {4, 4}, {4, 7}};
  return restricciones;
}

const QList<EsquemaColorDemo>& EsquemasColor() {
  static const QList<EsquemaColorDemo> esquemas = {
      //     marco0    marco1    marco2    marco3    boton     texto     entrada   zoom1     zoom2     zoom3     zoom4     separad.  foco      resalto
      {1, u"Azul mar",
       {0xDCE8F5, 0xC9DCEF, 0xB5CDE8, 0xA3C0E0, 0xF4F8FC, 0x10243A, 0xFFFFFF, 0xFFE8B0, 0xD4EDDA, 0xF8D7DA, 0xE2D9F3, 0x2E6DA4, 0xFFF3B0, 0xFFB347}},
      {2, u"Terracota",
       {0xF6E7DC, 0xEFD6C4, 0xE6C2A8, 0xDDB08F, 0xFFF7F0, 0x3B1F12, 0xFFFFFF, 0xFCE4B6, 0xE0EDD2, 0xF3D1CB, 0xE6DDF0, 0xB5522B, 0xFFF0A8, 0xE07A3F}},
      {3, u"Oliva",
       {0xE9EDDC, 0xDCE3C8, 0xCDD7B2, 0xBFCB9E, 0xF8FAF1, 0x1F2A12, 0xFFFFFF, 0xFFF1C1, 0xD8EAD3, 0xF5D5CF, 0xE3DDEF, 0x6B7F2A, 0xFFF5B8, 0xC2A83E}},
      {4, u"Noche",
       {0x263140, 0x2F3B4C, 0x384658, 0x425166, 0xD9E2EC, 0xF2F5F8, 0x1B2330, 0x3A4A5E, 0x33475B, 0x4A3A4E, 0x2E4A45, 0x7FA7D1, 0x2D4A6E, 0xE5A50A}},
      {5, u"Alto contraste",
       {0xFFFFFF, 0xF0F0F0, 0xE0E0E0, 0xD0D0D0, 0xFFD400, 0x000000, 0xFFFFFF, 0xFFFF99, 0xCCFFCC, 0xFFCCCC, 0xCCE5FF, 0x000000, 0xFFFF00, 0xFF8C00}},
  };
  return esquemas;
}

// Terminal T1 is the manager's; T2 is the trainee's, to try the button restrictions.
const QList<TerminalDemo>& Terminales() {
  static const QList<TerminalDemo> terminales = {{u"T1", 1, 1, 1}, {u"T2", 4, 2, 2}};
  return terminales;
}
// clang-format on
