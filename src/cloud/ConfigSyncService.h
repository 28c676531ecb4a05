// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

namespace Kettlebrook {

class AccountClient;

// Keeps accounts, calendars, views and filter rules in step across the user's devices through the
// Kettlebrook account. It works only while the account is signed in.
class ConfigSyncService : public QObject
{
    Q_OBJECT

public:
    explicit ConfigSyncService(AccountClient *account, QObject *parent = nullptr);

    bool isActive() const;

public slots:
    // Starts a full round of configuration sync; nothing happens while signed out.
    void start();
    // Pushes local configuration changes; nothing happens while signed out.
    void push();

private:
    AccountClient *m_account;
};

} // namespace Kettlebrook
