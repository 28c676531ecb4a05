// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QColor>
#include <QObject>
#include <QPalette>
#include <QString>

class PreferencesRepository;

// The look of the interface: a light or a dark theme ("ui/theme": "light", "dark" or "system")
// with an accent colour ("ui/accentColor", #RRGGBB). Views take their colours from colors().
class ThemeManager : public QObject
{
    Q_OBJECT

public:
    // The colours the views paint with, derived from the theme and the accent.
    struct Colors
    {
        QColor window; // the main window background
        QColor surface; // view backgrounds, cards
        QColor surfaceAlt; // sidebar, headers, all-day strip
        QColor text;
        QColor textMuted; // secondary text, days of other months
        QColor border; // separators
        QColor gridLine; // hour and day lines
        QColor gridLineFaint; // half-hour lines
        QColor offHours; // time outside the working day
        QColor accent;
        QColor accentText; // text on the accent colour
        QColor todayBackground;
        QColor nowLine;
        QColor selection;
        QColor shadow;
    };

    static const QString kDefaultAccent;

    explicit ThemeManager(PreferencesRepository *preferences, QObject *parent = nullptr);

    // Reads the stored choice; call once after the preferences exist.
    void initialize();

    QString mode() const { return m_mode; } // "light", "dark" or "system"
    void setMode(const QString &mode);
    QColor accentColor() const { return m_accent; }
    void setAccentColor(const QColor &color);

    bool isDark() const;
    const Colors &colors() const { return m_colors; }
    // A widget palette matching the theme, for the application and its dialogs.
    QPalette palette() const;

signals:
    void themeChanged();

private:
    void rebuild();

    PreferencesRepository *m_preferences;
    QString m_mode = QStringLiteral("system");
    QColor m_accent;
    Colors m_colors;
};
