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

struct FilterResult
{
    QList<Event> events; // the visible events, in input order
    QSet<QString> dimmedIds;
    qint32 hiddenCount = 0;
    QSet<QString> suppressedReminderIds;
};

// Reads a rule's `conditions` JSON; nothing when it is not an object of a known "runtimeType".
std::optional<FilterCondition> parseConditions(const QString &conditionsText);
// The enabled, live and readable rules, sorted by priority (an unstable sort, on purpose).
QList<CompiledFilterRule> compileFilterRules(const QList<FilterRule> &rules);
FilterResult applyFilterRules(const QList<Event> &events, const QList<FilterRule> &rules);
