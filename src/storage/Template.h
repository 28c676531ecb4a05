// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QList>
#include <QString>

#include <optional>

// A user-defined preset for new events (table `event_templates`). The table's sync_status is not
// part of the record: the repository writes "pending" on every insert and update.
struct Template
{
    QString id;
    QString name;
    QString title;
    QString description;
    QString location;
    QString color;
    bool is_all_day = false;
    qint32 duration_minutes = 60;
    QString recurrence_rule;
    QString calendar_id;
    QList<qint32> reminders = {15}; // minutes before start
    qint32 sort_order = 0;
    QDateTime created_at;
    QDateTime updated_at;
    std::optional<QDateTime> deleted_at;

    bool operator==(const Template &) const = default;
};
