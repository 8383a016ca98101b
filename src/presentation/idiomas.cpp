#include "idiomas.h"

#include <QGuiApplication>
#include <QHeaderView>
#include <QLayout>
#include <QScreen>
#include <QTableView>
#include <QWidget>
#include <cmath>

#include "controles.h"
#include "entorno.h"
#include "recordset.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QString kCastellano = u"CASTELLANO"_s;
const QString kMarca = u"#@#"_s;
constexpr qsizetype kLargoCaption = 255;

bool TieneCaption(const QWidget* w) {
  const TipoControl t = TipoDe(w);
  return t == TipoControl::Boton || t == TipoControl::Etiqueta || t == TipoControl::Marco;
}

QString NombreEjecutableYFormulario(const Entorno& entorno, const QWidget* formulario) {
  return entorno.instalacion.nombreEjecutable + u"-"_s + formulario->objectName();
}

// Values of the configuration separated by '|', blanks kept.
QStringList ListaConfigurada(const Entorno& entorno, const QString& clave) {
  return entorno.instalacion.configuracion.valor(u"traduccion"_s, clave)
      .split(u'|', Qt::SkipEmptyParts);
}

bool TieneClave(const Entorno& entorno, const QString& clave) {
  return entorno.instalacion.configuracion.claves(u"traduccion"_s)
      .contains(clave, Qt::CaseInsensitive);
}

// --- size adjustment ---

bool EnCapa(const QLayout* capa, const QWidget* w) {
  for (int i = 0; i < capa->count(); ++i) {
    QLayoutItem* item = capa->itemAt(i);
    if (item->widget() == w)
      return true;
    if (item->layout() && EnCapa(item->layout(), w))
      return true;
  }
  return false;
}

bool ColocadoPorCapa(const QWidget* w) {
  const QWidget* padre = w->parentWidget();
  return padre && padre->layout() && EnCapa(padre->layout(), w);
}

int Escalar(int valor, double factor) {
  return static_cast<int>(std::lround(valor * factor));
}

int EscalarLimite(int valor, double factor) {
  return valor >= QWIDGETSIZE_MAX ? valor : std::min(QWIDGETSIZE_MAX, Escalar(valor, factor));
}

void EscalarLimites(QWidget* w, double rx, double ry) {
  const QSize minimo = w->minimumSize();
  const QSize maximo = w->maximumSize();
  w->setMinimumSize(Escalar(minimo.width(), rx), Escalar(minimo.height(), ry));
  w->setMaximumSize(EscalarLimite(maximo.width(), rx), EscalarLimite(maximo.height(), ry));
}

// Left and right edges are scaled, not left and width, so that controls that touch in the
// design still touch on the screen.
void EscalarGeometria(QWidget* w, double rx, double ry) {
  const QRect g = w->geometry();
  const int x1 = Escalar(g.left(), rx);
  const int y1 = Escalar(g.top(), ry);
  const int x2 = Escalar(g.left() + g.width(), rx);
  const int y2 = Escalar(g.top() + g.height(), ry);
  w->setGeometry(x1, y1, x2 - x1, y2 - y1);
}

void EscalarSecciones(QHeaderView* cabecera, double factor) {
  QList<int> tamanos;
  for (int i = 0; i < cabecera->count(); ++i)
    tamanos.append(cabecera->sectionSize(i));
  cabecera->setMinimumSectionSize(
      std::max(1, Escalar(cabecera->minimumSectionSize(), std::min(factor, 1.0))));
  cabecera->setDefaultSectionSize(Escalar(cabecera->defaultSectionSize(), factor));
  for (int i = 0; i < tamanos.size(); ++i) {
    cabecera->resizeSection(i, Escalar(tamanos.at(i), factor));
  }
}

}  // namespace

void TraducirFormulario(Entorno& entorno, QWidget* formulario) {
  const QList<QWidget*> controles = ControlesDe(formulario);
  for (QWidget* control : controles) {
    // A control without a caption (a picture, an untitled panel) has nothing to translate, and
    // giving a picture's label a text would take its picture away.
    if (!TieneCaption(control) || CaptionDe(control).isEmpty())
      continue;
    // The caption goes into the statement as it stands: the table's captions were gathered
    // from these same forms.
    Recordset rs(*entorno.ConexionBD,
                 u"Select * from traducciones where caption = '"_s + CaptionDe(control) + u"'"_s);
    if (rs.recordCount() > 0) {
      const QVariant traduccion = rs.field(u"traduccion"_s);
      if (!traduccion.isNull() && !traduccion.toString().isEmpty()) {
        PonerCaption(control, traduccion.toString());
      } else {
        PonerCaption(control, rs.field(u"caption"_s).toString());
      }
    }
    rs.close();
  }
}

QString ObtenerIdioma(Entorno& entorno) {
  QString idioma = kCastellano;
  Recordset rs(*entorno.ConexionBD, u"Select idioma from opciones where identificador = '"_s +
                                        entorno.sesion.IdentificadorInstalacion + u"'"_s);
  if (rs.recordCount() > 0 && !rs.isNull(u"idioma"_s))
    idioma = rs.field(u"idioma"_s).toString();
  rs.close();
  return idioma;
}

bool DebeRegistrarCaptions(Entorno& entorno, QWidget* formulario) {
  if (ObtenerIdioma(entorno) != kCastellano)
    return false;
  Recordset rs(*entorno.ConexionBD,
               u"Select nombreEjecutable from EjecutablesTraduccion where nombreEjecutable = '"_s +
                   NombreEjecutableYFormulario(entorno, formulario) + u"'"_s);
  const bool registrado = rs.recordCount() > 0;
  rs.close();
  return !registrado;
}

QStringList TextosExcluidos(const Entorno& entorno) {
  if (!TieneClave(entorno, u"excluir"_s))
    return {u"dul vore"_s, u"dulvore"_s};
  return ListaConfigurada(entorno, u"excluir"_s);
}

void AnadirCaption(QString& lista, const QString& caption, const QStringList& excluidos) {
  if (caption.size() < 3)
    return;
  if (caption.contains(u'@') || caption.contains(u"www."_s))
    return;
  // Design names, colour codes, code fragments and blank-padded texts are not captions to
  // translate, and neither are the maker's brand, address and telephone.
  static const QStringList kNoCaptions{u"Form"_s, u"frame"_s, u"label"_s,       u"&H"_s,
                                       u"_"_s,    u"Chr$"_s,  QString(14, u' ')};
  for (const QString& t : kNoCaptions) {
    if (caption.contains(t, Qt::CaseInsensitive))
      return;
  }
  for (const QString& t : excluidos) {
    if (!t.isEmpty() && caption.contains(t, Qt::CaseInsensitive))
      return;
  }
  lista += caption + kMarca;
}

void RegistrarCaptions(Entorno& entorno, const QString& lista) {
  const QStringList piezas = lista.split(kMarca);
  for (QString pieza : piezas) {
    if (pieza.size() <= 1)
      continue;
    pieza.truncate(kLargoCaption);
    pieza.replace(u"\r\n"_s, u" "_s);
    pieza.replace(u"'"_s, u"''"_s);
    Recordset rs(*entorno.ConexionBD,
                 u"Select * from traducciones where caption = '"_s + pieza + u"'"_s);
    const bool existe = rs.recordCount() > 0;
    rs.close();
    if (!existe) {
      entorno.ConexionBD->ejecutar(u"Insert into traducciones (caption) values ('"_s + pieza +
                                   u"')"_s);
    }
  }
}

void ModificarTamano(QWidget* formulario, QSize diseno, QSize pantalla) {
  if (!formulario || diseno.isEmpty() || pantalla.isEmpty())
    return;
  const double rx = static_cast<double>(pantalla.width()) / diseno.width();
  const double ry = static_cast<double>(pantalla.height()) / diseno.height();
  const QList<QWidget*> controles = ControlesDe(formulario);

  // Small type does not narrow as much as its size (the glyphs keep whole pixels): on a screen
  // smaller than the design the type shrinks a little more than the controls, so that every
  // caption still fits.
  constexpr double kMargenLetraPequena = 0.94;
  const double letra = std::min(rx, ry);
  EscalarLetras(formulario, letra < 1 ? letra * kMargenLetraPequena : letra);
  EscalarLimites(formulario, rx, ry);
  formulario->resize(Escalar(formulario->width(), rx), Escalar(formulario->height(), ry));
  for (QWidget* control : controles) {
    if (ColocadoPorCapa(control))
      continue;
    EscalarLimites(control, rx, ry);
    EscalarGeometria(control, rx, ry);
  }
  for (QWidget* control : controles) {
    if (auto* rejilla = qobject_cast<QTableView*>(control)) {
      EscalarSecciones(rejilla->horizontalHeader(), rx);
      EscalarSecciones(rejilla->verticalHeader(), ry);
    }
  }
}

void AjustarFormulario(Entorno& entorno, QWidget* formulario, QSize diseno,
                       std::optional<QSize> pantalla) {
  const bool registrar = DebeRegistrarCaptions(entorno, formulario);
  QSize destino;
  if (pantalla) {
    destino = *pantalla;
  } else if (const QScreen* s = QGuiApplication::primaryScreen()) {
    destino = s->availableSize();
  }
  ModificarTamano(formulario, diseno, destino);
  if (!registrar)
    return;

  const QStringList excluidos = TextosExcluidos(entorno);
  QString lista;
  QString caption;
  // Every control passes a caption: one without a caption of its own passes the last one read
  // again, and the registration skips the repeats.
  const QList<QWidget*> controles = ControlesDe(formulario);
  for (const QWidget* control : controles) {
    if (TieneCaption(control))
      caption = CaptionDe(control);
    AnadirCaption(lista, caption, excluidos);
  }
  RegistrarCaptions(entorno, lista);
  entorno.ConexionBD->ejecutar(u"insert into ejecutablestraduccion values ('"_s +
                               NombreEjecutableYFormulario(entorno, formulario) + u"')"_s);
}

QStringList CaptionsNuncaTraducidos(const Entorno& entorno) {
  QStringList captions{u"* * Bienvenido * *"_s,
                       u"S/N:"_s,
                       u"0123456789"_s,
                       u"%"_s,
                       u"*"_s,
                       u"-15"_s,
                       u"1"_s,
                       u"4"_s,
                       u"5"_s,
                       u"30"_s,
                       u"37"_s,
                       u"60"_s,
                       u"90"_s};
  captions.append(ListaConfigurada(entorno, u"nuncaTraducir"_s));
  return captions;
}

void RegistrarTodosLosCaptions(Entorno& entorno, QWidget* formulario) {
  static const QStringList kMarcosOmitidos{u"Frame1"_s, u"Frame2"_s, u"fr_teclado"_s,
                                           u"FrProd"_s, u"FrServ"_s, u"FrFam"_s,
                                           u"FrProv"_s, u"FrEmp"_s,  u"Frcli"_s};
  static const QStringList kEtiquetasOmitidas{u"lblEmpleadoImagen"_s, u"lbl_explicacion2"_s};
  const QStringList nunca = CaptionsNuncaTraducidos(entorno);
  const QList<QWidget*> controles = ControlesDe(formulario);
  for (const QWidget* control : controles) {
    const TipoControl tipo = TipoDe(control);
    if (!TieneCaption(control))
      continue;
    if (tipo == TipoControl::Marco &&
        kMarcosOmitidos.contains(control->objectName(), Qt::CaseInsensitive)) {
      continue;
    }
    if (tipo == TipoControl::Etiqueta &&
        kEtiquetasOmitidas.contains(control->objectName(), Qt::CaseInsensitive)) {
      continue;
    }
    const QString caption = CaptionDe(control);
    if (caption.isEmpty() || nunca.contains(caption))
      continue;
    QString buscado = caption;
    buscado.replace(u"'"_s, u"''"_s);
    Recordset rs(*entorno.ConexionBD,
                 u"Select * from traducciones where caption = '"_s + buscado + u"'"_s);
    if (rs.recordCount() == 0) {
      rs.addNew();
      rs.setField(u"identificador"_s, formulario->objectName());
      rs.setField(u"NombreControl"_s, control->objectName());
      rs.setField(u"caption"_s, caption);
      rs.setField(u"traduccion"_s, QString(u""_s));
      rs.setField(u"software"_s, entorno.instalacion.nombreEjecutable);
      rs.update();
    }
    rs.close();
  }
}
