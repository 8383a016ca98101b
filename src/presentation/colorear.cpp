#include "colorear.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QHeaderView>
#include <QPalette>
#include <QScrollBar>
#include <QTableView>
#include <QWidget>

#include "color_vb.h"
#include "controles.h"
#include "entorno.h"
#include "error_bd.h"
#include "frm_error.h"
#include "recordset.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kColumnasEsquema = 14;
const QColor kBlanco = ColorDesdeValor(0xFFFFFF);

// The runtime's own messages for a missing element and a non-numeric one.
const QString kFueraDeIntervalo = u"El subíndice está fuera del intervalo"_s;
const QString kTiposDistintos = u"No coinciden los tipos"_s;

bool MismoColor(const QColor& a, const QColor& b) {
  return ValorDeColor(a) == ValorDeColor(b);
}

// Backgrounds hold in every state; texts only while enabled, so that a greyed control still
// looks greyed.
void PonerRol(QWidget* w, QPalette::ColorRole rol, const QColor& color, bool tambienInactivo) {
  QPalette p = w->palette();
  if (tambienInactivo) {
    p.setColor(rol, color);
  } else {
    p.setColor(QPalette::Active, rol, color);
    p.setColor(QPalette::Inactive, rol, color);
  }
  w->setPalette(p);
}

// The styles shade a button's face away from its palette colour; the scheme's buttons show
// their colour flat, as on the till, darker while pressed and with a stronger edge with focus.
// The text colour is not part of it: it stays the palette's, greyed when disabled.
void PonerCaraBoton(QWidget* boton, const QColor& color) {
  boton->setStyleSheet(
      u"QPushButton { background-color: %1; border: 1px solid %2; border-radius: 4px; "
      "padding: 2px 6px; } QPushButton:pressed { background-color: %3; } "
      "QPushButton:focus { border: 2px solid %4; }"_s.arg(color.name(), color.darker(160).name(),
                                                          color.darker(125).name(),
                                                          color.darker(250).name()));
}

int Profundidad(const QWidget* marco, const QWidget* formulario) {
  int n = 0;
  for (const QWidget* p = marco->parentWidget(); p && p != formulario; p = p->parentWidget()) {
    if (TipoDe(p) == TipoControl::Marco)
      ++n;
  }
  return n;
}

// The name rule of the frames, which wins over their depth; -1 for other names.
int ElementoPorNombre(const QString& nombre) {
  static const QList<QPair<QString, int>> kNombres{
      {u"fr_Zoom1"_s, 7},       {u"fr_Zoom2"_s, 8},         {u"fr_Zoom3"_s, 9},
      {u"fr_Zoom4"_s, 10},      {u"fr_SeparacionH1"_s, 11}, {u"fr_SeparacionH2"_s, 11},
      {u"fr_SeparacionV"_s, 11}};
  for (const auto& [n, e] : kNombres) {
    if (nombre.compare(n, Qt::CaseInsensitive) == 0)
      return e;
  }
  return -1;
}

void PintarMarco(QWidget* marco, const QWidget* formulario, const QList<QColor>& e) {
  const int porNombre = ElementoPorNombre(marco->objectName());
  const int elemento = porNombre >= 0 ? porNombre : std::min(Profundidad(marco, formulario), 3);
  PonerColorFondo(marco, e.at(elemento));
  // The caption is drawn on the frame's own background: it takes the labels' text rule, or a
  // titled frame on a dark element would show a black caption that cannot be read.
  PonerColorTexto(marco, MismoColor(e.at(elemento), e.at(5)) ? e.at(2) : e.at(5));
}

// Labels and other controls: text element 5, unless the container is painted with it.
QColor TextoSobre(const QWidget* contenedor, const QList<QColor>& e) {
  return contenedor && MismoColor(ColorFondo(contenedor), e.at(5)) ? e.at(2) : e.at(5);
}

}  // namespace

// --- colours of one control ---

// Gives a control the style's palette as its own, every role set, so that nothing of its
// container's colours reaches it.
void PonerPaletaPropia(QWidget* control) {
  const QPalette estilo = QApplication::palette(control);
  QPalette propia;
  for (int g = 0; g < QPalette::NColorGroups; ++g) {
    for (int r = 0; r < QPalette::NColorRoles; ++r) {
      const auto grupo = static_cast<QPalette::ColorGroup>(g);
      const auto rol = static_cast<QPalette::ColorRole>(r);
      propia.setBrush(grupo, rol, estilo.brush(grupo, rol));
    }
  }
  control->setPalette(propia);
}

void PonerColorFondo(QWidget* control, const QColor& color) {
  switch (TipoDe(control)) {
    case TipoControl::Boton:
      PonerRol(control, QPalette::Button, color, true);
      PonerCaraBoton(control, color);
      break;
    case TipoControl::Entrada:
      PonerRol(control, QPalette::Base, color, true);
      PonerRol(control, QPalette::Button, color, true);  // a combo box without typing
      // A list's scroll bars would inherit that colour and vanish into the list: they keep
      // the style's own.
      if (auto* area = qobject_cast<QAbstractScrollArea*>(control)) {
        for (QScrollBar* barra : {area->verticalScrollBar(), area->horizontalScrollBar()})
          PonerPaletaPropia(barra);
      }
      break;
    case TipoControl::Rejilla:
      // The fixed row and column: the headers and their corner take the table's button colour.
      PonerRol(control, QPalette::Button, color, true);
      PonerRol(control, QPalette::Window, color, true);
      if (auto* t = qobject_cast<QTableView*>(control)) {
        for (QHeaderView* h : {t->horizontalHeader(), t->verticalHeader()}) {
          PonerRol(h, QPalette::Button, color, true);
          PonerRol(h, QPalette::Window, color, true);
        }
      }
      break;
    default:
      // Check and option buttons fill with the button role, frames and labels with the window.
      PonerRol(control, control->backgroundRole(), color, true);
      control->setAutoFillBackground(true);
      break;
  }
}

QColor ColorFondo(const QWidget* control) {
  switch (TipoDe(control)) {
    case TipoControl::Boton:
      return control->palette().color(QPalette::Button);
    case TipoControl::Entrada:
      return control->palette().color(QPalette::Base);
    case TipoControl::Rejilla:
      if (const auto* t = qobject_cast<const QTableView*>(control)) {
        return t->horizontalHeader()->palette().color(QPalette::Button);
      }
      return control->palette().color(QPalette::Button);
    default:
      return control->palette().color(control->backgroundRole());
  }
}

void PonerColorTexto(QWidget* control, const QColor& color) {
  switch (TipoDe(control)) {
    case TipoControl::Boton:
      PonerRol(control, QPalette::ButtonText, color, false);
      break;
    case TipoControl::Entrada:
      PonerRol(control, QPalette::Text, color, false);
      PonerRol(control, QPalette::ButtonText, color, false);
      break;
    default:
      // The styles draw the captions of check and option buttons with the window text role.
      PonerRol(control, QPalette::WindowText, color, false);
      if (control->foregroundRole() != QPalette::WindowText) {
        PonerRol(control, control->foregroundRole(), color, false);
      }
      break;
  }
}

QColor ColorTexto(const QWidget* control) {
  switch (TipoDe(control)) {
    case TipoControl::Boton:
      return control->palette().color(QPalette::ButtonText);
    case TipoControl::Entrada:
      return control->palette().color(QPalette::Text);
    default:
      return control->palette().color(QPalette::WindowText);
  }
}

// --- painting ---

QList<QColor> ElementosEsquema(const QString& esquema, int minimo) {
  const QStringList textos = esquema.isEmpty() ? QStringList() : esquema.split(u'|');
  if (textos.size() < minimo)
    throw ErrorBD(kFueraDeIntervalo);
  QList<QColor> colores;
  for (const QString& t : textos) {
    const QColor c = ColorDesdeTexto(t);
    if (!c.isValid())
      throw ErrorBD(kTiposDistintos);
    colores.append(c);
  }
  return colores;
}

void PintarFormulario(QWidget* formulario, const QList<QColor>& e) {
  if (e.size() < 12)
    throw ErrorBD(kFueraDeIntervalo);
  PonerRol(formulario, QPalette::Window, kBlanco, true);
  formulario->setAutoFillBackground(true);
  const QList<QWidget*> controles = ControlesDe(formulario);
  for (QWidget* control : controles) {
    // A list's scroll bars keep the style's own colours: painted like the list they vanish
    // into it, white on white.
    if (qobject_cast<QScrollBar*>(control) || qobject_cast<QScrollBar*>(control->parentWidget()))
      continue;
    const QWidget* contenedor = ContenedorDe(control, formulario);
    switch (TipoDe(control)) {
      case TipoControl::Boton:
        PonerColorFondo(control, e.at(4));
        break;
      case TipoControl::Entrada:
        PonerColorFondo(control, e.at(6));
        PonerColorTexto(control, e.at(5));
        break;
      case TipoControl::Rejilla:
        PonerColorFondo(control, e.at(8));
        break;
      case TipoControl::Marco:
        PintarMarco(control, formulario, e);
        break;
      case TipoControl::Etiqueta:
        PonerColorTexto(control, TextoSobre(contenedor, e));
        break;
      case TipoControl::Otro:
        // Given the container's colour but not filled: the container shows through, with
        // the shading that the style gives the inside of a frame.
        if (contenedor) {
          PonerRol(control, control->backgroundRole(), ColorFondo(contenedor), true);
        }
        PonerColorTexto(control, TextoSobre(contenedor, e));
        break;
    }
  }
}

void PintarFrmError(Entorno& entorno, FrmError* formulario) {
  try {
    Colorear(entorno).colorear(formulario);
  } catch (const ErrorBD&) {
  }
}

// --- Colorear ---

Colorear::Colorear(Entorno& entorno) : entorno_(entorno) {}

void Colorear::colorear(QWidget* formulario) {
  PintarFormulario(formulario, ElementosEsquema(esquemaTerminal()));
}

QString Colorear::esquemaTerminal() {
  Conexion& c = *entorno_.ConexionBD;
  const QString terminal = entorno_.sesion.IdentificadorTerminal;
  Recordset rs(c,
               u"Select id_color, colorPredefinido from opciones_terminal where "
               "identificador = '"_s +
                   terminal + u"'"_s);
  const bool hayFila = rs.recordCount() > 0;
  const bool sinId = hayFila && rs.isNull(u"id_color"_s);
  qint16 id =
      hayFila ? static_cast<qint16>(rs.field(u"id_color"_s).toInt()) : entorno_.sesion.id_color;
  rs.close();

  if (hayFila) {
    Recordset esquema(c, u"select * from colores where id_color = "_s + QString::number(id));
    const bool existe = !sinId && esquema.recordCount() > 0;
    esquema.close();
    if (!existe) {
      Recordset todos(c, u"select * from colores"_s);
      if (todos.recordCount() > 0) {
        todos.moveFirst();
        id = static_cast<qint16>(todos.field(u"id_color"_s).toInt());
        // Written with its own statement: the terminal's row is found by its key, which the
        // reading above does not select.
        c.ejecutar(u"update opciones_terminal set id_color = "_s + QString::number(id) +
                   u", ColorPredefinido = -1 where identificador = '"_s + terminal + u"'"_s);
        entorno_.sesion.id_color = id;
      }
      todos.close();
    }
  }
  return ObtenerColor(id);
}

QString Colorear::ObtenerColor(qint16 idColor) {
  Conexion& c = *entorno_.ConexionBD;
  const auto esquema = [](Recordset& rs) {
    QStringList colores;
    for (int i = 1; i <= kColumnasEsquema; ++i)
      colores.append(rs.field(i).toString());
    rs.close();
    return colores.join(u'|');
  };
  Recordset rs(c, u"select * from colores where id_color = "_s + QString::number(idColor));
  if (rs.recordCount() > 0)
    return esquema(rs);
  rs.close();
  Recordset todos(c, u"select * from colores"_s);
  if (todos.recordCount() == 0) {
    todos.close();
    return {};
  }
  todos.moveFirst();
  return esquema(todos);
}

QString Colorear::elemento(int indice) {
  const QStringList e = esquemaTerminal().split(u'|');
  if (indice >= e.size())
    throw ErrorBD(kFueraDeIntervalo);
  return e.at(indice);
}

QString Colorear::get_ColorZoom1() {
  return elemento(7);
}
QString Colorear::get_ColorZoom2() {
  return elemento(8);
}
QString Colorear::get_ColorZoom3() {
  return elemento(9);
}
QString Colorear::get_ColorZoom4() {
  return elemento(10);
}
QString Colorear::get_ColorFoco() {
  return elemento(12);
}
QString Colorear::get_ColorResalto() {
  return elemento(13);
}

// --- type size and enlargement ---

double FactorTipoLetra(qint16 paso) {
  switch (paso) {
    case 2:
      return 1.2;
    case 3:
      return 1.4;
    default:
      return 1.0;
  }
}

void AplicarTipoLetra(QWidget* formulario, qint16 paso) {
  const char* kPaso = "pasoTipoLetra";
  const QVariant anterior = formulario->property(kPaso);
  const double actual = FactorTipoLetra(anterior.isValid() ? qint16(anterior.toInt()) : 1);
  const double nuevo = FactorTipoLetra(paso);
  if (!qFuzzyCompare(actual, nuevo))
    EscalarLetras(formulario, nuevo / actual, 1.0);
  formulario->setProperty(kPaso, paso);
}

void AplicarAumento(QWidget* panel, qint32 aumentoX, qint32 aumentoY) {
  const char* kTamano = "tamanoSinAumento";
  QVariant base = panel->property(kTamano);
  if (!base.isValid()) {
    base = panel->size();
    panel->setProperty(kTamano, base);
  }
  const QSize s = base.toSize();
  panel->resize(std::max(1, s.width() + aumentoX), std::max(1, s.height() + aumentoY));
}

// --- VariablesIniciales ---

VariablesIniciales::VariablesIniciales(Entorno& entorno) : entorno_(entorno) {}

QVariant VariablesIniciales::leerTerminal(const QString& sentencia, const QString& campo) {
  Recordset rs(*entorno_.ConexionBD, sentencia + entorno_.sesion.IdentificadorTerminal + u"'"_s);
  const QVariant valor = rs.recordCount() > 0 ? rs.field(campo) : QVariant();
  rs.close();
  return valor;
}

bool VariablesIniciales::ColorPredefinido() {
  return leerTerminal(u"Select colorpredefinido from opciones_terminal where identificador = '"_s,
                      u"colorpredefinido"_s)
             .toInt() != 0;
}

QString VariablesIniciales::Color() {
  return Colorear(entorno_).ObtenerColor(id_color());
}

qint16 VariablesIniciales::id_color() {
  return static_cast<qint16>(
      leerTerminal(u"Select id_color from opciones_terminal where identificador = '"_s,
                   u"id_color"_s)
          .toInt());
}

qint16 VariablesIniciales::SiguienteID(qint16 actual) {
  Recordset rs(*entorno_.ConexionBD,
               u"Select id_color from colores where id_color> "_s + QString::number(actual));
  const qint16 siguiente =
      rs.recordCount() > 0 ? static_cast<qint16>(rs.field(u"id_color"_s).toInt()) : qint16(1);
  rs.close();
  return siguiente;
}

QString VariablesIniciales::tipo_programa() {
  Recordset rs(*entorno_.ConexionBD, u"Select tipo_programa from opciones"_s);
  const QString tipo = rs.recordCount() > 0 ? rs.field(u"tipo_programa"_s).toString() : QString();
  rs.close();
  return tipo;
}

qint16 VariablesIniciales::Tipo_Letra() {
  const QVariant v = leerTerminal(
      u"Select tipo_letra from opciones_terminal where identificador = '"_s, u"tipo_letra"_s);
  return v.isNull() ? qint16(1) : static_cast<qint16>(v.toInt());
}

qint16 VariablesIniciales::SiguienteTipo_Letra(qint16 actual) {
  const int siguiente = actual + 1;
  return siguiente >= 1 && siguiente <= 3 ? static_cast<qint16>(siguiente) : qint16(1);
}

qint32 VariablesIniciales::Aumento_X() {
  return leerTerminal(u"Select Aumento_X from opciones_terminal where identificador = '"_s,
                      u"Aumento_X"_s)
      .toInt();
}

qint32 VariablesIniciales::SiguienteAumento(qint32 actual, qint32 tamanoPantalla) {
  const qint32 siguiente = std::max(0, actual) + kPasoAumento;
  return siguiente <= tamanoPantalla - kMargenAumento ? siguiente : 0;
}

qint32 VariablesIniciales::Aumento_Y() {
  return leerTerminal(u"Select Aumento_Y from opciones_terminal where identificador = '"_s,
                      u"Aumento_Y"_s)
      .toInt();
}
