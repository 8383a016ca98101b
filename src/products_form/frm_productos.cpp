#include "frm_productos.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "alta_producto.h"
#include "atajos_teclado.h"
#include "buscar.h"
#include "campos_legibles.h"
#include "carga.h"
#include "config_regional.h"
#include "disenio.h"
#include "elaborados.h"
#include "entorno.h"
#include "eventos_campos.h"
#include "filtro_teclas.h"
#include "frm_add_subproductos.h"
#include "imagen_color.h"
#include "importes.h"
#include "lista_productos_form.h"
#include "listas_componentes.h"
#include "marcos_auxiliares.h"
#include "modos.h"
#include "navegacion_teclado.h"
#include "panel_familias.h"
#include "panel_proveedores.h"
#include "pantalla_elaborados.h"
#include "pantalla_generico.h"
#include "pantalla_inicial.h"
#include "pantalla_teclado.h"
#include "precios.h"
#include "teclado.h"
#include "visualizacion.h"
#include "zona_impresoras.h"

using namespace Qt::Literals::StringLiterals;

FrmProductos1024::FrmProductos1024(Entorno& entorno, TablasPanel& tablas, QWidget* padre)
    : QWidget(padre), entorno_(entorno), tablas_(tablas) {
  setObjectName(u"frmProductos1024"_s);
  setWindowTitle(u"Mantenimiento de Productos"_s);
  construir();
  conectar();
  CargarFormulario(entorno_, estado_, controles_, tablas_, this);
}

FrmProductos1024::~FrmProductos1024() = default;

void FrmProductos1024::construir() {
  resize(disenio::kAncho, disenio::kAlto);
  PonerLetra(this, disenio::kLetra);
  // Created in this order, each lies over the ones before: the panels that open over a screen
  // stay under the screens until shown, the printer line and the keyboard lie beside the
  // screens, and the start screen covers everything.
  controles_.marcos = CrearMarcosAuxiliares(this);
  controles_.gen = CrearPantallaGenerico(this);
  controles_.elab = CrearPantallaElaborados(this);
  controles_.marcos.lblNomProd->raise();
  controles_.teclado = CrearTeclado(this, SeparadorDecimal());
  controles_.inicial = CrearPantallaInicial(this);
  AgrandarMarcas(this);
}

void FrmProductos1024::conectar() {
  filtro_ = new FiltroTeclas(this);
  visualizacion_ = std::make_unique<Visualizacion>(entorno_, estado_, controles_);
  importes_ = new Importes(entorno_, estado_, controles_, this);
  eventos_ = new EventosCampos(controles_, this);
  modos_ = new Modos(entorno_, estado_, controles_, *visualizacion_, *importes_, *eventos_, this);
  teclado_ = new Teclado(entorno_, estado_, controles_, *importes_, this);

  importes_->conectar(this, *filtro_);
  eventos_->conectar(*filtro_);
  modos_->conectar();
  teclado_->conectar();
  for (QPushButton* flecha : std::as_const(controles_.gen.bt_botones)) {
    const int indice = flecha->property("indice").toInt();
    connect(flecha, &QPushButton::clicked, this,
            [this, indice] { visualizacion_->bt_botones(indice); });
  }
  for (QPushButton* precios : {controles_.inicial.Boton_SM1, controles_.elab.Boton_SM2}) {
    connect(precios, &QPushButton::clicked, this, [this] { Boton_SM1(entorno_); });
  }
  auto* alta = new AltaProducto(entorno_, estado_, controles_, *modos_, *visualizacion_, this);
  alta->conectar();
  auto* proveedores = new PanelProveedores(entorno_, estado_, controles_, *visualizacion_, this);
  proveedores->conectar();
  auto* zona = new ZonaImpresoras(entorno_, estado_, controles_, this);
  zona->conectar();
  auto* imagenColor = new ImagenColor(entorno_, estado_, controles_, this);
  imagenColor->conectar();
  auto* familias = new PanelFamilias(controles_, this);
  familias->conectar();
  auto* lista = new ListaProductosForm(entorno_, controles_, *visualizacion_, this);
  lista->conectar();
  // A shown product needs its colour: the accept opens the colour choice for it.
  alta->mostrarColores = [imagenColor] { imagenColor->mostrarColores(); };
  auto* componentes = new ListasComponentes(entorno_, controles_, this);
  componentes->conectar(*modos_);
  auto* elaborados = new Elaborados(entorno_, estado_, controles_, *modos_, *visualizacion_,
                                    *importes_, *componentes, *alta, this);
  elaborados->mostrarColores = [imagenColor] { imagenColor->mostrarColores(); };
  zona->abrirComponentes = [elaborados] { elaborados->AbrirComponentes(); };
  new AtajosTeclado(this);
  // After the shortcuts: the elaborated screen sees its keys first.
  elaborados->conectar();
  navegacion_ = new NavegacionTeclado(controles_, this);
  new CamposLegibles(controles_, this);
  conectarDialogos();
}

void FrmProductos1024::conectarDialogos() {
  connect(controles_.gen.cmd_buscar, &QPushButton::clicked, this, [this] {
    AbrirBuscar(
        entorno_, kModoProductos, [this](const QString& c) { ProductoBuscado(c); }, this);
  });
  for (QPushButton* subproductos : {controles_.gen.Command1, controles_.elab.Command4}) {
    connect(subproductos, &QPushButton::clicked, this,
            [this] { AbrirSubproductos(entorno_, tablas_, this); });
  }
}

bool FrmProductos1024::focusNextPrevChild(bool siguiente) {
  return (navegacion_ && navegacion_->moverFoco(siguiente)) ||
         QWidget::focusNextPrevChild(siguiente);
}

void FrmProductos1024::ProductoBuscado(const QString& codigo) {
  visualizacion_->MostrarCodigo(codigo);
}
