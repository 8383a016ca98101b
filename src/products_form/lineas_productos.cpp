#include "lineas_productos.h"

#include <QAbstractItemView>

#include "error_bd.h"
#include "lector_filas.h"
#include "listas_productos.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// The lines that a list box shows at first, read before it is shown.
constexpr int kPrimerasLineas = 64;

// Appends the lines of up to the given number of rows more (-1: all); true when the cursor has
// given its last row.
bool LeerTramo(LectorFilas& lector, int filas, LineasProductos& lineas) {
  for (int leidas = 0; filas < 0 || leidas < filas; ++leidas) {
    if (!lector.siguiente())
      return true;
    lineas.anadir(lector.field(u"nombre"_s).toString(), lector.field(u"codigo"_s).toString());
  }
  return false;
}

}  // namespace

void LineasProductos::anadir(const QString& nombre, const QString& codigo) {
  tramos_.append(
      Tramo{texto_.size(), static_cast<qint32>(nombre.size()), static_cast<qint32>(codigo.size())});
  texto_.append(nombre);
  texto_.append(codigo);
}

void LineasProductos::anadir(const LineasProductos& otras) {
  for (const Tramo& t : otras.tramos_)
    tramos_.append(Tramo{texto_.size() + t.inicio, t.largoNombre, t.largoCodigo});
  texto_.append(otras.texto_);
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

ModeloLineas::~ModeloLineas() {
  cerrarLectura();
}

void ModeloLineas::cerrarLectura() {
  if (conexion_)
    conexion_->olvidarLectura(this);
  lector_.reset();
  conexion_ = nullptr;
}

bool ModeloLineas::leer(Conexion& conexion, const QString& sentencia,
                        std::function<void(const QString&)> alFallar, bool conservarSiNoHay) {
  auto lector = std::make_unique<LectorFilas>(conexion, sentencia);
  // Other engines' cursors are read whole while they are there, as a recordset's are.
  LineasProductos primeras;
  const bool terminada =
      LeerTramo(*lector, conexion.motor() == Motor::SQLite ? kPrimerasLineas : -1, primeras);
  if (primeras.isEmpty() && conservarSiNoHay)
    return false;
  beginResetModel();
  cerrarLectura();
  lineas_ = std::move(primeras);
  endResetModel();
  if (!terminada) {
    lector_ = std::move(lector);
    conexion_ = &conexion;
    alFallar_ = std::move(alFallar);
    conexion.anotarLectura(this);
  }
  return !lineas_.isEmpty();
}

void ModeloLineas::leerMas(int filas) {
  if (!lector_)
    return;
  LineasProductos nuevas;
  bool terminada = false;
  try {
    terminada = LeerTramo(*lector_, filas, nuevas);
  } catch (const ErrorBD& e) {
    terminada = true;
    if (alFallar_)
      alFallar_(e.descripcion());
  }
  if (!nuevas.isEmpty()) {
    beginInsertRows({}, static_cast<int>(lineas_.size()),
                    static_cast<int>(lineas_.size() + nuevas.size() - 1));
    lineas_.anadir(nuevas);
    endInsertRows();
  }
  if (terminada)
    cerrarLectura();
}

const LineasProductos& ModeloLineas::lineas() {
  terminarLectura();
  return lineas_;
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
