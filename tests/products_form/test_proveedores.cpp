#include <QtTest>

#include "instalacion_prueba.h"
#include "proveedores_producto.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QString Blancos() {
  return QString(120, u' ');
}

void Proveedores(InstalacionPrueba& prueba) {
  prueba.ejecutar(
      {u"insert into proveedores (codigo, nombre, borrar) values ('1', 'Mahou', 0)"_s,
       u"insert into proveedores (codigo, nombre, borrar) values ('2', 'Pescanova', 0)"_s,
       u"insert into proveedores (codigo, nombre, borrar) values ('3', 'Cerrado', -1)"_s,
       u"insert into proveedores (codigo, nombre, borrar) values ('4', 'Frutas Paco', "
       "0)"_s});
}

int Cuenta(InstalacionPrueba& prueba, const QString& tabla) {
  return prueba.filas(u"select count(*) from "_s + tabla).value(0).value(0).toInt();
}

}  // namespace

class TestProveedores : public QObject {
  Q_OBJECT
 private slots:
  void lasLineasLlevanElCodigoAlFinal();
  void sinProveedoresVivosNoSePuedeCrear();
  void lasListasDeUnProductoNuevo();
  void elPrincipalConEnlaceSaleUnaVezYPrimero();
  void elPrincipalSinEnlaceSaleEnAmbasListas();
  void guardarReemplazaLosEnlacesConCosteCero();
  void unFalloAlGuardarDejaLosEnlacesAntiguos();
  void cancelarUnNuevoSoloBorraEnlacesSinProducto();
  void elBotonMuestraElUltimoAsignado();
};

void TestProveedores::lasLineasLlevanElCodigoAlFinal() {
  const QString linea = LineaProveedor(u"Mahou"_s, u"PRV123"_s);
  QCOMPARE(linea, u"Mahou"_s + Blancos() + u"PRV123"_s);
  QCOMPARE(CodigoDeLineaProveedor(linea), u"PRV123"_s);
  QCOMPARE(CodigoDeLineaProveedor(LineaProveedor(u"Mahou"_s, u"7"_s)), u"7"_s);
  // Only six characters are read back: a longer code is cut.
  QCOMPARE(CodigoDeLineaProveedor(LineaProveedor(u"X"_s, u"ABCDEFG"_s)), u"BCDEFG"_s);
  QCOMPARE(NombreDeLineaProveedor(linea), u"Mahou"_s);
  QCOMPARE(NombreDeLineaProveedor(LineaProveedor(u"Frutas  Paco"_s, u"4"_s)), u"Frutas  Paco"_s);
  QVERIFY(bProveedorAsignado({linea, LineaProveedor(u"B"_s, u"9"_s)}, u"9"_s));
  QVERIFY(!bProveedorAsignado({linea}, u"PRV12"_s));
}

void TestProveedores::sinProveedoresVivosNoSePuedeCrear() {
  InstalacionPrueba prueba;
  QVERIFY(!bHayProveedores(prueba.entorno()));
  prueba.ejecutar(
      {u"insert into proveedores (codigo, nombre, borrar) values ('30', 'Cerrado', -1)"_s});
  QVERIFY(!bHayProveedores(prueba.entorno()));
  Proveedores(prueba);
  QVERIFY(bHayProveedores(prueba.entorno()));

  AvisarSinProveedores(prueba.dialogos());
  const DialogosGuion::Llamada aviso = prueba.dialogos().llamadas().last();
  QCOMPARE(aviso.texto, u"Antes de dar de alta productos tiene que dar de alta algun proveedor"_s);
  QCOMPARE(aviso.icono, ServicioDialogos::Icono::Informacion);
}

void TestProveedores::lasListasDeUnProductoNuevo() {
  InstalacionPrueba prueba;
  Proveedores(prueba);
  const ListasProveedores listas = CargarListasProveedores(prueba.entorno(), 30);
  // Every supplier is free, the deleted one included (kept so); nothing is assigned.
  QCOMPARE(listas.libres,
           (QStringList{LineaProveedor(u"Mahou"_s, u"1"_s), LineaProveedor(u"Pescanova"_s, u"2"_s),
                        LineaProveedor(u"Cerrado"_s, u"3"_s),
                        LineaProveedor(u"Frutas Paco"_s, u"4"_s)}));
  QVERIFY(listas.asignados.isEmpty());
  QVERIFY(prueba.log().isEmpty());
}

void TestProveedores::elPrincipalConEnlaceSaleUnaVezYPrimero() {
  InstalacionPrueba prueba;
  Proveedores(prueba);
  prueba.ejecutar(
      {u"insert into productos (codigo, nombre, proveedor) values ('8', 'Merluza', '2')"_s,
       u"insert into productoproveedor (producto, proveedor, coste) values ('8', '4', 0)"_s,
       u"insert into productoproveedor (producto, proveedor, coste) values ('8', '2', 0)"_s});
  const ListasProveedores listas = CargarListasProveedores(prueba.entorno(), 8);
  QCOMPARE(listas.asignados, (QStringList{LineaProveedor(u"Pescanova"_s, u"2"_s),
                                          LineaProveedor(u"Frutas Paco"_s, u"4"_s)}));
  QCOMPARE(listas.libres,
           (QStringList{LineaProveedor(u"Mahou"_s, u"1"_s), LineaProveedor(u"Cerrado"_s, u"3"_s)}));
}

void TestProveedores::elPrincipalSinEnlaceSaleEnAmbasListas() {
  InstalacionPrueba prueba;
  Proveedores(prueba);
  prueba.ejecutar(
      {u"insert into productos (codigo, nombre, proveedor) values ('8', 'Merluza', '1')"_s});
  const ListasProveedores listas = CargarListasProveedores(prueba.entorno(), 8);
  QCOMPARE(listas.asignados, QStringList{LineaProveedor(u"Mahou"_s, u"1"_s)});
  QVERIFY(listas.libres.contains(LineaProveedor(u"Mahou"_s, u"1"_s)));
  QCOMPARE(listas.libres.size(), 4);
}

void TestProveedores::guardarReemplazaLosEnlacesConCosteCero() {
  InstalacionPrueba prueba;
  prueba.ejecutar(
      {u"insert into productoproveedor (producto, proveedor, coste) values ('8', '9', 4.5)"_s,
       u"insert into productoproveedor (producto, proveedor, coste) values ('80', '9', 4.5)"_s});
  QVERIFY(GuardarProveedores(
      prueba.entorno(), 8,
      {LineaProveedor(u"Frutas Paco"_s, u"4"_s), LineaProveedor(u"Mahou"_s, u"1"_s)}));
  QCOMPARE(
      prueba.filas(u"select producto, proveedor, coste from productoproveedor order by "
                   "rowid"_s),
      (QList<QVariantList>{{u"80"_s, u"9"_s, 4.5}, {u"8"_s, u"4"_s, 0.0}, {u"8"_s, u"1"_s, 0.0}}));
  // An empty list leaves the product without links.
  QVERIFY(GuardarProveedores(prueba.entorno(), 8, {}));
  QCOMPARE(Cuenta(prueba, u"productoproveedor"_s), 1);
}

void TestProveedores::unFalloAlGuardarDejaLosEnlacesAntiguos() {
  InstalacionPrueba prueba;
  prueba.ejecutar(
      {u"insert into productoproveedor (producto, proveedor, coste) values ('8', '9', 4.5)"_s});
  // The table refuses the second supplier, half-way through the save.
  prueba.ejecutar({u"alter table productoproveedor rename to viejos"_s,
                   u"create table productoproveedor (producto text, proveedor text check "
                   "(proveedor <> '2'), coste double)"_s,
                   u"insert into productoproveedor select * from viejos"_s});
  QVERIFY(!GuardarProveedores(prueba.entorno(), 8,
                              {LineaProveedor(u"A"_s, u"1"_s), LineaProveedor(u"B"_s, u"2"_s)}));
  QCOMPARE(prueba.filas(u"select producto, proveedor, coste from productoproveedor"_s),
           (QList<QVariantList>{{u"8"_s, u"9"_s, 4.5}}));
  QCOMPARE(prueba.erroresMostrados().size(), 1);
  QCOMPARE(prueba.erroresMostrados().first().first, u"Proveedores  3"_s);
}

void TestProveedores::cancelarUnNuevoSoloBorraEnlacesSinProducto() {
  InstalacionPrueba prueba;
  prueba.ejecutar(
      {u"insert into productos (codigo, nombre) values ('5', 'Guardado')"_s,
       u"insert into productoproveedor (producto, proveedor, coste) values ('5', '1', 0)"_s,
       u"insert into productoproveedor (producto, proveedor, coste) values ('6', '1', 0)"_s,
       u"insert into productoproveedor (producto, proveedor, coste) values ('6', '2', 0)"_s,
       u"insert into productoproveedor (producto, proveedor, coste) values ('7', '2', 0)"_s});
  BorrarProveedoresSinProducto(prueba.entorno(), 6);
  BorrarProveedoresSinProducto(prueba.entorno(), 5);  // saved: untouched
  QCOMPARE(prueba.filas(u"select producto, proveedor from productoproveedor order by rowid"_s),
           (QList<QVariantList>{{u"5"_s, u"1"_s}, {u"7"_s, u"2"_s}}));
  QVERIFY(prueba.log().isEmpty());
}

void TestProveedores::elBotonMuestraElUltimoAsignado() {
  const QStringList asignados = {LineaProveedor(u"Mahou"_s, u"1"_s),
                                 LineaProveedor(u"Frutas Paco"_s, u"4"_s)};
  QCOMPARE(CaptionTrasAceptarProveedores(asignados, kCaptionSinProveedores), u"Frutas Paco"_s);
  QCOMPARE(CaptionTrasAceptarProveedores({}, u"Mahou"_s), u"Mahou"_s);
  QCOMPARE(kCaptionSinProveedores, u"Seleccione sus proveedores"_s);
}

QTEST_MAIN(TestProveedores)
#include "test_proveedores.moc"
