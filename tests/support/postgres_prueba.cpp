#include "postgres_prueba.h"

#include <netinet/in.h>
#include <pwd.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QAtomicInt>
#include <QCollator>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QStandardPaths>
#include <algorithm>

#include "instalacion_prueba.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QAtomicInt g_conexiones;

// A port that no one listens on now. The server opens no TCP listener, so the port only names
// its socket file; a free one still keeps it apart from any server a developer runs by hand.
int PuertoLibre() {
  const int s = ::socket(AF_INET, SOCK_STREAM, 0);
  if (s < 0)
    return 54321;
  sockaddr_in dir{};
  dir.sin_family = AF_INET;
  dir.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  dir.sin_port = 0;
  int puerto = 54321;
  socklen_t largo = sizeof(dir);
  if (::bind(s, reinterpret_cast<sockaddr*>(&dir), sizeof(dir)) == 0 &&
      ::getsockname(s, reinterpret_cast<sockaddr*>(&dir), &largo) == 0) {
    puerto = ntohs(dir.sin_port);
  }
  ::close(s);
  return puerto;
}

QString CarpetaBinarios() {
  const QString elegida = qEnvironmentVariable("PRODUCTOS_PG_BIN");
  if (!elegida.isEmpty())
    return elegida;
  QStringList versiones =
      QDir(u"/usr/lib/postgresql"_s).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
  QCollator numerico;
  numerico.setNumericMode(true);
  std::sort(versiones.begin(), versiones.end(),
            [&](const QString& a, const QString& b) { return numerico.compare(a, b) > 0; });
  for (const QString& v : std::as_const(versiones)) {
    const QString bin = u"/usr/lib/postgresql/%1/bin"_s.arg(v);
    if (QFile::exists(bin + u"/initdb"_s) && QFile::exists(bin + u"/pg_ctl"_s))
      return bin;
  }
  const QString initdb = QStandardPaths::findExecutable(u"initdb"_s);
  return initdb.isEmpty() ? QString() : QFileInfo(initdb).absolutePath();
}

bool DarA(const QString& ruta, uid_t uid, gid_t gid) {
  return ::chown(QFile::encodeName(ruta).constData(), uid, gid) == 0;
}

QString UltimasLineas(const QString& ruta) {
  QFile f(ruta);
  if (!f.open(QIODevice::ReadOnly))
    return {};
  const QStringList lineas = QString::fromUtf8(f.readAll()).split(u'\n');
  return lineas.mid(std::max<qsizetype>(0, lineas.size() - 15)).join(u'\n');
}

}  // namespace

QString PostgresPrueba::usuario() {
  return u"tpv"_s;
}

QString PostgresPrueba::clave() {
  return u"KorvanitesX%QQRT"_s;
}

// Under /tmp whatever TMPDIR says: the postgres user must reach the folder, and a socket's path
// must stay short (about a hundred bytes at most).
PostgresPrueba::PostgresPrueba() : dir_(u"/tmp/productos-pg-XXXXXX"_s) {
  arrancado_ = arrancar();
}

PostgresPrueba::~PostgresPrueba() {
  if (arrancado_) {
    ejecutarPrograma(binarios_ + u"/pg_ctl"_s,
                     {u"-D"_s, carpetaDatos(), u"-m"_s, u"immediate"_s, u"-w"_s, u"stop"_s});
  }
}

QString PostgresPrueba::carpetaDatos() const {
  return dir_.filePath(u"datos"_s);
}

QString PostgresPrueba::rutaLog() const {
  return dir_.filePath(u"servidor.log"_s);
}

bool PostgresPrueba::ejecutarPrograma(const QString& programa, const QStringList& argumentos) {
  QProcess p;
  p.setWorkingDirectory(dir_.path());
  p.setProcessChannelMode(QProcess::MergedChannels);
  if (comoRoot_) {
    QString runuser = QStandardPaths::findExecutable(u"runuser"_s);
    if (runuser.isEmpty()) {
      runuser = QStandardPaths::findExecutable(u"runuser"_s, {u"/usr/sbin"_s, u"/sbin"_s});
    }
    p.start(runuser, QStringList{u"-u"_s, u"postgres"_s, u"--"_s, programa} + argumentos);
  } else {
    p.start(programa, argumentos);
  }
  if (!p.waitForFinished(120000) || p.exitStatus() != QProcess::NormalExit || p.exitCode() != 0) {
    error_ = u"%1 failed (%2): %3"_s.arg(QFileInfo(programa).fileName(), p.errorString(),
                                         QString::fromUtf8(p.readAll()).trimmed());
    return false;
  }
  return true;
}

bool PostgresPrueba::arrancar() {
  if (!dir_.isValid()) {
    error_ = u"no temporary folder for the PostgreSQL cluster"_s;
    return false;
  }
  binarios_ = CarpetaBinarios();
  if (binarios_.isEmpty()) {
    error_ = u"PostgreSQL server binaries not found (install the postgresql package)"_s;
    return false;
  }
  comoRoot_ = ::geteuid() == 0;
  if (comoRoot_) {
    const passwd* pg = ::getpwnam("postgres");
    if (!pg) {
      error_ = u"running as root and there is no postgres system user to run the server"_s;
      return false;
    }
    if (!DarA(dir_.path(), pg->pw_uid, pg->pw_gid)) {
      error_ = u"cannot hand the cluster folder to the postgres user"_s;
      return false;
    }
  }
  const QString archivoClave = dir_.filePath(u"clave"_s);
  {
    QFile f(archivoClave);
    if (!f.open(QIODevice::WriteOnly)) {
      error_ = u"cannot write the password file"_s;
      return false;
    }
    f.write(clave().toUtf8() + '\n');
  }
  if (comoRoot_) {
    const passwd* pg = ::getpwnam("postgres");
    DarA(archivoClave, pg->pw_uid, pg->pw_gid);
  }
  if (!ejecutarPrograma(binarios_ + u"/initdb"_s,
                        {u"-D"_s, carpetaDatos(), u"-U"_s, usuario(), u"--pwfile"_s, archivoClave,
                         u"--auth-local=scram-sha-256"_s, u"--auth-host=scram-sha-256"_s, u"-E"_s,
                         u"UTF8"_s, u"--no-locale"_s, u"--no-sync"_s})) {
    return false;
  }
  QFile::remove(archivoClave);
  puerto_ = PuertoLibre();
  {
    // Appending keeps the file's owner, so the server can still read it.
    QFile conf(carpetaDatos() + u"/postgresql.conf"_s);
    if (!conf.open(QIODevice::Append)) {
      error_ = u"cannot write postgresql.conf"_s;
      return false;
    }
    conf.write(
        u"\nlisten_addresses = ''\nport = %1\nunix_socket_directories = '%2'\n"
        "fsync = off\nsynchronous_commit = off\nfull_page_writes = off\n"_s.arg(puerto_)
            .arg(dir_.path())
            .toUtf8());
  }
  if (!ejecutarPrograma(binarios_ + u"/pg_ctl"_s, {u"-D"_s, carpetaDatos(), u"-l"_s, rutaLog(),
                                                   u"-w"_s, u"-t"_s, u"60"_s, u"start"_s})) {
    error_ += u"\n"_s + UltimasLineas(rutaLog());
    return false;
  }
  return true;
}

bool PostgresPrueba::ejecutarComoAdministrador(const QString& baseDatos, const QString& sentencia) {
  const QString nombre = u"postgres_prueba_%1"_s.arg(g_conexiones.fetchAndAddRelaxed(1));
  bool ok = false;
  {
    QSqlDatabase bd = QSqlDatabase::addDatabase(u"QPSQL"_s, nombre);
    bd.setHostName(carpetaSocket());
    bd.setPort(puerto_);
    bd.setDatabaseName(baseDatos);
    bd.setUserName(usuario());
    bd.setPassword(clave());
    if (!bd.open()) {
      error_ = bd.lastError().text();
    } else {
      QSqlQuery q(bd);
      ok = q.exec(sentencia);
      if (!ok)
        error_ = q.lastError().text();
      q.finish();
      bd.close();
    }
  }
  QSqlDatabase::removeDatabase(nombre);
  return ok;
}

OrigenDatos PostgresPrueba::crearBaseDatos(const QString& nombre) {
  OrigenDatos o;
  o.tipo = OrigenDatos::Tipo::PostgreSQL;
  o.servidor = carpetaSocket();
  o.puerto = puerto_;
  o.baseDatos = nombre;
  o.usuario = usuario();
  if (!ejecutarComoAdministrador(u"postgres"_s, u"create database "_s + nombre))
    o.baseDatos.clear();
  return o;
}

void UsarPostgres(InstalacionPrueba& inst, const OrigenDatos& origen) {
  inst.entorno().instalacion.origenes.mapear(u"velandria"_s, origen);
  inst.entorno().ConexionBD = std::make_unique<Conexion>();
  inst.entorno().ConexionBD->abrir(kCadenaVelandria, inst.entorno().instalacion.origenes);
  inst.entorno().sesion.tipo_programa = u"RESTAURANTE"_s;
}
