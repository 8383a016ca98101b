// Showing an elaborated product with its recipe and saving a recipe of five lines, at 10,000
// products of which every tenth is elaborated from three others (the floor's catalogue). Each
// action runs beside its floor: the same statements on the raw sqlite3 C API, in the same run.
#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <QCoreApplication>
#include <QTemporaryDir>

#include "base_bench.h"
#include "conexion.h"
#include "dialogos_guion.h"
#include "entorno.h"
#include "esquema.h"
#include "listas_productos.h"
#include "receta.h"
#include "recordset.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kProductos = 10000;
// An elaborated product in the middle of the catalogue, and the one whose recipe is saved.
constexpr int kElaborado = 5000;

QString Base() {
  static const QString ruta = CrearBaseBench([](Conexion& c) {
    for (int i = 1; i <= kProductos; ++i) {
      c.ejecutar(
          u"insert into productos (codigo, nombre, descripcion, codigobarras, seccion, coste, "
          "margencomercial, precio, iva, fechaalta, foto, color, proveedor, unidadmedida, "
          "stockminimo, mostrarencaja, hechoen, tipoprod, descnumerica, orden, impresora, "
          "productoespecial, borrar) values ('%1', 'Producto %1', '', '84%1', '%2', 1.5, 0.5, "
          "2.42, 10, '2026-01-01', '', 16777215, '1', 'Unidades', 1, 0, 1, 1, %1, %1, 0, 0, 0)"_s
              .arg(i)
              .arg(1 + i % 12));
      c.ejecutar(u"insert into stock values (%1, 5, 1, 0)"_s.arg(i));
      for (int k = 1; i % 10 == 0 && k <= 3; ++k) {
        c.ejecutar(
            u"insert into productoElaborado_producto values ('%1', '%2', 1)"_s.arg(i).arg(i - k));
      }
    }
  });
  return ruta;
}

// The statements that show an elaborated product: its row, its stock row and its recipe.
QStringList SentenciasMostrar(const QString& codigo) {
  return {u"select * from productos where borrar = 0 AND codigo ='"_s + codigo + u"'"_s,
          u"select * from stock where producto = "_s + codigo, SentenciaIngredientes(codigo)};
}

void BM_MostrarElaborado(benchmark::State& estado) {
  Conexion c;
  c.abrirSQLite(Base());
  const QString codigo = QString::number(kElaborado);
  for (auto _ : estado) {
    const QStringList sentencias = SentenciasMostrar(codigo);
    Recordset producto(c, sentencias.at(0));
    Recordset stock(c, sentencias.at(1));
    benchmark::DoNotOptimize(producto.field(u"nombre"_s));
    benchmark::DoNotOptimize(stock.field(u"stock"_s));
    const QStringList receta = CargarIngredientes(c, codigo);
    if (receta.size() != 3)
      estado.SkipWithError("wrong recipe");
  }
}
BENCHMARK(BM_MostrarElaborado)->Unit(benchmark::kMicrosecond);

// Every row's every column read as text, as a static recordset reads them.
void Leer(sqlite3* db, const QString& sentencia) {
  sqlite3_stmt* st = nullptr;
  sqlite3_prepare_v2(db, sentencia.toUtf8().constData(), -1, &st, nullptr);
  while (sqlite3_step(st) == SQLITE_ROW) {
    for (int i = 0; i < sqlite3_column_count(st); ++i)
      benchmark::DoNotOptimize(sqlite3_column_text(st, i));
  }
  sqlite3_finalize(st);
}

void BM_MostrarElaborado_Suelo(benchmark::State& estado) {
  sqlite3* db = nullptr;
  sqlite3_open(Base().toUtf8().constData(), &db);
  const QStringList sentencias = SentenciasMostrar(QString::number(kElaborado));
  for (auto _ : estado) {
    for (const QString& s : sentencias)
      Leer(db, s);
  }
  sqlite3_close(db);
}
BENCHMARK(BM_MostrarElaborado_Suelo)->Unit(benchmark::kMicrosecond);

ElaboradoFormulario Sangria() {
  ElaboradoFormulario p;
  p.codigo = kElaborado;
  p.nombre = u"Sangría"_s;
  p.coste = u"2"_s;
  p.iva = u"10"_s;
  p.precio = u"6"_s;
  p.color = u"255"_s;
  p.descNumerica = u"41"_s;
  p.posicion = u"6"_s;
  p.optBarra = true;
  p.familia = u"3"_s;
  for (int k = 1; k <= 5; ++k)
    p.receta.append(LineaLista(u"Producto %1 (%2) "_s.arg(k).arg(k), QString::number(k)));
  return p;
}

// The product row rewritten and its recipe replaced by five lines, in one transaction.
void BM_GrabarReceta5Lineas(benchmark::State& estado) {
  DialogosGuion dialogos;
  Instalacion instalacion;
  instalacion.carpetaPrograma = CarpetaBench().path();
  Entorno entorno(instalacion, dialogos);
  entorno.ConexionBD->abrirSQLite(Base());
  const ElaboradoFormulario sangria = Sangria();
  for (auto _ : estado) {
    if (!ModificarProductoElaborado(entorno, sangria))
      estado.SkipWithError("the save failed");
  }
}
BENCHMARK(BM_GrabarReceta5Lineas)->Unit(benchmark::kMillisecond);

void Ejecutar(sqlite3* db, const QByteArray& sentencia) {
  sqlite3_exec(db, sentencia.constData(), nullptr, nullptr, nullptr);
}

void BM_GrabarReceta5Lineas_Suelo(benchmark::State& estado) {
  sqlite3* db = nullptr;
  sqlite3_open(Base().toUtf8().constData(), &db);
  const QByteArray codigo = QByteArray::number(kElaborado);
  for (auto _ : estado) {
    Ejecutar(db, "begin");
    Ejecutar(db,
             "update productos set nombre = 'Sangría', coste = 2, margencomercial = 0, "
             "precio = 6, iva = 10, fechaalta = '2026-01-01', stockminimo = 0, borrar = 0, "
             "color = 255, descnumerica = 41, tipoprod = 3, orden = 6, hechoen = 1, "
             "impresora = 0, seccion = '3' where codigo = '" +
                 codigo + "'");
    Ejecutar(db, "delete from productoElaborado_producto where productopadre = '" + codigo + "'");
    for (int k = 1; k <= 5; ++k) {
      Ejecutar(db, "insert into productoElaborado_producto values ('" + codigo + "', '" +
                       QByteArray::number(k) + "', " + QByteArray::number(k) + ")");
    }
    Ejecutar(db, "commit");
  }
  sqlite3_close(db);
}
BENCHMARK(BM_GrabarReceta5Lineas_Suelo)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
  QCoreApplication app(argc, argv);  // the SQL drivers are plugins
  return EjecutarBenchmarks(argc, argv);
}
