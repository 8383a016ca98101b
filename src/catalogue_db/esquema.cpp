#include "esquema.h"

#include "conexion.h"
#include "error_bd.h"

using namespace Qt::Literals::StringLiterals;

namespace {

using T = TipoColumna;

Columna Tx(const QString& n) {
  return {n, T::Texto};
}
Columna En(const QString& n) {
  return {n, T::Entero};
}
Columna Bo(const QString& n) {
  return {n, T::Booleano};
}
Columna Do(const QString& n) {
  return {n, T::Doble};
}

QList<Tabla> CrearTablasPrincipales() {
  QList<Tabla> t;
  t.append({u"productos"_s,
            {{u"codigo"_s, T::Texto, true},
             Tx(u"nombre"_s),
             Tx(u"descripcion"_s),
             Tx(u"codigobarras"_s),
             Tx(u"seccion"_s),
             Do(u"coste"_s),
             Do(u"MargenComercial"_s),
             Do(u"Precio"_s),
             Do(u"IVA"_s),
             {u"FechaAlta"_s, T::Fecha},
             Tx(u"Foto"_s),
             En(u"color"_s),
             Tx(u"proveedor"_s),
             Tx(u"unidadMedida"_s),
             Do(u"StockMinimo"_s),
             Bo(u"MostrarEnCaja"_s),
             En(u"hechoen"_s),
             En(u"tipoprod"_s),
             En(u"DescNumerica"_s),
             En(u"Orden"_s),
             En(u"impresora"_s),
             Bo(u"productoespecial"_s),
             Bo(u"Borrar"_s)},
            {u"codigo"_s},
            // The lists go by name, so that the first rows come without sorting the catalogue;
            // the till's panels go by family and place; a new product's place and number on the
            // till are the largest of the live products' ones. No index leads with "borrar": the
            // engine would take it for the lists, and sort the catalogue again.
            {u"nombre"_s, u"seccion, orden"_s, u"orden, borrar"_s,
             u"descnumerica, borrar, mostrarencaja"_s}});
  t.append({u"stock"_s,
            {{u"Producto"_s, T::Entero, true},
             Do(u"Stock"_s),
             Do(u"StockMinimo"_s),
             Do(u"ConsumicionesDisponibles"_s)},
            {u"Producto"_s}});
  t.append({u"proveedores"_s,
            {{u"codigo"_s, T::Texto, true}, Tx(u"nombre"_s), Bo(u"borrar"_s)},
            {u"codigo"_s}});
  // A product's suppliers are read each time the product is shown.
  t.append({u"productoproveedor"_s,
            {Tx(u"producto"_s), Tx(u"proveedor"_s), Do(u"coste"_s)},
            {},
            {u"producto"_s}});
  t.append({u"productoElaborado_producto"_s,
            {{u"productopadre"_s, T::Texto, true}, Tx(u"productohijo"_s), Do(u"cantidad"_s)},
            {},
            {u"productopadre"_s}});
  t.append({u"subproductos"_s, {Tx(u"CodProductoPadre"_s), Tx(u"CodProductoHijo"_s)}, {}});
  t.append({u"impresoras"_s, {{u"codigo"_s, T::Entero, true}, Tx(u"nombre"_s)}, {u"codigo"_s}});
  t.append({u"seccion"_s,
            {Tx(u"codigo"_s), Tx(u"nombre"_s), Bo(u"borrar"_s), Bo(u"menu"_s), En(u"orden"_s),
             En(u"descNumerica"_s), Bo(u"mostrarencaja"_s), En(u"Color"_s), Tx(u"Imagen"_s)},
            {}});
  t.append({u"menu_productos"_s, {Tx(u"seccion"_s), Tx(u"producto"_s), En(u"orden"_s)}, {}});
  t.append({u"opciones"_s,
            {{u"identificador"_s, T::Texto, true},
             Tx(u"idioma"_s),
             Tx(u"tipo_programa"_s),
             En(u"numDecimales"_s),
             Tx(u"rutaFotos"_s),
             En(u"modocaja"_s),
             Bo(u"animacioncaja"_s),
             Tx(u"Terminal"_s)},
            {u"identificador"_s}});
  t.append({u"opciones_terminal"_s,
            {{u"identificador"_s, T::Texto, true},
             En(u"empleado"_s),
             En(u"id_color"_s),
             Bo(u"ColorPredefinido"_s),
             En(u"Tipo_Letra"_s),
             En(u"Aumento_X"_s),
             En(u"Aumento_Y"_s)},
            {u"identificador"_s}});
  // A scheme is read by position: id_color first, then its fourteen colours in this order.
  t.append({u"colores"_s,
            {{u"id_color"_s, T::Entero, true},
             En(u"FondoMarco"_s),
             En(u"FondoMarco2"_s),
             En(u"FondoMarco3"_s),
             En(u"FondoMarco4"_s),
             En(u"FondoBoton"_s),
             En(u"ColorTexto"_s),
             En(u"FondoEntrada"_s),
             En(u"Zoom1"_s),
             En(u"Zoom2"_s),
             En(u"Zoom3"_s),
             En(u"Zoom4"_s),
             En(u"Separador"_s),
             En(u"Foco"_s),
             En(u"Resalto"_s),
             Tx(u"nombre"_s)},
            {u"id_color"_s}});
  t.append({u"relaciones_fijas"_s, {{u"indice"_s, T::Texto, true}, En(u"daton"_s)}, {u"indice"_s}});
  t.append({u"atributos"_s,
            {{u"codigo"_s, T::Entero, true},
             Tx(u"form"_s),
             Tx(u"form_desc"_s),
             Tx(u"boton"_s),
             Tx(u"boton_desc"_s),
             Tx(u"boton_auxiliar"_s)},
            {u"codigo"_s}});
  t.append({u"empleadosatributos"_s, {En(u"codEmpleado"_s), En(u"codatributo"_s)}, {}});
  t.append({u"empleados"_s, {{u"codigo"_s, T::Entero, true}, Tx(u"nombre"_s)}, {u"codigo"_s}});
  t.append({u"traducciones"_s,
            {{u"caption"_s, T::Texto, true},
             Tx(u"traduccion"_s),
             Tx(u"identificador"_s),
             Tx(u"NombreControl"_s),
             Tx(u"software"_s),
             Tx(u"ingles"_s),
             Tx(u"frances"_s),
             Tx(u"aleman"_s),
             Tx(u"italiano"_s),
             Tx(u"portugues"_s),
             Tx(u"catalan"_s),
             Tx(u"euskera"_s),
             Tx(u"gallego"_s)},
            {}});
  // Exactly one column: the suite inserts into it without a column list.
  t.append({u"EjecutablesTraduccion"_s, {Tx(u"nombreEjecutable"_s)}, {}});
  t.append({u"entradas1"_s,
            {Tx(u"Formulario"_s), Tx(u"empleado"_s), En(u"entradas"_s), Tx(u"ultimafecha"_s)},
            {u"Formulario"_s, u"empleado"_s}});
  return t;
}

QString TipoSql(TipoColumna tipo, Motor motor) {
  const bool pg = motor == Motor::PostgreSQL;
  switch (tipo) {
    case T::Texto:
      // "varchar" stores exactly what "text" does on SQLite, but the SQLite ODBC driver reports
      // it as 255 characters wide instead of 65,536: Qt's ODBC driver sizes (and clears) a
      // buffer of that width for every text value it fetches.
      return pg ? u"citext"_s : u"varchar collate nocase"_s;
    case T::Entero:
      return pg ? u"integer"_s : u"integer"_s;
    case T::Booleano:
      return pg ? u"smallint"_s : u"integer"_s;
    case T::Doble:
      return pg ? u"double precision"_s : u"double"_s;
    case T::Fecha:
      return u"date"_s;
  }
  return {};
}

// Jet's Val() on PostgreSQL: immutable, so that it can be indexed.
const QString kFuncionValPostgres =
    uR"(create or replace function val(s text) returns double precision
language sql immutable strict parallel safe as $$
  select coalesce(substring(regexp_replace(s, '\s', '', 'g')
    from '^[+-]?(?:[0-9]+\.?[0-9]*|\.[0-9]+)(?:[eE][+-]?[0-9]+)?')::double precision, 0) $$)"_s;

}  // namespace

const Columna* Tabla::columna(const QString& n) const {
  for (const Columna& c : columnas) {
    if (c.nombre.compare(n, Qt::CaseInsensitive) == 0)
      return &c;
  }
  return nullptr;
}

const QList<Tabla>& TablasPrincipales() {
  static const QList<Tabla> tablas = CrearTablasPrincipales();
  return tablas;
}

const QList<Tabla>& TablasInformes() {
  static const QList<Tabla> tablas = {
      {u"listadostemporal"_s, {Tx(u"tipoPrograma"_s), Tx(u"list1"_s), Tx(u"list2"_s)}, {}}};
  return tablas;
}

const Tabla* BuscarTabla(const QString& nombre) {
  for (const QList<Tabla>* lista : {&TablasPrincipales(), &TablasInformes()}) {
    for (const Tabla& t : *lista) {
      if (t.nombre.compare(nombre, Qt::CaseInsensitive) == 0)
        return &t;
    }
  }
  return nullptr;
}

QStringList SentenciasCrearEsquema(const QList<Tabla>& tablas, Motor motor) {
  QStringList sentencias;
  if (motor == Motor::PostgreSQL) {
    sentencias.append(u"create extension if not exists citext"_s);
    sentencias.append(kFuncionValPostgres);
  }
  for (const Tabla& t : tablas) {
    QStringList partes;
    for (const Columna& c : t.columnas) {
      partes.append(c.nombre + u' ' + TipoSql(c.tipo, motor) +
                    (c.noNula ? u" not null"_s : QString()));
    }
    if (!t.clave.isEmpty())
      partes.append(u"primary key ("_s + t.clave.join(u", "_s) + u')');
    sentencias.append(u"create table "_s + t.nombre + u" ("_s + partes.join(u", "_s) + u')');
    for (const QString& columnas : t.indices) {
      sentencias.append(u"create index "_s + t.nombre + u'_' +
                        QString(columnas).replace(u", "_s, u"_"_s) + u" on "_s + t.nombre +
                        u" ("_s + columnas + u')');
    }
  }
  return sentencias;
}

void CrearEsquema(Conexion& conexion, const QList<Tabla>& tablas) {
  Transaccion transaccion(conexion);
  for (const QString& s : SentenciasCrearEsquema(tablas, conexion.motor())) {
    conexion.ejecutarDirecto(s);
  }
  transaccion.confirmar();
}
