#include "panel_proveedores.h"

#include <QComboBox>
#include <QFontMetrics>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

#include "disenio.h"
#include "entorno.h"
#include "estado_formulario.h"
#include "proveedores_producto.h"
#include "val.h"
#include "visualizacion.h"
#include "zona_impresoras.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// Each line is as tall as a fingertip, so that a touch moves the supplier meant.
void AnadirLinea(QListWidget* lista, const QString& linea) {
  auto* item = new QListWidgetItem(linea, lista);
  const int alto = std::max(disenio::kAltoToque, QFontMetrics(lista->font()).height() + 20);
  item->setSizeHint(QSize(0, alto));
}

void Llenar(QListWidget* lista, const QStringList& lineas) {
  lista->clear();
  for (const QString& linea : lineas)
    AnadirLinea(lista, linea);
}

QStringList Lineas(const QListWidget* lista) {
  QStringList lineas;
  for (int i = 0; i < lista->count(); ++i)
    lineas.append(lista->item(i)->text());
  return lineas;
}

}  // namespace

PanelProveedores::PanelProveedores(Entorno& entorno, EstadoFormulario& estado,
                                   ControlesFormulario& controles, Visualizacion& visualizacion,
                                   QObject* padre)
    : QObject(padre),
      entorno_(entorno),
      estado_(estado),
      c_(controles),
      visualizacion_(visualizacion) {}

void PanelProveedores::conectar() {
  MarcosAuxiliares& m = c_.marcos;
  // Shaded in turns, each line shows how far a touch on it reaches.
  for (QListWidget* lista : {m.lb_Proveedores, m.lb_ProveedoresAsignados})
    lista->setAlternatingRowColors(true);
  connect(c_.gen.cmd_Proveedor, &QPushButton::clicked, this, &PanelProveedores::cmd_Proveedor);
  connect(m.lb_Proveedores, &QListWidget::itemClicked, this, [this](QListWidgetItem* linea) {
    mover(c_.marcos.lb_Proveedores, linea, c_.marcos.lb_ProveedoresAsignados);
  });
  connect(m.lb_ProveedoresAsignados, &QListWidget::itemClicked, this,
          [this](QListWidgetItem* linea) {
            mover(c_.marcos.lb_ProveedoresAsignados, linea, c_.marcos.lb_Proveedores);
          });
  connect(m.cmd_AceptarProveedor, &QPushButton::clicked, this,
          &PanelProveedores::cmd_AceptarProveedor);
  connect(m.cmd_CancelarProveedor, &QPushButton::clicked, this,
          &PanelProveedores::cmd_CancelarProveedor);
  visualizacion_.cargarProveedores = [this](const QString& codigo) {
    CargarListasProveedores(static_cast<qint64>(ValJet(codigo)));
  };
}

void PanelProveedores::cmd_Proveedor() {
  MarcosAuxiliares& m = c_.marcos;
  m.lblProducto->setText(c_.gen.txt_nombre->text());
  CargarListasProveedores(estado_.codigoActual);
  // The panel is a step of its own: the screen under it waits until it is accepted or
  // cancelled, so that its "Aceptar" is not taken for the product's.
  c_.gen.fr_ProductoGenerico->setEnabled(false);
  MostrarMarco(m.frProveedores);
}

void PanelProveedores::CargarListasProveedores(qint64 codigo) {
  const ListasProveedores listas = ::CargarListasProveedores(entorno_, codigo);
  Llenar(c_.marcos.lb_Proveedores, listas.libres);
  Llenar(c_.marcos.lb_ProveedoresAsignados, listas.asignados);
}

void PanelProveedores::mover(QListWidget* desde, QListWidgetItem* linea, QListWidget* hacia) {
  const int fila = desde->row(linea);
  if (fila < 0)
    return;
  QListWidgetItem* movida = desde->takeItem(fila);
  hacia->addItem(movida);
}

QStringList PanelProveedores::asignados() const {
  return Lineas(c_.marcos.lb_ProveedoresAsignados);
}

bool PanelProveedores::GuardarProveedores() {
  // A product being created is not saved yet: its links go under the code offered to it, moved
  // on when another terminal has taken that code meanwhile.
  if (!estado_.modificando && EstaModificando(c_)) {
    const std::optional<qint64> codigo =
        GuardarProveedoresProductoNuevo(entorno_, estado_.codigoActual, asignados());
    if (codigo)
      estado_.codigoActual = *codigo;
    return codigo.has_value();
  }
  return ::GuardarProveedores(entorno_, estado_.codigoActual, asignados());
}

void PanelProveedores::cmd_AceptarProveedor() {
  QPushButton* boton = c_.gen.cmd_Proveedor;
  boton->setText(CaptionTrasAceptarProveedores(asignados(), boton->text()));
  GuardarProveedores();
  cerrar();
  mostrarMedida();
}

void PanelProveedores::mostrarMedida() {
  PantallaGenerico& g = c_.gen;
  for (QWidget* medida :
       std::initializer_list<QWidget*>{g.cbo_Medida, g.lbl_Medida, g.lbl_MedidaAyuda})
    medida->show();
  // The cover now starts below the unit and still ends at the logo frame.
  const int arriba = g.cbo_Medida->geometry().bottom() + 1;
  g.frOcultarGen->setGeometry(0, arriba, g.frlogo1->geometry().right() + 4,
                              g.frlogo1->y() - arriba);
}

void PanelProveedores::cerrar() {
  c_.marcos.frProveedores->hide();
  c_.gen.fr_ProductoGenerico->setEnabled(true);
}

void PanelProveedores::cmd_CancelarProveedor() {
  // Nothing is written; the lists are rebuilt from the database when the panel opens again.
  cerrar();
}
