// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/TimelineView.h"

#include "app/AppState.h"
#include "storage/Clock.h"
#include "storage/PreferencesRepository.h"
#include "ui/AllDayStrip.h"
#include "ui/EventBlockPainter.h"
#include "ui/EventEditor.h"
#include "ui/RecurrenceScopeDialog.h"
#include "ui/SpanCache.h"
#include "ui/ThemeManager.h"
#include "ui/TimelineContext.h"
#include "ui/TimelineGrid.h"
#include "ui/TimelineHeader.h"
#include "ui/TimelineMath.h"

#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>
#include <optional>

namespace {

const QString kTimeFormatKey = QStringLiteral("ui/timeFormat");
const QString kWorkdayStartKey = QStringLiteral("ui/workdayStart");
const QString kWorkdayEndKey = QStringLiteral("ui/workdayEnd");
const QString kWeekNumbersKey = QStringLiteral("ui/showWeekNumbers");

constexpr int kMaximumDays = 21;
// Layouts kept for spans seen lately or likely next (the neighbours), so that a step paints at once.
constexpr int kCachedLayouts = 6;

} // namespace

class TimelineView::Private
{
public:
    Private(TimelineView *view, AppState *state, SpanCache *spanCache, EventEditor *eventEditor);

    void readPreferences();
    void updateGutter();
    // Takes the span from the cache (memory when cached) and lays it out.
    void reload();
    // Lays the current span out again (the zoom changed the minimum block height).
    void relayout();
    // The layout of a span at the current zoom, from the layouts kept when possible.
    TimelineLayout layoutFor(const std::shared_ptr<const SpanData> &span, const QDate &first, int days);
    // Lays out the spans before and after the one shown while the user looks at it.
    void prepareNeighbours();
    void updateParts();
    void publishHiddenCount();
    void applyHourHeight(int pixels);
    void applyTopMinute();
    bool commit(const Event &occurrence, const QDateTime &value, bool resize);
    void activate(qsizetype occurrenceIndex, const QRect &rect, QWidget *part);
    void stepSelection(int direction);
    void activateSelection();
    std::optional<qsizetype> selectedIndex() const;
    QRect itemRect(qsizetype occurrenceIndex) const;

    TimelineView *q;
    AppState *appState;
    SpanCache *cache;
    EventEditor *editor;
    TimelineContext context;
    TimelineHeader *header = nullptr;
    AllDayStrip *strip = nullptr;
    QScrollArea *scroll = nullptr;
    TimelineGrid *grid = nullptr;
    QDate firstDay;
    int dayCount = 7;
    double topMinute = 0; // the time at the top of the visible grid, kept across zoom and resizes
    bool applyingScroll = false;
    std::optional<int> zoomAnchor; // viewport position to hold still during the next zoom
    QDate shownToday;
    struct KeptLayout
    {
        std::shared_ptr<const SpanData> span;
        int minimumMinutes = 0;
        TimelineLayout layout;
    };
    QList<KeptLayout> keptLayouts; // most recently used last
    QTimer neighbourTimer;
};

TimelineView::Private::Private(TimelineView *view, AppState *state, SpanCache *spanCache, EventEditor *eventEditor)
    : q(view)
    , appState(state)
    , cache(spanCache)
    , editor(eventEditor)
{
    context.appState = state;
    context.cache = spanCache;
    context.hourHeight = state->hourHeight();
    context.selectedId = state->selectedEventId();
    context.commitMove = [this](const Event &occurrence, const QDateTime &start) {
        return commit(occurrence, start, false);
    };
    context.commitResize = [this](const Event &occurrence, const QDateTime &end) {
        return commit(occurrence, end, true);
    };
    readPreferences();
    topMinute = std::max(0, context.workdayStart * 60 - 30);
}

void TimelineView::Private::readPreferences()
{
    const PreferencesRepository *preferences = appState->preferences();
    context.use24Hour = preferences->value(kTimeFormatKey).value_or(QString()) == QLatin1String("24");
    context.workdayStart = std::clamp(preferences->intValue(kWorkdayStartKey, 9), 0, 24);
    context.workdayEnd = std::clamp(preferences->intValue(kWorkdayEndKey, 17), 0, 24);
    context.showWeekNumbers = preferences->boolValue(kWeekNumbersKey, false);
}

void TimelineView::Private::updateGutter()
{
    const QFontMetrics metrics(EventBlockPainter::detailFont(q->font()));
    int widest = metrics.horizontalAdvance(AllDayStrip::tr("all-day"));
    for (int hour = 1; hour < 24; ++hour)
        widest = std::max(widest, metrics.horizontalAdvance(TimelineMath::hourLabel(hour, context.use24Hour)));
    // Room for the current-time pill, which is a little wider than the hour labels.
    widest = std::max(widest, metrics.horizontalAdvance(TimelineMath::timeText(QTime(12, 59), context.use24Hour)) + 10);
    context.gutter = std::max(48, widest + 16);
    if (grid)
        context.columnsWidth = std::max(0, grid->width() - context.gutter);
}

void TimelineView::Private::reload()
{
    std::shared_ptr<const SpanData> span;
    if (firstDay.isValid())
        span = cache->span(firstDay, dayCount);
    context.layout = layoutFor(span, firstDay, dayCount);
    updateParts();
    publishHiddenCount();
    if (q->isVisible())
        neighbourTimer.start();
}

void TimelineView::Private::relayout()
{
    context.layout = layoutFor(context.layout.span, firstDay, dayCount);
    updateParts();
}

TimelineLayout TimelineView::Private::layoutFor(const std::shared_ptr<const SpanData> &span, const QDate &first,
                                                int days)
{
    const int minimum = TimelineMath::minutesForPixels(TimelineGrid::kMinimumBlockHeight, context.hourHeight);
    if (!span)
        return TimelineLayout::build(span, first, days, minimum, cache);
    for (qsizetype i = 0; i < keptLayouts.size(); ++i) {
        if (keptLayouts.at(i).span == span && keptLayouts.at(i).minimumMinutes == minimum) {
            keptLayouts.move(i, keptLayouts.size() - 1);
            return keptLayouts.constLast().layout;
        }
    }
    keptLayouts.append({span, minimum, TimelineLayout::build(span, first, days, minimum, cache)});
    while (keptLayouts.size() > kCachedLayouts)
        keptLayouts.removeFirst();
    return keptLayouts.constLast().layout;
}

void TimelineView::Private::prepareNeighbours()
{
    if (!q->isVisible() || !firstDay.isValid())
        return;
    for (const int direction : {1, -1}) {
        const QDate first = firstDay.addDays(direction * dayCount);
        layoutFor(cache->span(first, dayCount), first, dayCount);
    }
    // The one on screen stays the most recent.
    layoutFor(context.layout.span, firstDay, dayCount);
}

void TimelineView::Private::updateParts()
{
    shownToday = Clock::nowLocal().date();
    header->update();
    strip->relayout();
    grid->relayout();
}

void TimelineView::Private::publishHiddenCount()
{
    if (q->isVisible() && context.layout.span)
        appState->setFilterHiddenCount(context.layout.span->contents.hiddenCount);
}

void TimelineView::Private::applyTopMinute()
{
    applyingScroll = true;
    scroll->verticalScrollBar()->setValue(int(std::lround(topMinute * context.hourHeight / 60.0)));
    applyingScroll = false;
}

void TimelineView::Private::applyHourHeight(int pixels)
{
    const int old = context.hourHeight;
    if (pixels == old)
        return;
    const int anchor = zoomAnchor.value_or(scroll->viewport()->height() / 2);
    zoomAnchor.reset();
    const double minute = (scroll->verticalScrollBar()->value() + anchor) * 60.0 / old;
    context.hourHeight = pixels;
    topMinute = std::max(0.0, minute - anchor * 60.0 / pixels);
    relayout();
    applyTopMinute();
}

bool TimelineView::Private::commit(const Event &occurrence, const QDateTime &value, bool resize)
{
    EventEditor::Scope scope = EventEditor::Scope::ThisEvent;
    if (EventEditor::isPartOfSeries(occurrence)) {
        const QString verb
            = resize ? TimelineView::tr("Resize repeating event") : TimelineView::tr("Move repeating event");
        if (!RecurrenceScopeDialog::ask(q, &scope, verb))
            return false;
    }
    return resize ? editor->resize(occurrence, value, scope) : editor->move(occurrence, value, scope);
}

void TimelineView::Private::activate(qsizetype occurrenceIndex, const QRect &rect, QWidget *part)
{
    const Event occurrence = context.layout.occurrence(occurrenceIndex);
    context.select(&occurrence);
    header->update();
    strip->update();
    grid->update();
    emit q->eventActivated(occurrence, QRect(part->mapToGlobal(rect.topLeft()), rect.size()));
}

std::optional<qsizetype> TimelineView::Private::selectedIndex() const
{
    if (!context.layout.span || context.selectedId.isEmpty())
        return std::nullopt;
    const QList<Event> &occurrences = context.layout.span->contents.occurrences;
    for (qsizetype i = 0; i < occurrences.size(); ++i) {
        if (context.isSelected(occurrences.at(i)))
            return i;
    }
    return std::nullopt;
}

QRect TimelineView::Private::itemRect(qsizetype occurrenceIndex) const
{
    for (qsizetype i = 0; i < context.layout.pieces.size(); ++i) {
        if (context.layout.pieces.at(i).index == occurrenceIndex) {
            const QRect box = grid->pieceRect(i);
            return {grid->mapTo(q, box.topLeft()), box.size()};
        }
    }
    for (qsizetype i = 0; i < context.layout.bars.size(); ++i) {
        if (context.layout.bars.at(i).index == occurrenceIndex) {
            if (!strip->isExpanded() && strip->barRect(i).isNull())
                strip->setExpanded(true);
            const QRect box = strip->barRect(i);
            return {strip->mapTo(q, box.topLeft()), box.size()};
        }
    }
    return {};
}

void TimelineView::Private::stepSelection(int direction)
{
    // All-day bars first, then the timed events by day and time: the reading order of the view.
    QList<qsizetype> order;
    for (const TimelineLayout::Bar &bar : std::as_const(context.layout.bars))
        order.append(bar.index);
    for (const TimelineLayout::TimedPiece &piece : std::as_const(context.layout.pieces)) {
        if (!order.contains(piece.index))
            order.append(piece.index);
    }
    if (order.isEmpty())
        return;
    const std::optional<qsizetype> current = selectedIndex();
    qsizetype position = current ? order.indexOf(*current) : -1;
    position
        = position < 0 ? (direction > 0 ? 0 : order.size() - 1) : (position + direction + order.size()) % order.size();
    const Event occurrence = context.layout.occurrence(order.at(position));
    context.select(&occurrence);
    itemRect(order.at(position)); // unfolds the strip when the bar is folded into "+N"
    for (qsizetype i = 0; i < context.layout.pieces.size(); ++i) {
        if (context.layout.pieces.at(i).index == order.at(position)) {
            const QRect piece = grid->pieceRect(i);
            scroll->ensureVisible(piece.center().x(), piece.center().y(), 0, piece.height() / 2 + 16);
            break;
        }
    }
    header->update();
    strip->update();
    grid->update();
}

void TimelineView::Private::activateSelection()
{
    const std::optional<qsizetype> index = selectedIndex();
    if (!index)
        return;
    const QRect box = itemRect(*index);
    if (!box.isNull())
        emit q->eventActivated(context.layout.occurrence(*index), QRect(q->mapToGlobal(box.topLeft()), box.size()));
}

TimelineView::TimelineView(AppState *appState, SpanCache *cache, EventEditor *editor, QWidget *parent)
    : QWidget(parent)
    , d(std::make_unique<Private>(this, appState, cache, editor))
{
    setObjectName(QStringLiteral("timelineView"));
    d->header = new TimelineHeader(&d->context, this);
    d->strip = new AllDayStrip(&d->context, this);
    d->scroll = new QScrollArea(this);
    d->scroll->setObjectName(QStringLiteral("timelineScrollArea"));
    d->scroll->setFrameShape(QFrame::NoFrame);
    d->scroll->setFocusPolicy(Qt::NoFocus);
    d->scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // Always there, so that the columns of the header and the strip line up with the grid's.
    d->scroll->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    d->scroll->setWidgetResizable(true);
    d->grid = new TimelineGrid(&d->context);
    d->scroll->setWidget(d->grid);
    setFocusProxy(d->grid);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(d->header);
    layout->addWidget(d->strip);
    layout->addWidget(d->scroll, 1);
    d->updateGutter();

    QScrollBar *bar = d->scroll->verticalScrollBar();
    connect(bar, &QScrollBar::valueChanged, this, [this](int value) {
        if (!d->applyingScroll && d->scroll->verticalScrollBar()->maximum() > 0)
            d->topMinute = value * 60.0 / d->context.hourHeight;
        d->grid->setVisibleTop(value);
    });
    connect(bar, &QScrollBar::rangeChanged, this, [this] { d->applyTopMinute(); });

    d->neighbourTimer.setSingleShot(true);
    d->neighbourTimer.setInterval(0);
    connect(&d->neighbourTimer, &QTimer::timeout, this, [this] { d->prepareNeighbours(); });
    connect(cache, &SpanCache::invalidated, this, [this] {
        d->keptLayouts.clear();
        d->reload();
    });
    connect(appState->theme(), &ThemeManager::themeChanged, this, [this] {
        d->keptLayouts.clear(); // colours may come from the accent
        d->relayout();
    });
    connect(appState->preferences(), &PreferencesRepository::changed, this, [this](const QString &key) {
        if (key != kTimeFormatKey && key != kWorkdayStartKey && key != kWorkdayEndKey && key != kWeekNumbersKey)
            return;
        d->readPreferences();
        d->updateGutter();
        d->updateParts();
    });
    connect(appState, &AppState::hourHeightChanged, this, [this](int pixels) { d->applyHourHeight(pixels); });
    connect(appState, &AppState::selectedEventChanged, this, [this](const QString &id) {
        if (id != d->context.selectedId) {
            d->context.selectedId = id;
            d->context.selectedRecurrenceId.clear();
        }
        d->strip->update();
        d->grid->update();
    });

    connect(d->header, &TimelineHeader::dayClicked, this, &TimelineView::dayActivated);
    connect(d->strip, &AllDayStrip::eventClicked, this,
            [this](qsizetype index, const QRect &rect) { d->activate(index, rect, d->strip); });
    connect(d->grid, &TimelineGrid::eventClicked, this,
            [this](qsizetype index, const QRect &rect) { d->activate(index, rect, d->grid); });
    connect(d->strip, &AllDayStrip::emptyClicked, this, [this] { d->context.select(nullptr); });
    connect(d->grid, &TimelineGrid::emptyClicked, this, [this] { d->context.select(nullptr); });
    connect(d->strip, &AllDayStrip::createRequested, this, &TimelineView::createRequested);
    connect(d->grid, &TimelineGrid::createRequested, this, &TimelineView::createRequested);
    connect(d->grid, &TimelineGrid::zoomRequested, this, [this](int pixels, int anchorY) {
        d->zoomAnchor = anchorY - d->scroll->verticalScrollBar()->value();
        d->appState->setHourHeight(pixels);
        d->zoomAnchor.reset();
    });
    connect(d->grid, &TimelineGrid::scrollRequested, this, [this](int pixels) {
        QScrollBar *bar = d->scroll->verticalScrollBar();
        bar->setValue(bar->value() + pixels);
    });
    connect(d->grid, &TimelineGrid::ensureVisibleRequested, this,
            [this](const QPoint &pos) { d->scroll->ensureVisible(pos.x(), pos.y(), 0, 24); });
    connect(d->grid, &TimelineGrid::selectionStepRequested, this,
            [this](int direction) { d->stepSelection(direction); });
    connect(d->grid, &TimelineGrid::activationRequested, this, [this] { d->activateSelection(); });
    connect(d->grid, &TimelineGrid::columnsChanged, this, [this] {
        d->header->update();
        d->strip->update();
    });
    connect(d->grid, &TimelineGrid::minuteChanged, this, [this] {
        // Past midnight "today" moves to the next column.
        if (Clock::nowLocal().date() != d->shownToday)
            d->updateParts();
    });
}

TimelineView::~TimelineView() = default;

void TimelineView::setDays(const QDate &firstDay, int dayCount)
{
    dayCount = std::clamp(dayCount, 1, kMaximumDays);
    const bool changed = firstDay != d->firstDay || dayCount != d->dayCount;
    d->firstDay = firstDay;
    d->dayCount = dayCount;
    if (changed) {
        d->strip->cancelDrag();
        d->grid->cancelDrag();
    }
    d->reload();
}

QDate TimelineView::firstDay() const
{
    return d->firstDay;
}

int TimelineView::dayCount() const
{
    return d->dayCount;
}

void TimelineView::scrollToTime(const QTime &time)
{
    if (!time.isValid())
        return;
    d->topMinute = time.hour() * 60 + time.minute();
    d->applyTopMinute();
}

QList<TimelineView::DrawnItem> TimelineView::drawnItems() const
{
    QList<DrawnItem> items;
    const TimelineLayout &layout = d->context.layout;
    for (qsizetype i = 0; i < layout.bars.size(); ++i) {
        const QRect box = d->strip->barRect(i);
        if (box.isNull())
            continue;
        const qsizetype index = layout.bars.at(i).index;
        items.append({layout.occurrence(index), QRect(d->strip->mapTo(this, box.topLeft()), box.size()), true,
                      layout.isDimmed(index), d->context.isSelected(layout.occurrence(index))});
    }
    for (qsizetype i = 0; i < layout.pieces.size(); ++i) {
        const QRect box = d->grid->pieceRect(i);
        const qsizetype index = layout.pieces.at(i).index;
        items.append({layout.occurrence(index), QRect(d->grid->mapTo(this, box.topLeft()), box.size()), false,
                      layout.isDimmed(index), d->context.isSelected(layout.occurrence(index))});
    }
    return items;
}

void TimelineView::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    d->publishHiddenCount();
}

void TimelineView::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    d->strip->setMaximumStripHeight(std::max(60, height() * 2 / 5));
}
