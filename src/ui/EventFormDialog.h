// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/Event.h"

#include <QDateTime>
#include <QDialog>

#include <memory>

class AppState;
class EventEditor;
struct Template;

// The form for a new or an existing event: title, calendar, all-day, start and end, time zone,
// repeat (none, daily, weekdays, weekly, monthly, yearly, custom rule text), reminders, location,
// description and colour. Saving an occurrence of a series asks whether the change is for this
// event only, this and the following ones, or all of them.
class EventFormDialog : public QDialog
{
    Q_OBJECT

public:
    EventFormDialog(AppState *appState, EventEditor *editor, QWidget *parent = nullptr);
    ~EventFormDialog() override;

    // A new event in the given range; the calendar is preselected by "ui/defaultCalendarId", else
    // the default calendar, else the first writable one.
    void setNewEvent(const QDateTime &start, const QDateTime &end, bool allDay);
    // An existing event, opened on one of its occurrences. An event of a read-only calendar
    // opens read-only.
    void setEvent(const Event &occurrence);
    // Fills a new event from a template: title, place, notes, colour, calendar (when writable),
    // all-day, duration from the current start, repeat and reminders.
    void applyTemplate(const Template &preset);

    // The event as the form describes it now (what a save would write).
    Event editedEvent() const;
    // Saves as the Save button does: validates, asks the scope for an occurrence of a series,
    // writes through the editor and accepts. False when nothing was saved (invalid, cancelled,
    // failed). A form without changes accepts without writing.
    bool save();

    // After accept(): the event as stored (for "this and following", the new series).
    Event savedEvent() const;

private:
    class Private;
    std::unique_ptr<Private> d;
};
