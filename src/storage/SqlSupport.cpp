// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/SqlSupport.h"

#include "ical/ZoneCache.h"
#include "storage/Clock.h"
#include "storage/LogCategories.h"
#include "storage/StorageFormat.h"

#include <QHash>
#include <QSqlError>

namespace SqlSupport {

QString placeholders(qsizetype count)
{
    QString text;
    text.reserve(count * 2);
    for (qsizetype i = 0; i < count; ++i) {
        if (i > 0)
            text += QLatin1Char(',');
        text += QLatin1Char('?');
    }
    return text;
}

bool execute(QSqlQuery &query, const QVariantList &values)
{
    for (qsizetype i = 0; i < values.size(); ++i)
        query.bindValue(int(i), values.at(i));
    return query.exec();
}

QVariant requiredText(const QString &text)
{
    if (text.isNull())
        return QStringLiteral("");
    return text;
}

QTimeZone zoneNamed(const QString &name)
{
    thread_local QHash<QString, QTimeZone> zones;
    auto it = zones.constFind(name);
    if (it == zones.constEnd())
        it = zones.insert(name, ICal::ZoneCache::lookup(name.toUtf8()));
    return *it;
}

bool exec(QSqlQuery &query, const QString &sql, const QVariantList &values)
{
    if (!query.prepare(sql))
        return false;
    for (const QVariant &value : values)
        query.addBindValue(value);
    return query.exec();
}

bool reorder(QSqlDatabase db, const QString &sql, const QStringList &ids)
{
    if (ids.isEmpty())
        return true;
    if (!db.transaction())
        return false;
    const QVariant now = StorageFormat::dateTimeValue(Clock::nowUtc());
    QSqlQuery query(db);
    bool ok = query.prepare(sql);
    for (qsizetype i = 0; ok && i < ids.size(); ++i) {
        query.addBindValue(static_cast<int>(10 * (i + 1)));
        query.addBindValue(now);
        query.addBindValue(requiredText(ids.at(i)));
        // An unknown id is no SQL error; a reorder that cannot place every listed row is refused.
        ok = query.exec() && query.numRowsAffected() == 1;
    }
    query.finish();
    if (!ok || !db.commit()) {
        db.rollback();
        return false;
    }
    return true;
}

void logFailure(const char *what, const QSqlError &error)
{
    qCWarning(lcRepository).noquote() << what << error.text();
}

} // namespace SqlSupport
