#include "reglas_teclas.h"

#include <QStringList>

#include "filtro_decimal.h"

using namespace Qt::Literals::StringLiterals;

bool EsDigito(int tecla) {
  return tecla >= '0' && tecla <= '9';
}

int MapearSeparador(int tecla, const QString& separador) {
  if (separador != u"."_s)
    return tecla == teclas::kPunto ? teclas::kComa : tecla;
  return tecla == teclas::kComa ? teclas::kPunto : tecla;
}

int TeclaDecimal(int tecla, const QString& texto, int numDecimales, const QString& separador) {
  return FiltrarTeclaDecimal(MapearSeparador(tecla, separador), texto, numDecimales, separador);
}

int TeclaSoloDigitos(int tecla) {
  if (tecla == teclas::kEnter || tecla == teclas::kRetroceso || EsDigito(tecla))
    return tecla;
  return 0;
}

double PrecioDesdeMargen(double coste, double margen, double iva) {
  return coste + margen + iva * (coste + margen) / 100;
}

double MargenDesdePrecio(double precio, double coste, double iva) {
  return precio - (coste + coste * iva / 100);
}

QString CaracterDeTeclaEnPantalla(const QString& nombreCampo, const QString& texto, int tecla,
                                  int numDecimales, const QString& separador) {
  // The names are compared exactly, as the keyboard always has: the elaborated tax field is
  // spelt "txt_ImpuestoElaborado", so the lower-case name below never matches it and that
  // field takes any key.
  static const QStringList kImportes = {
      u"txt_Cantidad"_s,          u"txt_PrecioElaborado"_s, u"txt_precio"_s, u"txt_margen"_s,
      u"txt_impuestoelaborado"_s, u"txt_costeElaborado"_s,  u"txt_iva"_s,    u"txt_coste"_s};
  static const QStringList kExistencias = {u"txt_StockElaborado"_s, u"txt_stock_minimo"_s};
  if (kImportes.contains(nombreCampo)) {
    return QString(QChar(FiltrarTeclaDecimal(tecla, texto, numDecimales, separador)));
  }
  if (kExistencias.contains(nombreCampo))
    return EsDigito(tecla) ? QString(QChar(tecla)) : QString();
  return QString(QChar(tecla));
}
