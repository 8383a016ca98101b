#include <QtTest>

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>

#include "color_vb.h"
#include "colorear.h"
#include "formulario_prueba.h"
#include "visualizacion.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QString Texto(FormularioPrueba& f, const QString& nombre) {
  if (auto* campo = f.control<QLineEdit>(nombre))
    return campo->text();
  if (auto* etiqueta = f.control<QLabel>(nombre))
    return etiqueta->text();
  return u"<no existe>"_s;
}

// A picture in the photos folder (any format: the name does not decide it).
void Foto(FormularioPrueba& f, const QString& archivo, const QColor& color) {
  const QString carpeta = QDir(f.inst().carpeta()).filePath(u"fotos"_s);
  QDir().mkpath(carpeta);
  QImage imagen(40, 30, QImage::Format_RGB32);
  imagen.fill(color);
  QVERIFY(imagen.save(QDir(carpeta).filePath(archivo), "PNG"));
}

const QString kFamilia =
    u"insert into seccion (codigo, nombre, borrar, menu) values ('F1', "
    "'Cervezas', 0, 0)"_s;
const QString kImpresora = u"insert into impresoras (codigo, nombre) values (3, 'Barra')"_s;
const QString kProveedor =
    u"insert into proveedores (codigo, nombre, borrar) values ('P1', "
    "'Distribuciones Sur', 0)"_s;

}  // namespace

class TestFormularioVisualizacion : public QObject {
  Q_OBJECT
 private slots:
  void init() { QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain)); }
  void muestraUnProductoCampoACampo();
  void sinImagenConImpresoraBorradaYSinFamilia();
  void navegaConSusAvisosEnLosExtremos();
  void sinProductosLasFlechasNoHacenNada();
  void elBuscadorDevuelveUnCodigo();
  void muestraUnElaborado();
  void unNumeroGuardadoSeLeeComoSeEscribe();
};

void TestFormularioVisualizacion::unNumeroGuardadoSeLeeComoSeEscribe() {
  // The locale's separator, no grouping, no trailing zeros and never an exponent.
  QCOMPARE(TextoDeValor(QVariant(1000000.0)), u"1000000"_s);
  QCOMPARE(TextoDeValor(QVariant(1234.5)), u"1234,5"_s);
  QCOMPARE(TextoDeValor(QVariant(0.125)), u"0,125"_s);
  QCOMPARE(TextoDeValor(QVariant(3)), u"3"_s);
  QCOMPARE(TextoDeValor(QVariant()), QString());
}

void TestFormularioVisualizacion::muestraUnProductoCampoACampo() {
  FormularioPrueba f({kFamilia, kImpresora, kProveedor,
                      Producto(u"1"_s, u"Caña"_s,
                               {{u"coste"_s, u"0.6"_s},
                                {u"precio"_s, u"1.76"_s},
                                {u"iva"_s, u"10"_s},
                                {u"margencomercial"_s, u"0.5"_s},
                                {u"seccion"_s, u"'F1'"_s},
                                {u"codigobarras"_s, u"'8410000000017'"_s},
                                {u"orden"_s, u"4"_s},
                                {u"descripcion"_s, u"'De barril'"_s},
                                {u"foto"_s, u"'cana.png'"_s},
                                {u"color"_s, u"255"_s},
                                {u"descnumerica"_s, u"12"_s},
                                {u"proveedor"_s, u"'P1'"_s},
                                {u"unidadMedida"_s, u"'Litros'"_s},
                                {u"hechoen"_s, u"2"_s},
                                {u"impresora"_s, u"3"_s},
                                {u"tipoprod"_s, u"2"_s},
                                {u"productoespecial"_s, u"-1"_s}}),
                      Stock(u"1"_s, u"24"_s, u"6"_s)});
  Foto(f, u"cana.png"_s, Qt::red);
  QVERIFY(f.mostrar());
  Pulsar(f, u"cmd_ProdGenerico"_s);

  const QList<QPair<QString, QString>> textos = {
      {u"txt_nombre"_s, u"Caña"_s},
      {u"txt_coste"_s, u"0,6"_s},
      {u"txt_iva"_s, u"10"_s},
      {u"txt_precio"_s, u"1,76"_s},
      // The price is shown before the tax: on the first product the tax box was still empty,
      // so it was set to "0" and the stored margin stands.
      {u"txt_margen"_s, u"0,5"_s},
      {u"lblnomFamilia"_s, u"Cervezas"_s},
      {u"txtCodBarras"_s, u"8410000000017"_s},
      {u"lblPos"_s, u"4"_s},
      {u"txt_descripcion"_s, u"De barril"_s},
      {u"txtDescNumericaPGen"_s, u"12"_s},
      {u"txt_stock_actual"_s, u"24"_s},
      {u"txt_stock_minimo"_s, u"6"_s},
      {u"lblNomProd"_s, u"Producto = Caña = su elaboracion saldra X la impresora de Barra"_s}};
  for (const auto& [nombre, texto] : textos)
    QCOMPARE(Texto(f, nombre), texto);
  QCOMPARE(f.control<QLabel>(u"lblnomFamilia"_s)->property("codigo").toString(), u"F1"_s);
  QVERIFY(f.control<QCheckBox>(u"ch_Mostrar"_s)->isChecked());
  auto* imagen = f.control<QLabel>(u"pict_imagen"_s);
  QVERIFY(imagen->property("archivo").toString().endsWith(u"/fotos/cana.png"_s));
  QVERIFY(!imagen->pixmap().isNull());
  QCOMPARE(imagen->pixmap().toImage().pixelColor(imagen->pixmap().width() / 2,
                                                 imagen->pixmap().height() / 2),
           QColor(Qt::red));
  QCOMPARE(ColorFondo(f.control<QLabel>(u"pic_ColorPG"_s)), ColorDesdeValor(255));
  QCOMPARE(f.forma().estado().colorElegido, u"255"_s);
  QCOMPARE(f.forma().estado().impresoraElegida, u"3"_s);
  QCOMPARE(f.control<QPushButton>(u"cmd_Proveedor"_s)->text(), u"Distribuciones Sur"_s);
  QCOMPARE(f.control<QComboBox>(u"cbo_Medida"_s)->currentText(), u"Litros"_s);
  QVERIFY(f.control<QRadioButton>(u"optCocina"_s)->isChecked());
  QVERIFY(!f.control<QRadioButton>(u"optBarra"_s)->isChecked());
  QVERIFY(f.control<QRadioButton>(u"opt_ambos"_s)->isChecked());
  QVERIFY(f.control<QCheckBox>(u"chkProdEspecial"_s)->isChecked());
  QCOMPARE(f.forma().estado().codigoActual, 1);
  QVERIFY(f.inst().erroresMostrados().isEmpty());
}

void TestFormularioVisualizacion::sinImagenConImpresoraBorradaYSinFamilia() {
  FormularioPrueba f({kFamilia,
                      Producto(u"1"_s, u"Agua"_s,
                               {{u"seccion"_s, u"'F1'"_s},
                                {u"hechoen"_s, u"2"_s},
                                {u"foto"_s, u"'agua.png'"_s},
                                {u"impresora"_s, u"3"_s}}),
                      Producto(u"2"_s, u"Bocadillo"_s,
                               {{u"hechoen"_s, u"0"_s},
                                {u"mostrarencaja"_s, u"-1"_s},
                                {u"impresora"_s, u"7"_s},
                                {u"tipoprod"_s, u"0"_s},
                                {u"color"_s, u"null"_s}}),
                      Producto(u"3"_s, u"Café"_s, {{u"foto"_s, u"'falta.png'"_s}}),
                      Producto(u"4"_s, u"Zumo"_s, {{u"hechoen"_s, u"1"_s}}),
                      Stock(u"1"_s, u"1"_s, u"1"_s), Stock(u"2"_s, u"0"_s, u"null"_s),
                      Stock(u"3"_s, u"0"_s, u"0"_s), kImpresora});
  Foto(f, u"agua.png"_s, Qt::blue);
  Foto(f, u"defecto.gif"_s, Qt::green);
  QVERIFY(f.mostrar());
  Pulsar(f, u"cmd_ProdGenerico"_s);
  QCOMPARE(Texto(f, u"txt_nombre"_s), u"Agua"_s);
  QVERIFY(f.control<QRadioButton>(u"optCocina"_s)->isChecked());
  QVERIFY(
      f.control<QLabel>(u"pict_imagen"_s)->property("archivo").toString().endsWith(u"agua.png"_s));

  Pulsar(f, u"bt_botones_2"_s);
  QCOMPARE(Texto(f, u"txt_nombre"_s), u"Bocadillo"_s);
  QCOMPARE(Texto(f, u"lblNomProd"_s),
           u"Producto = Bocadillo = La impresora utilizada ha sido eliminada"_s);
  QCOMPARE(Texto(f, u"lblnomFamilia"_s), QString());
  QCOMPARE(f.control<QLabel>(u"lblnomFamilia"_s)->property("codigo").toString(), u"-1"_s);
  QCOMPARE(Texto(f, u"lblPos"_s), u"0"_s);
  QCOMPARE(Texto(f, u"txt_stock_minimo"_s), u"0"_s);
  // Neither kitchen nor bar: the previous product's choice does not stay.
  QVERIFY(!f.control<QRadioButton>(u"optCocina"_s)->isChecked());
  QVERIFY(!f.control<QRadioButton>(u"optBarra"_s)->isChecked());
  QVERIFY(f.control<QRadioButton>(u"opt_cocina"_s)->isChecked());
  // Hidden from the till: no picture or colour to show.
  QVERIFY(!f.control<QCheckBox>(u"ch_Mostrar"_s)->isChecked());
  QVERIFY(!f.control<QWidget>(u"pict_imagen"_s)->isVisible());
  QCOMPARE(ColorFondo(f.control<QLabel>(u"pic_ColorPG"_s)), QColor(Qt::white));
  QVERIFY(f.forma().estado().colorElegido.isEmpty());
  QVERIFY(f.control<QLabel>(u"pict_imagen"_s)
              ->property("archivo")
              .toString()
              .endsWith(u"/fotos/defecto.gif"_s));

  Pulsar(f, u"bt_botones_2"_s);
  QCOMPARE(Texto(f, u"txt_nombre"_s), u"Café"_s);
  auto* imagen = f.control<QLabel>(u"pict_imagen"_s);
  QVERIFY(imagen->property("archivo").toString().endsWith(u"/fotos/defecto.gif"_s));
  QCOMPARE(imagen->pixmap().toImage().pixelColor(imagen->pixmap().width() / 2,
                                                 imagen->pixmap().height() / 2),
           QColor(Qt::green));
  QCOMPARE(Texto(f, u"lblNomProd"_s), QString());

  // No stock row: empty stock boxes, and the fields after them from this product's own row.
  Pulsar(f, u"bt_botones_2"_s);
  QCOMPARE(Texto(f, u"txt_nombre"_s), u"Zumo"_s);
  QCOMPARE(Texto(f, u"txt_stock_actual"_s), QString());
  QCOMPARE(Texto(f, u"txt_stock_minimo"_s), QString());
  QVERIFY(f.control<QRadioButton>(u"optBarra"_s)->isChecked());
  QVERIFY(f.inst().erroresMostrados().isEmpty());
}

void TestFormularioVisualizacion::navegaConSusAvisosEnLosExtremos() {
  // The simple products are walked by name; an elaborated or deleted product is not among them.
  FormularioPrueba f({Producto(u"1"_s, u"Cortado"_s), Producto(u"2"_s, u"Agua"_s),
                      Producto(u"3"_s, u"Bocadillo"_s),
                      Producto(u"4"_s, u"Zumo"_s, {{u"borrar"_s, u"-1"_s}}),
                      Producto(u"5"_s, u"Tortilla"_s),
                      u"insert into productoElaborado_producto values ('5', '2', 1)"_s,
                      Stock(u"1"_s, u"0"_s, u"0"_s), Stock(u"2"_s, u"0"_s, u"0"_s),
                      Stock(u"3"_s, u"0"_s, u"0"_s)});
  QVERIFY(f.mostrar());
  Pulsar(f, u"cmd_ProdGenerico"_s);
  QCOMPARE(Texto(f, u"txt_nombre"_s), u"Agua"_s);
  f.dialogos().olvidar();

  Pulsar(f, u"bt_botones_1"_s);
  QCOMPARE(Texto(f, u"txt_nombre"_s), u"Agua"_s);
  QCOMPARE(f.dialogos().mensajes(), QStringList{u"Primer Registro"_s});
  QCOMPARE(f.dialogos().llamadas().last().icono, ServicioDialogos::Icono::Informacion);
  Pulsar(f, u"bt_botones_2"_s);
  QCOMPARE(Texto(f, u"txt_nombre"_s), u"Bocadillo"_s);
  Pulsar(f, u"bt_botones_3"_s);
  QCOMPARE(Texto(f, u"txt_nombre"_s), u"Cortado"_s);
  Pulsar(f, u"bt_botones_2"_s);
  QCOMPARE(Texto(f, u"txt_nombre"_s), u"Cortado"_s);
  QCOMPARE(f.dialogos().mensajes(), (QStringList{u"Primer Registro"_s, u"Último Registro"_s}));
  QCOMPARE(f.dialogos().llamadas().last().icono, ServicioDialogos::Icono::Informacion);
  // After the warning the set stands on its last row: previous goes to the one before.
  Pulsar(f, u"bt_botones_1"_s);
  QCOMPARE(Texto(f, u"txt_nombre"_s), u"Bocadillo"_s);
  Pulsar(f, u"bt_botones_0"_s);
  QCOMPARE(Texto(f, u"txt_nombre"_s), u"Agua"_s);
  QCOMPARE(f.dialogos().mensajes().size(), 2);
  QVERIFY(f.inst().erroresMostrados().isEmpty());
}

void TestFormularioVisualizacion::sinProductosLasFlechasNoHacenNada() {
  FormularioPrueba f;
  QVERIFY(f.mostrar());
  Pulsar(f, u"cmd_ProdGenerico"_s);
  f.dialogos().olvidar();
  for (int i = 0; i < 4; ++i)
    Pulsar(f, u"bt_botones_%1"_s.arg(i));
  QVERIFY(f.dialogos().llamadas().isEmpty());
  QVERIFY(f.inst().erroresMostrados().isEmpty());
  QCOMPARE(Texto(f, u"txt_nombre"_s), QString());
}

void TestFormularioVisualizacion::elBuscadorDevuelveUnCodigo() {
  FormularioPrueba f({Producto(u"1"_s, u"Agua"_s), Producto(u"2"_s, u"Bocadillo"_s),
                      Stock(u"1"_s, u"0"_s, u"0"_s), Stock(u"2"_s, u"7"_s, u"0"_s)});
  QVERIFY(f.mostrar());
  Pulsar(f, u"cmd_ProdGenerico"_s);
  f.forma().ProductoBuscado(u"-1"_s);
  QCOMPARE(Texto(f, u"txt_nombre"_s), u"Agua"_s);
  f.forma().ProductoBuscado(u"2"_s);
  QCOMPARE(Texto(f, u"txt_nombre"_s), u"Bocadillo"_s);
  QCOMPARE(Texto(f, u"txt_stock_actual"_s), u"7"_s);
  QCOMPARE(f.forma().estado().codigoActual, 2);
  QVERIFY(f.inst().erroresMostrados().isEmpty());
}

void TestFormularioVisualizacion::muestraUnElaborado() {
  FormularioPrueba f({kFamilia, kImpresora, Producto(u"1"_s, u"Huevo"_s),
                      Producto(u"8"_s, u"Tortilla"_s,
                               {{u"coste"_s, u"2.5"_s},
                                {u"precio"_s, u"6"_s},
                                {u"iva"_s, u"10"_s},
                                {u"seccion"_s, u"'F1'"_s},
                                {u"descripcion"_s, u"'De patatas'"_s},
                                {u"descnumerica"_s, u"31"_s},
                                {u"orden"_s, u"null"_s},
                                {u"hechoen"_s, u"1"_s},
                                {u"impresora"_s, u"3"_s},
                                {u"color"_s, u"65280"_s}}),
                      u"insert into productoElaborado_producto values ('8', '1', 3)"_s,
                      Stock(u"8"_s, u"0"_s, u"0"_s)});
  QVERIFY(f.mostrar());
  QStringList ingredientes;
  f.forma().visualizacion().cargarIngredientes = [&](const QString& codigo) {
    ingredientes.append(codigo);
  };
  Pulsar(f, u"cmd_ProdElaborado"_s);
  const QList<QPair<QString, QString>> textos = {
      {u"txt_NombreElaborado"_s, u"Tortilla"_s},
      {u"lblNomFamilia_elab"_s, u"Cervezas"_s},
      {u"txt_DescElaborado"_s, u"De patatas"_s},
      {u"txtDescNumerica"_s, u"31"_s},
      {u"txt_costeElaborado"_s, u"2,5"_s},
      {u"txt_ImpuestoElaborado"_s, u"10"_s},
      {u"txt_PrecioElaborado"_s, u"6"_s},
      {u"lblpospelab"_s, u"0"_s},
      {u"lblNomProd"_s, u"Producto = Tortilla = su elaboracion saldra X la impresora de Barra"_s}};
  for (const auto& [nombre, texto] : textos)
    QCOMPARE(Texto(f, nombre), texto);
  QVERIFY(f.control<QRadioButton>(u"optBarraElab"_s)->isChecked());
  QCOMPARE(ColorFondo(f.control<QLabel>(u"pic_Color"_s)), ColorDesdeValor(65280));
  QCOMPARE(ingredientes, QStringList{u"8"_s});
  // With a cost and a tax, the tax and the price are on show.
  QVERIFY(f.control<QWidget>(u"txt_ImpuestoElaborado"_s)->isVisible());
  QVERIFY(f.control<QWidget>(u"txt_PrecioElaborado"_s)->isVisible());
  QVERIFY(f.inst().erroresMostrados().isEmpty());
}

PRODUCTOS_TEST_MAIN(TestFormularioVisualizacion)
#include "test_formulario_visualizacion.moc"
