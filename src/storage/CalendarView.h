// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QString>

#include <optional>

// A named group of calendars (table `calendar_views`). The built-in view is "all-calendars".
struct CalendarView
{
    QString id;
    QString name;
    QString color;
    // JSON array of calendar ids; an empty array in the default view means every visible calendar.
    QString calendar_ids = QStringLiteral("[]");
    bool is_default = false;
    qint32 sort_order = 0;
    QString sync_status = QStringLiteral("pending");
    QDateTime created_at;
    QDateTime updated_at;
    std::optional<QDateTime> deleted_at;

    bool operator==(const CalendarView &) const = default;
};
