#include "catalogo_bench.h"

#include <sqlite3.h>

#include <cctype>
#include <random>
#include <stdexcept>
#include <string>

#include <QDir>
#include <QFile>

#include "esquema.h"
#include "instalacion_demo.h"

using namespace Qt::Literals::StringLiterals;

namespace {

void Ejecutar(sqlite3* db, const std::string& sql) {
  char* error = nullptr;
  if (sqlite3_exec(db, sql.c_str(), nullptr, nullptr, &error) != SQLITE_OK) {
    const std::string texto = error ? error : "?";
    sqlite3_free(error);
    throw std::runtime_error(texto + "\n" + sql);
  }
}

sqlite3_stmt* Preparar(sqlite3* db, const char* sql) {
  sqlite3_stmt* st = nullptr;
  if (sqlite3_prepare_v2(db, sql, -1, &st, nullptr) != SQLITE_OK)
    throw std::runtime_error(sqlite3_errmsg(db));
  return st;
}

void Paso(sqlite3* db, sqlite3_stmt* st) {
  if (sqlite3_step(st) != SQLITE_DONE)
    throw std::runtime_error(sqlite3_errmsg(db));
  sqlite3_reset(st);
}

void Texto(sqlite3_stmt* st, int i, const std::string& v) {
  sqlite3_bind_text(st, i, v.c_str(), -1, SQLITE_TRANSIENT);
}

const char* const kSilabas[] = {"ca", "fe", "le",  "che", "ce", "rve", "za",   "tor", "ti", "lla",
                                "pa", "ta", "vi",  "no",  "ro", "jo",  "agua", "zu",  "mo", "bo",
                                "ca", "di", "llo", "que", "so", "ja",  "mon",  "pul", "po"};

// The catalogue of the raw-SQLite floor: names from syllables, 10 % elaborated products made of
// the three products before them, two supplier links per product, 20 suppliers, 12 families.
void LlenarCatalogo(const QString& archivo, int n) {
  sqlite3* db = nullptr;
  if (sqlite3_open(QFile::encodeName(archivo).constData(), &db) != SQLITE_OK)
    throw std::runtime_error("no se abre " + archivo.toStdString());
  for (const char* tabla : {"productos", "stock", "productoproveedor", "productoElaborado_producto",
                            "subproductos", "menu_productos", "proveedores", "seccion"}) {
    Ejecutar(db, std::string("delete from ") + tabla);
  }
  Ejecutar(db, "begin");
  std::mt19937 rng(42);
  const auto nombre = [&] {
    std::string s;
    const int k = 2 + rng() % 3;
    for (int i = 0; i < k; ++i)
      s += kSilabas[rng() % 29];
    s[0] = static_cast<char>(std::toupper(static_cast<unsigned char>(s[0])));
    return s + " " + std::to_string(rng() % 1000);
  };
  sqlite3_stmt* p = Preparar(
      db,
      "insert into productos (codigo, nombre, descripcion, codigobarras, seccion, coste, "
      "MargenComercial, Precio, IVA, FechaAlta, Foto, color, proveedor, unidadMedida, "
      "StockMinimo, MostrarEnCaja, hechoen, tipoprod, DescNumerica, Orden, impresora, "
      "productoespecial, Borrar) values (?, ?, '', ?, ?, 1.5, 0.5, 2.42, 10, '2026-01-01', '', "
      "16777215, ?, 'Unidades', 1, 0, 1, 1, ?, ?, 0, 0, 0)");
  sqlite3_stmt* s = Preparar(db, "insert into stock values (?, 5, 1, 0)");
  sqlite3_stmt* l = Preparar(db, "insert into productoproveedor values (?, ?, 0)");
  sqlite3_stmt* e = Preparar(db, "insert into productoElaborado_producto values (?, ?, 1)");
  for (int i = 1; i <= n; ++i) {
    const std::string codigo = std::to_string(i);
    Texto(p, 1, codigo);
    Texto(p, 2, nombre());
    Texto(p, 3, std::to_string(8410000000000LL + i));
    Texto(p, 4, std::to_string(1 + i % 12));
    Texto(p, 5, std::to_string(1 + i % 20));
    sqlite3_bind_int(p, 6, i);
    sqlite3_bind_int(p, 7, i);
    Paso(db, p);
    sqlite3_bind_int(s, 1, i);
    Paso(db, s);
    for (int k = 0; k < 2; ++k) {
      Texto(l, 1, codigo);
      Texto(l, 2, std::to_string(1 + (i + k) % 20));
      Paso(db, l);
    }
    for (int k = 1; i % 10 == 0 && k <= 3; ++k) {
      Texto(e, 1, codigo);
      Texto(e, 2, std::to_string(i - k));
      Paso(db, e);
    }
  }
  for (int i = 1; i <= 20; ++i) {
    Ejecutar(db, "insert into proveedores (codigo, nombre, borrar) values ('" + std::to_string(i) +
                     "', 'Proveedor " + std::to_string(i) + "', 0)");
  }
  for (int i = 1; i <= 12; ++i) {
    const std::string k = std::to_string(i);
    Ejecutar(db,
             "insert into seccion (codigo, nombre, borrar, menu, orden, descNumerica, "
             "mostrarencaja, Color, Imagen) values ('" +
                 k + "', 'Familia " + k + "', 0, 0, " + k + ", " + k + ", 0, 255, '')");
  }
  for (sqlite3_stmt* st : {p, s, l, e})
    sqlite3_finalize(st);
  Ejecutar(db, "commit");
  sqlite3_close(db);
}

bool CopiarCarpeta(const QString& origen, const QString& destino) {
  QDir d(origen);
  if (!QDir().mkpath(destino))
    return false;
  for (const QFileInfo& f : d.entryInfoList(QDir::Files | QDir::Dirs | QDir::NoDotAndDotDot)) {
    const QString a = QDir(destino).filePath(f.fileName());
    if (f.isDir() ? !CopiarCarpeta(f.filePath(), a) : !QFile::copy(f.filePath(), a))
      return false;
  }
  return true;
}

}  // namespace

QString CatalogoEnCache(const QString& cache, int n) {
  const QString carpeta = QDir(cache).filePath(u"catalogo-%1"_s.arg(n));
  // The mark names the schema: a catalogue made on another schema is made again.
  const QString esquema = SentenciasCrearEsquema(TablasPrincipales(), Motor::SQLite).join(u'\n');
  const QString hecho =
      QDir(carpeta).filePath(u"catalogo-completo-%1"_s.arg(qHash(esquema), 0, 16));
  if (QFile::exists(hecho))
    return carpeta;
  QDir(carpeta).removeRecursively();
  OpcionesDemo o;
  o.carpeta = carpeta;
  const ResultadoDemo r = CrearInstalacionDemo(o);
  if (!r.creada)
    throw std::runtime_error(r.mensaje.toStdString());
  LlenarCatalogo(QDir(carpeta).filePath(u"velandria.db"_s), n);
  QFile marca(hecho);
  if (!marca.open(QIODevice::WriteOnly))
    throw std::runtime_error("no se escribe " + hecho.toStdString());
  return carpeta;
}

void CopiarInstalacion(const QString& origen, const QString& destino) {
  QDir(destino).removeRecursively();
  if (!CopiarCarpeta(origen, destino))
    throw std::runtime_error("no se copia " + origen.toStdString());
}
