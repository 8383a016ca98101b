#include <QHBoxLayout>
#include <QScrollArea>
#include <QSignalSpy>
#include <QTabWidget>
#include <QtTest>

#include "archivo_ini.h"
#include "color_vb.h"
#include "colorear.h"
#include "controles.h"
#include "error_bd.h"
#include "formulario_prueba.h"
#include "frm_error.h"
#include "idiomas.h"
#include "instalacion_prueba.h"
#include "permisos.h"

using namespace Qt::Literals::StringLiterals;
using Filas = QList<QVariantList>;
using prueba::Crear;

namespace {

// A light scheme, and a dark one whose frames on the form (element 0) are its text colour (5).
const QList<qint64> kClaro{15785160, 15124650, 14464140, 13803630, 7915775, 3939860, 15138815,
                           13166330, 13168870, 15780060, 15134920, 9198140, 65535,   7895295};
const QList<qint64> kNoche{14805995, 5258290, 3942440, 5911110, 2649800, 14805995, 2629150,
                           3947610,  3955260, 5913660, 3955290, 2649800, 56575,    5263615};

QString Texto(const QList<qint64>& esquema, const QString& separador = u"|"_s) {
  QStringList t;
  for (qint64 v : esquema)
    t.append(QString::number(v));
  return t.join(separador);
}

QString Traduccion(const QString& caption, const QString& traduccion) {
  return u"insert into traducciones (caption, traduccion) values ('%1', %2)"_s.arg(caption,
                                                                                   traduccion);
}

// The test form's captions that gathering keeps, in the order of its controls.
const QStringList kCaptions{u"Producto"_s,         u"Nombre"_s,   u"Coste"_s,    u"Importes"_s,
                            u"Precio de venta"_s,  u"Detalle"_s,  u"Impuesto"_s, u"Margen"_s,
                            u"Margen comercial"_s, u"Ampliado"_s, u"Nuevo"_s,    u"Modificar"_s,
                            u"Eliminar"_s,         u"Salir"_s};

}  // namespace

// The services every form goes through as it loads: translation and gathering of its captions,
// scaling to the screen, the terminal's colour scheme and the employee's permissions.
class TestFormularios : public QObject {
  Q_OBJECT

  std::unique_ptr<InstalacionPrueba> inst;
  std::unique_ptr<QWidget> f;

  Entorno& entorno() { return inst->entorno(); }
  QWidget* hijo(const QString& nombre) {
    QWidget* w = f->findChild<QWidget*>(nombre);
    if (!w)
      qFatal("no control %s", qPrintable(nombre));
    return w;
  }
  QStringList captions() {
    QStringList r;
    for (const QVariantList& fila : inst->filas(u"select caption from traducciones"_s))
      r.append(fila.at(0).toString());
    return r;
  }
  void terminal(const QString& idColor) {
    inst->ejecutar(
        {u"insert into opciones_terminal (identificador, empleado, id_color, "
         "ColorPredefinido, Tipo_Letra, Aumento_X, Aumento_Y) values ('CAJA1', 3, "_s +
         idColor + u", 0, null, 100, 50)"_s});
  }

 private slots:
  void init() {
    inst = std::make_unique<InstalacionPrueba>();
    entorno().sesion.IdentificadorInstalacion = u"INST"_s;
    entorno().sesion.IdentificadorTerminal = u"CAJA1"_s;
    inst->ejecutar({u"insert into colores values (1, %1, 'claro')"_s.arg(Texto(kClaro, u", "_s)),
                    u"insert into colores values (2, %1, 'noche')"_s.arg(Texto(kNoche, u", "_s))});
    f = prueba::FormularioPrueba();
  }
  void cleanup() {
    f.reset();
    inst.reset();
  }

  void traduceBotonesEtiquetasYMarcos() {
    inst->ejecutar({Traduccion(u"Nuevo"_s, u"'New'"_s), Traduccion(u"MODIFICAR"_s, u"null"_s),
                    Traduccion(u"Eliminar"_s, u"''"_s), Traduccion(u"salir"_s, u"'Exit'"_s),
                    Traduccion(u"Producto"_s, u"'Product'"_s), Traduccion(u"Nombre"_s, u"'Name'"_s),
                    Traduccion(u"Mostrar en caja"_s, u"'Show'"_s), Traduccion({}, u"'Vacío'"_s)});
    TraducirFormulario(entorno(), f.get());
    // Without a translation, the table's own caption as it is written there.
    QStringList vistos;
    for (const QString& n :
         {u"cmd_nuevo"_s, u"cmd_modificar"_s, u"cmd_eliminar"_s, u"cmd_salir"_s,
          u"fr_ProductoGenerico"_s, u"lbl_nombre"_s, u"lbl_coste"_s, u"fr_Zoom2"_s})
      vistos.append(CaptionDe(hijo(n)));
    QCOMPARE(vistos, (QStringList{u"New"_s, u"MODIFICAR"_s, u"Eliminar"_s, u"Exit"_s, u"Product"_s,
                                  u"Name"_s, u"Coste"_s, QString()}));
    QCOMPARE(qobject_cast<QCheckBox*>(hijo(u"ch_Mostrar"_s))->text(), u"Mostrar en caja"_s);
    QCOMPARE(captions().size(), 8);  // translating is not gathering
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
      inst->ejecutar(
          {u"insert into opciones (identificador, idioma) values ('INST', "_s + idioma + u")"_s});
    QCOMPARE(ObtenerIdioma(entorno()), registra ? u"CASTELLANO"_s : u"INGLES"_s);
    QCOMPARE(TextosExcluidos(entorno()), (QStringList{u"dul vore"_s, u"dulvore"_s}));
    entorno().instalacion.configuracion =
        ArchivoIni::DesdeTexto(u"[traduccion]\nexcluir=dulvore|Rúa do Porto\n"_s);
    PonerCaption(hijo(u"lbl_eliminar"_s), u"Rúa do Porto, 12"_s);
    inst->ejecutar({Traduccion(u"Nuevo"_s, u"'New'"_s)});
    AjustarFormulario(entorno(), f.get(), {1024, 768}, QSize(1024, 768));
    QStringList esperados = kCaptions;
    esperados.move(esperados.indexOf(u"Nuevo"_s), 0);  // it was there first, with its translation
    QCOMPARE(captions(), registra ? esperados : QStringList{u"Nuevo"_s});
    QCOMPARE(inst->filas(u"select traduccion from traducciones where caption = 'Nuevo'"_s),
             Filas{{u"New"_s}});
    QCOMPARE(inst->filas(u"select nombreEjecutable from EjecutablesTraduccion"_s),
             registra ? Filas{{u"productos-frmPrueba"_s}} : Filas{});
    // The next load gathers nothing, even a caption that is new; another form is gathered.
    PonerCaption(hijo(u"lbl_coste"_s), u"Coste de compra"_s);
    AjustarFormulario(entorno(), f.get(), {1024, 768}, QSize(1024, 768));
    QCOMPARE(captions().size(), registra ? esperados.size() : 1);
    f->setObjectName(u"frmBuscar"_s);
    QCOMPARE(DebeRegistrarCaptions(entorno(), f.get()), registra);
  }

  void filtraLoQueNoEsUnCaption() {
    const QStringList entran{u"abc"_s, u"12345"_s, u"WWW.EJEMPLO"_s,
                             u"a"_s + QString(13, u' ') + u"b"_s};
    const QStringList fuera{QString(),
                            u"ab"_s,
                            u"Informe"_s,
                            u"Un FRAME"_s,
                            u"Label1"_s,
                            u"&Hecho"_s,
                            u"txt_nombre"_s,
                            u"chr$(13)"_s,
                            u"info@dulvore.es"_s,
                            u"www.ej.es"_s,
                            u"Bar DUL VORE S.L."_s,
                            u"rúa do porto, 12"_s,
                            u"a"_s + QString(14, u' ') + u"b"_s};
    for (const QString& caption : entran + fuera) {
      QString lista = u"x#@#"_s;
      AnadirCaption(lista, caption, {u"dul vore"_s, u"Rúa do Porto"_s});
      QCOMPARE(lista, entran.contains(caption) ? u"x#@#"_s + caption + u"#@#"_s : u"x#@#"_s);
    }
  }

  void registraConApostrofosDobladosYCortaA255() {
    inst->ejecutar({Traduccion(u"Cerveza"_s, u"'Beer'"_s)});
    const QString largo = QString(254, u'a') + u"'"_s + QString(45, u'b');
    const QString lista =
        u"L'Hospitalet#@#"_s + largo + u"#@#Línea uno\r\nlínea dos#@#x#@#Cerveza#@#L'Hospitalet"_s;
    RegistrarCaptions(entorno(), lista);
    RegistrarCaptions(entorno(), lista);
    QCOMPARE(inst->filas(u"select caption, coalesce(traduccion, '-') from traducciones"_s),
             (Filas{{u"Cerveza"_s, u"Beer"_s},
                    {u"L'Hospitalet"_s, u"-"_s},
                    {QString(254, u'a') + u"'"_s, u"-"_s},
                    {u"Línea uno línea dos"_s, u"-"_s}}));
  }

  void elRegistroMasivoSaltaSusListas() {
    entorno().instalacion.configuracion = ArchivoIni::DesdeTexto(
        u"[traduccion]\nnuncaTraducir=Hostelería Dul Vore S.L.|Juan      |\n"_s);
    inst->ejecutar({Traduccion(u"Salir"_s, u"'Exit'"_s)});
    Crear<QGroupBox>(f.get(), u"Frame1"_s, {}, u"Datos del local"_s);
    Crear<QGroupBox>(f.get(), u"FrEmp"_s, {}, u"Empleados"_s);
    const QStringList etiquetas{u"lblEmpleadoImagen"_s,
                                u"lbl_explicacion2"_s,
                                u"lblA"_s,
                                u"lblB"_s,
                                u"cmd30"_s,
                                u"cmd31"_s,
                                u"lblC"_s,
                                u"lblD"_s,
                                u"lblE"_s};
    const QStringList textos{u"Foto del empleado"_s,
                             u"Explicación"_s,
                             u"* * Bienvenido * *"_s,
                             u"Hostelería Dul Vore S.L."_s,
                             u"30"_s,
                             u"31"_s,
                             u"Juan      "_s,
                             u"Juan"_s,
                             u"L'Hospitalet"_s};
    for (int i = 0; i < etiquetas.size(); ++i) {
      if (etiquetas.at(i).startsWith(u"cmd"_s))
        Crear<QPushButton>(f.get(), etiquetas.at(i), {}, textos.at(i));
      else
        Crear<QLabel>(f.get(), etiquetas.at(i), {}, textos.at(i));
    }
    RegistrarTodosLosCaptions(entorno(), f.get());
    RegistrarTodosLosCaptions(entorno(), f.get());  // adds nothing more
    QStringList esperados =
        kCaptions + QStringList{u"Borra el producto"_s, u"31"_s, u"Juan"_s, u"L'Hospitalet"_s};
    esperados.move(esperados.indexOf(u"Salir"_s), 0);
    QCOMPARE(captions(), esperados);
    QCOMPARE(
        inst->filas(u"select coalesce(identificador, '-'), coalesce(NombreControl, '-'), "
                    "caption, traduccion, coalesce(software, '-') from traducciones where "
                    "caption in ('Margen comercial', 'Salir')"_s),
        (Filas{{u"-"_s, u"-"_s, u"Salir"_s, u"Exit"_s, u"-"_s},
               {u"frmPrueba"_s, u"lbl_margen"_s, u"Margen comercial"_s, u""_s, u"productos"_s}}));
  }

  void ajustaElFormularioALaPantalla_data() {
    QTest::addColumn<QSize>("pantalla");
    QTest::addColumn<QList<QRect>>("geometrias");  // fr_ProductoGenerico, txt_nombre, cmd_nuevo
    QTest::addColumn<QList<int>>("medidas");       // grid column widths and row height, cmd_salir's
                                                   // minimum width and height
    QTest::addColumn<double>("puntos");
    // 1280×1024: ×1.25 across, ×4/3 down; 800×600: ×0.78125 both ways, type a little less.
    QTest::newRow("mayor") << QSize(1280, 1024)
                           << QList<QRect>{{13, 13, 750, 667},
                                           {188, 53, 375, 40},
                                           {25, 40, 225, 93}}
                           << QList<int>{250, 150, 53, 125, 53} << 15.0;
    QTest::newRow("menor") << QSize(800, 600)
                           << QList<QRect>{{8, 8, 469, 390}, {117, 31, 235, 24}, {16, 23, 140, 55}}
                           << QList<int>{156, 94, 31, 78, 31} << 12 * 0.78125 * 0.94;
  }
  void ajustaElFormularioALaPantalla() {
    QFETCH(QSize, pantalla);
    QFETCH(QList<QRect>, geometrias);
    QFETCH(QList<int>, medidas);
    QFETCH(double, puntos);
    hijo(u"cmd_salir"_s)->setMinimumSize(100, 40);
    auto* panel = Crear<QWidget>(f.get(), u"pnlCapa"_s, {200, 700, 400, 60});
    auto* enCapa = new QPushButton(u"En capa"_s, panel);
    enCapa->setMinimumSize(100, 40);
    (new QHBoxLayout(panel))->addWidget(enCapa);
    AjustarFormulario(entorno(), f.get(), {1024, 768}, pantalla);
    QCOMPARE(f->size(), pantalla);
    QCOMPARE((QList<QRect>{hijo(u"fr_ProductoGenerico"_s)->geometry(),
                           hijo(u"txt_nombre"_s)->geometry(), hijo(u"cmd_nuevo"_s)->geometry()}),
             geometrias);
    auto* grid = qobject_cast<QTableWidget*>(hijo(u"grdIngredientes"_s));
    const QSize minimo = hijo(u"cmd_salir"_s)->minimumSize();
    QCOMPARE((QList<int>{grid->columnWidth(0), grid->columnWidth(1), grid->rowHeight(2),
                         minimo.width(), minimo.height()}),
             medidas);
    QCOMPARE(enCapa->minimumSize(), QSize(100, 40));  // the layout places it
    QCOMPARE(enCapa->font().pointSizeF(), puntos);
    QCOMPARE(hijo(u"lbl_nombre"_s)->font().pointSizeF(), puntos);
    prueba::Capturar(f.get(), u"escalado_%1.png"_s.arg(pantalla.width()));
  }

  void recorreLosControlesComoLosFormularios() {
    QWidget w;
    auto* pestanas = Crear<QTabWidget>(&w, u"tabDatos"_s, {});
    auto* pagina = Crear<QWidget>(nullptr, u"pagGeneral"_s, {});
    Crear<QLabel>(pagina, u"lblGeneral"_s, {}, u"General"_s);
    pestanas->addTab(pagina, u"General"_s);
    auto* area = Crear<QScrollArea>(&w, u"scrLista"_s, {});
    area->setWidget(Crear<QWidget>(nullptr, u"pnlLista"_s, {}));
    Crear<QPushButton>(area->widget(), u"cmdLista"_s, {});
    Crear<QComboBox>(&w, u"cboEditable"_s, {})->setEditable(true);
    for (const bool contenedor : {false, true}) {
      auto* propio = Crear<QListWidget>(&w, u"pnl%1"_s.arg(contenedor), {});
      propio->setProperty("contenedor", contenedor);
      Crear<QPushButton>(propio, u"cmdDentro%1"_s.arg(contenedor), {});
    }
    QStringList nombres;
    for (const QWidget* c : ControlesDe(&w))
      nombres.append(c->objectName());
    QCOMPARE(nombres.join(u' '),
             u"tabDatos pagGeneral lblGeneral scrLista pnlLista cmdLista cboEditable pnl0 pnl1 "
             "cmdDentro1"_s);
    QCOMPARE(ContenedorDe(area->widget()->findChild<QWidget*>(), &w), area->widget());
    QCOMPARE(ContenedorDe(pagina, &w), pestanas);
    EscalarLetras(&w, 0.1);
    QCOMPARE(w.findChild<QWidget*>(u"lblGeneral"_s)->font().pointSizeF(), 7.0);  // the least
  }

  void pintaCadaControlPorSuClaseProfundidadYNombre_data() {
    QTest::addColumn<int>("esquema");
    QTest::addColumn<QString>("controles");
    QTest::addColumn<QString>("fondos");  // elements of the scheme, "-" not looked at
    QTest::addColumn<QString>("textos");
    // Frames by depth and by name; buttons, entries, grids, labels and the rest by kind.
    QTest::newRow("claro") << 1
                           << u"fr_ProductoGenerico frBotones fr_Importes fr_Detalle fr_Hondo "
                              "fr_Zoom2 fr_SeparacionH1 cmd_nuevo txt_nombre cbo_Medida "
                              "lstProductos grdIngredientes lbl_margen ch_Mostrar"_s
                           << u"0 0 1 2 3 8 11 4 6 6 6 8 - 0"_s << u"5 - 5 - - - - - 5 5 5 - 5 5"_s;
    // On a frame of the text colour, labels and frame captions take element 2.
    QTest::newRow("noche") << 2
                           << u"fr_ProductoGenerico lbl_nombre ch_Mostrar lbl_eliminar lbl_precio "
                              "fr_Importes txt_nombre"_s
                           << u"5 - - - - - -"_s << u"2 2 2 2 5 5 5"_s;
  }
  void pintaCadaControlPorSuClaseProfundidadYNombre() {
    QFETCH(int, esquema);
    QFETCH(QString, controles);
    QFETCH(QString, fondos);
    QFETCH(QString, textos);
    terminal(QString::number(esquema));
    Colorear(entorno()).colorear(f.get());
    const QList<qint64>& e = esquema == 1 ? kClaro : kNoche;
    const auto color = [&](const QString& elemento) {
      return elemento == u"-"_s ? QColor() : ColorDesdeValor(e.at(elemento.toInt()));
    };
    QCOMPARE(ColorFondo(f.get()), QColor(Qt::white));
    const QStringList nombres = controles.split(u' ');
    for (int i = 0; i < nombres.size(); ++i) {
      const QColor fondo = color(fondos.split(u' ').at(i)), texto = color(textos.split(u' ').at(i));
      QVERIFY2(!fondo.isValid() || ColorFondo(hijo(nombres.at(i))) == fondo,
               qPrintable(nombres.at(i)));
      QVERIFY2(!texto.isValid() || ColorTexto(hijo(nombres.at(i))) == texto,
               qPrintable(nombres.at(i)));
    }
  }

  void losColoresSeVenEnLaPantalla() {
    terminal(u"1"_s);
    Colorear(entorno()).colorear(f.get());
    prueba::Capturar(f.get(), u"colores_claro.png"_s);
    QCOMPARE(ColorTexto(hijo(u"cmd_nuevo"_s)), QApplication::palette().buttonText().color());
    for (const QString& control :
         {u"fr_Hondo"_s, u"cmd_nuevo"_s, u"txt_coste"_s, u"ch_Mostrar"_s}) {
      QWidget* w = hijo(control);
      const QColor visto = w->grab().toImage().pixelColor(w->width() - 8, w->height() - 8);
      const QColor fondo = ColorFondo(w);
      QVERIFY2(qAbs(visto.red() - fondo.red()) + qAbs(visto.green() - fondo.green()) +
                       qAbs(visto.blue() - fondo.blue()) <=
                   12,
               qPrintable(control + u" "_s + visto.name()));
    }
    FrmError error;
    PintarFrmError(entorno(), &error);
    QCOMPARE(ColorTexto(error.findChild<QWidget*>(u"lblError"_s)), ColorDesdeValor(kClaro.at(5)));
    QCOMPARE(ColorFondo(error.findChild<QWidget*>(u"cmdCerrar"_s)), ColorDesdeValor(kClaro.at(4)));
  }

  void elEsquemaDeLaTerminal_data() {
    QTest::addColumn<QString>("idColor");
    QTest::addColumn<QList<qint64>>("esquema");
    QTest::addColumn<Filas>("fila");  // the terminal's id_color, ColorPredefinido, empleado
    QTest::newRow("existe") << u"2"_s << kNoche << Filas{{2, 0, 3}};
    QTest::newRow("no existe") << u"7"_s << kClaro << Filas{{1, -1, 3}};
    QTest::newRow("nulo") << u"null"_s << kClaro << Filas{{1, -1, 3}};
  }
  void elEsquemaDeLaTerminal() {
    QFETCH(QString, idColor);
    QFETCH(QList<qint64>, esquema);
    QFETCH(Filas, fila);
    terminal(idColor);
    entorno().sesion.id_color = 7;
    QCOMPARE(Colorear(entorno()).esquemaTerminal(), Texto(esquema));
    QCOMPARE(inst->filas(u"select id_color, ColorPredefinido, empleado from opciones_terminal"_s),
             fila);
    const bool predefinido = fila.at(0).at(1).toInt() == -1;
    QCOMPARE(VariablesIniciales(entorno()).ColorPredefinido(), predefinido);
    QCOMPARE(entorno().sesion.id_color, qint16(predefinido ? 1 : 7));
  }

  void sinEsquemaNoSePintaNada() {
    terminal(u"1"_s);
    inst->ejecutar({u"delete from colores"_s});
    Colorear colorear(entorno());
    QCOMPARE(colorear.ObtenerColor(1), QString());
    const QColor antes = ColorFondo(hijo(u"fr_Importes"_s));
    QVERIFY_THROWS_EXCEPTION(ErrorBD, colorear.colorear(f.get()));
    QCOMPARE(ColorFondo(hijo(u"fr_Importes"_s)), antes);
    QVERIFY_THROWS_EXCEPTION(ErrorBD, colorear.get_ColorFoco());
    QCOMPARE(inst->filas(u"select id_color, ColorPredefinido from opciones_terminal"_s),
             (Filas{{1, 0}}));
    QVERIFY_THROWS_EXCEPTION(ErrorBD, ElementosEsquema(u"1|2|3"_s));
    QVERIFY_THROWS_EXCEPTION(ErrorBD, ElementosEsquema(u"1|2|3|4|5|6|7|8|9|10|11|rojo"_s));
    // The error form keeps its colours, and nothing is logged: that would show it again.
    FrmError error;
    PintarFrmError(entorno(), &error);
    QVERIFY(!error.autoFillBackground());
    QVERIFY(inst->log().isEmpty());
  }

  void daLasOpcionesDeLaTerminal() {
    terminal(u"2"_s);
    inst->ejecutar(
        {u"insert into opciones (identificador, tipo_programa) values ('X', 'COPAS')"_s});
    Colorear c(entorno());
    QCOMPARE(c.ObtenerColor(9), Texto(kClaro));  // the first when the id names none
    QCOMPARE((QStringList{c.get_ColorZoom1(), c.get_ColorZoom2(), c.get_ColorZoom3(),
                          c.get_ColorZoom4(), c.get_ColorFoco(), c.get_ColorResalto()}),
             Texto(kNoche.mid(7, 4) + kNoche.mid(12)).split(u'|'));
    VariablesIniciales v(entorno());
    QCOMPARE(v.Color(), Texto(kNoche));
    QCOMPARE(v.tipo_programa(), u"COPAS"_s);
    // No type step: as designed. The cycling options start again after their last value.
    QCOMPARE(
        (QList<int>{v.id_color(), v.Tipo_Letra(), v.Aumento_X(), v.Aumento_Y(), v.SiguienteID(1),
                    v.SiguienteID(2), VariablesIniciales::SiguienteTipo_Letra(1),
                    VariablesIniciales::SiguienteTipo_Letra(3),
                    VariablesIniciales::SiguienteAumento(600, 1024),
                    VariablesIniciales::SiguienteAumento(650, 1024)}),
        (QList<int>{2, 1, 100, 50, 2, 1, 2, 1, 650, 0}));
    AplicarTipoLetra(f.get(), 3);
    AplicarTipoLetra(f.get(), 2);  // from the design's size, not from the last step
    QCOMPARE(hijo(u"lbl_nombre"_s)->font().pointSizeF(), 12 * 1.2);
    QWidget* panel = hijo(u"lstProductos"_s);
    AplicarAumento(panel, 100, 0);
    AplicarAumento(panel, 50, 30);
    QCOMPARE(panel->geometry(), QRect(620, 10, 440, 230));
  }

  void lasRestriccionesApaganBotonesYEsconden_data() {
    QTest::addColumn<int>("empleado");
    QTest::addColumn<QStringList>("apagados");
    QTest::addColumn<QString>("error");
    // Names ignore letter case; another form's rows and another employee's stay out.
    QTest::newRow("12") << 12 << QStringList{u"cmd_modificar"_s, u"cmd_eliminar"_s} << QString();
    QTest::newRow("13") << 13 << QStringList{u"cmd_nuevo"_s} << QString();
    QTest::newRow("sin restricciones") << 7 << QStringList{} << QString();
    // Controls the form lacks are named, and the rest are applied all the same.
    QTest::newRow("controles que faltan")
        << 5 << QStringList{u"cmd_nuevo"_s, u"cmd_modificar"_s}
        << u"El formulario frmPrueba no tiene el control cmd_borrado, lbl_no"_s;
  }
  void lasRestriccionesApaganBotonesYEsconden() {
    QFETCH(int, empleado);
    QFETCH(QStringList, apagados);
    QFETCH(QString, error);
    inst->ejecutar({
        u"insert into atributos values (1, 'frmPrueba', '', 'cmd_eliminar', '', 'lbl_eliminar')"_s,
        u"insert into atributos values (2, 'frmPrueba', '', 'CMD_MODIFICAR', '', '')"_s,
        u"insert into atributos values (3, 'frmPrueba', '', 'cmd_nuevo', '', null)"_s,
        u"insert into atributos values (4, 'frmOtro', '', 'cmd_nuevo', '', null)"_s,
        u"insert into atributos values (5, 'frmPrueba', '', 'cmd_borrado', '', null)"_s,
        u"insert into atributos values (6, 'frmPrueba', '', 'cmd_nuevo', '', 'lbl_no')"_s,
        u"insert into empleadosatributos values (12, 1), (12, 2), (12, 4), (13, 3), (5, 5), "
        "(5, 6), (5, 2)"_s,
    });
    f->show();
    QVERIFY(QTest::qWaitForWindowExposed(f.get()));
    QSignalSpy pulsado(qobject_cast<QPushButton*>(hijo(u"cmd_eliminar"_s)), &QPushButton::clicked);
    try {
      AplicarRestricciones(inst->conexion(), f.get(), empleado);
      QVERIFY(error.isEmpty());
    } catch (const ErrorBD& e) {
      QCOMPARE(e.descripcion(), error);
    }
    for (QPushButton* b : f->findChildren<QPushButton*>()) {
      QCOMPARE(b->isEnabled(), !apagados.contains(b->objectName()));
      QVERIFY(b->isVisible());  // greyed, not hidden
    }
    const bool eliminar = apagados.contains(u"cmd_eliminar"_s);
    QCOMPARE(hijo(u"lbl_eliminar"_s)->isVisible(), !eliminar);
    QTest::mouseClick(hijo(u"cmd_eliminar"_s), Qt::LeftButton);
    QCOMPARE(pulsado.count(), eliminar ? 0 : 1);
  }

  void generaLosAtributosConCodigosSeguidos() {
    // Help, exit and record navigation are always allowed; a button without caption is not one.
    for (const QString& n :
         {u"cmdSalirBis"_s, u"CMD_AYUDA"_s, u"cmd_Ayuda2"_s, u"cmdprimero"_s, u"cmdAnteriorGen"_s,
          u"cmdSiguiente"_s, u"cmdULTIMO"_s, u"cmd_x"_s, u"cmd_buscar"_s})
      Crear<QPushButton>(hijo(u"frBotones"_s), n, {}, n == u"cmd_x"_s ? QString() : u"Buscar"_s);
    inst->ejecutar(
        {u"insert into atributos (codigo, form, boton) values (1, 'frmPrueba', "
         "'cmd_modificar')"_s});
    GenerarAtributos(inst->conexion(), f.get());
    const QString consulta =
        u"select codigo, boton, coalesce(form_desc, '-'), boton_desc, "
        "coalesce(boton_auxiliar, '-') from atributos where form = "
        "'frmPrueba' order by codigo"_s;
    const QString titulo = u"Mantenimiento de productos"_s;
    const auto fila = [&](int codigo, const QString& boton, const QString& caption) {
      return QVariantList{codigo, boton, titulo, caption, u"-"_s};
    };
    const Filas esperados{{1, u"cmd_modificar"_s, u"-"_s, u""_s, u"-"_s},
                          fila(2, u"cmd_nuevo"_s, u"Nuevo"_s),
                          fila(3, u"cmd_eliminar"_s, u"Eliminar"_s),
                          fila(4, u"cmd_buscar"_s, u"Buscar"_s)};
    QCOMPARE(inst->filas(consulta), esperados);
    QCOMPARE(SiguienteCodigoAtributo(inst->conexion()), 5);
    // Another run registers only what is new; a quote in a caption breaks its statement.
    Crear<QPushButton>(hijo(u"frBotones"_s), u"cmd_imprimir"_s, {}, u"Imprimir"_s);
    Crear<QPushButton>(hijo(u"frBotones"_s), u"cmd_dia"_s, {}, u"Menú d'avui"_s);
    QVERIFY_THROWS_EXCEPTION(ErrorBD, GenerarAtributos(inst->conexion(), f.get()));
    QCOMPARE(inst->filas(consulta), esperados + Filas{fila(5, u"cmd_imprimir"_s, u"Imprimir"_s)});
  }
};

QTEST_MAIN(TestFormularios)
#include "test_formularios.moc"
