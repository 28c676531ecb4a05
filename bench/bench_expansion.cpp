// SPDX-License-Identifier: GPL-3.0-or-later
// Times the expansion of the recurring masters of a benchmark calendar over a week and a month, as
// every redraw of a view does, with the program's expansion and with the walk from each series'
// start for comparison.
//
//   bench_expansion --ics FILE     an iCalendar file, read with the program's reader
//   bench_expansion --rows FILE    rows of the storage benchmark (tab-separated: id, calendar_id,
//                                  uid, title, start_time, end_time, recurrence_rule, deleted_at,
//                                  raw_icalendar); times in ISO 8601, a bare date is an all-day start
//   [--repeat N]                   calls timed per span and method (default 301)
//
// Times are per call, freeing the result included, as wall-clock and as thread CPU time; the first
// call of each kind is not timed.

#include "ical/ICal.h"
#include "ical/Recurrence.h"
#include "ical/RecurrenceExpansion.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QElapsedTimer>
#include <QFile>
#include <QTextStream>
#include <QTimeZone>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <vector>

namespace {

QDateTime readTime(const QString &text, bool *dateOnly)
{
    *dateOnly = text.size() == 10;
    if (*dateOnly)
        return QDateTime(QDate::fromString(text, Qt::ISODate), QTime(0, 0), Qt::UTC);
    return QDateTime::fromString(text, Qt::ISODate);
}

// The live recurring masters of the rows file.
QList<Event> readMasters(const QString &path, int *rowCount)
{
    QList<Event> masters;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "cannot read %s\n", qPrintable(path));
        return masters;
    }
    *rowCount = 0;
    while (!file.atEnd()) {
        const QString line = QString::fromUtf8(file.readLine()).chopped(1);
        const QStringList columns = line.split(u'\t');
        if (columns.size() < 9)
            continue;
        ++*rowCount;
        if (columns.at(6).isEmpty() || !columns.at(7).isEmpty())
            continue;
        Event event;
        event.id = columns.at(0);
        event.calendar_id = columns.at(1);
        event.uid = columns.at(2);
        event.title = columns.at(3);
        bool dateOnly = false;
        event.start_time = readTime(columns.at(4), &dateOnly);
        event.is_all_day = dateOnly;
        if (!columns.at(5).isEmpty())
            event.end_time = readTime(columns.at(5), &dateOnly);
        event.recurrence_rule = columns.at(6);
        event.raw_icalendar = columns.at(8).toUtf8();
        masters.append(event);
    }
    return masters;
}

// The recurring masters of an iCalendar file (overridden instances left out).
QList<Event> readIcsMasters(const QString &path, int *eventCount)
{
    QList<Event> masters;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "cannot read %s\n", qPrintable(path));
        return masters;
    }
    const QList<Event> events = ICal::parseEvents(file.readAll());
    *eventCount = int(events.size());
    for (const Event &event : events) {
        if (!event.recurrence_rule.isEmpty() && event.recurrence_id.isEmpty())
            masters.append(event);
    }
    return masters;
}

struct Timing
{
    double medianMs = 0;
    double minMs = 0;
    double medianCpuMs = 0;
    qsizetype occurrences = 0;
};

// CPU time of this thread: unlike the wall clock, not stretched when other processes share the cores.
double threadCpuMs()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return double(now.tv_sec) * 1e3 + double(now.tv_nsec) / 1e6;
}

double median(std::vector<double> &samples)
{
    std::sort(samples.begin(), samples.end());
    return samples[samples.size() / 2];
}

template<typename Expand>
Timing timeCalls(int repeat, Expand &&expand)
{
    // One call first, so that one-time set-up (zone tables) is not counted.
    Timing timing;
    timing.occurrences = expand().size();
    std::vector<double> samples;
    std::vector<double> cpuSamples;
    samples.reserve(std::size_t(repeat));
    cpuSamples.reserve(std::size_t(repeat));
    QElapsedTimer timer;
    for (int i = 0; i < repeat; ++i) {
        qsizetype occurrences = 0;
        const double cpuStart = threadCpuMs();
        timer.start();
        {
            // Freeing the list is part of the cost of a redraw, so it is timed too.
            const QList<Event> result = expand();
            occurrences = result.size();
        }
        samples.push_back(double(timer.nsecsElapsed()) / 1e6);
        cpuSamples.push_back(threadCpuMs() - cpuStart);
        if (occurrences != timing.occurrences)
            std::fprintf(stderr, "occurrence count changed between calls\n");
    }
    timing.medianMs = median(samples);
    timing.minMs = samples.front();
    timing.medianCpuMs = median(cpuSamples);
    return timing;
}

void runSpan(const char *name, const QList<Event> &masters, const QDateTime &rangeStart, const QDateTime &rangeEnd,
             int repeat)
{
    // What the range query hands over: the masters that start before the span end.
    QList<Event> rows;
    for (const Event &master : masters) {
        if (master.start_time < rangeEnd)
            rows.append(master);
    }
    const Timing fast = timeCalls(repeat, [&] { return Recurrence::expandEvents(rows, rangeStart, rangeEnd); });
    const int walkRepeat = std::max(5, repeat / 10);
    const Timing walk = timeCalls(walkRepeat, [&] {
        return RecurrenceExpansion::expandEvents(rows, rangeStart, rangeEnd,
                                                 RecurrenceExpansion::Method::WalkFromStart);
    });
    const bool same = Recurrence::expandEvents(rows, rangeStart, rangeEnd)
        == RecurrenceExpansion::expandEvents(rows, rangeStart, rangeEnd, RecurrenceExpansion::Method::WalkFromStart);

    std::printf("%s %s .. %s: %lld masters in, %lld occurrences out\n", name,
                qPrintable(rangeStart.toString(Qt::ISODate)), qPrintable(rangeEnd.toString(Qt::ISODate)),
                static_cast<long long>(rows.size()), static_cast<long long>(fast.occurrences));
    std::printf("  expandEvents (skipping ahead): median %.3f ms (CPU %.3f ms), min %.3f ms over %d calls\n",
                fast.medianMs, fast.medianCpuMs, fast.minMs, repeat);
    std::printf("  walk from each series start:   median %.3f ms (CPU %.3f ms), min %.3f ms over %d calls\n",
                walk.medianMs, walk.medianCpuMs, walk.minMs, walkRepeat);
    std::printf("  speed-up %.1fx, results identical: %s\n", walk.medianMs / fast.medianMs, same ? "yes" : "NO");
}

} // namespace

int main(int argc, char **argv)
{
    QCoreApplication app(argc, argv);
    QString rowsPath;
    QString icsPath;
    int repeat = 301;
    const QStringList arguments = app.arguments();
    for (qsizetype i = 1; i < arguments.size(); ++i) {
        if (arguments.at(i) == u"--rows" && i + 1 < arguments.size())
            rowsPath = arguments.at(++i);
        else if (arguments.at(i) == u"--ics" && i + 1 < arguments.size())
            icsPath = arguments.at(++i);
        else if (arguments.at(i) == u"--repeat" && i + 1 < arguments.size())
            repeat = std::max(1, arguments.at(++i).toInt());
    }
    if (rowsPath.isEmpty() == icsPath.isEmpty()) {
        std::fprintf(stderr, "usage: bench_expansion --ics FILE | --rows FILE [--repeat N]\n");
        return 2;
    }

    int recordCount = 0;
    const QList<Event> masters
        = icsPath.isEmpty() ? readMasters(rowsPath, &recordCount) : readIcsMasters(icsPath, &recordCount);
    if (masters.isEmpty())
        return 1;
    std::printf("bench_expansion: %d %s, %lld recurring masters (%s)\n", recordCount,
                icsPath.isEmpty() ? "rows" : "events", static_cast<long long>(masters.size()),
                qPrintable(icsPath.isEmpty() ? rowsPath : icsPath));

    const QDateTime week(QDate(2024, 7, 1), QTime(0, 0), Qt::UTC);
    runSpan("week", masters, week, week.addDays(7), repeat);
    runSpan("month", masters, week, week.addMonths(1), repeat);
    return 0;
}
