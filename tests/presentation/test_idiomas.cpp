#include <QHBoxLayout>
#include <QHeaderView>
#include <QtTest>

#include "archivo_ini.h"
#include "colorear.h"
#include "controles.h"
#include "formulario_prueba.h"
#include "idiomas.h"
#include "instalacion_prueba.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QString Caption(QWidget* f, const QString& nombre) {
  QWidget* w = f->findChild<QWidget*>(nombre);
  if (!w)
    qFatal("no control %s", qPrintable(nombre));
  return CaptionDe(w);
}

QRect Geometria(QWidget* f, const QString& nombre) {
  return f->findChild<QWidget*>(nombre)->geometry();
}

void Guardar(QWidget* f, const QString& archivo) {
  f->show();
  if (!QTest::qWaitForWindowExposed(f))
    qFatal("form not shown");
  const QString ruta = QDir(prueba::CarpetaCapturas()).filePath(archivo);
  if (!f->grab().save(ruta))
    qFatal("no screenshot");
  qInfo("screenshot: %s", qPrintable(ruta));
}

// The captions of the test form that registration keeps, in the order of its controls.
const QStringList kCaptionsFormulario{u"Producto"_s, u"Nombre"_s,          u"Coste"_s,
                                      u"Importes"_s, u"Precio de venta"_s, u"Detalle"_s,
                                      u"Impuesto"_s, u"Margen"_s,          u"Margen comercial"_s,
                                      u"Ampliado"_s, u"Nuevo"_s,           u"Modificar"_s,
                                      u"Eliminar"_s, u"Salir"_s,           u"Borra el producto"_s};

}  // namespace

class TestIdiomas : public QObject {
  Q_OBJECT

 private:
  std::unique_ptr<InstalacionPrueba> inst;

  QStringList captionsRegistrados() {
    QStringList r;
    for (const QVariantList& fila : inst->filas(u"select caption from traducciones"_s)) {
      r.append(fila.at(0).toString());
    }
    return r;
  }
  void idioma(const QString& valor) {
    inst->ejecutar(
        {u"insert into opciones (identificador, idioma) values ('INST', "_s + valor + u")"_s});
  }

 private slots:
  void init() {
    inst = std::make_unique<InstalacionPrueba>();
    inst->entorno().sesion.IdentificadorInstalacion = u"INST"_s;
  }
  void cleanup() { inst.reset(); }

  void traduceLosBotonesEtiquetasYMarcos() {
    inst->ejecutar({
        u"insert into traducciones (caption, traduccion) values ('Nuevo', 'New')"_s,
        u"insert into traducciones (caption, traduccion) values ('MODIFICAR', null)"_s,
        u"insert into traducciones (caption, traduccion) values ('Eliminar', '')"_s,
        u"insert into traducciones (caption, traduccion) values ('salir', 'Exit')"_s,
        u"insert into traducciones (caption, traduccion) values ('Producto', 'Product')"_s,
        u"insert into traducciones (caption, traduccion) values ('Nombre', 'Name')"_s,
        u"insert into traducciones (caption, traduccion) values ('Margen comercial', "
        "'Profit margin')"_s,
        u"insert into traducciones (caption, traduccion) values ('Mostrar en caja', "
        "'Show on till')"_s,
    });
    inst->ejecutar({u"insert into traducciones (caption, traduccion) values ('', 'Vacío')"_s});
    auto f = prueba::FormularioPrueba();
    QPixmap foto(40, 40);
    foto.fill(Qt::red);
    auto* imagen = prueba::Etiqueta(f.get(), u"pict_imagen"_s, QString(), {0, 0, 40, 40});
    imagen->setPixmap(foto);
    TraducirFormulario(inst->entorno(), f.get());
    QVERIFY(!imagen->pixmap().isNull());
    QCOMPARE(Caption(f.get(), u"fr_Zoom2"_s), QString());
    QCOMPARE(Caption(f.get(), u"cmd_nuevo"_s), u"New"_s);
    // No translation: the table's own caption, as it is written there.
    QCOMPARE(Caption(f.get(), u"cmd_modificar"_s), u"MODIFICAR"_s);
    QCOMPARE(Caption(f.get(), u"cmd_eliminar"_s), u"Eliminar"_s);
    QCOMPARE(Caption(f.get(), u"cmd_salir"_s), u"Exit"_s);
    QCOMPARE(Caption(f.get(), u"fr_ProductoGenerico"_s), u"Product"_s);
    QCOMPARE(Caption(f.get(), u"lbl_nombre"_s), u"Name"_s);
    QCOMPARE(Caption(f.get(), u"lbl_margen"_s), u"Profit margin"_s);
    QCOMPARE(Caption(f.get(), u"lbl_coste"_s), u"Coste"_s);
    // Check boxes are not among the translated kinds.
    QCOMPARE(f->findChild<QCheckBox*>(u"ch_Mostrar"_s)->text(), u"Mostrar en caja"_s);
    // Translating is not gathering.
    QCOMPARE(inst->filas(u"select count(*) from traducciones"_s).at(0).at(0).toInt(), 9);
    Guardar(f.get(), u"traducido.png"_s);
  }

  void registraLosCaptionsUnaVezPorEjecutableYFormulario() {
    idioma(u"'CASTELLANO'"_s);
    inst->ejecutar({u"insert into traducciones (caption, traduccion) values ('Nuevo', 'New')"_s});
    auto f = prueba::FormularioPrueba();
    QVERIFY(DebeRegistrarCaptions(inst->entorno(), f.get()));
    AjustarFormulario(inst->entorno(), f.get(), {1024, 768}, QSize(1024, 768));
    QStringList esperados = kCaptionsFormulario;
    esperados.removeOne(u"Nuevo"_s);
    esperados.prepend(u"Nuevo"_s);  // it was there first
    QCOMPARE(captionsRegistrados(), esperados);
    QCOMPARE(inst->filas(u"select traduccion from traducciones where caption = 'Nuevo'"_s),
             (QList<QVariantList>{{u"New"_s}}));
    QCOMPARE(inst->filas(u"select nombreEjecutable from EjecutablesTraduccion"_s),
             (QList<QVariantList>{{u"productos-frmPrueba"_s}}));

    // The next load of the form gathers nothing, even a caption that is new.
    QVERIFY(!DebeRegistrarCaptions(inst->entorno(), f.get()));
    f->findChild<QLabel*>(u"lbl_coste"_s)->setText(u"Coste de compra"_s);
    AjustarFormulario(inst->entorno(), f.get(), {1024, 768}, QSize(1024, 768));
    QCOMPARE(captionsRegistrados(), esperados);
    QCOMPARE(inst->filas(u"select count(*) from EjecutablesTraduccion"_s).at(0).at(0).toInt(), 1);

    // Another form of the same executable is gathered on its own.
    auto otro = prueba::FormularioPrueba();
    otro->setObjectName(u"frmBuscar"_s);
    QVERIFY(DebeRegistrarCaptions(inst->entorno(), otro.get()));
  }

  void enOtroIdiomaNoSeRegistraNada() {
    idioma(u"'INGLES'"_s);
    QCOMPARE(ObtenerIdioma(inst->entorno()), u"INGLES"_s);
    auto f = prueba::FormularioPrueba();
    QVERIFY(!DebeRegistrarCaptions(inst->entorno(), f.get()));
    AjustarFormulario(inst->entorno(), f.get(), {1024, 768}, QSize(1024, 768));
    QVERIFY(captionsRegistrados().isEmpty());
    QVERIFY(inst->filas(u"select * from EjecutablesTraduccion"_s).isEmpty());
  }

  void elIdiomaEsCastellanoSinFilaOSinValor() {
    QCOMPARE(ObtenerIdioma(inst->entorno()), u"CASTELLANO"_s);
    idioma(u"null"_s);
    QCOMPARE(ObtenerIdioma(inst->entorno()), u"CASTELLANO"_s);
    auto f = prueba::FormularioPrueba();
    QVERIFY(DebeRegistrarCaptions(inst->entorno(), f.get()));
  }

  void elFiltroDejaFueraLoQueNoEsUnCaption() {
    const QStringList excluidos{u"dul vore"_s, u"dulvore"_s, u"Rúa do Porto"_s, u"986 44"_s};
    const QList<QPair<QString, bool>> casos{
        {u""_s, false},
        {u"ab"_s, false},
        {u"abc"_s, true},
        {u"12345"_s, true},  // numbers are captions like any other text
        {u"Formulario"_s, false},
        {u"Informe"_s, false},  // "form" in any letter case
        {u"Un FRAME"_s, false},
        {u"Label1"_s, false},
        {u"&Hecho"_s, false},
        {u"txt_nombre"_s, false},
        {u"chr$(13)"_s, false},
        {u"a"_s + QString(14, u' ') + u"b"_s, false},
        {u"a"_s + QString(13, u' ') + u"b"_s, true},
        {u"info@dulvore.es"_s, false},
        {u"www.ejemplo.es"_s, false},
        {u"WWW.EJEMPLO"_s, true},  // "www." only as written
        {u"Hostelería DUL VORE S.L."_s, false},
        {u"Dulvore"_s, false},
        {u"rúa do porto, 12"_s, false},
        {u"Tel. 986 44 12 12"_s, false},
        {u"Cerveza"_s, true},
    };
    for (const auto& [caption, entra] : casos) {
      QString lista = u"x#@#"_s;
      AnadirCaption(lista, caption, excluidos);
      QCOMPARE(lista, entra ? u"x#@#"_s + caption + u"#@#"_s : u"x#@#"_s);
    }
  }

  void losTextosExcluidosVienenDeLaConfiguracion() {
    QCOMPARE(TextosExcluidos(inst->entorno()), (QStringList{u"dul vore"_s, u"dulvore"_s}));
    inst->entorno().instalacion.configuracion =
        ArchivoIni::DesdeTexto(u"[traduccion]\nexcluir=dul vore|dulvore|Rúa do Porto|986 44\n"_s);
    QCOMPARE(TextosExcluidos(inst->entorno()),
             (QStringList{u"dul vore"_s, u"dulvore"_s, u"Rúa do Porto"_s, u"986 44"_s}));

    // The form's own captions go through the configured filter.
    idioma(u"'CASTELLANO'"_s);
    auto f = prueba::FormularioPrueba();
    f->findChild<QLabel*>(u"lbl_eliminar"_s)->setText(u"Rúa do Porto, 12"_s);
    AjustarFormulario(inst->entorno(), f.get(), {1024, 768}, QSize(1024, 768));
    QVERIFY(!captionsRegistrados().contains(u"Rúa do Porto, 12"_s));
    QVERIFY(captionsRegistrados().contains(u"Salir"_s));
  }

  void registraConApostrofosDobladosYCortaA255() {
    inst->ejecutar(
        {u"insert into traducciones (caption, traduccion) values ('Cerveza', "
         "'Beer')"_s});
    const QString largo = QString(254, u'a') + u"'"_s + QString(45, u'b');  // 300 characters
    const QString lista = u"L'Hospitalet#@#"_s + largo +
                          u"#@#Línea uno\r\nlínea dos#@#x#@#"
                          "Cerveza#@#L'Hospitalet#@#"_s;
    RegistrarCaptions(inst->entorno(), lista);
    RegistrarCaptions(inst->entorno(), lista);
    QCOMPARE(inst->filas(u"select caption, coalesce(traduccion, '(null)') from traducciones"_s),
             (QList<QVariantList>{{u"Cerveza"_s, u"Beer"_s},
                                  {u"L'Hospitalet"_s, u"(null)"_s},
                                  {QString(254, u'a') + u"'"_s, u"(null)"_s},
                                  {u"Línea uno línea dos"_s, u"(null)"_s}}));
  }

  void ajustaElFormularioAUnaPantallaMayor() {
    auto f = prueba::FormularioPrueba();
    ModificarTamano(f.get(), {1024, 768}, {1280, 1024});
    QCOMPARE(f->size(), QSize(1280, 1024));
    // Edges scale: 10→12.5, 610→762.5 across (×1.25); 10→13.3, 510→680 down (×4/3).
    QCOMPARE(Geometria(f.get(), u"fr_ProductoGenerico"_s), QRect(13, 13, 750, 667));
    QCOMPARE(Geometria(f.get(), u"txt_nombre"_s), QRect(188, 53, 375, 40));
    QCOMPARE(Geometria(f.get(), u"cmd_nuevo"_s), QRect(25, 40, 225, 93));
    QCOMPARE(Geometria(f.get(), u"cmd_modificar"_s).left(),
             Geometria(f.get(), u"cmd_nuevo"_s).right() + 1 + 13);
    auto* rejilla = f->findChild<QTableWidget*>(u"grdIngredientes"_s);
    QCOMPARE(rejilla->columnWidth(0), 250);
    QCOMPARE(rejilla->columnWidth(1), 150);
    QCOMPARE(rejilla->rowHeight(2), 53);
    QCOMPARE(f->findChild<QLabel*>(u"lbl_nombre"_s)->font().pointSizeF(), 15.0);
  }

  void losControlesDeUnaCapaLosColocaLaCapa() {
    auto f = prueba::FormularioPrueba();
    auto* suelto = prueba::Boton(f.get(), u"cmd_suelto"_s, u"Suelto"_s, {0, 700, 100, 40});
    suelto->setMinimumSize(100, 40);
    auto* panel = prueba::Crear<QWidget>(f.get(), u"pnlCapa"_s, {200, 700, 400, 60});
    auto* capa = new QHBoxLayout(panel);
    auto* enCapa = new QPushButton(u"En capa"_s, panel);
    enCapa->setObjectName(u"cmd_enCapa"_s);
    enCapa->setMinimumSize(100, 40);
    capa->addWidget(enCapa);
    ModificarTamano(f.get(), {1024, 768}, {1280, 1024});
    QCOMPARE(suelto->minimumSize(), QSize(125, 53));
    QCOMPARE(Geometria(f.get(), u"pnlCapa"_s), QRect(250, 933, 500, 80));
    QCOMPARE(enCapa->minimumSize(), QSize(100, 40));
    QCOMPARE(enCapa->font().pointSizeF(), 15.0);
  }

  void ajustaElFormularioAUnaPantallaMenor() {
    idioma(u"'CASTELLANO'"_s);
    inst->ejecutar(
        {u"insert into colores values (1, 15785160, 15124650, 14463116, 13779054, "
         "7915775, 3940372, 15138815, 13166330, 13168870, 15780060, 15134920, "
         "9198140, 65535, 7895295, 'claro')"_s});
    auto f = prueba::FormularioPrueba();
    Colorear(inst->entorno()).colorear(f.get());
    AjustarFormulario(inst->entorno(), f.get(), {1024, 768}, QSize(800, 600));
    QCOMPARE(f->size(), QSize(800, 600));
    QCOMPARE(Geometria(f.get(), u"fr_ProductoGenerico"_s), QRect(8, 8, 469, 390));
    QCOMPARE(Geometria(f.get(), u"txt_nombre"_s), QRect(117, 31, 235, 24));
    QCOMPARE(Geometria(f.get(), u"fr_Zoom2"_s), QRect(211, 63, 180, 93));
    auto* rejilla = f->findChild<QTableWidget*>(u"grdIngredientes"_s);
    QCOMPARE(rejilla->columnWidth(0), 156);
    QCOMPARE(rejilla->columnWidth(1), 94);
    QCOMPARE(rejilla->rowHeight(0), 31);
    QCOMPARE(f->findChild<QLabel*>(u"lbl_nombre"_s)->font().pointSizeF(), 12 * 0.78125 * 0.94);
    // Scaling and gathering in the same load.
    QCOMPARE(captionsRegistrados(), kCaptionsFormulario);
    Guardar(f.get(), u"escalado_800x600.png"_s);

    auto grande = prueba::FormularioPrueba();
    Colorear(inst->entorno()).colorear(grande.get());
    ModificarTamano(grande.get(), {1024, 768}, {1280, 1024});
    Guardar(grande.get(), u"escalado_1280x1024.png"_s);
  }

  void elRegistroMasivoSaltaSusListas() {
    inst->entorno().instalacion.configuracion = ArchivoIni::DesdeTexto(
        u"[traduccion]\nnuncaTraducir=Hostelería Dul Vore S.L.|Juan      |\n"_s);
    inst->ejecutar(
        {u"insert into traducciones (caption, traduccion) values ('Salir', "
         "'Exit')"_s});
    auto f = prueba::FormularioPrueba();
    QWidget* botones = f->findChild<QWidget*>(u"frBotones"_s);
    prueba::Marco(f.get(), u"Frame1"_s, u"Datos del local"_s, {0, 0, 10, 10});
    prueba::Marco(f.get(), u"FrEmp"_s, u"Empleados"_s, {0, 0, 10, 10});
    prueba::Etiqueta(botones, u"lblEmpleadoImagen"_s, u"Foto del empleado"_s, {0, 0, 10, 10});
    prueba::Etiqueta(botones, u"lbl_explicacion2"_s, u"Explicación"_s, {0, 0, 10, 10});
    prueba::Etiqueta(botones, u"lblBienvenida"_s, u"* * Bienvenido * *"_s, {0, 0, 10, 10});
    prueba::Etiqueta(botones, u"lblPorcentaje"_s, u"%"_s, {0, 0, 10, 10});
    prueba::Boton(botones, u"cmd30"_s, u"30"_s, {0, 0, 10, 10});
    prueba::Boton(botones, u"cmd31"_s, u"31"_s, {0, 0, 10, 10});
    prueba::Etiqueta(botones, u"lblMarca"_s, u"Hostelería Dul Vore S.L."_s, {0, 0, 10, 10});
    prueba::Etiqueta(botones, u"lblEmpleado1"_s, u"Juan      "_s, {0, 0, 10, 10});
    prueba::Etiqueta(botones, u"lblEmpleado2"_s, u"Juan"_s, {0, 0, 10, 10});
    prueba::Etiqueta(botones, u"lblTienda"_s, u"L'Hospitalet"_s, {0, 0, 10, 10});
    RegistrarTodosLosCaptions(inst->entorno(), f.get());

    QStringList esperados = kCaptionsFormulario;
    esperados.removeOne(u"Salir"_s);
    esperados.prepend(u"Salir"_s);
    esperados.append({u"31"_s, u"Juan"_s, u"L'Hospitalet"_s});
    QCOMPARE(captionsRegistrados(), esperados);
    QCOMPARE(inst->filas(u"select identificador, NombreControl, caption, traduccion, software "
                         "from traducciones where caption = 'Margen comercial'"_s),
             (QList<QVariantList>{
                 {u"frmPrueba"_s, u"lbl_margen"_s, u"Margen comercial"_s, u""_s, u"productos"_s}}));
    QCOMPARE(inst->filas(u"select count(*) from traducciones where traduccion is null"_s)
                 .at(0)
                 .at(0)
                 .toInt(),
             0);
    QCOMPARE(inst->filas(u"select traduccion, coalesce(NombreControl, '(null)') from "
                         "traducciones where caption = 'Salir'"_s),
             (QList<QVariantList>{{u"Exit"_s, u"(null)"_s}}));
    // Running it again adds nothing.
    RegistrarTodosLosCaptions(inst->entorno(), f.get());
    QCOMPARE(captionsRegistrados(), esperados);
  }
};

QTEST_MAIN(TestIdiomas)
#include "test_idiomas.moc"
