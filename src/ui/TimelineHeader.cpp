// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/TimelineHeader.h"

#include "storage/Clock.h"
#include "ui/EventBlockPainter.h"
#include "ui/TimelineContext.h"

#include <QLocale>
#include <QMouseEvent>
#include <QPainter>

namespace {

QFont weekdayFont(const QFont &base)
{
    QFont font = EventBlockPainter::detailFont(base);
    font.setWeight(QFont::DemiBold);
    font.setLetterSpacing(QFont::PercentageSpacing, 104);
    return font;
}

QFont numberFont(const QFont &base)
{
    QFont font = base;
    font.setPointSizeF(base.pointSizeF() * 1.5);
    return font;
}

constexpr int kTopPadding = 7;
constexpr int kBottomPadding = 6;

} // namespace

TimelineHeader::TimelineHeader(TimelineContext *context, QWidget *parent)
    : QWidget(parent)
    , m_context(context)
{
    setObjectName(QStringLiteral("timelineHeader"));
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize TimelineHeader::sizeHint() const
{
    const QFontMetrics weekday(weekdayFont(font()));
    const QFontMetrics number(numberFont(font()));
    return {400, kTopPadding + weekday.height() + 2 + number.height() + 6 + kBottomPadding};
}

QSize TimelineHeader::minimumSizeHint() const
{
    return {m_context->gutter + 40, sizeHint().height()};
}

QRect TimelineHeader::dayRect(int index) const
{
    const int left = m_context->dayLeft(index);
    const int right = m_context->dayLeft(index + 1);
    return {left, 0, right - left, height()};
}

int TimelineHeader::dayAt(const QPoint &pos) const
{
    if (pos.x() < m_context->gutter || pos.x() >= m_context->gutter + m_context->columnsWidth
        || m_context->layout.dayCount <= 0)
        return -1;
    return m_context->dayAt(pos.x());
}

void TimelineHeader::paintEvent(QPaintEvent *)
{
    const ThemeManager::Colors &colors = m_context->colors();
    QPainter painter(this);
    painter.fillRect(rect(), colors.surface);
    const TimelineLayout &layout = m_context->layout;
    if (!layout.firstDay.isValid())
        return;

    const QFont weekday = weekdayFont(font());
    const QFont number = numberFont(font());
    const QFontMetrics weekdayMetrics(weekday);
    const QFontMetrics numberMetrics(number);
    const QLocale locale;
    const QDate today = Clock::nowLocal().date();
    const int circle = numberMetrics.height() + 6;
    const int weekdayTop = kTopPadding;
    const int numberTop = weekdayTop + weekdayMetrics.height() + 2;
    painter.setRenderHint(QPainter::Antialiasing, true);

    if (m_context->showWeekNumbers) {
        painter.setFont(EventBlockPainter::detailFont(font()));
        painter.setPen(colors.textMuted);
        painter.drawText(QRect(0, numberTop, m_context->gutter - 8, circle), Qt::AlignRight | Qt::AlignVCenter,
                         tr("W%1").arg(layout.firstDay.weekNumber()));
    }

    for (int index = 0; index < layout.dayCount; ++index) {
        const QDate date = layout.firstDay.addDays(index);
        const QRect column = dayRect(index);
        const bool isToday = date == today;
        const bool isPast = date < today;
        // The widest weekday name that fits: full in a single day, short, or a letter.
        QLocale::FormatType format = layout.dayCount == 1 ? QLocale::LongFormat : QLocale::ShortFormat;
        QString name = locale.dayName(date.dayOfWeek(), format).toUpper();
        if (weekdayMetrics.horizontalAdvance(name) > column.width() - 8)
            name = locale.dayName(date.dayOfWeek(), QLocale::NarrowFormat).toUpper();
        const QString day = QString::number(date.day());
        const int numberWidth = std::max(circle, numberMetrics.horizontalAdvance(day) + 12);
        // Wide columns read left-aligned, like a page; narrow ones centred.
        const bool leftAligned = column.width() >= 200;
        const int centre = column.center().x() + 1;
        const QRect weekdayRect = leftAligned
            ? QRect(column.left() + 12, weekdayTop, column.width() - 16, weekdayMetrics.height())
            : QRect(column.left(), weekdayTop, column.width(), weekdayMetrics.height());
        const QRect numberRect = leftAligned
            ? QRect(column.left() + 12 - (numberWidth - numberMetrics.horizontalAdvance(day)) / 2, numberTop,
                    numberWidth, circle)
            : QRect(centre - numberWidth / 2, numberTop, numberWidth, circle);

        painter.setFont(weekday);
        painter.setPen(isToday ? colors.accent : colors.textMuted);
        painter.drawText(weekdayRect, (leftAligned ? Qt::AlignLeft : Qt::AlignHCenter) | Qt::AlignVCenter, name);

        if (isToday) {
            painter.setPen(Qt::NoPen);
            painter.setBrush(colors.accent);
            painter.drawRoundedRect(numberRect, circle / 2.0, circle / 2.0);
        } else if (index == m_hovered) {
            painter.setPen(Qt::NoPen);
            painter.setBrush(colors.gridLine);
            painter.drawRoundedRect(numberRect, circle / 2.0, circle / 2.0);
        }
        QFont numberText = number;
        if (isToday)
            numberText.setWeight(QFont::DemiBold);
        painter.setFont(numberText);
        painter.setPen(isToday ? colors.accentText : isPast ? colors.textMuted : colors.text);
        painter.drawText(numberRect, Qt::AlignCenter, day);
    }
}

void TimelineHeader::mouseMoveEvent(QMouseEvent *event)
{
    const int hovered = dayAt(event->position().toPoint());
    if (hovered != m_hovered) {
        m_hovered = hovered;
        setCursor(hovered >= 0 ? Qt::PointingHandCursor : Qt::ArrowCursor);
        update();
    }
}

void TimelineHeader::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    const int index = dayAt(event->position().toPoint());
    if (index >= 0)
        emit dayClicked(m_context->layout.firstDay.addDays(index));
}

void TimelineHeader::leaveEvent(QEvent *)
{
    if (m_hovered != -1) {
        m_hovered = -1;
        unsetCursor();
        update();
    }
}
