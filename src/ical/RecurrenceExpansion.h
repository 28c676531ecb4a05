// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ical/OccurrenceGenerator.h"
#include "storage/Event.h"

#include <QDateTime>
#include <QList>

// The expansion behind Recurrence::expandSeries and Recurrence::expandEvents, with the way starts
// are generated left open so that the walk from the series start can be measured and checked
// against the skipping generator the program uses.
namespace RecurrenceExpansion {

using Method = OccurrenceGenerator::Method;

QList<Event> expandSeries(const Event &master, const QDateTime &rangeStart, const QDateTime &rangeEnd, Method method);
QList<Event> expandEvents(const QList<Event> &events, const QDateTime &rangeStart, const QDateTime &rangeEnd,
                          Method method);

// An instant in UTC written "yyyyMMddTHHmmssZ" (seconds, fraction dropped).
QString utcStamp(qint64 instantMs);

} // namespace RecurrenceExpansion
