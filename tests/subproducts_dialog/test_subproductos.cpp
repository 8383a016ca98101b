#include <QAbstractButton>
#include <QLabel>
#include <QTableWidget>
#include <QtTest>

#include "formulario_prueba.h"
#include "frm_add_subproductos.h"
#include "postgres_prueba.h"

using namespace Qt::Literals::StringLiterals;

// Linking the products that the till offers with a parent: the links written are the ones the
// till reads, row by row, on each engine, and a save that fails keeps the old ones.
class TestSubproductos : public QObject {
  Q_OBJECT
 private slots:
  void idaYVuelta_data();
  void idaYVuelta();
  void desdeElFormularioUnFalloConservaLosAnterioresYCerrarNoEscribe();
};

namespace {

QStringList Catalogo() {
  QStringList filas = {
      u"insert into seccion (codigo, nombre, borrar, menu, orden) values ('F1', 'Cafés', 0, 0, 1)"_s,
      u"insert into subproductos (CodProductoPadre, CodProductoHijo) values ('1', '5')"_s,
      u"insert into subproductos (CodProductoPadre, CodProductoHijo) values ('9', '1')"_s};
  for (int i = 1; i <= 5; ++i) {
    filas.append(Producto(QString::number(i), u"P%1"_s.arg(i),
                          {{u"seccion"_s, u"'F1'"_s}, {u"orden"_s, QString::number(i)}}));
  }
  // A code that the insert, with its codes unquoted, cannot take.
  filas.append(Producto(u"6x"_s, u"P6"_s, {{u"seccion"_s, u"'F1'"_s}, {u"orden"_s, u"6"_s}}));
  return filas;
}

void Tocar(QWidget* dialogo, const QString& panel, int boton) {
  auto* b =
      dialogo->findChild<QWidget*>(panel)->findChild<QAbstractButton*>(u"boton_%1"_s.arg(boton));
  QTest::mouseClick(b, Qt::LeftButton);
}

QStringList Grid(QWidget* dialogo) {
  auto* grid = dialogo->findChild<QTableWidget*>(u"gridProd"_s);
  QStringList codigos;
  for (int fila = 0; fila < grid->rowCount(); ++fila)
    codigos.append(grid->item(fila, 1)->text());
  return codigos;
}

QStringList Enlaces(InstalacionPrueba& inst) {
  QStringList r;
  for (const QVariantList& fila :
       inst.filas(u"select CodProductoPadre, CodProductoHijo from subproductos order by 1, 2"_s))
    r.append(fila.at(0).toString() + u">"_s + fila.at(1).toString());
  return r;
}

}  // namespace

void TestSubproductos::idaYVuelta_data() {
  QTest::addColumn<bool>("postgres");
  QTest::newRow("sqlite, quitar con Supr") << false;
  QTest::newRow("postgresql, quitar con el botón") << true;
}

void TestSubproductos::idaYVuelta() {
  QFETCH(bool, postgres);
  PostgresPrueba pg;
  InstalacionPrueba inst;
  if (postgres)
    QVERIFY2(inst.usarPostgres(pg, u"subproductos"_s), qPrintable(pg.error()));
  inst.ejecutar(Catalogo());
  TablasPanel tablas;
  QDialog* d = AbrirSubproductos(inst.entorno(), tablas, nullptr);

  Tocar(d, u"PanelPrimeros"_s, 1);
  QCOMPARE(Grid(d), QStringList{u"5"_s});
  for (const int boton : {2, 3, 4, 3})
    Tocar(d, u"PanelPrimeros"_s, boton);
  QCOMPARE(Grid(d), (QStringList{u"5"_s, u"2"_s, u"3"_s, u"4"_s}));
  auto* grid = d->findChild<QTableWidget*>(u"gridProd"_s);
  grid->setCurrentCell(0, 0);
  if (postgres)
    QTest::mouseClick(d->findChild<QAbstractButton*>(u"cmdQuitar"_s), Qt::LeftButton);
  else
    QTest::keyClick(grid, Qt::Key_Delete);
  QCOMPARE(Grid(d), (QStringList{u"2"_s, u"3"_s, u"4"_s}));

  QTest::mouseClick(d->findChild<QAbstractButton*>(u"cmd_AceptarFin"_s), Qt::LeftButton);
  QCOMPARE(Enlaces(inst), (QStringList{u"1>2"_s, u"1>3"_s, u"1>4"_s, u"9>1"_s}));
  QCOMPARE(inst.dialogos().mensajes(),
           QStringList{u"Ha terminado de incluir subproductos al producto P1"_s});
  QCOMPARE(inst.dialogos().llamadas().last().titulo, u"Añadir Sub-Productos"_s);
  QVERIFY(!inst.log().contains("SubProductos  "));

  // Touching the parent's picture starts over: the next product touched is the new parent.
  QTest::mouseClick(d->findChild<QLabel*>(u"imgDiseño"_s), Qt::LeftButton);
  Tocar(d, u"PanelPrimeros"_s, 5);
  QCOMPARE(d->findChild<QLabel*>(u"lblDiseño"_s)->text(), u"P5"_s);
  QCOMPARE(Grid(d), QStringList{});
  delete d;
}

void TestSubproductos::desdeElFormularioUnFalloConservaLosAnterioresYCerrarNoEscribe() {
  FormularioPrueba f(Catalogo());
  QVERIFY(f.mostrar());
  QTest::mouseClick(f.control<QAbstractButton>(u"cmd_ProdElaborado"_s), Qt::LeftButton);
  QTest::mouseClick(f.control<QAbstractButton>(u"Command4"_s), Qt::LeftButton);
  auto* d = f.forma().findChild<FrmAddSubProductos*>();
  QVERIFY(d && d->isVisible() && d->isModal());
  QCOMPARE(d->findChild<QLabel*>(u"lblnomFamilia"_s)->text(), u"Cafés"_s);
  for (const int boton : {1, 2, 6})
    Tocar(d, u"PanelPrimeros"_s, boton);
  QTest::mouseClick(d->findChild<QAbstractButton*>(u"cmd_AceptarFin"_s), Qt::LeftButton);
  QCOMPARE(Enlaces(f.inst()), (QStringList{u"1>5"_s, u"9>1"_s}));
  QVERIFY(f.dialogos().mensajes().isEmpty());
  QVERIFY(f.inst().log().contains("SubProductos  2, Descripcion: "));
  QTest::mouseClick(d->findChild<QAbstractButton*>(u"cmd_CancelarFin"_s), Qt::LeftButton);
  QTRY_VERIFY(!f.forma().findChild<FrmAddSubProductos*>());
  QCOMPARE(Enlaces(f.inst()), (QStringList{u"1>5"_s, u"9>1"_s}));
}

PRODUCTOS_TEST_MAIN(TestSubproductos)
#include "test_subproductos.moc"
