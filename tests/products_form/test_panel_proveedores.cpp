#include <QtTest>

#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>

#include "formulario_prueba.h"
#include "proveedores_producto.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QStringList kProveedores = {
    u"insert into proveedores (codigo, nombre, borrar) values ('P1', 'Distribuciones Sur', 0)"_s,
    u"insert into proveedores (codigo, nombre, borrar) values ('P2', 'Bodegas Norte', 0)"_s,
    // Deleted, yet still offered by the panel, as it always was.
    u"insert into proveedores (codigo, nombre, borrar) values ('P3', 'Frutas Ana', -1)"_s,
};

// Product 1 buys from P2 (its main supplier) and P1; product 2 from P1.
QStringList Catalogo() {
  QStringList filas = kProveedores;
  filas << Producto(u"1"_s, u"Caña"_s, {{u"proveedor"_s, u"'P2'"_s}})
        << Stock(u"1"_s, u"5"_s, u"1"_s)
        << Producto(u"2"_s, u"Tinto"_s, {{u"proveedor"_s, u"'P1'"_s}})
        << Stock(u"2"_s, u"3"_s, u"1"_s) << u"insert into productoproveedor values ('1', 'P1', 0)"_s
        << u"insert into productoproveedor values ('1', 'P2', 2.5)"_s
        << u"insert into productoproveedor values ('2', 'P1', 1.25)"_s;
  return filas;
}

const QString kEnlaces =
    u"select producto, proveedor, coste from productoproveedor order by producto, proveedor"_s;

QStringList Lineas(const QListWidget* lista) {
  QStringList lineas;
  for (int i = 0; i < lista->count(); ++i)
    lineas.append(lista->item(i)->text());
  return lineas;
}

// A touch on the line that shows the supplier's name.
void Tocar(QListWidget* lista, const QString& nombre) {
  for (int i = 0; i < lista->count(); ++i) {
    if (NombreDeLineaProveedor(lista->item(i)->text()) == nombre) {
      const QRect linea = lista->visualItemRect(lista->item(i));
      QVERIFY2(lista->viewport()->rect().contains(linea), qPrintable(nombre));
      QTest::mouseClick(lista->viewport(), Qt::LeftButton, {}, linea.center());
      return;
    }
  }
  QFAIL(qPrintable(u"No está en la lista: "_s + nombre));
}

// What the manager's finger meets at the centre of a control: the control itself (or one of its
// own children), not something lying over it.
bool AlFrente(QWidget* forma, QWidget* control) {
  const QPoint centro = control->mapTo(forma, control->rect().center());
  QWidget* tocado = forma->childAt(centro);
  return tocado && (tocado == control || control->isAncestorOf(tocado));
}

void Capturar(QWidget* forma, const QString& nombre) {
  // Set PRODUCTOS_CAPTURAS_PRUEBA to a folder to look at the panel.
  const QString carpeta = qEnvironmentVariable("PRODUCTOS_CAPTURAS_PRUEBA");
  if (carpeta.isEmpty())
    return;
  QDir().mkpath(carpeta);
  QVERIFY(forma->grab().save(QDir(carpeta).filePath(nombre + u".png"_s)));
}

}  // namespace

class TestPanelProveedores : public QObject {
  Q_OBJECT
 private slots:
  void init() { QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain)); }
  void lasListasMuestranLosDelProductoYSeMuevenAlTocar();
  void cancelarNoEscribeNadaYVuelveALoGuardado();
  void unProductoNuevoEnlazaAlAceptarYSinGuardarNoDejaEnlaces();
};

void TestPanelProveedores::lasListasMuestranLosDelProductoYSeMuevenAlTocar() {
  FormularioPrueba f(Catalogo());
  QVERIFY(f.mostrar());
  Pulsar(f, u"cmd_ProdGenerico"_s);
  QCOMPARE(f.control<QLineEdit>(u"txt_nombre"_s)->text(), u"Caña"_s);
  // Showing a product fills the lists with its suppliers already: the save reads them.
  auto* libres = f.control<QListWidget>(u"lb_Proveedores"_s);
  auto* asignados = f.control<QListWidget>(u"lb_ProveedoresAsignados"_s);
  QCOMPARE(Lineas(asignados), (QStringList{LineaProveedor(u"Bodegas Norte"_s, u"P2"_s),
                                           LineaProveedor(u"Distribuciones Sur"_s, u"P1"_s)}));

  Pulsar(f, u"cmd_modificar"_s);
  auto* panel = f.control<QGroupBox>(u"frProveedores"_s);
  Pulsar(f, u"cmd_Proveedor"_s);
  QVERIFY(panel->isVisible());
  QVERIFY(AlFrente(&f.forma(), libres));
  QVERIFY(AlFrente(&f.forma(), asignados));
  QVERIFY(AlFrente(&f.forma(), f.control<QWidget>(u"cmd_AceptarProveedor"_s)));
  QCOMPARE(f.control<QLabel>(u"lblProducto"_s)->text(), u"Caña"_s);
  // The screen waits under the panel: its own "Aceptar" cannot be taken for the panel's.
  QVERIFY(!f.control<QWidget>(u"cmd_aceptar"_s)->isEnabled());
  // The main supplier first and once; the deleted supplier is offered too.
  QCOMPARE(Lineas(libres), QStringList{LineaProveedor(u"Frutas Ana"_s, u"P3"_s)});
  QCOMPARE(Lineas(asignados), (QStringList{LineaProveedor(u"Bodegas Norte"_s, u"P2"_s),
                                           LineaProveedor(u"Distribuciones Sur"_s, u"P1"_s)}));
  // Every line is a fingertip high, and its code stays out of sight.
  for (QListWidget* lista : {libres, asignados}) {
    QVERIFY(lista->visualItemRect(lista->item(0)).height() >= 44);
    QCOMPARE(lista->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
  }
  Capturar(&f.forma(), u"panel_proveedores"_s);

  Tocar(libres, u"Frutas Ana"_s);
  Tocar(asignados, u"Distribuciones Sur"_s);
  QCOMPARE(Lineas(libres), QStringList{LineaProveedor(u"Distribuciones Sur"_s, u"P1"_s)});
  QCOMPARE(Lineas(asignados), (QStringList{LineaProveedor(u"Bodegas Norte"_s, u"P2"_s),
                                           LineaProveedor(u"Frutas Ana"_s, u"P3"_s)}));
  // Nothing is written before the panel is accepted.
  QCOMPARE(f.inst().filas(kEnlaces).size(), 3);

  Pulsar(f, u"cmd_AceptarProveedor"_s);
  QVERIFY(!panel->isVisible());
  QVERIFY(f.control<QWidget>(u"cmd_aceptar"_s)->isEnabled());
  // The button names the supplier listed last.
  QCOMPARE(f.control<QPushButton>(u"cmd_Proveedor"_s)->text(), u"Frutas Ana"_s);
  // The product's links are replaced, each at cost 0; the other product's stay.
  QCOMPARE(f.inst().filas(kEnlaces),
           (QList<QVariantList>{
               {u"1"_s, u"P2"_s, 0.0}, {u"1"_s, u"P3"_s, 0.0}, {u"2"_s, u"P1"_s, 1.25}}));
  // The main supplier of the product is the save's to change, not the panel's.
  QCOMPARE(f.inst().filas(u"select proveedor from productos where codigo = '1'"_s),
           (QList<QVariantList>{{u"P2"_s}}));
  // The unit comes next, with the cover moved below it.
  auto* medida = f.control<QComboBox>(u"cbo_Medida"_s);
  QVERIFY(medida->isVisible());
  QVERIFY(f.control<QWidget>(u"lbl_Medida"_s)->isVisible());
  auto* cubierta = f.control<QGroupBox>(u"frOcultarGen"_s);
  QCOMPARE(cubierta->y(), medida->geometry().bottom() + 1);
  QCOMPARE(cubierta->geometry().bottom() + 1, f.control<QWidget>(u"frlogo1"_s)->y());
  QVERIFY(f.inst().erroresMostrados().isEmpty());
}

void TestPanelProveedores::cancelarNoEscribeNadaYVuelveALoGuardado() {
  FormularioPrueba f(Catalogo());
  QVERIFY(f.mostrar());
  Pulsar(f, u"cmd_ProdGenerico"_s);
  Pulsar(f, u"cmd_modificar"_s);
  const QList<QVariantList> antes = f.inst().filas(kEnlaces);
  Pulsar(f, u"cmd_Proveedor"_s);
  auto* libres = f.control<QListWidget>(u"lb_Proveedores"_s);
  auto* asignados = f.control<QListWidget>(u"lb_ProveedoresAsignados"_s);
  Tocar(asignados, u"Bodegas Norte"_s);
  Tocar(libres, u"Frutas Ana"_s);
  Tocar(libres, u"Bodegas Norte"_s);
  Tocar(asignados, u"Distribuciones Sur"_s);
  QCOMPARE(Lineas(asignados), (QStringList{LineaProveedor(u"Frutas Ana"_s, u"P3"_s),
                                           LineaProveedor(u"Bodegas Norte"_s, u"P2"_s)}));
  const QString caption = f.control<QPushButton>(u"cmd_Proveedor"_s)->text();

  Pulsar(f, u"cmd_CancelarProveedor"_s);
  QVERIFY(!f.control<QWidget>(u"frProveedores"_s)->isVisible());
  QVERIFY(f.control<QWidget>(u"cmd_aceptar"_s)->isEnabled());
  QCOMPARE(f.inst().filas(kEnlaces), antes);
  QCOMPARE(f.control<QPushButton>(u"cmd_Proveedor"_s)->text(), caption);
  // The moved lines stay in the lists until the panel opens again, which rebuilds them from
  // the database.
  QCOMPARE(Lineas(asignados), (QStringList{LineaProveedor(u"Frutas Ana"_s, u"P3"_s),
                                           LineaProveedor(u"Bodegas Norte"_s, u"P2"_s)}));
  Pulsar(f, u"cmd_Proveedor"_s);
  QCOMPARE(Lineas(asignados), (QStringList{LineaProveedor(u"Bodegas Norte"_s, u"P2"_s),
                                           LineaProveedor(u"Distribuciones Sur"_s, u"P1"_s)}));
  QCOMPARE(Lineas(libres), QStringList{LineaProveedor(u"Frutas Ana"_s, u"P3"_s)});
  QVERIFY(f.inst().erroresMostrados().isEmpty());
}

void TestPanelProveedores::unProductoNuevoEnlazaAlAceptarYSinGuardarNoDejaEnlaces() {
  FormularioPrueba f(Catalogo());
  QVERIFY(f.mostrar());
  Pulsar(f, u"cmd_ProdGenerico"_s);
  Pulsar(f, u"cmd_nuevo"_s);
  QCOMPARE(f.forma().estado().codigoActual, 3);
  QTest::keyClicks(f.control<QLineEdit>(u"txt_nombre"_s), u"Vermut"_s);
  auto* medida = f.control<QComboBox>(u"cbo_Medida"_s);
  QVERIFY(!medida->isVisible());

  Pulsar(f, u"cmd_Proveedor"_s);
  QCOMPARE(f.control<QLabel>(u"lblProducto"_s)->text(), u"Vermut"_s);
  auto* libres = f.control<QListWidget>(u"lb_Proveedores"_s);
  auto* asignados = f.control<QListWidget>(u"lb_ProveedoresAsignados"_s);
  QCOMPARE(libres->count(), 3);
  QCOMPARE(asignados->count(), 0);
  // Accepting with nobody assigned keeps the caption and leaves no link.
  Pulsar(f, u"cmd_AceptarProveedor"_s);
  QCOMPARE(f.control<QPushButton>(u"cmd_Proveedor"_s)->text(), u"Seleccione sus proveedores"_s);
  QCOMPARE(f.inst().filas(kEnlaces).size(), 3);

  Pulsar(f, u"cmd_Proveedor"_s);
  Tocar(libres, u"Bodegas Norte"_s);
  Tocar(libres, u"Distribuciones Sur"_s);
  Pulsar(f, u"cmd_AceptarProveedor"_s);
  QCOMPARE(f.control<QPushButton>(u"cmd_Proveedor"_s)->text(), u"Distribuciones Sur"_s);
  // Written at once, although the product is not saved yet.
  QCOMPARE(f.inst().filas(kEnlaces), (QList<QVariantList>{{u"1"_s, u"P1"_s, 0.0},
                                                          {u"1"_s, u"P2"_s, 2.5},
                                                          {u"2"_s, u"P1"_s, 1.25},
                                                          {u"3"_s, u"P1"_s, 0.0},
                                                          {u"3"_s, u"P2"_s, 0.0}}));
  QVERIFY(medida->isVisible());
  auto* cubierta = f.control<QGroupBox>(u"frOcultarGen"_s);
  QVERIFY(cubierta->isVisible());
  QCOMPARE(cubierta->y(), medida->geometry().bottom() + 1);
  QVERIFY(AlFrente(&f.forma(), medida));

  // Abandoned: the links of the product that was never saved go, the others stay.
  Pulsar(f, u"cmd_cancelar"_s);
  QCOMPARE(f.inst().filas(kEnlaces),
           (QList<QVariantList>{
               {u"1"_s, u"P1"_s, 0.0}, {u"1"_s, u"P2"_s, 2.5}, {u"2"_s, u"P1"_s, 1.25}}));
  QCOMPARE(f.forma().estado().codigoActual, 1);
  QVERIFY(f.inst().erroresMostrados().isEmpty());
}

PRODUCTOS_TEST_MAIN(TestPanelProveedores)
#include "test_panel_proveedores.moc"
