// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

#include <memory>

class AppState;
class CalendarList;
class MiniMonth;
class SpanCache;
class ViewList;

// The left column: a mini month (week numbers when "ui/showWeekNumbers" is on; a click sets the
// date on screen), the saved views (a click makes one active), and the calendars grouped by
// account with colour swatches and visibility toggles.
class Sidebar : public QWidget
{
    Q_OBJECT

public:
    Sidebar(AppState *appState, SpanCache *cache, QWidget *parent = nullptr);
    ~Sidebar() override;

    MiniMonth *miniMonth() const;
    ViewList *viewList() const;
    CalendarList *calendarList() const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    class Private;
    std::unique_ptr<Private> d;
};
