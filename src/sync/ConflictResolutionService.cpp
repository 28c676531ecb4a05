// SPDX-License-Identifier: GPL-3.0-or-later
#include "sync/ConflictResolutionService.h"

namespace Sync {

ConflictResolutionService::ConflictResolutionService(QObject *parent)
    : QObject(parent)
{ }

} // namespace Sync
