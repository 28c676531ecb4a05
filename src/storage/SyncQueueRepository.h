// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class Database;

// The queue of remote operations (table `sync_queue`, records `SyncQueueEntry`). The table is
// kept in the schema, but nothing reads or writes queue entries yet, so this repository offers
// no operations; it exists so the queue has its place and its change signal.
class SyncQueueRepository : public QObject
{
    Q_OBJECT

public:
    explicit SyncQueueRepository(Database *database, QObject *parent = nullptr);

signals:
    void queueChanged();

private:
    [[maybe_unused]] Database *m_database;
};
