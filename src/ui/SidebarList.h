// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QRect>
#include <QString>
#include <QWidget>

class AppState;

// A painted list of the sidebar: group headers and clickable rows with a hover highlight, a
// keyboard cursor (Up/Down, Space or Enter activates) and a height that follows its rows.
// Subclasses fill the rows and paint their contents.
class SidebarList : public QWidget
{
    Q_OBJECT

public:
    explicit SidebarList(AppState *appState, QWidget *parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    // The rect of the (non-header) row with this id, in widget coordinates; empty when none.
    QRect rowRect(const QString &id) const;

protected:
    struct Row
    {
        QString id; // empty for a header
        QString text;
        bool header = false;
    };

    void setRows(const QList<Row> &rows);
    const QList<Row> &rows() const { return m_rows; }
    int rowHeight(const Row &row) const;
    QRect rowRect(int index) const;

    // Paints a row's contents over the hover/cursor highlight already drawn.
    virtual void paintRow(QPainter &painter, int index, const QRect &rect) = 0;
    // A click, Space or Enter on a row.
    virtual void activateRow(int index) = 0;
    // Whether a row is drawn as selected (a stronger highlight).
    virtual bool isCurrent(int) const { return false; }
    virtual QString toolTipOf(int) const { return QString(); }

    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

    AppState *m_appState;

private:
    int rowAt(const QPoint &pos) const;
    void moveCursor(int step);

    QList<Row> m_rows;
    int m_hover = -1;
    int m_pressed = -1;
    int m_cursor = -1;
};
