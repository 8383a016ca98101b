#include <QtTest>
#include <QtWidgets>

#include "archivo_ini.h"
#include "color_vb.h"
#include "colorear.h"
#include "config_regional.h"
#include "controles.h"
#include "error_bd.h"
#include "filtro_decimal.h"
#include "frm_error.h"
#include "idiomas.h"
#include "instalacion_prueba.h"
#include "panel_obj_nuevo.h"
#include "paneles.h"
#include "permisos.h"
#include "utilidades.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// 1024×768, frames 3 deep: kind (F L E C K W T B), name, parent, x y w h, caption.
std::unique_ptr<QWidget> FormularioPrueba() {
  auto f = std::make_unique<QWidget>();
  f->setObjectName(u"frmPrueba"_s);
  f->setWindowTitle(u"Mantenimiento de productos"_s);
  f->setGeometry(0, 0, 1024, 768);
  f->setFont(QFont(f->font().family(), 12));
  const QString controles =
      u"F fr_ProductoGenerico frmPrueba 10 10 600 500 Producto\n"
      "L lbl_nombre fr_ProductoGenerico 20 40 120 30 Nombre\n"
      "E txt_nombre fr_ProductoGenerico 150 40 300 30 Caña de cerveza\n"
      "L lbl_coste fr_ProductoGenerico 20 80 120 30 Coste\n"
      "E txt_coste fr_ProductoGenerico 150 80 120 30 1,25\n"
      "C cbo_Medida fr_ProductoGenerico 300 80 150 30 \n"
      "K ch_Mostrar fr_ProductoGenerico 20 120 250 30 Mostrar en caja\n"
      "F fr_Importes fr_ProductoGenerico 20 160 560 320 Importes\n"
      "L lbl_precio fr_Importes 20 40 200 30 Precio de venta\n"
      "F fr_Detalle fr_Importes 20 80 520 220 Detalle\n"
      "F fr_Hondo fr_Detalle 20 80 230 120 Margen\n"
      "L lbl_margen fr_Hondo 10 40 210 30 Margen comercial\n"
      "F fr_Zoom2 fr_Detalle 270 80 230 120 \n"
      "W lstProductos frmPrueba 620 10 390 200 \n"
      "T grdIngredientes frmPrueba 620 220 390 290 \n"
      "F fr_SeparacionH1 frmPrueba 10 520 1000 8 \n"
      "F frBotones frmPrueba 10 540 1000 210 \n"
      "B cmd_nuevo frBotones 20 30 180 70 Nuevo\n"
      "B cmd_modificar frBotones 210 30 180 70 Modificar\n"
      "B cmd_eliminar frBotones 400 30 180 70 Eliminar\n"
      "B cmd_salir frBotones 590 30 180 70 Salir\n"
      "L lbl_eliminar frBotones 400 110 300 30 Borra el producto"_s;
  for (const QString& linea : controles.split(u'\n')) {
    const QStringList c = linea.split(u' ');
    const QString texto = linea.section(u' ', 7);
    QWidget* padre = c[2] == f->objectName() ? f.get() : f->findChild<QWidget*>(c[2]);
    const QChar k = c[0].at(0);
    QWidget* w = k == u'F'   ? new QGroupBox(texto, padre)
                 : k == u'L' ? new QLabel(texto, padre)
                 : k == u'E' ? new QLineEdit(texto, padre)
                 : k == u'C' ? new QComboBox(padre)
                 : k == u'K' ? new QCheckBox(texto, padre)
                 : k == u'W' ? new QListWidget(padre)
                 : k == u'T' ? static_cast<QWidget*>(new QTableWidget(1, 2, padre))
                             : new QPushButton(texto, padre);
    w->setObjectName(c[1]);
    w->setGeometry(c[3].toInt(), c[4].toInt(), c[5].toInt(), c[6].toInt());
  }
  auto* rejilla = f->findChild<QTableWidget*>();
  rejilla->setColumnWidth(0, 200);
  rejilla->setColumnWidth(1, 120);
  rejilla->setRowHeight(0, 40);
  return f;
}

// A light scheme, and a dark one whose frames on the form (element 0) are its text colour (5).
const QString kClaro =
    u"15785160|15124650|14464140|13803630|7915775|3939860|15138815|13166330|13168870|15780060|"
    "15134920|9198140|65535|7895295"_s;
const QString kNoche =
    u"14805995|5258290|3942440|5911110|2649800|14805995|2629150|3947610|3955260|5913660|3955290|"
    "2649800|56575|5263615"_s;

// "caption=translation|..." as rows of traducciones, the translation written as in SQL.
QString Traducciones(const QString& filas) {
  QStringList v;
  for (const QString& f : filas.split(u'|'))
    v.append(u"('%1', %2)"_s.arg(f.section(u'=', 0, 0), f.section(u'=', 1)));
  return u"insert into traducciones (caption, traduccion) values "_s + v.join(u", "_s);
}

// "descNumerica|colorFondo|imagen|nombre|colorMarca|codigo;...", "@" the photo folder.
TablaPanel Entradas(const QString& texto, const QString& fotos = {}) {
  TablaPanel t;
  for (const QString& entrada : texto.split(u';', Qt::SkipEmptyParts)) {
    QStringList c = entrada.split(u'|');
    c[2].replace(u"@"_s, fotos + QDir::separator());
    t.append({c[0], c[1], c[2], c[3], c[4], c[5]});
  }
  return t;
}
TablaPanel Tabla(int cuantas) {
  QString t;
  for (int i = 1; i <= cuantas; ++i)
    t += u"%1|16777215||Familia %1||%2;"_s.arg(i).arg(100 + i);
  return Entradas(t);
}

}  // namespace

// Form loading (translate, gather, scale, paint, restrict), amounts, the touch panel.
class TestPresentacion : public QObject {
  Q_OBJECT

  std::unique_ptr<InstalacionPrueba> inst_;
  std::unique_ptr<QWidget> f;
  std::unique_ptr<PanelObjNuevo> panel;

  InstalacionPrueba& inst() {
    if (!inst_) {
      inst_ = std::make_unique<InstalacionPrueba>();
      entorno().sesion.IdentificadorInstalacion = u"INST"_s;
      entorno().sesion.IdentificadorTerminal = u"CAJA1"_s;
      inst_->ejecutar({u"insert into colores values (1, %1, 'claro'), (2, %2, 'noche')"_s.arg(
          QString(kClaro).replace(u'|', u", "_s), QString(kNoche).replace(u'|', u", "_s))});
    }
    return *inst_;
  }
  Entorno& entorno() { return inst().entorno(); }
  QWidget* hijo(const QString& nombre) { return f->findChild<QWidget*>(nombre); }
  // The rows of a query: columns joined by "|", rows by "; ", null written "-".
  QString filas(const QString& consulta) {
    QStringList r;
    for (const QVariantList& fila : inst().filas(consulta)) {
      QStringList c;
      for (const QVariant& v : fila)
        c.append(v.isNull() ? u"-"_s : v.toString());
      r.append(c.join(u'|'));
    }
    return r.join(u"; "_s);
  }
  void terminal(const QString& idColor) {
    inst().ejecutar(
        {u"insert into opciones_terminal (identificador, empleado, id_color, "
         "ColorPredefinido, Tipo_Letra, Aumento_X, Aumento_Y) values ('CAJA1', 3, "_s +
         idColor + u", 0, null, 100, 50)"_s});
  }
  void capturar(QWidget* w, const QString& archivo) {
    w->show();
    QVERIFY(QTest::qWaitForWindowExposed(w));
    QVERIFY(w->grab().save(QDir::temp().filePath(u"productos-"_s + archivo)));
  }
  // A panel with a main area of 400×200: 3 columns and 2 rows of buttons.
  void mostrarPanel(const TablaPanel& tabla) {
    panel = std::make_unique<PanelObjNuevo>();
    panel->resize(400, 264);
    capturar(panel.get(), u"panel.png"_s);
    LlenarPanel(panel.get(), tabla, false);
  }
  QAbstractButton* boton(int n) {
    return panel->findChild<QAbstractButton*>(u"boton_"_s + QString::number(n));
  }
  void pulsar(const QString& nombre) {
    QTest::mouseClick(panel->findChild<QAbstractButton*>(nombre), Qt::LeftButton);
  }
  QString pagina() {
    QStringList r;
    for (int n = 1; boton(n); ++n)
      r << (boton(n)->isVisible() ? boton(n)->toolTip() : QString());
    r.removeAll(QString());
    return panel->findChild<QLabel*>(u"indicador_pagina"_s)->text() + u": "_s + r.join(u", "_s);
  }
  QColor color(int n, double x, double y) {
    const QImage imagen = boton(n)->grab().toImage();
    return imagen.pixelColor(int(imagen.width() * x), int(imagen.height() * y));
  }

 private slots:
  void init() { f = FormularioPrueba(); }
  void cleanup() {
    panel.reset();
    f.reset();
    inst_.reset();
    QLocale::setDefault(QLocale::c());
  }

  void traduceBotonesEtiquetasYMarcos() {
    inst().ejecutar(
        {Traducciones(u"Nuevo='New'|MODIFICAR=null|Eliminar=''|salir='Exit'|Producto="
                      "'Product'|Nombre='Name'|Mostrar en caja='Show'|='Vacío'"_s)});
    TraducirFormulario(entorno(), f.get());
    // Without a translation, the table's own caption as written there; check boxes stay.
    QStringList vistos;
    for (const QString& n :
         u"cmd_nuevo cmd_modificar cmd_eliminar cmd_salir fr_ProductoGenerico "
         "lbl_nombre lbl_coste fr_Zoom2"_s.split(u' '))
      vistos.append(CaptionDe(hijo(n)));
    QCOMPARE(vistos.join(u'|'), u"New|MODIFICAR|Eliminar|Exit|Product|Name|Coste|"_s);
    QCOMPARE(qobject_cast<QCheckBox*>(hijo(u"ch_Mostrar"_s))->text(), u"Mostrar en caja"_s);
    QCOMPARE(filas(u"select count(*) from traducciones"_s), u"8"_s);  // not gathered
  }

  void registraLosCaptionsUnaVezPorFormulario_data() {
    QTest::addColumn<QString>("idioma");  // the installation's value; empty: no row
    QTest::addColumn<bool>("registra");
    QTest::newRow("sin fila") << QString() << true;
    QTest::newRow("sin valor") << u"null"_s << true;
    QTest::newRow("castellano") << u"'CASTELLANO'"_s << true;
    QTest::newRow("otro idioma") << u"'INGLES'"_s << false;
  }
  void registraLosCaptionsUnaVezPorFormulario() {
    QFETCH(QString, idioma);
    QFETCH(bool, registra);
    if (!idioma.isEmpty())
      inst().ejecutar(
          {u"insert into opciones (identificador, idioma) values ('INST', %1)"_s.arg(idioma)});
    QCOMPARE(ObtenerIdioma(entorno()), registra ? u"CASTELLANO"_s : u"INGLES"_s);
    QCOMPARE(TextosExcluidos(entorno()), (QStringList{u"dul vore"_s, u"dulvore"_s}));
    entorno().instalacion.configuracion =
        ArchivoIni::DesdeTexto(u"[traduccion]\nexcluir=dulvore|Rúa do Porto\n"_s);
    PonerCaption(hijo(u"lbl_eliminar"_s), u"Rúa do Porto, 12"_s);
    inst().ejecutar({Traducciones(u"Salir='Exit'"_s)});
    AjustarFormulario(entorno(), f.get(), {1024, 768}, QSize(1024, 768));
    // The next load gathers nothing, even a caption that is new; another form is gathered.
    PonerCaption(hijo(u"lbl_coste"_s), u"Coste de compra"_s);
    AjustarFormulario(entorno(), f.get(), {1024, 768}, QSize(1024, 768));
    // Salir was there first, with its translation; the form's captions follow in its order.
    QCOMPARE(
        filas(u"select caption, traduccion from traducciones"_s),
        u"Salir|Exit"_s + (registra ? u"; Producto|-; Nombre|-; Coste|-; Importes|-; Precio de "
                                      "venta|-; Detalle|-; Margen|-; Margen comercial|-; "
                                      "Nuevo|-; Modificar|-; Eliminar|-"_s
                                    : QString()));
    QCOMPARE(filas(u"select nombreEjecutable from EjecutablesTraduccion"_s),
             registra ? u"productos-frmPrueba"_s : QString());
    f->setObjectName(u"frmBuscar"_s);
    QCOMPARE(DebeRegistrarCaptions(entorno(), f.get()), registra);
  }

  void filtraYRegistraLosCaptions() {
    // Short, an address, a design name, code, fourteen blanks, the brand and the excluded texts.
    const QString fuera =
        u"ab|info@dulvore.es|www.ej.es|Informe|Un FRAME|Label1|&Hecho|txt_nombre|chr$(13)|"
        "a              b|Bar DUL VORE S.L.|rúa do porto, 12"_s;
    const QStringList entran{u"abc"_s, u"12345"_s, u"WWW.EJEMPLO"_s, u"a             b"_s};
    for (const QString& caption : entran + fuera.split(u'|')) {
      QString lista = u"x#@#"_s;
      AnadirCaption(lista, caption, {u"dul vore"_s, u"Rúa do Porto"_s});
      QCOMPARE(lista, entran.contains(caption) ? u"x#@#"_s + caption + u"#@#"_s : u"x#@#"_s);
    }
    // Registered once, with quotes doubled, cut at 255.
    const QString largo = QString(254, u'a') + u"'"_s;
    RegistrarCaptions(entorno(),
                      u"L'Hospitalet#@#"_s + largo + u"bbb#@#Uno\r\ndos#@#L'Hospitalet"_s);
    QCOMPARE(filas(u"select caption from traducciones"_s),
             u"L'Hospitalet; "_s + largo + u"; Uno dos"_s);
  }

  void ajustaElFormularioALaPantalla_data() {
    QTest::addColumn<QSize>("pantalla");
    // A frame, an entry, a button; the grid's columns and row; the loose button's minimum; type.
    QTest::addColumn<QString>("medidas");  // 1280×1024: ×1.25 across, ×4/3 down
    QTest::newRow("mayor")
        << QSize(1280, 1024)
        << u"13,13 750x667; 188,53 375x40; 25,40 225x93; 250 150 53; 125x53; 15"_s;
    QTest::newRow("menor")
        << QSize(800, 600)
        << u"8,8 469x390; 117,31 235x24; 16,23 140x55; 156 94 31; 78x31; 8.8125"_s;
  }
  void ajustaElFormularioALaPantalla() {
    QFETCH(QSize, pantalla);
    QFETCH(QString, medidas);
    // A panel with nested layouts, and a button of the panel placed outside them.
    auto* capa = new QWidget(f.get());
    capa->setGeometry(0, 700, 9, 9);
    auto* enCapa = new QPushButton(u"En capa"_s, capa);
    auto* columna = new QVBoxLayout;
    (new QHBoxLayout(capa))->addLayout(columna);
    columna->addWidget(enCapa);
    auto* suelto = new QPushButton(capa);
    for (QPushButton* b : {enCapa, suelto})
      b->setMinimumSize(100, 40);
    AjustarFormulario(entorno(), f.get(), {1024, 768}, pantalla);
    QStringList vistas;
    for (const QString& n : {u"fr_ProductoGenerico"_s, u"txt_nombre"_s, u"cmd_nuevo"_s}) {
      const QRect g = hijo(n)->geometry();
      vistas.append(u"%1,%2 %3x%4"_s.arg(g.x()).arg(g.y()).arg(g.width()).arg(g.height()));
    }
    auto* grid = qobject_cast<QTableWidget*>(hijo(u"grdIngredientes"_s));
    vistas
        << u"%1 %2 %3"_s.arg(grid->columnWidth(0)).arg(grid->columnWidth(1)).arg(grid->rowHeight(0))
        << u"%1x%2"_s.arg(suelto->minimumWidth()).arg(suelto->minimumHeight())
        << QString::number(hijo(u"lbl_nombre"_s)->font().pointSizeF());
    QCOMPARE(vistas.join(u"; "_s), medidas);
    // The layout places its controls: their type is scaled, their sizes are the layout's.
    QCOMPARE(enCapa->font().pointSizeF(), hijo(u"lbl_nombre"_s)->font().pointSizeF());
    QCOMPARE(enCapa->minimumSize(), QSize(100, 40));
  }

  void pintaCadaControlPorSuClaseProfundidadYNombre_data() {
    QTest::addColumn<int>("esquema");
    QTest::addColumn<QString>("controles");
    QTest::addColumn<QString>("esperados");  // the elements of its background and text colours
    // Frames by depth and by name; buttons, entries, grids, labels and the rest by kind.
    QTest::newRow("claro") << 1
                           << u"fr_ProductoGenerico frBotones fr_Importes fr_Detalle fr_Hondo "
                              "fr_Zoom2 fr_SeparacionH1 cmd_nuevo txt_nombre cbo_Medida "
                              "lstProductos grdIngredientes lbl_margen ch_Mostrar"_s
                           << u"0 5 0 5 1 5 2 5 3 5 8 5 11 5 4 ? 6 5 6 5 6 5 8 ? 3 5 0 5"_s;
    // On a frame of the text colour (element 5, the same as 0), labels and frame captions take 2.
    QTest::newRow("noche") << 2
                           << u"fr_ProductoGenerico lbl_nombre ch_Mostrar lbl_eliminar lbl_precio "
                              "fr_Importes txt_nombre"_s
                           << u"0 2 0 2 0 2 0 2 1 0 1 0 6 0"_s;
  }
  void pintaCadaControlPorSuClaseProfundidadYNombre() {
    QFETCH(int, esquema);
    QFETCH(QString, controles);
    QFETCH(QString, esperados);
    terminal(QString::number(esquema));
    Colorear(entorno()).colorear(f.get());
    const QStringList elementos = (esquema == 1 ? kClaro : kNoche).split(u'|');
    QCOMPARE(ColorFondo(f.get()), QColor(Qt::white));
    QStringList vistos;
    for (const QString& nombre : controles.split(u' ')) {
      for (const QColor& color : {ColorFondo(hijo(nombre)), ColorTexto(hijo(nombre))}) {
        const int k = elementos.indexOf(QString::number(ValorDeColor(color)));
        vistos.append(k < 0 ? u"?"_s : QString::number(k));
      }
    }
    QCOMPARE(vistos.join(u' '), esperados);
    capturar(f.get(), u"colores_%1.png"_s.arg(esquema));  // the scheme shows on the screen
    QWidget* w = hijo(u"txt_coste"_s);
    const QColor visto = w->grab().toImage().pixelColor(w->width() - 8, w->height() - 8);
    QVERIFY2(qAbs(visto.lightness() - ColorFondo(w).lightness()) <= 16, qPrintable(visto.name()));
    FrmError error;  // painted like the forms
    PintarFrmError(entorno(), &error);
    QCOMPARE(ColorFondo(error.findChild<QWidget*>(u"cmdCerrar"_s)),
             ColorDesdeTexto(elementos.at(4)));
  }

  void elEsquemaDeLaTerminal_data() {
    QTest::addColumn<QString>("idColor");
    QTest::addColumn<QString>("fila");  // the terminal's id_color, ColorPredefinido, empleado
    QTest::newRow("existe") << u"2"_s << u"2|0|3"_s;
    QTest::newRow("no existe: el primero") << u"7"_s << u"1|-1|3"_s;
    QTest::newRow("nulo: el primero") << u"null"_s << u"1|-1|3"_s;
  }
  void elEsquemaDeLaTerminal() {
    QFETCH(QString, idColor);
    QFETCH(QString, fila);
    terminal(idColor);
    entorno().sesion.id_color = 7;
    const bool predefinido = fila != u"2|0|3"_s;
    QCOMPARE(Colorear(entorno()).esquemaTerminal(), predefinido ? kClaro : kNoche);
    QCOMPARE(filas(u"select id_color, ColorPredefinido, empleado from opciones_terminal"_s), fila);
    QCOMPARE(VariablesIniciales(entorno()).ColorPredefinido(), predefinido);
    QCOMPARE(entorno().sesion.id_color, qint16(predefinido ? 1 : 7));
  }

  void losColoresSeLeenConElRojoAbajoYSinEsquemaNoSePintaNada() {
    QCOMPARE(ColorDesdeTexto(u" 8421504 "_s), QColor(128, 128, 128));
    QCOMPARE(ValorDeColor(QColor(0x12, 0x34, 0x56)), qint64(0x563412));
    QVERIFY(!ColorDesdeTexto(QString()).isValid() && !ColorDesdeTexto(u"rojo"_s).isValid());
    // &H8000000F, the button face, however the 32 bits arrive.
    for (const qint64 cara : {0x8000000FLL, -2147483633LL})
      QCOMPARE(ColorDesdeValor(cara), QApplication::palette().color(QPalette::Button));
    terminal(u"1"_s);
    inst().ejecutar({u"delete from colores"_s});
    const QColor antes = ColorFondo(hijo(u"fr_Importes"_s));
    QVERIFY_THROWS_EXCEPTION(ErrorBD, Colorear(entorno()).colorear(f.get()));
    QCOMPARE(ColorFondo(hijo(u"fr_Importes"_s)), antes);
    QCOMPARE(filas(u"select id_color, ColorPredefinido from opciones_terminal"_s), u"1|0"_s);
    QVERIFY_THROWS_EXCEPTION(ErrorBD, ElementosEsquema(u"1|2|3|4|5|6|7|8|9|10|11|rojo"_s));
    // The error form keeps its colours, and nothing is logged: that would show it again.
    FrmError error;
    PintarFrmError(entorno(), &error);
    QVERIFY(!error.autoFillBackground() && inst().log().isEmpty());
  }

  void lasRestriccionesApaganBotonesYEsconden_data() {
    // "employee|greyed out|error": case-blind; other forms stay out; missing controls named.
    QTest::addColumn<QString>("caso");
    for (const char* caso : {"12|cmd_modificar cmd_eliminar|", "13|cmd_nuevo|", "7||",
                             "5|cmd_nuevo cmd_modificar|El formulario frmPrueba no tiene el "
                             "control cmd_borrado, lbl_no"})
      QTest::newRow(caso) << QString::fromUtf8(caso);
  }
  void lasRestriccionesApaganBotonesYEsconden() {
    QFETCH(QString, caso);
    const QString apagados = caso.section(u'|', 1, 1), error = caso.section(u'|', 2);
    inst().ejecutar(
        {u"insert into atributos values (1, 'frmPrueba', '', 'cmd_eliminar', '', "
         "'lbl_eliminar'), (2, 'frmPrueba', '', 'CMD_MODIFICAR', '', ''), (3, "
         "'frmPrueba', '', 'cmd_nuevo', '', null), (4, 'frmOtro', '', 'cmd_nuevo', '', "
         "null), (5, 'frmPrueba', '', 'cmd_borrado', '', null), (6, 'frmPrueba', '', "
         "'cmd_nuevo', '', 'lbl_no')"_s,
         u"insert into empleadosatributos values (12, 1), (12, 2), (12, 4), (13, 3), "
         "(5, 5), (5, 6), (5, 2)"_s});
    capturar(f.get(), u"permisos.png"_s);
    try {
      AplicarRestricciones(inst().conexion(), f.get(), caso.section(u'|', 0, 0).toInt());
      QVERIFY(error.isEmpty());
    } catch (const ErrorBD& e) {
      QCOMPARE(e.descripcion(), error);
    }
    QStringList vistos;  // greyed out, never hidden
    for (QPushButton* b : f->findChildren<QPushButton*>())
      vistos << (!b->isEnabled() && b->isVisible() ? b->objectName() : QString());
    vistos.removeAll(QString());
    QCOMPARE(vistos.join(u' '), apagados);
    QCOMPARE(hijo(u"lbl_eliminar"_s)->isVisible(), !apagados.contains(u"cmd_eliminar"_s));
  }

  void filtraLasTeclasDeImportes_data() {
    QTest::addColumn<QString>("separador");
    // "key text decimals result": "s" is the separator's key, "#" the separator, "_" no text.
    QTest::addColumn<QString>("caso");
    const QStringList casos{u"13 12 2 0"_s,   u"8 3#25 2 8"_s, u"48 _ 0 48"_s, u"s 12 2 s"_s,
                            u"s _ 2 0"_s,     u"s 12 0 0"_s,   u"s 1# 2 0"_s,  u"57 3#2 2 57"_s,
                            u"49 3#25 2 0"_s, u"52 1# 0 0"_s,  u"97 1 2 0"_s,  u"45 _ 2 0"_s,
                            u"43 1 2 0"_s,    u"32 1 2 0"_s,   u"3 1 2 0"_s,   u"22 1 2 0"_s};
    for (const QString& separador : {u","_s, u"."_s}) {
      for (const QString& caso : casos)
        QTest::addRow("%s %s", qPrintable(separador), qPrintable(caso)) << separador << caso;
    }
    // "." types the comma where the comma is the separator; "," is never a ".".
    for (const QString& caso : {u"46 1 2 44"_s, u"46 _ 2 0"_s, u"46 1,25 2 0"_s})
      QTest::addRow(", %s", qPrintable(caso)) << u","_s << caso;
    QTest::newRow(". 44 1 2 0") << u"."_s << u"44 1 2 0"_s;
  }
  void filtraLasTeclasDeImportes() {
    QFETCH(QString, separador);
    QFETCH(QString, caso);
    QStringList c = caso.split(u' ');
    for (QString& campo : c) {
      campo.replace(u"s"_s, QString::number(separador.at(0).unicode())).replace(u"#"_s, separador);
      campo.replace(u"_"_s, QString());
    }
    QCOMPARE(FiltrarTeclaDecimal(c[0].toInt(), c[1], c[2].toInt(), separador), c[3].toInt());
  }

  void leeYEscribeImportesComoElLocale_data() {
    QTest::addColumn<QLocale>("locale");
    // The separators; amounts written; amounts read (in the locale's format or with a point).
    QTest::addColumn<QString>("vistos");
    QTest::newRow("es") << QLocale(QLocale::Spanish, QLocale::Spain)
                        << u", . / ;  | 1.234,50 0,50 -0,50 1.234.567,89 1.000,00 0,00 | 1234.5 "
                           "-3.25 12 1234.5 no0 no0 no0 no0 no0 1.5 no0"_s;
    QTest::newRow("en") << QLocale(QLocale::English, QLocale::UnitedStates)
                        << u". , / ,  | 1,234.50 0.50 -0.50 1,234,567.89 1,000.00 0.00 | no0 no0 "
                           "no0 1234.5 no0 no0 no0 no0 no0 no0 1234.5"_s;
  }
  void leeYEscribeImportesComoElLocale() {
    QFETCH(QLocale, locale);
    QFETCH(QString, vistos);
    QLocale::setDefault(locale);
    QStringList r{SeparadorDecimal(), LeerLocale(15),  LeerLocale(29),
                  LeerLocale(12),     LeerLocale(999), u"|"_s};
    for (const double v : {1234.5, 0.5, -0.5, 1234567.891, 999.999, 0.0})
      r.append(FormatearImporte(v));
    r.append(u"|"_s);
    for (const QString& t :
         u"1.234,50|-3,25|12,| 1234.5 ||abc|1,2,3|1e5|1 000|1,5|1,234.5"_s.split(u'|')) {
      bool ok = false;
      const double v = ConvertirImporte(t, &ok);
      r.append((ok ? QString() : u"no"_s) + QString::number(v));
    }
    QCOMPARE(r.join(u' '), vistos);
  }

  void cuentaLasEntradasHastaSeisConLaFechaDeLaPrimera() {
    inst().ejecutar({u"insert into entradas1 values ('frmPrueba', '12', 5, '01/02/2020')"_s});
    for (const int empleado : {12, 12, 3})
      RegistrarEntrada(entorno(), f.get(), empleado);
    QCOMPARE(filas(u"select empleado, entradas, ultimafecha from entradas1 order by 1"_s),
             u"12|6|01/02/2020; 3|1|"_s + QDate::currentDate().toString(u"dd/MM/yyyy"_s));
    inst().ejecutar({u"drop table entradas1"_s});  // logged, and the form goes on
    RegistrarEntrada(entorno(), f.get(), 12);
    QVERIFY(inst().log().startsWith("Utilidades  2, Descripcion: "));
  }

  void pasaPaginasConLasFlechas_data() {
    QTest::addColumn<int>("entradas");
    QTest::addColumn<QString>("ultima");  // the last page
    QTest::newRow("14") << 14 << u"3 / 3: Familia 13, Familia 14"_s;
    QTest::newRow("12, páginas llenas") << 12
                                        << u"2 / 2: Familia 7, Familia 8, Familia 9, "
                                           "Familia 10, Familia 11, Familia 12"_s;
    QTest::newRow("1") << 1 << u"1 / 1: Familia 1"_s;
    QTest::newRow("ninguna") << 0 << u": "_s;
  }
  void pasaPaginasConLasFlechas() {
    QFETCH(int, entradas);
    QFETCH(QString, ultima);
    mostrarPanel(Tabla(8));
    panel->set_animacion(7);
    panel->set_usar_colores(true);
    LlenarPanel(panel.get(), Tabla(entradas), false);  // anew, without colours or animation
    QCOMPARE((QList<qint64>{panel->color_defecto(), panel->usar_colores(), panel->animacion()}),
             (QList<qint64>{16777215, false, 0}));
    const int paginas = panel->paginas();
    for (int i = 0; i < qMax(1, paginas); ++i) {
      QVERIFY(pagina().startsWith(entradas ? u"%1 / %2:"_s.arg(i + 1).arg(paginas) : u":"_s));
      QCOMPARE(panel->findChild<QWidget*>(u"flecha_izq"_s)->isEnabled(), i > 0);
      QCOMPARE(panel->findChild<QWidget*>(u"flecha_der"_s)->isEnabled(), i + 1 < paginas);
      pulsar(u"flecha_der"_s);  // on the last page it is off, and the page stays
    }
    QCOMPARE(pagina(), ultima);
    pulsar(u"flecha_izq"_s);
    QCOMPARE(panel->pagina(), entradas ? qMax(1, paginas - 1) : 0);
  }

  void tocarUnBotonDaSuNombreYSuCodigo() {
    mostrarPanel(Tabla(14));
    QString tocado;
    connect(panel.get(), &PanelObjNuevo::tocado, this, [&] {
      tocado += panel->property("nombre_seleccionado").toString() + u" "_s +
                panel->property("codigo_seleccionado").toString();
    });
    panel->set_animacion(1);  // the page slides in, and then only the new page is there
    pulsar(u"flecha_der"_s);  // paging is not a touch
    QWidget* hoja = boton(1)->parentWidget();
    QTRY_COMPARE(hoja->pos(), QPoint(0, 0));
    QTRY_COMPARE(hoja->parentWidget()->findChildren<QLabel*>().size(), 0);
    QTest::mouseClick(boton(2), Qt::LeftButton);
    QCOMPARE(tocado, u"Familia 8 108"_s);
    QCOMPARE(panel->indice_seleccionado(), 7);
    panel->limpiar();
    QCOMPARE(pagina(), u": "_s);
    QVERIFY(panel->objetos().isEmpty() && panel->codigo_seleccionado().isEmpty() &&
            panel->indice_seleccionado() == -1);
  }

  void pintaColoresMarcaEImagen() {
    QImage rojo(64, 64, QImage::Format_RGB32);
    rojo.fill(Qt::red);
    const QString foto = QDir::temp().filePath(u"productos-vino.png"_s);
    QVERIFY(rojo.save(foto));
    // Blue with a green mark; not a colour (the default); a picture; a picture that is missing.
    mostrarPanel(Entradas(u"1|16711680||A|65280|1;2|abc||B||2;3|16777215|"_s + foto +
                          u"|C||3;4|16777215|/no/esta.png|D||4"_s));
    QCOMPARE(color(1, 0.5, 0.1), QColor(Qt::white));  // colours only when asked to
    panel->set_color_defecto(65535);
    QCOMPARE(color(2, 0.5, 0.1), QColor(Qt::yellow));
    panel->set_usar_colores(true);
    QCOMPARE((QList<QColor>{color(1, 0.5, 0.1), color(2, 0.5, 0.1), color(4, 0.5, 0.1)}),
             (QList<QColor>{Qt::blue, Qt::yellow, Qt::white}));
    const auto esquina = [&](int n) {
      return boton(n)->grab().toImage().pixelColor(boton(n)->width() - 8, 5);
    };
    QCOMPARE((QList<QColor>{esquina(1), esquina(4)}), (QList<QColor>{Qt::green, Qt::white}));
    // The picture sits in the upper part, centred; the caption strip at the foot.
    QCOMPARE((QList<QColor>{color(3, 0.5, 0.25), color(4, 0.5, 0.25)}),
             (QList<QColor>{Qt::red, Qt::white}));
  }

  void cargaLasFamiliasYLosProductos() {
    const QString fotos = inst().carpeta() + u"/fotos"_s;
    QVERIFY(QDir().mkpath(fotos));
    for (const QString& nombre : {u"/bebidas.png"_s, u"/vino.png"_s})
      QVERIFY(QFile(fotos + nombre).open(QIODevice::WriteOnly));
    entorno().sesion.rutaFotos = fotos;
    inst().ejecutar(
        {u"insert into seccion (codigo, nombre, borrar, menu, orden, descNumerica, mostrarencaja, "
         "Color, Imagen) values ('1', 'Bebidas', 0, 0, 2, 10, 0, 255, 'bebidas.png'), "
         "('2', 'Cafés', 0, 0, 1, 20, -1, null, 'no_esta.png'), ('3', 'Postres', 0, 0, 3, 30, 0, "
         "0, null), ('6', 'Tapas', 0, 0, 4, 40, -1, '', ''), ('4', 'Borrada', -1, 0, 0, 0, 0, 1, "
         "null), ('5', 'Menú', 0, -1, 0, 0, 0, 1, null), ('', 'Vacía', 0, 0, 0, 0, 0, 1, null), "
         "(null, 'Nula', 0, 0, 0, 0, 0, 1, null)"_s,
         u"insert into productos (codigo, nombre, seccion, borrar, mostrarencaja, orden, "
         "DescNumerica, color, foto) values ('10', 'Vino tinto', '1', 0, 0, 2, 5, 65535, "
         "'vino.png'), ('11', 'Agua', '1', 0, 0, 1, 6, null, null), ('15', 'Zumo', '1', 0, 0, 3, "
         "7, 0, ''), ('12', 'Oculto', '1', 0, -1, 0, 1, 1, null), ('13', 'Borrado', '1', -1, 0, 0, "
         "1, 1, null), ('14', 'Café', '2', 0, 0, 0, 9, 16711680, 'no_esta.png')"_s,
         u"insert into menu_productos (seccion, producto, orden) values ('1', '10', 1), "
         "('1', '14', 2), ('1', '11', 3), ('1', '12', 3)"_s});
    // Live families that are not menus, in panel order; an empty picture name is the folder.
    TablasPanel tablas;
    CargarFamilias(entorno(), tablas);
    QCOMPARE(tablas.familias, Entradas(u"20|16777215||Cafés||2;10|255|@bebidas.png|Bebidas|65280|1;"
                                       "30|16777215|@|Postres|65280|3;40|16777215|@|Tapas||6"_s,
                                       fotos));
    // Products on show: of the family for 0 and 1 (table A), of its menu page 2 and 3 (B, C).
    const TablaPanel agua = Entradas(u"6|16777215||Agua||11"_s);
    const TablaPanel vino = Entradas(u"5|65535|@vino.png|Vino tinto||10"_s, fotos);
    CargarProductosPanel(entorno(), tablas, u"1"_s, 0);
    QCOMPARE(tablas.paginaA, agua + vino + Entradas(u"7|16777215|@|Zumo||15"_s, fotos));
    for (const qint16 menu : {1, 2, 3})
      CargarProductosPanel(entorno(), tablas, u"1"_s, menu);
    QCOMPARE((QList<TablaPanel>{tablas.paginaA, tablas.paginaB, tablas.paginaC}),
             (QList<TablaPanel>{vino, Entradas(u"9|16711680||Café||14"_s), agua}));
    QVERIFY_THROWS_EXCEPTION(ErrorBD, CargarProductosPanel(entorno(), tablas, u"O'N"_s, 1));
  }
};

QTEST_MAIN(TestPresentacion)
#include "test_presentacion.moc"
