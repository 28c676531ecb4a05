// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/Event.h"

#include <QDate>
#include <QList>
#include <QString>
#include <QTime>

#include <array>
#include <utility>

// The arithmetic of month grids (the month view and the sidebar's mini month): which days a grid
// covers, the week number of a row, and where each event goes in the cells of a week row. Pure
// functions; dates are local calendar dates.
namespace MonthLayout {

inline constexpr int kDaysPerWeek = 7;
inline constexpr int kWeeksPerGrid = 6;
inline constexpr int kGridDays = kDaysPerWeek * kWeeksPerGrid;

// The grid of the month that holds `date`: the first day shown (the last `firstDayOfWeek` on or
// before the 1st) and the number of days, always six whole weeks. Invalid date: ({}, 0).
std::pair<QDate, int> gridFor(const QDate &date, Qt::DayOfWeek firstDayOfWeek);

// The ISO week number of the seven days starting at `rowFirst`: that of the week holding most of
// them, which is the week of the row's Thursday whatever day the row starts on.
int weekNumberOfRow(const QDate &rowFirst);

// The local dates an occurrence covers, both inclusive. All-day events run from the date of their
// start to the day before their (exclusive) end date, the dates being those their midnights name
// (in UTC, their own zone or local time, whichever is a midnight); timed events from the local date
// of their start to the local date of the last instant before their end. An event without an end,
// or with an end not after its start, covers its start date only.
std::pair<QDate, QDate> coveredDays(const Event &occurrence);

// An all-day boundary moved by whole days: it stays the midnight it was (in UTC, its own zone or
// local time), also across a daylight-saving change; the result is in the zone of `time`.
QDateTime shiftAllDay(const QDateTime &time, int days);

// Whether an occurrence is drawn as a bar (all-day, or timed and lasting at least a whole day
// across several dates) rather than as a chip on the day it starts.
bool isBar(const Event &occurrence);

// One occurrence placed in a week row.
struct Placement
{
    qsizetype index = 0; // into the occurrence list given to layoutWeeks()
    int firstColumn = 0; // day columns of the row covered, inclusive (a chip: one column)
    int lastColumn = 0;
    int line = 0; // the text line within the cells, from 0 at the top
    bool bar = false;
    bool continuesBefore = false; // the event began before this row
    bool continuesAfter = false; // the event goes on after this row
};

// Where the occurrences of one week row go. Bars are stacked first in lanes shared by the whole
// row (multi-day bars before single all-day ones); each day's chips follow, by start, on the lines
// below the lowest bar covering that day.
struct WeekLayout
{
    QDate firstDay;
    QList<Placement> items; // bars first, then chips
    std::array<int, kDaysPerWeek> lineCount{}; // lines each day needs: its last used line + 1
    std::array<int, kDaysPerWeek> itemCount{}; // bars and chips touching each day
};

// Lays out `occurrences` (any order) over `weeks` rows starting at `firstDay`. Occurrences that
// cover none of the days are left out.
QList<WeekLayout> layoutWeeks(const QList<Event> &occurrences, const QDate &firstDay, int weeks);

// With room for `capacity` lines in a cell, the lines a day shows: all when they fit, else one
// fewer than the room, leaving the last line for "+N more". Never negative.
int visibleLines(const WeekLayout &week, int column, int capacity);
// How many of a day's items fall below its visible lines (the N of "+N more"); 0 when all fit.
int hiddenItems(const WeekLayout &week, int column, int capacity);
// Whether a placement shows in a column at that capacity.
inline bool isShown(const WeekLayout &week, const Placement &placement, int column, int capacity)
{
    return placement.line < visibleLines(week, column, capacity);
}

// The start time a chip shows: "9:30" or "14:00" in the 24-hour clock; "9:30am" or "10am" in the
// 12-hour clock (minutes left out on the hour), with the locale's lower-case am/pm texts.
QString chipTime(const QTime &time, bool twentyFourHour);

} // namespace MonthLayout
