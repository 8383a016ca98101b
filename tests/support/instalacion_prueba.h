#pragma once

#include <QList>
#include <QPair>
#include <QTemporaryDir>
#include <memory>

#include "dialogos_guion.h"
#include "entorno.h"

class PostgresPrueba;

// The rows of a query, each as its values in column order.
QList<QVariantList> FilasDe(Conexion& conexion, const QString& consulta);

// A temporary program folder: velandria.db and informes.db mapped by productos.ini, scripted
// dialogs, shown errors recorded; the shared connection open on velandria.db.
class InstalacionPrueba {
 public:
  InstalacionPrueba();

  Entorno& entorno() { return *entorno_; }
  Conexion& conexion() { return *entorno_->ConexionBD; }
  DialogosGuion& dialogos() { return dialogos_; }
  QString carpeta() const { return dir_.path(); }
  QString rutaPrincipal() const;
  QString rutaInformes() const;

  // Maps "velandria" (here and in productos.ini) to a new server database; false: see error().
  bool usarPostgres(PostgresPrueba& servidor, const QString& base);

  // Runs statements on the main database.
  void ejecutar(const QStringList& sentencias);
  // Runs statements on the reports database.
  void ejecutarEnInformes(const QStringList& sentencias);
  QList<QVariantList> filas(const QString& consulta) { return FilasDe(conexion(), consulta); }
  // The error log's bytes.
  QByteArray log() const;
  // The entries shown on the error form, as (context, description).
  const QList<QPair<QString, QString>>& erroresMostrados() const { return errores_; }

 private:
  QTemporaryDir dir_;
  DialogosGuion dialogos_;
  std::unique_ptr<Entorno> entorno_;
  QList<QPair<QString, QString>> errores_;
};
