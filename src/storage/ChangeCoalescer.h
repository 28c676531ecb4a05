// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QTimer>

#include <functional>

// Collapses a burst of writes into one change notification: each note restarts a 150 ms single-shot
// timer, and when it fires the callback receives the calendar of the last write noted (an import of a
// thousand rows redraws the views once, not a thousand times).
class ChangeCoalescer
{
public:
    ChangeCoalescer(QObject *owner, std::function<void(const QString &calendarId)> notify);

    void note(const QString &calendarId);

private:
    QTimer m_timer;
    QString m_pendingCalendarId;
};
