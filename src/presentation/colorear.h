#pragma once

#include <QColor>
#include <QString>
#include <QStringList>

struct Entorno;
class QWidget;

// The terminal's colour scheme, read from "colores", and the painting of a form with it.
class Colorear {
 public:
  explicit Colorear(Entorno& entorno);

  // Paints every control of the form by kind, frame depth and name.
  void colorear(QWidget* formulario);
  // The scheme text ("c1|c2|...|c14") of the terminal.
  QString esquemaTerminal();
  QString ObtenerColor(qint16 idColor);
  QString get_ColorZoom1();
  QString get_ColorZoom2();
  QString get_ColorZoom3();
  QString get_ColorZoom4();
  QString get_ColorFoco();
  QString get_ColorResalto();

 private:
  Entorno& entorno_;
};

// The terminal's display options and the next value of each cycling option.
class VariablesIniciales {
 public:
  explicit VariablesIniciales(Entorno& entorno);
  bool ColorPredefinido();
  QString Color();
  qint16 id_color();
  qint16 SiguienteID(qint16 actual);
  QString tipo_programa();
  qint16 Tipo_Letra();
  static qint16 SiguienteTipo_Letra(qint16 actual);
  qint32 Aumento_X();
  qint32 SiguienteAumento(qint32 actual, qint32 tamanoPantalla);
  qint32 Aumento_Y();

 private:
  Entorno& entorno_;
};
