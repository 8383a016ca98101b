#include "imagenes_demo.h"

#include <QDir>
#include <QFile>
#include <QPainter>
#include <QPainterPath>
#include <QRegularExpression>
#include <stdexcept>

#include "cargar_catalogo.h"
#include "gif.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// Figures are drawn on a 100 x 100 grid; the painter is scaled to the tile's figure area.
void DibujarFigura(QPainter& p, Figura figura, const QColor& tinta, const QColor& luz) {
  p.setPen(Qt::NoPen);
  p.setBrush(tinta);
  QPainterPath ruta;
  switch (figura) {
    case Figura::Taza:
      p.drawRoundedRect(QRectF(22, 38, 46, 40), 8, 8);
      p.setBrush(Qt::NoBrush);
      p.setPen(QPen(tinta, 7));
      p.drawEllipse(QRectF(62, 46, 20, 20));
      p.setPen(QPen(luz, 4, Qt::SolidLine, Qt::RoundCap));
      ruta.moveTo(35, 30);
      ruta.cubicTo(29, 22, 41, 16, 35, 8);
      ruta.moveTo(52, 30);
      ruta.cubicTo(46, 22, 58, 16, 52, 8);
      p.drawPath(ruta);
      p.setPen(Qt::NoPen);
      p.setBrush(tinta);
      p.drawRoundedRect(QRectF(12, 82, 70, 8), 4, 4);
      break;
    case Figura::Vaso:
      ruta.moveTo(26, 14);
      ruta.lineTo(74, 14);
      ruta.lineTo(68, 90);
      ruta.lineTo(32, 90);
      ruta.closeSubpath();
      p.drawPath(ruta);
      p.setBrush(luz);
      p.drawRect(QRectF(31, 22, 38, 8));
      break;
    case Figura::Botella:
      p.drawRoundedRect(QRectF(32, 40, 36, 54), 8, 8);
      p.drawRect(QRectF(43, 14, 14, 30));
      p.setBrush(luz);
      p.drawRect(QRectF(41, 8, 18, 8));
      p.drawRoundedRect(QRectF(36, 56, 28, 20), 3, 3);
      break;
    case Figura::Jarra:
      p.drawRoundedRect(QRectF(20, 26, 46, 66), 6, 6);
      p.setBrush(Qt::NoBrush);
      p.setPen(QPen(tinta, 8));
      p.drawRoundedRect(QRectF(62, 40, 20, 34), 8, 8);
      p.setPen(Qt::NoPen);
      p.setBrush(luz);
      for (int i = 0; i < 4; ++i)
        p.drawEllipse(QRectF(16 + i * 13, 12, 20, 20));
      break;
    case Figura::Copa:
      ruta.moveTo(26, 10);
      ruta.lineTo(74, 10);
      ruta.cubicTo(76, 44, 62, 54, 50, 54);
      ruta.cubicTo(38, 54, 24, 44, 26, 10);
      p.drawPath(ruta);
      p.drawRect(QRectF(47, 52, 6, 30));
      p.drawRoundedRect(QRectF(30, 82, 40, 8), 4, 4);
      break;
    case Figura::Coctel:
      ruta.moveTo(14, 12);
      ruta.lineTo(86, 12);
      ruta.lineTo(50, 52);
      ruta.closeSubpath();
      p.drawPath(ruta);
      p.drawRect(QRectF(47, 50, 6, 32));
      p.drawRoundedRect(QRectF(30, 82, 40, 8), 4, 4);
      p.setBrush(luz);
      p.drawEllipse(QRectF(56, 4, 18, 18));
      break;
    case Figura::Plato:
      p.drawEllipse(QRectF(14, 22, 72, 72));
      p.setBrush(luz);
      p.drawEllipse(QRectF(28, 36, 44, 44));
      p.setBrush(tinta);
      p.drawRoundedRect(QRectF(4, 20, 5, 66), 2, 2);
      p.drawRoundedRect(QRectF(91, 20, 5, 66), 2, 2);
      break;
    case Figura::Bocadillo:
      p.drawRoundedRect(QRectF(6, 34, 88, 36), 18, 18);
      p.setPen(QPen(luz, 4, Qt::SolidLine, Qt::RoundCap));
      for (int i = 0; i < 4; ++i)
        p.drawLine(QLineF(22 + i * 18, 44, 32 + i * 18, 60));
      break;
    case Figura::Postre:
      ruta.moveTo(32, 50);
      ruta.lineTo(68, 50);
      ruta.lineTo(50, 94);
      ruta.closeSubpath();
      p.drawPath(ruta);
      p.setBrush(luz);
      p.drawEllipse(QRectF(28, 14, 44, 42));
      p.setBrush(tinta);
      p.drawEllipse(QRectF(45, 6, 10, 10));
      break;
    case Figura::Hoja:
      ruta.moveTo(16, 86);
      ruta.cubicTo(10, 40, 50, 8, 88, 12);
      ruta.cubicTo(90, 56, 56, 92, 16, 86);
      p.drawPath(ruta);
      p.setPen(QPen(luz, 4, Qt::SolidLine, Qt::RoundCap));
      p.drawLine(QLineF(20, 82, 72, 28));
      break;
    case Figura::Pescado:
      p.drawEllipse(QRectF(10, 30, 64, 40));
      ruta.moveTo(66, 50);
      ruta.lineTo(92, 30);
      ruta.lineTo(92, 70);
      ruta.closeSubpath();
      p.drawPath(ruta);
      p.setBrush(luz);
      p.drawEllipse(QRectF(22, 42, 9, 9));
      break;
    case Figura::Carne:
      p.drawEllipse(QRectF(10, 10, 54, 54));
      p.setPen(QPen(tinta, 12, Qt::SolidLine, Qt::RoundCap));
      p.drawLine(QLineF(50, 50, 80, 80));
      p.setPen(Qt::NoPen);
      p.setBrush(luz);
      p.drawEllipse(QRectF(74, 70, 14, 14));
      p.drawEllipse(QRectF(80, 80, 14, 14));
      break;
    case Figura::Menu:
      p.drawRoundedRect(QRectF(20, 8, 60, 86), 6, 6);
      p.setPen(QPen(luz, 5, Qt::SolidLine, Qt::RoundCap));
      for (int i = 0; i < 4; ++i)
        p.drawLine(QLineF(32, 26 + i * 16, 68, 26 + i * 16));
      break;
    case Figura::Ninguna:
      break;
  }
}

QImage Lienzo(int lado) {
  QImage imagen(lado, lado, QImage::Format_ARGB32_Premultiplied);
  imagen.fill(Qt::transparent);
  return imagen;
}

void DibujarTexto(QPainter& p, const QRectF& zona, const QString& texto, const QColor& color,
                  double tamano) {
  QFont letra(u"DejaVu Sans"_s);
  letra.setBold(true);
  letra.setPixelSize(qMax(6, int(tamano)));
  p.setFont(letra);
  p.setPen(color);
  p.drawText(zona, Qt::AlignCenter, texto);
}

void Guardar(const QImage& imagen, const QString& ruta, const char* formato, int calidad = -1) {
  QImage plana = imagen;
  if (qstrcmp(formato, "JPG") == 0) {
    // JPEG has no transparency: the tile's corners go white, like the till's button faces.
    plana = QImage(imagen.size(), QImage::Format_RGB32);
    plana.fill(Qt::white);
    QPainter p(&plana);
    p.drawImage(0, 0, imagen);
  }
  if (!plana.save(ruta, formato, calidad)) {
    throw std::runtime_error("cannot write the picture " + ruta.toStdString());
  }
}

}  // namespace

QString Iniciales(const QString& nombre) {
  static const QStringList enlaces = {u"de"_s,  u"del"_s, u"la"_s,  u"las"_s, u"el"_s, u"los"_s,
                                      u"con"_s, u"y"_s,   u"e"_s,   u"a"_s,   u"al"_s, u"en"_s,
                                      u"sin"_s, u"o"_s,   u"por"_s, u"para"_s};
  static const QRegularExpression separador(u"[^\\p{L}0-9]+"_s);
  QStringList principales;
  for (const QString& palabra : nombre.split(separador, Qt::SkipEmptyParts)) {
    if (!enlaces.contains(palabra.toLower()) && palabra.at(0).isLetter())
      principales.append(palabra);
  }
  if (principales.isEmpty())
    return nombre.left(2).toUpper();
  if (principales.size() == 1)
    return principales.first().left(2).toUpper();
  return QString(principales.at(0).at(0)).toUpper() + QString(principales.at(1).at(0)).toUpper();
}

QImage DibujarFicha(const QString& nombre, const QColor& fondo, Figura figura, int lado) {
  QImage imagen = Lienzo(lado);
  QPainter p(&imagen);
  p.setRenderHint(QPainter::Antialiasing);
  const double m = lado * 0.03;
  const QRectF ficha(m, m, lado - 2 * m, lado - 2 * m);
  p.setPen(QPen(fondo.darker(135), lado * 0.015));
  p.setBrush(fondo);
  p.drawRoundedRect(ficha, lado * 0.14, lado * 0.14);

  const QColor tinta = fondo.darker(220);
  p.save();
  const double zona = lado * 0.56;
  p.translate((lado - zona) / 2, lado * 0.08);
  p.scale(zona / 100.0, zona / 100.0);
  DibujarFigura(p, figura, tinta, fondo.lighter(135));
  p.restore();

  DibujarTexto(p, QRectF(0, lado * 0.66, lado, lado * 0.28), Iniciales(nombre), tinta.darker(130),
               lado * 0.2);
  return imagen;
}

QImage DibujarSinFoto(int lado) {
  const QColor fondo(0xE6, 0xE6, 0xE6);
  const QColor tinta(0x70, 0x70, 0x70);
  QImage imagen(lado, lado, QImage::Format_RGB32);
  imagen.fill(Qt::white);
  QPainter p(&imagen);
  p.setRenderHint(QPainter::Antialiasing);
  p.setPen(QPen(QColor(0xB8, 0xB8, 0xB8), lado * 0.015));
  p.setBrush(fondo);
  const double m = lado * 0.03;
  p.drawRoundedRect(QRectF(m, m, lado - 2 * m, lado - 2 * m), lado * 0.14, lado * 0.14);
  // A camera: body, lens and viewfinder.
  p.save();
  const double zona = lado * 0.5;
  p.translate((lado - zona) / 2, lado * 0.12);
  p.scale(zona / 100.0, zona / 100.0);
  p.setPen(Qt::NoPen);
  p.setBrush(tinta);
  p.drawRoundedRect(QRectF(6, 24, 88, 62), 10, 10);
  p.drawRoundedRect(QRectF(32, 12, 36, 16), 4, 4);
  p.setBrush(fondo);
  p.drawEllipse(QRectF(30, 32, 40, 40));
  p.setBrush(tinta);
  p.drawEllipse(QRectF(40, 42, 20, 20));
  p.restore();
  DibujarTexto(p, QRectF(0, lado * 0.66, lado, lado * 0.26), u"Sin foto"_s, tinta.darker(140),
               lado * 0.14);
  return imagen;
}

void EscribirFotos(const QString& carpeta) {
  const QDir dir(carpeta);
  for (int i = 0; i < Familias().size(); ++i) {
    const FamiliaDemo& f = Familias().at(i);
    const QString nombre = QString::fromUtf16(f.nombre);
    Guardar(DibujarFicha(nombre, QColor::fromRgb(f.rgb), f.figura),
            dir.filePath(FotoFamilia(i + 1)), "PNG");
  }
  for (int codigo = 1; codigo <= Productos().size(); ++codigo) {
    const QString archivo = FotoProducto(codigo);
    if (archivo.isEmpty())
      continue;
    const ProductoDemo& p = Productos().at(codigo - 1);
    const FamiliaDemo* f = p.familia > 0 ? &Familias().at(p.familia - 1) : nullptr;
    const Figura figura = p.figura != Figura::Ninguna ? p.figura : (f ? f->figura : Figura::Plato);
    const QColor fondo = QColor::fromRgb(f ? f->rgb : 0xE0E0E0);
    Guardar(DibujarFicha(QString::fromUtf16(p.nombre), fondo, figura), dir.filePath(archivo), "JPG",
            88);
  }
  const QByteArray gif = CodificarGif(DibujarSinFoto());
  QFile defecto(dir.filePath(u"defecto.gif"_s));
  if (gif.isEmpty() || !defecto.open(QIODevice::WriteOnly) || defecto.write(gif) != gif.size()) {
    throw std::runtime_error("cannot write defecto.gif");
  }
}
