#include <benchmark/benchmark.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include "base_bench.h"
#include "conexion.h"
#include "dialecto.h"
#include "esquema.h"
#include "recordset.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kProductos = 2000;

// A main database with 2,000 products, every column filled as the form fills it.
QString BaseConProductos() {
  static const QString ruta = CrearBaseBench([](Conexion& c) {
    for (int i = 1; i <= kProductos; ++i) {
      c.ejecutar(
          u"insert into productos (codigo, nombre, descripcion, codigobarras, seccion, coste, "
          "margencomercial, precio, iva, fechaalta, foto, color, proveedor, unidadmedida, "
          "stockminimo, mostrarencaja, hechoen, tipoprod, descnumerica, orden, impresora, "
          "productoespecial, borrar) values ('%1', 'Producto %1', 'Descripción del producto %1', "
          "'84%1', '%2', 1.25, 0.5, 2.1, 10, '2024-05-17', 'p%1.jpg', 16777215, 'P1', "
          "'Unidades', 0, 0, 1, 1, %1, %1, 0, 0, 0)"_s.arg(i)
              .arg(i % 12));
    }
  });
  return ruta;
}

// The same file behind the "velandria" ODBC data source, defined in a private odbc.ini.
bool PrepararOdbc() {
  static const bool listo = [] {
    QString driver;
    for (const QString& d : QDir(u"/usr/lib"_s).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
      if (QFile::exists(u"/usr/lib/%1/odbc/libsqlite3odbc.so"_s.arg(d))) {
        driver = u"/usr/lib/%1/odbc/libsqlite3odbc.so"_s.arg(d);
      }
    }
    if (driver.isEmpty())
      return false;
    const QString odbc = CarpetaBench().filePath(u"odbc"_s);
    QDir().mkpath(odbc);
    QFile inst(odbc + u"/odbcinst.ini"_s);
    QFile ini(odbc + u"/odbc.ini"_s);
    if (!inst.open(QIODevice::WriteOnly) || !ini.open(QIODevice::WriteOnly))
      return false;
    inst.write(u"[SQLite3]\nDriver=%1\n"_s.arg(driver).toUtf8());
    ini.write(u"[velandria]\nDriver=SQLite3\nDatabase=%1\n"_s.arg(BaseConProductos()).toUtf8());
    qputenv("ODBCSYSINI", QFile::encodeName(odbc));
    qputenv("ODBCINI", QFile::encodeName(odbc + u"/odbc.ini"_s));
    return true;
  }();
  return listo;
}

void AbrirYRecorrer(benchmark::State& estado, Conexion& c) {
  const QString sentencia = u"Select * from productos where borrar = 0 order by nombre"_s;
  for (auto _ : estado) {
    Recordset rs(c, sentencia);
    int filas = 0;
    while (!rs.eof()) {
      benchmark::DoNotOptimize(rs.field(u"nombre"_s));
      rs.moveNext();
      ++filas;
    }
    if (filas != kProductos)
      estado.SkipWithError("wrong number of rows");
  }
  estado.SetItemsProcessed(estado.iterations() * kProductos);
}

void BM_Recordset2000Productos_SQLite(benchmark::State& estado) {
  Conexion c;
  c.abrirSQLite(BaseConProductos());
  AbrirYRecorrer(estado, c);
}
BENCHMARK(BM_Recordset2000Productos_SQLite)->Unit(benchmark::kMillisecond);

void BM_Recordset2000Productos_ODBC(benchmark::State& estado) {
  if (!PrepararOdbc()) {
    estado.SkipWithError("the SQLite ODBC driver is not installed");
    return;
  }
  Conexion c;
  c.abrir(u"dsn=velandria;pwd=KorvanitesX%QQRT;"_s, OrigenesDatos());
  AbrirYRecorrer(estado, c);
}
BENCHMARK(BM_Recordset2000Productos_ODBC)->Unit(benchmark::kMillisecond);

// The next code: every code, ordered by numeric value, the last one taken.
void BM_SiguienteCodigo_SQLite(benchmark::State& estado) {
  Conexion c;
  c.abrirSQLite(BaseConProductos());
  for (auto _ : estado) {
    Recordset rs(c, u"select codigo from productos order by val(codigo)"_s);
    rs.moveLast();
    benchmark::DoNotOptimize(rs.field(u"codigo"_s));
  }
}
BENCHMARK(BM_SiguienteCodigo_SQLite)->Unit(benchmark::kMillisecond);

QStringList Catalogo() {
  QFile f(QStringLiteral(VECTORES_COPIA));
  QStringList textos;
  if (!f.open(QIODevice::ReadOnly))
    return textos;
  for (const QJsonValue& v : QJsonDocument::fromJson(f.readAll()).array()) {
    textos.append(v.toObject().value(u"text"_s).toString());
  }
  return textos;
}

// The adapter and the second-statement check over the whole statement catalogue.
void BM_AdaptarCatalogo(benchmark::State& estado) {
  const Motor motor = static_cast<Motor>(estado.range(0));
  const QStringList textos = Catalogo();
  if (textos.isEmpty()) {
    estado.SkipWithError("no statement vectors");
    return;
  }
  for (auto _ : estado) {
    for (const QString& t : textos) {
      benchmark::DoNotOptimize(TieneSegundaSentencia(t));
      benchmark::DoNotOptimize(AdaptarSentencia(t, motor));
    }
  }
  estado.SetItemsProcessed(estado.iterations() * textos.size());
}
BENCHMARK(BM_AdaptarCatalogo)
    ->ArgName("motor")
    ->Arg(static_cast<int>(Motor::SQLite))
    ->Arg(static_cast<int>(Motor::SQLiteODBC))
    ->Arg(static_cast<int>(Motor::PostgreSQL))
    ->Unit(benchmark::kMicrosecond);

}  // namespace

int main(int argc, char** argv) {
  QCoreApplication app(argc, argv);  // the SQL drivers are plugins
  return EjecutarBenchmarks(argc, argv);
}
