// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/ColorSwatchPicker.h"

#include "ui/IconFont.h"

#include <QColorDialog>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

namespace {

constexpr int kDiameter = 22;
constexpr int kGap = 8;
constexpr int kMargin = 3; // room for the focus ring

// Black or white, whichever reads better on `fill`.
QColor contrastOn(const QColor &fill)
{
    const double luminance = 0.2126 * fill.redF() + 0.7152 * fill.greenF() + 0.0722 * fill.blueF();
    return luminance > 0.6 ? QColor(0x1f, 0x23, 0x28) : QColor(Qt::white);
}

} // namespace

ColorSwatchPicker::ColorSwatchPicker(QWidget *parent)
    : QWidget(parent)
    , m_calendarColor(QStringLiteral("#4285F4"))
{
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setAccessibleName(tr("Event colour"));
}

QList<QString> ColorSwatchPicker::paletteColors()
{
    return {QStringLiteral("#E5484D"), QStringLiteral("#F76B15"), QStringLiteral("#F5B82E"), QStringLiteral("#30A46C"),
            QStringLiteral("#12A594"), QStringLiteral("#0091FF"), QStringLiteral("#3E63DD"), QStringLiteral("#8E4EC6"),
            QStringLiteral("#D6409F"), QStringLiteral("#8D8D86")};
}

void ColorSwatchPicker::setCalendarColor(const QColor &color)
{
    if (color.isValid())
        m_calendarColor = color;
    update();
}

void ColorSwatchPicker::setColor(const QString &color)
{
    m_color = color;
    const bool inPalette = color.isEmpty() || paletteColors().contains(QColor(color).name(QColor::HexRgb).toUpper());
    if (!inPalette)
        m_customColor = color;
    m_focusIndex = selectedIndex();
    update();
}

int ColorSwatchPicker::swatchCount() const
{
    return int(paletteColors().size()) + 2;
}

QSize ColorSwatchPicker::sizeHint() const
{
    const int count = swatchCount();
    return QSize(2 * kMargin + count * kDiameter + (count - 1) * kGap, 2 * kMargin + kDiameter);
}

QRectF ColorSwatchPicker::swatchRect(int index) const
{
    return QRectF(kMargin + index * (kDiameter + kGap), kMargin, kDiameter, kDiameter);
}

int ColorSwatchPicker::indexAt(const QPoint &pos) const
{
    for (int i = 0; i < swatchCount(); ++i) {
        if (swatchRect(i).adjusted(-kGap / 2.0, -kMargin, kGap / 2.0, kMargin).contains(pos))
            return i;
    }
    return -1;
}

int ColorSwatchPicker::selectedIndex() const
{
    if (m_color.isEmpty())
        return 0;
    const int index = int(paletteColors().indexOf(QColor(m_color).name(QColor::HexRgb).toUpper()));
    return index >= 0 ? index + 1 : swatchCount() - 1;
}

void ColorSwatchPicker::pick(int index)
{
    if (index < 0 || index >= swatchCount())
        return;
    QString chosen;
    if (index == swatchCount() - 1) {
        const QColor start(m_customColor.isEmpty() ? (m_color.isEmpty() ? m_calendarColor.name() : m_color)
                                                   : m_customColor);
        const QColor picked = QColorDialog::getColor(start, this, tr("Event colour"));
        if (!picked.isValid())
            return;
        chosen = picked.name(QColor::HexRgb).toUpper();
        m_customColor = chosen;
    } else if (index > 0) {
        chosen = paletteColors().at(index - 1);
    }
    m_focusIndex = index;
    if (chosen == m_color) {
        update();
        return;
    }
    m_color = chosen;
    update();
    emit colorChanged(m_color);
}

void ColorSwatchPicker::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPalette pal = palette();
    const int selected = selectedIndex();
    const QList<QString> colors = paletteColors();
    for (int i = 0; i < swatchCount(); ++i) {
        const QRectF rect = swatchRect(i);
        const bool custom = i == swatchCount() - 1;
        QColor fill;
        if (i == 0)
            fill = m_calendarColor;
        else if (!custom)
            fill = QColor(colors.at(i - 1));
        else if (!m_customColor.isEmpty())
            fill = QColor(m_customColor);

        if (fill.isValid()) {
            painter.setPen(Qt::NoPen);
            painter.setBrush(fill);
            painter.drawEllipse(rect);
        } else {
            // The custom swatch before any custom colour: an outlined circle with a plus.
            painter.setPen(QPen(pal.color(QPalette::Mid), 1.2));
            painter.setBrush(Qt::NoBrush);
            painter.drawEllipse(rect.adjusted(0.6, 0.6, -0.6, -0.6));
            painter.setPen(pal.color(QPalette::PlaceholderText));
            painter.setFont(IconFont::font(16));
            painter.drawText(rect, Qt::AlignCenter, IconFont::text(IconFont::Glyph::Add));
        }
        if (i == 0) {
            // The calendar colour is marked as such by a small ring inside it.
            painter.setPen(QPen(contrastOn(fill), 1.5));
            painter.setBrush(Qt::NoBrush);
            if (i != selected)
                painter.drawEllipse(rect.center(), 4.0, 4.0);
        }
        if (i == selected) {
            painter.setPen(contrastOn(fill.isValid() ? fill : pal.color(QPalette::Base)));
            painter.setFont(IconFont::font(16));
            painter.drawText(rect, Qt::AlignCenter, IconFont::text(IconFont::Glyph::Check));
        }
        if (i == m_hoverIndex && i != selected) {
            painter.setPen(QPen(pal.color(QPalette::Mid), 1.0));
            painter.setBrush(Qt::NoBrush);
            painter.drawEllipse(rect.adjusted(-2.5, -2.5, 2.5, 2.5));
        }
        if (hasFocus() && i == m_focusIndex) {
            painter.setPen(QPen(pal.color(QPalette::Highlight), 2.0));
            painter.setBrush(Qt::NoBrush);
            painter.drawEllipse(rect.adjusted(-2.5, -2.5, 2.5, 2.5));
        }
    }
}

void ColorSwatchPicker::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        pick(indexAt(event->position().toPoint()));
}

void ColorSwatchPicker::mouseMoveEvent(QMouseEvent *event)
{
    const int index = indexAt(event->position().toPoint());
    if (index != m_hoverIndex) {
        m_hoverIndex = index;
        update();
    }
}

void ColorSwatchPicker::leaveEvent(QEvent *)
{
    m_hoverIndex = -1;
    update();
}

void ColorSwatchPicker::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Left:
        m_focusIndex = qMax(0, m_focusIndex - 1);
        update();
        return;
    case Qt::Key_Right:
        m_focusIndex = qMin(swatchCount() - 1, m_focusIndex + 1);
        update();
        return;
    case Qt::Key_Space:
        pick(m_focusIndex);
        return;
    default:
        QWidget::keyPressEvent(event);
    }
}

bool ColorSwatchPicker::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip) {
        const int index = indexAt(static_cast<QHelpEvent *>(event)->pos());
        QString text;
        if (index == 0)
            text = tr("Calendar colour");
        else if (index == swatchCount() - 1)
            text = tr("Other colour…");
        else if (index > 0)
            text = paletteColors().at(index - 1);
        if (text.isEmpty())
            QToolTip::hideText();
        else
            QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(), text, this);
        return true;
    }
    return QWidget::event(event);
}
