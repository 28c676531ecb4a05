// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/ThemeManager.h"

#include <QColor>
#include <QFont>
#include <QRect>
#include <QString>

#include <climits>

class QPainter;

// How the timeline draws an event: a timed block (tinted fill, a bar of the full colour at the
// left, semibold title, muted time and place) or an all-day bar (full colour, text by contrast).
namespace EventBlockPainter {

// The state an event is drawn in.
struct Look
{
    QColor color; // the event's colour
    bool dimmed = false; // by a filter rule: drawn at kDimmedOpacity
    bool selected = false; // a ring in the accent colour
    bool past = false; // ended before now: slightly faded
    bool ghost = false; // the preview of a drag, lifted by a shadow
};

inline constexpr qreal kDimmedOpacity = 0.4;
inline constexpr qreal kPastOpacity = 0.7;
inline constexpr int kCornerRadius = 5;
inline constexpr int kColorBarWidth = 3;

// The opacity a look is painted with.
qreal opacity(const Look &look);
// The tinted fill of a timed block: the colour blended over the surface (more in the dark theme).
QColor blockFill(const QColor &color, const ThemeManager::Colors &colors, bool dark);
// White or near-black, whichever reads better on `background`.
QColor contrastText(const QColor &background);

// The texts of a timed block; lines that do not fit are left out, the rest elided.
struct Texts
{
    QString title;
    QString time;
    QString location;
};

// `roundTop`/`roundBottom` false square the corners where the event continues from the previous
// day or into the next one. The texts start at `textTop` when that lies inside the block (so that
// a block scrolled partly out of view keeps its title in sight), else at the block's top.
void paintTimed(QPainter &painter, const QRect &rect, const Texts &texts, const Look &look,
                const ThemeManager::Colors &colors, bool dark, const QFont &baseFont, bool roundTop = true,
                bool roundBottom = true, int textTop = INT_MIN);
// `openLeft`/`openRight` square the ends where the event continues beyond the days shown.
void paintBar(QPainter &painter, const QRect &rect, const QString &text, const Look &look,
              const ThemeManager::Colors &colors, bool dark, const QFont &baseFont, bool openLeft = false,
              bool openRight = false);

// The fonts, derived from the widget font.
QFont titleFont(const QFont &base);
QFont detailFont(const QFont &base);

} // namespace EventBlockPainter
