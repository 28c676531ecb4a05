// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/SyncQueueRepository.h"

SyncQueueRepository::SyncQueueRepository(Database *database, QObject *parent)
    : QObject(parent)
    , m_database(database)
{ }
