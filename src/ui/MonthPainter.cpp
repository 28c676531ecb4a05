// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/MonthPainter.h"

#include "ui/MonthLayout.h"
#include "ui/SpanCache.h"

#include <QCoreApplication>
#include <QFontMetrics>
#include <QLocale>
#include <QPainter>

namespace MonthPainter {

namespace {

constexpr int kNumberInset = 4; // day number from the cell's top-left corner
constexpr int kChipInset = 4; // chips from the cell's sides
constexpr qreal kRadius = 4.0;
constexpr qreal kDimmedOpacity = 0.4;
constexpr qreal kPastOpacity = 0.7;

QFont scaled(const QFont &base, qreal factor, QFont::Weight weight = QFont::Normal)
{
    QFont font = base;
    font.setPointSizeF(base.pointSizeF() * factor);
    font.setWeight(weight);
    return font;
}

// Text on a full event colour: dark on light fills, white on the rest.
QColor readableOn(const QColor &fill)
{
    const qreal luma = 0.299 * fill.redF() + 0.587 * fill.greenF() + 0.114 * fill.blueF();
    return luma > 0.62 ? QColor(0x1f, 0x23, 0x28) : QColor(Qt::white);
}

QColor withAlpha(QColor color, int alpha)
{
    color.setAlpha(alpha);
    return color;
}

bool isPast(const Event &occurrence, const QDateTime &now, const QDate &today)
{
    if (occurrence.is_all_day)
        return MonthLayout::coveredDays(occurrence).second < today;
    return occurrence.end_time.value_or(occurrence.start_time) <= now;
}

QString localTime(const QDateTime &instant, bool twentyFourHour)
{
    return MonthLayout::chipTime(instant.toLocalTime().time(), twentyFourHour);
}

void paintHeader(QPainter &p, const Scene &s)
{
    const Geometry &g = *s.geometry;
    const ThemeManager::Colors &c = *s.colors;
    const QLocale locale;
    p.setFont(g.headerFont);
    p.setPen(c.textMuted);
    for (int column = 0; column < MonthLayout::kDaysPerWeek; ++column) {
        const QRect cell = g.cellRect(0, column);
        const int day = (int(s.firstDayOfWeek) - 1 + column) % MonthLayout::kDaysPerWeek + 1;
        const QRect text(cell.left() + kNumberInset + 4, 0, cell.width() - kNumberInset - 8, g.headerHeight);
        p.drawText(text, Qt::AlignVCenter | Qt::AlignLeft,
                   QFontMetrics(g.headerFont)
                       .elidedText(locale.dayName(day, QLocale::ShortFormat), Qt::ElideRight, text.width()));
    }
}

void paintCells(QPainter &p, const Scene &s)
{
    const ThemeManager::Colors &c = *s.colors;
    for (int i = 0; i < s.cellCount; ++i) {
        const QDate date = s.firstDay.addDays(i);
        const QRect rect = s.cells[i].rect;
        if (date.month() != s.month.month())
            p.fillRect(rect, c.offHours);
        if (date == s.today)
            p.fillRect(rect, c.todayBackground);
        if (s.dropFirst.isValid() && date >= s.dropFirst && date <= s.dropLast)
            p.fillRect(rect, c.selection);
    }
}

void paintGridLines(QPainter &p, const QRect &bounds, const Scene &s)
{
    const Geometry &g = *s.geometry;
    const ThemeManager::Colors &c = *s.colors;
    p.fillRect(QRect(0, g.grid.top(), bounds.width(), 1), c.border);
    for (int row = 1; row < MonthLayout::kWeeksPerGrid; ++row)
        p.fillRect(QRect(g.weekColumn, g.cellRect(row, 0).top(), g.grid.width(), 1), c.gridLine);
    for (int column = 1; column < MonthLayout::kDaysPerWeek; ++column)
        p.fillRect(QRect(g.cellRect(0, column).left(), g.grid.top(), 1, g.grid.height()), c.gridLine);
    if (g.weekColumn > 0)
        p.fillRect(QRect(g.weekColumn, g.grid.top(), 1, g.grid.height()), c.gridLine);
}

void paintWeekNumbers(QPainter &p, const Scene &s)
{
    const Geometry &g = *s.geometry;
    if (g.weekColumn <= 0)
        return;
    p.setFont(g.weekFont);
    p.setPen(s.colors->textMuted);
    for (int row = 0; row < MonthLayout::kWeeksPerGrid; ++row) {
        const QRect cell = g.cellRect(row, 0);
        const int week = MonthLayout::weekNumberOfRow(s.firstDay.addDays(qint64(row) * MonthLayout::kDaysPerWeek));
        p.drawText(QRect(0, cell.top() + kNumberInset, g.weekColumn, g.numberHeight), Qt::AlignCenter,
                   QString::number(week));
    }
}

void paintNumbers(QPainter &p, const Scene &s)
{
    const Geometry &g = *s.geometry;
    const ThemeManager::Colors &c = *s.colors;
    for (int i = 0; i < s.cellCount; ++i) {
        const QDate date = s.firstDay.addDays(i);
        const Cell &cell = s.cells[i];
        const bool today = date == s.today;
        QFont font = g.numberFont;
        if (today || date.day() == 1)
            font.setWeight(QFont::DemiBold);
        p.setFont(font);
        if (today) {
            p.setPen(Qt::NoPen);
            p.setBrush(c.accent);
            p.drawRoundedRect(QRectF(cell.number), cell.number.height() / 2.0, cell.number.height() / 2.0);
            p.setPen(c.accentText);
        } else {
            p.setPen(date.month() == s.month.month() ? c.text : c.textMuted);
        }
        p.drawText(cell.number, Qt::AlignCenter, cell.numberText);
    }
}

void paintBar(QPainter &p, const Scene &s, const Segment &segment, const Event &event, const QColor &color,
              bool hovered)
{
    const Geometry &g = *s.geometry;
    const QRect r = segment.rect;
    p.save();
    p.setClipRect(r);
    // Ends that go on are squared: the rounding is pushed outside the clip.
    const QRectF shape
        = QRectF(r).adjusted(segment.roundLeft ? 0 : -2 * kRadius, 0, segment.roundRight ? 0 : 2 * kRadius, 0);
    p.setPen(Qt::NoPen);
    p.setBrush(color);
    p.drawRoundedRect(shape, kRadius, kRadius);
    if (hovered) {
        p.setBrush(withAlpha(readableOn(color), 40));
        p.drawRoundedRect(shape, kRadius, kRadius);
    }
    QString text = event.title;
    if (!event.is_all_day && segment.roundLeft)
        text = localTime(event.start_time, s.twentyFourHour) + QLatin1Char(' ') + text;
    p.setFont(g.chipFont);
    p.setPen(readableOn(color));
    const QRect textRect = r.adjusted(6, 0, -4, 0);
    p.drawText(textRect, Qt::AlignVCenter | Qt::AlignLeft,
               QFontMetrics(g.chipFont).elidedText(text, Qt::ElideRight, textRect.width()));
    p.restore();
}

void paintChip(QPainter &p, const Scene &s, const Segment &segment, const Event &event, const QColor &color,
               bool hovered)
{
    const Geometry &g = *s.geometry;
    const ThemeManager::Colors &c = *s.colors;
    const QRect r = segment.rect;
    if (hovered) {
        p.setPen(Qt::NoPen);
        p.setBrush(withAlpha(c.text, s.dark ? 28 : 16));
        p.drawRoundedRect(QRectF(r), kRadius, kRadius);
    }
    const qreal dot = qMax(6, g.lineHeight / 3);
    p.setPen(Qt::NoPen);
    p.setBrush(color);
    p.drawEllipse(QRectF(r.left() + 4, r.top() + (r.height() - dot) / 2.0, dot, dot));

    const QFontMetrics metrics(g.chipFont);
    int x = r.left() + 4 + int(dot) + 5;
    const int right = r.right() - 3;
    p.setFont(g.chipFont);
    const QString time = localTime(event.start_time, s.twentyFourHour);
    const int timeWidth = metrics.horizontalAdvance(time);
    // The time goes first when there is still room for a few letters of the title after it.
    if (right - x > timeWidth + metrics.averageCharWidth() * 4) {
        p.setPen(c.textMuted);
        p.drawText(QRect(x, r.top(), timeWidth + 1, r.height()), Qt::AlignVCenter | Qt::AlignLeft, time);
        x += timeWidth + metrics.averageCharWidth();
    }
    p.setPen(c.text);
    p.drawText(QRect(x, r.top(), right - x, r.height()), Qt::AlignVCenter | Qt::AlignLeft,
               metrics.elidedText(event.title, Qt::ElideRight, right - x));
}

void paintSegments(QPainter &p, const Scene &s)
{
    if (!s.contents || !s.segments)
        return;
    const ThemeManager::Colors &c = *s.colors;
    p.setRenderHint(QPainter::Antialiasing, true);
    for (int i = 0; i < s.segments->size(); ++i) {
        const Segment &segment = s.segments->at(i);
        const Event &event = s.contents->occurrences[segment.index];
        const QColor color = s.cache->colorOf(event);
        qreal opacity = 1.0;
        if (s.contents->dimmedIds.contains(event.id))
            opacity *= kDimmedOpacity;
        if (isPast(event, s.now, s.today))
            opacity *= kPastOpacity;
        if (s.dragged >= 0 && s.segments->at(s.dragged).index == segment.index)
            opacity *= 0.5;
        p.setOpacity(opacity);
        if (segment.bar)
            paintBar(p, s, segment, event, color, i == s.hover);
        else
            paintChip(p, s, segment, event, color, i == s.hover);
        p.setOpacity(1.0);
        if (!s.selectedId.isEmpty() && event.id == s.selectedId) {
            p.setPen(QPen(c.accent, 2));
            p.setBrush(Qt::NoBrush);
            p.drawRoundedRect(QRectF(segment.rect).adjusted(-1, -1, 1, 1), kRadius + 1, kRadius + 1);
        }
    }
    // The dragged piece follows the pointer, lifted by a shadow.
    if (s.dragged >= 0) {
        Segment ghost = s.segments->at(s.dragged);
        ghost.rect.translate(s.dragOffset);
        const Event &event = s.contents->occurrences[ghost.index];
        p.setPen(Qt::NoPen);
        p.setBrush(c.shadow);
        p.drawRoundedRect(QRectF(ghost.rect).translated(0, 2).adjusted(-1, 0, 1, 1), kRadius + 1, kRadius + 1);
        p.setBrush(c.surface);
        p.drawRoundedRect(QRectF(ghost.rect), kRadius, kRadius);
        if (ghost.bar)
            paintBar(p, s, ghost, event, s.cache->colorOf(event), false);
        else
            paintChip(p, s, ghost, event, s.cache->colorOf(event), false);
    }
    p.setRenderHint(QPainter::Antialiasing, false);
}

void paintMore(QPainter &p, const Scene &s)
{
    const Geometry &g = *s.geometry;
    p.setFont(scaled(g.chipFont, 1.0, QFont::DemiBold));
    p.setPen(s.colors->textMuted);
    for (int i = 0; i < s.cellCount; ++i) {
        const Cell &cell = s.cells[i];
        if (cell.hidden > 0)
            p.drawText(cell.more.adjusted(4, 0, 0, 0), Qt::AlignVCenter | Qt::AlignLeft, cell.moreText);
    }
}

void paintFocus(QPainter &p, const Scene &s)
{
    if (!s.focusDay.isValid())
        return;
    const qint64 index = s.firstDay.daysTo(s.focusDay);
    if (index < 0 || index >= s.cellCount)
        return;
    p.setRenderHint(QPainter::Antialiasing, true);
    p.setPen(QPen(s.colors->accent, 1.5));
    p.setBrush(Qt::NoBrush);
    p.drawRoundedRect(QRectF(s.cells[index].rect).adjusted(2.5, 2.5, -1.5, -1.5), 3, 3);
    p.setRenderHint(QPainter::Antialiasing, false);
}

} // namespace

QRect Geometry::cellRect(int row, int column) const
{
    const auto x = [this](int c) {
        return grid.left() + (c * grid.width()) / MonthLayout::kDaysPerWeek;
    };
    const auto y = [this](int r) {
        return grid.top() + (r * grid.height()) / MonthLayout::kWeeksPerGrid;
    };
    return QRect(QPoint(x(column), y(row)), QPoint(x(column + 1) - 1, y(row + 1) - 1));
}

QRect Geometry::numberRect(const QRect &cell, const QString &text) const
{
    // A circle for one or two digits, a pill for "Mar 1".
    const int padding = text.size() <= 2 ? 6 : numberHeight / 2;
    const int width = qMax(numberHeight, QFontMetrics(numberFont).horizontalAdvance(text) + padding);
    return QRect(cell.left() + kNumberInset, cell.top() + kNumberInset, width, numberHeight);
}

int Geometry::lineTop(const QRect &cell, int line) const
{
    return cell.top() + kNumberInset + numberHeight + 3 + line * lineHeight;
}

Geometry measure(const QFont &base, const QSize &size, bool weekNumbers)
{
    Geometry g;
    g.headerFont = scaled(base, 0.85, QFont::DemiBold);
    g.numberFont = scaled(base, 0.9);
    g.chipFont = scaled(base, 0.85);
    g.weekFont = scaled(base, 0.75);
    g.headerHeight = QFontMetrics(g.headerFont).height() + 14;
    g.weekColumn = weekNumbers ? QFontMetrics(g.weekFont).horizontalAdvance(QStringLiteral("00")) + 16 : 0;
    g.grid = QRect(g.weekColumn, g.headerHeight, qMax(0, size.width() - g.weekColumn),
                   qMax(0, size.height() - g.headerHeight));
    g.numberHeight = QFontMetrics(g.numberFont).height() + 6;
    g.lineHeight = QFontMetrics(g.chipFont).height() + 5;
    const int rowHeight = g.grid.height() / MonthLayout::kWeeksPerGrid;
    const int reserved = kNumberInset + g.numberHeight + 3 + 2;
    g.capacity = qMax(0, (rowHeight - reserved) / g.lineHeight);
    return g;
}

void paint(QPainter &painter, const QRect &bounds, const Scene &s)
{
    painter.fillRect(bounds, s.colors->surface);
    if (s.geometry->weekColumn > 0)
        painter.fillRect(QRect(0, 0, s.geometry->weekColumn, bounds.height()), s.colors->surfaceAlt);
    paintHeader(painter, s);
    paintCells(painter, s);
    paintGridLines(painter, bounds, s);
    paintWeekNumbers(painter, s);
    paintNumbers(painter, s);
    paintSegments(painter, s);
    paintMore(painter, s);
    paintFocus(painter, s);
}

QString toolTip(const Event &occurrence, bool twentyFourHour)
{
    const QLocale locale;
    QString when;
    const auto [first, last] = MonthLayout::coveredDays(occurrence);
    if (occurrence.is_all_day) {
        when = first == last ? QCoreApplication::translate("MonthView", "All day")
                             : locale.toString(first, QLocale::ShortFormat) + QStringLiteral(" – ")
                + locale.toString(last, QLocale::ShortFormat);
    } else {
        when = localTime(occurrence.start_time, twentyFourHour);
        if (occurrence.end_time) {
            when += QStringLiteral(" – ");
            if (first != last)
                when += locale.toString(last, QLocale::ShortFormat) + QLatin1Char(' ');
            when += localTime(*occurrence.end_time, twentyFourHour);
        }
    }
    QString text = QStringLiteral("<b>%1</b><br>%2").arg(occurrence.title.toHtmlEscaped(), when.toHtmlEscaped());
    if (!occurrence.location.isEmpty())
        text += QStringLiteral("<br>") + occurrence.location.toHtmlEscaped();
    return text;
}

} // namespace MonthPainter
