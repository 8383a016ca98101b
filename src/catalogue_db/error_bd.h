#pragma once

#include <QString>
#include <stdexcept>

// A failure of the database layer. It carries the driver's own description so that each
// handler can write it to the error log after its own context text.
class ErrorBD : public std::runtime_error {
 public:
  explicit ErrorBD(const QString& descripcion)
      : std::runtime_error(descripcion.toStdString()), descripcion_(descripcion) {}
  const QString& descripcion() const { return descripcion_; }

 private:
  QString descripcion_;
};
