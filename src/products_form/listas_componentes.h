#pragma once

#include <QObject>
#include <QString>
#include <QStringList>

#include "pantallas.h"

struct Entorno;
class Modos;

// The product lists of the elaborated screen: the products that can go into a recipe
// (lb_Productos: every live product that is not itself elaborated, or only those for internal
// use or for sale) and the elaborated products (lb_ProductosElaborados), one line per product
// in the form's list line format. Change mode reloads both; cmdCInterno and cmdCVenta narrow
// the first to one kind.
inline const QString kSentenciaCargarProductos = QStringLiteral(
    "select * from productos where borrar= 0 and codigo not in (select productopadre "
    "from productoelaborado_producto) order by nombre");
inline const QString kSentenciaProductosElaborados = QStringLiteral(
    "select * from productos where borrar= 0 and codigo in (select productopadre "
    "from productoelaborado_producto) order by nombre");
inline const QString kSentenciaSoloProdInterno = QStringLiteral(
    "select * from productos where borrar= 0 and tipoprod = 0 and codigo not in (select "
    "productopadre from productoelaborado_producto) order by nombre");
inline const QString kSentenciaSoloProdVenta = QStringLiteral(
    "select * from productos where borrar= 0 and tipoprod >0 and codigo not in (select "
    "productopadre from productoelaborado_producto) order by nombre");

inline const QString kContextoListasComponentes = QStringLiteral("ListaProductos  3");

class ListasComponentes : public QObject {
 public:
  ListasComponentes(Entorno& entorno, ControlesFormulario& controles, QObject* padre = nullptr);

  // Sets the modes' hooks and the two kind buttons.
  void conectar(Modos& modos);

  void CargarProductos();
  void cargarProductosElaborados();
  void CargarSoloProdInterno();
  void CargarSoloProdVenta();

 private:
  void cargar(class QListView* lista, const QString& sentencia);

  Entorno& entorno_;
  ControlesFormulario& c_;
};
