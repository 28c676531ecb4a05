// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/JsonRecords.h"

#include "storage/StorageFormat.h"

namespace JsonRecords {

QJsonValue dateTime(const QDateTime &value)
{
    if (!value.isValid())
        return QJsonValue::Null;
    return StorageFormat::dateTimeText(value);
}

QJsonValue dateTime(const std::optional<QDateTime> &value)
{
    return value ? dateTime(*value) : QJsonValue(QJsonValue::Null);
}

QJsonObject toJson(const Reminder &reminder)
{
    return QJsonObject{
        {QStringLiteral("id"), reminder.id},
        {QStringLiteral("event_id"), reminder.event_id},
        {QStringLiteral("minutes_before"), reminder.minutes_before},
        {QStringLiteral("action"), reminder.action},
        {QStringLiteral("acknowledged"), reminder.acknowledged},
        {QStringLiteral("trigger_time"), dateTime(reminder.trigger_time)},
    };
}

QJsonObject toJson(const Attendee &attendee)
{
    return QJsonObject{
        {QStringLiteral("id"), attendee.id},       {QStringLiteral("event_id"), attendee.event_id},
        {QStringLiteral("email"), attendee.email}, {QStringLiteral("name"), attendee.name},
        {QStringLiteral("role"), attendee.role},   {QStringLiteral("status"), attendee.status},
        {QStringLiteral("type"), attendee.type},   {QStringLiteral("rsvp"), attendee.rsvp},
    };
}

QJsonObject toJson(const Event &event)
{
    return QJsonObject{
        {QStringLiteral("id"), event.id},
        {QStringLiteral("calendar_id"), event.calendar_id},
        {QStringLiteral("uid"), event.uid},
        {QStringLiteral("provider_event_id"), event.provider_event_id},
        {QStringLiteral("etag"), event.etag},
        {QStringLiteral("href"), event.href},
        {QStringLiteral("title"), event.title},
        {QStringLiteral("description"), event.description},
        {QStringLiteral("location"), event.location},
        {QStringLiteral("geo_location"), event.geo_location},
        {QStringLiteral("start_time"), dateTime(event.start_time)},
        {QStringLiteral("end_time"), dateTime(event.end_time)},
        {QStringLiteral("is_all_day"), event.is_all_day},
        {QStringLiteral("timezone"), event.timezone},
        {QStringLiteral("recurrence_rule"), event.recurrence_rule},
        {QStringLiteral("recurrence_dates"), event.recurrence_dates},
        {QStringLiteral("exception_dates"), event.exception_dates},
        {QStringLiteral("recurrence_id"), event.recurrence_id},
        {QStringLiteral("master_event_uid"), event.master_event_uid},
        {QStringLiteral("status"), event.status},
        {QStringLiteral("event_url"), event.event_url},
        {QStringLiteral("conference_url"), event.conference_url},
        {QStringLiteral("organizer_email"), event.organizer_email},
        {QStringLiteral("organizer_name"), event.organizer_name},
        {QStringLiteral("sequence"), event.sequence},
        {QStringLiteral("raw_icalendar"), QString::fromUtf8(event.raw_icalendar)},
        {QStringLiteral("color"), event.color},
        {QStringLiteral("created"), dateTime(event.created)},
        {QStringLiteral("last_modified"), dateTime(event.last_modified)},
        {QStringLiteral("sync_status"), event.sync_status},
        {QStringLiteral("deleted_at"), dateTime(event.deleted_at)},
        {QStringLiteral("related_to_uid"), event.related_to_uid},
        {QStringLiteral("reminders"), toJsonArray(event.reminders)},
        {QStringLiteral("attendees"), toJsonArray(event.attendees)},
    };
}

QJsonObject toJson(const Task &task)
{
    return QJsonObject{
        {QStringLiteral("id"), task.id},
        {QStringLiteral("calendar_id"), task.calendar_id},
        {QStringLiteral("uid"), task.uid},
        {QStringLiteral("etag"), task.etag},
        {QStringLiteral("href"), task.href},
        {QStringLiteral("title"), task.title},
        {QStringLiteral("description"), task.description},
        {QStringLiteral("status"), task.status},
        {QStringLiteral("priority"), task.priority},
        {QStringLiteral("percent_complete"), task.percent_complete},
        {QStringLiteral("due_date"), dateTime(task.due_date)},
        {QStringLiteral("start_date"), dateTime(task.start_date)},
        {QStringLiteral("completed_date"), dateTime(task.completed_date)},
        {QStringLiteral("categories"), QJsonArray::fromStringList(task.categories)},
        {QStringLiteral("parent_task_uid"), task.parent_task_uid},
        {QStringLiteral("sort_order"), task.sort_order},
        {QStringLiteral("color"), task.color},
        {QStringLiteral("recurrence_rule"), task.recurrence_rule},
        {QStringLiteral("repeat_mode"), task.repeat_mode},
        {QStringLiteral("sequence"), task.sequence},
        {QStringLiteral("raw_icalendar"), QString::fromUtf8(task.raw_icalendar)},
        {QStringLiteral("created"), dateTime(task.created)},
        {QStringLiteral("last_modified"), dateTime(task.last_modified)},
        {QStringLiteral("sync_status"), task.sync_status},
        {QStringLiteral("deleted_at"), dateTime(task.deleted_at)},
        {QStringLiteral("due_is_date_only"), task.due_is_date_only},
        {QStringLiteral("start_is_date_only"), task.start_is_date_only},
    };
}

QJsonObject toJson(const Calendar &calendar)
{
    return QJsonObject{
        {QStringLiteral("id"), calendar.id},
        {QStringLiteral("account_id"), calendar.account_id},
        {QStringLiteral("url"), calendar.url},
        {QStringLiteral("name"), calendar.name},
        {QStringLiteral("description"), calendar.description},
        {QStringLiteral("color"), calendar.color},
        {QStringLiteral("timezone"), calendar.timezone},
        {QStringLiteral("is_visible"), calendar.is_visible},
        {QStringLiteral("is_read_only"), calendar.is_read_only},
        {QStringLiteral("is_default"), calendar.is_default},
        {QStringLiteral("ctag"), calendar.ctag},
        {QStringLiteral("sync_token"), calendar.sync_token},
        {QStringLiteral("delta_sync_token"), calendar.delta_sync_token},
        {QStringLiteral("supported_components"), calendar.supported_components},
        {QStringLiteral("sort_order"), calendar.sort_order},
        {QStringLiteral("canonical_key"), calendar.canonical_key},
        {QStringLiteral("sync_enabled"), calendar.sync_enabled},
        {QStringLiteral("is_shared"), calendar.is_shared},
        {QStringLiteral("shared_with_me"), calendar.shared_with_me},
        {QStringLiteral("last_sync_error"), calendar.last_sync_error},
        {QStringLiteral("created_at"), dateTime(calendar.created_at)},
        {QStringLiteral("updated_at"), dateTime(calendar.updated_at)},
    };
}

QJsonObject toJson(const Account &account)
{
    return QJsonObject{
        {QStringLiteral("id"), account.id},
        {QStringLiteral("name"), account.name},
        {QStringLiteral("type"), account.type},
        {QStringLiteral("server_url"), account.server_url},
        {QStringLiteral("username"), account.username},
        {QStringLiteral("calendar_home_set"), account.calendar_home_set},
        {QStringLiteral("principal_url"), account.principal_url},
        {QStringLiteral("sync_interval_minutes"), account.sync_interval_minutes},
        {QStringLiteral("last_sync_time"), dateTime(account.last_sync_time)},
        {QStringLiteral("last_sync_error"), account.last_sync_error},
        {QStringLiteral("enabled"), account.enabled},
        {QStringLiteral("color"), account.color},
        {QStringLiteral("exclude_from_sync"), account.exclude_from_sync},
        {QStringLiteral("trusted_cert_sha256"), account.trusted_cert_sha256},
        {QStringLiteral("pending_cert_sha256"), account.pending_cert_sha256},
        {QStringLiteral("created_at"), dateTime(account.created_at)},
        {QStringLiteral("updated_at"), dateTime(account.updated_at)},
        {QStringLiteral("deleted_at"), dateTime(account.deleted_at)},
    };
}

QJsonObject toJson(const CalendarView &view)
{
    return QJsonObject{
        {QStringLiteral("id"), view.id},
        {QStringLiteral("name"), view.name},
        {QStringLiteral("color"), view.color},
        {QStringLiteral("calendar_ids"), view.calendar_ids},
        {QStringLiteral("is_default"), view.is_default},
        {QStringLiteral("sort_order"), view.sort_order},
        {QStringLiteral("sync_status"), view.sync_status},
        {QStringLiteral("created_at"), dateTime(view.created_at)},
        {QStringLiteral("updated_at"), dateTime(view.updated_at)},
        {QStringLiteral("deleted_at"), dateTime(view.deleted_at)},
    };
}

QJsonObject toJson(const FilterRule &rule)
{
    return QJsonObject{
        {QStringLiteral("id"), rule.id},
        {QStringLiteral("name"), rule.name},
        {QStringLiteral("type"), rule.type},
        {QStringLiteral("enabled"), rule.enabled},
        {QStringLiteral("calendar_ids"), rule.calendar_ids},
        {QStringLiteral("conditions"), rule.conditions},
        {QStringLiteral("action"), rule.action},
        {QStringLiteral("priority"), rule.priority},
        {QStringLiteral("event_uid"), rule.event_uid},
        {QStringLiteral("event_calendar_id"), rule.event_calendar_id},
        {QStringLiteral("suppress_reminders"), rule.suppress_reminders},
        {QStringLiteral("sync_status"), rule.sync_status},
        {QStringLiteral("created_at"), dateTime(rule.created_at)},
        {QStringLiteral("updated_at"), dateTime(rule.updated_at)},
        {QStringLiteral("deleted_at"), dateTime(rule.deleted_at)},
    };
}

QJsonObject toJson(const Template &preset)
{
    return QJsonObject{
        {QStringLiteral("id"), preset.id},
        {QStringLiteral("name"), preset.name},
        {QStringLiteral("title"), preset.title},
        {QStringLiteral("description"), preset.description},
        {QStringLiteral("location"), preset.location},
        {QStringLiteral("color"), preset.color},
        {QStringLiteral("is_all_day"), preset.is_all_day},
        {QStringLiteral("duration_minutes"), preset.duration_minutes},
        {QStringLiteral("recurrence_rule"), preset.recurrence_rule},
        {QStringLiteral("calendar_id"), preset.calendar_id},
        {QStringLiteral("reminders"), StorageFormat::intListJson(preset.reminders)},
        {QStringLiteral("sort_order"), preset.sort_order},
        {QStringLiteral("created_at"), dateTime(preset.created_at)},
        {QStringLiteral("updated_at"), dateTime(preset.updated_at)},
        {QStringLiteral("deleted_at"), dateTime(preset.deleted_at)},
    };
}

} // namespace JsonRecords
