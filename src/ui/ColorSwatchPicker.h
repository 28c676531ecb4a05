// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QList>
#include <QString>
#include <QWidget>

// A row of round colour swatches: the calendar's colour first (the empty choice), a small
// palette, and a last swatch that opens a colour dialog for any other colour. Left/Right move
// between swatches, Space picks the focused one.
class ColorSwatchPicker : public QWidget
{
    Q_OBJECT

public:
    explicit ColorSwatchPicker(QWidget *parent = nullptr);

    // The palette offered besides the calendar colour, as #RRGGBB.
    static QList<QString> paletteColors();

    // The colour the empty choice stands for.
    void setCalendarColor(const QColor &color);
    // "" for the calendar colour, else #RRGGBB; a colour outside the palette shows on the custom
    // swatch.
    void setColor(const QString &color);
    QString color() const { return m_color; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

signals:
    // The user picked another colour ("" for the calendar colour).
    void colorChanged(const QString &color);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    bool event(QEvent *event) override;

private:
    int swatchCount() const;
    QRectF swatchRect(int index) const;
    int indexAt(const QPoint &pos) const;
    int selectedIndex() const;
    void pick(int index);

    QColor m_calendarColor;
    QString m_color;
    QString m_customColor; // the last colour chosen in the dialog, shown on the custom swatch
    int m_focusIndex = 0;
    int m_hoverIndex = -1;
};
