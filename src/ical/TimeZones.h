// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QTimeZone>

// Time zones by IANA name, for names that come from users and other people's calendars.
namespace TimeZones {

// The zone of an identifier; "UTC" is UTC. Invalid when the name is unknown or not shaped like a
// zone identifier (such text never reaches the zone database, which reads names as file paths).
QTimeZone named(const QString &id);
// The identifier of this computer's zone, or "UTC" when it has none the zone database knows.
QString systemZoneId();

} // namespace TimeZones
