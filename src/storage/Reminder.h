// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QString>

#include <optional>

// One VALARM of an event (table `reminders`).
struct Reminder
{
    QString id; // generated when empty at write time
    QString event_id;
    qint32 minutes_before = 0;
    QString action = QStringLiteral("display");
    bool acknowledged = false;
    // Absolute fire time; when absent at write time the event start minus minutes_before is stored.
    std::optional<QDateTime> trigger_time;

    bool operator==(const Reminder &) const = default;
};
