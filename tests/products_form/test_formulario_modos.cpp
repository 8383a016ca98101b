#include <QtTest>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>

#include "formulario_prueba.h"
#include "modos.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QString kProveedor =
    u"insert into proveedores (codigo, nombre, borrar) values ('P1', "
    "'Distribuciones Sur', 0)"_s;

bool Activo(FormularioPrueba& f, const QString& nombre) {
  const QWidget* w = f.control<QWidget>(nombre);
  return w && w->isEnabled();
}

}  // namespace

class TestFormularioModos : public QObject {
  Q_OBJECT
 private slots:
  void init() { QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain)); }
  void modosDeLosProductosSimples();
  void modosDeLosElaborados();
  void unBotonSinPermisoNoSeEnciende();
  void unBotonRestringidoAlEmpleadoSigueApagado();
  void nuevoSinProveedoresAvisaYNoCambiaDeModo();
  void nuevoLimpiaLosCamposYOcultaLoQueAunNoToca();
  void cancelarQuitaSoloLosEnlacesDelProductoSinGuardar();
  void eventosDeLosCampos();
  void lasSalidas();
  void preciosEntregaElModoAlProgramaDePrecios();
};

void TestFormularioModos::modosDeLosProductosSimples() {
  FormularioPrueba f({kProveedor, Producto(u"1"_s, u"Caña"_s), Stock(u"1"_s, u"5"_s, u"1"_s)});
  QVERIFY(f.mostrar());
  Pulsar(f, u"cmd_ProdGenerico"_s);
  QVERIFY(Visible(f, u"fr_ProductoGenerico"_s));
  QVERIFY(!Visible(f, u"fr_Inicial"_s));
  QVERIFY(!Visible(f, u"fr_ProductosElaborados"_s));

  // Navigation.
  for (const QString& on : {u"cmd_buscar"_s, u"cmd_nuevo"_s, u"cmd_eliminar"_s, u"cmd_modificar"_s,
                            u"cmd_ayuda"_s, u"cmd_salir"_s, u"cmd_ListaProd"_s}) {
    QVERIFY2(Activo(f, on), qPrintable(on));
  }
  for (const QString& off :
       {u"cmd_aceptar"_s, u"cmd_cancelar"_s, u"bt_botonSig"_s, u"bt_botonAnt"_s, u"cmd_Proveedor"_s,
        u"ch_Mostrar"_s, u"optCocina"_s, u"pict_imagen"_s, u"pic_ColorPG"_s}) {
    QVERIFY2(!Activo(f, off), qPrintable(off));
  }
  for (const QString& visible :
       {u"frFlechasGen"_s, u"Label6"_s, u"opt_Venta"_s, u"opt_cocina"_s, u"opt_ambos"_s}) {
    QVERIFY2(Visible(f, visible), qPrintable(visible));
  }
  QVERIFY(!Visible(f, u"fr_MensajeNombre"_s));
  QVERIFY(!Visible(f, u"fr_Mensajenumero"_s));
  auto* nombre = f.control<QLineEdit>(u"txt_nombre"_s);
  QCOMPARE(nombre->text(), u"Caña"_s);
  QVERIFY(nombre->isReadOnly());
  QTRY_COMPARE(QApplication::focusWidget(), f.control<QWidget>(u"cmd_nuevo"_s));
  // A locked list of units keeps its value against keys.
  auto* medida = f.control<QComboBox>(u"cbo_Medida"_s);
  QCOMPARE(medida->currentText(), u"Unidades"_s);
  QTest::keyClick(medida, Qt::Key_Down);
  QCOMPARE(medida->currentText(), u"Unidades"_s);
  // The current stock is never locked or unlocked by the modes.
  auto* stock = f.control<QLineEdit>(u"txt_stock_actual"_s);
  QVERIFY(!stock->isReadOnly());
  stock->setReadOnly(true);

  // Change mode.
  Pulsar(f, u"cmd_modificar"_s);
  QVERIFY(f.forma().estado().modificando);
  QVERIFY(!nombre->isReadOnly());
  QTRY_COMPARE(QApplication::focusWidget(), nombre);
  for (const QString& on : {u"cmd_aceptar"_s, u"cmd_cancelar"_s, u"cmd_Proveedor"_s,
                            u"pict_imagen"_s, u"lbl_Insertar"_s, u"pic_ColorPG"_s, u"lbl_color"_s,
                            u"bt_botonSig"_s, u"bt_botonAnt"_s, u"ch_Mostrar"_s, u"optCocina"_s}) {
    QVERIFY2(Activo(f, on), qPrintable(on));
  }
  for (const QString& off : {u"cmd_nuevo"_s, u"cmd_modificar"_s, u"cmd_eliminar"_s, u"cmd_buscar"_s,
                             u"cmd_ayuda"_s, u"cmd_salir"_s, u"cmd_ListaProd"_s}) {
    QVERIFY2(!Activo(f, off), qPrintable(off));
  }
  QVERIFY(!Visible(f, u"frFlechasGen"_s));
  QVERIFY(stock->isReadOnly());
  QTest::keyClick(medida, Qt::Key_Down);
  QCOMPARE(medida->currentText(), u"Kilogramos"_s);

  Pulsar(f, u"cmd_cancelar"_s);
  QVERIFY(nombre->isReadOnly());
  QVERIFY(!Activo(f, u"cmd_aceptar"_s));
  QCOMPARE(medida->currentText(), u"Unidades"_s);
  QVERIFY(f.inst().erroresMostrados().isEmpty());
}

void TestFormularioModos::modosDeLosElaborados() {
  FormularioPrueba f({Producto(u"1"_s, u"Huevo"_s), Producto(u"2"_s, u"Tortilla"_s),
                      Stock(u"2"_s, u"0"_s, u"0"_s),
                      u"insert into productoElaborado_producto values ('2', '1', 3)"_s});
  QVERIFY(f.mostrar());
  Pulsar(f, u"cmd_ProdElaborado"_s);
  QVERIFY(Visible(f, u"fr_ProductosElaborados"_s));
  QVERIFY(!Visible(f, u"fr_ProductoGenerico"_s));
  QCOMPARE(f.control<QLineEdit>(u"txt_NombreElaborado"_s)->text(), u"Tortilla"_s);
  QCOMPARE(f.control<QLabel>(u"lblProdASel"_s)->text(), u"Productos elaborados"_s);
  for (const QString& on :
       {u"cmd_NuevoProdEla"_s, u"cmd_ModificarProdEla"_s, u"cmd_EliminarProdEla"_s, u"Boton_SM2"_s,
        u"cmd_SalirProdEla"_s, u"cmd_AyudaProdEla"_s}) {
    QVERIFY2(Activo(f, on), qPrintable(on));
  }
  for (const QString& off :
       {u"cmd_AceptarProdEl"_s, u"cmd_CancelarProdEl"_s, u"lb_Productos"_s, u"lb_ProductosSel"_s,
        u"cmdCInterno"_s, u"cmdCVenta"_s, u"pic_ProductoElaborado"_s, u"optBarraElab"_s}) {
    QVERIFY2(!Activo(f, off), qPrintable(off));
  }
  for (const QString& oculto : {u"fr_Mensaje"_s, u"fr_colores"_s, u"fr_mensajeNombrePElab"_s,
                                u"fr_mensajeNumeroPElab"_s, u"frOcultar"_s}) {
    QVERIFY2(!f.control<QWidget>(oculto)->isVisibleTo(&f.forma()), qPrintable(oculto));
  }
  QVERIFY(f.control<QLineEdit>(u"txt_NombreElaborado"_s)->isReadOnly());

  Pulsar(f, u"cmd_ModificarProdEla"_s);
  QCOMPARE(f.control<QLabel>(u"lblProdASel"_s)->text(), u"Seleccione el componente a utilizar:"_s);
  for (const QString& on : {u"cmd_AceptarProdEl"_s, u"cmd_CancelarProdEl"_s, u"lb_Productos"_s,
                            u"lb_ProductosSel"_s, u"cmdCInterno"_s, u"cmdCVenta"_s,
                            u"pic_ProductoElaborado"_s, u"pic_Color"_s, u"optBarraElab"_s}) {
    QVERIFY2(Activo(f, on), qPrintable(on));
  }
  for (const QString& off : {u"cmd_NuevoProdEla"_s, u"cmd_ModificarProdEla"_s,
                             u"cmd_EliminarProdEla"_s, u"Boton_SM2"_s, u"cmd_SalirProdEla"_s}) {
    QVERIFY2(!Activo(f, off), qPrintable(off));
  }
  QTRY_COMPARE(QApplication::focusWidget(), f.control<QWidget>(u"txt_NombreElaborado"_s));

  Pulsar(f, u"cmd_CancelarProdEl"_s);
  QVERIFY(!Activo(f, u"cmd_AceptarProdEl"_s));
  QCOMPARE(f.control<QLabel>(u"lblProdASel"_s)->text(), u"Productos elaborados"_s);
}

void TestFormularioModos::unBotonSinPermisoNoSeEnciende() {
  FormularioPrueba f({kProveedor, Producto(u"1"_s, u"Caña"_s), Stock(u"1"_s, u"5"_s, u"1"_s)});
  QVERIFY(f.mostrar());
  EstadoFormulario::Permisos& p = f.forma().estado().permisos;
  p.nuevo = false;
  p.eliminar = false;
  for (const QString& b : {u"cmd_nuevo"_s, u"cmd_eliminar"_s, u"cmd_NuevoProdEla"_s,
                           u"cmd_EliminarProdEla"_s, u"cmd_modificar"_s}) {
    f.control<QPushButton>(b)->setEnabled(false);
  }
  Pulsar(f, u"cmd_ProdGenerico"_s);
  QVERIFY(!Activo(f, u"cmd_nuevo"_s));
  QVERIFY(!Activo(f, u"cmd_eliminar"_s));
  // A button whose flag stands is switched on by the modes, whatever was done to it before.
  QVERIFY(Activo(f, u"cmd_modificar"_s));
  Pulsar(f, u"cmd_modificar"_s);
  Pulsar(f, u"cmd_cancelar"_s);
  QVERIFY(!Activo(f, u"cmd_nuevo"_s));
  QVERIFY(!Activo(f, u"cmd_eliminar"_s));
  Pulsar(f, u"cmd_salir"_s);
  Pulsar(f, u"cmd_ProdElaborado"_s);
  QVERIFY(!Activo(f, u"cmd_NuevoProdEla"_s));
  QVERIFY(!Activo(f, u"cmd_EliminarProdEla"_s));
  QVERIFY(Activo(f, u"cmd_ModificarProdEla"_s));
}

void TestFormularioModos::unBotonRestringidoAlEmpleadoSigueApagado() {
  FormularioPrueba f(
      {kProveedor, Producto(u"1"_s, u"Caña"_s), Stock(u"1"_s, u"5"_s, u"1"_s),
       u"insert into atributos (codigo, form, form_desc, boton, boton_desc, boton_auxiliar) "
       "values (1, 'frmProductos1024', 'Productos', 'cmd_eliminar', 'Eliminar', null)"_s,
       u"insert into empleadosatributos (codEmpleado, codatributo) values (5, 1)"_s});
  QVERIFY(f.mostrar());
  QCOMPARE(f.entorno().sesion.EmpleadoActual, 5);
  QVERIFY(!Activo(f, u"cmd_eliminar"_s));
  // Neither choosing the screen nor leaving change mode gives the employee the button back.
  Pulsar(f, u"cmd_ProdGenerico"_s);
  QVERIFY(!Activo(f, u"cmd_eliminar"_s));
  QVERIFY(Activo(f, u"cmd_nuevo"_s));
  Pulsar(f, u"cmd_modificar"_s);
  Pulsar(f, u"cmd_cancelar"_s);
  QVERIFY(!Activo(f, u"cmd_eliminar"_s));
  QVERIFY(Activo(f, u"cmd_modificar"_s));
}

void TestFormularioModos::nuevoSinProveedoresAvisaYNoCambiaDeModo() {
  // A deleted supplier is no supplier.
  FormularioPrueba f(
      {u"insert into proveedores (codigo, nombre, borrar) values ('P9', 'Viejo', "
       "-1)"_s,
       Producto(u"1"_s, u"Caña"_s), Stock(u"1"_s, u"5"_s, u"1"_s)});
  QVERIFY(f.mostrar());
  Pulsar(f, u"cmd_ProdGenerico"_s);
  f.dialogos().olvidar();
  Pulsar(f, u"cmd_nuevo"_s);
  QCOMPARE(f.dialogos().mensajes(),
           QStringList{u"Antes de dar de alta productos tiene que dar de alta algun proveedor"_s});
  QCOMPARE(f.dialogos().llamadas().first().icono, ServicioDialogos::Icono::Informacion);
  QCOMPARE(f.control<QLineEdit>(u"txt_nombre"_s)->text(), u"Caña"_s);
  QVERIFY(f.control<QLineEdit>(u"txt_nombre"_s)->isReadOnly());
  QVERIFY(!Activo(f, u"cmd_aceptar"_s));
  QVERIFY(Activo(f, u"cmd_nuevo"_s));
}

void TestFormularioModos::nuevoLimpiaLosCamposYOcultaLoQueAunNoToca() {
  FormularioPrueba f({kProveedor,
                      u"insert into seccion (codigo, nombre, borrar, menu) values ('F1', "
                      "'Bebidas', 0, 0)"_s,
                      Producto(u"9"_s, u"Agua"_s, {{u"seccion"_s, u"'F1'"_s}}),
                      Producto(u"10"_s, u"Caña"_s), Stock(u"9"_s, u"5"_s, u"1"_s),
                      // The largest code counts deleted products too.
                      Producto(u"12"_s, u"Borrado"_s, {{u"borrar"_s, u"-1"_s}})});
  QVERIFY(f.mostrar());
  Pulsar(f, u"cmd_ProdGenerico"_s);
  QCOMPARE(f.control<QLabel>(u"lblnomFamilia"_s)->text(), u"Bebidas"_s);
  Pulsar(f, u"cmd_nuevo"_s);

  EstadoFormulario& e = f.forma().estado();
  QCOMPARE(e.codigoActual, 13);
  QVERIFY(!e.modificando);
  QVERIFY(e.colorElegido.isEmpty());
  const QList<QPair<QString, QString>> textos = {{u"txt_nombre"_s, u""_s},
                                                 {u"txtCodBarras"_s, u""_s},
                                                 {u"txt_descripcion"_s, u""_s},
                                                 // Offered at once: no product has one.
                                                 {u"txtDescNumericaPGen"_s, u"1"_s},
                                                 {u"txt_coste"_s, u"0"_s},
                                                 {u"txt_iva"_s, u"0"_s},
                                                 {u"txt_precio"_s, u"0"_s},
                                                 {u"txt_stock_actual"_s, u"0"_s},
                                                 {u"txt_stock_minimo"_s, u"1"_s},
                                                 // Setting the price works the margin out of it.
                                                 {u"txt_margen"_s, u"0,00"_s}};
  for (const auto& [nombre, texto] : textos) {
    QCOMPARE(f.control<QLineEdit>(nombre)->text(), texto);
  }
  QCOMPARE(f.control<QComboBox>(u"cbo_Medida"_s)->currentIndex(), -1);
  for (const QString& opcion :
       {u"optCocina"_s, u"optBarra"_s, u"opt_ambos"_s, u"opt_cocina"_s, u"opt_Venta"_s}) {
    QVERIFY2(!f.control<QRadioButton>(opcion)->isChecked(), qPrintable(opcion));
  }
  QCOMPARE(f.control<QLabel>(u"lblnomFamilia"_s)->text(), QString());
  QCOMPARE(f.control<QLabel>(u"lblnomFamilia"_s)->property("codigo").toString(), u"-1"_s);
  QCOMPARE(f.control<QPushButton>(u"cmd_Proveedor"_s)->text(), u"Seleccione sus proveedores"_s);
  QCOMPARE(f.control<QListWidget>(u"lb_ProveedoresAsignados"_s)->count(), 0);
  QVERIFY(Visible(f, u"frOcultarGen"_s));
  for (const QString& oculto :
       {u"txt_coste"_s, u"lbl_coste"_s, u"txt_precio"_s, u"txt_iva"_s, u"lbl_percent"_s,
        u"txt_stock_minimo"_s, u"txt_stock_actual"_s, u"Label16"_s, u"cbo_Medida"_s, u"Label6"_s,
        u"opt_Venta"_s, u"pict_imagen"_s, u"pic_ColorPG"_s, u"txtDescNumericaPGen"_s, u"lblPos"_s,
        u"ch_Mostrar"_s, u"optCocina"_s}) {
    QVERIFY2(!Visible(f, oculto), qPrintable(oculto));
  }
  QVERIFY(Visible(f, u"txt_margen"_s));
  QTRY_COMPARE(QApplication::focusWidget(), f.control<QWidget>(u"txt_nombre"_s));

  // The unit of measure is the step that brings the product kinds.
  auto* medida = f.control<QComboBox>(u"cbo_Medida"_s);
  medida->show();
  QTest::keyClick(medida, Qt::Key_Down);
  QCOMPARE(medida->currentText(), u"Unidades"_s);
  for (const QString& visible : {u"Label6"_s, u"opt_Venta"_s, u"opt_cocina"_s, u"opt_ambos"_s}) {
    QVERIFY2(Visible(f, visible), qPrintable(visible));
  }
  QVERIFY(f.control<QRadioButton>(u"opt_ambos"_s)->isChecked());
  QVERIFY(!Visible(f, u"frOcultarGen"_s));
}

void TestFormularioModos::cancelarQuitaSoloLosEnlacesDelProductoSinGuardar() {
  FormularioPrueba f({kProveedor, Producto(u"1"_s, u"Caña"_s), Stock(u"1"_s, u"5"_s, u"1"_s),
                      u"insert into productoproveedor values ('1', 'P1', 0)"_s});
  QVERIFY(f.mostrar());
  Pulsar(f, u"cmd_ProdGenerico"_s);
  Pulsar(f, u"cmd_nuevo"_s);
  QCOMPARE(f.forma().estado().codigoActual, 2);
  // The suppliers of the new product were accepted before it was abandoned.
  f.inst().ejecutar({u"insert into productoproveedor values ('2', 'P1', 0)"_s});
  f.control<QLineEdit>(u"txt_nombre"_s)->setText(u"A medias"_s);
  Pulsar(f, u"cmd_cancelar"_s);
  QCOMPARE(f.inst().filas(u"select producto, proveedor, coste from productoproveedor"_s),
           (QList<QVariantList>{{u"1"_s, u"P1"_s, 0.0}}));
  QCOMPARE(f.control<QLineEdit>(u"txt_nombre"_s)->text(), u"Caña"_s);
  QCOMPARE(f.forma().estado().codigoActual, 1);
  // What the new product hid is on show again for the saved one.
  QVERIFY(!Visible(f, u"frOcultarGen"_s));
  for (const QString& visible : {u"txt_coste"_s, u"txt_precio"_s, u"txt_stock_minimo"_s,
                                 u"cbo_Medida"_s, u"lbl_Medida"_s, u"Label6"_s, u"opt_ambos"_s,
                                 u"ch_Mostrar"_s, u"optCocina"_s, u"pict_imagen"_s, u"lblPos"_s}) {
    QVERIFY2(Visible(f, visible), qPrintable(visible));
  }
  QVERIFY(!Activo(f, u"cmd_aceptar"_s));
  QVERIFY(f.inst().erroresMostrados().isEmpty());
}

void TestFormularioModos::eventosDeLosCampos() {
  FormularioPrueba f({kProveedor, Producto(u"1"_s, u"Caña"_s), Stock(u"1"_s, u"5"_s, u"1"_s)});
  QVERIFY(f.mostrar());
  Pulsar(f, u"cmd_ProdGenerico"_s);
  Pulsar(f, u"cmd_modificar"_s);
  auto* mostrar = f.control<QCheckBox>(u"ch_Mostrar"_s);
  auto* especial = f.control<QCheckBox>(u"chkProdEspecial"_s);
  QVERIFY(mostrar->isChecked());
  QVERIFY(Visible(f, u"pict_imagen"_s));

  QTest::mouseClick(mostrar, Qt::LeftButton);
  QVERIFY(!mostrar->isChecked());
  for (const QString& oculto :
       {u"pict_imagen"_s, u"pic_ColorPG"_s, u"lbl_color"_s, u"txtDescNumericaPGen"_s, u"Label14"_s,
        u"Lbl_Posicion"_s, u"lblPos"_s, u"bt_botonAnt"_s, u"bt_botonSig"_s}) {
    QVERIFY2(!Visible(f, oculto), qPrintable(oculto));
  }
  // A special product is never shown on the till.
  QTest::mouseClick(especial, Qt::LeftButton);
  QVERIFY(especial->isChecked());
  QVERIFY(!Visible(f, u"frMostrarCaja"_s));
  QTest::mouseClick(especial, Qt::LeftButton);
  QVERIFY(Visible(f, u"frMostrarCaja"_s));
  especial->setChecked(true);
  f.control<QWidget>(u"frMostrarCaja"_s)->show();
  QTest::mouseClick(mostrar, Qt::LeftButton);
  QVERIFY(mostrar->isChecked());
  QVERIFY(!especial->isChecked());
  QVERIFY(Visible(f, u"pict_imagen"_s));
  QVERIFY(Visible(f, u"lblPos"_s));

  // The arrows move the position one place, never below 0.
  auto* posicion = f.control<QLabel>(u"lblPos"_s);
  posicion->setText(u"1"_s);
  Pulsar(f, u"bt_botonSig"_s);
  QCOMPARE(posicion->text(), u"2"_s);
  Pulsar(f, u"bt_botonAnt"_s);
  Pulsar(f, u"bt_botonAnt"_s);
  Pulsar(f, u"bt_botonAnt"_s);
  QCOMPARE(posicion->text(), u"0"_s);

  // The numeric description takes digits only.
  auto* numero = f.control<QLineEdit>(u"txtDescNumericaPGen"_s);
  numero->clear();
  QTest::keyClicks(numero, u"1a2,3.-4 "_s);
  QCOMPARE(numero->text(), u"1234"_s);
  QTest::keyClick(numero, Qt::Key_Backspace);
  QCOMPARE(numero->text(), u"123"_s);
}

void TestFormularioModos::lasSalidas() {
  FormularioPrueba f({Producto(u"1"_s, u"Caña"_s), Stock(u"1"_s, u"5"_s, u"1"_s)});
  QVERIFY(f.mostrar());
  Pulsar(f, u"cmd_ProdGenerico"_s);
  Pulsar(f, u"cmd_salir"_s);
  QVERIFY(Visible(f, u"fr_Inicial"_s));
  QVERIFY(!Visible(f, u"fr_ProductoGenerico"_s));
  Pulsar(f, u"cmd_ProdElaborado"_s);
  QVERIFY(Visible(f, u"fr_ProductosElaborados"_s));
  Pulsar(f, u"cmd_SalirProdEla"_s);
  QVERIFY(Visible(f, u"fr_Inicial"_s));
  QVERIFY(!Visible(f, u"fr_ProductosElaborados"_s));
  // The captions of the start screen pass their touch on to their buttons.
  QTest::mouseClick(f.control<QLabel>(u"Label12"_s), Qt::LeftButton);
  QVERIFY(Visible(f, u"fr_ProductoGenerico"_s));
  Pulsar(f, u"cmd_salir"_s);
  Pulsar(f, u"cmd_Salir2"_s);
  QTRY_VERIFY(!f.forma().isVisible());
}

void TestFormularioModos::preciosEntregaElModoAlProgramaDePrecios() {
  FormularioPrueba f;
  const QString carpeta = f.inst().carpeta();
  QFile programa(carpeta + u"/Tarvelo.exe"_s);
  QVERIFY(programa.open(QIODevice::WriteOnly));
  programa.write("#!/bin/sh\n");
  programa.close();
  QFile anterior(carpeta + u"/ModoPrecio.txt"_s);
  QVERIFY(anterior.open(QIODevice::WriteOnly));
  anterior.write("1\r\nrestos de otra vez\r\n");
  anterior.close();
  f.dialogos().programaAbierto(u"Tarvelo"_s, 2);
  QVERIFY(f.mostrar());
  f.dialogos().olvidar();

  Pulsar(f, u"Boton_SM1"_s);
  QFile modo(carpeta + u"/ModoPrecio.txt"_s);
  QVERIFY(modo.open(QIODevice::ReadOnly));
  QCOMPARE(modo.readAll(), QByteArray("0"));
  QStringList llamadas;
  for (const DialogosGuion::Llamada& l : f.dialogos().llamadas()) {
    llamadas.append(l.tipo + u' ' + l.texto + u' ' + l.titulo);
  }
  const QString ruta = f.entorno().instalacion.rutaEnCarpeta(u"Tarvelo.exe"_s);
  QCOMPARE(llamadas, (QStringList{u"programaEnEjecucion Tarvelo "_s, u"cerrarPrograma Tarvelo "_s,
                                  u"programaEnEjecucion Tarvelo "_s, u"cerrarPrograma Tarvelo "_s,
                                  u"programaEnEjecucion Tarvelo "_s,
                                  u"iniciarPrograma "_s + ruta + u' ' +
                                      f.entorno().instalacion.carpetaPrograma}));
  QVERIFY(f.inst().erroresMostrados().isEmpty());
}

PRODUCTOS_TEST_MAIN(TestFormularioModos)
#include "test_formulario_modos.moc"
