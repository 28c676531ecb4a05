// SPDX-License-Identifier: GPL-3.0-or-later
// The quick-add parser on arbitrary text. The first byte picks the reference time; the rest is
// read as UTF-8 (invalid sequences included) and, a second time, as raw UTF-16, which may hold
// unpaired surrogates. Besides crashes and hangs it checks what callers rely on.
#include "ical/NLParser.h"
#include "storage/Clock.h"

#include <QTimeZone>

#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace {

void check(bool condition)
{
    if (!condition)
        std::abort();
}

QDateTime reference(std::uint8_t selector)
{
    switch (selector % 4) {
    case 0:
        return QDateTime(QDate(2024, 3, 15), QTime(14, 10, 45), Qt::UTC);
    case 1:
        return QDateTime(QDate(2023, 12, 28), QTime(23, 59, 30), Qt::OffsetFromUTC, 5 * 3600 + 1800);
    case 2:
        // The night before the clocks go forward.
        return QDateTime(QDate(2024, 3, 30), QTime(23, 45), QTimeZone("Europe/Berlin"));
    default:
        return QDateTime(QDate(9999, 12, 31), QTime(23, 40), Qt::UTC);
    }
}

void checkSpans(const QString &text, const QList<NLParser::Span> &spans)
{
    check(spans.size() == 1);
    for (const NLParser::Span &span : spans)
        check(span.start >= 0 && span.length > 0 && span.start + span.length <= text.size());
}

void exercise(const QString &text, const QDateTime &now)
{
    if (const auto date = NLParser::matchDate(text, now.date()))
        checkSpans(text, date->spans);
    if (const auto time = NLParser::matchTime(text))
        checkSpans(text, time->spans);
    if (const auto duration = NLParser::matchDuration(text)) {
        checkSpans(text, duration->spans);
        check(duration->minutes >= -1);
    }

    const NLParser::ParseResult result = NLParser::parse(text, now);
    check(result.title == result.title.simplified());
    const QString problem = NLParser::problem(text, now);
    const bool empty = text.trimmed().isEmpty();
    check(!empty || (problem.isEmpty() && !result.end && result.title.isEmpty()));
    if (!empty && problem.isEmpty()) {
        check(result.start.isValid() && result.end && result.end->isValid());
        check(*result.end >= result.start);
        if (result.allDay)
            check(result.start.time() == QTime(0, 0) && *result.end > result.start);
    }

    const std::optional<Event> event = NLParser::eventFromLine(text, QStringLiteral("cal"), now);
    check(event.has_value() == (!empty && problem.isEmpty()));
    if (event) {
        check(event->id == event->uid && event->id.size() == 36);
        check(!event->title.isEmpty() && event->start_time == result.start && event->end_time == result.end);
        check(event->sync_status == QLatin1String("pending"));
        // Ten lines, each ended by CR LF: nothing in the title may start a line of its own.
        const QByteArray &ics = event->raw_icalendar;
        check(ics.count('\n') == 10 && ics.count('\r') == 10 && ics.count("\r\n") == 10);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const bool pinned = [] {
        Clock::setFixedNow(QDateTime(QDate(2024, 3, 15), QTime(13, 0), Qt::UTC));
        return true;
    }();
    Q_UNUSED(pinned);
    if (size == 0)
        return 0;
    const QDateTime now = reference(data[0]);
    const char *bytes = reinterpret_cast<const char *>(data + 1);
    const qsizetype length = qsizetype(size - 1);
    exercise(QString::fromUtf8(bytes, length), now);

    QString units(length / 2, Qt::Uninitialized);
    std::memcpy(units.data(), bytes, std::size_t(units.size()) * sizeof(char16_t));
    exercise(units, now);
    return 0;
}
