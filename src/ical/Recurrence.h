// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/Event.h"

#include <QDateTime>
#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

#include <optional>

class EventRepository;

// Recurrence expansion: turns the rows a range query returned (singles, series masters and
// overridden instances) into the concrete occurrences inside a span. A deliberately small subset
// of RFC 5545 rules: FREQ DAILY, WEEKLY, MONTHLY or YEARLY with INTERVAL, COUNT, UNTIL and plain
// weekday BYDAY lists. Spans are half-open: [rangeStart, rangeEnd).
//
// Days are stepped on the series start's own clock, keeping its wall-clock time in its zone: a
// 09:00 Berlin series stays at 09:00 through both clock changes. A wall-clock time the zone skips
// (02:30 on the night clocks go forward) falls as far after the gap as it was into it (03:30 that
// day only); one the zone passes twice is the earlier of the two instants. Expansion skips the
// candidates that end before the span arithmetically, so its cost does not grow with the age of
// a series; the result is the same as walking every candidate from the series start.
namespace Recurrence {

// The most occurrence starts generated for one series, counted from the series start.
inline constexpr int kMaxOccurrences = 10000;
// The length of an occurrence of a master that has no end.
inline constexpr qint64 kDefaultDurationMs = 3600000;

struct RecurrenceRule
{
    QString freq; // upper-cased FREQ
    qint32 interval = 1; // never below 1
    qint32 count = 0; // 0: no count limit
    QDateTime until; // always UTC; invalid when absent
    QStringList byDay; // upper-cased BYDAY items
};

RecurrenceRule parseRule(const QString &text);
// Instants (milliseconds since the epoch) of a JSON array of "yyyyMMdd" or "yyyyMMddTHHmmss[Z]".
QSet<qint64> parseExceptionDates(const QString &text);
// The starts of a series from its first occurrence up to (not including) rangeEnd, at most
// kMaxOccurrences counted from the series start, COUNT counted from the series start. Each start is
// in the series start's time spec. Any other FREQ (or none) gives the series start alone, wherever it
// lies; an invalid series start or span end gives nothing.
QList<QDateTime> occurrenceStarts(const RecurrenceRule &rule, const QDateTime &seriesStart, const QDateTime &rangeEnd);
// The occurrences of one master inside the span, in order: copies of the master with start, end
// (start plus the master's duration, one hour without an end) and recurrence_id (the start in UTC,
// "yyyyMMddTHHmmssZ") replaced; starts among the exception dates (exact instants) are left out. An
// occurrence is inside when it starts before rangeEnd and ends after rangeStart. For a record
// without a rule, the record itself when it touches the span. An invalid span end admits nothing;
// an invalid span start bounds nothing.
QList<Event> expandSeries(const Event &master, const QDateTime &rangeStart, const QDateTime &rangeEnd);
// The list for display: all singles in input order (not filtered: the range query already did),
// then each master's occurrences in order with overrides (master_event_uid and recurrence_id set)
// put in place of the occurrence they replace. Masters themselves are never returned, and an
// override shows only in place of an occurrence generated inside the span.
QList<Event> expandEvents(const QList<Event> &events, const QDateTime &rangeStart, const QDateTime &rangeEnd);
// The rule with COUNT removed and UNTIL set to lastAllowed (UTC, "yyyyMMddTHHmmssZ").
QString truncateRule(const QString &ruleText, const QDateTime &lastAllowed);
// Edits an occurrence and all that follow: the master ends just before splitAt, and a new series
// starting at newStart is inserted. Returns the new series, or nothing when a write failed.
std::optional<Event> splitSeries(EventRepository &repository, const Event &master, const QDateTime &splitAt,
                                 const QDateTime &newStart, const std::optional<QDateTime> &newEnd);

} // namespace Recurrence
