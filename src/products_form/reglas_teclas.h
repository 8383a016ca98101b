#pragma once

#include <QString>

// The key rules of the form's fields and the arithmetic of the amounts, as plain functions of
// the key's character code and the field's text. A result of 0 drops the key.
namespace teclas {
constexpr int kRetroceso = 8;
constexpr int kEnter = 13;
constexpr int kEscape = 27;
constexpr int kComa = 44;
constexpr int kPunto = 46;
}  // namespace teclas

bool EsDigito(int tecla);

// Either "." or "," types the regional separator in the amount fields.
int MapearSeparador(int tecla, const QString& separador);

// The decimal rule after the whole-selection clearing: the separator mapping, then the amount
// filter with the decimals allowed.
int TeclaDecimal(int tecla, const QString& texto, int numDecimales, const QString& separador);

// Digits, Enter and Backspace pass; any other key is dropped (minimum stock and the numeric
// descriptions).
int TeclaSoloDigitos(int tecla);

// The price of cost plus margin, tax included: cost + margin + tax × (cost + margin) / 100.
double PrecioDesdeMargen(double coste, double margen, double iva);
// The margin left by a price: price − (cost + cost × tax / 100). Not the inverse of the price
// formula: the price's tax on the margin stays in the margin.
double MargenDesdePrecio(double precio, double coste, double iva);

// What a key of the on-screen keyboard (not Backspace or Enter) appends to a field, chosen by
// the field's control name: the amount fields pass it through the amount filter and append the
// character of its answer (the character of code 0 when it is refused); the stock fields take
// digits only (nothing otherwise); any other field takes the character as it is.
QString CaracterDeTeclaEnPantalla(const QString& nombreCampo, const QString& texto, int tecla,
                                  int numDecimales, const QString& separador);
