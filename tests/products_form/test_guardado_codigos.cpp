#include <QtTest>

#include "codigos_producto.h"
#include "instalacion_prueba.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// A product row with the columns the look-ups read.
QString Producto(const QString& codigo, const QString& nombre, int borrar, int mostrar,
                 const QString& seccion, int descNumerica, int orden,
                 const QString& codigoBarras = QString()) {
  return u"insert into productos (codigo, nombre, borrar, mostrarencaja, seccion, DescNumerica, "
         "orden, codigobarras) values ('%1', '%2', %3, %4, '%5', %6, %7, '%8')"_s
             .arg(codigo, nombre)
             .arg(borrar)
             .arg(mostrar)
             .arg(seccion)
             .arg(descNumerica)
             .arg(orden)
             .arg(codigoBarras);
}

}  // namespace

class TestGuardadoCodigos : public QObject {
  Q_OBJECT
 private slots:
  void unaTablaVaciaDaUnoCeroYUno();
  void losCodigosSeComparanPorNumeroYCuentanLosBorrados();
  void ordenYDescripcionNumericaSeProponenTrasLaMayor();
  void elNombreSoloChocaConOtrosProductosVivos();
  void laDescripcionNumericaSoloSeCompruebaAlModificar();
  void ocultosYSinFamiliaNuncaChocanPorDescripcionNumerica();
  void elCodigoDeBarrasDeUnBorradoSigueBloqueando();
  void unFalloDeLaBaseSeRegistraConSuContexto();
};

void TestGuardadoCodigos::unaTablaVaciaDaUnoCeroYUno() {
  InstalacionPrueba prueba;
  QCOMPARE(SiguienteCodigo(prueba.entorno()), std::optional<qint64>(1));
  QCOMPARE(ValorPonerOrden(prueba.entorno()), std::optional<QString>(u"0"_s));
  QCOMPARE(ValorMensajeNumero(prueba.entorno(), 1), std::optional<QString>(u"1"_s));
  QCOMPARE(ValorMensajeNumero(prueba.entorno(), 2), std::optional<QString>(u"1"_s));
}

void TestGuardadoCodigos::losCodigosSeComparanPorNumeroYCuentanLosBorrados() {
  InstalacionPrueba prueba;
  prueba.ejecutar({Producto(u"9"_s, u"Nueve"_s, 0, 0, u"1"_s, 1, 1),
                   Producto(u"2"_s, u"Dos"_s, 0, 0, u"1"_s, 2, 2)});
  // Compared as text "9" would be the largest after "10"; by number, 10 is.
  QCOMPARE(SiguienteCodigo(prueba.entorno()), std::optional<qint64>(10));
  prueba.ejecutar({Producto(u"10"_s, u"Diez"_s, 0, 0, u"1"_s, 3, 3)});
  QCOMPARE(SiguienteCodigo(prueba.entorno()), std::optional<qint64>(11));
  // A deleted product's code is never given again.
  prueba.ejecutar({Producto(u"25"_s, u"Borrado"_s, -1, 0, u"1"_s, 4, 4)});
  QCOMPARE(SiguienteCodigo(prueba.entorno()), std::optional<qint64>(26));
}

void TestGuardadoCodigos::ordenYDescripcionNumericaSeProponenTrasLaMayor() {
  InstalacionPrueba prueba;
  prueba.ejecutar({Producto(u"1"_s, u"A"_s, 0, 0, u"1"_s, 7, 4),
                   Producto(u"2"_s, u"B"_s, 0, 0, u"1"_s, 3, 11),
                   // Deleted and hidden products do not count.
                   Producto(u"3"_s, u"C"_s, -1, 0, u"1"_s, 90, 90),
                   Producto(u"4"_s, u"D"_s, 0, -1, u"1"_s, 50, 6)});
  QCOMPARE(ValorPonerOrden(prueba.entorno()), std::optional<QString>(u"12"_s));
  QCOMPARE(ValorMensajeNumero(prueba.entorno(), 1), std::optional<QString>(u"8"_s));
  QCOMPARE(ValorMensajeNumero(prueba.entorno(), 2), std::optional<QString>(u"8"_s));
  QVERIFY(prueba.log().isEmpty());
}

void TestGuardadoCodigos::elNombreSoloChocaConOtrosProductosVivos() {
  InstalacionPrueba prueba;
  prueba.ejecutar({Producto(u"1"_s, u"Coca Cola"_s, 0, 0, u"1"_s, 1, 1),
                   Producto(u"2"_s, u"Fanta"_s, -1, 0, u"1"_s, 2, 2)});
  Entorno& e = prueba.entorno();
  QVERIFY(bcomprobarSiExisteNombre(e, u"Coca Cola"_s, 5));
  QVERIFY(bcomprobarSiExisteNombre(e, u"coca cola"_s, 5));   // letter case is ignored
  QVERIFY(!bcomprobarSiExisteNombre(e, u"Coca Cola"_s, 1));  // itself
  QVERIFY(!bcomprobarSiExisteNombre(e, u"Fanta"_s, 5));      // deleted
  QVERIFY(!bcomprobarSiExisteNombre(e, u"Sprite"_s, 5));
}

void TestGuardadoCodigos::laDescripcionNumericaSoloSeCompruebaAlModificar() {
  InstalacionPrueba prueba;
  prueba.ejecutar({Producto(u"1"_s, u"A"_s, 0, 0, u"3"_s, 12, 1)});
  Entorno& e = prueba.entorno();
  // A new product is never tested, not even with a number typed over the offered one.
  ComprobacionDescNumerica r = bcomprobarSiExisteDescNumerica(e, u"12"_s, 2, false);
  QVERIFY(!r.existe);
  QVERIFY(r.aviso.isEmpty());
  QVERIFY(!bcomprobarSiExisteDescNumerica(e, u""_s, 2, false).existe);
  // The same product, once modified, is.
  r = bcomprobarSiExisteDescNumerica(e, u"12"_s, 2, true);
  QVERIFY(r.existe);
  QCOMPARE(r.aviso, u"La descripción numérica ya existe, por favor introduzca otra."_s);
  QVERIFY(!bcomprobarSiExisteDescNumerica(e, u"12"_s, 1, true).existe);  // itself
  QVERIFY(!bcomprobarSiExisteDescNumerica(e, u"13"_s, 2, true).existe);
  for (const QString& vacio : {u""_s, u"0"_s, u"-4"_s}) {
    r = bcomprobarSiExisteDescNumerica(e, vacio, 2, true);
    QVERIFY(r.existe);
    QCOMPARE(r.aviso, u"Es necesario que ingrese una descripción numérica."_s);
  }
}

void TestGuardadoCodigos::ocultosYSinFamiliaNuncaChocanPorDescripcionNumerica() {
  InstalacionPrueba prueba;
  prueba.ejecutar({Producto(u"1"_s, u"Oculto"_s, 0, -1, u"3"_s, 20, 1),
                   Producto(u"2"_s, u"Sin familia"_s, 0, 0, u"-1"_s, 21, 2),
                   Producto(u"3"_s, u"Borrado"_s, -1, 0, u"3"_s, 22, 3)});
  Entorno& e = prueba.entorno();
  QVERIFY(!bcomprobarSiExisteDescNumerica(e, u"20"_s, 9, true).existe);
  QVERIFY(!bcomprobarSiExisteDescNumerica(e, u"21"_s, 9, true).existe);
  QVERIFY(!bcomprobarSiExisteDescNumerica(e, u"22"_s, 9, true).existe);
}

void TestGuardadoCodigos::elCodigoDeBarrasDeUnBorradoSigueBloqueando() {
  InstalacionPrueba prueba;
  prueba.ejecutar({Producto(u"1"_s, u"Viejo"_s, -1, 0, u"3"_s, 1, 1, u"8410001"_s),
                   Producto(u"2"_s, u"Sin código"_s, 0, 0, u"3"_s, 2, 2)});
  Entorno& e = prueba.entorno();
  QVERIFY(existeCodBarras(e, u"8410001"_s, 3));
  QVERIFY(!existeCodBarras(e, u"8410001"_s, 1));  // itself
  QVERIFY(!existeCodBarras(e, u"8410002"_s, 3));
  // Products without barcode hold the empty text; an empty barcode clashes with none of them.
  QVERIFY(!existeCodBarras(e, u""_s, 3));
}

void TestGuardadoCodigos::unFalloDeLaBaseSeRegistraConSuContexto() {
  InstalacionPrueba prueba;
  Entorno& e = prueba.entorno();
  // A name with an apostrophe breaks the statement, as it always has: logged, not a clash.
  QVERIFY(!bcomprobarSiExisteNombre(e, u"D'Artagnan"_s, 1));
  QVERIFY(!existeCodBarras(e, u"12'3"_s, 1));
  prueba.ejecutar({u"drop table productos"_s});
  QCOMPARE(SiguienteCodigo(e), std::nullopt);
  QCOMPARE(ValorPonerOrden(e), std::nullopt);
  QCOMPARE(ValorMensajeNumero(e, 1), std::nullopt);
  QVERIFY(!bcomprobarSiExisteDescNumerica(e, u"4"_s, 1, true).existe);
  QStringList contextos;
  for (const auto& [contexto, descripcion] : prueba.erroresMostrados())
    contextos.append(contexto);
  QCOMPARE(contextos, (QStringList{u"Productos  4"_s, u"Productos  6"_s, u"Productos  1"_s,
                                   u"Productos  2"_s, u"Productos  3"_s, u"Productos  5"_s}));
  QVERIFY(prueba.erroresMostrados().last().second.contains(u"productos"_s));
}

QTEST_MAIN(TestGuardadoCodigos)
#include "test_guardado_codigos.moc"
