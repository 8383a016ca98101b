#include <QCheckBox>
#include <QHeaderView>
#include <QImage>
#include <QListWidget>
#include <QScrollBar>
#include <QtTest>

#include "color_vb.h"
#include "colorear.h"
#include "controles.h"
#include "error_bd.h"
#include "formulario_prueba.h"
#include "frm_error.h"
#include "instalacion_prueba.h"

using namespace Qt::Literals::StringLiterals;

namespace {

qint64 Valor(int r, int g, int b) {
  return r | (g << 8) | (b << 16);
}

// A light scheme, and a dark one whose frames on the form take the text colour.
const QList<qint64> kClaro{Valor(200, 220, 240), Valor(170, 200, 230), Valor(140, 180, 220),
                           Valor(110, 160, 210), Valor(255, 200, 120), Valor(20, 30, 60),
                           Valor(255, 255, 230), Valor(250, 230, 200), Valor(230, 240, 200),
                           Valor(220, 200, 240), Valor(200, 240, 230), Valor(60, 90, 140),
                           Valor(255, 255, 0),   Valor(255, 120, 120)};
const QList<qint64> kNoche{Valor(235, 235, 225), Valor(50, 60, 80),   Valor(40, 40, 60),
                           Valor(70, 50, 90),    Valor(200, 110, 40), Valor(235, 235, 225),
                           Valor(30, 30, 40),    Valor(90, 60, 60),   Valor(60, 90, 60),
                           Valor(60, 60, 90),    Valor(90, 90, 60),   Valor(200, 110, 40),
                           Valor(255, 220, 0),   Valor(255, 80, 80)};

QString Texto(const QList<qint64>& esquema) {
  QStringList t;
  for (qint64 v : esquema)
    t.append(QString::number(v));
  return t.join(u'|');
}

QString InsertarEsquema(int id, const QList<qint64>& esquema) {
  return u"insert into colores values (%1, %2, 'esquema %1')"_s.arg(id).arg(
      Texto(esquema).replace(u'|', u", "_s));
}

QColor E(const QList<qint64>& esquema, int k) {
  return ColorDesdeValor(esquema.at(k));
}

// Close to the colour: the style shades buttons and frames a little.
bool Parecido(const QColor& a, const QColor& b, int tolerancia = 24) {
  return qAbs(a.red() - b.red()) <= tolerancia && qAbs(a.green() - b.green()) <= tolerancia &&
         qAbs(a.blue() - b.blue()) <= tolerancia;
}

QColor Pixel(QWidget* w, QPoint p) {
  return w->grab().toImage().pixelColor(p);
}

#define VERIFICAR_PARECIDO(a, b, tolerancia)                                              \
  do {                                                                                    \
    const QColor a_ = (a), b_ = (b);                                                      \
    QVERIFY2(Parecido(a_, b_, tolerancia), qPrintable(a_.name() + u" / "_s + b_.name())); \
  } while (false)

template <typename T = QWidget>
T* Hijo(QWidget* f, const QString& nombre) {
  T* w = f->findChild<T*>(nombre);
  if (!w)
    qFatal("no control %s", qPrintable(nombre));
  return w;
}

}  // namespace

class TestColorear : public QObject {
  Q_OBJECT

 private:
  std::unique_ptr<InstalacionPrueba> inst;

  void terminal(const QString& idColor, const QString& predefinido = u"0"_s) {
    inst->ejecutar(
        {u"insert into opciones_terminal (identificador, empleado, id_color, "
         "ColorPredefinido, Tipo_Letra, Aumento_X, Aumento_Y) values ('CAJA1', 3, "_s +
         idColor + u", "_s + predefinido + u", null, 100, 50)"_s});
  }
  std::unique_ptr<QWidget> pintado(const QString& captura) {
    auto f = prueba::FormularioPrueba();
    f->show();
    if (!QTest::qWaitForWindowExposed(f.get()))
      qFatal("form not shown");
    Colorear(inst->entorno()).colorear(f.get());
    const QString ruta = QDir(prueba::CarpetaCapturas()).filePath(captura);
    if (!f->grab().save(ruta))
      qFatal("no screenshot");
    qInfo("screenshot: %s", qPrintable(ruta));
    return f;
  }

 private slots:
  void init() {
    inst = std::make_unique<InstalacionPrueba>();
    inst->entorno().sesion.IdentificadorTerminal = u"CAJA1"_s;
    inst->ejecutar({InsertarEsquema(1, kClaro), InsertarEsquema(2, kNoche)});
  }
  void cleanup() { inst.reset(); }

  void pintaCadaControlPorSuClaseProfundidadYNombre() {
    terminal(u"1"_s);
    auto f = pintado(u"colores_claro.png"_s);
    QCOMPARE(ColorFondo(f.get()), QColor(Qt::white));
    // Frames by depth, and the name rule over the depth.
    QCOMPARE(ColorFondo(Hijo(f.get(), u"fr_ProductoGenerico"_s)), E(kClaro, 0));
    QCOMPARE(ColorFondo(Hijo(f.get(), u"frBotones"_s)), E(kClaro, 0));
    QCOMPARE(ColorFondo(Hijo(f.get(), u"fr_Importes"_s)), E(kClaro, 1));
    QCOMPARE(ColorFondo(Hijo(f.get(), u"fr_Detalle"_s)), E(kClaro, 2));
    QCOMPARE(ColorFondo(Hijo(f.get(), u"fr_Hondo"_s)), E(kClaro, 3));
    QCOMPARE(ColorFondo(Hijo(f.get(), u"fr_Zoom2"_s)), E(kClaro, 8));
    QCOMPARE(ColorFondo(Hijo(f.get(), u"fr_SeparacionH1"_s)), E(kClaro, 11));
    // Buttons keep their text colour; entries, labels and the rest take the scheme's.
    QCOMPARE(ColorFondo(Hijo(f.get(), u"cmd_nuevo"_s)), E(kClaro, 4));
    QCOMPARE(ColorTexto(Hijo(f.get(), u"cmd_nuevo"_s)),
             QApplication::palette().buttonText().color());
    for (const QString& n : {u"txt_nombre"_s, u"cbo_Medida"_s, u"lstProductos"_s}) {
      QCOMPARE(ColorFondo(Hijo(f.get(), n)), E(kClaro, 6));
      QCOMPARE(ColorTexto(Hijo(f.get(), n)), E(kClaro, 5));
    }
    auto* lista = Hijo<QListWidget>(f.get(), u"lstProductos"_s);
    QCOMPARE(lista->verticalScrollBar()->palette().color(QPalette::Button),
             QApplication::palette().color(QPalette::Button));
    QCOMPARE(ColorFondo(Hijo(f.get(), u"grdIngredientes"_s)), E(kClaro, 8));
    QCOMPARE(Hijo<QTableWidget>(f.get(), u"grdIngredientes"_s)->palette().color(QPalette::Base),
             QApplication::palette().color(QPalette::Base));
    QCOMPARE(ColorTexto(Hijo(f.get(), u"lbl_margen"_s)), E(kClaro, 5));
    QCOMPARE(ColorFondo(Hijo(f.get(), u"ch_Mostrar"_s)), E(kClaro, 0));
    QCOMPARE(ColorTexto(Hijo(f.get(), u"ch_Mostrar"_s)), E(kClaro, 5));

    // And the colours really show on the screen.
    QWidget* hondo = Hijo(f.get(), u"fr_Hondo"_s);
    VERIFICAR_PARECIDO(Pixel(hondo, {hondo->width() - 6, hondo->height() - 6}), E(kClaro, 3), 4);
    QWidget* zoom = Hijo(f.get(), u"fr_Zoom2"_s);
    VERIFICAR_PARECIDO(Pixel(zoom, {zoom->width() - 6, zoom->height() - 6}), E(kClaro, 8), 4);
    QWidget* mostrar = Hijo(f.get(), u"ch_Mostrar"_s);
    VERIFICAR_PARECIDO(Pixel(mostrar, {mostrar->width() - 4, 4}), E(kClaro, 0), 4);
    QVERIFY(!mostrar->autoFillBackground());
    QWidget* nuevo = Hijo(f.get(), u"cmd_nuevo"_s);
    QCOMPARE(Pixel(nuevo, {12, nuevo->height() / 2}), E(kClaro, 4));
    QWidget* coste = Hijo(f.get(), u"txt_coste"_s);
    VERIFICAR_PARECIDO(Pixel(coste, {coste->width() - 8, coste->height() / 2}), E(kClaro, 6), 4);
    auto* rejilla = Hijo<QTableWidget>(f.get(), u"grdIngredientes"_s);
    QHeaderView* cabecera = rejilla->horizontalHeader();
    VERIFICAR_PARECIDO(Pixel(cabecera, {cabecera->width() - 8, cabecera->height() / 2}),
                       E(kClaro, 8), 24);
  }

  void lasEtiquetasSobreElColorDelTextoTomanElElemento2() {
    terminal(u"2"_s);
    auto f = pintado(u"colores_noche.png"_s);
    // fr_ProductoGenerico is on the form: element 0, which this scheme makes the text colour.
    QCOMPARE(ColorFondo(Hijo(f.get(), u"fr_ProductoGenerico"_s)), E(kNoche, 5));
    QCOMPARE(ColorTexto(Hijo(f.get(), u"lbl_nombre"_s)), E(kNoche, 2));
    QCOMPARE(ColorTexto(Hijo(f.get(), u"ch_Mostrar"_s)), E(kNoche, 2));
    QCOMPARE(ColorTexto(Hijo(f.get(), u"lbl_eliminar"_s)), E(kNoche, 2));
    // One frame deeper the background is dark, and the text keeps element 5.
    QCOMPARE(ColorTexto(Hijo(f.get(), u"lbl_precio"_s)), E(kNoche, 5));
    QCOMPARE(ColorTexto(Hijo(f.get(), u"lbl_zoom"_s)), E(kNoche, 5));
    // Entries are not labels: their text stays element 5 on their own background.
    QCOMPARE(ColorTexto(Hijo(f.get(), u"txt_nombre"_s)), E(kNoche, 5));
    // Frame captions: readable on the frame's own background.
    QCOMPARE(ColorTexto(Hijo(f.get(), u"fr_ProductoGenerico"_s)), E(kNoche, 2));
    QCOMPARE(ColorTexto(Hijo(f.get(), u"fr_Importes"_s)), E(kNoche, 5));
  }

  void unEsquemaQueNoExisteTomaElPrimeroYLoDejaEnLaTerminal() {
    terminal(u"7"_s);
    inst->entorno().sesion.id_color = 7;
    auto f = pintado(u"colores_desconocido.png"_s);
    QCOMPARE(ColorFondo(Hijo(f.get(), u"fr_Importes"_s)), E(kClaro, 1));
    QCOMPARE(inst->filas(u"select id_color, ColorPredefinido, empleado from opciones_terminal"_s),
             (QList<QVariantList>{{1, -1, 3}}));
    QCOMPARE(inst->entorno().sesion.id_color, qint16(1));
    QCOMPARE(VariablesIniciales(inst->entorno()).ColorPredefinido(), true);
  }

  void unEsquemaQueExisteNoTocaLaTerminal() {
    terminal(u"2"_s);
    QCOMPARE(Colorear(inst->entorno()).esquemaTerminal(), Texto(kNoche));
    QCOMPARE(inst->filas(u"select id_color, ColorPredefinido from opciones_terminal"_s),
             (QList<QVariantList>{{2, 0}}));
  }

  void sinEsquemasNoSePintaNada() {
    terminal(u"1"_s);
    inst->ejecutar({u"delete from colores"_s});
    Colorear colorear(inst->entorno());
    QCOMPARE(colorear.ObtenerColor(1), QString());
    QCOMPARE(colorear.esquemaTerminal(), QString());
    auto f = prueba::FormularioPrueba();
    const QColor antes = ColorFondo(Hijo(f.get(), u"fr_Importes"_s));
    QVERIFY_THROWS_EXCEPTION(ErrorBD, colorear.colorear(f.get()));
    QCOMPARE(ColorFondo(Hijo(f.get(), u"fr_Importes"_s)), antes);
    QVERIFY(!f->autoFillBackground());
    QVERIFY_THROWS_EXCEPTION(ErrorBD, colorear.get_ColorFoco());
    // The terminal's row is left as it was: there is no scheme to move it to.
    QCOMPARE(inst->filas(u"select id_color, ColorPredefinido from opciones_terminal"_s),
             (QList<QVariantList>{{1, 0}}));
  }

  void unEsquemaCortoOConLetrasEsUnError() {
    QVERIFY_THROWS_EXCEPTION(ErrorBD, ElementosEsquema(u"1|2|3"_s));
    QVERIFY_THROWS_EXCEPTION(ErrorBD, ElementosEsquema(u"1|2|3|4|5|6|7|8|9|10|11|rojo|13|14"_s));
    QCOMPARE(ElementosEsquema(Texto(kClaro)).at(13), E(kClaro, 13));
  }

  void daLosColoresSueltosYLasOpcionesDeLaTerminal() {
    terminal(u"2"_s);
    Colorear colorear(inst->entorno());
    QCOMPARE(colorear.ObtenerColor(1), Texto(kClaro));
    QCOMPARE(colorear.get_ColorZoom1(), QString::number(kNoche.at(7)));
    QCOMPARE(colorear.get_ColorZoom2(), QString::number(kNoche.at(8)));
    QCOMPARE(colorear.get_ColorZoom3(), QString::number(kNoche.at(9)));
    QCOMPARE(colorear.get_ColorZoom4(), QString::number(kNoche.at(10)));
    QCOMPARE(colorear.get_ColorFoco(), QString::number(kNoche.at(12)));
    QCOMPARE(colorear.get_ColorResalto(), QString::number(kNoche.at(13)));

    inst->ejecutar(
        {u"insert into opciones (identificador, tipo_programa) values ('X', 'COPAS')"_s});
    VariablesIniciales v(inst->entorno());
    QCOMPARE(v.id_color(), qint16(2));
    QCOMPARE(v.Color(), Texto(kNoche));
    QCOMPARE(v.ColorPredefinido(), false);
    QCOMPARE(v.Tipo_Letra(), qint16(1));  // null: as designed
    QCOMPARE(v.Aumento_X(), 100);
    QCOMPARE(v.Aumento_Y(), 50);
    QCOMPARE(v.tipo_programa(), u"COPAS"_s);
    QCOMPARE(v.SiguienteID(1), qint16(2));
    QCOMPARE(v.SiguienteID(2), qint16(1));  // after the last scheme, back to the first
    inst->ejecutar({u"update opciones_terminal set Tipo_Letra = 3"_s});
    QCOMPARE(v.Tipo_Letra(), qint16(3));
  }

  void lasOpcionesCiclicasVuelvenAEmpezar() {
    QCOMPARE(VariablesIniciales::SiguienteTipo_Letra(1), qint16(2));
    QCOMPARE(VariablesIniciales::SiguienteTipo_Letra(2), qint16(3));
    QCOMPARE(VariablesIniciales::SiguienteTipo_Letra(3), qint16(1));
    QCOMPARE(VariablesIniciales::SiguienteTipo_Letra(0), qint16(1));
    // 1024 pixels leave room for enlargements up to 674.
    QCOMPARE(VariablesIniciales::SiguienteAumento(0, 1024), 50);
    QCOMPARE(VariablesIniciales::SiguienteAumento(600, 1024), 650);
    QCOMPARE(VariablesIniciales::SiguienteAumento(650, 1024), 0);
    QCOMPARE(VariablesIniciales::SiguienteAumento(0, 300), 0);
  }

  void elTipoDeLetraYElAumentoNoSeAcumulan() {
    auto f = prueba::FormularioPrueba();
    QWidget* etiqueta = Hijo(f.get(), u"lbl_nombre"_s);
    QWidget* rejilla = Hijo(f.get(), u"grdIngredientes"_s);
    AplicarTipoLetra(f.get(), 3);
    QCOMPARE(etiqueta->font().pointSizeF(), 12 * 1.4);
    QCOMPARE(rejilla->font().pointSizeF(), 12 * 1.4);
    AplicarTipoLetra(f.get(), 2);
    QCOMPARE(etiqueta->font().pointSizeF(), 12 * 1.2);
    AplicarTipoLetra(f.get(), 1);
    QCOMPARE(etiqueta->font().pointSizeF(), 12.0);
    QCOMPARE(f->font().pointSizeF(), 12.0);

    QWidget* panel = Hijo(f.get(), u"lstProductos"_s);
    AplicarAumento(panel, 50, 30);
    QCOMPARE(panel->geometry(), QRect(620, 10, 440, 230));
    AplicarAumento(panel, 100, 0);
    QCOMPARE(panel->size(), QSize(490, 200));
    AplicarAumento(panel, 0, 0);
    QCOMPARE(panel->size(), QSize(390, 200));
  }

  void elFormularioDeErroresSePintaComoLosDemas() {
    terminal(u"1"_s);
    FrmError error;
    PintarFrmError(inst->entorno(), &error);
    QCOMPARE(ColorFondo(&error), QColor(Qt::white));
    QCOMPARE(ColorTexto(Hijo(&error, u"lblError"_s)), E(kClaro, 5));
    QCOMPARE(ColorFondo(Hijo(&error, u"cmdCerrar"_s)), E(kClaro, 4));
    error.mostrarError(u"Utilidades  2"_s, u"no such table: entradas1"_s);
    QVERIFY(QTest::qWaitForWindowExposed(&error));
    QVERIFY(error.grab().save(QDir(prueba::CarpetaCapturas()).filePath(u"frm_error.png"_s)));

    // Without a scheme the error form keeps its colours and nothing is logged.
    inst->ejecutar({u"delete from colores"_s});
    FrmError otro;
    PintarFrmError(inst->entorno(), &otro);
    QVERIFY(!otro.autoFillBackground());
    QVERIFY(inst->log().isEmpty());
  }
};

QTEST_MAIN(TestColorear)
#include "test_colorear.moc"
