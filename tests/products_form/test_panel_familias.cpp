#include <QtTest>

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "formulario_prueba.h"
#include "panel_obj_nuevo.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QString Familia(const QString& codigo, const QString& nombre, int orden) {
  return u"insert into seccion (codigo, nombre, borrar, menu, orden, mostrarencaja) values "
         "('%1', '%2', 0, 0, %3, 0)"_s.arg(codigo, nombre)
             .arg(orden);
}

// Touches a family's button on a panel, paging forward with the panel's arrow until it shows.
void TocarFamilia(FormularioPrueba& f, const QString& panel, const QString& familia) {
  auto* p = f.control<PanelObjNuevo>(panel);
  QVERIFY2(p && p->isVisible(), qPrintable(panel));
  for (int pagina = 0; pagina < 10; ++pagina) {
    const QList<QAbstractButton*> botones = p->findChildren<QAbstractButton*>();
    for (QAbstractButton* b : botones) {
      if (b->objectName().startsWith(u"boton_"_s) && b->isVisible() &&
          b->accessibleName() == familia) {
        QTest::mouseClick(b, Qt::LeftButton);
        return;
      }
    }
    auto* siguiente = p->findChild<QAbstractButton*>(u"flecha_der"_s);
    QVERIFY2(siguiente && siguiente->isEnabled(), qPrintable(familia));
    QTest::mouseClick(siguiente, Qt::LeftButton);
  }
  QFAIL(qPrintable(familia));
}

QString Caption(FormularioPrueba& f, const QString& etiqueta) {
  return f.control<QLabel>(etiqueta)->text();
}

QString Codigo(FormularioPrueba& f, const QString& etiqueta) {
  return f.control<QLabel>(etiqueta)->property("codigo").toString();
}

QStringList Filas() {
  return {Familia(u"F1"_s, u"Cervezas"_s, 1),
          Familia(u"F2"_s, u"Vinos"_s, 2),
          Familia(u"F3"_s, u"Tapas"_s, 3),
          Producto(u"1"_s, u"Caña"_s, {{u"seccion"_s, u"'F1'"_s}}),
          Stock(u"1"_s, u"5"_s, u"1"_s),
          Producto(u"2"_s, u"Tomate"_s),
          Producto(u"3"_s, u"Paella"_s, {{u"seccion"_s, u"'F3'"_s}}),
          Stock(u"3"_s, u"0"_s, u"0"_s),
          u"insert into productoElaborado_producto (productopadre, productohijo, cantidad) "
          "values ('3', '2', 4)"_s};
}

}  // namespace

class TestPanelFamilias : public QObject {
  Q_OBJECT
 private slots:
  void init() { QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain)); }
  void unaFamiliaTocadaEnModoCambiosPasaALaEtiqueta();
  void enNavegacionTocarUnaFamiliaNoCambiaNada();
  void elPanelDeLosElaborados();
  void seisFamiliasPorPaginaDelTamanoDeUnDedo();
};

void TestPanelFamilias::unaFamiliaTocadaEnModoCambiosPasaALaEtiqueta() {
  FormularioPrueba f(Filas());
  QVERIFY(f.mostrar());
  Pulsar(f, u"cmd_ProdGenerico"_s);
  QCOMPARE(f.control<QLineEdit>(u"txt_nombre"_s)->text(), u"Caña"_s);
  QCOMPARE(Caption(f, u"lblnomFamilia"_s), u"Cervezas"_s);
  Pulsar(f, u"cmd_modificar"_s);
  TocarFamilia(f, u"PanelFamilias"_s, u"Vinos"_s);
  QCOMPARE(Caption(f, u"lblnomFamilia"_s), u"Vinos"_s);
  QCOMPARE(Codigo(f, u"lblnomFamilia"_s), u"F2"_s);
  TocarFamilia(f, u"PanelFamilias"_s, u"Tapas"_s);
  QCOMPARE(Caption(f, u"lblnomFamilia"_s), u"Tapas"_s);
  QCOMPARE(Codigo(f, u"lblnomFamilia"_s), u"F3"_s);
  // The other screen's label is left alone.
  QCOMPARE(Codigo(f, u"lblNomFamilia_elab"_s), u"-1"_s);

  // Cancelling shows the product's own family again.
  Pulsar(f, u"cmd_cancelar"_s);
  QCOMPARE(Caption(f, u"lblnomFamilia"_s), u"Cervezas"_s);
  QCOMPARE(Codigo(f, u"lblnomFamilia"_s), u"F1"_s);
}

void TestPanelFamilias::enNavegacionTocarUnaFamiliaNoCambiaNada() {
  FormularioPrueba f(Filas());
  QVERIFY(f.mostrar());
  Pulsar(f, u"cmd_ProdGenerico"_s);
  TocarFamilia(f, u"PanelFamilias"_s, u"Vinos"_s);
  // The panel took the touch; the form did not.
  QCOMPARE(f.control<PanelObjNuevo>(u"PanelFamilias"_s)->codigo_seleccionado(), u"F2"_s);
  QCOMPARE(Caption(f, u"lblnomFamilia"_s), u"Cervezas"_s);
  QCOMPARE(Codigo(f, u"lblnomFamilia"_s), u"F1"_s);

  // Back in navigation after a change, touches choose nothing again.
  Pulsar(f, u"cmd_modificar"_s);
  Pulsar(f, u"cmd_cancelar"_s);
  TocarFamilia(f, u"PanelFamilias"_s, u"Tapas"_s);
  QCOMPARE(Caption(f, u"lblnomFamilia"_s), u"Cervezas"_s);
  QCOMPARE(Codigo(f, u"lblnomFamilia"_s), u"F1"_s);
}

void TestPanelFamilias::elPanelDeLosElaborados() {
  FormularioPrueba f(Filas());
  QVERIFY(f.mostrar());
  Pulsar(f, u"cmd_ProdElaborado"_s);
  QCOMPARE(Caption(f, u"lblNomFamilia_elab"_s), u"Tapas"_s);
  TocarFamilia(f, u"PanelFamilias_Elab"_s, u"Cervezas"_s);
  QCOMPARE(Caption(f, u"lblNomFamilia_elab"_s), u"Tapas"_s);
  QCOMPARE(Codigo(f, u"lblNomFamilia_elab"_s), u"F3"_s);

  Pulsar(f, u"cmd_ModificarProdEla"_s);
  TocarFamilia(f, u"PanelFamilias_Elab"_s, u"Cervezas"_s);
  QCOMPARE(Caption(f, u"lblNomFamilia_elab"_s), u"Cervezas"_s);
  QCOMPARE(Codigo(f, u"lblNomFamilia_elab"_s), u"F1"_s);
  QCOMPARE(Codigo(f, u"lblnomFamilia"_s), u"-1"_s);
}

void TestPanelFamilias::seisFamiliasPorPaginaDelTamanoDeUnDedo() {
  QStringList filas = {
      u"insert into proveedores (codigo, nombre, borrar) values ('P1', "
      "'Distribuciones Sur', 0)"_s};
  for (int i = 1; i <= 8; ++i)
    filas.append(Familia(u"F%1"_s.arg(i), u"Familia %1"_s.arg(i), i));
  FormularioPrueba f(filas);
  QVERIFY(f.mostrar());
  for (const QString& nombre : {u"PanelFamilias"_s, u"PanelFamilias_Elab"_s}) {
    auto* panel = f.control<PanelObjNuevo>(nombre);
    QCOMPARE(panel->botonesPorPagina(), 6);
    QCOMPARE(panel->paginas(), 2);
    auto* boton = panel->findChild<QAbstractButton*>(u"boton_6"_s);
    QVERIFY(boton);
    QVERIFY2(boton->width() >= 88 && boton->height() >= 60, qPrintable(nombre));
  }
  Pulsar(f, u"cmd_ProdGenerico"_s);
  Pulsar(f, u"cmd_nuevo"_s);
  TocarFamilia(f, u"PanelFamilias"_s, u"Familia 8"_s);
  QCOMPARE(Codigo(f, u"lblnomFamilia"_s), u"F8"_s);
}

PRODUCTOS_TEST_MAIN(TestPanelFamilias)
#include "test_panel_familias.moc"
