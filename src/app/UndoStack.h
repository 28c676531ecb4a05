// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QObject>
#include <QString>

#include <functional>

// One undoable gesture: what it undoes, for display, and the closure that restores the state
// before it. The closure must capture the data it restores, never the view that pushed it.
struct UndoEntry
{
    QString summary;
    std::function<void()> undo;
};

// The last few destructive calendar gestures (delete, move, resize), undone newest first.
// At most kCapacity entries; no redo, no merging, nothing persisted.
class UndoStack : public QObject
{
    Q_OBJECT

public:
    static constexpr int kCapacity = 20;

    explicit UndoStack(QObject *parent = nullptr);

    // Adds an entry at the newest end, dropping the oldest beyond the capacity. An entry without
    // a closure is ignored.
    void push(UndoEntry entry);
    // Removes the newest entry, then runs its closure. Nothing happens when the stack is empty.
    void undo();
    int count() const { return int(m_entries.size()); }

signals:
    void changed();
    void undone(const QString &summary);

private:
    QList<UndoEntry> m_entries; // oldest first
};
