#pragma once

#include <QList>
#include <QObject>
#include <QString>

class QWidget;

// Keys of a real keyboard that press the form's own buttons, so that a manager at a keyboard
// browses and edits without the mouse: Page Down / Page Up the next and previous product,
// Ctrl+Home / Ctrl+End the first and last, Insert "Nuevo", F2 "Modificar", F10 "Aceptar", F1
// the help; on the elaborated products' screen, its own buttons of the same names. A key does
// what its button would do, and nothing while that button is hidden or
// switched off, so the modes and an employee's restrictions hold for it too. A key that the
// control with the focus uses itself (a list scrolling a page) stays that control's.
class AtajosTeclado : public QObject {
 public:
  struct Atajo {
    int tecla;
    Qt::KeyboardModifiers modificadores;
    QString boton;  // objectName of the button that the key presses
  };

  explicit AtajosTeclado(QWidget* formulario);
  static QList<Atajo> Atajos();

 protected:
  bool eventFilter(QObject* objeto, QEvent* evento) override;

 private:
  QWidget* formulario_;
};
