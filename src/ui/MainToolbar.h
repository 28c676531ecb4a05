// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class AppState;
class QButtonGroup;
class QLabel;
class QLineEdit;
class QSpinBox;
class QToolButton;

// The bar above the calendar: sidebar toggle, Today, previous/next, the range on screen,
// Back/Forward through the navigation history, Day/Week/Month, the number of days of the
// multi-day view, and the quick-add field.
class MainToolbar : public QWidget
{
    Q_OBJECT

public:
    explicit MainToolbar(AppState *appState, QWidget *parent = nullptr);

    void setRangeText(const QString &text);
    QLineEdit *quickAddField() const { return m_quickAdd; }
    // Re-reads mode, horizon and history from the state hub.
    void refresh();
    void applyTheme();

signals:
    void sidebarToggled();
    void todayClicked();
    void previousClicked();
    void nextClicked();
    void quickAddSubmitted(const QString &text);

private:
    QToolButton *iconButton(char16_t glyph, const QString &toolTip);

    AppState *m_appState;
    QToolButton *m_sidebarButton;
    QToolButton *m_todayButton;
    QToolButton *m_previousButton;
    QToolButton *m_nextButton;
    QLabel *m_rangeLabel;
    QToolButton *m_backButton;
    QToolButton *m_forwardButton;
    QButtonGroup *m_modeGroup;
    QToolButton *m_dayButton;
    QToolButton *m_weekButton;
    QToolButton *m_monthButton;
    QSpinBox *m_horizon;
    QLineEdit *m_quickAdd;
};
