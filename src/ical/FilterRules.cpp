// SPDX-License-Identifier: GPL-3.0-or-later
#include "ical/FilterRules.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QJsonValue>

#include <algorithm>

namespace {

// The text entries of a list value; a single text counts as a one-entry list. Other entries and
// values are skipped. With `dropEmpty`, empty entries are skipped too: an empty "contains" text
// would match every event.
QStringList readTextList(const QJsonValue &value, bool dropEmpty)
{
    QStringList items;
    if (value.isString()) {
        if (!dropEmpty || !value.toString().isEmpty())
            items.append(value.toString());
        return items;
    }
    const QJsonArray array = value.toArray();
    for (const QJsonValue &entry : array) {
        if (entry.isString() && (!dropEmpty || !entry.toString().isEmpty()))
            items.append(entry.toString());
    }
    return items;
}

QString readText(const QJsonValue &value)
{
    return value.isString() ? value.toString() : QString();
}

bool readFlag(const QJsonValue &value)
{
    return value.isBool() && value.toBool();
}

int dayNumber(const QJsonValue &entry)
{
    if (!entry.isString())
        return 0;
    static const QStringList names
        = {QStringLiteral("mon"), QStringLiteral("tue"), QStringLiteral("wed"), QStringLiteral("thu"),
           QStringLiteral("fri"), QStringLiteral("sat"), QStringLiteral("sun")};
    return static_cast<int>(names.indexOf(entry.toString().toLower())) + 1;
}

// Unreadable entries become 0, which matches no day: a damaged list narrows the rule, never widens
// it. Null or a missing key means no day restriction.
QList<int> readDays(const QJsonValue &value)
{
    QList<int> days;
    if (value.isNull() || value.isUndefined())
        return days;
    if (!value.isArray()) {
        days.append(dayNumber(value));
        return days;
    }
    const QJsonArray array = value.toArray();
    days.reserve(array.size());
    for (const QJsonValue &entry : array)
        days.append(dayNumber(entry));
    return days;
}

// Not a JSON array: no limit (all calendars). A non-text entry names no calendar (the empty id).
QSet<QString> readCalendarIds(const QString &text)
{
    QSet<QString> ids;
    const QJsonDocument doc = QJsonDocument::fromJson(text.toUtf8());
    if (!doc.isArray())
        return ids;
    const QJsonArray array = doc.array();
    for (const QJsonValue &entry : array)
        ids.insert(entry.isString() ? entry.toString() : QString(QLatin1String("")));
    return ids;
}

// The local start of an event, worked out once per event however many time rules look at it.
class LocalStart
{
public:
    explicit LocalStart(const QDateTime &start)
        : m_start(&start)
    { }

    bool isValid() const { return m_start->isValid(); }
    int dayOfWeek()
    {
        resolve();
        return m_dayOfWeek;
    }
    const QString &hhmm()
    {
        resolve();
        return m_hhmm;
    }

private:
    void resolve()
    {
        if (m_resolved)
            return;
        m_resolved = true;
        const QDateTime local = m_start->toLocalTime();
        m_dayOfWeek = local.date().dayOfWeek();
        const QTime time = local.time();
        const int h = time.hour();
        const int m = time.minute();
        const QChar digits[5] = {QLatin1Char(char('0' + h / 10)), QLatin1Char(char('0' + h % 10)), QLatin1Char(':'),
                                 QLatin1Char(char('0' + m / 10)), QLatin1Char(char('0' + m % 10))};
        m_hhmm = QString(digits, 5);
    }

    const QDateTime *m_start;
    bool m_resolved = false;
    int m_dayOfWeek = 0;
    QString m_hhmm;
};

bool containsAny(const QString &text, const QStringList &needles, Qt::CaseSensitivity cs)
{
    return std::any_of(needles.cbegin(), needles.cend(),
                       [&](const QString &needle) { return text.contains(needle, cs); });
}

bool matchesPattern(const PatternCondition &condition, const Event &event)
{
    const Qt::CaseSensitivity cs = condition.caseSensitive ? Qt::CaseSensitive : Qt::CaseInsensitive;
    for (const QString &exact : condition.titleExact) {
        if (event.title.compare(exact, cs) == 0)
            return true;
    }
    if (containsAny(event.title, condition.titleContains, cs))
        return true;
    if (!event.description.isEmpty() && containsAny(event.description, condition.descriptionContains, cs))
        return true;
    return !event.location.isEmpty() && containsAny(event.location, condition.locationContains, cs);
}

bool matchesTime(const TimeCondition &condition, const Event &event, LocalStart &start)
{
    if (condition.recurringOnly && event.recurrence_rule.isEmpty())
        return false;
    if (condition.timeExact.isEmpty() && condition.rangeStart.isEmpty() && condition.rangeEnd.isEmpty()
        && condition.daysOfWeek.isEmpty())
        return false;
    // An unreadable start has no weekday (0), which an unknown day name would otherwise match.
    if (!start.isValid())
        return false;
    if (!condition.daysOfWeek.isEmpty() && !condition.daysOfWeek.contains(start.dayOfWeek()))
        return false;
    const QString &hhmm = start.hhmm();
    if (!condition.timeExact.isEmpty() && hhmm != condition.timeExact)
        return false;
    // Plain text comparison with both bounds inclusive, so a range that wraps midnight
    // ("22:00" to "02:00") matches nothing.
    if (!condition.rangeStart.isEmpty() && hhmm < condition.rangeStart)
        return false;
    if (!condition.rangeEnd.isEmpty() && hhmm > condition.rangeEnd)
        return false;
    return true;
}

bool matchesSpecific(const FilterRule &rule, const Event &event)
{
    // A rule that names no event targets nothing (not every event without a UID).
    if (rule.event_uid.isEmpty())
        return false;
    if (event.calendar_id == rule.event_calendar_id && event.uid == rule.event_uid)
        return true;
    return !event.provider_event_id.isEmpty() && event.provider_event_id == rule.event_uid;
}

bool matchesAllDay(const AllDayCondition &condition, const Event &event)
{
    return event.is_all_day && (!condition.recurringOnly || !event.recurrence_rule.isEmpty());
}

bool matches(const CompiledFilterRule &compiled, const Event &event, LocalStart &start)
{
    if (const auto *pattern = std::get_if<PatternCondition>(&compiled.condition))
        return matchesPattern(*pattern, event);
    if (const auto *time = std::get_if<TimeCondition>(&compiled.condition))
        return matchesTime(*time, event, start);
    if (std::holds_alternative<SpecificCondition>(compiled.condition))
        return matchesSpecific(compiled.rule, event);
    if (const auto *allDay = std::get_if<AllDayCondition>(&compiled.condition))
        return matchesAllDay(*allDay, event);
    return false;
}

} // namespace

std::optional<FilterCondition> parseConditions(const QString &conditionsText)
{
    const QJsonDocument doc = QJsonDocument::fromJson(conditionsText.toUtf8());
    if (!doc.isObject())
        return std::nullopt;
    const QJsonObject object = doc.object();
    const QString kind = readText(object.value(QLatin1String("runtimeType")));

    if (kind == QLatin1String("pattern")) {
        PatternCondition condition;
        condition.titleContains = readTextList(object.value(QLatin1String("titleContains")), true);
        condition.titleExact = readTextList(object.value(QLatin1String("titleExact")), false);
        condition.descriptionContains = readTextList(object.value(QLatin1String("descriptionContains")), true);
        condition.locationContains = readTextList(object.value(QLatin1String("locationContains")), true);
        condition.caseSensitive = readFlag(object.value(QLatin1String("caseSensitive")));
        return condition;
    }
    if (kind == QLatin1String("time")) {
        TimeCondition condition;
        condition.timeExact = readText(object.value(QLatin1String("timeExact")));
        const QJsonObject range = object.value(QLatin1String("timeRange")).toObject();
        condition.rangeStart = readText(range.value(QLatin1String("start")));
        condition.rangeEnd = readText(range.value(QLatin1String("end")));
        condition.daysOfWeek = readDays(object.value(QLatin1String("daysOfWeek")));
        condition.recurringOnly = readFlag(object.value(QLatin1String("recurringOnly")));
        return condition;
    }
    if (kind == QLatin1String("specific"))
        return SpecificCondition{};
    if (kind == QLatin1String("allDay")) {
        AllDayCondition condition;
        condition.recurringOnly = readFlag(object.value(QLatin1String("recurringOnly")));
        return condition;
    }
    return std::nullopt;
}

QList<CompiledFilterRule> compileFilterRules(const QList<FilterRule> &rules)
{
    QList<CompiledFilterRule> compiled;
    compiled.reserve(rules.size());
    for (const FilterRule &rule : rules) {
        if (!rule.enabled || rule.deleted_at)
            continue;
        std::optional<FilterCondition> condition = parseConditions(rule.conditions);
        if (!condition)
            continue;
        compiled.append(CompiledFilterRule{rule, std::move(*condition), readCalendarIds(rule.calendar_ids)});
    }
    // Deliberately unstable: rules of equal priority have no defined order among themselves.
    std::sort(compiled.begin(), compiled.end(), [](const CompiledFilterRule &a, const CompiledFilterRule &b) {
        return a.rule.priority < b.rule.priority;
    });
    return compiled;
}

FilterResult applyFilterRules(const QList<Event> &events, const QList<FilterRule> &rules)
{
    FilterResult result;
    const QList<CompiledFilterRule> compiled = compileFilterRules(rules);
    if (compiled.isEmpty()) {
        result.events = events;
        return result;
    }
    // Copying events is the dominant cost on long lists, so the visible list shares the input
    // until the first hidden event and is built only from then on.
    qsizetype firstHidden = -1;
    for (qsizetype i = 0; i < events.size(); ++i) {
        const Event &event = events.at(i);
        LocalStart start(event.start_time);
        const CompiledFilterRule *decider = nullptr;
        for (const CompiledFilterRule &rule : compiled) {
            if (!rule.calendarIds.isEmpty() && !rule.calendarIds.contains(event.calendar_id))
                continue;
            if (matches(rule, event, start)) {
                decider = &rule;
                break;
            }
        }
        if (decider && decider->rule.action == QLatin1String("hide")) {
            if (firstHidden < 0) {
                firstHidden = i;
                result.events.reserve(events.size() - 1);
                result.events.append(events.cbegin(), events.cbegin() + i);
            }
            // A hidden event never reminds, whatever the rule's suppress_reminders says.
            ++result.hiddenCount;
            result.suppressedReminderIds.insert(event.id);
            continue;
        }
        if (firstHidden >= 0)
            result.events.append(event);
        if (decider && decider->rule.action == QLatin1String("dim")) {
            result.dimmedIds.insert(event.id);
            if (decider->rule.suppress_reminders)
                result.suppressedReminderIds.insert(event.id);
        }
    }
    if (firstHidden < 0)
        result.events = events;
    return result;
}
