#include "fila_compacta.h"

#include <cstring>

#include <QDataStream>
#include <QIODevice>

namespace {

enum Marca : char { kNulo, kTexto, kTextoUtf8, kEntero64, kEntero, kDoble, kOtro };

template <typename T>
void Escribir(QByteArray& bloque, T valor) {
  bloque.append(reinterpret_cast<const char*>(&valor), sizeof valor);
}

template <typename T>
T Leer(const char* p) {
  T valor;
  std::memcpy(&valor, p, sizeof valor);
  return valor;
}

// The size of the value that starts at p, its mark included.
qsizetype Largo(const char* p) {
  switch (static_cast<Marca>(*p)) {
    case kNulo:
    case kEntero:
      return 1 + sizeof(qint32);
    case kEntero64:
    case kDoble:
      return 1 + sizeof(qint64);
    case kTexto:
      return 1 + sizeof(qint32) + Leer<qint32>(p + 1) * qsizetype(sizeof(char16_t));
    case kTextoUtf8:
    case kOtro:
      return 1 + sizeof(qint32) + Leer<qint32>(p + 1);
  }
  return 1;
}

QVariant Valor(const char* p) {
  switch (static_cast<Marca>(*p)) {
    case kNulo:
      return QVariant(QMetaType(Leer<qint32>(p + 1)));
    case kTexto: {
      const qint32 n = Leer<qint32>(p + 1);
      QString texto(n, Qt::Uninitialized);
      std::memcpy(texto.data(), p + 1 + sizeof(qint32), n * sizeof(char16_t));
      return texto;
    }
    case kTextoUtf8:
      return QString::fromUtf8(p + 1 + sizeof(qint32), Leer<qint32>(p + 1));
    case kEntero64:
      return Leer<qint64>(p + 1);
    case kEntero:
      return Leer<qint32>(p + 1);
    case kDoble:
      return Leer<double>(p + 1);
    case kOtro: {
      QVariant v;
      QDataStream s(QByteArray::fromRawData(p + 1 + sizeof(qint32), Leer<qint32>(p + 1)));
      s >> v;
      return v;
    }
  }
  return {};
}

}  // namespace

FilaCompacta::FilaCompacta(const QList<QVariant>& valores) {
  for (const QVariant& v : valores)
    agregar(datos_, v);
}

FilaCompacta FilaCompacta::deBloque(const QByteArray& bloque) {
  FilaCompacta f;
  f.datos_ = QByteArray(bloque.constData(), bloque.size());  // exactly as large as it needs
  return f;
}

void FilaCompacta::agregar(QByteArray& bloque, const QVariant& valor) {
  const int tipo = valor.typeId();
  if (valor.isNull()) {
    bloque.append(kNulo);
    Escribir<qint32>(bloque, tipo);  // a null keeps its type, as the driver gave it
    return;
  }
  switch (tipo) {
    case QMetaType::QString: {
      const QString texto = valor.toString();
      bloque.append(kTexto);
      Escribir<qint32>(bloque, static_cast<qint32>(texto.size()));
      bloque.append(reinterpret_cast<const char*>(texto.utf16()),
                    texto.size() * qsizetype(sizeof(char16_t)));
      return;
    }
    case QMetaType::LongLong:
      bloque.append(kEntero64);
      Escribir<qint64>(bloque, valor.toLongLong());
      return;
    case QMetaType::Int:
      bloque.append(kEntero);
      Escribir<qint32>(bloque, valor.toInt());
      return;
    case QMetaType::Double:
      bloque.append(kDoble);
      Escribir<double>(bloque, valor.toDouble());
      return;
    default: {
      QByteArray otro;
      QDataStream s(&otro, QIODevice::WriteOnly);
      s << valor;
      bloque.append(kOtro);
      Escribir<qint32>(bloque, static_cast<qint32>(otro.size()));
      bloque.append(otro);
    }
  }
}

void FilaCompacta::agregarUtf8(QByteArray& bloque, const char* texto, qsizetype largo) {
  bloque.append(kTextoUtf8);
  Escribir<qint32>(bloque, static_cast<qint32>(largo));
  bloque.append(texto, largo);
}

QVariant FilaCompacta::at(int indice) const {
  const char* p = datos_.constData();
  for (int i = 0; i < indice; ++i)
    p += Largo(p);
  return Valor(p);
}

QList<QVariant> FilaCompacta::lista() const {
  QList<QVariant> valores;
  for (const char* p = datos_.constData(); p < datos_.constData() + datos_.size(); p += Largo(p))
    valores.append(Valor(p));
  return valores;
}
