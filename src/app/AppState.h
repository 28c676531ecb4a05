// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDate>
#include <QList>
#include <QObject>
#include <QSet>
#include <QString>

#include <memory>

class AccountRepository;
class CalendarRepository;
class Database;
class EventRepository;
class FilterRuleRepository;
class PreferencesRepository;
class SyncQueueRepository;
class TaskRepository;
class TemplateRepository;
class ThemeManager;
class UndoStack;
class ViewRepository;
namespace Invitations {
class Service;
}
namespace Kettlebrook {
class AccountClient;
class ConfigSyncService;
} // namespace Kettlebrook
namespace Sync {
class ConflictResolutionService;
}
namespace Weather {
class Service;
}

// The application-wide hub: opens the database, owns every repository and long-lived service,
// and holds the view state all views share (active view, date on screen, mode, zoom, horizon,
// density, selection, sync status). Each setter normalises, compares, stores, persists under a
// "ui/" key and emits one signal; an unchanged value emits nothing.
class AppState : public QObject
{
    Q_OBJECT

public:
    static constexpr int kMinHourHeight = 56;
    static constexpr int kMaxHourHeight = 200;
    static constexpr int kMinWeekHorizon = 2;
    static constexpr int kMaxWeekHorizon = 21;
    static const QString kLocalAccountId; // "personal-local-account"
    static const QString kLocalCalendarId; // "kettlebrook-personal-default"

    explicit AppState(QObject *parent = nullptr);
    ~AppState() override;

    // Opens and migrates the database at the program's database path (or the given one), creates
    // the repositories and services, seeds the on-device calendar when signed out, and restores
    // the view state. False when the database cannot be opened or migrated.
    bool initialize();
    bool initialize(const QString &databasePath);

    Database *database() const { return m_database.get(); }
    PreferencesRepository *preferences() const { return m_preferences; }
    AccountRepository *accounts() const { return m_accounts; }
    CalendarRepository *calendars() const { return m_calendars; }
    EventRepository *events() const { return m_events; }
    TaskRepository *tasks() const { return m_tasks; }
    ViewRepository *views() const { return m_views; }
    FilterRuleRepository *filterRules() const { return m_filterRules; }
    TemplateRepository *templates() const { return m_templates; }
    ThemeManager *theme() const { return m_theme; }
    UndoStack *undoStack() const { return m_undoStack; }
    Weather::Service *weather() const { return m_weather; }
    SyncQueueRepository *syncQueue() const { return m_syncQueue; }
    Sync::ConflictResolutionService *conflicts() const { return m_conflicts; }
    Kettlebrook::AccountClient *accountClient() const { return m_accountClient; }
    Kettlebrook::ConfigSyncService *configSync() const { return m_configSync; }
    Invitations::Service *invitations() const { return m_invitations; }

    QString activeViewId() const { return m_activeViewId; }
    void setActiveViewId(const QString &id);
    QDate viewDate() const { return m_viewDate; }
    void setViewDate(const QDate &date); // an invalid date is ignored
    QString viewMode() const { return m_viewMode; }
    void setViewMode(const QString &mode); // "agenda" and "list" become "week"
    int hourHeight() const { return m_hourHeight; }
    void setHourHeight(int pixels); // clamped to 56..200
    int weekHorizon() const { return m_weekHorizon; }
    void setWeekHorizon(int days); // clamped to 2..21
    QString density(const QString &scope) const; // "compact" or "comfortable"
    void setDensity(const QString &scope, const QString &value);
    // "ui/weekStartDay" when it is 1..7, else Sunday in Sunday-first countries, else Monday.
    Qt::DayOfWeek firstDayOfWeek() const;

    // Navigation history of (mode, date, horizon); in memory only, unbounded.
    bool canGoBack() const { return !m_backHistory.isEmpty(); }
    bool canGoForward() const { return !m_forwardHistory.isEmpty(); }
    void goBack();
    void goForward();

    QString selectedEventId() const { return m_selectedEventId; }
    void setSelectedEventId(const QString &id);
    int filterHiddenCount() const { return m_filterHiddenCount; }
    void setFilterHiddenCount(int count);
    bool syncBusy() const { return m_syncBusy; }
    void setSyncBusy(bool busy);
    bool lastSyncErrored() const { return m_lastSyncErrored; }
    void setLastSyncErrored(bool errored);
    void requestSync() { emit syncNowRequested(); }

    // Calendars whose account is of a remote provider (caldav, icloud, zoho, google, microsoft).
    QSet<QString> remoteCalendarIds() const;

signals:
    void databaseReady();
    void activeViewChanged(const QString &viewId);
    void selectedEventChanged(const QString &eventId);
    void currentDateChanged(const QDate &date);
    void viewModeChanged(const QString &mode);
    void hourHeightChanged(int pixels);
    void weekHorizonChanged(int days);
    void filterHiddenCountChanged(int count);
    void densityChanged(const QString &density);
    void firstDayOfWeekChanged(Qt::DayOfWeek day);
    void syncNowRequested();
    void syncBusyChanged(bool busy);
    void lastSyncErroredChanged(bool errored);

private:
    struct Snapshot
    {
        QString viewMode;
        QDate viewDate;
        int weekHorizon = 7;
    };

    void seedLocalData();
    void onAuthenticated();
    void recordHistory();
    Snapshot currentSnapshot() const;
    void applySnapshot(const Snapshot &snapshot);
    void writePreference(const QString &key, const QString &value);

    std::unique_ptr<Database> m_database;
    PreferencesRepository *m_preferences = nullptr;
    AccountRepository *m_accounts = nullptr;
    CalendarRepository *m_calendars = nullptr;
    EventRepository *m_events = nullptr;
    TaskRepository *m_tasks = nullptr;
    ViewRepository *m_views = nullptr;
    FilterRuleRepository *m_filterRules = nullptr;
    TemplateRepository *m_templates = nullptr;
    ThemeManager *m_theme = nullptr;
    UndoStack *m_undoStack = nullptr;
    Weather::Service *m_weather = nullptr;
    SyncQueueRepository *m_syncQueue = nullptr;
    Sync::ConflictResolutionService *m_conflicts = nullptr;
    Kettlebrook::AccountClient *m_accountClient = nullptr;
    Kettlebrook::ConfigSyncService *m_configSync = nullptr;
    Invitations::Service *m_invitations = nullptr;

    QString m_activeViewId;
    QDate m_viewDate;
    QString m_viewMode = QStringLiteral("week");
    int m_hourHeight = kMinHourHeight;
    int m_weekHorizon = 7;
    QList<Snapshot> m_backHistory;
    QList<Snapshot> m_forwardHistory;
    bool m_restoringHistory = false;
    QString m_selectedEventId;
    int m_filterHiddenCount = 0;
    bool m_syncBusy = false;
    bool m_lastSyncErrored = false;
};
