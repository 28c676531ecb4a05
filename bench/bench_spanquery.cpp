// SPDX-License-Identifier: GPL-3.0-or-later
// What a calendar view pays to show a span: the range query, the expansion of the recurring
// series and the filter rules, over a large imported calendar.
//
//   bench_spanquery [FILE.ics] [ROUNDS]   (defaults: /work/data/bench100k.ics, 5 rounds)
#include "storage/AccountRepository.h"
#include "storage/CalendarRepository.h"
#include "storage/Database.h"
#include "storage/EventImport.h"
#include "storage/EventRepository.h"
#include "storage/FilterRuleRepository.h"
#include "storage/SpanQuery.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QLoggingCategory>
#include <QTemporaryDir>
#include <QTimeZone>

#include <algorithm>
#include <cstdio>
#include <ctime>

namespace {

FilterRule makeRule(int priority, const QString &conditions, const QString &action)
{
    FilterRule rule;
    rule.id = QStringLiteral("rule-%1").arg(priority);
    rule.name = rule.id;
    rule.priority = priority;
    rule.conditions = conditions;
    rule.action = action;
    return rule;
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false\n*.info=false"));
    const QStringList args = app.arguments();
    const QString path = args.size() > 1 ? args.at(1) : QStringLiteral("/work/data/bench100k.ics");
    const int rounds = args.size() > 2 ? std::max(1, args.at(2).toInt()) : 5;

    QTemporaryDir dir;
    Database database;
    if (!database.open(dir.filePath(QStringLiteral("calendar.db"))))
        return 1;
    database.migrate();
    Account account;
    account.id = QStringLiteral("local");
    account.name = QStringLiteral("Local");
    account.type = QStringLiteral("kettlebrook");
    Calendar calendar;
    calendar.id = QStringLiteral("bench");
    calendar.account_id = account.id;
    calendar.name = QStringLiteral("Bench");
    calendar.url = QStringLiteral("local://calendar/bench");
    if (!AccountRepository(&database).insert(account) || !CalendarRepository(&database).insert(calendar))
        return 1;
    EventRepository events(&database);
    FilterRuleRepository rules(&database);
    QElapsedTimer timer;
    timer.start();
    const EventImport::Result imported = EventImport::importFile(database, events, path, calendar.id);
    if (!imported.error.isEmpty()) {
        std::fprintf(stderr, "%s\n", qPrintable(imported.error));
        return 1;
    }
    std::printf("imported %d events from %s in %.1f s\n", imported.imported, qPrintable(path),
                timer.elapsed() / 1000.0);

    rules.insert(makeRule(10, QStringLiteral(R"({"runtimeType":"pattern","titleContains":["review","standup"]})"),
                          QStringLiteral("dim")));
    rules.insert(
        makeRule(20, QStringLiteral(R"({"runtimeType":"time","daysOfWeek":["sat","sun"]})"), QStringLiteral("hide")));
    rules.insert(
        makeRule(30, QStringLiteral(R"({"runtimeType":"allDay","recurringOnly":true})"), QStringLiteral("dim")));

    const SpanQuery query(events, rules);
    const QDateTime monday(QDate(2024, 6, 10), QTime(0, 0), QTimeZone("Europe/Berlin"));
    const struct
    {
        const char *name;
        QDateTime start;
        QDateTime end;
    } spans[] = {
        {"day", monday, monday.addDays(1)},
        {"week", monday, monday.addDays(7)},
        {"month (6 weeks)", monday.addDays(-7), monday.addDays(35)},
        {"year", QDateTime(QDate(2024, 1, 1), QTime(0, 0), monday.timeZone()),
         QDateTime(QDate(2025, 1, 1), QTime(0, 0), monday.timeZone())},
    };
    for (const auto &span : spans) {
        QList<qint64> times;
        QList<std::clock_t> cpuTimes;
        SpanContents contents;
        for (int round = 0; round < rounds; ++round) {
            const std::clock_t cpuStart = std::clock();
            timer.restart();
            contents = query.contents(span.start, span.end);
            times.append(timer.nsecsElapsed() / 1000);
            cpuTimes.append(std::clock() - cpuStart);
        }
        std::sort(times.begin(), times.end());
        std::sort(cpuTimes.begin(), cpuTimes.end());
        std::printf("%-16s wall median %8.2f ms  cpu median %8.2f ms  shown %6lld  hidden %5d  dimmed ids %4lld\n",
                    span.name, times.at(times.size() / 2) / 1000.0,
                    cpuTimes.at(cpuTimes.size() / 2) * 1000.0 / CLOCKS_PER_SEC, qlonglong(contents.occurrences.size()),
                    contents.hiddenCount, qlonglong(contents.dimmedIds.size()));
    }
    return 0;
}
