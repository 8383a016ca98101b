#include "carga.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QGuiApplication>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QScreen>
#include <algorithm>
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

// Whether a control's caption fits it whole (the scheme's buttons have 6 pixels of padding and
// a border on each side).
bool CaptionCabe(const QWidget* w) {
  const QFontMetrics fm(w->font());
  if (const auto* l = qobject_cast<const QLabel*>(w)) {
    const QRect c = l->contentsRect();
    const QRect t = fm.boundingRect(QRect(0, 0, c.width(), 9999),
                                    l->wordWrap() ? Qt::TextWordWrap : 0, l->text());
    return !l->pixmap().isNull() || (t.width() <= c.width() && t.height() <= c.height() + 2);
  }
  if (const auto* b = qobject_cast<const QPushButton*>(w))
    return fm.horizontalAdvance(b->text()) + 14 <= b->width();
  return !qobject_cast<const QAbstractButton*>(w) || w->sizeHint().width() <= w->width();
}

// A caption that the larger type would cut keeps the largest size that fits its control: the
// controls keep their places, so the screen stays whole.
void CaptionsQueCaben(QWidget* formulario) {
  constexpr double kPaso = 0.5;
  constexpr double kMinimo = 7;
  const QList<QWidget*> controles = formulario->findChildren<QWidget*>();
  for (QWidget* w : controles) {
    QFont letra = w->font();
    while (!CaptionCabe(w) && letra.pointSizeF() - kPaso >= kMinimo) {
      letra.setPointSizeF(letra.pointSizeF() - kPaso);
      w->setFont(letra);
    }
  }
}

// The terminal's display options: the type size step for every text of the form, the
// panels' buttons included, and the enlargement of the families panels' buttons. The panels
// keep their place on the screen: it is their buttons that grow, as far as the panel holds
// them, so fewer fit a page.
void AplicarOpcionesTerminal(Entorno& entorno, ControlesFormulario& c, QWidget* formulario) {
  VariablesIniciales opciones(entorno);
  const qint16 paso = opciones.Tipo_Letra();
  AplicarTipoLetra(formulario, paso);
  if (paso > 1)
    CaptionsQueCaben(formulario);
  const qint32 aumentoX = std::max(0, opciones.Aumento_X());
  const qint32 aumentoY = std::max(0, opciones.Aumento_Y());
  for (PanelObjNuevo* panel : {c.gen.PanelFamilias, c.elab.PanelFamilias_Elab}) {
    QFont letra = panel->boton_fuente();
    letra.setPixelSize(qRound(letra.pixelSize() * FactorTipoLetra(paso)));
    panel->set_boton_fuente(letra);
    // As far as the panel holds them: a button never grows out of the panel's main area.
    const QRect area = CalcularDisposicion(panel->medidas(), panel->size()).principal;
    const float anchoMax = float(area.width()) - 2 * panel->boton_posx();
    const float altoMax = float(area.height()) - 2 * panel->boton_posy();
    panel->set_ancho_boton(
        std::max(panel->ancho_boton(), std::min(panel->ancho_boton() + float(aumentoX), anchoMax)));
    panel->set_alto_boton(
        std::max(panel->alto_boton(), std::min(panel->alto_boton() + float(aumentoY), altoMax)));
  }
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
  Paso(entorno, [&] { AplicarOpcionesTerminal(entorno, c, formulario); });
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
