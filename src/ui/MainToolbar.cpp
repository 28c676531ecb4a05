// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/MainToolbar.h"

#include "app/AppState.h"
#include "ui/IconFont.h"
#include "ui/ThemeManager.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSpinBox>
#include <QToolButton>

MainToolbar::MainToolbar(AppState *appState, QWidget *parent)
    : QWidget(parent)
    , m_appState(appState)
{
    setObjectName(QStringLiteral("MainToolbar"));
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(10, 8, 12, 8);
    layout->setSpacing(6);

    m_sidebarButton = iconButton(IconFont::Glyph::Menu, tr("Show or hide the sidebar"));
    m_todayButton = new QToolButton(this);
    m_todayButton->setText(tr("Today"));
    m_todayButton->setObjectName(QStringLiteral("TodayButton"));
    m_todayButton->setToolTip(tr("Go to today (T)"));
    m_previousButton = iconButton(IconFont::Glyph::ChevronLeft, tr("Previous (Left)"));
    m_nextButton = iconButton(IconFont::Glyph::ChevronRight, tr("Next (Right)"));
    m_rangeLabel = new QLabel(this);
    m_rangeLabel->setObjectName(QStringLiteral("RangeLabel"));
    m_backButton = iconButton(IconFont::Glyph::ArrowBack, tr("Back (Alt+Left)"));
    m_forwardButton = iconButton(IconFont::Glyph::ArrowForward, tr("Forward (Alt+Right)"));

    m_modeGroup = new QButtonGroup(this);
    m_modeGroup->setExclusive(true);
    const auto modeButton = [this](const QString &text, const QString &toolTip, const QString &name) {
        auto *button = new QToolButton(this);
        button->setText(text);
        button->setToolTip(toolTip);
        button->setCheckable(true);
        button->setObjectName(name);
        m_modeGroup->addButton(button);
        return button;
    };
    m_dayButton = modeButton(tr("Day"), tr("Day view (D)"), QStringLiteral("ModeFirst"));
    m_weekButton = modeButton(tr("Week"), tr("Week view (W)"), QStringLiteral("ModeMiddle"));
    m_monthButton = modeButton(tr("Month"), tr("Month view (M)"), QStringLiteral("ModeLast"));

    m_horizon = new QSpinBox(this);
    m_horizon->setRange(AppState::kMinWeekHorizon, AppState::kMaxWeekHorizon);
    m_horizon->setSuffix(tr(" days"));
    m_horizon->setToolTip(tr("Number of days in the multi-day view"));
    m_horizon->setKeyboardTracking(false);

    m_quickAdd = new QLineEdit(this);
    m_quickAdd->setObjectName(QStringLiteral("QuickAdd"));
    m_quickAdd->setPlaceholderText(tr("Quick add: Lunch with Sam tomorrow at 12:30"));
    m_quickAdd->setClearButtonEnabled(true);
    m_quickAdd->setMinimumWidth(260);
    m_quickAdd->setMaximumWidth(380);

    layout->addWidget(m_sidebarButton);
    layout->addSpacing(4);
    layout->addWidget(m_todayButton);
    layout->addWidget(m_previousButton);
    layout->addWidget(m_nextButton);
    layout->addSpacing(6);
    layout->addWidget(m_rangeLabel);
    layout->addStretch(1);
    layout->addWidget(m_backButton);
    layout->addWidget(m_forwardButton);
    layout->addSpacing(8);
    auto *modes = new QHBoxLayout;
    modes->setSpacing(0);
    modes->addWidget(m_dayButton);
    modes->addWidget(m_weekButton);
    modes->addWidget(m_monthButton);
    layout->addLayout(modes);
    layout->addWidget(m_horizon);
    layout->addSpacing(8);
    layout->addWidget(m_quickAdd);

    connect(m_sidebarButton, &QToolButton::clicked, this, &MainToolbar::sidebarToggled);
    connect(m_todayButton, &QToolButton::clicked, this, &MainToolbar::todayClicked);
    connect(m_previousButton, &QToolButton::clicked, this, &MainToolbar::previousClicked);
    connect(m_nextButton, &QToolButton::clicked, this, &MainToolbar::nextClicked);
    connect(m_backButton, &QToolButton::clicked, m_appState, &AppState::goBack);
    connect(m_forwardButton, &QToolButton::clicked, m_appState, &AppState::goForward);
    connect(m_dayButton, &QToolButton::clicked, this, [this] { m_appState->setViewMode(QStringLiteral("day")); });
    connect(m_weekButton, &QToolButton::clicked, this, [this] { m_appState->setViewMode(QStringLiteral("week")); });
    connect(m_monthButton, &QToolButton::clicked, this, [this] { m_appState->setViewMode(QStringLiteral("month")); });
    connect(m_horizon, &QSpinBox::valueChanged, m_appState, &AppState::setWeekHorizon);
    connect(m_quickAdd, &QLineEdit::returnPressed, this, [this] {
        const QString text = m_quickAdd->text();
        if (text.trimmed().isEmpty())
            return;
        emit quickAddSubmitted(text);
        m_quickAdd->clear();
    });
    applyTheme();
    refresh();
}

QToolButton *MainToolbar::iconButton(char16_t glyph, const QString &toolTip)
{
    auto *button = new QToolButton(this);
    button->setProperty("glyph", int(glyph));
    button->setToolTip(toolTip);
    button->setAutoRaise(true);
    button->setIconSize(QSize(20, 20));
    return button;
}

void MainToolbar::applyTheme()
{
    const QColor color = m_appState->theme() ? m_appState->theme()->colors().text : palette().color(QPalette::Text);
    for (QToolButton *button : findChildren<QToolButton *>()) {
        const QVariant glyph = button->property("glyph");
        if (glyph.isValid())
            button->setIcon(IconFont::icon(char16_t(glyph.toInt()), color));
    }
}

void MainToolbar::setRangeText(const QString &text)
{
    m_rangeLabel->setText(text);
}

void MainToolbar::refresh()
{
    const QString mode = m_appState->viewMode();
    m_dayButton->setChecked(mode == QLatin1String("day"));
    m_weekButton->setChecked(mode == QLatin1String("week"));
    m_monthButton->setChecked(mode == QLatin1String("month"));
    m_horizon->setVisible(mode == QLatin1String("week"));
    const QSignalBlocker blocker(m_horizon);
    m_horizon->setValue(m_appState->weekHorizon());
    m_backButton->setEnabled(m_appState->canGoBack());
    m_forwardButton->setEnabled(m_appState->canGoForward());
}
