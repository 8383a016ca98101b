#include <QtTest>
#include <QtWidgets>

#include "buscar.h"
#include "formulario_prueba.h"
#include "frm_add_subproductos.h"
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

// Clicks a dialog's button; with a panel, the panel's nth button.
void Clic(QWidget* dialogo, const QString& nombre, int boton = 0) {
  if (boton)
    dialogo = dialogo->findChild<QWidget*>(nombre);
  QTest::mouseClick(dialogo->findChild<QAbstractButton*>(boton ? u"boton_%1"_s.arg(boton) : nombre),
                    Qt::LeftButton);
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

// The search's query, results and dialog; sub-product links written on each engine.
class TestDialogos : public QObject {
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

PRODUCTOS_TEST_MAIN(TestDialogos)
#include "test_dialogos.moc"
