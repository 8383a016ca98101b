#include "frm_add_subproductos.h"

#include <QEvent>
#include <QGroupBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QTableWidget>

#include "carga_dialogo.h"
#include "disenio.h"
#include "entorno.h"
#include "error_bd.h"
#include "panel_obj_nuevo.h"
#include "principal.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// Drawn to fit an 800×600 screen whole, title bar included: the two panels on the left, the
// parent and its sub-products on the right, every target a fingertip's size.
constexpr int kAncho = 784;
constexpr int kMargen = 8;
constexpr int kToque = disenio::kAltoToque;
constexpr float kAnchoPanel = 500;
constexpr float kAltoPanel = 200;
constexpr float kAltoPaginas = 52;
constexpr int kAltoPanelEntero = int(kAltoPanel + kAltoPaginas);
constexpr int kAltoNombreFamilia = 34;
constexpr int kAltoMarco = 2 * kAltoPanelEntero + kAltoNombreFamilia + 4 * 2;
constexpr int kAlto = kAltoMarco + 2 * kMargen;
constexpr int kXDerecha = kMargen + int(kAnchoPanel) + 2 * 4 + kMargen;
constexpr int kAnchoDerecha = kAncho - kXDerecha - kMargen;
constexpr int kLadoImagen = 2 * kToque;
constexpr int kYBotones = kAlto - kMargen - kToque;
constexpr int kAnchoBotonFin = (kAnchoDerecha - 2 * 4) / 3;

}  // namespace

FrmAddSubProductos::FrmAddSubProductos(Entorno& entorno, TablasPanel& tablas, QWidget* llamador)
    : QDialog(llamador), entorno_(entorno), tablas_(tablas) {
  setObjectName(u"frmAddSubProductos"_s);
  setWindowTitle(kTituloSubproductos);
  construir();
  cargar();
  CargarDialogo(entorno_, this, llamador, {PanelFamilias_, PanelPrimeros_});
}

void FrmAddSubProductos::construir() {
  PonerLetra(this, disenio::kLetra);
  setFixedSize(kAncho, kAlto);
  QGroupBox* marco = CrearMarco(this, u"frObjetoDiseño"_s, QString(),
                                QRect(kMargen, kMargen, int(kAnchoPanel) + 8, kAltoMarco));
  PanelFamilias_ = new PanelObjNuevo(marco);
  PanelFamilias_->setObjectName(u"PanelFamilias"_s);
  PanelFamilias_->setGeometry(4, 4, int(kAnchoPanel), kAltoPanelEntero);
  lblnomFamilia_ = CrearDato(marco, u"lblnomFamilia"_s, QString(),
                             QRect(4, 4 + kAltoPanelEntero, int(kAnchoPanel), kAltoNombreFamilia));
  const QRect productos(4, 4 + kAltoPanelEntero + kAltoNombreFamilia, int(kAnchoPanel),
                        kAltoPanelEntero);
  PanelPrimeros_ = new PanelObjNuevo(marco);
  PanelPrimeros_->setObjectName(u"PanelPrimeros"_s);
  PanelPrimeros_->setGeometry(productos);
  frPanelVacio_ = CrearMarco(marco, u"frPanelVacio"_s, QString(), productos);
  auto* vacio = CrearEtiqueta(frPanelVacio_, u"lblPanelVacio"_s,
                              u"Esta familia no tiene productos para la caja"_s,
                              QRect(16, 16, productos.width() - 32, productos.height() - 32));
  vacio->setAlignment(Qt::AlignCenter);
  frPanelVacio_->hide();
  for (PanelObjNuevo* panel : {PanelFamilias_, PanelPrimeros_}) {
    panel->set_ancho_principal(kAnchoPanel);
    panel->set_alto_principal(kAltoPanel);
    panel->set_alto_secundario(kAltoPaginas);
  }
  connect(PanelFamilias_, &PanelObjNuevo::tocado, this, &FrmAddSubProductos::PanelFamiliasTocado);
  connect(PanelPrimeros_, &PanelObjNuevo::tocado, this, &FrmAddSubProductos::PanelPrimerosTocado);

  cmdDiseno_ = CrearBoton(this, u"cmdDiseño"_s, u"Toque el producto principal"_s,
                          QRect(kXDerecha, kMargen, kAnchoDerecha, kLadoImagen));
  cmdDiseno_->setFocusPolicy(Qt::NoFocus);
  imgDiseno_ =
      CrearImagen(this, u"imgDiseño"_s, QRect(kXDerecha, kMargen, kLadoImagen, kLadoImagen));
  imgDiseno_->setToolTip(u"Toque la foto para elegir otro producto principal"_s);
  imgDiseno_->installEventFilter(this);
  lblDiseno_ = CrearDato(this, u"lblDiseño"_s, QString(),
                         QRect(kXDerecha + kLadoImagen + kMargen, kMargen,
                               kAnchoDerecha - kLadoImagen - kMargen, kLadoImagen));
  lblDiseno_->setWordWrap(true);
  imgDiseno_->hide();
  lblDiseno_->hide();

  const int yProductos = kMargen + kLadoImagen + kMargen;
  frProductos_ =
      CrearMarco(this, u"frProductos"_s, QString(),
                 QRect(kXDerecha, yProductos, kAnchoDerecha, kYBotones - kMargen - yProductos));
  gridProd_ = new QTableWidget(frProductos_);
  gridProd_->setObjectName(u"gridProd"_s);
  gridProd_->setGeometry(0, 0, kAnchoDerecha, frProductos_->height() - kToque - kMargen);
  gridProd_->installEventFilter(this);
  QPushButton* quitar =
      CrearBoton(frProductos_, u"cmdQuitar"_s, u"Quitar"_s,
                 QRect(0, frProductos_->height() - kToque, kAnchoDerecha, kToque));
  connect(quitar, &QPushButton::clicked, this, &FrmAddSubProductos::QuitarFila);
  frProductos_->hide();

  const QStringList fin = {u"cmd_AceptarFin"_s, u"cmd_CancelarFin"_s, u"cmd_ayuda"_s};
  const QStringList captions = {u"Aceptar"_s, u"Cerrar"_s, u"Ayuda"_s};
  QList<QPushButton*> botones;
  for (int i = 0; i < fin.size(); ++i) {
    botones.append(
        CrearBoton(this, fin.at(i), captions.at(i),
                   QRect(kXDerecha + i * (kAnchoBotonFin + 4), kYBotones, kAnchoBotonFin, kToque)));
    botones.last()->setAutoDefault(false);
  }
  connect(botones.at(0), &QPushButton::clicked, this, &FrmAddSubProductos::cmd_AceptarFin);
  connect(botones.at(1), &QPushButton::clicked, this, &QDialog::reject);
  connect(botones.at(2), &QPushButton::clicked, this,
          [this] { AbrirAyuda(entorno_, u"A_SubProductos.html"_s); });
  quitar->setAutoDefault(false);
  cmdDiseno_->setAutoDefault(false);
}

void FrmAddSubProductos::InicializarGrid() {
  gridProd_->clear();
  gridProd_->setColumnCount(2);
  gridProd_->setRowCount(0);
  gridProd_->setHorizontalHeaderLabels({u"Lista de Productos"_s, u"codigo"_s});
  // The name column takes the grid's width less the room of a scroll bar when one shows.
  gridProd_->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
  gridProd_->setColumnHidden(1, true);
  gridProd_->verticalHeader()->hide();
  gridProd_->verticalHeader()->setDefaultSectionSize(kToque);
  gridProd_->horizontalHeader()->setMinimumHeight(kToque);
  gridProd_->setSelectionBehavior(QAbstractItemView::SelectRows);
  gridProd_->setSelectionMode(QAbstractItemView::SingleSelection);
  gridProd_->setEditTriggers(QAbstractItemView::NoEditTriggers);
}

void FrmAddSubProductos::llenar(PanelObjNuevo* panel, const TablaPanel& tabla) {
  // The till's own options: no colours on a till that shows none, and its animation.
  LlenarPanel(panel, tabla, entorno_.sesion.modocaja != 1);
  panel->set_animacion(entorno_.sesion.animacioncaja ? 1 : 0);
}

void FrmAddSubProductos::cargar() {
  try {
    CargarFamilias(entorno_, tablas_);
  } catch (const ErrorBD& e) {
    entorno_.RegistrarError(kContextoPanelSubproductos, e.descripcion());
  }
  PanelFamilias_->limpiar();
  PanelPrimeros_->limpiar();
  llenar(PanelFamilias_, tablas_.familias);
  InicializarGrid();
  if (!tablas_.familias.isEmpty()) {
    CargarPaneles(tablas_.familias.first().codigo);
    lblnomFamilia_->setText(tablas_.familias.first().nombre);
  }
}

void FrmAddSubProductos::CargarPaneles(const QString& familia) {
  tablas_.paginaA.clear();
  tablas_.paginaB.clear();
  tablas_.paginaC.clear();
  try {
    CargarProductosPanel(entorno_, tablas_, familia, 0);
  } catch (const ErrorBD& e) {
    entorno_.RegistrarError(kContextoPanelSubproductos, e.descripcion());
  }
  llenar(PanelPrimeros_, tablas_.paginaA);
  frPanelVacio_->setVisible(tablas_.paginaA.isEmpty());
  if (tablas_.paginaA.isEmpty())
    frPanelVacio_->raise();
}

void FrmAddSubProductos::PanelFamiliasTocado() {
  CargarPaneles(PanelFamilias_->codigo_seleccionado());
  lblnomFamilia_->setText(PanelFamilias_->nombre_seleccionado());
}

void FrmAddSubProductos::PanelPrimerosTocado() {
  if (frProductos_->isHidden()) {
    const EntradaPanel entrada = tablas_.paginaA.value(PanelPrimeros_->indice_seleccionado());
    const QPixmap foto(entrada.imagen);
    imgDiseno_->setPixmap(foto.isNull()
                              ? QPixmap()
                              : foto.scaled(imgDiseno_->size() - QSize(4, 4), Qt::KeepAspectRatio,
                                            Qt::SmoothTransformation));
    imgDiseno_->show();
    cmdDiseno_->hide();
    lblDiseno_->setText(entrada.nombre);
    lblDiseno_->show();
    gridProd_->setRowCount(0);
    padre_ = PanelPrimeros_->codigo_seleccionado().toInt();
    nombrePadre_ = entrada.nombre;
    frProductos_->show();
    CargarProductosHijos();
    return;
  }
  AnadirProdAGrid(PanelPrimeros_->nombre_seleccionado(), PanelPrimeros_->codigo_seleccionado());
}

void FrmAddSubProductos::CargarProductosHijos() {
  try {
    for (const Subproducto& hijo : LeerProductosHijos(*entorno_.ConexionBD, padre_)) {
      const int fila = gridProd_->rowCount();
      gridProd_->insertRow(fila);
      gridProd_->setItem(fila, 0, new QTableWidgetItem(hijo.nombre));
      gridProd_->setItem(fila, 1, new QTableWidgetItem(hijo.codigo));
    }
  } catch (const ErrorBD& e) {
    entorno_.RegistrarError(kContextoCargarSubproductos, e.descripcion());
  }
}

bool FrmAddSubProductos::existeEnGrid(const QString& codigo) const {
  for (int fila = 0; fila < gridProd_->rowCount(); ++fila) {
    if (const QTableWidgetItem* celda = gridProd_->item(fila, 1); celda && celda->text() == codigo)
      return true;
  }
  return false;
}

void FrmAddSubProductos::AnadirProdAGrid(const QString& nombre, const QString& codigo) {
  if (existeEnGrid(codigo))
    return;
  const int fila = gridProd_->rowCount();
  gridProd_->insertRow(fila);
  gridProd_->setItem(fila, 0, new QTableWidgetItem(nombre));
  gridProd_->setItem(fila, 1, new QTableWidgetItem(codigo));
}

void FrmAddSubProductos::QuitarFila() {
  const int fila = gridProd_->currentRow();
  if (fila >= 0 && fila < gridProd_->rowCount())
    gridProd_->removeRow(fila);
}

void FrmAddSubProductos::ElegirOtroPadre() {
  padre_ = 0;
  nombrePadre_.clear();
  gridProd_->setRowCount(0);
  frProductos_->hide();
  imgDiseno_->hide();
  lblDiseno_->hide();
  cmdDiseno_->show();
}

void FrmAddSubProductos::cmd_AceptarFin() {
  // With no parent chosen there is nothing to replace.
  if (frProductos_->isHidden())
    return;
  QStringList hijos;
  for (int fila = 0; fila < gridProd_->rowCount(); ++fila)
    hijos.append(gridProd_->item(fila, 1)->text());
  try {
    GrabarSubproductos(*entorno_.ConexionBD, padre_, hijos);
  } catch (const ErrorBD& e) {
    entorno_.RegistrarError(kContextoGrabarSubproductos, e.descripcion());
    return;
  }
  entorno_.dialogos->mensaje(kMensajeSubproductosIncluidos + nombrePadre_, kTituloSubproductos,
                             ServicioDialogos::Icono::Informacion);
}

bool FrmAddSubProductos::eventFilter(QObject* objeto, QEvent* evento) {
  if (objeto == imgDiseno_ && evento->type() == QEvent::MouseButtonRelease) {
    ElegirOtroPadre();
    return true;
  }
  if (objeto == gridProd_ && evento->type() == QEvent::KeyPress &&
      static_cast<QKeyEvent*>(evento)->key() == Qt::Key_Delete) {
    QuitarFila();
    return true;
  }
  return QDialog::eventFilter(objeto, evento);
}

FrmAddSubProductos* AbrirSubproductos(Entorno& entorno, TablasPanel& tablas, QWidget* llamador) {
  auto* dialogo = new FrmAddSubProductos(entorno, tablas, llamador);
  dialogo->setAttribute(Qt::WA_DeleteOnClose);
  dialogo->open();
  return dialogo;
}
