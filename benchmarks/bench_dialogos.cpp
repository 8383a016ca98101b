// The search and sub-products dialogs on a catalogue of 10,000 products: a name-prefix search
// beside the same statement run on the raw SQLite C API (the floor no program on top of SQLite
// can beat), opening the sub-products dialog, and accepting ten links.
#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <QApplication>
#include <QTemporaryDir>
#include <random>
#include <string>
#include <vector>

#include "base_bench.h"
#include "busqueda_productos.h"
#include "dialecto.h"
#include "dialogos_guion.h"
#include "entorno.h"
#include "esquema.h"
#include "frm_add_subproductos.h"
#include "paneles.h"
#include "subproductos.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int kProductos = 10000;
constexpr int kFamilias = 12;
const CriteriosBusqueda kPrefijo{.nombre = u"ca"_s};

// Names made of Spanish syllables, as a bar's catalogue reads: about one in twenty starts "ca".
QString Nombre(std::mt19937& rng) {
  static const char* kSilabas[] = {"ca",   "fe",  "le",  "che", "ce", "rve", "za",  "tor",
                                   "ti",   "lla", "pa",  "ta",  "vi", "no",  "ro",  "jo",
                                   "agua", "zu",  "mo",  "bo",  "ca", "di",  "llo", "que",
                                   "so",   "ja",  "mon", "pul", "po"};
  QString s;
  const int silabas = 2 + int(rng() % 3);
  for (int i = 0; i < silabas; ++i)
    s += QString::fromLatin1(kSilabas[rng() % 29]);
  s[0] = s[0].toUpper();
  return s + u" "_s + QString::number(rng() % 1000);
}

// The catalogue: live products without pictures in twelve families shown on the till, one in ten
// elaborated.
QString Base() {
  static const QString ruta = CrearBaseBench([](Conexion& c) {
    std::mt19937 rng(42);
    for (int i = 1; i <= kProductos; ++i) {
      c.ejecutar(
          u"insert into productos (codigo, nombre, seccion, proveedor, borrar, "
          "mostrarencaja, tipoprod, orden, color, foto) values ('%1', '%2', '%3', '%4', 0, "
          "0, 1, %1, 16777215, null)"_s.arg(i)
              .arg(Nombre(rng))
              .arg(1 + i % kFamilias)
              .arg(1 + i % 20));
      for (int k = 1; i % 10 == 0 && k <= 3; ++k) {
        c.ejecutar(
            u"insert into productoelaborado_producto (productopadre, productohijo, "
            "cantidad) values ('%1', '%2', 1)"_s.arg(i)
                .arg(i - k));
      }
    }
    for (int f = 1; f <= kFamilias; ++f) {
      c.ejecutar(
          u"insert into seccion (codigo, nombre, borrar, menu, orden, mostrarencaja) "
          "values ('%1', 'Familia %1', 0, 0, %1, 0)"_s.arg(f));
    }
  });
  return ruta;
}

struct Programa {
  DialogosGuion dialogos;
  Entorno entorno{Instalacion::Cargar(CarpetaBench().path()), dialogos};
  TablasPanel tablas;
  Programa() {
    entorno.ConexionBD->abrirSQLite(Base());
    entorno.sesion.idioma = u"CASTELLANO"_s;
  }
};

void BM_BuscarPorNombre(benchmark::State& estado) {
  Programa p;
  qsizetype filas = 0;
  for (auto _ : estado)
    filas = BuscarProducto(p.entorno, kModoProductos, kPrefijo).size();
  estado.counters["filas"] = double(filas);
}
BENCHMARK(BM_BuscarPorNombre)->Unit(benchmark::kMillisecond);

// The floor: the same statement, as the engine receives it, with every column of every row
// copied to strings as a static recordset's snapshot is.
void BM_BuscarPorNombre_SQLiteCrudo(benchmark::State& estado) {
  const QByteArray sentencia =
      AdaptarSentencia(ConsultaBuscarProducto(kModoProductos, kPrefijo), Motor::SQLite).toUtf8();
  sqlite3* bd = nullptr;
  sqlite3_open(Base().toUtf8().constData(), &bd);
  std::size_t filas = 0;
  for (auto _ : estado) {
    std::vector<std::vector<std::string>> copia;
    sqlite3_stmt* st = nullptr;
    sqlite3_prepare_v2(bd, sentencia.constData(), -1, &st, nullptr);
    const int columnas = sqlite3_column_count(st);
    while (sqlite3_step(st) == SQLITE_ROW) {
      std::vector<std::string> fila;
      for (int i = 0; i < columnas; ++i) {
        const auto* texto = reinterpret_cast<const char*>(sqlite3_column_text(st, i));
        fila.emplace_back(texto ? texto : "");
      }
      copia.push_back(std::move(fila));
    }
    sqlite3_finalize(st);
    filas = copia.size();
  }
  sqlite3_close(bd);
  estado.counters["filas"] = double(filas);
}
BENCHMARK(BM_BuscarPorNombre_SQLiteCrudo)->Unit(benchmark::kMillisecond);

void BM_AbrirSubproductos(benchmark::State& estado) {
  Programa p;
  for (auto _ : estado) {
    FrmAddSubProductos dialogo(p.entorno, p.tablas, nullptr);
    benchmark::DoNotOptimize(dialogo.padre());
  }
  estado.counters["productos del panel"] = double(p.tablas.paginaA.size());
}
BENCHMARK(BM_AbrirSubproductos)->Unit(benchmark::kMillisecond);

void BM_AceptarDiezEnlaces(benchmark::State& estado) {
  Programa p;
  QStringList hijos;
  for (int i = 2; i <= 11; ++i)
    hijos.append(QString::number(i));
  for (auto _ : estado)
    GrabarSubproductos(*p.entorno.ConexionBD, 1, hijos);
}
BENCHMARK(BM_AceptarDiezEnlaces)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
  // The dialog needs widgets; with no display they are drawn offscreen.
  if (qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
    qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  return EjecutarBenchmarks(argc, argv);
}
