#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

#include "lineas_productos.h"
#include "pantallas.h"

struct Entorno;
class Visualizacion;

// The pop-up list of products over the simple products' screen: cmd_ListaProd opens it with
// every live product and closes it again; cmdCocina and cmdBarra fill it with the products for
// internal use or for sale; a double-click on a line shows that product and closes the list.
// With no product to list, "No hay productos dados de alta." is shown and the list stays as it
// was.
class ListaProductosForm : public QObject {
 public:
  ListaProductosForm(Entorno& entorno, ControlesFormulario& controles, Visualizacion& visualizacion,
                     QObject* padre = nullptr);

  void conectar();

  void cmd_ListaProdClick();
  // "cocina" lists the products of internal use, any other word the products for sale.
  void MostrarListaProductos(const QString& tipo);
  void lstProductosDobleClick();

 protected:
  bool eventFilter(QObject* objeto, QEvent* evento) override;

 private:
  Entorno& entorno_;
  ControlesFormulario& c_;
  Visualizacion& visualizacion_;
};
