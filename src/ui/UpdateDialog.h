// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cloud/UpdateClient.h"

#include <QDialog>

namespace KettUpdate {

// Tells the user that a newer release is available, with its notes and a download button.
class UpdateDialog : public QDialog
{
    Q_OBJECT

public:
    UpdateDialog(const Artifact &artifact, const QString &displayName, const QString &currentVersion,
                 QWidget *parent = nullptr);
};

} // namespace KettUpdate
