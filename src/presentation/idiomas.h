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

// Replaces the captions of the form's buttons, labels and frames by their translations.
void TraducirFormulario(Entorno& entorno, QWidget* formulario);
QString ObtenerIdioma(Entorno& entorno);
bool DebeRegistrarCaptions(Entorno& entorno, QWidget* formulario);
// The brand, address and telephone texts that are never gathered come from the installation's
// configuration ([traduccion] excluir=...; several values separated by '|').
QStringList TextosExcluidos(const Entorno& entorno);
void AnadirCaption(QString& lista, const QString& caption, const QStringList& excluidos);
void RegistrarCaptions(Entorno& entorno, const QString& lista);
// Scales the form, designed at `diseno`, to the screen (the primary screen's available size
// unless `pantalla` is given), then gathers its captions when DebeRegistrarCaptions says so.
void AjustarFormulario(Entorno& entorno, QWidget* formulario, QSize diseno = {1024, 768},
                       std::optional<QSize> pantalla = std::nullopt);
// The bulk registration of every caption of a form, with its fixed skip lists.
void RegistrarTodosLosCaptions(Entorno& entorno, QWidget* formulario);
