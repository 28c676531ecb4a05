// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/AppState.h"

#include "app/AppEnvironment.h"
#include "app/UndoStack.h"
#include "cloud/AccountClient.h"
#include "cloud/ConfigSyncService.h"
#include "services/InvitationService.h"
#include "services/WeatherService.h"
#include "storage/AccountRepository.h"
#include "storage/CalendarRepository.h"
#include "storage/Clock.h"
#include "storage/Database.h"
#include "storage/EventRepository.h"
#include "storage/FilterRuleRepository.h"
#include "storage/LogCategories.h"
#include "storage/PreferencesRepository.h"
#include "storage/SyncQueueRepository.h"
#include "storage/TaskRepository.h"
#include "storage/TemplateRepository.h"
#include "storage/ViewRepository.h"
#include "sync/ConflictResolutionService.h"
#include "ui/ThemeManager.h"

#include <QLocale>

const QString AppState::kLocalAccountId = QStringLiteral("personal-local-account");
const QString AppState::kLocalCalendarId = QStringLiteral("kettlebrook-personal-default");

namespace {

QString normalizedViewMode(const QString &mode)
{
    // Agenda and list are panes of their own, never a mode of the main view.
    if (mode == QLatin1String("agenda") || mode == QLatin1String("list"))
        return QStringLiteral("week");
    return mode;
}

// Territories whose calendars start the week on Sunday.
bool startsWeekOnSunday(QLocale::Territory territory)
{
    static const QSet<QLocale::Territory> sundayFirst = {
        QLocale::AntiguaAndBarbuda,
        QLocale::AmericanSamoa,
        QLocale::Bangladesh,
        QLocale::Brazil,
        QLocale::Bahamas,
        QLocale::Bhutan,
        QLocale::Botswana,
        QLocale::Belize,
        QLocale::Canada,
        QLocale::Colombia,
        QLocale::Dominica,
        QLocale::DominicanRepublic,
        QLocale::Ethiopia,
        QLocale::Guatemala,
        QLocale::Guam,
        QLocale::HongKong,
        QLocale::Honduras,
        QLocale::Indonesia,
        QLocale::Israel,
        QLocale::India,
        QLocale::Jamaica,
        QLocale::Japan,
        QLocale::Kenya,
        QLocale::Cambodia,
        QLocale::SouthKorea,
        QLocale::Laos,
        QLocale::MarshallIslands,
        QLocale::Myanmar,
        QLocale::Macao,
        QLocale::Malta,
        QLocale::Mexico,
        QLocale::Mozambique,
        QLocale::Nicaragua,
        QLocale::Nepal,
        QLocale::Panama,
        QLocale::Peru,
        QLocale::Philippines,
        QLocale::Pakistan,
        QLocale::PuertoRico,
        QLocale::Portugal,
        QLocale::Paraguay,
        QLocale::SaudiArabia,
        QLocale::Singapore,
        QLocale::ElSalvador,
        QLocale::Thailand,
        QLocale::TrinidadAndTobago,
        QLocale::Taiwan,
        QLocale::UnitedStatesOutlyingIslands,
        QLocale::UnitedStates,
        QLocale::Venezuela,
        QLocale::UnitedStatesVirginIslands,
        QLocale::Samoa,
        QLocale::Yemen,
        QLocale::SouthAfrica,
        QLocale::Zimbabwe,
    };
    return sundayFirst.contains(territory);
}

} // namespace

AppState::AppState(QObject *parent)
    : QObject(parent)
{ }

AppState::~AppState()
{
    // The repositories and services hold the connection; they go before the database closes.
    const QList<QObject *> owned = children();
    qDeleteAll(owned);
}

bool AppState::initialize()
{
    return initialize(AppEnvironment::databasePath());
}

bool AppState::initialize(const QString &databasePath)
{
    m_database = std::make_unique<Database>();
    qCInfo(lcApp).noquote() << "Opening database at:" << databasePath;
    if (!m_database->open(databasePath))
        return false;
    m_database->migrate();
    if (!m_database->isUpToDate())
        return false;

    Database *db = m_database.get();
    m_preferences = new PreferencesRepository(db, this);
    connect(m_preferences, &PreferencesRepository::changed, this, [this](const QString &key) {
        if (key == QLatin1String("ui/weekStartDay"))
            emit firstDayOfWeekChanged(firstDayOfWeek());
    });
    m_accounts = new AccountRepository(db, this);
    m_calendars = new CalendarRepository(db, this);
    m_events = new EventRepository(db, this);
    m_tasks = new TaskRepository(db, this);
    m_views = new ViewRepository(db, this);
    m_filterRules = new FilterRuleRepository(db, this);
    m_templates = new TemplateRepository(db, this);
    m_theme = new ThemeManager(m_preferences, this);
    m_theme->initialize();
    m_undoStack = new UndoStack(this);
    m_weather = new Weather::Service(this);
    m_syncQueue = new SyncQueueRepository(db, this);
    m_conflicts = new Sync::ConflictResolutionService(this);

    const Kettlebrook::ServiceEndpoints endpoints = Kettlebrook::ServiceEndpoints::fromEnvironment();
    m_accountClient = new Kettlebrook::AccountClient(endpoints, QStringLiteral("Kettlebrook Calendar"), this);
    m_accountClient->setCalendarServiceUrl(endpoints.syncApiUrl);
    m_configSync = new Kettlebrook::ConfigSyncService(m_accountClient, this);
    connect(m_filterRules, &FilterRuleRepository::filterRulesChanged, m_configSync,
            &Kettlebrook::ConfigSyncService::push);
    m_invitations = new Invitations::Service(this);

    connect(m_accountClient, &Kettlebrook::AccountClient::authStateChanged, this,
            [this](Kettlebrook::AccountClient::AuthState state) {
                qCInfo(lcApp).noquote() << "[AppState] authStateChanged →" << QVariant::fromValue(state).toString();
                if (state == Kettlebrook::AccountClient::AuthState::SignedIn)
                    onAuthenticated();
            });
    const bool authenticated = m_accountClient->restoreSession();
    qCInfo(lcApp).noquote() << "[AppState] post-initialize isAuthenticated=" << authenticated;
    if (authenticated)
        onAuthenticated();
    else
        seedLocalData();

    const QString storedView
        = m_preferences->value(QStringLiteral("ui/activeViewId")).value_or(QStringLiteral("all-calendars"));
    const std::optional<CalendarView> view = m_views->getById(storedView);
    if (view && !view->deleted_at) {
        m_activeViewId = storedView;
    } else {
        const QList<CalendarView> all = m_views->getAll();
        m_activeViewId = all.isEmpty() ? QString() : all.constFirst().id;
    }
    m_viewDate = Clock::nowLocal().date();
    m_viewMode
        = normalizedViewMode(m_preferences->value(QStringLiteral("ui/viewMode")).value_or(QStringLiteral("week")));
    m_hourHeight
        = qBound(kMinHourHeight, m_preferences->intValue(QStringLiteral("ui/timelineHourHeight"), 56), kMaxHourHeight);
    m_weekHorizon
        = qBound(kMinWeekHorizon, m_preferences->intValue(QStringLiteral("ui/weekHorizon"), 7), kMaxWeekHorizon);
    emit databaseReady();
    return true;
}

void AppState::onAuthenticated()
{
    qCInfo(lcApp).noquote() << "[AppState] onAuthenticated firing — kicking ConfigSync";
    m_configSync->start();
}

void AppState::seedLocalData()
{
    const bool haveAccount = m_accounts->getById(kLocalAccountId).has_value();
    const bool haveCalendar = m_calendars->getById(kLocalCalendarId).has_value();
    if (haveAccount && haveCalendar)
        return;
    // Calendars of a Kettlebrook account stand in for the on-device one.
    for (const Calendar &calendar : m_calendars->getAll()) {
        const std::optional<Account> account = m_accounts->getById(calendar.account_id);
        if (account && account->type == QLatin1String("kettlebrook"))
            return;
    }
    const QDateTime now = Clock::nowUtc();
    if (!haveAccount) {
        Account account;
        account.id = kLocalAccountId;
        account.name = QStringLiteral("On This Device");
        account.type = QStringLiteral("kettlebrook");
        account.created_at = now;
        account.updated_at = now;
        if (!m_accounts->insert(account)) {
            qCWarning(lcApp).noquote() << "Failed to seed local account";
            return;
        }
    }
    if (!haveCalendar) {
        Calendar calendar;
        calendar.id = kLocalCalendarId;
        calendar.account_id = kLocalAccountId;
        calendar.name = QStringLiteral("Personal");
        calendar.color = QStringLiteral("#4285F4");
        calendar.url = QStringLiteral("local://calendar/") + kLocalCalendarId;
        calendar.created_at = now;
        calendar.updated_at = now;
        if (!m_calendars->insert(calendar))
            qCWarning(lcApp).noquote() << "Failed to seed Personal calendar";
    }
}

void AppState::writePreference(const QString &key, const QString &value)
{
    if (m_preferences)
        m_preferences->setValue(key, value);
}

void AppState::setActiveViewId(const QString &id)
{
    if (id == m_activeViewId)
        return;
    m_activeViewId = id;
    writePreference(QStringLiteral("ui/activeViewId"), id);
    emit activeViewChanged(id);
}

void AppState::setViewDate(const QDate &date)
{
    if (!date.isValid() || date == m_viewDate)
        return;
    recordHistory();
    m_viewDate = date;
    writePreference(QStringLiteral("ui/viewDate"), date.toString(Qt::ISODate));
    emit currentDateChanged(date);
}

void AppState::setViewMode(const QString &mode)
{
    const QString normalized = normalizedViewMode(mode);
    if (normalized == m_viewMode)
        return;
    recordHistory();
    m_viewMode = normalized;
    writePreference(QStringLiteral("ui/viewMode"), normalized);
    emit viewModeChanged(normalized);
}

void AppState::setHourHeight(int pixels)
{
    const int clamped = qBound(kMinHourHeight, pixels, kMaxHourHeight);
    if (clamped == m_hourHeight)
        return;
    m_hourHeight = clamped;
    writePreference(QStringLiteral("ui/timelineHourHeight"), QString::number(clamped));
    emit hourHeightChanged(clamped);
}

void AppState::setWeekHorizon(int days)
{
    const int clamped = qBound(kMinWeekHorizon, days, kMaxWeekHorizon);
    if (clamped == m_weekHorizon)
        return;
    recordHistory();
    m_weekHorizon = clamped;
    writePreference(QStringLiteral("ui/weekHorizon"), QString::number(clamped));
    emit weekHorizonChanged(clamped);
}

QString AppState::density(const QString &scope) const
{
    if (!m_preferences)
        return QStringLiteral("comfortable");
    return m_preferences->value(QStringLiteral("ui/density/") + scope).value_or(QStringLiteral("comfortable"));
}

void AppState::setDensity(const QString &scope, const QString &value)
{
    const QString normalized = value == QLatin1String("compact") ? value : QStringLiteral("comfortable");
    if (!m_preferences || density(scope) == normalized)
        return;
    m_preferences->setValue(QStringLiteral("ui/density/") + scope, normalized);
    emit densityChanged(normalized);
}

Qt::DayOfWeek AppState::firstDayOfWeek() const
{
    const int stored = m_preferences ? m_preferences->intValue(QStringLiteral("ui/weekStartDay"), 0) : 0;
    if (stored >= 1 && stored <= 7)
        return Qt::DayOfWeek(stored);
    return startsWeekOnSunday(QLocale::system().territory()) ? Qt::Sunday : Qt::Monday;
}

AppState::Snapshot AppState::currentSnapshot() const
{
    return Snapshot{m_viewMode, m_viewDate, m_weekHorizon};
}

void AppState::recordHistory()
{
    if (m_restoringHistory)
        return;
    m_backHistory.append(currentSnapshot());
    m_forwardHistory.clear();
}

void AppState::applySnapshot(const Snapshot &snapshot)
{
    m_restoringHistory = true;
    if (snapshot.viewMode != m_viewMode)
        setViewMode(snapshot.viewMode);
    if (snapshot.viewDate.isValid() && snapshot.viewDate != m_viewDate)
        setViewDate(snapshot.viewDate);
    if (snapshot.weekHorizon != m_weekHorizon)
        setWeekHorizon(snapshot.weekHorizon);
    m_restoringHistory = false;
}

void AppState::goBack()
{
    if (m_backHistory.isEmpty())
        return;
    const Snapshot target = m_backHistory.takeLast();
    m_forwardHistory.append(currentSnapshot());
    applySnapshot(target);
}

void AppState::goForward()
{
    if (m_forwardHistory.isEmpty())
        return;
    const Snapshot target = m_forwardHistory.takeLast();
    m_backHistory.append(currentSnapshot());
    applySnapshot(target);
}

void AppState::setSelectedEventId(const QString &id)
{
    if (id == m_selectedEventId)
        return;
    m_selectedEventId = id;
    emit selectedEventChanged(id);
}

void AppState::setFilterHiddenCount(int count)
{
    if (count == m_filterHiddenCount)
        return;
    m_filterHiddenCount = count;
    emit filterHiddenCountChanged(count);
}

void AppState::setSyncBusy(bool busy)
{
    if (busy == m_syncBusy)
        return;
    m_syncBusy = busy;
    emit syncBusyChanged(busy);
}

void AppState::setLastSyncErrored(bool errored)
{
    if (errored == m_lastSyncErrored)
        return;
    m_lastSyncErrored = errored;
    emit lastSyncErroredChanged(errored);
}

QSet<QString> AppState::remoteCalendarIds() const
{
    static const QSet<QString> remoteTypes
        = {QStringLiteral("caldav"), QStringLiteral("icloud"), QStringLiteral("zoho"), QStringLiteral("google"),
           QStringLiteral("microsoft")};
    QSet<QString> remoteAccounts;
    for (const Account &account : m_accounts->getAll()) {
        if (remoteTypes.contains(account.type))
            remoteAccounts.insert(account.id);
    }
    QSet<QString> ids;
    for (const Calendar &calendar : m_calendars->getAll()) {
        if (remoteAccounts.contains(calendar.account_id))
            ids.insert(calendar.id);
    }
    return ids;
}
