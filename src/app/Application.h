// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QApplication>
#include <QByteArray>
#include <QPointer>

#include "app/SingleInstance.h"

class QTranslator;

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

    // The family name of the icon font, used wherever the interface draws icon glyphs.
    static QString iconFontFamily();

private:
    void installTranslators();
    void loadFonts();

    QPointer<SingleInstance> m_singleInstance;
    QByteArray m_pendingCommand;
    QTranslator *m_qtTranslator = nullptr;
    QTranslator *m_appTranslator = nullptr;
};
