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

// A program folder: velandria.db and informes.db mapped by productos.ini, scripted dialogs.
class InstalacionPrueba {
 public:
  InstalacionPrueba();

  Entorno& entorno() { return *entorno_; }
  Conexion& conexion() { return *entorno_->ConexionBD; }
  DialogosGuion& dialogos() { return dialogos_; }
  QString carpeta() const { return dir_.path(); }
  QString rutaPrincipal() const;
  QString rutaInformes() const;

  // UsarPostgres on a new server database, also mapped in productos.ini; false: see error().
  bool usarPostgres(PostgresPrueba& servidor, const QString& base);

  void ejecutar(const QStringList& sentencias);
  void ejecutarEnInformes(const QStringList& sentencias);
  QList<QVariantList> filas(const QString& consulta) { return FilasDe(conexion(), consulta); }
  QByteArray log() const;
  // The entries shown on the error form, as (context, description).
  const QList<QPair<QString, QString>>& erroresMostrados() const { return errores_; }

 private:
  QTemporaryDir dir_;
  DialogosGuion dialogos_;
  std::unique_ptr<Entorno> entorno_;
  QList<QPair<QString, QString>> errores_;
};
