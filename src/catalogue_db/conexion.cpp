#include "conexion.h"

#include <sql.h>
#include <sqlext.h>
#include <sqlite3.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QAtomicInt>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>
#include <QSqlDriver>
#include <QSqlError>
#include <QTimer>

#include "error_bd.h"
#include "postgres_nativo.h"
#include "val.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QAtomicInt g_contador;

void FuncionVal(sqlite3_context* contexto, int, sqlite3_value** argumentos) {
  if (sqlite3_value_type(argumentos[0]) == SQLITE_NULL) {
    sqlite3_result_null(contexto);
    return;
  }
  const auto* texto = reinterpret_cast<const char*>(sqlite3_value_text(argumentos[0]));
  const int largo = sqlite3_value_bytes(argumentos[0]);
  // A product's code is a few digits: read as they stand, for the largest code's sort reads
  // every code of the catalogue. 15 digits are exact in a double.
  if (texto && largo > 0 && largo <= 15) {
    double valor = 0;
    int i = 0;
    while (i < largo && texto[i] >= '0' && texto[i] <= '9')
      valor = valor * 10 + (texto[i++] - '0');
    if (i == largo) {
      sqlite3_result_double(contexto, valor);
      return;
    }
  }
  sqlite3_result_double(contexto, ValJet(QString::fromUtf8(texto ? texto : "", largo)));
}

// Waiting for SQLite's write lock. SQLite's own busy timeout polls with sleeps of up to 100 ms,
// so that a writer that has just committed takes the lock again before the sleepers wake, and
// among ten terminals saving at once one may wait past any timeout while the others go on. Here
// a connection polls every few milliseconds, and gives up only when the file has not changed for
// the whole timeout: while other writers commit, its turn is coming; when the file stands still,
// the lock's holder is stuck.
int EsperarTurno(void* dato, int intentos) {
  auto* espera = static_cast<EsperaSQLite*>(dato);
  struct stat info {};
  const bool hay = ::stat(espera->archivo.constData(), &info) == 0;
  const qint64 marca = hay ? info.st_mtim.tv_sec * 1000000000LL + info.st_mtim.tv_nsec : 0;
  if (intentos == 0 || marca != espera->marca) {
    espera->marca = marca;
    espera->reloj.start();
  }
  if (espera->reloj.hasExpired(kEsperaSQLiteMs))
    return 0;
  ::usleep(1000 + QRandomGenerator::global()->bounded(2000));
  return 1;
}

QString InformacionOdbc(QSqlDatabase& bd, SQLUSMALLINT dato) {
  // Qt's ODBC driver gives its connection handle as a QVariant of SQLHANDLE, a void* that the
  // meta-type system names "void*".
  const QVariant h = bd.driver()->handle();
  if (qstrcmp(h.typeName(), "void*") != 0 && qstrcmp(h.typeName(), "SQLHANDLE") != 0)
    return {};
  SQLHANDLE hdbc = *static_cast<const SQLHANDLE*>(h.constData());
  if (!hdbc)
    return {};
  SQLCHAR buffer[512] = {};
  SQLSMALLINT largo = 0;
  if (!SQL_SUCCEEDED(SQLGetInfo(hdbc, dato, buffer, sizeof(buffer), &largo)))
    return {};
  return QString::fromUtf8(reinterpret_cast<const char*>(buffer));
}

QString SinExtension(const QString& ruta) {
  const QFileInfo info(ruta);
  if (info.suffix().isEmpty())
    return ruta;
  return ruta.left(ruta.size() - info.suffix().size() - 1);
}

// The connection string as Qt's ODBC driver wants it. The driver puts "DSN=" in front of the
// string itself unless it names a driver, so a data source's string goes without its "dsn=" key.
// The password goes in braces: psqlODBC reads "%QQ" in a bare value as an escaped byte, and
// every other driver reads a braced value as it stands.
QString CadenaParaQtOdbc(const QString& cadena) {
  const QMap<QString, QString> pares = ParesDeCadena(cadena);
  if (!pares.contains(u"dsn"_s) || pares.contains(u"driver"_s) || pares.contains(u"filedsn"_s) ||
      pares.contains(u"server"_s)) {
    return cadena;
  }
  QStringList partes{pares.value(u"dsn"_s).trimmed()};
  for (auto it = pares.cbegin(); it != pares.cend(); ++it) {
    if (it.key() == u"dsn"_s)
      continue;
    QString valor = it.value();
    if (it.key() == u"pwd"_s || valor.contains(u';')) {
      valor = u'{' + valor.replace(u"}"_s, u"}}"_s) + u'}';
    }
    partes.append(it.key() + u'=' + valor);
  }
  return partes.join(u';') + u';';
}

}  // namespace

QString DescripcionError(const QSqlError& error) {
  const QString bd = error.databaseText().trimmed();
  return bd.isEmpty() ? error.driverText().trimmed() : bd;
}

Conexion::Conexion() : nombre_(u"conexion%1"_s.arg(g_contador.fetchAndAddRelaxed(1))) {}

Conexion::~Conexion() {
  cerrar();
}

void Conexion::cerrar() {
  terminarLecturas();
  sqlite_ = nullptr;
  if (bd_.isValid()) {
    bd_.close();
    bd_ = QSqlDatabase();
    QSqlDatabase::removeDatabase(nombre_);
  }
}

bool Conexion::abierta() const {
  return bd_.isValid() && bd_.isOpen();
}

void Conexion::fallar(const QString& descripcion) {
  const QString texto = descripcion;
  cerrar();
  throw ErrorBD(texto);
}

void Conexion::abrirSQLite(const QString& archivo) {
  cerrar();
  bd_ = QSqlDatabase::addDatabase(u"QSQLITE"_s, nombre_);
  bd_.setDatabaseName(archivo);
  bd_.setConnectOptions(u"QSQLITE_BUSY_TIMEOUT=10000"_s);
  if (!bd_.open())
    fallar(DescripcionError(bd_.lastError()));
  despuesDeAbrir(QFileInfo(archivo).absoluteFilePath());
}

void Conexion::abrir(const QString& cadena, const OrigenesDatos& origenes) {
  cerrar();
  const QMap<QString, QString> pares = ParesDeCadena(cadena);
  const OrigenDatos* origen =
      pares.contains(u"dsn"_s) ? origenes.buscar(pares.value(u"dsn"_s).trimmed()) : nullptr;
  if (origen && origen->tipo == OrigenDatos::Tipo::SQLite) {
    if (!QFileInfo::exists(origen->archivo)) {
      throw ErrorBD(u"No se encuentra el archivo de base de datos %1"_s.arg(origen->archivo));
    }
    abrirSQLite(origen->archivo);
    return;
  }
  if (origen && origen->tipo == OrigenDatos::Tipo::PostgreSQL) {
    bd_ = QSqlDatabase::addDatabase(u"QPSQL"_s, nombre_);
    bd_.setHostName(origen->servidor);
    bd_.setPort(origen->puerto);
    bd_.setDatabaseName(origen->baseDatos);
    bd_.setUserName(origen->usuario);
    bd_.setPassword(origen->clave.isEmpty() ? pares.value(u"pwd"_s) : origen->clave);
    if (!bd_.open())
      fallar(DescripcionError(bd_.lastError()));
    despuesDeAbrir({});
    return;
  }
  // Given "DSN=" and nothing else, Qt's ODBC driver and unixODBC open the SQLite ODBC driver on
  // a new database file named "DSN=" in the working folder (measured). A string that names no
  // data source and no driver is refused as the driver manager refuses an unknown name.
  if (pares.value(u"dsn"_s).trimmed().isEmpty() && !pares.contains(u"driver"_s) &&
      !pares.contains(u"filedsn"_s)) {
    throw ErrorBD(
        u"[unixODBC][Driver Manager]Data source name not found and no default driver specified"_s);
  }
  bd_ = QSqlDatabase::addDatabase(u"QODBC"_s, nombre_);
  bd_.setDatabaseName(CadenaParaQtOdbc(cadena));
  if (!bd_.open())
    fallar(DescripcionError(bd_.lastError()));
  despuesDeAbrir({});
}

void Conexion::despuesDeAbrir(const QString& rutaArchivo) {
  const QString driver = bd_.driverName();
  if (driver == u"QSQLITE"_s) {
    motor_ = Motor::SQLite;
    rutaPredeterminada_ = SinExtension(rutaArchivo);
    const QVariant h = bd_.driver()->handle();
    if (qstrcmp(h.typeName(), "sqlite3*") == 0) {
      sqlite3* manejador = *static_cast<sqlite3* const*>(h.data());
      if (manejador) {
        sqlite3_create_function(manejador, "val", 1, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr,
                                &FuncionVal, nullptr, nullptr);
        espera_.archivo = QFile::encodeName(rutaArchivo);
        sqlite3_busy_handler(manejador, &EsperarTurno, &espera_);
        sqlite_ = manejador;
      }
    }
  } else if (driver == u"QPSQL"_s) {
    motor_ = Motor::PostgreSQL;
    rutaPredeterminada_ = bd_.databaseName();
  } else {
    const QString dbms = InformacionOdbc(bd_, SQL_DBMS_NAME);
    if (dbms.contains(u"SQLite"_s, Qt::CaseInsensitive)) {
      motor_ = Motor::SQLiteODBC;
    } else if (dbms.contains(u"PostgreSQL"_s, Qt::CaseInsensitive)) {
      motor_ = Motor::PostgreSQL;
    } else {
      motor_ = Motor::Access;
    }
    const QString nombre = InformacionOdbc(bd_, SQL_DATABASE_NAME);
    rutaPredeterminada_ = motor_ == Motor::PostgreSQL ? nombre : SinExtension(nombre);
  }
}

QString Conexion::textoParaMotor(const QString& sentencia) const {
  if (!abierta())
    throw ErrorBD(u"La conexión con la base de datos no está abierta"_s);
  // The guard reads the text that the engine will receive, after the dialect's rewrites.
  const QString texto = AdaptarSentencia(sentencia, motor_);
  comprobarUnaSentencia(texto);
  return texto;
}

void Conexion::comprobarUnaSentencia(const QString& texto) const {
  if (!abierta())
    throw ErrorBD(u"La conexión con la base de datos no está abierta"_s);
  if (TieneSegundaSentencia(texto)) {
    throw ErrorBD(u"Sentencia rechazada: contiene más de una instrucción SQL"_s);
  }
}

QSqlQuery Conexion::correr(const QString& texto) {
  if (EsPostgresNativo(bd_))
    return EjecutarEnPostgres(bd_, texto);
  // exec() hands the text to the driver as it stands. prepare() would first rewrite the text's
  // ":name" marks into "?" (and Qt's PostgreSQL driver its "?" into "$1"), so that a spliced
  // value could change what the engine reads. SQLite's own prepare still refuses a text with a
  // second statement.
  QSqlQuery q(bd_);
  q.setForwardOnly(true);
  if (!q.exec(texto))
    throw ErrorBD(DescripcionError(q.lastError()));
  return q;
}

sqlite3_stmt* Conexion::prepararEnSQLite(const QString& sentencia) {
  if (motor_ != Motor::SQLite || !sqlite_)
    return nullptr;
  const QByteArray texto = textoParaMotor(sentencia).toUtf8();
  sqlite3_stmt* preparada = nullptr;
  const char* resto = nullptr;
  if (sqlite3_prepare_v2(sqlite_, texto.constData(), static_cast<int>(texto.size()), &preparada,
                         &resto) != SQLITE_OK) {
    throw ErrorBD(QString::fromUtf8(sqlite3_errmsg(sqlite_)));
  }
  // SQLite prepares the first statement of a text and points at the rest: the rest must be
  // nothing, as Qt's driver demands too.
  if (resto && !QByteArray(resto).trimmed().isEmpty()) {
    sqlite3_finalize(preparada);
    throw ErrorBD(u"Unable to execute multiple statements at a time"_s);
  }
  return preparada;
}

int Conexion::ejecutar(const QString& sentencia) {
  terminarLecturas();
  return correr(textoParaMotor(sentencia)).numRowsAffected();
}

QSqlQuery Conexion::consultar(const QString& sentencia) {
  return correr(textoParaMotor(sentencia));
}

void Conexion::ejecutarDirecto(const QString& sentencia) {
  comprobarUnaSentencia(sentencia);
  terminarLecturas();
  correr(sentencia);
}

int Conexion::ejecutar(const QString& sentencia, const QList<QVariant>& valores) {
  comprobarUnaSentencia(sentencia);
  terminarLecturas();
  if (EsPostgresNativo(bd_)) {
    // The program's own text has its "?" marks only where values go.
    QString texto;
    int n = 0;
    for (QChar c : sentencia)
      texto += c == u'?' ? u'$' + QString::number(++n) : QString(c);
    return EjecutarEnPostgres(bd_, texto, valores).numRowsAffected();
  }
  QSqlQuery q(bd_);
  if (!q.prepare(sentencia))
    throw ErrorBD(DescripcionError(q.lastError()));
  for (const QVariant& v : valores)
    q.addBindValue(v);
  if (!q.exec())
    throw ErrorBD(DescripcionError(q.lastError()));
  return q.numRowsAffected();
}

void Conexion::comenzarTransaccion(const QString& serializarEn) {
  if (!abierta())
    throw ErrorBD(u"La conexión con la base de datos no está abierta"_s);
  terminarLecturas();
  if (motor_ == Motor::SQLite) {
    // Every transaction of the program writes. Deferred, it would read first and then find the
    // file locked by another writer, which SQLite reports at once instead of waiting; immediate,
    // it waits its turn under the busy timeout, and a serialised one is serialised by it.
    correr(u"BEGIN IMMEDIATE"_s);
    return;
  }
  if (!bd_.transaction())
    throw ErrorBD(DescripcionError(bd_.lastError()));
  if (serializarEn.isEmpty())
    return;
  try {
    if (motor_ == Motor::PostgreSQL) {
      // A lock of the program's own, held to the end of the transaction: other terminals doing
      // the same wait, and nothing else that uses the table does.
      // Waiting is bounded as SQLite's busy timeout bounds it.
      ejecutar(u"set local lock_timeout = '10s'"_s);
      consultar(u"select pg_advisory_xact_lock(hashtext('"_s + serializarEn + u"'))"_s);
    } else {
      // A write that changes nothing takes SQLite's write lock now, before anything is read.
      ejecutar(u"delete from "_s + serializarEn + u" where 1 = 0"_s);
    }
  } catch (const ErrorBD&) {
    deshacerTransaccion();
    throw;
  }
}
void Conexion::confirmarTransaccion() {
  terminarLecturas();
  if (!bd_.commit())
    throw ErrorBD(DescripcionError(bd_.lastError()));
}

void Conexion::deshacerTransaccion() {
  terminarLecturas();
  bd_.rollback();
}

void Conexion::anotarLectura(LecturaPendiente* lectura) {
  lecturas_.insert(lectura);
  if (pausaPedida_ || !QCoreApplication::instance())
    return;
  pedirPausa();
}

// A timer, not a queued call: Qt runs queued calls in the same pass as the events queued before
// them (the screen's painting among them) and those queued while it runs them, so that a chain
// of slices would read every row before the next click is looked at. A timer's turn comes after
// the other events of the loop's pass.
void Conexion::pedirPausa() {
  pausaPedida_ = true;
  QTimer::singleShot(1, &contexto_, [this] { leerEnPausa(); });
}

void Conexion::olvidarLectura(LecturaPendiente* lectura) {
  lecturas_.remove(lectura);
}

void Conexion::terminarLecturas() {
  while (!lecturas_.isEmpty()) {
    LecturaPendiente* lectura = *lecturas_.begin();
    try {
      lectura->terminarLectura();
    } catch (const ErrorBD&) {
      // The failure stays with the reader, which reports it when it is next read: the write
      // that comes now has nothing to do with it.
      olvidarLectura(lectura);
    }
  }
}

// One slice of reading, a few milliseconds long, then the program's other events: the rows come
// in while nobody waits for them, and a click is answered between two slices.
void Conexion::leerEnPausa() {
  constexpr qint64 kRebanadaMs = 4;
  constexpr int kFilasPorVez = 256;
  pausaPedida_ = false;
  QElapsedTimer reloj;
  reloj.start();
  while (!lecturas_.isEmpty() && !reloj.hasExpired(kRebanadaMs)) {
    LecturaPendiente* lectura = *lecturas_.begin();
    try {
      lectura->leerMas(kFilasPorVez);
    } catch (const ErrorBD&) {
      olvidarLectura(lectura);  // as in terminarLecturas()
    }
  }
  if (!lecturas_.isEmpty())
    pedirPausa();
}

Transaccion::Transaccion(Conexion& conexion, const QString& serializarEn) : conexion_(conexion) {
  conexion_.comenzarTransaccion(serializarEn);
}

Transaccion::~Transaccion() {
  if (!terminada_)
    conexion_.deshacerTransaccion();
}

void Transaccion::confirmar() {
  conexion_.confirmarTransaccion();
  terminada_ = true;
}
