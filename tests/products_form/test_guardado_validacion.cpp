#include <QtTest>

#include "dialogos_guion.h"
#include "validacion_producto.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// A simple product that passes every check.
CamposObligatorios Completo() {
  CamposObligatorios c;
  c.nombre = u"Caña"_s;
  c.coste = u"0,6"_s;
  c.iva = u"10"_s;
  c.stockMinimo = u"1"_s;
  c.precio = u"1,76"_s;
  c.unidadMedida = u"Unidades"_s;
  c.proveedoresAsignados = 1;
  c.optBarra = true;
  c.codigoBarras = u"8410000000017"_s;
  c.existeCodBarras = [](const QString&) { return false; };
  return c;
}

}  // namespace

class TestGuardadoValidacion : public QObject {
  Q_OBJECT
 private slots:
  void initTestCase() { QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain)); }
  void esNumerico_data();
  void esNumerico();
  void elValorSigueAlSeparadorDelUsuario();
  void lasComprobacionesVanEnSuOrden_data();
  void lasComprobacionesVanEnSuOrden();
  void unProductoDeCocinaTambienNecesitaPrecio();
  void elCodigoDeBarrasSeConsultaConSuTexto();
  void unFalloMuestraDosMensajes();
  void sinFallosNoSeMuestraNada();
};

void TestGuardadoValidacion::esNumerico_data() {
  QTest::addColumn<QString>("texto");
  QTest::addColumn<QString>("decimal");
  QTest::addColumn<bool>("numerico");
  QTest::addColumn<double>("valor");
  QTest::newRow("coma en España") << u"12,5"_s << u","_s << true << 12.5;
  QTest::newRow("vacío") << u""_s << u","_s << false << 0.0;
  QTest::newRow("blancos") << u"   "_s << u","_s << false << 0.0;
  QTest::newRow("blancos alrededor") << u" 3 "_s << u","_s << true << 3.0;
  QTest::newRow("tabulador") << u"\t7"_s << u","_s << true << 7.0;
  QTest::newRow("exponente") << u"1e3"_s << u","_s << true << 1000.0;
  QTest::newRow("exponente D") << u"2D2"_s << u","_s << true << 200.0;
  QTest::newRow("exponente sin cifras") << u"1e"_s << u","_s << false << 0.0;
  QTest::newRow("signo") << u"-4,25"_s << u","_s << true << -4.25;
  QTest::newRow("solo signo") << u"-"_s << u","_s << false << 0.0;
  QTest::newRow("miles sueltos") << u"1.2.3"_s << u","_s << true << 123.0;
  QTest::newRow("punto en España son miles") << u"12.5"_s << u","_s << true << 125.0;
  QTest::newRow("miles tras la coma") << u"1,5.0"_s << u","_s << false << 0.0;
  QTest::newRow("miles al principio") << u".5"_s << u","_s << false << 0.0;
  QTest::newRow("coma sin cifras delante") << u",5"_s << u","_s << true << 0.5;
  QTest::newRow("coma al final") << u"5,"_s << u","_s << true << 5.0;
  QTest::newRow("dos comas") << u"1,2,3"_s << u","_s << false << 0.0;
  QTest::newRow("punto decimal") << u"12.5"_s << u"."_s << true << 12.5;
  QTest::newRow("coma de miles con punto decimal") << u"1,234.5"_s << u"."_s << true << 1234.5;
  QTest::newRow("hexadecimal") << u"&H1F"_s << u","_s << true << 31.0;
  QTest::newRow("octal") << u"&o17"_s << u","_s << true << 15.0;
  QTest::newRow("hexadecimal vacío") << u"&H"_s << u","_s << false << 0.0;
  QTest::newRow("letras") << u"abc"_s << u","_s << false << 0.0;
  QTest::newRow("cifras y letras") << u"12abc"_s << u","_s << false << 0.0;
  QTest::newRow("blanco dentro") << u"1 2"_s << u","_s << false << 0.0;
  QTest::newRow("moneda") << u"3€"_s << u","_s << false << 0.0;
  QTest::newRow("desbordado") << u"1e999"_s << u","_s << false << 0.0;
  QTest::newRow("cifras árabes") << u"\u0663"_s << u","_s << false << 0.0;
}

void TestGuardadoValidacion::esNumerico() {
  QFETCH(QString, texto);
  QFETCH(QString, decimal);
  QFETCH(bool, numerico);
  QFETCH(double, valor);
  const QString miles = decimal == u","_s ? u"."_s : u","_s;
  QCOMPARE(EsNumerico(texto, decimal, miles), numerico);
  const std::optional<double> leido = ValorNumerico(texto, decimal, miles);
  QCOMPARE(leido.has_value(), numerico);
  if (numerico)
    QCOMPARE(*leido, valor);
}

void TestGuardadoValidacion::elValorSigueAlSeparadorDelUsuario() {
  QCOMPARE(ValorNumerico(u"12,5"_s), std::optional<double>(12.5));
  QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
  QCOMPARE(ValorNumerico(u"12.5"_s), std::optional<double>(12.5));
  QCOMPARE(ValorNumerico(u"12,5"_s), std::optional<double>(125));
  QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain));
}

void TestGuardadoValidacion::lasComprobacionesVanEnSuOrden_data() {
  QTest::addColumn<int>("numero");
  QTest::addColumn<QString>("mensaje");
  QTest::addColumn<QString>("campo");
  // Each row breaks its own field and every later one: the first broken check must win.
  QTest::newRow("1") << 1 << u"El nombre no puede estar vacio."_s << u"txt_nombre"_s;
  QTest::newRow("2") << 2 << u"El coste no puede estar vacio"_s << u"txt_coste"_s;
  QTest::newRow("3") << 3 << u"Ingrese el coste del producto"_s << u"txt_coste"_s;
  QTest::newRow("4") << 4 << u"Ingrese un valor del impuesto"_s << u"txt_iva"_s;
  QTest::newRow("5") << 5 << u"Ingrese un valor de impuesto valido"_s << u"txt_iva"_s;
  QTest::newRow("6 vacío") << 6 << u"Ingrese el stock minimo que puede ser 1"_s
                           << u"txt_stock_minimo"_s;
  QTest::newRow("6 no numérico") << 60 << u"Ingrese el stock minimo que puede ser 1."_s
                                 << u"txt_stock_minimo"_s;
  QTest::newRow("7") << 7 << u"Ingrese el precio"_s << u"txt_precio"_s;
  QTest::newRow("8") << 8 << u"Seleccione la unidad de medida"_s << u"cbo_Medida"_s;
  QTest::newRow("9") << 9 << u"Seleccione el proveedor"_s << u"cmd_Proveedor"_s;
  QTest::newRow("10") << 10 << u"Seleccione el lugar de servir o preparar el producto."_s
                      << u"optCocina"_s;
  QTest::newRow("11") << 11 << u"El codigo de barras ya existe."_s << u"txtCodBarras"_s;
}

void TestGuardadoValidacion::lasComprobacionesVanEnSuOrden() {
  QFETCH(int, numero);
  QFETCH(QString, mensaje);
  QFETCH(QString, campo);
  const int desde = numero == 60 ? 6 : numero;
  // Breaks one check each; applied from the last down to this one, so that every later check
  // fails too and a field shared by two checks ends broken for the earlier one.
  const QList<std::function<void(CamposObligatorios&)>> romper = {
      [](CamposObligatorios& c) { c.nombre.clear(); },
      [](CamposObligatorios& c) { c.coste.clear(); },
      [](CamposObligatorios& c) { c.coste = u"caro"_s; },
      [](CamposObligatorios& c) { c.iva.clear(); },
      [](CamposObligatorios& c) { c.iva = u"x"_s; },
      [numero](CamposObligatorios& c) { c.stockMinimo = numero == 60 ? u"uno"_s : QString(); },
      [](CamposObligatorios& c) { c.precio = u"gratis"_s; },
      [](CamposObligatorios& c) { c.unidadMedida.clear(); },
      [](CamposObligatorios& c) { c.proveedoresAsignados = 0; },
      [](CamposObligatorios& c) { c.optBarra = false; },
      [](CamposObligatorios& c) { c.existeCodBarras = [](const QString&) { return true; }; },
  };
  CamposObligatorios c = Completo();
  for (int i = 11; i >= desde; --i)
    romper.at(i - 1)(c);

  const std::optional<FalloValidacion> fallo = ComprobarCamposObligatorios(c);
  QVERIFY(fallo);
  QCOMPARE(fallo->numero, desde);
  QCOMPARE(fallo->mensaje, mensaje);
  QCOMPARE(fallo->campo, campo);
}

void TestGuardadoValidacion::unProductoDeCocinaTambienNecesitaPrecio() {
  CamposObligatorios c = Completo();
  c.productoCocinaBarra = true;
  c.precio.clear();
  // Empty is not numeric: the second test still stops a kitchen product without price.
  QCOMPARE(ComprobarCamposObligatorios(c)->numero, 7);
  c.precio = u"0"_s;
  QVERIFY(!ComprobarCamposObligatorios(c));
  // Either place, or the special box, is enough.
  c.optBarra = false;
  c.chkProdEspecial = true;
  QVERIFY(!ComprobarCamposObligatorios(c));
  c.chkProdEspecial = false;
  c.optCocina = true;
  QVERIFY(!ComprobarCamposObligatorios(c));
}

void TestGuardadoValidacion::elCodigoDeBarrasSeConsultaConSuTexto() {
  CamposObligatorios c = Completo();
  QStringList consultados;
  c.existeCodBarras = [&](const QString& codigo) {
    consultados.append(codigo);
    return false;
  };
  QVERIFY(!ComprobarCamposObligatorios(c));
  QCOMPARE(consultados, QStringList{u"8410000000017"_s});
  // An earlier failure stops before the barcode is looked up.
  c.nombre.clear();
  QVERIFY(ComprobarCamposObligatorios(c));
  QCOMPARE(consultados.size(), 1);
}

void TestGuardadoValidacion::unFalloMuestraDosMensajes() {
  DialogosGuion dialogos;
  CamposObligatorios c = Completo();
  c.unidadMedida.clear();
  QVERIFY(!bComprobarCamposObligatorios(dialogos, c));
  const QList<DialogosGuion::Llamada> llamadas = dialogos.llamadasDe(u"mensaje"_s);
  QCOMPARE(llamadas.size(), 2);
  QCOMPARE(llamadas.at(0).texto, u"Seleccione la unidad de medida"_s);
  QCOMPARE(llamadas.at(0).icono, ServicioDialogos::Icono::Critico);
  QCOMPARE(llamadas.at(0).titulo, TituloPrograma());
  QCOMPARE(llamadas.at(1).texto, u"Debe establecer valor para todos los campos requeridos"_s);
  QCOMPARE(llamadas.at(1).icono, ServicioDialogos::Icono::Informacion);
  QCOMPARE(kCampoFocoTrasFallo, u"txt_nombre"_s);
}

void TestGuardadoValidacion::sinFallosNoSeMuestraNada() {
  DialogosGuion dialogos;
  QVERIFY(bComprobarCamposObligatorios(dialogos, Completo()));
  QVERIFY(dialogos.llamadas().isEmpty());
}

QTEST_MAIN(TestGuardadoValidacion)
#include "test_guardado_validacion.moc"
