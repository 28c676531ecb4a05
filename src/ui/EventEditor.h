// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/Event.h"

#include <QDateTime>
#include <QObject>
#include <QString>

#include <functional>
#include <optional>

class AppState;

// Every change a user makes to an event goes through here: the row is marked "pending" and its
// iCalendar text regenerated so that sync can push it, destructive gestures (move, resize, delete)
// push an undo entry ("Moved "%1"", "Resized "%1"", "Deleted "%1""), and an occurrence of a
// series is changed in the scope the user chose.
class EventEditor : public QObject
{
    Q_OBJECT

public:
    // How far a change to an occurrence of a recurring series reaches.
    enum class Scope {
        ThisEvent, // an override with RECURRENCE-ID (or an exception date for a delete)
        ThisAndFollowing, // the series is split at the occurrence
        AllEvents, // the master itself
    };
    Q_ENUM(Scope)

    explicit EventEditor(AppState *appState, QObject *parent = nullptr);

    // True when the occurrence belongs to a recurring series (a generated occurrence or an
    // override), so the user must choose a scope.
    static bool isPartOfSeries(const Event &occurrence);

    // Creates a new event ("pending", new id = uid, text built for it). Returns the stored event.
    std::optional<Event> create(Event draft);
    // Moves an occurrence to a new start keeping its duration (drag), or changes its end (resize).
    bool move(const Event &occurrence, const QDateTime &newStart, Scope scope = Scope::ThisEvent);
    bool resize(const Event &occurrence, const QDateTime &newEnd, Scope scope = Scope::ThisEvent);
    // Saves what the event form changed; `occurrence` is what the form was opened on.
    bool save(const Event &occurrence, const Event &edited, Scope scope = Scope::ThisEvent);
    // Deletes (a tombstone, undoable).
    bool remove(const Event &occurrence, Scope scope = Scope::ThisEvent);

signals:
    // Something failed to be written; the text is for the status bar.
    void failed(const QString &message);

private:
    std::optional<Event> storedRow(const QString &id);
    std::optional<Event> masterOf(const Event &occurrence);
    bool write(const Event &event);
    void pushUndo(const QString &summary, std::function<void()> undo);
    bool changeTimes(const Event &occurrence, const QDateTime &newStart, const std::optional<QDateTime> &newEnd,
                     Scope scope, const QString &summary);
    // `summary` non-empty: a gesture (times only) that pushes an undo entry; empty: a form save.
    bool apply(const Event &occurrence, const Event &edited, Scope scope, const QString &summary);
    bool applyToRow(const Event &occurrence, const Event &edited, const QString &summary);
    bool makeOverride(const Event &occurrence, const Event &edited, const QString &summary);
    bool splitAt(const Event &master, const QDateTime &slot, const Event &edited, const QString &summary);

    AppState *m_appState;
};
