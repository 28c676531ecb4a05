// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/Event.h"

#include <QDateTime>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QTimer>

#include <optional>

class Database;

// Stores events with their reminder and attendee rows. Every successful change that names a
// calendar (re)starts a 150 ms timer; when it fires, eventsChanged carries the calendar of the
// last write of the burst. Local edits are marked "pending" by their callers; deletions leave
// tombstones that sync pushes and then removes with hardDelete().
class EventRepository : public QObject
{
    Q_OBJECT

public:
    explicit EventRepository(Database *database, QObject *parent = nullptr);

    // With reminders and attendees; tombstones included.
    std::optional<Event> getById(const QString &id) const;
    // No child rows.
    std::optional<Event> getByUid(const QString &uid, const QString &calendarId) const;
    // The upsert key of sync: NULL and empty recurrence ids are the same. No child rows.
    std::optional<Event> getByUidAndRecurrenceId(const QString &uid, const QString &calendarId,
                                                 const QString &recurrenceId) const;
    // Live events of a calendar by start, with child rows.
    QList<Event> getByCalendar(const QString &calendarId) const;
    // Every live event that overlaps [start, end) and every recurring master that starts before
    // `end`, by start, with child rows. Bounds are compared as ISO text, so pass them in UTC. An
    // empty calendar list applies no calendar filter.
    QList<Event> getInRange(const QDateTime &start, const QDateTime &end, const QStringList &calendarIds = {}) const;
    // Pending rows of a calendar, tombstones included, no child rows.
    QList<Event> getPending(const QString &calendarId) const;
    QList<Event> getByRelatedToUid(const QString &uid) const;
    // Title, location or description containing the trimmed text; empty text finds nothing.
    QList<Event> search(const QString &text, int limit) const;

    bool insert(const Event &event);
    bool update(const Event &event);
    bool remove(const QString &id);
    bool hardDelete(const QString &id);
    bool markSynced(const QString &id, const QString &href, const QString &etag);
    // Undo of a delete: clears the tombstone, or re-inserts the row as new when it is gone.
    bool restore(const Event &event);

signals:
    void eventsChanged(const QString &calendarId);

private:
    void notifyChanged(const QString &calendarId);

    Database *m_database;
    QTimer m_changeTimer;
    QString m_pendingCalendarId;
};
