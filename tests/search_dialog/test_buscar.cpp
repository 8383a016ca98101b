#include <QtTest>
#include <QtWidgets>

#include "buscar.h"
#include "formulario_prueba.h"
#include "postgres_prueba.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// Products "code|name|supplier|family|deleted", then their stock and the dish made of 1.
QStringList CatalogoBuscar() {
  QStringList r{
      u"insert into proveedores (codigo, nombre, borrar) values ('P2', 'Cafés Norte', 0)"_s,
      u"insert into seccion (codigo, nombre, borrar, menu) values ('F1', 'Bebidas', 0, 0)"_s};
  for (const QString& p :
       u"1|Café solo|'P2'|'F1'|0;2|Café con leche|'P2'|'-1'|0;3|Cazuela|null|"
       "'-1'|0;4|Caña|null|'-1'|-1;5|Vino tinto|null|'F1'|0"_s.split(u';')) {
    const QStringList c = p.split(u'|');
    r.append(
        Producto(c[0], c[1], {{u"proveedor"_s, c[2]}, {u"seccion"_s, c[3]}, {u"borrar"_s, c[4]}}));
  }
  return r << u"insert into stock (producto, stock, stockminimo) values (1, 4, 1), (2, 4, 1)"_s
           << u"insert into productoelaborado_producto (productopadre, productohijo, cantidad) "
              "values ('3', '1', 1)"_s;
}

}  // namespace

// The search's query, its results on each engine, and the dialog on the form.
class TestBuscar : public QObject {
  Q_OBJECT
  std::unique_ptr<PostgresPrueba> pg_;
  InstalacionPrueba sqlite_;
  InstalacionPrueba postgres_;

 private slots:
  void initTestCase() {
    sqlite_.ejecutar(CatalogoBuscar());
    pg_ = std::make_unique<PostgresPrueba>();
    QVERIFY2(postgres_.usarPostgres(*pg_, u"busqueda"_s), qPrintable(pg_->error()));
    postgres_.ejecutar(CatalogoBuscar());
  }

  void encuentra_data() {
    QTest::addColumn<QString>("modo");
    QTest::addColumn<CriteriosBusqueda>("criterios");
    QTest::addColumn<QString>("condicion");  // after "... where codigo <> null and borrar = 0"
    QTest::addColumn<QString>("codigos");    // found on each engine
    const QString elaborado = u"in (select productopadre from productoelaborado_producto)"_s;
    const auto filtro = [](const QString& p, const QString& f) {
      return u" and Proveedor in (select codigo from proveedores where nombre like '%1%') and "
             "seccion in (select codigo from seccion where nombre like '%2%')"_s.arg(p, f);
    };
    QTest::newRow("todo") << u"Pr"_s << CriteriosBusqueda{} << u" and codigo not "_s + elaborado
                          << u"1 2 5"_s;
    QTest::newRow("proveedor y familia")
        << u"Pr"_s << CriteriosBusqueda{.proveedor = u"Caf"_s, .familia = u"beb"_s}
        << filtro(u"Caf"_s, u"beb"_s) + u" and codigo not "_s + elaborado << u"1"_s;
    QTest::newRow("sin familia") << u"Pr"_s << CriteriosBusqueda{.sinAsignar = true}
                                 << u" and seccion = '-1' and codigo not "_s + elaborado << u"2"_s;
    QTest::newRow("todo, elaborados")
        << u"PrEl"_s << CriteriosBusqueda{u"x"_s, u"y"_s, u"CA"_s, true}
        << u" and Nombre like 'CA%'"_s + filtro(u"x"_s, u"y"_s) +
               u" and seccion = '-1' and codigo "_s + elaborado
        << QString();
    QTest::newRow("elaborados") << u"PrEl"_s << CriteriosBusqueda{.nombre = u"CA"_s}
                                << u" and Nombre like 'CA%' and codigo "_s + elaborado << u"3"_s;
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
    FormularioPrueba f(CatalogoBuscar());
    QVERIFY(f.mostrar());
    Pulsar(f, u"cmd_ProdGenerico"_s);
    Pulsar(f, u"cmd_buscar"_s);
    QPointer<Buscar> buscar = f.forma().findChild<Buscar*>();
    QCOMPARE(f.control<QLineEdit>(u"txt_nombre"_s)->text(), u"Café con leche"_s);
    QVERIFY(buscar && buscar->isVisible() && buscar->isModal());
    // A quote breaks the query: it is logged and nothing is listed.
    auto* nombre = buscar->findChild<QLineEdit*>(u"TxtBusProd_2"_s);
    QTest::keyClicks(nombre, u"O'B"_s);
    QTest::keyClick(nombre, Qt::Key_Return);
    auto* lista = buscar->findChild<QListWidget*>(u"lst_resultado"_s);
    QCOMPARE(lista->count(), 0);
    QVERIFY(f.inst().log().startsWith("Buscar  1, Descripcion: "));
    Clic(buscar, u"BtnBusClie_1"_s);
    // "C", "A", "X", Backspace and Enter, on the dialog's own keyboard, into the name box.
    for (const int tecla : {67, 65, 88, 8, 13})
      Clic(buscar, u"bt_letra_%1"_s.arg(tecla));
    QCOMPARE(nombre->text(), u"CA"_s);
    Clic(buscar, u"BtnBusClie_0"_s);
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
    Clic(buscar, u"BtnBusClie_2"_s);
    QTRY_VERIFY(!buscar || !buscar->isVisible());
    QCOMPARE(f.control<QLineEdit>(u"txt_nombre"_s)->text(), u"Café solo"_s);
    QCOMPARE(f.forma().estado().codigoActual, 1);
    QCOMPARE(f.inst().erroresMostrados().size(), 1);
  }
};

PRODUCTOS_TEST_MAIN(TestBuscar)
#include "test_buscar.moc"
