#include <QLocale>
#include <QtTest>

#include "color_vb.h"
#include "config_regional.h"
#include "filtro_decimal.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QLocale kEspana(QLocale::Spanish, QLocale::Spain);
const QLocale kEEUU(QLocale::English, QLocale::UnitedStates);

// Types a run of keys through the filter into a text, as the amount fields do.
QString Teclear(const QString& teclas, int decimales, const QString& separador,
                QString texto = {}) {
  for (QChar c : teclas) {
    const int r = FiltrarTeclaDecimal(c.unicode(), texto, decimales, separador);
    if (r == 8) {
      texto.chop(1);
    } else if (r != 0) {
      texto += QChar(r);
    }
  }
  return texto;
}

}  // namespace

class TestRegional : public QObject {
  Q_OBJECT

 private slots:
  void cleanup() { QLocale::setDefault(QLocale::c()); }

  void filtraLasTeclasDeImportes_data() {
    QTest::addColumn<int>("tecla");
    QTest::addColumn<QString>("texto");
    QTest::addColumn<int>("decimales");
    QTest::addColumn<QString>("separador");
    QTest::addColumn<int>("resultado");
    for (const QString& sep : {u","_s, u"."_s}) {
      const int s = sep.at(0).unicode();
      const QByteArray p = sep == u","_s ? "coma: " : "punto: ";
      QTest::newRow((p + "Enter se traga").constData()) << 13 << u"12"_s << 2 << sep << 0;
      QTest::newRow((p + "Retroceso pasa").constData())
          << 8 << u"3"_s + sep + u"25"_s << 2 << sep << 8;
      QTest::newRow((p + "digito").constData()) << int('7') << u"12"_s << 2 << sep << int('7');
      QTest::newRow((p + "digito en vacio").constData())
          << int('0') << QString() << 0 << sep << int('0');
      QTest::newRow((p + "separador tras digito").constData()) << s << u"12"_s << 2 << sep << s;
      QTest::newRow((p + "separador primero").constData()) << s << QString() << 2 << sep << 0;
      QTest::newRow((p + "separador sin decimales").constData()) << s << u"12"_s << 0 << sep << 0;
      QTest::newRow((p + "segundo separador").constData()) << s << u"1"_s + sep << 2 << sep << 0;
      QTest::newRow((p + "un decimal").constData())
          << int('2') << u"3"_s + sep << 2 << sep << int('2');
      QTest::newRow((p + "segundo decimal").constData())
          << int('5') << u"3"_s + sep + u"2"_s << 2 << sep << int('5');
      QTest::newRow((p + "decimales completos").constData())
          << int('1') << u"3"_s + sep + u"25"_s << 2 << sep << 0;
      QTest::newRow((p + "letra").constData()) << int('a') << u"12"_s << 2 << sep << 0;
      QTest::newRow((p + "menos").constData()) << int('-') << QString() << 2 << sep << 0;
      QTest::newRow((p + "mas").constData()) << int('+') << u"1"_s << 2 << sep << 0;
      QTest::newRow((p + "blanco").constData()) << int(' ') << u"1"_s << 2 << sep << 0;
      QTest::newRow((p + "copiar").constData()) << 3 << u"1"_s << 2 << sep << 0;
      QTest::newRow((p + "pegar").constData()) << 22 << u"1"_s << 2 << sep << 0;
      QTest::newRow((p + "letra con separador").constData())
          << int('x') << u"1"_s + sep << 2 << sep << 0;
    }
    // "." types the comma where the comma is the separator; "," is not a "." elsewhere.
    QTest::newRow("coma: el punto es coma") << 46 << u"1"_s << 2 << u","_s << 44;
    QTest::newRow("coma: punto primero") << 46 << QString() << 2 << u","_s << 0;
    QTest::newRow("coma: punto con decimales completos") << 46 << u"1,25"_s << 2 << u","_s << 0;
    QTest::newRow("punto: la coma no pasa") << 44 << u"1"_s << 2 << u"."_s << 0;
    // With no decimals allowed a separator already typed closes the amount at once.
    QTest::newRow("coma: sin decimales y con coma") << int('4') << u"1,"_s << 0 << u","_s << 0;
  }

  void filtraLasTeclasDeImportes() {
    QFETCH(int, tecla);
    QFETCH(QString, texto);
    QFETCH(int, decimales);
    QFETCH(QString, separador);
    QFETCH(int, resultado);
    QCOMPARE(FiltrarTeclaDecimal(tecla, texto, decimales, separador), resultado);
  }

  void tecleaImportesEnterosYSoloConSusDecimales() {
    QCOMPARE(Teclear(u"1.5"_s, 2, u","_s), u"1,5"_s);
    QCOMPARE(Teclear(u"1,5"_s, 2, u"."_s), u"15"_s);
    QCOMPARE(Teclear(u"1.5"_s, 2, u"."_s), u"1.5"_s);
    QCOMPARE(Teclear(u"3,257"_s, 2, u","_s), u"3,25"_s);
    QCOMPARE(Teclear(u",12,3"_s, 2, u","_s), u"12,3"_s);
    QCOMPARE(Teclear(u"12.5"_s, 0, u","_s), u"125"_s);
    // Backspace still works on a finished amount, and then a digit is taken again.
    QCOMPARE(Teclear(u"\b9"_s, 2, u","_s, u"3,25"_s), u"3,29"_s);
  }

  void elSeparadorDecimalEsElDelLocale() {
    QLocale::setDefault(kEspana);
    QCOMPARE(SeparadorDecimal(), u","_s);
    QCOMPARE(LeerLocale(15), u"."_s);
    QCOMPARE(LeerLocale(29), u"/"_s);
    QCOMPARE(LeerLocale(12), u";"_s);
    QCOMPARE(LeerLocale(999), QString());
    QLocale::setDefault(kEEUU);
    QCOMPARE(SeparadorDecimal(), u"."_s);
    QCOMPARE(LeerLocale(15), u","_s);
    QCOMPARE(LeerLocale(81), u"-"_s);
  }

  void formateaImportesConDosDecimalesYMiles() {
    QLocale::setDefault(kEspana);
    QCOMPARE(FormatearImporte(1234.5), u"1.234,50"_s);
    QCOMPARE(FormatearImporte(16.5), u"16,50"_s);
    QCOMPARE(FormatearImporte(0.5), u"0,50"_s);
    QCOMPARE(FormatearImporte(-0.5), u"-0,50"_s);
    QCOMPARE(FormatearImporte(-0.001), u"0,00"_s);
    QCOMPARE(FormatearImporte(1234567.891), u"1.234.567,89"_s);
    QCOMPARE(FormatearImporte(999.999), u"1.000,00"_s);
    QCOMPARE(FormatearImporte(0), u"0,00"_s);
    QLocale::setDefault(kEEUU);
    QCOMPARE(FormatearImporte(1234.5), u"1,234.50"_s);
    QCOMPARE(FormatearImporte(-12345.5), u"-12,345.50"_s);
  }

  void convierteImportesDelLocaleOConPunto() {
    QLocale::setDefault(kEspana);
    bool ok = false;
    QCOMPARE(ConvertirImporte(u"16,5"_s, &ok), 16.5);
    QVERIFY(ok);
    QCOMPARE(ConvertirImporte(u"1.234,50"_s, &ok), 1234.5);
    QVERIFY(ok);
    QCOMPARE(ConvertirImporte(u" 1234.5 "_s, &ok), 1234.5);
    QVERIFY(ok);
    QCOMPARE(ConvertirImporte(u"-3,25"_s, &ok), -3.25);
    QVERIFY(ok);
    QCOMPARE(ConvertirImporte(u"12,"_s, &ok), 12.0);
    QVERIFY(ok);
    for (const QString& malo : {QString(), u"abc"_s, u"1,2,3"_s, u"1e5"_s, u"1 000"_s}) {
      QCOMPARE(ConvertirImporte(malo, &ok), 0.0);
      QVERIFY2(!ok, qPrintable(malo));
    }
    QLocale::setDefault(kEEUU);
    QCOMPARE(ConvertirImporte(u"1,234.5"_s, &ok), 1234.5);
    QVERIFY(ok);
    QCOMPARE(ConvertirImporte(u"1,5"_s, &ok), 0.0);
    QVERIFY(!ok);
  }

  void losColoresSeGuardanConElRojoAbajo() {
    QCOMPARE(ColorDesdeValor(255), QColor(255, 0, 0));
    QCOMPARE(ColorDesdeValor(65280), QColor(0, 255, 0));
    QCOMPARE(ColorDesdeValor(16711680), QColor(0, 0, 255));
    QCOMPARE(ColorDesdeValor(16777215), QColor(255, 255, 255));
    QCOMPARE(ValorDeColor(QColor(0x12, 0x34, 0x56)), qint64(0x563412));
    QCOMPARE(ColorDesdeTexto(u" 8421504 "_s), QColor(128, 128, 128));
    QVERIFY(!ColorDesdeTexto(QString()).isValid());
    QVERIFY(!ColorDesdeTexto(u"rojo"_s).isValid());
    // &H8000000F, the button face, however the 32 bits arrive.
    QVERIFY(ColorDesdeValor(0x8000000FLL).isValid());
    QCOMPARE(ColorDesdeValor(-2147483633LL), ColorDesdeValor(0x8000000FLL));
  }
};

QTEST_MAIN(TestRegional)
#include "test_regional.moc"
