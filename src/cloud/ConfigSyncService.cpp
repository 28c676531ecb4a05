// SPDX-License-Identifier: GPL-3.0-or-later
#include "cloud/ConfigSyncService.h"

#include "cloud/AccountClient.h"

namespace Kettlebrook {

ConfigSyncService::ConfigSyncService(AccountClient *account, QObject *parent)
    : QObject(parent)
    , m_account(account)
{ }

bool ConfigSyncService::isActive() const
{
    return m_account && m_account->isAuthenticated();
}

// Configuration sync needs a signed-in account; until signing in exists there is nothing to send
// or fetch, so both entry points leave everything as it is.
void ConfigSyncService::start() { }

void ConfigSyncService::push() { }

} // namespace Kettlebrook
