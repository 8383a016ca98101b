#include <QtTest>

#include "impresoras_producto.h"
#include "instalacion_prueba.h"

using namespace Qt::Literals::StringLiterals;

class TestImpresoras : public QObject {
  Q_OBJECT
 private slots:
  void losBotonesSoloConMasDeDosImpresoras();
  void sinTablaDeImpresorasSeRegistraYSeOcultan();
  void losTextosDeLblNomProd();
  void alAbrirSoloSeTocaElTextoSinImpresoraElegida();
  void aceptarGuardaElCodigoDeLaFilaOCero();
  void fueraDeModoModificacionSeAvisa();
  void losValoresGuardadosDeLasOpciones();
};

void TestImpresoras::losBotonesSoloConMasDeDosImpresoras() {
  InstalacionPrueba prueba;
  QVERIFY(!CargarImpresorasDisponibles(prueba.entorno()).mostrarBotones);
  prueba.ejecutar({u"insert into impresoras (codigo, nombre) values (4, 'Cocina')"_s,
                   u"insert into impresoras (codigo, nombre) values (7, 'Barra')"_s});
  ImpresorasDisponibles dos = CargarImpresorasDisponibles(prueba.entorno());
  QCOMPARE(dos.cantidad, 2);
  QVERIFY(!dos.mostrarBotones);
  prueba.ejecutar({u"insert into impresoras (codigo, nombre) values (9, 'Terraza')"_s});
  ImpresorasDisponibles tres = CargarImpresorasDisponibles(prueba.entorno());
  QCOMPARE(tres.cantidad, 3);
  QVERIFY(tres.mostrarBotones);
  // Names and codes keep the same positions.
  QCOMPARE(tres.nombres, (QStringList{u"Cocina"_s, u"Barra"_s, u"Terraza"_s}));
  QCOMPARE(tres.codigos, (QStringList{u"4"_s, u"7"_s, u"9"_s}));
}

void TestImpresoras::sinTablaDeImpresorasSeRegistraYSeOcultan() {
  InstalacionPrueba prueba;
  prueba.ejecutar({u"drop table impresoras"_s});
  const ImpresorasDisponibles impresoras = CargarImpresorasDisponibles(prueba.entorno());
  QCOMPARE(impresoras.cantidad, 0);
  QVERIFY(!impresoras.mostrarBotones);
  QCOMPARE(prueba.erroresMostrados().size(), 1);
  QCOMPARE(prueba.erroresMostrados().first().first, u"Impresoras  1"_s);
}

void TestImpresoras::losTextosDeLblNomProd() {
  QCOMPARE(CaptionImpresoraSinElegir(u"Paella"_s),
           u"Producto = Paella = su elaboracion saldra X la impresora de "_s);
  QCOMPARE(CaptionImpresoraElegida(u"Paella"_s, u"Terraza"_s),
           u"Producto = Paella = su elaboracion saldra X la impresora de Terraza"_s);
}

void TestImpresoras::alAbrirSoloSeTocaElTextoSinImpresoraElegida() {
  QCOMPARE(CaptionAlAbrirImpresoras(u""_s, u"Paella"_s),
           std::optional<QString>(CaptionImpresoraSinElegir(u"Paella"_s)));
  QCOMPARE(CaptionAlAbrirImpresoras(u"0"_s, u"Paella"_s),
           std::optional<QString>(CaptionImpresoraSinElegir(u"Paella"_s)));
  QCOMPARE(CaptionAlAbrirImpresoras(u"9"_s, u"Paella"_s), std::nullopt);
}

void TestImpresoras::aceptarGuardaElCodigoDeLaFilaOCero() {
  const QStringList codigos = {u"4"_s, u""_s, u"9"_s};
  QCOMPARE(CodigoImpresoraAceptada(codigos, 2), u"9"_s);
  QCOMPARE(CodigoImpresoraAceptada(codigos, 1), u"0"_s);
  QCOMPARE(CodigoImpresoraAceptada(codigos, -1), u"0"_s);  // no row chosen
  QCOMPARE(CodigoImpresoraAceptada({}, 0), u"0"_s);
}

void TestImpresoras::fueraDeModoModificacionSeAvisa() {
  DialogosGuion dialogos;
  AvisarImpresoraFueraDeModo(dialogos);
  QCOMPARE(dialogos.llamadas().size(), 1);
  const DialogosGuion::Llamada aviso = dialogos.llamadas().first();
  QCOMPARE(aviso.texto, u"Para modificar la impresora es necesario estar en modo modificacion."_s);
  QCOMPARE(aviso.titulo, u"Impresoras Especificas"_s);
  QCOMPARE(aviso.icono, ServicioDialogos::Icono::Informacion);
}

void TestImpresoras::losValoresGuardadosDeLasOpciones() {
  QCOMPARE(ValorHechoEn(true, false), std::optional<int>(2));
  QCOMPARE(ValorHechoEn(false, true), std::optional<int>(1));
  QCOMPARE(ValorHechoEn(true, true), std::optional<int>(2));  // kitchen first
  QCOMPARE(ValorHechoEn(false, false), std::nullopt);
  QCOMPARE(ValorTipoProd(true, false, false), std::optional<int>(1));
  QCOMPARE(ValorTipoProd(false, true, false), std::optional<int>(2));
  QCOMPARE(ValorTipoProd(false, false, true), std::optional<int>(0));
  QCOMPARE(ValorTipoProd(false, false, false), std::nullopt);
  QCOMPARE(ValorImpresora(u""_s), 0);
  QCOMPARE(ValorImpresora(u"0"_s), 0);
  QCOMPARE(ValorImpresora(u"12"_s), 12);
}

QTEST_MAIN(TestImpresoras)
#include "test_impresoras.moc"
