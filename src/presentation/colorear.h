#pragma once

#include <QColor>
#include <QList>
#include <QString>
#include <QStringList>
#include <QVariant>

struct Entorno;
class FrmError;
class QWidget;

// The terminal's colour scheme, read from "colores", and the painting of a form with it.
//
// A scheme text is the fourteen colours of a "colores" row joined by "|". Its elements, as the
// painting uses them: 0..3 frames by depth (on the form, in one frame, two deep, deeper),
// 4 command buttons, 5 text, 6 entry controls, 7..10 the frames fr_Zoom1..fr_Zoom4 (8 also the
// fixed cells of grids), 11 the separator frames, 12 the focus colour, 13 the highlight colour.
// Colours are set through the widgets' palettes, which the Fusion style (the desktop's and the
// offscreen platform's) draws; the helpers below are the one way the forms change them.
class Colorear {
 public:
  explicit Colorear(Entorno& entorno);

  // Paints every control of the form by kind, frame depth and name. Frame captions take the
  // labels' text colour on the frame's own background, so that they can be read on every
  // scheme. A terminal with no usable
  // scheme (an empty "colores", a short or non-numeric row) throws ErrorBD before anything is
  // painted, and the form keeps its colours.
  void colorear(QWidget* formulario);
  // The scheme text ("c1|c2|...|c14") of the terminal. When the terminal's id_color names no
  // scheme (or is null), its row is rewritten to the first scheme of "colores" with
  // ColorPredefinido true, and the session's id_color follows: the terminal is then on the
  // predefined scheme, and the next start finds it without a fallback.
  QString esquemaTerminal();
  // The scheme text of a scheme; the first scheme's when the id names none; empty when the
  // table is empty.
  QString ObtenerColor(qint16 idColor);
  QString get_ColorZoom1();
  QString get_ColorZoom2();
  QString get_ColorZoom3();
  QString get_ColorZoom4();
  QString get_ColorFoco();
  QString get_ColorResalto();

 private:
  QString elemento(int indice);
  Entorno& entorno_;
};

// The colours of a scheme text, element 0 first. Throws ErrorBD when it has fewer than
// `minimo` elements or one of them is not a number.
QList<QColor> ElementosEsquema(const QString& esquema, int minimo = 12);
// Paints a form with the elements of a scheme (at least 12), by the rules of Colorear.
void PintarFormulario(QWidget* formulario, const QList<QColor>& elementos);
// Paints the error form like every other form. A failure to read the scheme leaves it with its
// own colours and is not logged: logging it would show the error form again.
void PintarFrmError(Entorno& entorno, FrmError* formulario);

// A control's background and text colours, by kind: a button's face, an entry's field, a
// grid's fixed cells are their background; any other widget's own background.
void PonerColorFondo(QWidget* control, const QColor& color);
QColor ColorFondo(const QWidget* control);
void PonerColorTexto(QWidget* control, const QColor& color);
QColor ColorTexto(const QWidget* control);

// The type size steps of the terminal (Tipo_Letra): 1 as designed, 2 a fifth larger, 3 two
// fifths larger, for every control of the form. The step is remembered on the form, so that
// applying another step changes from the current one and never compounds.
void AplicarTipoLetra(QWidget* formulario, qint16 paso);
double FactorTipoLetra(qint16 paso);
// The panel enlargement of the terminal (Aumento_X, Aumento_Y): the paged button panel grows
// by that many pixels to the right and downwards from its size before any enlargement, so that
// its buttons are larger to touch. Applying again replaces the earlier enlargement.
void AplicarAumento(QWidget* panel, qint32 aumentoX, qint32 aumentoY);

// The terminal's display options and the next value of each cycling option.
class VariablesIniciales {
 public:
  static constexpr qint32 kPasoAumento = 50;     // pixels per enlargement step
  static constexpr qint32 kMargenAumento = 350;  // screen left beside the panels

  explicit VariablesIniciales(Entorno& entorno);
  bool ColorPredefinido();
  QString Color();
  qint16 id_color();
  // The next scheme after `actual`; 1 after the last one.
  qint16 SiguienteID(qint16 actual);
  QString tipo_programa();
  // 1 when the terminal has no row or no value.
  qint16 Tipo_Letra();
  // 1, 2, 3, then 1 again (anything out of that range starts again at 1).
  static qint16 SiguienteTipo_Letra(qint16 actual);
  qint32 Aumento_X();
  // One step (kPasoAumento) more while it still leaves kMargenAumento of the screen
  // (tamanoPantalla, in pixels, across or down) beside it; else back to 0.
  static qint32 SiguienteAumento(qint32 actual, qint32 tamanoPantalla);
  qint32 Aumento_Y();

 private:
  QVariant leerTerminal(const QString& sentencia, const QString& campo);
  Entorno& entorno_;
};
