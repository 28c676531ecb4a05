// SPDX-License-Identifier: GPL-3.0-or-later
// Speed and peak memory of the iCalendar readers over one large file (made by
// /work/shared/tools/gen_ics.py or any other calendar). Usage: bench_ical_parse FILE [RUNS]
#include "ical/ICal.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>

#include <algorithm>
#include <cstdio>
#include <ctime>

namespace {

// A "VmHWM:" or "VmRSS:" figure of /proc/self/status in KiB, -1 when unavailable.
qint64 statusKiB(const char *field)
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly))
        return -1;
    const QByteArray text = status.readAll();
    const qsizetype at = text.indexOf(field);
    if (at < 0)
        return -1;
    const qsizetype end = text.indexOf('\n', at);
    return text.mid(at + qstrlen(field), end - at - qstrlen(field)).replace("kB", "").trimmed().toLongLong();
}

double mib(qint64 bytes)
{
    return double(bytes) / (1024.0 * 1024.0);
}

double cpuMs()
{
    timespec now{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
    return double(now.tv_sec) * 1e3 + double(now.tv_nsec) / 1e6;
}

struct Timing
{
    double wallMs = 0; // median
    double cpuMs = 0; // median
};

double median(QList<double> values)
{
    std::sort(values.begin(), values.end());
    return values.at(values.size() / 2);
}

// Median wall and CPU time of `runs` calls; the records are freed outside the timed part. The CPU
// time is the steadier figure on a machine shared with other work.
template<typename Parse>
Timing timeRuns(int runs, Parse parse)
{
    QList<double> wall;
    QList<double> cpu;
    for (int i = 0; i < runs; ++i) {
        QElapsedTimer timer;
        const double cpuStart = cpuMs();
        timer.start();
        const auto records = parse();
        wall.append(double(timer.nsecsElapsed()) / 1e6);
        cpu.append(cpuMs() - cpuStart);
    }
    return {median(wall), median(cpu)};
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    const QStringList args = QCoreApplication::arguments();
    if (args.size() < 2) {
        std::fprintf(stderr, "usage: bench_ical_parse FILE [RUNS]\n");
        return 2;
    }
    const int runs = args.size() > 2 ? std::max(1, args.at(2).toInt()) : 5;
    QFile file(args.at(1));
    if (!file.open(QIODevice::ReadOnly)) {
        std::fprintf(stderr, "cannot read %s: %s\n", qPrintable(args.at(1)), qPrintable(file.errorString()));
        return 1;
    }
    // Read in one piece at the exact size, so that the figure before parsing holds the input once.
    QByteArray input(file.size(), Qt::Uninitialized);
    if (file.read(input.data(), input.size()) != input.size()) {
        std::fprintf(stderr, "short read of %s\n", qPrintable(args.at(1)));
        return 1;
    }
    file.close();
    const qint64 beforeKiB = statusKiB("VmHWM:");

    // First run alone for the peak: nothing else is alive besides the input.
    qsizetype eventCount = 0;
    QElapsedTimer timer;
    timer.start();
    {
        const QList<Event> events = ICal::parseEvents(input);
        eventCount = events.size();
    }
    const double firstMs = double(timer.nsecsElapsed()) / 1e6;
    const qint64 peakKiB = statusKiB("VmHWM:");

    const Timing events = timeRuns(runs, [&] { return ICal::parseEvents(input); });
    qsizetype taskCount = 0;
    const Timing tasks = timeRuns(runs, [&] {
        QList<Task> tasks = ICal::parseTasks(input);
        taskCount = tasks.size();
        return tasks;
    });

    std::printf("input: %s, %lld bytes (%.1f MiB)\n", qPrintable(args.at(1)), qint64(input.size()), mib(input.size()));
    std::printf("parseEvents: %lld events; first run %.0f ms wall\n", qint64(eventCount), firstMs);
    std::printf("  median of %d runs: %.0f ms wall = %.0f events/s (%.1f MiB/s); %.0f ms CPU = %.0f events/s\n", runs,
                events.wallMs, eventCount / (events.wallMs / 1000.0), mib(input.size()) / (events.wallMs / 1000.0),
                events.cpuMs, eventCount / (events.cpuMs / 1000.0));
    std::printf("parseTasks: %lld tasks; median of %d runs: %.0f ms wall, %.0f ms CPU\n", qint64(taskCount), runs,
                tasks.wallMs, tasks.cpuMs);
    std::printf("peak memory (VmHWM) of the whole process after the first parseEvents: %.1f MiB (%.2fx the input)\n",
                peakKiB / 1024.0, (peakKiB * 1024.0) / double(input.size()));
    std::printf("  this counts the input bytes (%.1f MiB, read whole before parsing), the program and its Qt\n"
                "  libraries, and every parsed Event alive at once; before parsing the peak was %.1f MiB, so\n"
                "  parsing added %.1f MiB on top of the input\n",
                mib(input.size()), beforeKiB / 1024.0, (peakKiB - beforeKiB) / 1024.0);
    return 0;
}
