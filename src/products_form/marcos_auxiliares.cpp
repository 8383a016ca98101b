#include "marcos_auxiliares.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QPushButton>

#include "disenio.h"
#include "lineas_productos.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kAlto = disenio::kAltoToque;

QGroupBox* Marco(QWidget* padre, const QString& nombre, const QString& titulo, const QRect& g) {
  QGroupBox* m = CrearMarco(padre, nombre, titulo, g);
  m->setFlat(false);
  PonerLetra(m, disenio::kLetraTitulo, true);
  return m;
}

// Frames inherit the title's bold type; their controls read in the ordinary type.
template <typename T>
T* Normal(T* control) {
  PonerLetra(control, disenio::kLetra);
  return control;
}

void CrearColores(MarcosAuxiliares& m, QWidget* f) {
  m.fr_Mensaje = Marco(f, u"fr_Mensaje"_s, u"Atención"_s, QRect(200, 150, 624, 120));
  m.lblMensaje = Normal(CrearEtiqueta(m.fr_Mensaje, u"lblMensaje"_s,
                                      u"Elija el color del botón del producto en la caja."_s,
                                      QRect(16, 36, 592, 72)));
  m.lblMensaje->setWordWrap(true);
  m.fr_colores = Marco(f, u"fr_colores"_s, u"Color"_s, QRect(700, 260, 316, 140));
  m.lbl_colores =
      Normal(CrearEtiqueta(m.fr_colores, u"lbl_colores"_s,
                           u"Elija el color en la ventana de colores."_s, QRect(12, 36, 292, 92)));
  m.lbl_colores->setWordWrap(true);
}

void CrearProveedores(MarcosAuxiliares& m, QWidget* f) {
  m.frProveedores = Marco(f, u"frProveedores"_s, u"Proveedores"_s, QRect(80, 40, 864, 470));
  QWidget* p = m.frProveedores;
  m.lblProducto = Normal(CrearDato(p, u"lblProducto"_s, QString(), QRect(16, 36, 832, 36)));
  PonerLetra(m.lblProducto, disenio::kLetraTitulo, true);
  m.lbl_Disponibles = Normal(CrearEtiqueta(
      p, u"lbl_Disponibles"_s, u"Sin asignar: toque para asignar"_s, QRect(16, 76, 404, 30)));
  m.lb_Proveedores = Normal(CrearLista(p, u"lb_Proveedores"_s, QRect(16, 108, 404, 290)));
  m.lbl_Asignados = Normal(CrearEtiqueta(p, u"lbl_Asignados"_s, u"Asignados: toque para quitar"_s,
                                         QRect(444, 76, 404, 30)));
  m.lb_ProveedoresAsignados =
      Normal(CrearLista(p, u"lb_ProveedoresAsignados"_s, QRect(444, 108, 404, 290)));
  m.cmd_AceptarProveedor =
      Normal(CrearBoton(p, u"cmd_AceptarProveedor"_s, u"Aceptar"_s, QRect(488, 410, 176, 48)));
  m.cmd_CancelarProveedor =
      Normal(CrearBoton(p, u"cmd_CancelarProveedor"_s, u"Cancelar"_s, QRect(672, 410, 176, 48)));
}

void CrearImpresoras(MarcosAuxiliares& m, QWidget* f) {
  m.frImpresoras =
      Marco(f, u"frImpresoras"_s, u"Impresoras Especificas"_s, QRect(232, 60, 560, 440));
  QWidget* p = m.frImpresoras;
  m.lb_impresoras = Normal(CrearLista(p, u"lb_impresoras"_s, QRect(16, 40, 528, 324)));
  m.lbCodigos = Normal(CrearLista(p, u"lbCodigos"_s, QRect(16, 40, 528, 324)));
  m.lbCodigos->hide();
  m.Command3 = Normal(CrearBoton(p, u"Command3"_s, u"Aceptar"_s, QRect(16, 378, 168, 48)));
  m.Command5 = Normal(CrearBoton(p, u"Command5"_s, u"Ninguna"_s, QRect(196, 378, 168, 48)));
  m.cmdCerrarImpresoras =
      Normal(CrearBoton(p, u"cmdCerrarImpresoras"_s, u"Cerrar"_s, QRect(376, 378, 168, 48)));
}

void CrearListaProductos(MarcosAuxiliares& m, QWidget* f) {
  m.frListaProductos = Marco(f, u"frListaProductos"_s, u"Productos"_s, QRect(180, 30, 664, 480));
  QWidget* p = m.frListaProductos;
  m.lstProductos =
      Normal(CrearLista(p, u"lstProductos"_s, QRect(16, 40, 632, 364), new ModeloLineas));
  m.cmdCocina = Normal(CrearBoton(p, u"cmdCocina"_s, u"Cocina"_s, QRect(16, 418, 200, 48)));
  m.cmdBarra = Normal(CrearBoton(p, u"cmdBarra"_s, u"Barra"_s, QRect(228, 418, 200, 48)));
}

void CrearCantidad(MarcosAuxiliares& m, QWidget* f) {
  // Over the lists of the elaborated screen, where the component was just chosen.
  m.fr_Cantidad = Marco(f, u"fr_Cantidad"_s, u"Cantidad"_s, QRect(120, 230, 576, 210));
  m.lbl_Cantidad =
      Normal(CrearEtiqueta(m.fr_Cantidad, u"lbl_Cantidad"_s, QString(), QRect(16, 36, 544, 88)));
  m.lbl_Cantidad->setWordWrap(true);
  m.txt_Cantidad = Normal(CrearCampo(m.fr_Cantidad, u"txt_Cantidad"_s, QRect(16, 136, 200, kAlto)));
  m.txt_Cantidad->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  // Escape's touch: the component goes out of the recipe.
  m.cmd_QuitarComponente = Normal(
      CrearBoton(m.fr_Cantidad, u"cmd_QuitarComponente"_s, u"Quitar"_s, QRect(232, 136, 168, 48)));
}

}  // namespace

MarcosAuxiliares CrearMarcosAuxiliares(QWidget* formulario) {
  MarcosAuxiliares m;
  CrearColores(m, formulario);
  CrearProveedores(m, formulario);
  CrearImpresoras(m, formulario);
  CrearListaProductos(m, formulario);
  CrearCantidad(m, formulario);
  m.lblNomProd = CrearEtiqueta(formulario, u"lblNomProd"_s, QString(), QRect(8, 566, 580, 48));
  m.lblNomProd->setWordWrap(true);
  return m;
}

void MostrarMarco(QWidget* marco) {
  marco->show();
  marco->raise();
}
