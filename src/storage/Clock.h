// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>

// The one source of "now" for the program. Tests pin it with setFixedNow().
namespace Clock {

// The current time in UTC, without milliseconds (stored timestamps have seconds precision).
QDateTime nowUtc();
// The current time in the local zone, without milliseconds.
QDateTime nowLocal();
// Pins the clock to an instant; an invalid value returns to the system clock.
void setFixedNow(const QDateTime &instant);

} // namespace Clock
