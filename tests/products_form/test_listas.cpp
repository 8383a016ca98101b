#include <QtTest>

#include "instalacion_prueba.h"
#include "listas_productos.h"

using namespace Qt::Literals::StringLiterals;

namespace {

void Productos(InstalacionPrueba& prueba) {
  prueba.ejecutar(
      {u"insert into productos (codigo, nombre, borrar, tipoprod) values ('3', 'Tortilla', 0, 1)"_s,
       u"insert into productos (codigo, nombre, borrar, tipoprod) values ('12', 'Aceite', 0, 0)"_s,
       u"insert into productos (codigo, nombre, borrar, tipoprod) values ('4', 'Borrado', -1, 0)"_s,
       u"insert into productos (codigo, nombre, borrar, tipoprod) values ('5', 'Café', 0, 2)"_s});
}

}  // namespace

class TestListas : public QObject {
  Q_OBJECT
 private slots:
  void laLineaEsNombreCientoVeinteBlancosYCodigo();
  void unCodigoDeMasDeDiezCifrasNoSeLeeEntero();
  void laListaDeTodosLosProductosVivosPorNombre();
  void lasListasPorTipo();
  void sinProductosSeAvisa();
  void unFalloSeRegistraSinAviso();
};

void TestListas::laLineaEsNombreCientoVeinteBlancosYCodigo() {
  const QString linea = LineaLista(u"Tortilla"_s, u"3"_s);
  QCOMPARE(linea.size(), 8 + 120 + 1);
  QCOMPARE(linea, u"Tortilla"_s + QString(120, u' ') + u"3"_s);
  QCOMPARE(CodigoDeLineaLista(linea), u"3"_s);
  QCOMPARE(CodigoDeLineaLista(LineaLista(u"X"_s, u"1234567890"_s)), u"1234567890"_s);
}

void TestListas::unCodigoDeMasDeDiezCifrasNoSeLeeEntero() {
  QCOMPARE(CodigoDeLineaLista(LineaLista(u"X"_s, u"12345678901"_s)), u"2345678901"_s);
}

void TestListas::laListaDeTodosLosProductosVivosPorNombre() {
  InstalacionPrueba prueba;
  Productos(prueba);
  const std::optional<LineasProductos> lineas = LeerListaProductos(prueba.entorno());
  QVERIFY(lineas);
  QCOMPARE(lineas->todas(),
           (QStringList{LineaLista(u"Aceite"_s, u"12"_s), LineaLista(u"Café"_s, u"5"_s),
                        LineaLista(u"Tortilla"_s, u"3"_s)}));
  QVERIFY(prueba.dialogos().llamadas().isEmpty());
}

void TestListas::lasListasPorTipo() {
  InstalacionPrueba prueba;
  Productos(prueba);
  QCOMPARE(LeerListaProductosPorTipo(prueba.entorno(), u"cocina"_s)->todas(),
           QStringList{LineaLista(u"Aceite"_s, u"12"_s)});
  QCOMPARE(LeerListaProductosPorTipo(prueba.entorno(), u"barra"_s)->todas(),
           (QStringList{LineaLista(u"Café"_s, u"5"_s), LineaLista(u"Tortilla"_s, u"3"_s)}));
  // Any word other than "cocina", capitals included, gives the products for sale.
  QCOMPARE(LeerListaProductosPorTipo(prueba.entorno(), u"Cocina"_s)->size(), 2);
}

void TestListas::sinProductosSeAvisa() {
  InstalacionPrueba prueba;
  prueba.ejecutar(
      {u"insert into productos (codigo, nombre, borrar, tipoprod) values ('4', 'Borrado', -1, 0)"_s});
  QCOMPARE(LeerListaProductos(prueba.entorno()), std::nullopt);
  QCOMPARE(LeerListaProductosPorTipo(prueba.entorno(), u"cocina"_s), std::nullopt);
  const QList<DialogosGuion::Llamada> avisos = prueba.dialogos().llamadasDe(u"mensaje"_s);
  QCOMPARE(avisos.size(), 2);
  for (const DialogosGuion::Llamada& aviso : avisos) {
    QCOMPARE(aviso.texto, u"No hay productos dados de alta."_s);
    QCOMPARE(aviso.titulo, u"ATENCION"_s);
    QCOMPARE(aviso.icono, ServicioDialogos::Icono::Informacion);
  }
}

void TestListas::unFalloSeRegistraSinAviso() {
  InstalacionPrueba prueba;
  prueba.ejecutar({u"drop table productos"_s});
  QCOMPARE(LeerListaProductos(prueba.entorno()), std::nullopt);
  QCOMPARE(LeerListaProductosPorTipo(prueba.entorno(), u"barra"_s), std::nullopt);
  QVERIFY(prueba.dialogos().llamadas().isEmpty());
  QCOMPARE(prueba.erroresMostrados().size(), 2);
  QCOMPARE(prueba.erroresMostrados().at(0).first, u"ListaProductos  1"_s);
  QCOMPARE(prueba.erroresMostrados().at(1).first, u"ListaProductos  2"_s);
}

QTEST_MAIN(TestListas)
#include "test_listas.moc"
