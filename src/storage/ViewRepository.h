// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/CalendarView.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

#include <optional>

class Database;

// Stores the saved calendar views (table `calendar_views`). Normal reads skip tombstones and list
// the default view first, then by `sort_order` and name. Removing a view leaves a "pending"
// tombstone for configuration sync, which calls hardDelete() once the server has it.
//
// Every successful write emits viewsChanged() at once. A failed write returns false and emits
// nothing; insert and update also log a warning. A write whose statement ran succeeds even when
// no row has the given id, except reorder().
class ViewRepository : public QObject
{
    Q_OBJECT

public:
    explicit ViewRepository(Database *database, QObject *parent = nullptr);

    QList<CalendarView> getAll() const;
    QList<CalendarView> getAllIncludingDeleted() const;
    // Tombstones included.
    std::optional<CalendarView> getById(const QString &id) const;

    // The record's sync_status, created_at and updated_at are stored as given; an unset time is
    // stored as now.
    bool insert(const CalendarView &view);
    // Writes name, color, calendar_ids, is_default, sort_order and sync_status; updated_at
    // becomes now.
    bool update(const CalendarView &view);
    // Soft delete: stamps deleted_at and updated_at with now and marks the row "pending".
    bool remove(const QString &id);
    bool hardDelete(const QString &id);
    // Gives the listed views sort_order 10, 20, 30, ... in list order and marks them "pending",
    // in one transaction. All or nothing: when a statement fails, or an id names no stored row
    // (detected by the update touching no row), everything is rolled back and the result is
    // false. An empty list writes nothing and succeeds without a signal.
    bool reorder(const QStringList &ids);

signals:
    void viewsChanged();

private:
    QList<CalendarView> select(const QString &sql, const QVariantList &values) const;
    bool execWrite(const QString &sql, const QVariantList &values);

    Database *m_database;
};
