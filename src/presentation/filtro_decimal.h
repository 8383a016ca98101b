#pragma once

#include <QString>

// The key filter of the amount fields. Given a key code, the field's current text, the decimals
// allowed and the regional separator ("." or ","), returns the key code to use; 0 rejects it.
int FiltrarTeclaDecimal(int tecla, const QString& texto, int numDecimales,
                        const QString& separador);
