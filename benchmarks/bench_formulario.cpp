// The products form at 1,000, 10,000 and 100,000 products, driven offscreen by its own buttons,
// beside the floor of the same work: the statements that each action ran, caught as SQLite ran
// them, run again on a copy of the same file through the raw sqlite3 C API, every column of
// every row copied (and the list lines built, for the actions that fill lists). Prints, per
// action, the median wall time of both and their ratio, and the peak memory of the process.
//
//   bench_formulario [--cache FOLDER] [--sin-suelo] [--cpu] [--sentencias] [SIZES...]
//   (default sizes: 1000 10000 100000)
//
// --sin-suelo times the program alone, so that the peak memory is the program's own (the floor
// keeps every row of a statement too). --cpu times the thread's CPU rather than the wall clock.
// --sentencias prints each timed action's statements to the standard error, as SQLite ran them.
//
// Before each action the benchmark pauses as a manager does between two clicks: the rows that
// the form reads while idle come in then. The last row of the table is that reading, after the
// cold start, which the cold start's own figure does not include.
//
// The catalogues are generated once into the cache folder (PRODUCTOS_BENCH_CACHE, else
// "bench-catalogos" in the working folder); each size then runs on a fresh copy.
#include <sqlite3.h>
#include <sys/resource.h>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QListView>
#include <QTemporaryDir>
#include <QTest>

#include "catalogo_bench.h"
#include "dialogos_guion.h"
#include "entorno.h"
#include "frm_productos.h"
#include "instalacion.h"
#include "lector_filas.h"
#include "panel_obj_nuevo.h"
#include "paneles.h"
#include "principal.h"

using namespace Qt::Literals::StringLiterals;

namespace {

// ---- The statements that SQLite runs on the main database, as it runs them -------------------

bool g_grabando = false;
bool g_sinSuelo = false;
bool g_verSentencias = false;
std::vector<std::string> g_sentencias;

int AlEjecutar(unsigned tipo, void*, void* p, void*) {
  if (tipo != SQLITE_TRACE_STMT || !g_grabando)
    return 0;
  auto* st = static_cast<sqlite3_stmt*>(p);
  const char* archivo = sqlite3_db_filename(sqlite3_db_handle(st), "main");
  if (!archivo || !std::string(archivo).ends_with("velandria.db"))
    return 0;
  if (char* sql = sqlite3_expanded_sql(st)) {
    g_sentencias.emplace_back(sql);
    sqlite3_free(sql);
  }
  return 0;
}

int AlAbrir(sqlite3* db, const char**, const sqlite3_api_routines*) {
  sqlite3_trace_v2(db, SQLITE_TRACE_STMT, AlEjecutar, nullptr);
  return SQLITE_OK;
}

// ---- The floor ----------------------------------------------------------------------------------

void Val(sqlite3_context* c, int, sqlite3_value** v) {
  const char* t = reinterpret_cast<const char*>(sqlite3_value_text(v[0]));
  if (!t) {
    sqlite3_result_null(c);
    return;
  }
  sqlite3_result_double(c, std::atof(t));
}

class Suelo {
 public:
  explicit Suelo(const QString& archivo) : archivo_(QFile::encodeName(archivo).toStdString()) {}
  ~Suelo() { cerrar(); }
  void abrir() {
    sqlite3_open(archivo_.c_str(), &db_);
    sqlite3_create_function(db_, "val", 1, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr, Val,
                            nullptr, nullptr);
  }
  void cerrar() {
    if (db_)
      sqlite3_close(db_);
    db_ = nullptr;
  }
  // Runs the statements, copying every column of every row; lists by name become list lines.
  void correr(const std::vector<std::string>& sentencias) {
    if (g_sinSuelo)
      return;
    for (const std::string& sql : sentencias) {
      sqlite3_stmt* st = nullptr;
      if (sqlite3_prepare_v2(db_, sql.c_str(), -1, &st, nullptr) != SQLITE_OK) {
        std::fprintf(stderr, "suelo: %s\n%s\n", sqlite3_errmsg(db_), sql.c_str());
        continue;
      }
      const int n = sqlite3_column_count(st);
      std::vector<std::vector<std::string>> filas;
      while (sqlite3_step(st) == SQLITE_ROW) {
        std::vector<std::string> fila;
        fila.reserve(n);
        for (int i = 0; i < n; ++i) {
          const auto* t = reinterpret_cast<const char*>(sqlite3_column_text(st, i));
          fila.emplace_back(t ? t : "");
        }
        filas.push_back(std::move(fila));
      }
      if (sql.find("order by nombre") != std::string::npos && n > 1) {
        std::vector<std::string> lineas;
        lineas.reserve(filas.size());
        for (auto& f : filas)
          lineas.push_back(f[1] + std::string(120, ' ') + f[0]);
      }
      sqlite3_finalize(st);
    }
  }

 private:
  std::string archivo_;
  sqlite3* db_ = nullptr;
};

// Milliseconds on the wall clock, or with --cpu on this thread's own CPU clock: on a machine
// that others share, the time that the program and the floor wait for a core is left out.
bool g_cpu = false;

double Ahora() {
  timespec t{};
  clock_gettime(g_cpu ? CLOCK_THREAD_CPUTIME_ID : CLOCK_MONOTONIC, &t);
  return t.tv_sec * 1e3 + t.tv_nsec / 1e6;
}

double Mediana(std::vector<double> v) {
  if (v.empty())
    return 0;
  std::sort(v.begin(), v.end());
  return v[v.size() / 2];
}

struct Medida {
  std::vector<double> suelo, programa;
  std::vector<double> eventos;  // of the program's time, the events handled after the action
  size_t sentencias = 0;
  qint64 filas = 0;  // rows read by the action itself
};

// ---- The form, as a manager drives it -----------------------------------------------------------

class Banco {
 public:
  Banco(const QString& carpeta, Suelo& suelo) : carpeta_(carpeta), suelo_(suelo) {}

  template <typename T>
  T* control(const QString& nombre) {
    T* c = forma_ ? forma_->findChild<T*>(nombre) : nullptr;
    if (!c)
      throw std::runtime_error("no hay " + nombre.toStdString());
    return c;
  }
  void pulsar(const QString& nombre) {
    auto* b = control<QAbstractButton>(nombre);
    if (!b->isVisible() || !b->isEnabled())
      throw std::runtime_error(nombre.toStdString() + " no se puede pulsar");
    QTest::mouseClick(b, Qt::LeftButton);
  }
  void escribir(const QString& nombre, const QString& texto) {
    auto* campo = control<QLineEdit>(nombre);
    QTest::mouseClick(campo, Qt::LeftButton);
    campo->selectAll();
    QTest::keyClick(campo, Qt::Key_Backspace);
    QTest::keyClicks(campo, texto);
  }
  void tocarLinea(const QString& lista, int fila) {
    auto* l = control<QListView>(lista);
    QTest::mouseClick(l->viewport(), Qt::LeftButton, {},
                      l->visualRect(l->model()->index(fila, 0)).center());
  }

  // A manager's pause between two actions: the rows that the form reads while idle come in.
  void pausa() {
    QApplication::processEvents();
    while (entorno_->ConexionBD->hayLecturasPendientes())
      QApplication::processEvents();
  }

  // Times an action and the floor of the statements it ran.
  void medir(Medida& m, const std::function<void()>& accion) {
    pausa();
    g_sentencias.clear();
    g_grabando = true;
    const qint64 filas = LectorFilas::filasLeidas();
    const auto a = Ahora();
    accion();
    const auto hecha = Ahora();
    m.filas = LectorFilas::filasLeidas() - filas;
    QApplication::processEvents();
    const auto b = Ahora();
    m.eventos.push_back(b - hecha);
    g_grabando = false;
    const std::vector<std::string> sentencias = std::move(g_sentencias);
    if (g_verSentencias) {
      for (const std::string& s : sentencias)
        std::fprintf(stderr, "%s\n", s.c_str());
    }
    const auto c = Ahora();
    suelo_.correr(sentencias);
    const auto d = Ahora();
    m.programa.push_back(b - a);
    m.suelo.push_back(d - c);
    m.sentencias = sentencias.size();
  }

  // From nothing to the first simple product on the screen: the program's start-up, the form's
  // load and the "Productos" tile; the floor opens the file and runs what they ran.
  void arrancar(Medida* m, Medida* resto = nullptr) {
    cerrar();
    g_sentencias.clear();
    g_grabando = m != nullptr;
    const qint64 filas = LectorFilas::filasLeidas();
    const auto a = Ahora();
    entorno_ = std::make_unique<Entorno>(Instalacion::Cargar(carpeta_), dialogos_);
    Main(*entorno_, [&] {
      forma_ = std::make_unique<FrmProductos1024>(*entorno_, tablas_);
      forma_->show();
    });
    pulsar(u"cmd_ProdGenerico"_s);
    const qint64 leidas = LectorFilas::filasLeidas() - filas;
    QApplication::processEvents();
    const auto b = Ahora();
    g_grabando = false;
    if (!m)
      return;
    const std::vector<std::string> sentencias = std::move(g_sentencias);
    suelo_.cerrar();
    const auto c = Ahora();
    suelo_.abrir();
    suelo_.correr(sentencias);
    const auto d = Ahora();
    m->programa.push_back(b - a);
    m->suelo.push_back(d - c);
    m->sentencias = sentencias.size();
    m->filas = leidas;
    if (resto) {
      const auto e = Ahora();
      pausa();
      resto->programa.push_back(Ahora() - e);
    }
  }
  void cerrar() {
    forma_.reset();
    entorno_.reset();
  }

  DialogosGuion& dialogos() { return dialogos_; }
  Entorno& entorno() { return *entorno_; }
  TablasPanel& tablas() { return tablas_; }

 private:
  QString carpeta_;
  Suelo& suelo_;
  DialogosGuion dialogos_;
  std::unique_ptr<Entorno> entorno_;
  TablasPanel tablas_;
  std::unique_ptr<FrmProductos1024> forma_;
};

// The fields of a new product that the checks ask for, the colour included.
void RellenarNuevo(Banco& b, int k) {
  b.escribir(u"txt_nombre"_s, u"Producto de banco %1"_s.arg(k));
  b.pulsar(u"cmd_Proveedor"_s);
  b.tocarLinea(u"lb_Proveedores"_s, 0);
  b.pulsar(u"cmd_AceptarProveedor"_s);
  auto* medida = b.control<QComboBox>(u"cbo_Medida"_s);
  QTest::keyClick(medida, Qt::Key_Down);
  b.pulsar(u"opt_Venta"_s);
  b.escribir(u"txt_coste"_s, u"2"_s);
  b.escribir(u"txt_iva"_s, u"10"_s);
  b.escribir(u"txt_precio"_s, u"3"_s);
  b.pulsar(u"optBarra"_s);
}

bool EnNavegacion(Banco& b) {
  return b.control<QAbstractButton>(u"cmd_nuevo"_s)->isEnabled() &&
         !b.control<QAbstractButton>(u"cmd_aceptar"_s)->isEnabled();
}

struct Fila {
  const char* nombre;
  std::vector<Medida> porTamano;
};

long PicoKiB() {
  rusage r{};
  getrusage(RUSAGE_SELF, &r);
  return r.ru_maxrss;
}

void Correr(const QString& cache, int n, std::vector<Fila>& filas, std::vector<long>& picos,
            int ordenTamano) {
  QTemporaryDir tmp;
  const QString carpeta = tmp.filePath(u"instalacion"_s);
  CopiarInstalacion(CatalogoEnCache(cache, n), carpeta);
  const QString sueloArchivo = tmp.filePath(u"suelo.db"_s);
  QFile::copy(QDir(carpeta).filePath(u"velandria.db"_s), sueloArchivo);
  Suelo suelo(sueloArchivo);
  suelo.abrir();
  Banco b(carpeta, suelo);
  const int reps = n >= 100000 ? 3 : n >= 10000 ? 7 : 15;
  const auto m = [&](int i) -> Medida& { return filas[i].porTamano[ordenTamano]; };

  b.arrancar(nullptr);  // warms the file cache, as a second start of the day would
  for (int i = 0; i < reps; ++i)
    b.arrancar(&m(0), &m(12));
  for (int i = 0; i < reps * 5; ++i)
    b.medir(m(1), [&] { b.pulsar(u"bt_botones_2"_s); });
  for (int i = 0; i < reps * 5; ++i)
    b.medir(m(2), [&] { b.pulsar(u"bt_botones_1"_s); });
  for (int i = 0; i < reps; ++i)
    b.medir(m(3), [&] { b.pulsar(u"bt_botones_3"_s); });
  for (int i = 0; i < reps; ++i) {
    b.medir(m(4), [&] { b.pulsar(u"cmd_nuevo"_s); });
    RellenarNuevo(b, i);
    b.dialogos().siguienteColor(QColor(255, 0, 0));
    b.pulsar(u"cmd_aceptar"_s);  // no colour yet: the first accept asks for it
    b.medir(m(5), [&] { b.pulsar(u"cmd_aceptar"_s); });
    if (!EnNavegacion(b))
      throw std::runtime_error("el alta no terminó");
  }
  for (int i = 0; i < reps; ++i) {
    b.pulsar(u"bt_botones_0"_s);
    b.medir(m(6), [&] { b.pulsar(u"cmd_modificar"_s); });
    b.medir(m(7), [&] { b.pulsar(u"cmd_aceptar"_s); });
    if (!EnNavegacion(b))
      throw std::runtime_error("la modificación no terminó");
  }
  for (int i = 0; i < reps; ++i) {
    b.pulsar(u"bt_botones_3"_s);
    b.dialogos().siguienteRespuesta(ServicioDialogos::Respuesta::Si);
    b.medir(m(8), [&] { b.pulsar(u"cmd_eliminar"_s); });
  }
  for (int i = 0; i < reps; ++i) {
    b.medir(m(9), [&] { b.pulsar(u"cmd_ListaProd"_s); });
    b.pausa();
    if (b.control<QListView>(u"lstProductos"_s)->model()->rowCount() < n / 2)
      throw std::runtime_error("la lista no se llenó");
    b.pulsar(u"cmd_ListaProd"_s);
  }
  for (int i = 0; i < reps; ++i) {
    b.pulsar(u"cmd_salir"_s);
    b.medir(m(10), [&] { b.pulsar(u"cmd_ProdElaborado"_s); });
    b.pulsar(u"cmd_SalirProdEla"_s);
    b.pulsar(u"cmd_ProdGenerico"_s);
  }
  PanelObjNuevo panel;
  panel.resize(600, 400);
  panel.show();
  for (int i = 0; i < reps * 3; ++i) {
    b.medir(m(11), [&] {
      CargarProductosPanel(b.entorno(), b.tablas(), QString::number(1 + i % 12), 0);
      LlenarPanel(&panel, b.tablas().paginaA, true);
    });
  }
  b.cerrar();
  picos.push_back(PicoKiB());
}

}  // namespace

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  sqlite3_auto_extension(reinterpret_cast<void (*)()>(AlAbrir));
  QApplication app(argc, argv);
  QString cache = qEnvironmentVariable("PRODUCTOS_BENCH_CACHE", u"bench-catalogos"_s);
  std::vector<int> tamanos;
  const QStringList args = app.arguments();
  for (int i = 1; i < args.size(); ++i) {
    if (args[i] == u"--cache"_s && i + 1 < args.size())
      cache = args[++i];
    else if (args[i] == u"--sin-suelo"_s)
      g_sinSuelo = true;
    else if (args[i] == u"--cpu"_s)
      g_cpu = true;
    else if (args[i] == u"--sentencias"_s)
      g_verSentencias = true;
    else
      tamanos.push_back(args[i].toInt());
  }
  if (tamanos.empty())
    tamanos = {1000, 10000, 100000};
  std::vector<Fila> filas = {{"cold start to the first product", {}},
                             {"next product", {}},
                             {"previous product", {}},
                             {"last product", {}},
                             {"Nuevo", {}},
                             {"accept a new product", {}},
                             {"Modificar", {}},
                             {"accept a modified product", {}},
                             {"delete", {}},
                             {"\"Lista\" list box", {}},
                             {"elaborated screen", {}},
                             {"a family's product panel", {}},
                             {"(idle) the rest of the rows after the cold start", {}}};
  for (Fila& f : filas)
    f.porTamano.resize(tamanos.size());
  std::vector<long> picos;
  try {
    for (size_t t = 0; t < tamanos.size(); ++t)
      Correr(cache, tamanos[t], filas, picos, static_cast<int>(t));
  } catch (const std::exception& e) {
    std::fprintf(stderr, "bench_formulario: %s\n", e.what());
    return 1;
  }
  std::printf(
      "median %s ms: floor / program (ratio, statements and rows the action read, and of the "
      "program's time the events handled after it: painting, a slice of idle reading)\n\n",
      g_cpu ? "CPU" : "wall");
  std::printf("| action |");
  for (int n : tamanos)
    std::printf(" %d |", n);
  std::printf("\n|---|");
  for (size_t t = 0; t < tamanos.size(); ++t)
    std::printf("---|");
  std::printf("\n");
  for (const Fila& f : filas) {
    std::printf("| %s |", f.nombre);
    for (const Medida& m : f.porTamano) {
      const double s = Mediana(m.suelo), p = Mediana(m.programa);
      if (m.suelo.empty())
        std::printf(" – / %.2f |", p);
      else
        std::printf(" %.2f / %.2f (%.2f×, %zu st, %lld rows, ev %.2f) |", s, p, s > 0 ? p / s : 0.0,
                    m.sentencias, static_cast<long long>(m.filas), Mediana(m.eventos));
    }
    std::printf("\n");
  }
  std::printf("| peak memory (MiB, whole process so far) |");
  for (long k : picos)
    std::printf(" %.0f |", k / 1024.0);
  std::printf("\n");
  return 0;
}
