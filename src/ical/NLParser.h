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

// A part of the text consumed by a matcher: start position and length of the whole match.
struct Span
{
    qsizetype start = 0;
    qsizetype length = 0;
};

struct DateMatch
{
    QDate date;
    QList<Span> spans;
};

struct TimeMatch
{
    QTime start;
    QTime end;
    bool isRange = false;
    QList<Span> spans;
};

struct DurationMatch
{
    int minutes = 0;
    QList<Span> spans;
};

struct ParseResult
{
    QString title;
    QDateTime start; // in the time zone of the reference time
    std::optional<QDateTime> end; // absent only for empty input
    bool allDay = false;
    bool hasTime = false;
};

std::optional<DateMatch> matchDate(const QString &text, const QDate &today);
std::optional<TimeMatch> matchTime(const QString &text);
std::optional<DurationMatch> matchDuration(const QString &text);
// The reference time without seconds, moved forward to the next half or full hour.
QDateTime defaultStart(const QDateTime &now);
ParseResult parse(const QString &text, const QDateTime &now);

// A new event from a quick-add line, as the quick-add box makes it: parsed against `now`, a new
// identity (id = uid, a fresh UUID), "pending", and the text of ICal::buildEventIcs. Nothing when
// the trimmed line is empty.
std::optional<Event> eventFromLine(const QString &line, const QString &calendarId, const QDateTime &now);

} // namespace NLParser
