// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/Sidebar.h"

#include "app/AppState.h"
#include "ui/CalendarList.h"
#include "ui/MiniMonth.h"
#include "ui/ThemeManager.h"
#include "ui/ViewList.h"

#include <QFontMetrics>
#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>
#include <QVBoxLayout>

namespace {

// A section title in small capitals and the muted colour ("VIEWS", "CALENDARS").
class SectionHeader : public QWidget
{
public:
    SectionHeader(AppState *appState, const QString &text, QWidget *parent)
        : QWidget(parent)
        , m_appState(appState)
        , m_text(text)
    {
        setAccessibleName(text);
        setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    }

    QSize sizeHint() const override { return QSize(120, QFontMetrics(headerFont()).height() + 18); }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setFont(headerFont());
        painter.setPen(m_appState->theme()->colors().textMuted);
        painter.drawText(rect().adjusted(18, 10, -12, 0), Qt::AlignLeft | Qt::AlignVCenter, m_text);
    }

private:
    QFont headerFont() const
    {
        QFont font = this->font();
        font.setPointSizeF(font.pointSizeF() * 0.78);
        font.setWeight(QFont::DemiBold);
        font.setCapitalization(QFont::AllUppercase);
        font.setLetterSpacing(QFont::PercentageSpacing, 108);
        return font;
    }

    AppState *m_appState;
    QString m_text;
};

} // namespace

class Sidebar::Private
{
public:
    void applyTheme();

    AppState *state = nullptr;
    QScrollArea *scroll = nullptr;
    MiniMonth *miniMonth = nullptr;
    ViewList *views = nullptr;
    CalendarList *calendars = nullptr;
};

void Sidebar::Private::applyTheme()
{
    // A slim scroll bar that appears only as a handle, in the theme's line colour.
    const ThemeManager::Colors &c = state->theme()->colors();
    scroll->verticalScrollBar()->setStyleSheet(
        QStringLiteral("QScrollBar:vertical { background: transparent; width: 10px; margin: 2px 2px 2px 2px; }"
                       "QScrollBar::handle:vertical { background: %1; border-radius: 3px; min-height: 28px; }"
                       "QScrollBar::handle:vertical:hover { background: %2; }"
                       "QScrollBar::add-line:vertical, QScrollBar::sub-line:vertical { height: 0; }"
                       "QScrollBar::add-page:vertical, QScrollBar::sub-page:vertical { background: transparent; }")
            .arg(c.border.name(), c.textMuted.name()));
}

Sidebar::Sidebar(AppState *appState, SpanCache *cache, QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>())
{
    setObjectName(QStringLiteral("Sidebar"));
    d->state = appState;
    setMinimumWidth(200);

    auto *scroll = new QScrollArea(this);
    d->scroll = scroll;
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->viewport()->setAutoFillBackground(false);
    auto *content = new QWidget(scroll);
    content->setAutoFillBackground(false);

    d->miniMonth = new MiniMonth(appState, cache, content);
    d->views = new ViewList(appState, content);
    d->calendars = new CalendarList(appState, content);

    auto *column = new QVBoxLayout(content);
    column->setContentsMargins(0, 4, 1, 12);
    column->setSpacing(0);
    column->addWidget(d->miniMonth);
    column->addSpacing(6);
    column->addWidget(new SectionHeader(appState, tr("Views"), content));
    column->addWidget(d->views);
    column->addSpacing(6);
    column->addWidget(new SectionHeader(appState, tr("Calendars"), content));
    column->addWidget(d->calendars);
    column->addStretch(1);
    scroll->setWidget(content);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 1, 0); // the right border line
    layout->addWidget(scroll);

    d->applyTheme();
    connect(appState->theme(), &ThemeManager::themeChanged, this, [this] {
        d->applyTheme();
        update();
    });
}

Sidebar::~Sidebar() = default;

MiniMonth *Sidebar::miniMonth() const
{
    return d->miniMonth;
}

ViewList *Sidebar::viewList() const
{
    return d->views;
}

CalendarList *Sidebar::calendarList() const
{
    return d->calendars;
}

void Sidebar::paintEvent(QPaintEvent *)
{
    const ThemeManager::Colors &c = d->state->theme()->colors();
    QPainter painter(this);
    painter.fillRect(rect(), c.surfaceAlt);
    painter.fillRect(QRect(width() - 1, 0, 1, height()), c.border);
}
