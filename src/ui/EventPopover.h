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

    // Shows the occurrence beside `anchor` (global coordinates): to its right, else to its left,
    // else below or above it, always inside the anchor's screen.
    void showFor(const Event &occurrence, const QRect &anchor);
    // Asks and deletes the shown occurrence: for a series the scope question (with Cancel) is the
    // confirmation, otherwise "Delete event?". The popover closes first.
    void deleteOccurrence();

    Event occurrence() const;
    QString timeText() const;
    QString repeatText() const; // empty when the event does not repeat

    // Where a card of `card` size goes beside `anchor` within `available` (all global).
    static QRect placement(const QRect &anchor, const QSize &card, const QRect &available);

signals:
    void editRequested(const Event &occurrence);

protected:
    void keyPressEvent(QKeyEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;
    void hideEvent(QHideEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void applyTheme();

    class Private;
    std::unique_ptr<Private> d;
};
