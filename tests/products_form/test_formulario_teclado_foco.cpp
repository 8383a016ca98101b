#include <QtTest>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

#include "formulario_prueba.h"
#include "imagen_prueba.h"
#include "navegacion_teclado.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QStringList kProveedores = {
    u"insert into proveedores (codigo, nombre, borrar) values ('P1', 'Distribuciones Sur', 0)"_s,
    u"insert into proveedores (codigo, nombre, borrar) values ('P2', 'Huerta Viva', 0)"_s};

QString Familia(const QString& codigo, const QString& nombre, int orden) {
  return u"insert into seccion (codigo, nombre, borrar, menu, orden, mostrarencaja) values "
         "('%1', '%2', 0, 0, %3, 0)"_s.arg(codigo, nombre)
             .arg(orden);
}

QString Foco() {
  const QWidget* w = QApplication::focusWidget();
  return w ? w->objectName() : QString();
}

// A key goes to the control with the focus or, with none, to the active window.
void Tecla(Qt::Key tecla, Qt::KeyboardModifiers mod = Qt::NoModifier) {
  QWidget* w =
      QApplication::focusWidget() ? QApplication::focusWidget() : QApplication::activeWindow();
  QTest::keyClick(w, tecla, mod);
}

// Tab until the named control has the focus: it must be reachable from where the focus is.
void TabHasta(const QString& nombre) {
  for (int i = 0; i < 60 && Foco() != nombre; ++i)
    Tecla(Qt::Key_Tab);
  QCOMPARE(Foco(), nombre);
}

// Rubs out what the field with the focus holds and types the text.
void Teclear(const QString& texto) {
  auto* campo = qobject_cast<QLineEdit*>(QApplication::focusWidget());
  QVERIFY(campo);
  Tecla(Qt::Key_End);
  for (int i = 0; i < 40 && !campo->text().isEmpty(); ++i)
    Tecla(Qt::Key_Backspace);
  QTest::keyClicks(campo, texto);
}

}  // namespace

class TestFormularioTecladoFoco : public QObject {
  Q_OBJECT
 private slots:
  void init() { QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain)); }
  void ordenDeLectura_data();
  void ordenDeLectura();
  void unProductoSeCreaSoloConElTeclado();
  void tabSigueLaPantallaYElFocoSeVe();
  void nuevoSeMuestraEnLaCajaConSuImagenYColor();
};

void TestFormularioTecladoFoco::ordenDeLectura_data() {
  QTest::addColumn<QList<QRect>>("controles");
  QTest::addColumn<QList<QRect>>("zonas");
  QTest::addColumn<QList<int>>("orden");
  const QList<QRect> dosColumnas = {QRect(0, 0, 100, 100), QRect(100, 0, 100, 100)};
  // A row whose controls differ a little in height still reads left to right.
  QTest::newRow("fila") << QList<QRect>{{60, 2, 30, 40}, {0, 0, 50, 44}, {0, 50, 50, 44}}
                        << QList<QRect>{} << QList<int>{1, 0, 2};
  // The first column is read whole before the second, and what lies in no zone comes last.
  QTest::newRow("columnas") << QList<QRect>{{110, 0, 40, 20},
                                            {0, 40, 40, 20},
                                            {0, 0, 40, 20},
                                            {0, 150, 40, 20},
                                            {110, 40, 40, 20}}
                            << dosColumnas << QList<int>{2, 1, 0, 4, 3};
}

void TestFormularioTecladoFoco::ordenDeLectura() {
  QFETCH(QList<QRect>, controles);
  QFETCH(QList<QRect>, zonas);
  QFETCH(QList<int>, orden);
  QCOMPARE(OrdenDeLectura(controles, zonas, 16), orden);
}

void TestFormularioTecladoFoco::unProductoSeCreaSoloConElTeclado() {
  QStringList filas = kProveedores;
  for (int i = 1; i <= 8; ++i)
    filas.append(Familia(u"F%1"_s.arg(i), u"Familia %1"_s.arg(i), i));
  FormularioPrueba f(filas);
  const QString imagen = Imagen(f.inst().carpeta() + u"/origen"_s, u"tonica.png"_s, 500, Qt::blue);
  f.dialogos().siguienteArchivo(imagen);
  f.dialogos().siguienteColor(QColor(0x20, 0x80, 0xC0));
  QVERIFY(f.mostrar());

  TabHasta(u"cmd_ProdGenerico"_s);
  Tecla(Qt::Key_Space);
  QCOMPARE(Foco(), u"cmd_nuevo"_s);
  Tecla(Qt::Key_Space);
  QCOMPARE(Foco(), u"txt_nombre"_s);
  QTest::keyClicks(QApplication::focusWidget(), u"Tonica"_s);

  // The suppliers: the panel's lists answer the arrows and Space.
  TabHasta(u"cmd_Proveedor"_s);
  Tecla(Qt::Key_Space);
  TabHasta(u"lb_Proveedores"_s);
  Tecla(Qt::Key_Down);
  Tecla(Qt::Key_Space);
  auto* asignados = f.control<QListWidget>(u"lb_ProveedoresAsignados"_s);
  QCOMPARE(asignados->count(), 1);
  TabHasta(u"cmd_AceptarProveedor"_s);
  Tecla(Qt::Key_Space);

  TabHasta(u"cbo_Medida"_s);
  Tecla(Qt::Key_Down);
  QCOMPARE(f.control<QComboBox>(u"cbo_Medida"_s)->currentText(), u"Unidades"_s);
  // An option group is one stop of Tab ("Ambos" is set); the arrows choose within it.
  TabHasta(u"opt_ambos"_s);
  Tecla(Qt::Key_Left);
  Tecla(Qt::Key_Left);
  QVERIFY(f.control<QAbstractButton>(u"opt_Venta"_s)->isChecked());
  TabHasta(u"txt_coste"_s);
  Teclear(u"2"_s);
  TabHasta(u"txt_iva"_s);
  Teclear(u"10"_s);
  TabHasta(u"txt_margen"_s);
  Teclear(u"1"_s);
  Tecla(Qt::Key_Return);
  QCOMPARE(f.control<QLineEdit>(u"txt_precio"_s)->text(), u"3,30"_s);
  TabHasta(u"optCocina"_s);
  Tecla(Qt::Key_Right);
  QCOMPARE(Foco(), u"optBarra"_s);
  Tecla(Qt::Key_Space);
  QVERIFY(f.control<QAbstractButton>(u"optBarra"_s)->isChecked());

  // The families panel: Right walks its buttons and turns its page; Enter chooses.
  TabHasta(u"PanelFamilias"_s);
  for (int i = 0; i < 6; ++i)
    Tecla(Qt::Key_Right);
  Tecla(Qt::Key_Return);
  QCOMPARE(f.control<QLabel>(u"lblnomFamilia"_s)->text(), u"Familia 7"_s);

  // The picture and colour boxes answer Enter and Space as a touch.
  TabHasta(u"pict_imagen"_s);
  Tecla(Qt::Key_Return);
  TabHasta(u"pic_ColorPG"_s);
  Tecla(Qt::Key_Space);
  QCOMPARE(f.dialogos().llamadasDe(u"abrirArchivo"_s).size(), 1);
  QCOMPARE(f.dialogos().llamadasDe(u"elegirColor"_s).size(), 1);

  Tecla(Qt::Key_F10);
  QVERIFY2(f.control<QPushButton>(u"cmd_nuevo"_s)->isEnabled(),
           qPrintable(f.dialogos().mensajes().join(u" | "_s)));
  const auto filasGuardadas = f.inst().filas(
      u"select nombre, seccion, mostrarencaja, foto, color, precio from productos"_s);
  QCOMPARE(filasGuardadas.size(), 1);
  const QVariantList p = filasGuardadas.first();
  QCOMPARE(p.at(0).toString(), u"Tonica"_s);
  QCOMPARE(p.at(1).toString(), u"F7"_s);
  QCOMPARE(p.at(2).toInt(), 0);
  QCOMPARE(p.at(3).toString(), u"tonica.png"_s);
  QCOMPARE(p.at(4).toLongLong(), 0xC08020);
  QCOMPARE(p.at(5).toDouble(), 3.3);
  QCOMPARE(f.inst().filas(u"select proveedor from productoproveedor"_s).size(), 1);
}

void TestFormularioTecladoFoco::tabSigueLaPantallaYElFocoSeVe() {
  QStringList filas = kProveedores;
  filas << Familia(u"F1"_s, u"Cervezas"_s, 1) << Producto(u"1"_s, u"Caña"_s)
        << Stock(u"1"_s, u"5"_s, u"1"_s);
  FormularioPrueba f(filas);
  QVERIFY(f.mostrar());
  TabHasta(u"cmd_ProdGenerico"_s);
  Tecla(Qt::Key_Space);
  Tecla(Qt::Key_F2);
  QCOMPARE(Foco(), u"txt_nombre"_s);
  QStringList recorrido{Foco()};
  for (int i = 0; i < 60; ++i) {
    Tecla(Qt::Key_Tab);
    if (Foco() == recorrido.first())
      break;
    recorrido.append(Foco());
    // The ring stands round the control with the focus, over everything else.
    const QWidget* anillo = f.control<QWidget>(u"anillo_foco"_s);
    const QWidget* foco = QApplication::focusWidget();
    QVERIFY(anillo->isVisible());
    QVERIFY(anillo->geometry().contains(
        QRect(foco->mapTo(&f.forma(), QPoint()), foco->size()).adjusted(-1, -1, 1, 1)));
  }
  // The fields' column row by row (an option group is one stop: its option that is set), then
  // the till button's column, then the foot.
  const QStringList esperado = {
      u"txt_nombre"_s,    u"txtCodBarras"_s, u"txt_descripcion"_s,  u"cmd_Proveedor"_s,
      u"cbo_Medida"_s,    u"opt_Venta"_s,    u"txt_coste"_s,        u"txt_iva"_s,
      u"txt_margen"_s,    u"txt_precio"_s,   u"txt_stock_minimo"_s, u"txt_stock_actual"_s,
      u"optBarra"_s,      u"ch_Mostrar"_s,   u"chkProdEspecial"_s,  u"Command1"_s,
      u"PanelFamilias"_s, u"pict_imagen"_s,  u"pic_ColorPG"_s,      u"txtDescNumericaPGen"_s,
      u"bt_botonAnt"_s,   u"bt_botonSig"_s,  u"cmd_aceptar"_s,      u"cmd_cancelar"_s};
  QCOMPARE(recorrido.join(u' '), esperado.join(u' '));
  // Shift+Tab walks back.
  Tecla(Qt::Key_Backtab, Qt::ShiftModifier);
  QCOMPARE(Foco(), u"cmd_cancelar"_s);
}

void TestFormularioTecladoFoco::nuevoSeMuestraEnLaCajaConSuImagenYColor() {
  // The product on show before "Nuevo" is an ingredient, hidden from the till.
  QStringList filas = kProveedores;
  filas << Producto(u"1"_s, u"Harina"_s, {{u"mostrarencaja"_s, u"-1"_s}, {u"tipoprod"_s, u"0"_s}})
        << Stock(u"1"_s, u"5"_s, u"1"_s);
  FormularioPrueba f(filas);
  QVERIFY(f.mostrar());
  QTest::mouseClick(f.control<QPushButton>(u"cmd_ProdGenerico"_s), Qt::LeftButton);
  auto* mostrar = f.control<QCheckBox>(u"ch_Mostrar"_s);
  QVERIFY(!mostrar->isChecked());
  QTest::mouseClick(f.control<QPushButton>(u"cmd_nuevo"_s), Qt::LeftButton);
  f.control<QComboBox>(u"cbo_Medida"_s)->setCurrentIndex(0);
  QTest::mouseClick(f.control<QWidget>(u"opt_Venta"_s), Qt::LeftButton);
  QVERIFY(mostrar->isVisible());
  QVERIFY(mostrar->isChecked());
  for (const QString& nombre : {u"pict_imagen"_s, u"pic_ColorPG"_s, u"txtDescNumericaPGen"_s})
    QVERIFY2(f.control<QWidget>(nombre)->isVisible(), qPrintable(nombre));
  // Clearing the box takes them away; ticking it brings them back.
  QTest::mouseClick(mostrar, Qt::LeftButton);
  QVERIFY(!f.control<QWidget>(u"pict_imagen"_s)->isVisible());
  QTest::mouseClick(mostrar, Qt::LeftButton);
  QVERIFY(f.control<QWidget>(u"pict_imagen"_s)->isVisible());
}

PRODUCTOS_TEST_MAIN(TestFormularioTecladoFoco)
#include "test_formulario_teclado_foco.moc"
