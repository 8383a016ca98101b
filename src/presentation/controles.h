#pragma once

#include <QList>
#include <QString>

class QWidget;

// How the form services see a form's widgets. A form's "controls" are all its descendant widgets
// in creation order (depth first, as findChildren returns them). The kinds:
//   command button: QPushButton;  label: QLabel;  frame: QGroupBox (the panels "fr_...");
//   entry control: QLineEdit, QTextEdit, QPlainTextEdit, QComboBox, QListWidget;
//   grid: QTableWidget;  anything else (check and option buttons, pictures, panels): other.
enum class TipoControl { Boton, Etiqueta, Marco, Entrada, Rejilla, Otro };

TipoControl TipoDe(const QWidget* control);
QList<QWidget*> ControlesDe(QWidget* formulario);
// The caption of a button, label or frame (text or title); empty for other kinds.
QString CaptionDe(const QWidget* control);
void PonerCaption(QWidget* control, const QString& caption);
