// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/CalendarRepository.h"

#include "storage/Clock.h"
#include "storage/Database.h"
#include "storage/LogCategories.h"
#include "storage/SqlSupport.h"
#include "storage/StorageFormat.h"

#include <QSqlError>
#include <QSqlQuery>

using SqlSupport::requiredText;

namespace {

const QString kColumns = QStringLiteral(
    "id, account_id, url, name, description, color, timezone, is_visible, is_read_only, is_default, ctag, "
    "sync_token, delta_sync_token, supported_components, sort_order, canonical_key, sync_enabled, is_shared, "
    "shared_with_me, last_sync_error, created_at, updated_at");

Calendar fromRow(const QSqlQuery &query)
{
    Calendar calendar;
    calendar.id = query.value(0).toString();
    calendar.account_id = query.value(1).toString();
    calendar.url = query.value(2).toString();
    calendar.name = query.value(3).toString();
    calendar.description = query.value(4).toString();
    calendar.color = query.value(5).toString();
    calendar.timezone = query.value(6).toString();
    calendar.is_visible = StorageFormat::readBool(query.value(7));
    calendar.is_read_only = StorageFormat::readBool(query.value(8));
    calendar.is_default = StorageFormat::readBool(query.value(9));
    calendar.ctag = query.value(10).toString();
    calendar.sync_token = query.value(11).toString();
    calendar.delta_sync_token = query.value(12).toString();
    calendar.supported_components = query.value(13).toString();
    calendar.sort_order = query.value(14).toInt();
    calendar.canonical_key = query.value(15).toString();
    calendar.sync_enabled = StorageFormat::readBool(query.value(16));
    calendar.is_shared = StorageFormat::readBool(query.value(17));
    calendar.shared_with_me = StorageFormat::readBool(query.value(18));
    calendar.last_sync_error = query.value(19).toString();
    calendar.created_at = StorageFormat::parseDateTime(query.value(20).toString());
    calendar.updated_at = StorageFormat::parseDateTime(query.value(21).toString());
    return calendar;
}

// The values of the columns from account_id to last_sync_error, in the order both insert and update
// name them.
QVariantList settableValues(const Calendar &calendar)
{
    return {requiredText(calendar.account_id),
            requiredText(calendar.url),
            requiredText(calendar.name),
            requiredText(calendar.description),
            requiredText(calendar.color),
            requiredText(calendar.timezone),
            StorageFormat::boolValue(calendar.is_visible),
            StorageFormat::boolValue(calendar.is_read_only),
            StorageFormat::boolValue(calendar.is_default),
            requiredText(calendar.ctag),
            requiredText(calendar.sync_token),
            requiredText(calendar.delta_sync_token),
            requiredText(calendar.supported_components),
            calendar.sort_order,
            requiredText(calendar.canonical_key),
            StorageFormat::boolValue(calendar.sync_enabled),
            StorageFormat::boolValue(calendar.is_shared),
            StorageFormat::boolValue(calendar.shared_with_me),
            requiredText(calendar.last_sync_error)};
}

} // namespace

CalendarRepository::CalendarRepository(Database *database, QObject *parent)
    : QObject(parent)
    , m_database(database)
{ }

QList<Calendar> CalendarRepository::select(const QString &sql, const QVariantList &values) const
{
    QList<Calendar> calendars;
    QSqlQuery query(m_database->connection());
    query.setForwardOnly(true);
    if (!SqlSupport::exec(query, sql.arg(kColumns), values))
        return calendars;
    while (query.next())
        calendars.append(fromRow(query));
    return calendars;
}

QList<Calendar> CalendarRepository::getAll() const
{
    return select(QStringLiteral("SELECT %1 FROM calendars ORDER BY sort_order, name"), {});
}

QList<Calendar> CalendarRepository::getByAccount(const QString &accountId) const
{
    return select(QStringLiteral("SELECT %1 FROM calendars WHERE account_id = ? ORDER BY sort_order, name"),
                  {requiredText(accountId)});
}

std::optional<Calendar> CalendarRepository::getById(const QString &id) const
{
    const QList<Calendar> found = select(QStringLiteral("SELECT %1 FROM calendars WHERE id = ?"), {requiredText(id)});
    if (found.isEmpty())
        return std::nullopt;
    return found.constFirst();
}

bool CalendarRepository::insert(const Calendar &calendar)
{
    const QDateTime now = Clock::nowUtc();
    QSqlQuery query(m_database->connection());
    const bool ok = SqlSupport::exec(
        query,
        QStringLiteral("INSERT INTO calendars (id, account_id, url, name, description, color, timezone, is_visible, "
                       "is_read_only, is_default, ctag, sync_token, delta_sync_token, supported_components, "
                       "sort_order, canonical_key, sync_enabled, is_shared, shared_with_me, last_sync_error, "
                       "created_at, updated_at) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, "
                       "?, ?)"),
        QVariantList{requiredText(calendar.id)} + settableValues(calendar)
            + QVariantList{StorageFormat::dateTimeValue(calendar.created_at.isValid() ? calendar.created_at : now),
                           StorageFormat::dateTimeValue(calendar.updated_at.isValid() ? calendar.updated_at : now)});
    if (!ok) {
        SqlSupport::logFailure("CalendarRepository::insert failed:", query.lastError());
        return false;
    }
    emit calendarsChanged();
    return true;
}

bool CalendarRepository::update(const Calendar &calendar)
{
    QSqlQuery query(m_database->connection());
    const bool ok = SqlSupport::exec(
        query,
        QStringLiteral("UPDATE calendars SET account_id = ?, url = ?, name = ?, description = ?, color = ?, "
                       "timezone = ?, is_visible = ?, is_read_only = ?, is_default = ?, ctag = ?, sync_token = ?, "
                       "delta_sync_token = ?, supported_components = ?, sort_order = ?, canonical_key = ?, "
                       "sync_enabled = ?, is_shared = ?, shared_with_me = ?, last_sync_error = ?, updated_at = ? "
                       "WHERE id = ?"),
        settableValues(calendar)
            + QVariantList{StorageFormat::dateTimeValue(Clock::nowUtc()), requiredText(calendar.id)});
    if (!ok) {
        SqlSupport::logFailure("CalendarRepository::update failed:", query.lastError());
        return false;
    }
    emit calendarsChanged();
    return true;
}

bool CalendarRepository::remove(const QString &id)
{
    QSqlQuery query(m_database->connection());
    if (!SqlSupport::exec(query, QStringLiteral("DELETE FROM calendars WHERE id = ?"), {requiredText(id)})) {
        SqlSupport::logFailure("CalendarRepository::remove failed:", query.lastError());
        return false;
    }
    emit calendarsChanged();
    return true;
}

bool CalendarRepository::setDefault(const QString &id)
{
    QSqlDatabase db = m_database->connection();
    if (!db.transaction())
        return false;
    const QVariant now = StorageFormat::dateTimeValue(Clock::nowUtc());

    QSqlQuery clear(db);
    if (!SqlSupport::exec(clear,
                          QStringLiteral("UPDATE calendars SET is_default = 0, updated_at = ? WHERE is_default = 1 "
                                         "AND id != ?"),
                          {now, requiredText(id)})) {
        SqlSupport::logFailure("CalendarRepository::setDefault clear failed:", clear.lastError());
        clear.finish();
        db.rollback();
        return false;
    }
    clear.finish();

    QSqlQuery set(db);
    if (!SqlSupport::exec(set, QStringLiteral("UPDATE calendars SET is_default = 1, updated_at = ? WHERE id = ?"),
                          {now, requiredText(id)})) {
        SqlSupport::logFailure("CalendarRepository::setDefault set failed:", set.lastError());
        set.finish();
        db.rollback();
        return false;
    }
    // Without this check an unknown id would commit the clear and leave no default at all.
    if (set.numRowsAffected() != 1) {
        qCWarning(lcRepository).noquote() << "CalendarRepository::setDefault set failed:"
                                          << "no calendar has the id" << id;
        set.finish();
        db.rollback();
        return false;
    }
    set.finish();
    if (!db.commit()) {
        db.rollback();
        return false;
    }
    emit calendarsChanged();
    return true;
}
