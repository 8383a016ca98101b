#include <QtTest>

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "color_vb.h"
#include "colorear.h"
#include "formulario_prueba.h"
#include "importes.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QColor kFoco = ColorDesdeValor(kColorFocoPrueba);
const QColor kCampo = ColorDesdeValor(kColorCampoPrueba);

// A form showing one simple product in change mode, or one elaborated product.
FormularioPrueba* Modificando(int tipo = 1) {
  auto* f = new FormularioPrueba(
      {u"insert into proveedores (codigo, nombre, borrar) values ('P1', 'Sur', 0)"_s,
       Producto(u"1"_s, u"Caña"_s), Stock(u"1"_s, u"5"_s, u"1"_s), Producto(u"2"_s, u"Tortilla"_s),
       u"insert into productoElaborado_producto values ('2', '1', 3)"_s,
       Stock(u"2"_s, u"0"_s, u"0"_s)});
  if (!f->mostrar())
    return f;
  QTest::mouseClick(
      f->control<QPushButton>(tipo == 2 ? u"cmd_ProdElaborado"_s : u"cmd_ProdGenerico"_s),
      Qt::LeftButton);
  QTest::mouseClick(
      f->control<QPushButton>(tipo == 2 ? u"cmd_ModificarProdEla"_s : u"cmd_modificar"_s),
      Qt::LeftButton);
  return f;
}

void Separador(const QString& separador) {
  QLocale::setDefault(separador == u","_s ? QLocale(QLocale::Spanish, QLocale::Spain)
                                          : QLocale(QLocale::English, QLocale::UnitedStates));
}

}  // namespace

class TestFormularioImportes : public QObject {
  Q_OBJECT
 private slots:
  void init() { Separador(u","_s); }
  void reglaDecimalConTeclasReales_data();
  void reglaDecimalConTeclasReales();
  void elFocoPintaElCampoYLoHaceActual();
  void elCosteMarcaElIvaYElIvaElPrecio();
  void elMargenSinCosteAvisaYDejaPasarLaTecla();
  void elMargenDaElPrecioYElPrecioElMargen();
  void elPrecioTecleadoDaElMargen();
  void stockMinimoSoloCifras();
  void cantidadDeUnComponente();
  void elElaboradoMuestraSusCamposPasoAPaso();
};

void TestFormularioImportes::reglaDecimalConTeclasReales_data() {
  QTest::addColumn<QString>("separador");
  QTest::addColumn<int>("decimales");
  QTest::addColumn<QString>("campo");
  QTest::addColumn<QString>("inicio");
  QTest::addColumn<bool>("alPrincipio");  // the caret before the text instead of after it
  QTest::addColumn<QString>("teclas");
  QTest::addColumn<QString>("texto");
  QTest::newRow("con coma, el punto da coma")
      << u","_s << 2 << u"txt_coste"_s << u""_s << false << u"1.5"_s << u"1,5"_s;
  QTest::newRow("con punto, la coma da punto")
      << u"."_s << 2 << u"txt_precio"_s << u""_s << false << u"1,5"_s << u"1.5"_s;
  QTest::newRow("decimales completos")
      << u","_s << 2 << u"txt_iva"_s << u"3,25"_s << false << u"7"_s << u"3,25"_s;
  QTest::newRow("completos, ni delante")
      << u"."_s << 2 << u"txt_coste"_s << u"3.25"_s << true << u"9"_s << u"3.25"_s;
  QTest::newRow("sin decimales, sin separador")
      << u","_s << 0 << u"txt_coste"_s << u""_s << false << u"1,5.2"_s << u"152"_s;
  QTest::newRow("sin decimales, con punto")
      << u"."_s << 0 << u"txt_precio"_s << u""_s << false << u"1.5,2"_s << u"152"_s;
  QTest::newRow("el separador no empieza")
      << u"."_s << 2 << u"txt_precio"_s << u""_s << false << u".5"_s << u"5"_s;
  QTest::newRow("ni signos, ni blancos, ni letras")
      << u","_s << 2 << u"txt_iva"_s << u""_s << false << u"-1 a+2"_s << u"12"_s;
}

void TestFormularioImportes::reglaDecimalConTeclasReales() {
  QFETCH(QString, separador);
  QFETCH(int, decimales);
  QFETCH(QString, campo);
  QFETCH(QString, inicio);
  QFETCH(bool, alPrincipio);
  QFETCH(QString, teclas);
  QFETCH(QString, texto);
  std::unique_ptr<FormularioPrueba> f(Modificando());
  Separador(separador);
  f->entorno().sesion.numDecimales = static_cast<qint16>(decimales);
  QLineEdit* c = TocarCampo(*f, campo);
  QVERIFY(c);
  c->setText(inicio);
  if (alPrincipio) {
    c->home(false);
  } else {
    c->end(false);
  }
  QTest::keyClicks(c, teclas);
  QCOMPARE(c->text(), texto);
  QTest::keyClick(c, Qt::Key_Backspace);
  QCOMPARE(c->text(), texto.chopped(alPrincipio ? 0 : 1));
}

void TestFormularioImportes::elFocoPintaElCampoYLoHaceActual() {
  std::unique_ptr<FormularioPrueba> f(Modificando());
  // Change mode gives the name the focus; a touch in a field that has it only moves the caret.
  TocarCampo(*f, u"txt_descripcion"_s);
  QLineEdit* nombre = TocarCampo(*f, u"txt_nombre"_s);
  QTRY_COMPARE(f->forma().importes().campoActual(), nombre);
  QCOMPARE(ColorFondo(nombre), kFoco);
  QCOMPARE(nombre->selectedText(), u"Caña"_s);
  // The whole text is replaced by the next key.
  QTest::keyClicks(nombre, u"Agua"_s);
  QCOMPARE(nombre->text(), u"Agua"_s);

  QLineEdit* coste = TocarCampo(*f, u"txt_coste"_s);
  QTRY_COMPARE(f->forma().importes().campoActual(), coste);
  QCOMPARE(ColorFondo(coste), kFoco);
  QCOMPARE(ColorFondo(nombre), kCampo);
  QTest::keyClicks(coste, u"4"_s);
  QCOMPARE(coste->text(), u"4"_s);
  // A rejected key still clears a whole selection: the key was meant to replace it.
  coste->selectAll();
  QTest::keyClicks(coste, u"a"_s);
  QCOMPARE(coste->text(), QString());
}

void TestFormularioImportes::elCosteMarcaElIvaYElIvaElPrecio() {
  std::unique_ptr<FormularioPrueba> f(Modificando());
  auto* iva = f->control<QLineEdit>(u"txt_iva"_s);
  auto* precio = f->control<QLineEdit>(u"txt_precio"_s);
  QCOMPARE(ColorFondo(iva), kCampo);
  QTest::keyClicks(TocarCampo(*f, u"txt_coste"_s), u"5"_s);
  QCOMPARE(ColorFondo(iva), kFoco);
  QCOMPARE(ColorFondo(precio), kCampo);
  QTest::keyClicks(TocarCampo(*f, u"txt_iva"_s), u"2"_s);
  QCOMPARE(ColorFondo(precio), kFoco);
}

void TestFormularioImportes::elMargenSinCosteAvisaYDejaPasarLaTecla() {
  std::unique_ptr<FormularioPrueba> f(Modificando());
  f->control<QLineEdit>(u"txt_coste"_s)->clear();
  QLineEdit* margen = TocarCampo(*f, u"txt_margen"_s);
  f->dialogos().olvidar();
  QTest::keyClicks(margen, u"7x"_s);
  const QString aviso = u"Debe Indicar Antes una Cantidad para el coste y para el iva"_s;
  QCOMPARE(f->dialogos().mensajes(), (QStringList{aviso, aviso}));
  QCOMPARE(f->dialogos().llamadas().first().titulo, QString());
  QCOMPARE(f->dialogos().llamadas().first().icono, ServicioDialogos::Icono::Informacion);
  QCOMPARE(margen->text(), u"7x"_s);
}

void TestFormularioImportes::elMargenDaElPrecioYElPrecioElMargen() {
  std::unique_ptr<FormularioPrueba> f(Modificando());
  QTest::keyClicks(TocarCampo(*f, u"txt_coste"_s), u"10"_s);
  QTest::keyClicks(TocarCampo(*f, u"txt_iva"_s), u"10"_s);
  QLineEdit* margen = TocarCampo(*f, u"txt_margen"_s);
  margen->clear();
  QTest::keyClicks(margen, u"5"_s);
  QTest::keyClick(margen, Qt::Key_Return);
  QCOMPARE(f->control<QLineEdit>(u"txt_precio"_s)->text(), u"16,50"_s);
  // The price's change works the margin out again, tax on the margin included.
  QCOMPARE(margen->text(), u"5,50"_s);

  QTest::keyClicks(TocarCampo(*f, u"txt_coste"_s), u"1000"_s);
  margen->setText(u"122,5"_s);
  QTest::keyClick(margen, Qt::Key_Enter);
  QCOMPARE(f->control<QLineEdit>(u"txt_precio"_s)->text(), u"1.234,75"_s);
  QVERIFY(f->dialogos().mensajes().isEmpty());

  // With the point as separator.
  Separador(u"."_s);
  margen->setText(u"5"_s);
  f->control<QLineEdit>(u"txt_coste"_s)->setText(u"10"_s);
  QTest::keyClick(margen, Qt::Key_Return);
  QCOMPARE(f->control<QLineEdit>(u"txt_precio"_s)->text(), u"16.50"_s);
  QCOMPARE(margen->text(), u"5.50"_s);
}

void TestFormularioImportes::elPrecioTecleadoDaElMargen() {
  std::unique_ptr<FormularioPrueba> f(Modificando());
  f->control<QLineEdit>(u"txt_coste"_s)->setText(u"100"_s);
  f->control<QLineEdit>(u"txt_iva"_s)->setText(u"10"_s);
  auto* margen = f->control<QLineEdit>(u"txt_margen"_s);
  QTest::keyClicks(TocarCampo(*f, u"txt_precio"_s), u"121"_s);
  QCOMPARE(margen->text(), u"11,00"_s);

  // With no cost the cost becomes 0 and the margin is left alone.
  f->control<QLineEdit>(u"txt_coste"_s)->clear();
  QTest::keyClicks(TocarCampo(*f, u"txt_precio"_s), u"5"_s);
  QCOMPARE(f->control<QLineEdit>(u"txt_coste"_s)->text(), u"0"_s);
  QCOMPARE(margen->text(), u"11,00"_s);

  // A new product's price brings what follows it.
  Pulsar(*f, u"cmd_cancelar"_s);
  Pulsar(*f, u"cmd_nuevo"_s);
  QVERIFY(f->control<QWidget>(u"frOcultarGen"_s)->isVisible());
  QVERIFY(!f->control<QWidget>(u"ch_Mostrar"_s)->isVisible());
  f->control<QLineEdit>(u"txt_precio"_s)->setText(u"3"_s);
  QVERIFY(!f->control<QWidget>(u"frOcultarGen"_s)->isVisible());
  for (const QString& visible :
       {u"ch_Mostrar"_s, u"lblPreparado"_s, u"optCocina"_s, u"optBarra"_s}) {
    QVERIFY2(f->control<QWidget>(visible)->isVisible(), qPrintable(visible));
  }
}

void TestFormularioImportes::stockMinimoSoloCifras() {
  std::unique_ptr<FormularioPrueba> f(Modificando());
  QLineEdit* minimo = TocarCampo(*f, u"txt_stock_minimo"_s);
  QCOMPARE(minimo->selectedText(), u"1"_s);
  QTest::keyClicks(minimo, u"2,5a."_s);
  QCOMPARE(minimo->text(), u"25"_s);
}

void TestFormularioImportes::cantidadDeUnComponente() {
  std::unique_ptr<FormularioPrueba> f(Modificando());
  QList<double> aceptadas;
  int descartadas = 0;
  f->forma().importes().aceptarCantidad = [&](double c) { aceptadas.append(c); };
  f->forma().importes().descartarCantidad = [&] { ++descartadas; };
  auto* cantidad = f->control<QLineEdit>(u"txt_Cantidad"_s);
  cantidad->setText(u"0"_s);
  QTest::keyClick(cantidad, Qt::Key_Return);
  cantidad->clear();
  QTest::keyClick(cantidad, Qt::Key_Return);
  QVERIFY(aceptadas.isEmpty());
  QTest::keyClicks(cantidad, u"2.5"_s);
  QCOMPARE(cantidad->text(), u"2,5"_s);
  QTest::keyClick(cantidad, Qt::Key_Return);
  QCOMPARE(aceptadas, QList<double>{2.5});
  QCOMPARE(cantidad->text(), QString());
  // No clearing of a whole selection: a rejected key leaves the quantity as it was.
  cantidad->setText(u"12"_s);
  cantidad->selectAll();
  QTest::keyClicks(cantidad, u"x"_s);
  QCOMPARE(cantidad->text(), u"12"_s);
  QTest::keyClick(cantidad, Qt::Key_Escape);
  QCOMPARE(descartadas, 1);
}

void TestFormularioImportes::elElaboradoMuestraSusCamposPasoAPaso() {
  std::unique_ptr<FormularioPrueba> f(Modificando(2));
  auto visible = [&](const QString& n) { return f->control<QWidget>(n)->isVisible(); };
  QVERIFY(visible(u"txt_ImpuestoElaborado"_s) && visible(u"txt_PrecioElaborado"_s));
  QLineEdit* coste = TocarCampo(*f, u"txt_costeElaborado"_s);
  QTest::keyClick(coste, Qt::Key_Backspace);
  QCOMPARE(coste->text(), QString());
  QVERIFY(!visible(u"txt_ImpuestoElaborado"_s));
  QVERIFY(!visible(u"lbl_ImpuestoElaborado"_s));
  QTest::keyClicks(coste, u"2"_s);
  QVERIFY(visible(u"txt_ImpuestoElaborado"_s));
  QVERIFY(visible(u"lbl_ImpuestoElaborado"_s));
  QLineEdit* iva = TocarCampo(*f, u"txt_ImpuestoElaborado"_s);
  QTest::keyClick(iva, Qt::Key_Backspace);
  QVERIFY(!visible(u"txt_PrecioElaborado"_s));
  QVERIFY(!visible(u"lbl_PrecioElaborado"_s));
  QTest::keyClicks(iva, u"4"_s);
  QVERIFY(visible(u"txt_PrecioElaborado"_s));
}

PRODUCTOS_TEST_MAIN(TestFormularioImportes)
#include "test_formulario_importes.moc"
