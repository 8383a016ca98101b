#include "gif.h"

#include <unordered_map>

namespace {

constexpr int kBitsPorPixel = 8;
constexpr int kCodigoLimpiar = 1 << kBitsPorPixel;  // 256
constexpr int kCodigoFin = kCodigoLimpiar + 1;      // 257
constexpr int kPrimerCodigoLibre = kCodigoFin + 1;  // 258
// A decoder's table ends at 4095; the encoder starts afresh before it would need 4096.
constexpr int kUltimoCodigo = 4095;
constexpr int kGrises = 40;

QList<QRgb> CrearPaleta() {
  QList<QRgb> paleta;
  paleta.reserve(256);
  for (int r = 0; r < 6; ++r) {
    for (int g = 0; g < 6; ++g) {
      for (int b = 0; b < 6; ++b)
        paleta.append(qRgb(r * 51, g * 51, b * 51));
    }
  }
  // Greys between the cube's six, so that soft grey shading does not band.
  for (int i = 1; i <= kGrises; ++i) {
    const int v = (i * 255) / (kGrises + 1);
    paleta.append(qRgb(v, v, v));
  }
  return paleta;
}

int Distancia(QRgb a, QRgb b) {
  const int dr = qRed(a) - qRed(b);
  const int dg = qGreen(a) - qGreen(b);
  const int db = qBlue(a) - qBlue(b);
  return dr * dr + dg * dg + db * db;
}

int Nivel(int componente) {
  return (componente + 25) / 51;
}

// Packs codes of varying width into bytes, least significant bit first, as GIF wants them.
class EscritorBits {
 public:
  void escribir(int codigo, int ancho) {
    acumulado_ |= static_cast<quint32>(codigo) << bits_;
    bits_ += ancho;
    while (bits_ >= 8) {
      datos_.append(static_cast<char>(acumulado_ & 0xFF));
      acumulado_ >>= 8;
      bits_ -= 8;
    }
  }
  QByteArray terminar() {
    if (bits_ > 0)
      datos_.append(static_cast<char>(acumulado_ & 0xFF));
    acumulado_ = 0;
    bits_ = 0;
    return datos_;
  }

 private:
  QByteArray datos_;
  quint32 acumulado_ = 0;
  int bits_ = 0;
};

QByteArray ComprimirLzw(const QList<uchar>& indices) {
  EscritorBits salida;
  std::unordered_map<quint32, int> tabla;
  int ancho = kBitsPorPixel + 1;
  int siguiente = kPrimerCodigoLibre;
  salida.escribir(kCodigoLimpiar, ancho);
  int prefijo = indices.first();
  for (qsizetype i = 1; i < indices.size(); ++i) {
    const uchar k = indices.at(i);
    const quint32 clave = (static_cast<quint32>(prefijo) << 8) | k;
    const auto it = tabla.find(clave);
    if (it != tabla.end()) {
      prefijo = it->second;
      continue;
    }
    salida.escribir(prefijo, ancho);
    // The decoder learns each entry one code later than the encoder makes it, so the width
    // grows once the next free code no longer fits, before that code is added.
    if (siguiente >= (1 << ancho) && ancho < 12)
      ++ancho;
    if (siguiente >= kUltimoCodigo) {
      salida.escribir(kCodigoLimpiar, ancho);
      tabla.clear();
      siguiente = kPrimerCodigoLibre;
      ancho = kBitsPorPixel + 1;
    } else {
      tabla.emplace(clave, siguiente++);
    }
    prefijo = k;
  }
  salida.escribir(prefijo, ancho);
  if (siguiente >= (1 << ancho) && ancho < 12)
    ++ancho;
  salida.escribir(kCodigoFin, ancho);
  return salida.terminar();
}

void EscribirPalabra(QByteArray& destino, int valor) {
  destino.append(static_cast<char>(valor & 0xFF));
  destino.append(static_cast<char>((valor >> 8) & 0xFF));
}

}  // namespace

const QList<QRgb>& PaletaGif() {
  static const QList<QRgb> paleta = CrearPaleta();
  return paleta;
}

int IndicePaleta(QRgb color) {
  const int cubo = Nivel(qRed(color)) * 36 + Nivel(qGreen(color)) * 6 + Nivel(qBlue(color));
  const int media = (qRed(color) + qGreen(color) + qBlue(color)) / 3;
  int gris = 216 + qBound(0, (media * (kGrises + 1) + 127) / 255 - 1, kGrises - 1);
  const QList<QRgb>& paleta = PaletaGif();
  return Distancia(color, paleta.at(gris)) < Distancia(color, paleta.at(cubo)) ? gris : cubo;
}

QByteArray CodificarGif(const QImage& imagen) {
  if (imagen.isNull() || imagen.width() > 0xFFFF || imagen.height() > 0xFFFF)
    return {};
  const QImage rgb = imagen.convertToFormat(QImage::Format_RGB32);
  QList<uchar> indices;
  indices.reserve(qsizetype(rgb.width()) * rgb.height());
  for (int y = 0; y < rgb.height(); ++y) {
    const auto* linea = reinterpret_cast<const QRgb*>(rgb.constScanLine(y));
    for (int x = 0; x < rgb.width(); ++x)
      indices.append(static_cast<uchar>(IndicePaleta(linea[x])));
  }

  QByteArray gif("GIF89a");
  EscribirPalabra(gif, rgb.width());
  EscribirPalabra(gif, rgb.height());
  gif.append(static_cast<char>(0xF7));  // global palette of 256 colours, 8 bits per primary
  gif.append('\0');                     // background colour index
  gif.append('\0');                     // square pixels
  for (QRgb c : PaletaGif()) {
    gif.append(static_cast<char>(qRed(c)));
    gif.append(static_cast<char>(qGreen(c)));
    gif.append(static_cast<char>(qBlue(c)));
  }
  gif.append(',');  // image descriptor: the whole screen, not interlaced, no local palette
  EscribirPalabra(gif, 0);
  EscribirPalabra(gif, 0);
  EscribirPalabra(gif, rgb.width());
  EscribirPalabra(gif, rgb.height());
  gif.append('\0');
  gif.append(static_cast<char>(kBitsPorPixel));
  const QByteArray datos = ComprimirLzw(indices);
  for (qsizetype i = 0; i < datos.size(); i += 255) {
    const QByteArray bloque = datos.mid(i, 255);
    gif.append(static_cast<char>(bloque.size()));
    gif.append(bloque);
  }
  gif.append('\0');
  gif.append(';');  // trailer
  return gif;
}
