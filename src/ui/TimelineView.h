// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/Event.h"

#include <QDate>
#include <QDateTime>
#include <QList>
#include <QRect>
#include <QWidget>

#include <memory>

class AppState;
class EventEditor;
class SpanCache;

// The day, week and N-day view: a header of days, an all-day strip with multi-day bars, and a
// scrolling hour grid with workday shading ("ui/workdayStart"/"ui/workdayEnd"), a live
// current-time line, and overlapping events laid out side by side. Hour height follows
// AppState::hourHeight (Ctrl+wheel zooms through AppState); 12/24-hour labels by "ui/timeFormat".
// Double-click or drag on empty time asks for a new event there; events move by drag and resize
// by their bottom edge, snapped to 15 minutes, through the EventEditor.
class TimelineView : public QWidget
{
    Q_OBJECT

public:
    TimelineView(AppState *appState, SpanCache *cache, EventEditor *editor, QWidget *parent = nullptr);
    ~TimelineView() override;

    // Shows [firstDay, firstDay + dayCount).
    void setDays(const QDate &firstDay, int dayCount);
    QDate firstDay() const;
    int dayCount() const;
    // Scrolls the hour grid so that the given time is in view (start-up: the working day).
    void scrollToTime(const QTime &time);

    // An occurrence as it is drawn: one piece per day column for a timed event (an event across
    // midnight has one in each day it covers), one bar for an all-day or multi-day event. The
    // rectangle is in this widget's coordinates and may lie in the scrolled-away part of the grid;
    // bars folded into a "+N" are not drawn and not listed.
    struct DrawnItem
    {
        Event occurrence;
        QRect rect;
        bool allDay = false;
        bool dimmed = false;
        bool selected = false;
    };
    QList<DrawnItem> drawnItems() const;

signals:
    // An event was clicked: the occurrence and where it is on screen (global coordinates).
    void eventActivated(const Event &occurrence, const QRect &globalRect);
    // The user asked for a new event in this time range.
    void createRequested(const QDateTime &start, const QDateTime &end, bool allDay);
    // A day header was clicked.
    void dayActivated(const QDate &date);

protected:
    void showEvent(QShowEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    class Private;
    std::unique_ptr<Private> d;
};
