#pragma once

#include <QObject>

#include "pantallas.h"

// Locked fields stay readable. While a product is browsed its check and option buttons, its
// supplier button and its picture and colour boxes are switched off, and the styles grey out
// what is switched off until it can hardly be read on the darker colour schemes. These fields
// keep the text colour of the scheme when switched off (their mark or frame still shows that
// they are off), and the picture boxes show the picture as it is, not greyed. Command buttons
// are left alone: a switched-off command must look off.
class CamposLegibles : public QObject {
 public:
  CamposLegibles(ControlesFormulario& controles, QObject* padre);

 protected:
  bool eventFilter(QObject* objeto, QEvent* evento) override;
};
