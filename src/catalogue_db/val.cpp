#include "val.h"

#include <QString>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

std::optional<qint64> ValEntero(QStringView texto) {
  const double v = std::floor(ValJet(texto));
  // 2^63 is the first double beyond qint64; below it every whole double converts exactly.
  if (v < -9223372036854775808.0 || v >= 9223372036854775808.0)
    return std::nullopt;
  return static_cast<qint64>(v);
}

double ValJet(QStringView texto) {
  QString s;
  s.reserve(texto.size());
  for (QChar c : texto) {
    if (c != u' ' && c != u'\t' && c != u'\n' && c != u'\r')
      s += c;
  }
  if (s.size() >= 2 && s.at(0) == u'&') {
    const QChar base = s.at(1).toUpper();
    const int radix = base == u'H' ? 16 : (base == u'O' ? 8 : 0);
    if (radix != 0) {
      qsizetype i = 2;
      // Summed as a double: a long run of digits grows past every integer type.
      double valor = 0;
      while (i < s.size()) {
        const int d = s.at(i).isDigit()
                          ? s.at(i).digitValue()
                          : (radix == 16 && s.at(i).toUpper() >= u'A' && s.at(i).toUpper() <= u'F'
                                 ? s.at(i).toUpper().unicode() - u'A' + 10
                                 : -1);
        if (d < 0 || d >= radix)
          break;
        valor = valor * radix + d;
        ++i;
      }
      return valor;
    }
  }
  qsizetype i = 0;
  QString numero;
  if (i < s.size() && (s.at(i) == u'+' || s.at(i) == u'-'))
    numero += s.at(i++);
  bool digitos = false;
  while (i < s.size() && s.at(i).isDigit() && s.at(i).unicode() < 128) {
    numero += s.at(i++);
    digitos = true;
  }
  if (i < s.size() && s.at(i) == u'.') {
    numero += s.at(i++);
    while (i < s.size() && s.at(i).isDigit() && s.at(i).unicode() < 128) {
      numero += s.at(i++);
      digitos = true;
    }
  }
  if (!digitos)
    return 0.0;
  if (i < s.size() && (s.at(i).toUpper() == u'E' || s.at(i).toUpper() == u'D')) {
    QString exponente = u"e"_s;
    qsizetype j = i + 1;
    if (j < s.size() && (s.at(j) == u'+' || s.at(j) == u'-'))
      exponente += s.at(j++);
    bool conDigitos = false;
    while (j < s.size() && s.at(j).isDigit() && s.at(j).unicode() < 128) {
      exponente += s.at(j++);
      conDigitos = true;
    }
    if (conDigitos)
      numero += exponente;
  }
  bool ok = false;
  const double v = numero.toDouble(&ok);
  return ok && std::isfinite(v) ? v : 0.0;
}
