#include "config_regional.h"

#include <QLocale>
#include <QRegularExpression>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kSeparadorLista = 12;
constexpr int kSeparadorDecimal = 14;
constexpr int kSeparadorMiles = 15;
constexpr int kSeparadorFecha = 29;
constexpr int kSeparadorHora = 30;
constexpr int kSignoPositivo = 80;
constexpr int kSignoNegativo = 81;

QString ValorDeLocale(const QLocale& l, int item) {
  switch (item) {
    case kSeparadorLista:
      // Where the decimal separator is a comma, lists are separated by semicolons.
      return l.decimalPoint() == u","_s ? u";"_s : u","_s;
    case kSeparadorDecimal:
      return l.decimalPoint();
    case kSeparadorMiles:
      return l.groupSeparator();
    case kSeparadorFecha: {
      static const QRegularExpression sep(uR"([^dMy])"_s);
      const QString formato = l.dateFormat(QLocale::ShortFormat);
      const QRegularExpressionMatch m = sep.match(formato);
      return m.hasMatch() ? m.captured(0) : QString();
    }
    case kSeparadorHora: {
      static const QRegularExpression sep(uR"([^hHms])"_s);
      const QString formato = l.timeFormat(QLocale::ShortFormat);
      const QRegularExpressionMatch m = sep.match(formato);
      return m.hasMatch() ? m.captured(0) : QString();
    }
    case kSignoPositivo:
      return l.positiveSign();
    case kSignoNegativo:
      return l.negativeSign();
    default:
      return {};
  }
}

// The integer digits with the separator every three digits from the right.
QString Agrupar(const QString& digitos, const QString& separador) {
  QString r;
  const qsizetype n = digitos.size();
  for (qsizetype i = 0; i < n; ++i) {
    if (i > 0 && (n - i) % 3 == 0)
      r += separador;
    r += digitos.at(i);
  }
  return r;
}

}  // namespace

QString LeerLocale(int item) {
  QString valor = ValorDeLocale(QLocale(), item);
  // The system answers into a fixed buffer: the text ends at the first null character.
  const qsizetype nulo = valor.indexOf(QChar(u'\0'));
  if (nulo >= 0)
    valor.truncate(nulo);
  return valor.trimmed();
}

QString SeparadorDecimal() {
  return LeerLocale(kSeparadorDecimal);
}

QString FormatearImporte(double valor) {
  // Grouped by hand: the locale data group four-digit amounts in some regions and not in
  // others, and the suite shows "1.234,50" on every till.
  const QString fijo = QString::number(std::abs(valor), 'f', 2);
  const qsizetype punto = fijo.indexOf(u'.');
  const QString entero = Agrupar(fijo.left(punto), LeerLocale(kSeparadorMiles));
  QString r = entero + SeparadorDecimal() + fijo.mid(punto + 1);
  if (valor < 0 && fijo != u"0.00"_s)
    r.prepend(LeerLocale(kSignoNegativo));
  return r;
}

double ConvertirImporte(const QString& texto, bool* ok) {
  const QLocale l;
  QString t = texto.trimmed();
  const QString decimal = l.decimalPoint();
  const QString miles = l.groupSeparator();
  // Thousands separators are taken out only where they stand as the locale groups digits.
  const QRegularExpression agrupado(u"^[+-]?\\d{1,3}(%1\\d{3})+(%2\\d*)?$"_s.arg(
      QRegularExpression::escape(miles), QRegularExpression::escape(decimal)));
  if (!miles.isEmpty() && agrupado.match(t).hasMatch())
    t.remove(miles);
  if (decimal != u"."_s)
    t.replace(decimal, u"."_s);
  t.replace(l.negativeSign(), u"-"_s);
  static const QRegularExpression numero(uR"(^[+-]?(\d+\.?\d*|\.\d+)$)"_s);
  bool valido = numero.match(t).hasMatch();
  double valor = valido ? t.toDouble(&valido) : 0.0;
  if (!valido)
    valor = 0.0;
  if (ok)
    *ok = valido;
  return valor;
}
