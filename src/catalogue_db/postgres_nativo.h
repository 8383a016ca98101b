#pragma once

#include <QList>
#include <QSqlQuery>
#include <QString>
#include <QVariant>

class QSqlDatabase;

// Statements on a PostgreSQL connection of Qt's driver, run by libpq on the driver's own
// connection through the extended query protocol. Qt's driver sends every statement, prepared
// or not, as a simple query, which runs each command of a text; a text sent through the
// extended protocol is parsed as one statement by the server, which refuses a second one
// ("cannot insert multiple commands into a prepared statement"). Qt offers no way to choose the
// protocol, hence libpq here.
//
// The text goes to the server as it stands: no placeholder of it is rewritten. Values, when
// given, are bound to $1, $2... in the server's text format, typed by the server from their
// place in the statement. The result is a query positioned before its first row, read like any
// other. Failures throw ErrorBD with the server's message.
bool EsPostgresNativo(const QSqlDatabase& bd);
QSqlQuery EjecutarEnPostgres(const QSqlDatabase& bd, const QString& sentencia,
                             const QList<QVariant>& valores = {});
