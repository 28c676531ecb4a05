// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

// One participant of an event (table `attendees`).
struct Attendee
{
    QString id; // generated when empty at write time
    QString event_id;
    QString email;
    QString name;
    QString role = QStringLiteral("required"); // "optional", "chair"
    QString status = QStringLiteral("needs-action"); // "accepted", "declined", "tentative", "delegated"
    QString type;
    bool rsvp = false;

    bool operator==(const Attendee &) const = default;
};
