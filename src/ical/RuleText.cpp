// SPDX-License-Identifier: GPL-3.0-or-later
#include "ical/RuleText.h"

#include <QString>

namespace RuleText {

namespace {

// Reads `count` ASCII digits starting at `from`; -1 when one of them is not a digit.
int digits(QStringView text, qsizetype from, int count)
{
    int value = 0;
    for (int i = 0; i < count; ++i) {
        const char16_t c = text.at(from + i).unicode();
        if (c < u'0' || c > u'9')
            return -1;
        value = value * 10 + int(c - u'0');
    }
    return value;
}

} // namespace

void upperKey(QStringView key, char *out)
{
    out[0] = '\0';
    if (key.size() >= 16)
        return;
    bool ascii = true;
    for (qsizetype i = 0; i < key.size(); ++i) {
        const char16_t c = key.at(i).unicode();
        if (c >= 0x80) {
            ascii = false;
            break;
        }
        out[i] = (c >= u'a' && c <= u'z') ? char(c - (u'a' - u'A')) : char(c);
    }
    if (ascii) {
        out[key.size()] = '\0';
        return;
    }
    // Full case mapping, as a few non-ASCII letters upper-case to ASCII ones (dotless i is I).
    const QString upper = key.toString().toUpper();
    if (upper.size() >= 16) {
        out[0] = '\0';
        return;
    }
    for (qsizetype i = 0; i < upper.size(); ++i) {
        const char16_t c = upper.at(i).unicode();
        if (c >= 0x80) {
            out[0] = '\0';
            return;
        }
        out[i] = char(c);
    }
    out[upper.size()] = '\0';
}

qint32 intervalValue(QStringView value)
{
    bool ok = false;
    const int number = value.toInt(&ok);
    return ok && number >= 1 ? number : 1;
}

qint32 countValue(QStringView value)
{
    bool ok = false;
    const int number = value.toInt(&ok);
    return ok && number >= 0 ? number : 0;
}

QDate readDate(QStringView text)
{
    if (text.size() != 8)
        return QDate();
    const int year = digits(text, 0, 4);
    const int month = digits(text, 4, 2);
    const int day = digits(text, 6, 2);
    if (year < 0 || month < 0 || day < 0)
        return QDate();
    return QDate(year, month, day);
}

bool readDateTime(QStringView text, QDate *date, QTime *time)
{
    if (text.size() != 15 || text.at(8) != u'T')
        return false;
    const QDate day = readDate(text.first(8));
    const int hour = digits(text, 9, 2);
    const int minute = digits(text, 11, 2);
    const int second = digits(text, 13, 2);
    if (!day.isValid() || hour < 0 || minute < 0 || second < 0 || !QTime::isValid(hour, minute, second))
        return false;
    *date = day;
    *time = QTime(hour, minute, second);
    return true;
}

QDateTime untilValue(QStringView value)
{
    QStringView text = value;
    if (text.endsWith(u'Z'))
        text.chop(1);
    QDate date;
    QTime time;
    if (readDateTime(text, &date, &time))
        return QDateTime(date, time, Qt::UTC);
    date = readDate(value);
    // A date-only (or floating) UNTIL is taken as UTC, not as the series' zone: deliberate.
    if (date.isValid())
        return QDateTime(date, QTime(0, 0), Qt::UTC);
    return QDateTime();
}

int weekdayNumber(QStringView item)
{
    for (const QChar c : item) {
        if (c.unicode() >= 0x80) {
            // Full case mapping, as a few non-ASCII letters upper-case to ASCII ones (long s is S).
            const QString upper = item.toString().toUpper();
            return upper.size() == 2 && upper.at(0).unicode() < 0x80 && upper.at(1).unicode() < 0x80
                ? weekdayNumber(upper)
                : 0;
        }
    }
    // Ordinal items ("1MO", "-1FR") are not weekdays and are ignored: deliberate.
    if (item.size() != 2)
        return 0;
    static constexpr char16_t kCodes[7][2]
        = {{u'M', u'O'}, {u'T', u'U'}, {u'W', u'E'}, {u'T', u'H'}, {u'F', u'R'}, {u'S', u'A'}, {u'S', u'U'}};
    const auto upper = [](char16_t c) {
        return (c >= u'a' && c <= u'z') ? char16_t(c - (u'a' - u'A')) : c;
    };
    const char16_t first = upper(item.at(0).unicode());
    const char16_t second = upper(item.at(1).unicode());
    for (int i = 0; i < 7; ++i) {
        if (kCodes[i][0] == first && kCodes[i][1] == second)
            return i + 1;
    }
    return 0;
}

} // namespace RuleText
