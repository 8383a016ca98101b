#pragma once

#include <QString>

// The user's regional settings, read and never written. Items as the system numbers them:
// 12 list separator, 14 decimal separator, 15 thousands separator, 29 date separator,
// 30 time separator, 80 positive sign, 81 negative sign; any other item gives the empty text.
// Taken from the default QLocale, so a test may set another with QLocale::setDefault.
QString LeerLocale(int item);
QString SeparadorDecimal();
// An amount formatted with exactly two decimals in the locale's conventions: the leading zero,
// the negative sign and the thousands separator every three digits ("1.234,50" in Spain,
// "1,234.50" in the United States, "-0,50").
QString FormatearImporte(double valor);
// A text of an amount in the locale's format ("1.234,5", "1234,5") or with '.' as the decimal
// point ("1234.5"), as a number; ok false (and 0) otherwise.
double ConvertirImporte(const QString& texto, bool* ok = nullptr);
