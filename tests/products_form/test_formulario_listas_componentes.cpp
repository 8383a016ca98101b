#include <QListView>
#include <QPushButton>
#include <QtTest>

#include "formulario_prueba.h"
#include "listas_productos.h"

using namespace Qt::Literals::StringLiterals;

class TestFormularioListasComponentes : public QObject {
  Q_OBJECT
 private slots:
  void init() { QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain)); }
  void lasListasDelElaboradoSeLlenanYSeFiltranPorTipo();
};

namespace {

QStringList Lineas(QListView* lista) {
  QStringList r;
  for (int i = 0; i < lista->model()->rowCount(); ++i)
    r.append(lista->model()->index(i, 0).data().toString());
  return r;
}

}  // namespace

void TestFormularioListasComponentes::lasListasDelElaboradoSeLlenanYSeFiltranPorTipo() {
  FormularioPrueba f({
      Producto(u"1"_s, u"Pan"_s, {{u"tipoprod"_s, u"0"_s}}),
      Producto(u"2"_s, u"Caña"_s, {{u"tipoprod"_s, u"1"_s}}),
      Producto(u"3"_s, u"Agua"_s, {{u"tipoprod"_s, u"2"_s}}),
      Producto(u"4"_s, u"Anís viejo"_s, {{u"tipoprod"_s, u"1"_s}, {u"borrar"_s, u"-1"_s}}),
      Producto(u"10"_s, u"Bocadillo"_s, {{u"tipoprod"_s, u"3"_s}}),
      Stock(u"10"_s, u"0"_s, u"0"_s),
      u"insert into productoElaborado_producto (productopadre, productohijo, cantidad) "
      "values ('10', '1', 1)"_s,
  });
  QVERIFY(f.mostrar());
  QTest::mouseClick(f.control<QPushButton>(u"cmd_ProdElaborado"_s), Qt::LeftButton);
  auto* componentes = f.control<QListView>(u"lb_Productos"_s);
  auto* elaborados = f.control<QListView>(u"lb_ProductosElaborados"_s);
  const QString pan = LineaLista(u"Pan"_s, u"1"_s);
  const QString cana = LineaLista(u"Caña"_s, u"2"_s);
  const QString agua = LineaLista(u"Agua"_s, u"3"_s);
  QCOMPARE(Lineas(elaborados), QStringList{LineaLista(u"Bocadillo"_s, u"10"_s)});
  QCOMPARE(Lineas(componentes), (QStringList{agua, cana, pan}));
  QCOMPARE(pan, u"Pan"_s + QString(120, u' ') + u"1"_s);

  // Change mode reloads them: a product added meanwhile shows up.
  f.inst().ejecutar({Producto(u"5"_s, u"Bravas"_s, {{u"tipoprod"_s, u"0"_s}})});
  QTest::mouseClick(f.control<QPushButton>(u"cmd_ModificarProdEla"_s), Qt::LeftButton);
  const QString bravas = LineaLista(u"Bravas"_s, u"5"_s);
  QCOMPARE(Lineas(componentes), (QStringList{agua, bravas, cana, pan}));

  QTest::mouseClick(f.control<QPushButton>(u"cmdCInterno"_s), Qt::LeftButton);
  QCOMPARE(Lineas(componentes), (QStringList{bravas, pan}));
  QTest::mouseClick(f.control<QPushButton>(u"cmdCVenta"_s), Qt::LeftButton);
  QCOMPARE(Lineas(componentes), (QStringList{agua, cana}));
  QVERIFY(f.inst().erroresMostrados().isEmpty());
}

PRODUCTOS_TEST_MAIN(TestFormularioListasComponentes)
#include "test_formulario_listas_componentes.moc"
