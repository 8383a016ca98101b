#include <QAbstractButton>
#include <QFile>
#include <QImage>
#include <QLabel>
#include <QSignalSpy>
#include <QtTest>
#include <memory>

#include "error_bd.h"
#include "instalacion_prueba.h"
#include "panel_obj_nuevo.h"
#include "paneles.h"

using namespace Qt::Literals::StringLiterals;

namespace {

TablaPanel Tabla(int cuantas) {
  TablaPanel t;
  for (int i = 1; i <= cuantas; ++i)
    t.append({QString::number(i),
              u"16777215"_s,
              {},
              u"Familia %1"_s.arg(i),
              {},
              QString::number(100 + i)});
  return t;
}

const TablaPanel kCentinela = {{u"9"_s, u"16777215"_s, {}, u"Sin tocar"_s, {}, u"999"_s}};

}  // namespace

// The touch panel of families and products: its pages, its buttons, and the tables it is fed.
class TestPanel : public QObject {
  Q_OBJECT

  std::unique_ptr<PanelObjNuevo> panel;

  // The button's colour at a point, given as fractions of its size.
  QColor color(int n, double x, double y) {
    const QImage imagen = boton(n)->grab().toImage();
    return imagen.pixelColor(int(imagen.width() * x), int(imagen.height() * y));
  }
  QAbstractButton* boton(int n) {
    return panel->findChild<QAbstractButton*>(u"boton_"_s + QString::number(n));
  }
  void pulsar(const QString& nombre) {
    QTest::mouseClick(panel->findChild<QAbstractButton*>(nombre), Qt::LeftButton);
  }
  QString indicador() { return panel->findChild<QLabel*>(u"indicador_pagina"_s)->text(); }
  QStringList visibles() {
    QStringList r;
    for (int n = 1; boton(n); ++n) {
      if (boton(n)->isVisible())
        r.append(boton(n)->toolTip());
    }
    return r;
  }

 private slots:
  // A main area of 400×200: 3 columns and 2 rows of buttons.
  void init() {
    panel = std::make_unique<PanelObjNuevo>();
    panel->resize(400, 264);
    panel->show();
    QVERIFY(QTest::qWaitForWindowExposed(panel.get()));
    QCOMPARE(panel->botonesPorPagina(), 6);
  }
  void cleanup() { panel.reset(); }

  void pasaPaginasConLasFlechas_data() {
    QTest::addColumn<int>("entradas");
    QTest::addColumn<QStringList>("indicadores");  // page by page, going right
    QTest::addColumn<QStringList>("ultima");       // the buttons on show on the last page
    QTest::newRow("14") << 14 << QStringList{u"1 / 3"_s, u"2 / 3"_s, u"3 / 3"_s}
                        << QStringList{u"Familia 13"_s, u"Familia 14"_s};
    QStringList llena;
    for (const EntradaPanel& e : Tabla(12).mid(6))
      llena.append(e.nombre);
    QTest::newRow("12, páginas llenas") << 12 << QStringList{u"1 / 2"_s, u"2 / 2"_s} << llena;
    QTest::newRow("1") << 1 << QStringList{u"1 / 1"_s} << QStringList{u"Familia 1"_s};
    QTest::newRow("ninguna") << 0 << QStringList{QString()} << QStringList{};
  }
  void pasaPaginasConLasFlechas() {
    QFETCH(int, entradas);
    QFETCH(QStringList, indicadores);
    QFETCH(QStringList, ultima);
    LlenarPanel(panel.get(), Tabla(8), false);
    LlenarPanel(panel.get(), Tabla(entradas), false);
    for (int i = 0; i < indicadores.size(); ++i) {
      QCOMPARE(indicador(), indicadores.at(i));
      QCOMPARE(panel->findChild<QWidget*>(u"flecha_izq"_s)->isEnabled(), i > 0);
      QCOMPARE(panel->findChild<QWidget*>(u"flecha_der"_s)->isEnabled(),
               i + 1 < indicadores.size());
      pulsar(u"flecha_der"_s);  // on the last page it is off, and the page stays
    }
    QCOMPARE(indicador(), indicadores.last());
    QCOMPARE(visibles(), ultima);
    pulsar(u"flecha_izq"_s);
    QCOMPARE(panel->pagina(), entradas ? qMax(1, int(indicadores.size()) - 1) : 0);
  }

  void tocarUnBotonDaSuNombreYSuCodigo() {
    LlenarPanel(panel.get(), Tabla(14), false);
    QString nombre, codigo;
    connect(panel.get(), &PanelObjNuevo::tocado, this, [&] {
      nombre = panel->property("nombre_seleccionado").toString();
      codigo = panel->property("codigo_seleccionado").toString();
    });
    QSignalSpy tocado(panel.get(), &PanelObjNuevo::tocado);
    panel->set_animacion(1);  // the page slides in, and then only the new page is there
    pulsar(u"flecha_der"_s);
    QCOMPARE(tocado.count(), 0);  // paging is not a touch
    QWidget* pagina = boton(1)->parentWidget();
    QTRY_COMPARE(pagina->pos(), QPoint(0, 0));
    QTRY_COMPARE(pagina->parentWidget()->findChildren<QLabel*>().size(), 0);
    QTest::mouseClick(boton(2), Qt::LeftButton);
    QCOMPARE(tocado.count(), 1);
    QCOMPARE((QStringList{nombre, codigo}), (QStringList{u"Familia 8"_s, u"108"_s}));
    QCOMPARE(panel->indice_seleccionado(), 7);
    panel->limpiar();
    QCOMPARE(visibles(), QStringList{});
    QVERIFY(panel->objetos().isEmpty() && panel->codigo_seleccionado().isEmpty());
    QCOMPARE(panel->indice_seleccionado(), -1);
  }

  void pintaColoresMarcaEImagen() {
    QTemporaryDir carpeta;
    QImage rojo(64, 64, QImage::Format_RGB32);
    rojo.fill(Qt::red);
    QVERIFY(rojo.save(carpeta.filePath(u"vino.png"_s)));
    TablaPanel t = Tabla(4);
    t[0].colorFondo = u"16711680"_s;  // blue
    t[0].colorMarca = u"65280"_s;     // green
    t[1].colorFondo = u"abc"_s;       // not a colour: the default one
    t[2].imagen = carpeta.filePath(u"vino.png"_s);
    t[3].imagen = carpeta.filePath(u"no_esta.png"_s);  // no picture, no failure
    LlenarPanel(panel.get(), t, false);
    QCOMPARE(color(1, 0.5, 0.1), QColor(Qt::white));  // colours only when asked to
    panel->set_color_defecto(65535);
    QCOMPARE(color(2, 0.5, 0.1), QColor(Qt::yellow));
    panel->set_usar_colores(true);
    QCOMPARE(color(1, 0.5, 0.1), QColor(Qt::blue));
    QCOMPARE(color(2, 0.5, 0.1), QColor(Qt::yellow));
    QCOMPARE(color(4, 0.5, 0.1), QColor(Qt::white));  // its own 16777215
    const auto esquina = [&](int n) {
      return boton(n)->grab().toImage().pixelColor(boton(n)->width() - 8, 5);
    };
    QCOMPARE(esquina(1), QColor(Qt::green));
    QCOMPARE(esquina(4), QColor(Qt::white));
    // The picture sits in the upper part, centred; the caption strip at the foot.
    QCOMPARE(color(3, 0.5, 0.25), QColor(Qt::red));
    QCOMPARE(color(4, 0.5, 0.25), QColor(Qt::white));
  }

  void llenarVuelveALaPrimeraPaginaSinAnimacion() {
    panel->set_animacion(7);
    panel->set_usar_colores(true);
    panel->set_color_defecto(255);
    panel->cargar_objetos(Tabla(14));
    panel->dibujar();
    pulsar(u"flecha_der"_s);
    LlenarPanel(panel.get(), Tabla(9), false);
    QCOMPARE(panel->objetos(), Tabla(9));
    QCOMPARE((QList<qint64>{panel->pagina(), panel->color_defecto(), panel->usar_colores(),
                            panel->animacion()}),
             (QList<qint64>{1, 16777215, false, 0}));
  }

  void lasMedidasCambianLaDisposicion() {
    LlenarPanel(panel.get(), Tabla(30), false);
    // The products form's small-screen size: a main area 300 high holds three rows.
    QVERIFY(panel->setProperty("alto_principal", 300.0f));
    panel->resize(1000, 400);
    QTRY_COMPARE(panel->width(), 1000);
    QCOMPARE(panel->findChild<QWidget*>(u"area_principal"_s)->height(), 300);
    QCOMPARE(panel->botonesPorPagina(), 8 * 3);
    QCOMPARE(indicador(), u"1 / 2"_s);
    QVERIFY(panel->setProperty("ancho_boton", 240.0f));
    QCOMPARE(panel->botonesPorPagina(), 4 * 3);
    QCOMPARE(boton(13), nullptr);
    QCOMPARE(indicador(), u"1 / 3"_s);
    // The families panel of the 1024×768 form, stretched evenly to the margin.
    const DisposicionPanel d = CalcularDisposicion(MedidasPanel{}, QSize(620, 330));
    QCOMPARE((QList<int>{d.columnas, d.filas, d.botones.last().right()}),
             (QList<int>{5, 2, 620 - 8 - 1}));
    QCOMPARE(d.principal, QRect(0, 0, 620, 266));
    MedidasPanel propias;
    propias.flecha_izq_posx = 30;
    propias.flecha_der_posx = 130;
    const DisposicionPanel p = CalcularDisposicion(propias, QSize(620, 330));
    QCOMPARE((QList<int>{p.flechaIzq.left(), p.flechaDer.left()}), (QList<int>{30, 130}));
  }

  void losCaptionsSeLeenYCaben() {
    for (const auto& [fondo, tinta] :
         QList<std::pair<QColor, QColor>>{{Qt::white, Qt::black},
                                          {Qt::yellow, Qt::black},
                                          {Qt::red, Qt::black},  // more contrast than white
                                          {QColor(0, 0, 128), Qt::white},
                                          {Qt::black, Qt::white}})
      QCOMPARE(ColorTextoSobre(fondo), tinta);
    QFont fuente = QApplication::font();
    fuente.setPixelSize(15);
    QCOMPARE(LineasCaption(u"Cafés"_s, fuente, 100, 3), QStringList{u"Cafés"_s});
    QCOMPARE(LineasCaption(u"   "_s, fuente, 100, 3), QStringList());
    const QStringList lineas =
        LineasCaption(u"Vinos tintos de la Ribera del Duero y Rioja reserva"_s, fuente, 100, 3);
    QCOMPARE(lineas.size(), 3);
    QVERIFY(lineas.first().startsWith(u"Vinos"_s) && lineas.last().endsWith(u"…"_s));
    for (const QString& l : lineas)
      QVERIFY2(QFontMetrics(fuente).horizontalAdvance(l) <= 100, qPrintable(l));
    // A long word takes a smaller type rather than break, down to three quarters of it.
    const int ancho = QFontMetrics(fuente).horizontalAdvance(u"Hamburguesas"_s) - 6;
    const QFont menor = FuenteQueCabe(u"Hamburguesas caseras"_s, fuente, ancho);
    QVERIFY(menor.pixelSize() < 15 && menor.pixelSize() >= 11);
    QVERIFY(QFontMetrics(menor).horizontalAdvance(u"Hamburguesas"_s) <= ancho);
    QCOMPARE(FuenteQueCabe(u"Pizzas"_s, fuente, 100).pixelSize(), 15);
    QCOMPARE(FuenteQueCabe(u"Hamburguesas"_s, fuente, 20).pixelSize(), 11);
  }

  void cargaLasFamiliasYLosProductos() {
    InstalacionPrueba inst;
    const QString fotos = QDir(inst.carpeta()).filePath(u"fotos"_s);
    QVERIFY(QDir().mkpath(fotos));
    for (const QString& nombre : {u"/bebidas.png"_s, u"/vino.png"_s}) {
      QFile archivo(fotos + nombre);
      QVERIFY(archivo.open(QIODevice::WriteOnly));
    }
    inst.entorno().sesion.rutaFotos = fotos;
    const QString familia =
        u"insert into seccion (codigo, nombre, borrar, menu, orden, "
        "descNumerica, mostrarencaja, Color, Imagen) values "_s;
    const QString producto =
        u"insert into productos (codigo, nombre, seccion, borrar, "
        "mostrarencaja, orden, DescNumerica, color, foto) values "_s;
    const QString menu = u"insert into menu_productos (seccion, producto, orden) values "_s;
    inst.ejecutar({
        familia + u"('1', 'Bebidas', 0, 0, 2, 10, 0, 255, 'bebidas.png')"_s,
        familia + u"('2', 'Cafés', 0, 0, 1, 20, -1, null, 'no_esta.png')"_s,
        familia + u"('3', 'Postres', 0, 0, 3, 30, 0, 0, null)"_s,
        familia + u"('6', 'Tapas', 0, 0, 4, 40, -1, '', '')"_s,
        // Not families of the panel: deleted, a menu, without a code.
        familia + u"('4', 'Borrada', -1, 0, 0, 0, 0, 1, null)"_s,
        familia + u"('5', 'Menú del día', 0, -1, 0, 0, 0, 1, null)"_s,
        familia +
            u"('', 'Vacía', 0, 0, 0, 0, 0, 1, null), (null, 'Nula', 0, 0, 0, 0, 0, 1, null)"_s,
        producto + u"('10', 'Vino tinto', '1', 0, 0, 2, 5, 65535, 'vino.png')"_s,
        producto + u"('11', 'Agua', '1', 0, 0, 1, 6, null, null)"_s,
        producto + u"('15', 'Zumo', '1', 0, 0, 3, 7, 0, '')"_s,
        producto + u"('12', 'Oculto', '1', 0, -1, 0, 1, 1, null)"_s,
        producto + u"('13', 'Borrado', '1', -1, 0, 0, 1, 1, null)"_s,
        producto + u"('14', 'Café', '2', 0, 0, 0, 9, 16711680, 'no_esta.png')"_s,
        menu + u"('1', '10', 1), ('1', '14', 2), ('1', '11', 3), ('1', '12', 3)"_s,
    });
    const QString sep = QDir::separator();
    TablasPanel tablas;
    tablas.paginaA = kCentinela;
    CargarFamilias(inst.entorno(), tablas);
    // No picture name: the folder itself is tested, and it holds a file.
    QCOMPARE(tablas.familias,
             (TablaPanel{{u"20"_s, u"16777215"_s, {}, u"Cafés"_s, {}, u"2"_s},
                         {u"10"_s, u"255"_s, fotos + sep + u"bebidas.png"_s, u"Bebidas"_s,
                          u"65280"_s, u"1"_s},
                         {u"30"_s, u"16777215"_s, fotos + sep, u"Postres"_s, u"65280"_s, u"3"_s},
                         {u"40"_s, u"16777215"_s, fotos + sep, u"Tapas"_s, {}, u"6"_s}}));
    QCOMPARE(tablas.paginaA, kCentinela);

    // A product without a picture name is not looked for; an empty name tests the folder.
    const EntradaPanel vino{u"5"_s,          u"65535"_s, fotos + sep + u"vino.png"_s,
                            u"Vino tinto"_s, {},         u"10"_s};
    const EntradaPanel agua{u"6"_s, u"16777215"_s, {}, u"Agua"_s, {}, u"11"_s};
    const EntradaPanel zumo{u"7"_s, u"16777215"_s, fotos + sep, u"Zumo"_s, {}, u"15"_s};
    const EntradaPanel cafe{u"9"_s, u"16711680"_s, {}, u"Café"_s, {}, u"14"_s};
    CargarProductosPanel(inst.entorno(), tablas, u"1"_s, 0);
    QCOMPARE(tablas.paginaA, (TablaPanel{agua, vino, zumo}));
    CargarProductosPanel(inst.entorno(), tablas, u"1"_s, 1);  // the same table A
    CargarProductosPanel(inst.entorno(), tablas, u"1"_s, 2);
    CargarProductosPanel(inst.entorno(), tablas, u"1"_s, 3);  // the hidden product stays out
    QCOMPARE((QList<TablaPanel>{tablas.paginaA, tablas.paginaB, tablas.paginaC}),
             (QList<TablaPanel>{{vino}, {cafe}, {agua}}));
    tablas.paginaA = tablas.paginaB = tablas.paginaC = kCentinela;
    CargarProductosPanel(inst.entorno(), tablas, u"1"_s, 5);  // read, kept nowhere
    CargarProductosPanel(inst.entorno(), tablas, u"7"_s, 2);  // a page with no products
    QCOMPARE((QList<TablaPanel>{tablas.paginaA, tablas.paginaB, tablas.paginaC}),
             (QList<TablaPanel>{kCentinela, {}, kCentinela}));
    QVERIFY_THROWS_EXCEPTION(ErrorBD, CargarProductosPanel(inst.entorno(), tablas, u"O'N"_s, 0));
    QVERIFY_THROWS_EXCEPTION(ErrorBD, CargarProductosPanel(inst.entorno(), tablas, u"O'N"_s, 1));
    QCOMPARE(tablas.paginaA, kCentinela);

    QCOMPARE(SentenciaFamilias(),
             u"select * from seccion where borrar = 0 and (CODIGO IS NOT NULL and CODIGO <> '') "
             "and menu =0 order by orden"_s);
    QCOMPARE(SentenciaProductosPanel(u"12"_s, 0),
             u"select * from productos where seccion = '12' and borrar = 0 and mostrarencaja = 0 "
             "order by productos.orden"_s);
    QCOMPARE(SentenciaProductosPanel(u"12"_s, 2),
             u"select productos.* from productos,menu_productos where menu_productos.seccion = "
             "'12' and menu_productos.producto = productos.codigo and menu_productos.orden = 2 "
             "and borrar = 0 and mostrarencaja = 0 order by productos.orden"_s);
  }
};

QTEST_MAIN(TestPanel)
#include "test_panel.moc"
