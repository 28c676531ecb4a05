// SPDX-License-Identifier: GPL-3.0-or-later
// The series split lives apart from the expansion so that code expanding series does not pull in
// the event repository.
#include "ical/Recurrence.h"

#include "storage/Clock.h"
#include "storage/EventRepository.h"
#include "storage/StorageFormat.h"

#include <QLatin1StringView>

namespace Recurrence {

std::optional<Event> splitSeries(EventRepository &repository, const Event &master, const QDateTime &splitAt,
                                 const QDateTime &newStart, const std::optional<QDateTime> &newEnd)
{
    const QString truncated = truncateRule(master.recurrence_rule, splitAt.addSecs(-1));
    const QDateTime now = Clock::nowUtc();

    Event ended = master;
    ended.recurrence_rule = truncated;
    ended.last_modified = now;
    ended.sync_status = QStringLiteral("pending");
    ended.sequence = master.sequence + 1;
    if (!repository.update(ended))
        return std::nullopt;

    // The truncation removed COUNT and the end goes here, so the new series runs without either,
    // whatever the rule said before the split.
    QStringList pieces = truncated.split(u';', Qt::SkipEmptyParts);
    pieces.removeIf(
        [](const QString &piece) { return piece.startsWith(QLatin1StringView("UNTIL="), Qt::CaseInsensitive); });

    Event series;
    series.id = StorageFormat::newId();
    series.uid = series.id;
    series.calendar_id = master.calendar_id;
    series.title = master.title;
    series.description = master.description;
    series.location = master.location;
    series.color = master.color;
    series.timezone = master.timezone;
    series.status = master.status;
    series.organizer_email = master.organizer_email;
    series.organizer_name = master.organizer_name;
    series.is_all_day = master.is_all_day;
    series.start_time = newStart;
    series.end_time = newEnd;
    series.recurrence_rule = pieces.join(u';');
    series.created = now;
    series.last_modified = now;
    series.sync_status = QStringLiteral("pending");
    series.sequence = 0;
    if (!repository.insert(series))
        return std::nullopt;
    return series;
}

} // namespace Recurrence
