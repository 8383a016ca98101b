#pragma once

#include <functional>
#include <memory>

#include <QAbstractListModel>
#include <QList>
#include <QString>
#include <QStringList>

#include "conexion.h"
#include "lector_filas.h"

class QAbstractItemView;

// The lines of a product list box (name, 120 blanks, code), kept as their names and codes
// alone: a line is built only when it is read. Every name and code lies in one block of text,
// so that a list of the whole catalogue takes a few bytes per product rather than a string of
// some 140 characters and an item object each.
class LineasProductos {
 public:
  void anadir(const QString& nombre, const QString& codigo);
  void anadir(const LineasProductos& otras);
  void quitar(qsizetype fila);

  qsizetype size() const { return tramos_.size(); }
  bool isEmpty() const { return tramos_.isEmpty(); }
  // The list line of a row, as LineaLista writes it.
  QString linea(qsizetype fila) const;
  // The code of a row, as it was read.
  QStringView codigo(qsizetype fila) const;
  QStringList todas() const;

 private:
  struct Tramo {
    qsizetype inicio;  // of the name in texto_; the code follows it
    qint32 largoNombre;
    qint32 largoCodigo;
  };
  QString texto_;
  QList<Tramo> tramos_;
};

// A product list box's model: one row per line, whose text (the display role) is built when a
// view asks for it, that is, for the lines on the screen.
//
// Its lines are those of a statement's rows (their "nombre" and "codigo" fields). On SQLite the
// first screenful is read at once and the rest come in as the connection's other pending reads
// do (see Conexion::anotarLectura): while the program is idle, or all at once before it writes.
class ModeloLineas : public QAbstractListModel, private LecturaPendiente {
  Q_OBJECT

 public:
  using QAbstractListModel::QAbstractListModel;
  ~ModeloLineas() override;

  // Replaces every line with those of the statement's rows, unless it has none and the lines
  // are to be kept then; false when it has none. A failure to run the statement is thrown
  // (ErrorBD) with the lines left as they were; one while reading the rest goes to alFallar,
  // with the lines read so far left in the list.
  bool leer(Conexion& conexion, const QString& sentencia,
            std::function<void(const QString&)> alFallar, bool conservarSiNoHay = false);
  void quitar(int fila);
  // Every line, the rest of them read first.
  const LineasProductos& lineas();
  // How many line texts have been built since the model was made.
  qint64 construidas() const { return construidas_; }

  int rowCount(const QModelIndex& padre = {}) const override;
  QVariant data(const QModelIndex& indice, int rol = Qt::DisplayRole) const override;

 private:
  void leerMas(int filas) override;
  void terminarLectura() override { leerMas(-1); }
  void cerrarLectura();

  LineasProductos lineas_;
  mutable qint64 construidas_ = 0;
  std::unique_ptr<LectorFilas> lector_;  // while lines are still to come
  Conexion* conexion_ = nullptr;
  std::function<void(const QString&)> alFallar_;
};

// The model of a list box made with CrearListaLineas; nullptr for any other view.
ModeloLineas* ModeloDe(const QAbstractItemView* lista);
