// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/Reminder.h"

#include <QList>
#include <QWidget>

class QPushButton;
class QVBoxLayout;

// The reminders of an event as a list of lead times ("15 min before"), each with a remove
// button, and an "Add reminder" menu of the usual lead times.
class ReminderListEditor : public QWidget
{
    Q_OBJECT

public:
    // The lead times offered, in minutes: at the start, 5, 10, 15 and 30 minutes, 1 hour, 1 day.
    static QList<int> presetMinutes();

    explicit ReminderListEditor(QWidget *parent = nullptr);

    // Reminders kept as given (ids, actions, acknowledgement) until removed; shown by lead time.
    void setReminders(const QList<Reminder> &reminders);
    // The kept reminders in their original order, then the added ones in the order added.
    QList<Reminder> reminders() const { return m_reminders; }

    void addReminder(int minutesBefore); // a lead time already in the list is not added twice
    void removeReminder(int minutesBefore);

    void setReadOnly(bool readOnly);

signals:
    void remindersChanged();

private:
    void rebuild();

    QList<Reminder> m_reminders;
    QVBoxLayout *m_rows;
    QPushButton *m_addButton;
    bool m_readOnly = false;
};
