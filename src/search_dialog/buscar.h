#pragma once

#include <QDialog>
#include <QList>
#include <functional>

#include "busqueda_productos.h"

struct Entorno;
class QCheckBox;
class QGroupBox;
class QLineEdit;
class QListWidget;
class QPushButton;

// The search dialog "Buscar": the manager types the start of a product's supplier, family or
// name (on its on-screen keyboard or a real one), searches, and touches a result to show that
// product on the form that opened it. The dialog hands the chosen code, or "-1" when it closes
// with no choice, to its caller's entry and closes.
//
// It is modal over its caller but never blocks: open it with open() (AbrirBuscar does).
class Buscar : public QDialog {
 public:
  using Devolver = std::function<void(const QString& codigo)>;

  Buscar(Entorno& entorno, const QString& modo, Devolver devolver, QWidget* llamador);

  const QString& modo() const { return modo_; }
  // Runs the search of the mode into the result list.
  void buscar();
  void limpiarcajas();
  // The key of the on-screen keyboard with that character code (8 Backspace, 13 Enter).
  void pulsar(int tecla);
  // Closing by any way but a choice hands "-1".
  void reject() override;

 protected:
  void showEvent(QShowEvent* evento) override;
  bool eventFilter(QObject* objeto, QEvent* evento) override;

 private:
  void construir();
  void Mostrar();
  void elegir(const QString& codigo);
  void terminar(const QString& codigo);

  Entorno& entorno_;
  QString modo_;
  Devolver devolver_;
  bool devuelto_ = false;

  QGroupBox* FrProd_ = nullptr;
  QList<QLineEdit*> TxtBusProd_;  // 0 supplier, 1 family, 2 name
  QCheckBox* chSinAsignar_ = nullptr;
  QListWidget* lst_resultado_ = nullptr;
  QList<QPushButton*> BtnBusClie_;  // 0 search, 1 clear, 2 close
  QLineEdit* cajaActual_ = nullptr;
};

// Opens the search dialog of a mode over its caller, modal and without waiting; the choice
// reaches `devolver`. The dialog deletes itself when it closes.
Buscar* AbrirBuscar(Entorno& entorno, const QString& modo, Buscar::Devolver devolver,
                    QWidget* llamador);
