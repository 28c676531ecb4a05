// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/EventRepository.h"

#include "storage/Clock.h"
#include "storage/Database.h"
#include "storage/LogCategories.h"
#include "storage/SqlSupport.h"
#include "storage/StatementCache.h"
#include "storage/StorageFormat.h"

#include <QHash>
#include <QSqlError>
#include <QSqlQuery>

using namespace SqlSupport;
using StorageFormat::dateTimeValue;

namespace {

const QString kColumns = QStringLiteral(
    "id, calendar_id, uid, provider_event_id, etag, href, title, description, location, geo_location, start_time, "
    "end_time, is_all_day, timezone, recurrence_rule, recurrence_dates, exception_dates, recurrence_id, "
    "master_event_uid, status, event_url, conference_url, organizer_email, organizer_name, sequence, raw_icalendar, "
    "color, created, last_modified, sync_status, deleted_at, related_to_uid");

// Events per child-row statement of a list read.
constexpr qsizetype kChildRowBatch = 500;

const QString kSelectCalendar = QStringLiteral("SELECT calendar_id FROM events WHERE id = ?");

const QString kReminderRows = QStringLiteral("SELECT id, minutes_before, action, acknowledged, trigger_time FROM "
                                             "reminders WHERE event_id = ? ORDER BY minutes_before ASC");
const QString kAttendeeRows = QStringLiteral("SELECT id, email, name, role, status, type, rsvp FROM attendees WHERE "
                                             "event_id = ? ORDER BY name, email");
const QString kReminderBatch = QStringLiteral("SELECT id, event_id, minutes_before, action, acknowledged, trigger_time "
                                              "FROM reminders WHERE event_id IN (%1) ORDER BY minutes_before ASC");
const QString kAttendeeBatch = QStringLiteral("SELECT id, event_id, email, name, role, status, type, rsvp FROM "
                                              "attendees WHERE event_id IN (%1) ORDER BY name, email");

const QString &insertSql()
{
    static const QString sql = QStringLiteral("INSERT INTO events (%1) VALUES (%2)").arg(kColumns, placeholders(32));
    return sql;
}

QString buildUpdateSql()
{
    QStringList assignments;
    const QStringList columns = kColumns.split(QStringLiteral(", "));
    for (const QString &column : columns) {
        if (column != QLatin1String("id") && column != QLatin1String("created"))
            assignments.append(column + QLatin1String(" = ?"));
    }
    return QStringLiteral("UPDATE events SET %1 WHERE id = ?").arg(assignments.join(QStringLiteral(", ")));
}

const QString &updateSql()
{
    static const QString sql = buildUpdateSql();
    return sql;
}

const QString kSelectById = QStringLiteral("SELECT %1 FROM events WHERE id = ?").arg(kColumns);
const QString kSelectByUidAndRecurrenceId = QStringLiteral("SELECT %1 FROM events WHERE uid = ? AND calendar_id = ? "
                                                           "AND COALESCE(recurrence_id, '') = COALESCE(?, '')")
                                                .arg(kColumns);

// The 32 values of a row in column order; `created` is left out for an update.
QVariantList rowValues(const Event &event, const QString &syncStatus, const QDateTime &created,
                       const QDateTime &lastModified)
{
    QVariantList values;
    values.reserve(32);
    values << requiredText(event.id) << requiredText(event.calendar_id) << requiredText(event.uid)
           << event.provider_event_id << event.etag << event.href << requiredText(event.title) << event.description
           << event.location << event.geo_location << dateTimeValue(event.start_time) << dateTimeValue(event.end_time)
           << StorageFormat::boolValue(event.is_all_day) << requiredText(event.timezone) << event.recurrence_rule
           << event.recurrence_dates << event.exception_dates << event.recurrence_id << event.master_event_uid
           << requiredText(event.status) << event.event_url << event.conference_url << event.organizer_email
           << event.organizer_name << event.sequence << requiredText(QString::fromUtf8(event.raw_icalendar))
           << event.color;
    if (created.isValid())
        values << dateTimeValue(created);
    values << dateTimeValue(lastModified) << syncStatus << dateTimeValue(event.deleted_at) << event.related_to_uid;
    return values;
}

// One row read by position in the column order above.
Event readEvent(const QSqlQuery &query)
{
    Event event;
    event.id = query.value(0).toString();
    event.calendar_id = query.value(1).toString();
    event.uid = query.value(2).toString();
    event.provider_event_id = query.value(3).toString();
    event.etag = query.value(4).toString();
    event.href = query.value(5).toString();
    event.title = query.value(6).toString();
    event.description = query.value(7).toString();
    event.location = query.value(8).toString();
    event.geo_location = query.value(9).toString();
    event.start_time = StorageFormat::parseDateTime(query.value(10).toString());
    event.end_time = StorageFormat::parseOptionalDateTime(query.value(11));
    event.is_all_day = StorageFormat::readBool(query.value(12));
    event.timezone = query.value(13).toString();
    event.recurrence_rule = query.value(14).toString();
    event.recurrence_dates = query.value(15).toString();
    event.exception_dates = query.value(16).toString();
    event.recurrence_id = query.value(17).toString();
    event.master_event_uid = query.value(18).toString();
    event.status = query.value(19).toString();
    event.event_url = query.value(20).toString();
    event.conference_url = query.value(21).toString();
    event.organizer_email = query.value(22).toString();
    event.organizer_name = query.value(23).toString();
    event.sequence = query.value(24).toInt();
    event.raw_icalendar = query.value(25).toString().toUtf8();
    event.color = query.value(26).toString();
    event.created = StorageFormat::parseDateTime(query.value(27).toString());
    event.last_modified = StorageFormat::parseDateTime(query.value(28).toString());
    event.sync_status = query.value(29).toString();
    event.deleted_at = StorageFormat::parseOptionalDateTime(query.value(30));
    event.related_to_uid = query.value(31).toString();

    if (!event.timezone.isEmpty() && event.timezone != QLatin1String("UTC")) {
        const QTimeZone zone = zoneNamed(event.timezone);
        if (zone.isValid()) {
            event.start_time = event.start_time.toTimeZone(zone);
            if (event.end_time)
                event.end_time = event.end_time->toTimeZone(zone);
        }
    }
    return event;
}

Reminder readReminder(const QSqlQuery &query, int first)
{
    Reminder reminder;
    reminder.id = query.value(0).toString();
    reminder.minutes_before = query.value(first).toInt();
    reminder.action = query.value(first + 1).toString();
    reminder.acknowledged = StorageFormat::readBool(query.value(first + 2));
    reminder.trigger_time = StorageFormat::parseOptionalDateTime(query.value(first + 3));
    return reminder;
}

Attendee readAttendee(const QSqlQuery &query, int first)
{
    Attendee attendee;
    attendee.id = query.value(0).toString();
    attendee.email = query.value(first).toString();
    attendee.name = query.value(first + 1).toString();
    attendee.role = query.value(first + 2).toString();
    attendee.status = query.value(first + 3).toString();
    attendee.type = query.value(first + 4).toString();
    attendee.rsvp = StorageFormat::readBool(query.value(first + 5));
    return attendee;
}

} // namespace

EventRepository::EventRepository(Database *database, QObject *parent)
    : QObject(parent)
    , m_database(database)
    , m_changes(this, [this](const QString &calendarId) { emit eventsChanged(calendarId); })
    , m_statements(std::make_unique<StatementCache>(database))
{ }

QList<Event> EventRepository::selectEvents(const char *operation, const QString &sql, const QVariantList &values,
                                           bool withChildRows) const
{
    QSqlQuery *query = m_statements->run(sql, values, operation);
    if (!query) {
        return {};
    }
    QList<Event> events;
    while (query->next())
        events.append(readEvent(*query));
    query->finish();
    if (withChildRows)
        loadChildRows(events);
    return events;
}

std::optional<Event> EventRepository::selectEvent(const char *operation, const QString &sql,
                                                  const QVariantList &values) const
{
    QSqlQuery *query = m_statements->run(sql, values, operation);
    if (!query) {
        return std::nullopt;
    }
    std::optional<Event> event;
    if (query->next())
        event = readEvent(*query);
    query->finish();
    return event;
}

void EventRepository::loadChildRows(Event &event) const
{
    QSqlError error;
    if (QSqlQuery *query = m_statements->prepare(kReminderRows, &error); query && execute(*query, {event.id})) {
        while (query->next()) {
            Reminder reminder = readReminder(*query, 1);
            reminder.event_id = event.id;
            event.reminders.append(reminder);
        }
        query->finish();
    } else {
        SqlSupport::logFailure("EventRepository::getById reminders failed:", query ? query->lastError() : error);
    }
    if (QSqlQuery *query = m_statements->prepare(kAttendeeRows, &error); query && execute(*query, {event.id})) {
        while (query->next()) {
            Attendee attendee = readAttendee(*query, 1);
            attendee.event_id = event.id;
            event.attendees.append(attendee);
        }
        query->finish();
    } else {
        SqlSupport::logFailure("EventRepository::getById attendees failed:", query ? query->lastError() : error);
    }
}

void EventRepository::loadChildRows(QList<Event> &events) const
{
    if (events.isEmpty())
        return;
    QHash<QString, QList<Reminder>> reminders;
    QHash<QString, QList<Attendee>> attendees;
    // The child rows of the whole list come from one statement per child table and batch of
    // kChildRowBatch events. Batches keep the statement small: the SQL driver takes time
    // quadratic in the number of "?" to prepare a statement (about 65 ms for 3000 of them), and
    // a full batch reuses one prepared statement.
    for (qsizetype from = 0; from < events.size(); from += kChildRowBatch) {
        const qsizetype count = std::min<qsizetype>(kChildRowBatch, events.size() - from);
        QVariantList ids;
        ids.reserve(count);
        for (qsizetype i = from; i < from + count; ++i)
            ids.append(events.at(i).id);
        const QString marks = placeholders(count);

        QSqlError error;
        std::optional<QSqlQuery> local;
        auto statement = [&](const QString &sql) -> QSqlQuery * {
            if (count == kChildRowBatch)
                return m_statements->prepare(sql, &error);
            local.emplace(m_database->connection());
            local->setForwardOnly(true);
            if (local->prepare(sql))
                return &*local;
            error = local->lastError();
            return nullptr;
        };

        if (QSqlQuery *query = statement(kReminderBatch.arg(marks)); query && execute(*query, ids)) {
            while (query->next()) {
                Reminder reminder = readReminder(*query, 2);
                reminder.event_id = query->value(1).toString();
                reminders[reminder.event_id].append(reminder);
            }
            query->finish();
        } else {
            SqlSupport::logFailure("EventRepository reminder rows failed:", query ? query->lastError() : error);
        }
        if (QSqlQuery *query = statement(kAttendeeBatch.arg(marks)); query && execute(*query, ids)) {
            while (query->next()) {
                Attendee attendee = readAttendee(*query, 2);
                attendee.event_id = query->value(1).toString();
                attendees[attendee.event_id].append(attendee);
            }
            query->finish();
        } else {
            SqlSupport::logFailure("EventRepository attendee rows failed:", query ? query->lastError() : error);
        }
    }
    if (reminders.isEmpty() && attendees.isEmpty())
        return;
    for (Event &event : events) {
        if (auto it = reminders.constFind(event.id); it != reminders.constEnd())
            event.reminders = *it;
        if (auto it = attendees.constFind(event.id); it != attendees.constEnd())
            event.attendees = *it;
    }
}

std::optional<Event> EventRepository::getById(const QString &id) const
{
    std::optional<Event> event = selectEvent("EventRepository::getById failed:", kSelectById, {id});
    if (event)
        loadChildRows(*event);
    return event;
}

std::optional<Event> EventRepository::getByUid(const QString &uid, const QString &calendarId) const
{
    return selectEvent("EventRepository::getByUid failed:",
                       QStringLiteral("SELECT %1 FROM events WHERE uid = ? AND calendar_id = ?").arg(kColumns),
                       {uid, calendarId});
}

std::optional<Event> EventRepository::getByUidAndRecurrenceId(const QString &uid, const QString &calendarId,
                                                              const QString &recurrenceId) const
{
    return selectEvent("EventRepository::getByUidAndRecurrenceId failed:", kSelectByUidAndRecurrenceId,
                       {uid, calendarId, recurrenceId});
}

QList<Event> EventRepository::getByCalendar(const QString &calendarId) const
{
    return selectEvents(
        "EventRepository::getByCalendar failed:",
        QStringLiteral("SELECT %1 FROM events WHERE calendar_id = ? AND deleted_at IS NULL ORDER BY start_time")
            .arg(kColumns),
        {calendarId}, true);
}

QList<Event> EventRepository::getInRange(const QDateTime &start, const QDateTime &end,
                                         const QStringList &calendarIds) const
{
    QString sql = QStringLiteral("SELECT %1 FROM events WHERE start_time < ? AND (end_time IS NULL OR end_time > ? OR "
                                 "(recurrence_rule IS NOT NULL AND recurrence_rule != '')) AND deleted_at IS NULL")
                      .arg(kColumns);
    QVariantList values{StorageFormat::dateTimeText(end.toUTC()), StorageFormat::dateTimeText(start.toUTC())};
    if (!calendarIds.isEmpty()) {
        sql += QStringLiteral(" AND calendar_id IN (%1)").arg(placeholders(calendarIds.size()));
        for (const QString &id : calendarIds)
            values.append(id);
    }
    sql += QStringLiteral(" ORDER BY start_time");
    return selectEvents("EventRepository::getInRange failed:", sql, values, true);
}

QList<Event> EventRepository::getPending(const QString &calendarId) const
{
    return selectEvents(
        "EventRepository::getPending failed:",
        QStringLiteral("SELECT %1 FROM events WHERE calendar_id = ? AND sync_status = 'pending' ORDER BY start_time")
            .arg(kColumns),
        {calendarId}, false);
}

QList<Event> EventRepository::getByRelatedToUid(const QString &uid) const
{
    return selectEvents("EventRepository::getByRelatedToUid failed:",
                        QStringLiteral("SELECT %1 FROM events WHERE related_to_uid = ? AND deleted_at IS NULL ORDER "
                                       "BY start_time ASC")
                            .arg(kColumns),
                        {uid}, false);
}

QList<Event> EventRepository::search(const QString &text, int limit) const
{
    const QString trimmed = text.trimmed();
    if (trimmed.isEmpty())
        return {};
    // The user's own "%" and "_" stay wildcards: nothing is escaped.
    const QString pattern = QLatin1Char('%') + trimmed + QLatin1Char('%');
    return selectEvents("EventRepository::search failed:",
                        QStringLiteral("SELECT %1 FROM events WHERE deleted_at IS NULL AND (title LIKE ? OR location "
                                       "LIKE ? OR description LIKE ?) ORDER BY start_time ASC LIMIT ?")
                            .arg(kColumns),
                        {pattern, pattern, pattern, std::max(limit, 1)}, false);
}

bool EventRepository::insert(const Event &event)
{
    // A record without its own timestamps (an event read from a file that names none) is
    // stamped now rather than refused by the NOT NULL columns.
    const QDateTime created = event.created.isValid() ? event.created : Clock::nowUtc();
    const QDateTime lastModified = event.last_modified.isValid() ? event.last_modified : Clock::nowUtc();
    const QString status = event.sync_status.isEmpty() ? QStringLiteral("synced") : event.sync_status;

    QSqlQuery *query = m_statements->run(insertSql(), rowValues(event, status, created, lastModified),
                                         "EventRepository::insert failed:");
    if (!query)
        return false;
    writeChildRows(event);
    m_changes.note(event.calendar_id);
    return true;
}

bool EventRepository::update(const Event &event)
{
    const QString status = event.sync_status.isEmpty() ? QStringLiteral("pending") : event.sync_status;
    QVariantList values = rowValues(event, status, QDateTime(), Clock::nowUtc());
    values.removeFirst(); // id goes last, into the WHERE clause
    values.append(event.id);

    QSqlQuery *query = m_statements->run(updateSql(), values, "EventRepository::update failed:");
    if (!query)
        return false;
    if (query->numRowsAffected() < 1) {
        qCWarning(lcRepository).noquote() << "EventRepository::update failed: no event with id" << event.id;
        return false;
    }
    writeChildRows(event);
    m_changes.note(event.calendar_id);
    return true;
}

void EventRepository::writeChildRows(const Event &event)
{
    QSqlError error;
    if (m_statements->run(QStringLiteral("DELETE FROM reminders WHERE event_id = ?"), {event.id},
                          "writeReminderRows delete failed:")) {
        QSqlQuery *insert = m_statements->prepare(
            QStringLiteral("INSERT INTO reminders (id, event_id, minutes_before, action, acknowledged, trigger_time) "
                           "VALUES (?, ?, ?, ?, ?, ?)"),
            &error);
        for (const Reminder &reminder : event.reminders) {
            const QDateTime trigger = reminder.trigger_time
                ? *reminder.trigger_time
                : event.start_time.addSecs(-qint64(reminder.minutes_before) * 60);
            const QVariantList values{
                reminder.id.isEmpty() ? StorageFormat::newId() : reminder.id,
                event.id,
                reminder.minutes_before,
                reminder.action.isEmpty() ? QStringLiteral("display") : reminder.action,
                StorageFormat::boolValue(reminder.acknowledged),
                dateTimeValue(std::optional<QDateTime>(trigger)),
            };
            if (!insert || !execute(*insert, values)) {
                SqlSupport::logFailure("writeReminderRows insert failed:", insert ? insert->lastError() : error);
                break;
            }
        }
    }

    if (!m_statements->run(QStringLiteral("DELETE FROM attendees WHERE event_id = ?"), {event.id},
                           "writeAttendeeRows delete failed:"))
        return;
    QSqlQuery *insert = m_statements->prepare(
        QStringLiteral("INSERT INTO attendees (id, event_id, email, name, role, status, type, rsvp) VALUES (?, ?, ?, "
                       "?, ?, ?, ?, ?)"),
        &error);
    for (const Attendee &attendee : event.attendees) {
        const QVariantList values{
            attendee.id.isEmpty() ? StorageFormat::newId() : attendee.id,
            event.id,
            requiredText(attendee.email),
            attendee.name,
            attendee.role.isEmpty() ? QStringLiteral("required") : attendee.role,
            attendee.status.isEmpty() ? QStringLiteral("needs-action") : attendee.status,
            attendee.type,
            StorageFormat::boolValue(attendee.rsvp),
        };
        if (!insert || !execute(*insert, values)) {
            SqlSupport::logFailure("writeAttendeeRows insert failed:", insert ? insert->lastError() : error);
            return;
        }
    }
}

std::optional<QString> EventRepository::calendarOf(const char *operation, const QString &id) const
{
    return m_statements->firstText(kSelectCalendar, {id}, operation);
}

bool EventRepository::remove(const QString &id)
{
    const std::optional<QString> calendarId = calendarOf("EventRepository::remove failed:", id);
    if (!calendarId)
        return false;
    const QString now = StorageFormat::dateTimeText(Clock::nowUtc());
    QSqlQuery *query = m_statements->run(
        QStringLiteral("UPDATE events SET deleted_at = ?, sync_status = 'pending', last_modified = ? WHERE id = ?"),
        {now, now, id}, "EventRepository::remove failed:");
    if (!query)
        return false;
    m_changes.note(*calendarId);
    return true;
}

bool EventRepository::hardDelete(const QString &id)
{
    const std::optional<QString> calendarId = calendarOf("EventRepository::hardDelete failed:", id);
    if (!calendarId)
        return false;
    for (const char *table : {"attendees", "attachments", "reminders"}) {
        if (!m_statements->run(QStringLiteral("DELETE FROM %1 WHERE event_id = ?").arg(QLatin1String(table)), {id},
                               "EventRepository::hardDelete child cleanup failed:"))
            return false;
    }
    if (!m_statements->run(QStringLiteral("DELETE FROM events WHERE id = ?"), {id},
                           "EventRepository::hardDelete failed:"))
        return false;
    m_changes.note(*calendarId);
    return true;
}

bool EventRepository::markSynced(const QString &id, const QString &href, const QString &etag)
{
    const std::optional<QString> calendarId = calendarOf("EventRepository::markSynced failed:", id);
    if (!calendarId)
        return false;
    QSqlQuery *query
        = m_statements->run(QStringLiteral("UPDATE events SET href = ?, etag = ?, sync_status = 'synced' WHERE id = ?"),
                            {href, etag, id}, "EventRepository::markSynced failed:");
    if (!query)
        return false;
    m_changes.note(*calendarId);
    return true;
}

bool EventRepository::restore(const Event &event)
{
    Event restored = event;
    restored.deleted_at.reset();
    restored.sync_status = QStringLiteral("pending");
    if (calendarOf("EventRepository::restore failed:", restored.id)) {
        const bool ok = update(restored);
        qCInfo(lcRepository).noquote() << "[Undo] cleared tombstone on existing row" << restored.id << "ok=" << ok;
        return ok;
    }
    // The tombstone was already purged after its deletion reached the server: the remote copy is
    // gone, so the event goes back as a new one.
    restored.provider_event_id.clear();
    restored.etag.clear();
    restored.href.clear();
    const bool ok = insert(restored);
    qCInfo(lcRepository).noquote() << "[Undo] re-inserted row" << restored.id << "title=" << restored.title
                                   << "ok=" << ok;
    return ok;
}
