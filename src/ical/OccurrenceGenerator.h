// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ical/Recurrence.h"
#include "ical/WallClockZone.h"

#include <QDateTime>
#include <QStringView>

#include <limits>
#include <vector>

// A recurrence rule reduced to what the generation of starts needs.
struct CompiledRule
{
    enum class Frequency { Single, Daily, Weekly, Monthly, Yearly };

    Frequency frequency = Frequency::Single; // Single: any other or no FREQ
    qint32 interval = 1;
    qint32 count = 0;
    bool hasUntil = false;
    qint64 untilMs = 0;
    quint8 weekdays = 0; // bit d set for weekday d of BYDAY (1 Monday ... 7 Sunday)

    static CompiledRule fromRule(const Recurrence::RecurrenceRule &rule);
    // The same as fromRule(Recurrence::parseRule(text)), without building the intermediate lists.
    static CompiledRule fromText(QStringView text);

    bool operator==(const CompiledRule &) const = default;
};

// Generates the starts of one series. Days are stepped on the series start's wall clock (see
// WallClockZone), months and years by calendar arithmetic on the previous candidate's date.
//
// Two methods give the same starts: WalkFromStart visits every candidate from the series start;
// SkipAhead jumps over candidates that lie wholly before the first start the caller needs,
// computing how many of them the count and the cap would have consumed, and walks from there.
class OccurrenceGenerator
{
public:
    enum class Method { SkipAhead, WalkFromStart };

    static constexpr qint64 kNoLowerBound = std::numeric_limits<qint64>::min();

    OccurrenceGenerator(const CompiledRule &rule, const QDateTime &seriesStart);

    // Replaces `out` with the instants of the starts before rangeEndMs, in order, as the walk from
    // the series start emits them (COUNT and the cap of Recurrence::kMaxOccurrences counted from
    // the series start). SkipAhead may leave out starts before neededFromMs, never one at or after
    // it. A Single rule gives the series start alone, wherever it lies; an invalid series start
    // gives nothing.
    void starts(qint64 rangeEndMs, qint64 neededFromMs, Method method, std::vector<qint64> &out) const;

    // A start as a date-time in the series start's time spec (the series start itself for its instant).
    QDateTime dateTimeAt(qint64 instantMs) const;

private:
    struct Run;

    CompiledRule m_rule;
    QDateTime m_seriesStart;
    bool m_valid = false;
    qint64 m_startMs = 0;
    qint64 m_startWall = 0;
    WallClockZone m_clock;
};
