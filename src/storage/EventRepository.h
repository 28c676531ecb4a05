// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/ChangeCoalescer.h"
#include "storage/Event.h"
#include "storage/StatementCache.h"

#include <QDateTime>
#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariantList>

#include <memory>
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

    // Writes the row, then its reminder and attendee rows (replacing the stored ones); the result
    // is the row's alone. An empty sync_status is stored as "synced". created and last_modified are
    // stored as the record holds them; a record without them is stamped with the current time.
    bool insert(const Event &event);
    // Rewrites every column but id and created, then the child rows. An empty sync_status is
    // stored as "pending"; last_modified is always the current time. False when no row has the id.
    bool update(const Event &event);
    // Soft delete: the row becomes a "pending" tombstone. False when no row has the id.
    bool remove(const QString &id);
    // Removes the row with its child rows for good. False when no row has the id.
    bool hardDelete(const QString &id);
    // After a successful push: stores the server's href and etag and marks the row "synced".
    bool markSynced(const QString &id, const QString &href, const QString &etag);
    // Undo of a delete: clears the tombstone, or re-inserts the row as new when it is gone.
    bool restore(const Event &event);

signals:
    void eventsChanged(const QString &calendarId);

private:
    QList<Event> selectEvents(const char *operation, const QString &sql, const QVariantList &values,
                              bool withChildRows) const;
    std::optional<Event> selectEvent(const char *operation, const QString &sql, const QVariantList &values) const;
    void loadChildRows(QList<Event> &events) const;
    void loadChildRows(Event &event) const;
    std::optional<QString> calendarOf(const char *operation, const QString &id) const;
    void writeChildRows(const Event &event);

    Database *m_database;
    ChangeCoalescer m_changes;
    std::unique_ptr<StatementCache> m_statements;
};
