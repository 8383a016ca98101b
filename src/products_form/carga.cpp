#include "carga.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QGuiApplication>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <exception>
#include <functional>

#include "carga_dialogo.h"
#include "color_vb.h"
#include "colorear.h"
#include "entorno.h"
#include "error_bd.h"
#include "estado_formulario.h"
#include "idiomas.h"
#include "impresoras_producto.h"
#include "panel_obj_nuevo.h"
#include "paneles.h"
#include "permisos.h"
#include "utilidades.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kAltoDiseno = 768;
constexpr float kAltoPanelPantallaPequena = 300;
constexpr int kElementoFondoEntrada = 6;

void Paso(Entorno& entorno, const std::function<void()>& paso) {
  try {
    paso();
  } catch (const ErrorBD& e) {
    entorno.RegistrarError(u"frmProductos1024_Load"_s, e.descripcion());
  } catch (const std::exception& e) {
    entorno.RegistrarError(u"frmProductos1024_Load"_s, QString::fromLocal8Bit(e.what()));
  }
}

void MostrarMarcos(ControlesFormulario& c) {
  for (QWidget* marco : std::initializer_list<QWidget*>{
           c.inicial.fr_Inicial, c.gen.fr_ProductoGenerico, c.elab.fr_ProductosElaborados,
           c.marcos.fr_Cantidad, c.marcos.fr_Mensaje, c.marcos.fr_colores, c.gen.fr_Mensajenumero,
           c.gen.fr_MensajeNombre, c.elab.fr_mensajeNumeroPElab, c.elab.fr_mensajeNombrePElab,
           c.marcos.frProveedores}) {
    marco->setVisible(true);
  }
}

// The panels lose height on a screen smaller than the design.
void AjustarPanelesPantallaPequena(ControlesFormulario& c) {
  const QScreen* pantalla = QGuiApplication::primaryScreen();
  if (!pantalla || pantalla->size().height() >= kAltoDiseno)
    return;
  c.gen.PanelFamilias->set_alto_principal(kAltoPanelPantallaPequena);
  c.elab.PanelFamilias_Elab->set_alto_principal(kAltoPanelPantallaPequena);
}

void colorearme(Entorno& entorno, EstadoFormulario& estado, ControlesFormulario& c,
                QWidget* formulario) {
  Colorear colorear(entorno);
  colorear.colorear(formulario);
  estado.colorFoco = ColorDesdeTexto(colorear.get_ColorFoco());
  const QStringList esquema = colorear.esquemaTerminal().split(u'|');
  if (esquema.size() > kElementoFondoEntrada) {
    estado.colorCampo = ColorDesdeTexto(esquema.at(kElementoFondoEntrada));
  }
  ColorearPaneles(colorear, {c.gen.PanelFamilias, c.elab.PanelFamilias_Elab});
}

}  // namespace

void ExcepcionesSegunPrograma(Entorno& entorno, PantallaGenerico& gen) {
  const Sesion& s = entorno.sesion;
  // The two tests are independent; the first deliberately joins the installation's program
  // type with the one of the reports source.
  if (s.tipo_programa == u"FASTFOOD"_s && s.TipoProgramaInformes == u"RESTAURANTE"_s) {
    gen.chkProdEspecial->setText(u"Producto Ropero"_s);
  }
  if (s.TipoProgramaInformes == u"FASTFOOD"_s)
    gen.chkProdEspecial->hide();
}

void cargarimpresorasdisponibles(Entorno& entorno, EstadoFormulario& estado,
                                 ControlesFormulario& c) {
  const ImpresorasDisponibles impresoras = CargarImpresorasDisponibles(entorno);
  c.marcos.lb_impresoras->clear();
  c.marcos.lbCodigos->clear();
  c.marcos.lb_impresoras->addItems(impresoras.nombres);
  c.marcos.lbCodigos->addItems(impresoras.codigos);
  c.gen.cmdImpresoras->setVisible(impresoras.mostrarBotones);
  c.elab.cmdImpresorasElab->setVisible(impresoras.mostrarBotones);
  estado.numImpresoras = static_cast<qint16>(impresoras.cantidad);
}

void CargarPanelFamilias(Entorno& entorno, ControlesFormulario& c, TablasPanel& tablas) {
  CargarFamilias(entorno, tablas);
  c.gen.PanelFamilias->limpiar();
  c.elab.PanelFamilias_Elab->limpiar();
  LlenarPanel(c.gen.PanelFamilias, tablas.familias, entorno.sesion.ColorPanelFamilias);
  LlenarPanel(c.elab.PanelFamilias_Elab, tablas.familias, entorno.sesion.ColorPanelFamilias);
}

void CargarFormulario(Entorno& entorno, EstadoFormulario& estado, ControlesFormulario& c,
                      TablasPanel& tablas, QWidget* formulario) {
  Paso(entorno, [&] { MostrarMarcos(c); });
  Paso(entorno, [&] { AjustarPanelesPantallaPequena(c); });
  Paso(entorno, [&] { colorearme(entorno, estado, c, formulario); });
  Paso(entorno, [&] { entorno.sesion.tipo_programa = LeerTipoPrograma(entorno); });
  estado.permisos = EstadoFormulario::Permisos{};
  Paso(entorno, [&] { RegistrarEntrada(entorno, formulario, entorno.sesion.EmpleadoActual); });
  if (entorno.sesion.idioma != u"CASTELLANO"_s) {
    Paso(entorno, [&] { TraducirFormulario(entorno, formulario); });
  }
  Paso(entorno, [&] { ExcepcionesSegunPrograma(entorno, c.gen); });
  Paso(entorno, [&] { AjustarFormulario(entorno, formulario); });
  Paso(entorno, [&] { cargarimpresorasdisponibles(entorno, estado, c); });
  Paso(entorno, [&] {
    c.gen.cbo_Medida->clear();
    c.gen.cbo_Medida->addItems({u"Unidades"_s, u"Kilogramos"_s, u"Litros"_s});
    c.gen.cbo_Medida->setCurrentIndex(-1);
  });
  Paso(entorno, [&] {
    AplicarRestricciones(*entorno.ConexionBD, formulario, entorno.sesion.EmpleadoActual);
  });
  Paso(entorno, [&] { CargarPanelFamilias(entorno, c, tablas); });
}
