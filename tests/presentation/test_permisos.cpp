#include <QSignalSpy>
#include <QtTest>

#include "error_bd.h"
#include "formulario_prueba.h"
#include "instalacion_prueba.h"
#include "permisos.h"

using namespace Qt::Literals::StringLiterals;

class TestPermisos : public QObject {
  Q_OBJECT

 private:
  std::unique_ptr<InstalacionPrueba> inst;
  std::unique_ptr<QWidget> f;

  QPushButton* boton(const QString& nombre) { return f->findChild<QPushButton*>(nombre); }
  QList<QVariantList> atributos() {
    return inst->filas(
        u"select codigo, form, form_desc, boton, boton_desc, boton_auxiliar from atributos "
        "order by codigo"_s);
  }

 private slots:
  void init() {
    inst = std::make_unique<InstalacionPrueba>();
    f = prueba::FormularioPrueba();
    f->show();
    QVERIFY(QTest::qWaitForWindowExposed(f.get()));
  }
  void cleanup() {
    f.reset();
    inst.reset();
  }

  void lasRestriccionesApaganBotonesYEsconden() {
    inst->ejecutar({
        u"insert into atributos values (1, 'frmPrueba', '', 'cmd_eliminar', 'Eliminar', "
        "'lbl_eliminar')"_s,
        u"insert into atributos values (2, 'frmPrueba', '', 'CMD_MODIFICAR', 'Modificar', '')"_s,
        u"insert into atributos values (3, 'frmPrueba', '', 'cmd_nuevo', 'Nuevo', null)"_s,
        u"insert into atributos values (4, 'frmOtro', '', 'cmd_nuevo', 'Nuevo', null)"_s,
        u"insert into empleadosatributos values (12, 1)"_s,
        u"insert into empleadosatributos values (12, 2)"_s,
        u"insert into empleadosatributos values (12, 4)"_s,
        u"insert into empleadosatributos values (13, 3)"_s,
    });
    QSignalSpy pulsado(boton(u"cmd_eliminar"_s), &QPushButton::clicked);
    AplicarRestricciones(inst->conexion(), f.get(), 12);
    QVERIFY(!boton(u"cmd_eliminar"_s)->isEnabled());
    QVERIFY(boton(u"cmd_eliminar"_s)->isVisible());  // greyed, not hidden
    QVERIFY(!f->findChild<QLabel*>(u"lbl_eliminar"_s)->isVisible());
    QVERIFY(!boton(u"cmd_modificar"_s)->isEnabled());  // names ignore letter case
    // Another form's restriction and another employee's leave these alone.
    QVERIFY(boton(u"cmd_nuevo"_s)->isEnabled());
    QVERIFY(boton(u"cmd_salir"_s)->isEnabled());
    QTest::mouseClick(boton(u"cmd_eliminar"_s), Qt::LeftButton);
    QCOMPARE(pulsado.count(), 0);
  }

  void unEmpleadoSinRestriccionesLoUsaTodo() {
    inst->ejecutar(
        {u"insert into atributos values (1, 'frmPrueba', '', 'cmd_eliminar', "
         "'Eliminar', 'lbl_eliminar')"_s,
         u"insert into empleadosatributos values (12, 1)"_s});
    AplicarRestricciones(inst->conexion(), f.get(), 7);
    for (QPushButton* b : f->findChildren<QPushButton*>())
      QVERIFY(b->isEnabled());
    QVERIFY(f->findChild<QLabel*>(u"lbl_eliminar"_s)->isVisible());
    QSignalSpy pulsado(boton(u"cmd_eliminar"_s), &QPushButton::clicked);
    QTest::mouseClick(boton(u"cmd_eliminar"_s), Qt::LeftButton);
    QCOMPARE(pulsado.count(), 1);
  }

  void unControlQueNoExisteSeAvisaSinSoltarLosDemas() {
    inst->ejecutar({
        u"insert into atributos values (1, 'frmPrueba', '', 'cmd_borrado', 'Borrar', null)"_s,
        u"insert into atributos values (2, 'frmPrueba', '', 'cmd_nuevo', 'Nuevo', 'lbl_no')"_s,
        u"insert into atributos values (3, 'frmPrueba', '', 'cmd_modificar', 'Modif', null)"_s,
        u"insert into empleadosatributos values (5, 1)"_s,
        u"insert into empleadosatributos values (5, 2)"_s,
        u"insert into empleadosatributos values (5, 3)"_s,
    });
    try {
      AplicarRestricciones(inst->conexion(), f.get(), 5);
      QFAIL("no error for the missing controls");
    } catch (const ErrorBD& e) {
      QCOMPARE(e.descripcion(),
               u"El formulario frmPrueba no tiene el control cmd_borrado, lbl_no"_s);
    }
    QVERIFY(!boton(u"cmd_nuevo"_s)->isEnabled());
    QVERIFY(!boton(u"cmd_modificar"_s)->isEnabled());
  }

  void generaLosAtributosConCodigosSeguidos() {
    auto* botones = f->findChild<QWidget*>(u"frBotones"_s);
    prueba::Boton(botones, u"cmdSalirBis"_s, u"Salir bis"_s, {0, 0, 10, 10});
    prueba::Boton(botones, u"CMD_AYUDA"_s, u"Ayuda"_s, {0, 0, 10, 10});
    prueba::Boton(botones, u"cmdSiguiente"_s, u">"_s, {0, 0, 10, 10});
    prueba::Boton(botones, u"cmd_sinCaption"_s, QString(), {0, 0, 10, 10});
    prueba::Boton(botones, u"cmd_buscar"_s, u"Buscar"_s, {0, 0, 10, 10});
    QCOMPARE(SiguienteCodigoAtributo(inst->conexion()), 1);
    GenerarAtributos(inst->conexion(), f.get());
    const QString titulo = u"Mantenimiento de productos"_s;
    const QList<QVariantList> esperados{
        {1, u"frmPrueba"_s, titulo, u"cmd_nuevo"_s, u"Nuevo"_s, QString()},
        {2, u"frmPrueba"_s, titulo, u"cmd_modificar"_s, u"Modificar"_s, QString()},
        {3, u"frmPrueba"_s, titulo, u"cmd_eliminar"_s, u"Eliminar"_s, QString()},
        {4, u"frmPrueba"_s, titulo, u"cmd_buscar"_s, u"Buscar"_s, QString()}};
    QCOMPARE(atributos(), esperados);
    QCOMPARE(inst->filas(u"select count(*) from atributos where boton_auxiliar is null"_s)
                 .at(0)
                 .at(0)
                 .toInt(),
             4);
    QCOMPARE(SiguienteCodigoAtributo(inst->conexion()), 5);
    // A second run registers only what is new, after the highest code.
    prueba::Boton(botones, u"cmd_imprimir"_s, u"Imprimir"_s, {0, 0, 10, 10});
    GenerarAtributos(inst->conexion(), f.get());
    QCOMPARE(atributos().size(), 5);
    QCOMPARE(atributos().last(), (QVariantList{5, u"frmPrueba"_s, titulo, u"cmd_imprimir"_s,
                                               u"Imprimir"_s, QString()}));
  }

  void losBotonesDeAyudaSalidaYNavegacionSiempreSePermiten() {
    for (const QString& n :
         {u"cmdSalirBis"_s, u"CMD_SALIR"_s, u"cmd_Ayuda2"_s, u"cmdAyuda"_s, u"cmdprimero"_s,
          u"cmdAnteriorGen"_s, u"cmdSiguiente"_s, u"cmdULTIMO"_s}) {
      QVERIFY2(ExisteAtributo(inst->conexion(), u"frmPrueba"_s, n), qPrintable(n));
    }
    QVERIFY(!ExisteAtributo(inst->conexion(), u"frmPrueba"_s, u"cmd_nuevo"_s));
    inst->ejecutar(
        {u"insert into atributos (codigo, form, boton) values (9, 'frmPrueba', "
         "'cmd_nuevo')"_s});
    QVERIFY(ExisteAtributo(inst->conexion(), u"frmPrueba"_s, u"cmd_nuevo"_s));
    QVERIFY(!ExisteAtributo(inst->conexion(), u"frmOtro"_s, u"cmd_nuevo"_s));
  }

  void unCaptionConApostrofoRompeLaSentencia() {
    auto* botones = f->findChild<QWidget*>(u"frBotones"_s);
    prueba::Boton(botones, u"cmd_dia"_s, u"Menú d'avui"_s, {0, 0, 10, 10});
    QVERIFY_THROWS_EXCEPTION(ErrorBD, GenerarAtributos(inst->conexion(), f.get()));
    // The buttons before it were registered; nothing after it.
    QCOMPARE(atributos().size(), 3);
  }
};

QTEST_MAIN(TestPermisos)
#include "test_permisos.moc"
