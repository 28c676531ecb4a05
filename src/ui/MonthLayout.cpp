// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/MonthLayout.h"

#include "ui/LocalDates.h"

#include "ui/EventLayout.h"

#include <QLocale>
#include <QTimeZone>

#include <algorithm>

namespace MonthLayout {

std::pair<QDate, int> gridFor(const QDate &date, Qt::DayOfWeek firstDayOfWeek)
{
    if (!date.isValid())
        return {QDate(), 0};
    const QDate first(date.year(), date.month(), 1);
    const int back = (first.dayOfWeek() - int(firstDayOfWeek) + kDaysPerWeek) % kDaysPerWeek;
    return {first.addDays(-back), kGridDays};
}

int weekNumberOfRow(const QDate &rowFirst)
{
    const int toThursday = (int(Qt::Thursday) - rowFirst.dayOfWeek() + kDaysPerWeek) % kDaysPerWeek;
    return rowFirst.addDays(toThursday).weekNumber();
}

namespace {

// The date an all-day boundary names. Such times are midnights of their dates, normally in UTC
// (as the iCalendar reader gives them) but possibly shown in the event's zone or stored at local
// midnight; whichever reading is a midnight names the date. `exact` is false when none is.
QDate allDayDate(const QDateTime &time, bool *exact)
{
    const QTime midnight(0, 0);
    *exact = true;
    const QDateTime utc = time.toUTC();
    if (utc.time() == midnight)
        return utc.date();
    if (time.time() == midnight)
        return time.date();
    const QDateTime local = time.toLocalTime();
    if (local.time() == midnight)
        return local.date();
    *exact = false;
    return utc.date();
}

} // namespace

std::pair<QDate, QDate> coveredDays(const Event &occurrence)
{
    if (occurrence.is_all_day) {
        bool exact = true;
        const QDate first = allDayDate(occurrence.start_time, &exact);
        QDate last = first;
        if (occurrence.end_time) {
            const QDate end = allDayDate(*occurrence.end_time, &exact);
            // The end is exclusive when it is a midnight.
            last = exact ? end.addDays(-1) : end;
        }
        return {first, std::max(first, last)};
    }
    const QDate first = LocalDates::dateOf(occurrence.start_time);
    if (!occurrence.end_time || !(*occurrence.end_time > occurrence.start_time))
        return {first, first};
    // The end is exclusive: an event ending at midnight does not touch the next day.
    const QDate last = LocalDates::dateOf(occurrence.end_time->toMSecsSinceEpoch() - 1);
    return {first, std::max(first, last)};
}

QDateTime shiftAllDay(const QDateTime &time, int days)
{
    const QTime midnight(0, 0);
    const QDateTime utc = time.toUTC();
    if (utc.time() == midnight)
        return utc.addDays(days).toTimeZone(time.timeZone());
    if (time.time() == midnight)
        return time.addDays(days);
    return time.toLocalTime().addDays(days).toTimeZone(time.timeZone());
}

bool isBar(const Event &occurrence)
{
    if (occurrence.is_all_day)
        return true;
    if (!occurrence.end_time || occurrence.start_time.secsTo(*occurrence.end_time) < 24 * 3600)
        return false;
    const auto [first, last] = coveredDays(occurrence);
    return first != last;
}

namespace {

struct Span
{
    qsizetype index;
    QDate first;
    QDate last;
    bool bar;
    qint64 start; // ms since the epoch, for sorting without zone arithmetic
};

} // namespace

QList<WeekLayout> layoutWeeks(const QList<Event> &occurrences, const QDate &firstDay, int weeks)
{
    QList<WeekLayout> result;
    if (!firstDay.isValid() || weeks <= 0)
        return result;

    // Dates are worked out once; the zone conversions are the costly part.
    QList<Span> bars;
    QList<Span> chips;
    const QDate gridLast = firstDay.addDays(qint64(weeks) * kDaysPerWeek - 1);
    for (qsizetype i = 0; i < occurrences.size(); ++i) {
        const auto [first, last] = coveredDays(occurrences[i]);
        if (last < firstDay || first > gridLast)
            continue;
        const bool bar = isBar(occurrences[i]);
        (bar ? bars : chips).append(Span{i, first, last, bar, occurrences[i].start_time.toMSecsSinceEpoch()});
    }
    // Multi-day bars above single-day ones, each group by start; chips by start.
    const auto byStart = [](const Span &a, const Span &b) {
        return a.start < b.start;
    };
    std::stable_sort(bars.begin(), bars.end(), [&](const Span &a, const Span &b) {
        const bool aLong = a.first != a.last;
        const bool bLong = b.first != b.last;
        if (aLong != bLong)
            return aLong;
        return byStart(a, b);
    });
    std::stable_sort(chips.begin(), chips.end(), byStart);

    result.reserve(weeks);
    for (int w = 0; w < weeks; ++w) {
        WeekLayout week;
        week.firstDay = firstDay.addDays(qint64(w) * kDaysPerWeek);
        const QDate weekLast = week.firstDay.addDays(kDaysPerWeek - 1);

        QList<EventLayout::DayRangeItem> ranges;
        for (const Span &span : std::as_const(bars)) {
            if (span.last < week.firstDay || span.first > weekLast)
                continue;
            Placement placement;
            placement.index = span.index;
            placement.bar = true;
            placement.continuesBefore = span.first < week.firstDay;
            placement.continuesAfter = span.last > weekLast;
            placement.firstColumn = placement.continuesBefore ? 0 : int(week.firstDay.daysTo(span.first));
            placement.lastColumn = placement.continuesAfter ? kDaysPerWeek - 1 : int(week.firstDay.daysTo(span.last));
            week.items.append(placement);
            ranges.append({placement.firstColumn, placement.lastColumn});
        }
        const QList<int> lanes = EventLayout::packLanes(ranges);
        std::array<int, kDaysPerWeek> barLines{};
        for (qsizetype i = 0; i < week.items.size(); ++i) {
            Placement &placement = week.items[i];
            placement.line = lanes[i];
            for (int column = placement.firstColumn; column <= placement.lastColumn; ++column) {
                barLines[column] = std::max(barLines[column], placement.line + 1);
                ++week.itemCount[column];
            }
        }
        week.lineCount = barLines;

        for (const Span &span : std::as_const(chips)) {
            if (span.first < week.firstDay || span.first > weekLast)
                continue;
            Placement placement;
            placement.index = span.index;
            placement.firstColumn = placement.lastColumn = int(week.firstDay.daysTo(span.first));
            placement.line = week.lineCount[placement.firstColumn]++;
            ++week.itemCount[placement.firstColumn];
            week.items.append(placement);
        }
        result.append(week);
    }
    return result;
}

int visibleLines(const WeekLayout &week, int column, int capacity)
{
    if (capacity <= 0 || column < 0 || column >= kDaysPerWeek)
        return 0;
    return week.lineCount[column] <= capacity ? capacity : capacity - 1;
}

int hiddenItems(const WeekLayout &week, int column, int capacity)
{
    if (column < 0 || column >= kDaysPerWeek)
        return 0;
    const int visible = visibleLines(week, column, capacity);
    if (week.lineCount[column] <= visible)
        return 0;
    return int(std::count_if(week.items.cbegin(), week.items.cend(), [&](const Placement &placement) {
        return placement.firstColumn <= column && column <= placement.lastColumn && placement.line >= visible;
    }));
}

QString chipTime(const QTime &time, bool twentyFourHour)
{
    if (!time.isValid())
        return QString();
    if (twentyFourHour)
        return time.toString(QStringLiteral("H:mm"));
    const QLocale locale;
    const QString suffix = (time.hour() < 12 ? locale.amText() : locale.pmText()).toLower();
    const int hour = time.hour() % 12 == 0 ? 12 : time.hour() % 12;
    if (time.minute() == 0)
        return QString::number(hour) + suffix;
    return QString::number(hour) + QLatin1Char(':') + QStringLiteral("%1").arg(time.minute(), 2, 10, QLatin1Char('0'))
        + suffix;
}

} // namespace MonthLayout
