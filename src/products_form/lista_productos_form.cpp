#include "lista_productos_form.h"

#include <QEvent>
#include <QGroupBox>
#include <QListView>
#include <QPushButton>

#include "disenio.h"
#include "lineas_productos.h"
#include "listas_productos.h"
#include "visualizacion.h"

using namespace Qt::Literals::StringLiterals;

ListaProductosForm::ListaProductosForm(Entorno& entorno, ControlesFormulario& controles,
                                       Visualizacion& visualizacion, QObject* padre)
    : QObject(padre), entorno_(entorno), c_(controles), visualizacion_(visualizacion) {}

void ListaProductosForm::conectar() {
  MarcosAuxiliares& m = c_.marcos;
  // The list lies hidden until it is asked for, and leaves with the screen that asked for it.
  m.frListaProductos->hide();
  HacerListaTactil(m.lstProductos);
  c_.gen.fr_ProductoGenerico->installEventFilter(this);
  connect(c_.gen.cmd_ListaProd, &QPushButton::clicked, this,
          &ListaProductosForm::cmd_ListaProdClick);
  connect(m.cmdCocina, &QPushButton::clicked, this, [this] { MostrarListaProductos(u"cocina"_s); });
  connect(m.cmdBarra, &QPushButton::clicked, this, [this] { MostrarListaProductos(u"barra"_s); });
  connect(m.lstProductos, &QListView::doubleClicked, this,
          &ListaProductosForm::lstProductosDobleClick);
}

bool ListaProductosForm::eventFilter(QObject* objeto, QEvent* evento) {
  if (objeto == c_.gen.fr_ProductoGenerico && evento->type() == QEvent::Hide)
    c_.marcos.frListaProductos->hide();
  return QObject::eventFilter(objeto, evento);
}

void ListaProductosForm::cmd_ListaProdClick() {
  if (!c_.marcos.frListaProductos->isHidden()) {
    c_.marcos.frListaProductos->hide();
    return;
  }
  if (LeerListaProductos(entorno_, *ModeloDe(c_.marcos.lstProductos)))
    MostrarMarco(c_.marcos.frListaProductos);
}

void ListaProductosForm::MostrarListaProductos(const QString& tipo) {
  if (LeerListaProductosPorTipo(entorno_, *ModeloDe(c_.marcos.lstProductos), tipo))
    MostrarMarco(c_.marcos.frListaProductos);
}

void ListaProductosForm::lstProductosDobleClick() {
  MarcosAuxiliares& m = c_.marcos;
  const QModelIndex linea = m.lstProductos->currentIndex();
  if (!linea.isValid())
    return;
  visualizacion_.MostrarCodigo(CodigoDeLineaLista(linea.data().toString()));
  m.frListaProductos->hide();
}
