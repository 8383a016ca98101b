#pragma once

#include <QList>
#include <QString>

class QFont;
class QWidget;

// How the form services see a form's widgets. A form's "controls" are its descendant widgets in
// creation order (depth first, as findChildren returns them), walked as the suite's forms walk
// their control collections:
//   - the walk goes inside frames (QGroupBox and its subclasses), plain QWidget and QFrame
//     panels, QStackedWidget, QTabWidget pages, QScrollArea contents and QSplitter;
//   - other widgets are single controls: their inner parts (a combo's line edit, a grid's
//     headers, the buttons of a custom panel class such as the paged button panel) are theirs,
//     not the form's. A custom class that only groups controls opts in with
//     setProperty("contenedor", true);
//   - Qt's own helper widgets (names starting "qt_") and separate windows are never controls.
// The kinds:
//   command button: QPushButton;  label: QLabel;  frame: QGroupBox (the panels "fr_...");
//   entry control: QLineEdit, QTextEdit, QPlainTextEdit, QComboBox, the list boxes (QListView) and
//   the spin boxes (they all take typed or listed values); grid: QTableWidget (any QTableView);
//   anything else (check and option buttons, pictures, panels): other.
enum class TipoControl { Boton, Etiqueta, Marco, Entrada, Rejilla, Otro };

TipoControl TipoDe(const QWidget* control);
QList<QWidget*> ControlesDe(QWidget* formulario);
// The caption of a button, label or frame (text or title); empty for other kinds.
QString CaptionDe(const QWidget* control);
void PonerCaption(QWidget* control, const QString& caption);

// A control of the form by name: the exact name first, then ignoring letter case (the suite's
// control names are not case-sensitive). Searches every descendant; nullptr when none.
QWidget* BuscarControl(QWidget* formulario, const QString& nombre);

// The frame or form that holds a control: its nearest ancestor that is the form or one of the
// form's controls (Qt's helper widgets are skipped).
QWidget* ContenedorDe(const QWidget* control, const QWidget* formulario);

// Multiplies the type size of the form and of every control by a factor. All sizes are read
// before any is set, so that a size inherited from a container is not scaled twice; no type
// becomes smaller than minimoPuntos points.
void EscalarLetras(QWidget* formulario, double factor, double minimoPuntos = 7.0);
QFont LetraEscalada(const QFont& letra, double factor, double minimoPuntos);
