#include <QtTest>

#include <QAbstractButton>
#include <QLabel>
#include <QPushButton>

#include "formulario_prueba.h"
#include "panel_obj_nuevo.h"

using namespace Qt::Literals::StringLiterals;

// The terminal's type size step and panel enlargement, seen on the rendered screen.
namespace {

// Height in pixels of the ink of a rendered caption: the rows holding a pixel far from the
// background (the top-left pixel).
int AltoTinta(const QImage& imagen) {
  const QRgb fondo = imagen.pixel(0, 0);
  int primera = -1;
  int ultima = -1;
  for (int y = 0; y < imagen.height(); ++y) {
    for (int x = 0; x < imagen.width(); ++x) {
      const QRgb p = imagen.pixel(x, y);
      if (qAbs(qGray(p) - qGray(fondo)) > 96) {
        if (primera < 0)
          primera = y;
        ultima = y;
        break;
      }
    }
  }
  return primera < 0 ? 0 : ultima - primera + 1;
}

QStringList Filas(const QString& opciones) {
  QStringList filas{u"insert into proveedores (codigo, nombre, borrar) values ('P1', 'Sur', 0)"_s,
                    Producto(u"1"_s, u"Caña"_s), Stock(u"1"_s, u"5"_s, u"1"_s)};
  for (int i = 1; i <= 8; ++i) {
    filas << u"insert into seccion (codigo, nombre, borrar, menu, orden, mostrarencaja) values "
             "('F%1', 'Familia %1', 0, 0, %1, 0)"_s.arg(i);
  }
  if (!opciones.isEmpty())
    filas << u"update opciones_terminal set "_s + opciones;
  return filas;
}

struct Vista {
  int altoNombre = 0;
  QSize boton;
  int porPagina = 0;
};

Vista Mirar(FormularioPrueba& f, const QString& nombre) {
  Vista v;
  if (!f.mostrar())
    return v;
  QTest::mouseClick(f.control<QPushButton>(u"cmd_ProdGenerico"_s), Qt::LeftButton);
  const QImage captura = f.forma().grab().toImage();
  const QString carpeta = qEnvironmentVariable("PRODUCTOS_CAPTURAS_PRUEBA");
  if (!carpeta.isEmpty())
    captura.save(carpeta + u"/tipo-letra-"_s + nombre + u".png"_s);
  auto* etiqueta = f.control<QLabel>(u"lbl_nombre"_s);
  v.altoNombre =
      AltoTinta(captura.copy(QRect(etiqueta->mapTo(&f.forma(), QPoint()), etiqueta->size())));
  auto* panel = f.control<PanelObjNuevo>(u"PanelFamilias"_s);
  v.boton = panel->findChild<QAbstractButton*>(u"boton_1"_s)->size();
  v.porPagina = panel->botonesPorPagina();
  return v;
}

}  // namespace

class TestFormularioTipoLetra : public QObject {
  Q_OBJECT
 private slots:
  void init() { QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain)); }
  void elPasoDeLetraYElAumentoSeVen();
};

void TestFormularioTipoLetra::elPasoDeLetraYElAumentoSeVen() {
  FormularioPrueba disenio(Filas({}));
  const Vista base = Mirar(disenio, u"1"_s);
  FormularioPrueba grande(Filas(u"Tipo_Letra = 3, Aumento_X = 100, Aumento_Y = 100"_s));
  const Vista mayor = Mirar(grande, u"3"_s);
  QVERIFY(base.altoNombre > 8);
  // Two fifths larger type.
  const double razon = double(mayor.altoNombre) / base.altoNombre;
  QVERIFY2(razon > 1.25 && razon < 1.55, qPrintable(QString::number(razon)));
  // Larger buttons, fewer to a page.
  QVERIFY(mayor.boton.width() > base.boton.width());
  QVERIFY(mayor.boton.height() > base.boton.height());
  QVERIFY(mayor.porPagina < base.porPagina);
  // The step in between: a fifth larger.
  FormularioPrueba medio(Filas(u"Tipo_Letra = 2"_s));
  const Vista paso2 = Mirar(medio, u"2"_s);
  const double razon2 = double(paso2.altoNombre) / base.altoNombre;
  QVERIFY2(razon2 > 1.1 && razon2 < 1.3, qPrintable(QString::number(razon2)));
  QCOMPARE(paso2.porPagina, base.porPagina);
}

PRODUCTOS_TEST_MAIN(TestFormularioTipoLetra)
#include "test_formulario_tipo_letra.moc"
