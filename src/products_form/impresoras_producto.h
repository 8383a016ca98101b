#pragma once

#include <QString>
#include <QStringList>
#include <optional>

class ServicioDialogos;
struct Entorno;

inline const QString kContextoImpresoras = QStringLiteral("Impresoras  1");

inline const QString kMensajeImpresoraFueraDeModo =
    QStringLiteral("Para modificar la impresora es necesario estar en modo modificacion.");
inline const QString kTituloImpresoras = QStringLiteral("Impresoras Especificas");

// The printers offered by the chooser: names for lb_impresoras and, at the same positions, the
// codes for the hidden lbCodigos.
struct ImpresorasDisponibles {
  QStringList nombres;
  QStringList codigos;
  int cantidad = 0;
  // The printer buttons are shown only with more than two printers; the threshold is
  // deliberate and kept.
  bool mostrarBotones = false;
};
// Reads every printer; a failure is logged and gives an empty list (buttons hidden).
ImpresorasDisponibles CargarImpresorasDisponibles(Entorno& entorno);
bool MostrarBotonesImpresoras(int cantidad);

// lblNomProd while the chooser is open with no printer chosen yet.
QString CaptionImpresoraSinElegir(const QString& nombreProducto);
// lblNomProd once a printer row is chosen.
QString CaptionImpresoraElegida(const QString& nombreProducto, const QString& nombreImpresora);
// Whether a selected printer code means "no specific printer" (empty or "0").
bool SinImpresoraEspecifica(const QString& codigo);
// The caption to set when the chooser opens: only when no specific printer is chosen; a product
// that already has one keeps its caption (nothing).
std::optional<QString> CaptionAlAbrirImpresoras(const QString& codigoElegido,
                                                const QString& nombreProducto);
// The printer code kept when the chooser is accepted: the code at the chosen position, "0"
// when no row is chosen or the code is empty.
QString CodigoImpresoraAceptada(const QStringList& codigos, int fila);
// The notice of the accept and clear buttons outside change mode.
void AvisarImpresoraFueraDeModo(ServicioDialogos& dialogos);

// The stored values of the option buttons. Nothing means the column is not written.
std::optional<int> ValorHechoEn(bool optCocina, bool optBarra);  // 2 kitchen, 1 bar
std::optional<int> ValorTipoProd(bool optVenta, bool optAmbos,
                                 bool optCocinaBarra);  // 1 sale, 2 both, 0 internal
int ValorImpresora(const QString& codigoElegido);       // 0 when none
