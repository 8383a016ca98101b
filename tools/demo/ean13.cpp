#include "ean13.h"

namespace {

bool SoloDigitos(const QString& texto) {
  for (QChar c : texto) {
    if (c < u'0' || c > u'9')
      return false;
  }
  return true;
}

}  // namespace

int DigitoControlEan13(const QString& doceDigitos) {
  if (doceDigitos.size() != 12 || !SoloDigitos(doceDigitos))
    return -1;
  int suma = 0;
  for (int i = 0; i < 12; ++i) {
    const int digito = doceDigitos.at(i).unicode() - u'0';
    suma += (i % 2 == 0) ? digito : 3 * digito;
  }
  return (10 - suma % 10) % 10;
}

QString CodigoEan13(const QString& doceDigitos) {
  const int control = DigitoControlEan13(doceDigitos);
  if (control < 0)
    return {};
  return doceDigitos + QChar(u'0' + control);
}

bool EsEan13Valido(const QString& codigo) {
  return codigo.size() == 13 && CodigoEan13(codigo.left(12)) == codigo;
}
