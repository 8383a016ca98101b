#pragma once

#include <QColor>
#include <QString>

// Colours as the suite stores them: a whole number with red in the lowest byte, then green,
// then blue (16777215 is white, 65280 pure green).
QColor ColorDesdeValor(qint64 valor);
qint64 ValorDeColor(const QColor& color);
// A decimal text of such a value; an empty or non-numeric text gives an invalid colour.
QColor ColorDesdeTexto(const QString& texto);
