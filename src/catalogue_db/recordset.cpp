#include "recordset.h"

#include <cmath>

#include <QDate>
#include <QRegularExpression>
#include <QSqlError>
#include <QSqlField>
#include <QSqlQuery>

#include "conexion.h"
#include "error_bd.h"
#include "esquema.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QString kSinFilaActual =
    u"BOF o EOF es True, o el registro actual se ha eliminado. La operación solicitada requiere "
    "un registro actual."_s;

// "select ... from NAME [where|order|group|;|end]" with a single table.
QString TablaDeSentencia(const QString& sentencia) {
  static const QRegularExpression re(
      uR"(\bfrom\s+([A-Za-z_][A-Za-z0-9_]*)\s*(?:$|;|\bwhere\b|\border\b|\bgroup\b))"_s,
      QRegularExpression::CaseInsensitiveOption);
  const QRegularExpressionMatch m = re.match(sentencia);
  return m.hasMatch() ? m.captured(1) : QString();
}

}  // namespace

Recordset::Recordset(Conexion& conexion, const QString& sentencia)
    : conexion_(&conexion), sentencia_(sentencia) {
  leer();
}

Recordset::~Recordset() {
  // Only a recordset still reading is in its connection's notes; a connection that closes reads
  // them all first, so that one that outlives it has nothing to tell it.
  if (cursor_)
    conexion_->olvidarLectura(this);
}

void Recordset::leer() {
  tabla_ = TablaDeSentencia(sentencia_);
  claveOculta_ = claveQueFalta();
  filas_.clear();
  vivas_ = 0;
  actualAgregada_ = false;
  indices_.clear();
  abrirCursor();
  lectura_ = Lectura::Pendiente;
  abierto_ = true;
  edicion_ = Edicion::Ninguna;
  posicion_ = 0;
  // PostgreSQL's driver drops a forward-only result as soon as the connection runs another
  // statement, so there the rows are read while they are there.
  if (conexion_->motor() == Motor::PostgreSQL)
    leerFilas();
  else if (porPartes())
    conexion_->anotarLectura(this);
}

bool Recordset::porPartes() const {
  return conexion_->motor() == Motor::SQLite;
}

void Recordset::abrirCursor() {
  QString lectura = sentencia_;
  if (!claveOculta_.isEmpty()) {
    static const QRegularExpression select(uR"(^\s*select\s+)"_s,
                                           QRegularExpression::CaseInsensitiveOption);
    lectura.replace(select, u"select "_s + claveOculta_.join(u", "_s) + u", "_s);
  }
  cursor_ = std::make_unique<LectorFilas>(*conexion_, lectura);
  campos_ = cursor_->campos();
  for (int i = 0; i < claveOculta_.size(); ++i)
    campos_.remove(0);
}

bool Recordset::leerCursor(QList<Fila>& leidas, int hasta) {
  const int ocultas = claveOculta_.size();
  QByteArray bloque;
  while (hasta < 0 || leidas.size() <= hasta) {
    if (!cursor_->siguiente()) {
      cursor_.reset();
      conexion_->olvidarLectura(this);
      return true;
    }
    Fila f;
    for (int i = 0; i < ocultas; ++i)
      f.clave.append(cursor_->valor(i));
    bloque.resize(0);  // keeps its capacity for the next row
    cursor_->agregarFila(bloque, ocultas);
    f.valores = FilaCompacta::deBloque(bloque);
    leidas.append(std::move(f));
  }
  return false;
}

void Recordset::leerHasta(int indice) {
  if (lectura_ != Lectura::Pendiente || indice < filas_.size())
    return;
  if (!porPartes()) {
    leerFilas();
    return;
  }
  // While the cursor is open no row is deleted: every write on the connection reads the rest
  // first.
  const qsizetype antes = filas_.size();
  const bool terminada = leerCursor(filas_, indice);
  vivas_ += filas_.size() - antes;
  if (terminada)
    lectura_ = Lectura::Leida;
}

void Recordset::leerMas(int filas) {
  leerHasta(static_cast<int>(filas_.size()) + filas - 1);
}

void Recordset::leerFilas() {
  if (lectura_ == Lectura::Leida)
    return;
  if (lectura_ == Lectura::Pendiente) {
    const qsizetype antes = filas_.size();
    leerCursor(filas_, -1);
    vivas_ += filas_.size() - antes;
    lectura_ = Lectura::Leida;
    return;
  }
  // Rows were added before any was read: the statement runs again, and the rows this recordset
  // added come from memory, after the ones that were there before, as if read at the start.
  abrirCursor();
  QList<Fila> leidas;
  leerCursor(leidas, -1);
  QList<Fila> antes;
  QList<bool> hallada(filas_.size(), false);
  for (Fila& leida : leidas) {
    bool propia = false;
    for (int i = 0; i < filas_.size() && !propia; ++i) {
      propia = !hallada.at(i) && !filas_.at(i).borrada && mismaFila(leida, filas_.at(i));
      hallada[i] = hallada.at(i) || propia;
    }
    if (!propia)
      antes.append(std::move(leida));
  }
  if (actualAgregada_)
    posicion_ += antes.size();
  vivas_ += antes.size();
  antes.append(filas_);
  filas_ = std::move(antes);
  lectura_ = Lectura::Leida;
}

bool Recordset::mismaFila(const Fila& leida, const Fila& agregada) const {
  const Tabla* t = BuscarTabla(tabla_);
  const bool porClave = claveCompleta(agregada);
  for (int i = 0; i < campos_.count(); ++i) {
    if (porClave && !t->clave.contains(campos_.fieldName(i), Qt::CaseInsensitive))
      continue;
    const QVariant& a = leida.valores.at(i);
    const QVariant& b = agregada.valores.at(i);
    if (a.isNull() != b.isNull() || (!a.isNull() && a.toString() != b.toString()))
      return false;
  }
  return true;
}

bool Recordset::hayVivas() const {
  if (vivas_ > 0)
    return true;
  leerHasta(0);
  if (vivas_ > 0)
    return true;
  leerFilas();
  return vivas_ > 0;
}

void Recordset::asegurarActual() const {
  if (lectura_ == Lectura::Pendiente)
    leerHasta(posicion_);
  else if (lectura_ != Lectura::SinLeer || !actualAgregada_)
    leerFilas();
}

QStringList Recordset::claveQueFalta() const {
  const Tabla* t = BuscarTabla(tablaDestino());
  if (!t || t->clave.isEmpty())
    return {};
  // "select a, b from ..." with plain column names only; "*", expressions and distinct are
  // left as they are.
  static const QRegularExpression re(
      uR"(^\s*select\s+(.*?)\s+from\s)"_s,
      QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption);
  const QRegularExpressionMatch m = re.match(sentencia_);
  if (!m.hasMatch())
    return {};
  static const QRegularExpression nombre(
      uR"(^(?:[A-Za-z_][A-Za-z0-9_]*\.)?([A-Za-z_][A-Za-z0-9_]*)$)"_s);
  QStringList seleccionadas;
  for (const QString& parte : m.captured(1).split(u',')) {
    const QRegularExpressionMatch n = nombre.match(parte.trimmed());
    if (!n.hasMatch() || n.captured(1).compare(u"distinct"_s, Qt::CaseInsensitive) == 0)
      return {};
    seleccionadas.append(n.captured(1));
  }
  QStringList faltan;
  for (const QString& c : t->clave) {
    if (!seleccionadas.contains(c, Qt::CaseInsensitive))
      faltan.append(c);
  }
  return faltan;
}

void Recordset::comprobarAbierto() const {
  if (!abierto_)
    throw ErrorBD(u"La operación no está permitida si el objeto está cerrado."_s);
}

int Recordset::recordCount() const {
  comprobarAbierto();
  leerFilas();
  return vivas_;
}

bool Recordset::bof() const {
  comprobarAbierto();
  asegurarActual();
  return posicion_ < 0 || !hayVivas();
}

bool Recordset::eof() const {
  comprobarAbierto();
  asegurarActual();
  return posicion_ >= filas_.size() || !hayVivas();
}

int Recordset::siguienteViva(int desde, int paso) const {
  int i = desde;
  while (i >= 0 && i < filas_.size() && filas_.at(i).borrada)
    i += paso;
  return i;
}

void Recordset::moveFirst() {
  comprobarAbierto();
  if (edicion_ != Edicion::Ninguna)
    update();
  if (!hayVivas())
    throw ErrorBD(kSinFilaActual);
  posicion_ = siguienteViva(0, 1);
}

void Recordset::moveLast() {
  comprobarAbierto();
  if (edicion_ != Edicion::Ninguna)
    update();
  leerFilas();
  if (vivas_ == 0)
    throw ErrorBD(kSinFilaActual);
  posicion_ = siguienteViva(filas_.size() - 1, -1);
}

void Recordset::moveNext() {
  comprobarAbierto();
  if (edicion_ != Edicion::Ninguna)
    update();
  leerHasta(posicion_ + 1);
  // Only EOF itself (or a set that never had a row) has no next row: from a row just deleted,
  // even the last one, the move goes on to EOF, as the delete-while-walking loops expect.
  if (posicion_ >= filas_.size())
    throw ErrorBD(kSinFilaActual);
  posicion_ = siguienteViva(posicion_ + 1, 1);
}

void Recordset::movePrevious() {
  comprobarAbierto();
  if (edicion_ != Edicion::Ninguna)
    update();
  leerHasta(0);
  if (posicion_ < 0 || filas_.isEmpty())
    throw ErrorBD(kSinFilaActual);
  posicion_ = siguienteViva(posicion_ - 1, -1);
}

const Recordset::Fila& Recordset::filaActual() const {
  comprobarAbierto();
  asegurarActual();
  if (posicion_ < 0 || posicion_ >= filas_.size() || filas_.at(posicion_).borrada) {
    throw ErrorBD(kSinFilaActual);
  }
  return filas_.at(posicion_);
}

int Recordset::indiceCampo(const QString& nombre) const {
  if (const auto hallado = indices_.constFind(nombre); hallado != indices_.cend())
    return *hallado;
  const int i = IndiceCampo(campos_, nombre);
  indices_.insert(nombre, i);
  return i;
}

int IndiceCampo(const QSqlRecord& campos, const QString& nombre) {
  for (int i = 0; i < campos.count(); ++i) {
    if (campos.fieldName(i).compare(nombre, Qt::CaseInsensitive) == 0)
      return i;
  }
  throw ErrorBD(
      u"No se encontró el elemento en la colección que corresponde con el nombre o el ordinal "
      "solicitado: %1"_s.arg(nombre));
}

QVariant Recordset::field(const QString& nombre) const {
  return field(indiceCampo(nombre));
}

QVariant Recordset::field(int indice) const {
  comprobarAbierto();
  if (indice < 0 || indice >= campos_.count()) {
    throw ErrorBD(
        u"No se encontró el elemento en la colección que corresponde con el nombre o el ordinal "
        "solicitado: %1"_s.arg(indice));
  }
  if (edicion_ != Edicion::Ninguna && cambiados_.at(indice))
    return buffer_.at(indice);
  if (edicion_ == Edicion::Nueva)
    return buffer_.at(indice);
  return filaActual().valores.at(indice);
}

void Recordset::addNew() {
  comprobarAbierto();
  if (edicion_ != Edicion::Ninguna)
    update();
  if (lectura_ == Lectura::Pendiente && filas_.isEmpty()) {
    // Nothing was read: the rows are left in the table until something asks for them.
    cursor_.reset();
    conexion_->olvidarLectura(this);
    lectura_ = Lectura::SinLeer;
  } else if (lectura_ == Lectura::Pendiente) {
    leerFilas();
  }
  edicion_ = Edicion::Nueva;
  buffer_ = QList<QVariant>(campos_.count());
  cambiados_ = QList<bool>(campos_.count(), false);
}

void Recordset::setField(const QString& nombre, const QVariant& valor) {
  const int i = indiceCampo(nombre);
  if (edicion_ == Edicion::Ninguna) {
    buffer_ = filaActual().valores.lista();
    cambiados_ = QList<bool>(campos_.count(), false);
    edicion_ = Edicion::Cambio;
  }
  buffer_[i] = convertirParaColumna(i, valor);
  cambiados_[i] = true;
}

QVariant Recordset::convertirParaColumna(int indice, const QVariant& valor) const {
  QMetaType tipo = campos_.field(indice).metaType();
  // Prefer the schema's type: SQLite reports its declared type only for some names.
  if (const Tabla* t = BuscarTabla(tablaDestino())) {
    if (const Columna* c = t->columna(campos_.fieldName(indice))) {
      switch (c->tipo) {
        case TipoColumna::Texto:
          tipo = QMetaType::fromType<QString>();
          break;
        case TipoColumna::Entero:
        case TipoColumna::Booleano:
          tipo = QMetaType::fromType<int>();
          break;
        case TipoColumna::Doble:
          tipo = QMetaType::fromType<double>();
          break;
        case TipoColumna::Fecha:
          tipo = QMetaType::fromType<QDate>();
          break;
      }
    }
  }
  if (valor.isNull())
    return QVariant(tipo);
  if (!tipo.isValid() || valor.metaType() == tipo)
    return valor;
  const auto noValido = [&] {
    return ErrorBD(u"El valor «%1» no es válido para el campo %2"_s.arg(valor.toString(),
                                                                        campos_.fieldName(indice)));
  };
  const bool numerico = tipo == QMetaType::fromType<int>() ||
                        tipo == QMetaType::fromType<double>() ||
                        tipo == QMetaType::fromType<qlonglong>();
  QVariant v = valor;
  if (valor.metaType() == QMetaType::fromType<bool>() && numerico) {
    v = valor.toBool() ? -1 : 0;  // the suite's booleans are -1 and 0
  } else if (tipo == QMetaType::fromType<int>() && valor.canConvert<double>() &&
             valor.metaType() != QMetaType::fromType<QString>()) {
    v = valor.toDouble();  // a wider integer is range-checked below, never cut to 32 bits
  } else if (valor.metaType() == QMetaType::fromType<QString>() && numerico) {
    bool ok = false;
    const double d = valor.toString().trimmed().toDouble(&ok);
    if (!ok || !std::isfinite(d))
      throw noValido();
    v = d;
  }
  if (tipo == QMetaType::fromType<int>() && v.metaType() == QMetaType::fromType<double>()) {
    const double d = v.toDouble();
    if (d < -2147483648.0 || d > 2147483647.0)
      throw noValido();
    return QVariant(static_cast<int>(std::llround(d)));
  }
  if (!v.convert(tipo))
    throw noValido();
  if (tipo == QMetaType::fromType<QDate>() && !v.toDate().isValid())
    throw noValido();
  return v;
}

QString Recordset::tablaDestino() const {
  return tabla_;
}

bool Recordset::claveCompleta(const Fila& fila) const {
  const Tabla* t = BuscarTabla(tablaDestino());
  if (!t || t->clave.isEmpty())
    return false;
  if (!claveOculta_.isEmpty() && fila.clave.size() != claveOculta_.size())
    return false;
  for (const QString& c : t->clave) {
    if (claveOculta_.contains(c, Qt::CaseInsensitive))
      continue;
    bool esta = false;
    for (int i = 0; i < campos_.count() && !esta; ++i) {
      esta = campos_.fieldName(i).compare(c, Qt::CaseInsensitive) == 0;
    }
    if (!esta)
      return false;
  }
  return true;
}

// The where clause that finds a row of the recordset again in its table: by the table's key
// when the row has it, else by every value that was read.
QString Recordset::condicionFila(const Fila& fila, QList<QVariant>& valores) const {
  const Tabla* t = BuscarTabla(tablaDestino());
  const bool porClave = claveCompleta(fila);
  QStringList partes;
  const auto agregar = [&](const QString& nombre, const QVariant& valor) {
    if (valor.isNull()) {
      partes.append(nombre + u" is null"_s);
    } else {
      partes.append(nombre + u" = ?"_s);
      valores.append(valor);
    }
  };
  if (porClave) {
    for (int i = 0; i < claveOculta_.size(); ++i)
      agregar(claveOculta_.at(i), fila.clave.at(i));
  }
  for (int i = 0; i < campos_.count(); ++i) {
    const QString nombre = campos_.fieldName(i);
    if (porClave && !t->clave.contains(nombre, Qt::CaseInsensitive))
      continue;
    agregar(nombre, fila.valores.at(i));
  }
  return partes.join(u" and "_s);
}

void Recordset::update() {
  comprobarAbierto();
  if (edicion_ == Edicion::Ninguna)
    return;
  const QString tabla = tablaDestino();
  if (tabla.isEmpty()) {
    throw ErrorBD(u"No se puede actualizar: la consulta no tiene una única tabla de origen"_s);
  }
  QList<QVariant> valores;
  QString sql;
  if (edicion_ == Edicion::Nueva) {
    QStringList columnas, marcas;
    for (int i = 0; i < campos_.count(); ++i) {
      if (!cambiados_.at(i))
        continue;
      columnas.append(campos_.fieldName(i));
      marcas.append(u"?"_s);
      valores.append(buffer_.at(i));
    }
    sql = u"insert into "_s + tabla + u" ("_s + columnas.join(u", "_s) + u") values ("_s +
          marcas.join(u", "_s) + u')';
  } else {
    QStringList asignaciones;
    for (int i = 0; i < campos_.count(); ++i) {
      if (!cambiados_.at(i))
        continue;
      asignaciones.append(campos_.fieldName(i) + u" = ?"_s);
      valores.append(buffer_.at(i));
    }
    if (asignaciones.isEmpty()) {
      edicion_ = Edicion::Ninguna;
      return;
    }
    sql = u"update "_s + tabla + u" set "_s + asignaciones.join(u", "_s) + u" where "_s +
          condicionFila(filaActual(), valores);
  }
  const int tocadas = conexion_->ejecutar(sql, valores);
  if (edicion_ == Edicion::Cambio && tocadas == 0) {
    throw ErrorBD(
        u"No se encuentra la fila para actualizar. Es posible que se hayan cambiado algunos "
        "valores desde la última vez que se leyó."_s);
  }
  if (edicion_ == Edicion::Nueva) {
    filas_.append({buffer_, false, {}});
    posicion_ = filas_.size() - 1;
    ++vivas_;
    actualAgregada_ = lectura_ == Lectura::SinLeer;
  } else {
    filas_[posicion_].valores = buffer_;  // the key, read or hidden, stays as it was
  }
  edicion_ = Edicion::Ninguna;
}

void Recordset::cancelUpdate() {
  edicion_ = Edicion::Ninguna;
}

void Recordset::deleteRow() {
  const Fila& fila = filaActual();
  const QString tabla = tablaDestino();
  if (tabla.isEmpty()) {
    throw ErrorBD(u"No se puede eliminar: la consulta no tiene una única tabla de origen"_s);
  }
  QList<QVariant> valores;
  const QString sql = u"delete from "_s + tabla + u" where "_s + condicionFila(fila, valores);
  conexion_->ejecutar(sql, valores);
  filas_[posicion_].borrada = true;
  --vivas_;
  edicion_ = Edicion::Ninguna;
}

void Recordset::requery() {
  comprobarAbierto();
  leer();
}

void Recordset::close() {
  abierto_ = false;
  if (cursor_)
    conexion_->olvidarLectura(this);
  cursor_.reset();
  lectura_ = Lectura::Leida;
  filas_.clear();
  vivas_ = 0;
  edicion_ = Edicion::Ninguna;
}
