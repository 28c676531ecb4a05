// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/StatementCache.h"

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
