#include "atajos_teclado.h"

#include <QKeyEvent>
#include <QPushButton>

using namespace Qt::Literals::StringLiterals;

AtajosTeclado::AtajosTeclado(QWidget* formulario) : QObject(formulario), formulario_(formulario) {
  // Keys reach the form only when the control with the focus left them unused.
  formulario_->installEventFilter(this);
}

QList<AtajosTeclado::Atajo> AtajosTeclado::Atajos() {
  return {
      {Qt::Key_PageDown, Qt::NoModifier, u"bt_botones_2"_s},
      {Qt::Key_PageUp, Qt::NoModifier, u"bt_botones_1"_s},
      {Qt::Key_Home, Qt::ControlModifier, u"bt_botones_0"_s},
      {Qt::Key_End, Qt::ControlModifier, u"bt_botones_3"_s},
      {Qt::Key_Insert, Qt::NoModifier, u"cmd_nuevo"_s},
      {Qt::Key_F2, Qt::NoModifier, u"cmd_modificar"_s},
      {Qt::Key_F10, Qt::NoModifier, u"cmd_aceptar"_s},
      {Qt::Key_F1, Qt::NoModifier, u"cmd_ayuda"_s},
      {Qt::Key_Insert, Qt::NoModifier, u"cmd_NuevoProdEla"_s},
      {Qt::Key_F2, Qt::NoModifier, u"cmd_ModificarProdEla"_s},
      {Qt::Key_F10, Qt::NoModifier, u"cmd_AceptarProdEl"_s},
      {Qt::Key_F1, Qt::NoModifier, u"cmd_AyudaProdEla"_s},
  };
}

bool AtajosTeclado::eventFilter(QObject* objeto, QEvent* evento) {
  if (objeto != formulario_ || evento->type() != QEvent::KeyPress)
    return false;
  const auto* tecla = static_cast<QKeyEvent*>(evento);
  const Qt::KeyboardModifiers modificadores =
      tecla->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::ShiftModifier);
  for (const Atajo& atajo : Atajos()) {
    if (atajo.tecla != tecla->key() || atajo.modificadores != modificadores)
      continue;
    // A key's button on a screen that is not shown leaves the key to the screen that is.
    auto* boton = formulario_->findChild<QPushButton*>(atajo.boton);
    if (!boton || !boton->isVisible())
      continue;
    if (boton->isEnabled())
      boton->click();
    return true;
  }
  return false;
}
