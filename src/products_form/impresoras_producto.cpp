#include "impresoras_producto.h"

#include <cmath>

#include "dialogos.h"
#include "entorno.h"
#include "error_bd.h"
#include "recordset.h"
#include "val.h"

using namespace Qt::Literals::StringLiterals;

ImpresorasDisponibles CargarImpresorasDisponibles(Entorno& entorno) {
  ImpresorasDisponibles impresoras;
  try {
    Recordset rs(*entorno.ConexionBD, u"select * from impresoras"_s);
    if (rs.recordCount() > 0) {
      for (rs.moveFirst(); !rs.eof(); rs.moveNext()) {
        impresoras.nombres.append(rs.field(u"nombre"_s).toString());
        impresoras.codigos.append(rs.field(u"codigo"_s).toString());
      }
    }
    rs.close();
  } catch (const ErrorBD& e) {
    entorno.RegistrarError(kContextoImpresoras, e.descripcion());
    impresoras = {};
  }
  impresoras.cantidad = static_cast<int>(impresoras.nombres.size());
  impresoras.mostrarBotones = MostrarBotonesImpresoras(impresoras.cantidad);
  return impresoras;
}

bool MostrarBotonesImpresoras(int cantidad) {
  return cantidad > 2;
}

QString CaptionImpresoraSinElegir(const QString& nombreProducto) {
  return u"Producto = "_s + nombreProducto + u" = su elaboracion saldra X la impresora de "_s;
}

QString CaptionImpresoraElegida(const QString& nombreProducto, const QString& nombreImpresora) {
  return CaptionImpresoraSinElegir(nombreProducto) + nombreImpresora;
}

bool SinImpresoraEspecifica(const QString& codigo) {
  return codigo.isEmpty() || codigo == u"0"_s;
}

std::optional<QString> CaptionAlAbrirImpresoras(const QString& codigoElegido,
                                                const QString& nombreProducto) {
  if (!SinImpresoraEspecifica(codigoElegido))
    return std::nullopt;
  return CaptionImpresoraSinElegir(nombreProducto);
}

QString CodigoImpresoraAceptada(const QStringList& codigos, int fila) {
  const QString codigo = fila >= 0 && fila < codigos.size() ? codigos.at(fila) : QString();
  return codigo.isEmpty() ? u"0"_s : codigo;
}

void AvisarImpresoraFueraDeModo(ServicioDialogos& dialogos) {
  dialogos.mensaje(kMensajeImpresoraFueraDeModo, kTituloImpresoras,
                   ServicioDialogos::Icono::Informacion);
}

std::optional<int> ValorHechoEn(bool optCocina, bool optBarra) {
  if (optCocina)
    return 2;
  if (optBarra)
    return 1;
  return std::nullopt;
}

std::optional<int> ValorTipoProd(bool optVenta, bool optAmbos, bool optCocinaBarra) {
  if (optVenta)
    return 1;
  if (optAmbos)
    return 2;
  if (optCocinaBarra)
    return 0;
  return std::nullopt;
}

int ValorImpresora(const QString& codigoElegido) {
  if (codigoElegido.isEmpty())
    return 0;
  return static_cast<int>(std::lround(ValJet(codigoElegido)));
}
