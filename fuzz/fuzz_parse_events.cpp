// SPDX-License-Identifier: GPL-3.0-or-later
// Arbitrary bytes through the event reader and the reschedule writer. Besides crashes, hangs and
// memory blow-ups, a difference from the plain second reader of the tests is a failure.
#include "support/ICalReference.h"

#include "ical/ICal.h"

#include <QTimeZone>

#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArrayView text(reinterpret_cast<const char *>(data), qsizetype(size));
    const QList<Event> events = ICal::parseEvents(text);
    const QString actual = ICalReference::describe(events);
    const QString expected = ICalReference::describe(ICalReference::parseEvents(text));
    if (actual != expected) {
        std::fprintf(stderr, "parseEvents differs from the plain reader\n--- byte reader:\n%s\n--- plain reader:\n%s\n",
                     qPrintable(actual), qPrintable(expected));
        std::abort();
    }

    static const QDateTime start(QDate(2024, 2, 1), QTime(10, 0), QTimeZone("Europe/Berlin"));
    for (const Event &event : events) {
        const QByteArray moved = ICal::rescheduleEventIcs(event.raw_icalendar, start, start.addSecs(3600));
        // The moved text still holds the event.
        if (ICal::parseEvents(moved).isEmpty()) {
            std::fprintf(stderr, "the rescheduled text lost its event\n");
            std::abort();
        }
    }
    (void)ICal::rescheduleEventIcs(text.toByteArray(), start, QDateTime());
    return 0;
}
