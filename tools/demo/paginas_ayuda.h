#pragma once

#include <QList>
#include <QString>

// The help pages that the program opens from its "ayuda" folder: plain HTML with the styles in
// the page, in Spanish, for the manager who keeps the products.
struct PaginaAyuda {
  QString archivo;  // "A_Productos.html", ...
  QString titulo;
  QString html;
};

QList<PaginaAyuda> PaginasAyuda();
// Writes the pages (UTF-8) into the folder; throws std::runtime_error when one cannot be written.
void EscribirAyuda(const QString& carpeta);
