// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/UndoStack.h"

UndoStack::UndoStack(QObject *parent)
    : QObject(parent)
{ }

void UndoStack::push(UndoEntry entry)
{
    if (!entry.undo)
        return;
    m_entries.append(std::move(entry));
    while (m_entries.size() > kCapacity)
        m_entries.removeFirst();
    emit changed();
}

void UndoStack::undo()
{
    if (m_entries.isEmpty())
        return;
    // Taken off first, so that a closure which pushes a new entry adds it without the old one.
    const UndoEntry entry = m_entries.takeLast();
    entry.undo();
    emit changed();
    emit undone(entry.summary);
}
