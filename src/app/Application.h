// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>
#include <QByteArray>
#include <QPointer>

#include <memory>

#include "app/SingleInstance.h"

class AppState;
class MainWindow;
class NotificationService;
class QTranslator;
class TrayManager;

// The desktop program: owns the long-lived top-level objects and starts them in a fixed order.
class Application : public QApplication
{
    Q_OBJECT

public:
    Application(int &argc, char **argv);
    ~Application() override;

    void setSingleInstance(SingleInstance *guard) { m_singleInstance = guard; }
    // This process's own command line as a command message; dispatched once the window exists.
    void setPendingCommand(const QByteArray &command) { m_pendingCommand = command; }

    // Starts the program and runs the event loop; returns the exit status.
    int run();

private:
    void installTranslators();
    void loadFonts();

    static constexpr int kUpdateCheckDelayMs = 1500;

    AppState *m_appState = nullptr;
    std::unique_ptr<MainWindow> m_mainWindow;
    TrayManager *m_tray = nullptr;
    NotificationService *m_notifications = nullptr;
    QPointer<SingleInstance> m_singleInstance;
    QByteArray m_pendingCommand;
    QTranslator *m_qtTranslator = nullptr;
    QTranslator *m_appTranslator = nullptr;
};
