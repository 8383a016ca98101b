#include "elaborados.h"

#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QScopedValueRollback>

#include "alta_producto.h"
#include "atajos_teclado.h"
#include "codigos_producto.h"
#include "disenio.h"
#include "entorno.h"
#include "error_bd.h"
#include "estado_formulario.h"
#include "grabacion_producto.h"
#include "importes.h"
#include "lineas_productos.h"
#include "lista_productos_form.h"
#include "listas_componentes.h"
#include "listas_productos.h"
#include "modos.h"
#include "permisos.h"
#include "recordset.h"
#include "val.h"
#include "validacion_producto.h"
#include "visualizacion.h"

using namespace Qt::Literals::StringLiterals;

namespace {

inline const QString kMensajeNombreVacio = QStringLiteral("El nombre no puede estar vacio.");
inline const QString kPrefijoFlechas = QStringLiteral("bt_botones_");

// What a new product shows only once its name is there.
QList<QWidget*> TrasElNombre(const PantallaElaborados& e) {
  return {e.lbl_DescElaborado, e.txt_DescElaborado,  e.pic_ProductoElaborado,
          e.lbl_InsertarElab,  e.lbl_costeElaborado, e.txt_costeElaborado};
}

// What comes after the cost and the tax (Importes shows them as they are typed).
QList<QWidget*> TrasElCoste(const PantallaElaborados& e) {
  return {e.lbl_ImpuestoElaborado, e.lbl_percentElab, e.txt_ImpuestoElaborado,
          e.lbl_PrecioElaborado, e.txt_PrecioElaborado};
}

// The lists in which the recipe is made, covered while a new product has no price.
QList<QWidget*> ListasReceta(const PantallaElaborados& e) {
  return {e.lb_Productos, e.cmdCInterno, e.cmdCVenta, e.bt_flecha, e.lb_ProductosSel};
}

void Mostrar(const QList<QWidget*>& controles, bool visible) {
  for (QWidget* c : controles)
    c->setVisible(visible);
}

}  // namespace

Elaborados::Elaborados(Entorno& entorno, EstadoFormulario& estado, ControlesFormulario& controles,
                       Modos& modos, Visualizacion& visualizacion, Importes& importes,
                       ListasComponentes& listas, AltaProducto& alta, QWidget* formulario)
    : QObject(formulario),
      entorno_(entorno),
      estado_(estado),
      c_(controles),
      modos_(modos),
      visualizacion_(visualizacion),
      importes_(importes),
      listas_(listas),
      alta_(alta),
      formulario_(formulario) {}

void Elaborados::conectar() {
  PantallaElaborados& e = c_.elab;
  // The recipe's lines are touched too, to change a quantity.
  HacerListaTactil(e.lb_ProductosSel);
  visualizacion_.cargarIngredientes = [this](const QString& codigo) { CargarIngredientes(codigo); };
  importes_.aceptarCantidad = [this](double cantidad) { completarComponente(cantidad); };
  importes_.descartarCantidad = [this] { descartarComponente(); };
  connect(e.lb_ProductosElaborados->selectionModel(), &QItemSelectionModel::currentChanged, this,
          [this](const QModelIndex& linea) {
            if (linea.isValid() && !seleccionando_ && enNavegacion())
              MostrarElaborado(QString::number(CodigoDeLinea(linea.data().toString())));
          });
  connect(e.lb_Productos, &QListView::doubleClicked, this, &Elaborados::ElegirComponente);
  connect(e.lb_Productos, &QListView::activated, this, &Elaborados::ElegirComponente);
  connect(e.bt_flecha, &QPushButton::clicked, this, &Elaborados::ElegirComponente);
  connect(e.lb_ProductosSel, &QListWidget::itemDoubleClicked, this, &Elaborados::CambiarComponente);
  connect(e.lb_ProductosSel, &QListWidget::itemActivated, this, &Elaborados::CambiarComponente);
  connect(c_.marcos.cmd_QuitarComponente, &QPushButton::clicked, this,
          &Elaborados::descartarComponente);
  connect(e.cmd_NuevoProdEla, &QPushButton::clicked, this, &Elaborados::cmd_NuevoProdEla);
  connect(e.cmd_AceptarProdEl, &QPushButton::clicked, this, &Elaborados::cmd_AceptarProdEl);
  connect(e.cmd_EliminarProdEla, &QPushButton::clicked, this, &Elaborados::cmd_EliminarProdEla);
  // After the modes' own cancel, which shows the product again.
  connect(e.cmd_CancelarProdEl, &QPushButton::clicked, this, &Elaborados::cmd_CancelarProdEl);
  connect(e.bt_antpelab, &QPushButton::clicked, this, &Elaborados::bt_antpelab);
  connect(e.bt_sigpelab, &QPushButton::clicked, this, &Elaborados::bt_sigpelab);
  connect(e.txt_NombreElaborado, &QLineEdit::textChanged, this, &Elaborados::nombreEscrito);
  connect(e.txt_PrecioElaborado, &QLineEdit::textChanged, this, &Elaborados::precioCambiado);
  connect(c_.inicial.cmd_ProdElaborado, &QPushButton::clicked, this, [this] {
    restaurar();
    seleccionarEnLista();
  });
  formulario_->installEventFilter(this);
}

bool Elaborados::enNavegacion() const {
  return c_.elab.fr_ProductosElaborados->isVisible() && !c_.elab.cmd_AceptarProdEl->isEnabled();
}

bool Elaborados::eventFilter(QObject* objeto, QEvent* evento) {
  // The page has no arrows: the keys of the simple products' arrows walk its products.
  if (objeto != formulario_ || evento->type() != QEvent::KeyPress || !enNavegacion())
    return false;
  const auto* tecla = static_cast<QKeyEvent*>(evento);
  const Qt::KeyboardModifiers modificadores =
      tecla->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::ShiftModifier);
  for (const AtajosTeclado::Atajo& atajo : AtajosTeclado::Atajos()) {
    if (atajo.tecla == tecla->key() && atajo.modificadores == modificadores &&
        atajo.boton.startsWith(kPrefijoFlechas)) {
      visualizacion_.bt_botones(atajo.boton.mid(kPrefijoFlechas.size()).toInt());
      seleccionarEnLista();
      return true;
    }
  }
  return false;
}

void Elaborados::CargarIngredientes(const QString& codigo) {
  QListWidget* receta = c_.elab.lb_ProductosSel;
  receta->clear();
  try {
    receta->addItems(::CargarIngredientes(*entorno_.ConexionBD, codigo));
  } catch (const ErrorBD& e) {
    entorno_.RegistrarError(kContextoCargarIngredientes, e.descripcion());
  }
}

void Elaborados::MostrarElaborado(const QString& codigo) {
  try {
    Conexion& c = *entorno_.ConexionBD;
    Recordset producto(
        c, u"select * from productos where borrar = 0 AND codigo ='"_s + codigo + u"'"_s);
    Recordset stock(c, u"select * from stock where producto = "_s + codigo);
    if (producto.recordCount() > 0)
      visualizacion_.MostrarProducto(producto, stock, 2);
    producto.close();
    stock.close();
    // Page Down goes on from the product shown.
    if (estado_.productos)
      MoverACodigo(*estado_.productos, codigo);
  } catch (const ErrorBD& e) {
    entorno_.RegistrarError(kContextoMostrarElaborado, e.descripcion());
  }
}

void Elaborados::seleccionarEnLista() {
  QListView* lista = c_.elab.lb_ProductosElaborados;
  const QScopedValueRollback seleccionando(seleccionando_, true);
  lista->setCurrentIndex({});
  const LineasProductos& lineas = ModeloDe(lista)->lineas();
  for (qsizetype i = 0; i < lineas.size(); ++i) {
    // The code of a line, read without building the line.
    if (CodigoDeLinea(lineas.codigo(i).toString()) == estado_.codigoActual) {
      lista->setCurrentIndex(lista->model()->index(static_cast<int>(i), 0));
      break;
    }
  }
}

void Elaborados::ElegirComponente() {
  PantallaElaborados& e = c_.elab;
  const QModelIndex linea = e.lb_Productos->currentIndex();
  if (!linea.isValid() || !e.lb_Productos->isEnabled() || !c_.marcos.fr_Cantidad->isHidden())
    return;
  const QString candidato = linea.data().toString();
  e.lb_ProductosSel->addItem(candidato);
  filaPendiente_ = e.lb_ProductosSel->count() - 1;
  ModeloDe(e.lb_Productos)->quitar(linea.row());
  preguntarCantidad(candidato);
}

void Elaborados::CambiarComponente() {
  PantallaElaborados& e = c_.elab;
  const QListWidgetItem* linea = e.lb_ProductosSel->currentItem();
  if (!linea || !e.lb_ProductosSel->isEnabled() || !c_.marcos.fr_Cantidad->isHidden())
    return;
  filaPendiente_ = e.lb_ProductosSel->row(linea);
  preguntarCantidad(
      LineaLista(NombreDeComponente(linea->text()), QString::number(CodigoDeLinea(linea->text()))));
}

void Elaborados::preguntarCantidad(const QString& linea) {
  PantallaElaborados& e = c_.elab;
  MarcosAuxiliares& m = c_.marcos;
  QString unidad;
  try {
    unidad = UnidadDeProducto(*entorno_.ConexionBD, CodigoDeLinea(linea));
  } catch (const ErrorBD& error) {
    entorno_.RegistrarError(kContextoComponente, error.descripcion());
  }
  pendiente_ = linea;
  e.fr_ProductosElaborados->setEnabled(false);
  m.lbl_Cantidad->setText(PreguntaCantidad(e.txt_NombreElaborado->text(), unidad, pendiente_));
  MostrarMarco(m.fr_Cantidad);
  m.txt_Cantidad->setText(u"0"_s);
  m.txt_Cantidad->selectAll();
  m.txt_Cantidad->setFocus();
}

void Elaborados::completarComponente(double cantidad) {
  QListWidget* receta = c_.elab.lb_ProductosSel;
  pendiente_ = CompletarLinea(pendiente_, cantidad);
  if (QListWidgetItem* linea = receta->item(filaPendiente_))
    linea->setText(pendiente_);
  cerrarCantidad();
}

void Elaborados::descartarComponente() {
  delete c_.elab.lb_ProductosSel->takeItem(filaPendiente_);
  cerrarCantidad();
}

void Elaborados::cerrarCantidad() {
  c_.marcos.fr_Cantidad->hide();
  c_.elab.fr_ProductosElaborados->setEnabled(true);
  c_.elab.lb_Productos->setFocus();
}

void Elaborados::limpiar() {
  PantallaElaborados& e = c_.elab;
  for (QLineEdit* vacio : {e.txt_NombreElaborado, e.txt_DescElaborado, e.txtDescNumerica})
    vacio->clear();
  for (QLineEdit* cero : {e.txt_costeElaborado, e.txt_ImpuestoElaborado, e.txt_PrecioElaborado})
    cero->setText(u"0"_s);
  OlvidarElecciones(estado_, e.pic_ProductoElaborado, e.pic_Color, c_.marcos.lblNomProd);
  DesmarcarOpcion(e.optCocinaElab);
  DesmarcarOpcion(e.optBarraElab);
  PonerFamilia(e.lblNomFamilia_elab, QString(), u"-1"_s);
  e.lb_ProductosSel->clear();
}

void Elaborados::ocultarNuevo() {
  PantallaElaborados& e = c_.elab;
  Mostrar(TrasElNombre(e), false);
  Mostrar(TrasElCoste(e), false);
  e.lblpospelab->hide();
  for (QWidget* posicion : {e.bt_antpelab, e.bt_sigpelab})
    posicion->setEnabled(false);
  e.lbl_ProductoElaborado->show();
  cubrirReceta(true);
}

void Elaborados::restaurar() {
  PantallaElaborados& e = c_.elab;
  creando_ = false;
  c_.marcos.fr_Cantidad->hide();
  e.fr_ProductosElaborados->setEnabled(true);
  Mostrar(TrasElNombre(e), true);
  Mostrar(TrasElCoste(e), true);
  Mostrar({e.lblpospelab, e.lbl_Componentes}, true);
  e.lbl_ProductoElaborado->hide();
  e.frOcultar->hide();
}

void Elaborados::nombreEscrito() {
  if (creando_ && !c_.elab.txt_NombreElaborado->text().isEmpty())
    Mostrar(TrasElNombre(c_.elab), true);
}

void Elaborados::precioCambiado() {
  if (!creando_)
    return;
  PantallaElaborados& e = c_.elab;
  // Without a price the recipe waits, covered, until the price and the zone are there again.
  if (e.txt_PrecioElaborado->text().isEmpty()) {
    cubrirReceta(true);
    return;
  }
  Habilitar(e.bt_sigpelab, true);
  Habilitar(e.bt_antpelab, ValJet(e.lblpospelab->text()) > 0);
  e.lblpospelab->show();
}

void Elaborados::AbrirComponentes() {
  if (!creando_)
    return;
  cubrirReceta(false);
  c_.elab.lb_Productos->setFocus();
}

void Elaborados::cubrirReceta(bool cubrir) {
  PantallaElaborados& e = c_.elab;
  for (QWidget* lista : ListasReceta(e))
    Habilitar(lista, !cubrir);
  e.lbl_Componentes->setVisible(!cubrir);
  if (!cubrir) {
    e.frOcultar->hide();
    return;
  }
  // Below the zone frame, over the lists, down to the kind buttons.
  const int arriba = e.fr_DatosProdElab->geometry().bottom() + 1;
  e.frOcultar->setGeometry(0, arriba, e.fr_DatosProdElab->width(), e.cmdCVenta->y() - arriba);
  MostrarMarco(e.frOcultar);
}

void Elaborados::bt_antpelab() {
  QLabel* posicion = c_.elab.lblpospelab;
  const qint64 valor = static_cast<qint64>(ValJet(posicion->text())) - 1;
  posicion->setText(QString::number(valor));
  if (valor <= 0)
    c_.elab.bt_antpelab->setEnabled(false);
}

void Elaborados::bt_sigpelab() {
  QLabel* posicion = c_.elab.lblpospelab;
  posicion->setText(QString::number(static_cast<qint64>(ValJet(posicion->text())) + 1));
  Habilitar(c_.elab.bt_antpelab, true);
}

void Elaborados::cmd_NuevoProdEla() {
  PantallaElaborados& e = c_.elab;
  try {
    estado_.modificando = false;
    restaurar();
    limpiar();
    modos_.ModoCambios();
    creando_ = true;
    ocultarNuevo();
    Habilitar(e.fr_DatosProdElab, true);
    Habilitar(e.txt_NombreElaborado, true);
    estado_.codigoActual = CodigoProductoNuevo(*entorno_.ConexionBD);
    alta_.PonerOrden(2);
  } catch (const ErrorBD& error) {
    entorno_.RegistrarError(u"cmd_NuevoProdEla  1"_s, error.descripcion());
  }
  e.txt_NombreElaborado->setFocus();
}

bool Elaborados::bComprobarCamposObligatoriosProdElab() {
  PantallaElaborados& e = c_.elab;
  const QString nombre = e.txt_NombreElaborado->text().trimmed();
  if (nombre.isEmpty()) {
    entorno_.dialogos->mensaje(kMensajeNombreVacio, TituloPrograma(),
                               ServicioDialogos::Icono::Critico);
    e.txt_NombreElaborado->setFocus();
    return false;
  }
  try {
    if (ExisteNombre(*entorno_.ConexionBD, nombre, estado_.codigoActual)) {
      alta_.mensajenombre(2);
      return false;
    }
  } catch (const ErrorBD& error) {
    // A name that the check cannot look for is not saved: it could be taken.
    entorno_.RegistrarError(kContextoExisteNombre, error.descripcion());
    return false;
  }
  const ComprobacionDescNumerica numero = bcomprobarSiExisteDescNumerica(
      entorno_, e.txtDescNumerica->text(), estado_.codigoActual, estado_.modificando);
  if (numero.existe) {
    if (!numero.aviso.isEmpty())
      e.lblDescNumPElab->setText(numero.aviso);
    alta_.mensajenumero(2);
    return false;
  }
  if (estado_.colorElegido.isEmpty()) {
    // The product's button on the till needs its colour: the hint and the choice show.
    MostrarMarco(c_.marcos.fr_Mensaje);
    if (mostrarColores)
      mostrarColores();
    if (!estado_.colorElegido.isEmpty())
      c_.marcos.fr_Mensaje->hide();
    return false;
  }
  return true;
}

ElaboradoFormulario Elaborados::LeerElaborado() const {
  const PantallaElaborados& e = c_.elab;
  ElaboradoFormulario p;
  p.codigo = estado_.codigoActual;
  p.nombre = e.txt_NombreElaborado->text();
  p.descripcion = e.txt_DescElaborado->text();
  p.coste = e.txt_costeElaborado->text();
  p.iva = e.txt_ImpuestoElaborado->text();
  p.precio = e.txt_PrecioElaborado->text();
  p.foto = estado_.fotoElegida;
  p.color = estado_.colorElegido;
  p.descNumerica = e.txtDescNumerica->text();
  p.posicion = e.lblpospelab->text();
  p.optCocina = e.optCocinaElab->isChecked();
  p.optBarra = e.optBarraElab->isChecked();
  p.impresora = estado_.impresoraElegida;
  p.familia = CodigoFamilia(e.lblNomFamilia_elab);
  for (int i = 0; i < e.lb_ProductosSel->count(); ++i)
    p.receta.append(e.lb_ProductosSel->item(i)->text());
  return p;
}

void Elaborados::cmd_AceptarProdEl() {
  PantallaElaborados& e = c_.elab;
  e.fr_mensajeNombrePElab->hide();
  e.fr_mensajeNumeroPElab->hide();
  c_.marcos.fr_Mensaje->hide();
  if (!bComprobarCamposObligatoriosProdElab())
    return;
  const ElaboradoFormulario producto = LeerElaborado();
  // A save that failed is logged and leaves the page as the manager typed it.
  if (estado_.modificando) {
    if (!ModificarProductoElaborado(entorno_, producto))
      return;
  } else {
    const std::optional<qint64> codigo = guardarproductoelaboradonuevo(entorno_, producto);
    if (!codigo)
      return;
    estado_.codigoActual = static_cast<qint32>(*codigo);
  }
  mostrarGrabado();
}

void Elaborados::mostrarGrabado() {
  restaurar();
  modos_.modonavegacion();
  listas_.cargarProductosElaborados();
  try {
    visualizacion_.AbrirProductos(2);
    MoverACodigo(*estado_.productos, QString::number(estado_.codigoActual));
    visualizacion_.MostrarActual();
  } catch (const ErrorBD& e) {
    entorno_.RegistrarError(u"cmd_AceptarProdEl  1"_s, e.descripcion());
  }
  seleccionarEnLista();
}

void Elaborados::cmd_CancelarProdEl() {
  restaurar();
  if (!estado_.hayProductos())
    limpiar();
  seleccionarEnLista();
}

void Elaborados::cmd_EliminarProdEla() {
  if (!estado_.hayProductos())
    return;
  if (entorno_.dialogos->mensaje(
          kPreguntaEliminar, TituloPrograma(), ServicioDialogos::Icono::Pregunta,
          ServicioDialogos::Botones::SiNo) != ServicioDialogos::Respuesta::Si) {
    return;
  }
  if (!EliminarProducto(entorno_, estado_.codigoActual))
    return;
  listas_.cargarProductosElaborados();
  try {
    estado_.productos->requery();
    if (estado_.hayProductos()) {
      estado_.productos->moveFirst();
      visualizacion_.MostrarActual();
    } else {
      limpiar();
    }
  } catch (const ErrorBD& e) {
    entorno_.RegistrarError(u"cmd_EliminarProdEla  1"_s, e.descripcion());
  }
  seleccionarEnLista();
}
