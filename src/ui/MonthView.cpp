// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/MonthView.h"

#include "app/AppState.h"
#include "storage/Clock.h"
#include "storage/PreferencesRepository.h"
#include "ui/EventEditor.h"
#include "ui/MonthLayout.h"
#include "ui/MonthPainter.h"
#include "ui/RecurrenceScopeDialog.h"
#include "ui/SpanCache.h"
#include "ui/ThemeManager.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLocale>
#include <QMouseEvent>
#include <QPainter>
#include <QTimeZone>
#include <QTimer>
#include <QToolTip>

#include <array>

using MonthLayout::kDaysPerWeek;
using MonthLayout::kGridDays;
using MonthLayout::kWeeksPerGrid;

class MonthView::Private
{
public:
    enum class Target { None, Event, DayNumber, More, Cell };

    Private(MonthView *view, AppState *appState, SpanCache *spanCache, EventEditor *eventEditor)
        : q(view)
        , state(appState)
        , cache(spanCache)
        , editor(eventEditor)
    { }

    void ensureLoaded();
    void reload();
    // The week rows of a span, from the few kept ones when it was laid out before.
    QList<MonthLayout::WeekLayout> weeksFor(const std::shared_ptr<const SpanData> &span);
    // Lays out the months before and after while the program is idle, so that stepping to them
    // paints from memory.
    void prepareNeighbours();
    void regrid();
    void relayout();
    // Reads the preferences the view draws with; painting never reads the database.
    void readPreferences();

    int cellIndex(const QDate &date) const;
    QDate dayAt(const QPoint &pos) const;
    int segmentAt(const QPoint &pos) const;
    Target targetAt(const QPoint &pos, int *segment, QDate *day) const;
    const Event &occurrenceOf(int segment) const { return data->contents.occurrences[segments[segment].index]; }

    void activate(int segment);
    void cancelDrag();
    void finishDrag();
    void moveOccurrence(const Event &occurrence, int days);
    void moveFocus(const QDate &day);

    MonthView *q;
    AppState *state;
    SpanCache *cache;
    EventEditor *editor;

    QDate month; // the 1st of the month shown
    QDate first; // the grid
    int days = 0;
    std::shared_ptr<const SpanData> data;
    QList<MonthLayout::WeekLayout> weeks;
    bool stale = true;

    MonthPainter::Geometry geometry;
    QList<MonthPainter::Segment> segments;
    std::array<MonthPainter::Cell, kGridDays> cells;

    bool twentyFourHour = false;
    bool weekNumbers = false;
    QDate today;
    QDate focusDay;
    int hover = -1;

    // A press on an event that may become a drag.
    int pressed = -1;
    QPoint pressPos;
    QDate pressDay;
    bool dragging = false;
    QDate dropDay;
    QPoint dragPos;
    // A press on a day number or "+N more", completed on release over the same day.
    Target pressTarget = Target::None;
    QDate pressTargetDay;

    QTimer dayTimer;

    struct KeptLayout
    {
        std::shared_ptr<const SpanData> span;
        QList<MonthLayout::WeekLayout> weeks;
    };
    static constexpr int kKeptLayouts = 4;
    QList<KeptLayout> keptLayouts; // most recently used last
    QTimer neighbourTimer;
};

void MonthView::Private::ensureLoaded()
{
    if (stale && first.isValid())
        reload();
}

void MonthView::Private::reload()
{
    stale = false;
    cancelDrag();
    hover = -1;
    today = Clock::nowLocal().date();
    data = cache->span(first, days);
    weeks = weeksFor(data);
    relayout();
    if (q->isVisible()) {
        state->setFilterHiddenCount(data->contents.hiddenCount);
        neighbourTimer.start();
    }
    q->update();
}

QList<MonthLayout::WeekLayout> MonthView::Private::weeksFor(const std::shared_ptr<const SpanData> &span)
{
    for (qsizetype i = 0; i < keptLayouts.size(); ++i) {
        if (keptLayouts.at(i).span == span) {
            keptLayouts.move(i, keptLayouts.size() - 1);
            return keptLayouts.constLast().weeks;
        }
    }
    keptLayouts.append({span, MonthLayout::layoutWeeks(span->contents.occurrences, span->firstDay, kWeeksPerGrid)});
    while (keptLayouts.size() > kKeptLayouts)
        keptLayouts.removeFirst();
    return keptLayouts.constLast().weeks;
}

void MonthView::Private::prepareNeighbours()
{
    if (!q->isVisible() || !month.isValid() || !data)
        return;
    for (const int direction : {1, -1}) {
        const auto [neighbourFirst, neighbourDays] = gridFor(month.addMonths(direction), state->firstDayOfWeek());
        weeksFor(cache->span(neighbourFirst, neighbourDays));
    }
    // The one on screen stays the most recent.
    weeksFor(data);
}

// The grid depends on the first day of the week; the month and the focused day stay.
void MonthView::Private::regrid()
{
    const QDate keep = focusDay.isValid() ? focusDay : month;
    month = QDate();
    q->setMonth(keep);
}

void MonthView::Private::readPreferences()
{
    PreferencesRepository *preferences = state->preferences();
    twentyFourHour = preferences->value(QStringLiteral("ui/timeFormat")).value_or(QString()) == QLatin1String("24");
    weekNumbers = preferences->boolValue(QStringLiteral("ui/showWeekNumbers"), false);
}

void MonthView::Private::relayout()
{
    geometry = MonthPainter::measure(q->font(), q->size(), weekNumbers);
    segments.clear();
    for (MonthPainter::Cell &cell : cells)
        cell = MonthPainter::Cell();
    if (!first.isValid())
        return;
    const QLocale locale;
    for (int i = 0; i < days; ++i) {
        const QDate date = first.addDays(i);
        MonthPainter::Cell &cell = cells[i];
        cell.rect = geometry.cellRect(i / kDaysPerWeek, i % kDaysPerWeek);
        //: Date format (QDate::toString) of the first day of a month in its cell
        cell.numberText = date.day() == 1 ? locale.toString(date, MonthView::tr("MMM d")) : QString::number(date.day());
        cell.number = geometry.numberRect(cell.rect, cell.numberText);
    }
    if (!data)
        return;
    for (int w = 0; w < weeks.size(); ++w) {
        const MonthLayout::WeekLayout &week = weeks[w];
        const auto lineRect = [&](int column, int line, int lastColumn) {
            const QRect firstCell = cells[w * kDaysPerWeek + column].rect;
            const QRect lastCell = cells[w * kDaysPerWeek + lastColumn].rect;
            return QRect(QPoint(firstCell.left(), geometry.lineTop(firstCell, line)),
                         QPoint(lastCell.right(), geometry.lineTop(firstCell, line) + geometry.lineHeight - 3));
        };
        for (const MonthLayout::Placement &placement : week.items) {
            // A bar is drawn in pieces over the days where it fits; a day that shows "+N more"
            // instead breaks it.
            int column = placement.firstColumn;
            while (column <= placement.lastColumn) {
                if (!MonthLayout::isShown(week, placement, column, geometry.capacity)) {
                    ++column;
                    continue;
                }
                int end = column;
                while (end < placement.lastColumn && MonthLayout::isShown(week, placement, end + 1, geometry.capacity))
                    ++end;
                MonthPainter::Segment segment;
                segment.index = placement.index;
                segment.bar = placement.bar;
                segment.week = w;
                segment.firstColumn = column;
                segment.lastColumn = end;
                segment.roundLeft = column == placement.firstColumn && !placement.continuesBefore;
                segment.roundRight = end == placement.lastColumn && !placement.continuesAfter;
                segment.rect = lineRect(column, placement.line, end)
                                   .adjusted(segment.roundLeft ? 4 : 1, 0, segment.roundRight ? -4 : 0, 0);
                segments.append(segment);
                column = end + 1;
            }
        }
        for (int column = 0; column < kDaysPerWeek; ++column) {
            MonthPainter::Cell &cell = cells[w * kDaysPerWeek + column];
            cell.hidden = MonthLayout::hiddenItems(week, column, geometry.capacity);
            if (cell.hidden > 0) {
                const int line = MonthLayout::visibleLines(week, column, geometry.capacity);
                cell.more = lineRect(column, line, column).adjusted(4, 0, -4, 0);
                cell.moreText = MonthView::tr("+%n more", nullptr, cell.hidden);
            }
        }
    }
}

int MonthView::Private::cellIndex(const QDate &date) const
{
    if (!first.isValid() || !date.isValid())
        return -1;
    const qint64 index = first.daysTo(date);
    return index >= 0 && index < days ? int(index) : -1;
}

QDate MonthView::Private::dayAt(const QPoint &pos) const
{
    for (int i = 0; i < days; ++i) {
        if (cells[i].rect.contains(pos))
            return first.addDays(i);
    }
    return QDate();
}

int MonthView::Private::segmentAt(const QPoint &pos) const
{
    for (int i = 0; i < segments.size(); ++i) {
        if (segments[i].rect.contains(pos))
            return i;
    }
    return -1;
}

MonthView::Private::Target MonthView::Private::targetAt(const QPoint &pos, int *segment, QDate *day) const
{
    *segment = segmentAt(pos);
    *day = dayAt(pos);
    if (*segment >= 0)
        return Target::Event;
    const int index = cellIndex(*day);
    if (index < 0)
        return Target::None;
    if (cells[index].number.contains(pos))
        return Target::DayNumber;
    if (cells[index].hidden > 0 && cells[index].more.contains(pos))
        return Target::More;
    return Target::Cell;
}

void MonthView::Private::activate(int segment)
{
    const Event occurrence = occurrenceOf(segment);
    const QRect rect = segments[segment].rect;
    state->setSelectedEventId(occurrence.id);
    emit q->eventActivated(occurrence, QRect(q->mapToGlobal(rect.topLeft()), rect.size()));
}

void MonthView::Private::cancelDrag()
{
    const bool wasDragging = dragging;
    pressed = -1;
    dragging = false;
    dropDay = QDate();
    if (wasDragging) {
        q->unsetCursor();
        q->update();
    }
}

void MonthView::Private::finishDrag()
{
    const Event occurrence = occurrenceOf(pressed);
    const qint64 delta = dropDay.isValid() ? pressDay.daysTo(dropDay) : 0;
    cancelDrag();
    if (delta != 0)
        moveOccurrence(occurrence, int(delta));
}

void MonthView::Private::moveOccurrence(const Event &occurrence, int deltaDays)
{
    if (deltaDays == 0 || cache->isReadOnly(occurrence))
        return;
    QDateTime newStart;
    if (occurrence.is_all_day) {
        newStart = MonthLayout::shiftAllDay(occurrence.start_time, deltaDays);
    } else {
        // The wall-clock time stays, also across a daylight-saving change.
        newStart = occurrence.start_time.toLocalTime().addDays(deltaDays).toTimeZone(occurrence.start_time.timeZone());
    }
    EventEditor::Scope scope = EventEditor::Scope::ThisEvent;
    if (EventEditor::isPartOfSeries(occurrence)
        && !RecurrenceScopeDialog::ask(q, &scope, MonthView::tr("Move repeating event")))
        return;
    editor->move(occurrence, newStart, scope);
}

void MonthView::Private::moveFocus(const QDate &day)
{
    if (!day.isValid())
        return;
    if (day.year() != month.year() || day.month() != month.month()) {
        q->setMonth(day);
        state->setViewDate(day);
        return;
    }
    focusDay = day;
    q->update();
}

MonthView::MonthView(AppState *appState, SpanCache *cache, EventEditor *editor, QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>(this, appState, cache, editor))
{
    setObjectName(QStringLiteral("MonthView"));
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setMinimumSize(420, 320);
    d->today = Clock::nowLocal().date();
    d->readPreferences();

    d->neighbourTimer.setSingleShot(true);
    d->neighbourTimer.setInterval(0);
    connect(&d->neighbourTimer, &QTimer::timeout, this, [this] { d->prepareNeighbours(); });
    connect(cache, &SpanCache::invalidated, this, [this] {
        d->keptLayouts.clear();
        if (isVisible())
            d->reload();
        else
            d->stale = true;
    });
    connect(appState, &AppState::firstDayOfWeekChanged, this, [this] { d->regrid(); });
    connect(appState, &AppState::selectedEventChanged, this, qOverload<>(&QWidget::update));
    connect(appState->theme(), &ThemeManager::themeChanged, this, qOverload<>(&QWidget::update));
    connect(appState->preferences(), &PreferencesRepository::changed, this, [this](const QString &key) {
        if (key == QLatin1String("ui/showWeekNumbers") || key == QLatin1String("ui/timeFormat")) {
            d->readPreferences();
            d->relayout();
            update();
        }
    });
    // Today moves at midnight; a minute's delay in noticing it is fine.
    d->dayTimer.setInterval(60 * 1000);
    connect(&d->dayTimer, &QTimer::timeout, this, [this] {
        const QDate now = Clock::nowLocal().date();
        if (now != d->today) {
            d->today = now;
            update();
        }
    });
    d->dayTimer.start();

    setMonth(appState->viewDate().isValid() ? appState->viewDate() : d->today);
}

MonthView::~MonthView() = default;

void MonthView::setMonth(const QDate &date)
{
    if (!date.isValid())
        return;
    d->focusDay = date;
    const QDate month(date.year(), date.month(), 1);
    const auto [first, days] = gridFor(date, d->state->firstDayOfWeek());
    if (month == d->month && first == d->first) {
        update();
        return;
    }
    d->month = month;
    d->first = first;
    d->days = days;
    d->data.reset();
    d->weeks.clear();
    if (isVisible()) {
        d->reload();
    } else {
        d->stale = true;
        d->relayout();
    }
}

QDate MonthView::firstDay() const
{
    return d->first;
}

int MonthView::dayCount() const
{
    return d->days;
}

std::pair<QDate, int> MonthView::gridFor(const QDate &date, Qt::DayOfWeek firstDayOfWeek)
{
    return MonthLayout::gridFor(date, firstDayOfWeek);
}

QRect MonthView::dayRect(const QDate &date) const
{
    d->ensureLoaded();
    const int index = d->cellIndex(date);
    return index < 0 ? QRect() : d->cells[index].rect;
}

QRect MonthView::dayNumberRect(const QDate &date) const
{
    d->ensureLoaded();
    const int index = d->cellIndex(date);
    return index < 0 ? QRect() : d->cells[index].number;
}

QRect MonthView::moreRect(const QDate &date) const
{
    d->ensureLoaded();
    const int index = d->cellIndex(date);
    return index < 0 || d->cells[index].hidden == 0 ? QRect() : d->cells[index].more;
}

int MonthView::moreCount(const QDate &date) const
{
    d->ensureLoaded();
    const int index = d->cellIndex(date);
    return index < 0 ? 0 : d->cells[index].hidden;
}

QRect MonthView::eventRect(const QString &eventId, const QDate &date) const
{
    d->ensureLoaded();
    const int index = d->cellIndex(date);
    if (index < 0 || !d->data)
        return QRect();
    const int week = index / kDaysPerWeek;
    const int column = index % kDaysPerWeek;
    for (const MonthPainter::Segment &segment : std::as_const(d->segments)) {
        if (segment.week == week && segment.firstColumn <= column && column <= segment.lastColumn
            && d->data->contents.occurrences[segment.index].id == eventId)
            return segment.rect;
    }
    return QRect();
}

bool MonthView::event(QEvent *event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        // The arrows move the focused day here rather than stepping the window's view.
        auto *key = static_cast<QKeyEvent *>(event);
        const bool plain = (key->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
        switch (key->key()) {
        case Qt::Key_Left:
        case Qt::Key_Right:
        case Qt::Key_Up:
        case Qt::Key_Down:
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (plain) {
                event->accept();
                return true;
            }
            break;
        case Qt::Key_Escape:
            if (d->dragging) {
                event->accept();
                return true;
            }
            break;
        default:
            break;
        }
    } else if (event->type() == QEvent::ToolTip) {
        auto *help = static_cast<QHelpEvent *>(event);
        const int segment = d->segmentAt(help->pos());
        if (segment >= 0)
            QToolTip::showText(help->globalPos(), MonthPainter::toolTip(d->occurrenceOf(segment), d->twentyFourHour),
                               this, d->segments[segment].rect);
        else
            QToolTip::hideText();
        return true;
    }
    return QWidget::event(event);
}

void MonthView::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    MonthPainter::Scene scene;
    scene.colors = &d->state->theme()->colors();
    scene.dark = d->state->theme()->isDark();
    scene.geometry = &d->geometry;
    scene.firstDay = d->first;
    scene.month = d->month;
    scene.today = d->today;
    scene.firstDayOfWeek = d->first.isValid() ? Qt::DayOfWeek(d->first.dayOfWeek()) : Qt::Monday;
    scene.cells = d->cells.data();
    scene.cellCount = d->days;
    scene.segments = &d->segments;
    scene.contents = d->data ? &d->data->contents : nullptr;
    scene.cache = d->cache;
    scene.selectedId = d->state->selectedEventId();
    scene.hover = d->dragging ? -1 : d->hover;
    scene.twentyFourHour = d->twentyFourHour;
    scene.now = Clock::nowLocal();
    scene.focusDay = hasFocus() ? d->focusDay : QDate();
    if (d->dragging && d->dropDay.isValid()) {
        const Event &moving = d->occurrenceOf(d->pressed);
        const auto [from, to] = MonthLayout::coveredDays(moving);
        const qint64 delta = d->pressDay.daysTo(d->dropDay);
        scene.dropFirst = from.addDays(delta);
        scene.dropLast = to.addDays(delta);
        scene.dragged = d->pressed;
        scene.dragOffset = d->dragPos - d->pressPos;
    }
    MonthPainter::paint(painter, rect(), scene);
}

void MonthView::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    d->relayout();
}

void MonthView::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    if (d->stale)
        d->reload();
    else if (d->data)
        d->state->setFilterHiddenCount(d->data->contents.hiddenCount);
}

void MonthView::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::FontChange)
        d->relayout();
    QWidget::changeEvent(event);
}

void MonthView::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        QWidget::mousePressEvent(event);
        return;
    }
    int segment = -1;
    QDate day;
    const Private::Target target = d->targetAt(event->position().toPoint(), &segment, &day);
    d->pressTarget = target;
    d->pressTargetDay = day;
    if (target == Private::Target::Event) {
        d->pressed = segment;
        d->pressPos = event->position().toPoint();
        d->pressDay = day;
    } else if (target == Private::Target::Cell || target == Private::Target::DayNumber
               || target == Private::Target::More) {
        d->focusDay = day;
        update();
    }
}

void MonthView::mouseMoveEvent(QMouseEvent *event)
{
    const QPoint pos = event->position().toPoint();
    if (d->pressed >= 0) {
        if (!d->dragging && (pos - d->pressPos).manhattanLength() >= QApplication::startDragDistance()
            && !d->cache->isReadOnly(d->occurrenceOf(d->pressed))) {
            d->dragging = true;
            setCursor(Qt::ClosedHandCursor);
        }
        if (d->dragging) {
            d->dragPos = pos;
            const QDate day = d->dayAt(pos);
            if (day.isValid())
                d->dropDay = day;
            update();
        }
        return;
    }
    int segment = -1;
    QDate day;
    const Private::Target target = d->targetAt(pos, &segment, &day);
    if (segment != d->hover) {
        d->hover = segment;
        update();
    }
    if (target == Private::Target::DayNumber || target == Private::Target::More)
        setCursor(Qt::PointingHandCursor);
    else
        unsetCursor();
}

void MonthView::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton) {
        QWidget::mouseReleaseEvent(event);
        return;
    }
    const QPoint pos = event->position().toPoint();
    const Private::Target pressTarget = d->pressTarget;
    d->pressTarget = Private::Target::None;
    if (d->dragging) {
        d->finishDrag();
        return;
    }
    if (d->pressed >= 0) {
        const int pressed = d->pressed;
        d->pressed = -1;
        if (d->segmentAt(pos) == pressed)
            d->activate(pressed);
        return;
    }
    int segment = -1;
    QDate day;
    const Private::Target target = d->targetAt(pos, &segment, &day);
    if ((target == Private::Target::DayNumber || target == Private::Target::More) && target == pressTarget
        && day == d->pressTargetDay)
        emit dayOpened(day);
}

void MonthView::mouseDoubleClickEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton)
        return;
    int segment = -1;
    QDate day;
    if (d->targetAt(event->position().toPoint(), &segment, &day) == Private::Target::Cell)
        emit createRequested(day.startOfDay(), day.addDays(1).startOfDay(), true);
}

void MonthView::keyPressEvent(QKeyEvent *event)
{
    const QDate focus = d->focusDay.isValid() ? d->focusDay : d->month;
    switch (event->key()) {
    case Qt::Key_Left:
        d->moveFocus(focus.addDays(layoutDirection() == Qt::RightToLeft ? 1 : -1));
        break;
    case Qt::Key_Right:
        d->moveFocus(focus.addDays(layoutDirection() == Qt::RightToLeft ? -1 : 1));
        break;
    case Qt::Key_Up:
        d->moveFocus(focus.addDays(-kDaysPerWeek));
        break;
    case Qt::Key_Down:
        d->moveFocus(focus.addDays(kDaysPerWeek));
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (focus.isValid())
            emit dayOpened(focus);
        break;
    case Qt::Key_Escape:
        if (d->dragging) {
            d->cancelDrag();
            break;
        }
        QWidget::keyPressEvent(event);
        break;
    default:
        QWidget::keyPressEvent(event);
        break;
    }
}

void MonthView::leaveEvent(QEvent *event)
{
    if (d->hover >= 0) {
        d->hover = -1;
        update();
    }
    QWidget::leaveEvent(event);
}

void MonthView::focusInEvent(QFocusEvent *event)
{
    QWidget::focusInEvent(event);
    update();
}

void MonthView::focusOutEvent(QFocusEvent *event)
{
    QWidget::focusOutEvent(event);
    update();
}
