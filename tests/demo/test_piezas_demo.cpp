#include <QBuffer>
#include <QImageReader>
#include <QRandomGenerator>
#include <QtTest>

#include "cargar_catalogo.h"
#include "ean13.h"
#include "gif.h"
#include "imagenes_demo.h"
#include "instalacion_demo.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QImage LeerGif(const QByteArray& datos) {
  QBuffer buffer;
  buffer.setData(datos);
  buffer.open(QIODevice::ReadOnly);
  QImageReader lector(&buffer, "gif");
  return lector.read();
}

// Each pixel of the decoded picture must be exactly the palette colour its source maps to.
void CompararConPaleta(const QImage& origen, const QImage& leida) {
  QCOMPARE(leida.size(), origen.size());
  const QImage a = origen.convertToFormat(QImage::Format_RGB32);
  const QImage b = leida.convertToFormat(QImage::Format_RGB32);
  for (int y = 0; y < a.height(); ++y) {
    for (int x = 0; x < a.width(); ++x) {
      const QRgb esperado = PaletaGif().at(IndicePaleta(a.pixel(x, y))) | 0xFF000000;
      if (b.pixel(x, y) != esperado) {
        QFAIL(qPrintable(u"pixel %1,%2: %3 instead of %4"_s.arg(x)
                             .arg(y)
                             .arg(b.pixel(x, y), 0, 16)
                             .arg(esperado, 0, 16)));
      }
    }
  }
}

}  // namespace

class TestPiezasDemo : public QObject {
  Q_OBJECT

 private slots:
  void ean13() {
    // Odd positions weigh 1, even ones 3; a sum ending in 0 gives 0, not 10.
    QCOMPARE(DigitoControlEan13(u"841234567890"_s), 5);
    QCOMPARE(CodigoEan13(u"400638133393"_s), u"4006381333931"_s);
    QCOMPARE(DigitoControlEan13(u"200000000010"_s), 7);
    QCOMPARE(DigitoControlEan13(u"000000000000"_s), 0);
    QVERIFY(EsEan13Valido(u"4006381333931"_s));
    QVERIFY(!EsEan13Valido(u"4006381333932"_s));
    QVERIFY(!EsEan13Valido(u"400638133393"_s));
    QCOMPARE(DigitoControlEan13(u"40063813339a"_s), -1);
    QVERIFY(CodigoEan13(u"12345"_s).isEmpty());
  }

  void paletaFija() {
    QCOMPARE(PaletaGif().size(), 256);
    QCOMPARE(IndicePaleta(qRgb(255, 0, 0)), 5 * 36);
    QCOMPARE(IndicePaleta(qRgb(0, 0, 0)), 0);
    QCOMPARE(IndicePaleta(qRgb(255, 255, 255)), 215);
    // A grey between the cube's levels takes one of the extra greys, not a cube colour.
    const int gris = IndicePaleta(qRgb(0xE6, 0xE6, 0xE6));
    QVERIFY(gris >= 216);
    QVERIFY(qAbs(qRed(PaletaGif().at(gris)) - 0xE6) <= 4);
  }

  void gifQueQtLee_data() {
    QTest::addColumn<QImage>("imagen");
    QImage uno(1, 1, QImage::Format_RGB32);
    uno.fill(qRgb(10, 200, 30));
    QTest::newRow("un pixel") << uno;
    QImage degradado(37, 23, QImage::Format_RGB32);  // odd sizes, every colour of a ramp
    for (int y = 0; y < degradado.height(); ++y) {
      for (int x = 0; x < degradado.width(); ++x) {
        degradado.setPixel(x, y, qRgb(x * 7, y * 11, (x * y) % 256));
      }
    }
    QTest::newRow("degradado") << degradado;
    // Noise fills the code table many times: exercises every code width and the restarts.
    QImage ruido(300, 220, QImage::Format_RGB32);
    QRandomGenerator azar(42);
    for (int y = 0; y < ruido.height(); ++y) {
      for (int x = 0; x < ruido.width(); ++x)
        ruido.setPixel(x, y, azar.generate() | 0xFF000000);
    }
    QTest::newRow("ruido") << ruido;
    QImage liso(640, 480, QImage::Format_RGB32);  // long runs: the longest codes
    liso.fill(qRgb(51, 102, 153));
    QTest::newRow("liso") << liso;
    QTest::newRow("sin foto") << DibujarSinFoto();
  }

  void gifQueQtLee() {
    QFETCH(QImage, imagen);
    const QByteArray gif = CodificarGif(imagen);
    QVERIFY(gif.startsWith("GIF89a"));
    QVERIFY(gif.endsWith(';'));
    CompararConPaleta(imagen, LeerGif(gif));
  }

  void gifImposible() {
    QVERIFY(CodificarGif(QImage()).isEmpty());
    QVERIFY(CodificarGif(QImage(70000, 1, QImage::Format_RGB32)).isEmpty());
  }

  void iniciales() {
    QCOMPARE(Iniciales(u"Café con leche"_s), u"CL"_s);
    QCOMPARE(Iniciales(u"Agua mineral 50 cl"_s), u"AM"_s);
    QCOMPARE(Iniciales(u"Tónica"_s), u"TÓ"_s);
    QCOMPARE(Iniciales(u"Copa de Rioja crianza"_s), u"CR"_s);
    QCOMPARE(Iniciales(u"de la"_s), u"DE"_s);
  }

  void nombresDeArchivo() {
    QCOMPARE(NombreArchivo(u"Cafés e infusiones"_s), u"cafes_e_infusiones"_s);
    QCOMPARE(NombreArchivo(u"Pimientos de Padrón"_s), u"pimientos_de_padron"_s);
    QCOMPARE(NombreArchivo(u"  Agua mineral 50 cl "_s), u"agua_mineral_50_cl"_s);
    QCOMPARE(NombreArchivo(u"Ñoquis (2)"_s), u"noquis_2"_s);
  }

  void argumentos() {
    QString error;
    const auto o = LeerArgumentos({u"productos-demo"_s, u"--reemplazar"_s, u"--idioma"_s,
                                   u"ingles"_s, u"--terminal"_s, u"t2"_s, u"/tmp/x"_s},
                                  &error);
    QVERIFY2(o.has_value(), qPrintable(error));
    QCOMPARE(o->carpeta, u"/tmp/x"_s);
    QVERIFY(o->reemplazar);
    QCOMPARE(o->idioma, u"INGLES"_s);
    QCOMPARE(o->terminal, u"T2"_s);

    const auto porDefecto = LeerArgumentos({u"productos-demo"_s, u"demo"_s}, &error);
    QVERIFY(porDefecto.has_value());
    QVERIFY(!porDefecto->reemplazar);
    QCOMPARE(porDefecto->idioma, u"CASTELLANO"_s);
    QCOMPARE(porDefecto->terminal, u"T1"_s);

    QVERIFY(!LeerArgumentos({u"productos-demo"_s}, &error));
    QVERIFY(error.startsWith(u"Uso: productos-demo"_s));
    QVERIFY(!LeerArgumentos({u"productos-demo"_s, u"a"_s, u"b"_s}, &error));
    QVERIFY(!LeerArgumentos({u"productos-demo"_s, u"--terminal"_s, u"T9"_s, u"a"_s}, &error));
    QCOMPARE(error, u"El terminal debe ser T1 o T2."_s);
    QVERIFY(!LeerArgumentos({u"productos-demo"_s, u"--idioma"_s, u"x'y"_s, u"a"_s}, &error));
    QVERIFY(!LeerArgumentos({u"productos-demo"_s, u"--sobrescribir"_s, u"a"_s}, &error));
  }
};

QTEST_MAIN(TestPiezasDemo)
#include "test_piezas_demo.moc"
