// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>
#include <QList>
#include <QRect>
#include <QTimer>
#include <QWidget>

#include <array>
#include <utility>

class AppState;
class QToolButton;
class SpanCache;

// The small month of the sidebar: a title with previous/next month buttons, weekday initials from
// the first day of the week, ISO week numbers when "ui/showWeekNumbers" is on, today in an accent
// circle, the days the main view shows on a soft band, and a dot under days that have events.
// A click on a day puts it on screen; the month shown follows the date on screen.
class MiniMonth : public QWidget
{
    Q_OBJECT

public:
    MiniMonth(AppState *appState, SpanCache *cache, QWidget *parent = nullptr);

    // Shows the month holding `date` without changing the date on screen.
    void showMonth(const QDate &date);
    QDate shownMonth() const { return m_month; } // its 1st
    QDate firstDay() const { return m_first; }

    // The days the main view shows for a mode ("day", "week", "month"), date, week horizon and
    // first day of the week, both ends inclusive: a day; a calendar week when the horizon is
    // seven days, else `horizon` days from the date; the whole month.
    static std::pair<QDate, QDate> visibleRange(const QString &mode, const QDate &date, int horizon,
                                                Qt::DayOfWeek firstDayOfWeek);
    // visibleRange() of the current state.
    std::pair<QDate, QDate> highlightedRange() const;

    // Where a day is drawn (empty when it is not in the grid), and whether it has a dot.
    QRect dayRect(const QDate &date) const;
    bool hasEvents(const QDate &date) const;
    // The week numbers of the rows, top to bottom; empty when they are not shown.
    QList<int> weekNumbers() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    // Reads the days with events from the span cache (never while painting).
    void loadDots() const;
    // Reads the dots now when the month is cached, else on the next turn of the event loop.
    void refreshDots();
    void applyTheme();
    QRect gridRect() const;
    QDate dayAt(const QPoint &pos) const;

    AppState *m_appState;
    SpanCache *m_cache;
    QToolButton *m_previous;
    QToolButton *m_next;
    QDate m_month;
    QDate m_first;
    mutable std::array<bool, 42> m_dots{};
    mutable bool m_dotsStale = true;
    QTimer m_dotsTimer;
    bool m_weekNumbers = false; // "ui/showWeekNumbers", kept so that painting reads no database
    QDate m_pressed;
    QDate m_hover;
    int m_wheelDelta = 0;
};
