#include "datos_catalogo.h"

// The captions that the products form shows, with the control that carries each one (the first,
// when several do) and the English text that both "traduccion" and "ingles" receive.
// clang-format off
const QList<TraduccionDemo>& Traducciones() {
  static const QList<TraduccionDemo> traducciones = {
      {u"Nuevo",                                   u"cmd_nuevo",           u"New"},
      {u"Modificar",                               u"cmd_modificar",       u"Edit"},
      {u"Aceptar",                                 u"cmd_aceptar",         u"OK"},
      {u"Cancelar",                                u"cmd_cancelar",        u"Cancel"},
      {u"Eliminar",                                u"cmd_eliminar",        u"Delete"},
      {u"Buscar",                                  u"cmd_buscar",          u"Search"},
      {u"Ayuda",                                   u"cmd_ayuda",           u"Help"},
      {u"Salir",                                   u"cmd_salir",           u"Exit"},
      {u"Primero",                                 u"bt_botones",          u"First"},
      {u"Anterior",                                u"bt_botones",          u"Previous"},
      {u"Siguiente",                               u"bt_botones",          u"Next"},
      {u"Ultimo",                                  u"bt_botones",          u"Last"},
      {u"Producto de Venta - Barra",               u"cmdCVenta",           u"Sale product - Bar"},
      {u"Producto de Cocina - Uso Interno",        u"cmdCInterno",         u"Kitchen product - Internal use"},
      {u"Producto Entrada / Ropero",               u"chkProdEspecial",     u"Entry / Cloakroom product"},
      {u"Producto Ropero",                         u"chkProdEspecial",     u"Cloakroom product"},
      {u"Productos elaborados",                    u"lblProdASel",         u"Prepared products"},
      {u"Seleccione el componente a utilizar:",    u"lblProdASel",         u"Select the component to use:"},
      {u"Seleccione sus proveedores",              u"cmd_Proveedor",       u"Select its suppliers"},
      {u"Mostrar en Pantalla de Venta",            u"ch_Mostrar",          u"Show on the sales screen"},
      {u"Producto de cocina/barra",                u"opt_cocina",          u"Kitchen/bar product"},
      {u"Producto de venta",                       u"opt_Venta",           u"Sale product"},
      {u"Ambos",                                   u"opt_ambos",           u"Both"},
      {u"<Nombre de la Familia>",                  u"lblnomFamilia",       u"<Family name>"},
      {u"La descripción corta ya existe, por favor introduzca otra.",
                                                   u"lblMensNombre",       u"The short description already exists, please enter another one."},
      {u"La descripción numérica ya existe, por favor introduzca otra.",
                                                   u"lblMensajeNumero",    u"The numeric description already exists, please enter another one."},
      {u"Es necesario que ingrese una descripción numérica.",
                                                   u"lblMensajeNumero",    u"A numeric description is required."},
      {u"Unidades",                                u"cbo_Medida",          u"Units"},
      {u"Kilogramos",                              u"cbo_Medida",          u"Kilograms"},
      {u"Litros",                                  u"cbo_Medida",          u"Litres"},
  };
  return traducciones;
}
// clang-format on
