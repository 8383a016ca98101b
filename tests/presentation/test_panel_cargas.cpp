#include <QDir>
#include <QFile>
#include <QtTest>
#include <memory>

#include "error_bd.h"
#include "instalacion_prueba.h"
#include "panel_obj_nuevo.h"
#include "paneles.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QString kSep = QString(QDir::separator());

void CrearArchivo(const QString& ruta) {
  QFile f(ruta);
  QVERIFY(f.open(QIODevice::WriteOnly));
  f.write("x");
}

const TablaPanel kCentinela = {{u"9"_s, u"16777215"_s, {}, u"Sin tocar"_s, {}, u"999"_s}};

}  // namespace

class TestPanelCargas : public QObject {
  Q_OBJECT

 private:
  std::unique_ptr<InstalacionPrueba> inst;
  QString fotos;

  Entorno& entorno() { return inst->entorno(); }

 private slots:
  void init() {
    inst = std::make_unique<InstalacionPrueba>();
    fotos = QDir(inst->carpeta()).filePath(u"fotos"_s);
    QVERIFY(QDir().mkpath(fotos));
    entorno().sesion.rutaFotos = fotos;
  }
  void cleanup() { inst.reset(); }

  void statementsAreTheTillsOwn() {
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

  void familiesComeInPanelOrderWithTheirFields() {
    CrearArchivo(fotos + u"/bebidas.png"_s);
    inst->ejecutar({
        u"insert into seccion (codigo, nombre, borrar, menu, orden, descNumerica, mostrarencaja, "
        "Color, Imagen) values ('1', 'Bebidas', 0, 0, 2, 10, 0, 255, 'bebidas.png')"_s,
        u"insert into seccion (codigo, nombre, borrar, menu, orden, descNumerica, mostrarencaja, "
        "Color, Imagen) values ('2', 'Cafés', 0, 0, 1, 20, -1, null, 'no_esta.png')"_s,
        u"insert into seccion (codigo, nombre, borrar, menu, orden, descNumerica, mostrarencaja, "
        "Color, Imagen) values ('3', 'Postres', 0, 0, 3, 30, 0, 0, null)"_s,
        u"insert into seccion (codigo, nombre, borrar, menu, orden, descNumerica, mostrarencaja, "
        "Color, Imagen) values ('6', 'Tapas', 0, 0, 4, 40, -1, '', '')"_s,
        // Not families of the panel: deleted, a menu, without a code.
        u"insert into seccion (codigo, nombre, borrar, menu, orden, mostrarencaja, Color) "
        "values ('4', 'Borrada', -1, 0, 0, 0, 1)"_s,
        u"insert into seccion (codigo, nombre, borrar, menu, orden, mostrarencaja, Color) "
        "values ('5', 'Menú del día', 0, -1, 0, 0, 1)"_s,
        u"insert into seccion (codigo, nombre, borrar, menu, orden, mostrarencaja, Color) "
        "values ('', 'Vacía', 0, 0, 0, 0, 1)"_s,
        u"insert into seccion (codigo, nombre, borrar, menu, orden, mostrarencaja, Color) "
        "values (null, 'Nula', 0, 0, 0, 0, 1)"_s,
    });
    TablasPanel tablas;
    tablas.paginaA = kCentinela;
    CargarFamilias(entorno(), tablas);
    const TablaPanel esperada = {
        {u"20"_s, u"16777215"_s, {}, u"Cafés"_s, {}, u"2"_s},
        {u"10"_s, u"255"_s, fotos + kSep + u"bebidas.png"_s, u"Bebidas"_s, u"65280"_s, u"1"_s},
        // No picture name: the folder itself is tested, and it holds a file.
        {u"30"_s, u"16777215"_s, fotos + kSep, u"Postres"_s, u"65280"_s, u"3"_s},
        {u"40"_s, u"16777215"_s, fotos + kSep, u"Tapas"_s, {}, u"6"_s},
    };
    QCOMPARE(tablas.familias, esperada);
    QCOMPARE(tablas.paginaA, kCentinela);

    // Without any file in the folder an empty name finds nothing.
    QVERIFY(QFile::remove(fotos + u"/bebidas.png"_s));
    QVERIFY(QDir(fotos).mkdir(u"subcarpeta"_s));
    CargarFamilias(entorno(), tablas);
    QCOMPARE(tablas.familias.at(1).imagen, QString());
    QCOMPARE(tablas.familias.at(2).imagen, QString());
  }

  void noFamiliesGiveAnEmptyTable() {
    TablasPanel tablas;
    tablas.familias = kCentinela;
    CargarFamilias(entorno(), tablas);
    QVERIFY(tablas.familias.isEmpty());
  }

  void productsGoToThePageTableOfTheirMenuIndex() {
    CrearArchivo(fotos + u"/vino.png"_s);
    const QString alta =
        u"insert into productos (codigo, nombre, seccion, borrar, mostrarencaja, orden, "
        "DescNumerica, color, foto) values "_s;
    inst->ejecutar({
        alta + u"('10', 'Vino tinto', '1', 0, 0, 2, 5, 65535, 'vino.png')"_s,
        alta + u"('11', 'Agua', '1', 0, 0, 1, 6, null, null)"_s,
        alta + u"('15', 'Zumo', '1', 0, 0, 3, 7, 0, '')"_s,
        alta + u"('16', 'Cerveza', '1', 0, 0, 4, 8, 255, 'no_esta.png')"_s,
        alta + u"('12', 'Oculto', '1', 0, -1, 0, 1, 1, null)"_s,
        alta + u"('13', 'Borrado', '1', -1, 0, 0, 1, 1, null)"_s,
        alta + u"('14', 'Café', '2', 0, 0, 0, 9, 16711680, null)"_s,
        u"insert into menu_productos (seccion, producto, orden) values ('1', '10', 1)"_s,
        u"insert into menu_productos (seccion, producto, orden) values ('1', '14', 2)"_s,
        u"insert into menu_productos (seccion, producto, orden) values ('1', '11', 3)"_s,
        u"insert into menu_productos (seccion, producto, orden) values ('1', '12', 3)"_s,
        u"insert into menu_productos (seccion, producto, orden) values ('2', '15', 1)"_s,
    });
    const EntradaPanel vino = {u"5"_s,          u"65535"_s, fotos + kSep + u"vino.png"_s,
                               u"Vino tinto"_s, {},         u"10"_s};
    // A product without a picture name is not looked for; an empty name tests the folder.
    const EntradaPanel agua = {u"6"_s, u"16777215"_s, {}, u"Agua"_s, {}, u"11"_s};
    const EntradaPanel zumo = {u"7"_s, u"16777215"_s, fotos + kSep, u"Zumo"_s, {}, u"15"_s};
    const EntradaPanel cerveza = {u"8"_s, u"255"_s, {}, u"Cerveza"_s, {}, u"16"_s};
    const EntradaPanel cafe = {u"9"_s, u"16711680"_s, {}, u"Café"_s, {}, u"14"_s};

    TablasPanel tablas;
    CargarProductosPanel(entorno(), tablas, u"1"_s, 0);
    QCOMPARE(tablas.paginaA, (TablaPanel{agua, vino, zumo, cerveza}));
    QVERIFY(tablas.paginaB.isEmpty() && tablas.paginaC.isEmpty());

    CargarProductosPanel(entorno(), tablas, u"1"_s, 1);  // the same table A
    QCOMPARE(tablas.paginaA, TablaPanel{vino});
    CargarProductosPanel(entorno(), tablas, u"1"_s, 2);
    QCOMPARE(tablas.paginaB, TablaPanel{cafe});
    CargarProductosPanel(entorno(), tablas, u"1"_s, 3);
    QCOMPARE(tablas.paginaC, TablaPanel{agua});  // the hidden product stays out
    QCOMPARE(tablas.paginaA, TablaPanel{vino});

    tablas.paginaA = tablas.paginaB = tablas.paginaC = kCentinela;
    CargarProductosPanel(entorno(), tablas, u"1"_s, 5);  // read, kept nowhere
    QCOMPARE(tablas.paginaA, kCentinela);
    QCOMPARE(tablas.paginaB, kCentinela);
    QCOMPARE(tablas.paginaC, kCentinela);

    CargarProductosPanel(entorno(), tablas, u"7"_s, 2);  // a page with no products
    QVERIFY(tablas.paginaB.isEmpty());
    QCOMPARE(tablas.paginaA, kCentinela);
  }

  void aQuoteInTheFamilyCodeBreaksTheStatement() {
    TablasPanel tablas;
    tablas.paginaA = kCentinela;
    QVERIFY_THROWS_EXCEPTION(ErrorBD, CargarProductosPanel(entorno(), tablas, u"O'Neil"_s, 0));
    QVERIFY_THROWS_EXCEPTION(ErrorBD, CargarProductosPanel(entorno(), tablas, u"O'Neil"_s, 1));
    QCOMPARE(tablas.paginaA, kCentinela);
  }

  void theFamiliesReachThePanel() {
    inst->ejecutar({
        u"insert into seccion (codigo, nombre, borrar, menu, orden, descNumerica, mostrarencaja, "
        "Color) values ('1', 'Bebidas', 0, 0, 1, 10, 0, 255)"_s,
        u"insert into seccion (codigo, nombre, borrar, menu, orden, descNumerica, mostrarencaja, "
        "Color) values ('2', 'Cafés', 0, 0, 2, 20, 0, 65535)"_s,
    });
    TablasPanel tablas;
    CargarFamilias(entorno(), tablas);
    PanelObjNuevo panel;
    panel.resize(400, 264);
    LlenarPanel(&panel, tablas.familias, true);
    QCOMPARE(panel.objetos(), tablas.familias);
    QVERIFY(panel.usar_colores());
    QCOMPARE(panel.pagina(), 1);
  }
};

QTEST_MAIN(TestPanelCargas)
#include "test_panel_cargas.moc"
