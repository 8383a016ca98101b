#include <QAbstractButton>
#include <QApplication>
#include <QImage>
#include <QLabel>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>
#include <memory>

#include "panel_obj_nuevo.h"
#include "paneles.h"

using namespace Qt::Literals::StringLiterals;

namespace {

EntradaPanel Entrada(int n) {
  return {QString::number(n),      u"16777215"_s, {}, u"Familia "_s + QString::number(n), {},
          QString::number(100 + n)};
}

TablaPanel Tabla(int cuantas) {
  TablaPanel t;
  for (int i = 1; i <= cuantas; ++i)
    t.append(Entrada(i));
  return t;
}

// Close to the colour, allowing for antialiasing.
bool Parecido(const QColor& a, const QColor& b) {
  return qAbs(a.red() - b.red()) < 8 && qAbs(a.green() - b.green()) < 8 &&
         qAbs(a.blue() - b.blue()) < 8;
}

}  // namespace

class TestPanelObjNuevo : public QObject {
  Q_OBJECT

 private:
  std::unique_ptr<PanelObjNuevo> panel;

  // A panel with a main area of 400×200: 3 columns and 2 rows of the default buttons.
  void crear() {
    panel = std::make_unique<PanelObjNuevo>();
    panel->resize(400, 264);
    panel->show();
    QVERIFY(QTest::qWaitForWindowExposed(panel.get()));
    QCOMPARE(panel->botonesPorPagina(), 6);
  }
  QAbstractButton* boton(int n) {
    return panel->findChild<QAbstractButton*>(u"boton_"_s + QString::number(n));
  }
  QAbstractButton* flecha(const QString& nombre) {
    return panel->findChild<QAbstractButton*>(nombre);
  }
  QString indicador() { return panel->findChild<QLabel*>(u"indicador_pagina"_s)->text(); }
  int botonesVisibles() {
    int n = 0;
    for (auto* b : panel->findChildren<QAbstractButton*>()) {
      if (b->objectName().startsWith(u"boton_"_s) && b->isVisible())
        ++n;
    }
    return n;
  }
  // The colour of a button away from its caption, numeric description and mark.
  QColor fondoDe(QAbstractButton* b) {
    const QImage imagen = b->grab().toImage();
    return imagen.pixelColor(imagen.width() / 2, 6);
  }

 private slots:
  void init() { crear(); }
  void cleanup() { panel.reset(); }

  void pagesWithTheArrowsAndShowsWhereItIs() {
    LlenarPanel(panel.get(), Tabla(14), false);
    QCOMPARE(indicador(), u"1 / 3"_s);
    QCOMPARE(panel->paginas(), 3);
    QVERIFY(!flecha(u"flecha_izq"_s)->isEnabled());
    QVERIFY(flecha(u"flecha_der"_s)->isEnabled());
    QCOMPARE(botonesVisibles(), 6);
    QCOMPARE(boton(1)->toolTip(), u"Familia 1"_s);

    QTest::mouseClick(flecha(u"flecha_der"_s), Qt::LeftButton);
    QCOMPARE(indicador(), u"2 / 3"_s);
    QCOMPARE(boton(1)->toolTip(), u"Familia 7"_s);
    QVERIFY(flecha(u"flecha_izq"_s)->isEnabled());

    QTest::mouseClick(flecha(u"flecha_der"_s), Qt::LeftButton);
    QCOMPARE(indicador(), u"3 / 3"_s);
    QCOMPARE(botonesVisibles(), 2);  // entries 13 and 14
    QCOMPARE(boton(2)->toolTip(), u"Familia 14"_s);
    QVERIFY(!boton(3)->isVisible());
    QVERIFY(!flecha(u"flecha_der"_s)->isEnabled());
    QTest::mouseClick(flecha(u"flecha_der"_s), Qt::LeftButton);  // disabled: stays
    QCOMPARE(indicador(), u"3 / 3"_s);

    QTest::mouseClick(flecha(u"flecha_izq"_s), Qt::LeftButton);
    QCOMPARE(indicador(), u"2 / 3"_s);
    QCOMPARE(panel->pagina(), 2);
  }

  void touchingAButtonOnPageTwoReportsItsNameAndCode() {
    LlenarPanel(panel.get(), Tabla(14), false);
    QString nombreEnElEvento;
    QString codigoEnElEvento;
    connect(panel.get(), &PanelObjNuevo::tocado, this, [&] {
      nombreEnElEvento = panel->nombre_seleccionado();
      codigoEnElEvento = panel->codigo_seleccionado();
    });
    QSignalSpy tocado(panel.get(), &PanelObjNuevo::tocado);
    QTest::mouseClick(flecha(u"flecha_der"_s), Qt::LeftButton);
    QCOMPARE(tocado.count(), 0);  // paging is not a touch
    QTest::mouseClick(boton(2), Qt::LeftButton);
    QCOMPARE(tocado.count(), 1);
    QCOMPARE(nombreEnElEvento, u"Familia 8"_s);
    QCOMPARE(codigoEnElEvento, u"108"_s);
    QCOMPARE(panel->indice_seleccionado(), 7);
    QCOMPARE(panel->property("nombre_seleccionado").toString(), u"Familia 8"_s);
    QCOMPARE(panel->property("codigo_seleccionado").toString(), u"108"_s);
  }

  void paintsTheEntriesColoursOnlyWhenAskedTo() {
    TablaPanel t = Tabla(3);
    t[0].colorFondo = u"255"_s;  // red
    t[1].colorFondo = u"abc"_s;  // not a colour: the default one
    LlenarPanel(panel.get(), t, false);
    QVERIFY(Parecido(fondoDe(boton(1)), Qt::white));
    panel->set_color_defecto(65535);  // yellow
    QVERIFY(Parecido(fondoDe(boton(1)), Qt::yellow));

    panel->set_usar_colores(true);
    QVERIFY(Parecido(fondoDe(boton(1)), Qt::red));
    QVERIFY(Parecido(fondoDe(boton(2)), Qt::yellow));
    QVERIFY(Parecido(fondoDe(boton(3)), Qt::white));  // the entry's own 16777215
  }

  void showsTheMarkColourInTheCorner() {
    TablaPanel t = Tabla(2);
    t[0].colorMarca = u"65280"_s;
    LlenarPanel(panel.get(), t, false);
    const auto esquina = [](QAbstractButton* b) {
      const QImage imagen = b->grab().toImage();
      return imagen.pixelColor(imagen.width() - 8, 5);
    };
    QVERIFY(Parecido(esquina(boton(1)), QColor(0, 255, 0)));
    QVERIFY(Parecido(esquina(boton(2)), Qt::white));
  }

  void showsThePictureOfAnEntry() {
    QTemporaryDir carpeta;
    QImage rojo(64, 64, QImage::Format_RGB32);
    rojo.fill(Qt::red);
    const QString ruta = carpeta.filePath(u"vino.png"_s);
    QVERIFY(rojo.save(ruta));
    TablaPanel t = Tabla(2);
    t[0].imagen = ruta;
    t[1].imagen = carpeta.filePath(u"no_es_imagen.png"_s);  // missing: no picture, no failure
    LlenarPanel(panel.get(), t, false);
    const QImage con = boton(1)->grab().toImage();
    const QImage sin = boton(2)->grab().toImage();
    // The picture sits in the upper part, centred; the caption strip at the foot.
    QVERIFY(Parecido(con.pixelColor(con.width() / 2, con.height() / 4), Qt::red));
    QVERIFY(Parecido(sin.pixelColor(sin.width() / 2, sin.height() / 4), Qt::white));
  }

  void anEmptyTableShowsNoButtons() {
    LlenarPanel(panel.get(), Tabla(8), false);
    QCOMPARE(botonesVisibles(), 6);
    LlenarPanel(panel.get(), {}, false);
    QCOMPARE(botonesVisibles(), 0);
    QCOMPARE(panel->pagina(), 0);
    QCOMPARE(indicador(), QString());
    QVERIFY(!flecha(u"flecha_izq"_s)->isEnabled());
    QVERIFY(!flecha(u"flecha_der"_s)->isEnabled());
  }

  void limpiarEmptiesThePanelAndTheTouchedButton() {
    LlenarPanel(panel.get(), Tabla(8), false);
    QTest::mouseClick(boton(3), Qt::LeftButton);
    QCOMPARE(panel->codigo_seleccionado(), u"103"_s);
    panel->limpiar();
    QCOMPARE(botonesVisibles(), 0);
    QVERIFY(panel->objetos().isEmpty());
    QCOMPARE(panel->nombre_seleccionado(), QString());
    QCOMPARE(panel->codigo_seleccionado(), QString());
    QCOMPARE(panel->indice_seleccionado(), -1);
  }

  void llenarPanelStartsOverOnPageOneWithoutAnimation() {
    panel->set_animacion(7);
    panel->set_usar_colores(true);
    panel->set_color_defecto(255);
    panel->cargar_objetos(Tabla(14));
    panel->dibujar();
    QTest::mouseClick(flecha(u"flecha_der"_s), Qt::LeftButton);
    QCOMPARE(panel->pagina(), 2);

    LlenarPanel(panel.get(), Tabla(9), false);
    QCOMPARE(panel->pagina(), 1);
    QCOMPARE(panel->objetos(), Tabla(9));
    QCOMPARE(panel->color_defecto(), 16777215);
    QCOMPARE(panel->usar_colores(), false);
    QCOMPARE(panel->animacion(), 0);
    QCOMPARE(indicador(), u"1 / 2"_s);
  }

  void aSlidingPageEndsWithOnlyTheNewPage() {
    panel->cargar_objetos(Tabla(14));
    panel->dibujar();
    panel->set_animacion(1);
    QTest::mouseClick(flecha(u"flecha_der"_s), Qt::LeftButton);
    QCOMPARE(indicador(), u"2 / 3"_s);
    QWidget* pagina = boton(1)->parentWidget();
    QTRY_COMPARE(pagina->pos(), QPoint(0, 0));
    QTRY_COMPARE(pagina->parentWidget()->findChildren<QLabel*>().size(), 0);
    QSignalSpy tocado(panel.get(), &PanelObjNuevo::tocado);
    QTest::mouseClick(boton(1), Qt::LeftButton);
    QCOMPARE(tocado.count(), 1);
    QCOMPARE(panel->codigo_seleccionado(), u"107"_s);
  }

  void sizePropertiesChangeTheLayout() {
    LlenarPanel(panel.get(), Tabla(30), false);
    // The products form's small-screen size: a main area 300 high holds three rows.
    QVERIFY(panel->setProperty("alto_principal", 300.0f));
    panel->resize(1000, 400);
    QTRY_COMPARE(panel->width(), 1000);
    QCOMPARE(panel->findChild<QWidget*>(u"area_principal"_s)->height(), 300);
    QCOMPARE(panel->botonesPorPagina(), 8 * 3);
    QCOMPARE(boton(24)->isVisible(), true);
    QVERIFY(panel->setProperty("ancho_boton", 240.0f));
    QCOMPARE(panel->botonesPorPagina(), 4 * 3);
    QCOMPARE(boton(13), nullptr);
    QCOMPARE(indicador(), u"1 / 3"_s);
  }

  void layoutFillsTheAreaWithFingerSizedButtons() {
    // The families panel of the 1024×768 form.
    const DisposicionPanel d = CalcularDisposicion(MedidasPanel{}, QSize(620, 330));
    QCOMPARE(d.columnas, 5);
    QCOMPARE(d.filas, 2);
    QCOMPARE(d.principal, QRect(0, 0, 620, 266));
    QCOMPARE(d.secundaria, QRect(0, 266, 620, 64));
    for (int i = 0; i < d.botones.size(); ++i) {
      const QRect& b = d.botones.at(i);
      QVERIFY2(b.width() >= 112 && b.height() >= 84, qPrintable(QString::number(i)));
      QVERIFY(d.principal.contains(b));
      for (int j = i + 1; j < d.botones.size(); ++j)
        QVERIFY(!b.intersects(d.botones.at(j)));
    }
    // Stretched evenly: the last column ends at the margin.
    QCOMPARE(d.botones.last().right(), 620 - 8 - 1);
    QVERIFY(d.flechaIzq.width() >= 88 && d.flechaIzq.height() >= 56);
    QVERIFY(d.indicador.left() > d.flechaIzq.right() && d.indicador.right() < d.flechaDer.left());

    // The sub-products dialog's panels: 500 wide, 200 high.
    MedidasPanel sub;
    sub.ancho_principal = 500;
    sub.alto_principal = 200;
    const DisposicionPanel s = CalcularDisposicion(sub, QSize(800, 600));
    QCOMPARE(s.principal, QRect(0, 0, 500, 200));
    QCOMPARE(s.columnas * s.filas, 4 * 2);
    QCOMPARE(s.secundaria.top(), 200);

    // Arrows placed where the design puts them.
    MedidasPanel propias;
    propias.flecha_izq_posx = 30;
    propias.flecha_der_posx = 130;
    const DisposicionPanel p = CalcularDisposicion(propias, QSize(620, 330));
    QCOMPARE(p.flechaIzq.left(), 30);
    QCOMPARE(p.flechaDer.left(), 130);
  }

  void captionsReadOnAnyColourAndFitTheButton() {
    QCOMPARE(ColorTextoSobre(Qt::white), QColor(Qt::black));
    QCOMPARE(ColorTextoSobre(Qt::yellow), QColor(Qt::black));
    QCOMPARE(ColorTextoSobre(QColor(0, 255, 0)), QColor(Qt::black));
    QCOMPARE(ColorTextoSobre(Qt::black), QColor(Qt::white));
    QCOMPARE(ColorTextoSobre(QColor(0, 0, 128)), QColor(Qt::white));
    QCOMPARE(ColorTextoSobre(QColor(128, 0, 0)), QColor(Qt::white));
    QCOMPARE(ColorTextoSobre(Qt::red), QColor(Qt::black));  // more contrast than white

    QFont fuente = QApplication::font();
    fuente.setPixelSize(15);
    const QFontMetrics fm(fuente);
    QCOMPARE(LineasCaption(u"Cafés"_s, fuente, 100, 3), QStringList{u"Cafés"_s});
    const QString largo = u"Vinos tintos de la Ribera del Duero y Rioja reserva"_s;
    const QStringList lineas = LineasCaption(largo, fuente, 100, 3);
    QCOMPARE(lineas.size(), 3);
    for (const QString& l : lineas)
      QVERIFY2(fm.horizontalAdvance(l) <= 100, qPrintable(l));
    QVERIFY(lineas.first().startsWith(u"Vinos"_s));
    QVERIFY(lineas.last().endsWith(u"…"_s));
    QCOMPARE(LineasCaption(u"   "_s, fuente, 100, 3), QStringList());

    // A long word takes a smaller type rather than break, down to three quarters of it.
    const int anchoPalabra = fm.horizontalAdvance(u"Hamburguesas"_s);
    QCOMPARE(FuenteQueCabe(u"Pizzas"_s, fuente, 100).pixelSize(), 15);
    const QFont menor = FuenteQueCabe(u"Hamburguesas caseras"_s, fuente, anchoPalabra - 6);
    QVERIFY(menor.pixelSize() < 15 && menor.pixelSize() >= 11);
    QVERIFY(QFontMetrics(menor).horizontalAdvance(u"Hamburguesas"_s) <= anchoPalabra - 6);
    QCOMPARE(FuenteQueCabe(u"Hamburguesas"_s, fuente, 20).pixelSize(), 11);

    QCOMPARE(TextoIndicador(2, 5), u"2 / 5"_s);
    QCOMPARE(TextoIndicador(0, 0), QString());
  }
};

QTEST_MAIN(TestPanelObjNuevo)
#include "test_panel_obj_nuevo.moc"
