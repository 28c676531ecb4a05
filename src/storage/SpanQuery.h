// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/Event.h"
#include "storage/FilterRule.h"

#include <QDateTime>
#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

class EventRepository;
class FilterRuleRepository;

// What one span of the calendar shows.
struct SpanContents
{
    QDateTime start; // the span, in UTC: [start, end)
    QDateTime end;
    // The visible occurrences, by start instant; occurrences that start at the same instant keep
    // the expansion order (single events first, then each series in the order of its master).
    QList<Event> occurrences;
    QSet<QString> dimmedIds; // event ids to draw dimmed
    QSet<QString> suppressedReminderIds; // event ids whose reminders are not shown
    qint32 hiddenCount = 0; // occurrences removed by the filter rules
};

// Answers "what does this span show" for every component that draws a span of time (the
// calendar views, the agenda, kbcal agenda): the stored events that touch the span, recurring
// series expanded into their occurrences with overrides in place, passed through the enabled
// filter rules. One call reads the rows of the span and the rules once; it keeps no state, so a
// caller may hold one instance and ask for as many spans as it caches.
class SpanQuery
{
public:
    // Both repositories must outlive the query.
    SpanQuery(const EventRepository &events, const FilterRuleRepository &rules);

    // The contents of [start, end) in the given calendars (empty: every calendar). The bounds may
    // be in any zone; they are compared as instants. An empty or inverted span shows nothing.
    SpanContents contents(const QDateTime &start, const QDateTime &end, const QStringList &calendarIds = {}) const;

    // The part after the database: `rows` are stored events (singles, series masters and
    // overrides) of at least the span, `rules` any list of filter rules. Singles that do not touch
    // the span are dropped here, so the rows may come from a wider query.
    static SpanContents fromRows(const QList<Event> &rows, const QList<FilterRule> &rules, const QDateTime &start,
                                 const QDateTime &end);

    // How far the database query reaches beyond the span on each side. Stored times keep their
    // own UTC offset and the query compares them as text, so a row near an edge could otherwise
    // be missed by up to the largest offset (14 hours).
    static constexpr qint64 kQueryMarginSeconds = 24 * 3600;

private:
    const EventRepository &m_events;
    const FilterRuleRepository &m_rules;
};
