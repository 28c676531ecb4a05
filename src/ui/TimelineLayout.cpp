// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/TimelineLayout.h"

#include "ui/TimelineMath.h"

#include <algorithm>

namespace {

constexpr qint64 kDaySeconds = 24 * 3600;

QDateTime endOf(const Event &occurrence)
{
    return occurrence.end_time && *occurrence.end_time > occurrence.start_time ? *occurrence.end_time
                                                                               : occurrence.start_time;
}

int minuteOfDay(const QDateTime &local)
{
    return local.time().hour() * 60 + local.time().minute();
}

// The date of the instant `seconds` before `time`, for the last day an end closes (time arithmetic
// on the wall clock, without another zone conversion).
QDate dateBefore(const QDateTime &time, int seconds)
{
    return time.time().msecsSinceStartOfDay() < seconds * 1000 ? time.date().addDays(-1) : time.date();
}

} // namespace

bool TimelineLayout::isAllDayItem(const Event &occurrence)
{
    return occurrence.is_all_day || occurrence.start_time.secsTo(endOf(occurrence)) >= kDaySeconds;
}

TimelineLayout TimelineLayout::build(const std::shared_ptr<const SpanData> &span, const QDate &firstDay, int dayCount,
                                     int minimumMinutes, const SpanCache *cache)
{
    TimelineLayout layout;
    layout.span = span;
    layout.firstDay = firstDay;
    layout.dayCount = dayCount;
    if (!span || !firstDay.isValid() || dayCount <= 0)
        return layout;

    QList<QList<TimedPiece>> perDay(dayCount);
    QList<EventLayout::DayRangeItem> ranges;
    const QList<Event> &occurrences = span->contents.occurrences;
    layout.visuals.resize(occurrences.size());
    for (qsizetype index = 0; index < occurrences.size(); ++index) {
        const Event &occurrence = occurrences.at(index);
        if (!occurrence.start_time.isValid())
            continue;
        const QDateTime end = endOf(occurrence);
        // A conversion to local time may make the C library consult the zone file (glibc does
        // when TZ is unset), so each end is converted once, here, and never while painting.
        const QDateTime localStart = occurrence.start_time.toLocalTime();
        const QDateTime localEnd = end.toLocalTime();
        Visual &visual = layout.visuals[index];
        visual.color = cache ? cache->colorOf(occurrence) : QColor();
        visual.dimmed = span->contents.dimmedIds.contains(occurrence.id);
        visual.start = localStart.time();
        visual.end = localEnd.time();
        visual.sameDay = localStart.date() == localEnd.date();
        visual.endMSecs = end.toMSecsSinceEpoch();
        if (isAllDayItem(occurrence)) {
            // All-day dates are the stored dates as they stand, never shifted into the local zone.
            const QDateTime start = occurrence.is_all_day ? occurrence.start_time : localStart;
            const QDateTime last = occurrence.is_all_day ? end : localEnd;
            const int first = int(firstDay.daysTo(start.date()));
            const int lastDay = end > occurrence.start_time ? int(firstDay.daysTo(dateBefore(last, 1))) : first;
            if (lastDay < 0 || first >= dayCount)
                continue;
            Bar bar;
            bar.index = index;
            bar.first = std::max(first, 0);
            bar.last = std::min(std::max(lastDay, first), dayCount - 1);
            bar.continuesBefore = first < 0;
            bar.continuesAfter = lastDay >= dayCount;
            layout.bars.append(bar);
            ranges.append({bar.first, bar.last});
            continue;
        }
        const int startDay = int(firstDay.daysTo(localStart.date()));
        // An end at midnight closes the previous day; it does not reach into the next one.
        const int endDay = end > occurrence.start_time ? int(firstDay.daysTo(dateBefore(localEnd, 60))) : startDay;
        for (int day = std::max(startDay, 0); day <= std::min(endDay, dayCount - 1); ++day) {
            TimedPiece piece;
            piece.index = index;
            piece.day = day;
            piece.startsHere = day == startDay;
            piece.endsHere = day == endDay;
            piece.start = piece.startsHere ? minuteOfDay(localStart) : 0;
            piece.end = piece.endsHere && int(firstDay.daysTo(localEnd.date())) == day ? minuteOfDay(localEnd)
                                                                                       : TimelineMath::kMinutesPerDay;
            piece.end = std::max(piece.end, piece.start);
            perDay[day].append(piece);
        }
    }

    for (QList<TimedPiece> &day : perDay) {
        std::stable_sort(day.begin(), day.end(),
                         [](const TimedPiece &a, const TimedPiece &b) { return a.start < b.start; });
        QList<EventLayout::TimedItem> items;
        items.reserve(day.size());
        for (const TimedPiece &piece : std::as_const(day))
            items.append({piece.start, piece.end});
        const QList<EventLayout::TimedPlacement> placements = EventLayout::layoutTimed(items, minimumMinutes);
        for (qsizetype i = 0; i < day.size(); ++i) {
            day[i].placement = placements.at(i);
            layout.pieces.append(day[i]);
        }
    }

    const QList<int> lanes = EventLayout::packLanes(ranges);
    for (qsizetype i = 0; i < layout.bars.size(); ++i) {
        layout.bars[i].lane = lanes.at(i);
        layout.laneCount = std::max(layout.laneCount, lanes.at(i) + 1);
    }
    std::stable_sort(layout.bars.begin(), layout.bars.end(), [](const Bar &a, const Bar &b) {
        return a.first != b.first ? a.first < b.first : a.last - a.first > b.last - b.first;
    });
    return layout;
}

int TimelineLayout::barsFrom(int day, int fromLane) const
{
    int count = 0;
    for (const Bar &bar : bars) {
        if (bar.lane >= fromLane && bar.first <= day && day <= bar.last)
            ++count;
    }
    return count;
}
