// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/TimelineGrid.h"

#include "storage/Clock.h"
#include "ui/EventBlockPainter.h"
#include "ui/TimelineContext.h"
#include "ui/TimelineMath.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QTime>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

using TimelineMath::kMinutesPerDay;

namespace {

// Room left free at the right of each column, so that a crowded day can still be clicked.
constexpr int kColumnEndGap = 6;

qint64 durationMinutes(const Event &occurrence)
{
    if (!occurrence.end_time || *occurrence.end_time <= occurrence.start_time)
        return 0;
    return occurrence.start_time.secsTo(*occurrence.end_time) / 60;
}

} // namespace

TimelineGrid::TimelineGrid(TimelineContext *context, QWidget *parent)
    : QWidget(parent)
    , m_context(context)
{
    setObjectName(QStringLiteral("timelineGrid"));
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    m_nowTimer.setSingleShot(true);
    connect(&m_nowTimer, &QTimer::timeout, this, [this] {
        update();
        scheduleNowTick();
        emit minuteChanged();
    });
    scheduleNowTick();
    relayout();
}

void TimelineGrid::scheduleNowTick()
{
    // Just after the next full minute, so the line moves when the clock does.
    const int intoMinute = QTime::currentTime().msecsSinceStartOfDay() % 60000;
    m_nowTimer.start(60000 - intoMinute + 20);
}

void TimelineGrid::relayout()
{
    if (m_drag.committed) {
        m_drag = Drag();
    } else if (m_drag.piece >= 0) {
        // New data arrived under a drag: follow the same occurrence, or give up when it has gone.
        const TimelineLayout &layout = m_context->layout;
        qsizetype found = -1;
        for (qsizetype i = 0; i < layout.pieces.size() && found < 0; ++i) {
            const Event &occurrence = layout.occurrence(layout.pieces.at(i).index);
            if (occurrence.id == m_drag.id && occurrence.recurrence_id == m_drag.recurrenceId
                && (layout.pieces.at(i).endsHere || !m_drag.onHandle))
                found = i;
        }
        m_drag.piece = found;
        if (found < 0) {
            m_drag = Drag();
            unsetCursor();
        }
    }
    setFixedHeight(24 * m_context->hourHeight + 1);
    update();
}

QString TimelineGrid::hourLabel(int hour) const
{
    return TimelineMath::hourLabel(hour, m_context->use24Hour);
}

QRect TimelineGrid::rangeRect(int day, int start, int end) const
{
    const int left = m_context->dayLeft(day) + 2;
    const int right = m_context->dayLeft(day + 1) - 2;
    const int top = TimelineMath::yAt(start, m_context->hourHeight) + 1;
    const int bottom = std::max(TimelineMath::yAt(end, m_context->hourHeight) - 1, top + kMinimumBlockHeight);
    return {left, top, right - left, std::min(bottom, 24 * m_context->hourHeight) - top};
}

QRect TimelineGrid::pieceRect(qsizetype pieceIndex) const
{
    if (pieceIndex < 0 || pieceIndex >= m_context->layout.pieces.size())
        return {};
    const TimelineLayout::TimedPiece &piece = m_context->layout.pieces.at(pieceIndex);
    const int left = m_context->dayLeft(piece.day) + 2;
    const int right = m_context->dayLeft(piece.day + 1) - kColumnEndGap;
    const double width = std::max(0, right - left) / double(std::max(1, piece.placement.columns));
    const int x0 = left + int(std::lround(piece.placement.column * width));
    const int x1 = left + int(std::lround((piece.placement.column + piece.placement.span) * width));
    QRect box = rangeRect(piece.day, piece.start, piece.end);
    // One pixel between neighbours, so that side-by-side blocks stay apart.
    box.setLeft(x0);
    box.setRight(x1 - (piece.placement.column + piece.placement.span < piece.placement.columns ? 2 : 1));
    return box;
}

int TimelineGrid::nowLineY() const
{
    if (m_context->todayIndex() < 0)
        return -1;
    const QTime now = Clock::nowLocal().time();
    return TimelineMath::yAt(now.hour() * 60 + now.minute() + now.second() / 60.0, m_context->hourHeight);
}

int TimelineGrid::gridMinuteAt(const QPoint &pos, int day) const
{
    if (day < 0)
        day = m_context->dayAt(pos.x());
    const int minute = int(std::floor(TimelineMath::minuteAt(pos.y(), m_context->hourHeight)));
    return day * kMinutesPerDay + std::clamp(minute, 0, kMinutesPerDay);
}

qsizetype TimelineGrid::pieceAt(const QPoint &pos) const
{
    // Later pieces are drawn over earlier ones, so the last hit is the one on top.
    for (qsizetype i = m_context->layout.pieces.size() - 1; i >= 0; --i) {
        if (pieceRect(i).contains(pos))
            return i;
    }
    return -1;
}

bool TimelineGrid::isOnHandle(qsizetype piece, const QPoint &pos) const
{
    if (piece < 0 || !m_context->layout.pieces.at(piece).endsHere)
        return false;
    const QRect box = pieceRect(piece);
    return pos.y() > box.bottom() - kResizeHandle && box.height() >= kResizeHandle * 2;
}

void TimelineGrid::setVisibleTop(int y)
{
    if (y == m_visibleTop)
        return;
    // Only the blocks cut by the old or the new top edge move their titles.
    for (qsizetype i = 0; i < m_context->layout.pieces.size(); ++i) {
        const QRect box = pieceRect(i);
        const auto cut = [&box](int top) {
            return box.top() < top + 2 && box.bottom() > top;
        };
        if (cut(m_visibleTop) || cut(y))
            update(box);
    }
    m_visibleTop = y;
}

bool TimelineGrid::isDragging() const
{
    return m_drag.kind == DragKind::Move || m_drag.kind == DragKind::Resize || m_drag.kind == DragKind::Create;
}

void TimelineGrid::cancelDrag()
{
    if (m_drag.kind == DragKind::None)
        return;
    m_drag = Drag();
    unsetCursor();
    update();
}

std::pair<int, int> TimelineGrid::draggedRange() const
{
    if (m_drag.kind == DragKind::Create) {
        const int day = TimelineMath::floorDiv(m_drag.pressMinute, kMinutesPerDay);
        const TimelineMath::MinuteRange range = TimelineMath::sweptRange(m_drag.pressMinute - day * kMinutesPerDay,
                                                                         m_drag.currentMinute - day * kMinutesPerDay);
        const int start = std::min(range.start, kMinutesPerDay - TimelineMath::kSnapMinutes);
        return {day * kMinutesPerDay + start, day * kMinutesPerDay + std::min(range.end, kMinutesPerDay)};
    }
    const TimelineLayout &layout = m_context->layout;
    const Event &occurrence = layout.occurrence(layout.pieces.at(m_drag.piece).index);
    const int start = TimelineMath::gridMinuteOf(layout.firstDay, occurrence.start_time);
    const int end = start + int(durationMinutes(occurrence));
    if (m_drag.kind == DragKind::Move) {
        const int moved = TimelineMath::movedStart(start, m_drag.pressMinute, m_drag.currentMinute);
        return {moved, moved + end - start};
    }
    return {start, TimelineMath::resizedEnd(start, end, m_drag.pressMinute, m_drag.currentMinute)};
}

void TimelineGrid::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    const QRect exposed = event->rect();
    paintBackground(painter, exposed);
    if (m_context->layout.span)
        paintPieces(painter, exposed);
    paintDrag(painter);
    paintNowLine(painter);
}

void TimelineGrid::paintBackground(QPainter &painter, const QRect &exposed) const
{
    const ThemeManager::Colors &colors = m_context->colors();
    const int hourHeight = m_context->hourHeight;
    const int columns = m_context->columnsWidth;
    const int gutter = m_context->gutter;
    const int dayCount = m_context->layout.dayCount;
    painter.fillRect(exposed, colors.surface);

    const int workStart = std::clamp(m_context->workdayStart, 0, 24);
    const int workEnd = std::clamp(m_context->workdayEnd, workStart, 24);
    const int workTop = TimelineMath::yAt(workStart * 60, hourHeight);
    const int workBottom = TimelineMath::yAt(workEnd * 60, hourHeight);
    painter.fillRect(QRect(gutter, 0, columns, workTop), colors.offHours);
    painter.fillRect(QRect(gutter, workBottom, columns, height() - workBottom), colors.offHours);
    if (const int today = m_context->todayIndex(); today >= 0) {
        const int left = m_context->dayLeft(today);
        painter.fillRect(QRect(left, 0, m_context->dayLeft(today + 1) - left, height()), colors.todayBackground);
    }

    const int firstHour = std::max(0, exposed.top() / hourHeight - 1);
    const int lastHour = std::min(24, exposed.bottom() / hourHeight + 1);
    for (int hour = firstHour; hour <= lastHour; ++hour) {
        const int y = TimelineMath::yAt(hour * 60, hourHeight);
        // The hour line reaches a little into the gutter, as a tick beside its label.
        painter.fillRect(QRect(gutter - 6, y, columns + 6, 1), colors.gridLine);
        if (hour < 24)
            painter.fillRect(QRect(gutter, TimelineMath::yAt(hour * 60 + 30, hourHeight), columns, 1),
                             colors.gridLineFaint);
    }
    for (int day = 0; day <= dayCount; ++day)
        painter.fillRect(QRect(m_context->dayLeft(day), exposed.top(), 1, exposed.height()), colors.gridLine);

    // Hour labels, centred on their lines; the one the current time covers gives way.
    const QFont label = EventBlockPainter::detailFont(font());
    const QFontMetrics metrics(label);
    const int nowY = nowLineY();
    painter.setFont(label);
    painter.setPen(colors.textMuted);
    for (int hour = std::max(1, firstHour); hour <= std::min(23, lastHour); ++hour) {
        const int y = TimelineMath::yAt(hour * 60, hourHeight);
        if (nowY >= 0 && std::abs(nowY - y) < metrics.height() - 2)
            continue;
        painter.drawText(QRect(0, y - metrics.height() / 2, gutter - 10, metrics.height()),
                         Qt::AlignRight | Qt::AlignVCenter, hourLabel(hour));
    }
}

void TimelineGrid::paintPieces(QPainter &painter, const QRect &exposed) const
{
    const TimelineLayout &layout = m_context->layout;
    const ThemeManager::Colors &colors = m_context->colors();
    const bool dark = m_context->isDark();
    const EventBlockPainter::Fonts fonts(font());
    const qint64 now = Clock::nowUtc().toMSecsSinceEpoch();
    const bool moving = m_drag.kind == DragKind::Move || m_drag.kind == DragKind::Resize;
    const qsizetype draggedIndex = moving ? layout.pieces.at(m_drag.piece).index : -1;
    const int today = m_context->todayIndex();
    const QColor todaySurface = EventBlockPainter::composite(colors.surface, colors.todayBackground);
    painter.setClipRect(QRect(m_context->gutter, 0, m_context->columnsWidth, height()));
    for (qsizetype i = 0; i < layout.pieces.size(); ++i) {
        const QRect box = pieceRect(i);
        if (!box.intersects(exposed))
            continue;
        const TimelineLayout::TimedPiece &piece = layout.pieces.at(i);
        const Event &occurrence = layout.occurrence(piece.index);
        const TimelineLayout::Visual &visual = layout.visual(piece.index);
        EventBlockPainter::Look look;
        look.color = visual.color;
        look.dimmed = visual.dimmed;
        look.selected = m_context->isSelected(occurrence);
        look.past = visual.endMSecs <= now;
        // The event being dragged stays faintly in place while its preview follows the pointer.
        look.fade = piece.index == draggedIndex ? 0.35 : 1.0;
        if (piece.day == today)
            look.background = todaySurface;
        EventBlockPainter::Texts texts;
        if (EventBlockPainter::hasRoomForText(box)) {
            texts.title = occurrence.title;
            texts.time = TimelineMath::rangeText(visual.start, visual.end, m_context->use24Hour, visual.sameDay);
            texts.location = occurrence.location;
        }
        EventBlockPainter::paintTimed(painter, box, texts, look, colors, dark, fonts, piece.startsHere, piece.endsHere,
                                      m_visibleTop + 2);
    }
    painter.setClipping(false);
}

void TimelineGrid::paintDrag(QPainter &painter) const
{
    if (!isDragging() && !m_drag.committed)
        return;
    const ThemeManager::Colors &colors = m_context->colors();
    const auto [start, end] = draggedRange();
    const TimelineLayout &layout = m_context->layout;
    const QDateTime startTime = TimelineMath::dateTimeAt(layout.firstDay, start);
    const QDateTime endTime = TimelineMath::dateTimeAt(layout.firstDay, end);
    const QString time = TimelineMath::rangeText(startTime.time(), endTime.time(), m_context->use24Hour,
                                                 startTime.date() == endTime.date());
    painter.save();
    painter.setClipRect(QRect(m_context->gutter, 0, m_context->columnsWidth, height()));
    const int firstDay = std::max(0, TimelineMath::floorDiv(start, kMinutesPerDay));
    const int lastDay = std::min(layout.dayCount - 1, TimelineMath::floorDiv(std::max(start, end - 1), kMinutesPerDay));
    for (int day = firstDay; day <= lastDay; ++day) {
        const int from = std::max(start, day * kMinutesPerDay) - day * kMinutesPerDay;
        const int to = std::min(std::max(end, start), (day + 1) * kMinutesPerDay) - day * kMinutesPerDay;
        const QRect box = rangeRect(day, from, to).adjusted(0, 0, -kColumnEndGap + 2, 0);
        if (m_drag.kind == DragKind::Create) {
            painter.setRenderHint(QPainter::Antialiasing, true);
            painter.setPen(Qt::NoPen);
            painter.setBrush(colors.selection);
            painter.drawRoundedRect(QRectF(box), EventBlockPainter::kCornerRadius, EventBlockPainter::kCornerRadius);
            painter.setFont(EventBlockPainter::titleFont(font()));
            painter.setPen(colors.text);
            painter.drawText(box.adjusted(8, 3, -4, -2), Qt::AlignLeft | Qt::AlignTop,
                             QFontMetrics(painter.font()).elidedText(time, Qt::ElideRight, box.width() - 12));
            continue;
        }
        const qsizetype index = layout.pieces.at(m_drag.piece).index;
        EventBlockPainter::Look look;
        look.color = layout.visual(index).color;
        look.ghost = true;
        EventBlockPainter::paintTimed(painter, box, {layout.occurrence(index).title, time, QString()}, look, colors,
                                      m_context->isDark(), EventBlockPainter::Fonts(font()),
                                      day * kMinutesPerDay <= start, end <= (day + 1) * kMinutesPerDay);
    }
    painter.restore();
}

void TimelineGrid::paintNowLine(QPainter &painter) const
{
    const int today = m_context->todayIndex();
    const int y = nowLineY();
    if (today < 0 || y < 0)
        return;
    const ThemeManager::Colors &colors = m_context->colors();
    const int left = m_context->dayLeft(today);
    const int right = m_context->dayLeft(today + 1);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.fillRect(QRect(left, y - 1, right - left, 2), colors.nowLine);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colors.nowLine);
    painter.drawEllipse(QPointF(left + 1, y), 4.5, 4.5);
    // The time itself, in a pill in the gutter.
    const QFont label = EventBlockPainter::detailFont(font());
    const QFontMetrics metrics(label);
    const QString text = TimelineMath::timeText(Clock::nowLocal().time(), m_context->use24Hour);
    const int pillWidth = metrics.horizontalAdvance(text) + 10;
    const QRectF pill(m_context->gutter - 6 - pillWidth, y - metrics.height() / 2.0 - 1, pillWidth,
                      metrics.height() + 2);
    painter.drawRoundedRect(pill, pill.height() / 2, pill.height() / 2);
    painter.setFont(label);
    painter.setPen(EventBlockPainter::contrastText(colors.nowLine));
    painter.drawText(pill, Qt::AlignCenter, text);
    painter.restore();
}

void TimelineGrid::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    setFocus(Qt::MouseFocusReason);
    const QPoint pos = event->position().toPoint();
    if (pos.x() < m_context->gutter)
        return;
    m_drag = Drag();
    m_drag.kind = DragKind::Pressed;
    m_drag.pressPos = pos;
    m_drag.piece = pieceAt(pos);
    m_drag.onHandle = isOnHandle(m_drag.piece, pos);
    if (m_drag.piece >= 0) {
        const Event &occurrence = m_context->layout.occurrence(m_context->layout.pieces.at(m_drag.piece).index);
        m_drag.id = occurrence.id;
        m_drag.recurrenceId = occurrence.recurrence_id;
    }
    const int day = m_drag.piece >= 0 && m_drag.onHandle ? m_context->layout.pieces.at(m_drag.piece).day : -1;
    m_drag.pressMinute = gridMinuteAt(pos, day);
    m_drag.currentMinute = m_drag.pressMinute;
}

void TimelineGrid::mouseMoveEvent(QMouseEvent *event)
{
    const QPoint pos = event->position().toPoint();
    if (m_drag.kind == DragKind::None || m_drag.committed) {
        updateCursor(pos);
        return;
    }
    if (m_drag.kind == DragKind::Pressed) {
        if ((pos - m_drag.pressPos).manhattanLength() < kClickDistance)
            return;
        if (m_drag.piece < 0) {
            m_drag.kind = DragKind::Create;
        } else if (!m_context->isReadOnly(
                       m_context->layout.occurrence(m_context->layout.pieces.at(m_drag.piece).index))) {
            m_drag.kind = m_drag.onHandle ? DragKind::Resize : DragKind::Move;
            setCursor(m_drag.onHandle ? Qt::SizeVerCursor : Qt::ClosedHandCursor);
        } else {
            return; // a read-only event stays where it is; the press still counts as a click
        }
    }
    if (!isDragging())
        return;
    const int day = m_drag.kind == DragKind::Move ? -1 : TimelineMath::floorDiv(m_drag.pressMinute, kMinutesPerDay);
    const int minute = gridMinuteAt(pos, day);
    emit ensureVisibleRequested(pos);
    if (minute != m_drag.currentMinute) {
        m_drag.currentMinute = minute;
        update();
    }
}

void TimelineGrid::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton || m_drag.kind == DragKind::None || m_drag.committed)
        return;
    const Drag drag = m_drag;
    const TimelineLayout &layout = m_context->layout;
    if (drag.kind == DragKind::Pressed) {
        m_drag = Drag();
        if (drag.piece >= 0)
            emit eventClicked(layout.pieces.at(drag.piece).index, pieceRect(drag.piece));
        else
            emit emptyClicked();
        return;
    }
    const auto [start, end] = draggedRange();
    if (drag.kind == DragKind::Create) {
        m_drag = Drag();
        update();
        emit createRequested(TimelineMath::dateTimeAt(layout.firstDay, start),
                             TimelineMath::dateTimeAt(layout.firstDay, end), false);
        return;
    }
    const Event occurrence = layout.occurrence(layout.pieces.at(drag.piece).index);
    const int originalStart = TimelineMath::gridMinuteOf(layout.firstDay, occurrence.start_time);
    const int originalEnd = originalStart + int(durationMinutes(occurrence));
    unsetCursor();
    bool changed = false;
    m_drag.committed = true;
    if (drag.kind == DragKind::Move && start != originalStart) {
        const QDateTime newStart = TimelineMath::dateTimeAt(layout.firstDay, start);
        changed = m_context->commitMove
            && m_context->commitMove(occurrence, TimelineMath::inFormOf(newStart, occurrence.start_time));
    } else if (drag.kind == DragKind::Resize && end != originalEnd) {
        const QDateTime newEnd = TimelineMath::dateTimeAt(layout.firstDay, end);
        changed = m_context->commitResize
            && m_context->commitResize(
                occurrence, TimelineMath::inFormOf(newEnd, occurrence.end_time.value_or(occurrence.start_time)));
    }
    // A successful change keeps its preview until the changed event arrives with the next layout.
    if (!changed) {
        m_drag = Drag();
        update();
    }
}

void TimelineGrid::mouseDoubleClickEvent(QMouseEvent *event)
{
    const QPoint pos = event->position().toPoint();
    if (event->button() != Qt::LeftButton || pos.x() < m_context->gutter || pieceAt(pos) >= 0
        || m_context->layout.dayCount <= 0)
        return;
    m_drag = Drag();
    const int pointer = gridMinuteAt(pos);
    const int day = TimelineMath::floorDiv(pointer, kMinutesPerDay);
    // The bottom edge belongs to the last quarter of the day, not to the next day.
    const int start = TimelineMath::floorToQuarter(std::min(pointer, day * kMinutesPerDay + kMinutesPerDay - 1));
    const QDateTime startTime = TimelineMath::dateTimeAt(m_context->layout.firstDay, start);
    emit createRequested(startTime, TimelineMath::dateTimeAt(m_context->layout.firstDay, start + 60), false);
}

void TimelineGrid::updateCursor(const QPoint &pos)
{
    const qsizetype piece = pieceAt(pos);
    const bool resizable = piece >= 0 && isOnHandle(piece, pos)
        && !m_context->isReadOnly(m_context->layout.occurrence(m_context->layout.pieces.at(piece).index));
    if (resizable)
        setCursor(Qt::SizeVerCursor);
    else
        unsetCursor();
}

void TimelineGrid::wheelEvent(QWheelEvent *event)
{
    if (!(event->modifiers() & Qt::ControlModifier)) {
        event->ignore(); // plain wheel scrolls the surrounding area
        return;
    }
    m_zoomSteps += event->angleDelta().y() / 120.0;
    const int current = m_context->hourHeight;
    int wanted = int(std::lround(current * std::pow(1.15, m_zoomSteps)));
    if (wanted == current)
        return; // a small touchpad step: wait for more
    m_zoomSteps = 0;
    emit zoomRequested(wanted, int(event->position().y()));
}

bool TimelineGrid::event(QEvent *event)
{
    // Tab walks through the events instead of leaving the grid.
    if (event->type() == QEvent::KeyPress) {
        auto *key = static_cast<QKeyEvent *>(event);
        if ((key->key() == Qt::Key_Tab || key->key() == Qt::Key_Backtab)
            && !(key->modifiers() & (Qt::ControlModifier | Qt::AltModifier))) {
            emit selectionStepRequested(key->key() == Qt::Key_Backtab ? -1 : 1);
            return true;
        }
    }
    return QWidget::event(event);
}

void TimelineGrid::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    const int columns = std::max(0, width() - m_context->gutter);
    if (columns != m_context->columnsWidth) {
        m_context->columnsWidth = columns;
        emit columnsChanged();
    }
}

void TimelineGrid::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Escape:
        if (m_drag.kind != DragKind::None && !m_drag.committed)
            cancelDrag();
        else
            event->ignore();
        return;
    case Qt::Key_Up:
        emit scrollRequested(-m_context->hourHeight / 2);
        return;
    case Qt::Key_Down:
        emit scrollRequested(m_context->hourHeight / 2);
        return;
    case Qt::Key_PageUp:
        emit scrollRequested(-m_context->hourHeight * 6);
        return;
    case Qt::Key_PageDown:
        emit scrollRequested(m_context->hourHeight * 6);
        return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        emit activationRequested();
        return;
    default:
        QWidget::keyPressEvent(event);
    }
}
