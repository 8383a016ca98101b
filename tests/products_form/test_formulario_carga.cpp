#include <QtTest>

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QListWidget>
#include <QPushButton>

#include "formulario_prueba.h"
#include "panel_obj_nuevo.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QStringList Codigos(const PanelObjNuevo* panel) {
  QStringList r;
  for (const EntradaPanel& e : panel->objetos())
    r.append(e.codigo);
  return r;
}

}  // namespace

// The load runs on an 800×600 screen: smaller than the design.
class TestFormularioCarga : public QObject {
  Q_OBJECT
 private slots:
  void init() { QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain)); }
  void loQueMuestraAlCargar();
  void conMasDeDosImpresorasSeEligeLaImpresora();
  void traduceAntesDeAdaptarseAlTipoDePrograma();
  void unProgramaDeComidaRapidaOcultaElProductoEspecial();
  void restriccionesDelEmpleadoYUnPasoQueFalla();
};

void TestFormularioCarga::loQueMuestraAlCargar() {
  FormularioPrueba f(
      {u"insert into seccion (codigo, nombre, borrar, menu, orden) values "
       "('F1', 'Cervezas', 0, 0, 2), ('F2', 'Cafés', 0, 0, 1), "
       "('F3', 'Menú del día', 0, -1, 0), ('F4', 'Vieja', -1, 0, 3)"_s,
       Impresora(1, u"Cocina"_s), Impresora(2, u"Barra"_s)});
  f.inst().ejecutar({u"delete from EjecutablesTraduccion"_s});
  QVERIFY(f.mostrar());
  FrmProductos1024& forma = f.forma();

  // The start screen lies over everything else.
  QWidget* centro = forma.childAt(forma.rect().center());
  QVERIFY(centro);
  QVERIFY(f.control<QWidget>(u"fr_Inicial"_s)->isAncestorOf(centro) ||
          centro == f.control<QWidget>(u"fr_Inicial"_s));
  for (const QString& marco :
       {u"fr_Inicial"_s, u"fr_ProductoGenerico"_s, u"fr_ProductosElaborados"_s, u"fr_Cantidad"_s,
        u"fr_Mensaje"_s, u"fr_colores"_s, u"fr_Mensajenumero"_s, u"fr_MensajeNombre"_s,
        u"fr_mensajeNumeroPElab"_s, u"fr_mensajeNombrePElab"_s, u"frProveedores"_s}) {
    QVERIFY2(f.control<QWidget>(marco)->isVisibleTo(&forma), qPrintable(marco));
  }
  auto* medida = f.control<QComboBox>(u"cbo_Medida"_s);
  QCOMPARE(medida->count(), 3);
  QCOMPARE(medida->itemText(0), u"Unidades"_s);
  QCOMPARE(medida->itemText(1), u"Kilogramos"_s);
  QCOMPARE(medida->itemText(2), u"Litros"_s);
  QCOMPARE(medida->currentIndex(), -1);

  // The opening is counted for the employee, and the captions are gathered once.
  QCOMPARE(f.inst().filas(u"select Formulario, empleado, entradas from entradas1"_s),
           (QList<QVariantList>{{u"frmProductos1024"_s, u"5"_s, 1}}));
  QCOMPARE(f.inst().filas(u"select nombreEjecutable from EjecutablesTraduccion"_s),
           (QList<QVariantList>{{u"productos-frmProductos1024"_s}}));
  for (const QString& caption :
       {u"Mantenimiento de Productos"_s, u"Stock mínimo"_s, u"Seleccione sus proveedores"_s}) {
    QCOMPARE(
        f.inst().filas(u"select caption from traducciones where caption = '"_s + caption + u"'"_s),
        (QList<QVariantList>{{caption}}));
  }

  // The form is scaled to the screen, and on a small screen the families panels lose height.
  QCOMPARE(forma.width(), 800);
  for (const QString& nombre : {u"PanelFamilias"_s, u"PanelFamilias_Elab"_s}) {
    auto* panel = f.control<PanelObjNuevo>(nombre);
    QCOMPARE(panel->alto_principal(), 300.0f);
    QCOMPARE(Codigos(panel), (QStringList{u"F2"_s, u"F1"_s}));
  }
  QCOMPARE(f.control<QListWidget>(u"lb_impresoras"_s)->count(), 2);
  QVERIFY(f.control<QWidget>(u"cmdImpresoras"_s)->isHidden());
  QVERIFY(f.control<QWidget>(u"cmdImpresorasElab"_s)->isHidden());
  QVERIFY(f.inst().erroresMostrados().isEmpty());
}

void TestFormularioCarga::conMasDeDosImpresorasSeEligeLaImpresora() {
  FormularioPrueba f(
      {Impresora(4, u"Cocina"_s), Impresora(7, u"Barra"_s), Impresora(9, u"Terraza"_s)});
  f.forma();
  QVERIFY(!f.control<QWidget>(u"cmdImpresoras"_s)->isHidden());
  QVERIFY(!f.control<QWidget>(u"cmdImpresorasElab"_s)->isHidden());
  auto* nombres = f.control<QListWidget>(u"lb_impresoras"_s);
  auto* codigos = f.control<QListWidget>(u"lbCodigos"_s);
  QCOMPARE(nombres->count(), 3);
  QCOMPARE(nombres->item(2)->text(), u"Terraza"_s);
  QCOMPARE(codigos->item(2)->text(), u"9"_s);
  QCOMPARE(f.forma().estado().numImpresoras, 3);
}

void TestFormularioCarga::traduceAntesDeAdaptarseAlTipoDePrograma() {
  FormularioPrueba f({u"update opciones set tipo_programa = 'FASTFOOD', idioma = 'INGLES'"_s,
                      u"insert into traducciones (caption, traduccion) values "
                      "('Producto Entrada / Ropero', 'Entry / cloakroom'), ('Nuevo', 'New'), "
                      "('Salir', null)"_s});
  f.inst().ejecutar({u"delete from EjecutablesTraduccion"_s});
  f.entorno().sesion.idioma = u"INGLES"_s;
  f.entorno().sesion.tipo_programa = u"RESTAURANTE"_s;  // read again by the load
  f.forma();
  QCOMPARE(f.entorno().sesion.tipo_programa, u"FASTFOOD"_s);
  // A fast-food installation on a restaurant's data names the special product after the
  // translation, so the translation does not stand.
  QCOMPARE(f.control<QCheckBox>(u"chkProdEspecial"_s)->text(), u"Producto Ropero"_s);
  QVERIFY(!f.control<QWidget>(u"chkProdEspecial"_s)->isHidden());
  QCOMPARE(f.control<QPushButton>(u"cmd_nuevo"_s)->text(), u"New"_s);
  QCOMPARE(f.control<QPushButton>(u"cmd_salir"_s)->text(), u"Salir"_s);
  // In another language nothing is gathered.
  QVERIFY(f.inst().filas(u"select * from EjecutablesTraduccion"_s).isEmpty());
}

void TestFormularioCarga::unProgramaDeComidaRapidaOcultaElProductoEspecial() {
  FormularioPrueba f;
  f.entorno().sesion.TipoProgramaInformes = u"FASTFOOD"_s;
  f.forma();
  QVERIFY(f.control<QWidget>(u"chkProdEspecial"_s)->isHidden());
  QCOMPARE(f.control<QCheckBox>(u"chkProdEspecial"_s)->text(), u"Producto Entrada / Ropero"_s);
}

void TestFormularioCarga::restriccionesDelEmpleadoYUnPasoQueFalla() {
  FormularioPrueba f(
      {u"insert into atributos (codigo, form, form_desc, boton, boton_desc, "
       "boton_auxiliar) values (1, 'frmProductos1024', '', 'cmd_eliminar', "
       "'Eliminar', 'Command1'), (2, 'otro', '', 'cmd_nuevo', 'Nuevo', null), "
       "(3, 'frmProductos1024', '', 'cmd_modificar', 'Modificar', null)"_s,
       u"insert into empleadosatributos (codEmpleado, codatributo) values "
       "(5, 1), (5, 2), (6, 3)"_s,
       u"insert into seccion (codigo, nombre, borrar, menu, orden) values "
       "('F1', 'Cervezas', 0, 0, 1)"_s,
       Impresora(1, u"Cocina"_s)});
  // The adjustment to the screen fails; the steps after it still run.
  f.inst().ejecutar({u"drop table EjecutablesTraduccion"_s});
  f.forma();
  const QList<QByteArray> lineas = f.inst().log().split('\n');
  QCOMPARE(lineas.size(), 2);
  QVERIFY(lineas.first().startsWith("frmProductos1024_Load, Descripcion: "));
  QCOMPARE(f.inst().erroresMostrados().size(), 1);
  QCOMPARE(f.inst().erroresMostrados().first().first, u"frmProductos1024_Load"_s);

  QVERIFY(!f.control<QWidget>(u"cmd_eliminar"_s)->isEnabled());
  QVERIFY(f.control<QWidget>(u"Command1"_s)->isHidden());
  QVERIFY(f.control<QWidget>(u"cmd_nuevo"_s)->isEnabled());
  QVERIFY(f.control<QWidget>(u"cmd_modificar"_s)->isEnabled());
  QCOMPARE(f.control<QComboBox>(u"cbo_Medida"_s)->count(), 3);
  QCOMPARE(f.control<QListWidget>(u"lb_impresoras"_s)->count(), 1);
  QCOMPARE(Codigos(f.control<PanelObjNuevo>(u"PanelFamilias"_s)), QStringList{u"F1"_s});
}

PRODUCTOS_TEST_MAIN_PANTALLA(TestFormularioCarga, 800, 600)
#include "test_formulario_carga.moc"
