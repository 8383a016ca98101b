#include "dialecto.h"

#include <QList>

using namespace Qt::Literals::StringLiterals;

namespace {

// A piece of the statement: either a quoted literal (kept verbatim) or code.
struct Trozo {
  QString texto;
  bool literal = false;
};

QList<Trozo> Trocear(const QString& s) {
  QList<Trozo> trozos;
  QString actual;
  bool enLiteral = false;
  for (qsizetype i = 0; i < s.size(); ++i) {
    const QChar c = s.at(i);
    if (!enLiteral && c == u'\'') {
      if (!actual.isEmpty())
        trozos.append({actual, false});
      actual = c;
      enLiteral = true;
    } else if (enLiteral && c == u'\'') {
      actual += c;
      if (i + 1 < s.size() && s.at(i + 1) == u'\'') {  // doubled apostrophe stays inside
        actual += s.at(++i);
        continue;
      }
      trozos.append({actual, true});
      actual.clear();
      enLiteral = false;
    } else {
      actual += c;
    }
  }
  if (!actual.isEmpty())
    trozos.append({actual, enLiteral});
  return trozos;
}

bool EsLetraDeNombre(QChar c) {
  return c.isLetterOrNumber() || c == u'_' || c == u'$';
}

// Replaces whole words (case-insensitive) in a code piece.
QString ReemplazarPalabra(const QString& codigo, const QString& palabra, const QString& nueva) {
  QString resultado;
  qsizetype i = 0;
  while (i < codigo.size()) {
    const qsizetype j = codigo.indexOf(palabra, i, Qt::CaseInsensitive);
    if (j < 0)
      break;
    const bool inicio = j == 0 || !EsLetraDeNombre(codigo.at(j - 1));
    const qsizetype fin = j + palabra.size();
    const bool final = fin >= codigo.size() || !EsLetraDeNombre(codigo.at(fin));
    resultado += codigo.mid(i, j - i);
    resultado += (inicio && final) ? nueva : codigo.mid(j, palabra.size());
    i = fin;
  }
  resultado += codigo.mid(i);
  return resultado;
}

// "<> null" -> "is not null", "= null" -> "is null" (any blanks around the operator).
QString ReemplazarComparacionNula(const QString& codigo) {
  QString r;
  qsizetype i = 0;
  while (i < codigo.size()) {
    const QChar c = codigo.at(i);
    qsizetype largo = 0;
    bool distinto = false;
    if (c == u'<' && i + 1 < codigo.size() && codigo.at(i + 1) == u'>') {
      largo = 2;
      distinto = true;
    } else if (c == u'=' && (i == 0 || (codigo.at(i - 1) != u'<' && codigo.at(i - 1) != u'>' &&
                                        codigo.at(i - 1) != u'!'))) {
      largo = 1;
    }
    if (largo > 0) {
      qsizetype k = i + largo;
      while (k < codigo.size() && codigo.at(k).isSpace())
        ++k;
      if (codigo.mid(k, 4).compare(u"null"_s, Qt::CaseInsensitive) == 0 &&
          (k + 4 >= codigo.size() || !EsLetraDeNombre(codigo.at(k + 4)))) {
        // "c<>null" must not become "cis not null".
        if (!r.isEmpty() && !r.back().isSpace() && r.back() != u'(')
          r += u' ';
        r += distinto ? u"is not null"_s : u"is null"_s;
        i = k + 4;
        continue;
      }
    }
    r += c;
    ++i;
  }
  return r;
}

// "Delete * from" -> "Delete from".
QString QuitarAsteriscoDeDelete(const QString& codigo) {
  QString r = codigo;
  qsizetype desde = 0;
  while (true) {
    const qsizetype j = r.indexOf(u"delete"_s, desde, Qt::CaseInsensitive);
    if (j < 0)
      break;
    qsizetype k = j + 6;
    const bool palabra =
        (j == 0 || !EsLetraDeNombre(r.at(j - 1))) && (k < r.size() && !EsLetraDeNombre(r.at(k)));
    if (palabra) {
      qsizetype m = k;
      while (m < r.size() && r.at(m).isSpace())
        ++m;
      if (m < r.size() && r.at(m) == u'*') {
        qsizetype n = m + 1;
        while (n < r.size() && r.at(n).isSpace())
          ++n;
        r.replace(k, n - k, u" "_s);
      }
    }
    desde = k;
  }
  return r;
}

// "val(x)" -> "cast(x as real)" for engines without user functions.
QString ValComoCast(const QString& codigo) {
  QString r;
  qsizetype i = 0;
  while (i < codigo.size()) {
    const qsizetype j = codigo.indexOf(u"val"_s, i, Qt::CaseInsensitive);
    if (j < 0)
      break;
    qsizetype k = j + 3;
    while (k < codigo.size() && codigo.at(k).isSpace())
      ++k;
    const bool inicio = j == 0 || !EsLetraDeNombre(codigo.at(j - 1));
    if (!inicio || k >= codigo.size() || codigo.at(k) != u'(') {
      r += codigo.mid(i, j + 3 - i);
      i = j + 3;
      continue;
    }
    int nivel = 0;
    qsizetype fin = k;
    for (; fin < codigo.size(); ++fin) {
      if (codigo.at(fin) == u'(')
        ++nivel;
      if (codigo.at(fin) == u')' && --nivel == 0)
        break;
    }
    if (fin >= codigo.size()) {  // unbalanced: leave as it is, the engine reports it
      r += codigo.mid(i);
      return r;
    }
    r += codigo.mid(i, j - i);
    r += u"cast("_s + codigo.mid(k + 1, fin - k - 1) + u" as real)"_s;
    i = fin + 1;
  }
  r += codigo.mid(i);
  return r;
}

}  // namespace

namespace {

// Appends "nulls first" / "nulls last" to every key of every order by, so that NULL sorts
// lowest as on the suite's desktop database. Works on the whole statement with literals masked.
QString OrdenarNulosComoJet(const QList<Trozo>& trozos) {
  // Mask literals so that the scan sees code only; keep a map back to the originals.
  QString mascara;
  for (const Trozo& t : trozos) {
    mascara += t.literal ? QString(t.texto.size(), u'x') : t.texto.toLower();
  }
  QString original;
  for (const Trozo& t : trozos)
    original += t.texto;

  struct Insercion {
    qsizetype pos;
    QString texto;
  };
  QList<Insercion> inserciones;
  qsizetype desde = 0;
  while (true) {
    qsizetype j = mascara.indexOf(u"order"_s, desde);
    if (j < 0)
      break;
    desde = j + 5;
    if (j > 0 && EsLetraDeNombre(mascara.at(j - 1)))
      continue;
    qsizetype k = j + 5;
    while (k < mascara.size() && mascara.at(k).isSpace())
      ++k;
    if (mascara.mid(k, 2) != u"by"_s ||
        (k + 2 < mascara.size() && EsLetraDeNombre(mascara.at(k + 2))))
      continue;
    k += 2;
    // Walk the keys until the end, a closing bracket of the enclosing level, or a clause word.
    int nivel = 0;
    qsizetype inicioClave = k;
    auto cerrarClave = [&](qsizetype fin) {
      QString clave = mascara.mid(inicioClave, fin - inicioClave).trimmed();
      qsizetype finReal = fin;
      while (finReal > inicioClave && mascara.at(finReal - 1).isSpace())
        --finReal;
      if (clave.isEmpty() || clave.contains(u"nulls"_s))
        return;
      const bool desc = clave.endsWith(u" desc"_s) || clave == u"desc"_s;
      inserciones.append({finReal, desc ? u" nulls last"_s : u" nulls first"_s});
    };
    qsizetype p = k;
    for (; p < mascara.size(); ++p) {
      const QChar c = mascara.at(p);
      if (c == u'(')
        ++nivel;
      if (c == u')') {
        if (nivel == 0)
          break;
        --nivel;
      }
      if (nivel == 0 && c == u',') {
        cerrarClave(p);
        inicioClave = p + 1;
      }
      if (nivel == 0 && (p == 0 || !EsLetraDeNombre(mascara.at(p - 1)))) {
        const QString resto = mascara.mid(p, 6);
        if (resto.startsWith(u"limit"_s) || resto.startsWith(u"offset"_s) ||
            resto.startsWith(u"union"_s) || resto.startsWith(u"fetch"_s))
          break;
      }
    }
    cerrarClave(p);
    desde = p;
  }
  for (qsizetype i = inserciones.size() - 1; i >= 0; --i) {
    original.insert(inserciones.at(i).pos, inserciones.at(i).texto);
  }
  return original;
}

}  // namespace

QString AdaptarSentencia(const QString& sentencia, Motor motor) {
  QList<Trozo> trozos = Trocear(sentencia);
  for (Trozo& t : trozos) {
    if (t.literal)
      continue;
    if (motor != Motor::Access)
      t.texto = QuitarAsteriscoDeDelete(t.texto);
    t.texto = ReemplazarComparacionNula(t.texto);
    t.texto = ReemplazarPalabra(t.texto, u"true"_s, u"-1"_s);
    t.texto = ReemplazarPalabra(t.texto, u"false"_s, u"0"_s);
  }
  if (motor == Motor::SQLiteODBC) {
    // val() may take a bracketed argument that spans no literal in the suite's statements.
    for (Trozo& t : trozos) {
      if (!t.literal)
        t.texto = ValComoCast(t.texto);
    }
  }
  if (motor == Motor::PostgreSQL)
    return OrdenarNulosComoJet(trozos);
  QString r;
  for (const Trozo& t : trozos)
    r += t.texto;
  return r;
}
