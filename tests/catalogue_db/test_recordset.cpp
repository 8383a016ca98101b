#include <QDate>
#include <QTest>

#include "error_bd.h"
#include "motores_prueba.h"
#include "recordset.h"

using namespace Qt::Literals::StringLiterals;

// The recordset behaves alike on every driver: moves, fields, writing rows back to the table.
class TestRecordset : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() { motores_ = std::make_unique<MotoresPrueba>(); }
  void cleanupTestCase() { motores_.reset(); }
  // Every test runs on every driver.
  void initTestCase_data() { MotoresPrueba::agregarFilas(); }

  void movimientos();
  void vacio();
  void altaCambioYBorrado();
  void tablasSinClave();
  void recorrerTrasAgregarSinLeer();
  void requery();
  void borrarEnBucle();
  void conversionAlTipoDeLaColumna();

 private:
  std::unique_ptr<MotoresPrueba> motores_;
};

void TestRecordset::movimientos() {
  ABRIR_NUEVA_DEL_MOTOR(*motores_);
  c.ejecutar(u"insert into productos (codigo, nombre, borrar) values ('1', 'Agua', 0)"_s);
  c.ejecutar(u"insert into productos (codigo, nombre, borrar) values ('2', 'Caña', 0)"_s);
  c.ejecutar(u"insert into productos (codigo, nombre, borrar) values ('3', 'Vino', 0)"_s);

  Recordset rs(c, u"select * from productos order by codigo"_s);
  QCOMPARE(rs.recordCount(), 3);
  QCOMPARE(rs.fieldCount(), 23);
  QVERIFY(!rs.bof());
  QVERIFY(!rs.eof());
  // By name in any letter case (PostgreSQL gives "margencomercial"), and by position.
  QCOMPARE(rs.field(u"CODIGO"_s).toString(), u"1"_s);
  QCOMPARE(rs.field(u"Nombre"_s).toString(), u"Agua"_s);
  QCOMPARE(rs.field(0).toString(), u"1"_s);
  QCOMPARE(rs.fieldName(1).toLower(), u"nombre"_s);
  QVERIFY(rs.isNull(u"MargenComercial"_s));

  rs.moveNext();
  QCOMPARE(rs.field(u"nombre"_s).toString(), u"Caña"_s);
  rs.moveNext();
  QCOMPARE(rs.field(1).toString(), u"Vino"_s);
  rs.moveNext();
  QVERIFY(rs.eof());
  QVERIFY(!rs.bof());
  QVERIFY_THROWS_EXCEPTION(ErrorBD, rs.field(u"codigo"_s));
  try {
    rs.moveNext();
    QFAIL("moveNext at EOF must throw");
  } catch (const ErrorBD& e) {
    QVERIFY2(e.descripcion().startsWith(u"BOF o EOF es True"_s), qPrintable(e.descripcion()));
  }
  rs.movePrevious();
  QCOMPARE(rs.field(u"codigo"_s).toString(), u"3"_s);

  rs.moveFirst();
  rs.movePrevious();
  QVERIFY(rs.bof());
  QVERIFY(!rs.eof());
  QVERIFY_THROWS_EXCEPTION(ErrorBD, rs.field(0));
  QVERIFY_THROWS_EXCEPTION(ErrorBD, rs.movePrevious());
  rs.moveNext();  // from BOF to the first row
  QCOMPARE(rs.field(u"codigo"_s).toString(), u"1"_s);
  rs.moveLast();
  QCOMPARE(rs.field(u"codigo"_s).toString(), u"3"_s);

  QVERIFY_THROWS_EXCEPTION(ErrorBD, rs.field(u"noexiste"_s));
  QVERIFY_THROWS_EXCEPTION(ErrorBD, rs.field(23));
  QVERIFY_THROWS_EXCEPTION(ErrorBD, rs.field(-1));

  rs.close();
  QVERIFY(!rs.isOpen());
  QVERIFY_THROWS_EXCEPTION(ErrorBD, rs.recordCount());
  QVERIFY_THROWS_EXCEPTION(ErrorBD, rs.moveFirst());
}

void TestRecordset::vacio() {
  ABRIR_NUEVA_DEL_MOTOR(*motores_);
  Recordset rs(c, u"select * from stock"_s);
  QCOMPARE(rs.recordCount(), 0);
  QVERIFY(rs.bof());
  QVERIFY(rs.eof());
  QVERIFY_THROWS_EXCEPTION(ErrorBD, rs.moveFirst());
  QVERIFY_THROWS_EXCEPTION(ErrorBD, rs.moveLast());
  QVERIFY_THROWS_EXCEPTION(ErrorBD, rs.moveNext());
  QVERIFY_THROWS_EXCEPTION(ErrorBD, rs.movePrevious());
  QVERIFY_THROWS_EXCEPTION(ErrorBD, rs.field(u"producto"_s));
  QVERIFY_THROWS_EXCEPTION(ErrorBD, rs.setField(u"stock"_s, 1.0));
  QVERIFY_THROWS_EXCEPTION(ErrorBD, rs.deleteRow());

  // The program adds rows through a recordset opened on the empty table.
  rs.addNew();
  rs.setField(u"Producto"_s, 4);
  rs.setField(u"Stock"_s, 2.5);
  rs.update();
  QCOMPARE(rs.recordCount(), 1);
  QVERIFY(!rs.eof());
  QCOMPARE(rs.field(u"producto"_s).toInt(), 4);
  const auto filas = FilasDe(c, u"select producto, stock, stockminimo from stock"_s);
  QCOMPARE(filas.size(), 1);
  QCOMPARE(filas[0][0].toInt(), 4);
  QCOMPARE(filas[0][1].toDouble(), 2.5);
  QVERIFY(filas[0][2].isNull());
}

void TestRecordset::altaCambioYBorrado() {
  ABRIR_NUEVA_DEL_MOTOR(*motores_);
  const QString columnas =
      u"select codigo, nombre, coste, precio, fechaalta, mostrarencaja, borrar, productoespecial, "
      "hechoen, descnumerica, descripcion from productos order by codigo"_s;
  {
    Recordset rs(c, u"select * from productos"_s);
    rs.addNew();
    rs.setField(u"codigo"_s, u"7"_s);
    rs.setField(u"nombre"_s, u"Caña"_s);
    rs.setField(u"coste"_s, 1.25);
    rs.setField(u"Precio"_s, u"3.5"_s);
    rs.setField(u"FechaAlta"_s, QDate(2024, 5, 17));
    rs.setField(u"MostrarEnCaja"_s, 0);
    rs.setField(u"Borrar"_s, false);
    rs.setField(u"productoespecial"_s, true);  // the suite's true is -1
    rs.setField(u"hechoen"_s, 2);
    rs.setField(u"DescNumerica"_s, 12);
    QCOMPARE(rs.field(u"nombre"_s).toString(), u"Caña"_s);  // the new row reads back before saving
    QVERIFY(rs.isNull(u"descripcion"_s));
    rs.update();
    QCOMPARE(rs.recordCount(), 1);
    QCOMPARE(rs.field(u"codigo"_s).toString(), u"7"_s);
  }
  auto filas = FilasDe(c, columnas);
  QCOMPARE(filas.size(), 1);
  QCOMPARE(filas[0][0].toString(), u"7"_s);
  QCOMPARE(filas[0][1].toString(), u"Caña"_s);
  QCOMPARE(filas[0][2].toDouble(), 1.25);
  QCOMPARE(filas[0][3].toDouble(), 3.5);
  QCOMPARE(filas[0][4].toDate(), QDate(2024, 5, 17));
  QCOMPARE(filas[0][5].toInt(), 0);
  QCOMPARE(filas[0][6].toInt(), 0);
  QCOMPARE(filas[0][7].toInt(), -1);
  QCOMPARE(filas[0][8].toInt(), 2);
  QCOMPARE(filas[0][9].toInt(), 12);
  QVERIFY(filas[0][10].isNull());

  // Change the one product: only the fields set are written.
  c.ejecutar(u"insert into productos (codigo, nombre, coste, borrar) values ('8', 'Vino', 2, 0)"_s);
  {
    Recordset rs(c, u"select * from productos where codigo = '7'"_s);
    rs.setField(u"Nombre"_s, u"Caña doble"_s);
    rs.setField(u"coste"_s, 2);
    QCOMPARE(rs.field(u"nombre"_s).toString(), u"Caña doble"_s);
    rs.update();
    QCOMPARE(rs.field(u"coste"_s).toDouble(), 2.0);

    rs.setField(u"nombre"_s, u"Olvidado"_s);
    rs.cancelUpdate();
    QCOMPARE(rs.field(u"nombre"_s).toString(), u"Caña doble"_s);

    // A pending change is saved by the next move, as the suite's recordsets always have.
    rs.setField(u"descripcion"_s, u"de barril"_s);
    rs.moveFirst();
  }
  filas = FilasDe(c, columnas);
  QCOMPARE(filas.size(), 2);
  QCOMPARE(filas[0][1].toString(), u"Caña doble"_s);
  QCOMPARE(filas[0][2].toDouble(), 2.0);
  QCOMPARE(filas[0][3].toDouble(), 3.5);
  QCOMPARE(filas[0][7].toInt(), -1);
  QCOMPARE(filas[0][10].toString(), u"de barril"_s);
  QCOMPARE(filas[1][1].toString(), u"Vino"_s);  // the other row is untouched

  // Delete the current row: it cannot be read until the next move.
  {
    Recordset rs(c, u"select * from productos order by codigo"_s);
    rs.deleteRow();
    QVERIFY_THROWS_EXCEPTION(ErrorBD, rs.field(u"codigo"_s));
    QCOMPARE(rs.recordCount(), 1);
    rs.moveNext();
    QCOMPARE(rs.field(u"codigo"_s).toString(), u"8"_s);
  }
  filas = FilasDe(c, columnas);
  QCOMPARE(filas.size(), 1);
  QCOMPARE(filas[0][0].toString(), u"8"_s);

  // A row changed behind the recordset's back is not overwritten blindly.
  {
    Recordset rs(c, u"select * from productos where codigo = '8'"_s);
    c.ejecutar(u"delete from productos where codigo = '8'"_s);
    rs.setField(u"nombre"_s, u"Tinto"_s);
    QVERIFY_THROWS_EXCEPTION(ErrorBD, rs.update());
  }
  QVERIFY(FilasDe(c, columnas).isEmpty());
}

// Rows of tables with no key are found again by all their values (NULL included); a statement
// that leaves out the table's key still writes only its own row.
void TestRecordset::tablasSinClave() {
  ABRIR_NUEVA_DEL_MOTOR(*motores_);
  c.ejecutar(u"insert into productoproveedor (producto, proveedor, coste) values ('1', 'P1', 0)"_s);
  c.ejecutar(
      u"insert into productoproveedor (producto, proveedor, coste) values ('1', 'P2', 0.1)"_s);
  c.ejecutar(u"insert into productoproveedor (producto, proveedor) values ('2', 'P1')"_s);
  {
    Recordset rs(c, u"select * from productoproveedor where producto = '1' and proveedor = 'P2'"_s);
    rs.setField(u"coste"_s, 0.3);
    rs.update();
  }
  {
    Recordset rs(c, u"select * from productoproveedor where producto = '2'"_s);
    rs.setField(u"proveedor"_s, u"P3"_s);
    rs.update();
    rs.deleteRow();
  }
  auto filas = FilasDe(
      c,
      u"select producto, proveedor, coste from productoproveedor order by producto, proveedor"_s);
  QCOMPARE(filas.size(), 2);
  QCOMPARE(filas[0][1].toString(), u"P1"_s);
  QCOMPARE(filas[0][2].toDouble(), 0.0);
  QCOMPARE(filas[1][1].toString(), u"P2"_s);
  QCOMPARE(filas[1][2].toDouble(), 0.3);

  // The terminal's scheme is rewritten through a statement without the key column.
  c.ejecutar(
      u"insert into opciones_terminal (identificador, empleado, id_color, colorpredefinido) "
      "values ('INST1T1', 3, 1, 0)"_s);
  c.ejecutar(
      u"insert into opciones_terminal (identificador, empleado, id_color, colorpredefinido) "
      "values ('INST1T2', 3, 1, 0)"_s);
  {
    Recordset rs(
        c,
        u"Select id_color, colorPredefinido from opciones_terminal where identificador = 'INST1T1'"_s);
    QCOMPARE(rs.fieldCount(), 2);
    QCOMPARE(rs.fieldName(0).toLower(), u"id_color"_s);
    rs.setField(u"id_color"_s, 4);
    rs.setField(u"ColorPredefinido"_s, true);
    rs.update();
  }
  filas = FilasDe(
      c, u"select identificador, id_color, colorpredefinido from opciones_terminal order by 1"_s);
  QCOMPARE(filas.size(), 2);
  QCOMPARE(filas[0][1].toInt(), 4);
  QCOMPARE(filas[0][2].toInt(), -1);
  QCOMPARE(filas[1][1].toInt(), 1);
  QCOMPARE(filas[1][2].toInt(), 0);
}

// Rows added before any row was read: the recordset shows the rows that were there, then the
// added ones, as if it had read them all first; a row equal to an added one is not lost.
void TestRecordset::recorrerTrasAgregarSinLeer() {
  ABRIR_NUEVA_DEL_MOTOR(*motores_);
  c.ejecutar(u"insert into productoproveedor (producto, proveedor, coste) values ('1', 'P1', 0)"_s);
  c.ejecutar(u"insert into stock (producto, stock) values (1, 5)"_s);
  Recordset enlaces(c, u"Select * from productoproveedor"_s);
  Recordset stock(c, u"select * from stock"_s);
  for (const QString& proveedor : {u"P1"_s, u"P2"_s}) {
    enlaces.addNew();
    enlaces.setField(u"producto"_s, u"1"_s);
    enlaces.setField(u"proveedor"_s, proveedor);
    enlaces.setField(u"coste"_s, 0.0);
    enlaces.update();
  }
  stock.addNew();
  stock.setField(u"Producto"_s, 2);
  stock.update();
  QCOMPARE(enlaces.field(u"proveedor"_s).toString(), u"P2"_s);
  QCOMPARE(enlaces.recordCount(), 3);
  QStringList vistos;
  for (enlaces.moveFirst(); !enlaces.eof(); enlaces.moveNext())
    vistos << enlaces.field(u"proveedor"_s).toString();
  QCOMPARE(vistos, (QStringList{u"P1"_s, u"P1"_s, u"P2"_s}));
  QVERIFY(!stock.eof());
  QCOMPARE(stock.field(u"producto"_s).toInt(), 2);
  stock.moveFirst();
  QCOMPARE(stock.field(u"producto"_s).toInt(), 1);
  QCOMPARE(stock.recordCount(), 2);
}

void TestRecordset::requery() {
  ABRIR_NUEVA_DEL_MOTOR(*motores_);
  c.ejecutar(u"insert into proveedores (codigo, nombre, borrar) values ('P1', 'Uno', 0)"_s);
  c.ejecutar(u"insert into proveedores (codigo, nombre, borrar) values ('P2', 'Dos', 0)"_s);
  Recordset rs(c, u"select * from proveedores order by codigo"_s);
  rs.moveLast();
  c.ejecutar(u"insert into proveedores (codigo, nombre, borrar) values ('P0', 'Cero', 0)"_s);
  QCOMPARE(rs.recordCount(), 2);
  rs.requery();
  QCOMPARE(rs.recordCount(), 3);
  QVERIFY(!rs.bof());
  QCOMPARE(rs.field(u"codigo"_s).toString(), u"P0"_s);
  rs.moveLast();
  QCOMPARE(rs.field(u"nombre"_s).toString(), u"Dos"_s);
}

// The program empties a recipe by deleting the rows one by one while walking them.
void TestRecordset::borrarEnBucle() {
  ABRIR_NUEVA_DEL_MOTOR(*motores_);
  for (const QString& valores : {u"'5', '1', 1"_s, u"'5', '2', 0.5"_s, u"'5', '2', 0.5"_s,
                                 u"'5', '3', 4"_s, u"'6', '1', 2"_s}) {
    c.ejecutar(
        u"insert into productoElaborado_producto (productopadre, productohijo, cantidad) "
        "values ("_s +
        valores + u')');
  }
  Recordset rs(c, u" select * from productoElaborado_producto where productopadre = '5'"_s);
  QCOMPARE(rs.recordCount(), 4);
  int vueltas = 0;
  while (!rs.eof()) {
    rs.deleteRow();
    rs.moveNext();
    QVERIFY(++vueltas <= 4);
  }
  QCOMPARE(vueltas, 4);
  QCOMPARE(rs.recordCount(), 0);
  QVERIFY(rs.eof());
  const auto filas =
      FilasDe(c, u"select productopadre, productohijo, cantidad from productoElaborado_producto"_s);
  QCOMPARE(filas.size(), 1);
  QCOMPARE(filas[0][0].toString(), u"6"_s);
  QCOMPARE(filas[0][2].toDouble(), 2.0);
}

// A value is written with the column's type: PostgreSQL refuses text for a number, and SQLite
// would keep the text as it stands. A value that is not of the type is refused and loses nothing.
void TestRecordset::conversionAlTipoDeLaColumna() {
  ABRIR_NUEVA_DEL_MOTOR(*motores_);
  c.ejecutar(
      u"insert into productos (codigo, nombre, coste, orden, borrar) "
      "values ('1', 'Agua', 1, 4, 0)"_s);
  {
    Recordset rs(c, u"select * from productos where codigo = '1'"_s);
    rs.setField(u"coste"_s, u"12.5"_s);
    rs.update();
    QCOMPARE(rs.field(u"coste"_s).toDouble(), 12.5);

    QVERIFY_THROWS_EXCEPTION(ErrorBD, rs.setField(u"coste"_s, u"12,5"_s));
    QVERIFY_THROWS_EXCEPTION(ErrorBD, rs.setField(u"orden"_s, u"abc"_s));
    QVERIFY_THROWS_EXCEPTION(ErrorBD, rs.setField(u"FechaAlta"_s, u"31/02/2024"_s));
    rs.update();  // nothing was taken, so nothing is written
    QCOMPARE(rs.field(u"coste"_s).toDouble(), 12.5);
    QCOMPARE(rs.field(u"orden"_s).toInt(), 4);

    // A code typed as a number goes into the text column as its digits.
    rs.addNew();
    rs.setField(u"codigo"_s, 2);
    rs.setField(u"Orden"_s, u" 3 "_s);
    QVERIFY_THROWS_EXCEPTION(ErrorBD, rs.setField(u"precio"_s, u"x"_s));
    rs.update();
  }
  const auto filas =
      FilasDe(c, u"select codigo, coste, orden, precio from productos order by codigo"_s);
  QCOMPARE(filas.size(), 2);
  QCOMPARE(filas[0][1].toDouble(), 12.5);
  QCOMPARE(filas[0][2].toInt(), 4);
  QCOMPARE(filas[1][0].toString(), u"2"_s);
  QCOMPARE(filas[1][2].toInt(), 3);
  QVERIFY(filas[1][3].isNull());
  if (c.motor() != Motor::PostgreSQL) {  // SQLite keeps a type per value
    const auto tipos =
        FilasDe(c, u"select typeof(coste), typeof(codigo), typeof(orden) from productos"_s);
    QCOMPARE(tipos[0][0].toString(), u"real"_s);
    QCOMPARE(tipos[1][1].toString(), u"text"_s);
    QCOMPARE(tipos[1][2].toString(), u"integer"_s);
  }

  // The stock row's product is a number column: the code's text is converted.
  {
    Recordset rs(c, u"select * from stock"_s);
    rs.addNew();
    rs.setField(u"producto"_s, u"2"_s);
    rs.setField(u"stock"_s, u"-1.5"_s);
    rs.update();
  }
  const auto stock = FilasDe(c, u"select producto, stock from stock where producto = 2"_s);
  QCOMPARE(stock.size(), 1);
  QCOMPARE(stock[0][1].toDouble(), -1.5);
}

QTEST_GUILESS_MAIN(TestRecordset)
#include "test_recordset.moc"
