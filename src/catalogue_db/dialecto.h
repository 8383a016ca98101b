#pragma once

#include <QString>

// The database engines that the suite's statements run on. The statements are written in the
// dialect of the suite's desktop database; each engine needs a few measured rewrites.
enum class Motor {
  Access,      // the suite's own dialect: statements run as written
  SQLite,      // Qt's own SQLite driver
  SQLiteODBC,  // SQLite behind the SQLite ODBC driver (no user functions there)
  PostgreSQL,  // native driver or psqlODBC, text columns as citext
};

// Rewrites a statement of the suite for the engine. Only text outside '...' literals is touched,
// so a spliced value is never changed and a bare apostrophe still breaks the statement.
QString AdaptarSentencia(const QString& sentencia, Motor motor);

// True when the text holds a ';' outside quotes followed by more SQL: such a text would run a
// second statement on some drivers and is refused before it reaches any of them.
bool TieneSegundaSentencia(const QString& sentencia);
