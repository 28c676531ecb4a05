// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

// The repeat choices of the event form and the rule text each one stands for.
namespace RepeatPresets {

enum class Preset {
    None, // ""
    Daily, // "FREQ=DAILY"
    Weekdays, // "FREQ=WEEKLY;BYDAY=MO,TU,WE,TH,FR"
    Weekly, // "FREQ=WEEKLY"
    Monthly, // "FREQ=MONTHLY"
    Yearly, // "FREQ=YEARLY"
    Custom, // any other rule, edited as text
};

// The rule text of a preset; empty for None and Custom.
QString ruleOf(Preset preset);
// The preset whose rule is exactly `rule` (letter case and a trailing ";" aside), Custom for any
// other non-empty rule, None for an empty one.
Preset presetOf(const QString &rule);
// A rule typed by the user, trimmed, without an "RRULE:" prefix.
QString normalizedCustomRule(const QString &text);
// True when the rule's FREQ is one the expansion repeats on (DAILY, WEEKLY, MONTHLY, YEARLY).
bool isRepeatingRule(const QString &rule);

} // namespace RepeatPresets
