// SPDX-License-Identifier: GPL-3.0-or-later
#include "cloud/UpdateClient.h"

#include "storage/LogCategories.h"

namespace KettUpdate {

Client::Client(const QString &productKey, const QString &channel, const QUrl &manifestUrl,
               const QString &currentVersion, QObject *parent)
    : QObject(parent)
    , m_productKey(productKey)
    , m_channel(channel)
    , m_manifestUrl(manifestUrl)
    , m_currentVersion(currentVersion)
{ }

void Client::check()
{
    qCInfo(lcCloud).noquote() << "[Update] check skipped for" << m_productKey << m_currentVersion << "on" << m_channel
                              << "(" << m_manifestUrl.toString() << "is not published yet)";
}

} // namespace KettUpdate
