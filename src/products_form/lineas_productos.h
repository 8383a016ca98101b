#pragma once

#include <QAbstractListModel>
#include <QList>
#include <QString>
#include <QStringList>

class QAbstractItemView;

// The lines of a product list box (name, 120 blanks, code), kept as their names and codes
// alone: a line is built only when it is read. Every name and code lies in one block of text,
// so that a list of the whole catalogue takes a few bytes per product rather than a string of
// some 140 characters and an item object each.
class LineasProductos {
 public:
  void anadir(const QString& nombre, const QString& codigo);
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
class ModeloLineas : public QAbstractListModel {
  Q_OBJECT

 public:
  using QAbstractListModel::QAbstractListModel;

  // Replaces every line.
  void poner(LineasProductos lineas);
  void quitar(int fila);
  const LineasProductos& lineas() const { return lineas_; }
  // How many line texts have been built since the model was made.
  qint64 construidas() const { return construidas_; }

  int rowCount(const QModelIndex& padre = {}) const override;
  QVariant data(const QModelIndex& indice, int rol = Qt::DisplayRole) const override;

 private:
  LineasProductos lineas_;
  mutable qint64 construidas_ = 0;
};

// The model of a list box made with CrearListaLineas; nullptr for any other view.
ModeloLineas* ModeloDe(const QAbstractItemView* lista);
