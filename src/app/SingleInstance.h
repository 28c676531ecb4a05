// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QStringList>

class QLocalServer;
class QLocalSocket;

// Turns a second launch into a message to the running instance.
//
// A message is one compact JSON object and a line feed: {"cmd": "focus" | "show-today" |
// "new-event" | "quick-add" | "open-ics"}, with "text" for quick-add and "path" for open-ics.
// The first instance listens on a per-user, per-instance local socket (a filesystem socket only
// the same user may connect to); a later one connects, writes its command and exits.
class SingleInstance : public QObject
{
    Q_OBJECT

public:
    // Messages larger than this are treated as malformed.
    static constexpr qint64 kMaxMessageBytes = 64 * 1024;
    // How long a second instance waits to connect, and then for its bytes to be written.
    static constexpr int kForwardTimeoutMs = 800;

    explicit SingleInstance(QObject *parent = nullptr);

    // True: a running instance received the command and this process must exit with status 0.
    // False: this process is the first instance and now listens (or runs unguarded when it
    // cannot listen).
    bool forwardToRunningInstance(const QStringList &arguments);
    // The command message of a command line; arguments[0], the program, is skipped.
    static QByteArray commandFromArguments(const QStringList &arguments);
    // "kettlebrook-calendar-" + the user's home folder name, + "-" + CALENDAR_INSTANCE when set.
    static QString serverName();

    bool isListening() const;

public slots:
    // Parses one message and emits exactly one of the signals; a malformed one means "focus".
    void dispatchCommand(const QByteArray &jsonLine);

signals:
    void focusRequested();
    void showTodayRequested();
    void newEventRequested();
    void quickAddRequested(const QString &text);
    void openIcsRequested(const QString &path);

private:
    void acceptConnections();
    void readMessages(QLocalSocket *socket);

    QLocalServer *m_server = nullptr;
};
