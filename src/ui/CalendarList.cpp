// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/CalendarList.h"

#include "app/AppState.h"
#include "storage/Account.h"
#include "storage/AccountRepository.h"
#include "storage/CalendarRepository.h"
#include "ui/IconFont.h"
#include "ui/ThemeManager.h"

#include <QFontMetrics>
#include <QPainter>
#include <QPainterPath>

CalendarList::CalendarList(AppState *appState, QWidget *parent)
    : SidebarList(appState, parent)
{
    setObjectName(QStringLiteral("CalendarList"));
    setAccessibleName(tr("Calendars"));
    connect(appState->calendars(), &CalendarRepository::calendarsChanged, this, &CalendarList::refresh);
    connect(appState->accounts(), &AccountRepository::accountsChanged, this, &CalendarList::refresh);
    refresh();
}

void CalendarList::refresh()
{
    QList<Row> rows;
    m_calendars.clear();
    for (const Account &account : m_appState->accounts()->getAll()) {
        const QList<Calendar> calendars = m_appState->calendars()->getByAccount(account.id);
        if (calendars.isEmpty())
            continue;
        rows.append(Row{QString(), account.name, true});
        m_calendars.append(std::nullopt);
        for (const Calendar &calendar : calendars) {
            rows.append(Row{calendar.id, calendar.name, false});
            m_calendars.append(calendar);
        }
    }
    setRows(rows);
}

void CalendarList::paintRow(QPainter &painter, int index, const QRect &rect)
{
    const ThemeManager::Colors &c = m_appState->theme()->colors();
    if (!m_calendars[index]) {
        QFont font = this->font();
        font.setPointSizeF(font.pointSizeF() * 0.85);
        font.setWeight(QFont::DemiBold);
        painter.setFont(font);
        painter.setPen(c.textMuted);
        const QRect text = rect.adjusted(0, 4, 0, 0);
        painter.drawText(text, Qt::AlignVCenter | Qt::AlignLeft,
                         QFontMetrics(font).elidedText(rows()[index].text, Qt::ElideRight, text.width()));
        return;
    }
    const Calendar &calendar = *m_calendars[index];
    QColor color(calendar.color);
    if (!color.isValid())
        color = c.accent;

    // The colour swatch is the check box: filled with a tick when shown, an outline when hidden.
    const int box = QFontMetrics(font()).height() - 3;
    const QRectF swatch(rect.left() + 0.5, rect.top() + (rect.height() - box) / 2.0 + 0.5, box - 1, box - 1);
    if (calendar.is_visible) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(color);
        painter.drawRoundedRect(swatch, 3.5, 3.5);
        const qreal s = swatch.width();
        QPainterPath tick;
        tick.moveTo(swatch.left() + s * 0.24, swatch.top() + s * 0.52);
        tick.lineTo(swatch.left() + s * 0.43, swatch.top() + s * 0.70);
        tick.lineTo(swatch.left() + s * 0.77, swatch.top() + s * 0.32);
        const qreal luma = 0.299 * color.redF() + 0.587 * color.greenF() + 0.114 * color.blueF();
        painter.setPen(QPen(luma > 0.62 ? QColor(0x1f, 0x23, 0x28) : QColor(Qt::white), qMax(1.6, s / 8.0),
                            Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.setBrush(Qt::NoBrush);
        painter.drawPath(tick);
    } else {
        painter.setPen(QPen(color, 1.6));
        painter.setBrush(Qt::NoBrush);
        painter.drawRoundedRect(swatch.adjusted(0.8, 0.8, -0.8, -0.8), 3, 3);
    }

    int right = rect.right();
    if (calendar.is_read_only) {
        const int lock = box;
        painter.setFont(IconFont::font(lock));
        painter.setPen(c.textMuted);
        painter.drawText(QRect(right - lock + 1, rect.top(), lock, rect.height()), Qt::AlignCenter,
                         IconFont::text(IconFont::Glyph::Lock));
        right -= lock + 6;
    }
    painter.setFont(font());
    painter.setPen(calendar.is_visible ? c.text : c.textMuted);
    const QRect text(QPoint(rect.left() + box + 10, rect.top()), QPoint(right, rect.bottom()));
    painter.drawText(text, Qt::AlignVCenter | Qt::AlignLeft,
                     QFontMetrics(font()).elidedText(calendar.name, Qt::ElideRight, text.width()));
}

void CalendarList::activateRow(int index)
{
    if (index < 0 || index >= m_calendars.size() || !m_calendars[index])
        return;
    // The stored row, not the one read at the last refresh: sync may have changed it since.
    std::optional<Calendar> calendar = m_appState->calendars()->getById(m_calendars[index]->id);
    if (!calendar)
        return;
    calendar->is_visible = !calendar->is_visible;
    m_appState->calendars()->update(*calendar);
}

QString CalendarList::toolTipOf(int index) const
{
    if (index < 0 || index >= m_calendars.size() || !m_calendars[index])
        return QString();
    const Calendar &calendar = *m_calendars[index];
    QString text = calendar.is_visible ? tr("%1: shown (click to hide)").arg(calendar.name)
                                       : tr("%1: hidden (click to show)").arg(calendar.name);
    if (calendar.is_read_only)
        text += QLatin1Char('\n') + tr("Read-only");
    return text;
}
