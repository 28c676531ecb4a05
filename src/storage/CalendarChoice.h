// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/Calendar.h"

#include <QString>

#include <optional>

class Database;

// Which calendar receives new events (quick-add, import) when the user names none.
namespace CalendarChoice {

// The preference naming the calendar for new events.
inline constexpr char kDefaultCalendarKey[] = "ui/defaultCalendarId";

struct Choice
{
    std::optional<Calendar> calendar;
    QString error; // a translated sentence when there is no calendar to write to
};

// `requestedId` when given: that calendar, which must exist and take writes. Otherwise the
// calendar the preference "ui/defaultCalendarId" names, else the default calendar, else the first
// calendar in the calendars' own order; a calendar that does not take writes (a subscription, a
// read-only share) is passed over at each of these steps.
Choice forNewEvents(Database &database, const QString &requestedId = QString());

} // namespace CalendarChoice
