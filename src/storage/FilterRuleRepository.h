// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/FilterRule.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

#include <optional>

class Database;

// Stores the filter rules (table `filter_rules`), listed by `priority` ascending, then by name.
// Removing a rule leaves a "pending" tombstone for configuration sync, which calls hardDelete()
// once the server has it.
//
// Every successful write emits filterRulesChanged() at once. A failed write returns false and
// emits nothing; insert and update also log a warning. A write whose statement ran succeeds even
// when no row has the given id, except reorder().
class FilterRuleRepository : public QObject
{
    Q_OBJECT

public:
    explicit FilterRuleRepository(Database *database, QObject *parent = nullptr);

    QList<FilterRule> getAll() const;
    QList<FilterRule> getAllIncludingDeleted() const;
    // Tombstones included.
    std::optional<FilterRule> getById(const QString &id) const;
    // The live, enabled rules in evaluation order: what the calendar views apply.
    QList<FilterRule> getEnabled() const;

    // The record's sync_status, created_at and updated_at are stored as given; an unset time is
    // stored as now.
    bool insert(const FilterRule &rule);
    // Writes every field except id, created_at and deleted_at; updated_at becomes now.
    bool update(const FilterRule &rule);
    // Also marks the rule "pending" and stamps updated_at.
    bool setEnabled(const QString &id, bool enabled);
    // Gives the listed rules priority 10, 20, 30, ... in list order and marks them "pending", in
    // one transaction. All or nothing: when a statement fails, or an id names no stored row
    // (detected by the update touching no row), everything is rolled back and the result is
    // false. An empty list writes nothing and succeeds without a signal.
    bool reorder(const QStringList &ids);
    // Soft delete: stamps deleted_at and updated_at with now and marks the row "pending".
    bool remove(const QString &id);
    bool hardDelete(const QString &id);

signals:
    void filterRulesChanged();

private:
    QList<FilterRule> select(const QString &sql, const QVariantList &values) const;
    bool execWrite(const QString &sql, const QVariantList &values);

    Database *m_database;
};
