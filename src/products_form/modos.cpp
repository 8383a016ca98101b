#include "modos.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

#include "codigos_producto.h"
#include "conexion.h"
#include "disenio.h"
#include "entorno.h"
#include "error_bd.h"
#include "estado_formulario.h"
#include "eventos_campos.h"
#include "importes.h"
#include "permisos.h"
#include "principal.h"
#include "recordset.h"
#include "val.h"
#include "visualizacion.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// A locked list of values keeps showing its value but cannot be opened or changed.
class BloqueoListas : public QObject {
 public:
  using QObject::QObject;

 protected:
  bool eventFilter(QObject* objeto, QEvent* evento) override {
    if (!objeto->property("Locked").toBool())
      return false;
    switch (evento->type()) {
      case QEvent::MouseButtonPress:
      case QEvent::MouseButtonRelease:
      case QEvent::MouseButtonDblClick:
      case QEvent::Wheel:
      case QEvent::KeyPress:
        return true;
      default:
        return false;
    }
  }
};

void PonerActivo(std::initializer_list<QWidget*> controles, bool activo) {
  for (QWidget* c : controles)
    Habilitar(c, activo);
}

void PonerVisible(std::initializer_list<QWidget*> controles, bool visible) {
  for (QWidget* c : controles)
    c->setVisible(visible);
}

}  // namespace

Modos::Modos(Entorno& entorno, EstadoFormulario& estado, ControlesFormulario& controles,
             Visualizacion& visualizacion, Importes& importes, EventosCampos& eventos,
             QWidget* formulario)
    : QObject(formulario),
      entorno_(entorno),
      estado_(estado),
      c_(controles),
      visualizacion_(visualizacion),
      importes_(importes),
      eventos_(eventos),
      formulario_(formulario),
      bloqueoListas_(new BloqueoListas(this)) {}

void Modos::conectar() {
  const QList<QComboBox*> listas = formulario_->findChildren<QComboBox*>();
  for (QComboBox* lista : listas)
    lista->installEventFilter(bloqueoListas_);

  PantallaGenerico& g = c_.gen;
  PantallaElaborados& e = c_.elab;
  connect(c_.inicial.cmd_ProdGenerico, &QPushButton::clicked, this, [this] { ElegirTipo(1); });
  connect(c_.inicial.cmd_ProdElaborado, &QPushButton::clicked, this, [this] { ElegirTipo(2); });
  connect(c_.inicial.cmd_Salir2, &QPushButton::clicked, this, &Modos::cmd_Salir2);
  connect(g.cmd_nuevo, &QPushButton::clicked, this, &Modos::cmd_nuevo);
  for (QPushButton* b : {g.cmd_modificar, e.cmd_ModificarProdEla}) {
    connect(b, &QPushButton::clicked, this, &Modos::cmd_modificar);
  }
  for (QPushButton* b : {g.cmd_cancelar, e.cmd_CancelarProdEl}) {
    connect(b, &QPushButton::clicked, this, &Modos::cmd_cancelar);
  }
  for (QPushButton* b : {g.cmd_salir, e.cmd_SalirProdEla}) {
    connect(b, &QPushButton::clicked, this, &Modos::cmd_salir);
  }
  connect(g.cmd_ayuda, &QPushButton::clicked, this,
          [this] { AbrirAyuda(entorno_, u"A_Productos.html"_s); });
  connect(e.cmd_AyudaProdEla, &QPushButton::clicked, this,
          [this] { AbrirAyuda(entorno_, u"A_ProductosElaborados.html"_s); });
}

void Modos::BloquearCampos(bool bloquear) {
  const QList<QWidget*> controles = formulario_->findChildren<QWidget*>();
  for (QWidget* w : controles) {
    if (auto* texto = qobject_cast<QLineEdit*>(w)) {
      if (texto != c_.gen.txt_stock_actual)
        texto->setReadOnly(bloquear);
    } else if (qobject_cast<QComboBox*>(w)) {
      w->setProperty("Locked", bloquear);
    } else if (qobject_cast<QCheckBox*>(w) || qobject_cast<QRadioButton*>(w) ||
               w->property("imagen").toBool()) {
      w->setEnabled(!bloquear);
    }
  }
}

void Modos::modonavegacion() {
  if (estado_.tipo == 2) {
    navegacionElaborados();
  } else {
    navegacionGenerico();
  }
}

void Modos::navegacionGenerico() {
  PantallaGenerico& g = c_.gen;
  const EstadoFormulario::Permisos& p = estado_.permisos;
  BloquearCampos(true);
  PonerActivo({g.cmd_aceptar, g.cmd_cancelar}, false);
  Habilitar(g.cmd_buscar, true);
  if (p.nuevo)
    Habilitar(g.cmd_nuevo, true);
  if (p.eliminar)
    Habilitar(g.cmd_eliminar, true);
  if (p.modificar)
    Habilitar(g.cmd_modificar, true);
  PonerActivo({g.cmd_ayuda, g.cmd_salir}, true);
  g.frFlechasGen->show();
  PonerVisible({g.fr_MensajeNombre, g.fr_Mensajenumero}, false);
  PonerActivo({g.bt_botonSig, g.bt_botonAnt, g.cmd_Proveedor}, false);
  Habilitar(g.cmd_ListaProd, true);
  PonerVisible({g.Label6, g.opt_Venta, g.opt_cocina, g.opt_ambos}, true);
  g.cmd_nuevo->setFocus();
}

void Modos::navegacionElaborados() {
  PantallaElaborados& e = c_.elab;
  const EstadoFormulario::Permisos& p = estado_.permisos;
  BloquearCampos(true);
  if (p.nuevo)
    Habilitar(e.cmd_NuevoProdEla, true);
  if (p.modificar)
    Habilitar(e.cmd_ModificarProdEla, true);
  if (p.eliminar)
    Habilitar(e.cmd_EliminarProdEla, true);
  PonerActivo({e.Boton_SM2, e.cmd_SalirProdEla, e.cmd_AyudaProdEla}, true);
  PonerActivo({e.cmd_AceptarProdEl, e.cmd_CancelarProdEl}, false);
  e.lblProdASel->setText(u"Productos elaborados"_s);
  PonerActivo({e.lb_Productos, e.lb_ProductosSel, e.cmdCInterno, e.cmdCVenta, e.bt_flecha,
               e.bt_antpelab, e.bt_sigpelab},
              false);
  Habilitar(e.lb_ProductosElaborados, true);
  PonerVisible({c_.marcos.fr_Mensaje, c_.marcos.fr_colores, c_.gen.fr_MensajeNombre,
                c_.gen.fr_Mensajenumero, e.fr_mensajeNombrePElab, e.fr_mensajeNumeroPElab},
               false);
  e.frOcultar->hide();
}

void Modos::ModoCambios() {
  if (recargarListas)
    recargarListas();
  if (estado_.tipo == 2) {
    cambiosElaborados();
  } else {
    cambiosGenerico();
  }
}

void Modos::cambiosGenerico() {
  PantallaGenerico& g = c_.gen;
  const EstadoFormulario::Permisos& p = estado_.permisos;
  BloquearCampos(false);
  g.txt_nombre->setFocus();
  PonerActivo({g.cmd_aceptar, g.cmd_cancelar}, true);
  if (p.nuevo)
    g.cmd_nuevo->setEnabled(false);
  if (p.modificar)
    g.cmd_modificar->setEnabled(false);
  if (p.eliminar)
    g.cmd_eliminar->setEnabled(false);
  PonerActivo({g.cmd_buscar, g.cmd_ayuda, g.cmd_salir, g.cmd_ListaProd}, false);
  g.frFlechasGen->hide();
  Habilitar(g.cmd_Proveedor, true);
  PonerActivo(
      {g.pict_imagen, g.lbl_Insertar, g.pic_ColorPG, g.lbl_color, g.bt_botonSig, g.bt_botonAnt},
      true);
}

void Modos::cambiosElaborados() {
  PantallaElaborados& e = c_.elab;
  const EstadoFormulario::Permisos& p = estado_.permisos;
  BloquearCampos(false);
  e.txt_NombreElaborado->setFocus();
  if (p.nuevo)
    e.cmd_NuevoProdEla->setEnabled(false);
  if (p.modificar)
    e.cmd_ModificarProdEla->setEnabled(false);
  if (p.eliminar)
    e.cmd_EliminarProdEla->setEnabled(false);
  PonerActivo({e.Boton_SM2, e.cmd_SalirProdEla}, false);
  PonerActivo({e.cmd_AceptarProdEl, e.cmd_CancelarProdEl}, true);
  e.lblProdASel->setText(u"Seleccione el componente a utilizar:"_s);
  PonerActivo({e.lb_Productos, e.cmdCInterno, e.cmdCVenta, e.lb_ProductosSel, e.bt_flecha}, true);
  // The product being changed stays on show until it is accepted or cancelled.
  Habilitar(e.lb_ProductosElaborados, false);
  Habilitar(e.bt_sigpelab, true);
  Habilitar(e.bt_antpelab, ValJet(e.lblpospelab->text()) > 0);
  PonerActivo({e.pic_ProductoElaborado, e.lbl_InsertarElab, e.pic_Color, e.lbl_colorElab}, true);
}

void Modos::MostrarPantalla(int tipo) {
  PonerVisible({c_.elab.fr_ProductosElaborados, c_.gen.fr_ProductoGenerico, c_.inicial.fr_Inicial},
               false);
  if (tipo == 1) {
    c_.gen.fr_ProductoGenerico->show();
  } else if (tipo == 2) {
    c_.elab.fr_ProductosElaborados->show();
  }
}

void Modos::ElegirTipo(int tipo) {
  estado_.tipo = tipo;
  MostrarPantalla(tipo);
  try {
    visualizacion_.AbrirProductos(tipo);
  } catch (const ErrorBD& e) {
    entorno_.RegistrarError(tipo == 2 ? u"cmd_ProdElaborado  1"_s : u"cmd_ProdGenerico  1"_s,
                            e.descripcion());
  }
  if (tipo == 2 && cargarListasElaborados)
    cargarListasElaborados();
  modonavegacion();
  if (tipo == 1)
    RestaurarPantallaGenerico();
  if (estado_.hayProductos())
    visualizacion_.bt_botones(0);
}

bool Modos::bHayProveedores() {
  Recordset rs(*entorno_.ConexionBD, u"Select * from proveedores where borrar = false"_s);
  const bool hay = rs.recordCount() > 0;
  rs.close();
  return hay;
}

void Modos::limpiarNuevoGenerico() {
  PantallaGenerico& g = c_.gen;
  for (QLineEdit* vacio :
       {g.txt_nombre, g.txtCodBarras, g.txt_descripcion, g.txtDescNumericaPGen}) {
    vacio->clear();
  }
  // The price is set after cost and tax, so that the margin worked out from it reads 0 too.
  for (QLineEdit* cero : {g.txt_coste, g.txt_iva, g.txt_margen, g.txt_precio, g.txt_stock_actual}) {
    cero->setText(u"0"_s);
  }
  g.txt_stock_minimo->setText(u"1"_s);
  OlvidarElecciones(estado_, g.pict_imagen, g.pic_ColorPG, c_.marcos.lblNomProd);
  g.cbo_Medida->setCurrentIndex(-1);
  DesmarcarOpcion(g.optCocina);
  DesmarcarOpcion(g.optBarra);
  g.opt_ambos->setChecked(true);
  PonerFamilia(g.lblnomFamilia, QString(), u"-1"_s);
  // A new product is shown on the till unless the manager says otherwise, whatever the product
  // on show before was.
  g.chkProdEspecial->setChecked(false);
  g.ch_Mostrar->setChecked(true);
  c_.marcos.lb_ProveedoresAsignados->clear();
  g.cmd_Proveedor->setText(u"Seleccione sus proveedores"_s);
}

void Modos::OcultarNuevoGen() {
  PantallaGenerico& g = c_.gen;
  // The cover starts below the suppliers and ends at the logo frame, wherever the form's
  // scale has put them.
  const int arriba = g.cmd_Proveedor->geometry().bottom() + 1;
  g.frOcultarGen->setGeometry(0, arriba, g.frlogo1->geometry().right() + 4,
                              g.frlogo1->y() - arriba);
  MostrarMarco(g.frOcultarGen);
  PonerVisible({g.ch_Mostrar, g.lblPreparado, g.optCocina, g.optBarra}, false);
}

void Modos::RestaurarPantallaGenerico() {
  PantallaGenerico& g = c_.gen;
  g.frOcultarGen->hide();
  PonerVisible(
      {g.lbl_Medida,       g.cbo_Medida,  g.lbl_MedidaAyuda,  g.Label6,     g.opt_Venta,
       g.opt_cocina,       g.opt_ambos,   g.lbl_coste,        g.txt_coste,  g.lbl_iva,
       g.txt_iva,          g.lbl_percent, g.lbl_precio,       g.txt_precio, g.lbl_stock_minimo,
       g.txt_stock_minimo, g.Label16,     g.txt_stock_actual, g.ch_Mostrar, g.lblPreparado,
       g.optCocina,        g.optBarra},
      true);
  g.frMostrarCaja->setVisible(!g.chkProdEspecial->isChecked());
  if (g.ch_Mostrar->isChecked()) {
    eventos_.MostrarImagenColor();
  } else {
    eventos_.ocultarImagenColor();
  }
}

void Modos::cmd_nuevo() {
  try {
    if (!bHayProveedores()) {
      entorno_.dialogos->mensaje(
          u"Antes de dar de alta productos tiene que dar de alta algun proveedor"_s,
          TituloPrograma(), ServicioDialogos::Icono::Informacion);
      return;
    }
    estado_.modificando = false;
    limpiarNuevoGenerico();
    ModoCambios();
    OcultarNuevoGen();
    PantallaGenerico& g = c_.gen;
    PonerVisible({g.Label6, g.opt_Venta, g.opt_cocina, g.opt_ambos}, false);
    importes_.OcultarImportes();
    eventos_.ocultarImagenColor();
    estado_.codigoActual = CodigoProductoNuevo(*entorno_.ConexionBD);
    if (PonerOrden)
      PonerOrden();
  } catch (const ErrorBD& e) {
    entorno_.RegistrarError(u"cmd_nuevo  1"_s, e.descripcion());
  }
}

void Modos::cmd_modificar() {
  // With no product on show (the last one was deleted) there is nothing to change: changing
  // the fields left on the screen would bring the deleted product back.
  if (!estado_.hayProductos())
    return;
  estado_.modificando = true;
  ModoCambios();
}

void Modos::cmd_cancelar() {
  try {
    if (estado_.hayProductos()) {
      // Links recorded for a product that was never saved go; a saved product keeps its own.
      entorno_.ConexionBD->ejecutar(u"Delete from productoproveedor where producto = '"_s +
                                    QString::number(estado_.codigoActual) +
                                    u"' and producto not in (Select codigo from productos)"_s);
      if (estado_.tipo == 1)
        RestaurarPantallaGenerico();
      visualizacion_.MostrarActual();
    }
  } catch (const ErrorBD& e) {
    entorno_.RegistrarError(u"cmd_cancelar  1"_s, e.descripcion());
  }
  modonavegacion();
}

void Modos::cmd_salir() {
  PonerVisible({c_.elab.fr_ProductosElaborados, c_.gen.fr_ProductoGenerico}, false);
  // Leaving a kind's screen goes back to the start screen.
  c_.inicial.fr_Inicial->show();
}

void Modos::cmd_Salir2() {
  formulario_->close();
}
