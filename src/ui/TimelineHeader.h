// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>
#include <QWidget>

struct TimelineContext;

// The row of day headings above the timeline: weekday and date per column, today's date in an
// accent circle, the week number in the gutter when "ui/showWeekNumbers" is on. A click on a
// column asks for that day.
class TimelineHeader : public QWidget
{
    Q_OBJECT

public:
    explicit TimelineHeader(TimelineContext *context, QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    // The rectangle of a day's heading, in this widget's coordinates.
    QRect dayRect(int index) const;

signals:
    void dayClicked(const QDate &date);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    int dayAt(const QPoint &pos) const;

    TimelineContext *m_context;
    int m_hovered = -1;
};
