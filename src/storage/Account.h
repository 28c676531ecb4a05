// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QString>

#include <optional>

// One connection to a calendar source (table `accounts`). The table's sort_order column is not
// part of the record: only the account reorder writes it.
struct Account
{
    QString id;
    QString name;
    QString type; // "caldav", "icloud", "zoho", "google", "microsoft", "webcal", "kettlebrook"
    QString server_url;
    QString username;
    QString calendar_home_set;
    QString principal_url;
    qint32 sync_interval_minutes = 15;
    std::optional<QDateTime> last_sync_time;
    QString last_sync_error;
    bool enabled = true;
    QString color = QStringLiteral("#4285F4");
    bool exclude_from_sync = false;
    QString trusted_cert_sha256;
    QString pending_cert_sha256;
    QDateTime created_at;
    QDateTime updated_at;
    std::optional<QDateTime> deleted_at;

    bool operator==(const Account &) const = default;
};
