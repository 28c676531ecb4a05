// SPDX-License-Identifier: GPL-3.0-or-later
// What the day/week view pays to show a span of a large imported calendar: the first visit of a
// week (database query, expansion, filters, layout, paint) and a step to the next week after the
// span cache and the view have prepared it while idle (paint only), offscreen.
//
//   bench_timeline [FILE.ics] [STEPS]   (defaults: /work/data/bench100k.ics, 20 steps)
#include "app/AppState.h"
#include "storage/EventImport.h"
#include "storage/EventRepository.h"
#include "ui/EventEditor.h"
#include "ui/SpanCache.h"
#include "ui/TimelineLayout.h"
#include "ui/TimelineView.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLoggingCategory>
#include <QTemporaryDir>

#include <algorithm>
#include <cstdio>
#include <ctime>

namespace {

void report(const char *name, QList<qint64> micros)
{
    std::sort(micros.begin(), micros.end());
    std::printf("%-34s min %7.2f ms  median %7.2f ms  max %7.2f ms  (%lld runs)\n", name, micros.first() / 1000.0,
                micros.at(micros.size() / 2) / 1000.0, micros.last() / 1000.0, qlonglong(micros.size()));
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false\n*.info=false"));
    const QStringList args = app.arguments();
    const QString path = args.size() > 1 ? args.at(1) : QStringLiteral("/work/data/bench100k.ics");
    const int steps = args.size() > 2 ? std::max(2, args.at(2).toInt()) : 20;

    QTemporaryDir dir;
    AppState state;
    if (!state.initialize(dir.filePath(QStringLiteral("calendar.db"))))
        return 1;
    QElapsedTimer timer;
    timer.start();
    const EventImport::Result imported
        = EventImport::importFile(*state.database(), *state.events(), path, AppState::kLocalCalendarId);
    if (!imported.error.isEmpty()) {
        std::fprintf(stderr, "%s\n", qPrintable(imported.error));
        return 1;
    }
    std::printf("imported %d events from %s in %.1f s\n", imported.imported, qPrintable(path),
                timer.elapsed() / 1000.0);

    SpanCache cache(&state);
    EventEditor editor(&state);
    TimelineView view(&state, &cache, &editor);
    view.resize(1280, 800);
    view.show();
    QCoreApplication::processEvents();

    for (const int days : {7, 21}) {
        const QDate first(2024, 6, 10);
        QList<qint64> cold;
        QList<qint64> cached;
        qsizetype shown = 0;
        for (int round = 0; round < 5; ++round) {
            cache.invalidate();
            QCoreApplication::processEvents();
            timer.restart();
            view.setDays(first.addDays(days * round), days);
            view.repaint();
            cold.append(timer.nsecsElapsed() / 1000);
        }
        // Forward through the weeks, with the event loop idle between steps as when a user looks at
        // each: the cache and the view prepare the next span meanwhile.
        QList<qint64> layoutOnly;
        QList<qint64> cpuTimes;
        view.setDays(first, days);
        for (int step = 1; step <= steps; ++step) {
            QCoreApplication::processEvents();
            QCoreApplication::processEvents();
            const std::clock_t cpu = std::clock();
            timer.restart();
            view.setDays(first.addDays(days * step), days);
            layoutOnly.append(timer.nsecsElapsed() / 1000);
            view.repaint();
            cached.append(timer.nsecsElapsed() / 1000);
            cpuTimes.append(qint64((std::clock() - cpu) * 1000000.0 / CLOCKS_PER_SEC));
        }
        for (const TimelineView::DrawnItem &item : view.drawnItems())
            shown += item.rect.isValid() ? 1 : 0;
        std::printf("%d days: %lld pieces and bars drawn\n", days, qlonglong(shown));
        report(days == 7 ? "week, first visit (query + paint)" : "21 days, first visit", cold);
        report(days == 7 ? "week, step to the prepared next week" : "21 days, step to the prepared next span", cached);
        report("  the same in CPU time", cpuTimes);
        report("  of which setDays (layout)", layoutOnly);
        // What a step costs when the next span is cached but the view had no idle moment to lay it out.
        QList<qint64> layouts;
        for (int step = 1; step <= steps; ++step) {
            const std::shared_ptr<const SpanData> span = cache.span(first.addDays(days * step), days);
            timer.restart();
            const TimelineLayout layout = TimelineLayout::build(span, span->firstDay, days, 22, &cache);
            layouts.append(timer.nsecsElapsed() / 1000);
        }
        report("  laying out a cached span afresh", layouts);
    }
    return 0;
}
