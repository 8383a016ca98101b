#pragma once

#include <QString>
#include <QStringList>
#include <QtGlobal>
#include <optional>

class Conexion;
class ServicioDialogos;
struct Entorno;

inline const QString kContextoHayProveedores = QStringLiteral("Proveedores  1");
inline const QString kContextoListasProveedores = QStringLiteral("Proveedores  2");
inline const QString kContextoGuardarProveedores = QStringLiteral("Proveedores  3");
inline const QString kContextoProveedoresSinProducto = QStringLiteral("Proveedores  4");

inline const QString kMensajeSinProveedores =
    QStringLiteral("Antes de dar de alta productos tiene que dar de alta algun proveedor");
// The supplier button's caption while a new product has no supplier yet.
inline const QString kCaptionSinProveedores = QStringLiteral("Seleccione sus proveedores");

// Supplier lines carry the code in their last 6 characters, so a supplier code has at most 6.
inline constexpr int kLargoCodigoProveedor = 6;

// A supplier line: the name, 120 blanks and the code.
QString LineaProveedor(const QString& nombre, const QString& codigo);
// The code of a supplier line: its last 6 characters without surrounding blanks.
QString CodigoDeLineaProveedor(const QString& linea);
// The name of a supplier line: the text before its first run of three blanks.
QString NombreDeLineaProveedor(const QString& linea);
// Whether a line of the assigned list carries the supplier code.
bool bProveedorAsignado(const QStringList& asignados, const QString& codigo);

// Whether there is any live supplier; a failure is logged and answers false.
bool bHayProveedores(Entorno& entorno);
// The notice shown by "Nuevo" when there is no supplier.
void AvisarSinProveedores(ServicioDialogos& dialogos);

// Both lists of the supplier panel for a product.
struct ListasProveedores {
  QStringList libres;     // lb_Proveedores
  QStringList asignados;  // lb_ProveedoresAsignados, the main supplier first
};
// Reads the lists as the panel always has: the free list holds every supplier without a link to
// the product, deleted ones included, and so also the main supplier when it has no link; the
// assigned list holds the main supplier first, then the other linked suppliers. A failure is
// logged and leaves what was read so far.
ListasProveedores CargarListasProveedores(Entorno& entorno, qint64 codigo);

// Replaces the product's links with one per assigned line (cost 0): the main supplier is
// linked like every other. Throws ErrorBD; runs inside the caller's transaction.
void EscribirProveedores(Conexion& conexion, qint64 codigo, const QStringList& asignados);
// The same as one transaction of its own; a failure is logged, leaves the old links and answers
// false.
bool GuardarProveedores(Entorno& entorno, qint64 codigo, const QStringList& asignados);

// The same for a product being created, under the code offered to it. When another terminal has
// saved a product under that code meanwhile, the code moves on to the next free one first (in
// the transaction that new codes are taken in), so that links of an unsaved product never land
// on a saved one. The result is the code the links were written under; on failure it is logged,
// the old links stay, and there is none.
std::optional<qint64> GuardarProveedoresProductoNuevo(Entorno& entorno, qint64 codigo,
                                                      const QStringList& asignados);

// Removes the links written for a product that was never saved (a new product abandoned);
// links of a saved product are untouched. A failure is logged.
void BorrarProveedoresSinProducto(Entorno& entorno, qint64 codigo);
// The same inside the caller's transaction; throws ErrorBD.
void BorrarProveedoresSinProducto(Conexion& conexion, qint64 codigo);

// The supplier button's caption after the panel is accepted: the name of the supplier listed
// last; with no supplier assigned the caption stays as it is.
QString CaptionTrasAceptarProveedores(const QStringList& asignados, const QString& captionActual);
