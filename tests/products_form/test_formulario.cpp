#include <QtTest>

#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>

#include "color_vb.h"
#include "colorear.h"
#include "formulario_prueba.h"
#include "lector_filas.h"
#include "lineas_productos.h"
#include "listas_productos.h"
#include "panel_obj_nuevo.h"
#include "visualizacion.h"
#include "zona_impresoras.h"

using namespace Qt::Literals::StringLiterals;

// The form's load, its modes, and what it shows of each product as a manager walks them.
namespace {

// Bocadillo: internal use, deleted printer, no family/colour, off the till; Viejo is deleted.
QStringList Catalogo() {
  return {Proveedor(u"P1"_s, u"Distribuciones Sur"_s),
          u"insert into seccion (codigo, nombre, borrar, menu, orden, mostrarencaja) values "
          "('F1', 'Cervezas', 0, 0, 2, 0), ('F2', 'Cafés', 0, 0, 1, 0), "
          "('F3', 'Menú del día', 0, -1, 0, 0), ('F4', 'Vieja', -1, 0, 3, 0)"_s,
          Impresora(3, u"Barra"_s),
          Impresora(5, u"Cocina"_s),
          Impresora(8, u"Terraza"_s),
          kInsertarProductos +
              u"('1', 'Agua', 'De manantial', '8410000000017', 'F1', 0.6, 0.5, 1.76, 10, null, "
              "'agua.png', 255, 'P1', 'Litros', null, 0, 2, 2, 12, 4, 3, -1, 0), ('2', "
              "'Bocadillo', null, null, '-1', 1, 0, 2, 10, null, null, null, null, 'Unidades', "
              "null, -1, 0, 0, null, null, 7, null, 0), ('3', 'Café', null, null, '-1', 1, 0, 2, "
              "10, null, 'falta.png', null, null, 'Unidades', null, 0, 1, 1, null, null, 0, null, "
              "0), ('4', 'Zumo', null, null, '-1', 1, 0, 2, 10, null, null, null, null, "
              "'Unidades', null, 0, 1, 1, null, null, 0, null, 0), ('5', 'Tortilla', 'De "
              "patatas', '', 'F1', 2.5, 0, 6, 10, null, null, 65280, null, null, null, 0, 1, 1, "
              "31, null, 3, 0, 0), ('9', 'Viejo', null, null, '-1', 1, 0, 2, 10, null, null, "
              "null, null, 'Unidades', null, 0, 1, 1, null, null, 0, null, -1)"_s,
          u"insert into stock (producto, stock, stockminimo) values (1, 24, 6), (2, 0, null), "
          "(3, 0, 0), (5, 0, 0)"_s,
          u"insert into productoElaborado_producto values ('5', '1', 3)"_s};
}

// The form on one of its screens, in change mode or not; the pictures are in the photo folder.
void Abrir(FormularioPrueba& f, const QString& pantalla = u"cmd_ProdGenerico"_s,
           bool modificar = false) {
  const QString fotos = f.inst().carpeta() + u"/fotos"_s;
  Imagen(fotos, u"agua.png"_s, 200, Qt::blue);
  Imagen(fotos, u"defecto.gif"_s, 200, Qt::green);
  QVERIFY(f.mostrar());
  Pulsar(f, pantalla);
  if (modificar)
    Pulsar(f, pantalla == u"cmd_ProdGenerico"_s ? u"cmd_modificar"_s : u"cmd_ModificarProdEla"_s);
}

bool Marcada(FormularioPrueba& f, const QString& nombre) {
  const auto* b = f.control<QAbstractButton>(nombre);
  return b && b->isChecked();
}

// The texts of the fields and labels named, joined by '|'.
QString Textos(FormularioPrueba& f, const QString& nombres) {
  QStringList r;
  for (const QString& nombre : nombres.split(u' '))
    r << Texto(f, nombre);
  return r.join(u'|');
}

void Tecla(Qt::Key tecla, Qt::KeyboardModifiers mod = Qt::NoModifier) {
  QVERIFY(QApplication::focusWidget());
  QTest::keyClick(QApplication::focusWidget(), tecla, mod);
}

void TocarFila(FormularioPrueba& f, int fila) {
  auto* l = f.control<QListWidget>(u"lb_impresoras"_s);
  QVERIFY(l && l->isVisible());
  QTest::mouseClick(l->viewport(), Qt::LeftButton, {}, l->visualItemRect(l->item(fila)).center());
}

QString Linea(const QString& producto, const QString& impresora) {
  return u"Producto = "_s + producto + u" = su elaboracion saldra X la impresora de "_s + impresora;
}

QString ImpresoraElegida(FormularioPrueba& f) {
  return f.forma().estado().impresoraElegida;
}

// n products named "Producto 0001" onwards, coded 1 onwards.
QString CatalogoDe(int n) {
  return u"with recursive n(i) as (select 1 union all select i + 1 from n where i < %1) insert "
         "into productos (codigo, nombre, borrar, tipoprod) select i, 'Producto ' || "
         "substr('000' || i, -4), 0, 1 from n"_s.arg(n);
}

}  // namespace

class TestFormulario : public QObject {
  Q_OBJECT
 private slots:
  void init() { QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain)); }
  void alCargar();
  void unPasoDeLaCargaQueFallaNoDetieneLosDemas();
  void traduceAntesDeAdaptarseAlTipoDePrograma();
  void losModosDeLosProductosSimples();
  void losModosDeLosElaborados();
  void nuevo();
  void losEventosDeLosCampos();
  void muestraCadaProductoCampoACampo();
  void navegaConSusAvisosYSusTeclas();
  void laListaDeProductos();
  void soloSeConstruyenLasLineasALaVista_data();
  void soloSeConstruyenLasLineasALaVista();
  void loQueSeLeeNoCreceConElCatalogo();
  void lasSalidasYElProgramaDePrecios();
  void laImpresoraDeUnProducto();
  void laImpresoraDeUnElaboradoYSuZona();
  void losTiposMuestranLoQueUsan();
  void laImagenDeUnProducto();
  void elColorPintaSuCaja();
  void lasFamilias();
};

void TestFormulario::alCargar() {
  FormularioPrueba f(Catalogo());
  f.inst().ejecutar({u"delete from EjecutablesTraduccion"_s});
  QVERIFY(f.mostrar());
  // The start screen lies over everything else.
  QWidget* centro = f.forma().childAt(f.forma().rect().center());
  QVERIFY(f.control<QWidget>(u"fr_Inicial"_s)->isAncestorOf(centro));
  QComboBox* medida = f.control<QComboBox>(u"cbo_Medida"_s);
  QCOMPARE(QStringList({medida->itemText(0), medida->itemText(1), medida->itemText(2)}),
           (QStringList{u"Unidades"_s, u"Kilogramos"_s, u"Litros"_s}));
  // The opening is counted for the employee, and the captions are gathered once.
  QCOMPARE(f.inst().filas(u"select Formulario, empleado, entradas from entradas1"_s),
           (QList<QVariantList>{{u"frmProductos1024"_s, u"5"_s, 1}}));
  QCOMPARE(f.inst().filas(u"select nombreEjecutable from EjecutablesTraduccion"_s),
           (QList<QVariantList>{{u"productos-frmProductos1024"_s}}));
  // The live families that are no menu, in their order, on both panels.
  for (const QString& nombre : {u"PanelFamilias"_s, u"PanelFamilias_Elab"_s}) {
    QStringList codigos;
    for (const EntradaPanel& e : f.control<PanelObjNuevo>(nombre)->objetos())
      codigos.append(e.codigo);
    QCOMPARE(codigos, (QStringList{u"F2"_s, u"F1"_s}));
  }
  QCOMPARE(Lineas(f, u"lb_impresoras"_s), (QStringList{u"Barra"_s, u"Cocina"_s, u"Terraza"_s}));
  // A fast-food program has no special product.
  QVERIFY(!f.control<QWidget>(u"chkProdEspecial"_s)->isHidden());
  FormularioPrueba rapida;
  rapida.entorno().sesion.TipoProgramaInformes = u"FASTFOOD"_s;
  QVERIFY(rapida.control<QWidget>(u"chkProdEspecial"_s)->isHidden());
  QVERIFY(f.inst().erroresMostrados().isEmpty());
}

void TestFormulario::unPasoDeLaCargaQueFallaNoDetieneLosDemas() {
  FormularioPrueba f(
      {u"insert into atributos (codigo, form, form_desc, boton, boton_desc, boton_auxiliar) "
       "values (1, 'frmProductos1024', '', 'cmd_eliminar', 'Eliminar', 'Command1'), "
       "(2, 'otro', '', 'cmd_nuevo', 'Nuevo', null), "
       "(3, 'frmProductos1024', '', 'cmd_modificar', 'Modificar', null)"_s,
       u"insert into empleadosatributos (codEmpleado, codatributo) values (5, 1), (5, 2), (6, 3)"_s,
       Familia(u"F1"_s, u"Cervezas"_s, 1), Impresora(1, u"Cocina"_s)});
  // The adjustment to the screen fails; the steps after it still run.
  f.inst().ejecutar({u"drop table EjecutablesTraduccion"_s});
  f.forma();
  QVERIFY(f.inst().log().startsWith("frmProductos1024_Load, Descripcion: "));
  QCOMPARE(f.inst().log().count('\n'), 1);
  QCOMPARE(f.inst().erroresMostrados().size(), 1);
  // The employee's restrictions, of this form only, hide the auxiliary button too.
  QVERIFY(!Activo(f, u"cmd_eliminar"_s));
  QVERIFY(f.control<QWidget>(u"Command1"_s)->isHidden());
  Exigir(f, &Activo, u"cmd_nuevo cmd_modificar"_s, true);
  QCOMPARE(f.control<QComboBox>(u"cbo_Medida"_s)->count(), 3);
  QCOMPARE(Lineas(f, u"lb_impresoras"_s).size(), 1);
  QCOMPARE(f.control<PanelObjNuevo>(u"PanelFamilias"_s)->objetos().size(), 1);
}

void TestFormulario::traduceAntesDeAdaptarseAlTipoDePrograma() {
  FormularioPrueba f({u"update opciones set tipo_programa = 'FASTFOOD', idioma = 'INGLES'"_s,
                      u"insert into traducciones (caption, traduccion) values "
                      "('Producto Entrada / Ropero', 'Entry / cloakroom'), ('Nuevo', 'New'), "
                      "('Salir', null)"_s});
  f.inst().ejecutar({u"delete from EjecutablesTraduccion"_s});
  f.entorno().sesion.idioma = u"INGLES"_s;
  f.forma();
  QCOMPARE(f.entorno().sesion.tipo_programa, u"FASTFOOD"_s);
  // A fast-food installation on a restaurant's data names the special product after the
  // translation, so the translation does not stand.
  QCOMPARE(f.control<QCheckBox>(u"chkProdEspecial"_s)->text(), u"Producto Ropero"_s);
  QCOMPARE(f.control<QPushButton>(u"cmd_nuevo"_s)->text(), u"New"_s);
  QCOMPARE(f.control<QPushButton>(u"cmd_salir"_s)->text(), u"Salir"_s);
  // In another language nothing is gathered.
  QVERIFY(f.inst().filas(u"select * from EjecutablesTraduccion"_s).isEmpty());
}

void TestFormulario::losModosDeLosProductosSimples() {
  FormularioPrueba f(Catalogo());
  Abrir(f);
  QVERIFY(Visible(f, u"fr_ProductoGenerico"_s) && !Visible(f, u"fr_Inicial"_s));
  const QString navegacion =
      u"cmd_buscar cmd_nuevo cmd_eliminar cmd_modificar cmd_ayuda "
      "cmd_salir cmd_ListaProd"_s;
  const QString cambios =
      u"cmd_aceptar cmd_cancelar bt_botonSig bt_botonAnt cmd_Proveedor "
      "ch_Mostrar optCocina pict_imagen pic_ColorPG"_s;
  Exigir(f, &Activo, navegacion, true);
  Exigir(f, &Activo, cambios, false);
  Exigir(f, &Visible, u"frFlechasGen Label6 opt_Venta opt_cocina opt_ambos"_s, true);
  Exigir(f, &Visible, u"fr_MensajeNombre fr_Mensajenumero"_s, false);
  auto* nombre = f.control<QLineEdit>(u"txt_nombre"_s);
  QVERIFY(nombre->isReadOnly());
  QTRY_COMPARE(QApplication::focusWidget(), f.control<QWidget>(u"cmd_nuevo"_s));
  // A locked list of units keeps its value against keys.
  auto* medida = f.control<QComboBox>(u"cbo_Medida"_s);
  QTest::keyClick(medida, Qt::Key_Down);
  QCOMPARE(medida->currentText(), u"Litros"_s);
  // The current stock is never locked or unlocked by the modes.
  auto* stock = f.control<QLineEdit>(u"txt_stock_actual"_s);
  QVERIFY(!stock->isReadOnly());
  stock->setReadOnly(true);

  Pulsar(f, u"cmd_modificar"_s);
  QVERIFY(f.forma().estado().modificando && !nombre->isReadOnly() && stock->isReadOnly());
  QTRY_COMPARE(QApplication::focusWidget(), nombre);
  Exigir(f, &Activo, navegacion, false);
  Exigir(f, &Activo, cambios + u" lbl_Insertar lbl_color"_s, true);
  QTest::keyClick(medida, Qt::Key_Up);
  QCOMPARE(medida->currentText(), u"Kilogramos"_s);
  Pulsar(f, u"cmd_cancelar"_s);
  QVERIFY(nombre->isReadOnly() && !Activo(f, u"cmd_aceptar"_s));
  QCOMPARE(medida->currentText(), u"Litros"_s);
}

void TestFormulario::losModosDeLosElaborados() {
  FormularioPrueba f(Catalogo());
  QVERIFY(f.mostrar());
  Pulsar(f, u"cmd_ProdElaborado"_s);
  QVERIFY(Visible(f, u"fr_ProductosElaborados"_s) && !Visible(f, u"fr_ProductoGenerico"_s));
  const QString navegacion =
      u"cmd_NuevoProdEla cmd_ModificarProdEla cmd_EliminarProdEla "
      "Boton_SM2 cmd_SalirProdEla"_s;
  const QString cambios =
      u"cmd_AceptarProdEl cmd_CancelarProdEl lb_Productos lb_ProductosSel "
      "cmdCInterno cmdCVenta pic_ProductoElaborado optBarraElab"_s;
  Exigir(f, &Activo, navegacion + u" cmd_AyudaProdEla"_s, true);
  Exigir(f, &Activo, cambios, false);
  Exigir(f, &Visible, u"fr_Mensaje fr_colores fr_mensajeNombrePElab fr_mensajeNumeroPElab"_s,
         false);
  QCOMPARE(Texto(f, u"lblProdASel"_s), u"Productos elaborados"_s);
  QVERIFY(f.control<QLineEdit>(u"txt_NombreElaborado"_s)->isReadOnly());
  Pulsar(f, u"cmd_ModificarProdEla"_s);
  QCOMPARE(Texto(f, u"lblProdASel"_s), u"Seleccione el componente a utilizar:"_s);
  Exigir(f, &Activo, cambios + u" pic_Color"_s, true);
  Exigir(f, &Activo, navegacion, false);
  QTRY_COMPARE(QApplication::focusWidget(), f.control<QWidget>(u"txt_NombreElaborado"_s));
  Pulsar(f, u"cmd_CancelarProdEl"_s);
  QVERIFY(!Activo(f, u"cmd_AceptarProdEl"_s));
  QCOMPARE(Texto(f, u"lblProdASel"_s), u"Productos elaborados"_s);
}

void TestFormulario::nuevo() {
  // Without a live supplier there is no new product.
  FormularioPrueba sin(
      {u"insert into proveedores (codigo, nombre, borrar) values ('P9', "
       "'Viejo', -1)"_s,
       Producto(u"1"_s, u"Caña"_s)});
  Abrir(sin);
  Pulsar(sin, u"cmd_nuevo"_s);
  QCOMPARE(sin.dialogos().mensajes(),
           QStringList{u"Antes de dar de alta productos tiene que dar de alta algun proveedor"_s});
  QCOMPARE(Texto(sin, u"txt_nombre"_s), u"Caña"_s);
  QVERIFY(!Activo(sin, u"cmd_aceptar"_s));

  FormularioPrueba f(Catalogo());
  Abrir(f);
  Pulsar(f, u"cmd_nuevo"_s);
  // The largest code counts deleted products too.
  QCOMPARE(f.forma().estado().codigoActual, 10);
  QVERIFY(f.forma().estado().colorElegido.isEmpty());
  // The number is offered at once; setting the price works the margin out of it.
  QCOMPARE(
      Textos(f,
             u"txt_nombre txtCodBarras txt_descripcion txtDescNumericaPGen txt_coste "
             "txt_iva txt_precio txt_stock_actual txt_stock_minimo txt_margen lblnomFamilia"_s),
      u"|||32|0|0|0|0|1|0,00|"_s);
  QCOMPARE(f.control<QComboBox>(u"cbo_Medida"_s)->currentIndex(), -1);
  Exigir(f, &Marcada, u"optCocina optBarra opt_ambos opt_cocina opt_Venta"_s, false);
  QCOMPARE(f.control<QLabel>(u"lblnomFamilia"_s)->property("codigo").toString(), u"-1"_s);
  QCOMPARE(f.control<QPushButton>(u"cmd_Proveedor"_s)->text(), u"Seleccione sus proveedores"_s);
  QVERIFY(Lineas(f, u"lb_ProveedoresAsignados"_s).isEmpty());
  QVERIFY(Visible(f, u"frOcultarGen"_s) && Visible(f, u"txt_margen"_s));
  Exigir(f, &Visible,
         u"txt_coste lbl_coste txt_precio txt_iva lbl_percent txt_stock_minimo txt_stock_actual "
         "Label16 cbo_Medida Label6 opt_Venta pict_imagen pic_ColorPG txtDescNumericaPGen "
         "lblPos ch_Mostrar optCocina"_s,
         false);
  QTRY_COMPARE(QApplication::focusWidget(), f.control<QWidget>(u"txt_nombre"_s));
}

void TestFormulario::losEventosDeLosCampos() {
  FormularioPrueba f(Catalogo());
  Abrir(f);
  Pulsar(f, u"bt_botones_2"_s);
  Pulsar(f, u"bt_botones_2"_s);
  QCOMPARE(Texto(f, u"txt_nombre"_s), u"Café"_s);
  Pulsar(f, u"cmd_modificar"_s);
  auto* mostrar = f.control<QCheckBox>(u"ch_Mostrar"_s);
  auto* especial = f.control<QCheckBox>(u"chkProdEspecial"_s);
  const QString caja =
      u"pict_imagen pic_ColorPG lbl_color txtDescNumericaPGen Label14 "
      "Lbl_Posicion lblPos bt_botonAnt bt_botonSig"_s;
  QTest::mouseClick(mostrar, Qt::LeftButton);
  Exigir(f, &Visible, caja, false);
  // A special product is never shown on the till, and the till box takes the mark away.
  QTest::mouseClick(especial, Qt::LeftButton);
  QVERIFY(especial->isChecked() && !Visible(f, u"frMostrarCaja"_s));
  QTest::mouseClick(especial, Qt::LeftButton);
  QVERIFY(!especial->isChecked() && Visible(f, u"frMostrarCaja"_s));
  especial->setChecked(true);
  f.control<QWidget>(u"frMostrarCaja"_s)->show();
  QTest::mouseClick(mostrar, Qt::LeftButton);
  QVERIFY(mostrar->isChecked() && !especial->isChecked());
  Exigir(f, &Visible, caja, true);
  // The arrows move the position one place, never below 0.
  Pulsar(f, u"bt_botonSig"_s);
  QCOMPARE(Texto(f, u"lblPos"_s), u"1"_s);
  for (int i = 0; i < 3; ++i)
    Pulsar(f, u"bt_botonAnt"_s);
  QCOMPARE(Texto(f, u"lblPos"_s), u"0"_s);
  // The numeric description takes digits only.
  auto* numero = f.control<QLineEdit>(u"txtDescNumericaPGen"_s);
  numero->clear();
  QTest::keyClicks(numero, u"1a2,3.-4 "_s);
  QCOMPARE(numero->text(), u"1234"_s);
}

void TestFormulario::muestraCadaProductoCampoACampo() {
  FormularioPrueba f(Catalogo());
  Abrir(f);
  // The price is shown before the tax: on the first product the tax box was still empty, so it
  // was set to "0" and the stored margin stands. Numbers read as they are written.
  QCOMPARE(Textos(f,
                  u"txt_nombre txt_coste txt_iva txt_precio txt_margen lblnomFamilia txtCodBarras "
                  "lblPos txt_descripcion txtDescNumericaPGen txt_stock_actual txt_stock_minimo "
                  "lblNomProd"_s),
           u"Agua|0,6|10|1,76|0,5|Cervezas|8410000000017|4|De manantial|12|24|6|Producto = Agua = "
           "su elaboracion saldra X la impresora de Barra"_s);
  QCOMPARE(TextoDeValor(QVariant(1000000.0)), u"1000000"_s);
  QCOMPARE(f.control<QLabel>(u"lblnomFamilia"_s)->property("codigo").toString(), u"F1"_s);
  QCOMPARE(ColorMostrado(f, u"pict_imagen"_s), QColor(Qt::blue));
  QCOMPARE(ColorFondo(f.control<QLabel>(u"pic_ColorPG"_s)), ColorDesdeValor(255));
  QCOMPARE(f.forma().estado().colorElegido, u"255"_s);
  QCOMPARE(f.forma().estado().impresoraElegida, u"3"_s);
  QCOMPARE(f.control<QPushButton>(u"cmd_Proveedor"_s)->text(), u"Distribuciones Sur"_s);
  QCOMPARE(f.control<QComboBox>(u"cbo_Medida"_s)->currentText(), u"Litros"_s);
  Exigir(f, &Marcada, u"optCocina opt_ambos chkProdEspecial ch_Mostrar"_s, true);
  QVERIFY(!Marcada(f, u"optBarra"_s));

  // A deleted printer, no family, no colour, hidden from the till.
  Pulsar(f, u"bt_botones_2"_s);
  QCOMPARE(Textos(f, u"txt_nombre lblNomProd lblnomFamilia lblPos txt_stock_minimo"_s),
           u"Bocadillo|Producto = Bocadillo = La impresora utilizada ha sido eliminada||0|0"_s);
  QCOMPARE(f.control<QLabel>(u"lblnomFamilia"_s)->property("codigo").toString(), u"-1"_s);
  // Neither kitchen nor bar: the previous product's choice does not stay.
  Exigir(f, &Marcada, u"optCocina optBarra ch_Mostrar"_s, false);
  QVERIFY(Marcada(f, u"opt_cocina"_s) && !Visible(f, u"pict_imagen"_s));
  QCOMPARE(ColorFondo(f.control<QLabel>(u"pic_ColorPG"_s)), QColor(Qt::white));
  QVERIFY(f.forma().estado().colorElegido.isEmpty());
  // A missing picture shows the default one.
  Pulsar(f, u"bt_botones_2"_s);
  QCOMPARE(Texto(f, u"txt_nombre"_s), u"Café"_s);
  QCOMPARE(ColorMostrado(f, u"pict_imagen"_s), QColor(Qt::green));
  QCOMPARE(Texto(f, u"lblNomProd"_s), QString());
  // No stock row: empty stock boxes, and the fields after them from this product's own row.
  Pulsar(f, u"bt_botones_2"_s);
  QCOMPARE(Textos(f, u"txt_nombre txt_stock_actual txt_stock_minimo"_s), u"Zumo||"_s);
  QVERIFY(Marcada(f, u"optBarra"_s));

  // An elaborated product; the ingredients are asked for by its code.
  QStringList ingredientes;
  f.forma().visualizacion().cargarIngredientes = [&](const QString& c) { ingredientes << c; };
  Pulsar(f, u"cmd_salir"_s);
  Pulsar(f, u"cmd_ProdElaborado"_s);
  QCOMPARE(Textos(f,
                  u"txt_NombreElaborado lblNomFamilia_elab txt_DescElaborado txtDescNumerica "
                  "txt_costeElaborado txt_ImpuestoElaborado txt_PrecioElaborado lblpospelab"_s),
           u"Tortilla|Cervezas|De patatas|31|2,5|10|6|0"_s);
  QVERIFY(Marcada(f, u"optBarraElab"_s));
  QCOMPARE(ColorFondo(f.control<QLabel>(u"pic_Color"_s)), ColorDesdeValor(65280));
  QCOMPARE(ingredientes, QStringList{u"5"_s});
  QVERIFY(f.inst().erroresMostrados().isEmpty());
}

void TestFormulario::navegaConSusAvisosYSusTeclas() {
  // The simple products are walked by name; an elaborated or deleted product is not among them.
  FormularioPrueba f(Catalogo());
  QVERIFY(f.mostrar());
  // On the start screen the arrows are hidden: their keys move nothing.
  Tecla(Qt::Key_PageDown);
  QCOMPARE(f.forma().estado().codigoActual, 0);
  Pulsar(f, u"cmd_ProdGenerico"_s);
  Pulsar(f, u"bt_botones_1"_s);
  QCOMPARE(Texto(f, u"txt_nombre"_s), u"Agua"_s);
  QCOMPARE(f.dialogos().mensajes(), QStringList{u"Primer Registro"_s});
  Tecla(Qt::Key_PageDown);
  QCOMPARE(Texto(f, u"txt_nombre"_s), u"Bocadillo"_s);
  Tecla(Qt::Key_End, Qt::ControlModifier);
  QCOMPARE(Texto(f, u"txt_nombre"_s), u"Zumo"_s);
  Pulsar(f, u"bt_botones_2"_s);
  QCOMPARE(Texto(f, u"txt_nombre"_s), u"Zumo"_s);
  QCOMPARE(f.dialogos().mensajes(), (QStringList{u"Primer Registro"_s, u"Último Registro"_s}));
  // After the warning the set stands on its last row: previous goes to the one before.
  Tecla(Qt::Key_PageUp);
  QCOMPARE(Texto(f, u"txt_nombre"_s), u"Café"_s);
  Tecla(Qt::Key_Home, Qt::ControlModifier);
  QCOMPARE(Texto(f, u"txt_nombre"_s), u"Agua"_s);
  // The search hands back a code; -1 is none.
  f.forma().ProductoBuscado(u"-1"_s);
  QCOMPARE(Texto(f, u"txt_nombre"_s), u"Agua"_s);
  f.forma().ProductoBuscado(u"3"_s);
  QCOMPARE(Texto(f, u"txt_nombre"_s), u"Café"_s);
  QCOMPARE(f.forma().estado().codigoActual, 3);
  Tecla(Qt::Key_F1);
  QVERIFY(
      f.dialogos().llamadasDe(u"abrirDocumento"_s).value(0).texto.endsWith(u"A_Productos.html"_s));
  // A key does not press a button that is off; F2 changes the product, and in change mode the
  // arrows are away and so are their keys.
  f.control<QPushButton>(u"cmd_nuevo"_s)->setEnabled(false);
  f.control<QPushButton>(u"cmd_modificar"_s)->setFocus();
  Tecla(Qt::Key_Insert);
  QVERIFY(!Activo(f, u"cmd_aceptar"_s));
  Tecla(Qt::Key_F2);
  QVERIFY(Activo(f, u"cmd_aceptar"_s));
  Tecla(Qt::Key_PageDown);
  QCOMPARE(Texto(f, u"txt_nombre"_s), u"Café"_s);
  QCOMPARE(f.dialogos().mensajes().size(), 2);
}

void TestFormulario::laListaDeProductos() {
  FormularioPrueba f(Catalogo());
  Abrir(f);
  Pulsar(f, u"cmd_ListaProd"_s);
  // Every live product by name, its code pushed out of sight; its button closes it.
  QCOMPARE(Lineas(f, u"lstProductos"_s),
           (QStringList{LineaLista(u"Agua"_s, u"1"_s), LineaLista(u"Bocadillo"_s, u"2"_s),
                        LineaLista(u"Café"_s, u"3"_s), LineaLista(u"Tortilla"_s, u"5"_s),
                        LineaLista(u"Zumo"_s, u"4"_s)}));
  Pulsar(f, u"cmd_ListaProd"_s);
  QVERIFY(!Visible(f, u"frListaProductos"_s));
  Pulsar(f, u"cmd_ListaProd"_s);
  // Kitchen and bar reload it, with what the table holds now.
  f.inst().ejecutar({Producto(u"6"_s, u"Ajo"_s, {{u"tipoprod"_s, u"0"_s}})});
  Pulsar(f, u"cmdCocina"_s);
  QCOMPARE(Lineas(f, u"lstProductos"_s),
           (QStringList{LineaLista(u"Ajo"_s, u"6"_s), LineaLista(u"Bocadillo"_s, u"2"_s)}));
  Pulsar(f, u"cmdBarra"_s);
  QCOMPARE(Lineas(f, u"lstProductos"_s).size(), 4);
  QVERIFY(f.dialogos().mensajes().isEmpty());
  // With none of a kind the notice shows and the list stays as it was.
  f.inst().ejecutar({u"update productos set borrar = -1 where tipoprod = 0"_s});
  Pulsar(f, u"cmdCocina"_s);
  QCOMPARE(f.dialogos().mensajes(), QStringList{u"No hay productos dados de alta."_s});
  QCOMPARE(f.dialogos().llamadas().first().titulo, u"ATENCION"_s);
  QCOMPARE(Lineas(f, u"lstProductos"_s).size(), 4);
  // A double touch shows that product and closes the list.
  auto* lista = f.control<QListView>(u"lstProductos"_s);
  const QRect fila = lista->visualRect(lista->model()->index(1, 0));
  QTest::mouseClick(lista->viewport(), Qt::LeftButton, {}, fila.center());
  QTest::mouseDClick(lista->viewport(), Qt::LeftButton, {}, fila.center());
  QTRY_VERIFY(!Visible(f, u"frListaProductos"_s));
  QCOMPARE(Texto(f, u"txt_nombre"_s), u"Café"_s);
  QCOMPARE(f.forma().estado().codigoActual, 3);
  // Leaving the screen takes the list away.
  Pulsar(f, u"cmd_ListaProd"_s);
  Pulsar(f, u"cmd_salir"_s);
  QVERIFY(f.control<QWidget>(u"frListaProductos"_s)->isHidden());
}

// A large catalogue's list boxes: every product has its line, exactly as the statement gives it,
// but only the lines in sight are ever built.
void TestFormulario::soloSeConstruyenLasLineasALaVista_data() {
  QTest::addColumn<QStringList>("botones");
  QTest::addColumn<QString>("lista");
  QTest::newRow("Lista") << QStringList{u"cmd_ProdGenerico"_s, u"cmd_ListaProd"_s}
                         << u"lstProductos"_s;
  QTest::newRow("componentes") << QStringList{u"cmd_ProdElaborado"_s} << u"lb_Productos"_s;
}

void TestFormulario::soloSeConstruyenLasLineasALaVista() {
  QFETCH(QStringList, botones);
  QFETCH(QString, lista);
  const int n = 3000;
  FormularioPrueba f({CatalogoDe(n)});
  QVERIFY(f.mostrar());
  for (const QString& boton : botones)
    Pulsar(f, boton);
  auto* vista = f.control<QListView>(lista);
  vista->viewport()->repaint();
  const ModeloLineas* modelo = ModeloDe(vista);
  QVERIFY(modelo && vista->isVisible());
  QTRY_COMPARE(modelo->rowCount(), n);  // the rest come in while the form is idle
  QVERIFY2(modelo->construidas() > 0 && modelo->construidas() < 100,
           qPrintable(QString::number(modelo->construidas())));
  for (int i : {1, n / 2, n})
    QCOMPARE(modelo->index(i - 1).data().toString(),
             u"Producto %1"_s.arg(i, 4, 10, QChar(u'0')) + QString(120, u' ') + QString::number(i));
}

// The rows read to show the first product, the next one and the list box do not grow with the
// catalogue (the rest come in while the form is idle); the last product costs one pass.
void TestFormulario::loQueSeLeeNoCreceConElCatalogo() {
  QList<QList<qint64>> filas;
  for (const int n : {400, 4000}) {
    FormularioPrueba f({CatalogoDe(n)});
    QVERIFY(f.mostrar());
    QList<qint64> porAccion;
    for (const QString& boton :
         {u"cmd_ProdGenerico"_s, u"bt_botones_2"_s, u"cmd_ListaProd"_s, u"bt_botones_3"_s}) {
      const qint64 antes = LectorFilas::filasLeidas();
      Pulsar(f, boton);
      porAccion.append(LectorFilas::filasLeidas() - antes);
    }
    filas.append(porAccion);
  }
  QCOMPARE(filas[1].first(3), filas[0].first(3));
  QVERIFY2(filas[1][3] < 11 * filas[0][3], qPrintable(QString::number(filas[1][3])));
}

void TestFormulario::lasSalidasYElProgramaDePrecios() {
  FormularioPrueba f;
  const QString carpeta = f.inst().carpeta();
  QFile programa(carpeta + u"/Tarvelo.exe"_s);
  QVERIFY(programa.open(QIODevice::WriteOnly) && programa.write("#!/bin/sh\n") > 0);
  programa.close();
  QFile anterior(carpeta + u"/ModoPrecio.txt"_s);
  QVERIFY(anterior.open(QIODevice::WriteOnly) && anterior.write("1\r\nrestos\r\n") > 0);
  anterior.close();
  f.dialogos().programaAbierto(u"Tarvelo"_s, 2);
  QVERIFY(f.mostrar());
  // The captions of the start screen pass their touch on to their buttons.
  QTest::mouseClick(f.control<QLabel>(u"Label12"_s), Qt::LeftButton);
  QVERIFY(Visible(f, u"fr_ProductoGenerico"_s));
  Pulsar(f, u"cmd_salir"_s);
  Pulsar(f, u"cmd_ProdElaborado"_s);
  Pulsar(f, u"cmd_SalirProdEla"_s);
  QVERIFY(Visible(f, u"fr_Inicial"_s) && !Visible(f, u"fr_ProductosElaborados"_s));
  // The prices' program gets the mode in its file, once its running copies are closed.
  f.dialogos().olvidar();
  Pulsar(f, u"Boton_SM1"_s);
  QFile modo(carpeta + u"/ModoPrecio.txt"_s);
  QVERIFY(modo.open(QIODevice::ReadOnly));
  QCOMPARE(modo.readAll(), QByteArray("0"));
  QStringList llamadas;
  for (const DialogosGuion::Llamada& l : f.dialogos().llamadas())
    llamadas.append(l.tipo + u' ' + l.texto);
  QCOMPARE(llamadas.join(u'|'),
           u"programaEnEjecucion Tarvelo|cerrarPrograma Tarvelo|programaEnEjecucion Tarvelo|"
           "cerrarPrograma Tarvelo|programaEnEjecucion Tarvelo|iniciarPrograma "_s +
               f.entorno().instalacion.rutaEnCarpeta(u"Tarvelo.exe"_s));
  QCOMPARE(f.dialogos().llamadas().last().titulo, f.entorno().instalacion.carpetaPrograma);
  Pulsar(f, u"cmd_Salir2"_s);
  QTRY_VERIFY(!f.forma().isVisible());
  QVERIFY(f.inst().erroresMostrados().isEmpty());
}

void TestFormulario::laImpresoraDeUnProducto() {
  FormularioPrueba f(Catalogo());
  Abrir(f);
  QCOMPARE(Texto(f, u"lblNomProd"_s), Linea(u"Agua"_s, u"Barra"_s));
  // Outside change mode the chooser opens, but choosing only warns.
  Pulsar(f, u"cmdImpresoras"_s);
  TocarFila(f, 2);
  f.dialogos().olvidar();
  Pulsar(f, u"Command3"_s);
  QCOMPARE(f.dialogos().mensajes(),
           QStringList{u"Para modificar la impresora es necesario estar en modo modificacion."_s});
  QCOMPARE(f.dialogos().llamadas().first().titulo, u"Impresoras Especificas"_s);
  QCOMPARE(ImpresoraElegida(f), u"3"_s);
  Pulsar(f, u"cmdCerrarImpresoras"_s);
  Pulsar(f, u"cmd_modificar"_s);
  // A new name typed since: the line keeps the stored name; the list opens on the printer.
  Escribir(f, u"txt_nombre"_s, u"Tinto"_s);
  Pulsar(f, u"cmdImpresoras"_s);
  QCOMPARE(f.control<QListWidget>(u"lb_impresoras"_s)->currentRow(), 0);
  QCOMPARE(Texto(f, u"lblNomProd"_s), Linea(u"Agua"_s, u"Barra"_s));
  // A touch names the printer with the name typed now; closing puts both back.
  TocarFila(f, 2);
  QCOMPARE(Texto(f, u"lblNomProd"_s), Linea(u"Tinto"_s, u"Terraza"_s));
  Pulsar(f, u"cmdCerrarImpresoras"_s);
  QVERIFY(!Visible(f, u"frImpresoras"_s));
  QCOMPARE(Texto(f, u"lblNomProd"_s), Linea(u"Agua"_s, u"Barra"_s));
  QCOMPARE(ImpresoraElegida(f), u"3"_s);
  // "Ninguna" leaves no specific printer, and the line as it was.
  Pulsar(f, u"cmdImpresoras"_s);
  Pulsar(f, u"Command5"_s);
  QCOMPARE(ImpresoraElegida(f), u"0"_s);
  QCOMPARE(Texto(f, u"lblNomProd"_s), Linea(u"Agua"_s, u"Barra"_s));
  // Leaving the screen closes the chooser as well.
  Pulsar(f, u"cmd_cancelar"_s);
  Pulsar(f, u"cmdImpresoras"_s);
  Pulsar(f, u"cmd_salir"_s);
  QVERIFY(!f.control<QWidget>(u"frImpresoras"_s)->isVisibleTo(&f.forma()));

  // With two printers there is nothing to choose: the buttons stay hidden on both screens.
  FormularioPrueba dos({Impresora(3, u"Barra"_s), Impresora(5, u"Cocina"_s)});
  Abrir(dos, u"cmd_ProdGenerico"_s, false);
  QVERIFY(!Visible(dos, u"cmdImpresoras"_s));
  Pulsar(dos, u"cmd_salir"_s);
  Pulsar(dos, u"cmd_ProdElaborado"_s);
  QVERIFY(!Visible(dos, u"cmdImpresorasElab"_s));
}

void TestFormulario::laImpresoraDeUnElaboradoYSuZona() {
  FormularioPrueba f(Catalogo());
  int aperturas = 0;
  auto* zona = f.forma().findChild<ZonaImpresoras*>();
  QVERIFY(zona);
  zona->abrirComponentes = [&aperturas] { ++aperturas; };
  Abrir(f, u"cmd_ProdElaborado"_s, true);
  QCOMPARE(Texto(f, u"txt_NombreElaborado"_s), u"Tortilla"_s);
  Pulsar(f, u"cmdImpresorasElab"_s);
  QCOMPARE(Texto(f, u"lblNomProd"_s), Linea(u"Tortilla"_s, u"Barra"_s));
  TocarFila(f, 1);
  QCOMPARE(Texto(f, u"lblNomProd"_s), Linea(u"Tortilla"_s, u"Cocina"_s));
  Pulsar(f, u"Command3"_s);
  QCOMPARE(ImpresoraElegida(f), u"5"_s);
  // Showing the product, or changing the zone of a saved one, opens nothing; the zone of a
  // product being created opens its components.
  Pulsar(f, u"optCocinaElab"_s);
  QVERIFY(f.control<QRadioButton>(u"optCocinaElab"_s)->isChecked());
  QCOMPARE(aperturas, 0);
  f.forma().estado().modificando = false;
  Pulsar(f, u"optBarraElab"_s);
  QCOMPARE(aperturas, 1);
}

void TestFormulario::losTiposMuestranLoQueUsan() {
  FormularioPrueba f(Catalogo());
  Abrir(f);
  // A product for internal use shows its cost but no price.
  Pulsar(f, u"bt_botones_2"_s);
  QCOMPARE(Texto(f, u"txt_nombre"_s), u"Bocadillo"_s);
  QVERIFY(Visible(f, u"txt_coste"_s) && !Visible(f, u"txt_precio"_s));
  // In change mode each kind brings what it uses and takes the focus to the cost.
  Pulsar(f, u"bt_botones_2"_s);
  Pulsar(f, u"cmd_modificar"_s);
  Pulsar(f, u"opt_cocina"_s);
  Exigir(f, &Visible, u"txt_precio lbl_precio"_s, false);
  QTRY_COMPARE(QApplication::focusWidget(), f.control<QWidget>(u"txt_coste"_s));
  f.control<QLineEdit>(u"txt_nombre"_s)->setFocus();
  Pulsar(f, u"opt_ambos"_s);
  Exigir(f, &Visible, u"txt_precio lbl_precio lblPreparado optCocina optBarra"_s, true);
  QTRY_COMPARE(QApplication::focusWidget(), f.control<QWidget>(u"txt_coste"_s));
}

void TestFormulario::laImagenDeUnProducto() {
  FormularioPrueba f(Catalogo());
  QTemporaryDir origen;
  const QString justa = Imagen(origen.path(), u"justa.png"_s, 75000, Qt::red);
  const QString grande = Imagen(origen.path(), u"grande.png"_s, 75001, Qt::green);
  const QString fotos = QDir(f.inst().carpeta()).filePath(u"fotos"_s);
  Abrir(f);
  // Outside change mode the boxes open nothing.
  f.dialogos().siguienteArchivo(justa);
  for (const QString& caja :
       {u"pict_imagen"_s, u"lbl_Insertar"_s, u"pic_ColorPG"_s, u"lbl_color"_s})
    QTest::mouseClick(f.control<QWidget>(caja), Qt::LeftButton);
  QVERIFY(f.dialogos().llamadas().isEmpty());

  Pulsar(f, u"cmd_modificar"_s);
  QTest::mouseClick(f.control<QWidget>(u"pict_imagen"_s), Qt::LeftButton);
  QCOMPARE(f.dialogos().llamadasDe(u"abrirArchivo"_s).first().texto, fotos + u"|*.*"_s);
  QCOMPARE(f.forma().estado().fotoElegida, u"justa.png"_s);
  QCOMPARE(ColorMostrado(f, u"pict_imagen"_s), QColor(Qt::red));
  QCOMPARE(Contenido(QDir(fotos).filePath(u"justa.png"_s)), Contenido(justa));
  // One byte more is refused with its notice; the previous picture stands.
  f.dialogos().siguienteArchivo(grande);
  QTest::mouseClick(f.control<QWidget>(u"lbl_Insertar"_s), Qt::LeftButton);
  QCOMPARE(f.dialogos().mensajes(),
           QStringList{u"El archivo seleccionado es demasiado grande, es necesario que seleccione "
                       "una imagen mas pequeña para que el programa funcione de forma optima.\r\n"
                       "No use imagenes superiores a 75 kb de tamaño"_s});
  QCOMPARE(f.dialogos().llamadasDe(u"mensaje"_s).first().titulo, u"Imagen demasiado grande"_s);
  QCOMPARE(f.forma().estado().fotoElegida, u"justa.png"_s);
  QCOMPARE(ColorMostrado(f, u"pict_imagen"_s), QColor(Qt::red));
  QVERIFY(!QFile::exists(QDir(fotos).filePath(u"grande.png"_s)));

  // The elaborated products have no limit; the cost comes next.
  Pulsar(f, u"cmd_cancelar"_s);
  Pulsar(f, u"cmd_salir"_s);
  Pulsar(f, u"cmd_ProdElaborado"_s);
  Pulsar(f, u"cmd_ModificarProdEla"_s);
  f.dialogos().siguienteArchivo(grande);
  QTest::mouseClick(f.control<QWidget>(u"pic_ProductoElaborado"_s), Qt::LeftButton);
  QCOMPARE(f.dialogos().llamadasDe(u"abrirArchivo"_s).last().texto, fotos + u"/|*.*"_s);
  QCOMPARE(f.forma().estado().fotoElegida, u"grande.png"_s);
  QCOMPARE(ColorMostrado(f, u"pic_ProductoElaborado"_s), QColor(Qt::green));
  QCOMPARE(Contenido(QDir(fotos).filePath(u"grande.png"_s)), Contenido(grande));
  QTRY_COMPARE(QApplication::focusWidget(), f.control<QWidget>(u"txt_costeElaborado"_s));
}

void TestFormulario::elColorPintaSuCaja() {
  FormularioPrueba f(Catalogo());
  DialogosGuion& dialogos = f.dialogos();
  Abrir(f, u"cmd_ProdGenerico"_s, true);
  const QColor naranja(255, 128, 0);
  dialogos.siguienteColor(naranja);
  QTest::mouseClick(f.control<QWidget>(u"pic_ColorPG"_s), Qt::LeftButton);
  // The dialog opens on the product's colour; the colour frame leaves.
  QCOMPARE(dialogos.llamadasDe(u"elegirColor"_s).first().texto, QColor(255, 0, 0).name());
  QVERIFY(!Visible(f, u"fr_colores"_s));
  QCOMPARE(f.forma().estado().colorElegido, u"33023"_s);
  QCOMPARE(ColorFondo(f.control<QLabel>(u"pic_ColorPG"_s)), naranja);
  // The elaborated screen paints its own box, opening on its product's colour.
  Pulsar(f, u"cmd_cancelar"_s);
  Pulsar(f, u"cmd_salir"_s);
  Pulsar(f, u"cmd_ProdElaborado"_s);
  Pulsar(f, u"cmd_ModificarProdEla"_s);
  dialogos.siguienteColor(QColor(0, 0, 255));
  QTest::mouseClick(f.control<QWidget>(u"pic_Color"_s), Qt::LeftButton);
  QCOMPARE(dialogos.llamadasDe(u"elegirColor"_s).last().texto, QColor(0, 255, 0).name());
  QCOMPARE(f.forma().estado().colorElegido, u"16711680"_s);
  QCOMPARE(ColorFondo(f.control<QLabel>(u"pic_Color"_s)), QColor(0, 0, 255));
}

void TestFormulario::lasFamilias() {
  FormularioPrueba f(Catalogo());
  const auto codigo = [&f](const QString& etiqueta) {
    return f.control<QLabel>(etiqueta)->property("codigo").toString();
  };
  Abrir(f);
  // In navigation the panel takes the touch, the form does not.
  TocarFamilia(f, u"Cafés"_s);
  QCOMPARE(codigo(u"lblnomFamilia"_s), u"F1"_s);
  Pulsar(f, u"cmd_modificar"_s);
  TocarFamilia(f, u"Cafés"_s);
  QCOMPARE(Texto(f, u"lblnomFamilia"_s), u"Cafés"_s);
  QCOMPARE(codigo(u"lblnomFamilia"_s), u"F2"_s);
  QCOMPARE(codigo(u"lblNomFamilia_elab"_s), u"-1"_s);
  // Cancelling shows the product's own family again, and touches choose nothing again.
  Pulsar(f, u"cmd_cancelar"_s);
  TocarFamilia(f, u"Cafés"_s);
  QCOMPARE(Texto(f, u"lblnomFamilia"_s), u"Cervezas"_s);
  QCOMPARE(codigo(u"lblnomFamilia"_s), u"F1"_s);

  // The elaborated products' panel fills their own label.
  Pulsar(f, u"cmd_salir"_s);
  Pulsar(f, u"cmd_ProdElaborado"_s);
  TocarFamilia(f, u"Cafés"_s, u"PanelFamilias_Elab"_s);
  QCOMPARE(codigo(u"lblNomFamilia_elab"_s), u"F1"_s);
  Pulsar(f, u"cmd_ModificarProdEla"_s);
  TocarFamilia(f, u"Cafés"_s, u"PanelFamilias_Elab"_s);
  QCOMPARE(Texto(f, u"lblNomFamilia_elab"_s), u"Cafés"_s);
  QCOMPARE(codigo(u"lblNomFamilia_elab"_s), u"F2"_s);
  QCOMPARE(codigo(u"lblnomFamilia"_s), u"F1"_s);
}

PRODUCTOS_TEST_MAIN(TestFormulario)
#include "test_formulario.moc"
