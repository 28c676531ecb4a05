// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/Attendee.h"
#include "storage/Reminder.h"

#include <QByteArray>
#include <QDateTime>
#include <QList>
#include <QString>

#include <optional>

// One VEVENT (table `events`): a single event, the master of a recurring series, or one
// overridden instance of a series. Field names are the column names.
struct Event
{
    QString id;
    QString calendar_id;
    QString uid; // with calendar_id and recurrence_id the logical key of the event
    QString provider_event_id;
    QString etag;
    QString href;
    QString title;
    QString description;
    QString location;
    QString geo_location;
    QDateTime start_time; // for an all-day event the start of the first day
    std::optional<QDateTime> end_time; // exclusive; absent when the event has no end
    bool is_all_day = false;
    QString timezone = QStringLiteral("UTC");
    QString recurrence_rule; // RRULE value without "RRULE:"
    QString recurrence_dates;
    QString exception_dates;
    QString recurrence_id; // set on an overridden instance
    QString master_event_uid;
    QString status = QStringLiteral("confirmed");
    QString event_url;
    QString conference_url;
    QString organizer_email;
    QString organizer_name;
    qint32 sequence = 0;
    // The complete iCalendar text last read or written (UTF-8); keeps what the record has no field for.
    QByteArray raw_icalendar;
    QString color; // #RRGGBB; empty means the calendar colour
    QDateTime created;
    QDateTime last_modified;
    QString sync_status = QStringLiteral("synced");
    std::optional<QDateTime> deleted_at;
    QString related_to_uid;
    QList<Reminder> reminders;
    QList<Attendee> attendees;

    bool operator==(const Event &) const = default;
};
