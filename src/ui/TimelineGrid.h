// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QPoint>
#include <QTimer>
#include <QWidget>

struct TimelineContext;

// The scrolling hour grid of the timeline: 24 hours at TimelineContext::hourHeight, hour labels
// in the left gutter, the working day shaded, today's column tinted, the current time as a line
// across today, and the timed events of each day side by side. Events move by dragging their body
// and resize by dragging their bottom edge, both snapped to 15 minutes; free time is swept or
// double-clicked to ask for a new event.
class TimelineGrid : public QWidget
{
    Q_OBJECT

public:
    static constexpr int kMinimumBlockHeight = 20; // pixels, however short the event
    static constexpr int kResizeHandle = 6; // pixels at the bottom edge that resize
    static constexpr int kClickDistance = 4; // a press that moves less is a click

    explicit TimelineGrid(TimelineContext *context, QWidget *parent = nullptr);

    // Takes the layout anew (after a span change or a zoom): height, a finished drag's preview.
    void relayout();
    // The text in the gutter for an hour, following "ui/timeFormat".
    QString hourLabel(int hour) const;
    // Where a piece of the layout is drawn, in this widget's coordinates.
    QRect pieceRect(qsizetype pieceIndex) const;
    // The vertical position of the current-time line, or -1 when today is not shown.
    int nowLineY() const;
    bool isDragging() const;
    void cancelDrag();
    // The first row scrolled into view: blocks reaching above it keep their titles just below it.
    void setVisibleTop(int y);

signals:
    void eventClicked(qsizetype occurrenceIndex, const QRect &rect);
    void emptyClicked();
    void createRequested(const QDateTime &start, const QDateTime &end, bool allDay);
    // Ctrl+wheel: the wanted hour height and the grid position to keep under the pointer.
    void zoomRequested(int hourHeight, int anchorY);
    void scrollRequested(int pixels);
    void ensureVisibleRequested(const QPoint &pos);
    // Tab/Shift+Tab step the selection through the events; Return opens the selected one.
    void selectionStepRequested(int direction);
    void activationRequested();
    // The clock passed a full minute (the current-time line moved).
    void minuteChanged();
    // The width of the day columns changed (TimelineContext::columnsWidth).
    void columnsChanged();

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    enum class DragKind { None, Pressed, Move, Resize, Create };
    struct Drag
    {
        DragKind kind = DragKind::None;
        bool committed = false; // handed to the editor; the preview stays until the next layout
        qsizetype piece = -1; // the piece pressed, -1 on free time
        QString id; // the occurrence pressed, found again when the layout changes under the drag
        QString recurrenceId;
        bool onHandle = false;
        QPoint pressPos;
        int pressMinute = 0; // grid minutes
        int currentMinute = 0;
    };

    // The grid minute under a position; `day` >= 0 keeps it in that column.
    int gridMinuteAt(const QPoint &pos, int day = -1) const;
    qsizetype pieceAt(const QPoint &pos) const;
    bool isOnHandle(qsizetype piece, const QPoint &pos) const;
    // The start and end of what the current drag proposes, in grid minutes.
    std::pair<int, int> draggedRange() const;
    QRect rangeRect(int day, int start, int end) const;
    void paintBackground(QPainter &painter, const QRect &exposed) const;
    void paintPieces(QPainter &painter, const QRect &exposed) const;
    void paintDrag(QPainter &painter) const;
    void paintNowLine(QPainter &painter) const;
    void scheduleNowTick();
    void updateCursor(const QPoint &pos);

    TimelineContext *m_context;
    Drag m_drag;
    QTimer m_nowTimer;
    int m_visibleTop = 0;
    double m_zoomSteps = 0; // wheel steps not yet turned into a whole pixel of zoom
};
