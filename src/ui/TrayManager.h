// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QPointer>

class AppState;
class QMenu;
class QSystemTrayIcon;
class QWidget;

// The tray icon and its menu: open the calendar, a new event, sync now, quit. A click on the icon
// shows or hides the main window.
class TrayManager : public QObject
{
    Q_OBJECT

public:
    TrayManager(AppState *appState, QWidget *mainWindow, QObject *parent = nullptr);
    ~TrayManager() override;

    // Creates the icon; it is shown when the desktop has a system tray.
    void initialize();
    QSystemTrayIcon *trayIcon() const { return m_trayIcon; }

signals:
    void syncNowRequested();
    void newEventRequested();

private:
    void toggleWindow();

    AppState *m_appState;
    QPointer<QWidget> m_mainWindow;
    QSystemTrayIcon *m_trayIcon = nullptr;
    QMenu *m_menu = nullptr;
};
