// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QSqlError>
#include <QSqlQuery>
#include <QString>
#include <QVariantList>

#include <optional>

class Database;

// Prepared statements of the database connection, kept for reuse and keyed by their SQL text, so
// that a statement run once per row of an import or once per redraw is compiled only once.
//
// Statements are forward-only. A caller that reads rows ends with finish(), so that no reader
// keeps a snapshot of the write-ahead log open between calls. A statement is reused only after
// its previous use has ended; callers never nest two uses of the same text. Keep only texts from
// a small fixed set here: a text that varies with its input (an IN list of row ids) belongs in a
// local query.
class StatementCache
{
public:
    explicit StatementCache(Database *database);
    ~StatementCache();
    StatementCache(const StatementCache &) = delete;
    StatementCache &operator=(const StatementCache &) = delete;

    // The prepared statement for `sql`, or null when it cannot be prepared; then `error` holds
    // the reason and nothing is kept.
    QSqlQuery *prepare(const QString &sql, QSqlError *error);
    // Prepares `sql`, binds `values` in order and executes it. On failure logs `failure` (for
    // example "EventRepository::remove failed:") with the database error and returns null.
    QSqlQuery *run(const QString &sql, const QVariantList &values, const char *failure);
    // The first column of the first row `sql` reads, as text; nothing when it reads no row or
    // fails (the failure is logged as by run()).
    std::optional<QString> firstText(const QString &sql, const QVariantList &values, const char *failure);

private:
    Database *m_database;
    QHash<QString, QSqlQuery *> m_statements;
};
