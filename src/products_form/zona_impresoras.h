#pragma once

#include <QObject>
#include <QString>
#include <functional>

#include "pantallas.h"

struct Entorno;
struct EstadoFormulario;
class QLineEdit;

// Whether the form is changing a product: the screen of the kind on show has its accept button
// on. The chooser of printers and the families panel act only then.
bool EstaModificando(const ControlesFormulario& controles);

// Whether a field can take the focus for the manager to type in: shown, on and not locked.
bool PuedeTomarFoco(const QLineEdit* campo);

// Where a product is prepared or served and what it is for, and the printer that its orders
// come out of. The kind options of the simple products' screen bring the fields that the kind
// uses; the zone options are stored as the product's hechoen. The chooser frImpresoras (opened
// by cmdImpresoras or cmdImpresorasElab) keeps the chosen printer for saving and tells it in
// the printer line lblNomProd; it can be accepted, cleared or closed without a choice.
class ZonaImpresoras : public QObject {
  Q_OBJECT
 public:
  ZonaImpresoras(Entorno& entorno, EstadoFormulario& estado, ControlesFormulario& controles,
                 QObject* padre = nullptr);

  void conectar();

  // The chooser: opened from a screen, a row touched, accepted, cleared ("no specific printer")
  // and closed without a choice.
  void AbrirImpresoras();
  void lb_impresorasClick(int fila);
  void Command3Click();
  void Command5Click();
  void CerrarImpresoras();

  // Set by the recipes: a zone chosen for a new elaborated product opens the choice of its
  // components.
  std::function<void()> abrirComponentes;

 protected:
  bool eventFilter(QObject* objeto, QEvent* evento) override;

 private:
  void opcionVentaOAmbos();
  void opcionCocina();
  void zonaElaborado();
  QString nombreProducto() const;

  Entorno& entorno_;
  EstadoFormulario& estado_;
  ControlesFormulario& c_;
  // The printer line before the chooser opened: closing without a choice puts it back.
  QString lineaAlAbrir_;
};
