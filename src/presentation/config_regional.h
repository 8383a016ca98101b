#pragma once

#include <QString>

// The user's regional settings, read and never written. Items as the system numbers them:
// 14 is the decimal separator, 15 the thousands separator. Taken from the default QLocale, so a
// test may set another with QLocale::setDefault.
QString LeerLocale(int item);
QString SeparadorDecimal();
// An amount formatted with exactly two decimals in the locale's conventions ("1.234,50").
QString FormatearImporte(double valor);
// A text of an amount in the locale's format (or with '.'), as a number; ok false otherwise.
double ConvertirImporte(const QString& texto, bool* ok = nullptr);
