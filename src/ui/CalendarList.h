// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/Calendar.h"
#include "ui/SidebarList.h"

#include <optional>

// The calendars of the sidebar, grouped under their accounts in the accounts' order (accounts
// without calendars are left out). Each row shows the calendar's colour as a check box, filled
// when the calendar is shown and outlined when hidden; a click, Space or Enter flips its
// visibility. Read-only calendars carry a lock.
class CalendarList : public SidebarList
{
    Q_OBJECT

public:
    explicit CalendarList(AppState *appState, QWidget *parent = nullptr);

    // Reads the accounts and calendars again.
    void refresh();

protected:
    void paintRow(QPainter &painter, int index, const QRect &rect) override;
    void activateRow(int index) override;
    QString toolTipOf(int index) const override;

private:
    QList<std::optional<Calendar>> m_calendars; // in row order; none for an account header
};
