#include "panel_obj_nuevo.h"

#include <cmath>

#include <QAbstractButton>
#include <QImageReader>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QParallelAnimationGroup>
#include <QPropertyAnimation>
#include <QTextLayout>
#include <QVariantAnimation>

#include "color_vb.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kHueco = 8;        // space between buttons and around the arrows
constexpr int kRadio = 10;       // corner radius of buttons and arrows
constexpr int kMarca = 22;       // side of the mark corner
constexpr int kImagenMax = 320;  // pictures are kept no larger than this, whatever the file

QPainterPath Redondeado(const QRectF& r) {
  QPainterPath camino;
  camino.addRoundedRect(r, kRadio, kRadio);
  return camino;
}

}  // namespace

// One button of the panel: back colour, picture, caption, numeric description and mark.
class BotonPanel : public QAbstractButton {
 public:
  explicit BotonPanel(QWidget* parent) : QAbstractButton(parent) {
    setFocusPolicy(Qt::NoFocus);
    setAttribute(Qt::WA_OpaquePaintEvent, false);
    connect(this, &QAbstractButton::pressed, this, [this] { hundir(true); });
    connect(this, &QAbstractButton::released, this, [this] { hundir(false); });
  }

  void poner(const EntradaPanel& entrada, int indice, const QPixmap& imagen) {
    entrada_ = entrada;
    indice_ = indice;
    imagen_ = imagen;
    marca_ = ColorDesdeTexto(entrada.colorMarca);
    setToolTip(entrada.nombre);
    setAccessibleName(entrada.nombre);
    update();
  }
  void ponerEstilo(const QColor& fondo, const QFont& fuente, QSize label, bool animar) {
    fondo_ = fondo;
    fuente_ = fuente;
    label_ = label;
    animar_ = animar;
    update();
  }
  // The button that the keyboard is on, ringed while the panel has the focus.
  void ponerActual(bool actual) {
    if (actual_ != actual) {
      actual_ = actual;
      update();
    }
  }
  const EntradaPanel& entrada() const { return entrada_; }
  int indice() const { return indice_; }

 protected:
  void paintEvent(QPaintEvent*) override;

 private:
  void hundir(bool abajo) {
    if (!animar_) {
      hundido_ = 0;
      update();
      return;
    }
    if (!animacion_) {
      animacion_ = new QVariantAnimation(this);
      connect(animacion_, &QVariantAnimation::valueChanged, this, [this](const QVariant& v) {
        hundido_ = v.toReal();
        update();
      });
    }
    animacion_->stop();
    animacion_->setStartValue(hundido_);
    animacion_->setEndValue(abajo ? 1.0 : 0.0);
    animacion_->setDuration(abajo ? 70 : 160);
    animacion_->start();
  }
  void pintarTexto(QPainter& p, const QRectF& zona, const QColor& tinta);

  EntradaPanel entrada_;
  int indice_ = -1;
  QPixmap imagen_;
  QColor fondo_ = Qt::white;
  QColor marca_;
  QFont fuente_;
  QSize label_;
  bool animar_ = false;
  bool actual_ = false;
  qreal hundido_ = 0;
  QVariantAnimation* animacion_ = nullptr;
};

void BotonPanel::paintEvent(QPaintEvent*) {
  QPainter p(this);
  p.setRenderHint(QPainter::Antialiasing);
  p.setRenderHint(QPainter::SmoothPixmapTransform);
  QRectF r = QRectF(rect()).adjusted(1, 1, -1, -3);
  if (hundido_ > 0) {
    const qreal s = 1.0 - 0.05 * hundido_;
    p.translate(r.center());
    p.scale(s, s);
    p.translate(-r.center());
  }
  const QPainterPath forma = Redondeado(r);
  const QColor fondo = isDown() ? fondo_.darker(118) : fondo_;
  if (!isDown())
    p.fillPath(forma.translated(0, 2), QColor(0, 0, 0, 70));
  p.fillPath(forma, fondo);
  p.save();
  p.setClipPath(forma);
  const QColor tinta = ColorTextoSobre(fondo);

  QRectF zonaTexto = r.adjusted(kHueco, kHueco, -kHueco, -kHueco);
  if (!imagen_.isNull()) {
    // The picture takes the top of the button and the caption a strip along its foot.
    const qreal anchoLabel =
        label_.width() > 0 ? qMin<qreal>(label_.width(), r.width()) : r.width();
    qreal altoLabel = label_.height();
    if (altoLabel <= 0) {
      // Two lines of name when it needs them: the name matters more than the picture.
      const int ancho = int(anchoLabel) - 12;
      const QFont f = FuenteQueCabe(entrada_.nombre, fuente_, ancho);
      const qsizetype lineas = LineasCaption(entrada_.nombre, f, ancho, 2).size();
      altoLabel =
          qBound(r.height() * 0.4, lineas * QFontMetrics(f).lineSpacing() + 10.0, r.height() * 0.6);
    }
    const QRectF tira(r.center().x() - anchoLabel / 2, r.bottom() - altoLabel, anchoLabel,
                      altoLabel);
    const QRectF zonaImagen = QRectF(r.left(), r.top(), r.width(), r.height() - altoLabel)
                                  .adjusted(kHueco, kHueco / 2.0, -kHueco, -2);
    const QSizeF medida = QSizeF(imagen_.size()).scaled(zonaImagen.size(), Qt::KeepAspectRatio);
    QRectF destino(QPointF(), medida);
    destino.moveCenter(zonaImagen.center());
    p.drawPixmap(destino, imagen_, QRectF(imagen_.rect()));
    zonaTexto = tira.adjusted(6, 0, -6, 0);
  }
  pintarTexto(p, zonaTexto, tinta);

  if (!entrada_.descNumerica.isEmpty()) {
    QFont chica = fuente_;
    chica.setPixelSize(qMax(10, fuente_.pixelSize() > 0 ? fuente_.pixelSize() * 3 / 4 : 11));
    chica.setWeight(QFont::Medium);
    p.setFont(chica);
    const QFontMetrics fm(chica);
    const QRectF pastilla(r.left() + 5, r.top() + 5,
                          fm.horizontalAdvance(entrada_.descNumerica) + 10, fm.height() + 2);
    QColor velo = fondo;
    velo.setAlpha(215);
    p.setPen(Qt::NoPen);
    p.setBrush(velo);
    p.drawRoundedRect(pastilla, pastilla.height() / 2, pastilla.height() / 2);
    p.setPen(tinta);
    p.drawText(pastilla, Qt::AlignCenter, entrada_.descNumerica);
  }
  if (actual_) {
    // The keyboard's button: a thick ring in the caption's colour, plain on any back colour,
    // under the mark.
    p.setPen(QPen(tinta, 4));
    p.setBrush(Qt::NoBrush);
    p.drawPath(Redondeado(r.adjusted(3, 3, -3, -3)));
  }
  if (marca_.isValid()) {
    // The mark is a coloured corner, readable at a glance on any back colour.
    QPainterPath esquina;
    esquina.moveTo(r.right() - kMarca, r.top());
    esquina.lineTo(r.right(), r.top());
    esquina.lineTo(r.right(), r.top() + kMarca);
    esquina.closeSubpath();
    p.fillPath(esquina, marca_);
  }
  p.restore();
  p.setPen(QPen(fondo.darker(isDown() ? 160 : 135), 1));
  p.setBrush(Qt::NoBrush);
  p.drawPath(forma);
}

void BotonPanel::pintarTexto(QPainter& p, const QRectF& zona, const QColor& tinta) {
  const QFont fuente = FuenteQueCabe(entrada_.nombre, fuente_, int(zona.width()));
  const QFontMetrics fm(fuente);
  const int maxLineas = qMax(1, int(zona.height()) / fm.lineSpacing());
  const QStringList lineas = LineasCaption(entrada_.nombre, fuente, int(zona.width()), maxLineas);
  if (lineas.isEmpty())
    return;
  p.setFont(fuente);
  p.setPen(tinta);
  const qreal alto = lineas.size() * fm.lineSpacing();
  qreal y = zona.top() + (zona.height() - alto) / 2;
  for (const QString& linea : lineas) {
    p.drawText(QRectF(zona.left(), y, zona.width(), fm.lineSpacing()), Qt::AlignCenter, linea);
    y += fm.lineSpacing();
  }
}

// A paging arrow of the panel's bar.
class FlechaPanel : public QAbstractButton {
 public:
  FlechaPanel(int sentido, QWidget* parent) : QAbstractButton(parent), sentido_(sentido) {
    setFocusPolicy(Qt::NoFocus);
  }
  void ponerFondo(const QColor& fondo) {
    fondo_ = fondo;
    update();
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const QRectF r = QRectF(rect()).adjusted(1, 1, -1, -1);
    QColor tinta = ColorTextoSobre(fondo_);
    QColor relleno = tinta;
    relleno.setAlpha(!isEnabled() ? 12 : isDown() ? 70 : 34);
    p.fillPath(Redondeado(r), relleno);
    tinta.setAlpha(isEnabled() ? 255 : 70);
    const qreal lado = qMin(r.width(), r.height()) * 0.22;
    const QPointF c = r.center();
    QPainterPath chevron;
    chevron.moveTo(c.x() - sentido_ * lado * 0.5, c.y() - lado);
    chevron.lineTo(c.x() + sentido_ * lado * 0.5, c.y());
    chevron.lineTo(c.x() - sentido_ * lado * 0.5, c.y() + lado);
    p.setPen(QPen(tinta, 5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    p.drawPath(chevron);
  }

 private:
  int sentido_;  // -1 left, 1 right
  QColor fondo_ = Qt::black;
};

DisposicionPanel CalcularDisposicion(const MedidasPanel& m, QSize tamano) {
  DisposicionPanel d;
  const auto px = [](float v) { return int(std::lround(v)); };
  const int altoSec = qMax(40, m.alto_secundario > 0 ? px(m.alto_secundario) : 64);
  const int anchoPrin = m.ancho_principal > 0 ? px(m.ancho_principal) : tamano.width();
  // The bar under the main area always stays inside the panel: a main area asked larger than
  // the panel leaves gives way, so that the paging arrows never go out of sight.
  const int cabe = qMax(0, tamano.height() - altoSec);
  const int altoPrin = m.alto_principal > 0 && m.secundario_posy < 0
                           ? qMin(px(m.alto_principal), cabe)
                           : (m.alto_principal > 0 ? px(m.alto_principal) : cabe);
  d.principal = QRect(0, 0, anchoPrin, altoPrin);
  const int anchoSec = m.ancho_secundario > 0 ? px(m.ancho_secundario) : anchoPrin;
  d.secundaria =
      QRect(0, m.secundario_posy >= 0 ? px(m.secundario_posy) : altoPrin, anchoSec, altoSec);

  const int altoFlecha = qMax(32, altoSec - kHueco);
  // Arrows as wide as a thumb, narrower in a narrow bar so that the page indicator keeps a
  // third of it.
  const int anchoFlecha = qMin(qMax(88, altoFlecha * 3 / 2), qMax(44, (anchoSec - 4 * kHueco) / 3));
  const int yFlecha = (altoSec - altoFlecha) / 2;
  d.flechaIzq =
      QRect(m.flecha_izq_posx >= 0 ? px(m.flecha_izq_posx) : kHueco,
            m.flecha_izq_posy >= 0 ? px(m.flecha_izq_posy) : yFlecha, anchoFlecha, altoFlecha);
  d.flechaDer =
      QRect(m.flecha_der_posx >= 0 ? px(m.flecha_der_posx) : anchoSec - anchoFlecha - kHueco,
            m.flecha_der_posy >= 0 ? px(m.flecha_der_posy) : yFlecha, anchoFlecha, altoFlecha);
  const int izq = qMin(d.flechaIzq.right(), d.flechaDer.right()) + 1 + kHueco;
  const int der = qMax(d.flechaIzq.left(), d.flechaDer.left()) - kHueco;
  const int anchoIndicador = qMin(qMax(0, der - izq), 160);
  d.indicador = QRect(izq + (der - izq - anchoIndicador) / 2, yFlecha + altoFlecha / 6,
                      anchoIndicador, altoFlecha * 2 / 3);

  // As many buttons of at least the given size as fit; they stretch to fill the area evenly.
  const int bx = qMax(0, px(m.boton_posx));
  const int by = qMax(0, px(m.boton_posy));
  const int anchoB = qMax(32, px(m.ancho_boton));
  const int altoB = qMax(32, px(m.alto_boton));
  const int dispX = qMax(anchoB, anchoPrin - 2 * bx);
  const int dispY = qMax(altoB, altoPrin - 2 * by);
  d.columnas = qMax(1, (dispX + kHueco) / (anchoB + kHueco));
  d.filas = qMax(1, (dispY + kHueco) / (altoB + kHueco));
  const auto corte = [](int i, int n, int total) { return (i * (total + kHueco)) / n; };
  for (int f = 0; f < d.filas; ++f) {
    const int y0 = by + corte(f, d.filas, dispY);
    const int y1 = by + corte(f + 1, d.filas, dispY) - kHueco;
    for (int c = 0; c < d.columnas; ++c) {
      const int x0 = bx + corte(c, d.columnas, dispX);
      const int x1 = bx + corte(c + 1, d.columnas, dispX) - kHueco;
      d.botones.append(QRect(x0, y0, x1 - x0, y1 - y0));
    }
  }
  return d;
}

QColor ColorTextoSobre(const QColor& fondo) {
  // Relative luminance as the contrast guides define it: black text wins above about 0.18.
  const auto lineal = [](qreal c) {
    return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
  };
  const qreal l = 0.2126 * lineal(fondo.redF()) + 0.7152 * lineal(fondo.greenF()) +
                  0.0722 * lineal(fondo.blueF());
  return l > 0.179 ? QColor(Qt::black) : QColor(Qt::white);
}

QString TextoIndicador(int pagina, int paginas) {
  if (paginas <= 0)
    return {};
  return QString::number(pagina) + u" / "_s + QString::number(paginas);
}

QFont FuenteQueCabe(const QString& texto, const QFont& fuente, int ancho) {
  const QStringList palabras = texto.simplified().split(u' ', Qt::SkipEmptyParts);
  QFont f = fuente;
  const int base = fuente.pixelSize() > 0 ? fuente.pixelSize() : QFontInfo(fuente).pixelSize();
  for (int px = base; px >= base * 3 / 4 && px > 0; --px) {
    f.setPixelSize(px);
    const QFontMetrics fm(f);
    bool caben = true;
    for (const QString& palabra : palabras)
      caben = caben && fm.horizontalAdvance(palabra) <= ancho;
    if (caben)
      return f;
  }
  return f;
}

QStringList LineasCaption(const QString& texto, const QFont& fuente, int ancho, int maxLineas) {
  QStringList lineas;
  const QString limpio = texto.simplified();
  if (limpio.isEmpty() || ancho <= 0 || maxLineas <= 0)
    return lineas;
  const QFontMetrics fm(fuente);
  QTextLayout maqueta(limpio, fuente);
  QTextOption opcion;
  opcion.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  maqueta.setTextOption(opcion);
  maqueta.beginLayout();
  for (QTextLine linea = maqueta.createLine(); linea.isValid(); linea = maqueta.createLine()) {
    linea.setLineWidth(ancho);
    if (lineas.size() == maxLineas - 1) {
      lineas.append(fm.elidedText(limpio.mid(linea.textStart()).trimmed(), Qt::ElideRight, ancho));
      break;
    }
    lineas.append(limpio.mid(linea.textStart(), linea.textLength()).trimmed());
  }
  maqueta.endLayout();
  return lineas;
}

PanelObjNuevo::PanelObjNuevo(QWidget* parent)
    : QWidget(parent),
      areaPrincipal_(new QWidget(this)),
      pagina_(new QWidget(areaPrincipal_)),
      areaSecundaria_(new QWidget(this)),
      flechaIzq_(new FlechaPanel(-1, areaSecundaria_)),
      flechaDer_(new FlechaPanel(1, areaSecundaria_)),
      indicador_(new QLabel(areaSecundaria_)) {
  areaPrincipal_->setObjectName(u"area_principal"_s);
  areaSecundaria_->setObjectName(u"area_secundaria"_s);
  flechaIzq_->setObjectName(u"flecha_izq"_s);
  flechaDer_->setObjectName(u"flecha_der"_s);
  indicador_->setObjectName(u"indicador_pagina"_s);
  indicador_->setAlignment(Qt::AlignCenter);
  areaPrincipal_->setAutoFillBackground(true);
  areaSecundaria_->setAutoFillBackground(true);
  fuenteBoton_ = font();
  fuenteBoton_.setPixelSize(15);
  fuenteBoton_.setWeight(QFont::DemiBold);
  fuenteLabel_ = font();
  fuenteLabel_.setPixelSize(18);
  fuenteLabel_.setWeight(QFont::Bold);
  connect(flechaIzq_, &QAbstractButton::clicked, this, [this] { cambiarPagina(-1); });
  connect(flechaDer_, &QAbstractButton::clicked, this, [this] { cambiarPagina(1); });
  // The keyboard reaches the panel with Tab; its arrows then walk the buttons. A touch leaves
  // the focus where it was, in the field that the on-screen keyboard types into.
  setFocusPolicy(Qt::TabFocus);
  pintarAreas();
  colocar();
}

PanelObjNuevo::~PanelObjNuevo() = default;

void PanelObjNuevo::limpiar() {
  pararAnimacion();
  objetos_.clear();
  inicio_ = 0;
  nombreSeleccionado_.clear();
  codigoSeleccionado_.clear();
  indiceSeleccionado_ = -1;
  imagenes_.clear();
  mostrarPagina();
}

void PanelObjNuevo::reiniciar() {
  actual_ = 0;
  pararAnimacion();
  objetos_.clear();
  inicio_ = 0;
  imagenes_.clear();
}

void PanelObjNuevo::cargar_objetos(const TablaPanel& tabla) {
  objetos_ = tabla;
}

void PanelObjNuevo::dibujar() {
  colocar();
}

void PanelObjNuevo::set_color_defecto(qint64 color) {
  colorDefecto_ = color;
  pintarBotones();
}

void PanelObjNuevo::set_usar_colores(bool usar) {
  usarColores_ = usar;
  pintarBotones();
}

void PanelObjNuevo::set_animacion(int animacion) {
  animacion_ = animacion;
  pintarBotones();
}

void PanelObjNuevo::set_fondo_principal(qint64 color) {
  fondoPrincipal_ = color;
  pintarAreas();
}

void PanelObjNuevo::set_fondo_secundario(qint64 color) {
  fondoSecundario_ = color;
  pintarAreas();
}

void PanelObjNuevo::set_fondo_label(qint64 color) {
  fondoLabel_ = color;
  pintarAreas();
}

void PanelObjNuevo::set_boton_fuente(const QFont& fuente) {
  fuenteBoton_ = fuente;
  pintarBotones();
}

void PanelObjNuevo::set_label_fuente(const QFont& fuente) {
  fuenteLabel_ = fuente;
  pintarAreas();
}

int PanelObjNuevo::paginas() const {
  const int n = qMax(1, botonesPorPagina());
  return int((objetos_.size() + n - 1) / n);
}

int PanelObjNuevo::pagina() const {
  if (objetos_.isEmpty())
    return 0;
  return inicio_ / qMax(1, botonesPorPagina()) + 1;
}

void PanelObjNuevo::set_medidas(const MedidasPanel& medidas) {
  medidas_ = medidas;
  medidasCambiadas();
}

QSize PanelObjNuevo::sizeHint() const {
  const MedidasPanel& m = medidas_;
  const int ancho = m.ancho_principal > 0
                        ? int(m.ancho_principal)
                        : int(5 * (m.ancho_boton + kHueco) - kHueco + 2 * m.boton_posx);
  const int alto = m.alto_principal > 0
                       ? int(m.alto_principal)
                       : int(3 * (m.alto_boton + kHueco) - kHueco + 2 * m.boton_posy);
  const DisposicionPanel d = CalcularDisposicion(m, QSize(ancho, alto + 64));
  return d.principal.united(d.secundaria).size();
}

QSize PanelObjNuevo::minimumSizeHint() const {
  const MedidasPanel& m = medidas_;
  const int ancho = int(m.ancho_boton + 2 * m.boton_posx);
  const int alto = int(m.alto_boton + 2 * m.boton_posy);
  const DisposicionPanel d = CalcularDisposicion(m, QSize(qMax(ancho, 260), alto + 64));
  return QSize(qMax(ancho, 260), alto + d.secundaria.height());
}

void PanelObjNuevo::resizeEvent(QResizeEvent*) {
  colocar();
}

void PanelObjNuevo::medidasCambiadas() {
  updateGeometry();
  colocar();
}

void PanelObjNuevo::colocar() {
  pararAnimacion();
  disposicion_ = CalcularDisposicion(medidas_, size());
  areaPrincipal_->setGeometry(disposicion_.principal);
  pagina_->setGeometry(areaPrincipal_->rect());
  areaSecundaria_->setGeometry(disposicion_.secundaria);
  flechaIzq_->setGeometry(disposicion_.flechaIzq);
  flechaDer_->setGeometry(disposicion_.flechaDer);
  indicador_->setGeometry(disposicion_.indicador);
  const int n = botonesPorPagina();
  while (botones_.size() < n) {
    auto* boton = new BotonPanel(pagina_);
    boton->setObjectName(u"boton_"_s + QString::number(botones_.size() + 1));
    connect(boton, &QAbstractButton::clicked, this, [this, boton] { botonTocado(boton); });
    botones_.append(boton);
  }
  // A button may be the one whose touch is being handled: it goes once the event is over.
  while (botones_.size() > n) {
    BotonPanel* sobra = botones_.takeLast();
    sobra->hide();
    sobra->setObjectName(QString());
    sobra->deleteLater();
  }
  for (int i = 0; i < n; ++i)
    botones_.at(i)->setGeometry(disposicion_.botones.at(i));
  mostrarPagina();
}

void PanelObjNuevo::mostrarPagina() {
  const int n = qMax(1, botonesPorPagina());
  inicio_ = objetos_.isEmpty() ? 0 : (qMin<int>(inicio_, int(objetos_.size()) - 1) / n) * n;
  for (int i = 0; i < botones_.size(); ++i) {
    BotonPanel* boton = botones_.at(i);
    const int indice = inicio_ + i;
    if (indice < objetos_.size()) {
      const EntradaPanel& e = objetos_.at(indice);
      boton->poner(e, indice, imagenDe(e.imagen));
      boton->show();
    } else {
      boton->poner({}, -1, {});
      boton->hide();
    }
  }
  pintarBotones();
  marcarActual();
  indicador_->setText(TextoIndicador(pagina(), paginas()));
  indicador_->setVisible(!objetos_.isEmpty());
  flechaIzq_->setEnabled(inicio_ > 0);
  flechaDer_->setEnabled(inicio_ + n < objetos_.size());
}

void PanelObjNuevo::pintarBotones() {
  const QColor defecto = ColorDesdeValor(colorDefecto_);
  const QSize label(int(std::lround(medidas_.ancho_label)), int(std::lround(medidas_.alto_label)));
  for (BotonPanel* boton : std::as_const(botones_)) {
    QColor fondo = defecto;
    if (usarColores_) {
      const QColor propio = ColorDesdeTexto(boton->entrada().colorFondo);
      if (propio.isValid())
        fondo = propio;
    }
    boton->ponerEstilo(fondo, fuenteBoton_, label, animacion_ != 0);
  }
}

void PanelObjNuevo::pintarAreas() {
  const auto pintar = [](QWidget* w, const QColor& c) {
    QPalette paleta = w->palette();
    paleta.setColor(QPalette::Window, c);
    w->setPalette(paleta);
  };
  const QColor principal = ColorDesdeValor(fondoPrincipal_);
  const QColor secundario = ColorDesdeValor(fondoSecundario_);
  const QColor label = ColorDesdeValor(fondoLabel_);
  pintar(areaPrincipal_, principal);
  pintar(areaSecundaria_, secundario);
  static_cast<FlechaPanel*>(flechaIzq_)->ponerFondo(secundario);
  static_cast<FlechaPanel*>(flechaDer_)->ponerFondo(secundario);
  indicador_->setFont(fuenteLabel_);
  indicador_->setStyleSheet(u"QLabel { background-color: %1; color: %2; border-radius: %3px; }"_s
                                .arg(label.name(), ColorTextoSobre(label).name())
                                .arg(12));
}

void PanelObjNuevo::cambiarPagina(int paso) {
  const int n = qMax(1, botonesPorPagina());
  const int nuevo = inicio_ + paso * n;
  if (nuevo < 0 || nuevo >= objetos_.size())
    return;
  const bool animar = animacion_ != 0 && isVisible();
  const QPixmap antes = animar ? pagina_->grab() : QPixmap();
  pararAnimacion();
  inicio_ = nuevo;
  mostrarPagina();
  if (animar)
    deslizar(paso, antes);
}

void PanelObjNuevo::deslizar(int paso, const QPixmap& antes) {
  // The old page slides out as a picture while the new one slides in behind it.
  auto* saliente = new QLabel(areaPrincipal_);
  saliente->setPixmap(antes);
  saliente->setGeometry(pagina_->geometry());
  saliente->show();
  paginaSaliente_ = saliente;
  const QPoint destino = pagina_->pos();
  const QPoint recorrido(paso * areaPrincipal_->width(), 0);
  auto* grupo = new QParallelAnimationGroup(this);
  auto* entra = new QPropertyAnimation(pagina_, QByteArrayLiteral("pos"), grupo);
  entra->setStartValue(destino + recorrido);
  entra->setEndValue(destino);
  auto* sale = new QPropertyAnimation(saliente, QByteArrayLiteral("pos"), grupo);
  sale->setStartValue(destino);
  sale->setEndValue(destino - recorrido);
  for (QPropertyAnimation* a : {entra, sale}) {
    a->setDuration(220);
    a->setEasingCurve(QEasingCurve::OutCubic);
  }
  connect(grupo, &QAbstractAnimation::finished, saliente, &QObject::deleteLater);
  animacionPagina_ = grupo;
  grupo->start(QAbstractAnimation::DeleteWhenStopped);
}

void PanelObjNuevo::pararAnimacion() {
  if (animacionPagina_)
    animacionPagina_->stop();
  delete paginaSaliente_.data();
  pagina_->move(0, 0);
}

void PanelObjNuevo::marcarActual() {
  for (BotonPanel* boton : std::as_const(botones_))
    boton->ponerActual(hasFocus() && boton->indice() >= 0 && boton->indice() == actual_);
}

void PanelObjNuevo::irA(int indice) {
  if (objetos_.isEmpty())
    return;
  actual_ = qBound(0, indice, int(objetos_.size()) - 1);
  const int n = qMax(1, botonesPorPagina());
  const int inicio = (actual_ / n) * n;
  if (inicio != inicio_)
    cambiarPagina((inicio - inicio_) / n);
  marcarActual();
}

void PanelObjNuevo::keyPressEvent(QKeyEvent* evento) {
  const int n = qMax(1, botonesPorPagina());
  const int columnas = qMax(1, disposicion_.columnas);
  switch (evento->key()) {
    case Qt::Key_Left:
      irA(actual_ - 1);
      break;
    case Qt::Key_Right:
      irA(actual_ + 1);
      break;
    case Qt::Key_Up:
      irA(actual_ - columnas);
      break;
    case Qt::Key_Down:
      irA(actual_ + columnas);
      break;
    case Qt::Key_PageUp:
      irA(actual_ - n);
      break;
    case Qt::Key_PageDown:
      irA(actual_ + n);
      break;
    case Qt::Key_Home:
      irA(0);
      break;
    case Qt::Key_End:
      irA(int(objetos_.size()) - 1);
      break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space:
      for (const BotonPanel* boton : std::as_const(botones_)) {
        if (boton->indice() >= 0 && boton->indice() == actual_)
          botonTocado(boton);
      }
      break;
    default:
      QWidget::keyPressEvent(evento);
  }
}

void PanelObjNuevo::focusInEvent(QFocusEvent* evento) {
  if (actual_ < inicio_ || actual_ >= inicio_ + botonesPorPagina())
    actual_ = inicio_;
  marcarActual();
  QWidget::focusInEvent(evento);
}

void PanelObjNuevo::focusOutEvent(QFocusEvent* evento) {
  marcarActual();
  QWidget::focusOutEvent(evento);
}

void PanelObjNuevo::botonTocado(const BotonPanel* boton) {
  // The button's own entry is what the user saw, even if a new table is being loaded.
  if (boton->indice() < 0)
    return;
  nombreSeleccionado_ = boton->entrada().nombre;
  codigoSeleccionado_ = boton->entrada().codigo;
  indiceSeleccionado_ = boton->indice();
  emit tocado();
}

QPixmap PanelObjNuevo::imagenDe(const QString& ruta) {
  if (ruta.isEmpty())
    return {};
  const auto guardada = imagenes_.constFind(ruta);
  if (guardada != imagenes_.cend())
    return guardada.value();
  QImageReader lector(ruta);
  lector.setAutoTransform(true);
  const QSize original = lector.size();
  if (original.isValid() && (original.width() > kImagenMax || original.height() > kImagenMax))
    lector.setScaledSize(original.scaled(kImagenMax, kImagenMax, Qt::KeepAspectRatio));
  // A file that is not a picture (or a folder path) simply shows no picture.
  const QPixmap imagen = QPixmap::fromImage(lector.read());
  imagenes_.insert(ruta, imagen);
  return imagen;
}
