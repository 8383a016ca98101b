#include "dialecto.h"

using namespace Qt::Literals::StringLiterals;

// A spliced value can close its quotes and append a statement of its own. Where a text is a
// string, a quoted name or a comment depends on the engine's own reading of it, and a value can
// play on the difference: "E'\''" is one string to PostgreSQL and two to a reader that only
// knows '...', "$$'$$" likewise, and a quote inside "-- '" opens nothing. So the text is read
// as each engine reads it, and it is refused when any of those readings finds a ';' followed
// by more than blanks, ';' and comments.

namespace {

struct Lexico {
  bool barraEnCadenas = false;       // backslash escapes inside '...' (PostgreSQL, old setting)
  bool cadenasE = false;             // E'...' with backslash escapes (PostgreSQL)
  bool dolares = false;              // $tag$...$tag$ (PostgreSQL)
  bool corchetes = false;            // [name] and `name` (SQLite)
  bool comentariosAnidados = false;  // /* /* */ */ (PostgreSQL)
  bool finDeLineaCR = false;         // a "--" comment also ends at a carriage return (PostgreSQL)
};

bool EsLetraDeNombre(QChar c) {
  return c.isLetterOrNumber() || c == u'_' || c == u'$' || c.unicode() >= 0x80;
}

// The end (one past) of a quoted piece that starts at i with `cierre`, where a doubled closing
// character stands for itself; s.size() when it never closes.
qsizetype FinCitado(const QString& s, qsizetype i, QChar cierre, bool barra) {
  for (qsizetype j = i + 1; j < s.size(); ++j) {
    if (barra && s.at(j) == u'\\') {
      ++j;
      continue;
    }
    if (s.at(j) == cierre) {
      if (j + 1 < s.size() && s.at(j + 1) == cierre) {
        ++j;
        continue;
      }
      return j + 1;
    }
  }
  return s.size();
}

// A character of a dollar quote's tag as PostgreSQL reads it: ASCII letters and digits, '_',
// and every character outside ASCII, whatever it is ("$€$" is a tag).
bool EsLetraDeEtiqueta(QChar c) {
  return (c.unicode() < 0x80 && c.isLetterOrNumber()) || c == u'_' || c.unicode() >= 0x80;
}

// The tag of a dollar quote starting at i ("$$" or "$name$"), or an empty text.
QString EtiquetaDolar(const QString& s, qsizetype i) {
  if (i > 0 && EsLetraDeNombre(s.at(i - 1)))
    return {};  // part of a name such as a$b$
  qsizetype j = i + 1;
  if (j < s.size() && s.at(j).isDigit())
    return {};  // $1 is a parameter
  while (j < s.size() && EsLetraDeEtiqueta(s.at(j)))
    ++j;
  if (j >= s.size() || s.at(j) != u'$')
    return {};
  return s.mid(i, j - i + 1);
}

qsizetype FinComentario(const QString& s, qsizetype i, bool anidados) {
  int nivel = 0;
  for (qsizetype j = i; j + 1 < s.size(); ++j) {
    if (s.at(j) == u'/' && s.at(j + 1) == u'*') {
      if (nivel == 0 || anidados)
        ++nivel;
      ++j;
    } else if (s.at(j) == u'*' && s.at(j + 1) == u'/') {
      --nivel;
      ++j;
      if (nivel == 0)
        return j + 1;
    }
  }
  return s.size();
}

bool SegundaSentenciaSegun(const QString& s, const Lexico& lx) {
  bool puntoYComa = false;
  qsizetype i = 0;
  while (i < s.size()) {
    const QChar c = s.at(i);
    const QChar sig = i + 1 < s.size() ? s.at(i + 1) : QChar();
    qsizetype fin = -1;  // end of a quoted piece that counts as SQL after a ';'
    if (c == u'-' && sig == u'-') {
      qsizetype nl = s.indexOf(u'\n', i);
      if (lx.finDeLineaCR) {
        const qsizetype cr = s.indexOf(u'\r', i);
        if (cr >= 0 && (nl < 0 || cr < nl))
          nl = cr;
      }
      i = nl < 0 ? s.size() : nl + 1;
      continue;
    }
    if (c == u'/' && sig == u'*') {
      i = FinComentario(s, i, lx.comentariosAnidados);
      continue;
    }
    if (c == u'\'') {
      const bool conE = lx.cadenasE && i > 0 && s.at(i - 1).toUpper() == u'E' &&
                        (i < 2 || !EsLetraDeNombre(s.at(i - 2)));
      fin = FinCitado(s, i, u'\'', lx.barraEnCadenas || conE);
    } else if (c == u'"') {
      fin = FinCitado(s, i, u'"', false);
    } else if (lx.corchetes && c == u'[') {
      const qsizetype cierre = s.indexOf(u']', i + 1);
      fin = cierre < 0 ? s.size() : cierre + 1;
    } else if (lx.corchetes && c == u'`') {
      fin = FinCitado(s, i, u'`', false);
    } else if (lx.dolares && c == u'$') {
      const QString etiqueta = EtiquetaDolar(s, i);
      if (!etiqueta.isEmpty()) {
        const qsizetype cierre = s.indexOf(etiqueta, i + etiqueta.size());
        fin = cierre < 0 ? s.size() : cierre + etiqueta.size();
      }
    }
    if (fin >= 0) {
      if (puntoYComa)
        return true;
      i = fin;
      continue;
    }
    if (c == u';') {
      puntoYComa = true;
    } else if (puntoYComa && !c.isSpace()) {
      return true;
    }
    ++i;
  }
  return false;
}

}  // namespace

bool TieneSegundaSentencia(const QString& sentencia) {
  Lexico sqlite;
  sqlite.corchetes = true;
  Lexico postgres;
  postgres.cadenasE = true;
  postgres.dolares = true;
  postgres.comentariosAnidados = true;
  postgres.finDeLineaCR = true;
  Lexico postgresConBarras = postgres;
  postgresConBarras.barraEnCadenas = true;
  for (const Lexico& lx : {sqlite, postgres, postgresConBarras}) {
    if (SegundaSentenciaSegun(sentencia, lx))
      return true;
  }
  return false;
}
