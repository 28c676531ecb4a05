// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/Event.h"
#include "ui/ThemeManager.h"
#include "ui/TimelineLayout.h"

#include <QDate>
#include <QDateTime>
#include <QString>

#include <functional>

class AppState;
class SpanCache;

// What the parts of the timeline (header, all-day strip, hour grid) share: the state hub, the
// layout of the span on screen, the screen preferences they read, the column geometry and the
// way a finished drag is handed back to the view. Owned by TimelineView.
struct TimelineContext
{
    AppState *appState = nullptr;
    SpanCache *cache = nullptr;
    TimelineLayout layout;

    int hourHeight = 56;
    int gutter = 56; // width of the hour labels at the left of every part
    // Width of the day columns, which start at `gutter` in every part. The hour grid sets it from its
    // own width (its scroll bar takes the rest), so that the header and strip line up with it.
    int columnsWidth = 0;
    bool use24Hour = false; // "ui/timeFormat"
    int workdayStart = 9; // "ui/workdayStart", hours
    int workdayEnd = 17; // "ui/workdayEnd", hours
    bool showWeekNumbers = false; // "ui/showWeekNumbers"

    // The selection: AppState holds the event id; the occurrence key narrows the ring to the one
    // occurrence picked here (empty: every occurrence of the id).
    QString selectedId;
    QString selectedRecurrenceId;

    // Hands a finished gesture to the view, which asks the scope for a series and calls the editor.
    // False when nothing was changed (cancelled, refused or failed).
    std::function<bool(const Event &, const QDateTime &)> commitMove;
    std::function<bool(const Event &, const QDateTime &)> commitResize;

    const ThemeManager::Colors &colors() const;
    bool isDark() const;
    bool isSelected(const Event &occurrence) const
    {
        return !selectedId.isEmpty() && occurrence.id == selectedId
            && (selectedRecurrenceId.isEmpty() || occurrence.recurrence_id == selectedRecurrenceId);
    }
    bool isReadOnly(const Event &occurrence) const;
    // Selects an occurrence (or clears the selection with an empty event id) through AppState.
    void select(const Event *occurrence);

    // The left edge of column `index` (index == dayCount: the right edge of the last one), and the
    // column under x, clamped to the columns shown.
    int dayLeft(int index) const;
    int dayAt(int x) const;
    // The column index of today, or -1 when today is not shown.
    int todayIndex() const;
};
