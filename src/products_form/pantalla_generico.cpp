#include "pantalla_generico.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "disenio.h"
#include "panel_obj_nuevo.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kAlto = disenio::kAltoToque;
// Rows of the left column: one step of a new product each.
constexpr int Fila(int n) {
  return 8 + 50 * n;
}
constexpr int kCampoX = 144;  // fields start after their caption
constexpr int kColumnaX = 700;
constexpr int kColumnaAncho = 316;
constexpr int kFilaOrdenes = 512;

void CrearDatos(PantallaGenerico& p, QWidget* m) {
  p.lbl_nombre = CrearEtiqueta(m, u"lbl_nombre"_s, u"Nombre"_s, QRect(8, Fila(0), 130, kAlto));
  p.txt_nombre = CrearCampo(m, u"txt_nombre"_s, QRect(kCampoX, Fila(0), 548, kAlto));
  p.lbl_CodBarras =
      CrearEtiqueta(m, u"lbl_CodBarras"_s, u"Cód. barras"_s, QRect(8, Fila(1), 130, kAlto));
  p.txtCodBarras = CrearCampo(m, u"txtCodBarras"_s, QRect(kCampoX, Fila(1), 190, kAlto));
  p.lbl_descripcion =
      CrearEtiqueta(m, u"lbl_descripcion"_s, u"Descripción"_s, QRect(346, Fila(1), 112, kAlto));
  p.txt_descripcion = CrearCampo(m, u"txt_descripcion"_s, QRect(460, Fila(1), 232, kAlto));
  p.lbl_Proveedor =
      CrearEtiqueta(m, u"lbl_Proveedor"_s, u"Proveedores"_s, QRect(8, Fila(2), 130, kAlto));
  p.cmd_Proveedor = CrearBoton(m, u"cmd_Proveedor"_s, u"Seleccione sus proveedores"_s,
                               QRect(kCampoX, Fila(2), 548, kAlto));

  p.lbl_Medida = CrearEtiqueta(m, u"lbl_Medida"_s, u"Unidad"_s, QRect(8, Fila(3), 130, kAlto));
  p.cbo_Medida = CrearCombo(m, u"cbo_Medida"_s, QRect(kCampoX, Fila(3), 190, kAlto));
  p.lbl_MedidaAyuda = CrearEtiqueta(m, u"lbl_MedidaAyuda"_s, u"Cómo se vende y se cuenta"_s,
                                    QRect(346, Fila(3), 346, kAlto));
  p.Label6 = CrearEtiqueta(m, u"Label6"_s, u"Tipo"_s, QRect(8, Fila(4), 130, kAlto));
  p.opt_Venta =
      CrearOpcion(m, u"opt_Venta"_s, u"Producto de venta"_s, QRect(kCampoX, Fila(4), 184, kAlto));
  p.opt_cocina = CrearOpcion(m, u"opt_cocina"_s, u"Producto de cocina/barra"_s,
                             QRect(332, Fila(4), 236, kAlto));
  p.opt_ambos = CrearOpcion(m, u"opt_ambos"_s, u"Ambos"_s, QRect(576, Fila(4), 116, kAlto));
  AgruparOpciones({p.opt_Venta, p.opt_cocina, p.opt_ambos});
}

void CrearImportes(PantallaGenerico& p, QWidget* m) {
  p.lbl_coste = CrearEtiqueta(m, u"lbl_coste"_s, u"Coste"_s, QRect(8, Fila(5), 130, kAlto));
  p.txt_coste = CrearCampo(m, u"txt_coste"_s, QRect(kCampoX, Fila(5), 140, kAlto));
  p.lbl_iva = CrearEtiqueta(m, u"lbl_iva"_s, u"IVA"_s, QRect(300, Fila(5), 70, kAlto));
  p.txt_iva = CrearCampo(m, u"txt_iva"_s, QRect(374, Fila(5), 100, kAlto));
  p.lbl_percent = CrearEtiqueta(m, u"lbl_percent"_s, u"%"_s, QRect(478, Fila(5), 24, kAlto));
  p.lbl_margen = CrearEtiqueta(m, u"lbl_margen"_s, u"Margen"_s, QRect(8, Fila(6), 130, kAlto));
  p.txt_margen = CrearCampo(m, u"txt_margen"_s, QRect(kCampoX, Fila(6), 140, kAlto));
  p.lbl_precio = CrearEtiqueta(m, u"lbl_precio"_s, u"Precio"_s, QRect(300, Fila(6), 70, kAlto));
  p.txt_precio = CrearCampo(m, u"txt_precio"_s, QRect(374, Fila(6), 140, kAlto));
  for (QLineEdit* importe : {p.txt_coste, p.txt_iva, p.txt_margen, p.txt_precio}) {
    importe->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  }

  p.lbl_stock_minimo =
      CrearEtiqueta(m, u"lbl_stock_minimo"_s, u"Stock mínimo"_s, QRect(8, Fila(7), 130, kAlto));
  p.txt_stock_minimo = CrearCampo(m, u"txt_stock_minimo"_s, QRect(kCampoX, Fila(7), 100, kAlto));
  p.Label16 = CrearEtiqueta(m, u"Label16"_s, u"Stock actual"_s, QRect(300, Fila(7), 110, kAlto));
  p.txt_stock_actual = CrearCampo(m, u"txt_stock_actual"_s, QRect(414, Fila(7), 100, kAlto));
  for (QLineEdit* cantidad : {p.txt_stock_minimo, p.txt_stock_actual}) {
    cantidad->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  }
}

void CrearServicio(PantallaGenerico& p, QWidget* m) {
  p.lblPreparado =
      CrearEtiqueta(m, u"lblPreparado"_s, u"Se prepara en"_s, QRect(8, Fila(8), 130, kAlto));
  p.optCocina = CrearOpcion(m, u"optCocina"_s, u"Cocina"_s, QRect(kCampoX, Fila(8), 120, kAlto));
  p.optBarra = CrearOpcion(m, u"optBarra"_s, u"Barra"_s, QRect(268, Fila(8), 110, kAlto));
  AgruparOpciones({p.optCocina, p.optBarra});
  p.cmdImpresoras =
      CrearBoton(m, u"cmdImpresoras"_s, u"Impresora"_s, QRect(482, Fila(8), 210, kAlto));

  p.frMostrarCaja =
      CrearMarco(m, u"frMostrarCaja"_s, QString(), QRect(4, Fila(9) - 4, 290, kAlto + 6));
  p.ch_Mostrar = CrearCasilla(p.frMostrarCaja, u"ch_Mostrar"_s, u"Mostrar en Pantalla de Venta"_s,
                              QRect(4, 3, 282, kAlto));
  p.chkProdEspecial = CrearCasilla(m, u"chkProdEspecial"_s, u"Producto Entrada / Ropero"_s,
                                   QRect(300, Fila(9), 258, kAlto));
  p.Command1 = CrearBoton(m, u"Command1"_s, u"Subproductos"_s, QRect(560, Fila(9), 132, kAlto));
  p.frlogo1 = CrearMarco(m, u"frlogo1"_s, QString(), QRect(8, Fila(10) - 4, 684, 4));
}

void CrearBotonCaja(PantallaGenerico& p, QWidget* m) {
  const ColumnaBotonCaja c = CrearColumnaBotonCaja(
      m,
      {u"lbl_Familia"_s, u"lblnomFamilia"_s, u"PanelFamilias"_s, u"pict_imagen"_s,
       u"lbl_Insertar"_s, u"pic_ColorPG"_s, u"lbl_color"_s, u"Label14"_s, u"txtDescNumericaPGen"_s,
       u"Lbl_Posicion"_s, u"bt_botonAnt"_s, u"lblPos"_s, u"bt_botonSig"_s});
  p.lbl_Familia = c.lblFamilia;
  p.lblnomFamilia = c.nombreFamilia;
  p.PanelFamilias = c.panel;
  p.pict_imagen = c.imagen;
  p.lbl_Insertar = c.insertar;
  p.pic_ColorPG = c.color;
  p.lbl_color = c.lblColor;
  p.Label14 = c.lblDescNumerica;
  p.txtDescNumericaPGen = c.descNumerica;
  p.Lbl_Posicion = c.lblPosicion;
  p.bt_botonAnt = c.anterior;
  p.lblPos = c.posicion;
  p.bt_botonSig = c.siguiente;
}

void CrearOrdenes(PantallaGenerico& p, QWidget* m) {
  const QList<std::pair<QPushButton**, std::pair<QString, QString>>> ordenes = {
      {&p.cmd_nuevo, {u"cmd_nuevo"_s, u"Nuevo"_s}},
      {&p.cmd_modificar, {u"cmd_modificar"_s, u"Modificar"_s}},
      {&p.cmd_eliminar, {u"cmd_eliminar"_s, u"Eliminar"_s}},
      {&p.cmd_aceptar, {u"cmd_aceptar"_s, u"Aceptar"_s}},
      {&p.cmd_cancelar, {u"cmd_cancelar"_s, u"Cancelar"_s}},
      {&p.cmd_buscar, {u"cmd_buscar"_s, u"Buscar"_s}},
      {&p.cmd_ListaProd, {u"cmd_ListaProd"_s, u"Lista"_s}},
      {&p.cmd_ayuda, {u"cmd_ayuda"_s, u"Ayuda"_s}},
      {&p.cmd_salir, {u"cmd_salir"_s, u"Salir"_s}},
  };
  int x = 8;
  for (const auto& [boton, nombre] : ordenes) {
    *boton = CrearBoton(m, nombre.first, nombre.second, QRect(x, kFilaOrdenes, 108, 48));
    PonerLetra(*boton, disenio::kLetra, true);
    x += 112;
  }

  p.frFlechasGen = CrearMarco(m, u"frFlechasGen"_s, QString(), QRect(596, 564, 420, 52));
  const QStringList flechas = {u"Primero"_s, u"Anterior"_s, u"Siguiente"_s, u"Ultimo"_s};
  for (int i = 0; i < flechas.size(); ++i) {
    QPushButton* b = CrearBoton(p.frFlechasGen, u"bt_botones_%1"_s.arg(i), flechas.at(i),
                                QRect(i * 106, 4, 102, kAlto));
    b->setProperty("indice", i);
    p.bt_botones.append(b);
  }
}

void CrearAvisos(PantallaGenerico& p, QWidget* m) {
  // The name hint lies over the second and third steps, just under the name it speaks of.
  const AvisosPantalla a = CrearAvisosPantalla(
      m, {u"fr_MensajeNombre"_s, u"lblMensNombre"_s, u"fr_Mensajenumero"_s, u"lblMensajeNumero"_s});
  p.fr_MensajeNombre = a.marcoNombre;
  p.lblMensNombre = a.nombre;
  p.fr_Mensajenumero = a.marcoNumero;
  p.lblMensajeNumero = a.numero;
}

}  // namespace

PantallaGenerico CrearPantallaGenerico(QWidget* formulario) {
  PantallaGenerico p;
  p.fr_ProductoGenerico = CrearMarco(formulario, u"fr_ProductoGenerico"_s, QString(),
                                     QRect(0, 0, disenio::kAncho, disenio::kAltoPantalla));
  QWidget* m = p.fr_ProductoGenerico;
  CrearDatos(p, m);
  CrearImportes(p, m);
  CrearServicio(p, m);
  CrearBotonCaja(p, m);
  CrearOrdenes(p, m);

  // The cover starts below the suppliers, the step that a new product begins with, and ends at
  // the logo frame; it is shown by a new product only.
  p.frOcultarGen =
      CrearMarco(m, u"frOcultarGen"_s, QString(), QRect(0, Fila(3) - 4, 696, Fila(10) - Fila(3)));
  p.frOcultarGen->hide();
  QLabel* aviso = CrearEtiqueta(p.frOcultarGen, u"lbl_OcultarGen"_s,
                                u"Complete primero los datos de arriba: los siguientes aparecen "
                                "paso a paso."_s,
                                QRect(40, 120, 616, 80));
  aviso->setAlignment(Qt::AlignCenter);
  aviso->setWordWrap(true);
  CrearAvisos(p, m);
  return p;
}
