#pragma once

#include <QString>

#include "datos_catalogo.h"

class Conexion;

// Writes the demo data (datos_catalogo.h) into databases that already hold the schema, each in
// one transaction: a failure leaves the database without any demo rows. Throws ErrorBD, or
// std::runtime_error when the data tables contradict themselves (a recipe naming no product).

// The main database: catalogue, options of the installation "INST1" and its terminals, colour
// schemes, translations and permissions. rutaFotos is the installation's pictures folder as the
// program must find it (absolute, ending in a separator); idioma the language of the options.
// esquema: the colour scheme of every terminal; 0 keeps each terminal's own.
void LlenarBasePrincipal(Conexion& conexion, const QString& rutaFotos, const QString& idioma,
                         int esquema = 0);
// The reports source: the one row that names the program type, the installation and terminal.
void LlenarBaseInformes(Conexion& conexion, const QString& sufijoTerminal);

// Values derived from the data tables, shared with the pictures and the tests.

// A file-name-safe form of a name: lower case, no accents, '_' between words.
QString NombreArchivo(const QString& nombre);
QString FotoFamilia(int familia);    // "f_...png"; familia counts from 1
QString FotoProducto(int codigo);    // "p_...jpg"; empty for a product without picture
QString CodigoBarras(int codigo);    // valid EAN-13: maker's for packaged goods, else in-store
double MargenComercial(int codigo);  // price without tax less cost, to the cent; 0 without price
int DescripcionNumerica(int codigo);
int CodigoProducto(const QString& nombre);  // throws std::runtime_error for an unknown name
