// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/ViewRepository.h"

#include "storage/Clock.h"
#include "storage/Database.h"
#include "storage/SqlSupport.h"
#include "storage/StorageFormat.h"

#include <QSqlError>
#include <QSqlQuery>

using SqlSupport::requiredText;

namespace {

const QString kColumns = QStringLiteral(
    "id, name, color, calendar_ids, is_default, sort_order, sync_status, created_at, updated_at, deleted_at");

CalendarView fromRow(const QSqlQuery &query)
{
    CalendarView view;
    view.id = query.value(0).toString();
    view.name = query.value(1).toString();
    view.color = query.value(2).toString();
    view.calendar_ids = query.value(3).toString();
    view.is_default = StorageFormat::readBool(query.value(4));
    view.sort_order = query.value(5).toInt();
    view.sync_status = query.value(6).toString();
    view.created_at = StorageFormat::parseDateTime(query.value(7).toString());
    view.updated_at = StorageFormat::parseDateTime(query.value(8).toString());
    view.deleted_at = StorageFormat::parseOptionalDateTime(query.value(9));
    return view;
}

} // namespace

ViewRepository::ViewRepository(Database *database, QObject *parent)
    : QObject(parent)
    , m_database(database)
{ }

QList<CalendarView> ViewRepository::select(const QString &sql, const QVariantList &values) const
{
    QList<CalendarView> views;
    QSqlQuery query(m_database->connection());
    query.setForwardOnly(true);
    if (!SqlSupport::exec(query, sql.arg(kColumns), values))
        return views;
    while (query.next())
        views.append(fromRow(query));
    return views;
}

QList<CalendarView> ViewRepository::getAll() const
{
    return select(
        QStringLiteral(
            "SELECT %1 FROM calendar_views WHERE deleted_at IS NULL ORDER BY is_default DESC, sort_order, name"),
        {});
}

QList<CalendarView> ViewRepository::getAllIncludingDeleted() const
{
    return select(QStringLiteral("SELECT %1 FROM calendar_views ORDER BY is_default DESC, sort_order, name"), {});
}

std::optional<CalendarView> ViewRepository::getById(const QString &id) const
{
    const QList<CalendarView> found
        = select(QStringLiteral("SELECT %1 FROM calendar_views WHERE id = ?"), {requiredText(id)});
    if (found.isEmpty())
        return std::nullopt;
    return found.constFirst();
}

bool ViewRepository::insert(const CalendarView &view)
{
    const QDateTime now = Clock::nowUtc();
    QSqlQuery query(m_database->connection());
    const bool ok = SqlSupport::exec(
        query,
        QStringLiteral(
            "INSERT INTO calendar_views (id, name, color, calendar_ids, is_default, sort_order, sync_status, "
            "created_at, updated_at) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?)"),
        {requiredText(view.id), requiredText(view.name), requiredText(view.color), requiredText(view.calendar_ids),
         StorageFormat::boolValue(view.is_default), view.sort_order, requiredText(view.sync_status),
         StorageFormat::dateTimeValue(view.created_at.isValid() ? view.created_at : now),
         StorageFormat::dateTimeValue(view.updated_at.isValid() ? view.updated_at : now)});
    if (!ok) {
        SqlSupport::logFailure("ViewRepository::insert failed:", query.lastError());
        return false;
    }
    emit viewsChanged();
    return true;
}

bool ViewRepository::update(const CalendarView &view)
{
    QSqlQuery query(m_database->connection());
    const bool ok = SqlSupport::exec(
        query,
        QStringLiteral(
            "UPDATE calendar_views SET name = ?, color = ?, calendar_ids = ?, is_default = ?, sort_order = ?, "
            "sync_status = ?, updated_at = ? WHERE id = ?"),
        {requiredText(view.name), requiredText(view.color), requiredText(view.calendar_ids),
         StorageFormat::boolValue(view.is_default), view.sort_order, requiredText(view.sync_status),
         StorageFormat::dateTimeValue(Clock::nowUtc()), requiredText(view.id)});
    if (!ok) {
        SqlSupport::logFailure("ViewRepository::update failed:", query.lastError());
        return false;
    }
    emit viewsChanged();
    return true;
}

bool ViewRepository::execWrite(const QString &sql, const QVariantList &values)
{
    QSqlQuery query(m_database->connection());
    if (!SqlSupport::exec(query, sql, values))
        return false;
    emit viewsChanged();
    return true;
}

bool ViewRepository::remove(const QString &id)
{
    const QVariant now = StorageFormat::dateTimeValue(Clock::nowUtc());
    return execWrite(
        QStringLiteral(
            "UPDATE calendar_views SET deleted_at = ?, sync_status = 'pending', updated_at = ? WHERE id = ?"),
        {now, now, requiredText(id)});
}

bool ViewRepository::hardDelete(const QString &id)
{
    return execWrite(QStringLiteral("DELETE FROM calendar_views WHERE id = ?"), {requiredText(id)});
}

bool ViewRepository::reorder(const QStringList &ids)
{
    if (ids.isEmpty())
        return true;
    if (!SqlSupport::reorder(
            m_database->connection(),
            QStringLiteral(
                "UPDATE calendar_views SET sort_order = ?, sync_status = 'pending', updated_at = ? WHERE id = ?"),
            ids))
        return false;
    emit viewsChanged();
    return true;
}
