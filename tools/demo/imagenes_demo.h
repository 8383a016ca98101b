#pragma once

#include <QColor>
#include <QImage>
#include <QString>

#include "datos_catalogo.h"

// The pictures of the demo installation, drawn rather than shipped: each is a rounded tile of
// the family's colour with a simple figure and the name's initials, small enough for the till's
// buttons (well under the 75,000 bytes that the products form accepts). Drawing text needs a
// QGuiApplication.

// Up to two capitals from the name's main words ("Café con leche" -> "CL"); a single main word
// gives its first two letters ("Tónica" -> "TÓ").
QString Iniciales(const QString& nombre);
QImage DibujarFicha(const QString& nombre, const QColor& fondo, Figura figura, int lado = 160);
// The picture shown for a product without one.
QImage DibujarSinFoto(int lado = 160);
// Writes a picture per family and per product that has one, and "defecto.gif", into the folder.
// Throws std::runtime_error when a file cannot be written.
void EscribirFotos(const QString& carpeta);
