// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/Event.h"
#include "ui/ThemeManager.h"

#include <QDate>
#include <QDateTime>
#include <QFont>
#include <QList>
#include <QRect>
#include <QSize>
#include <QString>

class QPainter;
class SpanCache;
struct SpanContents;

// How the month view draws: its measurements and the painting of a laid-out grid. The view
// decides what goes where (MonthLayout) and keeps the rects for hit-testing; this draws them.
namespace MonthPainter {

// Sizes derived from the widget's font and size.
struct Geometry
{
    QFont headerFont; // weekday names
    QFont numberFont; // day numbers
    QFont chipFont; // event chips, bars and "+N more"
    QFont weekFont; // week numbers
    int headerHeight = 0;
    int weekColumn = 0; // width of the week-number column; 0 when it is off
    QRect grid; // the cells
    int numberHeight = 0; // the circle behind today's number
    int lineHeight = 0; // one chip line, gap included
    int capacity = 0; // chip lines that fit in the smallest cell

    QRect cellRect(int row, int column) const;
    QRect numberRect(const QRect &cell, const QString &text) const;
    // The top of a chip line in a cell.
    int lineTop(const QRect &cell, int line) const;
};

Geometry measure(const QFont &base, const QSize &size, bool weekNumbers);

// One day of the grid as laid out.
struct Cell
{
    QRect rect;
    QRect number;
    QString numberText;
    QRect more; // the "+N more" line, when hidden > 0
    QString moreText;
    int hidden = 0;
};

// One drawn piece of an event: a chip, or a bar (or the part of one within a week row).
struct Segment
{
    qsizetype index = 0; // into the span's occurrences
    QRect rect;
    int week = 0;
    int firstColumn = 0;
    int lastColumn = 0;
    bool bar = false;
    bool roundLeft = true; // false: the bar goes on beyond this end
    bool roundRight = true;
};

// Everything one paint needs; pointers are borrowed for the call.
struct Scene
{
    const ThemeManager::Colors *colors = nullptr;
    bool dark = false;
    const Geometry *geometry = nullptr;
    QDate firstDay;
    QDate month; // the 1st of the month shown
    QDate today;
    Qt::DayOfWeek firstDayOfWeek = Qt::Monday;
    const Cell *cells = nullptr;
    int cellCount = 0;
    const QList<Segment> *segments = nullptr;
    const SpanContents *contents = nullptr; // null: no events yet
    const SpanCache *cache = nullptr;
    QString selectedId;
    int hover = -1; // segment under the mouse
    bool twentyFourHour = false;
    QDateTime now;
    QDate focusDay; // invalid: no keyboard focus to show
    // While an event is dragged: the days it would cover, and its segment.
    QDate dropFirst;
    QDate dropLast;
    int dragged = -1;
    QPoint dragOffset; // how far the pointer has moved the dragged segment
};

void paint(QPainter &painter, const QRect &bounds, const Scene &scene);

// The tooltip of an event: title, when, and where.
QString toolTip(const Event &occurrence, bool twentyFourHour);

} // namespace MonthPainter
