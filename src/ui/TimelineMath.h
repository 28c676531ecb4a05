// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>
#include <QDateTime>
#include <QString>
#include <QTime>

// The arithmetic of the hour grid, as pure functions: positions, times and the snapping of drags.
//
// A "grid minute" counts wall-clock minutes in the local zone from 00:00 of the first day shown:
// day index × 1440 + minute of the day. It is negative before the first day and may exceed the
// span after it; a day change in a drag is simply a difference of 1440.
namespace TimelineMath {

inline constexpr int kMinutesPerDay = 24 * 60;
inline constexpr int kSnapMinutes = 15;

// Floor division that rounds towards negative infinity, for grid minutes before the first day.
int floorDiv(int value, int divisor);

// The nearest multiple of 15 minutes.
int snapToQuarter(int minutes);
// The multiple of 15 minutes at or before `minutes`.
int floorToQuarter(int minutes);

// The minute of the day at a vertical position in the grid (unclamped, fractional).
double minuteAt(double y, int hourHeight);
// The vertical position of a minute of the day, rounded to a whole pixel.
int yAt(double minute, int hourHeight);
// The number of minutes `pixels` stand for at this hour height, rounded up.
int minutesForPixels(int pixels, int hourHeight);

// The local wall-clock time of a grid minute.
QDateTime dateTimeAt(const QDate &firstDay, int gridMinute);
// The grid minute of an instant (its local wall-clock time; seconds are dropped).
int gridMinuteOf(const QDate &firstDay, const QDateTime &instant);

// Dragging an event body: the event started at `originalStart`, the pointer went down at
// `pressMinute` and is now at `currentMinute` (all grid minutes). The new start follows the
// pointer and lands on the nearest quarter hour.
int movedStart(int originalStart, int pressMinute, int currentMinute);
// Dragging the bottom edge: the end follows the pointer, lands on the nearest quarter hour and
// stays at least 15 minutes after `start`.
int resizedEnd(int start, int originalEnd, int pressMinute, int currentMinute);

// Sweeping empty time from `pressMinute` to `currentMinute` (either order): the quarter-hour
// cells touched, [start, end), at least one cell long.
struct MinuteRange
{
    int start = 0;
    int end = 0;
};
MinuteRange sweptRange(int pressMinute, int currentMinute);

// Day columns: `count` columns share [left, left + width). The left edge of column `index`
// (index == count gives the right edge of the last column) and the column under x, clamped to
// 0..count-1.
int dayLeft(int index, int count, int left, int width);
int dayIndexAt(int x, int count, int left, int width);

// The same wall-clock instant expressed the way `reference` is (UTC, a zone, an offset or local
// time), so that an edited time keeps the form of the time it replaces.
QDateTime inFormOf(const QDateTime &instant, const QDateTime &reference);

// Labels: an hour in the gutter ("9 AM" or "09:00"), a time ("9:30 AM"/"09:30") and a range
// ("9:30 – 10:45 AM", "11 AM – 1:30 PM", "09:30 – 10:45"). A range whose ends fall on different
// days names the meridiem at both ends ("10:45 PM – 12 PM").
QString hourLabel(int hour, bool use24Hour);
QString timeText(const QTime &time, bool use24Hour);
QString rangeText(const QTime &start, const QTime &end, bool use24Hour, bool sameDay = true);

} // namespace TimelineMath
