#include "zona_impresoras.h"

#include <QCheckBox>
#include <QEvent>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

#include "disenio.h"
#include "entorno.h"
#include "estado_formulario.h"
#include "impresoras_producto.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QStringList Lineas(const QListWidget* lista) {
  QStringList lineas;
  for (int i = 0; i < lista->count(); ++i)
    lineas.append(lista->item(i)->text());
  return lineas;
}

void Mostrar(std::initializer_list<QWidget*> controles) {
  for (QWidget* c : controles)
    c->show();
}

}  // namespace

bool EstaModificando(const ControlesFormulario& c) {
  const QWidget* formulario = c.gen.fr_ProductoGenerico->parentWidget();
  const bool generico = c.gen.fr_ProductoGenerico->isVisibleTo(formulario);
  const bool elaborados = c.elab.fr_ProductosElaborados->isVisibleTo(formulario);
  return (generico && c.gen.cmd_aceptar->isEnabled()) ||
         (elaborados && c.elab.cmd_AceptarProdEl->isEnabled());
}

bool PuedeTomarFoco(const QLineEdit* campo) {
  // A locked field would take the focus and the scheme's focus colour in navigation mode, where
  // nothing can be typed: the focus stays where the mode put it.
  return campo->isVisible() && campo->isEnabled() && !campo->isReadOnly();
}

ZonaImpresoras::ZonaImpresoras(Entorno& entorno, EstadoFormulario& estado,
                               ControlesFormulario& controles, QObject* padre)
    : QObject(padre), entorno_(entorno), estado_(estado), c_(controles) {
  setObjectName(u"ZonaImpresoras"_s);
}

void ZonaImpresoras::conectar() {
  PantallaGenerico& g = c_.gen;
  PantallaElaborados& e = c_.elab;
  MarcosAuxiliares& m = c_.marcos;
  // The chooser lies hidden until it is opened, and leaves with the screen that opened it.
  m.frImpresoras->hide();
  HacerListaTactil(m.lb_impresoras);
  g.fr_ProductoGenerico->installEventFilter(this);
  e.fr_ProductosElaborados->installEventFilter(this);
  // The kinds act when they become set, whether the manager or the record display sets them, as
  // the fields' other events do.
  for (QRadioButton* opcion : {g.opt_Venta, g.opt_ambos}) {
    connect(opcion, &QRadioButton::toggled, this, [this](bool marcada) {
      if (marcada)
        opcionVentaOAmbos();
    });
  }
  connect(g.opt_cocina, &QRadioButton::toggled, this, [this](bool marcada) {
    if (marcada)
      opcionCocina();
  });
  // Only the manager's choice of a zone opens the components: the record display sets the zone
  // of a product that already has its recipe.
  for (QRadioButton* zona : {e.optBarraElab, e.optCocinaElab}) {
    connect(zona, &QRadioButton::clicked, this, [this](bool marcada) {
      if (marcada)
        zonaElaborado();
    });
  }

  for (QPushButton* abrir : {g.cmdImpresoras, e.cmdImpresorasElab}) {
    connect(abrir, &QPushButton::clicked, this, &ZonaImpresoras::AbrirImpresoras);
  }
  connect(m.lb_impresoras, &QListWidget::itemClicked, this, [this](QListWidgetItem* item) {
    lb_impresorasClick(c_.marcos.lb_impresoras->row(item));
  });
  connect(m.Command3, &QPushButton::clicked, this, &ZonaImpresoras::Command3Click);
  connect(m.Command5, &QPushButton::clicked, this, &ZonaImpresoras::Command5Click);
  connect(m.cmdCerrarImpresoras, &QPushButton::clicked, this, &ZonaImpresoras::CerrarImpresoras);
}

bool ZonaImpresoras::eventFilter(QObject* objeto, QEvent* evento) {
  if (evento->type() == QEvent::Hide && c_.marcos.frImpresoras->isVisible() &&
      (objeto == c_.gen.fr_ProductoGenerico || objeto == c_.elab.fr_ProductosElaborados)) {
    CerrarImpresoras();
  }
  return QObject::eventFilter(objeto, evento);
}

void ZonaImpresoras::opcionVentaOAmbos() {
  PantallaGenerico& g = c_.gen;
  Mostrar({g.lbl_coste, g.txt_coste, g.lbl_precio, g.txt_precio, g.lbl_iva, g.txt_iva,
           g.lbl_percent, g.lbl_stock_minimo, g.txt_stock_minimo, g.Label16, g.txt_stock_actual,
           g.ch_Mostrar, g.lblPreparado, g.optCocina, g.optBarra});
  if (PuedeTomarFoco(g.txt_coste))
    g.txt_coste->setFocus();
}

void ZonaImpresoras::opcionCocina() {
  PantallaGenerico& g = c_.gen;
  // A product for the kitchen's or the bar's own use is never sold: it has a cost but no price.
  Mostrar({g.lbl_coste, g.txt_coste, g.lbl_iva, g.txt_iva, g.lbl_percent, g.lbl_stock_minimo,
           g.txt_stock_minimo, g.Label16, g.txt_stock_actual, g.ch_Mostrar});
  g.lbl_precio->hide();
  g.txt_precio->hide();
  if (PuedeTomarFoco(g.txt_coste))
    g.txt_coste->setFocus();
}

void ZonaImpresoras::zonaElaborado() {
  if (EstaModificando(c_) && !estado_.modificando && abrirComponentes)
    abrirComponentes();
}

QString ZonaImpresoras::nombreProducto() const {
  return estado_.tipo == 2 ? c_.elab.txt_NombreElaborado->text() : c_.gen.txt_nombre->text();
}

void ZonaImpresoras::AbrirImpresoras() {
  MarcosAuxiliares& m = c_.marcos;
  lineaAlAbrir_ = m.lblNomProd->text();
  if (const std::optional<QString> linea =
          CaptionAlAbrirImpresoras(estado_.impresoraElegida, nombreProducto())) {
    m.lblNomProd->setText(*linea);
  }
  // The list opens on the product's printer, so that accepting it untouched keeps it; with none
  // no row is chosen, and accepting means no specific printer.
  const QStringList codigos = Lineas(m.lbCodigos);
  const int fila = estado_.impresoraElegida.isEmpty()
                       ? -1
                       : static_cast<int>(codigos.indexOf(estado_.impresoraElegida.trimmed()));
  m.lb_impresoras->setCurrentRow(fila);
  m.lbCodigos->setCurrentRow(fila);
  MostrarMarco(m.frImpresoras);
}

void ZonaImpresoras::lb_impresorasClick(int fila) {
  MarcosAuxiliares& m = c_.marcos;
  if (fila < 0 || fila >= m.lb_impresoras->count())
    return;
  m.lbCodigos->setCurrentRow(fila);
  m.lblNomProd->setText(
      CaptionImpresoraElegida(nombreProducto(), m.lb_impresoras->item(fila)->text()));
}

void ZonaImpresoras::Command3Click() {
  MarcosAuxiliares& m = c_.marcos;
  if (!EstaModificando(c_)) {
    AvisarImpresoraFueraDeModo(*entorno_.dialogos);
    return;
  }
  estado_.impresoraElegida =
      CodigoImpresoraAceptada(Lineas(m.lbCodigos), m.lbCodigos->currentRow());
  m.frImpresoras->hide();
}

void ZonaImpresoras::Command5Click() {
  MarcosAuxiliares& m = c_.marcos;
  if (!EstaModificando(c_)) {
    AvisarImpresoraFueraDeModo(*entorno_.dialogos);
    return;
  }
  estado_.impresoraElegida = u"0"_s;
  m.frImpresoras->hide();
}

void ZonaImpresoras::CerrarImpresoras() {
  MarcosAuxiliares& m = c_.marcos;
  m.lblNomProd->setText(lineaAlAbrir_);
  m.frImpresoras->hide();
}
