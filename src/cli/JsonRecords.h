// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/Account.h"
#include "storage/Calendar.h"
#include "storage/CalendarView.h"
#include "storage/Event.h"
#include "storage/FilterRule.h"
#include "storage/Task.h"
#include "storage/Template.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QJsonValue>

// The JSON form of the records printed by kbcal --json: an object whose keys are the record's
// field names, every field present. Text is a string, whole numbers are numbers, booleans are
// true/false. A date-time is ISO 8601 with seconds ("...Z" in UTC, "+01:00" in a zone or at an
// offset, no suffix for floating time); an invalid or absent one is null.
namespace JsonRecords {

QJsonValue dateTime(const QDateTime &value);
QJsonValue dateTime(const std::optional<QDateTime> &value);

QJsonObject toJson(const Reminder &reminder);
QJsonObject toJson(const Attendee &attendee);
QJsonObject toJson(const Event &event); // with "reminders" and "attendees"
QJsonObject toJson(const Task &task); // "categories" is an array of strings
QJsonObject toJson(const Calendar &calendar);
QJsonObject toJson(const Account &account);
QJsonObject toJson(const CalendarView &view);
QJsonObject toJson(const FilterRule &rule);
QJsonObject toJson(const Template &preset);

template<typename Record>
QJsonArray toJsonArray(const QList<Record> &records)
{
    QJsonArray array;
    for (const Record &record : records)
        array.append(toJson(record));
    return array;
}

} // namespace JsonRecords
