// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/TaskRepository.h"

#include "ical/ICal.h"
#include "ical/Recurrence.h"
#include "storage/Clock.h"
#include "storage/Database.h"
#include "storage/Event.h"
#include "storage/LogCategories.h"
#include "storage/SqlSupport.h"
#include "storage/StatementCache.h"
#include "storage/StorageFormat.h"

#include <QSqlError>
#include <QSqlQuery>

using namespace SqlSupport;
using StorageFormat::dateTimeValue;

namespace {

const QString kColumns = QStringLiteral(
    "id, calendar_id, uid, etag, href, title, description, status, priority, percent_complete, due_date, start_date, "
    "completed_date, categories, parent_task_uid, sort_order, color, recurrence_rule, sequence, raw_icalendar, "
    "created, last_modified, sync_status, deleted_at, due_is_date_only, start_is_date_only, repeat_mode");

const QString kDefaultRepeatMode = QStringLiteral("fromDueDate");

QString buildUpdateSql()
{
    QStringList assignments;
    const QStringList columns = kColumns.split(QStringLiteral(", "));
    for (const QString &column : columns) {
        if (column != QLatin1String("id") && column != QLatin1String("created"))
            assignments.append(column + QLatin1String(" = ?"));
    }
    return QStringLiteral("UPDATE tasks SET %1 WHERE id = ?").arg(assignments.join(QStringLiteral(", ")));
}

const QString kInsert = QStringLiteral("INSERT INTO tasks (%1) VALUES (%2)").arg(kColumns, placeholders(27));
const QString kUpdate = buildUpdateSql();
const QString kSelectById = QStringLiteral("SELECT %1 FROM tasks WHERE id = ?").arg(kColumns);

// The 27 values of a row in column order; `created` is left out for an update.
QVariantList rowValues(const Task &task, const QString &syncStatus, const QDateTime &created,
                       const QDateTime &lastModified)
{
    QVariantList values;
    values.reserve(27);
    values << requiredText(task.id) << requiredText(task.calendar_id) << requiredText(task.uid) << task.etag
           << task.href << requiredText(task.title) << task.description << requiredText(task.status) << task.priority
           << task.percent_complete << dateTimeValue(task.due_date) << dateTimeValue(task.start_date)
           << dateTimeValue(task.completed_date) << StorageFormat::stringListJson(task.categories)
           << task.parent_task_uid << task.sort_order << task.color << task.recurrence_rule << task.sequence
           << requiredText(QString::fromUtf8(task.raw_icalendar));
    if (created.isValid())
        values << dateTimeValue(created);
    values << dateTimeValue(lastModified) << syncStatus << dateTimeValue(task.deleted_at)
           << StorageFormat::boolValue(task.due_is_date_only) << StorageFormat::boolValue(task.start_is_date_only)
           << (task.repeat_mode.isEmpty() ? kDefaultRepeatMode : task.repeat_mode);
    return values;
}

Task readTask(const QSqlQuery &query)
{
    Task task;
    task.id = query.value(0).toString();
    task.calendar_id = query.value(1).toString();
    task.uid = query.value(2).toString();
    task.etag = query.value(3).toString();
    task.href = query.value(4).toString();
    task.title = query.value(5).toString();
    task.description = query.value(6).toString();
    task.status = query.value(7).toString();
    task.priority = query.value(8).toInt();
    task.percent_complete = query.value(9).toInt();
    task.due_date = StorageFormat::parseOptionalDateTime(query.value(10));
    task.start_date = StorageFormat::parseOptionalDateTime(query.value(11));
    task.completed_date = StorageFormat::parseOptionalDateTime(query.value(12));
    task.categories = StorageFormat::parseStringListJson(query.value(13).toString());
    task.parent_task_uid = query.value(14).toString();
    task.sort_order = query.value(15).toInt();
    task.color = query.value(16).toString();
    task.recurrence_rule = query.value(17).toString();
    task.sequence = query.value(18).toInt();
    task.raw_icalendar = query.value(19).toString().toUtf8();
    task.created = StorageFormat::parseDateTime(query.value(20).toString());
    task.last_modified = StorageFormat::parseDateTime(query.value(21).toString());
    task.sync_status = query.value(22).toString();
    task.deleted_at = StorageFormat::parseOptionalDateTime(query.value(23));
    task.due_is_date_only = StorageFormat::readBool(query.value(24));
    task.start_is_date_only = StorageFormat::readBool(query.value(25));
    task.repeat_mode = query.value(26).toString();
    if (task.repeat_mode.isEmpty())
        task.repeat_mode = kDefaultRepeatMode;
    return task;
}

// The start of the first occurrence of the task's rule strictly after `anchor`, looked for
// within five years; invalid when there is none.
QDateTime nextOccurrence(const Task &task, const QDateTime &anchor)
{
    Event series;
    series.uid = task.uid;
    series.title = task.title;
    series.start_time = anchor;
    series.recurrence_rule = task.recurrence_rule;
    const QList<Event> occurrences = Recurrence::expandSeries(series, anchor.addSecs(1), anchor.addYears(5));
    for (const Event &occurrence : occurrences) {
        if (occurrence.start_time > anchor)
            return occurrence.start_time;
    }
    return QDateTime();
}

} // namespace

TaskRepository::TaskRepository(Database *database, QObject *parent)
    : QObject(parent)
    , m_database(database)
    , m_changes(this, [this](const QString &calendarId) { emit tasksChanged(calendarId); })
    , m_statements(std::make_unique<StatementCache>(database))
{ }

QList<Task> TaskRepository::selectTasks(const char *operation, const QString &sql, const QVariantList &values) const
{
    QSqlQuery *query = m_statements->run(sql, values, operation);
    if (!query) {
        return {};
    }
    QList<Task> tasks;
    while (query->next())
        tasks.append(readTask(*query));
    query->finish();
    return tasks;
}

std::optional<Task> TaskRepository::selectTask(const char *operation, const QString &sql,
                                               const QVariantList &values) const
{
    QSqlQuery *query = m_statements->run(sql, values, operation);
    if (!query) {
        return std::nullopt;
    }
    std::optional<Task> task;
    if (query->next())
        task = readTask(*query);
    query->finish();
    return task;
}

std::optional<Task> TaskRepository::getById(const QString &id) const
{
    return selectTask("TaskRepository::getById failed:", kSelectById, {id});
}

std::optional<Task> TaskRepository::getByUid(const QString &uid) const
{
    return selectTask("TaskRepository::getByUid failed:",
                      QStringLiteral("SELECT %1 FROM tasks WHERE uid = ? AND deleted_at IS NULL LIMIT 1").arg(kColumns),
                      {uid});
}

std::optional<Task> TaskRepository::getByUidAndCalendar(const QString &uid, const QString &calendarId) const
{
    return selectTask("TaskRepository::getByUidAndCalendar failed:",
                      QStringLiteral("SELECT %1 FROM tasks WHERE uid = ? AND calendar_id = ?").arg(kColumns),
                      {uid, calendarId});
}

QList<Task> TaskRepository::getByCalendar(const QString &calendarId) const
{
    return selectTasks("TaskRepository::getByCalendar failed:",
                       QStringLiteral("SELECT %1 FROM tasks WHERE calendar_id = ? AND deleted_at IS NULL ORDER BY "
                                      "due_date IS NULL, due_date, sort_order")
                           .arg(kColumns),
                       {calendarId});
}

QList<Task> TaskRepository::getInRange(const QDateTime &start, const QDateTime &end,
                                       const QStringList &calendarIds) const
{
    QString sql = QStringLiteral("SELECT %1 FROM tasks WHERE deleted_at IS NULL AND ((due_date IS NOT NULL AND "
                                 "due_date >= ? AND due_date < ?) OR (start_date IS NOT NULL AND start_date >= ? AND "
                                 "start_date < ?))")
                      .arg(kColumns);
    const QString startText = StorageFormat::dateTimeText(start.toUTC());
    const QString endText = StorageFormat::dateTimeText(end.toUTC());
    QVariantList values{startText, endText, startText, endText};
    if (!calendarIds.isEmpty()) {
        sql += QStringLiteral(" AND calendar_id IN (%1)").arg(placeholders(calendarIds.size()));
        for (const QString &id : calendarIds)
            values.append(id);
    }
    sql += QStringLiteral(" ORDER BY due_date, sort_order");
    return selectTasks("TaskRepository::getInRange failed:", sql, values);
}

QList<Task> TaskRepository::getPending(const QString &calendarId) const
{
    return selectTasks(
        "TaskRepository::getPending failed:",
        QStringLiteral("SELECT %1 FROM tasks WHERE calendar_id = ? AND sync_status = 'pending' ORDER BY last_modified")
            .arg(kColumns),
        {calendarId});
}

bool TaskRepository::insert(const Task &task)
{
    const QDateTime created = task.created.isValid() ? task.created : Clock::nowUtc();
    const QDateTime lastModified = task.last_modified.isValid() ? task.last_modified : Clock::nowUtc();
    const QString status = task.sync_status.isEmpty() ? QStringLiteral("synced") : task.sync_status;

    QSqlQuery *query
        = m_statements->run(kInsert, rowValues(task, status, created, lastModified), "TaskRepository::insert failed:");
    if (!query)
        return false;
    m_changes.note(task.calendar_id);
    return true;
}

bool TaskRepository::update(const Task &task)
{
    const QString status = task.sync_status.isEmpty() ? QStringLiteral("pending") : task.sync_status;
    QVariantList values = rowValues(task, status, QDateTime(), Clock::nowUtc());
    values.removeFirst(); // id goes last, into the WHERE clause
    values.append(task.id);

    QSqlQuery *query = m_statements->run(kUpdate, values, "TaskRepository::update failed:");
    if (!query)
        return false;
    if (query->numRowsAffected() < 1) {
        qCWarning(lcRepository).noquote() << "TaskRepository::update failed: no task with id" << task.id;
        return false;
    }
    m_changes.note(task.calendar_id);
    return true;
}

std::optional<QString> TaskRepository::calendarOf(const char *operation, const QString &id) const
{
    return m_statements->firstText(QStringLiteral("SELECT calendar_id FROM tasks WHERE id = ?"), {id}, operation);
}

bool TaskRepository::remove(const QString &id)
{
    const std::optional<QString> calendarId = calendarOf("TaskRepository::remove failed:", id);
    if (!calendarId)
        return false;
    const QString now = StorageFormat::dateTimeText(Clock::nowUtc());
    QSqlQuery *query = m_statements->run(
        QStringLiteral("UPDATE tasks SET deleted_at = ?, sync_status = 'pending', last_modified = ? WHERE id = ?"),
        {now, now, id}, "TaskRepository::remove failed:");
    if (!query)
        return false;
    m_changes.note(*calendarId);
    return true;
}

bool TaskRepository::hardDelete(const QString &id)
{
    const std::optional<QString> calendarId = calendarOf("TaskRepository::hardDelete failed:", id);
    if (!calendarId)
        return false;
    QSqlQuery *query = m_statements->run(QStringLiteral("DELETE FROM tasks WHERE id = ?"), {id},
                                         "TaskRepository::hardDelete failed:");
    if (!query)
        return false;
    m_changes.note(*calendarId);
    return true;
}

bool TaskRepository::markSynced(const QString &id, const QString &href, const QString &etag)
{
    QSqlQuery *query
        = m_statements->run(QStringLiteral("UPDATE tasks SET href = ?, etag = ?, sync_status = 'synced' WHERE id = ?"),
                            {href, etag, id}, "TaskRepository::markSynced failed:");
    if (!query)
        return false;
    return query->numRowsAffected() > 0;
}

bool TaskRepository::setCompleted(const QString &id, bool completed)
{
    std::optional<Task> found = getById(id);
    if (!found)
        return false;
    Task task = *found;
    const bool wasCompleted = task.status == QLatin1String("completed");

    auto reopen = [&task] {
        task.status = QStringLiteral("needs-action");
        task.completed_date.reset();
        task.percent_complete = 0;
    };

    if (!completed) {
        reopen();
    } else {
        QDateTime next;
        if (!task.recurrence_rule.isEmpty() && !wasCompleted) {
            QDateTime anchor;
            if (task.repeat_mode == QLatin1String("fromCompletionDate"))
                anchor = Clock::nowLocal();
            else if (task.due_date)
                anchor = *task.due_date;
            else if (task.start_date)
                anchor = *task.start_date;
            if (anchor.isValid())
                next = nextOccurrence(task, anchor);
        }
        if (next.isValid()) {
            // A recurring task never shows as completed: it moves on to its next date.
            const bool onDue = task.due_date.has_value();
            const std::optional<QDateTime> &replaced = onDue ? task.due_date : task.start_date;
            if (onDue ? task.due_is_date_only : task.start_is_date_only)
                next.setTime(QTime(0, 0));
            else if (replaced)
                next = next.toTimeZone(replaced->timeZone()); // same instant, stored as the date was
            if (onDue)
                task.due_date = next;
            else
                task.start_date = next;
            reopen();
        } else {
            task.status = QStringLiteral("completed");
            task.completed_date = Clock::nowUtc();
            task.percent_complete = 100;
        }
    }
    task.sequence += 1;
    task.sync_status = QStringLiteral("pending");
    task.raw_icalendar = ICal::buildTaskIcs(task);
    return update(task);
}
