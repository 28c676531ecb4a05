// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>

// The arithmetic of laying events out, shared by the views; pure functions over intervals.
namespace EventLayout {

// A timed item within one day column: [start, end) in minutes from the start of the day.
struct TimedItem
{
    int start = 0;
    int end = 0;
};

// Where a timed item goes: column `column` of `columns` side-by-side columns, widened to the
// right over `span` columns when the neighbours there are free.
struct TimedPlacement
{
    int column = 0;
    int columns = 1;
    int span = 1;
};

// Lays out overlapping items side by side. Items that overlap, directly or through a chain of
// overlaps, form a cluster that shares one set of columns; each item takes the leftmost column
// free at its start (items sorted by start, longer first), then spreads right over the free
// columns. An item shorter than `minimumMinutes` counts as that long for overlapping, so that
// short events drawn at a minimum height do not cover each other. Result in input order.
QList<TimedPlacement> layoutTimed(const QList<TimedItem> &items, int minimumMinutes = 0);

// An item that covers whole days: from day index `first` to `last`, inclusive.
struct DayRangeItem
{
    int first = 0;
    int last = 0;
};

// Stacks day ranges into lanes (rows) so that no two items of a lane share a day: by first day,
// longer items first, each in the lowest free lane. Result: the lane of each item, in input order.
QList<int> packLanes(const QList<DayRangeItem> &items);

} // namespace EventLayout
