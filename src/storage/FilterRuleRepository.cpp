// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/FilterRuleRepository.h"

#include "storage/Clock.h"
#include "storage/Database.h"
#include "storage/SqlSupport.h"
#include "storage/StorageFormat.h"

#include <QSqlError>
#include <QSqlQuery>

using SqlSupport::requiredText;

namespace {

const QString kColumns = QStringLiteral(
    "id, name, type, enabled, calendar_ids, conditions, action, priority, event_uid, event_calendar_id, "
    "suppress_reminders, sync_status, created_at, updated_at, deleted_at");

FilterRule fromRow(const QSqlQuery &query)
{
    FilterRule rule;
    rule.id = query.value(0).toString();
    rule.name = query.value(1).toString();
    rule.type = query.value(2).toString();
    rule.enabled = StorageFormat::readBool(query.value(3));
    rule.calendar_ids = query.value(4).toString();
    rule.conditions = query.value(5).toString();
    rule.action = query.value(6).toString();
    rule.priority = query.value(7).toInt();
    rule.event_uid = query.value(8).toString();
    rule.event_calendar_id = query.value(9).toString();
    rule.suppress_reminders = StorageFormat::readBool(query.value(10));
    rule.sync_status = query.value(11).toString();
    rule.created_at = StorageFormat::parseDateTime(query.value(12).toString());
    rule.updated_at = StorageFormat::parseDateTime(query.value(13).toString());
    rule.deleted_at = StorageFormat::parseOptionalDateTime(query.value(14));
    return rule;
}

} // namespace

FilterRuleRepository::FilterRuleRepository(Database *database, QObject *parent)
    : QObject(parent)
    , m_database(database)
{ }

QList<FilterRule> FilterRuleRepository::select(const QString &sql, const QVariantList &values) const
{
    QList<FilterRule> rules;
    QSqlQuery query(m_database->connection());
    query.setForwardOnly(true);
    if (!SqlSupport::exec(query, sql.arg(kColumns), values))
        return rules;
    while (query.next())
        rules.append(fromRow(query));
    return rules;
}

QList<FilterRule> FilterRuleRepository::getAll() const
{
    return select(QStringLiteral("SELECT %1 FROM filter_rules WHERE deleted_at IS NULL ORDER BY priority, name"), {});
}

QList<FilterRule> FilterRuleRepository::getAllIncludingDeleted() const
{
    return select(QStringLiteral("SELECT %1 FROM filter_rules ORDER BY priority, name"), {});
}

std::optional<FilterRule> FilterRuleRepository::getById(const QString &id) const
{
    const QList<FilterRule> found
        = select(QStringLiteral("SELECT %1 FROM filter_rules WHERE id = ?"), {requiredText(id)});
    if (found.isEmpty())
        return std::nullopt;
    return found.constFirst();
}

QList<FilterRule> FilterRuleRepository::getEnabled() const
{
    return select(QStringLiteral("SELECT %1 FROM filter_rules WHERE deleted_at IS NULL AND enabled = 1 ORDER BY "
                                 "priority, name"),
                  {});
}

bool FilterRuleRepository::insert(const FilterRule &rule)
{
    const QDateTime now = Clock::nowUtc();
    QSqlQuery query(m_database->connection());
    const bool ok = SqlSupport::exec(
        query,
        QStringLiteral("INSERT INTO filter_rules (id, name, type, enabled, calendar_ids, conditions, action, priority, "
                       "event_uid, event_calendar_id, suppress_reminders, sync_status, created_at, updated_at) "
                       "VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
        {requiredText(rule.id), requiredText(rule.name), requiredText(rule.type),
         StorageFormat::boolValue(rule.enabled), requiredText(rule.calendar_ids), requiredText(rule.conditions),
         requiredText(rule.action), rule.priority, requiredText(rule.event_uid), requiredText(rule.event_calendar_id),
         StorageFormat::boolValue(rule.suppress_reminders), requiredText(rule.sync_status),
         StorageFormat::dateTimeValue(rule.created_at.isValid() ? rule.created_at : now),
         StorageFormat::dateTimeValue(rule.updated_at.isValid() ? rule.updated_at : now)});
    if (!ok) {
        SqlSupport::logFailure("FilterRuleRepository::insert failed:", query.lastError());
        return false;
    }
    emit filterRulesChanged();
    return true;
}

bool FilterRuleRepository::update(const FilterRule &rule)
{
    QSqlQuery query(m_database->connection());
    const bool ok = SqlSupport::exec(
        query,
        QStringLiteral("UPDATE filter_rules SET name = ?, type = ?, enabled = ?, calendar_ids = ?, conditions = ?, "
                       "action = ?, priority = ?, event_uid = ?, event_calendar_id = ?, suppress_reminders = ?, "
                       "sync_status = ?, updated_at = ? WHERE id = ?"),
        {requiredText(rule.name), requiredText(rule.type), StorageFormat::boolValue(rule.enabled),
         requiredText(rule.calendar_ids), requiredText(rule.conditions), requiredText(rule.action), rule.priority,
         requiredText(rule.event_uid), requiredText(rule.event_calendar_id),
         StorageFormat::boolValue(rule.suppress_reminders), requiredText(rule.sync_status),
         StorageFormat::dateTimeValue(Clock::nowUtc()), requiredText(rule.id)});
    if (!ok) {
        SqlSupport::logFailure("FilterRuleRepository::update failed:", query.lastError());
        return false;
    }
    emit filterRulesChanged();
    return true;
}

bool FilterRuleRepository::execWrite(const QString &sql, const QVariantList &values)
{
    QSqlQuery query(m_database->connection());
    if (!SqlSupport::exec(query, sql, values))
        return false;
    emit filterRulesChanged();
    return true;
}

bool FilterRuleRepository::setEnabled(const QString &id, bool enabled)
{
    return execWrite(
        QStringLiteral("UPDATE filter_rules SET enabled = ?, sync_status = 'pending', updated_at = ? WHERE id = ?"),
        {StorageFormat::boolValue(enabled), StorageFormat::dateTimeValue(Clock::nowUtc()), requiredText(id)});
}

bool FilterRuleRepository::reorder(const QStringList &ids)
{
    if (ids.isEmpty())
        return true;
    if (!SqlSupport::reorder(
            m_database->connection(),
            QStringLiteral(
                "UPDATE filter_rules SET priority = ?, sync_status = 'pending', updated_at = ? WHERE id = ?"),
            ids))
        return false;
    emit filterRulesChanged();
    return true;
}

bool FilterRuleRepository::remove(const QString &id)
{
    const QVariant now = StorageFormat::dateTimeValue(Clock::nowUtc());
    return execWrite(
        QStringLiteral("UPDATE filter_rules SET deleted_at = ?, sync_status = 'pending', updated_at = ? WHERE id = ?"),
        {now, now, requiredText(id)});
}

bool FilterRuleRepository::hardDelete(const QString &id)
{
    return execWrite(QStringLiteral("DELETE FROM filter_rules WHERE id = ?"), {requiredText(id)});
}
