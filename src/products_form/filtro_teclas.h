#pragma once

#include <QHash>
#include <QObject>
#include <functional>

class QKeyEvent;
class QLineEdit;

// The key rules of the form's fields work on real key presses: each field with a rule has its
// presses rewritten or dropped before the field sees them. A rule gets the field and the key's
// character code and answers the code to type, 0 to drop the key. Keys that type no character
// (arrows, Delete, Tab) never reach a rule. A locked field keeps its keys to itself: nothing
// can be typed there anyway, and a rule must not clear it.
class FiltroTeclas : public QObject {
 public:
  using Regla = std::function<int(QLineEdit* campo, int tecla)>;

  explicit FiltroTeclas(QObject* padre = nullptr) : QObject(padre) {}

  void poner(QLineEdit* campo, Regla regla);

  // The character code of a key press as the fields' handlers know it: 8 Backspace, 13 Enter,
  // 27 Escape, 1 to 26 for Control and a letter (copy, paste...), else the character typed;
  // -1 for a key that types nothing.
  static int CodigoDeTecla(const QKeyEvent* evento);

 protected:
  bool eventFilter(QObject* objeto, QEvent* evento) override;

 private:
  QHash<QObject*, Regla> reglas_;
};
