#pragma once

#include <QList>
#include <QObject>
#include <QRect>

#include "pantallas.h"

// The order in which Tab visits controls: zone by zone (a control belongs to the first zone
// that holds its centre; controls in no zone come last), then row by row from the top and left
// to right within a row. Controls whose tops lie less than `toleranciaFila` pixels below the
// top of a row's first control share that row. Returns the positions in `controles`, in that order.
QList<int> OrdenDeLectura(const QList<QRect>& controles, const QList<QRect>& zonas,
                          int toleranciaFila);

// The products form for a keyboard and a finger.
//
// Tab and Shift+Tab walk the controls that the manager can see and reach (a control covered by
// a panel or by the cover of a new product is skipped), in the order the screen reads: on a
// product screen the fields' column, then the till button's column, then the buttons along the
// foot; an open panel first. The control with the focus is ringed, so the keyboard's place
// always shows, and a panel that opens takes the focus. Enter or Space on a picture or colour box
// does what a touch does, and on a list what a touch (or, on the pop-up list of products, a double
// touch) on its current line does. Lists scroll by dragging a finger, and lists and drop-downs have
// rows as high as a fingertip.
class NavegacionTeclado : public QObject {
 public:
  NavegacionTeclado(ControlesFormulario& controles, QWidget* formulario);

  // Gives the focus to the next (or previous) reachable control; false when none is reachable.
  bool moverFoco(bool siguiente);

 protected:
  bool eventFilter(QObject* objeto, QEvent* evento) override;

 private:
  QList<QWidget*> alcanzables() const;
  bool alcanzable(QWidget* control) const;
  // The hints that lie over a screen's fields.
  QList<QWidget*> avisos() const;
  // Shown and not covered by a panel or another screen (a hint does not count).
  bool descubierto(QWidget* control) const;
  QList<QRect> zonas() const;
  void seguirFoco(QWidget* control);
  // Gives the focus to the first control of a panel that has just opened.
  void entrarEnPanel(QWidget* panel);

  ControlesFormulario& c_;
  QWidget* formulario_;
  QWidget* anillo_;
};
