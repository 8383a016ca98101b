#include <QtTest>

#include "reglas_teclas.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// The text of a field after typing keys one by one through the decimal rule.
QString Teclear(const QString& inicio, const QString& teclas, int decimales, const QString& sep) {
  QString texto = inicio;
  for (QChar c : teclas) {
    const int r = TeclaDecimal(c.unicode(), texto, decimales, sep);
    if (r == teclas::kRetroceso) {
      texto.chop(1);
    } else if (r != 0) {
      texto += QChar(r);
    }
  }
  return texto;
}

}  // namespace

class TestFormularioReglas : public QObject {
  Q_OBJECT
 private slots:
  void reglaDecimal_data();
  void reglaDecimal();
  void soloDigitosDejaPasarEnterYRetroceso();
  void precioYMargen();
  void tecladoEnPantallaSegunElNombreDelCampo_data();
  void tecladoEnPantallaSegunElNombreDelCampo();
};

void TestFormularioReglas::reglaDecimal_data() {
  QTest::addColumn<QString>("separador");
  QTest::addColumn<int>("decimales");
  QTest::addColumn<QString>("inicio");
  QTest::addColumn<QString>("teclas");
  QTest::addColumn<QString>("texto");
  QTest::newRow("punto da coma") << u","_s << 2 << u""_s << u"1.5"_s << u"1,5"_s;
  QTest::newRow("coma da punto") << u"."_s << 2 << u""_s << u"1,5"_s << u"1.5"_s;
  QTest::newRow("dos decimales y no más") << u","_s << 2 << u""_s << u"3,2567"_s << u"3,25"_s;
  QTest::newRow("completo: ni una cifra") << u"."_s << 2 << u"3.25"_s << u"9"_s << u"3.25"_s;
  QTest::newRow("sin decimales no hay separador") << u","_s << 0 << u""_s << u"1,5.2"_s << u"152"_s;
  QTest::newRow("no empieza por el separador") << u","_s << 2 << u""_s << u",5"_s << u"5"_s;
  QTest::newRow("un solo separador") << u"."_s << 2 << u""_s << u"1..5"_s << u"1.5"_s;
  QTest::newRow("ni signos ni letras") << u","_s << 2 << u""_s << u"-1 a+2"_s << u"12"_s;
}

void TestFormularioReglas::reglaDecimal() {
  QFETCH(QString, separador);
  QFETCH(int, decimales);
  QFETCH(QString, inicio);
  QFETCH(QString, teclas);
  QFETCH(QString, texto);
  QCOMPARE(Teclear(inicio, teclas, decimales, separador), texto);
  // Backspace and Enter are never typed as characters: Backspace passes, Enter is swallowed.
  QCOMPARE(TeclaDecimal(teclas::kRetroceso, u"3,25"_s, 2, u","_s), teclas::kRetroceso);
  QCOMPARE(TeclaDecimal(teclas::kEnter, u"3"_s, 2, separador), 0);
}

void TestFormularioReglas::soloDigitosDejaPasarEnterYRetroceso() {
  for (int tecla : {int('0'), int('9'), teclas::kEnter, teclas::kRetroceso}) {
    QCOMPARE(TeclaSoloDigitos(tecla), tecla);
  }
  for (int tecla : {int(','), int('.'), int('a'), int('-'), int(' '), teclas::kEscape, 22}) {
    QCOMPARE(TeclaSoloDigitos(tecla), 0);
  }
}

void TestFormularioReglas::precioYMargen() {
  QCOMPARE(PrecioDesdeMargen(10, 5, 10), 16.5);
  // The margin taken back from that price keeps the tax on the margin.
  QCOMPARE(MargenDesdePrecio(16.5, 10, 10), 5.5);
  QCOMPARE(MargenDesdePrecio(121, 100, 10), 11.0);
  // With no tax the two agree.
  QCOMPARE(MargenDesdePrecio(PrecioDesdeMargen(3, 2, 0), 3, 0), 2.0);
}

void TestFormularioReglas::tecladoEnPantallaSegunElNombreDelCampo_data() {
  QTest::addColumn<QString>("campo");
  QTest::addColumn<QString>("texto");
  QTest::addColumn<int>("tecla");
  QTest::addColumn<QString>("anadido");
  QTest::newRow("cifra en el coste") << u"txt_coste"_s << u"3"_s << int('7') << u"7"_s;
  QTest::newRow("punto en el coste: coma") << u"txt_coste"_s << u"3"_s << int('.') << u","_s;
  QTest::newRow("letra en el precio: carácter nulo")
      << u"txt_precio"_s << u"3"_s << int('A') << QString(QChar(0));
  QTest::newRow("decimales completos: carácter nulo")
      << u"txt_Cantidad"_s << u"3,25"_s << int('1') << QString(QChar(0));
  QTest::newRow("impuesto del elaborado: cualquier tecla")
      << u"txt_ImpuestoElaborado"_s << u"1"_s << int('A') << u"A"_s;
  QTest::newRow("su nombre en minúsculas sí filtra")
      << u"txt_impuestoelaborado"_s << u"1"_s << int('A') << QString(QChar(0));
  QTest::newRow("stock mínimo: cifra") << u"txt_stock_minimo"_s << u"1"_s << int('4') << u"4"_s;
  QTest::newRow("stock mínimo: ni separador")
      << u"txt_stock_minimo"_s << u"1"_s << int(',') << u""_s;
  QTest::newRow("nombre: tal cual") << u"txt_nombre"_s << u"CA"_s << 0xD1 << u"Ñ"_s;
}

void TestFormularioReglas::tecladoEnPantallaSegunElNombreDelCampo() {
  QFETCH(QString, campo);
  QFETCH(QString, texto);
  QFETCH(int, tecla);
  QFETCH(QString, anadido);
  QCOMPARE(CaracterDeTeclaEnPantalla(campo, texto, tecla, 2, u","_s), anadido);
}

QTEST_GUILESS_MAIN(TestFormularioReglas)
#include "test_formulario_reglas.moc"
