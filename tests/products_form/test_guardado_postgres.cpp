#include <QDate>
#include <QSqlQuery>
#include <QtTest>

#include "codigos_producto.h"
#include "esquema.h"
#include "formulario_prueba.h"
#include "grabacion_producto.h"
#include "listas_productos.h"
#include "postgres_prueba.h"
#include "principal.h"

using namespace Qt::Literals::StringLiterals;

// Installations with many terminals keep the catalogue on PostgreSQL: what a save writes there
// must be what the other programs read, column by column (terminals saving at once: the
// reliability suite).
class TestGuardadoPostgres : public QObject {
  Q_OBJECT
 private slots:
  void initTestCase();
  void grabaModificaYEliminaComoEnSQLite();
  void unaBaseDelServidorNoTieneNombreDeArchivo();

 private:
  std::unique_ptr<PostgresPrueba> pg_;
  OrigenDatos origen_;
};

void TestGuardadoPostgres::initTestCase() {
  // The amounts are typed with the Spanish separator.
  QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain));
  pg_ = std::make_unique<PostgresPrueba>();
  QVERIFY2(pg_->arrancado(), qPrintable(pg_->error()));
  origen_ = pg_->crearBaseDatos(u"velandria"_s);
  QVERIFY2(!origen_.baseDatos.isEmpty(), qPrintable(pg_->error()));
  Conexion c;
  OrigenesDatos origenes;
  origenes.mapear(u"velandria"_s, origen_);
  c.abrir(kCadenaVelandria, origenes);
  CrearEsquema(c, TablasPrincipales());
}

void TestGuardadoPostgres::grabaModificaYEliminaComoEnSQLite() {
  InstalacionPrueba inst;
  UsarPostgres(inst, origen_);
  Conexion& c = inst.conexion();
  QCOMPARE(c.motor(), Motor::PostgreSQL);
  c.ejecutar(u"delete from productos"_s);
  c.ejecutar(u"delete from stock"_s);
  c.ejecutar(u"delete from productoproveedor"_s);
  c.ejecutar(u"insert into productos (codigo, nombre, borrar) values ('9', 'Borrado', -1)"_s);

  const std::optional<qint64> codigo = GrabarProductoNuevo(inst.entorno(), Cana());
  QCOMPARE(codigo, std::optional<qint64>(10));  // "10" after "9", the deleted one included
  const QString columnas =
      u"select codigo, nombre, descripcion, codigobarras, seccion, coste, margencomercial, "
      "precio, iva, fechaalta, foto, color, proveedor, unidadmedida, stockminimo, "
      "mostrarencaja, hechoen, tipoprod, descnumerica, orden, impresora, productoespecial, "
      "borrar from productos where codigo = '10'"_s;
  const QList<QVariantList> filas = inst.filas(columnas);
  QCOMPARE(filas.size(), 1);
  CompararFila(filas.first(), u"10"_s, u"Caña"_s, u"Cerveza de barril"_s, u"8410000000017"_s,
               u"7"_s, 0.6, 1.0, 1.76, 10.0, QDate::currentDate(), u"cana.jpg"_s, 255, u"P01"_s,
               u"Unidades"_s, 5.0, 0, 1, 2, 12, 3, 2, 0, 0);
  QCOMPARE(
      inst.filas(u"select producto, stock, stockminimo, consumicionesdisponibles from stock"_s),
      (QList<QVariantList>{{10, 24.0, 5.0, 0.0}}));
  QCOMPARE(
      inst.filas(u"select producto, proveedor, coste from productoproveedor order by proveedor"_s),
      (QList<QVariantList>{{u"10"_s, u"P01"_s, 0.0}, {u"10"_s, u"PRV123"_s, 0.0}}));
  // Text compares without regard to letter case, as the till expects.
  QVERIFY(bcomprobarSiExisteNombre(inst.entorno(), u"CAña"_s, 99));
  QVERIFY(!bcomprobarSiExisteNombre(inst.entorno(), u"CAña"_s, 10));

  ProductoFormulario cambio = Cana();
  cambio.codigo = 10;
  cambio.precio = u"2"_s;
  cambio.foto.clear();
  cambio.proveedores = {LineaLista(u"Sur"_s, u"PRV123"_s)};
  QVERIFY(modificarProducto(inst.entorno(), cambio));
  QCOMPARE(inst.filas(u"select precio, foto, proveedor from productos where codigo = '10'"_s),
           (QList<QVariantList>{{2.0, u"cana.jpg"_s, u"PRV123"_s}}));
  QCOMPARE(inst.filas(u"select proveedor from productoproveedor"_s),
           (QList<QVariantList>{{u"PRV123"_s}}));

  QVERIFY(EliminarProducto(inst.entorno(), 10));
  QCOMPARE(inst.filas(u"select borrar from productos where codigo = '10'"_s),
           (QList<QVariantList>{{-1}}));
  QVERIFY(inst.filas(u"select * from stock"_s).isEmpty());
  QVERIFY(inst.erroresMostrados().isEmpty());
}

// "bar" is no "velandria.mdb", and a server's database is no file on a drive: nothing to check.
void TestGuardadoPostgres::unaBaseDelServidorNoTieneNombreDeArchivo() {
  InstalacionPrueba inst;
  UsarPostgres(inst, pg_->crearBaseDatos(u"bar"_s));
  UbicarBaseDeDatos(inst.entorno());
  QVERIFY(!inst.entorno().sesion.BDEnOtraUnidad);
  QVERIFY(inst.entorno().sesion.RutaFotosBD.isEmpty());
}

QTEST_MAIN(TestGuardadoPostgres)
#include "test_guardado_postgres.moc"
