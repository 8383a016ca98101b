#include <QtTest>

#include <QCheckBox>
#include <QGroupBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>

#include "color_vb.h"
#include "colorear.h"
#include "formulario_prueba.h"
#include "panel_obj_nuevo.h"
#include "zona_impresoras.h"

using namespace Qt::Literals::StringLiterals;

// Where a product is prepared and printed, its picture and colour on the till, and its family.
namespace {

// Caña has printer 5 and family F1; Arroz is for internal use; Paella, elaborated from Arroz, is
// prepared in the kitchen and has no colour.
QStringList Catalogo() {
  QStringList filas = {
      Proveedor(u"P1"_s, u"Distribuciones Sur"_s),
      Impresora(3, u"Barra"_s),
      Impresora(5, u"Cocina"_s),
      Impresora(8, u"Terraza"_s),
      Producto(u"1"_s, u"Caña"_s,
               {{u"impresora"_s, u"5"_s}, {u"seccion"_s, u"'F1'"_s}, {u"color"_s, u"255"_s}}),
      Stock(u"1"_s, u"5"_s, u"1"_s),
      Producto(u"2"_s, u"Arroz"_s, {{u"tipoprod"_s, u"0"_s}}),
      Stock(u"2"_s, u"5"_s, u"1"_s),
      Producto(u"3"_s, u"Paella"_s,
               {{u"hechoen"_s, u"2"_s}, {u"color"_s, u"null"_s}, {u"seccion"_s, u"'F3'"_s}}),
      Stock(u"3"_s, u"0"_s, u"0"_s),
      u"insert into productoElaborado_producto values ('3', '2', 4)"_s};
  // Eight families fill two pages of a panel.
  for (int i = 1; i <= 8; ++i)
    filas << Familia(u"F%1"_s.arg(i), u"Familia %1"_s.arg(i), i);
  return filas;
}

// The form on one of its screens (its button on the start screen), in change mode or not.
void Abrir(FormularioPrueba& f, const QString& pantalla, bool modificar) {
  QVERIFY(f.mostrar());
  Pulsar(f, pantalla);
  if (modificar) {
    Pulsar(f, pantalla == u"cmd_ProdGenerico"_s ? u"cmd_modificar"_s : u"cmd_ModificarProdEla"_s);
  }
}

void TocarFila(FormularioPrueba& f, int fila) {
  auto* l = f.control<QListWidget>(u"lb_impresoras"_s);
  QVERIFY(l && l->isVisible());
  QTest::mouseClick(l->viewport(), Qt::LeftButton, {}, l->visualItemRect(l->item(fila)).center());
}

QString Linea(const QString& producto, const QString& impresora) {
  return u"Producto = "_s + producto + u" = su elaboracion saldra X la impresora de "_s + impresora;
}

QString ImpresoraElegida(FormularioPrueba& f) {
  return f.forma().estado().impresoraElegida;
}

}  // namespace

class TestFormularioZona : public QObject {
  Q_OBJECT
 private slots:
  void init() { QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain)); }
  void laImpresoraDeUnProducto();
  void laImpresoraDeUnElaboradoYSuZona();
  void losTiposMuestranLoQueUsan();
  void laImagenDeUnProducto();
  void elColorPintaSuCaja();
  void lasFamilias();
};

void TestFormularioZona::laImpresoraDeUnProducto() {
  FormularioPrueba f(Catalogo());
  Abrir(f, u"cmd_ProdGenerico"_s, false);
  Pulsar(f, u"bt_botones_2"_s);
  QCOMPARE(Texto(f, u"lblNomProd"_s), Linea(u"Caña"_s, u"Cocina"_s));
  // Outside change mode the chooser opens, but choosing only warns.
  Pulsar(f, u"cmdImpresoras"_s);
  TocarFila(f, 2);
  for (const QString& boton : {u"Command3"_s, u"Command5"_s}) {
    f.dialogos().olvidar();
    Pulsar(f, boton);
    QCOMPARE(
        f.dialogos().mensajes(),
        QStringList{u"Para modificar la impresora es necesario estar en modo modificacion."_s});
    QCOMPARE(f.dialogos().llamadas().first().titulo, u"Impresoras Especificas"_s);
    QVERIFY(Visible(f, u"frImpresoras"_s));
    QCOMPARE(ImpresoraElegida(f), u"5"_s);
  }
  Pulsar(f, u"cmdCerrarImpresoras"_s);
  Pulsar(f, u"cmd_modificar"_s);
  // A new name typed since: the line keeps the stored name; the list opens on the printer.
  Escribir(f, u"txt_nombre"_s, u"Tinto"_s);
  Pulsar(f, u"cmdImpresoras"_s);
  QCOMPARE(f.control<QListWidget>(u"lb_impresoras"_s)->currentRow(), 1);
  QCOMPARE(Texto(f, u"lblNomProd"_s), Linea(u"Caña"_s, u"Cocina"_s));
  // A touch names the printer with the name typed now; closing puts both back.
  TocarFila(f, 2);
  QCOMPARE(Texto(f, u"lblNomProd"_s), Linea(u"Tinto"_s, u"Terraza"_s));
  Pulsar(f, u"cmdCerrarImpresoras"_s);
  QVERIFY(!Visible(f, u"frImpresoras"_s));
  QCOMPARE(Texto(f, u"lblNomProd"_s), Linea(u"Caña"_s, u"Cocina"_s));
  QCOMPARE(ImpresoraElegida(f), u"5"_s);
  // "Ninguna" leaves no specific printer, and the line as it was.
  Pulsar(f, u"cmdImpresoras"_s);
  Pulsar(f, u"Command5"_s);
  QCOMPARE(ImpresoraElegida(f), u"0"_s);
  QCOMPARE(Texto(f, u"lblNomProd"_s), Linea(u"Caña"_s, u"Cocina"_s));
  // With no printer, opening the chooser says so; accepting with no row keeps none.
  Pulsar(f, u"cmdImpresoras"_s);
  QCOMPARE(Texto(f, u"lblNomProd"_s), Linea(u"Tinto"_s, QString()));
  QCOMPARE(f.control<QListWidget>(u"lb_impresoras"_s)->currentRow(), -1);
  Pulsar(f, u"Command3"_s);
  QCOMPARE(ImpresoraElegida(f), u"0"_s);
  Pulsar(f, u"cmdImpresoras"_s);
  TocarFila(f, 2);
  Pulsar(f, u"Command3"_s);
  QVERIFY(!Visible(f, u"frImpresoras"_s));
  QCOMPARE(ImpresoraElegida(f), u"8"_s);
  QCOMPARE(Texto(f, u"lblNomProd"_s), Linea(u"Tinto"_s, u"Terraza"_s));
  // Leaving the screen closes the chooser as well.
  Pulsar(f, u"cmd_cancelar"_s);
  Pulsar(f, u"cmdImpresoras"_s);
  Pulsar(f, u"cmd_salir"_s);
  QVERIFY(!f.control<QWidget>(u"frImpresoras"_s)->isVisibleTo(&f.forma()));
  QVERIFY(f.inst().erroresMostrados().isEmpty());

  // With two printers there is nothing to choose: the buttons stay hidden on both screens.
  FormularioPrueba dos({Impresora(3, u"Barra"_s), Impresora(5, u"Cocina"_s)});
  Abrir(dos, u"cmd_ProdGenerico"_s, false);
  QVERIFY(!Visible(dos, u"cmdImpresoras"_s));
  Pulsar(dos, u"cmd_salir"_s);
  Pulsar(dos, u"cmd_ProdElaborado"_s);
  QVERIFY(!Visible(dos, u"cmdImpresorasElab"_s));
}

void TestFormularioZona::laImpresoraDeUnElaboradoYSuZona() {
  FormularioPrueba f(Catalogo());
  int aperturas = 0;
  auto* zona = f.forma().findChild<ZonaImpresoras*>();
  QVERIFY(zona);
  zona->abrirComponentes = [&aperturas] { ++aperturas; };
  Abrir(f, u"cmd_ProdElaborado"_s, true);
  QCOMPARE(Texto(f, u"txt_NombreElaborado"_s), u"Paella"_s);
  QVERIFY(f.control<QRadioButton>(u"optCocinaElab"_s)->isChecked());
  Pulsar(f, u"cmdImpresorasElab"_s);
  QCOMPARE(Texto(f, u"lblNomProd"_s), Linea(u"Paella"_s, QString()));
  TocarFila(f, 0);
  QCOMPARE(Texto(f, u"lblNomProd"_s), Linea(u"Paella"_s, u"Barra"_s));
  Pulsar(f, u"Command3"_s);
  QCOMPARE(ImpresoraElegida(f), u"3"_s);
  // Showing the product, or changing the zone of a saved one, opens nothing; the zone of a
  // product being created opens its components.
  Pulsar(f, u"optBarraElab"_s);
  QVERIFY(f.control<QRadioButton>(u"optBarraElab"_s)->isChecked());
  QCOMPARE(aperturas, 0);
  f.forma().estado().modificando = false;
  Pulsar(f, u"optCocinaElab"_s);
  QCOMPARE(aperturas, 1);
}

void TestFormularioZona::losTiposMuestranLoQueUsan() {
  FormularioPrueba f(Catalogo());
  Abrir(f, u"cmd_ProdGenerico"_s, false);
  // A product for internal use shows its cost but no price.
  QCOMPARE(Texto(f, u"txt_nombre"_s), u"Arroz"_s);
  QVERIFY(f.control<QRadioButton>(u"opt_cocina"_s)->isChecked());
  Exigir(f, &Visible, u"txt_coste lbl_coste"_s, true);
  Exigir(f, &Visible, u"txt_precio lbl_precio"_s, false);
  Pulsar(f, u"bt_botones_2"_s);
  QVERIFY(f.control<QRadioButton>(u"opt_Venta"_s)->isChecked());
  Exigir(f, &Visible, u"txt_precio lbl_precio"_s, true);
  // In change mode each kind brings what it uses and takes the focus to the cost.
  Pulsar(f, u"cmd_modificar"_s);
  Pulsar(f, u"opt_cocina"_s);
  Exigir(f, &Visible, u"txt_precio lbl_precio"_s, false);
  Exigir(f, &Visible,
         u"lbl_coste txt_coste lbl_iva txt_iva lbl_percent lbl_stock_minimo txt_stock_minimo "
         "Label16 txt_stock_actual ch_Mostrar"_s,
         true);
  QTRY_COMPARE(QApplication::focusWidget(), f.control<QWidget>(u"txt_coste"_s));
  for (const QString& venta : {u"opt_ambos"_s, u"opt_Venta"_s}) {
    Pulsar(f, u"opt_cocina"_s);
    f.control<QLineEdit>(u"txt_nombre"_s)->setFocus();
    Pulsar(f, venta);
    Exigir(f, &Visible, u"txt_precio lbl_precio lblPreparado optCocina optBarra"_s, true);
    QTRY_COMPARE(QApplication::focusWidget(), f.control<QWidget>(u"txt_coste"_s));
  }
  // Kitchen and bar exclude each other.
  Pulsar(f, u"optCocina"_s);
  Pulsar(f, u"optBarra"_s);
  QVERIFY(!f.control<QRadioButton>(u"optCocina"_s)->isChecked());
}

void TestFormularioZona::laImagenDeUnProducto() {
  FormularioPrueba f(Catalogo());
  QTemporaryDir origen;
  const QString justa = Imagen(origen.path(), u"justa.png"_s, 75000, Qt::red);
  const QString grande = Imagen(origen.path(), u"grande.png"_s, 75001, Qt::green);
  const QString fotos = QDir(f.inst().carpeta()).filePath(u"fotos"_s);
  Abrir(f, u"cmd_ProdGenerico"_s, false);
  // Outside change mode the boxes open nothing.
  f.dialogos().siguienteArchivo(justa);
  for (const QString& caja :
       {u"pict_imagen"_s, u"lbl_Insertar"_s, u"pic_ColorPG"_s, u"lbl_color"_s})
    QTest::mouseClick(f.control<QWidget>(caja), Qt::LeftButton);
  QVERIFY(f.dialogos().llamadas().isEmpty());

  Pulsar(f, u"cmd_modificar"_s);
  QTest::mouseClick(f.control<QWidget>(u"pict_imagen"_s), Qt::LeftButton);
  QCOMPARE(f.dialogos().llamadasDe(u"abrirArchivo"_s).first().texto, fotos + u"|*.*"_s);
  QCOMPARE(f.forma().estado().fotoElegida, u"justa.png"_s);
  QCOMPARE(ColorMostrado(f, u"pict_imagen"_s), QColor(Qt::red));
  QCOMPARE(Contenido(QDir(fotos).filePath(u"justa.png"_s)), Contenido(justa));
  // One byte more is refused with its notice; the previous picture stands.
  f.dialogos().siguienteArchivo(grande);
  QTest::mouseClick(f.control<QWidget>(u"lbl_Insertar"_s), Qt::LeftButton);
  QCOMPARE(f.dialogos().mensajes(),
           QStringList{u"El archivo seleccionado es demasiado grande, es necesario que seleccione "
                       "una imagen mas pequeña para que el programa funcione de forma optima.\r\n"
                       "No use imagenes superiores a 75 kb de tamaño"_s});
  QCOMPARE(f.dialogos().llamadasDe(u"mensaje"_s).first().titulo, u"Imagen demasiado grande"_s);
  QCOMPARE(f.forma().estado().fotoElegida, u"justa.png"_s);
  QCOMPARE(ColorMostrado(f, u"pict_imagen"_s), QColor(Qt::red));
  QVERIFY(!QFile::exists(QDir(fotos).filePath(u"grande.png"_s)));
  // A cancelled dialog changes nothing.
  QTest::mouseClick(f.control<QWidget>(u"pict_imagen"_s), Qt::LeftButton);
  QCOMPARE(f.forma().estado().fotoElegida, u"justa.png"_s);

  // The elaborated products have no limit; the cost comes next.
  Pulsar(f, u"cmd_cancelar"_s);
  Pulsar(f, u"cmd_salir"_s);
  Pulsar(f, u"cmd_ProdElaborado"_s);
  Pulsar(f, u"cmd_ModificarProdEla"_s);
  f.dialogos().siguienteArchivo(grande);
  QTest::mouseClick(f.control<QWidget>(u"pic_ProductoElaborado"_s), Qt::LeftButton);
  QCOMPARE(f.dialogos().llamadasDe(u"abrirArchivo"_s).last().texto, fotos + u"/|*.*"_s);
  QCOMPARE(f.forma().estado().fotoElegida, u"grande.png"_s);
  QCOMPARE(ColorMostrado(f, u"pic_ProductoElaborado"_s), QColor(Qt::green));
  QCOMPARE(Contenido(QDir(fotos).filePath(u"grande.png"_s)), Contenido(grande));
  QTRY_COMPARE(QApplication::focusWidget(), f.control<QWidget>(u"txt_costeElaborado"_s));
  QCOMPARE(f.dialogos().mensajes().size(), 1);
}

void TestFormularioZona::elColorPintaSuCaja() {
  FormularioPrueba f(Catalogo());
  DialogosGuion& dialogos = f.dialogos();
  Abrir(f, u"cmd_ProdGenerico"_s, false);
  Pulsar(f, u"bt_botones_2"_s);
  Pulsar(f, u"cmd_modificar"_s);
  const QColor naranja(255, 128, 0);
  dialogos.siguienteColor(naranja);
  QTest::mouseClick(f.control<QWidget>(u"pic_ColorPG"_s), Qt::LeftButton);
  // The dialog opens on the product's colour; the colour frame leaves.
  QCOMPARE(dialogos.llamadasDe(u"elegirColor"_s).first().texto, QColor(255, 0, 0).name());
  QVERIFY(!Visible(f, u"fr_colores"_s));
  QCOMPARE(f.forma().estado().colorElegido, u"33023"_s);
  QCOMPARE(ColorFondo(f.control<QLabel>(u"pic_ColorPG"_s)), naranja);
  // Cancelled: the colour chosen stands.
  QTest::mouseClick(f.control<QWidget>(u"lbl_color"_s), Qt::LeftButton);
  QCOMPARE(dialogos.llamadasDe(u"elegirColor"_s).last().texto, naranja.name());
  QCOMPARE(f.forma().estado().colorElegido, u"33023"_s);
  // The elaborated screen paints its own box; a product with no colour opens on white.
  Pulsar(f, u"cmd_cancelar"_s);
  Pulsar(f, u"cmd_salir"_s);
  Pulsar(f, u"cmd_ProdElaborado"_s);
  Pulsar(f, u"cmd_ModificarProdEla"_s);
  dialogos.siguienteColor(QColor(0, 0, 255));
  QTest::mouseClick(f.control<QWidget>(u"pic_Color"_s), Qt::LeftButton);
  QCOMPARE(dialogos.llamadasDe(u"elegirColor"_s).last().texto, QColor(Qt::white).name());
  QCOMPARE(f.forma().estado().colorElegido, u"16711680"_s);
  QCOMPARE(ColorFondo(f.control<QLabel>(u"pic_Color"_s)), QColor(0, 0, 255));
}

void TestFormularioZona::lasFamilias() {
  FormularioPrueba f(Catalogo());
  const auto codigo = [&f](const QString& etiqueta) {
    return f.control<QLabel>(etiqueta)->property("codigo").toString();
  };
  Abrir(f, u"cmd_ProdGenerico"_s, false);
  Pulsar(f, u"bt_botones_2"_s);
  QCOMPARE(Texto(f, u"lblnomFamilia"_s), u"Familia 1"_s);
  // In navigation the panel takes the touch, the form does not.
  TocarFamilia(f, u"Familia 2"_s);
  QCOMPARE(codigo(u"lblnomFamilia"_s), u"F1"_s);
  Pulsar(f, u"cmd_modificar"_s);
  TocarFamilia(f, u"Familia 8"_s);
  QCOMPARE(Texto(f, u"lblnomFamilia"_s), u"Familia 8"_s);
  QCOMPARE(codigo(u"lblnomFamilia"_s), u"F8"_s);
  QCOMPARE(codigo(u"lblNomFamilia_elab"_s), u"-1"_s);
  // Cancelling shows the product's own family again, and touches choose nothing again.
  Pulsar(f, u"cmd_cancelar"_s);
  TocarFamilia(f, u"Familia 7"_s);
  QCOMPARE(Texto(f, u"lblnomFamilia"_s), u"Familia 1"_s);
  QCOMPARE(codigo(u"lblnomFamilia"_s), u"F1"_s);

  // The elaborated products' panel fills their own label.
  Pulsar(f, u"cmd_salir"_s);
  Pulsar(f, u"cmd_ProdElaborado"_s);
  QCOMPARE(Texto(f, u"lblNomFamilia_elab"_s), u"Familia 3"_s);
  TocarFamilia(f, u"Familia 1"_s, u"PanelFamilias_Elab"_s);
  QCOMPARE(codigo(u"lblNomFamilia_elab"_s), u"F3"_s);
  Pulsar(f, u"cmd_ModificarProdEla"_s);
  TocarFamilia(f, u"Familia 1"_s, u"PanelFamilias_Elab"_s);
  QCOMPARE(Texto(f, u"lblNomFamilia_elab"_s), u"Familia 1"_s);
  QCOMPARE(codigo(u"lblNomFamilia_elab"_s), u"F1"_s);
  QCOMPARE(codigo(u"lblnomFamilia"_s), u"F1"_s);
}

PRODUCTOS_TEST_MAIN(TestFormularioZona)
#include "test_formulario_zona.moc"
