// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/Event.h"

#include <QDate>
#include <QDateTime>
#include <QList>
#include <QString>
#include <QTime>

#include <optional>

// The quick-add parser: one line of English ("Lunch with Sam tomorrow at 12:30 for 45 min") into
// a title, a start, an end and an all-day flag. Pure: it reads only the text and the reference
// time handed to it. What it recognises is cut out of the text; what is left is the title.
namespace NLParser {

// A part of the text consumed by a matcher: start position and length of the whole match, in
// UTF-16 code units of the text the matcher was given.
struct Span
{
    qsizetype start = 0;
    qsizetype length = 0;
};

struct DateMatch
{
    QDate date; // invalid for an impossible date ("jan 40") or one out of QDate's range
    QList<Span> spans;
};

struct TimeMatch
{
    QTime start; // invalid for an impossible time ("at 25", "at 9:75")
    QTime end; // set only for a range ("from 9 to 11am"); invalid when impossible
    bool isRange = false;
    QList<Span> spans;
};

struct DurationMatch
{
    int minutes = 0; // truncated ("for 2.9 min" is 2); -1 when the count does not fit in an int
    QList<Span> spans;
};

struct ParseResult
{
    QString title; // what no matcher consumed, whitespace simplified; may be empty
    // In the time zone of the reference time (UTC, a fixed offset, a zone, or local time).
    // Invalid when the text names a date or time that does not exist ("Party jan 40", "at 25").
    QDateTime start;
    // Absent only for empty input. Exclusive; invalid when the start is, or when the duration
    // cannot be counted.
    std::optional<QDateTime> end;
    bool allDay = false; // a date was recognised but no time
    bool hasTime = false; // a time or a time range was recognised
};

// The matchers. Each tries its patterns in a fixed order; the first pattern that matches anywhere
// in the text wins and only its first match is used. Matching ignores letter case. A matcher's
// span is its whole match.
//
// Dates: today / tomorrow / yesterday / tonight; "next WEEKDAY" (strictly after today); "[on]
// WEEKDAY" (today or later); "in N days|weeks"; "[on] MONTH DAY" in today's year, or the next year
// when that date has passed. Weekdays and months may be abbreviated.
std::optional<DateMatch> matchDate(const QString &text, const QDate &today);
// Times: "from H[:MM][am|pm] to H[:MM][am|pm]" (a side without a marker borrows the other's);
// [at] noon; [at] midnight; "at H[:MM][am|pm]" (no marker: a 24-hour value); "at HHMM" (skipped
// when not a clock time, as "at 2460"); "H[:MM] am|pm".
std::optional<TimeMatch> matchTime(const QString &text);
// Durations: "for N[.F] min|mins|minute|minutes|h|hr|hrs|hour|hours".
std::optional<DurationMatch> matchDuration(const QString &text);
// The reference time without seconds, moved forward to the next half or full hour (14:10 gives
// 14:30, 14:40 gives 15:00, 14:30:45 gives 14:30). Invalid for an invalid reference.
QDateTime defaultStart(const QDateTime &now);
// Reads one line against the reference time `now` (its date and its time zone are used). Empty
// text: empty title, defaultStart(now), no end. A date without a time is all-day, from 00:00 to
// the next day's 00:00; a time range ends on the same day, or the next day when its end is not
// after its start; otherwise the end is the start plus the duration (default 60 minutes). With
// neither date nor time the start is defaultStart(now). A wall-clock time that the zone skips (the
// night the clocks go forward) is read with the offset before the jump, so 02:30 becomes 03:30.
// The title is the text outside every match, whitespace simplified, without a leading or trailing
// "on", "at" or "for". Never fails: see ParseResult.
ParseResult parse(const QString &text, const QDateTime &now);

// Why a non-empty line cannot become an event, as one translated sentence for the user without a
// final period ('"jan 40" is not a valid date'): an impossible date or time, a duration too long to
// count, a start or end outside the years 1 to 9999 (ISO 8601 text, in which events are stored,
// has four-digit years), or an invalid reference time. Empty when the line is fine, and for an
// empty line (nothing to make, nothing wrong).
QString problem(const QString &line, const QDateTime &now);

// A new event from a quick-add line, as the quick-add box makes it: parsed against `now`, a new
// identity (id = uid, a fresh UUID), created = last_modified = Clock::nowUtc(), "pending", time
// zone "UTC", and the text of ICal::buildEventIcs. The title is the parsed title, or the whole
// line (trimmed, whitespace simplified) when nothing is left of it.
//
// `now` is the reference time of the line: callers pass Clock::nowLocal() (the desktop program) or
// the time they were given (kbcal --now); the parser itself never reads the clock for it.
//
// Nothing when the trimmed line is empty or when problem(line, now) is not empty: an event is
// never made with an invalid start or end. Callers show problem() to the user.
std::optional<Event> eventFromLine(const QString &line, const QString &calendarId, const QDateTime &now);

} // namespace NLParser
