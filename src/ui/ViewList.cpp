// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/ViewList.h"

#include "app/AppState.h"
#include "storage/ViewRepository.h"
#include "ui/IconFont.h"
#include "ui/ThemeManager.h"

#include <QFontMetrics>
#include <QPainter>

ViewList::ViewList(AppState *appState, QWidget *parent)
    : SidebarList(appState, parent)
{
    setObjectName(QStringLiteral("ViewList"));
    setAccessibleName(tr("Views"));
    connect(appState->views(), &ViewRepository::viewsChanged, this, &ViewList::refresh);
    connect(appState, &AppState::activeViewChanged, this, qOverload<>(&QWidget::update));
    refresh();
}

void ViewList::refresh()
{
    m_views = m_appState->views()->getAll();
    QList<Row> rows;
    rows.reserve(m_views.size());
    for (const CalendarView &view : std::as_const(m_views))
        rows.append(Row{view.id, view.name, false});
    setRows(rows);
}

bool ViewList::isCurrent(int index) const
{
    return index >= 0 && index < m_views.size() && m_views[index].id == m_appState->activeViewId();
}

void ViewList::paintRow(QPainter &painter, int index, const QRect &rect)
{
    const ThemeManager::Colors &c = m_appState->theme()->colors();
    const CalendarView &view = m_views[index];
    const bool current = isCurrent(index);
    const QColor own(view.color);
    const QColor color = own.isValid() ? own : c.textMuted;

    const int iconSize = QFontMetrics(font()).height();
    const QRect icon(rect.left(), rect.top() + (rect.height() - iconSize) / 2, iconSize, iconSize);
    painter.setFont(IconFont::font(iconSize));
    painter.setPen(current ? c.accent : color);
    painter.drawText(icon, Qt::AlignCenter, IconFont::text(IconFont::Glyph::CalendarMonth));

    QFont font = this->font();
    if (current)
        font.setWeight(QFont::DemiBold);
    painter.setFont(font);
    painter.setPen(c.text);
    const QRect text = rect.adjusted(iconSize + 10, 0, 0, 0);
    painter.drawText(text, Qt::AlignVCenter | Qt::AlignLeft,
                     QFontMetrics(font).elidedText(view.name, Qt::ElideRight, text.width()));
}

void ViewList::activateRow(int index)
{
    if (index >= 0 && index < m_views.size())
        m_appState->setActiveViewId(m_views[index].id);
}
