// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/AllDayStrip.h"

#include "storage/Clock.h"
#include "ui/EventBlockPainter.h"
#include "ui/TimelineContext.h"
#include "ui/TimelineMath.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <algorithm>

namespace {

constexpr int kTopPadding = 4;
constexpr int kBottomPadding = 5;
constexpr int kLaneGap = 3;
constexpr int kClickDistance = 4;

} // namespace

AllDayStrip::AllDayStrip(TimelineContext *context, QWidget *parent)
    : QWidget(parent)
    , m_context(context)
{
    setObjectName(QStringLiteral("allDayStrip"));
    setFocusPolicy(Qt::ClickFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    relayout();
}

int AllDayStrip::laneHeight() const
{
    return QFontMetrics(EventBlockPainter::titleFont(font())).height() + 6 + kLaneGap;
}

bool AllDayStrip::hasOverflow() const
{
    return m_context->layout.laneCount > kCollapsedLanes;
}

int AllDayStrip::visibleLanes() const
{
    const int lanes = m_context->layout.laneCount;
    if (m_expanded || lanes <= kCollapsedLanes)
        return lanes;
    return kCollapsedLanes - 1;
}

int AllDayStrip::contentHeight() const
{
    // An empty strip keeps one lane, so there is always room to double-click for a new all-day event.
    int rows = std::max(1, visibleLanes());
    if (hasOverflow() && !m_expanded)
        rows += 1;
    return kTopPadding + rows * laneHeight() - kLaneGap + kBottomPadding;
}

void AllDayStrip::relayout()
{
    if (m_drag.committed) {
        m_drag = Drag();
    } else if (m_drag.bar >= 0) {
        // New data arrived under a drag: follow the same occurrence, or give up when it has gone.
        const TimelineLayout &layout = m_context->layout;
        qsizetype found = -1;
        for (qsizetype i = 0; i < layout.bars.size() && found < 0; ++i) {
            const Event &occurrence = layout.occurrence(layout.bars.at(i).index);
            if (occurrence.id == m_drag.id && occurrence.recurrence_id == m_drag.recurrenceId)
                found = i;
        }
        m_drag.bar = found;
        if (found < 0) {
            m_drag = Drag();
            unsetCursor();
        }
    }
    const int height = std::min(contentHeight(), std::max(m_maximumHeight, laneHeight() * 2));
    m_scroll = std::clamp(m_scroll, 0, std::max(0, contentHeight() - height));
    setFixedHeight(height);
    update();
}

void AllDayStrip::setMaximumStripHeight(int pixels)
{
    if (pixels == m_maximumHeight)
        return;
    m_maximumHeight = pixels;
    relayout();
}

void AllDayStrip::setExpanded(bool expanded)
{
    if (expanded == m_expanded)
        return;
    m_expanded = expanded;
    m_scroll = 0;
    relayout();
}

QRect AllDayStrip::shiftedBarRect(qsizetype barIndex, int dayDelta) const
{
    const TimelineLayout::Bar &bar = m_context->layout.bars.at(barIndex);
    const int last = m_context->layout.dayCount - 1;
    const int first = std::clamp(bar.first + dayDelta, 0, last);
    const int lastDay = std::clamp(bar.last + dayDelta, 0, last);
    const int left = m_context->dayLeft(first) + 2;
    const int right = m_context->dayLeft(lastDay + 1) - 3;
    const int top = kTopPadding + bar.lane * laneHeight() - m_scroll;
    return {left, top, right - left, laneHeight() - kLaneGap};
}

QRect AllDayStrip::barRect(qsizetype barIndex) const
{
    if (barIndex < 0 || barIndex >= m_context->layout.bars.size()
        || m_context->layout.bars.at(barIndex).lane >= visibleLanes())
        return {};
    return shiftedBarRect(barIndex, 0);
}

int AllDayStrip::overflowCount(int day) const
{
    if (m_expanded || !hasOverflow())
        return 0;
    return m_context->layout.barsFrom(day, visibleLanes());
}

QRect AllDayStrip::overflowRect(int day) const
{
    if (overflowCount(day) == 0)
        return {};
    const int left = m_context->dayLeft(day) + 2;
    const int right = m_context->dayLeft(day + 1) - 3;
    return {left, kTopPadding + visibleLanes() * laneHeight(), right - left, laneHeight() - kLaneGap};
}

QRect AllDayStrip::toggleRect() const
{
    if (!hasOverflow())
        return {};
    const int size = laneHeight() - kLaneGap;
    return {m_context->gutter - size - 6, height() - kBottomPadding - size, size, size};
}

qsizetype AllDayStrip::barAt(const QPoint &pos) const
{
    for (qsizetype i = m_context->layout.bars.size() - 1; i >= 0; --i) {
        if (barRect(i).contains(pos))
            return i;
    }
    return -1;
}

void AllDayStrip::cancelDrag()
{
    if (!m_drag.pressed && !m_drag.active)
        return;
    m_drag = Drag();
    update();
}

void AllDayStrip::paintEvent(QPaintEvent *)
{
    const ThemeManager::Colors &colors = m_context->colors();
    const bool dark = m_context->isDark();
    const TimelineLayout &layout = m_context->layout;
    QPainter painter(this);
    painter.fillRect(rect(), colors.surface);
    const int columns = m_context->columnsWidth;
    const int today = m_context->todayIndex();
    if (today >= 0) {
        const int left = m_context->dayLeft(today);
        painter.fillRect(QRect(left, 0, m_context->dayLeft(today + 1) - left, height()), colors.todayBackground);
    }
    for (int day = 0; day <= layout.dayCount; ++day)
        painter.fillRect(QRect(m_context->dayLeft(day), 0, 1, height()), colors.gridLine);
    painter.fillRect(QRect(0, height() - 1, width(), 1), colors.border);

    QFont label = EventBlockPainter::detailFont(font());
    painter.setFont(label);
    painter.setPen(colors.textMuted);
    painter.drawText(QRect(0, kTopPadding, m_context->gutter - 8, laneHeight() - kLaneGap),
                     Qt::AlignRight | Qt::AlignVCenter, tr("all-day"));
    if (const QRect toggle = toggleRect(); !toggle.isNull()) {
        // A chevron: down to expand, up to collapse.
        painter.save();
        painter.setRenderHint(QPainter::Antialiasing, true);
        QPen pen(colors.textMuted, 1.6);
        pen.setCapStyle(Qt::RoundCap);
        pen.setJoinStyle(Qt::RoundJoin);
        painter.setPen(pen);
        const QPointF c = QRectF(toggle).center();
        const qreal s = toggle.width() / 5.0;
        const qreal dir = m_expanded ? -1 : 1;
        painter.drawPolyline(QList<QPointF>{
            {c.x() - s, c.y() - dir * s / 2}, {c.x(), c.y() + dir * s / 2}, {c.x() + s, c.y() - dir * s / 2}});
        painter.restore();
    }

    if (!layout.span)
        return;
    painter.setClipRect(QRect(m_context->gutter, 0, columns, height() - 1));
    const qint64 now = Clock::nowUtc().toMSecsSinceEpoch();
    const EventBlockPainter::Fonts fonts(font());
    for (qsizetype i = 0; i < layout.bars.size(); ++i) {
        const QRect box = barRect(i);
        if (box.isNull())
            continue;
        const TimelineLayout::Bar &bar = layout.bars.at(i);
        const Event &occurrence = layout.occurrence(bar.index);
        const TimelineLayout::Visual &visual = layout.visual(bar.index);
        EventBlockPainter::Look look;
        look.color = visual.color;
        look.dimmed = visual.dimmed;
        look.selected = m_context->isSelected(occurrence);
        look.past = visual.endMSecs <= now;
        if (m_drag.active && m_drag.bar == i)
            look.fade = 0.35;
        QString text = occurrence.title;
        if (!occurrence.is_all_day && !bar.continuesBefore)
            text = TimelineMath::timeText(visual.start, m_context->use24Hour) + QLatin1Char(' ') + text;
        EventBlockPainter::paintBar(painter, box, text, look, colors, dark, fonts, bar.continuesBefore,
                                    bar.continuesAfter);
    }
    for (int day = 0; day < layout.dayCount; ++day) {
        const int count = overflowCount(day);
        if (count == 0)
            continue;
        const QRect box = overflowRect(day);
        const QFontMetrics metrics(EventBlockPainter::titleFont(font()));
        QString text = tr("+%1 more").arg(count);
        if (metrics.horizontalAdvance(text) > box.width() - 8)
            text = tr("+%1").arg(count);
        painter.setFont(EventBlockPainter::titleFont(font()));
        painter.setPen(colors.textMuted);
        painter.drawText(box.adjusted(6, 0, -2, 0), Qt::AlignLeft | Qt::AlignVCenter, text);
    }
    if (m_drag.active && m_drag.bar >= 0) {
        const TimelineLayout::Bar &bar = layout.bars.at(m_drag.bar);
        const Event &occurrence = layout.occurrence(bar.index);
        EventBlockPainter::Look look;
        look.color = layout.visual(bar.index).color;
        look.ghost = true;
        EventBlockPainter::paintBar(painter, shiftedBarRect(m_drag.bar, m_drag.dayDelta), occurrence.title, look,
                                    colors, dark, fonts, bar.continuesBefore && m_drag.dayDelta <= 0,
                                    bar.continuesAfter && m_drag.dayDelta >= 0);
    }
}

void AllDayStrip::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    const QPoint pos = event->position().toPoint();
    m_drag = Drag();
    m_drag.pressed = true;
    m_drag.pressPos = pos;
    m_drag.bar = barAt(pos);
    if (m_drag.bar >= 0) {
        const Event &occurrence = m_context->layout.occurrence(m_context->layout.bars.at(m_drag.bar).index);
        m_drag.id = occurrence.id;
        m_drag.recurrenceId = occurrence.recurrence_id;
    }
    m_drag.pressDay = m_context->dayAt(pos.x());
}

void AllDayStrip::mouseMoveEvent(QMouseEvent *event)
{
    if (!m_drag.pressed || m_drag.committed || m_drag.bar < 0)
        return;
    const QPoint pos = event->position().toPoint();
    if (!m_drag.active) {
        if ((pos - m_drag.pressPos).manhattanLength() < kClickDistance)
            return;
        const Event &occurrence = m_context->layout.occurrence(m_context->layout.bars.at(m_drag.bar).index);
        if (m_context->isReadOnly(occurrence))
            return;
        m_drag.active = true;
        setCursor(Qt::ClosedHandCursor);
    }
    const int delta = m_context->dayAt(pos.x()) - m_drag.pressDay;
    if (delta != m_drag.dayDelta) {
        m_drag.dayDelta = delta;
        update();
    }
}

void AllDayStrip::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton || !m_drag.pressed)
        return;
    const QPoint pos = event->position().toPoint();
    m_drag.pressed = false;
    unsetCursor();
    if (m_drag.active) {
        const Event occurrence = m_context->layout.occurrence(m_context->layout.bars.at(m_drag.bar).index);
        if (m_drag.dayDelta != 0) {
            m_drag.committed = true;
            // Whole days on the wall clock, so that a timed event keeps its hour across a DST change.
            const QDateTime start = occurrence.is_all_day
                ? occurrence.start_time.addDays(m_drag.dayDelta)
                : TimelineMath::inFormOf(occurrence.start_time.toLocalTime().addDays(m_drag.dayDelta),
                                         occurrence.start_time);
            if (m_context->commitMove && m_context->commitMove(occurrence, start))
                return; // the preview stays until the moved event arrives
        }
        m_drag = Drag();
        update();
        return;
    }
    const qsizetype bar = m_drag.bar;
    m_drag = Drag();
    if (toggleRect().contains(pos)) {
        setExpanded(!m_expanded);
        return;
    }
    for (int day = 0; day < m_context->layout.dayCount; ++day) {
        if (overflowRect(day).contains(pos)) {
            setExpanded(true);
            return;
        }
    }
    if (bar >= 0)
        emit eventClicked(m_context->layout.bars.at(bar).index, barRect(bar));
    else
        emit emptyClicked();
}

void AllDayStrip::mouseDoubleClickEvent(QMouseEvent *event)
{
    const QPoint pos = event->position().toPoint();
    if (event->button() != Qt::LeftButton || pos.x() < m_context->gutter || barAt(pos) >= 0
        || m_context->layout.dayCount <= 0)
        return;
    for (int day = 0; day < m_context->layout.dayCount; ++day) {
        if (overflowRect(day).contains(pos))
            return;
    }
    const QDate date = m_context->layout.firstDay.addDays(m_context->dayAt(pos.x()));
    emit createRequested(date.startOfDay(), date.addDays(1).startOfDay(), true);
}

void AllDayStrip::wheelEvent(QWheelEvent *event)
{
    const int overflow = contentHeight() - height();
    if (overflow <= 0) {
        event->ignore();
        return;
    }
    m_scroll = std::clamp(m_scroll - event->angleDelta().y() / 4, 0, overflow);
    update();
}

void AllDayStrip::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Escape && (m_drag.pressed || m_drag.active)) {
        cancelDrag();
        return;
    }
    QWidget::keyPressEvent(event);
}
