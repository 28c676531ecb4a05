// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/Calendar.h"

#include <QList>
#include <QObject>
#include <QString>

#include <optional>

class Database;

// Stores the calendars (table `calendars`), ordered by `sort_order`, then by name. Calendars
// have no tombstone: remove() deletes the row, and the database refuses it while events or tasks
// (tombstones included) still belong to the calendar; callers delete those first.
//
// Every successful write emits calendarsChanged() at once. A failed write logs a warning naming
// the operation, returns false and emits nothing. A write whose statement ran succeeds even when
// no row has the given id, except setDefault().
class CalendarRepository : public QObject
{
    Q_OBJECT

public:
    explicit CalendarRepository(Database *database, QObject *parent = nullptr);

    QList<Calendar> getAll() const;
    QList<Calendar> getByAccount(const QString &accountId) const;
    std::optional<Calendar> getById(const QString &id) const;

    // The record's created_at and updated_at are stored as given; an unset one is stored as now.
    bool insert(const Calendar &calendar);
    // Writes every field except id and created_at; updated_at becomes now.
    bool update(const Calendar &calendar);
    bool remove(const QString &id);
    // Makes `id` the one default calendar, in one transaction with one "now": every other default
    // is cleared (its updated_at set), then the target is marked (its updated_at set). When either
    // statement fails, or no calendar has the id, everything is rolled back, the previous default
    // stays, and the result is false. Re-selecting the current default only touches its
    // updated_at.
    bool setDefault(const QString &id);

signals:
    void calendarsChanged();

private:
    QList<Calendar> select(const QString &sql, const QVariantList &values) const;

    Database *m_database;
};
