// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Application.h"

#include "app/AppEnvironment.h"
#include "app/AppState.h"
#include "app/NotificationService.h"
#include "app/PlatformIntegration.h"
#include "app/SingleInstance.h"
#include "app/Translations.h"
#include "cloud/UpdateClient.h"
#include "storage/AccountRepository.h"
#include "storage/LogCategories.h"
#include "storage/PreferencesRepository.h"
#include "ui/IconFont.h"
#include "ui/MainWindow.h"
#include "ui/TrayManager.h"
#include "ui/UpdateDialog.h"

#include <QFont>
#include <QFontDatabase>
#include <QIcon>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLibraryInfo>
#include <QMessageBox>
#include <QStyleFactory>
#include <QSystemTrayIcon>
#include <QTimer>
#include <QTranslator>

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
    // One look on every desktop; the theme supplies the palette.
    setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    loadFonts();
    setFont(QFont(QStringLiteral("IBM Plex Sans"), 11));
}

Application::~Application()
{
    // The window goes before the state hub it shows.
    m_mainWindow.reset();
}

void Application::installTranslators()
{
    const QString language = Translations::resolvedLanguage(true);
    // A language chosen in the settings also decides how dates are written, so that day and
    // month names match the interface; "system" leaves the system's conventions in place.
    if (Translations::resolvedLanguage(false) != QLatin1String("system"))
        QLocale::setDefault(QLocale(language));
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
    // The semibold face of titles and headings; without it they are drawn emboldened.
    QFontDatabase::addApplicationFont(QStringLiteral(":/fonts/IBMPlexSans-SemiBold.ttf"));
    if (icons < 0) {
        qCWarning(lcApp).noquote()
            << "[Fonts] Failed to load Material Icons font — indicators will fall back to a missing-glyph box.";
        return;
    }
    const QStringList families = QFontDatabase::applicationFontFamilies(icons);
    if (!families.isEmpty() && !families.constFirst().isEmpty())
        IconFont::setFamily(families.constFirst());
}

int Application::run()
{
    m_appState = new AppState(this);
    if (!m_appState->initialize()) {
        QMessageBox::critical(nullptr, tr("Database Error"),
                              tr("Failed to initialize the database.\n\nData directory: %1\n\nPlease check file "
                                 "permissions and try again.")
                                  .arg(AppEnvironment::dataDirectory()));
        return 1;
    }

    // Duplicate CalDAV accounts left by older versions are merged once.
    PreferencesRepository *preferences = m_appState->preferences();
    if (!preferences->boolValue(QStringLiteral("sync/accountsDedupedV1"), false)) {
        const int collapsed = m_appState->accounts()->dedupeCalDavAccounts();
        if (collapsed > 0)
            qCInfo(lcCloud).noquote() << "[ConfigSync] Collapsed" << collapsed << "duplicate CalDAV account rows";
        preferences->setBool(QStringLiteral("sync/accountsDedupedV1"), true);
    }

    m_mainWindow = std::make_unique<MainWindow>(m_appState);
    PlatformIntegration::registerIcsFileAssociation();

    const bool startHidden = preferences->boolValue(QStringLiteral("ui/startMinimized"), false)
        || arguments().contains(QStringLiteral("--background"));
    if (!startHidden)
        m_mainWindow->show();

    if (m_singleInstance) {
        MainWindow *window = m_mainWindow.get();
        connect(m_singleInstance, &SingleInstance::focusRequested, window, &MainWindow::focusWindow,
                Qt::QueuedConnection);
        connect(m_singleInstance, &SingleInstance::showTodayRequested, window, &MainWindow::showToday,
                Qt::QueuedConnection);
        connect(m_singleInstance, &SingleInstance::newEventRequested, window, &MainWindow::newEvent,
                Qt::QueuedConnection);
        connect(m_singleInstance, &SingleInstance::quickAddRequested, window, &MainWindow::quickAddFromCommand,
                Qt::QueuedConnection);
        connect(m_singleInstance, &SingleInstance::openIcsRequested, window, &MainWindow::importIcsFromCommand,
                Qt::QueuedConnection);
        // The first instance runs its own command line exactly as it would run a forwarded one,
        // once the event loop has started; a bare start ("focus") needs nothing more.
        const QJsonObject pending = QJsonDocument::fromJson(m_pendingCommand).object();
        if (!m_pendingCommand.isEmpty() && pending.value(QStringLiteral("cmd")).toString() != QLatin1String("focus")) {
            const QByteArray command = m_pendingCommand;
            QPointer<SingleInstance> guard = m_singleInstance;
            QTimer::singleShot(0, this, [guard, command] {
                if (guard)
                    QMetaObject::invokeMethod(
                        guard, [guard, command] { guard->dispatchCommand(command); }, Qt::QueuedConnection);
            });
        }
    }

    m_tray = new TrayManager(m_appState, m_mainWindow.get(), this);
    connect(m_tray, &TrayManager::syncNowRequested, m_mainWindow.get(), &MainWindow::syncNow);
    connect(m_tray, &TrayManager::newEventRequested, m_mainWindow.get(), &MainWindow::newEvent);
    m_tray->initialize();
    m_mainWindow->setTrayIcon(m_tray->trayIcon());
    // With a tray the program lives on when its window closes; the window decides.
    setQuitOnLastWindowClosed(!m_tray->trayIcon()->isVisible());

    m_notifications = new NotificationService(m_appState, m_tray->trayIcon(), this);
    m_mainWindow->setNotificationService(m_notifications);
    connect(m_notifications, &NotificationService::reminderClicked, m_mainWindow.get(), &MainWindow::openEventOnDate);

    QTimer::singleShot(kUpdateCheckDelayMs, this, [this] {
        auto *client
            = new KettUpdate::Client(QStringLiteral("calendar"), QStringLiteral("stable"),
                                     QUrl(QStringLiteral("https://releases.kettlebrook.app/calendar/manifest.json")),
                                     QStringLiteral("1.3.2"), this);
        connect(client, &KettUpdate::Client::updateAvailable, this, [this](const KettUpdate::Artifact &artifact) {
            auto *dialog = new KettUpdate::UpdateDialog(artifact, QStringLiteral("Kettlebrook Calendar"),
                                                        QStringLiteral("1.3.2"), m_mainWindow.get());
            dialog->setAttribute(Qt::WA_DeleteOnClose);
            dialog->show();
        });
        connect(client, &KettUpdate::Client::checkFailed, this,
                [](const QString &reason) { qCWarning(lcCloud).noquote() << "update check failed:" << reason; });
        client->check();
    });

    return exec();
}
