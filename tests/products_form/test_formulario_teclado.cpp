#include <QtTest>

#include <QLineEdit>
#include <QPushButton>

#include "color_vb.h"
#include "colorear.h"
#include "formulario_prueba.h"
#include "importes.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// A form on its simple products, with one product.
FormularioPrueba* EnProductos() {
  auto* f = new FormularioPrueba({Producto(u"1"_s, u"Caña"_s), Stock(u"1"_s, u"5"_s, u"1"_s)});
  if (f->mostrar()) {
    QTest::mouseClick(f->control<QPushButton>(u"cmd_ProdGenerico"_s), Qt::LeftButton);
  }
  return f;
}

void Modificar(FormularioPrueba& f) {
  QTest::mouseClick(f.control<QPushButton>(u"cmd_modificar"_s), Qt::LeftButton);
}

// Presses keys of the on-screen keyboard: one character each, "\b" Backspace, "\r" Enter.
void Teclear(FormularioPrueba& f, const QString& teclas) {
  for (QChar c : teclas) {
    const int codigo = c == u'\b' ? 8 : c == u'\r' ? 13 : c.unicode();
    auto* tecla = f.control<QPushButton>(u"bt_letra_%1"_s.arg(codigo));
    QVERIFY2(tecla, qPrintable(u"bt_letra_%1"_s.arg(codigo)));
    QTest::mouseClick(tecla, Qt::LeftButton);
  }
}

}  // namespace

class TestFormularioTeclado : public QObject {
  Q_OBJECT
 private slots:
  void init() { QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain)); }
  void sinCampoActualNoPasaNada();
  void escribeAlFinalYBorraElUltimo();
  void unCampoBloqueadoSeVaciaPeroNoSeEscribe();
  void losImportesPasanPorElFiltro();
  void elImpuestoDelElaboradoAceptaLetras();
  void elStockMinimoSoloCifras();
  void laDescripcionMarcaLosProveedores();
  void intro();
};

void TestFormularioTeclado::sinCampoActualNoPasaNada() {
  FormularioPrueba f;
  QVERIFY(f.mostrar());
  QVERIFY(!f.forma().importes().campoActual());
  Teclear(f, u"A1\b\r"_s);
  QVERIFY(f.inst().erroresMostrados().isEmpty());
}

void TestFormularioTeclado::escribeAlFinalYBorraElUltimo() {
  std::unique_ptr<FormularioPrueba> f(EnProductos());
  Modificar(*f);
  QLineEdit* descripcion = TocarCampo(*f, u"txt_descripcion"_s);
  QTRY_COMPARE(f->forma().importes().campoActual(), descripcion);
  // The keys do not take the focus away from the field.
  Teclear(*f, u"BAR"_s);
  QCOMPARE(QApplication::focusWidget(), descripcion);
  QCOMPARE(descripcion->text(), u"BAR"_s);
  descripcion->home(false);
  Teclear(*f, u"\u00D1 1"_s);
  QCOMPARE(descripcion->text(), u"BAR\u00D1 1"_s);
  descripcion->home(false);
  Teclear(*f, u"\b\b"_s);
  QCOMPARE(descripcion->text(), u"BAR\u00D1"_s);
  // A whole selection is replaced.
  descripcion->selectAll();
  Teclear(*f, u"X"_s);
  QCOMPARE(descripcion->text(), u"X"_s);
  Teclear(*f, u"\b\b"_s);
  QCOMPARE(descripcion->text(), QString());
}

void TestFormularioTeclado::unCampoBloqueadoSeVaciaPeroNoSeEscribe() {
  std::unique_ptr<FormularioPrueba> f(EnProductos());
  QLineEdit* nombre = TocarCampo(*f, u"txt_nombre"_s);
  QVERIFY(nombre->isReadOnly());
  QCOMPARE(nombre->selectedText(), u"Caña"_s);
  // The keyboard clears a whole selection before it looks at the lock, as it always has.
  Teclear(*f, u"X"_s);
  QCOMPARE(nombre->text(), QString());
  nombre->setText(u"Caña"_s);
  nombre->end(false);
  Teclear(*f, u"X\b"_s);
  QCOMPARE(nombre->text(), u"Caña"_s);
}

void TestFormularioTeclado::losImportesPasanPorElFiltro() {
  std::unique_ptr<FormularioPrueba> f(EnProductos());
  Modificar(*f);
  QLineEdit* coste = TocarCampo(*f, u"txt_coste"_s);
  Teclear(*f, u"3,2"_s);
  QCOMPARE(coste->text(), u"3,2"_s);
  Teclear(*f, u"5"_s);
  QCOMPARE(coste->text(), u"3,25"_s);
  // A refused key still appends: the character of code 0.
  Teclear(*f, u"7"_s);
  QCOMPARE(coste->text(), u"3,25"_s + QChar(0));
  QLineEdit* precio = TocarCampo(*f, u"txt_precio"_s);
  Teclear(*f, u"A"_s);
  QCOMPARE(precio->text(), QString(QChar(0)));
}

void TestFormularioTeclado::elImpuestoDelElaboradoAceptaLetras() {
  auto* f = new FormularioPrueba({Producto(u"2"_s, u"Tortilla"_s),
                                  u"insert into productoElaborado_producto values ('2', '1', 3)"_s,
                                  Stock(u"2"_s, u"0"_s, u"0"_s)});
  std::unique_ptr<FormularioPrueba> borrar(f);
  QVERIFY(f->mostrar());
  QTest::mouseClick(f->control<QPushButton>(u"cmd_ProdElaborado"_s), Qt::LeftButton);
  QTest::mouseClick(f->control<QPushButton>(u"cmd_ModificarProdEla"_s), Qt::LeftButton);
  QLineEdit* iva = TocarCampo(*f, u"txt_ImpuestoElaborado"_s);
  Teclear(*f, u"1A"_s);
  QCOMPARE(iva->text(), u"1A"_s);
  QLineEdit* coste = TocarCampo(*f, u"txt_costeElaborado"_s);
  Teclear(*f, u"1A"_s);
  QCOMPARE(coste->text(), u"1"_s + QChar(0));
}

void TestFormularioTeclado::elStockMinimoSoloCifras() {
  std::unique_ptr<FormularioPrueba> f(EnProductos());
  Modificar(*f);
  QLineEdit* minimo = TocarCampo(*f, u"txt_stock_minimo"_s);
  Teclear(*f, u"2,A5"_s);
  QCOMPARE(minimo->text(), u"25"_s);
}

void TestFormularioTeclado::laDescripcionMarcaLosProveedores() {
  std::unique_ptr<FormularioPrueba> f(EnProductos());
  Modificar(*f);
  auto* proveedor = f->control<QPushButton>(u"cmd_Proveedor"_s);
  const QColor antes = ColorFondo(proveedor);
  QVERIFY(antes != ColorDesdeValor(kColorFocoPrueba));
  TocarCampo(*f, u"txt_nombre"_s);
  Teclear(*f, u"A"_s);
  QCOMPARE(ColorFondo(proveedor), antes);
  TocarCampo(*f, u"txt_descripcion"_s);
  Teclear(*f, u"A"_s);
  QCOMPARE(ColorFondo(proveedor), ColorDesdeValor(kColorFocoPrueba));
}

void TestFormularioTeclado::intro() {
  std::unique_ptr<FormularioPrueba> f(EnProductos());
  Modificar(*f);
  QList<double> aceptadas;
  f->forma().importes().aceptarCantidad = [&](double c) { aceptadas.append(c); };
  QLineEdit* nombre = TocarCampo(*f, u"txt_descripcion"_s);
  nombre->end(false);
  const QString antes = nombre->text();
  Teclear(*f, u"\r"_s);
  QCOMPARE(nombre->text(), antes);
  QVERIFY(aceptadas.isEmpty());

  // In the quantity of a component, Enter accepts a quantity above 0.
  auto* cantidad = f->control<QLineEdit>(u"txt_Cantidad"_s);
  MostrarMarco(f->control<QWidget>(u"fr_Cantidad"_s));
  cantidad->setText(u"0"_s);
  TocarCampo(*f, u"txt_Cantidad"_s);
  QTRY_COMPARE(f->forma().importes().campoActual(), cantidad);
  Teclear(*f, u"\r"_s);
  QVERIFY(aceptadas.isEmpty());
  Teclear(*f, u"\b3"_s);
  QCOMPARE(cantidad->text(), u"3"_s);
  Teclear(*f, u"\r"_s);
  QCOMPARE(aceptadas, QList<double>{3.0});
  QCOMPARE(cantidad->text(), QString());
}

PRODUCTOS_TEST_MAIN(TestFormularioTeclado)
#include "test_formulario_teclado.moc"
