// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/TimelineMath.h"

#include <QCoreApplication>
#include <QTimeZone>

#include <algorithm>
#include <cmath>

namespace TimelineMath {

int floorDiv(int value, int divisor)
{
    const int quotient = value / divisor;
    return (value % divisor != 0 && (value < 0) != (divisor < 0)) ? quotient - 1 : quotient;
}

int snapToQuarter(int minutes)
{
    return floorDiv(minutes + kSnapMinutes / 2, kSnapMinutes) * kSnapMinutes;
}

int floorToQuarter(int minutes)
{
    return floorDiv(minutes, kSnapMinutes) * kSnapMinutes;
}

double minuteAt(double y, int hourHeight)
{
    return y * 60.0 / std::max(1, hourHeight);
}

int yAt(double minute, int hourHeight)
{
    return int(std::lround(minute * hourHeight / 60.0));
}

int minutesForPixels(int pixels, int hourHeight)
{
    return int(std::ceil(pixels * 60.0 / std::max(1, hourHeight)));
}

QDateTime dateTimeAt(const QDate &firstDay, int gridMinute)
{
    const int day = floorDiv(gridMinute, kMinutesPerDay);
    const int minute = gridMinute - day * kMinutesPerDay;
    return QDateTime(firstDay.addDays(day), QTime(minute / 60, minute % 60));
}

int gridMinuteOf(const QDate &firstDay, const QDateTime &instant)
{
    const QDateTime local = instant.toLocalTime();
    const QTime time = local.time();
    return int(firstDay.daysTo(local.date())) * kMinutesPerDay + time.hour() * 60 + time.minute();
}

int movedStart(int originalStart, int pressMinute, int currentMinute)
{
    return snapToQuarter(originalStart + currentMinute - pressMinute);
}

int resizedEnd(int start, int originalEnd, int pressMinute, int currentMinute)
{
    return std::max(start + kSnapMinutes, snapToQuarter(originalEnd + currentMinute - pressMinute));
}

MinuteRange sweptRange(int pressMinute, int currentMinute)
{
    const int start = floorToQuarter(std::min(pressMinute, currentMinute));
    const int ceiling = -floorToQuarter(-std::max(pressMinute, currentMinute));
    return {start, std::max(start + kSnapMinutes, ceiling)};
}

int dayLeft(int index, int count, int left, int width)
{
    if (count <= 0)
        return left;
    return left + int(qint64(index) * width / count);
}

int dayIndexAt(int x, int count, int left, int width)
{
    if (count <= 1 || width <= 0)
        return 0;
    int index = int(qint64(x - left) * count / width);
    index = std::clamp(index, 0, count - 1);
    // The integer column edges decide, so that a click on a boundary pixel matches the drawing.
    while (index > 0 && x < dayLeft(index, count, left, width))
        --index;
    while (index < count - 1 && x >= dayLeft(index + 1, count, left, width))
        ++index;
    return index;
}

QDateTime inFormOf(const QDateTime &instant, const QDateTime &reference)
{
    switch (reference.timeSpec()) {
    case Qt::UTC:
        return instant.toUTC();
    case Qt::OffsetFromUTC:
        return instant.toOffsetFromUtc(reference.offsetFromUtc());
    case Qt::TimeZone:
        return instant.toTimeZone(reference.timeZone());
    case Qt::LocalTime:
        break;
    }
    return instant.toLocalTime();
}

namespace {

// tr() for this file's free functions; lupdate takes the context from the macro.
struct Text
{
    Q_DECLARE_TR_FUNCTIONS(TimelineView)
};

// "9", "9:30": the 12-hour clock without its AM/PM.
QString twelveHourNumber(const QTime &time)
{
    const int hour = time.hour() % 12 == 0 ? 12 : time.hour() % 12;
    if (time.minute() == 0)
        return QString::number(hour);
    return QStringLiteral("%1:%2").arg(hour).arg(time.minute(), 2, 10, QLatin1Char('0'));
}

QString withMeridiem(const QString &number, const QTime &time)
{
    return time.hour() < 12 ? Text::tr("%1 AM").arg(number) : Text::tr("%1 PM").arg(number);
}

} // namespace

QString hourLabel(int hour, bool use24Hour)
{
    hour = std::clamp(hour, 0, 24);
    if (use24Hour)
        return QStringLiteral("%1:00").arg(hour % 24, 2, 10, QLatin1Char('0'));
    return withMeridiem(twelveHourNumber(QTime(hour % 24, 0)), QTime(hour % 24, 0));
}

QString timeText(const QTime &time, bool use24Hour)
{
    if (use24Hour)
        return time.toString(QStringLiteral("HH:mm"));
    return withMeridiem(twelveHourNumber(time), time);
}

QString rangeText(const QTime &start, const QTime &end, bool use24Hour, bool sameDay)
{
    const QString dash = QStringLiteral(" – ");
    if (use24Hour)
        return timeText(start, true) + dash + timeText(end, true);
    // The meridiem is said once when both ends share it.
    if (sameDay && (start.hour() < 12) == (end.hour() < 12))
        return twelveHourNumber(start) + dash + timeText(end, false);
    return timeText(start, false) + dash + timeText(end, false);
}

} // namespace TimelineMath
