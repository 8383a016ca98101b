#pragma once

#include <QString>

// Barcodes of the demo catalogue: EAN-13, twelve digits and a check digit.

// The check digit of twelve digits (weights 1 and 3 from the left); -1 when the text is not
// exactly twelve digits.
int DigitoControlEan13(const QString& doceDigitos);
// The thirteen-digit code of twelve digits; empty when they are not twelve digits.
QString CodigoEan13(const QString& doceDigitos);
// True for thirteen digits whose last one is the right check digit.
bool EsEan13Valido(const QString& codigo);
