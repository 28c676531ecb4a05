// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/MiniMonth.h"

#include "app/AppState.h"
#include "storage/Clock.h"
#include "storage/PreferencesRepository.h"
#include "ui/IconFont.h"
#include "ui/MonthLayout.h"
#include "ui/SpanCache.h"
#include "ui/ThemeManager.h"

#include <QFontMetrics>
#include <QKeyEvent>
#include <QLocale>
#include <QMouseEvent>
#include <QPainter>
#include <QToolButton>
#include <QWheelEvent>

using MonthLayout::kDaysPerWeek;
using MonthLayout::kGridDays;
using MonthLayout::kWeeksPerGrid;

namespace {

constexpr int kMargin = 10;
constexpr int kTop = 6;
constexpr int kButton = 26;

QFont scaled(const QFont &base, qreal factor, QFont::Weight weight = QFont::Normal)
{
    QFont font = base;
    font.setPointSizeF(base.pointSizeF() * factor);
    font.setWeight(weight);
    return font;
}

} // namespace

MiniMonth::MiniMonth(AppState *appState, SpanCache *cache, QWidget *parent)
    : QWidget(parent)
    , m_appState(appState)
    , m_cache(cache)
    , m_previous(new QToolButton(this))
    , m_next(new QToolButton(this))
{
    setObjectName(QStringLiteral("MiniMonth"));
    setAccessibleName(tr("Month calendar"));
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    for (QToolButton *button : {m_previous, m_next}) {
        button->setAutoRaise(true);
        button->setFixedSize(kButton, kButton);
        button->setIconSize(QSize(18, 18));
        button->setCursor(Qt::PointingHandCursor);
    }
    m_previous->setObjectName(QStringLiteral("MiniMonthPrevious"));
    m_previous->setToolTip(tr("Previous month"));
    m_next->setObjectName(QStringLiteral("MiniMonthNext"));
    m_next->setToolTip(tr("Next month"));
    connect(m_previous, &QToolButton::clicked, this, [this] { showMonth(m_month.addMonths(-1)); });
    connect(m_next, &QToolButton::clicked, this, [this] { showMonth(m_month.addMonths(1)); });

    connect(appState, &AppState::currentDateChanged, this, [this](const QDate &date) {
        showMonth(date);
        update();
    });
    connect(appState, &AppState::viewModeChanged, this, qOverload<>(&QWidget::update));
    connect(appState, &AppState::weekHorizonChanged, this, qOverload<>(&QWidget::update));
    connect(appState, &AppState::firstDayOfWeekChanged, this, [this] {
        const QDate month = m_month;
        m_month = QDate();
        showMonth(month);
    });
    connect(appState->preferences(), &PreferencesRepository::changed, this, [this](const QString &key) {
        if (key == QLatin1String("ui/showWeekNumbers")) {
            m_weekNumbers = m_appState->preferences()->boolValue(key, false);
            updateGeometry();
            update();
        }
    });
    connect(appState->theme(), &ThemeManager::themeChanged, this, &MiniMonth::applyTheme);
    connect(cache, &SpanCache::invalidated, this, [this] {
        m_dotsStale = true;
        refreshDots();
    });
    // Dots of a month that is not cached yet are read after the step has been painted, so that
    // moving through the calendar never waits for them.
    m_dotsTimer.setSingleShot(true);
    m_dotsTimer.setInterval(0);
    connect(&m_dotsTimer, &QTimer::timeout, this, [this] {
        if (m_dotsStale && isVisible()) {
            loadDots();
            update();
        }
    });
    m_weekNumbers = appState->preferences()->boolValue(QStringLiteral("ui/showWeekNumbers"), false);
    applyTheme();
    const QDate date = appState->viewDate();
    showMonth(date.isValid() ? date : Clock::nowLocal().date());
}

void MiniMonth::applyTheme()
{
    const QColor color = m_appState->theme()->colors().textMuted;
    m_previous->setIcon(IconFont::icon(IconFont::Glyph::ChevronLeft, color));
    m_next->setIcon(IconFont::icon(IconFont::Glyph::ChevronRight, color));
    update();
}

void MiniMonth::showMonth(const QDate &date)
{
    if (!date.isValid())
        return;
    const QDate month(date.year(), date.month(), 1);
    if (month == m_month)
        return;
    m_month = month;
    m_first = MonthLayout::gridFor(month, m_appState->firstDayOfWeek()).first;
    m_dotsStale = true;
    refreshDots();
    update();
}

void MiniMonth::refreshDots()
{
    if (!isVisible())
        return;
    if (m_cache->isCached(m_first, kGridDays)) {
        loadDots();
        update();
    } else {
        m_dotsTimer.start();
    }
}

void MiniMonth::loadDots() const
{
    m_dots.fill(false);
    m_dotsStale = false;
    const std::shared_ptr<const SpanData> data = m_cache->span(m_first, kGridDays);
    const QDate last = m_first.addDays(kGridDays - 1);
    for (const Event &occurrence : data->contents.occurrences) {
        const auto [from, to] = MonthLayout::coveredDays(occurrence);
        const QDate begin = std::max(from, m_first);
        const QDate end = std::min(to, last);
        for (QDate day = begin; day <= end; day = day.addDays(1))
            m_dots[m_first.daysTo(day)] = true;
    }
}

std::pair<QDate, QDate> MiniMonth::visibleRange(const QString &mode, const QDate &date, int horizon,
                                                Qt::DayOfWeek firstDayOfWeek)
{
    if (!date.isValid())
        return {};
    if (mode == QLatin1String("day"))
        return {date, date};
    if (mode == QLatin1String("month")) {
        const QDate first(date.year(), date.month(), 1);
        return {first, first.addDays(first.daysInMonth() - 1)};
    }
    QDate first = date;
    if (horizon == kDaysPerWeek)
        first = date.addDays(-((date.dayOfWeek() - int(firstDayOfWeek) + kDaysPerWeek) % kDaysPerWeek));
    return {first, first.addDays(qMax(1, horizon) - 1)};
}

std::pair<QDate, QDate> MiniMonth::highlightedRange() const
{
    // The grid starts on the first day of the week; asking the state would read the database.
    const Qt::DayOfWeek firstDayOfWeek = m_first.isValid() ? Qt::DayOfWeek(m_first.dayOfWeek()) : Qt::Monday;
    return visibleRange(m_appState->viewMode(), m_appState->viewDate(), m_appState->weekHorizon(), firstDayOfWeek);
}

QRect MiniMonth::gridRect() const
{
    const int title = QFontMetrics(scaled(font(), 1.0, QFont::DemiBold)).height() + 16;
    const int initials = QFontMetrics(scaled(font(), 0.8)).height() + 8;
    const int row = QFontMetrics(font()).height() + 11;
    const int weekColumn
        = m_weekNumbers ? QFontMetrics(scaled(font(), 0.75)).horizontalAdvance(QStringLiteral("00")) + 10 : 0;
    return QRect(kMargin + weekColumn, kTop + title + initials, qMax(0, width() - 2 * kMargin - weekColumn),
                 kWeeksPerGrid * row);
}

QRect MiniMonth::dayRect(const QDate &date) const
{
    const qint64 index = m_first.daysTo(date);
    if (!date.isValid() || index < 0 || index >= kGridDays)
        return QRect();
    const QRect grid = gridRect();
    const int column = int(index % kDaysPerWeek);
    const int row = int(index / kDaysPerWeek);
    const int left = grid.left() + column * grid.width() / kDaysPerWeek;
    const int right = grid.left() + (column + 1) * grid.width() / kDaysPerWeek;
    const int height = grid.height() / kWeeksPerGrid;
    return QRect(left, grid.top() + row * height, right - left, height);
}

QDate MiniMonth::dayAt(const QPoint &pos) const
{
    for (int i = 0; i < kGridDays; ++i) {
        const QDate date = m_first.addDays(i);
        if (dayRect(date).contains(pos))
            return date;
    }
    return QDate();
}

bool MiniMonth::hasEvents(const QDate &date) const
{
    if (m_dotsStale)
        loadDots();
    const qint64 index = m_first.daysTo(date);
    return date.isValid() && index >= 0 && index < kGridDays && m_dots[index];
}

QList<int> MiniMonth::weekNumbers() const
{
    QList<int> numbers;
    if (!m_weekNumbers)
        return numbers;
    for (int row = 0; row < kWeeksPerGrid; ++row)
        numbers.append(MonthLayout::weekNumberOfRow(m_first.addDays(qint64(row) * kDaysPerWeek)));
    return numbers;
}

QSize MiniMonth::sizeHint() const
{
    return QSize(240, gridRect().bottom() + 10);
}

QSize MiniMonth::minimumSizeHint() const
{
    return QSize(180, sizeHint().height());
}

bool MiniMonth::event(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        auto *key = static_cast<QKeyEvent *>(event);
        switch (key->key()) {
        case Qt::Key_Left:
        case Qt::Key_Right:
        case Qt::Key_Up:
        case Qt::Key_Down:
            if (key->modifiers() == Qt::NoModifier) {
                event->accept();
                return true;
            }
            break;
        default:
            break;
        }
    }
    return QWidget::event(event);
}

void MiniMonth::paintEvent(QPaintEvent *)
{
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing, true);
    const ThemeManager::Colors &c = m_appState->theme()->colors();
    const bool dark = m_appState->theme()->isDark();
    const QLocale locale;
    const QRect grid = gridRect();
    const QDate today = Clock::nowLocal().date();
    const QDate viewDate = m_appState->viewDate();

    const QFont titleFont = scaled(font(), 1.0, QFont::DemiBold);
    p.setFont(titleFont);
    p.setPen(c.text);
    const int titleHeight = QFontMetrics(titleFont).height() + 16;
    //: Date format (QDate::toString) of the title of the small month calendar
    p.drawText(QRect(kMargin + 4, kTop, m_previous->x() - kMargin - 8, titleHeight), Qt::AlignVCenter | Qt::AlignLeft,
               locale.toString(m_month, tr("MMMM yyyy")));

    const QFont small = scaled(font(), 0.8, QFont::DemiBold);
    p.setFont(small);
    p.setPen(c.textMuted);
    const int initialsTop = kTop + titleHeight;
    for (int column = 0; column < kDaysPerWeek; ++column) {
        const int day = (m_first.dayOfWeek() - 1 + column) % kDaysPerWeek + 1;
        const QRect cell = dayRect(m_first.addDays(column));
        p.drawText(QRect(cell.left(), initialsTop, cell.width(), grid.top() - initialsTop), Qt::AlignCenter,
                   locale.dayName(day, QLocale::ShortFormat).left(2));
    }

    const QList<int> weeks = weekNumbers();
    if (!weeks.isEmpty()) {
        p.setFont(scaled(font(), 0.75));
        for (int row = 0; row < weeks.size(); ++row) {
            const QRect cell = dayRect(m_first.addDays(qint64(row) * kDaysPerWeek));
            p.drawText(QRect(kMargin, cell.top(), grid.left() - kMargin - 2, cell.height()), Qt::AlignCenter,
                       QString::number(weeks[row]));
        }
    }

    const int diameter = qMax(12, qMin(dayRect(m_first).width(), dayRect(m_first).height()) - 4);
    const auto circle = [diameter](const QRect &cell) {
        return QRectF(cell.center().x() + 0.5 - diameter / 2.0, cell.center().y() + 0.5 - diameter / 2.0, diameter,
                      diameter);
    };

    // The days on screen, one soft band per row.
    const auto [from, to] = highlightedRange();
    QColor band = c.accent;
    band.setAlpha(dark ? 64 : 36);
    for (int row = 0; row < kWeeksPerGrid && from.isValid(); ++row) {
        const QDate rowFirst = m_first.addDays(qint64(row) * kDaysPerWeek);
        const QDate start = std::max(from, rowFirst);
        const QDate end = std::min(to, rowFirst.addDays(kDaysPerWeek - 1));
        if (start > end)
            continue;
        const QRectF left = circle(dayRect(start));
        const QRectF right = circle(dayRect(end));
        p.setPen(Qt::NoPen);
        p.setBrush(band);
        p.drawRoundedRect(QRectF(left.topLeft(), right.bottomRight()), diameter / 2.0, diameter / 2.0);
    }

    const QFont numberFont = scaled(font(), 0.9);
    for (int i = 0; i < kGridDays; ++i) {
        const QDate date = m_first.addDays(i);
        const QRect cell = dayRect(date);
        const QRectF round = circle(cell);
        const bool isToday = date == today;
        if (isToday) {
            p.setPen(Qt::NoPen);
            p.setBrush(c.accent);
            p.drawEllipse(round);
        } else if (date == m_hover) {
            QColor hover = c.text;
            hover.setAlpha(dark ? 30 : 18);
            p.setPen(Qt::NoPen);
            p.setBrush(hover);
            p.drawEllipse(round);
        }
        QFont font = numberFont;
        if (isToday || date == viewDate)
            font.setWeight(QFont::DemiBold);
        p.setFont(font);
        if (isToday)
            p.setPen(c.accentText);
        else
            p.setPen(date.month() == m_month.month() ? c.text : c.textMuted);
        p.drawText(round, Qt::AlignCenter, QString::number(date.day()));
        if (!m_dotsStale && m_dots[i]) {
            const qreal dot = qMax(3.0, diameter / 7.0);
            p.setPen(Qt::NoPen);
            p.setBrush(isToday ? c.accentText : c.textMuted);
            p.drawEllipse(QRectF(round.center().x() - dot / 2, round.bottom() - dot - 0.5, dot, dot));
        }
    }
    if (hasFocus() && viewDate.isValid() && dayRect(viewDate).isValid()) {
        p.setPen(QPen(c.accent, 1.5));
        p.setBrush(Qt::NoBrush);
        p.drawEllipse(circle(dayRect(viewDate)).adjusted(-1, -1, 1, 1));
    }
}

void MiniMonth::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    const int titleHeight = QFontMetrics(scaled(font(), 1.0, QFont::DemiBold)).height() + 16;
    const int y = kTop + (titleHeight - kButton) / 2;
    m_next->move(width() - kMargin - kButton, y);
    m_previous->move(width() - kMargin - 2 * kButton - 2, y);
}

void MiniMonth::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (m_dotsStale)
        refreshDots();
}

void MiniMonth::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        m_pressed = dayAt(event->position().toPoint());
    QWidget::mousePressEvent(event);
}

void MiniMonth::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    const QDate day = dayAt(event->position().toPoint());
    const QDate pressed = m_pressed;
    m_pressed = QDate();
    if (day.isValid() && day == pressed)
        m_appState->setViewDate(day);
}

void MiniMonth::mouseMoveEvent(QMouseEvent *event)
{
    const QDate day = dayAt(event->position().toPoint());
    if (day != m_hover) {
        m_hover = day;
        setCursor(day.isValid() ? Qt::PointingHandCursor : Qt::ArrowCursor);
        update();
    }
}

void MiniMonth::leaveEvent(QEvent *event)
{
    m_hover = QDate();
    update();
    QWidget::leaveEvent(event);
}

void MiniMonth::wheelEvent(QWheelEvent *event)
{
    m_wheelDelta += event->angleDelta().y();
    while (qAbs(m_wheelDelta) >= 120) {
        const int step = m_wheelDelta > 0 ? -1 : 1;
        m_wheelDelta += step * 120;
        showMonth(m_month.addMonths(step));
    }
    event->accept();
}

void MiniMonth::keyPressEvent(QKeyEvent *event)
{
    const QDate date = m_appState->viewDate();
    switch (event->key()) {
    case Qt::Key_Left:
        m_appState->setViewDate(date.addDays(layoutDirection() == Qt::RightToLeft ? 1 : -1));
        break;
    case Qt::Key_Right:
        m_appState->setViewDate(date.addDays(layoutDirection() == Qt::RightToLeft ? -1 : 1));
        break;
    case Qt::Key_Up:
        m_appState->setViewDate(date.addDays(-kDaysPerWeek));
        break;
    case Qt::Key_Down:
        m_appState->setViewDate(date.addDays(kDaysPerWeek));
        break;
    case Qt::Key_PageUp:
        showMonth(m_month.addMonths(-1));
        break;
    case Qt::Key_PageDown:
        showMonth(m_month.addMonths(1));
        break;
    default:
        QWidget::keyPressEvent(event);
        break;
    }
}
