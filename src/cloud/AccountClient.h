// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>

namespace Kettlebrook {

// Where the Kettlebrook account and cloud services live. Each default can be overridden by an
// environment variable of the same name whose non-empty value wins.
struct ServiceEndpoints
{
    QString authApiUrl; // AUTH_API_URL
    QString accountApiUrl; // ACCOUNT_API_URL
    QString syncApiUrl; // SYNC_API_URL
    QString authRealmSlug; // AUTH_REALM_SLUG
    QString authClientId; // AUTH_CLIENT_ID
    QString accountPortalUrl; // ACCOUNT_PORTAL_URL

    static ServiceEndpoints fromEnvironment();
};

// The Kettlebrook account: sign-in state and the tokens that the cloud services use. Signing in
// is not available in this version, so a session is never restored and the state stays signed out.
class AccountClient : public QObject
{
    Q_OBJECT

public:
    enum class AuthState { SignedOut, SignedIn };
    Q_ENUM(AuthState)

    AccountClient(const ServiceEndpoints &endpoints, const QString &productName, QObject *parent = nullptr);

    const ServiceEndpoints &endpoints() const { return m_endpoints; }
    QString productName() const { return m_productName; }
    void setCalendarServiceUrl(const QString &url) { m_calendarServiceUrl = url; }
    QString calendarServiceUrl() const { return m_calendarServiceUrl; }

    // Restores a stored sign-in; true when the account is signed in afterwards.
    bool restoreSession();
    bool isAuthenticated() const { return m_state == AuthState::SignedIn; }
    AuthState state() const { return m_state; }

signals:
    void authStateChanged(Kettlebrook::AccountClient::AuthState state);

private:
    ServiceEndpoints m_endpoints;
    QString m_productName;
    QString m_calendarServiceUrl;
    AuthState m_state = AuthState::SignedOut;
};

} // namespace Kettlebrook
