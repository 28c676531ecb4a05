// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Application.h"

#include "app/AppEnvironment.h"
#include "app/SingleInstance.h"
#include "app/Translations.h"
#include "storage/Database.h"
#include "storage/LogCategories.h"

#include <QFont>
#include <QFontDatabase>
#include <QIcon>
#include <QLibraryInfo>
#include <QMainWindow>
#include <QMessageBox>
#include <QTranslator>

namespace {

QString &iconFamily()
{
    static QString family;
    return family;
}

} // namespace

Application::Application(int &argc, char **argv)
    : QApplication(argc, argv)
{
    setOrganizationName(QStringLiteral("Kettlebrook"));
    setOrganizationDomain(QStringLiteral("kettlebrook.app"));
    setApplicationName(QStringLiteral("Calendar"));
    setApplicationVersion(QStringLiteral("1.3.2"));
    setDesktopFileName(AppEnvironment::applicationId());
    installTranslators();
    setWindowIcon(QIcon(QStringLiteral(":/icons/app-icon.png")));
    loadFonts();
    setFont(QFont(QStringLiteral("IBM Plex Sans"), 11));
}

Application::~Application() = default;

QString Application::iconFontFamily()
{
    return iconFamily();
}

void Application::installTranslators()
{
    const QString language = Translations::resolvedLanguage(true);
    if (language != QLatin1String("en")) {
        auto *qtTranslator = new QTranslator(this);
        if (qtTranslator->load(QLocale(language), QStringLiteral("qtbase"), QStringLiteral("_"),
                               QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
            installTranslator(qtTranslator);
            m_qtTranslator = qtTranslator;
        } else {
            delete qtTranslator;
        }
    }
    auto *appTranslator = new QTranslator(this);
    if (appTranslator->load(QStringLiteral(":/i18n/calendar_%1.qm").arg(language))) {
        installTranslator(appTranslator);
        m_appTranslator = appTranslator;
    } else {
        delete appTranslator;
    }
}

void Application::loadFonts()
{
    QFontDatabase::addApplicationFont(QStringLiteral(":/fonts/IBMPlexSans.ttf"));
    QFontDatabase::addApplicationFont(QStringLiteral(":/fonts/IBMPlexSans-Italic.ttf"));
    QFontDatabase::addApplicationFont(QStringLiteral(":/fonts/IBMPlexMono-Medium.ttf"));
    const int icons = QFontDatabase::addApplicationFont(QStringLiteral(":/fonts/MaterialIcons-Regular.otf"));
    if (icons < 0) {
        qCWarning(lcApp).noquote()
            << "[Fonts] Failed to load Material Icons font — indicators will fall back to a missing-glyph box.";
        return;
    }
    const QStringList families = QFontDatabase::applicationFontFamilies(icons);
    if (!families.isEmpty() && !families.constFirst().isEmpty())
        iconFamily() = families.constFirst();
}

int Application::run()
{
    Database database;
    const bool ready = database.open(AppEnvironment::databasePath()) && (database.migrate(), database.isUpToDate());
    if (!ready) {
        QMessageBox::critical(nullptr, tr("Database Error"),
                              tr("Failed to initialize the database.\n\nData directory: %1\n\nPlease check file "
                                 "permissions and try again.")
                                  .arg(AppEnvironment::dataDirectory()));
        return 1;
    }
    QMainWindow window;
    window.setWindowTitle(QStringLiteral("Kettlebrook Calendar"));
    window.resize(1200, 800);
    window.show();
    return exec();
}
