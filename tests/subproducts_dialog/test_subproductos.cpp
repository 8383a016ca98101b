#include <QtTest>
#include <QtWidgets>

#include "formulario_prueba.h"
#include "frm_add_subproductos.h"
#include "postgres_prueba.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// Products 1 to 5 and "6x", whose unquoted code breaks the links' insert; 1 has 5, 9 has 1.
QStringList CatalogoSubproductos() {
  QStringList r{
      u"insert into seccion (codigo, nombre, borrar, menu, orden) values ('F1', 'Cafés', "
      "0, 0, 1), ('F2', 'Vacía', 0, 0, 2)"_s,
      u"insert into subproductos (CodProductoPadre, CodProductoHijo) values ('1', '5'), "
      "('9', '1')"_s};
  for (int i = 1; i <= 6; ++i)
    r << Producto(i < 6 ? QString::number(i) : u"6x"_s, u"P%1"_s.arg(i),
                  {{u"seccion"_s, u"'F1'"_s}, {u"orden"_s, QString::number(i)}});
  return r;
}

// The grid's codes; the links written as "parent>child".
QString Grid(QWidget* dialogo) {
  auto* grid = dialogo->findChild<QTableWidget*>(u"gridProd"_s);
  QStringList r;
  for (int fila = 0; fila < grid->rowCount(); ++fila)
    r << grid->item(fila, 1)->text();
  return r.join(u' ');
}
QString Enlaces(InstalacionPrueba& inst) {
  QStringList r;
  for (const QVariantList& fila :
       inst.filas(u"select CodProductoPadre, CodProductoHijo from subproductos order by 1, 2"_s))
    r.append(fila.at(0).toString() + u">"_s + fila.at(1).toString());
  return r.join(u' ');
}

}  // namespace

// Sub-product links written on each engine, and kept when an accept fails.
class TestSubproductos : public QObject {
  Q_OBJECT
  std::unique_ptr<PostgresPrueba> pg_;

 private slots:
  void initTestCase() { pg_ = std::make_unique<PostgresPrueba>(); }

  void enlazaSubproductos_data() {
    QTest::addColumn<bool>("postgres");
    QTest::newRow("sqlite, quitar con Supr") << false;
    QTest::newRow("postgresql, quitar con el botón") << true;
  }
  void enlazaSubproductos() {
    QFETCH(bool, postgres);
    InstalacionPrueba inst;
    if (postgres)
      QVERIFY2(inst.usarPostgres(*pg_, u"subproductos"_s), qPrintable(pg_->error()));
    TablasPanel tablas;
    // With no family there is no family without products to tell of.
    std::unique_ptr<QDialog> d(AbrirSubproductos(inst.entorno(), tablas, nullptr));
    QVERIFY(d->findChild<QWidget*>(u"frPanelVacio"_s)->isHidden());
    inst.ejecutar(CatalogoSubproductos());
    d.reset(AbrirSubproductos(inst.entorno(), tablas, nullptr));
    for (const int boton : {1, 2, 3, 4, 3})
      Clic(d.get(), u"PanelPrimeros"_s, boton);
    QCOMPARE(Grid(d.get()), u"5 2 3 4"_s);
    auto* grid = d->findChild<QTableWidget*>(u"gridProd"_s);
    grid->setCurrentCell(0, 0);
    if (postgres)
      Clic(d.get(), u"cmdQuitar"_s);
    else
      QTest::keyClick(grid, Qt::Key_Delete);
    QCOMPARE(Grid(d.get()), u"2 3 4"_s);
    Clic(d.get(), u"cmd_AceptarFin"_s);
    QCOMPARE(Enlaces(inst), u"1>2 1>3 1>4 9>1"_s);
    QCOMPARE(inst.dialogos().mensajes(),
             QStringList{u"Ha terminado de incluir subproductos al producto P1"_s});
    QCOMPARE(inst.dialogos().llamadas().last().titulo, u"Añadir Sub-Productos"_s);
    QVERIFY(!inst.log().contains("SubProductos  "));
    // Touching the parent's picture starts over: the next product touched is the new parent.
    QTest::mouseClick(d->findChild<QLabel*>(u"imgDiseño"_s), Qt::LeftButton);
    Clic(d.get(), u"PanelPrimeros"_s, 5);
    QCOMPARE(d->findChild<QLabel*>(u"lblDiseño"_s)->text(), u"P5"_s);
    QCOMPARE(Grid(d.get()), QString());
    Clic(d.get(), u"PanelFamilias"_s, 2);
    QVERIFY(!d->findChild<QWidget*>(u"frPanelVacio"_s)->isHidden());
  }

  void desdeElFormularioUnFalloConservaLosEnlacesYCerrarNoEscribe() {
    FormularioPrueba f(CatalogoSubproductos());
    QVERIFY(f.mostrar());
    Pulsar(f, u"cmd_ProdElaborado"_s);
    Pulsar(f, u"Command4"_s);
    auto* d = f.forma().findChild<FrmAddSubProductos*>();
    QVERIFY(d && d->isVisible() && d->isModal());
    QCOMPARE(d->findChild<QLabel*>(u"lblnomFamilia"_s)->text(), u"Cafés"_s);
    for (const int boton : {1, 2, 6})
      Clic(d, u"PanelPrimeros"_s, boton);
    Clic(d, u"cmd_AceptarFin"_s);
    QCOMPARE(Enlaces(f.inst()), u"1>5 9>1"_s);
    QVERIFY(f.dialogos().mensajes().isEmpty());
    QVERIFY(f.inst().log().contains("SubProductos  2, Descripcion: "));
    Clic(d, u"cmd_CancelarFin"_s);
    QTRY_VERIFY(!f.forma().findChild<FrmAddSubProductos*>());
    QCOMPARE(Enlaces(f.inst()), u"1>5 9>1"_s);
  }
};

PRODUCTOS_TEST_MAIN(TestSubproductos)
#include "test_subproductos.moc"
