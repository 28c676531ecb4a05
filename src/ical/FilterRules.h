// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/Event.h"
#include "storage/FilterRule.h"

#include <QList>
#include <QSet>
#include <QString>
#include <QStringList>

#include <optional>
#include <variant>

// Filter rules: hide or dim events that match simple conditions, optionally limited to some
// calendars, and mark matching events as having their reminders suppressed. A pure function of
// the rules and the events.
//
// Rules are user data that may come from other devices, so reading them never fails: a rule
// whose `conditions` cannot be read is left out, and a damaged value narrows a rule rather than
// widening it. In the conditions JSON a single text is accepted where a list is expected; list
// entries that are not text are skipped, and so are empty "...Contains" entries (an empty text
// would be contained in every title). In "daysOfWeek" every entry that is not a known day name
// (mon .. sun, any letter case), a non-text entry included, becomes 0 and matches no day. A value
// of the wrong JSON type for a text or flag key counts as the key's default. A `calendar_ids`
// that is not a JSON array means all calendars; a non-text entry in it names no calendar.

struct PatternCondition
{
    QStringList titleContains;
    QStringList titleExact;
    QStringList descriptionContains;
    QStringList locationContains;
    bool caseSensitive = false;
};

struct TimeCondition
{
    QString timeExact; // "HH:mm"
    QString rangeStart; // "HH:mm", inclusive
    QString rangeEnd; // "HH:mm", inclusive
    QList<int> daysOfWeek; // 1 = Monday .. 7 = Sunday; 0 for an unknown name
    bool recurringOnly = false;
};

// Targets one event series through the rule's event_uid and event_calendar_id; a rule with an
// empty event_uid matches nothing.
struct SpecificCondition
{
};

struct AllDayCondition
{
    bool recurringOnly = false;
};

using FilterCondition = std::variant<PatternCondition, TimeCondition, SpecificCondition, AllDayCondition>;

struct CompiledFilterRule
{
    FilterRule rule;
    FilterCondition condition;
    QSet<QString> calendarIds; // empty: all calendars
};

// Ids are event ids, so the occurrences of one series share their marks.
struct FilterResult
{
    QList<Event> events; // the visible events, in input order
    QSet<QString> dimmedIds;
    qint32 hiddenCount = 0; // events removed
    QSet<QString> suppressedReminderIds; // every hidden event, and dimmed ones of suppressing rules
};

// Reads a rule's `conditions` JSON; nothing when it is not an object of a known "runtimeType".
std::optional<FilterCondition> parseConditions(const QString &conditionsText);
// The enabled, live and readable rules, sorted by priority (an unstable sort, on purpose).
QList<CompiledFilterRule> compileFilterRules(const QList<FilterRule> &rules);
// For each event the first applicable rule (in compiled order) that matches decides: "hide"
// removes it, "dim" keeps it dimmed, any other action keeps it unmarked. Without a matching rule
// the event stays unmarked.
FilterResult applyFilterRules(const QList<Event> &events, const QList<FilterRule> &rules);
