// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/SqlSupport.h"

#include <QHash>

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
        it = zones.insert(name, QTimeZone(name.toUtf8()));
    return *it;
}

} // namespace SqlSupport
