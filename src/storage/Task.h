// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QString>
#include <QStringList>

#include <optional>

// One VTODO (table `tasks`).
struct Task
{
    QString id;
    QString calendar_id;
    QString uid;
    QString etag;
    QString href;
    QString title;
    QString description;
    QString status = QStringLiteral("needs-action"); // "in-process", "completed", "cancelled"
    qint32 priority = 0; // 0 = undefined, 1..9
    qint32 percent_complete = 0;
    std::optional<QDateTime> due_date;
    std::optional<QDateTime> start_date;
    std::optional<QDateTime> completed_date;
    QStringList categories;
    QString parent_task_uid;
    qint32 sort_order = 0;
    QString color;
    QString recurrence_rule;
    QString repeat_mode = QStringLiteral("fromDueDate"); // or "fromCompletionDate"
    qint32 sequence = 0;
    QByteArray raw_icalendar; // the iCalendar text of the task (UTF-8)
    QDateTime created;
    QDateTime last_modified;
    QString sync_status = QStringLiteral("synced");
    std::optional<QDateTime> deleted_at;
    bool due_is_date_only = true;
    bool start_is_date_only = true;

    bool operator==(const Task &) const = default;
};
