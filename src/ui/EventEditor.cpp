// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/EventEditor.h"

#include "app/AppState.h"
#include "app/UndoStack.h"
#include "ical/EventText.h"
#include "ical/Recurrence.h"
#include "storage/Clock.h"
#include "storage/EventRepository.h"
#include "storage/StorageFormat.h"

#include <QCoreApplication>

#include <QTimeZone>

namespace {

// A generated occurrence carries its master's rule; an override row names its series.
bool isGeneratedOccurrence(const Event &occurrence)
{
    return !occurrence.recurrence_rule.isEmpty();
}

bool isOverride(const Event &occurrence)
{
    return occurrence.recurrence_rule.isEmpty() && !occurrence.master_event_uid.isEmpty()
        && !occurrence.recurrence_id.isEmpty();
}

// The instant a recurrence id ("yyyyMMddTHHmmssZ") names.
QDateTime recurrenceInstant(const QString &recurrenceId)
{
    QString text = recurrenceId;
    if (text.endsWith(QLatin1Char('Z')))
        text.chop(1);
    QDateTime instant = QDateTime::fromString(text, QStringLiteral("yyyyMMdd'T'HHmmss"));
    instant.setTimeZone(QTimeZone::utc());
    return instant;
}

// Marks a row as a local change: pending, next sequence, text regenerated.
void touch(Event &event)
{
    event.sync_status = QStringLiteral("pending");
    event.sequence += 1;
    event.last_modified = Clock::nowUtc();
    event.raw_icalendar = EventText::updatedText(event.raw_icalendar, event);
}

// Puts a row back as it was before a gesture; the restore is itself a local change to push.
void putBack(EventRepository *events, Event row)
{
    touch(row);
    events->update(row);
}

// Takes back a row this editor created: one no server has seen goes for good, one that was pushed
// meanwhile leaves a tombstone so that its deletion is pushed too.
void discardCreated(EventRepository *events, const QString &id)
{
    if (const std::optional<Event> created = events->getById(id)) {
        if (created->href.isEmpty())
            events->hardDelete(id);
        else
            events->remove(id);
    }
}

// Reminders follow the event: fire times are recomputed from the new start, and a reminder that
// now lies ahead fires again.
void rearmReminders(Event &event)
{
    const QDateTime now = Clock::nowUtc();
    for (Reminder &reminder : event.reminders) {
        reminder.trigger_time.reset();
        if (event.start_time.addSecs(-qint64(reminder.minutes_before) * 60) > now)
            reminder.acknowledged = false;
    }
}

} // namespace

EventEditor::EventEditor(AppState *appState, QObject *parent)
    : QObject(parent)
    , m_appState(appState)
{ }

bool EventEditor::isPartOfSeries(const Event &occurrence)
{
    return isGeneratedOccurrence(occurrence) || isOverride(occurrence);
}

std::optional<Event> EventEditor::storedRow(const QString &id)
{
    std::optional<Event> row = m_appState->events()->getById(id);
    if (!row || row->deleted_at) {
        emit failed(tr("The event no longer exists."));
        return std::nullopt;
    }
    return row;
}

std::optional<Event> EventEditor::masterOf(const Event &occurrence)
{
    if (isGeneratedOccurrence(occurrence))
        return storedRow(occurrence.id);
    std::optional<Event> master
        = m_appState->events()->getByUidAndRecurrenceId(occurrence.master_event_uid, occurrence.calendar_id, QString());
    if (master)
        master = m_appState->events()->getById(master->id); // with its reminders and attendees
    if (!master || master->deleted_at)
        emit failed(tr("The series of this event no longer exists."));
    return master;
}

bool EventEditor::write(const Event &event)
{
    if (m_appState->events()->update(event))
        return true;
    emit failed(tr("The event \"%1\" could not be saved.").arg(event.title));
    return false;
}

void EventEditor::pushUndo(const QString &summary, std::function<void()> undo)
{
    m_appState->undoStack()->push({summary, std::move(undo)});
}

std::optional<Event> EventEditor::create(Event draft)
{
    const QDateTime now = Clock::nowUtc();
    if (draft.id.isEmpty())
        draft.id = StorageFormat::newId();
    if (draft.uid.isEmpty())
        draft.uid = draft.id;
    draft.created = now;
    draft.last_modified = now;
    draft.sequence = 0;
    draft.sync_status = QStringLiteral("pending");
    draft.raw_icalendar = EventText::updatedText(QByteArray(), draft);
    rearmReminders(draft);
    if (!m_appState->events()->insert(draft)) {
        emit failed(tr("The event \"%1\" could not be saved.").arg(draft.title));
        return std::nullopt;
    }
    return draft;
}

bool EventEditor::move(const Event &occurrence, const QDateTime &newStart, Scope scope)
{
    std::optional<QDateTime> newEnd;
    if (occurrence.end_time)
        newEnd = newStart.addMSecs(occurrence.start_time.msecsTo(*occurrence.end_time));
    return changeTimes(occurrence, newStart, newEnd, scope, tr("Moved \"%1\"").arg(occurrence.title));
}

bool EventEditor::resize(const Event &occurrence, const QDateTime &newEnd, Scope scope)
{
    if (!(newEnd > occurrence.start_time))
        return false;
    return changeTimes(occurrence, occurrence.start_time, newEnd, scope, tr("Resized \"%1\"").arg(occurrence.title));
}

bool EventEditor::changeTimes(const Event &occurrence, const QDateTime &newStart,
                              const std::optional<QDateTime> &newEnd, Scope scope, const QString &summary)
{
    Event edited = occurrence;
    edited.start_time = newStart;
    edited.end_time = newEnd;
    return apply(occurrence, edited, scope, summary);
}

bool EventEditor::save(const Event &occurrence, const Event &edited, Scope scope)
{
    return apply(occurrence, edited, scope, QString());
}

// Copies what a user can edit from `edited` onto a stored row.
static void copyEditable(Event &row, const Event &edited)
{
    row.title = edited.title;
    row.description = edited.description;
    row.location = edited.location;
    row.color = edited.color;
    row.timezone = edited.timezone;
    row.is_all_day = edited.is_all_day;
    row.status = edited.status;
    row.reminders = edited.reminders;
    for (Reminder &reminder : row.reminders)
        reminder.event_id = row.id;
}

bool EventEditor::apply(const Event &occurrence, const Event &edited, Scope scope, const QString &summary)
{
    const bool series = isPartOfSeries(occurrence);
    if (!series || (isOverride(occurrence) && scope == Scope::ThisEvent))
        return applyToRow(occurrence, edited, summary);
    if (scope == Scope::ThisEvent)
        return makeOverride(occurrence, edited, summary);

    std::optional<Event> master = masterOf(occurrence);
    if (!master)
        return false;
    const QDateTime slot = isOverride(occurrence) ? recurrenceInstant(occurrence.recurrence_id) : occurrence.start_time;
    // "This and following" from the first occurrence is the whole series.
    if (scope == Scope::ThisAndFollowing && slot > master->start_time)
        return splitAt(*master, slot, edited, summary);

    // All events: the master moves by as much as this occurrence moved, and takes its length.
    const Event before = *master;
    Event row = *master;
    const qint64 shift = occurrence.start_time.msecsTo(edited.start_time);
    row.start_time = master->start_time.addMSecs(shift);
    if (edited.end_time)
        row.end_time = row.start_time.addMSecs(edited.start_time.msecsTo(*edited.end_time));
    else
        row.end_time.reset();
    if (summary.isEmpty()) {
        copyEditable(row, edited);
        row.recurrence_rule = edited.recurrence_rule;
        row.calendar_id = master->calendar_id;
    }
    rearmReminders(row);
    touch(row);
    if (!write(row))
        return false;
    if (!summary.isEmpty()) {
        EventRepository *events = m_appState->events();
        pushUndo(summary, [events, before] { putBack(events, before); });
    }
    return true;
}

bool EventEditor::applyToRow(const Event &occurrence, const Event &edited, const QString &summary)
{
    std::optional<Event> stored = storedRow(occurrence.id);
    if (!stored)
        return false;
    const Event before = *stored;
    Event row = *stored;
    row.start_time = edited.start_time;
    row.end_time = edited.end_time;
    if (summary.isEmpty()) {
        copyEditable(row, edited);
        if (!isOverride(occurrence))
            row.recurrence_rule = edited.recurrence_rule;
    }
    rearmReminders(row);

    // Moving an event that a server holds to another calendar: the old copy is deleted there and
    // a new one created in the other calendar.
    if (summary.isEmpty() && edited.calendar_id != row.calendar_id && !edited.calendar_id.isEmpty()) {
        if (!row.href.isEmpty()) {
            Event copy = row;
            copy.id = StorageFormat::newId();
            copy.calendar_id = edited.calendar_id;
            copy.href.clear();
            copy.etag.clear();
            copy.provider_event_id.clear();
            for (Reminder &reminder : copy.reminders) {
                reminder.id.clear();
                reminder.event_id = copy.id;
            }
            for (Attendee &attendee : copy.attendees) {
                attendee.id.clear();
                attendee.event_id = copy.id;
            }
            touch(copy);
            if (!m_appState->events()->insert(copy)) {
                emit failed(tr("The event \"%1\" could not be saved.").arg(copy.title));
                return false;
            }
            m_appState->events()->remove(row.id);
            return true;
        }
        row.calendar_id = edited.calendar_id;
    }
    touch(row);
    if (!write(row))
        return false;
    if (!summary.isEmpty()) {
        EventRepository *events = m_appState->events();
        pushUndo(summary, [events, before] { putBack(events, before); });
    }
    return true;
}

bool EventEditor::makeOverride(const Event &occurrence, const Event &edited, const QString &summary)
{
    Event row = occurrence;
    row.id = StorageFormat::newId();
    row.master_event_uid = occurrence.uid;
    row.recurrence_rule.clear();
    row.exception_dates.clear();
    row.recurrence_dates.clear();
    row.href.clear();
    row.etag.clear();
    row.provider_event_id.clear();
    row.raw_icalendar.clear();
    row.start_time = edited.start_time;
    row.end_time = edited.end_time;
    row.created = Clock::nowUtc();
    row.sequence = 0;
    if (summary.isEmpty())
        copyEditable(row, edited);
    for (Reminder &reminder : row.reminders) {
        reminder.id.clear();
        reminder.event_id = row.id;
    }
    for (Attendee &attendee : row.attendees) {
        attendee.id.clear();
        attendee.event_id = row.id;
    }
    rearmReminders(row);
    touch(row);
    row.sequence = 0;
    if (!m_appState->events()->insert(row)) {
        emit failed(tr("The event \"%1\" could not be saved.").arg(row.title));
        return false;
    }
    if (!summary.isEmpty()) {
        EventRepository *events = m_appState->events();
        const QString id = row.id;
        pushUndo(summary, [events, id] { discardCreated(events, id); });
    }
    return true;
}

bool EventEditor::splitAt(const Event &master, const QDateTime &slot, const Event &edited, const QString &summary)
{
    const Event before = master;
    const std::optional<Event> created
        = Recurrence::splitSeries(*m_appState->events(), master, slot, edited.start_time, edited.end_time);
    if (!created) {
        emit failed(tr("The event \"%1\" could not be saved.").arg(master.title));
        return false;
    }
    Event next = *created;
    next.reminders = master.reminders;
    for (Reminder &reminder : next.reminders) {
        reminder.id.clear();
        reminder.event_id = next.id;
    }
    if (summary.isEmpty()) {
        copyEditable(next, edited);
        if (!edited.recurrence_rule.isEmpty())
            next.recurrence_rule = edited.recurrence_rule;
    }
    rearmReminders(next);
    next.raw_icalendar = EventText::updatedText(QByteArray(), next);
    if (!write(next))
        return false;
    // The shortened master's text follows its new rule.
    if (std::optional<Event> shortened = m_appState->events()->getById(master.id)) {
        shortened->raw_icalendar = EventText::updatedText(shortened->raw_icalendar, *shortened);
        m_appState->events()->update(*shortened);
    }
    if (!summary.isEmpty()) {
        EventRepository *events = m_appState->events();
        const QString newId = next.id;
        pushUndo(summary, [events, before, newId] {
            discardCreated(events, newId);
            putBack(events, before);
        });
    }
    return true;
}

bool EventEditor::remove(const Event &occurrence, Scope scope)
{
    const QString summary = tr("Deleted \"%1\"").arg(occurrence.title);
    EventRepository *events = m_appState->events();
    if (!isPartOfSeries(occurrence)) {
        const std::optional<Event> stored = storedRow(occurrence.id);
        if (!stored || !events->remove(stored->id)) {
            emit failed(tr("The event \"%1\" could not be deleted.").arg(occurrence.title));
            return false;
        }
        const Event before = *stored;
        pushUndo(summary, [events, before] { events->restore(before); });
        return true;
    }

    std::optional<Event> master = masterOf(occurrence);
    if (!master)
        return false;
    const Event masterBefore = *master;
    const QDateTime slot = isOverride(occurrence) ? recurrenceInstant(occurrence.recurrence_id) : occurrence.start_time;

    if (scope == Scope::AllEvents || (scope == Scope::ThisAndFollowing && slot <= master->start_time)) {
        QList<Event> removed{*master};
        for (const Event &row : events->getByCalendar(master->calendar_id)) {
            if (row.master_event_uid == master->uid && !row.recurrence_id.isEmpty())
                removed.append(row);
        }
        for (const Event &row : std::as_const(removed))
            events->remove(row.id);
        pushUndo(summary, [events, removed] {
            for (const Event &row : removed)
                events->restore(row);
        });
        return true;
    }

    Event row = *master;
    std::optional<Event> overrideRow;
    if (isOverride(occurrence))
        overrideRow = events->getById(occurrence.id);
    if (scope == Scope::ThisEvent) {
        // The slot stays empty: an exception date, so the rule does not generate it again.
        QStringList exceptions = StorageFormat::parseStringListJson(row.exception_dates);
        const QString id = slot.toUTC().toString(QStringLiteral("yyyyMMdd'T'HHmmss'Z'"));
        if (!exceptions.contains(id))
            exceptions.append(id);
        row.exception_dates = StorageFormat::stringListJson(exceptions);
    } else {
        row.recurrence_rule = Recurrence::truncateRule(row.recurrence_rule, slot.addSecs(-1));
    }
    touch(row);
    if (!write(row))
        return false;
    if (overrideRow)
        events->remove(overrideRow->id);
    pushUndo(summary, [events, masterBefore, overrideRow] {
        putBack(events, masterBefore);
        if (overrideRow)
            events->restore(*overrideRow);
    });
    return true;
}
