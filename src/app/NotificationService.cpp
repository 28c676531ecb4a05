// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/NotificationService.h"

#include "app/AppState.h"
#include "storage/Clock.h"
#include "storage/Database.h"
#include "storage/LogCategories.h"
#include "storage/PreferencesRepository.h"
#include "storage/StorageFormat.h"

#include <QCoreApplication>
#include <QSqlError>
#include <QSqlQuery>
#include <QSystemTrayIcon>

NotificationService::NotificationService(AppState *appState, QSystemTrayIcon *trayIcon, QObject *parent)
    : QObject(parent)
    , m_appState(appState)
    , m_trayIcon(trayIcon)
{
    m_timer.setInterval(kPollIntervalMs);
    connect(&m_timer, &QTimer::timeout, this, &NotificationService::poll);
    m_timer.start();
    QTimer::singleShot(kStartupPollDelayMs, this, &NotificationService::poll);
    if (m_trayIcon)
        connect(m_trayIcon, &QSystemTrayIcon::messageClicked, this, &NotificationService::onMessageClicked);
}

QString NotificationService::timeText(const QDateTime &start) const
{
    PreferencesRepository *preferences = m_appState ? m_appState->preferences() : nullptr;
    const bool twentyFour = preferences
        && preferences->value(QStringLiteral("ui/timeFormat")).value_or(QStringLiteral("12")) == QLatin1String("24");
    return start.toLocalTime().time().toString(twentyFour ? QStringLiteral("HH:mm") : QStringLiteral("h:mm AP"));
}

void NotificationService::poll()
{
    if (!m_appState || !m_appState->database())
        return;
    QSqlQuery query(m_appState->database()->connection());
    if (!query.exec(QStringLiteral(
            "SELECT r.id, e.title, e.start_time, e.location, r.minutes_before,        r.trigger_time, e.id FROM "
            "reminders "
            "r JOIN events e ON r.event_id = e.id WHERE r.acknowledged = 0 AND e.deleted_at IS NULL ORDER BY "
            "r.trigger_time ASC"))) {
        qCWarning(lcNotifications).noquote() << "NotificationService poll failed:" << query.lastError().text();
        return;
    }

    const QDateTime now = Clock::nowLocal();
    const QDateTime cutoff = now.addSecs(-kMissedCutoffSecs);
    QStringList shown;
    while (query.next()) {
        const QDateTime trigger = StorageFormat::parseDateTime(query.value(5).toString());
        const QDateTime start = StorageFormat::parseDateTime(query.value(2).toString());
        if (!trigger.isValid() || trigger > now)
            continue;
        // Left unacknowledged on purpose: such rows are read again on every poll.
        if (!start.isValid() || start <= cutoff)
            continue;

        const QString time = timeText(start);
        const int minutes = query.value(4).toInt();
        QString body;
        if (minutes == 0)
            body = QCoreApplication::translate("NotificationService", "Starting now (%1)").arg(time);
        else if (minutes < 60)
            body = QCoreApplication::translate("NotificationService", "In %1 minutes (%2)").arg(minutes).arg(time);
        else if (minutes < 1440)
            body = QCoreApplication::translate("NotificationService", "In %1h (%2)").arg(minutes / 60).arg(time);
        else
            body = QCoreApplication::translate("NotificationService", "Tomorrow at %1").arg(time);
        const QString location = query.value(3).toString();
        if (!location.isEmpty())
            body += QStringLiteral(" · ") + location;
        const QString eventTitle = query.value(1).toString();
        const QString title
            = eventTitle.isEmpty() ? QCoreApplication::translate("NotificationService", "Reminder") : eventTitle;

        m_lastEventId = query.value(6).toString();
        m_lastDate = start.toLocalTime().date();
        if (m_trayIcon && m_trayIcon->isVisible())
            m_trayIcon->showMessage(title, body, QSystemTrayIcon::Information, kBalloonMs);
        emit reminderShown(title, body, m_lastEventId);
        shown.append(query.value(0).toString());
    }
    query.finish();
    if (shown.isEmpty())
        return;

    QStringList placeholders;
    for (qsizetype i = 0; i < shown.size(); ++i)
        placeholders.append(QStringLiteral("?"));
    QSqlQuery ack(m_appState->database()->connection());
    ack.prepare(QStringLiteral("UPDATE reminders SET acknowledged = 1 WHERE id IN (%1)")
                    .arg(placeholders.join(QLatin1Char(','))));
    for (const QString &id : std::as_const(shown))
        ack.addBindValue(id);
    if (!ack.exec())
        qCWarning(lcNotifications).noquote() << "NotificationService ack failed:" << ack.lastError().text();
}

void NotificationService::onMessageClicked()
{
    if (m_lastEventId.isEmpty())
        return;
    emit reminderClicked(m_lastEventId, m_lastDate);
}

void NotificationService::showTestNotification()
{
    m_lastEventId.clear();
    m_lastDate = QDate();
    if (m_trayIcon && m_trayIcon->isVisible()) {
        m_trayIcon->showMessage(QCoreApplication::translate("NotificationService", "Test reminder"),
                                QCoreApplication::translate("NotificationService",
                                                            "If you can see this, your desktop notifications are wired "
                                                            "up correctly. Real reminders look just like this one."),
                                QSystemTrayIcon::Information, kBalloonMs);
    }
}

QString reminderOffsetLabel(int minutes)
{
    if (minutes < 1)
        return QCoreApplication::translate("NotificationService", "At time of event");
    if (minutes < 60)
        return QCoreApplication::translate("NotificationService", "%1 min before").arg(minutes);
    if (minutes < 1440)
        return QCoreApplication::translate("NotificationService", "%1 hour(s) before").arg(minutes / 60);
    return QCoreApplication::translate("NotificationService", "%1 day(s) before").arg(minutes / 1440);
}
