// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>
#include <QStringList>
#include <QVariant>
#include <QVariantList>

class QSqlError;

// Small helpers shared by the repositories' statements.
namespace RepositorySql {

// The value to bind for a text column: the text itself, with a null string bound as empty text
// (a null QString would be bound as SQL NULL, which NOT NULL columns refuse).
QVariant text(const QString &value);

// "?,?,?": one positional mark per value, for IN lists.
QString placeholders(qsizetype count);

// Prepares `sql` on `query`, binds `values` in order and executes it; false on any failure, with
// the error left in query.lastError().
bool exec(QSqlQuery &query, const QString &sql, const QVariantList &values = {});

// Runs `sql` ("UPDATE ... SET <order> = ?, ..., updated_at = ? WHERE id = ?") once per id, with
// 10, 20, 30, ... in list order and one "now", inside one transaction on `db`. True after a
// commit. When a statement fails or touches no row (an unknown id is no SQL error), the whole
// transaction is rolled back and the result is false. An empty list does nothing and is true.
bool reorder(QSqlDatabase db, const QString &sql, const QStringList &ids);

// Logs at warning level `what` (e.g. "AccountRepository::insert failed:") followed by the
// database error text.
void logFailure(const char *what, const QSqlError &error);

} // namespace RepositorySql
