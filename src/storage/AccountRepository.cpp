// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/AccountRepository.h"

#include "storage/Clock.h"
#include "storage/Database.h"
#include "storage/SqlSupport.h"
#include "storage/StorageFormat.h"

#include <QHash>
#include <QSqlError>
#include <QSqlQuery>

#include <algorithm>

using SqlSupport::requiredText;

namespace {

const QString kColumns = QStringLiteral(
    "id, name, type, server_url, username, calendar_home_set, principal_url, sync_interval_minutes, last_sync_time, "
    "last_sync_error, enabled, color, exclude_from_sync, trusted_cert_sha256, pending_cert_sha256, created_at, "
    "updated_at, deleted_at");

Account fromRow(const QSqlQuery &query)
{
    Account account;
    account.id = query.value(0).toString();
    account.name = query.value(1).toString();
    account.type = query.value(2).toString();
    account.server_url = query.value(3).toString();
    account.username = query.value(4).toString();
    account.calendar_home_set = query.value(5).toString();
    account.principal_url = query.value(6).toString();
    account.sync_interval_minutes = query.value(7).toInt();
    account.last_sync_time = StorageFormat::parseOptionalDateTime(query.value(8));
    account.last_sync_error = query.value(9).toString();
    account.enabled = StorageFormat::readBool(query.value(10));
    account.color = query.value(11).toString();
    account.exclude_from_sync = StorageFormat::readBool(query.value(12));
    account.trusted_cert_sha256 = query.value(13).toString();
    account.pending_cert_sha256 = query.value(14).toString();
    account.created_at = StorageFormat::parseDateTime(query.value(15).toString());
    account.updated_at = StorageFormat::parseDateTime(query.value(16).toString());
    account.deleted_at = StorageFormat::parseOptionalDateTime(query.value(17));
    return account;
}

bool isCalDavKind(const QString &type)
{
    return type == QLatin1String("caldav") || type == QLatin1String("icloud") || type == QLatin1String("zoho");
}

} // namespace

AccountRepository::AccountRepository(Database *database, QObject *parent)
    : QObject(parent)
    , m_database(database)
{ }

QList<Account> AccountRepository::select(const QString &sql, const QVariantList &values) const
{
    QList<Account> accounts;
    QSqlQuery query(m_database->connection());
    query.setForwardOnly(true);
    if (!SqlSupport::exec(query, sql.arg(kColumns), values))
        return accounts;
    while (query.next())
        accounts.append(fromRow(query));
    return accounts;
}

QList<Account> AccountRepository::getAll() const
{
    return select(QStringLiteral("SELECT %1 FROM accounts WHERE deleted_at IS NULL ORDER BY sort_order, name"), {});
}

QList<Account> AccountRepository::getAllIncludingDeleted() const
{
    return select(QStringLiteral("SELECT %1 FROM accounts ORDER BY sort_order, name"), {});
}

std::optional<Account> AccountRepository::getById(const QString &id) const
{
    const QList<Account> found
        = select(QStringLiteral("SELECT %1 FROM accounts WHERE id = ? AND deleted_at IS NULL"), {requiredText(id)});
    if (found.isEmpty())
        return std::nullopt;
    return found.constFirst();
}

std::optional<Account> AccountRepository::findByServer(const QString &type, const QString &serverUrl,
                                                       const QString &username) const
{
    const QList<Account> found = select(
        QStringLiteral(
            "SELECT %1 FROM accounts WHERE type = ? AND server_url = ? AND username = ? AND deleted_at IS NULL"),
        {requiredText(type), requiredText(serverUrl), requiredText(username)});
    if (found.isEmpty())
        return std::nullopt;
    return found.constFirst();
}

bool AccountRepository::insert(const Account &account)
{
    const QDateTime now = Clock::nowUtc();
    QSqlQuery query(m_database->connection());
    const bool ok = SqlSupport::exec(
        query,
        QStringLiteral("INSERT INTO accounts (id, name, type, server_url, username, calendar_home_set, principal_url, "
                       "sync_interval_minutes, last_sync_time, last_sync_error, enabled, color, exclude_from_sync, "
                       "trusted_cert_sha256, pending_cert_sha256, created_at, updated_at) VALUES (?, ?, ?, ?, ?, ?, "
                       "?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
        {requiredText(account.id), requiredText(account.name), requiredText(account.type),
         requiredText(account.server_url), requiredText(account.username), requiredText(account.calendar_home_set),
         requiredText(account.principal_url), account.sync_interval_minutes,
         StorageFormat::dateTimeValue(account.last_sync_time), requiredText(account.last_sync_error),
         StorageFormat::boolValue(account.enabled), requiredText(account.color),
         StorageFormat::boolValue(account.exclude_from_sync), requiredText(account.trusted_cert_sha256),
         requiredText(account.pending_cert_sha256),
         StorageFormat::dateTimeValue(account.created_at.isValid() ? account.created_at : now),
         StorageFormat::dateTimeValue(account.updated_at.isValid() ? account.updated_at : now)});
    if (!ok) {
        SqlSupport::logFailure("AccountRepository::insert failed:", query.lastError());
        return false;
    }
    emit accountsChanged();
    return true;
}

bool AccountRepository::update(const Account &account)
{
    QSqlQuery query(m_database->connection());
    const bool ok = SqlSupport::exec(
        query,
        QStringLiteral("UPDATE accounts SET name = ?, type = ?, server_url = ?, username = ?, calendar_home_set = ?, "
                       "principal_url = ?, sync_interval_minutes = ?, last_sync_time = ?, last_sync_error = ?, "
                       "enabled = ?, color = ?, exclude_from_sync = ?, trusted_cert_sha256 = ?, "
                       "pending_cert_sha256 = ?, updated_at = ? WHERE id = ?"),
        {requiredText(account.name), requiredText(account.type), requiredText(account.server_url),
         requiredText(account.username), requiredText(account.calendar_home_set), requiredText(account.principal_url),
         account.sync_interval_minutes, StorageFormat::dateTimeValue(account.last_sync_time),
         requiredText(account.last_sync_error), StorageFormat::boolValue(account.enabled), requiredText(account.color),
         StorageFormat::boolValue(account.exclude_from_sync), requiredText(account.trusted_cert_sha256),
         requiredText(account.pending_cert_sha256), StorageFormat::dateTimeValue(Clock::nowUtc()),
         requiredText(account.id)});
    if (!ok) {
        SqlSupport::logFailure("AccountRepository::update failed:", query.lastError());
        return false;
    }
    emit accountsChanged();
    return true;
}

bool AccountRepository::softDelete(const QString &id)
{
    const QVariant now = StorageFormat::dateTimeValue(Clock::nowUtc());
    QSqlQuery query(m_database->connection());
    if (!SqlSupport::exec(query, QStringLiteral("UPDATE accounts SET deleted_at = ?, updated_at = ? WHERE id = ?"),
                          {now, now, requiredText(id)})) {
        SqlSupport::logFailure("AccountRepository::remove failed:", query.lastError());
        return false;
    }
    return true;
}

bool AccountRepository::remove(const QString &id)
{
    if (!softDelete(id))
        return false;
    emit accountsChanged();
    return true;
}

bool AccountRepository::reapTombstone(const QString &id)
{
    QSqlQuery query(m_database->connection());
    if (!SqlSupport::exec(query, QStringLiteral("DELETE FROM accounts WHERE id = ? AND deleted_at IS NOT NULL"),
                          {requiredText(id)})) {
        SqlSupport::logFailure("AccountRepository::reapTombstone failed:", query.lastError());
        return false;
    }
    emit accountsChanged();
    return true;
}

bool AccountRepository::reorder(const QStringList &ids)
{
    if (ids.isEmpty())
        return true;
    if (!SqlSupport::reorder(m_database->connection(),
                             QStringLiteral("UPDATE accounts SET sort_order = ?, updated_at = ? WHERE id = ?"), ids))
        return false;
    emit accountsChanged();
    return true;
}

int AccountRepository::dedupeCalDavAccounts()
{
    QHash<QString, QList<Account>> groups;
    QStringList keyOrder;
    for (const Account &account : getAllIncludingDeleted()) {
        if (account.deleted_at || !isCalDavKind(account.type) || account.server_url.isEmpty()
            || account.username.isEmpty())
            continue;
        const QString key = account.type + QLatin1Char('|') + account.server_url + QLatin1Char('|') + account.username;
        if (!groups.contains(key))
            keyOrder.append(key);
        groups[key].append(account);
    }

    QSqlDatabase db = m_database->connection();
    int collapsed = 0;
    for (const QString &key : std::as_const(keyOrder)) {
        QList<Account> group = groups.value(key);
        if (group.size() < 2)
            continue;
        // An unreadable creation time counts as the newest, so it never displaces a dated account.
        std::stable_sort(group.begin(), group.end(), [](const Account &a, const Account &b) {
            if (!a.created_at.isValid() || !b.created_at.isValid())
                return a.created_at.isValid() && !b.created_at.isValid();
            return a.created_at < b.created_at;
        });
        const QString keeperId = group.constFirst().id;
        for (qsizetype i = 1; i < group.size(); ++i) {
            const QString duplicateId = group.at(i).id;
            if (!db.transaction())
                return collapsed;
            QSqlQuery move(db);
            bool ok = SqlSupport::exec(move, QStringLiteral("UPDATE calendars SET account_id = ? WHERE account_id = ?"),
                                       {requiredText(keeperId), requiredText(duplicateId)});
            move.finish();
            ok = ok && softDelete(duplicateId);
            if (!ok || !db.commit()) {
                db.rollback();
                continue;
            }
            ++collapsed;
        }
    }
    if (collapsed > 0)
        emit accountsChanged();
    return collapsed;
}
