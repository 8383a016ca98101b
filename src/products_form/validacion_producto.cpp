#include "validacion_producto.h"

#include <cmath>

#include "config_regional.h"
#include "dialogos.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// The thousands separator item of the regional settings.
constexpr int kItemSeparadorMiles = 15;

bool EsDigito(QChar c) {
  return c >= u'0' && c <= u'9';
}

bool EsBlanco(QChar c) {
  return c == u' ' || c == u'\t';
}

std::optional<double> ValorBase(const QString& cifras, int base) {
  if (cifras.isEmpty() || cifras.size() > 16)
    return std::nullopt;
  bool ok = false;
  const qulonglong valor = cifras.toULongLong(&ok, base);
  if (!ok)
    return std::nullopt;
  return static_cast<double>(valor);
}

}  // namespace

std::optional<double> ValorNumerico(const QString& texto, const QString& separadorDecimal,
                                    const QString& separadorMiles) {
  qsizetype inicio = 0;
  qsizetype fin = texto.size();
  while (inicio < fin && EsBlanco(texto.at(inicio)))
    ++inicio;
  while (fin > inicio && EsBlanco(texto.at(fin - 1)))
    --fin;
  const QString t = texto.mid(inicio, fin - inicio);
  if (t.isEmpty())
    return std::nullopt;

  if (t.size() >= 2 && t.at(0) == u'&') {
    const QChar base = t.at(1).toUpper();
    if (base == u'H')
      return ValorBase(t.mid(2), 16);
    if (base == u'O')
      return ValorBase(t.mid(2), 8);
    return std::nullopt;
  }

  const QString decimal = separadorDecimal.isEmpty() ? u"."_s : separadorDecimal;
  QString miles = separadorMiles;
  if (miles.isEmpty() || miles == decimal)
    miles = decimal == u","_s ? u"."_s : u","_s;

  QString numero;
  qsizetype i = 0;
  if (t.at(i) == u'+' || t.at(i) == u'-')
    numero += t.at(i++);
  bool digitos = false;
  while (i < t.size()) {
    if (EsDigito(t.at(i))) {
      numero += t.at(i++);
      digitos = true;
    } else if (digitos && QStringView(t).mid(i).startsWith(miles)) {
      i += miles.size();
    } else {
      break;
    }
  }
  if (QStringView(t).mid(i).startsWith(decimal)) {
    numero += u'.';
    i += decimal.size();
    while (i < t.size() && EsDigito(t.at(i))) {
      numero += t.at(i++);
      digitos = true;
    }
  }
  if (!digitos)
    return std::nullopt;
  if (i < t.size() && (t.at(i).toUpper() == u'E' || t.at(i).toUpper() == u'D')) {
    numero += u'e';
    ++i;
    if (i < t.size() && (t.at(i) == u'+' || t.at(i) == u'-'))
      numero += t.at(i++);
    bool exponente = false;
    while (i < t.size() && EsDigito(t.at(i))) {
      numero += t.at(i++);
      exponente = true;
    }
    if (!exponente)
      return std::nullopt;
  }
  if (i != t.size())
    return std::nullopt;
  bool ok = false;
  const double valor = numero.toDouble(&ok);
  if (!ok || !std::isfinite(valor))
    return std::nullopt;
  return valor;
}

bool EsNumerico(const QString& texto, const QString& separadorDecimal,
                const QString& separadorMiles) {
  return ValorNumerico(texto, separadorDecimal, separadorMiles).has_value();
}

std::optional<double> ValorNumerico(const QString& texto) {
  return ValorNumerico(texto, SeparadorDecimal(), LeerLocale(kItemSeparadorMiles));
}

bool EsNumerico(const QString& texto) {
  return ValorNumerico(texto).has_value();
}

std::optional<FalloValidacion> ComprobarCamposObligatorios(const CamposObligatorios& c) {
  auto fallo = [](int numero, const QString& mensaje, const QString& campo) {
    return std::optional<FalloValidacion>(FalloValidacion{numero, mensaje, campo});
  };
  if (c.nombre.isEmpty())
    return fallo(1, u"El nombre no puede estar vacio."_s, u"txt_nombre"_s);
  if (c.coste.isEmpty())
    return fallo(2, u"El coste no puede estar vacio"_s, u"txt_coste"_s);
  if (!EsNumerico(c.coste))
    return fallo(3, u"Ingrese el coste del producto"_s, u"txt_coste"_s);
  if (c.iva.isEmpty())
    return fallo(4, u"Ingrese un valor del impuesto"_s, u"txt_iva"_s);
  if (!EsNumerico(c.iva))
    return fallo(5, u"Ingrese un valor de impuesto valido"_s, u"txt_iva"_s);
  // The two texts differ only by the final full stop; the till's staff know both.
  if (c.stockMinimo.isEmpty()) {
    return fallo(6, u"Ingrese el stock minimo que puede ser 1"_s, u"txt_stock_minimo"_s);
  }
  if (!EsNumerico(c.stockMinimo)) {
    return fallo(6, u"Ingrese el stock minimo que puede ser 1."_s, u"txt_stock_minimo"_s);
  }
  // An empty price is also not numeric, so a kitchen or bar product needs a price too.
  if ((c.precio.isEmpty() && !c.productoCocinaBarra) || !EsNumerico(c.precio)) {
    return fallo(7, u"Ingrese el precio"_s, u"txt_precio"_s);
  }
  if (c.unidadMedida.isEmpty()) {
    return fallo(8, u"Seleccione la unidad de medida"_s, u"cbo_Medida"_s);
  }
  if (c.proveedoresAsignados < 1) {
    return fallo(9, u"Seleccione el proveedor"_s, u"cmd_Proveedor"_s);
  }
  if (!c.optCocina && !c.optBarra && !c.chkProdEspecial) {
    return fallo(10, u"Seleccione el lugar de servir o preparar el producto."_s, u"optCocina"_s);
  }
  if (c.existeCodBarras && c.existeCodBarras(c.codigoBarras)) {
    return fallo(11, u"El codigo de barras ya existe."_s, u"txtCodBarras"_s);
  }
  return std::nullopt;
}

void MostrarFalloValidacion(ServicioDialogos& dialogos, const FalloValidacion& fallo) {
  dialogos.mensaje(fallo.mensaje, TituloPrograma(), ServicioDialogos::Icono::Critico);
  dialogos.mensaje(kMensajeCamposRequeridos, TituloPrograma(),
                   ServicioDialogos::Icono::Informacion);
}

bool bComprobarCamposObligatorios(ServicioDialogos& dialogos, const CamposObligatorios& campos) {
  const std::optional<FalloValidacion> fallo = ComprobarCamposObligatorios(campos);
  if (fallo)
    MostrarFalloValidacion(dialogos, *fallo);
  return !fallo;
}
