#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QtTest>

#include "buscar.h"
#include "formulario_prueba.h"
#include "postgres_prueba.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QStringList Catalogo() {
  return {
      u"insert into proveedores (codigo, nombre, borrar) values ('P2', 'Cafés Norte', 0)"_s,
      u"insert into seccion (codigo, nombre, borrar, menu) values ('F1', 'Bebidas', 0, 0)"_s,
      Producto(u"1"_s, u"Café solo"_s, {{u"proveedor"_s, u"'P2'"_s}, {u"seccion"_s, u"'F1'"_s}}),
      Producto(u"2"_s, u"Café con leche"_s, {{u"proveedor"_s, u"'P2'"_s}}),
      Stock(u"1"_s, u"4"_s, u"1"_s),
      Stock(u"2"_s, u"4"_s, u"1"_s),
      Producto(u"3"_s, u"Cazuela"_s),
      u"insert into productoelaborado_producto (productopadre, productohijo, cantidad) "
      "values ('3', '1', 1)"_s,
      Producto(u"4"_s, u"Caña"_s, {{u"borrar"_s, u"-1"_s}}),
      Producto(u"5"_s, u"Vino tinto"_s, {{u"seccion"_s, u"'F1'"_s}}),
  };
}

}  // namespace

// Finding a product among many: the query that the boxes make, the products it finds on each
// engine, and the dialog handing the chosen product to the products form.
class TestBuscar : public QObject {
  Q_OBJECT
  std::unique_ptr<PostgresPrueba> pg_;
  InstalacionPrueba sqlite_;
  InstalacionPrueba postgres_;

 private slots:
  void initTestCase() {
    sqlite_.ejecutar(Catalogo());
    pg_ = std::make_unique<PostgresPrueba>();
    QVERIFY2(postgres_.usarPostgres(*pg_, u"busqueda"_s), qPrintable(pg_->error()));
    postgres_.ejecutar(Catalogo());
  }

  void encuentra_data() {
    QTest::addColumn<QString>("modo");
    QTest::addColumn<CriteriosBusqueda>("criterios");
    QTest::addColumn<QString>("condicion");  // after "... where codigo <> null and borrar = 0"
    QTest::addColumn<QString>("codigos");    // found on each engine
    const QString simples =
        u" and codigo not in (select productopadre from "
        "productoelaborado_producto)"_s;
    QTest::newRow("todo") << u"Pr"_s << CriteriosBusqueda{} << simples << u"1 2 5"_s;
    QTest::newRow("proveedor y familia")
        << u"Pr"_s << CriteriosBusqueda{.proveedor = u"Caf"_s, .familia = u"beb"_s}
        << u" and Proveedor in (select codigo from proveedores where nombre like 'Caf%') and "
           "seccion in (select codigo from seccion where nombre like 'beb%')"_s +
               simples
        << u"1"_s;
    QTest::newRow("sin familia") << u"Pr"_s << CriteriosBusqueda{.sinAsignar = true}
                                 << u" and seccion = '-1'"_s + simples << u"2"_s;
    QTest::newRow("todo, elaborados")
        << u"PrEl"_s << CriteriosBusqueda{u"x"_s, u"y"_s, u"CA"_s, true}
        << u" and Nombre like 'CA%' and Proveedor in (select codigo from proveedores where nombre "
           "like 'x%') and seccion in (select codigo from seccion where nombre like 'y%') and "
           "seccion = '-1' and codigo in (select productopadre from productoelaborado_producto)"_s
        << QString();
    QTest::newRow("elaborados") << u"PrEl"_s << CriteriosBusqueda{.nombre = u"CA"_s}
                                << u" and Nombre like 'CA%' and codigo in (select productopadre "
                                   "from productoelaborado_producto)"_s
                                << u"3"_s;
  }
  void encuentra() {
    QFETCH(QString, modo);
    QFETCH(CriteriosBusqueda, criterios);
    QFETCH(QString, condicion);
    QFETCH(QString, codigos);
    QCOMPARE(ConsultaBuscarProducto(modo, criterios),
             u"Select * from Productos  where codigo <> null and borrar = 0"_s + condicion);
    for (InstalacionPrueba* inst : {&sqlite_, &postgres_}) {
      QStringList hallados;
      for (const QString& linea : BuscarProducto(inst->entorno(), modo, criterios))
        hallados.append(linea.right(10).trimmed());
      hallados.sort();
      QCOMPARE(hallados.join(u' '), codigos);
    }
  }

  void eligeMuestraYCerrarNoCambia() {
    FormularioPrueba f(Catalogo());
    QVERIFY(f.mostrar());
    Pulsar(f, u"cmd_ProdGenerico"_s);
    Pulsar(f, u"cmd_buscar"_s);
    QPointer<Buscar> buscar = f.forma().findChild<Buscar*>();
    const auto PulsarEn = [&](QWidget* dialogo, const QString& nombre) {
      QTest::mouseClick(dialogo->findChild<QPushButton*>(nombre), Qt::LeftButton);
    };
    QCOMPARE(f.control<QLineEdit>(u"txt_nombre"_s)->text(), u"Café con leche"_s);
    QVERIFY(buscar && buscar->isVisible() && buscar->isModal());
    // A quote breaks the query: it is logged and nothing is listed.
    auto* nombre = buscar->findChild<QLineEdit*>(u"TxtBusProd_2"_s);
    QTest::keyClicks(nombre, u"O'B"_s);
    QTest::keyClick(nombre, Qt::Key_Return);
    auto* lista = buscar->findChild<QListWidget*>(u"lst_resultado"_s);
    QCOMPARE(lista->count(), 0);
    QVERIFY(f.inst().log().startsWith("Buscar  1, Descripcion: "));
    PulsarEn(buscar, u"BtnBusClie_1"_s);
    // "C", "A", "X", Backspace and Enter, on the dialog's own keyboard, into the name box.
    for (const int tecla : {67, 65, 88, 8, 13})
      PulsarEn(buscar, u"bt_letra_%1"_s.arg(tecla));
    QCOMPARE(nombre->text(), u"CA"_s);
    PulsarEn(buscar, u"BtnBusClie_0"_s);
    const QList<QListWidgetItem*> solo = lista->findItems(u"Café solo"_s, Qt::MatchStartsWith);
    QCOMPARE(lista->count(), 2);
    QCOMPARE(solo.first()->text(), u"Café solo"_s + QString(130, u' ') + u"1"_s);
    QTest::mouseClick(lista->viewport(), Qt::LeftButton, {},
                      lista->visualItemRect(solo.first()).center());
    QTRY_VERIFY(!buscar || !buscar->isVisible());
    QCOMPARE(f.control<QLineEdit>(u"txt_nombre"_s)->text(), u"Café solo"_s);
    // Closing hands "-1": the form keeps the product it shows.
    Pulsar(f, u"cmd_buscar"_s);
    QVERIFY((buscar = f.forma().findChild<Buscar*>()));
    PulsarEn(buscar, u"BtnBusClie_2"_s);
    QTRY_VERIFY(!buscar || !buscar->isVisible());
    QCOMPARE(f.control<QLineEdit>(u"txt_nombre"_s)->text(), u"Café solo"_s);
    QCOMPARE(f.forma().estado().codigoActual, 1);
    QCOMPARE(f.inst().erroresMostrados().size(), 1);
  }
};

PRODUCTOS_TEST_MAIN(TestBuscar)
#include "test_buscar.moc"
