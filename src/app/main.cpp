// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/AppEnvironment.h"
#include "storage/Database.h"

#include <QApplication>
#include <QMainWindow>
#include <QMessageBox>

int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Kettlebrook"));
    QCoreApplication::setApplicationName(QStringLiteral("Calendar"));
    QCoreApplication::setApplicationVersion(QStringLiteral("1.3.2"));

    Database database;
    const bool ready = database.open(AppEnvironment::databasePath()) && (database.migrate(), database.isUpToDate());
    if (!ready) {
        QMessageBox::critical(nullptr, QCoreApplication::translate("Application", "Database Error"),
                              QCoreApplication::translate("Application",
                                                          "Failed to initialize the database.\n\nData directory: "
                                                          "%1\n\nPlease check file permissions and try again.")
                                  .arg(AppEnvironment::dataDirectory()));
        return 1;
    }

    QMainWindow window;
    window.setWindowTitle(QStringLiteral("Kettlebrook Calendar"));
    window.resize(1200, 800);
    window.show();
    return app.exec();
}
