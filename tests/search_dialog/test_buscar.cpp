#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QPushButton>
#include <QtTest>

#include "buscar.h"
#include "busqueda_productos.h"
#include "formulario_prueba.h"
#include "postgres_prueba.h"

using namespace Qt::Literals::StringLiterals;

// Finding a product among many: the query that the boxes make, the products it finds on each
// engine, and the dialog handing the chosen product to the products form.
class TestBuscar : public QObject {
  Q_OBJECT
 private slots:
  void initTestCase();
  void consulta_data();
  void consulta();
  void encuentra_data();
  void encuentra();
  void eligeMuestraYCerrarNoCambia();
  void unaComillaSeRegistraYNoListaNada();

 private:
  std::unique_ptr<PostgresPrueba> pg_;
  std::unique_ptr<InstalacionPrueba> sqlite_;
  std::unique_ptr<InstalacionPrueba> postgres_;
};

namespace {

QStringList Catalogo() {
  return {
      u"insert into proveedores (codigo, nombre, borrar) values ('P1', 'Bodegas Sur', 0)"_s,
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
      Producto(u"5"_s, u"Vino tinto"_s, {{u"proveedor"_s, u"'P1'"_s}, {u"seccion"_s, u"'F1'"_s}}),
  };
}

QStringList Codigos(const QStringList& lineas) {
  QStringList codigos;
  for (const QString& linea : lineas)
    codigos.append(linea.right(10).trimmed());
  codigos.sort();
  return codigos;
}

void Pulsar(QWidget* donde, const QString& nombre) {
  auto* boton = donde->findChild<QPushButton*>(nombre);
  QVERIFY2(boton, qPrintable(nombre));
  QTest::mouseClick(boton, Qt::LeftButton);
}

QPointer<Buscar> AbrirDesdeFormulario(FormularioPrueba& f) {
  Pulsar(&f.forma(), u"cmd_buscar"_s);
  return f.forma().findChild<Buscar*>();
}

}  // namespace

void TestBuscar::initTestCase() {
  sqlite_ = std::make_unique<InstalacionPrueba>();
  sqlite_->ejecutar(Catalogo());
  pg_ = std::make_unique<PostgresPrueba>();
  QVERIFY2(pg_->arrancado(), qPrintable(pg_->error()));
  postgres_ = std::make_unique<InstalacionPrueba>();
  QVERIFY2(postgres_->usarPostgres(*pg_, u"busqueda"_s), qPrintable(pg_->error()));
  postgres_->ejecutar(Catalogo());
}

void TestBuscar::consulta_data() {
  QTest::addColumn<QString>("modo");
  QTest::addColumn<CriteriosBusqueda>("criterios");
  QTest::addColumn<QString>("condicion");
  QTest::newRow("nada") << u"Pr"_s << CriteriosBusqueda{}
                        << u" and codigo not in (select productopadre from "
                           "productoelaborado_producto)"_s;
  QTest::newRow("nombre") << u"Pr"_s << CriteriosBusqueda{{}, {}, u"ca"_s, false}
                          << u" and Nombre like 'ca%' and codigo not in (select productopadre "
                             "from productoelaborado_producto)"_s;
  QTest::newRow("todo, elaborados")
      << u"PrEl"_s << CriteriosBusqueda{u"dis"_s, u"beb"_s, u"co"_s, true}
      << u" and Nombre like 'co%' and Proveedor in (select codigo from proveedores where nombre "
         "like 'dis%') and seccion in (select codigo from seccion where nombre like 'beb%') and "
         "seccion = '-1' and codigo in (select productopadre from productoelaborado_producto)"_s;
}

void TestBuscar::consulta() {
  QFETCH(QString, modo);
  QFETCH(CriteriosBusqueda, criterios);
  QFETCH(QString, condicion);
  QCOMPARE(ConsultaBuscarProducto(modo, criterios),
           u"Select * from Productos  where codigo <> null and borrar = 0"_s + condicion);
}

void TestBuscar::encuentra_data() {
  QTest::addColumn<bool>("postgres");
  QTest::addColumn<QString>("modo");
  QTest::addColumn<CriteriosBusqueda>("criterios");
  QTest::addColumn<QStringList>("codigos");
  for (const bool postgres : {false, true}) {
    const char* motor = postgres ? "postgresql" : "sqlite";
    const auto fila = [&](const char* caso) -> QTestData& {
      return QTest::addRow("%s, %s", motor, caso);
    };
    fila("todo") << postgres << u"Pr"_s << CriteriosBusqueda{}
                 << QStringList{u"1"_s, u"2"_s, u"5"_s};
    fila("nombre") << postgres << u"Pr"_s << CriteriosBusqueda{{}, {}, u"ca"_s, false}
                   << QStringList{u"1"_s, u"2"_s};
    fila("elaborados") << postgres << u"PrEl"_s << CriteriosBusqueda{{}, {}, u"CA"_s, false}
                       << QStringList{u"3"_s};
    fila("proveedor") << postgres << u"Pr"_s << CriteriosBusqueda{u"Caf"_s, {}, {}, false}
                      << QStringList{u"1"_s, u"2"_s};
    fila("familia y nombre") << postgres << u"Pr"_s
                             << CriteriosBusqueda{{}, u"beb"_s, u"vi"_s, false}
                             << QStringList{u"5"_s};
    fila("sin familia") << postgres << u"Pr"_s << CriteriosBusqueda{{}, {}, {}, true}
                        << QStringList{u"2"_s};
    fila("otro modo") << postgres << u"Cl"_s << CriteriosBusqueda{} << QStringList{};
  }
}

void TestBuscar::encuentra() {
  QFETCH(bool, postgres);
  QFETCH(QString, modo);
  QFETCH(CriteriosBusqueda, criterios);
  QFETCH(QStringList, codigos);
  InstalacionPrueba& inst = postgres ? *postgres_ : *sqlite_;
  QCOMPARE(Codigos(BuscarProducto(inst.entorno(), modo, criterios)), codigos);
  QVERIFY(inst.erroresMostrados().isEmpty());
}

void TestBuscar::eligeMuestraYCerrarNoCambia() {
  FormularioPrueba f(Catalogo());
  QVERIFY(f.mostrar());
  Pulsar(&f.forma(), u"cmd_ProdGenerico"_s);
  QPointer<Buscar> buscar = AbrirDesdeFormulario(f);
  QCOMPARE(f.control<QLineEdit>(u"txt_nombre"_s)->text(), u"Café con leche"_s);
  QVERIFY(buscar && buscar->isVisible() && buscar->isModal());
  // "C", "A", "X", Backspace and Enter, on the dialog's own keyboard, into the name box.
  for (const int tecla : {67, 65, 88, 8, 13})
    Pulsar(buscar, u"bt_letra_%1"_s.arg(tecla));
  QCOMPARE(buscar->findChild<QLineEdit*>(u"TxtBusProd_2"_s)->text(), u"CA"_s);
  Pulsar(buscar, u"BtnBusClie_0"_s);
  auto* lista = buscar->findChild<QListWidget*>(u"lst_resultado"_s);
  const QList<QListWidgetItem*> solo = lista->findItems(u"Café solo"_s, Qt::MatchStartsWith);
  QCOMPARE(lista->count(), 2);
  QCOMPARE(solo.size(), 1);
  QCOMPARE(solo.first()->text(), u"Café solo"_s + QString(130, u' ') + u"1"_s);

  QTest::mouseClick(lista->viewport(), Qt::LeftButton, {},
                    lista->visualItemRect(solo.first()).center());
  QTRY_VERIFY(!buscar || !buscar->isVisible());
  QCOMPARE(f.control<QLineEdit>(u"txt_nombre"_s)->text(), u"Café solo"_s);
  QCOMPARE(f.forma().estado().codigoActual, 1);

  // Closing hands "-1": the form keeps the product it shows.
  buscar = AbrirDesdeFormulario(f);
  QVERIFY(buscar);
  Pulsar(buscar, u"BtnBusClie_2"_s);
  QTRY_VERIFY(!buscar || !buscar->isVisible());
  QCOMPARE(f.control<QLineEdit>(u"txt_nombre"_s)->text(), u"Café solo"_s);
  QCOMPARE(f.forma().estado().codigoActual, 1);
  QVERIFY(f.inst().erroresMostrados().isEmpty());
}

void TestBuscar::unaComillaSeRegistraYNoListaNada() {
  FormularioPrueba f(Catalogo());
  QVERIFY(f.mostrar());
  Pulsar(&f.forma(), u"cmd_ProdGenerico"_s);
  QPointer<Buscar> buscar = AbrirDesdeFormulario(f);
  QVERIFY(buscar);
  QTest::keyClicks(buscar->findChild<QLineEdit*>(u"TxtBusProd_2"_s), u"O'Bri"_s);
  QTest::keyClick(buscar->findChild<QLineEdit*>(u"TxtBusProd_2"_s), Qt::Key_Return);
  QCOMPARE(buscar->findChild<QListWidget*>(u"lst_resultado"_s)->count(), 0);
  QCOMPARE(f.inst().erroresMostrados().size(), 1);
  QCOMPARE(f.inst().erroresMostrados().first().first, u"Buscar  1"_s);
  QVERIFY(f.inst().log().startsWith("Buscar  1, Descripcion: "));
  QVERIFY(buscar->isVisible());
}

PRODUCTOS_TEST_MAIN(TestBuscar)
#include "test_buscar.moc"
