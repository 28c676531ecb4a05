// SPDX-License-Identifier: GPL-3.0-or-later
// Arbitrary bytes through the task reader, and every task read written back and read again.
// Besides crashes, hangs and memory blow-ups, a difference from the plain second reader of the
// tests is a failure.
#include "support/ICalReference.h"

#include "ical/ICal.h"

#include <cstdio>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    const QByteArrayView text(reinterpret_cast<const char *>(data), qsizetype(size));
    const QList<Task> tasks = ICal::parseTasks(text);
    const QString actual = ICalReference::describe(tasks);
    const QString expected = ICalReference::describe(ICalReference::parseTasks(text));
    if (actual != expected) {
        std::fprintf(stderr, "parseTasks differs from the plain reader\n--- byte reader:\n%s\n--- plain reader:\n%s\n",
                     qPrintable(actual), qPrintable(expected));
        std::abort();
    }
    for (const Task &task : tasks) {
        const QByteArray written = ICal::buildTaskIcs(task);
        (void)ICal::parseTasks(written);
        (void)ICal::parseEvents(written);
    }
    return 0;
}
