#pragma once

#include <memory>

#include <QHash>
#include <QList>
#include <QSqlRecord>
#include <QString>
#include <QVariant>

#include "conexion.h"
#include "fila_compacta.h"
#include "lector_filas.h"

// A static recordset, as the suite's programs open them: the rows of a statement are read once
// into memory and walked with the current-row moves; fields are read by name (ignoring letter
// case) or by position. Rows can be added, changed and deleted; the change is written to the
// statement's table when update() (or deleteRow()) is called. Failures throw ErrorBD.
//
// The table to write is the single table of the statement's from clause; a row is found again
// by the table's key, or by all its original values when the table has none.
//
// Rows are read when first needed, not when the statement runs: a recordset opened only to add
// rows ("select * from productos", then addNew) never copies the table. Should such a recordset
// be walked afterwards, the statement is read then, and the rows it added are taken from memory.
// On SQLite they are read as far as the moves go (showing the first row reads one row), and the
// rest before the connection writes anything or while the program is idle: the rows are those of
// the moment the statement ran, as if read at once. On PostgreSQL the rows are read as the
// statement runs: its driver drops a result that is not read before the connection runs another
// statement.
class Recordset : private LecturaPendiente {
 public:
  Recordset(Conexion& conexion, const QString& sentencia);
  ~Recordset();
  Recordset(const Recordset&) = delete;
  Recordset& operator=(const Recordset&) = delete;

  int recordCount() const;
  bool bof() const;
  bool eof() const;
  void moveFirst();
  void movePrevious();  // throws at BOF, as the suite's recordsets always have
  void moveNext();      // throws at EOF
  void moveLast();

  int fieldCount() const { return campos_.count(); }
  QString fieldName(int indice) const { return campos_.fieldName(indice); }
  QVariant field(const QString& nombre) const;
  QVariant field(int indice) const;
  bool isNull(const QString& nombre) const { return field(nombre).isNull(); }

  // Starts a new row; set its fields, then update().
  void addNew();
  // Sets a field of the new row or of the current row (which starts changing it).
  void setField(const QString& nombre, const QVariant& valor);
  void update();
  void cancelUpdate();
  // Deletes the current row in the table; it stays current, unreadable, until the next move.
  void deleteRow();
  // Reads the statement's rows again; the first row becomes current.
  void requery();
  void close();
  bool isOpen() const { return abierto_; }

  const QString& sentencia() const { return sentencia_; }

 private:
  enum class Edicion { Ninguna, Nueva, Cambio };
  struct Fila {
    FilaCompacta valores;
    bool borrada = false;
    QList<QVariant> clave;  // the hidden key columns' values, see claveOculta_
  };

  enum class Lectura {
    Pendiente,  // the statement ran; filas_ holds the rows read so far, the rest are in the cursor
    Leida,      // every row is in filas_
    SinLeer,    // rows were added before any was read: filas_ holds those rows alone
  };

  bool porPartes() const;
  void leer();
  void abrirCursor();
  // Moves rows from the cursor to the list until it holds the given position (-1: all of them);
  // true when the cursor has given its last row, and is closed.
  bool leerCursor(QList<Fila>& leidas, int hasta);
  void leerFilas();
  void leerHasta(int indice);
  void leerMas(int filas) override;
  void terminarLectura() override { leerFilas(); }
  // Reading rows fills a cache: the recordset's contents do not change.
  void leerFilas() const { const_cast<Recordset*>(this)->leerFilas(); }
  void leerHasta(int indice) const { const_cast<Recordset*>(this)->leerHasta(indice); }
  bool mismaFila(const Fila& leida, const Fila& agregada) const;
  bool hayVivas() const;
  void asegurarActual() const;  // reads the rows unless the current one is an added row
  void comprobarAbierto() const;
  const Fila& filaActual() const;
  int indiceCampo(const QString& nombre) const;
  int siguienteViva(int desde, int paso) const;
  QString tablaDestino() const;
  QStringList claveQueFalta() const;
  bool claveCompleta(const Fila& fila) const;
  QVariant convertirParaColumna(int indice, const QVariant& valor) const;
  QString condicionFila(const Fila& fila, QList<QVariant>& valores) const;

  Conexion* conexion_;
  QString sentencia_;
  QString tabla_;  // the table that changes are written to; empty when the statement has none
  QSqlRecord campos_;
  QList<Fila> filas_;
  int vivas_ = 0;  // rows of filas_ not deleted
  Lectura lectura_ = Lectura::Leida;
  std::unique_ptr<LectorFilas> cursor_;  // the statement's rows, while Pendiente
  bool actualAgregada_ = false;  // while SinLeer: the current row is one this recordset added
  mutable QHash<QString, int> indices_;  // field names as callers spell them
  int posicion_ = 0;                     // -1: BOF; filas_.size(): EOF
  bool abierto_ = false;
  Edicion edicion_ = Edicion::Ninguna;
  QList<QVariant> buffer_;
  QList<bool> cambiados_;
  // Key columns of the table that the statement does not select: they are read too, unseen,
  // so that a changed row is written back to that row alone.
  QStringList claveOculta_;
};

// The position of a column among a statement's columns, by name ignoring letter case, as a
// recordset finds its fields; throws ErrorBD when there is none.
int IndiceCampo(const QSqlRecord& campos, const QString& nombre);
