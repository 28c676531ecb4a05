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
QStringList wrapped(const QString &text, const QFont &font, int width, int maxLines)
{
    QStringList lines;
    if (maxLines <= 0 || width <= 0 || text.isEmpty())
        return lines;
    const QFontMetrics metrics(font);
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
    qreal value = 1.0;
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

void paintTimed(QPainter &painter, const QRect &rect, const Texts &texts, const Look &look,
                const ThemeManager::Colors &colors, bool dark, const QFont &baseFont, bool roundTop, bool roundBottom,
                int textTop)
{
    if (rect.width() < 2 || rect.height() < 2)
        return;
    painter.save();
    painter.setOpacity(painter.opacity() * opacity(look));
    painter.setRenderHint(QPainter::Antialiasing, true);
    const QRectF box(rect);
    const QPainterPath outline = shape(box, kCornerRadius, roundTop, roundBottom);
    if (look.ghost)
        painter.fillPath(outline.translated(0, 2), colors.shadow);
    painter.fillPath(outline,
                     look.ghost ? blend(colors.surface, look.color, dark ? 0.5 : 0.32)
                                : blockFill(look.color, colors, dark));
    // The colour bar at the left edge, clipped to the rounded outline.
    painter.save();
    painter.setClipPath(outline);
    painter.fillRect(QRectF(box.left(), box.top(), kColorBarWidth, box.height()), look.color);
    painter.restore();
    if (look.selected || look.ghost)
        paintRing(painter, shape(box.adjusted(1, 1, -1, -1), kCornerRadius - 1, roundTop, roundBottom),
                  look.ghost ? look.color : colors.accent);

    const QFont title = titleFont(baseFont);
    const QFont detail = detailFont(baseFont);
    const QFontMetrics titleMetrics(title);
    const QFontMetrics detailMetrics(detail);
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
        painter.setPen(colors.text);
        painter.drawText(QRect(left, y, width, titleLine), Qt::AlignLeft | Qt::AlignVCenter, titleText);
        if (withTime) {
            const int x = left + titleMetrics.horizontalAdvance(titleText) + 6;
            painter.setFont(detail);
            painter.setPen(colors.textMuted);
            painter.drawText(QRect(x, y, left + width - x, titleLine), Qt::AlignLeft | Qt::AlignVCenter, texts.time);
        }
        painter.restore();
        return;
    }
    // Several lines: the title wrapped, then the time, then the place, as far as they fit.
    int lines = (available - (texts.time.isEmpty() ? 0 : detailLine)) / titleLine;
    const QStringList titleLines = wrapped(texts.title, title, width, std::max(1, lines));
    int y = area.top() + padding;
    painter.setFont(title);
    painter.setPen(colors.text);
    for (const QString &line : titleLines) {
        painter.drawText(QRect(left, y, width, titleLine), Qt::AlignLeft | Qt::AlignVCenter, line);
        y += titleLine;
    }
    painter.setFont(detail);
    painter.setPen(colors.textMuted);
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
              const ThemeManager::Colors &colors, bool dark, const QFont &baseFont, bool openLeft, bool openRight)
{
    if (rect.width() < 2 || rect.height() < 2)
        return;
    painter.save();
    painter.setOpacity(painter.opacity() * opacity(look));
    painter.setRenderHint(QPainter::Antialiasing, true);
    const QRectF box(rect);
    const QPainterPath outline = shape(box, 4, true, true, !openLeft, !openRight);
    const QColor fill = dark ? look.color.darker(112) : look.color;
    if (look.ghost)
        painter.fillPath(outline.translated(0, 2), colors.shadow);
    painter.fillPath(outline, fill);
    if (look.selected)
        paintRing(painter, outline, colors.accent);
    const QFont font = titleFont(baseFont);
    const QFontMetrics metrics(font);
    const int left = rect.left() + 6;
    const int width = rect.right() - 5 - left;
    if (width > 6) {
        painter.setFont(font);
        painter.setPen(contrastText(fill));
        painter.drawText(QRect(left, rect.top(), width, rect.height()), Qt::AlignLeft | Qt::AlignVCenter,
                         metrics.elidedText(text, Qt::ElideRight, width));
    }
    painter.restore();
}

} // namespace EventBlockPainter
