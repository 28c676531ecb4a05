// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/RepeatPresets.h"

#include "ical/Recurrence.h"

namespace RepeatPresets {

QString ruleOf(Preset preset)
{
    switch (preset) {
    case Preset::Daily:
        return QStringLiteral("FREQ=DAILY");
    case Preset::Weekdays:
        return QStringLiteral("FREQ=WEEKLY;BYDAY=MO,TU,WE,TH,FR");
    case Preset::Weekly:
        return QStringLiteral("FREQ=WEEKLY");
    case Preset::Monthly:
        return QStringLiteral("FREQ=MONTHLY");
    case Preset::Yearly:
        return QStringLiteral("FREQ=YEARLY");
    case Preset::None:
    case Preset::Custom:
        break;
    }
    return QString();
}

Preset presetOf(const QString &rule)
{
    QString text = rule.trimmed().toUpper();
    while (text.endsWith(QLatin1Char(';')))
        text.chop(1);
    if (text.isEmpty())
        return Preset::None;
    for (Preset preset : {Preset::Daily, Preset::Weekdays, Preset::Weekly, Preset::Monthly, Preset::Yearly}) {
        if (text == ruleOf(preset))
            return preset;
    }
    return Preset::Custom;
}

QString normalizedCustomRule(const QString &text)
{
    QString rule = text.trimmed();
    if (rule.startsWith(QLatin1String("RRULE:"), Qt::CaseInsensitive))
        rule = rule.mid(6).trimmed();
    return rule;
}

bool isRepeatingRule(const QString &rule)
{
    const QString freq = Recurrence::parseRule(rule).freq;
    return freq == QLatin1String("DAILY") || freq == QLatin1String("WEEKLY") || freq == QLatin1String("MONTHLY")
        || freq == QLatin1String("YEARLY");
}

} // namespace RepeatPresets
