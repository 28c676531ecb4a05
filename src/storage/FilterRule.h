// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QString>

#include <optional>

// A client-side rule that hides or dims matching events (table `filter_rules`).
struct FilterRule
{
    QString id;
    QString name;
    QString type;
    bool enabled = true;
    QString calendar_ids = QStringLiteral("[]"); // JSON array; empty = all calendars
    QString conditions; // JSON document of the match conditions
    QString action = QStringLiteral("hide"); // or "dim"
    qint32 priority = 100; // evaluation order, ascending
    QString event_uid;
    QString event_calendar_id;
    bool suppress_reminders = false;
    QString sync_status = QStringLiteral("pending");
    QDateTime created_at;
    QDateTime updated_at;
    std::optional<QDateTime> deleted_at;

    bool operator==(const FilterRule &) const = default;
};
