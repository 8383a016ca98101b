#include "postgres_nativo.h"

#include <libpq-fe.h>

#include <QDate>
#include <QDateTime>
#include <QSqlDatabase>
#include <QSqlDriver>
#include <QSqlField>
#include <QSqlRecord>
#include <QSqlResult>
#include <QTime>
#include <vector>

#include "error_bd.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// Type identifiers of the server's built-in types (pg_type.oid; fixed across versions).
enum : Oid {
  kBool = 16,
  kBytea = 17,
  kInt8 = 20,
  kInt2 = 21,
  kInt4 = 23,
  kOid = 26,
  kFloat4 = 700,
  kFloat8 = 701,
  kDate = 1082,
  kTime = 1083,
  kTimestamp = 1114,
  kTimestampTz = 1184,
  kNumeric = 1700,
};

// The column types as Qt's own PostgreSQL driver reports them, so that a row reads the same.
QMetaType TipoQt(Oid tipo) {
  switch (tipo) {
    case kBool:
      return QMetaType::fromType<bool>();
    case kInt8:
      return QMetaType::fromType<qlonglong>();
    case kInt2:
    case kInt4:
    case kOid:
      return QMetaType::fromType<int>();
    case kFloat4:
    case kFloat8:
    case kNumeric:
      return QMetaType::fromType<double>();
    case kDate:
      return QMetaType::fromType<QDate>();
    case kTime:
      return QMetaType::fromType<QTime>();
    case kTimestamp:
    case kTimestampTz:
      return QMetaType::fromType<QDateTime>();
    case kBytea:
      return QMetaType::fromType<QByteArray>();
    default:
      return QMetaType::fromType<QString>();
  }
}

QVariant Valor(Oid tipo, const char* texto, int largo) {
  const QByteArray bytes(texto, largo);
  switch (tipo) {
    case kBool:
      return bytes == "t";
    case kInt8:
      return bytes.toLongLong();
    case kInt2:
    case kInt4:
    case kOid:
      return bytes.toInt();
    case kFloat4:
    case kFloat8:
    case kNumeric:
      return bytes.toDouble();
    case kDate:
      return QDate::fromString(QString::fromLatin1(bytes), Qt::ISODate);
    case kTime:
      return QTime::fromString(QString::fromLatin1(bytes), Qt::ISODateWithMs);
    case kTimestamp:
    case kTimestampTz:
      return QDateTime::fromString(QString::fromLatin1(bytes).replace(u' ', u'T'),
                                   Qt::ISODateWithMs);
    case kBytea:
      return bytes;
    default:
      return QString::fromUtf8(bytes);
  }
}

// A value as the server's text format writes it.
QByteArray TextoParametro(const QVariant& v) {
  switch (v.typeId()) {
    case QMetaType::Bool:
      return v.toBool() ? "t" : "f";
    case QMetaType::Double:
    case QMetaType::Float:
      return QByteArray::number(v.toDouble(), 'g', 17);
    case QMetaType::QDate:
      return v.toDate().toString(Qt::ISODate).toLatin1();
    case QMetaType::QDateTime:
      return v.toDateTime().toString(Qt::ISODateWithMs).toLatin1();
    default:
      return v.toString().toUtf8();
  }
}

// One statement's result, held whole by libpq and read through QSqlQuery.
class ResultadoPostgres : public QSqlResult {
 public:
  ResultadoPostgres(const QSqlDriver* driver, PGresult* resultado)
      : QSqlResult(driver), r_(resultado) {
    setSelect(PQresultStatus(r_) == PGRES_TUPLES_OK);
    setActive(true);
    setAt(QSql::BeforeFirstRow);
  }
  ~ResultadoPostgres() override { PQclear(r_); }

 protected:
  QVariant data(int i) override {
    if (PQgetisnull(r_, at(), i))
      return QVariant(TipoQt(PQftype(r_, i)));
    return Valor(PQftype(r_, i), PQgetvalue(r_, at(), i), PQgetlength(r_, at(), i));
  }
  bool isNull(int i) override { return PQgetisnull(r_, at(), i) != 0; }
  bool reset(const QString&) override { return false; }
  bool fetch(int i) override {
    if (i < 0 || i >= PQntuples(r_))
      return false;
    setAt(i);
    return true;
  }
  bool fetchFirst() override { return fetch(0); }
  bool fetchLast() override { return fetch(PQntuples(r_) - 1); }
  int size() override { return isSelect() ? PQntuples(r_) : -1; }
  int numRowsAffected() override {
    const QByteArray n(PQcmdTuples(r_));
    return n.isEmpty() ? -1 : n.toInt();
  }
  QSqlRecord record() const override {
    QSqlRecord registro;
    for (int i = 0; i < PQnfields(r_); ++i) {
      registro.append(QSqlField(QString::fromUtf8(PQfname(r_, i)), TipoQt(PQftype(r_, i))));
    }
    return registro;
  }

 private:
  PGresult* r_;
};

PGconn* ConexionLibpq(const QSqlDatabase& bd) {
  if (bd.driverName() != u"QPSQL"_s)
    return nullptr;
  // Qt's driver gives its libpq connection as a QVariant of PGconn*, which the meta-type system
  // names after the struct's tag.
  const QVariant h = bd.driver()->handle();
  if (qstrcmp(h.typeName(), "PGconn*") != 0 && qstrcmp(h.typeName(), "pg_conn*") != 0)
    return nullptr;
  return *static_cast<PGconn* const*>(h.constData());
}

}  // namespace

bool EsPostgresNativo(const QSqlDatabase& bd) {
  return bd.isValid() && ConexionLibpq(bd) != nullptr;
}

QSqlQuery EjecutarEnPostgres(const QSqlDatabase& bd, const QString& sentencia,
                             const QList<QVariant>& valores) {
  PGconn* conexion = ConexionLibpq(bd);
  if (!conexion)
    throw ErrorBD(u"La conexión con la base de datos no está abierta"_s);
  QList<QByteArray> textos;
  for (const QVariant& v : valores)
    textos.append(v.isNull() ? QByteArray() : TextoParametro(v));
  std::vector<const char*> punteros;
  for (qsizetype i = 0; i < valores.size(); ++i)
    punteros.push_back(valores.at(i).isNull() ? nullptr : textos.at(i).constData());
  // PQexecParams always uses the extended protocol, with or without values.
  PGresult* r =
      PQexecParams(conexion, sentencia.toUtf8().constData(), static_cast<int>(punteros.size()),
                   nullptr, punteros.data(), nullptr, nullptr, 0);
  const ExecStatusType estado = PQresultStatus(r);
  if (estado != PGRES_TUPLES_OK && estado != PGRES_COMMAND_OK) {
    const QString mensaje =
        QString::fromUtf8(r ? PQresultErrorMessage(r) : PQerrorMessage(conexion)).trimmed();
    PQclear(r);
    throw ErrorBD(mensaje);
  }
  return QSqlQuery(new ResultadoPostgres(bd.driver(), r));
}
