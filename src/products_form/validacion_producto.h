#pragma once

#include <QString>
#include <functional>
#include <optional>

class ServicioDialogos;

// "Is numeric" as the suite's forms test a typed amount, in the user's regional settings:
//  - blanks and tabs around the text are ignored; the empty text is not numeric;
//  - an optional sign (+ or -) in front;
//  - digits, with the thousands separator allowed anywhere after the first digit and before the
//    decimal separator (the suite's test is that lax: "1.2.3" is numeric in Spain, and is 123);
//  - one decimal separator; digits may stand on either side ("5," and ",5" are numeric);
//  - an exponent E or D with an optional sign and at least one digit ("1e3" and "1D3" are 1000);
//  - hexadecimal &H1F and octal &O17 whole numbers;
//  - nothing else: currency signs, brackets, trailing signs and inner blanks make the text
//    not numeric, and so does a value too large for a double ("1e999").
// The decimal separator is the one the user's settings give; the other mark ("." or ",") is
// taken as the thousands separator when the settings name none.
bool EsNumerico(const QString& texto, const QString& separadorDecimal,
                const QString& separadorMiles);
std::optional<double> ValorNumerico(const QString& texto, const QString& separadorDecimal,
                                    const QString& separadorMiles);
// The same with the user's current separators.
bool EsNumerico(const QString& texto);
std::optional<double> ValorNumerico(const QString& texto);

// What the required-fields check of a simple product reads from the form.
struct CamposObligatorios {
  QString nombre;                    // txt_nombre
  QString coste;                     // txt_coste
  QString iva;                       // txt_iva
  QString stockMinimo;               // txt_stock_minimo
  QString precio;                    // txt_precio
  bool productoCocinaBarra = false;  // opt_cocina: internal product, no price needed
  QString unidadMedida;              // cbo_Medida's text; empty when no unit is chosen
  int proveedoresAsignados = 0;      // lines of lb_ProveedoresAsignados
  bool optCocina = false;
  bool optBarra = false;
  bool chkProdEspecial = false;
  QString codigoBarras;  // txtCodBarras
  // Whether another product bears the barcode (existeCodBarras with the current code).
  std::function<bool(const QString&)> existeCodBarras;
};

// The check that failed: its place in the order (1 to 11), its message, and the control it is
// about. The barcode check (11) selects the barcode text and focuses its box before the second
// message; after the second message the name box always takes the focus.
struct FalloValidacion {
  int numero = 0;
  QString mensaje;
  QString campo;
};

inline const QString kMensajeCamposRequeridos =
    QStringLiteral("Debe establecer valor para todos los campos requeridos");
inline const QString kCampoFocoTrasFallo = QStringLiteral("txt_nombre");

// The eleven checks in their order; nothing when all pass.
std::optional<FalloValidacion> ComprobarCamposObligatorios(const CamposObligatorios& campos);

// Shows a failed check as the form does: its message with the critical icon, then at once the
// second message with the information icon.
void MostrarFalloValidacion(ServicioDialogos& dialogos, const FalloValidacion& fallo);

// The check with its messages: true when saving may go on.
bool bComprobarCamposObligatorios(ServicioDialogos& dialogos, const CamposObligatorios& campos);
