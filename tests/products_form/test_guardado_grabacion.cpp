#include <QDate>
#include <QSqlError>
#include <QSqlQuery>
#include <QtTest>

#include "codigos_producto.h"
#include "grabacion_producto.h"
#include "instalacion_prueba.h"
#include "listas_productos.h"
#include "producto_prueba.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// Runs a statement straight on the test's database, bypassing the program's own checks (a
// trigger's body holds semicolons).
void Directo(InstalacionPrueba& prueba, const QString& sentencia) {
  QSqlQuery q(prueba.conexion().bd());
  QVERIFY2(q.exec(sentencia), qPrintable(q.lastError().text()));
}

// An existing product 5 with its stock row and one supplier link, written long ago.
void ProductoAntiguo(InstalacionPrueba& prueba) {
  prueba.ejecutar(
      {u"insert into productos (codigo, nombre, descripcion, codigobarras, seccion, coste, "
       "MargenComercial, Precio, IVA, FechaAlta, Foto, color, proveedor, unidadMedida, "
       "StockMinimo, MostrarEnCaja, hechoen, tipoprod, DescNumerica, Orden, impresora, "
       "productoespecial, Borrar) values ('5', 'Tinto', 'Vino', '', '3', 1.5, 0, 2.5, 21, "
       "'2001-02-03', 'vieja.jpg', 65280, 'P09', 'Litros', 2, 0, 2, 0, 40, 8, 0, 0, 0)"_s,
       u"insert into stock (Producto, Stock, StockMinimo, ConsumicionesDisponibles) values (5, 9, "
       "2, 4)"_s,
       u"insert into productoproveedor (producto, proveedor, coste) values ('5', 'P09', 3.25)"_s});
}

}  // namespace

class TestGuardadoGrabacion : public QObject {
  Q_OBJECT
 private slots:
  void initTestCase() { QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain)); }
  void unProductoNuevoSeEscribeColumnaAColumna();
  void sinFamiliaNiFotoNiLugarLasColumnasQuedanComoDebe();
  void elProductoEspecialSoloSeGuardaEnRestauranteYCopas();
  void modificarReescribeLaFechaYConservaLaFoto();
  void modificarSinFilaDeStockLaAnade();
  void modificarUnProductoQueNoExisteNoEscribeNada();
  void eliminarMarcaElProductoYBorraSoloSuStock();
  void preguntarEliminarSoloSigueConSi();
  void sinTablaDeStockElNuevoNoDejaNada();
  void unFalloAlReescribirElStockDejaLasFilasAntiguas();
  void unImporteNoNumericoNoGrabaNada();
};

void TestGuardadoGrabacion::unProductoNuevoSeEscribeColumnaAColumna() {
  InstalacionPrueba prueba;
  prueba.entorno().sesion.tipo_programa = u"RESTAURANTE"_s;
  // A deleted product still holds code 9: the new one takes 10.
  prueba.ejecutar({u"insert into productos (codigo, nombre, borrar) values ('9', 'Viejo', -1)"_s,
                   u"insert into productoproveedor (producto, proveedor, coste) values ('10', "
                   "'P77', 1)"_s});

  const std::optional<qint64> codigo = GrabarProductoNuevo(prueba.entorno(), Cana());
  QCOMPARE(codigo, std::optional<qint64>(10));

  const QList<QVariantList> filas = prueba.filas(kColumnasProducto + u"where codigo = '10'"_s);
  QCOMPARE(filas.size(), 1);
  const QVariantList& f = filas.first();
  // Every column is written: a missing value would read as 0 below.
  for (int i = 0; i < f.size(); ++i)
    QVERIFY2(!f.at(i).isNull(), qPrintable(QString::number(i)));
  // Column 4: the family's code, not "-1"; 12: the first assigned supplier; 15: shown on the till;
  // 16: bar; 17: both
  CompararFila(f, u"10"_s, u"Caña"_s, u"Cerveza de barril"_s, u"8410000000017"_s, u"7"_s, 0.6, 1.0,
               1.76, 10.0, Hoy(), u"cana.jpg"_s, 255, u"P01"_s, u"Unidades"_s, 5.0, 0, 1, 2, 12, 3,
               2, 0, 0);

  const QList<QVariantList> stock =
      prueba.filas(u"select Producto, Stock, StockMinimo, ConsumicionesDisponibles from stock"_s);
  QCOMPARE(stock, (QList<QVariantList>{{10, 24.0, 5.0, 0.0}}));
  QVERIFY(!stock.first().last().isNull());

  // The links written for the unsaved code are replaced by the assigned list, at cost 0.
  const QList<QVariantList> enlaces =
      prueba.filas(u"select producto, proveedor, coste from productoproveedor order by rowid"_s);
  QCOMPARE(enlaces, (QList<QVariantList>{{u"10"_s, u"P01"_s, 0.0}, {u"10"_s, u"PRV123"_s, 0.0}}));
  QVERIFY(prueba.log().isEmpty());
}

void TestGuardadoGrabacion::sinFamiliaNiFotoNiLugarLasColumnasQuedanComoDebe() {
  InstalacionPrueba prueba;
  ProductoFormulario p = Cana();
  p.familia.clear();
  p.foto.clear();
  p.color.clear();
  p.codigoBarras.clear();
  p.descripcion.clear();
  p.optBarra = false;
  p.chkProdEspecial = true;  // an entry product: no place is written
  p.optAmbos = false;
  p.optCocinaBarra = true;
  p.mostrarEnCaja = false;
  p.margen.clear();
  p.precio.clear();
  p.stockActual.clear();
  p.impresora = u"0"_s;
  p.descNumerica = u"   "_s;
  p.posicion = u"0"_s;
  p.consumiciones = 6.5;
  QCOMPARE(GrabarProductoNuevo(prueba.entorno(), p), std::optional<qint64>(1));

  const QVariantList f = prueba.filas(kColumnasProducto).value(0);
  // Empty boxes are written as the empty text, not as missing values.
  for (int columna : {2, 3}) {
    QVERIFY(!f.at(columna).isNull());
    QCOMPARE(f.at(columna).toString(), u""_s);
  }
  QCOMPARE(f.at(4).toString(), u"-1"_s);
  QCOMPARE(f.at(6).toDouble(), 0.0);
  QCOMPARE(f.at(7).toDouble(), 0.0);
  QVERIFY(f.at(10).isNull());  // Foto not written
  QVERIFY(f.at(11).isNull());  // no colour chosen
  QCOMPARE(f.at(15).toInt(), -1);
  QVERIFY(f.at(16).isNull());  // hechoen not written
  QCOMPARE(f.at(17).toInt(), 0);
  QCOMPARE(f.at(18).toInt(), 1);  // blanks give 1
  QCOMPARE(f.at(19).toInt(), 0);
  QCOMPARE(f.at(20).toInt(), 0);
  QCOMPARE(prueba.filas(u"select Stock, ConsumicionesDisponibles from stock"_s),
           (QList<QVariantList>{{0.0, 6.5}}));
}

void TestGuardadoGrabacion::elProductoEspecialSoloSeGuardaEnRestauranteYCopas() {
  const QList<QPair<QString, QVariant>> casos = {{u"RESTAURANTE"_s, -1},
                                                 {u"COPAS"_s, -1},
                                                 {u"FASTFOOD"_s, QVariant()},
                                                 {u"Restaurante"_s, QVariant()}};
  for (const auto& [tipo, esperado] : casos) {
    InstalacionPrueba prueba;
    prueba.entorno().sesion.tipo_programa = tipo;
    ProductoFormulario p = Cana();
    p.chkProdEspecial = true;
    QVERIFY(GrabarProductoNuevo(prueba.entorno(), p));
    const QVariant valor =
        prueba.filas(u"select productoespecial from productos"_s).value(0).value(0);
    QVERIFY2(valor.isNull() == esperado.isNull(), qPrintable(tipo));
    if (!esperado.isNull())
      QCOMPARE(valor.toInt(), esperado.toInt());
  }
}

void TestGuardadoGrabacion::modificarReescribeLaFechaYConservaLaFoto() {
  InstalacionPrueba prueba;
  prueba.entorno().sesion.tipo_programa = u"COPAS"_s;
  ProductoAntiguo(prueba);
  ProductoFormulario p = Cana();
  p.codigo = 5;
  p.nombre = u"Tinto de verano"_s;
  p.foto.clear();      // no new picture chosen
  p.optBarra = false;  // no place chosen: the stored one stays
  p.chkProdEspecial = true;
  p.optAmbos = false;
  p.optVenta = true;
  p.proveedores = {LineaLista(u"Bodegas"_s, u"P10"_s)};
  QVERIFY(modificarProducto(prueba.entorno(), p));

  const QVariantList f = prueba.filas(kColumnasProducto + u"where codigo = '5'"_s).value(0);
  QCOMPARE(f.at(1).toString(), u"Tinto de verano"_s);
  QCOMPARE(f.at(4).toString(), u"7"_s);
  QCOMPARE(f.at(5).toDouble(), 0.6);
  QCOMPARE(f.at(9).toString(), Hoy());  // the date of creation is rewritten
  QCOMPARE(f.at(10).toString(), u"vieja.jpg"_s);
  QCOMPARE(f.at(12).toString(), u"P10"_s);
  QCOMPARE(f.at(16).toInt(), 2);  // kept
  QCOMPARE(f.at(17).toInt(), 1);
  QCOMPARE(f.at(21).toInt(), -1);
  QCOMPARE(prueba.filas(u"select count(*) from productos"_s).value(0).value(0).toInt(), 1);
  QCOMPARE(prueba.filas(u"select Producto, Stock, StockMinimo, ConsumicionesDisponibles from "
                        "stock"_s),
           (QList<QVariantList>{{5, 24.0, 5.0, 0.0}}));
  QCOMPARE(prueba.filas(u"select producto, proveedor, coste from productoproveedor"_s),
           (QList<QVariantList>{{u"5"_s, u"P10"_s, 0.0}}));
}

void TestGuardadoGrabacion::modificarSinFilaDeStockLaAnade() {
  InstalacionPrueba prueba;
  ProductoAntiguo(prueba);
  prueba.ejecutar({u"delete from stock where producto = 5"_s});
  ProductoFormulario p = Cana();
  p.codigo = 5;
  p.foto = u"nueva.png"_s;
  QVERIFY(modificarProducto(prueba.entorno(), p));
  QCOMPARE(prueba.filas(u"select Foto from productos"_s).value(0).value(0).toString(),
           u"nueva.png"_s);
  QCOMPARE(prueba.filas(u"select Producto, Stock, StockMinimo, ConsumicionesDisponibles from "
                        "stock"_s),
           (QList<QVariantList>{{5, 24.0, 5.0, 0.0}}));
}

void TestGuardadoGrabacion::modificarUnProductoQueNoExisteNoEscribeNada() {
  InstalacionPrueba prueba;
  ProductoFormulario p = Cana();
  p.codigo = 44;
  QVERIFY(!modificarProducto(prueba.entorno(), p));
  QCOMPARE(prueba.filas(u"select count(*) from stock"_s).value(0).value(0).toInt(), 0);
  QCOMPARE(prueba.filas(u"select count(*) from productoproveedor"_s).value(0).value(0).toInt(), 0);
  QCOMPARE(prueba.log(), QByteArray("Productos  8, Descripcion: No existe el producto 44\r\n"));
}

void TestGuardadoGrabacion::eliminarMarcaElProductoYBorraSoloSuStock() {
  InstalacionPrueba prueba;
  ProductoAntiguo(prueba);
  prueba.ejecutar(
      {u"insert into stock (Producto, Stock) values (6, 1)"_s,
       u"insert into subproductos (CodProductoPadre, CodProductoHijo) values ('5', '6')"_s});
  QVERIFY(EliminarProducto(prueba.entorno(), 5));
  QCOMPARE(prueba.filas(u"select codigo, borrar, nombre from productos"_s),
           (QList<QVariantList>{{u"5"_s, -1, u"Tinto"_s}}));
  QCOMPARE(prueba.filas(u"select Producto from stock"_s), (QList<QVariantList>{{6}}));
  // The links stay, by design.
  QCOMPARE(prueba.filas(u"select producto, proveedor from productoproveedor"_s),
           (QList<QVariantList>{{u"5"_s, u"P09"_s}}));
  QCOMPARE(prueba.filas(u"select count(*) from subproductos"_s).value(0).value(0).toInt(), 1);
}

void TestGuardadoGrabacion::preguntarEliminarSoloSigueConSi() {
  DialogosGuion dialogos;
  dialogos.siguienteRespuesta(ServicioDialogos::Respuesta::No);
  QVERIFY(!PreguntarEliminar(dialogos));
  dialogos.siguienteRespuesta(ServicioDialogos::Respuesta::Si);
  QVERIFY(PreguntarEliminar(dialogos));
  const DialogosGuion::Llamada llamada = dialogos.llamadas().first();
  QCOMPARE(llamada.texto, u"¿Esta seguro de que desea eliminar este producto?"_s);
  QCOMPARE(llamada.botones, ServicioDialogos::Botones::SiNo);
  QCOMPARE(llamada.icono, ServicioDialogos::Icono::Pregunta);
}

void TestGuardadoGrabacion::sinTablaDeStockElNuevoNoDejaNada() {
  InstalacionPrueba prueba;
  prueba.ejecutar({u"drop table stock"_s});
  QCOMPARE(GrabarProductoNuevo(prueba.entorno(), Cana()), std::nullopt);
  QCOMPARE(prueba.filas(u"select count(*) from productos"_s).value(0).value(0).toInt(), 0);
  QCOMPARE(prueba.filas(u"select count(*) from productoproveedor"_s).value(0).value(0).toInt(), 0);
  QCOMPARE(prueba.erroresMostrados().size(), 1);
  QCOMPARE(prueba.erroresMostrados().first().first, u"Productos  7"_s);
  QVERIFY(prueba.erroresMostrados().first().second.contains(u"stock"_s));
}

void TestGuardadoGrabacion::unFalloAlReescribirElStockDejaLasFilasAntiguas() {
  InstalacionPrueba prueba;
  ProductoAntiguo(prueba);
  Directo(prueba,
          u"create trigger bloqueo before update on stock begin select raise(abort, 'stock "
          "bloqueado'); end"_s);
  ProductoFormulario p = Cana();
  p.codigo = 5;
  QVERIFY(!modificarProducto(prueba.entorno(), p));

  const QVariantList f = prueba.filas(kColumnasProducto + u"where codigo = '5'"_s).value(0);
  QCOMPARE(f.at(1).toString(), u"Tinto"_s);
  QCOMPARE(f.at(9).toString(), u"2001-02-03"_s);
  QCOMPARE(f.at(12).toString(), u"P09"_s);
  QCOMPARE(prueba.filas(u"select Stock from stock"_s), (QList<QVariantList>{{9.0}}));
  QCOMPARE(prueba.filas(u"select producto, proveedor, coste from productoproveedor"_s),
           (QList<QVariantList>{{u"5"_s, u"P09"_s, 3.25}}));
  QCOMPARE(prueba.log(), QByteArray("Productos  8, Descripcion: stock bloqueado\r\n"));
}

void TestGuardadoGrabacion::unImporteNoNumericoNoGrabaNada() {
  // The margin is not among the required checks; a margin that is no number stops the save.
  InstalacionPrueba prueba;
  ProductoFormulario p = Cana();
  p.margen = u"uno"_s;
  QCOMPARE(GrabarProductoNuevo(prueba.entorno(), p), std::nullopt);
  QCOMPARE(prueba.filas(u"select count(*) from productos"_s).value(0).value(0).toInt(), 0);
  QCOMPARE(prueba.log(),
           QByteArray("Productos  7, Descripcion: El valor \xABuno\xBB no es v\xE1lido para el "
                      "campo MargenComercial\r\n"));
}

QTEST_MAIN(TestGuardadoGrabacion)
#include "test_guardado_grabacion.moc"
