// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/ChangeCoalescer.h"
#include "storage/StatementCache.h"
#include "storage/Task.h"

#include <QDateTime>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariantList>

#include <memory>
#include <optional>

class Database;

// Stores tasks. Changes are announced like events: tasksChanged after a 150 ms quiet period,
// naming the calendar of the last write.
class TaskRepository : public QObject
{
    Q_OBJECT

public:
    explicit TaskRepository(Database *database, QObject *parent = nullptr);

    std::optional<Task> getById(const QString &id) const; // tombstones included
    std::optional<Task> getByUid(const QString &uid) const; // a live task in any calendar
    std::optional<Task> getByUidAndCalendar(const QString &uid, const QString &calendarId) const;
    QList<Task> getByCalendar(const QString &calendarId) const; // undated tasks last
    // Live tasks due, or starting, within [start, end), by due date. Bounds are compared as ISO
    // text, so pass them in UTC. An empty calendar list applies no calendar filter.
    QList<Task> getInRange(const QDateTime &start, const QDateTime &end, const QStringList &calendarIds = {}) const;
    QList<Task> getPending(const QString &calendarId) const; // tombstones included

    // An empty sync_status is stored as "synced", an empty repeat_mode as "fromDueDate". created
    // and last_modified are stored as the record holds them; a record without them is stamped
    // with the current time.
    bool insert(const Task &task);
    // Rewrites every column but id and created. An empty sync_status is stored as "pending";
    // last_modified is always the current time. False when no row has the id.
    bool update(const Task &task);
    // Soft delete: the row becomes a "pending" tombstone. False when no row has the id.
    bool remove(const QString &id);
    // Removes the row for good. False when no row has the id.
    bool hardDelete(const QString &id);
    // After a successful push; sends no change signal. False when no row has the id.
    bool markSynced(const QString &id, const QString &href, const QString &etag);
    // Completes or reopens a task; either way the change is "pending", the sequence grows by one
    // and raw_icalendar is written anew. Completing a recurring task that is not completed yet
    // rolls the same row forward instead of closing it: its due date (or its start date when it
    // has no due date) moves to the first occurrence of its rule after the anchor, which is that
    // date itself, or the current local time when repeat_mode is "fromCompletionDate"; a date-only
    // value stays at midnight. The task stays "needs-action". A recurring task whose rule yields
    // nothing within five years of the anchor is completed like any other. False when there is no
    // such task or the update fails.
    bool setCompleted(const QString &id, bool completed);

signals:
    void tasksChanged(const QString &calendarId);

private:
    QList<Task> selectTasks(const char *operation, const QString &sql, const QVariantList &values) const;
    std::optional<Task> selectTask(const char *operation, const QString &sql, const QVariantList &values) const;
    std::optional<QString> calendarOf(const char *operation, const QString &id) const;

    Database *m_database;
    ChangeCoalescer m_changes;
    std::unique_ptr<StatementCache> m_statements;
};
