// The product list boxes over a large catalogue: every product has its line, exactly as the
// statement gives it, but only the lines on the screen are ever built.
#include <QtTest>

#include <QListView>

#include "formulario_prueba.h"
#include "lineas_productos.h"
#include "listas_productos.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kProductos = 3000;

// Names in the order of their codes.
QString Nombre(int i) {
  return u"Producto %1"_s.arg(i, 4, 10, QChar(u'0'));
}

}  // namespace

class TestFormularioEscalaListas : public QObject {
  Q_OBJECT
 private slots:
  void init() { QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain)); }
  void soloSeConstruyenLasLineasALaVista_data();
  void soloSeConstruyenLasLineasALaVista();
};

void TestFormularioEscalaListas::soloSeConstruyenLasLineasALaVista_data() {
  QTest::addColumn<QStringList>("botones");
  QTest::addColumn<QString>("lista");
  QTest::newRow("Lista") << QStringList{u"cmd_ProdGenerico"_s, u"cmd_ListaProd"_s}
                         << u"lstProductos"_s;
  QTest::newRow("componentes") << QStringList{u"cmd_ProdElaborado"_s} << u"lb_Productos"_s;
}

void TestFormularioEscalaListas::soloSeConstruyenLasLineasALaVista() {
  QFETCH(QStringList, botones);
  QFETCH(QString, lista);
  FormularioPrueba f({Producto(u"1"_s, Nombre(1)),
                      u"with recursive n(i) as (select 2 union all select i + 1 from n where i < "
                      "%1) insert into productos (codigo, nombre, borrar, tipoprod) select i, "
                      "'Producto ' || substr('000' || i, -4), 0, 1 from n"_s.arg(kProductos)});
  QVERIFY(f.mostrar());
  for (const QString& boton : botones)
    Pulsar(f, boton);
  auto* vista = f.control<QListView>(lista);
  QVERIFY(vista->isVisible());
  vista->viewport()->repaint();
  const ModeloLineas* modelo = ModeloDe(vista);
  QVERIFY(modelo);
  QCOMPARE(modelo->rowCount(), kProductos);
  // Painted: the lines in sight, a few dozen at most, have been built, and no other.
  QVERIFY(modelo->construidas() > 0);
  QVERIFY2(modelo->construidas() < 100, qPrintable(QString::number(modelo->construidas())));
  for (int i : {1, kProductos / 2, kProductos}) {
    QCOMPARE(modelo->index(i - 1).data().toString(),
             Nombre(i) + QString(120, u' ') + QString::number(i));
  }
}

QTEST_MAIN(TestFormularioEscalaListas)
#include "test_formulario_escala_listas.moc"
