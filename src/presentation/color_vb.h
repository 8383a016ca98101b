#pragma once

#include <QColor>
#include <QString>

// Colours as the suite stores them: a whole number with red in the lowest byte, then green,
// then blue (16777215 is white, 65280 pure green). A value with the high bit set
// (&H80000000 + n) names the desktop's system colour n, as the suite's forms allow; it is
// taken from the application's palette.
QColor ColorDesdeValor(qint64 valor);
qint64 ValorDeColor(const QColor& color);
// A decimal text of such a value; an empty or non-numeric text gives an invalid colour.
QColor ColorDesdeTexto(const QString& texto);
