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

// A throwaway installation for a test: a temporary program folder holding an empty main
// database ("velandria.db") and reports database ("informes.db") with the schema, a
// "productos.ini" that maps "velandria" and "informes" to them, a scripted dialog service and an
// error log whose shown entries are recorded. The shared connection is open on the main database.
class InstalacionPrueba {
 public:
  InstalacionPrueba();

  Entorno& entorno() { return *entorno_; }
  Conexion& conexion() { return *entorno_->ConexionBD; }
  DialogosGuion& dialogos() { return dialogos_; }
  QString carpeta() const { return dir_.path(); }
  QString rutaPrincipal() const;
  QString rutaInformes() const;

  // Moves the shared connection to a new database of the test server, holding the main tables,
  // as the data source "velandria", in the entorno and in productos.ini; false when the database cannot be made (the server's
  // error() says why).
  bool usarPostgres(PostgresPrueba& servidor, const QString& base);

  // Runs statements of the test's own on the main database (several, one after another).
  void ejecutar(const QStringList& sentencias);
  // Runs statements on the reports database.
  void ejecutarEnInformes(const QStringList& sentencias);
  // The rows of a query on the main database, each as its values in column order.
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
