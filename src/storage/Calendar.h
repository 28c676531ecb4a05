// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QString>

// One calendar collection (table `calendars`).
struct Calendar
{
    QString id;
    QString account_id;
    QString url; // collection URL, provider id, or "local://calendar/..." for on-device calendars
    QString name;
    QString description;
    QString color = QStringLiteral("#4285F4");
    QString timezone = QStringLiteral("UTC");
    bool is_visible = true;
    bool is_read_only = false;
    bool is_default = false; // at most one calendar has it
    QString ctag;
    QString sync_token;
    QString delta_sync_token;
    QString supported_components = QStringLiteral("[\"VEVENT\"]"); // compact JSON array
    qint32 sort_order = 0;
    QString canonical_key;
    bool sync_enabled = false;
    bool is_shared = false;
    bool shared_with_me = false;
    QString last_sync_error;
    QDateTime created_at;
    QDateTime updated_at;

    bool operator==(const Calendar &) const = default;
};
