// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QTimeZone>

#include <memory>

// The clock of one date-time's kind of time (UTC, a fixed offset, the local zone or an IANA zone),
// for stepping by calendar days while keeping the wall-clock reading.
//
// A wall-clock reading is given as milliseconds since 1970-01-01T00:00 read on that clock, so that
// adding n days is adding n × 86400000 whatever the zone does. toInstant() maps a reading to the
// instant it denotes: a reading that falls into a gap (spring forward) is read with the offset in
// force before the gap, which lands it as far after the gap as it was into it (02:30 on the night
// Berlin moves from 02:00 to 03:00 is 03:30 summer time); a reading that occurs twice (fall back)
// is the earlier of the two instants. Offsets of IANA zones come from a table of transitions built
// once per zone and thread, so a lookup is a binary search rather than a time-zone query.
class WallClockZone
{
public:
    static constexpr qint64 kDayMs = 86400000;
    // 1970-01-01 as a Julian day.
    static constexpr qint64 kEpochJulianDay = 2440588;

    // The clock of `reference`'s kind of time (its zone, offset, UTC or local time).
    explicit WallClockZone(const QDateTime &reference);

    // The wall-clock reading of a date-time on its own clock.
    static qint64 wallMs(const QDateTime &value);
    static qint64 wallMs(QDate date, qint64 msOfDay);
    // Whole days since 1970-01-01 of a reading (floor division) and its calendar date.
    static qint64 dayNumber(qint64 wallMs);
    static QDate dateOf(qint64 wallMs);
    // ISO weekday (Monday 1 ... Sunday 7) of a reading.
    static int weekday(qint64 wallMs);

    // The instant (milliseconds since the epoch) a reading denotes on this clock.
    qint64 toInstant(qint64 wallMs) const;
    // Offset from UTC in seconds in force at an instant.
    int offsetAt(qint64 instantMs) const;
    // A date-time for the instant, in this clock's kind of time.
    QDateTime dateTimeAt(qint64 instantMs) const;

    struct Table;

private:
    Qt::TimeSpec m_kind = Qt::UTC;
    int m_fixedOffset = 0;
    QTimeZone m_zone;
    std::shared_ptr<const Table> m_table;
};
