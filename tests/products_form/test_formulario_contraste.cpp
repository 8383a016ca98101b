#include <QtTest>

#include <QAbstractButton>
#include <QLabel>
#include <QPushButton>

#include "datos_catalogo.h"
#include "formulario_prueba.h"
#include "imagen_prueba.h"

using namespace Qt::Literals::StringLiterals;

// Browsing a product, the locked fields read as well as the rest, in every scheme the demo
// installs: the rendered text stands out of its background by at least 4.5:1, and the picture
// shows as it is.
namespace {

double Luminancia(QRgb c) {
  const auto lineal = [](int v) {
    const double s = v / 255.0;
    return s <= 0.03928 ? s / 12.92 : std::pow((s + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * lineal(qRed(c)) + 0.7152 * lineal(qGreen(c)) + 0.0722 * lineal(qBlue(c));
}

double Contraste(QRgb a, QRgb b) {
  const double la = Luminancia(a);
  const double lb = Luminancia(b);
  return (std::max(la, lb) + 0.05) / (std::min(la, lb) + 0.05);
}

// The contrast of a rendered caption: its most common colour is the background, the pixel
// farthest from it is the ink.
double ContrasteRenderizado(const QImage& imagen) {
  QHash<QRgb, int> cuenta;
  for (int y = 0; y < imagen.height(); ++y) {
    for (int x = 0; x < imagen.width(); ++x)
      ++cuenta[imagen.pixel(x, y)];
  }
  QRgb fondo = 0;
  int maximo = -1;
  for (auto it = cuenta.cbegin(); it != cuenta.cend(); ++it) {
    if (it.value() > maximo) {
      maximo = it.value();
      fondo = it.key();
    }
  }
  double mejor = 1;
  for (auto it = cuenta.cbegin(); it != cuenta.cend(); ++it)
    mejor = std::max(mejor, Contraste(it.key(), fondo));
  return mejor;
}

}  // namespace

class TestFormularioContraste : public QObject {
  Q_OBJECT
 private slots:
  void init() { QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain)); }
  void losCamposBloqueadosSeLeen_data();
  void losCamposBloqueadosSeLeen();
};

void TestFormularioContraste::losCamposBloqueadosSeLeen_data() {
  QTest::addColumn<int>("esquema");
  for (const EsquemaColorDemo& e : EsquemasColor())
    QTest::newRow(qPrintable(QString::fromUtf16(e.nombre))) << e.id;
}

void TestFormularioContraste::losCamposBloqueadosSeLeen() {
  QFETCH(int, esquema);
  const EsquemaColorDemo& e = *std::find_if(EsquemasColor().cbegin(), EsquemasColor().cend(),
                                            [esquema](const auto& x) { return x.id == esquema; });
  QStringList valores{QString::number(100 + e.id)};
  for (quint32 rgb : e.colores)
    valores << QString::number(ValorSuite(rgb));
  FormularioPrueba f(
      {u"insert into colores (id_color, FondoMarco, FondoMarco2, FondoMarco3, FondoMarco4, "
       "FondoBoton, ColorTexto, FondoEntrada, Zoom1, Zoom2, Zoom3, Zoom4, Separador, Foco, "
       "Resalto) values ("_s +
           valores.join(u", "_s) + u")"_s,
       u"update opciones_terminal set id_color = %1"_s.arg(100 + e.id),
       u"insert into proveedores (codigo, nombre, borrar) values ('P1', 'Huerta Viva', 0)"_s,
       u"insert into productoproveedor (producto, proveedor, coste) values (1, 'P1', 0)"_s,
       Producto(u"1"_s, u"Caña"_s, {{u"proveedor"_s, u"'P1'"_s}, {u"foto"_s, u"'cana.png'"_s}}),
       Stock(u"1"_s, u"5"_s, u"1"_s)});
  Imagen(f.inst().carpeta() + u"/fotos"_s, u"cana.png"_s, 400, Qt::blue);
  QVERIFY(f.mostrar());
  QTest::mouseClick(f.control<QPushButton>(u"cmd_ProdGenerico"_s), Qt::LeftButton);
  QCOMPARE(f.control<QPushButton>(u"cmd_Proveedor"_s)->text(), u"Huerta Viva"_s);

  const QImage pantalla = f.forma().grab().toImage();
  const QString carpeta = qEnvironmentVariable("PRODUCTOS_CAPTURAS_PRUEBA");
  if (!carpeta.isEmpty())
    pantalla.save(carpeta + u"/contraste-"_s + QString::number(esquema) + u".png"_s);
  // The supplier's name, the product type, the zone and the box that shows it on the till,
  // each cut to its caption (the mark of an option or check box aside).
  for (const QString& nombre :
       {u"cmd_Proveedor"_s, u"opt_Venta"_s, u"optBarra"_s, u"ch_Mostrar"_s, u"txt_nombre"_s}) {
    const QWidget* w = f.control<QWidget>(nombre);
    QVERIFY2(!w->isEnabled() || nombre == u"txt_nombre"_s, qPrintable(nombre));
    QRect zona(w->mapTo(&f.forma(), QPoint()), w->size());
    zona.adjust(qobject_cast<const QAbstractButton*>(w) && !qobject_cast<const QPushButton*>(w)
                    ? w->height()
                    : 6,
                6, -6, -6);
    const double c = ContrasteRenderizado(pantalla.copy(zona));
    QVERIFY2(c >= 4.5, qPrintable(u"%1: %2:1"_s.arg(nombre).arg(c, 0, 'f', 2)));
  }
  // The picture shows in its own colour, not greyed.
  const QWidget* imagen = f.control<QWidget>(u"pict_imagen"_s);
  QVERIFY(!imagen->isEnabled());
  const QPoint centro = imagen->mapTo(&f.forma(), imagen->rect().center());
  QCOMPARE(QColor(pantalla.pixel(centro)), QColor(Qt::blue));
}

PRODUCTOS_TEST_MAIN(TestFormularioContraste)
#include "test_formulario_contraste.moc"
