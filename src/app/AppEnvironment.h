// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

// Where the program keeps its data and how this instance is named. Every function re-reads the
// environment on each call.
//
//   CALENDAR_DATA_DIR  overrides the data folder wholesale (UTF-8, used unchanged)
//   CALENDAR_INSTANCE  names a parallel instance; "dev" marks a development instance
namespace AppEnvironment {

// The data folder, created with its missing parents when it does not exist. Creation failures are
// not reported here; they surface when the database cannot be opened.
QString dataDirectory();
// dataDirectory() + "/calendar.db".
QString databasePath();
// The instance name from CALENDAR_INSTANCE; empty for the default instance.
QString instanceName();
// True when CALENDAR_INSTANCE is exactly "dev".
bool isDevInstance();
// The reverse-domain application identifier, with "." and the instance name when one is set.
QString applicationId();

} // namespace AppEnvironment
