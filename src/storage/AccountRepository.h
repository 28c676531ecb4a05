// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/Account.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>

#include <optional>

class Database;

// Stores the accounts (table `accounts`). Removing an account leaves a tombstone that
// configuration sync pushes before reapTombstone() deletes the row for good; the account's
// calendars and events are left in place. Normal reads skip tombstones and order by the manual
// `sort_order`, then by name.
//
// Every successful write emits accountsChanged() at once. A failed write returns false, emits
// nothing, and (for insert, update, remove and reapTombstone) logs a warning naming the operation.
// A write whose statement ran succeeds even when no row has the given id, except reorder().
class AccountRepository : public QObject
{
    Q_OBJECT

public:
    explicit AccountRepository(Database *database, QObject *parent = nullptr);

    QList<Account> getAll() const;
    // Tombstones included (configuration sync pushes the deletions from this list).
    QList<Account> getAllIncludingDeleted() const;
    std::optional<Account> getById(const QString &id) const;
    // The live account of a kind on a server for a user: how an incoming account is matched.
    std::optional<Account> findByServer(const QString &type, const QString &serverUrl, const QString &username) const;

    // The record's created_at and updated_at are stored as given; an unset one is stored as now.
    // The account's sort_order starts at 0.
    bool insert(const Account &account);
    // Writes every field except id and created_at; updated_at becomes now.
    bool update(const Account &account);
    // Soft delete: stamps deleted_at and updated_at with now.
    bool remove(const QString &id);
    // Deletes a tombstone for good once its deletion has been pushed; a live account is never
    // deleted by it.
    bool reapTombstone(const QString &id);
    // Gives the listed accounts sort_order 10, 20, 30, ... in list order, in one transaction.
    // All or nothing: when a statement fails, or an id names no stored row (detected by the
    // update touching no row), the transaction is rolled back, every sort_order stays as it was,
    // and the result is false. An empty list writes nothing and succeeds without a signal.
    bool reorder(const QStringList &ids);

    // Collapses CalDAV-kind accounts ("caldav", "icloud", "zoho") that name the same kind,
    // server and user (both non-empty) into the oldest one by created_at: the calendars of each
    // newer duplicate move to it, and the duplicate is soft-deleted. Tombstones take no part:
    // an account awaiting its deletion push never absorbs a live one. Each duplicate is merged in
    // its own transaction, so a failure leaves that duplicate and its calendars untouched.
    // Returns the number of accounts collapsed.
    int dedupeCalDavAccounts();

signals:
    void accountsChanged();

private:
    QList<Account> select(const QString &sqlTail, const QVariantList &values) const;
    bool softDelete(const QString &id);

    Database *m_database;
};
