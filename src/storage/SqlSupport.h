// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>
#include <QStringList>
#include <QTimeZone>
#include <QVariant>
#include <QVariantList>

class QSqlError;

// Small helpers shared by the repositories.
namespace SqlSupport {

// "?,?,?" with `count` placeholders, joined by "," without spaces.
QString placeholders(qsizetype count);
// Binds `values` in order to the positional parameters of a prepared statement and executes it.
bool execute(QSqlQuery &query, const QVariantList &values);
// Prepares `sql` on `query`, binds `values` in order and executes it; false on any failure, with
// the error left in query.lastError().
bool exec(QSqlQuery &query, const QString &sql, const QVariantList &values = {});
// The value to bind for a NOT NULL text column: the text, or empty text (never NULL).
QVariant requiredText(const QString &text);
// The zone of an IANA identifier, invalid when no such zone is known or the text is not shaped
// like a zone identifier (stored zone names come from other people's calendars). Looked up once
// per name and thread: reading a span converts every zoned event row.
QTimeZone zoneNamed(const QString &name);

// Runs `sql` ("UPDATE ... SET <order> = ?, ..., updated_at = ? WHERE id = ?") once per id, with
// 10, 20, 30, ... in list order and one "now", inside one transaction on `db`. True after a
// commit. When a statement fails or touches no row (an unknown id is no SQL error), the whole
// transaction is rolled back and the result is false. An empty list does nothing and is true.
bool reorder(QSqlDatabase db, const QString &sql, const QStringList &ids);

// Logs at warning level `what` (e.g. "AccountRepository::insert failed:") followed by the
// database error text.
void logFailure(const char *what, const QSqlError &error);

} // namespace SqlSupport
