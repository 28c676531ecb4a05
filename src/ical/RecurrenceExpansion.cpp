// SPDX-License-Identifier: GPL-3.0-or-later
#include "ical/RecurrenceExpansion.h"

#include "ical/Recurrence.h"
#include "storage/LogCategories.h"

#include <QHash>
#include <QSet>

namespace RecurrenceExpansion {

namespace {

constexpr qint64 kDay = WallClockZone::kDayMs;

void writeDigits(QChar *&out, int value, int width)
{
    for (int i = width - 1; i >= 0; --i) {
        out[i] = QChar(u'0' + value % 10);
        value /= 10;
    }
    out += width;
}

// Appends the occurrences of a master (non-empty rule) inside [rangeStartMs, rangeEndMs) to `out`.
// `starts` is scratch space kept between masters.
void appendOccurrences(const Event &master, qint64 rangeStartMs, qint64 rangeEndMs, Method method,
                       std::vector<qint64> &starts, QList<Event> &out)
{
    if (!master.start_time.isValid())
        return;
    const QSet<qint64> exceptions
        = master.exception_dates.isEmpty() ? QSet<qint64>() : Recurrence::parseExceptionDates(master.exception_dates);
    const qint64 duration
        = master.end_time ? master.start_time.msecsTo(*master.end_time) : Recurrence::kDefaultDurationMs;
    // A start is needed when its occurrence ends after the span start.
    const qint64 neededFrom
        = rangeStartMs == OccurrenceGenerator::kNoLowerBound ? rangeStartMs : rangeStartMs - duration;
    const OccurrenceGenerator generator(CompiledRule::fromText(master.recurrence_rule), master.start_time);
    generator.starts(rangeEndMs, neededFrom, method, starts);
    for (const qint64 start : starts) {
        if (!exceptions.isEmpty() && exceptions.contains(start))
            continue;
        const qint64 end = start + duration;
        if (rangeStartMs != OccurrenceGenerator::kNoLowerBound && end <= rangeStartMs)
            continue;
        if (start >= rangeEndMs)
            continue;
        out.append(master);
        Event &occurrence = out.last();
        occurrence.start_time = generator.dateTimeAt(start);
        occurrence.end_time = generator.dateTimeAt(end);
        occurrence.recurrence_id = utcStamp(start);
    }
}

qint64 lowerBoundMs(const QDateTime &rangeStart)
{
    return rangeStart.isValid() ? rangeStart.toMSecsSinceEpoch() : OccurrenceGenerator::kNoLowerBound;
}

} // namespace

QString utcStamp(qint64 instantMs)
{
    qint64 day = instantMs / kDay;
    if (instantMs % kDay < 0)
        --day;
    const qint64 msOfDay = instantMs - day * kDay;
    int year = 0;
    int month = 0;
    int dayOfMonth = 0;
    QDate::fromJulianDay(day + WallClockZone::kEpochJulianDay).getDate(&year, &month, &dayOfMonth);
    if (year < 1 || year > 9999)
        return QDateTime::fromMSecsSinceEpoch(instantMs, Qt::UTC).toString(QStringLiteral("yyyyMMdd'T'HHmmss'Z'"));
    const int seconds = int(msOfDay / 1000);
    QString text(16, Qt::Uninitialized);
    QChar *out = text.data();
    writeDigits(out, year, 4);
    writeDigits(out, month, 2);
    writeDigits(out, dayOfMonth, 2);
    *out++ = u'T';
    writeDigits(out, seconds / 3600, 2);
    writeDigits(out, seconds / 60 % 60, 2);
    writeDigits(out, seconds % 60, 2);
    *out = u'Z';
    return text;
}

QList<Event> expandSeries(const Event &master, const QDateTime &rangeStart, const QDateTime &rangeEnd, Method method)
{
    QList<Event> result;
    if (!rangeEnd.isValid())
        return result;
    if (master.recurrence_rule.isEmpty()) {
        const bool touches = master.start_time.isValid() && master.start_time < rangeEnd
            && (!master.end_time || !rangeStart.isValid() || *master.end_time > rangeStart);
        if (touches)
            result.append(master);
        return result;
    }
    std::vector<qint64> starts;
    appendOccurrences(master, lowerBoundMs(rangeStart), rangeEnd.toMSecsSinceEpoch(), method, starts, result);
    return result;
}

QList<Event> expandEvents(const QList<Event> &events, const QDateTime &rangeStart, const QDateTime &rangeEnd,
                          Method method)
{
    std::vector<const Event *> singles;
    std::vector<const Event *> masters;
    QHash<QString, const Event *> overrides;
    // The part of each override key before its last "|": an occurrence's recurrence id never holds
    // a "|", so only a master whose uid is in here can have an override.
    QSet<QString> overriddenUids;
    for (const Event &event : events) {
        if (!event.master_event_uid.isEmpty() && !event.recurrence_id.isEmpty()) {
            const QString key = event.master_event_uid + u'|' + event.recurrence_id;
            overrides.insert(key, &event);
            overriddenUids.insert(key.left(key.lastIndexOf(u'|')));
        } else if (!event.recurrence_rule.isEmpty()) {
            masters.push_back(&event);
        } else {
            singles.push_back(&event);
        }
    }

    QList<Event> result;
    result.reserve(qsizetype(singles.size() + 4 * masters.size()));
    for (const Event *single : singles)
        result.append(*single);

    const qint64 rangeStartMs = lowerBoundMs(rangeStart);
    // An invalid span end admits nothing.
    const qint64 rangeEndMs = rangeEnd.isValid() ? rangeEnd.toMSecsSinceEpoch() : OccurrenceGenerator::kNoLowerBound;
    std::vector<qint64> starts;
    for (const Event *master : masters) {
        const qsizetype first = result.size();
        appendOccurrences(*master, rangeStartMs, rangeEndMs, method, starts, result);
        if (result.size() == first) {
            qCDebug(lcExpansion).noquote()
                << "master uid=" << master->uid << "title=" << master->title << "rrule=" << master->recurrence_rule
                << "dtstart=" << master->start_time.toString(Qt::ISODate) << "→ 0 occurrences in range"
                << rangeStart.toString(Qt::ISODate) << "..." << rangeEnd.toString(Qt::ISODate);
            continue;
        }
        if (!overriddenUids.contains(master->uid))
            continue;
        for (qsizetype i = first; i < result.size(); ++i) {
            const auto found = overrides.constFind(master->uid + u'|' + result.at(i).recurrence_id);
            if (found != overrides.constEnd())
                result[i] = *found.value();
        }
    }
    return result;
}

} // namespace RecurrenceExpansion
