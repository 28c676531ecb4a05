// SPDX-License-Identifier: GPL-3.0-or-later
// Time of one filter pass over a large list of events with a realistic set of rules.
//
//   bench_filterrules [EVENTS] [ROUNDS]   (defaults: 100000 events, 5 rounds)
#include "ical/FilterRules.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTimeZone>

#include <algorithm>
#include <cstdio>
#include <ctime>

namespace {

QList<Event> makeEvents(int count)
{
    static const char *const titles[] = {"Standup", "Lunch with Sam", "1:1 with Alex", "Gym",      "Sprint review",
                                         "Dentist", "Focus time",     "Team offsite",  "Call mum", "Public Holiday"};
    const QDateTime base(QDate(2024, 1, 1), QTime(0, 0), QTimeZone::utc());
    QList<Event> events;
    events.reserve(count);
    for (int i = 0; i < count; ++i) {
        Event event;
        event.id = QStringLiteral("event-%1").arg(i);
        event.uid = event.id;
        event.calendar_id = QStringLiteral("calendar-%1").arg(i % 7);
        event.title = QString::fromLatin1(titles[i % 10]);
        event.description = i % 3 == 0 ? QStringLiteral("Agenda: notes, decisions, follow-ups") : QString();
        event.location = i % 4 == 0 ? QStringLiteral("Room %1").arg(i % 12) : QString();
        event.start_time = base.addSecs(qint64(i) * 1800);
        event.end_time = event.start_time.addSecs(3600);
        event.is_all_day = i % 10 == 9;
        if (i % 5 == 0)
            event.recurrence_rule = QStringLiteral("FREQ=WEEKLY");
        events.append(event);
    }
    return events;
}

FilterRule makeRule(int priority, const QString &conditions, const QString &action, const QString &calendars = {})
{
    FilterRule rule;
    rule.id = QStringLiteral("rule-%1").arg(priority);
    rule.name = rule.id;
    rule.priority = priority;
    rule.conditions = conditions;
    rule.action = action;
    if (!calendars.isEmpty())
        rule.calendar_ids = calendars;
    return rule;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    const QStringList args = app.arguments();
    const int count = args.size() > 1 ? args.at(1).toInt() : 100000;
    const int rounds = args.size() > 2 ? args.at(2).toInt() : 5;

    const QList<Event> events = makeEvents(count);
    const QList<FilterRule> rules = {
        makeRule(10, QStringLiteral(R"({"runtimeType":"pattern","titleContains":["dentist","doctor"]})"),
                 QStringLiteral("dim")),
        makeRule(20, QStringLiteral(R"({"runtimeType":"pattern","titleExact":["Focus time"],"caseSensitive":true})"),
                 QStringLiteral("hide")),
        makeRule(30, QStringLiteral(R"({"runtimeType":"pattern","descriptionContains":["confidential"]})"),
                 QStringLiteral("hide")),
        makeRule(40, QStringLiteral(R"({"runtimeType":"pattern","locationContains":["Room 11"]})"),
                 QStringLiteral("dim"), QStringLiteral(R"(["calendar-1","calendar-2"])")),
        makeRule(50, QStringLiteral(R"({"runtimeType":"time","timeRange":{"start":"22:00","end":"23:59"}})"),
                 QStringLiteral("dim")),
        makeRule(60, QStringLiteral(R"({"runtimeType":"time","daysOfWeek":["sat","sun"],"recurringOnly":true})"),
                 QStringLiteral("hide")),
        makeRule(70, QStringLiteral(R"({"runtimeType":"time","timeExact":"07:30"})"), QStringLiteral("hide")),
        makeRule(80, QStringLiteral(R"({"runtimeType":"allDay","recurringOnly":true})"), QStringLiteral("dim")),
        makeRule(90, QStringLiteral(R"({"runtimeType":"specific"})"), QStringLiteral("hide")),
        makeRule(100, QStringLiteral(R"({"runtimeType":"pattern","titleContains":["zzz"]})"), QStringLiteral("hide")),
    };

    QList<qint64> times;
    QList<std::clock_t> cpuTimes;
    FilterResult result;
    for (int round = 0; round < rounds; ++round) {
        const std::clock_t cpuStart = std::clock();
        QElapsedTimer timer;
        timer.start();
        result = applyFilterRules(events, rules);
        times.append(timer.nsecsElapsed() / 1000);
        cpuTimes.append(std::clock() - cpuStart);
    }
    std::sort(times.begin(), times.end());
    std::sort(cpuTimes.begin(), cpuTimes.end());
    std::printf("filter rules: %d events, %lld rules, %d rounds\n", count, qlonglong(rules.size()), rounds);
    std::printf("  wall median %.1f ms, best %.1f ms; cpu median %.1f ms\n", times.at(times.size() / 2) / 1000.0,
                times.constFirst() / 1000.0, cpuTimes.at(cpuTimes.size() / 2) * 1000.0 / CLOCKS_PER_SEC);
    std::printf("  visible %lld, hidden %d, dimmed ids %lld, suppressed ids %lld\n", qlonglong(result.events.size()),
                result.hiddenCount, qlonglong(result.dimmedIds.size()), qlonglong(result.suppressedReminderIds.size()));
    return 0;
}
