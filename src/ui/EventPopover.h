// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/Event.h"

#include <QFrame>
#include <QRect>

#include <memory>

class AppState;
class EventEditor;
class SpanCache;

// The details of a clicked event (title, time, calendar, location, description, attendees,
// reminders) beside it, with Edit and Delete. Escape or a click elsewhere closes it.
class EventPopover : public QFrame
{
    Q_OBJECT

public:
    EventPopover(AppState *appState, SpanCache *cache, EventEditor *editor, QWidget *parent = nullptr);
    ~EventPopover() override;

    // Shows the occurrence beside `anchor` (global coordinates).
    void showFor(const Event &occurrence, const QRect &anchor);

signals:
    void editRequested(const Event &occurrence);

private:
    class Private;
    std::unique_ptr<Private> d;
};
