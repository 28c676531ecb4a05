// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/Calendar.h"
#include "storage/Event.h"
#include "storage/SpanQuery.h"

#include <QDate>
#include <QHash>
#include <QList>
#include <QObject>
#include <QSet>
#include <QString>
#include <QTimer>

#include <memory>

class AppState;

// What a span of days shows: the occurrences of the calendars the active view shows, expanded
// and passed through the enabled filter rules, for [firstDay 00:00, firstDay + dayCount 00:00) in
// local time.
struct SpanData
{
    QDate firstDay;
    int dayCount = 0;
    SpanContents contents;
};

// Keeps the spans around the one on screen ready, so that navigation paints from memory: spans
// are loaded on first use and the neighbours of the visible one are prefetched when the event
// loop is idle. Any change of events, calendars, views or filter rules drops the cache and
// announces it with invalidated(); views then ask again.
class SpanCache : public QObject
{
    Q_OBJECT

public:
    static constexpr int kMaxSpans = 12;

    explicit SpanCache(AppState *appState, QObject *parent = nullptr);

    // The contents of [firstDay, firstDay + dayCount), loaded now when not cached.
    std::shared_ptr<const SpanData> span(const QDate &firstDay, int dayCount);
    // Asks for a span to be loaded in the background, when the event loop is idle.
    void prefetch(const QDate &firstDay, int dayCount);
    bool isCached(const QDate &firstDay, int dayCount) const;

    // The calendars by id (colours, names, read-only flags), refreshed with the cache.
    const QHash<QString, Calendar> &calendars() const { return m_calendars; }
    // The colour an occurrence is drawn in: its own colour, else its calendar's.
    QColor colorOf(const Event &event) const;
    bool isReadOnly(const Event &event) const;
    // The ids of the calendars the active view shows: its list, or every visible calendar when
    // the list is empty.
    QStringList shownCalendarIds() const { return m_shownCalendarIds; }

public slots:
    void invalidate();

signals:
    void invalidated();

private:
    struct Key
    {
        QDate firstDay;
        int dayCount = 0;
        bool operator==(const Key &other) const = default;
    };
    friend size_t qHash(const Key &key, size_t seed) { return qHashMulti(seed, key.firstDay, key.dayCount); }

    std::shared_ptr<const SpanData> load(const Key &key) const;
    void refreshCalendars();
    void prefetchNext();

    AppState *m_appState;
    QHash<Key, std::shared_ptr<const SpanData>> m_spans;
    QList<Key> m_recent; // most recently used last
    QList<Key> m_prefetchQueue;
    QTimer m_prefetchTimer;
    QTimer m_invalidateTimer;
    QHash<QString, Calendar> m_calendars;
    QStringList m_shownCalendarIds;
};
