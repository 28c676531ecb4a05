// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/IconFont.h"

#include <QIconEngine>
#include <QPainter>
#include <QPixmap>

namespace {

QString &storedFamily()
{
    static QString family = QStringLiteral("Material Icons");
    return family;
}

// Paints the glyph at whatever size and scale Qt asks for, so icons stay sharp at 200%.
class GlyphIconEngine : public QIconEngine
{
public:
    GlyphIconEngine(char16_t glyph, const QColor &color)
        : m_glyph(glyph)
        , m_color(color)
    { }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State) override
    {
        QColor color = m_color;
        if (mode == QIcon::Disabled)
            color.setAlphaF(0.35);
        painter->save();
        painter->setRenderHint(QPainter::TextAntialiasing);
        painter->setPen(color);
        painter->setFont(IconFont::font(qMin(rect.width(), rect.height())));
        painter->drawText(rect, Qt::AlignCenter, IconFont::text(m_glyph));
        painter->restore();
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        return scaledPixmap(size, mode, state, 1.0);
    }

    QPixmap scaledPixmap(const QSize &size, QIcon::Mode mode, QIcon::State state, qreal scale) override
    {
        QPixmap pixmap(size * scale);
        pixmap.setDevicePixelRatio(scale);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        return pixmap;
    }

    QIconEngine *clone() const override { return new GlyphIconEngine(m_glyph, m_color); }

private:
    char16_t m_glyph;
    QColor m_color;
};

} // namespace

namespace IconFont {

void setFamily(const QString &family)
{
    if (!family.isEmpty())
        storedFamily() = family;
}

QString family()
{
    return storedFamily();
}

QFont font(int pixelSize)
{
    QFont font(storedFamily());
    font.setPixelSize(qMax(1, pixelSize));
    font.setStyleStrategy(QFont::PreferAntialias);
    return font;
}

QIcon icon(char16_t glyph, const QColor &color)
{
    return QIcon(new GlyphIconEngine(glyph, color));
}

} // namespace IconFont
