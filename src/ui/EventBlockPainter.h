// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/ThemeManager.h"

#include <QColor>
#include <QFont>
#include <QFontMetrics>
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
    qreal fade = 1.0; // further transparency, for the event a drag has lifted
    QColor background; // what the event is drawn over; invalid means the surface
};

inline constexpr qreal kDimmedOpacity = 0.4;
inline constexpr qreal kPastOpacity = 0.7;
inline constexpr int kCornerRadius = 5;
inline constexpr int kColorBarWidth = 3;

// The opacity a look is painted with. Blocks are painted in opaque colours mixed from this
// opacity and the background, which looks the same as painting with transparency and is much
// quicker for the raster engine on crowded days.
qreal opacity(const Look &look);
// The tinted fill of a timed block: the colour blended over the surface (more in the dark theme).
QColor blockFill(const QColor &color, const ThemeManager::Colors &colors, bool dark);
// `over` (which may be translucent) painted on the opaque `under`.
QColor composite(const QColor &under, const QColor &over);
// White or near-black, whichever reads better on `background`.
QColor contrastText(const QColor &background);

// The fonts and their metrics, derived once from the widget font for a whole paint.
struct Fonts
{
    explicit Fonts(const QFont &base);
    QFont title; // semibold, a little smaller than the base
    QFont detail; // times and places
    QFontMetrics titleMetrics;
    QFontMetrics detailMetrics;
};

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
// A block too small to read is drawn as plain fill and colour bar, without text.
void paintTimed(QPainter &painter, const QRect &rect, const Texts &texts, const Look &look,
                const ThemeManager::Colors &colors, bool dark, const Fonts &fonts, bool roundTop = true,
                bool roundBottom = true, int textTop = INT_MIN);
// Whether a block of this size shows text at all (callers skip building the texts otherwise).
bool hasRoomForText(const QRect &rect);
// `openLeft`/`openRight` square the ends where the event continues beyond the days shown.
void paintBar(QPainter &painter, const QRect &rect, const QString &text, const Look &look,
              const ThemeManager::Colors &colors, bool dark, const Fonts &fonts, bool openLeft = false,
              bool openRight = false);

// The fonts, derived from the widget font.
QFont titleFont(const QFont &base);
QFont detailFont(const QFont &base);

} // namespace EventBlockPainter
