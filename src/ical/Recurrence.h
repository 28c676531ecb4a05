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
// kMaxOccurrences counted from the series start, COUNT counted from the series start.
QList<QDateTime> occurrenceStarts(const RecurrenceRule &rule, const QDateTime &seriesStart, const QDateTime &rangeEnd);
// The occurrences of one master inside the span; for a record without a rule, the record itself
// when it touches the span.
QList<Event> expandSeries(const Event &master, const QDateTime &rangeStart, const QDateTime &rangeEnd);
// The list for display: all singles in input order, then each master's occurrences in order with
// overrides put in place of the occurrence they replace. Masters themselves are never returned.
QList<Event> expandEvents(const QList<Event> &events, const QDateTime &rangeStart, const QDateTime &rangeEnd);
// The rule with COUNT removed and UNTIL set to lastAllowed (UTC, "yyyyMMddTHHmmssZ").
QString truncateRule(const QString &ruleText, const QDateTime &lastAllowed);
// Edits an occurrence and all that follow: the master ends just before splitAt, and a new series
// starting at newStart is inserted. Returns the new series, or nothing when a write failed.
std::optional<Event> splitSeries(EventRepository &repository, const Event &master, const QDateTime &splitAt,
                                 const QDateTime &newStart, const std::optional<QDateTime> &newEnd);

} // namespace Recurrence
