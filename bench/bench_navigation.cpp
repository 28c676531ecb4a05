// SPDX-License-Identifier: GPL-3.0-or-later
// Navigation in the desktop program over a large calendar: the time from a navigation action (next
// week, next month) to the finished paint of the view, and the first paint after start-up.
//
// Usage: bench_navigation [--ics FILE] [--steps N]
// The calendar is imported once into a temporary data folder; then the program's main window is
// built over it and driven offscreen.

#include "app/AppState.h"
#include "storage/CalendarChoice.h"
#include "storage/EventImport.h"
#include "storage/EventRepository.h"
#include "ui/MainWindow.h"
#include "ui/MonthView.h"
#include "ui/SpanCache.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QElapsedTimer>
#include <QLoggingCategory>
#include <QStackedWidget>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>

namespace {

double median(QList<double> values)
{
    if (values.isEmpty())
        return 0;
    std::sort(values.begin(), values.end());
    return values.at(values.size() / 2);
}

double percentile(QList<double> values, double p)
{
    if (values.isEmpty())
        return 0;
    std::sort(values.begin(), values.end());
    return values.at(std::min<qsizetype>(values.size() - 1, qsizetype(p * double(values.size()))));
}

// Runs the event loop until the span cache holds the given span (idle prefetching finished), or
// for at most two seconds.
void settleUntilCached(SpanCache *cache, const QDate &first, int days)
{
    QElapsedTimer timer;
    timer.start();
    while (!cache->isCached(first, days) && timer.elapsed() < 2000)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
    for (int i = 0; i < 20; ++i)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 2);
}

// The offscreen platform reports every window size hint it cannot pass on; nothing to see here.
void quietMessages(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    if (message.contains(QLatin1String("propagateSizeHints")))
        return;
    std::fprintf(stderr, "%s\n", qPrintable(qFormatLogMessage(type, context, message)));
}

// The time of one navigation: the action, then a synchronous paint of the visible view.
double timeStep(MainWindow &window, const std::function<void()> &action)
{
    QElapsedTimer timer;
    timer.start();
    action();
    auto *views = window.findChild<QStackedWidget *>();
    views->currentWidget()->repaint();
    return double(timer.nsecsElapsed()) / 1e6;
}

} // namespace

int main(int argc, char *argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qInstallMessageHandler(quietMessages);
    QApplication app(argc, argv);
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false\n*.info=false"));
    QCommandLineParser parser;
    parser.addOption({QStringLiteral("ics"), QStringLiteral("Calendar file."), QStringLiteral("FILE"),
                      QStringLiteral("build/bench-data/bench100k.ics")});
    parser.addOption(
        {QStringLiteral("steps"), QStringLiteral("Steps per series."), QStringLiteral("N"), QStringLiteral("40")});
    parser.process(app);
    const int steps = std::max(4, parser.value(QStringLiteral("steps")).toInt());

    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("calendar.db"));
    {
        AppState state;
        if (!state.initialize(path))
            return 1;
        const CalendarChoice::Choice choice = CalendarChoice::forNewEvents(*state.database());
        QElapsedTimer timer;
        timer.start();
        const EventImport::Result result = EventImport::importFile(
            *state.database(), *state.events(), parser.value(QStringLiteral("ics")), choice.calendar->id);
        if (!result.error.isEmpty()) {
            std::fprintf(stderr, "%s\n", qPrintable(result.error));
            return 1;
        }
        std::printf("imported %d events in %.1f s\n", result.imported, double(timer.elapsed()) / 1000.0);
    }

    // Start-up: the state hub over the filled database, the window, its first paint.
    QElapsedTimer startup;
    startup.start();
    AppState state;
    if (!state.initialize(path))
        return 1;
    state.setViewMode(QStringLiteral("week"));
    state.setWeekHorizon(7);
    state.setViewDate(QDate(2024, 6, 12)); // a mid-period week of the generated calendar
    MainWindow window(&state);
    window.resize(1440, 900);
    window.show();
    window.repaint();
    const double firstPaint = double(startup.nsecsElapsed()) / 1e6;
    std::printf("first paint after start-up: %.1f ms (state hub, window, first week)\n", firstPaint);

    const auto series = [&](const char *name, const QString &mode, bool prefetched) {
        state.setViewMode(mode);
        QList<double> times;
        for (int i = 0; i < steps; ++i) {
            const int direction = (i / (steps / 2)) % 2 == 0 ? 1 : -1;
            const QDate target = mode == QLatin1String("month") ? state.viewDate().addMonths(direction)
                                                                : state.viewDate().addDays(7 * direction);
            const int offset = (target.dayOfWeek() - int(state.firstDayOfWeek()) + 7) % 7;
            const auto [first, days] = mode == QLatin1String("month")
                ? MonthView::gridFor(target, state.firstDayOfWeek())
                : std::pair<QDate, int>(target.addDays(-offset), 7);
            if (prefetched) {
                // The user lingers on the view for a moment: the neighbours are ready.
                settleUntilCached(window.spanCache(), first, days);
            } else {
                // Everything changed just now (a sync, an edit): nothing around is cached.
                window.spanCache()->invalidate();
                QCoreApplication::processEvents();
            }
            times.append(timeStep(window, [&] { state.setViewDate(target); }));
        }
        if (qEnvironmentVariableIsSet("KB_BENCH_VERBOSE")) {
            for (double t : times)
                std::printf(" %.1f", t);
            std::printf("\n");
        }
        std::printf("%-34s median %7.2f ms   p90 %7.2f ms   max %7.2f ms   (%d steps)\n", name, median(times),
                    percentile(times, 0.9), *std::max_element(times.begin(), times.end()), steps);
    };
    series("next/previous week, prefetched", QStringLiteral("week"), true);
    series("next/previous week, cold cache", QStringLiteral("week"), false);
    series("next/previous month, prefetched", QStringLiteral("month"), true);
    series("next/previous month, cold cache", QStringLiteral("month"), false);
    return 0;
}
