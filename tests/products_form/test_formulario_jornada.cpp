#include <QtTest>

#include <QApplication>
#include <QLabel>
#include <QPushButton>

#include "datos_catalogo.h"
#include "formulario_prueba.h"
#include "imagen_prueba.h"
#include "panel_obj_nuevo.h"

using namespace Qt::Literals::StringLiterals;

// A manager's day on the form, on the screen PRODUCTOS_PANTALLA (1024x768 when unset).
namespace {

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

// The simple products' screen on a product with its supplier and picture, shown on the till
// unless `enCaja` says otherwise; eight families fill two pages of the panel.
FormularioPrueba* Abrir(const QStringList& filas = {}, const QString& enCaja = u"0"_s) {
  QStringList todas = filas;
  todas << u"insert into proveedores (codigo, nombre, borrar) values ('P1', 'Huerta', 0)"_s
        << Producto(u"1"_s, u"Harina"_s,
                    {{u"mostrarencaja"_s, enCaja},
                     {u"proveedor"_s, u"'P1'"_s},
                     {u"foto"_s, u"'c.png'"_s}})
        << Stock(u"1"_s, u"5"_s, u"1"_s);
  for (int i = 1; i <= 8; ++i) {
    todas << u"insert into seccion (codigo, nombre, borrar, menu, orden, mostrarencaja) values "
             "('F%1', 'Refrescos y aguas %1', 0, 0, %1, 0)"_s.arg(i);
  }
  auto* f = new FormularioPrueba(todas);
  Imagen(f->inst().carpeta() + u"/fotos"_s, u"c.png"_s, 400, Qt::blue);
  if (f->mostrar())
    QTest::mouseClick(f->control<QPushButton>(u"cmd_ProdGenerico"_s), Qt::LeftButton);
  return f;
}

// Best contrast against the most common colour, and height of the rows holding 3:1 or more.
QPair<double, int> Tinta(const QWidget* w, int izq) {
  const QImage im = w->window()->grab(EnVentana(w).adjusted(izq, 6, -6, -6)).toImage();
  QHash<QRgb, int> cuenta;
  for (int i = 0; i < im.width() * im.height(); ++i)
    ++cuenta[im.pixel(i % im.width(), i / im.width())];
  const QRgb fondo =
      std::max_element(cuenta.keyValueBegin(), cuenta.keyValueEnd(), [](auto a, auto b) {
        return a.second < b.second;
      })->first;
  const auto luz = [](QRgb c) {
    return 0.2126 * std::pow(qRed(c) / 255.0, 2.2) + 0.7152 * std::pow(qGreen(c) / 255.0, 2.2) +
           0.0722 * std::pow(qBlue(c) / 255.0, 2.2) + 0.05;
  };
  double mejor = 1;
  int arriba = im.height(), abajo = 0;
  for (int i = 0; i < im.width() * im.height(); ++i) {
    const double a = luz(im.pixel(i % im.width(), i / im.width())), b = luz(fondo);
    mejor = std::max(mejor, std::max(a, b) / std::min(a, b));
    if (std::max(a, b) / std::min(a, b) >= 3)
      arriba = std::min(arriba, i / im.width()), abajo = std::max(abajo, i / im.width() + 1);
  }
  return {mejor, abajo - arriba};
}

}  // namespace

class TestFormularioJornada : public QObject {
  Q_OBJECT
 private slots:
  void init() { QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain)); }
  void unProductoSeCreaSoloConElTeclado();
  void tabSigueLaPantallaYElFocoSeVe();
  void losCamposBloqueadosSeLeen_data();
  void losCamposBloqueadosSeLeen();
  void elTipoDeLetraYElAumento();
  void cadaPantallaEnteraYLegible();
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

void TestFormularioJornada::losCamposBloqueadosSeLeen_data() {
  QTest::addColumn<QStringList>("valores");
  for (const EsquemaColorDemo& e : EsquemasColor()) {
    QStringList v{u"1"_s};
    for (quint32 rgb : e.colores)
      v << QString::number(ValorSuite(rgb));
    QTest::newRow(qPrintable(QString::fromUtf16(e.nombre))) << v;
  }
}

void TestFormularioJornada::losCamposBloqueadosSeLeen() {
  QFETCH(QStringList, valores);
  std::unique_ptr<FormularioPrueba> f(
      Abrir({u"delete from colores"_s,
             u"insert into colores values ("_s + valores.join(u", "_s) + u", 'E')"_s}));
  for (const QString& nombre :
       {u"cmd_Proveedor"_s, u"opt_Venta"_s, u"optBarra"_s, u"ch_Mostrar"_s}) {
    const QWidget* w = f->control<QWidget>(nombre);
    const double c = Tinta(w, nombre.startsWith(u'c') ? 6 : 40).first;
    QVERIFY2(!w->isEnabled() && c >= 4.5, qPrintable(u"%1: %2:1"_s.arg(nombre).arg(c)));
  }
  const QWidget* imagen = f->control<QWidget>(u"pict_imagen"_s);
  QCOMPARE(f->forma().grab(EnVentana(imagen)).toImage().pixelColor(75, 50), QColor(Qt::blue));
}

void TestFormularioJornada::elTipoDeLetraYElAumento() {
  std::unique_ptr<FormularioPrueba> disenio(Abrir());
  std::unique_ptr<FormularioPrueba> grande(
      Abrir({u"update opciones_terminal set Tipo_Letra = 3, Aumento_X = 100, Aumento_Y = 100"_s}));
  const double razon = double(Tinta(grande->control<QWidget>(u"lbl_nombre"_s), 0).second) /
                       Tinta(disenio->control<QWidget>(u"lbl_nombre"_s), 0).second;
  QVERIFY2(razon > 1.25 && razon < 1.55, qPrintable(QString::number(razon)));
  const auto panel = [](std::unique_ptr<FormularioPrueba>& f) {
    return f->control<PanelObjNuevo>(u"PanelFamilias"_s);
  };
  const auto boton = [&](std::unique_ptr<FormularioPrueba>& f) {
    return panel(f)->findChild<QWidget*>(u"boton_1"_s)->size();
  };
  QVERIFY(panel(grande)->botonesPorPagina() < panel(disenio)->botonesPorPagina());
  QVERIFY(boton(grande).width() > boton(disenio).width() &&
          boton(grande).height() > boton(disenio).height());
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

int main(int argc, char** argv) {
  UsarPantalla(Pantalla().width(), Pantalla().height());
  QApplication app(argc, argv);
  TestFormularioJornada prueba;
  return QTest::qExec(&prueba, argc, argv);
}
#include "test_formulario_jornada.moc"
