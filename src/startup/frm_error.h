#pragma once

#include <QWidget>

class QLabel;

// The small error form: "Error:" and the message. Shown non-modally; it stays open until the
// manager closes it, and a later error replaces its message.
class FrmError : public QWidget {
  Q_OBJECT
 public:
  explicit FrmError(QWidget* parent = nullptr);
  void mostrarError(const QString& contexto, const QString& descripcion);

 private:
  QLabel* lblError_;
};
