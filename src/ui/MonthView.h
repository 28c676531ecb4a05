// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/Event.h"

#include <QDate>
#include <QDateTime>
#include <QRect>
#include <QWidget>

#include <memory>
#include <utility>

class AppState;
class EventEditor;
class SpanCache;

// The month grid: weeks from AppState::firstDayOfWeek, event chips in calendar colour, multi-day
// bars across days, "+N more" that opens the day, today highlighted, days of other months muted.
class MonthView : public QWidget
{
    Q_OBJECT

public:
    MonthView(AppState *appState, SpanCache *cache, EventEditor *editor, QWidget *parent = nullptr);
    ~MonthView() override;

    // Shows the month that holds `date`.
    void setMonth(const QDate &date);
    // The days the grid covers (whole weeks).
    QDate firstDay() const;
    int dayCount() const;
    // The grid of the month that holds `date`: its first day and its number of days (whole weeks
    // starting on `firstDayOfWeek`, six of them so that the grid does not jump between months).
    static std::pair<QDate, int> gridFor(const QDate &date, Qt::DayOfWeek firstDayOfWeek);

    // Where things are drawn, in widget coordinates; an empty rect when the date is not in the
    // grid or the thing is not shown (the event does not fit in the cell, or is filtered out).
    QRect dayRect(const QDate &date) const;
    QRect dayNumberRect(const QDate &date) const;
    // The "+N more" line of a cell, and its N (0 when everything fits).
    QRect moreRect(const QDate &date) const;
    int moreCount(const QDate &date) const;
    // The chip or bar piece of an event (any occurrence of a series) in the cell of `date`.
    QRect eventRect(const QString &eventId, const QDate &date) const;

signals:
    void eventActivated(const Event &occurrence, const QRect &globalRect);
    void createRequested(const QDateTime &start, const QDateTime &end, bool allDay);
    // A day number or "+N more" was clicked: show that day.
    void dayOpened(const QDate &date);

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void changeEvent(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    class Private;
    std::unique_ptr<Private> d;
};
