// SPDX-License-Identifier: GPL-3.0-or-later
#include "ical/Recurrence.h"

#include "ical/OccurrenceGenerator.h"
#include "ical/RecurrenceExpansion.h"
#include "ical/RuleText.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QLatin1StringView>

namespace Recurrence {

RecurrenceRule parseRule(const QString &text)
{
    RecurrenceRule rule;
    RuleText::forEachPiece(text, [&rule](QLatin1StringView key, QStringView value) {
        if (key == QLatin1StringView("FREQ"))
            rule.freq = value.toString().toUpper();
        else if (key == QLatin1StringView("INTERVAL"))
            rule.interval = RuleText::intervalValue(value);
        else if (key == QLatin1StringView("COUNT"))
            rule.count = RuleText::countValue(value);
        else if (key == QLatin1StringView("UNTIL"))
            rule.until = RuleText::untilValue(value);
        else if (key == QLatin1StringView("BYDAY"))
            rule.byDay = value.toString().toUpper().split(u',', Qt::SkipEmptyParts);
    });
    return rule;
}

QSet<qint64> parseExceptionDates(const QString &text)
{
    QSet<qint64> instants;
    if (text.isEmpty())
        return instants;
    const QJsonDocument document = QJsonDocument::fromJson(text.toUtf8());
    if (!document.isArray())
        return instants;
    const QJsonArray array = document.array();
    for (const QJsonValue &element : array) {
        const QString value = element.toString();
        QDateTime instant;
        if (!value.contains(u'T')) {
            const QDate date = RuleText::readDate(value);
            if (date.isValid())
                instant = QDateTime(date, QTime(0, 0), Qt::UTC);
        } else {
            QStringView local(value);
            const bool utc = local.endsWith(u'Z');
            if (utc)
                local.chop(1);
            QDate date;
            QTime time;
            if (RuleText::readDateTime(local, &date, &time))
                instant = QDateTime(date, time, utc ? Qt::UTC : Qt::LocalTime);
        }
        if (instant.isValid())
            instants.insert(instant.toMSecsSinceEpoch());
    }
    return instants;
}

QList<QDateTime> occurrenceStarts(const RecurrenceRule &rule, const QDateTime &seriesStart, const QDateTime &rangeEnd)
{
    QList<QDateTime> result;
    if (!rangeEnd.isValid())
        return result;
    const OccurrenceGenerator generator(CompiledRule::fromRule(rule), seriesStart);
    std::vector<qint64> starts;
    generator.starts(rangeEnd.toMSecsSinceEpoch(), OccurrenceGenerator::kNoLowerBound,
                     OccurrenceGenerator::Method::SkipAhead, starts);
    result.reserve(qsizetype(starts.size()));
    for (const qint64 start : starts)
        result.append(generator.dateTimeAt(start));
    return result;
}

QList<Event> expandSeries(const Event &master, const QDateTime &rangeStart, const QDateTime &rangeEnd)
{
    return RecurrenceExpansion::expandSeries(master, rangeStart, rangeEnd, OccurrenceGenerator::Method::SkipAhead);
}

QList<Event> expandEvents(const QList<Event> &events, const QDateTime &rangeStart, const QDateTime &rangeEnd)
{
    return RecurrenceExpansion::expandEvents(events, rangeStart, rangeEnd, OccurrenceGenerator::Method::SkipAhead);
}

QString truncateRule(const QString &ruleText, const QDateTime &lastAllowed)
{
    const QString until = lastAllowed.toUTC().toString(QStringLiteral("yyyyMMdd'T'HHmmss'Z'"));
    const QString untilPiece = QStringLiteral("UNTIL=%1").arg(until);
    QStringList pieces;
    bool replaced = false;
    const QStringList parts = ruleText.split(u';', Qt::SkipEmptyParts);
    for (const QString &piece : parts) {
        const qsizetype equals = piece.indexOf(u'=');
        if (equals < 0) {
            pieces.append(piece);
            continue;
        }
        const QString key = piece.left(equals).toUpper();
        if (key == QLatin1StringView("COUNT"))
            continue;
        if (key == QLatin1StringView("UNTIL")) {
            pieces.append(untilPiece);
            replaced = true;
            continue;
        }
        pieces.append(piece);
    }
    if (!replaced)
        pieces.append(untilPiece);
    return pieces.join(u';');
}

} // namespace Recurrence
