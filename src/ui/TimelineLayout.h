// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/Event.h"
#include "ui/EventLayout.h"
#include "ui/SpanCache.h"

#include <QColor>
#include <QDate>
#include <QList>
#include <QTime>

#include <memory>

// Where everything of one span goes on the timeline, computed once per span (and per zoom level,
// which sets the minimum height of short events) so that painting only reads it.
//
// Timed occurrences shorter than a day become pieces, one per day column they cover (an event
// across midnight has a piece in each day, clipped to it). All-day occurrences and those lasting
// 24 hours or more become bars in the all-day strip, stacked in lanes.
struct TimelineLayout
{
    struct TimedPiece
    {
        qsizetype index = -1; // into span->contents.occurrences
        int day = 0; // column, 0-based
        int start = 0; // minutes of the day, [start, end); end may be 1440
        int end = 0;
        EventLayout::TimedPlacement placement;
        bool startsHere = true; // false: the event began on an earlier day
        bool endsHere = true; // false: it goes on past this day
    };

    struct Bar
    {
        qsizetype index = -1;
        int first = 0; // first and last column covered, inclusive, clipped to the span
        int last = 0;
        int lane = 0;
        bool continuesBefore = false; // it began before the first day shown
        bool continuesAfter = false; // it goes on after the last day shown
    };

    // What painting needs of an occurrence, worked out once: its colour, its dimming, its local
    // wall-clock times and the instant it ends (for fading past events).
    struct Visual
    {
        QColor color;
        bool dimmed = false;
        QTime start; // local
        QTime end; // local
        bool sameDay = true; // start and end on the same local date
        qint64 endMSecs = 0; // since the epoch
    };

    std::shared_ptr<const SpanData> span;
    QList<Visual> visuals; // parallel to span->contents.occurrences
    QDate firstDay;
    int dayCount = 0;
    QList<TimedPiece> pieces; // by day, then by start
    QList<Bar> bars; // by first day, then longest first
    int laneCount = 0;

    // Lays out `span` (shown from firstDay over dayCount days). Occurrences shorter than
    // `minimumMinutes` are laid out as if they lasted that long, so that pieces drawn at a
    // minimum height do not cover each other. Colours come from `cache` (the theme's accent
    // when there is none).
    static TimelineLayout build(const std::shared_ptr<const SpanData> &span, const QDate &firstDay, int dayCount,
                                int minimumMinutes, const SpanCache *cache = nullptr);
    // True for what goes to the all-day strip: all-day events and those lasting a day or more.
    static bool isAllDayItem(const Event &occurrence);

    const Event &occurrence(qsizetype index) const { return span->contents.occurrences.at(index); }
    const Visual &visual(qsizetype index) const { return visuals.at(index); }
    bool isDimmed(qsizetype index) const { return visuals.at(index).dimmed; }
    // The number of bars on day `day` in lanes at or beyond `fromLane`.
    int barsFrom(int day, int fromLane) const;
};
