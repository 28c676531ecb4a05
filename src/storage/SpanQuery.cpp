// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/SpanQuery.h"

#include "ical/FilterRules.h"
#include "ical/Recurrence.h"
#include "storage/EventRepository.h"
#include "storage/FilterRuleRepository.h"

#include <algorithm>

namespace {

bool isOverride(const Event &event)
{
    return !event.master_event_uid.isEmpty() && !event.recurrence_id.isEmpty();
}

// The same test the expansion applies to a record without a rule.
bool singleTouchesSpan(const Event &event, const QDateTime &start, const QDateTime &end)
{
    if (!event.start_time.isValid() || !(event.start_time < end))
        return false;
    return !event.end_time || *event.end_time > start;
}

} // namespace

SpanQuery::SpanQuery(const EventRepository &events, const FilterRuleRepository &rules)
    : m_events(events)
    , m_rules(rules)
{ }

SpanContents SpanQuery::contents(const QDateTime &start, const QDateTime &end, const QStringList &calendarIds) const
{
    const QDateTime utcStart = start.toUTC();
    const QDateTime utcEnd = end.toUTC();
    if (!utcStart.isValid() || !utcEnd.isValid() || !(utcStart < utcEnd)) {
        SpanContents empty;
        empty.start = utcStart;
        empty.end = utcEnd;
        return empty;
    }
    const QList<Event> rows
        = m_events.getInRange(utcStart.addSecs(-kQueryMarginSeconds), utcEnd.addSecs(kQueryMarginSeconds), calendarIds);
    return fromRows(rows, m_rules.getEnabled(), utcStart, utcEnd);
}

SpanContents SpanQuery::fromRows(const QList<Event> &rows, const QList<FilterRule> &rules, const QDateTime &start,
                                 const QDateTime &end)
{
    SpanContents contents;
    contents.start = start.toUTC();
    contents.end = end.toUTC();
    if (!contents.start.isValid() || !contents.end.isValid() || !(contents.start < contents.end))
        return contents;

    // The expansion takes singles as given, so the ones the wider query brought in are held to
    // the span here; masters and overrides are placed by the expansion itself.
    QList<Event> candidates;
    candidates.reserve(rows.size());
    for (const Event &row : rows) {
        if (!row.recurrence_rule.isEmpty() || isOverride(row) || singleTouchesSpan(row, contents.start, contents.end))
            candidates.append(row);
    }

    QList<Event> occurrences = Recurrence::expandEvents(candidates, contents.start, contents.end);
    std::stable_sort(occurrences.begin(), occurrences.end(), [](const Event &a, const Event &b) {
        return a.start_time.toMSecsSinceEpoch() < b.start_time.toMSecsSinceEpoch();
    });

    FilterResult filtered = applyFilterRules(occurrences, rules);
    contents.occurrences = std::move(filtered.events);
    contents.dimmedIds = std::move(filtered.dimmedIds);
    contents.suppressedReminderIds = std::move(filtered.suppressedReminderIds);
    contents.hiddenCount = filtered.hiddenCount;
    return contents;
}
