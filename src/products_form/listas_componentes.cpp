#include "listas_componentes.h"

#include <QListWidget>
#include <QPushButton>

#include "disenio.h"
#include "entorno.h"
#include "error_bd.h"
#include "listas_productos.h"
#include "modos.h"
#include "recordset.h"

using namespace Qt::Literals::StringLiterals;

QStringList LineasDeProductos(Entorno& entorno, const QString& sentencia) {
  Recordset rs(*entorno.ConexionBD, sentencia);
  QStringList lineas;
  while (!rs.eof()) {
    lineas.append(LineaLista(rs.field(u"nombre"_s).toString(), rs.field(u"codigo"_s).toString()));
    rs.moveNext();
  }
  rs.close();
  return lineas;
}

ListasComponentes::ListasComponentes(Entorno& entorno, ControlesFormulario& controles,
                                     QObject* padre)
    : QObject(padre), entorno_(entorno), c_(controles) {}

void ListasComponentes::conectar(Modos& modos) {
  HacerListaTactil(c_.elab.lb_Productos);
  HacerListaTactil(c_.elab.lb_ProductosElaborados);
  const auto recargar = [this] {
    CargarProductos();
    cargarProductosElaborados();
  };
  modos.recargarListas = recargar;
  modos.cargarListasElaborados = recargar;
  connect(c_.elab.cmdCInterno, &QPushButton::clicked, this,
          &ListasComponentes::CargarSoloProdInterno);
  connect(c_.elab.cmdCVenta, &QPushButton::clicked, this, &ListasComponentes::CargarSoloProdVenta);
}

void ListasComponentes::cargar(QListWidget* lista, const QString& sentencia) {
  try {
    const QStringList lineas = LineasDeProductos(entorno_, sentencia);
    lista->clear();
    lista->addItems(lineas);
  } catch (const ErrorBD& e) {
    entorno_.RegistrarError(kContextoListasComponentes, e.descripcion());
  }
}

void ListasComponentes::CargarProductos() {
  cargar(c_.elab.lb_Productos, kSentenciaCargarProductos);
}

void ListasComponentes::cargarProductosElaborados() {
  cargar(c_.elab.lb_ProductosElaborados, kSentenciaProductosElaborados);
}

void ListasComponentes::CargarSoloProdInterno() {
  cargar(c_.elab.lb_Productos, kSentenciaSoloProdInterno);
}

void ListasComponentes::CargarSoloProdVenta() {
  cargar(c_.elab.lb_Productos, kSentenciaSoloProdVenta);
}
