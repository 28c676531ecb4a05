// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/SingleInstance.h"

#include "app/AppEnvironment.h"
#include "storage/LogCategories.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocalServer>
#include <QLocalSocket>
#include <QStandardPaths>
#include <QTimer>

namespace {

// A connection that sends nothing for this long is dropped.
constexpr int kIdleConnectionMs = 10000;

} // namespace

SingleInstance::SingleInstance(QObject *parent)
    : QObject(parent)
{ }

QString SingleInstance::serverName()
{
    const QString home = QStandardPaths::writableLocation(QStandardPaths::HomeLocation);
    QString name = QStringLiteral("kettlebrook-calendar-") + QFileInfo(home).fileName();
    const QString instance = AppEnvironment::instanceName();
    if (!instance.isEmpty())
        name += QLatin1Char('-') + instance;
    return name;
}

bool SingleInstance::isListening() const
{
    return m_server && m_server->isListening();
}

QByteArray SingleInstance::commandFromArguments(const QStringList &arguments)
{
    QJsonObject message{{QStringLiteral("cmd"), QStringLiteral("focus")}};
    for (qsizetype i = 1; i < arguments.size(); ++i) {
        const QString &argument = arguments.at(i);
        const bool hasNext = i + 1 < arguments.size();
        if (argument == QLatin1String("--show-today")) {
            message[QStringLiteral("cmd")] = QStringLiteral("show-today");
        } else if (argument == QLatin1String("--new-event")) {
            message[QStringLiteral("cmd")] = QStringLiteral("new-event");
        } else if (argument == QLatin1String("--quick-add") && hasNext) {
            message[QStringLiteral("cmd")] = QStringLiteral("quick-add");
            message[QStringLiteral("text")] = arguments.at(++i);
        } else if (argument.startsWith(QLatin1String("--quick-add="))) {
            message[QStringLiteral("cmd")] = QStringLiteral("quick-add");
            message[QStringLiteral("text")] = argument.mid(12);
        } else if (argument == QLatin1String("--ics") && hasNext) {
            message[QStringLiteral("cmd")] = QStringLiteral("open-ics");
            message[QStringLiteral("path")] = arguments.at(++i);
        } else if (argument.endsWith(QLatin1String(".ics"), Qt::CaseInsensitive) && QFileInfo(argument).isFile()) {
            // Forwarded as given: a relative path stays relative to the second process's folder.
            message[QStringLiteral("cmd")] = QStringLiteral("open-ics");
            message[QStringLiteral("path")] = argument;
        }
        // "--background" and anything else produce no command.
    }
    return QJsonDocument(message).toJson(QJsonDocument::Compact) + '\n';
}

bool SingleInstance::forwardToRunningInstance(const QStringList &arguments)
{
    const QString name = serverName();
    {
        QLocalSocket socket;
        socket.connectToServer(name, QIODevice::ReadWrite);
        if (socket.waitForConnected(kForwardTimeoutMs)) {
            socket.write(commandFromArguments(arguments));
            socket.flush();
            socket.waitForBytesWritten(kForwardTimeoutMs);
            socket.disconnectFromServer();
            return true;
        }
    }

    // No instance answered: a crashed one may have left its socket file behind.
    QLocalServer::removeServer(name);
    m_server = new QLocalServer(this);
    m_server->setSocketOptions(QLocalServer::UserAccessOption);
    connect(m_server, &QLocalServer::newConnection, this, &SingleInstance::acceptConnections);
    if (!m_server->listen(name)) {
        qCWarning(lcSingleInstance).noquote()
            << "[SingleInstance] failed to listen on" << name << ":" << m_server->errorString();
    }
    return false;
}

void SingleInstance::acceptConnections()
{
    while (QLocalSocket *socket = m_server->nextPendingConnection()) {
        connect(socket, &QLocalSocket::readyRead, this, [this, socket] { readMessages(socket); });
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        QTimer::singleShot(kIdleConnectionMs, socket, [socket] { socket->abort(); });
        if (socket->bytesAvailable() > 0)
            readMessages(socket);
    }
}

void SingleInstance::readMessages(QLocalSocket *socket)
{
    while (socket->canReadLine()) {
        const QByteArray line = socket->readLine(kMaxMessageBytes + 1);
        if (line.size() > kMaxMessageBytes) {
            qCWarning(lcSingleInstance).noquote()
                << "[SingleInstance] bad command: message longer than" << kMaxMessageBytes << "bytes";
            socket->abort();
            emit focusRequested();
            return;
        }
        dispatchCommand(line);
    }
    // A partial line waits for more data, but not without bound.
    if (socket->bytesAvailable() > kMaxMessageBytes) {
        qCWarning(lcSingleInstance).noquote()
            << "[SingleInstance] bad command: message longer than" << kMaxMessageBytes << "bytes";
        socket->abort();
        emit focusRequested();
    }
}

void SingleInstance::dispatchCommand(const QByteArray &jsonLine)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(jsonLine, &error);
    if (error.error != QJsonParseError::NoError || !document.isObject()) {
        qCWarning(lcSingleInstance).noquote() << "[SingleInstance] bad command:" << error.errorString();
        emit focusRequested();
        return;
    }
    const QJsonObject message = document.object();
    const QString command = message.value(QStringLiteral("cmd")).toString();
    if (command == QLatin1String("show-today"))
        emit showTodayRequested();
    else if (command == QLatin1String("new-event"))
        emit newEventRequested();
    else if (command == QLatin1String("quick-add"))
        emit quickAddRequested(message.value(QStringLiteral("text")).toString());
    else if (command == QLatin1String("open-ics"))
        emit openIcsRequested(message.value(QStringLiteral("path")).toString());
    else
        emit focusRequested();
}
