#include "lineas_productos.h"

#include <QAbstractItemView>

#include "listas_productos.h"

void LineasProductos::anadir(const QString& nombre, const QString& codigo) {
  tramos_.append(
      Tramo{texto_.size(), static_cast<qint32>(nombre.size()), static_cast<qint32>(codigo.size())});
  texto_.append(nombre);
  texto_.append(codigo);
}

void LineasProductos::quitar(qsizetype fila) {
  // Its text stays in the block, unread: a list loses a few lines at most before it is filled
  // again.
  tramos_.removeAt(fila);
}

QString LineasProductos::linea(qsizetype fila) const {
  const Tramo& t = tramos_.at(fila);
  return LineaLista(texto_.sliced(t.inicio, t.largoNombre), codigo(fila).toString());
}

QStringView LineasProductos::codigo(qsizetype fila) const {
  const Tramo& t = tramos_.at(fila);
  return QStringView(texto_).sliced(t.inicio + t.largoNombre, t.largoCodigo);
}

QStringList LineasProductos::todas() const {
  QStringList lineas;
  lineas.reserve(size());
  for (qsizetype i = 0; i < size(); ++i)
    lineas.append(linea(i));
  return lineas;
}

void ModeloLineas::poner(LineasProductos lineas) {
  beginResetModel();
  lineas_ = std::move(lineas);
  endResetModel();
}

void ModeloLineas::quitar(int fila) {
  beginRemoveRows({}, fila, fila);
  lineas_.quitar(fila);
  endRemoveRows();
}

int ModeloLineas::rowCount(const QModelIndex& padre) const {
  return padre.isValid() ? 0 : static_cast<int>(lineas_.size());
}

QVariant ModeloLineas::data(const QModelIndex& indice, int rol) const {
  if (!checkIndex(indice, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid) ||
      (rol != Qt::DisplayRole && rol != Qt::EditRole)) {
    return {};
  }
  ++construidas_;
  return lineas_.linea(indice.row());
}

ModeloLineas* ModeloDe(const QAbstractItemView* lista) {
  return lista ? qobject_cast<ModeloLineas*>(lista->model()) : nullptr;
}
