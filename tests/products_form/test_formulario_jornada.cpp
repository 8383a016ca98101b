#include <QtTest>

#include <QApplication>
#include <QLabel>
#include <QPushButton>

#include "color_vb.h"
#include "colorear.h"
#include "formulario_prueba.h"
#include "importes.h"
#include "panel_obj_nuevo.h"

using namespace Qt::Literals::StringLiterals;

// A manager's day by keyboard and touch on the screen PRODUCTOS_PANTALLA (1024x768 when unset).
namespace {

// The scheme's focus colour (yellow) and entry colour (white).
const QColor kFoco = ColorDesdeValor(0x00FFFF);
const QColor kCampo = ColorDesdeValor(0xFFFFFF);

QSize Pantalla() {
  const QStringList p = qEnvironmentVariable("PRODUCTOS_PANTALLA", u"1024x768"_s).split(u'x');
  return {p.value(0).toInt(), p.value(1).toInt()};
}

QString Foco() {
  return QApplication::focusWidget() ? QApplication::focusWidget()->objectName() : QString();
}

void Tecla(Qt::Key tecla, int veces = 1) {
  for (int i = 0; i < veces; ++i) {
    QWidget* w = QApplication::focusWidget();
    QTest::keyClick(w ? w : QApplication::activeWindow(), tecla,
                    tecla == Qt::Key_Backtab ? Qt::ShiftModifier : Qt::NoModifier);
  }
}

// Tab until the named control has the focus (it must be reachable); then the keys and text.
void En(const QString& nombre, std::initializer_list<Qt::Key> teclas = {},
        const QString& texto = {}) {
  for (int i = 0; i < 60 && Foco() != nombre; ++i)
    Tecla(Qt::Key_Tab);
  QCOMPARE(Foco(), nombre);
  for (Qt::Key t : teclas)
    Tecla(t);
  QTest::keyClicks(QApplication::focusWidget(), texto);
}

QRect EnVentana(const QWidget* w) {
  return QRect(w->mapTo(w->window(), QPoint()), w->size());
}

// The simple products' screen on a product with supplier and picture; families fill two pages.
FormularioPrueba* Abrir(const QStringList& filas = {}, const QString& enCaja = u"0"_s) {
  QStringList todas = filas;
  todas << Proveedor(u"P1"_s, u"Huerta"_s)
        << Producto(u"1"_s, u"Harina"_s,
                    {{u"mostrarencaja"_s, enCaja},
                     {u"proveedor"_s, u"'P1'"_s},
                     {u"foto"_s, u"'c.png'"_s}})
        << Stock(u"1"_s, u"5"_s, u"1"_s);
  for (int i = 1; i <= 8; ++i)
    todas << Familia(u"F%1"_s.arg(i), u"Refrescos y aguas %1"_s.arg(i), i);
  auto* f = new FormularioPrueba(todas);
  Imagen(f->inst().carpeta() + u"/fotos"_s, u"c.png"_s, 400, Qt::blue);
  if (f->mostrar())
    QTest::mouseClick(f->control<QPushButton>(u"cmd_ProdGenerico"_s), Qt::LeftButton);
  return f;
}

// Presses keys of the on-screen keyboard: one character each, "\b" Backspace, "\r" Enter.
void Teclear(FormularioPrueba& f, const QString& teclas) {
  for (QChar c : teclas) {
    const int codigo = c == u'\b' ? 8 : c == u'\r' ? 13 : c.unicode();
    Pulsar(f, u"bt_letra_%1"_s.arg(codigo));
  }
}

}  // namespace

class TestFormularioJornada : public QObject {
  Q_OBJECT
 private slots:
  void init() { QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain)); }
  void unProductoSeCreaSoloConElTeclado();
  void tabSigueLaPantallaYElFocoSeVe();
  void cadaPantallaEnteraYLegible();
  void elTecladoEnPantalla();
  void losImportes();
};

void TestFormularioJornada::unProductoSeCreaSoloConElTeclado() {
  // The product on show before "Nuevo" is hidden from the till.
  std::unique_ptr<FormularioPrueba> f(Abrir({}, u"-1"_s));
  f->dialogos().siguienteArchivo(Imagen(f->inst().carpeta() + u"/o"_s, u"t.png"_s, 500, Qt::blue));
  f->dialogos().siguienteColor(QColor(0x20, 0x80, 0xC0));
  En(u"cmd_nuevo"_s, {Qt::Key_Space}, u"Tonica"_s);
  En(u"cmd_Proveedor"_s, {Qt::Key_Space});
  En(u"lb_Proveedores"_s, {Qt::Key_Down, Qt::Key_Space});
  En(u"cmd_AceptarProveedor"_s, {Qt::Key_Space});
  En(u"cbo_Medida"_s, {Qt::Key_Down});
  // An option group is one stop ("Ambos" is set); the arrows choose within it.
  En(u"opt_ambos"_s, {Qt::Key_Left, Qt::Key_Left});
  for (const auto& [campo, valor] :
       {std::pair{u"txt_coste"_s, u"2"_s}, {u"txt_iva"_s, u"10"_s}, {u"txt_margen"_s, u"1"_s}}) {
    En(campo, {Qt::Key_End});
    Tecla(Qt::Key_Backspace, 9);
    QTest::keyClicks(QApplication::focusWidget(), valor);
  }
  Tecla(Qt::Key_Return);
  En(u"optCocina"_s, {Qt::Key_Right, Qt::Key_Space});
  En(u"PanelFamilias"_s);
  Tecla(Qt::Key_Right, 6);
  Tecla(Qt::Key_Return);
  // The picture and colour come with the till box, ticked for a new product.
  En(u"pict_imagen"_s, {Qt::Key_Return});
  En(u"pic_ColorPG"_s, {Qt::Key_Space, Qt::Key_F10});
  QVERIFY2(f->dialogos().mensajes().isEmpty(), qPrintable(f->dialogos().mensajes().join(u'|')));
  QCOMPARE(f->inst().filas(u"select nombre, seccion, mostrarencaja, foto, color, precio, hechoen "
                           "from productos where codigo = '2'"_s),
           (QList<QVariantList>{{u"Tonica"_s, u"F7"_s, 0, u"t.png"_s, 12615712, 3.3, 1}}));
  QCOMPARE(f->inst().filas(u"select proveedor from productoproveedor"_s).size(), 1);
}

void TestFormularioJornada::tabSigueLaPantallaYElFocoSeVe() {
  std::unique_ptr<FormularioPrueba> f(Abrir());
  Tecla(Qt::Key_F2);
  QStringList recorrido{Foco()};
  for (Tecla(Qt::Key_Tab); Foco() != recorrido.first() && recorrido.size() < 60; Tecla(Qt::Key_Tab))
    recorrido << Foco();
  // The fields row by row (an option group is one stop), the till button's column, the foot.
  QCOMPARE(recorrido.join(u' '),
           u"txt_nombre txtCodBarras txt_descripcion cmd_Proveedor cbo_Medida opt_Venta txt_coste "
           "txt_iva txt_margen txt_precio txt_stock_minimo txt_stock_actual optBarra ch_Mostrar "
           "chkProdEspecial Command1 PanelFamilias pict_imagen pic_ColorPG txtDescNumericaPGen "
           "bt_botonAnt bt_botonSig cmd_aceptar cmd_cancelar"_s);
  Tecla(Qt::Key_Backtab);
  QCOMPARE(Foco(), u"cmd_cancelar"_s);
  const QWidget* anillo = f->control<QWidget>(u"anillo_foco"_s);
  QVERIFY(anillo->isVisible() &&
          anillo->geometry().contains(EnVentana(QApplication::focusWidget())));
}

// Every screen is whole: nothing out of the window or cut, the panel with its arrows.
void TestFormularioJornada::cadaPantallaEnteraYLegible() {
  std::unique_ptr<FormularioPrueba> f(Abrir());
  QWidget& v = f->forma();
  QVERIFY(v.width() <= Pantalla().width() && v.height() <= Pantalla().height());
  for (const QString& boton :
       {u"cmd_modificar"_s, u"cmd_Proveedor"_s, u"cmd_CancelarProveedor"_s, u"cmd_cancelar"_s,
        u"cmd_ListaProd"_s, u"cmd_salir"_s, u"cmd_ProdElaborado"_s, u"cmd_NuevoProdEla"_s}) {
    QStringList fallos;
    for (const QWidget* w : v.findChildren<QWidget*>()) {
      const QFontMetrics fm(w->font());
      const auto* l = qobject_cast<const QLabel*>(w);
      const QRect texto = l ? fm.boundingRect(QRect(0, 0, l->contentsRect().width(), 9999),
                                              l->wordWrap() ? Qt::TextWordWrap : 0, l->text())
                            : QRect();
      const bool corta =
          l ? l->pixmap().isNull() && (texto.width() > l->contentsRect().width() ||
                                       texto.height() > l->contentsRect().height() + 2)
          : qobject_cast<const QPushButton*>(w)
              ? fm.horizontalAdvance(static_cast<const QPushButton*>(w)->text()) + 14 > w->width()
              : qobject_cast<const QAbstractButton*>(w) && w->sizeHint().width() > w->width();
      const QWidget* panel =
          w->objectName().startsWith(u"flecha"_s) ? w->parentWidget()->parentWidget() : &v;
      if (w->isVisible() && !w->objectName().isEmpty() && w->objectName() != u"anillo_foco"_s &&
          (corta || !EnVentana(panel).contains(EnVentana(w))))
        fallos << w->objectName();
    }
    QVERIFY2(fallos.isEmpty(), qPrintable(boton + u": "_s + fallos.join(u' ')));
    QTest::mouseClick(f->control<QPushButton>(boton), Qt::LeftButton);
  }
}

void TestFormularioJornada::elTecladoEnPantalla() {
  std::unique_ptr<FormularioPrueba> f(Abrir());
  // With no field touched yet, the keys do nothing.
  QVERIFY(!f->forma().importes().campoActual());
  Teclear(*f, u"A1\b\r"_s);
  // A locked field: a whole selection is cleared before the lock is looked at, as it always
  // was, but nothing is written.
  QLineEdit* nombre = TocarCampo(*f, u"txt_nombre"_s);
  QCOMPARE(nombre->selectedText(), u"Harina"_s);
  Teclear(*f, u"X"_s);
  QCOMPARE(nombre->text(), QString());
  Teclear(*f, u"X\b"_s);
  QCOMPARE(nombre->text(), QString());

  Pulsar(*f, u"cmd_modificar"_s);
  QList<double> aceptadas;
  f->forma().importes().aceptarCantidad = [&](double c) { aceptadas.append(c); };
  QLineEdit* descripcion = TocarCampo(*f, u"txt_descripcion"_s);
  QTRY_COMPARE(f->forma().importes().campoActual(), descripcion);
  // Written at the end whatever the caret, the last one rubbed out; the focus stays.
  Teclear(*f, u"BAR"_s);
  descripcion->home(false);
  Teclear(*f, u"\u00D1 1\b\b\r"_s);
  QCOMPARE(descripcion->text(), u"BAR\u00D1"_s);
  QCOMPARE(QApplication::focusWidget(), descripcion);
  QVERIFY(aceptadas.isEmpty());
  // The description's keys mark the suppliers' button as the next step.
  QCOMPARE(ColorFondo(f->control<QWidget>(u"cmd_Proveedor"_s)), kFoco);
  descripcion->selectAll();
  Teclear(*f, u"X"_s);
  QCOMPARE(descripcion->text(), u"X"_s);
  // An amount: a refused key still appends, the character of code 0.
  QLineEdit* coste = TocarCampo(*f, u"txt_coste"_s);
  coste->clear();
  Teclear(*f, u"3,257"_s);
  QCOMPARE(coste->text(), u"3,25"_s + QChar(0));
  // The minimum stock takes digits only.
  TocarCampo(*f, u"txt_stock_minimo"_s)->clear();
  Teclear(*f, u"2,A5"_s);
  QCOMPARE(Texto(*f, u"txt_stock_minimo"_s), u"25"_s);
  // In the quantity of a component, Enter accepts a quantity above 0, by either keyboard; the
  // point types the comma; a rejected key leaves a whole selection as it was; Escape discards.
  int descartadas = 0;
  f->forma().importes().descartarCantidad = [&] { ++descartadas; };
  MostrarMarco(f->control<QWidget>(u"fr_Cantidad"_s));
  QLineEdit* cantidad = TocarCampo(*f, u"txt_Cantidad"_s);
  cantidad->setText(u"0"_s);
  Teclear(*f, u"\r\b3\r"_s);
  QCOMPARE(aceptadas, QList<double>{3.0});
  QCOMPARE(cantidad->text(), QString());
  QTest::keyClick(cantidad, Qt::Key_Return);
  QTest::keyClicks(cantidad, u"2.5"_s);
  QTest::keyClick(cantidad, Qt::Key_Return);
  QCOMPARE(aceptadas, (QList<double>{3.0, 2.5}));
  cantidad->setText(u"12"_s);
  cantidad->selectAll();
  QTest::keyClicks(cantidad, u"x"_s);
  QCOMPARE(cantidad->text(), u"12"_s);
  QTest::keyClick(cantidad, Qt::Key_Escape);
  QCOMPARE(descartadas, 1);
}

void TestFormularioJornada::losImportes() {
  std::unique_ptr<FormularioPrueba> f(Abrir());
  Pulsar(*f, u"cmd_modificar"_s);
  // Change mode gives the name the focus; a touch in a field that has it only moves the caret.
  TocarCampo(*f, u"txt_descripcion"_s);
  QLineEdit* nombre = TocarCampo(*f, u"txt_nombre"_s);
  QTRY_COMPARE(f->forma().importes().campoActual(), nombre);
  QCOMPARE(ColorFondo(nombre), kFoco);
  QCOMPARE(nombre->selectedText(), u"Harina"_s);
  QTest::keyClicks(nombre, u"Agua"_s);
  QCOMPARE(nombre->text(), u"Agua"_s);
  QLineEdit* coste = TocarCampo(*f, u"txt_coste"_s);
  QCOMPARE(ColorFondo(coste), kFoco);
  QCOMPARE(ColorFondo(nombre), kCampo);
  // A rejected key still clears a whole selection: the key was meant to replace it.
  QTest::keyClicks(coste, u"a"_s);
  QCOMPARE(coste->text(), QString());
  QTest::keyClicks(coste, u"1.5,2"_s);
  QCOMPARE(coste->text(), u"1,52"_s);
  QTest::keyClick(coste, Qt::Key_Backspace);
  QCOMPARE(coste->text(), u"1,5"_s);
  QLineEdit* minimo = TocarCampo(*f, u"txt_stock_minimo"_s);
  QCOMPARE(minimo->selectedText(), u"1"_s);
  QTest::keyClicks(minimo, u"2,5a."_s);
  QCOMPARE(minimo->text(), u"25"_s);

  auto* margen = f->control<QLineEdit>(u"txt_margen"_s);
  auto* precio = f->control<QLineEdit>(u"txt_precio"_s);
  // The margin with no cost: a notice for each key, and the key goes in.
  f->control<QLineEdit>(u"txt_coste"_s)->clear();
  TocarCampo(*f, u"txt_margen"_s);
  QTest::keyClicks(margen, u"7x"_s);
  const QString aviso = u"Debe Indicar Antes una Cantidad para el coste y para el iva"_s;
  QCOMPARE(f->dialogos().mensajes(), (QStringList{aviso, aviso}));
  QCOMPARE(f->dialogos().llamadas().first().titulo, QString());
  QCOMPARE(margen->text(), u"7x"_s);
  // The cost marks the tax, the tax the price.
  QTest::keyClicks(TocarCampo(*f, u"txt_coste"_s), u"10"_s);
  QCOMPARE(ColorFondo(f->control<QWidget>(u"txt_iva"_s)), kFoco);
  QCOMPARE(ColorFondo(precio), kCampo);
  QTest::keyClicks(TocarCampo(*f, u"txt_iva"_s), u"10"_s);
  QCOMPARE(ColorFondo(precio), kFoco);
  // The margin gives the price; the price's change works the margin out again, tax on the
  // margin included.
  margen->setText(u"5"_s);
  QTest::keyClick(margen, Qt::Key_Return);
  QCOMPARE(precio->text(), u"16,50"_s);
  QCOMPARE(margen->text(), u"5,50"_s);
  QTest::keyClicks(TocarCampo(*f, u"txt_coste"_s), u"1000"_s);
  margen->setText(u"122,5"_s);
  QTest::keyClick(margen, Qt::Key_Enter);
  QCOMPARE(precio->text(), u"1.234,75"_s);
  QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
  margen->setText(u"5"_s);
  f->control<QLineEdit>(u"txt_coste"_s)->setText(u"10"_s);
  QTest::keyClick(margen, Qt::Key_Return);
  QCOMPARE(precio->text(), u"16.50"_s);
  QCOMPARE(margen->text(), u"5.50"_s);
  QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain));
  // A price typed gives the margin; with no cost the cost becomes 0 and the margin stays.
  f->control<QLineEdit>(u"txt_coste"_s)->setText(u"100"_s);
  QTest::keyClicks(TocarCampo(*f, u"txt_precio"_s), u"121"_s);
  QCOMPARE(margen->text(), u"11,00"_s);
  f->control<QLineEdit>(u"txt_coste"_s)->clear();
  QTest::keyClicks(TocarCampo(*f, u"txt_precio"_s), u"5"_s);
  QCOMPARE(Texto(*f, u"txt_coste"_s), u"0"_s);
  QCOMPARE(margen->text(), u"11,00"_s);
  // A new product's price brings what follows it.
  Pulsar(*f, u"cmd_cancelar"_s);
  Pulsar(*f, u"cmd_nuevo"_s);
  QVERIFY(Visible(*f, u"frOcultarGen"_s) && !Visible(*f, u"ch_Mostrar"_s));
  precio->setText(u"3"_s);
  QVERIFY(!Visible(*f, u"frOcultarGen"_s));
  Exigir(*f, &Visible, u"ch_Mostrar lblPreparado optCocina optBarra"_s, true);
}

PRODUCTOS_TEST_MAIN_PANTALLA(TestFormularioJornada, Pantalla().width(), Pantalla().height())
#include "test_formulario_jornada.moc"
