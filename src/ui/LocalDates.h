// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>
#include <QDateTime>

// The local date of an instant, fast. A view lays out tens of thousands of occurrences per span;
// a full conversion to local time per start and end costs more than everything else together.
// The local offset is looked up once per quarter hour of UTC time (zone transitions fall on
// quarter hours) and kept for the life of the thread.
namespace LocalDates {

// The date, in this computer's zone, of the instant `msecsSinceEpoch`.
QDate dateOf(qint64 msecsSinceEpoch);
inline QDate dateOf(const QDateTime &instant)
{
    return dateOf(instant.toMSecsSinceEpoch());
}

} // namespace LocalDates
