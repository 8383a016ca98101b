#pragma once

#include <QRect>
#include <QString>
#include <QStringList>
#include <initializer_list>

class QAbstractItemModel;
class QAbstractItemView;
class QCheckBox;
class QColor;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QListView;
class QListWidget;
class QPushButton;
class QRadioButton;
class QWidget;
class PanelObjNuevo;

// The form is drawn for a 1024×768 screen, in pixels of that design; the form adjustment scales
// it to the terminal's screen. Everything a finger must hit is at least kAltoToque high and
// every text at least kLetra points, so that a manager can work it by touch.
namespace disenio {
constexpr int kAncho = 1024;
constexpr int kAlto = 768;
constexpr int kAltoToque = 44;
constexpr int kLetra = 12;
constexpr int kLetraTitulo = 14;
// Height of the product screens; the on-screen keyboard lies below them.
constexpr int kAltoPantalla = 618;
}  // namespace disenio

// The controls of the form, each created with its control name, caption and design geometry.
QPushButton* CrearBoton(QWidget* padre, const QString& nombre, const QString& caption,
                        const QRect& geometria);
QLabel* CrearEtiqueta(QWidget* padre, const QString& nombre, const QString& caption,
                      const QRect& geometria);
// A label that shows a value rather than naming one: bold, so it reads apart from captions.
QLabel* CrearDato(QWidget* padre, const QString& nombre, const QString& caption,
                  const QRect& geometria);
QLineEdit* CrearCampo(QWidget* padre, const QString& nombre, const QRect& geometria);
QComboBox* CrearCombo(QWidget* padre, const QString& nombre, const QRect& geometria);
QCheckBox* CrearCasilla(QWidget* padre, const QString& nombre, const QString& caption,
                        const QRect& geometria);
QRadioButton* CrearOpcion(QWidget* padre, const QString& nombre, const QString& caption,
                          const QRect& geometria);
QListWidget* CrearLista(QWidget* padre, const QString& nombre, const QRect& geometria);
// A list box that shows a model, which becomes the list's.
QListView* CrearLista(QWidget* padre, const QString& nombre, const QRect& geometria,
                      QAbstractItemModel* modelo);
// A picture box: a framed label that shows a pixmap, or only its back colour.
QLabel* CrearImagen(QWidget* padre, const QString& nombre, const QRect& geometria);
// A frame of the form. Frames are flat; the screens and panels that cover others paint their
// whole background.
QGroupBox* CrearMarco(QWidget* padre, const QString& nombre, const QString& titulo,
                      const QRect& geometria);

// Makes a list easy to work with a finger: rows at least as high as a touch target and a scroll
// bar as wide as one.
void HacerListaTactil(QAbstractItemView* lista);

// Sets a widget's type size in points, and bold when asked.
void PonerLetra(QWidget* control, int puntos, bool negrita = false);
// Paints the background of a field or button as the colour scheme does (the focus colour and
// the field colour); an invalid colour leaves it as it is.
void PintarFondo(QWidget* control, const QColor& color);
// Makes option buttons one group of their own: setting one clears the others of the group
// only, whatever else shares their frame.
void AgruparOpciones(std::initializer_list<QRadioButton*> opciones);
// Unsets an option button even when it is the only one set of its group.
void DesmarcarOpcion(QRadioButton* opcion);
// Gives the check and option buttons of a form marks as large as a fingertip can tell apart.
void AgrandarMarcas(QWidget* formulario);

// The column of a product screen that sets up the product's button on the till: its family and
// the families panel, its picture, its colour, its numeric description and its position. Both
// product screens have one, laid out alike under their own control names.
struct ColumnaBotonCaja {
  QLabel* lblFamilia = nullptr;
  QLabel* nombreFamilia = nullptr;  // carries the family code in its property "codigo"
  PanelObjNuevo* panel = nullptr;
  QLabel* imagen = nullptr;
  QLabel* insertar = nullptr;
  QLabel* color = nullptr;
  QLabel* lblColor = nullptr;
  QLabel* lblDescNumerica = nullptr;
  QLineEdit* descNumerica = nullptr;
  QLabel* lblPosicion = nullptr;
  QPushButton* anterior = nullptr;
  QLabel* posicion = nullptr;
  QPushButton* siguiente = nullptr;
};

// The control names of a column, in the order of the fields of ColumnaBotonCaja.
ColumnaBotonCaja CrearColumnaBotonCaja(QWidget* padre, const QStringList& nombres);

// The two hints of a product screen: the name already in use, over the fields under the name,
// and the numeric description in use or missing, over the till-button column.
struct AvisosPantalla {
  QGroupBox* marcoNombre = nullptr;
  QLabel* nombre = nullptr;
  QGroupBox* marcoNumero = nullptr;
  QLabel* numero = nullptr;
};

// The control names in the order of the fields of AvisosPantalla.
AvisosPantalla CrearAvisosPantalla(QWidget* padre, const QStringList& nombres);
