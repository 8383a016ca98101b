#include "color_vb.h"

#include <QGuiApplication>
#include <QPalette>

namespace {

constexpr qint64 kColorSistema = 0x80000000LL;

// The system colours that forms use, as palette roles.
QColor ColorSistema(int indice) {
  const QPalette paleta = qobject_cast<QGuiApplication*>(QCoreApplication::instance())
                              ? QGuiApplication::palette()
                              : QPalette();
  switch (indice) {
    case 5:  // window background
      return paleta.color(QPalette::Base);
    case 8:  // window text
      return paleta.color(QPalette::Text);
    case 13:  // highlight
      return paleta.color(QPalette::Highlight);
    case 14:  // highlighted text
      return paleta.color(QPalette::HighlightedText);
    case 15:  // button face
      return paleta.color(QPalette::Button);
    case 17:  // grey text
      return paleta.color(QPalette::Disabled, QPalette::Text);
    case 18:  // button text
      return paleta.color(QPalette::ButtonText);
    default:
      return paleta.color(QPalette::Window);
  }
}

}  // namespace

QColor ColorDesdeValor(qint64 valor) {
  // A 32-bit value read as signed arrives negative.
  if (valor < 0)
    valor &= 0xFFFFFFFFLL;
  if (valor & kColorSistema)
    return ColorSistema(static_cast<int>(valor & 0xFF));
  return QColor(static_cast<int>(valor & 0xFF), static_cast<int>((valor >> 8) & 0xFF),
                static_cast<int>((valor >> 16) & 0xFF));
}

qint64 ValorDeColor(const QColor& color) {
  const QColor rgb = color.toRgb();
  return static_cast<qint64>(rgb.red()) | (static_cast<qint64>(rgb.green()) << 8) |
         (static_cast<qint64>(rgb.blue()) << 16);
}

QColor ColorDesdeTexto(const QString& texto) {
  bool ok = false;
  const qint64 valor = texto.trimmed().toLongLong(&ok);
  return ok ? ColorDesdeValor(valor) : QColor();
}
