// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

namespace Sync {

// Records diverging local and remote copies of an event for the user to resolve. Nothing
// produces conflicts yet: they arrive with two-way sync.
class ConflictResolutionService : public QObject
{
    Q_OBJECT

public:
    explicit ConflictResolutionService(QObject *parent = nullptr);
};

} // namespace Sync
