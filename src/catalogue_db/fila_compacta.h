#pragma once

#include <QByteArray>
#include <QList>
#include <QVariant>

// The values of one row of a recordset, kept in one block of memory: text as its UTF-16 code
// units or, as SQLite gives it, its UTF-8 bytes, numbers as their bytes, anything else as
// QDataStream writes it. A catalogue of 100,000 products read whole takes a quarter of the
// memory that one QVariant per value takes.
class FilaCompacta {
 public:
  FilaCompacta() = default;
  FilaCompacta(const QList<QVariant>& valores);  // NOLINT: a row is its values

  // Appends one value to a block being built; the block becomes a row with deBloque().
  static void agregar(QByteArray& bloque, const QVariant& valor);
  // Appends a text value given as UTF-8; it becomes a QString when read.
  static void agregarUtf8(QByteArray& bloque, const char* texto, qsizetype largo);
  static FilaCompacta deBloque(const QByteArray& bloque);

  QVariant at(int indice) const;
  QList<QVariant> lista() const;

 private:
  QByteArray datos_;
};
