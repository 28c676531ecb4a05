// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/SpanCache.h"

#include "app/AppState.h"
#include "storage/AccountRepository.h"
#include "storage/CalendarRepository.h"
#include "storage/EventRepository.h"
#include "storage/FilterRuleRepository.h"
#include "storage/StorageFormat.h"
#include "storage/ViewRepository.h"
#include "ui/ThemeManager.h"

SpanCache::SpanCache(AppState *appState, QObject *parent)
    : QObject(parent)
    , m_appState(appState)
{
    m_prefetchTimer.setSingleShot(true);
    m_prefetchTimer.setInterval(0);
    connect(&m_prefetchTimer, &QTimer::timeout, this, &SpanCache::prefetchNext);
    // Several repositories may announce one change; they are answered together.
    m_invalidateTimer.setSingleShot(true);
    m_invalidateTimer.setInterval(0);
    connect(&m_invalidateTimer, &QTimer::timeout, this, [this] {
        m_spans.clear();
        m_recent.clear();
        refreshCalendars();
        emit invalidated();
    });

    connect(appState->events(), &EventRepository::eventsChanged, this, &SpanCache::invalidate);
    connect(appState->calendars(), &CalendarRepository::calendarsChanged, this, &SpanCache::invalidate);
    connect(appState->accounts(), &AccountRepository::accountsChanged, this, &SpanCache::invalidate);
    connect(appState->views(), &ViewRepository::viewsChanged, this, &SpanCache::invalidate);
    connect(appState->filterRules(), &FilterRuleRepository::filterRulesChanged, this, &SpanCache::invalidate);
    connect(appState, &AppState::activeViewChanged, this, &SpanCache::invalidate);
    refreshCalendars();
}

void SpanCache::invalidate()
{
    m_invalidateTimer.start();
}

void SpanCache::refreshCalendars()
{
    m_calendars.clear();
    QList<Calendar> visible;
    for (const Calendar &calendar : m_appState->calendars()->getAll()) {
        m_calendars.insert(calendar.id, calendar);
        if (calendar.is_visible)
            visible.append(calendar);
    }
    QStringList listed;
    if (const std::optional<CalendarView> view = m_appState->views()->getById(m_appState->activeViewId()))
        listed = StorageFormat::parseStringListJson(view->calendar_ids);
    m_shownCalendarIds.clear();
    for (const Calendar &calendar : std::as_const(visible)) {
        if (listed.isEmpty() || listed.contains(calendar.id))
            m_shownCalendarIds.append(calendar.id);
    }
}

bool SpanCache::isCached(const QDate &firstDay, int dayCount) const
{
    return m_spans.contains(Key{firstDay, dayCount});
}

std::shared_ptr<const SpanData> SpanCache::span(const QDate &firstDay, int dayCount)
{
    const Key key{firstDay, dayCount};
    auto found = m_spans.constFind(key);
    std::shared_ptr<const SpanData> data;
    if (found != m_spans.constEnd()) {
        data = found.value();
        m_recent.removeOne(key);
    } else {
        data = load(key);
        m_spans.insert(key, data);
        m_prefetchQueue.removeOne(key);
    }
    m_recent.append(key);
    while (m_recent.size() > kMaxSpans)
        m_spans.remove(m_recent.takeFirst());
    return data;
}

void SpanCache::prefetch(const QDate &firstDay, int dayCount)
{
    const Key key{firstDay, dayCount};
    if (m_spans.contains(key) || m_prefetchQueue.contains(key))
        return;
    m_prefetchQueue.append(key);
    m_prefetchTimer.start();
}

void SpanCache::prefetchNext()
{
    if (m_prefetchQueue.isEmpty())
        return;
    const Key key = m_prefetchQueue.takeFirst();
    if (!m_spans.contains(key)) {
        m_spans.insert(key, load(key));
        m_recent.append(key);
        while (m_recent.size() > kMaxSpans)
            m_spans.remove(m_recent.takeFirst());
    }
    // One span per turn of the event loop keeps input responsive while the queue drains.
    if (!m_prefetchQueue.isEmpty())
        m_prefetchTimer.start();
}

std::shared_ptr<const SpanData> SpanCache::load(const Key &key) const
{
    auto data = std::make_shared<SpanData>();
    data->firstDay = key.firstDay;
    data->dayCount = key.dayCount;
    // No calendar to show means nothing to show (an empty list would mean every calendar).
    if (m_shownCalendarIds.isEmpty() || !key.firstDay.isValid() || key.dayCount <= 0)
        return data;
    const SpanQuery query(*m_appState->events(), *m_appState->filterRules());
    data->contents = query.contents(key.firstDay.startOfDay(), key.firstDay.addDays(key.dayCount).startOfDay(),
                                    m_shownCalendarIds);
    return data;
}

QColor SpanCache::colorOf(const Event &event) const
{
    if (!event.color.isEmpty()) {
        const QColor own(event.color);
        if (own.isValid())
            return own;
    }
    const auto calendar = m_calendars.constFind(event.calendar_id);
    if (calendar != m_calendars.constEnd()) {
        const QColor color(calendar->color);
        if (color.isValid())
            return color;
    }
    return m_appState->theme() ? m_appState->theme()->accentColor() : QColor(ThemeManager::kDefaultAccent);
}

bool SpanCache::isReadOnly(const Event &event) const
{
    const auto calendar = m_calendars.constFind(event.calendar_id);
    return calendar != m_calendars.constEnd() && calendar->is_read_only;
}
