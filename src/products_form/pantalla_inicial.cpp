#include "pantalla_inicial.h"

#include <QEvent>
#include <QGroupBox>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>

#include "disenio.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kLadoIcono = 120;

// The caption labels of the tiles pass their click on to the button that they caption.
class ReenviarClic : public QObject {
 public:
  ReenviarClic(QLabel* etiqueta, QPushButton* boton) : QObject(etiqueta), boton_(boton) {
    etiqueta->installEventFilter(this);
    etiqueta->setCursor(Qt::PointingHandCursor);
  }

 protected:
  bool eventFilter(QObject* objeto, QEvent* evento) override {
    if (evento->type() == QEvent::MouseButtonRelease) {
      auto* etiqueta = static_cast<QLabel*>(objeto);
      if (etiqueta->isEnabled() && boton_->isEnabled())
        boton_->click();
      return true;
    }
    return QObject::eventFilter(objeto, evento);
  }

 private:
  QPushButton* boton_;
};

enum class Dibujo { Producto, Elaborado, Precio };

// The pictograms of the tiles, drawn so that the program carries no picture files of its own.
QIcon Pictograma(Dibujo dibujo) {
  QPixmap p(kLadoIcono, kLadoIcono);
  p.fill(Qt::transparent);
  QPainter g(&p);
  g.setRenderHint(QPainter::Antialiasing);
  g.setPen(QPen(QColor(0x33, 0x33, 0x33), 5, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  switch (dibujo) {
    case Dibujo::Producto: {  // a bottle and a glass
      QPainterPath botella;
      botella.moveTo(30, 110);
      botella.lineTo(30, 55);
      botella.quadTo(30, 40, 40, 34);
      botella.lineTo(40, 12);
      botella.lineTo(52, 12);
      botella.lineTo(52, 34);
      botella.quadTo(62, 40, 62, 55);
      botella.lineTo(62, 110);
      botella.closeSubpath();
      g.setBrush(QColor(0x4C, 0x9A, 0x6A));
      g.drawPath(botella);
      g.setBrush(QColor(0xF2, 0xC1, 0x4E));
      g.drawPolygon(QPolygonF({{72, 56}, {104, 56}, {98, 110}, {78, 110}}));
      break;
    }
    case Dibujo::Elaborado: {  // a pot with steam
      g.setBrush(QColor(0xC8, 0x5A, 0x3C));
      g.drawRoundedRect(QRectF(18, 52, 84, 56), 10, 10);
      g.drawLine(8, 62, 18, 62);
      g.drawLine(102, 62, 112, 62);
      g.setBrush(Qt::NoBrush);
      for (int x : {40, 60, 80}) {
        QPainterPath vapor;
        vapor.moveTo(x, 44);
        vapor.cubicTo(x - 8, 34, x + 8, 24, x, 12);
        g.drawPath(vapor);
      }
      break;
    }
    case Dibujo::Precio: {  // a price tag with the euro sign
      QPainterPath etiqueta;
      etiqueta.moveTo(14, 40);
      etiqueta.lineTo(44, 12);
      etiqueta.lineTo(106, 12);
      etiqueta.lineTo(106, 100);
      etiqueta.lineTo(44, 100);
      etiqueta.lineTo(14, 72);
      etiqueta.closeSubpath();
      g.setBrush(QColor(0x3C, 0x6E, 0xB4));
      g.drawPath(etiqueta);
      g.setBrush(Qt::white);
      g.drawEllipse(QPointF(34, 56), 6, 6);
      QFont f = g.font();
      f.setPixelSize(56);
      f.setBold(true);
      g.setFont(f);
      g.setPen(Qt::white);
      g.drawText(QRectF(48, 12, 58, 88), Qt::AlignCenter, QString(QChar(0x20AC)));
      break;
    }
  }
  return QIcon(p);
}

// One tile: a large button with its pictogram and the label that captions it.
QPushButton* Baldosa(QWidget* padre, const QString& nombreBoton, const QString& nombreEtiqueta,
                     const QString& caption, Dibujo dibujo, int x, QLabel** etiqueta) {
  QPushButton* b = CrearBoton(padre, nombreBoton, QString(), QRect(x, 220, 270, 200));
  b->setIcon(Pictograma(dibujo));
  b->setIconSize(QSize(kLadoIcono, kLadoIcono));
  *etiqueta = CrearEtiqueta(padre, nombreEtiqueta, caption, QRect(x, 428, 270, 56));
  (*etiqueta)->setAlignment(Qt::AlignCenter);
  PonerLetra(*etiqueta, 16, true);
  new ReenviarClic(*etiqueta, b);
  return b;
}

}  // namespace

PantallaInicial CrearPantallaInicial(QWidget* formulario) {
  PantallaInicial p;
  p.fr_Inicial = CrearMarco(formulario, u"fr_Inicial"_s, QString(),
                            QRect(0, 0, disenio::kAncho, disenio::kAlto));
  QWidget* m = p.fr_Inicial;
  p.lbl_Titulo =
      CrearEtiqueta(m, u"lbl_Titulo"_s, u"Mantenimiento de Productos"_s, QRect(0, 80, 1024, 60));
  p.lbl_Titulo->setAlignment(Qt::AlignCenter);
  PonerLetra(p.lbl_Titulo, 26, true);

  p.cmd_ProdGenerico = Baldosa(m, u"cmd_ProdGenerico"_s, u"Label12"_s, u"Productos"_s,
                               Dibujo::Producto, 62, &p.Label12);
  p.cmd_ProdElaborado =
      Baldosa(m, u"cmd_ProdElaborado"_s, u"lbl_ModificarTicket"_s, u"Productos Elaborados"_s,
              Dibujo::Elaborado, 377, &p.lbl_ModificarTicket);
  p.Boton_SM1 =
      Baldosa(m, u"Boton_SM1"_s, u"Label2"_s, u"Precios"_s, Dibujo::Precio, 692, &p.Label2);

  p.cmd_Salir2 = CrearBoton(m, u"cmd_Salir2"_s, u"Salir"_s, QRect(792, 660, 200, 64));
  PonerLetra(p.cmd_Salir2, 16, true);
  return p;
}
