// SPDX-License-Identifier: GPL-3.0-or-later
#include "ical/WallClockZone.h"

#include <QHash>

#include <algorithm>
#include <vector>

// Offsets of one zone between two instants, from its list of transitions; outside that window
// the zone itself is asked.
struct WallClockZone::Table
{
    QTimeZone zone;
    qint64 validFrom = 0;
    qint64 validTo = 0;
    int offsetBeforeFirst = 0;
    std::vector<qint64> transitionAt;
    std::vector<int> offsetAfter;

    int offsetAt(qint64 instantMs) const
    {
        if (instantMs < validFrom || instantMs >= validTo)
            return zone.offsetFromUtc(QDateTime::fromMSecsSinceEpoch(instantMs, Qt::UTC));
        const auto next = std::upper_bound(transitionAt.cbegin(), transitionAt.cend(), instantMs);
        if (next == transitionAt.cbegin())
            return offsetBeforeFirst;
        return offsetAfter[std::size_t(next - transitionAt.cbegin() - 1)];
    }
};

namespace {

// The window covered by the tables: the zone database lists transitions one by one up to 2037.
const QDateTime &tableStart()
{
    static const QDateTime start(QDate(1900, 1, 1), QTime(0, 0), Qt::UTC);
    return start;
}

const QDateTime &tableEnd()
{
    static const QDateTime end(QDate(2037, 1, 1), QTime(0, 0), Qt::UTC);
    return end;
}

std::shared_ptr<const WallClockZone::Table> buildTable(const QTimeZone &zone)
{
    auto table = std::make_shared<WallClockZone::Table>();
    table->zone = zone;
    table->validFrom = tableStart().toMSecsSinceEpoch();
    table->validTo = tableEnd().toMSecsSinceEpoch();
    table->offsetBeforeFirst = zone.offsetFromUtc(tableStart());
    const QTimeZone::OffsetDataList transitions = zone.transitions(tableStart(), tableEnd());
    table->transitionAt.reserve(std::size_t(transitions.size()));
    table->offsetAfter.reserve(std::size_t(transitions.size()));
    for (const QTimeZone::OffsetData &transition : transitions) {
        const qint64 at = transition.atUtc.toMSecsSinceEpoch();
        if (at < table->validFrom || at >= table->validTo)
            continue;
        table->transitionAt.push_back(at);
        table->offsetAfter.push_back(transition.offsetFromUtc);
    }
    return table;
}

// Zone data does not change while the program runs, so each thread keeps the tables it built.
std::shared_ptr<const WallClockZone::Table> tableFor(const QByteArray &id, const QTimeZone &zone)
{
    thread_local QHash<QByteArray, std::shared_ptr<const WallClockZone::Table>> tables;
    auto found = tables.constFind(id);
    if (found != tables.constEnd())
        return found.value();
    auto table = buildTable(zone.isValid() ? zone : QTimeZone(id));
    tables.insert(id, table);
    return table;
}

} // namespace

WallClockZone::WallClockZone(const QDateTime &reference)
    : m_kind(reference.timeSpec())
{
    switch (m_kind) {
    case Qt::UTC:
        break;
    case Qt::OffsetFromUTC:
        m_fixedOffset = reference.offsetFromUtc();
        break;
    case Qt::LocalTime:
        m_table = tableFor(QTimeZone::systemTimeZoneId(), QTimeZone());
        break;
    case Qt::TimeZone:
        m_zone = reference.timeZone();
        m_table = tableFor(m_zone.id(), m_zone);
        break;
    }
}

qint64 WallClockZone::wallMs(const QDateTime &value)
{
    return wallMs(value.date(), value.time().msecsSinceStartOfDay());
}

qint64 WallClockZone::wallMs(QDate date, qint64 msOfDay)
{
    return (date.toJulianDay() - kEpochJulianDay) * kDayMs + msOfDay;
}

qint64 WallClockZone::dayNumber(qint64 wallMs)
{
    qint64 day = wallMs / kDayMs;
    if (wallMs % kDayMs < 0)
        --day;
    return day;
}

QDate WallClockZone::dateOf(qint64 wallMs)
{
    return QDate::fromJulianDay(dayNumber(wallMs) + kEpochJulianDay);
}

int WallClockZone::weekday(qint64 wallMs)
{
    // Day 0, 1970-01-01, was a Thursday.
    return int(((dayNumber(wallMs) % 7) + 7 + 3) % 7) + 1;
}

int WallClockZone::offsetAt(qint64 instantMs) const
{
    switch (m_kind) {
    case Qt::UTC:
        return 0;
    case Qt::OffsetFromUTC:
        return m_fixedOffset;
    case Qt::LocalTime:
    case Qt::TimeZone:
        break;
    }
    return m_table->offsetAt(instantMs);
}

qint64 WallClockZone::toInstant(qint64 wallMs) const
{
    if (m_kind == Qt::UTC)
        return wallMs;
    if (m_kind == Qt::OffsetFromUTC)
        return wallMs - qint64(m_fixedOffset) * 1000;
    // Offsets never move by more than a day, so the ones a day either side are the only candidates.
    const qint64 before = qint64(m_table->offsetAt(wallMs - kDayMs)) * 1000;
    const qint64 after = qint64(m_table->offsetAt(wallMs + kDayMs)) * 1000;
    const qint64 early = wallMs - before;
    const bool earlyFits = qint64(m_table->offsetAt(early)) * 1000 == before;
    if (before == after && earlyFits)
        return early;
    const qint64 late = wallMs - after;
    const bool lateFits = qint64(m_table->offsetAt(late)) * 1000 == after;
    if (earlyFits && lateFits)
        return std::min(early, late);
    if (earlyFits)
        return early;
    if (lateFits)
        return late;
    return early;
}

QDateTime WallClockZone::dateTimeAt(qint64 instantMs) const
{
    switch (m_kind) {
    case Qt::UTC:
        break;
    case Qt::OffsetFromUTC:
        return QDateTime::fromMSecsSinceEpoch(instantMs, Qt::OffsetFromUTC, m_fixedOffset);
    case Qt::LocalTime:
        return QDateTime::fromMSecsSinceEpoch(instantMs, Qt::LocalTime);
    case Qt::TimeZone:
        return QDateTime::fromMSecsSinceEpoch(instantMs, m_zone);
    }
    return QDateTime::fromMSecsSinceEpoch(instantMs, Qt::UTC);
}
