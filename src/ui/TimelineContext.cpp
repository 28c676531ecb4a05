// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/TimelineContext.h"

#include "app/AppState.h"
#include "storage/Clock.h"
#include "ui/SpanCache.h"
#include "ui/TimelineMath.h"

const ThemeManager::Colors &TimelineContext::colors() const
{
    return appState->theme()->colors();
}

bool TimelineContext::isDark() const
{
    return appState->theme()->isDark();
}

bool TimelineContext::isReadOnly(const Event &occurrence) const
{
    return cache->isReadOnly(occurrence);
}

void TimelineContext::select(const Event *occurrence)
{
    selectedRecurrenceId = occurrence ? occurrence->recurrence_id : QString();
    selectedId = occurrence ? occurrence->id : QString();
    appState->setSelectedEventId(selectedId);
}

int TimelineContext::dayLeft(int index) const
{
    return TimelineMath::dayLeft(index, layout.dayCount, gutter, columnsWidth);
}

int TimelineContext::dayAt(int x) const
{
    return TimelineMath::dayIndexAt(x, layout.dayCount, gutter, columnsWidth);
}

int TimelineContext::todayIndex() const
{
    const qint64 index = layout.firstDay.isValid() ? layout.firstDay.daysTo(Clock::nowLocal().date()) : -1;
    return index >= 0 && index < layout.dayCount ? int(index) : -1;
}
