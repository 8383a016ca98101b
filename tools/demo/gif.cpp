#include "gif.h"

#include <gif_lib.h>

namespace {

constexpr int kBitsPorPixel = 8;
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

// giflib writes through this function into the QByteArray kept as the file's user data.
int Anadir(GifFileType* archivo, const GifByteType* datos, int longitud) {
  static_cast<QByteArray*>(archivo->UserData)
      ->append(reinterpret_cast<const char*>(datos), longitud);
  return longitud;
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

  QByteArray gif;
  int error = 0;
  GifFileType* archivo = EGifOpen(&gif, Anadir, &error);
  if (!archivo)
    return {};
  EGifSetGifVersion(archivo, true);  // GIF89a
  QList<GifColorType> colores;
  for (QRgb c : PaletaGif()) {
    colores.append({static_cast<GifByteType>(qRed(c)), static_cast<GifByteType>(qGreen(c)),
                    static_cast<GifByteType>(qBlue(c))});
  }
  ColorMapObject* paleta = GifMakeMapObject(int(colores.size()), colores.data());
  bool bien = paleta && EGifPutScreenDesc(archivo, rgb.width(), rgb.height(), kBitsPorPixel, 0,
                                          paleta) == GIF_OK;
  bien =
      bien && EGifPutImageDesc(archivo, 0, 0, rgb.width(), rgb.height(), false, nullptr) == GIF_OK;
  for (int y = 0; bien && y < rgb.height(); ++y) {
    bien = EGifPutLine(archivo, indices.data() + qsizetype(y) * rgb.width(), rgb.width()) == GIF_OK;
  }
  GifFreeMapObject(paleta);
  if (EGifCloseFile(archivo, &error) != GIF_OK || !bien)
    return {};
  return gif;
}
