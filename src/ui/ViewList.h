// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/CalendarView.h"
#include "ui/SidebarList.h"

// The saved views of the sidebar, the default one first; the active view is highlighted and a
// click makes another one active.
class ViewList : public SidebarList
{
    Q_OBJECT

public:
    explicit ViewList(AppState *appState, QWidget *parent = nullptr);

    // Reads the views again.
    void refresh();

protected:
    void paintRow(QPainter &painter, int index, const QRect &rect) override;
    void activateRow(int index) override;
    bool isCurrent(int index) const override;

private:
    QList<CalendarView> m_views; // in row order
};
