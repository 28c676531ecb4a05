// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QString>

#include <optional>

// One queued remote operation (table `sync_queue`).
struct SyncQueueEntry
{
    QString id;
    QString operation;
    QString entity_type;
    QString entity_id;
    QString calendar_id;
    QString payload;
    qint32 attempts = 0;
    QString last_error;
    QDateTime created_at;
    std::optional<QDateTime> last_attempt_at;

    bool operator==(const SyncQueueEntry &) const = default;
};
