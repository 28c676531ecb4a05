// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/TemplateRepository.h"

#include "storage/Clock.h"
#include "storage/Database.h"
#include "storage/SqlSupport.h"
#include "storage/StorageFormat.h"

#include <QSqlError>
#include <QSqlQuery>

using SqlSupport::requiredText;

namespace {

const QString kSelect = QStringLiteral(
    "SELECT id, name, title, description, location, color, is_all_day, duration_minutes, recurrence_rule, "
    "calendar_id, reminders, sort_order, created_at, updated_at, deleted_at FROM event_templates");

Template fromRow(const QSqlQuery &query)
{
    Template preset;
    preset.id = query.value(0).toString();
    preset.name = query.value(1).toString();
    preset.title = query.value(2).toString();
    preset.description = query.value(3).toString();
    preset.location = query.value(4).toString();
    preset.color = query.value(5).toString();
    preset.is_all_day = StorageFormat::readBool(query.value(6));
    preset.duration_minutes = query.value(7).toInt();
    preset.recurrence_rule = query.value(8).toString();
    preset.calendar_id = query.value(9).toString();
    preset.reminders = StorageFormat::parseIntListJson(query.value(10).toString());
    preset.sort_order = query.value(11).toInt();
    preset.created_at = StorageFormat::parseDateTime(query.value(12).toString());
    preset.updated_at = StorageFormat::parseDateTime(query.value(13).toString());
    preset.deleted_at = StorageFormat::parseOptionalDateTime(query.value(14));
    return preset;
}

} // namespace

TemplateRepository::TemplateRepository(Database *database, QObject *parent)
    : QObject(parent)
    , m_database(database)
{ }

QList<Template> TemplateRepository::select(const QString &sqlTail, const QVariantList &values) const
{
    QList<Template> presets;
    QSqlQuery query(m_database->connection());
    query.setForwardOnly(true);
    if (!SqlSupport::exec(query, kSelect + sqlTail, values))
        return presets;
    while (query.next())
        presets.append(fromRow(query));
    return presets;
}

QList<Template> TemplateRepository::getAll() const
{
    return select(QStringLiteral(" WHERE deleted_at IS NULL ORDER BY sort_order, name"), {});
}

QList<Template> TemplateRepository::getAllIncludingDeleted() const
{
    return select(QStringLiteral(" ORDER BY sort_order, name"), {});
}

std::optional<Template> TemplateRepository::getById(const QString &id) const
{
    const QList<Template> found = select(QStringLiteral(" WHERE deleted_at IS NULL AND id = ?"), {requiredText(id)});
    if (found.isEmpty())
        return std::nullopt;
    return found.constFirst();
}

std::optional<Template> TemplateRepository::insert(const Template &preset)
{
    Template stored = preset;
    const QDateTime now = Clock::nowUtc();
    if (stored.id.isEmpty())
        stored.id = StorageFormat::newId();
    if (!stored.created_at.isValid())
        stored.created_at = now;
    stored.updated_at = now;

    QSqlQuery query(m_database->connection());
    const bool ok = SqlSupport::exec(
        query,
        QStringLiteral("INSERT INTO event_templates (id, name, title, description, location, color, is_all_day, "
                       "duration_minutes, recurrence_rule, calendar_id, reminders, sort_order, sync_status, "
                       "created_at, updated_at) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, 'pending', ?, ?)"),
        {requiredText(stored.id), requiredText(stored.name), requiredText(stored.title),
         requiredText(stored.description), requiredText(stored.location), requiredText(stored.color),
         StorageFormat::boolValue(stored.is_all_day), stored.duration_minutes, requiredText(stored.recurrence_rule),
         requiredText(stored.calendar_id), StorageFormat::intListJson(stored.reminders), stored.sort_order,
         StorageFormat::dateTimeValue(stored.created_at), StorageFormat::dateTimeValue(stored.updated_at)});
    if (!ok) {
        SqlSupport::logFailure("TemplateRepository::insert failed:", query.lastError());
        return std::nullopt;
    }
    emit templatesChanged();
    return stored;
}

bool TemplateRepository::update(const Template &preset)
{
    QSqlQuery query(m_database->connection());
    const bool ok = SqlSupport::exec(
        query,
        QStringLiteral("UPDATE event_templates SET name = ?, title = ?, description = ?, location = ?, color = ?, "
                       "is_all_day = ?, duration_minutes = ?, recurrence_rule = ?, calendar_id = ?, reminders = ?, "
                       "sort_order = ?, sync_status = 'pending', updated_at = ? WHERE id = ?"),
        {requiredText(preset.name), requiredText(preset.title), requiredText(preset.description),
         requiredText(preset.location), requiredText(preset.color), StorageFormat::boolValue(preset.is_all_day),
         preset.duration_minutes, requiredText(preset.recurrence_rule), requiredText(preset.calendar_id),
         StorageFormat::intListJson(preset.reminders), preset.sort_order, StorageFormat::dateTimeValue(Clock::nowUtc()),
         requiredText(preset.id)});
    if (!ok) {
        SqlSupport::logFailure("TemplateRepository::update failed:", query.lastError());
        return false;
    }
    emit templatesChanged();
    return true;
}

bool TemplateRepository::execWrite(const QString &sql, const QVariantList &values)
{
    QSqlQuery query(m_database->connection());
    if (!SqlSupport::exec(query, sql, values))
        return false;
    emit templatesChanged();
    return true;
}

bool TemplateRepository::remove(const QString &id)
{
    const QVariant now = StorageFormat::dateTimeValue(Clock::nowUtc());
    return execWrite(
        QStringLiteral(
            "UPDATE event_templates SET deleted_at = ?, sync_status = 'pending', updated_at = ? WHERE id = ?"),
        {now, now, requiredText(id)});
}

bool TemplateRepository::hardDelete(const QString &id)
{
    return execWrite(QStringLiteral("DELETE FROM event_templates WHERE id = ?"), {requiredText(id)});
}
