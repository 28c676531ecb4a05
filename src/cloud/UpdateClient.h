// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>
#include <QUrl>

namespace KettUpdate {

// A release offered by the update manifest.
struct Artifact
{
    QString version;
    QUrl downloadUrl;
    QString notes;
};

// Looks for a newer release of a product on a release channel.
class Client : public QObject
{
    Q_OBJECT

public:
    Client(const QString &productKey, const QString &channel, const QUrl &manifestUrl, const QString &currentVersion,
           QObject *parent = nullptr);

    // Starts one check. The release manifest is not published yet, so the check only notes in the
    // log that it was skipped; it reports neither an update nor a failure.
    void check();

signals:
    void updateAvailable(const KettUpdate::Artifact &artifact);
    void checkFailed(const QString &reason);

private:
    QString m_productKey;
    QString m_channel;
    QUrl m_manifestUrl;
    QString m_currentVersion;
};

} // namespace KettUpdate
