// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/Task.h"

#include <QDateTime>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTimer>

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
    QList<Task> getInRange(const QDateTime &start, const QDateTime &end, const QStringList &calendarIds = {}) const;
    QList<Task> getPending(const QString &calendarId) const; // tombstones included

    bool insert(const Task &task);
    bool update(const Task &task);
    bool remove(const QString &id);
    bool hardDelete(const QString &id);
    bool markSynced(const QString &id, const QString &href, const QString &etag);
    // Completes or reopens a task. Completing a recurring task rolls the same row forward to its
    // next occurrence instead of closing it.
    bool setCompleted(const QString &id, bool completed);

signals:
    void tasksChanged(const QString &calendarId);

private:
    void notifyChanged(const QString &calendarId);

    Database *m_database;
    QTimer m_changeTimer;
    QString m_pendingCalendarId;
};
