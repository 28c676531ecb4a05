// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/ChangeCoalescer.h"

ChangeCoalescer::ChangeCoalescer(QObject *owner, std::function<void(const QString &calendarId)> notify)
    : m_timer(owner)
{
    m_timer.setSingleShot(true);
    m_timer.setInterval(150);
    QObject::connect(&m_timer, &QTimer::timeout, owner, [this, notify = std::move(notify)] {
        const QString calendarId = m_pendingCalendarId;
        m_pendingCalendarId.clear();
        notify(calendarId);
    });
}

void ChangeCoalescer::note(const QString &calendarId)
{
    m_pendingCalendarId = calendarId;
    m_timer.start();
}
