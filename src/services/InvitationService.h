// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

namespace Invitations {

// Meeting invitations: replies and updates to events the user was invited to. Not handled in this
// version; the service exists so that the views have one place to ask.
class Service : public QObject
{
    Q_OBJECT

public:
    explicit Service(QObject *parent = nullptr);
};

} // namespace Invitations
