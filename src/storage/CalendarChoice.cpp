// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/CalendarChoice.h"

#include "storage/CalendarRepository.h"
#include "storage/PreferencesRepository.h"

#include <QCoreApplication>

namespace {

// tr() for this file's free functions; lupdate takes the context from the macro.
struct Text
{
    Q_DECLARE_TR_FUNCTIONS(CalendarChoice)
};

} // namespace

namespace CalendarChoice {

Choice forNewEvents(Database &database, const QString &requestedId)
{
    CalendarRepository calendars(&database);
    if (!requestedId.isEmpty()) {
        const std::optional<Calendar> requested = calendars.getById(requestedId);
        if (!requested)
            return {std::nullopt, Text::tr("There is no calendar %1.").arg(requestedId)};
        if (requested->is_read_only)
            return {std::nullopt, Text::tr("The calendar %1 is read-only.").arg(requested->name)};
        return {requested, QString()};
    }

    const PreferencesRepository preferences(&database);
    if (const std::optional<QString> preferred = preferences.value(QLatin1String(kDefaultCalendarKey));
        preferred && !preferred->isEmpty()) {
        if (const std::optional<Calendar> calendar = calendars.getById(*preferred); calendar && !calendar->is_read_only)
            return {calendar, QString()};
    }
    const QList<Calendar> all = calendars.getAll();
    for (const Calendar &calendar : all) {
        if (calendar.is_default && !calendar.is_read_only)
            return {calendar, QString()};
    }
    for (const Calendar &calendar : all) {
        if (!calendar.is_read_only)
            return {calendar, QString()};
    }
    return {std::nullopt, Text::tr("There is no calendar to add events to.")};
}

} // namespace CalendarChoice
