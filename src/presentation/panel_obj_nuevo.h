#pragma once

#include <QColor>
#include <QFont>
#include <QHash>
#include <QList>
#include <QPixmap>
#include <QPointer>
#include <QRect>
#include <QString>
#include <QStringList>
#include <QWidget>

#include "paneles.h"

class QAbstractAnimation;
class QAbstractButton;
class QLabel;
class BotonPanel;

// The sizes and positions of a panel, in pixels of the 1024×768 design (the form adjustment
// scales them with the form). A size of 0 (or a position below 0) lets the panel work it out.
struct MedidasPanel {
  float alto_principal = 0;    // main area; 0: the widget's height less the secondary area
  float ancho_principal = 0;   // main area; 0: the widget's width
  float alto_secundario = 64;  // the bar with the paging arrows and the page indicator
  float ancho_secundario = 0;  // 0: as wide as the main area
  float secundario_posy = -1;  // <0: right under the main area
  float alto_boton = 84;       // least size of a button; buttons stretch to fill the row
  float ancho_boton = 112;
  float boton_posx = 8;  // margin of the first button inside the main area
  float boton_posy = 8;
  float alto_label = 0;        // caption strip under a picture; 0: 40% of the button
  float ancho_label = 0;       // 0: the button's width
  float flecha_izq_posx = -1;  // inside the bar; <0: at its left end
  float flecha_izq_posy = -1;
  float flecha_der_posx = -1;  // inside the bar; <0: at its right end
  float flecha_der_posy = -1;
};

// Where everything of a panel goes for one widget size. Main and secondary areas are in the
// widget's coordinates; arrows and indicator in the bar's; buttons in the main area's.
struct DisposicionPanel {
  QRect principal;
  QRect secundaria;
  QRect flechaIzq;
  QRect flechaDer;
  QRect indicador;
  QList<QRect> botones;  // the slots of one page, row by row
  int columnas = 1;
  int filas = 1;
};

DisposicionPanel CalcularDisposicion(const MedidasPanel& medidas, QSize tamano);
// Black or white, whichever reads better on the given back colour.
QColor ColorTextoSobre(const QColor& fondo);
// "2 / 5"; empty when there are no pages.
QString TextoIndicador(int pagina, int paginas);
// The font, at most a quarter smaller, in which every word of the caption fits the width, so
// that names break between words; the smallest tried when some word is still too wide.
QFont FuenteQueCabe(const QString& texto, const QFont& fuente, int ancho);
// A caption broken into at most `maxLineas` lines of at most `ancho` pixels; the last line is
// elided when the caption does not fit.
QStringList LineasCaption(const QString& texto, const QFont& fuente, int ancho, int maxLineas);

// The paged button panel of the families and products: one button per entry of a panel table,
// as many per page as fit, paged with its own arrows. Touching a button records its name and
// code and emits tocado().
//
// Colours are suite colour values (red in the lowest byte). Every design-time measure of
// MedidasPanel is a property of the same name. The products form's small-screen size (300) goes
// to `alto_principal`; the sub-products dialog gives its panels `ancho_principal` 500 and
// `alto_principal` 200.
//
// Child names, for the forms and the tests: "area_principal", "area_secundaria",
// "boton_1".."boton_n" (the slots of the page on show), "flecha_izq", "flecha_der",
// "indicador_pagina".
class PanelObjNuevo : public QWidget {
  Q_OBJECT
  Q_PROPERTY(qint64 color_defecto READ color_defecto WRITE set_color_defecto)
  Q_PROPERTY(bool usar_colores READ usar_colores WRITE set_usar_colores)
  Q_PROPERTY(int animacion READ animacion WRITE set_animacion)
  Q_PROPERTY(qint64 fondo_principal READ fondo_principal WRITE set_fondo_principal)
  Q_PROPERTY(qint64 fondo_secundario READ fondo_secundario WRITE set_fondo_secundario)
  Q_PROPERTY(qint64 fondo_label READ fondo_label WRITE set_fondo_label)
  Q_PROPERTY(QFont boton_fuente READ boton_fuente WRITE set_boton_fuente)
  Q_PROPERTY(QFont label_fuente READ label_fuente WRITE set_label_fuente)
  Q_PROPERTY(QString nombre_seleccionado READ nombre_seleccionado)
  Q_PROPERTY(QString codigo_seleccionado READ codigo_seleccionado)
  Q_PROPERTY(float alto_principal READ alto_principal WRITE set_alto_principal)
  Q_PROPERTY(float ancho_principal READ ancho_principal WRITE set_ancho_principal)
  Q_PROPERTY(float alto_secundario READ alto_secundario WRITE set_alto_secundario)
  Q_PROPERTY(float ancho_secundario READ ancho_secundario WRITE set_ancho_secundario)
  Q_PROPERTY(float secundario_posy READ secundario_posy WRITE set_secundario_posy)
  Q_PROPERTY(float alto_boton READ alto_boton WRITE set_alto_boton)
  Q_PROPERTY(float ancho_boton READ ancho_boton WRITE set_ancho_boton)
  Q_PROPERTY(float boton_posx READ boton_posx WRITE set_boton_posx)
  Q_PROPERTY(float boton_posy READ boton_posy WRITE set_boton_posy)
  Q_PROPERTY(float alto_label READ alto_label WRITE set_alto_label)
  Q_PROPERTY(float ancho_label READ ancho_label WRITE set_ancho_label)
  Q_PROPERTY(float flecha_izq_posx READ flecha_izq_posx WRITE set_flecha_izq_posx)
  Q_PROPERTY(float flecha_izq_posy READ flecha_izq_posy WRITE set_flecha_izq_posy)
  Q_PROPERTY(float flecha_der_posx READ flecha_der_posx WRITE set_flecha_der_posx)
  Q_PROPERTY(float flecha_der_posy READ flecha_der_posy WRITE set_flecha_der_posy)

 public:
  explicit PanelObjNuevo(QWidget* parent = nullptr);
  ~PanelObjNuevo() override;

  // Empties the panel at once: no entries, no buttons, nothing touched.
  void limpiar();
  // Forgets the entries and goes back to the first page before a load; the screen keeps what
  // it shows until dibujar().
  void reiniciar();
  // Takes the entries to show, one button each; they appear with dibujar().
  void cargar_objetos(const TablaPanel& tabla);
  // Lays out the current page and shows it.
  void dibujar();

  qint64 color_defecto() const { return colorDefecto_; }
  void set_color_defecto(qint64 color);
  bool usar_colores() const { return usarColores_; }
  void set_usar_colores(bool usar);
  // Non-zero: buttons sink when pressed and pages slide; 0: everything changes at once.
  int animacion() const { return animacion_; }
  void set_animacion(int animacion);

  qint64 fondo_principal() const { return fondoPrincipal_; }
  void set_fondo_principal(qint64 color);
  qint64 fondo_secundario() const { return fondoSecundario_; }
  void set_fondo_secundario(qint64 color);
  qint64 fondo_label() const { return fondoLabel_; }  // the page indicator's back colour
  void set_fondo_label(qint64 color);
  QFont boton_fuente() const { return fuenteBoton_; }
  void set_boton_fuente(const QFont& fuente);
  QFont label_fuente() const { return fuenteLabel_; }
  void set_label_fuente(const QFont& fuente);

  // The last touched button: its name (entry field 4), its code (field 6) and its position in
  // the loaded table (from 0; -1 when none).
  QString nombre_seleccionado() const { return nombreSeleccionado_; }
  QString codigo_seleccionado() const { return codigoSeleccionado_; }
  int indice_seleccionado() const { return indiceSeleccionado_; }

  const TablaPanel& objetos() const { return objetos_; }
  int pagina() const;  // from 1; 0 when there are no entries
  int paginas() const;
  int botonesPorPagina() const { return static_cast<int>(disposicion_.botones.size()); }

  const MedidasPanel& medidas() const { return medidas_; }
  void set_medidas(const MedidasPanel& medidas);

#define PANEL_MEDIDA(nombre)       \
  float nombre() const {           \
    return medidas_.nombre;        \
  }                                \
  void set_##nombre(float valor) { \
    medidas_.nombre = valor;       \
    medidasCambiadas();            \
  }
  PANEL_MEDIDA(alto_principal)
  PANEL_MEDIDA(ancho_principal)
  PANEL_MEDIDA(alto_secundario)
  PANEL_MEDIDA(ancho_secundario)
  PANEL_MEDIDA(secundario_posy)
  PANEL_MEDIDA(alto_boton)
  PANEL_MEDIDA(ancho_boton)
  PANEL_MEDIDA(boton_posx)
  PANEL_MEDIDA(boton_posy)
  PANEL_MEDIDA(alto_label)
  PANEL_MEDIDA(ancho_label)
  PANEL_MEDIDA(flecha_izq_posx)
  PANEL_MEDIDA(flecha_izq_posy)
  PANEL_MEDIDA(flecha_der_posx)
  PANEL_MEDIDA(flecha_der_posy)
#undef PANEL_MEDIDA

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 signals:
  // A button was touched; read nombre_seleccionado() and codigo_seleccionado().
  void tocado();

 protected:
  void resizeEvent(QResizeEvent* evento) override;
  // Arrows walk the buttons (left, right, a row up or down, a page with Page Up and Page Down,
  // Home and End), turning the page when they leave it; Enter or Space touches the button.
  void keyPressEvent(QKeyEvent* evento) override;
  void focusInEvent(QFocusEvent* evento) override;
  void focusOutEvent(QFocusEvent* evento) override;

 private:
  void irA(int indice);
  void marcarActual();
  void medidasCambiadas();
  void colocar();
  void mostrarPagina();
  void pintarBotones();
  void pintarAreas();
  void cambiarPagina(int paso);
  void deslizar(int paso, const QPixmap& antes);
  void pararAnimacion();
  void botonTocado(const BotonPanel* boton);
  QPixmap imagenDe(const QString& ruta);

  MedidasPanel medidas_;
  DisposicionPanel disposicion_;
  TablaPanel objetos_;
  int inicio_ = 0;  // the table position of the page's first button

  qint64 colorDefecto_ = 16777215;
  bool usarColores_ = false;
  int animacion_ = 0;
  qint64 fondoPrincipal_ = 0x3A2E26;  // slate, as the till's own panels
  qint64 fondoSecundario_ = 0x2A211B;
  qint64 fondoLabel_ = 0x4A3B31;
  QFont fuenteBoton_;
  QFont fuenteLabel_;

  QString nombreSeleccionado_;
  QString codigoSeleccionado_;
  int indiceSeleccionado_ = -1;
  int actual_ = 0;  // the table position of the keyboard's button

  QWidget* areaPrincipal_;
  QWidget* pagina_;
  QWidget* areaSecundaria_;
  QAbstractButton* flechaIzq_;
  QAbstractButton* flechaDer_;
  QLabel* indicador_;
  QList<BotonPanel*> botones_;
  QHash<QString, QPixmap> imagenes_;
  QPointer<QAbstractAnimation> animacionPagina_;
  QPointer<QWidget> paginaSaliente_;
};
