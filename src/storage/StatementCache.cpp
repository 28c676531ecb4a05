// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/StatementCache.h"

#include "storage/SqlSupport.h"

#include "storage/Database.h"

StatementCache::StatementCache(Database *database)
    : m_database(database)
{ }

StatementCache::~StatementCache()
{
    qDeleteAll(m_statements);
}

QSqlQuery *StatementCache::prepare(const QString &sql, QSqlError *error)
{
    if (QSqlQuery *kept = m_statements.value(sql))
        return kept;
    auto *query = new QSqlQuery(m_database->connection());
    query->setForwardOnly(true);
    if (!query->prepare(sql)) {
        if (error)
            *error = query->lastError();
        delete query;
        return nullptr;
    }
    m_statements.insert(sql, query);
    return query;
}

QSqlQuery *StatementCache::run(const QString &sql, const QVariantList &values, const char *failure)
{
    QSqlError error;
    QSqlQuery *query = prepare(sql, &error);
    if (!query || !SqlSupport::execute(*query, values)) {
        SqlSupport::logFailure(failure, query ? query->lastError() : error);
        return nullptr;
    }
    return query;
}

std::optional<QString> StatementCache::firstText(const QString &sql, const QVariantList &values, const char *failure)
{
    QSqlQuery *query = run(sql, values, failure);
    if (!query)
        return std::nullopt;
    std::optional<QString> text;
    if (query->next())
        text = query->value(0).toString();
    query->finish();
    return text;
}
