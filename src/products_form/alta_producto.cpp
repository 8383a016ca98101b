#include "alta_producto.h"

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
#include "entorno.h"
#include "error_bd.h"
#include "estado_formulario.h"
#include "modos.h"
#include "recordset.h"
#include "visualizacion.h"

using namespace Qt::Literals::StringLiterals;

bool MoverACodigo(Recordset& productos, const QString& codigo) {
  if (productos.bof() && productos.eof())
    return false;
  for (productos.moveFirst(); !productos.eof(); productos.moveNext()) {
    if (productos.field(u"codigo"_s).toString() == codigo)
      return true;
  }
  productos.moveFirst();
  return false;
}

AltaProducto::AltaProducto(Entorno& entorno, EstadoFormulario& estado,
                           ControlesFormulario& controles, Modos& modos,
                           Visualizacion& visualizacion, QObject* padre)
    : QObject(padre),
      entorno_(entorno),
      estado_(estado),
      c_(controles),
      modos_(modos),
      visualizacion_(visualizacion) {}

namespace {

// Each hint with the box that it is about.
QList<std::pair<QGroupBox*, QLineEdit*>> Avisos(const ControlesFormulario& c) {
  return {{c.gen.fr_MensajeNombre, c.gen.txt_nombre},
          {c.gen.fr_Mensajenumero, c.gen.txtDescNumericaPGen},
          {c.elab.fr_mensajeNombrePElab, c.elab.txt_NombreElaborado},
          {c.elab.fr_mensajeNumeroPElab, c.elab.txtDescNumerica}};
}

}  // namespace

void AltaProducto::conectar() {
  connect(c_.gen.cmd_aceptar, &QPushButton::clicked, this, &AltaProducto::cmd_aceptar);
  connect(c_.gen.cmd_eliminar, &QPushButton::clicked, this, &AltaProducto::cmd_eliminar);
  modos_.PonerOrden = [this] { PonerOrden(estado_.tipo); };
  for (const auto& [aviso, campo] : Avisos(c_)) {
    // Framed all round, a hint reads apart from the fields that it lies over.
    aviso->setFlat(false);
    aviso->installEventFilter(this);
    const QList<QWidget*> dentro = aviso->findChildren<QWidget*>();
    for (QWidget* w : dentro)
      w->installEventFilter(this);
    connect(campo, &QLineEdit::textEdited, aviso, &QWidget::hide);
  }
}

bool AltaProducto::eventFilter(QObject* objeto, QEvent* evento) {
  if (evento->type() == QEvent::MouseButtonRelease) {
    for (const auto& [aviso, campo] : Avisos(c_)) {
      if (objeto == aviso || aviso->isAncestorOf(qobject_cast<QWidget*>(objeto))) {
        aviso->hide();
        return true;
      }
    }
  }
  return QObject::eventFilter(objeto, evento);
}

void AltaProducto::PonerOrden(int tipo) {
  if (estado_.modificando)
    return;
  QLabel* posicion = tipo == 2 ? c_.elab.lblpospelab : c_.gen.lblPos;
  if (const std::optional<QString> valor = ValorPonerOrden(entorno_))
    posicion->setText(*valor);
  // Nothing is taken yet: the hint tells of the number offered.
  (tipo == 2 ? c_.elab.lblDescNumPElab : c_.gen.lblMensajeNumero)
      ->setText(kAvisoDescNumericaPropuesta);
  mensajenumero(tipo);
}

void AltaProducto::mensajenumero(int tipo) {
  QLineEdit* numero = tipo == 2 ? c_.elab.txtDescNumerica : c_.gen.txtDescNumericaPGen;
  QWidget* aviso = tipo == 2 ? c_.elab.fr_mensajeNumeroPElab : c_.gen.fr_Mensajenumero;
  if (const std::optional<QString> valor = ValorMensajeNumero(entorno_, tipo))
    numero->setText(*valor);
  MostrarMarco(aviso);
  // A new product's box stays hidden until the product is shown on the till; the focus then
  // stays where the manager is typing.
  if (numero->isVisible())
    numero->setFocus();
}

void AltaProducto::mensajenombre(int tipo) {
  QWidget* aviso = tipo == 2 ? c_.elab.fr_mensajeNombrePElab : c_.gen.fr_MensajeNombre;
  QLabel* texto = tipo == 2 ? c_.elab.lblMensNombrePElab : c_.gen.lblMensNombre;
  QLineEdit* nombre = tipo == 2 ? c_.elab.txt_NombreElaborado : c_.gen.txt_nombre;
  texto->setText(kAvisoNombreExiste);
  MostrarMarco(aviso);
  nombre->setFocus();
}

ProductoFormulario AltaProducto::LeerProducto() const {
  const PantallaGenerico& g = c_.gen;
  ProductoFormulario p;
  p.codigo = estado_.codigoActual;
  p.nombre = g.txt_nombre->text();
  p.descripcion = g.txt_descripcion->text();
  p.codigoBarras = g.txtCodBarras->text();
  p.coste = g.txt_coste->text();
  p.margen = g.txt_margen->text();
  p.precio = g.txt_precio->text();
  p.iva = g.txt_iva->text();
  p.stockActual = g.txt_stock_actual->text();
  p.stockMinimo = g.txt_stock_minimo->text();
  p.unidadMedida = g.cbo_Medida->currentIndex() < 0 ? QString() : g.cbo_Medida->currentText();
  p.mostrarEnCaja = g.ch_Mostrar->isChecked();
  p.optCocina = g.optCocina->isChecked();
  p.optBarra = g.optBarra->isChecked();
  p.chkProdEspecial = g.chkProdEspecial->isChecked();
  p.optVenta = g.opt_Venta->isChecked();
  p.optAmbos = g.opt_ambos->isChecked();
  p.optCocinaBarra = g.opt_cocina->isChecked();
  p.color = estado_.colorElegido;
  p.foto = estado_.fotoElegida;
  p.impresora = estado_.impresoraElegida;
  p.descNumerica = g.txtDescNumericaPGen->text();
  p.posicion = g.lblPos->text();
  p.familia = CodigoFamilia(g.lblnomFamilia);
  const QListWidget* asignados = c_.marcos.lb_ProveedoresAsignados;
  for (int i = 0; i < asignados->count(); ++i)
    p.proveedores.append(asignados->item(i)->text());
  return p;
}

CamposObligatorios AltaProducto::LeerCamposObligatorios() {
  const PantallaGenerico& g = c_.gen;
  CamposObligatorios campos;
  campos.nombre = g.txt_nombre->text();
  campos.coste = g.txt_coste->text();
  campos.iva = g.txt_iva->text();
  campos.stockMinimo = g.txt_stock_minimo->text();
  campos.precio = g.txt_precio->text();
  campos.productoCocinaBarra = g.opt_cocina->isChecked();
  campos.unidadMedida = g.cbo_Medida->currentIndex() < 0 ? QString() : g.cbo_Medida->currentText();
  campos.proveedoresAsignados = c_.marcos.lb_ProveedoresAsignados->count();
  campos.optCocina = g.optCocina->isChecked();
  campos.optBarra = g.optBarra->isChecked();
  campos.chkProdEspecial = g.chkProdEspecial->isChecked();
  campos.codigoBarras = g.txtCodBarras->text();
  const qint64 codigo = estado_.codigoActual;
  campos.existeCodBarras = [this, codigo](const QString& codigoBarras) {
    return existeCodBarras(entorno_, codigoBarras, codigo);
  };
  return campos;
}

bool AltaProducto::comprobarCampos() {
  const std::optional<FalloValidacion> fallo =
      ComprobarCamposObligatorios(LeerCamposObligatorios());
  if (!fallo)
    return true;
  ServicioDialogos& dialogos = *entorno_.dialogos;
  dialogos.mensaje(fallo->mensaje, TituloPrograma(), ServicioDialogos::Icono::Critico);
  if (fallo->campo == c_.gen.txtCodBarras->objectName()) {
    c_.gen.txtCodBarras->selectAll();
    c_.gen.txtCodBarras->setFocus();
  }
  dialogos.mensaje(kMensajeCamposRequeridos, TituloPrograma(),
                   ServicioDialogos::Icono::Informacion);
  c_.gen.txt_nombre->setFocus();
  return false;
}

void AltaProducto::pedirColor() {
  QWidget* aviso = c_.marcos.fr_Mensaje;
  MostrarMarco(aviso);
  if (mostrarColores)
    mostrarColores();
  // Once the colour is there the hint has said what it had to; without one it stays, beside
  // the colour box that the manager is to touch.
  if (!estado_.colorElegido.isEmpty())
    aviso->hide();
}

bool AltaProducto::grabar() {
  if (c_.gen.txt_stock_actual->text().isEmpty())
    c_.gen.txt_stock_actual->setText(u"0"_s);
  const ProductoFormulario producto = LeerProducto();
  if (estado_.modificando)
    return modificarProducto(entorno_, producto);
  const std::optional<qint64> codigo = GrabarProductoNuevo(entorno_, producto);
  if (!codigo)
    return false;
  estado_.codigoActual = *codigo;
  return true;
}

void AltaProducto::cmd_aceptar() {
  if (estado_.tipo != 1)
    return;
  PantallaGenerico& g = c_.gen;
  g.fr_MensajeNombre->hide();
  g.fr_Mensajenumero->hide();
  c_.marcos.fr_Mensaje->hide();
  if (bcomprobarSiExisteNombre(entorno_, g.txt_nombre->text(), estado_.codigoActual)) {
    mensajenombre(1);
    return;
  }
  if (!comprobarCampos())
    return;
  // A product hidden from the till needs no colour and no numeric description.
  if (g.ch_Mostrar->isChecked()) {
    if (estado_.colorElegido.isEmpty()) {
      pedirColor();
      return;
    }
    const ComprobacionDescNumerica numero = bcomprobarSiExisteDescNumerica(
        entorno_, g.txtDescNumericaPGen->text(), estado_.codigoActual, estado_.modificando);
    if (numero.existe) {
      if (!numero.aviso.isEmpty())
        g.lblMensajeNumero->setText(numero.aviso);
      mensajenumero(1);
      return;
    }
  }
  // A save that failed is logged and leaves the product on the screen, still to be saved.
  if (!grabar())
    return;
  mostrarGrabado();
}

void AltaProducto::recargarProductos() {
  if (estado_.productos) {
    estado_.productos->requery();
  } else {
    visualizacion_.AbrirProductos(1);
  }
}

void AltaProducto::mostrarGrabado() {
  try {
    recargarProductos();
    MoverACodigo(*estado_.productos, QString::number(estado_.codigoActual));
    modos_.RestaurarPantallaGenerico();
    visualizacion_.MostrarActual();
  } catch (const ErrorBD& e) {
    entorno_.RegistrarError(u"cmd_aceptar  1"_s, e.descripcion());
  }
  modos_.modonavegacion();
}

void AltaProducto::cmd_eliminar() {
  if (!estado_.hayProductos())
    return;
  if (!PreguntarEliminar(*entorno_.dialogos) || estado_.tipo != 1)
    return;
  if (!EliminarProducto(entorno_, estado_.codigoActual))
    return;
  try {
    recargarProductos();
    if (estado_.hayProductos()) {
      estado_.productos->moveFirst();
      visualizacion_.MostrarActual();
    }
  } catch (const ErrorBD& e) {
    entorno_.RegistrarError(u"cmd_eliminar  1"_s, e.descripcion());
  }
}
