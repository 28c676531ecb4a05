// SPDX-License-Identifier: GPL-3.0-or-later
#include "services/InvitationService.h"

namespace Invitations {

Service::Service(QObject *parent)
    : QObject(parent)
{ }

} // namespace Invitations
