#include "lector_filas.h"

#include <sqlite3.h>

#include <QSqlError>
#include <QSqlField>

#include "conexion.h"
#include "error_bd.h"
#include "fila_compacta.h"
#include "recordset.h"

namespace {

// A column's type as Qt's SQLite driver derives it from the declared type.
QMetaType TipoDeclarado(sqlite3_stmt* sentencia, int i) {
  const QString tipo = QString::fromUtf8(sqlite3_column_decltype(sentencia, i)).toLower();
  if (tipo.isEmpty())
    return {};
  if (tipo == u"integer" || tipo == u"int")
    return QMetaType::fromType<int>();
  if (tipo == u"double" || tipo == u"float" || tipo == u"real" || tipo.startsWith(u"numeric"))
    return QMetaType::fromType<double>();
  if (tipo == u"blob")
    return QMetaType::fromType<QByteArray>();
  if (tipo == u"boolean" || tipo == u"bool")
    return QMetaType::fromType<bool>();
  return QMetaType::fromType<QString>();
}

// A column of the current row, of the given SQLite type, as Qt's SQLite driver gives it:
// integers as qlonglong, reals as double, text as QString, blobs as QByteArray, NULL as a null
// QString.
QVariant ValorSQLite(sqlite3_stmt* sentencia, int i, int tipo) {
  switch (tipo) {
    case SQLITE_INTEGER:
      return QVariant(static_cast<qlonglong>(sqlite3_column_int64(sentencia, i)));
    case SQLITE_FLOAT:
      return sqlite3_column_double(sentencia, i);
    case SQLITE_NULL:
      return QVariant(QMetaType::fromType<QString>());
    case SQLITE_BLOB:
      return QByteArray(static_cast<const char*>(sqlite3_column_blob(sentencia, i)),
                        sqlite3_column_bytes(sentencia, i));
    default:
      return QString::fromUtf8(reinterpret_cast<const char*>(sqlite3_column_text(sentencia, i)),
                               sqlite3_column_bytes(sentencia, i));
  }
}

QString ErrorSQLite(sqlite3_stmt* sentencia) {
  return QString::fromUtf8(sqlite3_errmsg(sqlite3_db_handle(sentencia)));
}

}  // namespace

LectorFilas::LectorFilas(Conexion& conexion, const QString& sentencia)
    : sqlite_(conexion.prepararEnSQLite(sentencia)) {
  if (!sqlite_) {
    filas_ = conexion.consultar(sentencia);
    campos_ = filas_.record();
    return;
  }
  for (int i = 0; i < sqlite3_column_count(sqlite_); ++i) {
    QString nombre = QString::fromUtf8(sqlite3_column_name(sqlite_, i));
    campos_.append(QSqlField(nombre.remove(u'"'), TipoDeclarado(sqlite_, i)));
  }
  // The statement runs now, as when Qt's driver runs it: its errors come from here.
  primerPaso_ = sqlite3_step(sqlite_);
  if (primerPaso_ != SQLITE_ROW && primerPaso_ != SQLITE_DONE) {
    const QString error = ErrorSQLite(sqlite_);
    sqlite3_finalize(sqlite_);
    throw ErrorBD(error);
  }
}

LectorFilas::~LectorFilas() {
  sqlite3_finalize(sqlite_);
}

bool LectorFilas::siguiente() {
  if (sqlite_) {
    // A statement stepped again after its end or a failure would run again from its start.
    if (!fallo_.isEmpty())
      throw ErrorBD(fallo_);
    if (terminado_)
      return false;
    const int paso = primerPaso_ ? std::exchange(primerPaso_, 0) : sqlite3_step(sqlite_);
    if (paso == SQLITE_ROW) {
      ++filasLeidas_;
      return true;
    }
    terminado_ = true;
    if (paso != SQLITE_DONE) {
      fallo_ = ErrorSQLite(sqlite_);
      throw ErrorBD(fallo_);
    }
    return false;
  }
  if (filas_.next()) {
    ++filasLeidas_;
    return true;
  }
  if (filas_.lastError().isValid())
    throw ErrorBD(DescripcionError(filas_.lastError()));
  return false;
}

int LectorFilas::indice(const QString& nombre) const {
  auto hallado = indices_.constFind(nombre);
  if (hallado == indices_.cend())
    hallado = indices_.insert(nombre, IndiceCampo(campos_, nombre));
  return *hallado;
}

QVariant LectorFilas::field(const QString& nombre) const {
  return valor(indice(nombre));
}

QVariant LectorFilas::valor(int indice) const {
  return sqlite_ ? ValorSQLite(sqlite_, indice, sqlite3_column_type(sqlite_, indice))
                 : filas_.value(indice);
}

void LectorFilas::agregarFila(QByteArray& bloque, int desde) const {
  for (int i = desde; i < campos_.count(); ++i) {
    if (!sqlite_) {
      FilaCompacta::agregar(bloque, filas_.value(i));
      continue;
    }
    const int tipo = sqlite3_column_type(sqlite_, i);
    if (tipo == SQLITE_TEXT) {
      // SQLite's own UTF-8, copied as it is: made a QString only if it is read.
      FilaCompacta::agregarUtf8(bloque,
                                reinterpret_cast<const char*>(sqlite3_column_text(sqlite_, i)),
                                sqlite3_column_bytes(sqlite_, i));
    } else {
      FilaCompacta::agregar(bloque, ValorSQLite(sqlite_, i, tipo));
    }
  }
}
