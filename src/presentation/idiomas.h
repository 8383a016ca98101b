#pragma once

#include <QSize>
#include <QString>
#include <QStringList>
#include <optional>

struct Entorno;
class QWidget;

// Captions of the forms: translated from "traducciones" when the language is not the default,
// and gathered into that table once per executable and form while it is. A form's name is its
// objectName; the executable's name is the installation's.
//
// Database failures of these services are not caught here: they reach the form's load handler,
// which logs them with its own context and goes on loading.

// Replaces the captions of the form's buttons, labels and frames by their translations.
void TraducirFormulario(Entorno& entorno, QWidget* formulario);
QString ObtenerIdioma(Entorno& entorno);
bool DebeRegistrarCaptions(Entorno& entorno, QWidget* formulario);
// The brand, address and telephone texts that are never gathered come from the installation's
// configuration ([traduccion] excluir=...; several values separated by '|'). Without that key
// they are the maker's brand, "dul vore" and "dulvore".
QStringList TextosExcluidos(const Entorno& entorno);
// Adds the caption and the marker "#@#" to the list unless the caption is filtered out: shorter
// than 3 characters, holding "@" or "www.", or holding, in any letter case, "Form", "frame",
// "label", "&H", "_", "Chr$", fourteen blanks in a row or one of the excluded texts.
void AnadirCaption(QString& lista, const QString& caption, const QStringList& excluidos);
// Inserts every caption of the list that "traducciones" does not hold yet (cut to 255
// characters, line breaks as one blank); existing rows, and so their translations, are kept.
void RegistrarCaptions(Entorno& entorno, const QString& lista);

// The size adjustment: scales the form, designed for a `diseno` screen, to a `pantalla` screen.
// Every control's left, top, width and height (and its minimum and maximum sizes), and grid
// column widths and row heights, follow the ratio of the screens in each direction; type sizes
// follow the smaller ratio, a little less on a smaller screen (never under 7 points), so that
// texts fit the controls. Controls
// placed by a layout keep the layout's geometry and only get their type scaled.
void ModificarTamano(QWidget* formulario, QSize diseno, QSize pantalla);
// Scales the form, designed at `diseno`, to the screen (the primary screen's available size
// unless `pantalla` is given), then gathers its captions when DebeRegistrarCaptions says so.
void AjustarFormulario(Entorno& entorno, QWidget* formulario, QSize diseno = {1024, 768},
                       std::optional<QSize> pantalla = std::nullopt);

// Captions that the bulk registration never gathers (compared whole): the fixed ones of the
// forms ("* * Bienvenido * *", "S/N:", "0123456789", "%", "*", "-15" and the plain numbers
// "1", "4", "5", "30", "37", "60", "90") and the installation's own ([traduccion]
// nuncaTraducir=...: the maker's name, address, telephone and e-mail lines, credits and the
// sample employee names, separated by '|'; blanks inside a value are kept, and a line ended by
// '|' keeps the last value's trailing blanks).
QStringList CaptionsNuncaTraducidos(const Entorno& entorno);
// The bulk registration of every caption of a form's buttons, labels and frames, with its fixed
// skip lists. Each new caption gets a row with identificador (the form's name), NombreControl,
// caption, an empty traduccion for the translator and software (the executable's name);
// captions already in the table are left as they are.
void RegistrarTodosLosCaptions(Entorno& entorno, QWidget* formulario);
