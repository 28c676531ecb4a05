// SPDX-License-Identifier: GPL-3.0-or-later
#include "cloud/AccountClient.h"

namespace Kettlebrook {

namespace {

QString fromEnvironment(const char *name, const QString &fallback)
{
    const QString value = qEnvironmentVariable(name);
    return value.isEmpty() ? fallback : value;
}

} // namespace

ServiceEndpoints ServiceEndpoints::fromEnvironment()
{
    ServiceEndpoints endpoints;
    endpoints.authApiUrl = Kettlebrook::fromEnvironment("AUTH_API_URL", QStringLiteral("https://auth.kettlebrook.app"));
    endpoints.accountApiUrl
        = Kettlebrook::fromEnvironment("ACCOUNT_API_URL", QStringLiteral("https://account.kettlebrook.app/v1"));
    endpoints.syncApiUrl
        = Kettlebrook::fromEnvironment("SYNC_API_URL", QStringLiteral("https://calendar.kettlebrook.app/v1"));
    endpoints.authRealmSlug = Kettlebrook::fromEnvironment("AUTH_REALM_SLUG", QStringLiteral("kettlebrook"));
    endpoints.authClientId
        = Kettlebrook::fromEnvironment("AUTH_CLIENT_ID", QStringLiteral("6b657474c1eb400ca1e7da5c0ffee421"));
    endpoints.accountPortalUrl
        = Kettlebrook::fromEnvironment("ACCOUNT_PORTAL_URL", QStringLiteral("https://account.kettlebrook.app"));
    return endpoints;
}

AccountClient::AccountClient(const ServiceEndpoints &endpoints, const QString &productName, QObject *parent)
    : QObject(parent)
    , m_endpoints(endpoints)
    , m_productName(productName)
{ }

bool AccountClient::restoreSession()
{
    // No sign-in exists yet, so there is never a stored session to restore.
    return isAuthenticated();
}

} // namespace Kettlebrook
