// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QTimer>

class AppState;
class QSystemTrayIcon;

// Turns due event reminders into tray balloons. Every 30 seconds (and once two seconds after
// start, for reminders that fell due while the program was closed) it reads the unacknowledged
// reminders of live events, shows one balloon per due reminder in trigger-time order, and
// acknowledges all of them in one statement. The database is the whole schedule: no queue, no
// snooze. A reminder of an event that started 30 minutes ago or earlier is never shown and stays
// unacknowledged.
class NotificationService : public QObject
{
    Q_OBJECT

public:
    static constexpr int kPollIntervalMs = 30000;
    static constexpr int kStartupPollDelayMs = 2000;
    static constexpr int kBalloonMs = 15000;
    static constexpr int kMissedCutoffSecs = 1800;

    NotificationService(AppState *appState, QSystemTrayIcon *trayIcon, QObject *parent = nullptr);

    // The test balloon of the settings; it does not touch the database.
    void showTestNotification();

signals:
    // The balloon of the last shown reminder was clicked: its event and local start date.
    void reminderClicked(const QString &eventId, const QDate &date);
    // A due reminder was consumed, with the title and text of its balloon (shown when the tray
    // icon is visible).
    void reminderShown(const QString &title, const QString &body, const QString &eventId);

private slots:
    void poll();

private:
    void onMessageClicked();
    QString timeText(const QDateTime &start) const;

    friend class TestNotificationService;

    AppState *m_appState;
    QPointer<QSystemTrayIcon> m_trayIcon;
    QTimer m_timer;
    QString m_lastEventId;
    QDate m_lastDate;
};

// The lead time of a reminder for the event editor: "At time of event", "15 min before",
// "2 hour(s) before", "1 day(s) before".
QString reminderOffsetLabel(int minutes);
