#pragma once

#include <QStringView>
#include <QtGlobal>
#include <optional>

// The numeric value at the start of a text, as the suite's desktop database's Val() reads it:
// blanks anywhere are skipped, a sign, digits, one decimal point and an exponent are taken, the
// rest is ignored. "12abc" is 12, "" and "abc" are 0, "-3.5e2" is -350. Also &H and &O numbers.
double ValJet(QStringView texto);
// The whole part of ValJet(texto) when it fits in 64 bits; nothing otherwise.
std::optional<qint64> ValEntero(QStringView texto);
