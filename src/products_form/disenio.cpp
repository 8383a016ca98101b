#include "disenio.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QProxyStyle>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QStyleFactory>
#include <QStyledItemDelegate>

#include "colorear.h"
#include "panel_obj_nuevo.h"

using namespace Qt::Literals::StringLiterals;

namespace {

template <typename T>
T* Colocar(T* control, const QString& nombre, const QRect& geometria) {
  control->setObjectName(nombre);
  control->setGeometry(geometria);
  return control;
}

constexpr int kAnchoBarra = disenio::kAltoToque;

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

QPushButton* CrearBoton(QWidget* padre, const QString& nombre, const QString& caption,
                        const QRect& geometria) {
  auto* b = Colocar(new QPushButton(caption, padre), nombre, geometria);
  // A touch screen has no keyboard focus to show: a button keeps the field's focus, so that
  // the keys of the on-screen keyboard type where the manager was typing.
  b->setFocusPolicy(Qt::TabFocus);
  return b;
}

QLabel* CrearEtiqueta(QWidget* padre, const QString& nombre, const QString& caption,
                      const QRect& geometria) {
  auto* l = Colocar(new QLabel(caption, padre), nombre, geometria);
  l->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  l->setWordWrap(geometria.height() >= 2 * disenio::kAltoToque - 8);
  return l;
}

QLabel* CrearDato(QWidget* padre, const QString& nombre, const QString& caption,
                  const QRect& geometria) {
  QLabel* l = CrearEtiqueta(padre, nombre, caption, geometria);
  PonerLetra(l, disenio::kLetra, true);
  return l;
}

QLineEdit* CrearCampo(QWidget* padre, const QString& nombre, const QRect& geometria) {
  return Colocar(new QLineEdit(padre), nombre, geometria);
}

QComboBox* CrearCombo(QWidget* padre, const QString& nombre, const QRect& geometria) {
  return Colocar(new QComboBox(padre), nombre, geometria);
}

QCheckBox* CrearCasilla(QWidget* padre, const QString& nombre, const QString& caption,
                        const QRect& geometria) {
  auto* c = Colocar(new QCheckBox(caption, padre), nombre, geometria);
  c->setFocusPolicy(Qt::TabFocus);
  return c;
}

QRadioButton* CrearOpcion(QWidget* padre, const QString& nombre, const QString& caption,
                          const QRect& geometria) {
  auto* o = Colocar(new QRadioButton(caption, padre), nombre, geometria);
  o->setFocusPolicy(Qt::TabFocus);
  return o;
}

namespace {

template <typename Lista>
Lista* ColocarLista(Lista* l, const QString& nombre, const QRect& geometria) {
  Colocar(l, nombre, geometria);
  // The code of each line stands far to the right, out of sight; it must stay there.
  l->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  l->setTextElideMode(Qt::ElideNone);
  return l;
}

}  // namespace

QListWidget* CrearLista(QWidget* padre, const QString& nombre, const QRect& geometria) {
  return ColocarLista(new QListWidget(padre), nombre, geometria);
}

QListView* CrearLista(QWidget* padre, const QString& nombre, const QRect& geometria,
                      QAbstractItemModel* modelo) {
  auto* l = ColocarLista(new QListView(padre), nombre, geometria);
  modelo->setParent(l);
  l->setModel(modelo);
  return l;
}

QLabel* CrearImagen(QWidget* padre, const QString& nombre, const QRect& geometria) {
  auto* l = Colocar(new QLabel(padre), nombre, geometria);
  l->setFrameShape(QFrame::Box);
  l->setAlignment(Qt::AlignCenter);
  l->setAutoFillBackground(true);
  l->setProperty("imagen", true);
  return l;
}

QGroupBox* CrearMarco(QWidget* padre, const QString& nombre, const QString& titulo,
                      const QRect& geometria) {
  auto* g = Colocar(new QGroupBox(titulo, padre), nombre, geometria);
  g->setFlat(true);
  g->setAutoFillBackground(true);
  return g;
}

void PonerLetra(QWidget* control, int puntos, bool negrita) {
  QFont f = control->font();
  f.setPointSize(puntos);
  f.setBold(negrita);
  control->setFont(f);
}

void PintarFondo(QWidget* control, const QColor& color) {
  if (control && color.isValid())
    PonerColorFondo(control, color);
}

void AgruparOpciones(std::initializer_list<QRadioButton*> opciones) {
  auto* grupo = new QButtonGroup((*opciones.begin())->parentWidget());
  for (QRadioButton* o : opciones)
    grupo->addButton(o);
}

void DesmarcarOpcion(QRadioButton* opcion) {
  if (QButtonGroup* grupo = opcion->group()) {
    const bool exclusivo = grupo->exclusive();
    grupo->setExclusive(false);
    opcion->setChecked(false);
    grupo->setExclusive(exclusivo);
    return;
  }
  const bool exclusiva = opcion->autoExclusive();
  opcion->setAutoExclusive(false);
  opcion->setChecked(false);
  opcion->setAutoExclusive(exclusiva);
}

namespace {

constexpr int kLadoMarca = 24;

class EstiloMarcasGrandes : public QProxyStyle {
 public:
  using QProxyStyle::QProxyStyle;

  int pixelMetric(PixelMetric metrica, const QStyleOption* opcion,
                  const QWidget* control) const override {
    switch (metrica) {
      case PM_IndicatorWidth:
      case PM_IndicatorHeight:
      case PM_ExclusiveIndicatorWidth:
      case PM_ExclusiveIndicatorHeight:
        // As the type grows or shrinks with the screen and the terminal's type size, so does
        // the mark, so that the caption beside it keeps its room.
        if (control && control->font().pointSizeF() > 0)
          return qRound(kLadoMarca * control->font().pointSizeF() / disenio::kLetra);
        return kLadoMarca;
      default:
        return QProxyStyle::pixelMetric(metrica, opcion, control);
    }
  }
};

}  // namespace

void AgrandarMarcas(QWidget* formulario) {
  auto* estilo = new EstiloMarcasGrandes(QStyleFactory::create(formulario->style()->name()));
  estilo->setParent(formulario);
  const QList<QAbstractButton*> botones = formulario->findChildren<QAbstractButton*>();
  for (QAbstractButton* b : botones) {
    if (qobject_cast<QCheckBox*>(b) || qobject_cast<QRadioButton*>(b))
      b->setStyle(estilo);
  }
}

ColumnaBotonCaja CrearColumnaBotonCaja(QWidget* m, const QStringList& n) {
  constexpr int x = 700;
  constexpr int ancho = 316;
  constexpr int alto = disenio::kAltoToque;
  ColumnaBotonCaja c;
  c.lblFamilia = CrearEtiqueta(m, n.at(0), u"Familia"_s, QRect(x, 8, 80, 36));
  c.nombreFamilia = CrearDato(m, n.at(1), u"<Nombre de la Familia>"_s, QRect(x + 84, 8, 232, 36));
  c.nombreFamilia->setProperty("codigo", u"-1"_s);
  c.panel = new PanelObjNuevo(m);
  c.panel->setObjectName(n.at(2));
  c.panel->setGeometry(x, 48, ancho, 212);

  c.imagen = CrearImagen(m, n.at(3), QRect(x, 268, 150, 100));
  c.insertar = CrearEtiqueta(m, n.at(4), u"Insertar imagen"_s, QRect(x, 370, 150, 28));
  c.insertar->setAlignment(Qt::AlignCenter);
  c.color = CrearImagen(m, n.at(5), QRect(x + 166, 268, 150, 64));
  c.lblColor =
      CrearEtiqueta(m, n.at(6), u"Toque para elegir el color"_s, QRect(x + 166, 334, 150, 64));
  c.lblColor->setWordWrap(true);
  c.lblColor->setAlignment(Qt::AlignCenter);

  c.lblDescNumerica = CrearEtiqueta(m, n.at(7), u"Desc. numérica"_s, QRect(x, 404, 150, alto));
  c.descNumerica = CrearCampo(m, n.at(8), QRect(x + 156, 404, 160, alto));
  c.descNumerica->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  c.lblPosicion = CrearEtiqueta(m, n.at(9), u"Posición"_s, QRect(x, 454, 100, alto));
  c.anterior = CrearBoton(m, n.at(10), QString(QChar(0x25C0)), QRect(x + 104, 454, 60, alto));
  c.posicion = CrearDato(m, n.at(11), u"0"_s, QRect(x + 168, 454, 84, alto));
  c.posicion->setAlignment(Qt::AlignCenter);
  c.posicion->setFrameShape(QFrame::Box);
  c.siguiente = CrearBoton(m, n.at(12), QString(QChar(0x25B6)), QRect(x + 256, 454, 60, alto));
  return c;
}

AvisosPantalla CrearAvisosPantalla(QWidget* m, const QStringList& n) {
  AvisosPantalla a;
  a.marcoNombre = CrearMarco(m, n.at(0), QString(), QRect(144, 58, 548, 96));
  a.nombre = CrearEtiqueta(a.marcoNombre, n.at(1),
                           u"La descripción corta ya existe, por favor introduzca otra."_s,
                           QRect(12, 8, 524, 80));
  a.nombre->setWordWrap(true);
  PonerLetra(a.nombre, disenio::kLetraTitulo, true);

  a.marcoNumero = CrearMarco(m, n.at(2), QString(), QRect(700, 300, 316, 100));
  a.numero = CrearEtiqueta(a.marcoNumero, n.at(3),
                           u"La descripción numérica ya existe, por favor introduzca otra."_s,
                           QRect(10, 6, 296, 88));
  a.numero->setWordWrap(true);
  PonerLetra(a.numero, disenio::kLetra, true);
  return a;
}

void HacerListaTactil(QAbstractItemView* lista) {
  auto* estilo = new EstiloListaTactil(QStyleFactory::create(lista->style()->name()));
  estilo->setParent(lista);
  lista->setStyle(estilo);
  lista->verticalScrollBar()->setStyle(estilo);
  lista->setItemDelegate(new FilaTactil(lista));
  // Every line is one line of text: the first line's size is every line's, so that a list of
  // the whole catalogue is laid out without measuring each of its lines.
  if (auto* lineas = qobject_cast<QListView*>(lista))
    lineas->setUniformItemSizes(true);
}
