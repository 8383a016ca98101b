#include "paginas_ayuda.h"

#include <QDir>
#include <QFile>
#include <stdexcept>

using namespace Qt::Literals::StringLiterals;

namespace {

// Large type and generous spacing: the pages are read on the terminal beside the till.
const QString kEstilo =
    uR"css(
body { font-family: "DejaVu Sans", Verdana, Arial, sans-serif; font-size: 19px; line-height: 1.55;
       color: #1d2733; background: #f7f9fb; margin: 0; }
main { max-width: 56em; margin: 0 auto; padding: 1.2em 1.6em 3em; background: #ffffff; }
nav { background: #2e6da4; color: #ffffff; padding: 0.7em 1.6em; }
nav a { color: #ffffff; margin-right: 1.4em; font-weight: bold; text-decoration: none; }
nav a:hover { text-decoration: underline; }
h1 { color: #2e6da4; font-size: 1.7em; margin-top: 0.4em; }
h2 { color: #2e6da4; font-size: 1.3em; border-bottom: 2px solid #dce8f5; padding-bottom: 0.2em;
     margin-top: 1.6em; }
table { border-collapse: collapse; width: 100%; margin: 0.8em 0; }
th, td { border: 1px solid #c9dcef; padding: 0.45em 0.6em; text-align: left; vertical-align: top; }
th { background: #dce8f5; }
.boton { display: inline-block; background: #f4f8fc; border: 1px solid #7fa7d1; border-radius: 6px;
         padding: 0 0.45em; font-weight: bold; white-space: nowrap; }
.mensaje { font-style: italic; color: #7a2e0e; }
.nota { background: #fff3b0; border-left: 6px solid #e5a50a; padding: 0.6em 1em; margin: 1em 0; }
ol li, ul li { margin-bottom: 0.35em; }
)css"_s;

QString Pagina(const QString& titulo, const QString& cuerpo) {
  return u"<!DOCTYPE html>\n<html lang=\"es\">\n<head>\n<meta charset=\"utf-8\">\n"
         "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n<title>"_s +
         titulo + u"</title>\n<style>"_s + kEstilo +
         u"</style>\n</head>\n<body>\n<nav>"
         "<a href=\"A_Productos.html\">Productos</a> · "
         "<a href=\"A_ProductosElaborados.html\">Productos elaborados</a> · "
         "<a href=\"A_Buscar.html\">Buscar</a> · "
         "<a href=\"A_SubProductos.html\">Sub-productos</a></nav>\n<main>\n<h1>"_s +
         titulo + u"</h1>\n"_s + cuerpo + u"\n</main>\n</body>\n</html>\n"_s;
}

const QString kProductos =
    uR"html(
<p>En esta pantalla se dan de alta, se modifican, se consultan y se eliminan los productos que
vende la caja y que prepara la cocina o la barra: su nombre, su familia, su coste, su precio, sus
proveedores, dónde se preparan, con qué color y foto salen en los botones de la caja y en qué
impresora sale su comanda.</p>

<h2>La pantalla de inicio</h2>
<p>Al abrir el programa elija el tipo de producto con el que va a trabajar:</p>
<ul>
<li><b>Productos</b>: los productos simples (un refresco, una ración, un café).</li>
<li><b>Productos elaborados</b>: los que se preparan a partir de otros productos con una receta
(vea <a href="A_ProductosElaborados.html">Productos elaborados</a>).</li>
</ul>
<p>Desde cualquiera de las dos pantallas, <span class="boton">Salir</span> vuelve a la pantalla de
inicio.</p>

<h2>Consultar los productos</h2>
<p>La pantalla se abre en modo consulta: los campos no se pueden cambiar y se ve un producto cada
vez.</p>
<ul>
<li><span class="boton">Primero</span>, <span class="boton">Anterior</span>,
<span class="boton">Siguiente</span> y <span class="boton">Ultimo</span> recorren los productos.
Al pasar del primero o del último verá el aviso <span class="mensaje">Primer Registro</span> o
<span class="mensaje">Último Registro</span>.</li>
<li><span class="boton">Buscar</span> abre la búsqueda por nombre, proveedor o familia (vea
<a href="A_Buscar.html">Buscar</a>).</li>
<li>El botón de la lista muestra todos los productos por orden alfabético; pulse dos veces sobre
uno para verlo. Los botones de cocina y barra muestran solo los productos de uso interno o solo
los de venta.</li>
</ul>

<h2>Dar de alta un producto</h2>
<p>Antes de dar de alta productos tiene que existir al menos un proveedor. El programa le guía:
cada campo aparece cuando el anterior está completo y el campo activo se resalta con el color de
foco.</p>
<ol>
<li>Pulse <span class="boton">Nuevo</span>. El programa propone la posición en la caja y la
descripción numérica siguientes.</li>
<li>Escriba el <b>nombre</b> (la descripción corta que sale en la caja y en el ticket). No puede
repetirse entre los productos en uso.</li>
<li>Pulse <span class="boton">Seleccione sus proveedores</span>, toque en la lista de la izquierda
los proveedores a los que compra el producto y pulse Aceptar. El primero de la lista es el
proveedor principal.</li>
<li>Elija la <b>unidad de medida</b>: Unidades, Kilogramos o Litros.</li>
<li>Indique el tipo de producto: <b>Producto de venta</b>, <b>Producto de cocina/barra</b> (solo
uso interno, sin precio de venta) o <b>Ambos</b>.</li>
<li>Escriba el <b>coste</b> y el <b>IVA</b> (en tanto por ciento, normalmente 10 o 21).</li>
<li>Escriba el <b>margen</b> y pulse Intro: el programa calcula el precio. O escriba directamente el
<b>precio</b> y el programa calcula el margen.</li>
<li>Marque dónde se prepara o se sirve: <b>Cocina</b> o <b>Barra</b>.</li>
<li>Toque la <b>familia</b> en el panel de familias; su nombre aparece en la etiqueta de familia.</li>
<li>Si el producto debe salir en la caja, deje marcada <b>Mostrar en Pantalla de Venta</b>, elija
un <b>color</b> y, si quiere, una <b>foto</b>.</li>
<li>Pulse <span class="boton">Aceptar</span>. Con <span class="boton">Cancelar</span> se descarta
el alta.</li>
</ol>

<h2>Coste, margen, IVA y precio</h2>
<p>El margen es una cantidad en euros, no un porcentaje. El precio lleva el IVA incluido:</p>
<p><b>precio = (coste + margen) × (1 + IVA / 100)</b></p>
<table>
<tr><th>Si escribe</th><th>El programa pone</th></tr>
<tr><td>coste 10, IVA 10, margen 5 e Intro</td><td>precio 16,50 y, a continuación, margen 5,50
(el margen se vuelve a calcular desde el precio, IVA incluido)</td></tr>
<tr><td>coste 100, IVA 10 y precio 121</td><td>margen 11,00</td></tr>
</table>
<p>Los importes admiten tantos decimales como tenga configurados la instalación y el separador
decimal de su ordenador: tanto la tecla del punto como la de la coma escriben ese separador. Al
entrar en un campo, lo que teclee sustituye al valor anterior.</p>

<h2>Modificar y eliminar</h2>
<ul>
<li><span class="boton">Modificar</span> permite cambiar el producto que se ve. Al aceptar, la
fecha de alta pasa a ser la de hoy.</li>
<li><span class="boton">Eliminar</span> pide confirmación. El producto deja de aparecer en el
programa y en la caja, pero su código no se vuelve a usar y su código de barras sigue ocupado.</li>
</ul>

<h2>Impresora específica</h2>
<p>Si la instalación tiene más de dos impresoras, el botón de impresoras permite que la comanda de
un producto salga siempre por una impresora concreta (por ejemplo, la de la plancha). Solo se
puede cambiar mientras se da de alta o se modifica el producto. Si la impresora elegida ya no
existe, verá <span class="mensaje">La impresora utilizada ha sido eliminada</span>: elija otra y
acepte el producto.</p>

<h2>Foto y color</h2>
<p>Toque el recuadro de la foto para elegir una imagen; se copia a la carpeta de fotos de la
instalación. Use imágenes de 75 kb como máximo. Un producto sin foto muestra la imagen por
defecto. Toque el recuadro del color para elegir el color del botón en la caja.</p>

<h2>Precios</h2>
<p>El botón de precios abre el programa de precios de la instalación para cambiar los precios de
muchos productos a la vez.</p>

<h2>Con el teclado</h2>
<table>
<tr><th>Tecla</th><th>Hace lo mismo que</th></tr>
<tr><td>Av Pág / Re Pág</td><td>Siguiente / Anterior</td></tr>
<tr><td>Ctrl + Inicio / Ctrl + Fin</td><td>Primero / Ultimo</td></tr>
<tr><td>Insert</td><td>Nuevo</td></tr>
<tr><td>F2</td><td>Modificar</td></tr>
<tr><td>F10</td><td>Aceptar</td></tr>
<tr><td>F1</td><td>Ayuda</td></tr>
</table>
<p>Una tecla solo actúa cuando su botón está visible y activo.</p>

<h2>Botones desactivados</h2>
<p>Si un botón aparece en gris, el empleado de este terminal no tiene permiso para usarlo. Lo
asigna el encargado en la gestión de empleados.</p>

<h2>Mensajes</h2>
<table>
<tr><th>Mensaje</th><th>Qué hacer</th></tr>
<tr><td class="mensaje">Antes de dar de alta productos tiene que dar de alta algun proveedor</td>
<td>Dé de alta un proveedor en la gestión de proveedores.</td></tr>
<tr><td class="mensaje">La descripción corta ya existe, por favor introduzca otra.</td>
<td>Otro producto en uso tiene ese nombre: cámbielo.</td></tr>
<tr><td class="mensaje">La descripción numérica ya existe, por favor introduzca otra.</td>
<td>Otro producto de la caja usa ese número: acepte el que se propone o escriba otro.</td></tr>
<tr><td class="mensaje">El codigo de barras ya existe.</td>
<td>Ese código de barras es de otro producto, aunque esté eliminado.</td></tr>
<tr><td class="mensaje">Debe establecer valor para todos los campos requeridos</td>
<td>Sigue al aviso del campo que falta (nombre, coste, IVA, stock mínimo, precio, unidad de medida,
proveedor o lugar de preparación).</td></tr>
<tr><td class="mensaje">Debe Indicar Antes una Cantidad para el coste y para el iva</td>
<td>Escriba el coste y el IVA antes del margen.</td></tr>
<tr><td class="mensaje">El archivo seleccionado es demasiado grande, ...</td>
<td>Elija una imagen de 75 kb como máximo.</td></tr>
</table>
)html"_s;

const QString kElaborados =
    uR"html(
<p>Un producto elaborado se prepara a partir de otros productos del catálogo, sus componentes: un
mojito lleva ron, lima, hierbabuena y azúcar; un pincho de tortilla lleva patatas, huevos, cebolla
y aceite. La receta permite llevar el consumo de los componentes.</p>

<h2>La pantalla</h2>
<ul>
<li>A la izquierda, la lista de <b>productos elaborados</b>; toque uno para verlo.</li>
<li>En el centro, los datos del producto: nombre, descripción, foto, color, coste, IVA, precio,
descripción numérica, posición en la caja y si se prepara en cocina o en barra.</li>
<li>A la derecha, la lista de <b>componentes posibles</b> y debajo la de <b>componentes
elegidos</b>, cada uno con su cantidad entre paréntesis.</li>
</ul>

<h2>Crear un producto elaborado</h2>
<ol>
<li>Pulse <span class="boton">Nuevo</span>. Aparece <i>Seleccione el componente a utilizar:</i> y
la lista de componentes posibles.</li>
<li>Escriba el nombre, la descripción, el coste, el IVA y el precio. Un producto elaborado no
tiene margen: el precio se escribe.</li>
<li>Filtre los componentes si lo necesita: <span class="boton">Producto de Cocina - Uso
Interno</span> muestra solo los ingredientes de uso interno y <span class="boton">Producto de
Venta - Barra</span> solo los productos de venta.</li>
<li>Pulse dos veces un componente. El programa pregunta, por ejemplo, <i>¿Cuantos Mojito podria
elaborar con un Litros de Ron blanco?</i> Escriba la respuesta (20) y pulse Intro. Con Esc se
descarta ese componente.</li>
<li>Repita con cada componente, elija la familia, el color y la foto, y pulse
<span class="boton">Aceptar</span>.</li>
</ol>
<div class="nota">La cantidad responde a cuántos productos elaborados salen de <b>una</b> unidad
de medida del componente (una unidad, un kilogramo o un litro), no a cuánto componente lleva un
producto. Si un litro de ron da para 20 mojitos, escriba 20.</div>

<h2>Modificar la receta</h2>
<p>Pulse <span class="boton">Modificar</span>, añada o quite componentes y acepte. Al aceptar se
guarda la receta completa tal como se ve en la lista de componentes elegidos.</p>

<h2>Posición en la caja</h2>
<p>Las flechas junto a la posición la suben o la bajan de uno en uno; la posición más baja es
0.</p>

<h2>Eliminar</h2>
<p><span class="boton">Eliminar</span> pide confirmación y retira el producto del programa y de la
caja. Su receta se conserva.</p>

<h2>Consejos</h2>
<ul>
<li>Dé de alta primero los ingredientes como productos de cocina/barra (uso interno, sin mostrar
en la caja) y después el producto elaborado.</li>
<li>Evite paréntesis en los nombres de los componentes: el programa lee la cantidad entre el
primer paréntesis y el siguiente.</li>
</ul>
)html"_s;

const QString kBuscar =
    uR"html(
<p>La búsqueda encuentra un producto por el principio de su nombre, de su proveedor o de su
familia y lo muestra en la pantalla de productos. Se abre con <span class="boton">Buscar</span>
desde la pantalla de productos simples y busca entre ellos (los productos elaborados tienen su
propia lista en su pantalla).</p>

<h2>Cómo buscar</h2>
<ol>
<li>Toque la casilla que quiera usar: <b>proveedor</b>, <b>familia</b> o <b>nombre</b>, y escriba
el principio del texto con el teclado de la pantalla o con el del ordenador. No hace falta
distinguir mayúsculas de minúsculas.</li>
<li>Puede rellenar varias casillas: se buscan los productos que cumplen todas.</li>
<li>Marque <b>sin asignar</b> para ver solo los productos que no tienen familia.</li>
<li>Pulse <span class="boton">Buscar</span> (o la tecla Intro del teclado del ordenador). Con
todas las casillas vacías se listan todos los productos en uso.</li>
<li>Toque un producto de la lista: la búsqueda se cierra y el producto aparece en la pantalla de
productos.</li>
</ol>

<h2>Ejemplos</h2>
<table>
<tr><th>Casillas</th><th>Resultado</th></tr>
<tr><td>nombre «caf»</td><td>Café solo, Café cortado, Café con leche...</td></tr>
<tr><td>proveedor «Bodegas»</td><td>los vinos de Bodegas Valdeolmos</td></tr>
<tr><td>familia «Rac» y nombre «ca»</td><td>Calamares a la romana</td></tr>
</table>

<h2>Otros botones</h2>
<ul>
<li><span class="boton">Limpiar</span> vacía las casillas.</li>
<li><span class="boton">Cerrar</span> vuelve a la pantalla de productos sin cambiar el producto
que se ve.</li>
</ul>
<div class="nota">No escriba apóstrofos (') en las casillas: la búsqueda no los admite y dará un
error.</div>
)html"_s;

const QString kSubproductos =
    uR"html(
<p>Los sub-productos son los productos que la caja ofrece junto con otro: al vender una
hamburguesa, la caja ofrece el extra de queso o de bacon; con un café con leche, la leche de
avena. En esta ventana, <b>Añadir Sub-Productos</b>, se elige el producto principal y la lista de
sus sub-productos.</p>

<h2>Cómo se usa</h2>
<ol>
<li>Toque una familia en el panel de familias: el panel de productos muestra sus productos. Con
las flechas del panel pasa de página.</li>
<li>Toque el <b>producto principal</b>. Su foto y su nombre aparecen arriba y la lista muestra sus
sub-productos actuales.</li>
<li>Toque los productos que quiera añadir; puede cambiar de familia para buscarlos. Un producto
que ya está en la lista no se añade dos veces.</li>
<li>Para quitar un sub-producto, tóquelo en la lista y pulse <span class="boton">Quitar</span>
(o la tecla Supr del teclado).</li>
<li>Pulse <span class="boton">Aceptar</span>. La lista sustituye a los sub-productos que tenía el
producto y verá <span class="mensaje">Ha terminado de incluir subproductos al producto</span>
seguido de su nombre.</li>
</ol>
<div class="nota">Si acepta con la lista vacía, el producto se queda sin sub-productos. Si una
familia no tiene productos para la caja, su panel aparece vacío.</div>

<h2>Otro producto principal</h2>
<p>Después de aceptar, o si se equivocó de producto, <b>toque la foto del producto principal</b>
(arriba a la derecha): la lista se vacía y el siguiente producto que toque será el nuevo producto
principal, con sus sub-productos. Los cambios que no haya aceptado no se guardan.</p>
<p>Con <span class="boton">Cerrar</span> sale de la ventana sin guardar nada más.</p>

<h2>Qué productos aparecen</h2>
<p>Solo los productos en uso que se muestran en la caja. Para ofrecer un suplemento como
sub-producto, dé de alta primero el suplemento como producto de venta, con su familia y marcado
para mostrarse en la pantalla de venta.</p>
)html"_s;

}  // namespace

QList<PaginaAyuda> PaginasAyuda() {
  const QList<QPair<QString, QPair<QString, QString>>> paginas = {
      {u"A_Productos.html"_s, {u"Mantenimiento de productos"_s, kProductos}},
      {u"A_ProductosElaborados.html"_s, {u"Productos elaborados"_s, kElaborados}},
      {u"A_Buscar.html"_s, {u"Buscar productos"_s, kBuscar}},
      {u"A_SubProductos.html"_s, {u"Añadir sub-productos"_s, kSubproductos}},
  };
  QList<PaginaAyuda> r;
  for (const auto& [archivo, contenido] : paginas) {
    r.append({archivo, contenido.first, Pagina(contenido.first, contenido.second)});
  }
  return r;
}

void EscribirAyuda(const QString& carpeta) {
  for (const PaginaAyuda& p : PaginasAyuda()) {
    QFile archivo(QDir(carpeta).filePath(p.archivo));
    const QByteArray bytes = p.html.toUtf8();
    if (!archivo.open(QIODevice::WriteOnly) || archivo.write(bytes) != bytes.size()) {
      throw std::runtime_error("cannot write the help page " + p.archivo.toStdString());
    }
  }
}
