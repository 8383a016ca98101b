#include <QtTest>

#include <QBuffer>
#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QGroupBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>

#include "color_vb.h"
#include "colorear.h"
#include "formulario_prueba.h"
#include "imagen_prueba.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// The colour in the middle of the picture a box shows.
QColor ColorMostrado(const QLabel* caja) {
  const QImage imagen = caja->pixmap().toImage();
  return imagen.isNull() ? QColor() : imagen.pixelColor(imagen.width() / 2, imagen.height() / 2);
}

void Tocar(FormularioPrueba& f, const QString& nombre) {
  auto* w = f.control<QWidget>(nombre);
  QVERIFY2(w && w->isVisible(), qPrintable(nombre));
  QTest::mouseClick(w, Qt::LeftButton);
}

const QString kProveedor =
    u"insert into proveedores (codigo, nombre, borrar) values ('P1', 'Distribuciones Sur', 0)"_s;

QStringList ProductosDePrueba() {
  return {kProveedor, Producto(u"1"_s, u"Caña"_s), Stock(u"1"_s, u"5"_s, u"1"_s),
          // The first simple product by name, shown when the screen opens.
          Producto(u"2"_s, u"Arroz"_s, {{u"color"_s, u"255"_s}}), Stock(u"2"_s, u"5"_s, u"1"_s),
          Producto(u"3"_s, u"Paella"_s, {{u"color"_s, u"null"_s}}), Stock(u"3"_s, u"0"_s, u"0"_s),
          u"insert into productoElaborado_producto (productopadre, productohijo, cantidad) "
          "values ('3', '2', 4)"_s};
}

// The dialog service of the tests, which also notes whether the colour frame is on show while
// the colour dialog is open, and keeps a picture of the form at that moment.
class DialogosConMarco : public DialogosGuion {
 public:
  QWidget* formulario = nullptr;
  bool marcoVisible = false;
  QImage captura;

  std::optional<QColor> elegirColor(const QColor& inicial) override {
    const QWidget* marco = formulario->findChild<QWidget*>(u"fr_colores"_s);
    marcoVisible = marco && marco->isVisible();
    captura = formulario->grab().toImage();
    return DialogosGuion::elegirColor(inicial);
  }
};

}  // namespace

class TestImagenColor : public QObject {
  Q_OBJECT
 private slots:
  void init() {
    QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain));
    origen_ = std::make_unique<QTemporaryDir>();
  }
  void elLimiteDe75000BytesEnLosProductosSimples();
  void losElaboradosNoTienenLimite();
  void soloEnModoCambios();
  void elColorPintaSuCajaYSeGuarda();

 private:
  std::unique_ptr<QTemporaryDir> origen_;
};

void TestImagenColor::elLimiteDe75000BytesEnLosProductosSimples() {
  FormularioPrueba f(ProductosDePrueba());
  const QString justa = Imagen(origen_->path(), u"justa.png"_s, 75000, Qt::red);
  const QString grande = Imagen(origen_->path(), u"grande.png"_s, 75001, Qt::green);
  QVERIFY(f.mostrar());
  Pulsar(f, u"cmd_ProdGenerico"_s);
  Pulsar(f, u"cmd_modificar"_s);

  f.dialogos().siguienteArchivo(justa);
  Tocar(f, u"pict_imagen"_s);
  const QString fotos = QDir(f.inst().carpeta()).filePath(u"fotos"_s);
  const QList<DialogosGuion::Llamada> dialogos = f.dialogos().llamadasDe(u"abrirArchivo"_s);
  QCOMPARE(dialogos.size(), 1);
  QCOMPARE(dialogos.first().texto, fotos + u"|*.*"_s);
  QCOMPARE(f.forma().estado().fotoElegida, u"justa.png"_s);
  auto* caja = f.control<QLabel>(u"pict_imagen"_s);
  QCOMPARE(ColorMostrado(caja), QColor(Qt::red));
  QCOMPARE(Contenido(QDir(fotos).filePath(u"justa.png"_s)), Contenido(justa));
  QVERIFY(f.dialogos().mensajes().isEmpty());

  // One byte more is refused with its notice; the previous picture stands.
  f.dialogos().siguienteArchivo(grande);
  Tocar(f, u"lbl_Insertar"_s);
  const QList<DialogosGuion::Llamada> avisos = f.dialogos().llamadasDe(u"mensaje"_s);
  QCOMPARE(avisos.size(), 1);
  QCOMPARE(avisos.first().texto,
           u"El archivo seleccionado es demasiado grande, es necesario que seleccione una imagen "
           "mas pequeña para que el programa funcione de forma optima.\r\nNo use imagenes "
           "superiores a 75 kb de tamaño"_s);
  QCOMPARE(avisos.first().titulo, u"Imagen demasiado grande"_s);
  QCOMPARE(avisos.first().icono, ServicioDialogos::Icono::Informacion);
  QCOMPARE(f.forma().estado().fotoElegida, u"justa.png"_s);
  QCOMPARE(ColorMostrado(caja), QColor(Qt::red));
  QVERIFY(!QFile::exists(QDir(fotos).filePath(u"grande.png"_s)));

  // A cancelled dialog changes nothing.
  Tocar(f, u"pict_imagen"_s);
  QCOMPARE(f.dialogos().llamadasDe(u"abrirArchivo"_s).size(), 3);
  QCOMPARE(f.forma().estado().fotoElegida, u"justa.png"_s);
  QCOMPARE(f.dialogos().mensajes().size(), 1);
}

void TestImagenColor::losElaboradosNoTienenLimite() {
  FormularioPrueba f(ProductosDePrueba());
  const QString grande = Imagen(origen_->path(), u"grande.png"_s, 75001, Qt::blue);
  QVERIFY(f.mostrar());
  Pulsar(f, u"cmd_ProdElaborado"_s);
  QCOMPARE(f.control<QLineEdit>(u"txt_NombreElaborado"_s)->text(), u"Paella"_s);
  Pulsar(f, u"cmd_ModificarProdEla"_s);

  f.dialogos().siguienteArchivo(grande);
  Tocar(f, u"pic_ProductoElaborado"_s);
  // The dialog opens on the installation's photo folder, and the copy goes there.
  const QString rutaFotos = QDir(f.inst().carpeta()).filePath(u"fotos"_s);
  QCOMPARE(f.dialogos().llamadasDe(u"abrirArchivo"_s).first().texto, rutaFotos + u"/|*.*"_s);
  QVERIFY(f.dialogos().mensajes().isEmpty());
  QCOMPARE(f.forma().estado().fotoElegida, u"grande.png"_s);
  QCOMPARE(ColorMostrado(f.control<QLabel>(u"pic_ProductoElaborado"_s)), QColor(Qt::blue));
  QCOMPARE(Contenido(QDir(rutaFotos).filePath(u"grande.png"_s)), Contenido(grande));
  // The cost comes next.
  QTRY_COMPARE(QApplication::focusWidget(), f.control<QWidget>(u"txt_costeElaborado"_s));
}

void TestImagenColor::soloEnModoCambios() {
  FormularioPrueba f(ProductosDePrueba());
  const QString buena = Imagen(origen_->path(), u"buena.png"_s, 200, Qt::red);
  QVERIFY(f.mostrar());
  Pulsar(f, u"cmd_ProdGenerico"_s);
  f.dialogos().siguienteArchivo(buena);
  f.dialogos().siguienteColor(QColor(Qt::blue));
  for (const QString& caja :
       {u"pict_imagen"_s, u"lbl_Insertar"_s, u"pic_ColorPG"_s, u"lbl_color"_s}) {
    Tocar(f, caja);
  }
  QVERIFY(f.dialogos().llamadas().isEmpty());
  QCOMPARE(f.forma().estado().colorElegido, u"255"_s);
  QVERIFY(f.forma().estado().fotoElegida.isEmpty());

  // The till's button goes with the box "shown on the till".
  Pulsar(f, u"cmd_modificar"_s);
  auto* mostrar = f.control<QCheckBox>(u"ch_Mostrar"_s);
  QVERIFY(mostrar->isChecked());
  QTest::mouseClick(mostrar, Qt::LeftButton);
  for (const QString& oculto : {u"pict_imagen"_s, u"pic_ColorPG"_s, u"lbl_color"_s,
                                u"txtDescNumericaPGen"_s, u"lblPos"_s, u"bt_botonSig"_s}) {
    QVERIFY2(!f.control<QWidget>(oculto)->isVisible(), qPrintable(oculto));
  }
  QTest::mouseClick(mostrar, Qt::LeftButton);
  for (const QString& visible : {u"pict_imagen"_s, u"pic_ColorPG"_s, u"lbl_color"_s,
                                 u"txtDescNumericaPGen"_s, u"lblPos"_s, u"bt_botonSig"_s}) {
    QVERIFY2(f.control<QWidget>(visible)->isVisible(), qPrintable(visible));
  }
}

void TestImagenColor::elColorPintaSuCajaYSeGuarda() {
  FormularioPrueba f(ProductosDePrueba());
  DialogosConMarco guion;
  DialogosConMarco* dialogos = &guion;
  f.entorno().dialogos = dialogos;
  dialogos->formulario = &f.forma();
  QVERIFY(f.mostrar());
  Pulsar(f, u"cmd_ProdGenerico"_s);
  Pulsar(f, u"cmd_modificar"_s);
  auto* frame = f.control<QGroupBox>(u"fr_colores"_s);

  const QColor naranja(255, 128, 0);
  dialogos->siguienteColor(naranja);
  Tocar(f, u"pic_ColorPG"_s);
  // The dialog opens on the product's colour, over the colour frame, which then leaves.
  const QList<DialogosGuion::Llamada> abiertos = dialogos->llamadasDe(u"elegirColor"_s);
  QCOMPARE(abiertos.size(), 1);
  QCOMPARE(abiertos.first().texto, QColor(255, 0, 0).name());
  QVERIFY(dialogos->marcoVisible);
  QVERIFY(!frame->isVisible());
  QCOMPARE(f.forma().estado().colorElegido, QString::number(ValorDeColor(naranja)));
  QCOMPARE(f.forma().estado().colorElegido, u"33023"_s);
  QCOMPARE(ColorFondo(f.control<QLabel>(u"pic_ColorPG"_s)), naranja);
  if (qEnvironmentVariableIsSet("PRODUCTOS_CAPTURAS"))
    dialogos->captura.save(qEnvironmentVariable("PRODUCTOS_CAPTURAS") + u"/colores.png"_s);

  // Cancelled: the colour chosen stands.
  Tocar(f, u"lbl_color"_s);
  QCOMPARE(dialogos->llamadasDe(u"elegirColor"_s).last().texto, naranja.name());
  QCOMPARE(f.forma().estado().colorElegido, u"33023"_s);
  QCOMPARE(ColorFondo(f.control<QLabel>(u"pic_ColorPG"_s)), naranja);
  QVERIFY(!frame->isVisible());

  // The elaborated screen paints its own box; a product with no colour opens on white.
  Pulsar(f, u"cmd_cancelar"_s);
  Pulsar(f, u"cmd_salir"_s);
  Pulsar(f, u"cmd_ProdElaborado"_s);
  Pulsar(f, u"cmd_ModificarProdEla"_s);
  dialogos->siguienteColor(QColor(0, 0, 255));
  Tocar(f, u"pic_Color"_s);
  QCOMPARE(dialogos->llamadasDe(u"elegirColor"_s).last().texto, QColor(Qt::white).name());
  QCOMPARE(f.forma().estado().colorElegido, u"16711680"_s);
  QCOMPARE(ColorFondo(f.control<QLabel>(u"pic_Color"_s)), QColor(0, 0, 255));
  QVERIFY(f.control<QLabel>(u"lbl_colorElab"_s)->isVisible());
}

PRODUCTOS_TEST_MAIN(TestImagenColor)
#include "test_imagen_color.moc"
