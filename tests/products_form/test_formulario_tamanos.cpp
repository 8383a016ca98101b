#include <QtTest>

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include "formulario_prueba.h"
#include "panel_obj_nuevo.h"

using namespace Qt::Literals::StringLiterals;

// Every screen of the form whole and readable on the terminal's screen (PRODUCTOS_PANTALLA,
// WIDTHxHEIGHT; 800x600 when unset): nothing out of the window, no caption cut, the families
// panel with its paging arrows and whole buttons.
namespace {

QSize Pantalla() {
  const QStringList partes = qEnvironmentVariable("PRODUCTOS_PANTALLA", u"800x600"_s).split(u'x');
  return {partes.value(0).toInt(), partes.value(1).toInt()};
}

QRect EnVentana(const QWidget* w) {
  return QRect(w->mapTo(w->window(), QPoint()), w->size());
}

// What of the caption does not fit its control; empty when it all does.
QString Cortado(const QWidget* w) {
  const QFontMetrics fm(w->font());
  if (const auto* l = qobject_cast<const QLabel*>(w)) {
    const QString texto = l->text();
    if (texto.isEmpty() || !l->pixmap().isNull())
      return {};
    const QRect caja = l->contentsRect();
    if (!l->wordWrap())
      return fm.horizontalAdvance(texto) <= caja.width() ? QString() : texto;
    const QRect ocupa = fm.boundingRect(QRect(0, 0, caja.width(), 10000), Qt::TextWordWrap, texto);
    return ocupa.height() <= caja.height() + 2 && ocupa.width() <= caja.width() ? QString() : texto;
  }
  if (qobject_cast<const QCheckBox*>(w) || qobject_cast<const QRadioButton*>(w)) {
    return w->sizeHint().width() <= w->width()
               ? QString()
               : static_cast<const QAbstractButton*>(w)->text() +
                     u" (%1 > %2)"_s.arg(w->sizeHint().width()).arg(w->width());
  }
  if (const auto* b = qobject_cast<const QPushButton*>(w)) {
    // The scheme's buttons have 6 pixels of padding and a border on each side.
    return fm.horizontalAdvance(b->text()) + 14 <= b->width()
               ? QString()
               : b->text() +
                     u" (%1 > %2)"_s.arg(fm.horizontalAdvance(b->text()) + 14).arg(b->width());
  }
  return {};
}

void RevisarPantalla(FormularioPrueba& f, const QString& paso) {
  QWidget& ventana = f.forma();
  const QString carpeta = qEnvironmentVariable("PRODUCTOS_CAPTURAS_PRUEBA");
  if (!carpeta.isEmpty()) {
    const QSize s = Pantalla();
    ventana.grab().save(u"%1/%2x%3-%4.png"_s.arg(carpeta).arg(s.width()).arg(s.height()).arg(paso));
  }
  QVERIFY(ventana.width() <= Pantalla().width() && ventana.height() <= Pantalla().height());
  const QList<QWidget*> controles = ventana.findChildren<QWidget*>();
  QStringList fallos;
  for (const QWidget* w : controles) {
    if (!w->isVisible() || w->objectName().isEmpty() || w->objectName() == u"anillo_foco"_s)
      continue;
    if (!ventana.rect().contains(EnVentana(w)))
      fallos << w->objectName() + u" fuera de la ventana"_s;
    const QString cortado = Cortado(w);
    if (!cortado.isEmpty())
      fallos << w->objectName() + u" corta \""_s + cortado + u'"';
  }
  const QList<PanelObjNuevo*> paneles = ventana.findChildren<PanelObjNuevo*>();
  for (const PanelObjNuevo* panel : paneles) {
    if (!panel->isVisible())
      continue;
    const QRect marco = EnVentana(panel);
    for (const QString& flecha : {u"flecha_izq"_s, u"flecha_der"_s, u"indicador_pagina"_s}) {
      if (!marco.contains(EnVentana(panel->findChild<QWidget*>(flecha))))
        fallos << panel->objectName() + u" pierde "_s + flecha;
    }
    const QRect area = EnVentana(panel->findChild<QWidget*>(u"area_principal"_s));
    const QList<QAbstractButton*> botones = panel->findChildren<QAbstractButton*>();
    for (const QAbstractButton* b : botones) {
      if (b->isVisible() && b->objectName().startsWith(u"boton_"_s) &&
          !area.contains(EnVentana(b))) {
        fallos << panel->objectName() + u" corta "_s + b->objectName();
      }
    }
  }
  QVERIFY2(fallos.isEmpty(), qPrintable(paso + u": "_s + fallos.join(u"; "_s)));
}

void Pulsar(FormularioPrueba& f, const QString& nombre) {
  auto* b = f.control<QPushButton>(nombre);
  QVERIFY2(b && b->isVisible() && b->isEnabled(), qPrintable(nombre));
  QTest::mouseClick(b, Qt::LeftButton);
}

}  // namespace

class TestFormularioTamanos : public QObject {
  Q_OBJECT
 private slots:
  void init() { QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain)); }
  void cadaPantallaEnteraYLegible();
};

void TestFormularioTamanos::cadaPantallaEnteraYLegible() {
  QStringList filas = {
      u"insert into proveedores (codigo, nombre, borrar) values ('P1', 'Frutas y Verduras "
      "Huerta Viva', 0)"_s,
      Producto(u"1"_s, u"Aceitunas aliñadas"_s, {{u"proveedor"_s, u"'P1'"_s}}),
      Stock(u"1"_s, u"10"_s, u"3"_s)};
  for (int i = 1; i <= 8; ++i) {
    filas << u"insert into seccion (codigo, nombre, borrar, menu, orden, mostrarencaja) values "
             "('F%1', 'Refrescos y aguas %1', 0, 0, %1, 0)"_s.arg(i);
  }
  FormularioPrueba f(filas);
  QVERIFY(f.mostrar());
  RevisarPantalla(f, u"inicio"_s);
  Pulsar(f, u"cmd_ProdGenerico"_s);
  RevisarPantalla(f, u"productos"_s);
  Pulsar(f, u"cmd_modificar"_s);
  RevisarPantalla(f, u"modificar"_s);
  Pulsar(f, u"cmd_Proveedor"_s);
  RevisarPantalla(f, u"proveedores"_s);
  Pulsar(f, u"cmd_CancelarProveedor"_s);
  Pulsar(f, u"cmd_cancelar"_s);
  Pulsar(f, u"cmd_ListaProd"_s);
  RevisarPantalla(f, u"lista"_s);
  Pulsar(f, u"cmd_ListaProd"_s);
  Pulsar(f, u"cmd_salir"_s);
  Pulsar(f, u"cmd_ProdElaborado"_s);
  RevisarPantalla(f, u"elaborados"_s);
  Pulsar(f, u"cmd_NuevoProdEla"_s);
  RevisarPantalla(f, u"elaborado-nuevo"_s);
}

int main(int argc, char** argv) {
  UsarPantalla(Pantalla().width(), Pantalla().height());
  QApplication app(argc, argv);
  TestFormularioTamanos prueba;
  QTEST_SET_MAIN_SOURCE_PATH
  return QTest::qExec(&prueba, argc, argv);
}
#include "test_formulario_tamanos.moc"
