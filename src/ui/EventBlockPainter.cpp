// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/EventBlockPainter.h"

#include <QFontMetrics>
#include <QPainter>
#include <QPainterPath>
#include <QTextLayout>

#include <algorithm>

namespace EventBlockPainter {

namespace {

QColor blend(const QColor &under, const QColor &over, qreal amount)
{
    const auto mix = [amount](int a, int b) {
        return int(a + (b - a) * amount + 0.5);
    };
    return QColor(mix(under.red(), over.red()), mix(under.green(), over.green()), mix(under.blue(), over.blue()));
}

// A rectangle with rounded corners where asked, square elsewhere.
QPainterPath shape(const QRectF &rect, qreal radius, bool roundTop, bool roundBottom, bool roundLeft = true,
                   bool roundRight = true)
{
    radius = std::min({radius, rect.width() / 2, rect.height() / 2});
    const qreal tl = roundTop && roundLeft ? radius : 0;
    const qreal tr = roundTop && roundRight ? radius : 0;
    const qreal br = roundBottom && roundRight ? radius : 0;
    const qreal bl = roundBottom && roundLeft ? radius : 0;
    QPainterPath path;
    path.moveTo(rect.left() + tl, rect.top());
    path.lineTo(rect.right() - tr, rect.top());
    if (tr > 0)
        path.arcTo(QRectF(rect.right() - 2 * tr, rect.top(), 2 * tr, 2 * tr), 90, -90);
    path.lineTo(rect.right(), rect.bottom() - br);
    if (br > 0)
        path.arcTo(QRectF(rect.right() - 2 * br, rect.bottom() - 2 * br, 2 * br, 2 * br), 0, -90);
    path.lineTo(rect.left() + bl, rect.bottom());
    if (bl > 0)
        path.arcTo(QRectF(rect.left(), rect.bottom() - 2 * bl, 2 * bl, 2 * bl), 270, -90);
    path.lineTo(rect.left(), rect.top() + tl);
    if (tl > 0)
        path.arcTo(QRectF(rect.left(), rect.top(), 2 * tl, 2 * tl), 180, -90);
    path.closeSubpath();
    return path;
}

// Breaks `text` into at most `maxLines` lines of `width`, the last one elided when text remains.
QStringList wrapped(const QString &text, const QFont &font, const QFontMetrics &metrics, int width, int maxLines)
{
    QStringList lines;
    if (maxLines <= 0 || width <= 0 || text.isEmpty())
        return lines;
    // One line is all there is room for, or all it takes: no layout needed.
    if (maxLines == 1 || metrics.horizontalAdvance(text) <= width)
        return {metrics.elidedText(text, Qt::ElideRight, width)};
    QTextLayout layout(text, font);
    QTextOption option;
    // Words stay whole; a word wider than the block is elided rather than cut into pieces.
    option.setWrapMode(QTextOption::WordWrap);
    layout.setTextOption(option);
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        if (lines.size() == maxLines - 1) {
            lines.append(metrics.elidedText(text.mid(line.textStart()).simplified(), Qt::ElideRight, width));
            break;
        }
        const QString part = text.mid(line.textStart(), line.textLength()).trimmed();
        // A word wider than the block: one elided line reads better than a broken word.
        if (metrics.horizontalAdvance(part) > width) {
            layout.endLayout();
            return {metrics.elidedText(text.simplified(), Qt::ElideRight, width)};
        }
        lines.append(part);
    }
    layout.endLayout();
    return lines;
}

void paintRing(QPainter &painter, const QPainterPath &path, const QColor &accent)
{
    QPen pen(accent, 2);
    pen.setJoinStyle(Qt::RoundJoin);
    painter.strokePath(path, pen);
}

} // namespace

qreal opacity(const Look &look)
{
    qreal value = look.fade;
    if (look.dimmed)
        value *= kDimmedOpacity;
    else if (look.past)
        value *= kPastOpacity;
    return value;
}

QColor blockFill(const QColor &color, const ThemeManager::Colors &colors, bool dark)
{
    return blend(colors.surface, color, dark ? 0.35 : 0.2);
}

QColor composite(const QColor &under, const QColor &over)
{
    return blend(under, QColor(over.red(), over.green(), over.blue()), over.alphaF());
}

QColor contrastText(const QColor &background)
{
    // Relative luminance with the usual weights; light backgrounds take dark text.
    const qreal luminance = 0.2126 * background.redF() + 0.7152 * background.greenF() + 0.0722 * background.blueF();
    return luminance > 0.6 ? QColor(0x1f, 0x23, 0x28) : QColor(Qt::white);
}

QFont titleFont(const QFont &base)
{
    QFont font = base;
    font.setPointSizeF(base.pointSizeF() * 0.88);
    font.setWeight(QFont::DemiBold);
    return font;
}

QFont detailFont(const QFont &base)
{
    QFont font = base;
    font.setPointSizeF(base.pointSizeF() * 0.84);
    return font;
}

Fonts::Fonts(const QFont &base)
    : title(titleFont(base))
    , detail(detailFont(base))
    , titleMetrics(title)
    , detailMetrics(detail)
{ }

bool hasRoomForText(const QRect &rect)
{
    return rect.width() >= kColorBarWidth + 16 && rect.height() >= 8;
}

void paintTimed(QPainter &painter, const QRect &rect, const Texts &texts, const Look &look,
                const ThemeManager::Colors &colors, bool dark, const Fonts &fonts, bool roundTop, bool roundBottom,
                int textTop)
{
    if (rect.width() < 1 || rect.height() < 1)
        return;
    const qreal alpha = opacity(look);
    const QColor background = look.background.isValid() ? look.background : colors.surface;
    const QColor fill = blend(background,
                              look.ghost ? blend(colors.surface, look.color, dark ? 0.5 : 0.32)
                                         : blend(background, look.color, dark ? 0.35 : 0.2),
                              alpha);
    const QColor bar = blend(background, look.color, alpha);
    const QColor ring = blend(background, look.ghost ? look.color : colors.accent, alpha);
    if (!hasRoomForText(rect) && !look.ghost) {
        // Crowded days: hundreds of slivers, drawn plainly and quickly.
        painter.fillRect(rect, fill);
        painter.fillRect(
            QRect(rect.left(), rect.top(), std::min(kColorBarWidth, std::max(1, rect.width() / 3)), rect.height()),
            bar);
        if (look.selected) {
            painter.setPen(QPen(ring, 2));
            painter.setBrush(Qt::NoBrush);
            painter.drawRect(QRectF(rect).adjusted(1, 1, -1, -1));
        }
        return;
    }
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, true);
    const QRectF box(rect);
    if (look.ghost)
        painter.fillPath(shape(box, kCornerRadius, roundTop, roundBottom).translated(0, 2), colors.shadow);
    // The colour bar is the left edge of the outline; the fill replaces everything right of it.
    // Opaque colours replace what is there ("Source"), which spares the raster engine a blend.
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillPath(shape(QRectF(box.left(), box.top(), std::min(box.width(), kCornerRadius + 1.0), box.height()),
                           kCornerRadius, roundTop, roundBottom, true, false),
                     bar);
    if (box.width() > kColorBarWidth)
        painter.fillPath(
            shape(box.adjusted(kColorBarWidth, 0, 0, 0), kCornerRadius, roundTop, roundBottom, false, true), fill);
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
    if (look.selected || look.ghost)
        paintRing(painter, shape(box.adjusted(1, 1, -1, -1), kCornerRadius - 1, roundTop, roundBottom), ring);

    const QFont &title = fonts.title;
    const QFont &detail = fonts.detail;
    const QFontMetrics &titleMetrics = fonts.titleMetrics;
    const QFontMetrics &detailMetrics = fonts.detailMetrics;
    const int titleLine = titleMetrics.height();
    const int detailLine = detailMetrics.height();
    const int padding = 3;
    // The part of the block the texts go in: from textTop down, but never less than one line.
    QRect area = rect;
    if (textTop > rect.top())
        area.setTop(std::max(rect.top(), std::min(textTop, rect.bottom() + 1 - titleLine - 2 * padding)));
    const int left = rect.left() + kColorBarWidth + 5;
    const int width = rect.right() - 3 - left;
    if (width < 8) {
        painter.restore();
        return;
    }
    painter.setRenderHint(QPainter::TextAntialiasing, true);
    const QColor titleColor = blend(fill, colors.text, alpha);
    const QColor detailColor = blend(fill, colors.textMuted, alpha);
    const int available = area.height() - 2 * padding;
    if (available < titleLine + detailLine) {
        // One line: the title, and the time after it when there is room.
        int y = area.top() + std::max(0, (area.height() - titleLine) / 2);
        if (area.height() >= titleLine + 2)
            y = area.top() + std::min(padding, (area.height() - titleLine) / 2);
        const int timeWidth = texts.time.isEmpty() ? 0 : detailMetrics.horizontalAdvance(texts.time) + 6;
        const bool withTime = timeWidth > 0 && titleMetrics.horizontalAdvance(texts.title) + timeWidth <= width;
        const QString titleText = titleMetrics.elidedText(texts.title, Qt::ElideRight, width);
        painter.setFont(title);
        painter.setPen(titleColor);
        painter.drawText(QRect(left, y, width, titleLine), Qt::AlignLeft | Qt::AlignVCenter, titleText);
        if (withTime) {
            const int x = left + titleMetrics.horizontalAdvance(titleText) + 6;
            painter.setFont(detail);
            painter.setPen(detailColor);
            painter.drawText(QRect(x, y, left + width - x, titleLine), Qt::AlignLeft | Qt::AlignVCenter, texts.time);
        }
        painter.restore();
        return;
    }
    // Several lines: the title wrapped, then the time, then the place, as far as they fit.
    int lines = (available - (texts.time.isEmpty() ? 0 : detailLine)) / titleLine;
    const QStringList titleLines = wrapped(texts.title, title, titleMetrics, width, std::max(1, lines));
    int y = area.top() + padding;
    painter.setFont(title);
    painter.setPen(titleColor);
    for (const QString &line : titleLines) {
        painter.drawText(QRect(left, y, width, titleLine), Qt::AlignLeft | Qt::AlignVCenter, line);
        y += titleLine;
    }
    painter.setFont(detail);
    painter.setPen(detailColor);
    for (const QString &line : {texts.time, texts.location}) {
        if (line.isEmpty() || y + detailLine > area.bottom() - padding + 2)
            continue;
        painter.drawText(QRect(left, y, width, detailLine), Qt::AlignLeft | Qt::AlignVCenter,
                         detailMetrics.elidedText(line, Qt::ElideRight, width));
        y += detailLine;
    }
    painter.restore();
}

void paintBar(QPainter &painter, const QRect &rect, const QString &text, const Look &look,
              const ThemeManager::Colors &colors, bool dark, const Fonts &fonts, bool openLeft, bool openRight)
{
    if (rect.width() < 2 || rect.height() < 2)
        return;
    const qreal alpha = opacity(look);
    const QColor background = look.background.isValid() ? look.background : colors.surface;
    const QColor full = dark ? look.color.darker(112) : look.color;
    const QColor fill = blend(background, full, alpha);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, true);
    const QPainterPath outline = shape(QRectF(rect), 4, true, true, !openLeft, !openRight);
    if (look.ghost)
        painter.fillPath(outline.translated(0, 2), colors.shadow);
    painter.fillPath(outline, fill);
    if (look.selected)
        paintRing(painter, shape(QRectF(rect).adjusted(1, 1, -1, -1), 3, true, true, !openLeft, !openRight),
                  blend(fill, contrastText(full), alpha));
    const int left = rect.left() + 6;
    const int width = rect.right() - 5 - left;
    if (width > 6) {
        painter.setFont(fonts.title);
        painter.setPen(blend(fill, contrastText(full), alpha));
        painter.drawText(QRect(left, rect.top(), width, rect.height()), Qt::AlignLeft | Qt::AlignVCenter,
                         fonts.titleMetrics.elidedText(text, Qt::ElideRight, width));
    }
    painter.restore();
}

} // namespace EventBlockPainter
