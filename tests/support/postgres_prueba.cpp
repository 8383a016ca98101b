#include "postgres_prueba.h"

#include <pwd.h>
#include <signal.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

#include "instalacion_prueba.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QString CarpetaBinarios() {
  const QString elegida = qEnvironmentVariable("PRODUCTOS_PG_BIN");
  if (!elegida.isEmpty())
    return elegida;
  QStringList versiones =
      QDir(u"/usr/lib/postgresql"_s).entryList(QDir::Dirs | QDir::NoDotAndDotDot);
  std::sort(versiones.begin(), versiones.end(),
            [](const QString& a, const QString& b) { return a.toDouble() > b.toDouble(); });
  return versiones.isEmpty() ? QString() : u"/usr/lib/postgresql/%1/bin"_s.arg(versiones.first());
}

}  // namespace

// Under /tmp whatever TMPDIR says: reachable by postgres, and a socket path stays short.
PostgresPrueba::PostgresPrueba() : dir_(u"/tmp/productos-pg-XXXXXX"_s) {
  arrancado_ = arrancar();
}

PostgresPrueba::~PostgresPrueba() {
  if (arrancado_)
    ejecutarPrograma(u"pg_ctl"_s, {u"-D"_s, dir_.filePath(u"datos"_s), u"-m"_s, u"immediate"_s,
                                   u"-w"_s, u"stop"_s});
}

bool PostgresPrueba::ejecutarPrograma(const QString& programa, const QStringList& argumentos) {
  QProcess p;
  p.setWorkingDirectory(dir_.path());
  p.setProcessChannelMode(QProcess::MergedChannels);
  QProcessEnvironment entorno = QProcessEnvironment::systemEnvironment();
  entorno.insert(u"PGPASSWORD"_s, clave());
  p.setProcessEnvironment(entorno);
  const QString ruta = binarios_ + u'/' + programa;
  if (comoRoot_) {
    p.start(
        QStandardPaths::findExecutable(u"runuser"_s, {u"/usr/sbin"_s, u"/sbin"_s, u"/usr/bin"_s}),
        QStringList{u"-u"_s, u"postgres"_s, u"--"_s, ruta} + argumentos);
  } else {
    p.start(ruta, argumentos);
  }
  if (p.waitForFinished(120000) && p.exitStatus() == QProcess::NormalExit && p.exitCode() == 0)
    return true;
  error_ = u"%1 failed (%2): %3"_s.arg(programa, p.errorString(),
                                       QString::fromUtf8(p.readAll()).trimmed());
  return false;
}

bool PostgresPrueba::arrancar() {
  binarios_ = CarpetaBinarios();
  if (!dir_.isValid() || binarios_.isEmpty()) {
    error_ = u"no temporary folder, or no initdb (install the postgresql package)"_s;
    return false;
  }
  comoRoot_ = ::geteuid() == 0;
  // A test run that crashed left its server running: stop those whose test process is gone.
  for (const QFileInfo& otra :
       QDir(u"/tmp"_s).entryInfoList({u"productos-pg-*"_s}, QDir::Dirs | QDir::NoDotAndDotDot)) {
    QFile creador(otra.filePath() + u"/creador"_s);
    const QString datos = otra.filePath() + u"/datos"_s;
    if (creador.open(QIODevice::ReadOnly) && ::kill(creador.readAll().toInt(), 0) != 0 &&
        (!QFile::exists(datos + u"/postmaster.pid"_s) ||
         ejecutarPrograma(u"pg_ctl"_s, {u"-D"_s, datos, u"-m"_s, u"immediate"_s, u"stop"_s})))
      QDir(otra.filePath()).removeRecursively();
  }
  QFile creador(dir_.filePath(u"creador"_s));
  if (creador.open(QIODevice::WriteOnly))
    creador.write(QByteArray::number(::getpid()));
  const passwd* pg = ::getpwnam("postgres");
  const QString clave = dir_.filePath(u"clave"_s);
  QFile f(clave);
  if (f.open(QIODevice::WriteOnly))
    f.write(PostgresPrueba::clave().toUtf8());
  f.close();
  if (comoRoot_ &&
      (!pg || ::chown(QFile::encodeName(dir_.path()).constData(), pg->pw_uid, pg->pw_gid) != 0 ||
       ::chown(QFile::encodeName(clave).constData(), pg->pw_uid, pg->pw_gid) != 0)) {
    error_ = u"running as root and the folder cannot be handed to a postgres user"_s;
    return false;
  }
  const QString datos = dir_.filePath(u"datos"_s);
  if (!ejecutarPrograma(u"initdb"_s, {u"-D"_s, datos, u"-U"_s, usuario(), u"--pwfile"_s, clave,
                                      u"--auth-local=scram-sha-256"_s, u"-E"_s, u"UTF8"_s,
                                      u"--no-locale"_s, u"--no-sync"_s}))
    return false;
  const QString opciones =
      u"-c listen_addresses= -c port=%1 -c unix_socket_directories=%2 -c fsync=off "
      "-c synchronous_commit=off -c full_page_writes=off"_s.arg(puerto())
          .arg(dir_.path());
  const QString log = dir_.filePath(u"servidor.log"_s);
  if (!ejecutarPrograma(u"pg_ctl"_s, {u"-D"_s, datos, u"-l"_s, log, u"-o"_s, opciones, u"-w"_s,
                                      u"-t"_s, u"60"_s, u"start"_s})) {
    QFile l(log);
    if (l.open(QIODevice::ReadOnly))
      error_ += u'\n' + QString::fromUtf8(l.readAll().right(2000));
    return false;
  }
  return true;
}

bool PostgresPrueba::ejecutarComoAdministrador(const QString& baseDatos, const QString& sentencia) {
  return ejecutarPrograma(
      u"psql"_s, {u"-h"_s, carpetaSocket(), u"-p"_s, QString::number(puerto()), u"-U"_s, usuario(),
                  u"-d"_s, baseDatos, u"-v"_s, u"ON_ERROR_STOP=1"_s, u"-c"_s, sentencia});
}

OrigenDatos PostgresPrueba::crearBaseDatos(const QString& nombre) {
  OrigenDatos o;
  o.tipo = OrigenDatos::Tipo::PostgreSQL;
  o.servidor = carpetaSocket();
  o.puerto = puerto();
  o.usuario = usuario();
  if (ejecutarComoAdministrador(u"postgres"_s, u"create database "_s + nombre))
    o.baseDatos = nombre;
  return o;
}

void UsarPostgres(InstalacionPrueba& inst, const OrigenDatos& origen) {
  inst.entorno().instalacion.origenes.mapear(u"velandria"_s, origen);
  inst.entorno().ConexionBD = std::make_unique<Conexion>();
  inst.entorno().ConexionBD->abrir(kCadenaVelandria, inst.entorno().instalacion.origenes);
  inst.entorno().sesion.tipo_programa = u"RESTAURANTE"_s;
}
