#include "instalacion_prueba.h"

#include <QDir>
#include <QFile>
#include <QSqlQuery>
#include <QSqlRecord>
#include <stdexcept>

#include "esquema.h"
#include "postgres_prueba.h"

using namespace Qt::Literals::StringLiterals;

InstalacionPrueba::InstalacionPrueba() {
  QFile ini(QDir(dir_.path()).filePath(u"productos.ini"_s));
  if (!dir_.isValid() || !ini.open(QIODevice::WriteOnly))
    throw std::runtime_error("no temporary folder");
  ini.write(
      "[dsn velandria]\ntipo=sqlite\narchivo=velandria.db\n\n"
      "[dsn informes]\ntipo=sqlite\narchivo=informes.db\n");
  ini.close();
  for (const auto& [ruta, tablas] : {std::pair(rutaPrincipal(), TablasPrincipales()),
                                     std::pair(rutaInformes(), TablasInformes())}) {
    Conexion c;
    c.abrirSQLite(ruta);
    CrearEsquema(c, tablas);
  }
  entorno_ = std::make_unique<Entorno>(Instalacion::Cargar(dir_.path()), dialogos_);
  entorno_->registro.setMostrar([this](const QString& contexto, const QString& descripcion) {
    errores_.append({contexto, descripcion});
  });
  entorno_->ConexionBD->abrirSQLite(rutaPrincipal());
}

QString InstalacionPrueba::rutaPrincipal() const {
  return QDir(dir_.path()).filePath(u"velandria.db"_s);
}

QString InstalacionPrueba::rutaInformes() const {
  return QDir(dir_.path()).filePath(u"informes.db"_s);
}

bool InstalacionPrueba::usarPostgres(PostgresPrueba& servidor, const QString& base) {
  const OrigenDatos origen = servidor.crearBaseDatos(base);
  if (origen.baseDatos.isEmpty())
    return false;
  UsarPostgres(*this, origen);
  CrearEsquema(conexion(), TablasPrincipales());
  QFile ini(QDir(dir_.path()).filePath(u"productos.ini"_s));
  return ini.open(QIODevice::Append) &&
         ini.write(
             u"[dsn velandria]\ntipo=postgresql\nservidor=%1\npuerto=%2\nbasedatos=%3\n"
             "usuario=%4\n"_s
                 .arg(origen.servidor, QString::number(origen.puerto), base, origen.usuario)
                 .toUtf8()) > 0;
}

void InstalacionPrueba::ejecutar(const QStringList& sentencias) {
  for (const QString& s : sentencias)
    conexion().ejecutar(s);
}

void InstalacionPrueba::ejecutarEnInformes(const QStringList& sentencias) {
  Conexion c;
  c.abrirSQLite(rutaInformes());
  for (const QString& s : sentencias)
    c.ejecutar(s);
}

QList<QVariantList> FilasDe(Conexion& conexion, const QString& consulta) {
  QList<QVariantList> r;
  QSqlQuery q = conexion.consultar(consulta);
  while (q.next()) {
    QVariantList fila;
    for (int i = 0; i < q.record().count(); ++i)
      fila.append(q.value(i));
    r.append(fila);
  }
  return r;
}

QByteArray InstalacionPrueba::log() const {
  QFile f(entorno_->registro.rutaLog());
  return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}
