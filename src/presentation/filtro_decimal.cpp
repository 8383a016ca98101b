#include "filtro_decimal.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kEnter = 13;
constexpr int kRetroceso = 8;
constexpr int kPunto = 46;
constexpr int kComa = 44;

bool EsDigito(int tecla) {
  return tecla >= '0' && tecla <= '9';
}

}  // namespace

int FiltrarTeclaDecimal(int tecla, const QString& texto, int numDecimales,
                        const QString& separador) {
  const int sep = separador == u"."_s ? kPunto : kComa;
  if (tecla == kPunto && sep == kComa)
    tecla = kComa;
  if (tecla == kEnter)
    return 0;
  if (tecla == kRetroceso)
    return kRetroceso;

  const qsizetype posicion = texto.indexOf(QChar(sep));
  if (posicion >= 0) {
    // Once the decimals are complete no key is typed at all, not even a digit before the
    // separator: the amount is finished and only Backspace changes it.
    if (texto.size() - posicion == numDecimales + 1)
      return 0;
    return EsDigito(tecla) ? tecla : 0;
  }
  if (EsDigito(tecla))
    return tecla;
  if (tecla != sep)
    return 0;
  // An amount never starts with the separator, and takes none without decimals.
  return texto.isEmpty() || numDecimales == 0 ? 0 : tecla;
}
