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

namespace {

// Value of the decimal digits text[from, from + count), or -1 when one is not a digit.
int digits(QStringView text, qsizetype from, qsizetype count)
{
    int value = 0;
    for (qsizetype i = from; i < from + count; ++i) {
        const char16_t c = text[i].unicode();
        if (c < u'0' || c > u'9')
            return -1;
        value = value * 10 + (c - u'0');
    }
    return value;
}

// The forms the program itself writes, read without the general parser, which is slow enough to
// dominate the loading of a calendar span: "yyyy-MM-ddTHH:mm:ss" followed by "Z", by "+hh:mm" or
// "-hh:mm", or by nothing (floating local time). The result is the one the general parser gives
// for the same text. Anything else, or an impossible date or time, is left to the general parser.
std::optional<QDateTime> parseWrittenForm(QStringView text)
{
    const qsizetype size = text.size();
    if (size != 19 && size != 20 && size != 25)
        return std::nullopt;
    if (text[4] != u'-' || text[7] != u'-' || text[10] != u'T' || text[13] != u':' || text[16] != u':')
        return std::nullopt;
    const int year = digits(text, 0, 4);
    const int month = digits(text, 5, 2);
    const int day = digits(text, 8, 2);
    const int hour = digits(text, 11, 2);
    const int minute = digits(text, 14, 2);
    const int second = digits(text, 17, 2);
    if (year < 0 || month < 0 || day < 0 || hour < 0 || minute < 0 || second < 0)
        return std::nullopt;
    const QDate date(year, month, day);
    const QTime time(hour, minute, second);
    if (!date.isValid() || !time.isValid())
        return std::nullopt;
    if (size == 19)
        return QDateTime(date, time, Qt::LocalTime);
    if (size == 20)
        return text[19] == u'Z' ? std::optional(QDateTime(date, time, Qt::UTC)) : std::nullopt;
    const char16_t sign = text[19].unicode();
    const int offsetHours = digits(text, 20, 2);
    const int offsetMinutes = digits(text, 23, 2);
    if ((sign != u'+' && sign != u'-') || text[22] != u':' || offsetHours < 0 || offsetMinutes < 0 || offsetMinutes > 59
        || offsetHours > 23)
        return std::nullopt;
    const int offset = (offsetHours * 3600 + offsetMinutes * 60) * (sign == u'-' ? -1 : 1);
    return QDateTime(date, time, Qt::OffsetFromUTC, offset);
}

} // namespace

QDateTime parseDateTime(const QString &text)
{
    if (text.isEmpty())
        return QDateTime();
    if (std::optional<QDateTime> written = parseWrittenForm(text))
        return *written;
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
