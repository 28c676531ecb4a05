// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/SidebarList.h"

#include "app/AppState.h"
#include "ui/ThemeManager.h"

#include <QFontMetrics>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

namespace {

constexpr int kSideMargin = 8; // highlight from the list's sides
constexpr int kVerticalPadding = 2;

} // namespace

SidebarList::SidebarList(AppState *appState, QWidget *parent)
    : QWidget(parent)
    , m_appState(appState)
{
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    connect(appState->theme(), &ThemeManager::themeChanged, this, qOverload<>(&QWidget::update));
}

int SidebarList::rowHeight(const Row &row) const
{
    const int text = QFontMetrics(font()).height();
    return row.header ? text + 10 : text + 14;
}

QRect SidebarList::rowRect(int index) const
{
    if (index < 0 || index >= m_rows.size())
        return QRect();
    int top = kVerticalPadding;
    for (int i = 0; i < index; ++i)
        top += rowHeight(m_rows[i]);
    return QRect(0, top, width(), rowHeight(m_rows[index]));
}

QRect SidebarList::rowRect(const QString &id) const
{
    for (int i = 0; i < m_rows.size(); ++i) {
        if (!m_rows[i].header && m_rows[i].id == id)
            return rowRect(i);
    }
    return QRect();
}

QSize SidebarList::sizeHint() const
{
    int height = 2 * kVerticalPadding;
    for (const Row &row : m_rows)
        height += rowHeight(row);
    return QSize(200, height);
}

QSize SidebarList::minimumSizeHint() const
{
    return QSize(120, sizeHint().height());
}

void SidebarList::setRows(const QList<Row> &rows)
{
    QString cursorId = m_cursor >= 0 && m_cursor < m_rows.size() ? m_rows[m_cursor].id : QString();
    m_rows = rows;
    m_hover = -1;
    m_pressed = -1;
    m_cursor = -1;
    for (int i = 0; i < m_rows.size() && !cursorId.isEmpty(); ++i) {
        if (m_rows[i].id == cursorId && !m_rows[i].header)
            m_cursor = i;
    }
    updateGeometry();
    update();
}

int SidebarList::rowAt(const QPoint &pos) const
{
    for (int i = 0; i < m_rows.size(); ++i) {
        if (rowRect(i).contains(pos))
            return m_rows[i].header ? -1 : i;
    }
    return -1;
}

bool SidebarList::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip) {
        auto *help = static_cast<QHelpEvent *>(event);
        const int row = rowAt(help->pos());
        const QString text = row >= 0 ? toolTipOf(row) : QString();
        if (text.isEmpty())
            QToolTip::hideText();
        else
            QToolTip::showText(help->globalPos(), text, this, rowRect(row));
        return true;
    }
    if (event->type() == QEvent::ShortcutOverride) {
        // Up and Down walk the rows here, whatever the window binds them to.
        auto *key = static_cast<QKeyEvent *>(event);
        if (key->modifiers() == Qt::NoModifier && (key->key() == Qt::Key_Up || key->key() == Qt::Key_Down)) {
            event->accept();
            return true;
        }
    }
    return QWidget::event(event);
}

void SidebarList::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing, true);
    const ThemeManager::Colors &c = m_appState->theme()->colors();
    for (int i = 0; i < m_rows.size(); ++i) {
        const QRect rect = rowRect(i);
        if (!m_rows[i].header) {
            const QRectF band = QRectF(rect).adjusted(kSideMargin, 1, -kSideMargin, -1);
            painter.setPen(Qt::NoPen);
            if (isCurrent(i)) {
                QColor fill = c.accent;
                fill.setAlpha(m_appState->theme()->isDark() ? 60 : 34);
                painter.setBrush(fill);
                painter.drawRoundedRect(band, 6, 6);
            } else if (i == m_hover) {
                QColor fill = c.text;
                fill.setAlpha(m_appState->theme()->isDark() ? 22 : 14);
                painter.setBrush(fill);
                painter.drawRoundedRect(band, 6, 6);
            }
            if (i == m_cursor && hasFocus()) {
                painter.setPen(QPen(c.accent, 1.5));
                painter.setBrush(Qt::NoBrush);
                painter.drawRoundedRect(band.adjusted(0.75, 0.75, -0.75, -0.75), 6, 6);
            }
        }
        painter.save();
        paintRow(painter, i, rect.adjusted(kSideMargin + 8, 0, -(kSideMargin + 6), 0));
        painter.restore();
    }
}

void SidebarList::mouseMoveEvent(QMouseEvent *event)
{
    const int row = rowAt(event->position().toPoint());
    if (row != m_hover) {
        m_hover = row;
        setCursor(row >= 0 ? Qt::PointingHandCursor : Qt::ArrowCursor);
        update();
    }
}

void SidebarList::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        m_pressed = rowAt(event->position().toPoint());
    QWidget::mousePressEvent(event);
}

void SidebarList::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    const int row = rowAt(event->position().toPoint());
    const int pressed = m_pressed;
    m_pressed = -1;
    if (row >= 0 && row == pressed) {
        m_cursor = row;
        activateRow(row);
    }
}

void SidebarList::moveCursor(int step)
{
    int row = m_cursor;
    for (int tries = 0; tries < m_rows.size(); ++tries) {
        row += step;
        if (row < 0 || row >= m_rows.size())
            return;
        if (!m_rows[row].header) {
            m_cursor = row;
            update();
            return;
        }
    }
}

void SidebarList::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Up:
        moveCursor(-1);
        break;
    case Qt::Key_Down:
        moveCursor(1);
        break;
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (m_cursor >= 0 && m_cursor < m_rows.size())
            activateRow(m_cursor);
        break;
    default:
        QWidget::keyPressEvent(event);
        break;
    }
}

void SidebarList::leaveEvent(QEvent *event)
{
    m_hover = -1;
    update();
    QWidget::leaveEvent(event);
}

void SidebarList::focusInEvent(QFocusEvent *event)
{
    if (m_cursor < 0)
        moveCursor(1);
    QWidget::focusInEvent(event);
    update();
}

void SidebarList::focusOutEvent(QFocusEvent *event)
{
    QWidget::focusOutEvent(event);
    update();
}
