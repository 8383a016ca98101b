#include "pantalla_elaborados.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

#include "disenio.h"
#include "lineas_productos.h"
#include "panel_obj_nuevo.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kAlto = disenio::kAltoToque;
constexpr int Fila(int n) {
  return 8 + 50 * n;
}
constexpr int kCampoX = 144;
constexpr int kColumnaX = 700;
constexpr int kColumnaAncho = 316;
constexpr int kListasY = 212;

void CrearDatos(PantallaElaborados& p, QWidget* pantalla) {
  p.fr_DatosProdElab =
      CrearMarco(pantalla, u"fr_DatosProdElab"_s, QString(), QRect(0, 0, 696, kListasY - 4));
  QWidget* m = p.fr_DatosProdElab;
  p.lbl_NombreElaborado =
      CrearEtiqueta(m, u"lbl_NombreElaborado"_s, u"Nombre"_s, QRect(8, Fila(0), 130, kAlto));
  p.txt_NombreElaborado =
      CrearCampo(m, u"txt_NombreElaborado"_s, QRect(kCampoX, Fila(0), 360, kAlto));
  p.lbl_ProductoElaborado = CrearDato(m, u"lbl_ProductoElaborado"_s, u"Nuevo elaborado"_s,
                                      QRect(512, Fila(0), 180, kAlto));
  p.lbl_ProductoElaborado->hide();
  p.lbl_DescElaborado =
      CrearEtiqueta(m, u"lbl_DescElaborado"_s, u"Descripción"_s, QRect(8, Fila(1), 130, kAlto));
  p.txt_DescElaborado = CrearCampo(m, u"txt_DescElaborado"_s, QRect(kCampoX, Fila(1), 548, kAlto));

  p.lbl_costeElaborado =
      CrearEtiqueta(m, u"lbl_costeElaborado"_s, u"Coste"_s, QRect(8, Fila(2), 130, kAlto));
  p.txt_costeElaborado =
      CrearCampo(m, u"txt_costeElaborado"_s, QRect(kCampoX, Fila(2), 120, kAlto));
  p.lbl_ImpuestoElaborado =
      CrearEtiqueta(m, u"lbl_ImpuestoElaborado"_s, u"IVA"_s, QRect(276, Fila(2), 44, kAlto));
  p.txt_ImpuestoElaborado =
      CrearCampo(m, u"txt_ImpuestoElaborado"_s, QRect(322, Fila(2), 90, kAlto));
  p.lbl_percentElab =
      CrearEtiqueta(m, u"lbl_percentElab"_s, u"%"_s, QRect(416, Fila(2), 20, kAlto));
  p.lbl_PrecioElaborado =
      CrearEtiqueta(m, u"lbl_PrecioElaborado"_s, u"Precio"_s, QRect(448, Fila(2), 64, kAlto));
  p.txt_PrecioElaborado = CrearCampo(m, u"txt_PrecioElaborado"_s, QRect(516, Fila(2), 176, kAlto));
  for (QLineEdit* importe :
       {p.txt_costeElaborado, p.txt_ImpuestoElaborado, p.txt_PrecioElaborado}) {
    importe->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  }

  p.lblPreparadoElab =
      CrearEtiqueta(m, u"lblPreparadoElab"_s, u"Se prepara en"_s, QRect(8, Fila(3), 130, kAlto));
  p.optCocinaElab =
      CrearOpcion(m, u"optCocinaElab"_s, u"Cocina"_s, QRect(kCampoX, Fila(3), 120, kAlto));
  p.optBarraElab = CrearOpcion(m, u"optBarraElab"_s, u"Barra"_s, QRect(268, Fila(3), 110, kAlto));
  AgruparOpciones({p.optCocinaElab, p.optBarraElab});
  p.cmdImpresorasElab =
      CrearBoton(m, u"cmdImpresorasElab"_s, u"Impresora"_s, QRect(482, Fila(3), 210, kAlto));
}

void CrearListas(PantallaElaborados& p, QWidget* m) {
  p.lblProdASel =
      CrearDato(m, u"lblProdASel"_s, u"Productos elaborados"_s, QRect(8, kListasY, 684, 32));
  PonerLetra(p.lblProdASel, disenio::kLetraTitulo, true);
  const int y = kListasY + 34;
  p.lbl_Elaborados = CrearEtiqueta(m, u"lbl_Elaborados"_s, u"Elaborados"_s, QRect(8, y, 210, 28));
  p.lb_ProductosElaborados =
      CrearLista(m, u"lb_ProductosElaborados"_s, QRect(8, y + 30, 210, 176), new ModeloLineas);
  p.lbl_Candidatos =
      CrearEtiqueta(m, u"lbl_Candidatos"_s, u"Componentes"_s, QRect(226, y, 236, 28));
  p.lb_Productos = CrearLista(m, u"lb_Productos"_s, QRect(226, y + 30, 236, 176), new ModeloLineas);
  p.bt_flecha = CrearBoton(m, u"bt_flecha"_s, QString(QChar(0x25B6)), QRect(468, y + 80, 44, 80));
  p.lbl_Componentes = CrearEtiqueta(m, u"lbl_Componentes"_s, u"Receta"_s, QRect(518, y, 174, 28));
  p.lb_ProductosSel = CrearLista(m, u"lb_ProductosSel"_s, QRect(518, y + 30, 174, 176));

  p.cmdCVenta =
      CrearBoton(m, u"cmdCVenta"_s, u"Producto de Venta - Barra"_s, QRect(8, 458, 336, kAlto));
  p.cmdCInterno = CrearBoton(m, u"cmdCInterno"_s, u"Producto de Cocina - Uso Interno"_s,
                             QRect(352, 458, 340, kAlto));

  // Covers the lists while a new product has no price yet; placed below the zone frame.
  p.frOcultar = CrearMarco(m, u"frOcultar"_s, QString(), QRect(0, kListasY - 4, 696, 300));
  p.frOcultar->hide();
}

void CrearBotonCaja(PantallaElaborados& p, QWidget* m) {
  const ColumnaBotonCaja c = CrearColumnaBotonCaja(
      m, {u"lbl_FamiliaElab"_s, u"lblNomFamilia_elab"_s, u"PanelFamilias_Elab"_s,
          u"pic_ProductoElaborado"_s, u"lbl_InsertarElab"_s, u"pic_Color"_s, u"lbl_colorElab"_s,
          u"lbl_DescNumElab"_s, u"txtDescNumerica"_s, u"lbl_PosElab"_s, u"bt_antpelab"_s,
          u"lblpospelab"_s, u"bt_sigpelab"_s});
  p.lbl_FamiliaElab = c.lblFamilia;
  p.lblNomFamilia_elab = c.nombreFamilia;
  p.PanelFamilias_Elab = c.panel;
  p.pic_ProductoElaborado = c.imagen;
  p.lbl_InsertarElab = c.insertar;
  p.pic_Color = c.color;
  p.lbl_colorElab = c.lblColor;
  p.lbl_DescNumElab = c.lblDescNumerica;
  p.txtDescNumerica = c.descNumerica;
  p.lbl_PosElab = c.lblPosicion;
  p.bt_antpelab = c.anterior;
  p.lblpospelab = c.posicion;
  p.bt_sigpelab = c.siguiente;
  p.Command4 = CrearBoton(m, u"Command4"_s, u"Subproductos"_s, QRect(kColumnaX, 568, 316, kAlto));
}

void CrearOrdenes(PantallaElaborados& p, QWidget* m) {
  const QList<std::pair<QPushButton**, std::pair<QString, QString>>> ordenes = {
      {&p.cmd_NuevoProdEla, {u"cmd_NuevoProdEla"_s, u"Nuevo"_s}},
      {&p.cmd_ModificarProdEla, {u"cmd_ModificarProdEla"_s, u"Modificar"_s}},
      {&p.cmd_EliminarProdEla, {u"cmd_EliminarProdEla"_s, u"Eliminar"_s}},
      {&p.cmd_AceptarProdEl, {u"cmd_AceptarProdEl"_s, u"Aceptar"_s}},
      {&p.cmd_CancelarProdEl, {u"cmd_CancelarProdEl"_s, u"Cancelar"_s}},
      {&p.Boton_SM2, {u"Boton_SM2"_s, u"Precios"_s}},
      {&p.cmd_AyudaProdEla, {u"cmd_AyudaProdEla"_s, u"Ayuda"_s}},
      {&p.cmd_SalirProdEla, {u"cmd_SalirProdEla"_s, u"Salir"_s}},
  };
  int x = 8;
  for (const auto& [boton, nombre] : ordenes) {
    *boton = CrearBoton(m, nombre.first, nombre.second, QRect(x, 512, 122, 48));
    PonerLetra(*boton, disenio::kLetra, true);
    x += 126;
  }
}

void CrearAvisos(PantallaElaborados& p, QWidget* m) {
  const AvisosPantalla a =
      CrearAvisosPantalla(m, {u"fr_mensajeNombrePElab"_s, u"lblMensNombrePElab"_s,
                              u"fr_mensajeNumeroPElab"_s, u"lblDescNumPElab"_s});
  p.fr_mensajeNombrePElab = a.marcoNombre;
  p.lblMensNombrePElab = a.nombre;
  p.fr_mensajeNumeroPElab = a.marcoNumero;
  p.lblDescNumPElab = a.numero;
}

}  // namespace

PantallaElaborados CrearPantallaElaborados(QWidget* formulario) {
  PantallaElaborados p;
  p.fr_ProductosElaborados = CrearMarco(formulario, u"fr_ProductosElaborados"_s, QString(),
                                        QRect(0, 0, disenio::kAncho, disenio::kAltoPantalla));
  QWidget* m = p.fr_ProductosElaborados;
  CrearDatos(p, m);
  CrearListas(p, m);
  CrearBotonCaja(p, m);
  CrearOrdenes(p, m);
  CrearAvisos(p, m);
  return p;
}
