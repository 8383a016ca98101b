#include "lista_productos_form.h"

#include <QEvent>
#include <QGroupBox>
#include <QListWidget>
#include <QProxyStyle>
#include <QPushButton>
#include <QScrollBar>
#include <QStyleFactory>
#include <QStyledItemDelegate>

#include "disenio.h"
#include "listas_productos.h"
#include "visualizacion.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kAnchoBarra = 40;

class EstiloListaTactil : public QProxyStyle {
 public:
  using QProxyStyle::QProxyStyle;

  int pixelMetric(PixelMetric metrica, const QStyleOption* opcion,
                  const QWidget* control) const override {
    if (metrica == PM_ScrollBarExtent)
      return kAnchoBarra;
    return QProxyStyle::pixelMetric(metrica, opcion, control);
  }
};

class FilaTactil : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QSize sizeHint(const QStyleOptionViewItem& opcion, const QModelIndex& indice) const override {
    QSize tamano = QStyledItemDelegate::sizeHint(opcion, indice);
    tamano.setHeight(qMax(tamano.height(), disenio::kAltoToque));
    return tamano;
  }
};

}  // namespace

void HacerListaTactil(QListWidget* lista) {
  auto* estilo = new EstiloListaTactil(QStyleFactory::create(lista->style()->name()));
  estilo->setParent(lista);
  lista->setStyle(estilo);
  lista->verticalScrollBar()->setStyle(estilo);
  lista->setItemDelegate(new FilaTactil(lista));
  // Every line is one line of text: the first line's size is every line's, so that a list of
  // the whole catalogue is laid out without measuring each of its lines.
  lista->setUniformItemSizes(true);
}

ListaProductosForm::ListaProductosForm(Entorno& entorno, ControlesFormulario& controles,
                                       Visualizacion& visualizacion, QObject* padre)
    : QObject(padre), entorno_(entorno), c_(controles), visualizacion_(visualizacion) {}

void ListaProductosForm::conectar() {
  MarcosAuxiliares& m = c_.marcos;
  // The list lies hidden until it is asked for, and leaves with the screen that asked for it.
  m.frListaProductos->hide();
  HacerListaTactil(m.lstProductos);
  c_.gen.fr_ProductoGenerico->installEventFilter(this);
  connect(c_.gen.cmd_ListaProd, &QPushButton::clicked, this,
          &ListaProductosForm::cmd_ListaProdClick);
  connect(m.cmdCocina, &QPushButton::clicked, this, [this] { MostrarListaProductos(u"cocina"_s); });
  connect(m.cmdBarra, &QPushButton::clicked, this, [this] { MostrarListaProductos(u"barra"_s); });
  connect(m.lstProductos, &QListWidget::itemDoubleClicked, this,
          &ListaProductosForm::lstProductosDobleClick);
}

bool ListaProductosForm::eventFilter(QObject* objeto, QEvent* evento) {
  if (objeto == c_.gen.fr_ProductoGenerico && evento->type() == QEvent::Hide)
    c_.marcos.frListaProductos->hide();
  return QObject::eventFilter(objeto, evento);
}

void ListaProductosForm::llenar(const std::optional<QStringList>& lineas) {
  MarcosAuxiliares& m = c_.marcos;
  if (!lineas)
    return;
  m.lstProductos->clear();
  MostrarMarco(m.frListaProductos);
  m.lstProductos->addItems(*lineas);
}

void ListaProductosForm::cmd_ListaProdClick() {
  if (!c_.marcos.frListaProductos->isHidden()) {
    c_.marcos.frListaProductos->hide();
    return;
  }
  llenar(LeerListaProductos(entorno_));
}

void ListaProductosForm::MostrarListaProductos(const QString& tipo) {
  llenar(LeerListaProductosPorTipo(entorno_, tipo));
}

void ListaProductosForm::lstProductosDobleClick() {
  MarcosAuxiliares& m = c_.marcos;
  const QListWidgetItem* linea = m.lstProductos->currentItem();
  if (!linea)
    return;
  visualizacion_.MostrarCodigo(CodigoDeLineaLista(linea->text()));
  m.frListaProductos->hide();
  HacerListaTactil(m.lstProductos);
}
