#pragma once

#include <QString>

// The key filter of the amount fields. Given a key code, the field's current text, the decimals
// allowed and the regional separator ("." or ","), returns the key code to use; 0 rejects it.
// Enter is swallowed (0), Backspace always passes, a "." key becomes "," where "," is the
// separator, and only digits and one separator are typed: never more decimals than allowed,
// never a separator first or with no decimals allowed, never a sign.
int FiltrarTeclaDecimal(int tecla, const QString& texto, int numDecimales,
                        const QString& separador);
