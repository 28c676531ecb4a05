// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/ThemeManager.h"

#include "storage/PreferencesRepository.h"

#include <QGuiApplication>

const QString ThemeManager::kDefaultAccent = QStringLiteral("#2F6FED");

namespace {

QString normalizedMode(const QString &mode)
{
    if (mode == QLatin1String("light") || mode == QLatin1String("dark"))
        return mode;
    return QStringLiteral("system");
}

// Without a running GUI (kbcal) or a readable desktop preference, the light theme applies.
bool systemPrefersDark()
{
    if (!qobject_cast<QGuiApplication *>(QCoreApplication::instance()))
        return false;
    const QPalette system = QGuiApplication::palette();
    return system.color(QPalette::Window).lightness() < system.color(QPalette::WindowText).lightness();
}

} // namespace

ThemeManager::ThemeManager(PreferencesRepository *preferences, QObject *parent)
    : QObject(parent)
    , m_preferences(preferences)
    , m_accent(kDefaultAccent)
{
    rebuild();
}

void ThemeManager::initialize()
{
    if (m_preferences) {
        m_mode = normalizedMode(m_preferences->value(QStringLiteral("ui/theme")).value_or(QString()));
        const QColor accent(m_preferences->value(QStringLiteral("ui/accentColor")).value_or(kDefaultAccent));
        m_accent = accent.isValid() ? accent : QColor(kDefaultAccent);
    }
    rebuild();
}

void ThemeManager::setMode(const QString &mode)
{
    const QString normalized = normalizedMode(mode);
    if (normalized == m_mode)
        return;
    m_mode = normalized;
    if (m_preferences)
        m_preferences->setValue(QStringLiteral("ui/theme"), m_mode);
    rebuild();
    emit themeChanged();
}

void ThemeManager::setAccentColor(const QColor &color)
{
    if (!color.isValid() || color == m_accent)
        return;
    m_accent = color;
    if (m_preferences)
        m_preferences->setValue(QStringLiteral("ui/accentColor"), color.name());
    rebuild();
    emit themeChanged();
}

bool ThemeManager::isDark() const
{
    if (m_mode == QLatin1String("system"))
        return systemPrefersDark();
    return m_mode == QLatin1String("dark");
}

void ThemeManager::rebuild()
{
    Colors &c = m_colors;
    c.accent = m_accent;
    c.accentText = m_accent.lightnessF() > 0.6 ? QColor(0x1f, 0x23, 0x28) : QColor(Qt::white);
    if (isDark()) {
        c.window = QColor(0x16, 0x18, 0x1d);
        c.surface = QColor(0x1c, 0x1f, 0x25);
        c.surfaceAlt = QColor(0x22, 0x26, 0x2d);
        c.text = QColor(0xe6, 0xe8, 0xec);
        c.textMuted = QColor(0x8b, 0x93, 0x9f);
        c.border = QColor(0x32, 0x37, 0x40);
        c.gridLine = QColor(0x2f, 0x34, 0x3c);
        c.gridLineFaint = QColor(0x26, 0x2a, 0x31);
        c.offHours = QColor(0x19, 0x1b, 0x20);
        c.todayBackground = QColor(m_accent.red(), m_accent.green(), m_accent.blue(), 38);
        c.nowLine = QColor(0xff, 0x6b, 0x57);
        c.selection = QColor(m_accent.red(), m_accent.green(), m_accent.blue(), 90);
        c.shadow = QColor(0, 0, 0, 120);
    } else {
        c.window = QColor(0xf4, 0xf5, 0xf7);
        c.surface = QColor(0xff, 0xff, 0xff);
        c.surfaceAlt = QColor(0xf7, 0xf8, 0xfa);
        c.text = QColor(0x1f, 0x23, 0x28);
        c.textMuted = QColor(0x6b, 0x72, 0x80);
        c.border = QColor(0xe1, 0xe4, 0xe8);
        c.gridLine = QColor(0xe6, 0xe8, 0xeb);
        c.gridLineFaint = QColor(0xf1, 0xf2, 0xf4);
        c.offHours = QColor(0xf8, 0xf9, 0xfa);
        c.todayBackground = QColor(m_accent.red(), m_accent.green(), m_accent.blue(), 22);
        c.nowLine = QColor(0xe5, 0x48, 0x3a);
        c.selection = QColor(m_accent.red(), m_accent.green(), m_accent.blue(), 60);
        c.shadow = QColor(0x10, 0x18, 0x28, 60);
    }
}

QPalette ThemeManager::palette() const
{
    const Colors &c = m_colors;
    QPalette p;
    p.setColor(QPalette::Window, c.window);
    p.setColor(QPalette::WindowText, c.text);
    p.setColor(QPalette::Base, c.surface);
    p.setColor(QPalette::AlternateBase, c.surfaceAlt);
    p.setColor(QPalette::Text, c.text);
    p.setColor(QPalette::Button, c.surfaceAlt);
    p.setColor(QPalette::ButtonText, c.text);
    p.setColor(QPalette::Highlight, c.accent);
    p.setColor(QPalette::HighlightedText, c.accentText);
    p.setColor(QPalette::ToolTipBase, c.surface);
    p.setColor(QPalette::ToolTipText, c.text);
    p.setColor(QPalette::PlaceholderText, c.textMuted);
    p.setColor(QPalette::Link, c.accent);
    p.setColor(QPalette::Mid, c.border);
    p.setColor(QPalette::Midlight, c.gridLine);
    p.setColor(QPalette::Disabled, QPalette::Text, c.textMuted);
    p.setColor(QPalette::Disabled, QPalette::WindowText, c.textMuted);
    p.setColor(QPalette::Disabled, QPalette::ButtonText, c.textMuted);
    return p;
}
