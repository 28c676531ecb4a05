// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/PreferencesRepository.h"

#include "storage/Database.h"
#include "storage/SqlSupport.h"

#include <QSqlQuery>

using SqlSupport::requiredText;

PreferencesRepository::PreferencesRepository(Database *database, QObject *parent)
    : QObject(parent)
    , m_database(database)
{ }

std::optional<QString> PreferencesRepository::value(const QString &key) const
{
    QSqlQuery query(m_database->connection());
    query.setForwardOnly(true);
    if (!SqlSupport::exec(query, QStringLiteral("SELECT value FROM settings WHERE key = ?"), {requiredText(key)})
        || !query.next())
        return std::nullopt;
    return query.value(0).toString();
}

bool PreferencesRepository::boolValue(const QString &key, bool fallback) const
{
    const std::optional<QString> stored = value(key);
    if (!stored)
        return fallback;
    return *stored == QLatin1String("1") || *stored == QLatin1String("true");
}

int PreferencesRepository::intValue(const QString &key, int fallback) const
{
    const std::optional<QString> stored = value(key);
    if (!stored)
        return fallback;
    bool ok = false;
    const int number = stored->toInt(&ok, 10);
    return ok ? number : fallback;
}

bool PreferencesRepository::setValue(const QString &key, const QString &value)
{
    QSqlQuery query(m_database->connection());
    if (!SqlSupport::exec(query,
                          QStringLiteral("INSERT INTO settings (key, value) VALUES (?, ?) ON CONFLICT(key) DO "
                                         "UPDATE SET value = excluded.value"),
                          {requiredText(key), requiredText(value)}))
        return false;
    emit changed(key);
    return true;
}

bool PreferencesRepository::setBool(const QString &key, bool value)
{
    return setValue(key, value ? QStringLiteral("1") : QStringLiteral("0"));
}

bool PreferencesRepository::remove(const QString &key)
{
    QSqlQuery query(m_database->connection());
    if (!SqlSupport::exec(query, QStringLiteral("DELETE FROM settings WHERE key = ?"), {requiredText(key)}))
        return false;
    emit changed(key);
    return true;
}
