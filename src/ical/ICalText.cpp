// SPDX-License-Identifier: GPL-3.0-or-later
// The text-level building blocks of the reader, for callers that hold decoded text. The readers
// themselves work on bytes (ICalBytes.h) with the same rules.
#include "ical/ICal.h"

#include "ical/ICalBytes.h"
#include "ical/ZoneCache.h"

#include <QTimeZone>

namespace ICal {

namespace {

QString parameterValue(const QList<std::pair<QString, QString>> &parameters, QStringView name)
{
    QString value;
    for (const auto &[key, raw] : parameters) {
        if (key == name)
            value = raw.isNull() ? QString(QLatin1String("")) : raw;
    }
    return value;
}

} // namespace

QString ContentLine::parameter(QStringView wanted) const
{
    return parameterValue(parameters, wanted);
}

QStringList unfoldLines(const QString &text)
{
    QStringList lines;
    qsizetype start = 0;
    while (true) {
        const qsizetype lf = text.indexOf(QLatin1Char('\n'), start);
        QString piece = lf < 0 ? text.mid(start) : text.mid(start, lf - start);
        if (lf >= 0 && piece.endsWith(QLatin1Char('\r')))
            piece.chop(1);
        const bool continuation
            = !piece.isEmpty() && (piece.at(0) == QLatin1Char(' ') || piece.at(0) == QLatin1Char('\t'));
        if (continuation && !lines.isEmpty())
            lines.last().append(QStringView(piece).sliced(1));
        else
            lines.append(piece);
        if (lf < 0)
            break;
        start = lf + 1;
    }
    return lines;
}

ContentLine parsePropertyLine(const QString &line)
{
    ContentLine result;
    // Deliberately the first colon splits the line, even one inside a quoted parameter value.
    const qsizetype colon = line.indexOf(QLatin1Char(':'));
    if (colon < 0) {
        result.name = line.toUpper();
        return result;
    }
    result.value = line.mid(colon + 1);
    const QList<QStringView> pieces = QStringView(line).first(colon).split(QLatin1Char(';'));
    result.name = pieces.constFirst().toString().toUpper();
    for (qsizetype i = 1; i < pieces.size(); ++i) {
        const QStringView piece = pieces.at(i);
        const qsizetype equals = piece.indexOf(QLatin1Char('='));
        if (equals < 1)
            continue;
        // Deliberately the value as it stands, double quotes included.
        QString value = piece.sliced(equals + 1).toString();
        if (value.isNull())
            value = QLatin1String("");
        result.parameters.append({piece.first(equals).toString().toUpper(), value});
    }
    return result;
}

QString unescapeText(const QString &text)
{
    QString out;
    out.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c != QLatin1Char('\\') || i + 1 >= text.size()) {
            out.append(c);
            continue;
        }
        const QChar next = text.at(i + 1);
        if (next == QLatin1Char(',') || next == QLatin1Char(';') || next == QLatin1Char('\\')) {
            out.append(next);
            ++i;
        } else if (next == QLatin1Char('n') || next == QLatin1Char('N')) {
            out.append(QLatin1Char('\n'));
            ++i;
        } else {
            out.append(c);
        }
    }
    return out;
}

QDateTime parseDateTime(const QString &value, const QList<std::pair<QString, QString>> &parameters, bool *isDateOnly)
{
    if (isDateOnly)
        *isDateOnly = false;
    // Deliberately by shape only; VALUE=DATE is not consulted.
    if (value.size() == 8 && !value.contains(QLatin1Char('T'))) {
        if (isDateOnly)
            *isDateOnly = true;
        const QDate date = QDate::fromString(value, QStringLiteral("yyyyMMdd"));
        // Deliberately midnight UTC, never the local zone.
        return date.isValid() ? QDateTime(date, QTime(0, 0), Qt::UTC) : QDateTime();
    }
    const bool utc = value.endsWith(QLatin1Char('Z'));
    const QString local = utc ? value.chopped(1) : value;
    // Date and time are read apart: read together as local time, an instant in the local zone's
    // spring-forward gap would be rejected although it is a valid UTC or zoned time.
    if (local.size() != 15 || local.at(8) != QLatin1Char('T'))
        return QDateTime();
    const QDate date = QDate::fromString(local.first(8), QStringLiteral("yyyyMMdd"));
    const QTime time = QTime::fromString(local.sliced(9), QStringLiteral("HHmmss"));
    if (!date.isValid() || !time.isValid())
        return QDateTime();
    if (utc)
        return QDateTime(date, time, Qt::UTC);
    const QString tzid = parameterValue(parameters, u"TZID");
    if (!tzid.isEmpty()) {
        const QTimeZone zone = ZoneCache::lookup(tzid.toUtf8());
        if (zone.isValid())
            return QDateTime(date, time, zone);
    }
    // Deliberately floating local time when the zone is unknown.
    return QDateTime(date, time);
}

qint64 parseDurationSeconds(const QString &value)
{
    return Bytes::durationSeconds(value.toUtf8());
}

} // namespace ICal
