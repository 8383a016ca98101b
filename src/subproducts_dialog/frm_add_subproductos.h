#pragma once

#include <QDialog>

#include "paneles.h"
#include "subproductos.h"

struct Entorno;
class PanelObjNuevo;
class QGroupBox;
class QLabel;
class QPushButton;
class QTableWidget;

// The sub-products dialog "frmAddSubProductos" ("Añadir Sub-Productos"). The manager touches a
// family, then the parent product, then the products to offer with it; the grid keeps the list,
// and accepting replaces the parent's links. Touching the parent's picture starts over with
// another parent. Closing writes nothing.
//
// It is modal over its caller but never blocks: open it with open() (AbrirSubproductos does).
class FrmAddSubProductos : public QDialog {
 public:
  FrmAddSubProductos(Entorno& entorno, TablasPanel& tablas, QWidget* llamador);

  // The products of a family into the products panel; the empty-panel frame when it has none.
  void CargarPaneles(const QString& familia);
  // Whether a data row of the grid holds the code.
  bool existeEnGrid(const QString& codigo) const;
  void AnadirProdAGrid(const QString& nombre, const QString& codigo);
  void CargarProductosHijos();
  // Removes the grid's current data row (the header is never a data row).
  void QuitarFila();
  // Forgets the parent and its grid, so that the next product touched is a new parent.
  void ElegirOtroPadre();
  void cmd_AceptarFin();

  qint32 padre() const { return padre_; }

 protected:
  bool eventFilter(QObject* objeto, QEvent* evento) override;

 private:
  void construir();
  void cargar();
  void llenar(PanelObjNuevo* panel, const TablaPanel& tabla);
  void PanelFamiliasTocado();
  void PanelPrimerosTocado();
  void InicializarGrid();

  Entorno& entorno_;
  TablasPanel& tablas_;
  qint32 padre_ = 0;
  QString nombrePadre_;

  PanelObjNuevo* PanelFamilias_ = nullptr;
  PanelObjNuevo* PanelPrimeros_ = nullptr;
  QLabel* lblnomFamilia_ = nullptr;
  QGroupBox* frPanelVacio_ = nullptr;
  QLabel* imgDiseno_ = nullptr;
  QLabel* lblDiseno_ = nullptr;
  QPushButton* cmdDiseno_ = nullptr;
  QGroupBox* frProductos_ = nullptr;
  QTableWidget* gridProd_ = nullptr;
};

// Opens the sub-products dialog over its caller, modal and without waiting. The dialog deletes
// itself when it closes.
FrmAddSubProductos* AbrirSubproductos(Entorno& entorno, TablasPanel& tablas, QWidget* llamador);
