#include "navegacion_teclado.h"

#include <algorithm>
#include <numeric>

#include <QApplication>
#include <QButtonGroup>
#include <QComboBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QListView>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QScroller>
#include <QScrollerProperties>
#include <QTimer>

#include "disenio.h"
#include "panel_obj_nuevo.h"

namespace {

constexpr int kToleranciaFila = 16;
constexpr int kAnillo = 4;  // how far the focus ring stands out of the control

// The ring around the control with the focus: black outside, yellow inside, so that it shows
// on any colour scheme. It lets touches through.
class AnilloFoco : public QWidget {
 public:
  explicit AnilloFoco(QWidget* padre) : QWidget(padre) {
    setObjectName(QStringLiteral("anillo_foco"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    hide();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter p(this);
    p.setPen(QPen(Qt::black, 2));
    p.drawRect(QRectF(rect()).adjusted(1, 1, -1, -1));
    p.setPen(QPen(QColor(0xFF, 0xD4, 0x00), 2));
    p.drawRect(QRectF(rect()).adjusted(3, 3, -3, -3));
  }
};

bool EsTeclaDeAccion(const QEvent* evento) {
  if (evento->type() != QEvent::KeyPress)
    return false;
  const int tecla = static_cast<const QKeyEvent*>(evento)->key();
  return tecla == Qt::Key_Return || tecla == Qt::Key_Enter || tecla == Qt::Key_Space;
}

QRect Entre(const QWidget* base, const QWidget* desde, const QPoint& a, const QPoint& b) {
  return QRect(desde->mapTo(base, a), desde->mapTo(base, b));
}

}  // namespace

QList<int> OrdenDeLectura(const QList<QRect>& controles, const QList<QRect>& zonas,
                          int toleranciaFila) {
  const auto zonaDe = [&zonas](const QRect& r) {
    const auto z = std::find_if(zonas.cbegin(), zonas.cend(),
                                [&r](const QRect& zona) { return zona.contains(r.center()); });
    return int(z - zonas.cbegin());
  };
  QList<int> orden(controles.size());
  std::iota(orden.begin(), orden.end(), 0);
  std::stable_sort(orden.begin(), orden.end(), [&](int a, int b) {
    const int za = zonaDe(controles.at(a));
    const int zb = zonaDe(controles.at(b));
    return za != zb ? za < zb : controles.at(a).top() < controles.at(b).top();
  });
  // Within a zone, the rows: each starts at its topmost control and reads left to right.
  for (qsizetype i = 0; i < orden.size();) {
    const int zona = zonaDe(controles.at(orden.at(i)));
    const int arriba = controles.at(orden.at(i)).top();
    qsizetype fin = i + 1;
    while (fin < orden.size() && zonaDe(controles.at(orden.at(fin))) == zona &&
           controles.at(orden.at(fin)).top() - arriba < toleranciaFila) {
      ++fin;
    }
    std::stable_sort(orden.begin() + i, orden.begin() + fin, [&controles](int a, int b) {
      return controles.at(a).center().x() < controles.at(b).center().x();
    });
    i = fin;
  }
  return orden;
}

NavegacionTeclado::NavegacionTeclado(ControlesFormulario& controles, QWidget* formulario)
    : QObject(formulario),
      c_(controles),
      formulario_(formulario),
      anillo_(new AnilloFoco(formulario)) {
  for (QLabel* caja :
       {c_.gen.pict_imagen, c_.gen.pic_ColorPG, c_.elab.pic_ProductoElaborado, c_.elab.pic_Color}) {
    caja->setFocusPolicy(Qt::TabFocus);
    caja->installEventFilter(this);
  }
  MarcosAuxiliares& m = c_.marcos;
  for (QListWidget* lista : {m.lb_Proveedores, m.lb_ProveedoresAsignados, c_.elab.lb_ProductosSel})
    HacerListaTactil(lista);
  HacerListaTactil(c_.gen.cbo_Medida->view());
  QList<QListView*> listas = {m.lstProductos, c_.elab.lb_Productos, c_.elab.lb_ProductosElaborados};
  for (QListWidget* lista : formulario->findChildren<QListWidget*>())
    listas.append(lista);
  // A finger drags a list to scroll it; a touch that does not move takes its line at once, so
  // that the button pressed next (the arrow of the recipe page, say) finds it taken.
  QScrollerProperties arrastre;
  arrastre.setScrollMetric(QScrollerProperties::MousePressEventDelay, 0);
  for (QListView* lista : std::as_const(listas)) {
    QScroller::grabGesture(lista->viewport(), QScroller::LeftMouseButtonGesture);
    QScroller::scroller(lista->viewport())->setScrollerProperties(arrastre);
    // The recipe page's lists answer Enter themselves: it chooses a component or asks a
    // component's quantity again.
    if (lista != c_.elab.lb_Productos && lista != c_.elab.lb_ProductosSel)
      lista->installEventFilter(this);
  }
  // A panel that opens takes the focus, so that the keyboard carries on in it.
  for (QWidget* panel : {m.frProveedores, m.frImpresoras, m.frListaProductos, m.fr_Cantidad})
    panel->installEventFilter(this);
  connect(qApp, &QApplication::focusChanged, this,
          [this](QWidget*, QWidget* ahora) { seguirFoco(ahora); });
}

bool NavegacionTeclado::alcanzable(QWidget* control) const {
  if (!control->isEnabled())
    return false;
  // An option group is one stop: the option that is set, or the first when none is. (Qt's own
  // juggling of the options' focus policy loses track when an option is unset from code.)
  if (auto* opcion = qobject_cast<QRadioButton*>(control); opcion && opcion->group()) {
    const QList<QAbstractButton*> grupo = opcion->group()->buttons();
    QAbstractButton* marcada = opcion->group()->checkedButton();
    QAbstractButton* parada = marcada;
    for (QAbstractButton* b : grupo) {
      if (!parada && b->isVisible() && b->isEnabled())
        parada = b;
    }
    return opcion == parada && descubierto(control);
  }
  return (control->focusPolicy() & Qt::TabFocus) && descubierto(control);
}

QList<QWidget*> NavegacionTeclado::avisos() const {
  return {c_.gen.fr_MensajeNombre, c_.gen.fr_Mensajenumero, c_.elab.fr_mensajeNombrePElab,
          c_.elab.fr_mensajeNumeroPElab};
}

bool NavegacionTeclado::descubierto(QWidget* control) const {
  if (!control->isVisible())
    return false;
  QWidget* arriba = formulario_->childAt(control->mapTo(formulario_, control->rect().center()));
  if (arriba && (arriba == control || control->isAncestorOf(arriba)))
    return true;
  // A hint lies over the fields only to be read: the keyboard passes under it, as a touch on it
  // takes it away.
  const QList<QWidget*> encima = avisos();
  return std::any_of(encima.cbegin(), encima.cend(), [arriba, control](QWidget* aviso) {
    return arriba && (arriba == aviso || aviso->isAncestorOf(arriba)) &&
           aviso->parentWidget() == control->parentWidget();
  });
}

QList<QWidget*> NavegacionTeclado::alcanzables() const {
  const MarcosAuxiliares& m = c_.marcos;
  QList<QWidget*> controles;
  // The on-screen keyboard is for a finger: Tab stays on the screen and its panels.
  for (QWidget* raiz : std::initializer_list<QWidget*>{
           m.frProveedores, m.frImpresoras, m.frListaProductos, m.fr_Cantidad,
           c_.inicial.fr_Inicial, c_.gen.fr_ProductoGenerico, c_.elab.fr_ProductosElaborados}) {
    if (!raiz->isVisible())
      continue;
    const QList<QWidget*> hijos = raiz->findChildren<QWidget*>();
    for (QWidget* w : hijos) {
      if (alcanzable(w) && !controles.contains(w))
        controles.append(w);
    }
  }
  QList<QRect> rectangulos;
  for (const QWidget* w : std::as_const(controles))
    rectangulos.append(QRect(w->mapTo(formulario_, QPoint()), w->size()));
  QList<QWidget*> ordenados;
  const QList<int> orden = OrdenDeLectura(rectangulos, zonas(), kToleranciaFila);
  for (int i : orden)
    ordenados.append(controles.at(i));
  return ordenados;
}

QList<QRect> NavegacionTeclado::zonas() const {
  const MarcosAuxiliares& m = c_.marcos;
  QList<QRect> zonas;
  for (QWidget* panel : {m.frProveedores, m.frImpresoras, m.frListaProductos, m.fr_Cantidad}) {
    const QRect r(panel->mapTo(formulario_, QPoint()), panel->size());
    QWidget* arriba = formulario_->childAt(r.center());
    if (panel->isVisible() && arriba && (arriba == panel || panel->isAncestorOf(arriba)))
      zonas.append(r);
  }
  // A product screen reads its fields, then the till button's column, then its foot.
  const auto columnas = [&](const QWidget* pantalla, const QWidget* columna, const QWidget* pie) {
    if (!pantalla->isVisible())
      return;
    const QWidget* p = pantalla;
    zonas.append(Entre(formulario_, p, QPoint(0, 0), QPoint(columna->x() - 1, pie->y() - 1)));
    zonas.append(Entre(formulario_, p, QPoint(columna->x(), 0), QPoint(p->width(), pie->y() - 1)));
  };
  columnas(c_.gen.fr_ProductoGenerico, c_.gen.lbl_Familia, c_.gen.cmd_nuevo);
  columnas(c_.elab.fr_ProductosElaborados, c_.elab.lbl_FamiliaElab, c_.elab.cmd_NuevoProdEla);
  return zonas;
}

bool NavegacionTeclado::moverFoco(bool siguiente) {
  const QList<QWidget*> controles = alcanzables();
  if (controles.isEmpty())
    return false;
  QWidget* actual = QApplication::focusWidget();
  qsizetype i = controles.indexOf(actual);
  if (i < 0) {
    i = siguiente ? 0 : controles.size() - 1;
  } else {
    i = (i + (siguiente ? 1 : controles.size() - 1)) % controles.size();
  }
  controles.at(i)->setFocus(siguiente ? Qt::TabFocusReason : Qt::BacktabFocusReason);
  return true;
}

void NavegacionTeclado::entrarEnPanel(QWidget* panel) {
  if (QApplication::focusWidget() && panel->isAncestorOf(QApplication::focusWidget()))
    return;
  const QList<QWidget*> controles = alcanzables();
  for (QWidget* w : controles) {
    if (panel->isAncestorOf(w)) {
      w->setFocus(Qt::OtherFocusReason);
      return;
    }
  }
}

bool NavegacionTeclado::eventFilter(QObject* objeto, QEvent* evento) {
  if (evento->type() == QEvent::Show && objeto->inherits("QGroupBox")) {
    auto* panel = static_cast<QWidget*>(objeto);
    QTimer::singleShot(0, panel, [this, panel] { entrarEnPanel(panel); });
    return false;
  }
  if (!EsTeclaDeAccion(evento))
    return QObject::eventFilter(objeto, evento);
  if (auto* lista = qobject_cast<QListView*>(objeto)) {
    const QModelIndex linea = lista->currentIndex();
    if (!linea.isValid())
      return false;
    // The pop-up list of products opens a product with a double touch; the others take a line
    // with one.
    if (lista == c_.marcos.lstProductos)
      emit lista->doubleClicked(linea);
    else
      emit lista->clicked(linea);
    return true;
  }
  // A picture or colour box: a touch in its middle.
  auto* caja = static_cast<QWidget*>(objeto);
  const QPointF centro = QRectF(caja->rect()).center();
  QMouseEvent toque(QEvent::MouseButtonRelease, centro, caja->mapToGlobal(centro), Qt::LeftButton,
                    Qt::NoButton, Qt::NoModifier);
  QApplication::sendEvent(caja, &toque);
  return true;
}

void NavegacionTeclado::seguirFoco(QWidget* control) {
  const bool enPantalla = control && control != formulario_ && formulario_->isAncestorOf(control) &&
                          descubierto(control) && !c_.teclado.fr_teclado->isAncestorOf(control);
  if (!enPantalla) {
    anillo_->hide();
    return;
  }
  const QRect lugar(control->mapTo(formulario_, QPoint()), control->size());
  for (QWidget* aviso : avisos()) {
    if (aviso->isVisible() &&
        QRect(aviso->mapTo(formulario_, QPoint()), aviso->size()).intersects(lugar))
      aviso->hide();
  }
  anillo_->setGeometry(lugar.adjusted(-kAnillo, -kAnillo, kAnillo, kAnillo));
  anillo_->raise();
  anillo_->show();
}
