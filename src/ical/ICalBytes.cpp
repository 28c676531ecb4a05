// SPDX-License-Identifier: GPL-3.0-or-later
#include "ical/ICalBytes.h"

#include "ical/ZoneCache.h"

#include <QStringDecoder>

#include <cstring>
#include <limits>

namespace ICal::Bytes {

namespace {

constexpr char kByteOrderMark[] = "\xEF\xBB\xBF";

char upperAscii(char c)
{
    return (c >= 'a' && c <= 'z') ? char(c - 'a' + 'A') : c;
}

char lowerAscii(char c)
{
    return (c >= 'A' && c <= 'Z') ? char(c - 'A' + 'a') : c;
}

bool isAsciiSpace(char c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\v' || c == '\f' || c == '\r';
}

// Reads exactly `count` ASCII digits; -1 when one is not a digit.
int digits(const char *p, int count)
{
    int value = 0;
    for (int i = 0; i < count; ++i) {
        const char c = p[i];
        if (c < '0' || c > '9')
            return -1;
        value = value * 10 + (c - '0');
    }
    return value;
}

qint64 saturatingAdd(qint64 a, qint64 b)
{
    qint64 sum;
    if (qAddOverflow(a, b, &sum))
        return std::numeric_limits<qint64>::max();
    return sum;
}

qint64 saturatingMul(qint64 a, qint64 b)
{
    qint64 product;
    if (qMulOverflow(a, b, &product))
        return std::numeric_limits<qint64>::max();
    return product;
}

// Length in UTF-16 code units of the decoded value, and whether it holds a "T".
qsizetype textLength(QByteArrayView value, bool *hasT)
{
    if (isAscii(value)) {
        *hasT = value.contains('T');
        return value.size();
    }
    const QString text = decode(value);
    *hasT = text.contains(QLatin1Char('T'));
    return text.size();
}

} // namespace

LineParts splitLine(QByteArrayView line)
{
    // Deliberately the first colon splits the line, even one inside a quoted parameter value.
    LineParts parts;
    const char *begin = line.data();
    const auto *colon = static_cast<const char *>(line.isEmpty() ? nullptr : std::memchr(begin, ':', line.size()));
    if (!colon) {
        parts.name = line;
        return parts;
    }
    const qsizetype colonAt = colon - begin;
    parts.value = line.sliced(colonAt + 1);
    const auto *semicolon = static_cast<const char *>(std::memchr(begin, ';', colonAt));
    if (!semicolon) {
        parts.name = line.first(colonAt);
        return parts;
    }
    const qsizetype semicolonAt = semicolon - begin;
    parts.name = line.first(semicolonAt);
    parts.parameters = line.sliced(semicolonAt + 1, colonAt - semicolonAt - 1);
    return parts;
}

bool isAscii(QByteArrayView bytes)
{
    for (const char c : bytes) {
        if (static_cast<unsigned char>(c) >= 0x80)
            return false;
    }
    return true;
}

qsizetype upperAsciiName(QByteArrayView name, char *out, qsizetype capacity)
{
    // A character upper-cases to at least one character, so a name of more than `capacity`
    // characters (four bytes each at most) cannot fit: no need to decode a huge one.
    if (name.size() > capacity * 4)
        return -1;
    if (isAscii(name)) {
        if (name.size() > capacity)
            return -1;
        for (qsizetype i = 0; i < name.size(); ++i)
            out[i] = upperAscii(name[i]);
        return name.size();
    }
    // Full case mapping can turn non-ASCII letters into ASCII ones ("ı" gives "I", "ﬆ" gives "ST"),
    // exactly as the text functions upper-case names.
    const QByteArray upper = decode(name).toUpper().toUtf8();
    if (upper.size() > capacity || !isAscii(upper))
        return -1;
    std::memcpy(out, upper.constData(), upper.size());
    return upper.size();
}

std::optional<QByteArrayView> parameter(QByteArrayView parameters, QByteArrayView upperName)
{
    std::optional<QByteArrayView> found;
    if (parameters.isEmpty())
        return found;
    qsizetype start = 0;
    while (start <= parameters.size()) {
        qsizetype end = parameters.indexOf(';', start);
        if (end < 0)
            end = parameters.size();
        const QByteArrayView piece = parameters.sliced(start, end - start);
        const qsizetype equals = piece.indexOf('=');
        if (equals >= 1) {
            char upper[64];
            const qsizetype length = upperAsciiName(piece.first(equals), upper, sizeof upper);
            // Deliberately the value as it stands, double quotes included.
            if (length == upperName.size() && std::memcmp(upper, upperName.data(), length) == 0)
                found = piece.sliced(equals + 1);
        }
        start = end + 1;
    }
    return found;
}

QString decode(QByteArrayView utf8)
{
    if (!utf8.startsWith(QByteArrayView(kByteOrderMark, 3)))
        return QString::fromUtf8(utf8);
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
    return decoder.decode(utf8);
}

QString lowerText(QByteArrayView value)
{
    if (!isAscii(value))
        return decode(value).toLower();
    // The common values share one string instead of a copy per record.
    if (equalsIgnoringCase(value, "CONFIRMED"))
        return QStringLiteral("confirmed");
    if (equalsIgnoringCase(value, "TENTATIVE"))
        return QStringLiteral("tentative");
    if (equalsIgnoringCase(value, "CANCELLED"))
        return QStringLiteral("cancelled");
    if (equalsIgnoringCase(value, "NEEDS-ACTION"))
        return QStringLiteral("needs-action");
    if (equalsIgnoringCase(value, "COMPLETED"))
        return QStringLiteral("completed");
    if (equalsIgnoringCase(value, "IN-PROCESS"))
        return QStringLiteral("in-process");
    QString text(value.size(), Qt::Uninitialized);
    QChar *out = text.data();
    for (qsizetype i = 0; i < value.size(); ++i)
        out[i] = QLatin1Char(lowerAscii(value[i]));
    return text;
}

bool equalsIgnoringCase(QByteArrayView value, QByteArrayView upperWord)
{
    if (value.size() != upperWord.size())
        return false;
    for (qsizetype i = 0; i < value.size(); ++i) {
        if (upperAscii(value[i]) != upperWord[i])
            return false;
    }
    return true;
}

std::optional<qint32> integer(QByteArrayView value)
{
    qsizetype begin = 0;
    qsizetype end = value.size();
    while (begin < end && isAsciiSpace(value[begin]))
        ++begin;
    while (end > begin && isAsciiSpace(value[end - 1]))
        --end;
    bool negative = false;
    if (begin < end && (value[begin] == '+' || value[begin] == '-')) {
        negative = value[begin] == '-';
        ++begin;
    }
    if (begin == end)
        return std::nullopt;
    qint64 magnitude = 0;
    for (qsizetype i = begin; i < end; ++i) {
        const char c = value[i];
        if (c < '0' || c > '9')
            return std::nullopt;
        magnitude = magnitude * 10 + (c - '0');
        if (magnitude > qint64(std::numeric_limits<qint32>::max()) + 1)
            return std::nullopt;
    }
    const qint64 result = negative ? -magnitude : magnitude;
    if (result > std::numeric_limits<qint32>::max() || result < std::numeric_limits<qint32>::min())
        return std::nullopt;
    return qint32(result);
}

qint64 durationSeconds(QByteArrayView value)
{
    // Deliberately simple: a leading sign is not a "P", so a negative duration gives 0; "P1H"
    // (hours before the "T") gives 0; a month counts 30 days.
    if (value.isEmpty() || value[0] != 'P')
        return 0;
    bool timePart = false;
    qint64 number = 0;
    qint64 seconds = 0;
    for (qsizetype i = 1; i < value.size(); ++i) {
        const char c = value[i];
        if (c == 'T') {
            timePart = true;
            continue;
        }
        if (c >= '0' && c <= '9') {
            number = saturatingAdd(saturatingMul(number, 10), c - '0');
            continue;
        }
        qint64 unit = 0;
        switch (c) {
        case 'D':
            unit = 86400;
            break;
        case 'W':
            unit = 604800;
            break;
        case 'H':
            unit = timePart ? 3600 : 0;
            break;
        case 'M':
            unit = timePart ? 60 : 2592000;
            break;
        case 'S':
            unit = timePart ? 1 : 0;
            break;
        default:
            break;
        }
        seconds = saturatingAdd(seconds, saturatingMul(number, unit));
        number = 0;
    }
    return seconds;
}

QDateTime dateTime(QByteArrayView value, std::optional<QByteArrayView> tzid, ZoneCache &zones, bool *isDateOnly)
{
    if (isDateOnly)
        *isDateOnly = false;
    // Deliberately by shape only (eight characters, no "T"); VALUE=DATE is not consulted.
    bool hasT = false;
    if (value.size() >= 8 && value.size() <= 32 && textLength(value, &hasT) == 8 && !hasT) {
        if (isDateOnly)
            *isDateOnly = true;
        if (value.size() != 8)
            return QDateTime();
        const int year = digits(value.data(), 4);
        const int month = digits(value.data() + 4, 2);
        const int day = digits(value.data() + 6, 2);
        const QDate date(year, month, day);
        if (year <= 0 || month < 0 || day < 0 || !date.isValid())
            return QDateTime();
        // Deliberately midnight UTC, never the local zone.
        return QDateTime(date, QTime(0, 0), Qt::UTC);
    }

    const bool utc = value.endsWith('Z');
    const QByteArrayView local = utc ? value.chopped(1) : value;
    if (local.size() != 15 || local[8] != 'T')
        return QDateTime();
    const int year = digits(local.data(), 4);
    const int month = digits(local.data() + 4, 2);
    const int day = digits(local.data() + 6, 2);
    const int hour = digits(local.data() + 9, 2);
    const int minute = digits(local.data() + 11, 2);
    const int second = digits(local.data() + 13, 2);
    if (year <= 0 || month < 0 || day < 0 || hour < 0 || minute < 0 || second < 0)
        return QDateTime();
    const QDate date(year, month, day);
    const QTime time(hour, minute, second);
    if (!date.isValid() || !time.isValid())
        return QDateTime();
    if (utc)
        return QDateTime(date, time, Qt::UTC);
    if (tzid && !tzid->isEmpty()) {
        if (const QTimeZone *zone = zones.zone(*tzid))
            return QDateTime(date, time, *zone);
    }
    // Deliberately floating local time when the zone is unknown; the record keeps the raw TZID.
    return QDateTime(date, time);
}

} // namespace ICal::Bytes
