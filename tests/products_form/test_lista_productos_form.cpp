#include <QtTest>

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPushButton>

#include "formulario_prueba.h"

using namespace Qt::Literals::StringLiterals;

namespace {

bool ListaVisible(FormularioPrueba& f) {
  return f.control<QGroupBox>(u"frListaProductos"_s)->isVisible();
}

QStringList Lineas(FormularioPrueba& f) {
  const QAbstractItemModel* lista = f.control<QListView>(u"lstProductos"_s)->model();
  QStringList lineas;
  for (int i = 0; i < lista->rowCount(); ++i)
    lineas.append(lista->index(i, 0).data().toString());
  return lineas;
}

QString Linea(const QString& nombre, const QString& codigo) {
  return nombre + QString(120, u' ') + codigo;
}

void AvisoSinProductos(FormularioPrueba& f) {
  const QList<DialogosGuion::Llamada> avisos = f.dialogos().llamadasDe(u"mensaje"_s);
  QCOMPARE(avisos.size(), 1);
  QCOMPARE(avisos.first().texto, u"No hay productos dados de alta."_s);
  QCOMPARE(avisos.first().titulo, u"ATENCION"_s);
  QCOMPARE(avisos.first().icono, ServicioDialogos::Icono::Informacion);
}

}  // namespace

class TestListaProductosForm : public QObject {
  Q_OBJECT
 private slots:
  void init() { QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain)); }
  void laListaSeAbreYSeCierraConSuBoton();
  void cocinaYBarraRecarganSinCerrar();
  void sinProductosAvisaYNoSeAbre();
  void unDobleClicMuestraEseProducto();
};

void TestListaProductosForm::laListaSeAbreYSeCierraConSuBoton() {
  FormularioPrueba f({Producto(u"7"_s, u"Vino"_s), Producto(u"12"_s, u"Agua"_s),
                      Producto(u"3"_s, u"Borrado"_s, {{u"borrar"_s, u"-1"_s}}),
                      Producto(u"4"_s, u"Caña"_s, {{u"tipoprod"_s, u"0"_s}})});
  QVERIFY(f.mostrar());
  Pulsar(f, u"cmd_ProdGenerico"_s);
  QVERIFY(!ListaVisible(f));
  Pulsar(f, u"cmd_ListaProd"_s);
  QVERIFY(ListaVisible(f));
  // Every live product by name, its code pushed out of sight.
  QCOMPARE(Lineas(f), (QStringList{Linea(u"Agua"_s, u"12"_s), Linea(u"Caña"_s, u"4"_s),
                                   Linea(u"Vino"_s, u"7"_s)}));
  // Each line is a fingertip high.
  auto* lista = f.control<QListView>(u"lstProductos"_s);
  QVERIFY(lista->visualRect(lista->model()->index(0, 0)).height() >= 44);
  Pulsar(f, u"cmd_ListaProd"_s);
  QVERIFY(!ListaVisible(f));
  Pulsar(f, u"cmd_ListaProd"_s);
  QVERIFY(ListaVisible(f));
  QCOMPARE(Lineas(f).size(), 3);
  QVERIFY(f.dialogos().mensajes().isEmpty());

  // Leaving the screen takes the list away.
  Pulsar(f, u"cmd_salir"_s);
  QVERIFY(f.control<QGroupBox>(u"frListaProductos"_s)->isHidden());
}

void TestListaProductosForm::cocinaYBarraRecarganSinCerrar() {
  FormularioPrueba f({Producto(u"1"_s, u"Vino"_s),
                      Producto(u"2"_s, u"Aceite"_s, {{u"tipoprod"_s, u"0"_s}}),
                      Producto(u"3"_s, u"Caña"_s, {{u"tipoprod"_s, u"2"_s}})});
  QVERIFY(f.mostrar());
  Pulsar(f, u"cmd_ProdGenerico"_s);
  Pulsar(f, u"cmd_ListaProd"_s);
  Pulsar(f, u"cmdCocina"_s);
  QVERIFY(ListaVisible(f));
  QCOMPARE(Lineas(f), QStringList{Linea(u"Aceite"_s, u"2"_s)});
  // Pressed again it reloads, with what the table holds now.
  f.inst().ejecutar({Producto(u"4"_s, u"Ajo"_s, {{u"tipoprod"_s, u"0"_s}})});
  Pulsar(f, u"cmdCocina"_s);
  QVERIFY(ListaVisible(f));
  QCOMPARE(Lineas(f), (QStringList{Linea(u"Aceite"_s, u"2"_s), Linea(u"Ajo"_s, u"4"_s)}));
  Pulsar(f, u"cmdBarra"_s);
  QVERIFY(ListaVisible(f));
  QCOMPARE(Lineas(f), (QStringList{Linea(u"Caña"_s, u"3"_s), Linea(u"Vino"_s, u"1"_s)}));
  QVERIFY(f.dialogos().mensajes().isEmpty());

  // With none of a kind the notice shows and the list stays as it was.
  f.inst().ejecutar({u"update productos set borrar = -1 where tipoprod = 0"_s});
  Pulsar(f, u"cmdCocina"_s);
  AvisoSinProductos(f);
  QVERIFY(ListaVisible(f));
  QCOMPARE(Lineas(f), (QStringList{Linea(u"Caña"_s, u"3"_s), Linea(u"Vino"_s, u"1"_s)}));
}

void TestListaProductosForm::sinProductosAvisaYNoSeAbre() {
  FormularioPrueba f({Producto(u"3"_s, u"Borrado"_s, {{u"borrar"_s, u"-1"_s}})});
  QVERIFY(f.mostrar());
  Pulsar(f, u"cmd_ProdGenerico"_s);
  Pulsar(f, u"cmd_ListaProd"_s);
  AvisoSinProductos(f);
  QVERIFY(!ListaVisible(f));
  QVERIFY(f.inst().erroresMostrados().isEmpty());
}

void TestListaProductosForm::unDobleClicMuestraEseProducto() {
  FormularioPrueba f(
      {Producto(u"1"_s, u"Agua"_s), Stock(u"1"_s, u"3"_s, u"1"_s),
       Producto(u"25"_s, u"Vino"_s, {{u"precio"_s, u"3.5"_s}, {u"hechoen"_s, u"2"_s}}),
       Stock(u"25"_s, u"17"_s, u"2"_s)});
  QVERIFY(f.mostrar());
  Pulsar(f, u"cmd_ProdGenerico"_s);
  QCOMPARE(f.control<QLineEdit>(u"txt_nombre"_s)->text(), u"Agua"_s);
  Pulsar(f, u"cmd_ListaProd"_s);
  auto* lista = f.control<QListView>(u"lstProductos"_s);
  const QRect fila = lista->visualRect(lista->model()->index(1, 0));
  QTest::mouseClick(lista->viewport(), Qt::LeftButton, {}, fila.center());
  QTest::mouseDClick(lista->viewport(), Qt::LeftButton, {}, fila.center());
  QTRY_VERIFY(!ListaVisible(f));
  QCOMPARE(f.control<QLineEdit>(u"txt_nombre"_s)->text(), u"Vino"_s);
  QCOMPARE(f.control<QLineEdit>(u"txt_precio"_s)->text(), u"3,5"_s);
  QCOMPARE(f.control<QLineEdit>(u"txt_stock_actual"_s)->text(), u"17"_s);
  QCOMPARE(f.forma().estado().codigoActual, 25);
  QVERIFY(f.inst().erroresMostrados().isEmpty());
}

PRODUCTOS_TEST_MAIN(TestListaProductosForm)
#include "test_lista_productos_form.moc"
