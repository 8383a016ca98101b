#include <QtTest>

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

#include "formulario_prueba.h"
#include "zona_impresoras.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QString kProveedor =
    u"insert into proveedores (codigo, nombre, borrar) values ('P1', 'Distribuciones Sur', 0)"_s;

const QStringList kTresImpresoras = {Impresora(3, u"Barra"_s), Impresora(5, u"Cocina"_s),
                                     Impresora(8, u"Terraza"_s)};

void TocarFila(FormularioPrueba& f, const QString& lista, int fila) {
  auto* l = f.control<QListWidget>(lista);
  QVERIFY2(l && l->isVisible(), qPrintable(lista));
  const QRect zona = l->visualItemRect(l->item(fila));
  QTest::mouseClick(l->viewport(), Qt::LeftButton, {}, zona.center());
}

QString Linea(FormularioPrueba& f) {
  return f.control<QLabel>(u"lblNomProd"_s)->text();
}

QString LineaSinElegir(const QString& producto) {
  return u"Producto = "_s + producto + u" = su elaboracion saldra X la impresora de "_s;
}

}  // namespace

class TestZonaImpresoras : public QObject {
  Q_OBJECT
 private slots:
  void init() { QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain)); }
  void losBotonesDeImpresorasAparecenConMasDeDos();
  void elegirUnaImpresoraLaGuardaYLaNombra();
  void aceptarSinFilaOSinImpresoraGuardaCero();
  void cerrarSinElegirNoCambiaNada();
  void fueraDeModoCambiosAvisaYNoCambiaNada();
  void unProductoConImpresoraLaConservaAlReabrir();
  void elSelectorDelElaboradoUsaSuNombre();
  void losTiposMuestranLoQueUsanYLlevanAlCoste();
  void laZonaDeUnElaboradoNuevoAbreLosComponentes();
};

void TestZonaImpresoras::losBotonesDeImpresorasAparecenConMasDeDos() {
  {
    FormularioPrueba f({Impresora(3, u"Barra"_s), Impresora(5, u"Cocina"_s)});
    QVERIFY(f.mostrar());
    Pulsar(f, u"cmd_ProdGenerico"_s);
    QVERIFY(!Visible(f, u"cmdImpresoras"_s));
    QCOMPARE(f.forma().estado().numImpresoras, 2);
    Pulsar(f, u"cmd_salir"_s);
    Pulsar(f, u"cmd_ProdElaborado"_s);
    QVERIFY(!Visible(f, u"cmdImpresorasElab"_s));
  }
  FormularioPrueba f(kTresImpresoras);
  QVERIFY(f.mostrar());
  Pulsar(f, u"cmd_ProdGenerico"_s);
  QVERIFY(Visible(f, u"cmdImpresoras"_s));
  QCOMPARE(f.forma().estado().numImpresoras, 3);
  Pulsar(f, u"cmd_salir"_s);
  Pulsar(f, u"cmd_ProdElaborado"_s);
  QVERIFY(Visible(f, u"cmdImpresorasElab"_s));
  // The chooser lists the names, and the hidden list their codes at the same positions.
  auto* nombres = f.control<QListWidget>(u"lb_impresoras"_s);
  auto* codigos = f.control<QListWidget>(u"lbCodigos"_s);
  QCOMPARE(nombres->count(), 3);
  QCOMPARE(nombres->item(2)->text(), u"Terraza"_s);
  QCOMPARE(codigos->item(2)->text(), u"8"_s);
  QVERIFY(!codigos->isVisible());
}

void TestZonaImpresoras::elegirUnaImpresoraLaGuardaYLaNombra() {
  FormularioPrueba f(
      QStringList{kProveedor, Producto(u"1"_s, u"Caña"_s), Stock(u"1"_s, u"5"_s, u"1"_s)} +
      kTresImpresoras);
  QVERIFY(f.mostrar());
  Pulsar(f, u"cmd_ProdGenerico"_s);
  QVERIFY(!Visible(f, u"frImpresoras"_s));
  QCOMPARE(Linea(f), QString());
  Pulsar(f, u"cmd_modificar"_s);

  Pulsar(f, u"cmdImpresoras"_s);
  QVERIFY(Visible(f, u"frImpresoras"_s));
  QCOMPARE(Linea(f), LineaSinElegir(u"Caña"_s));
  // The name is the one typed now, not the stored one.
  TocarFila(f, u"lb_impresoras"_s, 1);
  QCOMPARE(Linea(f), u"Producto = Caña = su elaboracion saldra X la impresora de Cocina"_s);
  TocarFila(f, u"lb_impresoras"_s, 2);
  QCOMPARE(Linea(f), u"Producto = Caña = su elaboracion saldra X la impresora de Terraza"_s);
  Pulsar(f, u"Command3"_s);
  QVERIFY(!Visible(f, u"frImpresoras"_s));
  QCOMPARE(f.forma().estado().impresoraElegida, u"8"_s);
  QCOMPARE(Linea(f), u"Producto = Caña = su elaboracion saldra X la impresora de Terraza"_s);
  QVERIFY(f.dialogos().mensajes().isEmpty());
}

void TestZonaImpresoras::aceptarSinFilaOSinImpresoraGuardaCero() {
  FormularioPrueba f(QStringList{kProveedor,
                                 Producto(u"1"_s, u"Caña"_s, {{u"impresora"_s, u"5"_s}}),
                                 Stock(u"1"_s, u"5"_s, u"1"_s), Producto(u"2"_s, u"Vino"_s),
                                 Stock(u"2"_s, u"5"_s, u"1"_s)} +
                     kTresImpresoras);
  QVERIFY(f.mostrar());
  Pulsar(f, u"cmd_ProdGenerico"_s);
  QCOMPARE(f.forma().estado().impresoraElegida, u"5"_s);

  // "Ninguna" leaves the product with no specific printer; the line is left as it was.
  Pulsar(f, u"cmd_modificar"_s);
  Pulsar(f, u"cmdImpresoras"_s);
  const QString linea = Linea(f);
  Pulsar(f, u"Command5"_s);
  QVERIFY(!Visible(f, u"frImpresoras"_s));
  QCOMPARE(f.forma().estado().impresoraElegida, u"0"_s);
  QCOMPARE(Linea(f), linea);

  // Accepting with no row chosen keeps no printer either, whatever the previous product chose.
  Pulsar(f, u"cmd_cancelar"_s);
  Pulsar(f, u"bt_botones_2"_s);
  QCOMPARE(f.control<QLineEdit>(u"txt_nombre"_s)->text(), u"Vino"_s);
  Pulsar(f, u"cmd_modificar"_s);
  Pulsar(f, u"cmdImpresoras"_s);
  QCOMPARE(f.control<QListWidget>(u"lb_impresoras"_s)->currentRow(), -1);
  Pulsar(f, u"Command3"_s);
  QCOMPARE(f.forma().estado().impresoraElegida, u"0"_s);
  QVERIFY(!Visible(f, u"frImpresoras"_s));
}

void TestZonaImpresoras::cerrarSinElegirNoCambiaNada() {
  FormularioPrueba f(QStringList{kProveedor,
                                 Producto(u"1"_s, u"Caña"_s, {{u"impresora"_s, u"3"_s}}),
                                 Stock(u"1"_s, u"5"_s, u"1"_s)} +
                     kTresImpresoras);
  QVERIFY(f.mostrar());
  Pulsar(f, u"cmd_ProdGenerico"_s);
  const QString antes = u"Producto = Caña = su elaboracion saldra X la impresora de Barra"_s;
  QCOMPARE(Linea(f), antes);
  Pulsar(f, u"cmd_modificar"_s);
  Pulsar(f, u"cmdImpresoras"_s);
  TocarFila(f, u"lb_impresoras"_s, 2);
  QCOMPARE(Linea(f), u"Producto = Caña = su elaboracion saldra X la impresora de Terraza"_s);
  Pulsar(f, u"cmdCerrarImpresoras"_s);
  QVERIFY(!Visible(f, u"frImpresoras"_s));
  QCOMPARE(Linea(f), antes);
  QCOMPARE(f.forma().estado().impresoraElegida, u"3"_s);

  // Leaving the screen closes the chooser as well.
  Pulsar(f, u"cmd_cancelar"_s);
  Pulsar(f, u"cmdImpresoras"_s);
  QVERIFY(Visible(f, u"frImpresoras"_s));
  Pulsar(f, u"cmd_salir"_s);
  QVERIFY(!f.control<QWidget>(u"frImpresoras"_s)->isVisibleTo(&f.forma()));
  QVERIFY(f.dialogos().mensajes().isEmpty());
}

void TestZonaImpresoras::fueraDeModoCambiosAvisaYNoCambiaNada() {
  FormularioPrueba f(QStringList{Producto(u"1"_s, u"Caña"_s, {{u"impresora"_s, u"3"_s}}),
                                 Stock(u"1"_s, u"5"_s, u"1"_s)} +
                     kTresImpresoras);
  QVERIFY(f.mostrar());
  Pulsar(f, u"cmd_ProdGenerico"_s);
  QVERIFY(!EstaModificando(f.forma().controles()));
  Pulsar(f, u"cmdImpresoras"_s);
  TocarFila(f, u"lb_impresoras"_s, 1);
  for (const QString& boton : {u"Command3"_s, u"Command5"_s}) {
    f.dialogos().olvidar();
    Pulsar(f, boton);
    const QList<DialogosGuion::Llamada> avisos = f.dialogos().llamadasDe(u"mensaje"_s);
    QCOMPARE(avisos.size(), 1);
    QCOMPARE(avisos.first().texto,
             u"Para modificar la impresora es necesario estar en modo modificacion."_s);
    QCOMPARE(avisos.first().titulo, u"Impresoras Especificas"_s);
    QCOMPARE(avisos.first().icono, ServicioDialogos::Icono::Informacion);
    QVERIFY(Visible(f, u"frImpresoras"_s));
    QCOMPARE(f.forma().estado().impresoraElegida, u"3"_s);
  }
}

void TestZonaImpresoras::unProductoConImpresoraLaConservaAlReabrir() {
  FormularioPrueba f(QStringList{kProveedor,
                                 Producto(u"1"_s, u"Caña"_s, {{u"impresora"_s, u"5"_s}}),
                                 Stock(u"1"_s, u"5"_s, u"1"_s)} +
                     kTresImpresoras);
  QVERIFY(f.mostrar());
  Pulsar(f, u"cmd_ProdGenerico"_s);
  Pulsar(f, u"cmd_modificar"_s);
  // A new name typed since: the line keeps telling the chosen printer with the stored name.
  auto* nombre = f.control<QLineEdit>(u"txt_nombre"_s);
  nombre->selectAll();
  QTest::keyClicks(nombre, u"Tinto"_s);
  QCOMPARE(nombre->text(), u"Tinto"_s);
  const QString linea = u"Producto = Caña = su elaboracion saldra X la impresora de Cocina"_s;
  Pulsar(f, u"cmdImpresoras"_s);
  QCOMPARE(Linea(f), linea);
  // The list opens on the product's printer: closing or accepting it untouched keeps it.
  QCOMPARE(f.control<QListWidget>(u"lb_impresoras"_s)->currentRow(), 1);
  Pulsar(f, u"cmdCerrarImpresoras"_s);
  QCOMPARE(f.forma().estado().impresoraElegida, u"5"_s);
  QCOMPARE(Linea(f), linea);
  Pulsar(f, u"cmdImpresoras"_s);
  Pulsar(f, u"Command3"_s);
  QCOMPARE(f.forma().estado().impresoraElegida, u"5"_s);
}

void TestZonaImpresoras::elSelectorDelElaboradoUsaSuNombre() {
  FormularioPrueba f(QStringList{
                         Producto(u"1"_s, u"Arroz"_s),
                         Stock(u"1"_s, u"5"_s, u"1"_s),
                         Producto(u"2"_s, u"Paella"_s, {{u"hechoen"_s, u"2"_s}}),
                         Stock(u"2"_s, u"0"_s, u"0"_s),
                         u"insert into productoElaborado_producto (productopadre, productohijo, "
                         "cantidad) values ('2', '1', 4)"_s,
                     } +
                     kTresImpresoras);
  QVERIFY(f.mostrar());
  Pulsar(f, u"cmd_ProdElaborado"_s);
  QCOMPARE(f.control<QLineEdit>(u"txt_NombreElaborado"_s)->text(), u"Paella"_s);
  QVERIFY(f.control<QRadioButton>(u"optCocinaElab"_s)->isChecked());
  Pulsar(f, u"cmd_ModificarProdEla"_s);
  QVERIFY(EstaModificando(f.forma().controles()));
  Pulsar(f, u"cmdImpresorasElab"_s);
  QVERIFY(Visible(f, u"frImpresoras"_s));
  QCOMPARE(Linea(f), LineaSinElegir(u"Paella"_s));
  TocarFila(f, u"lb_impresoras"_s, 0);
  QCOMPARE(Linea(f), u"Producto = Paella = su elaboracion saldra X la impresora de Barra"_s);
  Pulsar(f, u"Command3"_s);
  QCOMPARE(f.forma().estado().impresoraElegida, u"3"_s);
  QVERIFY(!Visible(f, u"frImpresoras"_s));
}

void TestZonaImpresoras::losTiposMuestranLoQueUsanYLlevanAlCoste() {
  FormularioPrueba f({kProveedor, Producto(u"1"_s, u"Aceite"_s, {{u"tipoprod"_s, u"0"_s}}),
                      Stock(u"1"_s, u"5"_s, u"1"_s), Producto(u"2"_s, u"Caña"_s),
                      Stock(u"2"_s, u"5"_s, u"1"_s)});
  QVERIFY(f.mostrar());
  Pulsar(f, u"cmd_ProdGenerico"_s);
  // A product for internal use shows its cost but no price; the focus stays where navigation
  // put it, since nothing can be typed.
  QVERIFY(f.control<QRadioButton>(u"opt_cocina"_s)->isChecked());
  QVERIFY(Visible(f, u"txt_coste"_s));
  QVERIFY(!Visible(f, u"txt_precio"_s));
  QVERIFY(!Visible(f, u"lbl_precio"_s));
  QCOMPARE(QApplication::focusWidget(), f.control<QWidget>(u"cmd_nuevo"_s));
  Pulsar(f, u"bt_botones_2"_s);
  QVERIFY(f.control<QRadioButton>(u"opt_Venta"_s)->isChecked());
  QVERIFY(Visible(f, u"txt_precio"_s));
  QVERIFY(Visible(f, u"lbl_precio"_s));

  // In change mode each kind brings what it uses and takes the focus to the cost.
  Pulsar(f, u"cmd_modificar"_s);
  QTRY_COMPARE(QApplication::focusWidget(), f.control<QWidget>(u"txt_nombre"_s));
  Pulsar(f, u"opt_cocina"_s);
  QVERIFY(!Visible(f, u"txt_precio"_s));
  QVERIFY(!Visible(f, u"lbl_precio"_s));
  for (const QString& visible : {u"lbl_coste"_s, u"txt_coste"_s, u"lbl_iva"_s, u"txt_iva"_s,
                                 u"lbl_percent"_s, u"lbl_stock_minimo"_s, u"txt_stock_minimo"_s,
                                 u"Label16"_s, u"txt_stock_actual"_s, u"ch_Mostrar"_s}) {
    QVERIFY2(Visible(f, visible), qPrintable(visible));
  }
  QTRY_COMPARE(QApplication::focusWidget(), f.control<QWidget>(u"txt_coste"_s));
  for (const QString& venta : {u"opt_ambos"_s, u"opt_Venta"_s}) {
    Pulsar(f, u"opt_cocina"_s);
    f.control<QLineEdit>(u"txt_nombre"_s)->setFocus();
    Pulsar(f, venta);
    QVERIFY2(Visible(f, u"txt_precio"_s), qPrintable(venta));
    QVERIFY2(Visible(f, u"lbl_precio"_s), qPrintable(venta));
    for (const QString& zona : {u"lblPreparado"_s, u"optCocina"_s, u"optBarra"_s})
      QVERIFY2(Visible(f, zona), qPrintable(zona));
    QTRY_COMPARE(QApplication::focusWidget(), f.control<QWidget>(u"txt_coste"_s));
  }

  // Kitchen and bar exclude each other and are held by the options themselves.
  Pulsar(f, u"optCocina"_s);
  Pulsar(f, u"optBarra"_s);
  QVERIFY(f.control<QRadioButton>(u"optBarra"_s)->isChecked());
  QVERIFY(!f.control<QRadioButton>(u"optCocina"_s)->isChecked());
}

void TestZonaImpresoras::laZonaDeUnElaboradoNuevoAbreLosComponentes() {
  FormularioPrueba f({Producto(u"1"_s, u"Arroz"_s), Stock(u"1"_s, u"5"_s, u"1"_s),
                      Producto(u"2"_s, u"Paella"_s, {{u"hechoen"_s, u"2"_s}}),
                      Stock(u"2"_s, u"0"_s, u"0"_s),
                      u"insert into productoElaborado_producto (productopadre, productohijo, "
                      "cantidad) values ('2', '1', 4)"_s});
  QVERIFY(f.mostrar());
  int aperturas = 0;
  auto* zona = f.forma().findChild<ZonaImpresoras*>();
  QVERIFY(zona);
  zona->abrirComponentes = [&aperturas] { ++aperturas; };
  Pulsar(f, u"cmd_ProdElaborado"_s);
  // Showing the product sets its zone without opening anything.
  QCOMPARE(aperturas, 0);
  Pulsar(f, u"cmd_ModificarProdEla"_s);
  Pulsar(f, u"optBarraElab"_s);
  QCOMPARE(aperturas, 0);
  QVERIFY(f.control<QRadioButton>(u"optBarraElab"_s)->isChecked());
  // A product being created (change mode, not modifying) opens its components.
  f.forma().estado().modificando = false;
  Pulsar(f, u"optCocinaElab"_s);
  QCOMPARE(aperturas, 1);
}

PRODUCTOS_TEST_MAIN(TestZonaImpresoras)
#include "test_zona_impresoras.moc"
