// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/TrayManager.h"

#include <QApplication>
#include <QIcon>
#include <QMenu>
#include <QSystemTrayIcon>
#include <QWidget>

TrayManager::TrayManager(AppState *appState, QWidget *mainWindow, QObject *parent)
    : QObject(parent)
    , m_appState(appState)
    , m_mainWindow(mainWindow)
{ }

TrayManager::~TrayManager()
{
    delete m_menu;
}

void TrayManager::initialize()
{
    m_trayIcon = new QSystemTrayIcon(QApplication::windowIcon(), this);
    m_trayIcon->setToolTip(tr("Kettlebrook Calendar"));

    m_menu = new QMenu;
    m_menu->addAction(tr("Open Calendar"), this, [this] {
        if (m_mainWindow) {
            m_mainWindow->showNormal();
            m_mainWindow->raise();
            m_mainWindow->activateWindow();
        }
    });
    m_menu->addAction(tr("New Event…"), this, &TrayManager::newEventRequested);
    m_menu->addAction(tr("Sync Now"), this, &TrayManager::syncNowRequested);
    m_menu->addSeparator();
    m_menu->addAction(tr("Quit"), qApp, &QCoreApplication::quit);
    m_trayIcon->setContextMenu(m_menu);

    connect(m_trayIcon, &QSystemTrayIcon::activated, this, [this](QSystemTrayIcon::ActivationReason reason) {
        if (reason == QSystemTrayIcon::Trigger)
            toggleWindow();
    });
    if (QSystemTrayIcon::isSystemTrayAvailable())
        m_trayIcon->show();
}

void TrayManager::toggleWindow()
{
    if (!m_mainWindow)
        return;
    if (m_mainWindow->isVisible() && !m_mainWindow->isMinimized()) {
        m_mainWindow->hide();
        return;
    }
    m_mainWindow->showNormal();
    m_mainWindow->raise();
    m_mainWindow->activateWindow();
}
