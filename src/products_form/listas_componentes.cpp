#include "listas_componentes.h"

#include <QListView>
#include <QPushButton>

#include "disenio.h"
#include "entorno.h"
#include "error_bd.h"
#include "listas_productos.h"
#include "modos.h"

using namespace Qt::Literals::StringLiterals;

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

void ListasComponentes::cargar(QListView* lista, const QString& sentencia) {
  try {
    ModeloDe(lista)->leer(*entorno_.ConexionBD, sentencia, [this](const QString& fallo) {
      entorno_.RegistrarError(kContextoListasComponentes, fallo);
    });
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
