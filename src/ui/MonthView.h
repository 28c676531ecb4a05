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

signals:
    void eventActivated(const Event &occurrence, const QRect &globalRect);
    void createRequested(const QDateTime &start, const QDateTime &end, bool allDay);
    // A day number or "+N more" was clicked: show that day.
    void dayOpened(const QDate &date);

private:
    class Private;
    std::unique_ptr<Private> d;
};
