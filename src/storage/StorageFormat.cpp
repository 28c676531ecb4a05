// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/StorageFormat.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QMetaType>
#include <QTimeZone>
#include <QUuid>

namespace StorageFormat {

QString dateTimeText(const QDateTime &value)
{
    if (!value.isValid())
        return QString();
    // A value held in the UTC zone object prints as +00:00; stored UTC always ends in "Z".
    if (value.timeSpec() == Qt::TimeZone && value.timeZone() == QTimeZone::utc())
        return value.toUTC().toString(Qt::ISODate);
    return value.toString(Qt::ISODate);
}

QVariant dateTimeValue(const QDateTime &value)
{
    return dateTimeText(value);
}

QVariant dateTimeValue(const std::optional<QDateTime> &value)
{
    if (!value)
        return QVariant(QMetaType::fromType<QString>());
    return dateTimeText(*value);
}

QDateTime parseDateTime(const QString &text)
{
    if (text.isEmpty())
        return QDateTime();
    QDateTime value = QDateTime::fromString(text, Qt::ISODate);
    // SQLite's datetime('now') text: a space between date and time and no zone, always UTC.
    if (value.isValid() && text.size() == 19 && text.at(10) == QLatin1Char(' '))
        value.setTimeZone(QTimeZone::utc());
    return value;
}

std::optional<QDateTime> parseOptionalDateTime(const QVariant &column)
{
    if (column.isNull())
        return std::nullopt;
    const QString text = column.toString();
    if (text.isEmpty())
        return std::nullopt;
    return parseDateTime(text);
}

int boolValue(bool value)
{
    return value ? 1 : 0;
}

bool readBool(const QVariant &column)
{
    return column.toLongLong() != 0;
}

QString stringListJson(const QStringList &items)
{
    return QString::fromUtf8(QJsonDocument(QJsonArray::fromStringList(items)).toJson(QJsonDocument::Compact));
}

QStringList parseStringListJson(const QString &text)
{
    const QJsonDocument doc = QJsonDocument::fromJson(text.toUtf8());
    QStringList items;
    if (!doc.isArray())
        return items;
    const QJsonArray array = doc.array();
    items.reserve(array.size());
    for (const QJsonValue &v : array)
        items.append(v.toString());
    return items;
}

QString intListJson(const QList<qint32> &items)
{
    QJsonArray array;
    for (qint32 v : items)
        array.append(v);
    return QString::fromUtf8(QJsonDocument(array).toJson(QJsonDocument::Compact));
}

QList<qint32> parseIntListJson(const QString &text)
{
    const QJsonDocument doc = QJsonDocument::fromJson(text.toUtf8());
    QList<qint32> items;
    if (!doc.isArray())
        return items;
    const QJsonArray array = doc.array();
    for (const QJsonValue &v : array) {
        if (v.isDouble())
            items.append(v.toInt());
    }
    return items;
}

QString newId()
{
    return QUuid::createUuid().toString(QUuid::WithoutBraces);
}

} // namespace StorageFormat
