// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/LocalDates.h"

#include <QHash>

namespace LocalDates {

namespace {

constexpr qint64 kQuarterHourMs = 15 * 60 * 1000;
constexpr qint64 kDayMs = 24 * 60 * 60 * 1000;

qint64 floorDiv(qint64 value, qint64 divisor)
{
    return value >= 0 ? value / divisor : -((-value + divisor - 1) / divisor);
}

} // namespace

QDate dateOf(qint64 msecsSinceEpoch)
{
    thread_local QHash<qint64, int> offsets; // quarter hour of UTC time -> local offset in seconds
    const qint64 quarter = floorDiv(msecsSinceEpoch, kQuarterHourMs);
    auto found = offsets.constFind(quarter);
    if (found == offsets.constEnd()) {
        const QDateTime local = QDateTime::fromMSecsSinceEpoch(quarter * kQuarterHourMs, Qt::LocalTime);
        found = offsets.insert(quarter, local.isValid() ? local.offsetFromUtc() : 0);
    }
    const qint64 localMs = msecsSinceEpoch + qint64(found.value()) * 1000;
    return QDate(1970, 1, 1).addDays(floorDiv(localMs, kDayMs));
}

} // namespace LocalDates
