// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QPoint>
#include <QWidget>

struct TimelineContext;

// The strip of all-day and multi-day events between the day headings and the hour grid: bars
// spanning the days they cover, stacked in lanes. With more lanes than kCollapsedLanes the strip
// shows the first lanes and a "+N" per day for the rest, until the user expands it. Bars move to
// other days by drag; a double-click on free space asks for a new all-day event.
class AllDayStrip : public QWidget
{
    Q_OBJECT

public:
    // The most lanes shown before the strip collapses the rest into "+N".
    static constexpr int kCollapsedLanes = 3;

    explicit AllDayStrip(TimelineContext *context, QWidget *parent = nullptr);

    // Takes the layout anew (after a span change): height, lanes, a finished drag's preview.
    void relayout();
    // The tallest the strip may grow when expanded; more lanes scroll inside it.
    void setMaximumStripHeight(int pixels);
    bool isExpanded() const { return m_expanded; }
    void setExpanded(bool expanded);
    // Lanes drawn in full (the rest are counted in "+N" while collapsed).
    int visibleLanes() const;
    // Where a bar of the layout is drawn, in this widget's coordinates; empty when not drawn.
    QRect barRect(qsizetype barIndex) const;
    // The "+N" of a day while collapsed (0 when there is none) and where it is drawn.
    int overflowCount(int day) const;
    QRect overflowRect(int day) const;
    bool isDragging() const { return m_drag.active; }
    void cancelDrag();

signals:
    void eventClicked(qsizetype occurrenceIndex, const QRect &rect);
    void emptyClicked();
    void createRequested(const QDateTime &start, const QDateTime &end, bool allDay);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    struct Drag
    {
        bool pressed = false;
        bool active = false; // moved past the click distance with an editable bar
        bool committed = false; // handed to the editor; the preview stays until the next layout
        qsizetype bar = -1;
        QString id; // the occurrence pressed, found again when the layout changes under the drag
        QString recurrenceId;
        QPoint pressPos;
        int pressDay = 0;
        int dayDelta = 0;
    };

    int laneHeight() const;
    int contentHeight() const;
    qsizetype barAt(const QPoint &pos) const;
    QRect toggleRect() const;
    bool hasOverflow() const;
    QRect shiftedBarRect(qsizetype barIndex, int dayDelta) const;

    TimelineContext *m_context;
    bool m_expanded = false;
    int m_maximumHeight = 240;
    int m_scroll = 0;
    Drag m_drag;
};
