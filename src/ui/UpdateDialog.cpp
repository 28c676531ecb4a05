// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/UpdateDialog.h"

#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace KettUpdate {

UpdateDialog::UpdateDialog(const Artifact &artifact, const QString &displayName, const QString &currentVersion,
                           QWidget *parent)
    : QDialog(parent)
{
    setWindowTitle(tr("Update available"));
    auto *layout = new QVBoxLayout(this);
    auto *heading
        = new QLabel(tr("%1 %2 is available. You have %3.").arg(displayName, artifact.version, currentVersion), this);
    heading->setWordWrap(true);
    layout->addWidget(heading);
    if (!artifact.notes.isEmpty()) {
        auto *notes = new QTextBrowser(this);
        notes->setMarkdown(artifact.notes);
        layout->addWidget(notes);
    }
    auto *buttons = new QDialogButtonBox(this);
    QPushButton *download = buttons->addButton(tr("Download"), QDialogButtonBox::AcceptRole);
    buttons->addButton(tr("Later"), QDialogButtonBox::RejectRole);
    download->setDefault(true);
    const QUrl url = artifact.downloadUrl;
    connect(download, &QPushButton::clicked, this, [url] { QDesktopServices::openUrl(url); });
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    layout->addWidget(buttons);
}

} // namespace KettUpdate
