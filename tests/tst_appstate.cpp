// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/AppState.h"
#include "storage/AccountRepository.h"
#include "storage/CalendarRepository.h"
#include "storage/Clock.h"
#include "storage/Database.h"
#include "storage/PreferencesRepository.h"
#include "storage/ViewRepository.h"

#include <QFile>
#include <QSignalSpy>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QTest>
#include <QTimeZone>

namespace {

// Stores preferences in a database before the state hub first reads it.
void storePreferences(const QString &path, const QList<std::pair<QString, QString>> &values)
{
    Database database;
    QVERIFY(database.open(path));
    database.migrate();
    PreferencesRepository preferences(&database);
    for (const auto &[key, value] : values)
        QVERIFY(preferences.setValue(key, value));
}

int count(AppState &state, const QString &sql)
{
    QSqlQuery query(state.database()->connection());
    return query.exec(sql) && query.next() ? query.value(0).toInt() : -1;
}

} // namespace

class TestAppState : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void storedValuesAreClamped_data();
    void storedValuesAreClamped();
    void settersEmitOncePerRealChange();
    void agendaAndListAreWeek();
    void missingActiveViewFallsBack();
    void localCalendarIsSeededOnce();
    void seedingSkippedWhenKettlebrookCalendarsExist();
    void firstDayOfWeek_data();
    void firstDayOfWeek();
    void navigationHistory();
    void density();
    void remoteCalendarIds();
    void failsOnAFileThatIsNotADatabase();

private:
    std::unique_ptr<QTemporaryDir> m_dir;
    QString m_path;
};

void TestAppState::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    m_path = m_dir->filePath(QStringLiteral("calendar.db"));
    Clock::setFixedNow(QDateTime(QDate(2024, 1, 10), QTime(9, 0), QTimeZone("Europe/Berlin")));
}

void TestAppState::cleanup()
{
    Clock::setFixedNow(QDateTime());
}

void TestAppState::storedValuesAreClamped_data()
{
    QTest::addColumn<QString>("hourHeight");
    QTest::addColumn<QString>("horizon");
    QTest::addColumn<QString>("mode");
    QTest::addColumn<int>("expectedHeight");
    QTest::addColumn<int>("expectedHorizon");
    QTest::addColumn<QString>("expectedMode");
    const auto row = [](const char *name, const char *height, const char *horizon, const char *mode, int expectedHeight,
                        int expectedHorizon, const char *expectedMode) {
        QTest::newRow(name) << QString::fromLatin1(height) << QString::fromLatin1(horizon) << QString::fromLatin1(mode)
                            << expectedHeight << expectedHorizon << QString::fromLatin1(expectedMode);
    };
    row("too small", "30", "1", "day", 56, 2, "day");
    row("too large", "500", "30", "month", 200, 21, "month");
    row("not numbers", "tall", "", "agenda", 56, 7, "week");
    row("list mode", "80", "14", "list", 80, 14, "week");
}

void TestAppState::storedValuesAreClamped()
{
    QFETCH(QString, hourHeight);
    QFETCH(QString, horizon);
    QFETCH(QString, mode);
    storePreferences(m_path,
                     {{"ui/timelineHourHeight", hourHeight},
                      {"ui/weekHorizon", horizon},
                      {"ui/viewMode", mode},
                      {"ui/viewDate", "2020-02-02"}});
    AppState state;
    QSignalSpy ready(&state, &AppState::databaseReady);
    QVERIFY(state.initialize(m_path));
    QCOMPARE(ready.count(), 1);
    QTEST(state.hourHeight(), "expectedHeight");
    QTEST(state.weekHorizon(), "expectedHorizon");
    QTEST(state.viewMode(), "expectedMode");
    // The start date is always today, whatever was stored.
    QCOMPARE(state.viewDate(), QDate(2024, 1, 10));
    QVERIFY(!state.canGoBack());
}

void TestAppState::settersEmitOncePerRealChange()
{
    AppState state;
    QVERIFY(state.initialize(m_path));
    QSignalSpy height(&state, &AppState::hourHeightChanged);
    state.setHourHeight(57);
    state.setHourHeight(57);
    QCOMPARE(height.count(), 1);
    state.setHourHeight(1000);
    QCOMPARE(height.last().first().toInt(), 200);
    state.setHourHeight(250); // clamps to the value it already has
    QCOMPARE(height.count(), 2);
    QCOMPARE(state.preferences()->value(QStringLiteral("ui/timelineHourHeight")), std::optional<QString>("200"));

    QSignalSpy horizon(&state, &AppState::weekHorizonChanged);
    state.setWeekHorizon(1);
    state.setWeekHorizon(2);
    QCOMPARE(horizon.count(), 1);
    QCOMPARE(state.weekHorizon(), 2);

    QSignalSpy date(&state, &AppState::currentDateChanged);
    state.setViewDate(QDate());
    state.setViewDate(QDate(2024, 1, 10));
    QCOMPARE(date.count(), 0);
    state.setViewDate(QDate(2024, 3, 1));
    QCOMPARE(date.count(), 1);
    QCOMPARE(state.preferences()->value(QStringLiteral("ui/viewDate")), std::optional<QString>("2024-03-01"));

    QSignalSpy view(&state, &AppState::activeViewChanged);
    state.setActiveViewId(QStringLiteral("all-calendars"));
    QCOMPARE(view.count(), 0);
    state.setActiveViewId(QStringLiteral("work"));
    QCOMPARE(view.count(), 1);
    QCOMPARE(state.preferences()->value(QStringLiteral("ui/activeViewId")), std::optional<QString>("work"));

    QSignalSpy selected(&state, &AppState::selectedEventChanged);
    QSignalSpy hidden(&state, &AppState::filterHiddenCountChanged);
    QSignalSpy busy(&state, &AppState::syncBusyChanged);
    QSignalSpy errored(&state, &AppState::lastSyncErroredChanged);
    for (int i = 0; i < 2; ++i) {
        state.setSelectedEventId(QStringLiteral("e1"));
        state.setFilterHiddenCount(3);
        state.setSyncBusy(true);
        state.setLastSyncErrored(true);
    }
    QCOMPARE(selected.count() + hidden.count() + busy.count() + errored.count(), 4);
}

void TestAppState::agendaAndListAreWeek()
{
    AppState state;
    QVERIFY(state.initialize(m_path));
    QCOMPARE(state.viewMode(), QStringLiteral("week"));
    QSignalSpy mode(&state, &AppState::viewModeChanged);
    state.setViewMode(QStringLiteral("agenda"));
    state.setViewMode(QStringLiteral("list"));
    QCOMPARE(mode.count(), 0);
    QVERIFY(!state.canGoBack());
    state.setViewMode(QStringLiteral("month"));
    QCOMPARE(mode.count(), 1);
    QVERIFY(state.canGoBack());
}

void TestAppState::missingActiveViewFallsBack()
{
    storePreferences(m_path, {{"ui/activeViewId", "gone"}});
    AppState state;
    QVERIFY(state.initialize(m_path));
    QCOMPARE(state.activeViewId(), QStringLiteral("all-calendars"));
    // The fallback is not written back.
    QCOMPARE(state.preferences()->value(QStringLiteral("ui/activeViewId")), std::optional<QString>("gone"));
}

void TestAppState::localCalendarIsSeededOnce()
{
    {
        AppState state;
        QVERIFY(state.initialize(m_path));
        const std::optional<Account> account = state.accounts()->getById(AppState::kLocalAccountId);
        QVERIFY(account);
        QCOMPARE(account->name, QStringLiteral("On This Device"));
        QCOMPARE(account->type, QStringLiteral("kettlebrook"));
        const std::optional<Calendar> calendar = state.calendars()->getById(AppState::kLocalCalendarId);
        QVERIFY(calendar);
        QCOMPARE(calendar->name, QStringLiteral("Personal"));
        QCOMPARE(calendar->color, QStringLiteral("#4285F4"));
        QCOMPARE(calendar->url, QStringLiteral("local://calendar/kettlebrook-personal-default"));
        QCOMPARE(calendar->account_id, AppState::kLocalAccountId);
        QCOMPARE(count(state, QStringLiteral("SELECT COUNT(*) FROM calendars")), 1);
    }
    AppState again;
    QVERIFY(again.initialize(m_path));
    QCOMPARE(count(again, QStringLiteral("SELECT COUNT(*) FROM accounts")), 1);
    QCOMPARE(count(again, QStringLiteral("SELECT COUNT(*) FROM calendars")), 1);
}

void TestAppState::seedingSkippedWhenKettlebrookCalendarsExist()
{
    {
        Database database;
        QVERIFY(database.open(m_path));
        database.migrate();
        AccountRepository accounts(&database);
        CalendarRepository calendars(&database);
        Account cloud;
        cloud.id = QStringLiteral("cloud");
        cloud.name = QStringLiteral("Kettlebrook");
        cloud.type = QStringLiteral("kettlebrook");
        QVERIFY(accounts.insert(cloud));
        Calendar shared;
        shared.id = QStringLiteral("cloud-home");
        shared.account_id = cloud.id;
        shared.url = QStringLiteral("cloud-home");
        shared.name = QStringLiteral("Home");
        QVERIFY(calendars.insert(shared));
    }
    AppState state;
    QVERIFY(state.initialize(m_path));
    QVERIFY(!state.accounts()->getById(AppState::kLocalAccountId));
    QVERIFY(!state.calendars()->getById(AppState::kLocalCalendarId));
}

void TestAppState::firstDayOfWeek_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<bool>("followsLocale");
    QTest::addColumn<int>("expected");
    QTest::newRow("Monday") << "1" << false << 1;
    QTest::newRow("Sunday") << "7" << false << 7;
    QTest::newRow("zero") << "0" << true << 0;
    QTest::newRow("text") << "sunday" << true << 0;
}

void TestAppState::firstDayOfWeek()
{
    QFETCH(QString, stored);
    QFETCH(bool, followsLocale);
    QFETCH(int, expected);
    AppState state;
    QVERIFY(state.initialize(m_path));
    state.preferences()->remove(QStringLiteral("ui/weekStartDay"));
    const Qt::DayOfWeek localeDefault = state.firstDayOfWeek();
    QVERIFY(localeDefault == Qt::Monday || localeDefault == Qt::Sunday);

    QSignalSpy changed(&state, &AppState::firstDayOfWeekChanged);
    state.preferences()->setValue(QStringLiteral("ui/weekStartDay"), stored);
    QCOMPARE(changed.count(), 1);
    const Qt::DayOfWeek day = state.firstDayOfWeek();
    QCOMPARE(changed.first().first().value<Qt::DayOfWeek>(), day);
    if (followsLocale)
        QCOMPARE(day, localeDefault);
    else
        QCOMPARE(int(day), expected);
}

void TestAppState::navigationHistory()
{
    AppState state;
    QVERIFY(state.initialize(m_path));
    const QDate today(2024, 1, 10);
    state.setViewDate(QDate(2024, 1, 17));
    state.setViewMode(QStringLiteral("month"));
    state.setWeekHorizon(3);
    state.setHourHeight(120); // zoom is not navigation
    QVERIFY(state.canGoBack());

    QSignalSpy date(&state, &AppState::currentDateChanged);
    QSignalSpy mode(&state, &AppState::viewModeChanged);
    state.goBack();
    QCOMPARE(state.weekHorizon(), 7);
    QCOMPARE(state.viewMode(), QStringLiteral("month"));
    state.goBack();
    QCOMPARE(state.viewMode(), QStringLiteral("week"));
    QCOMPARE(mode.count(), 1);
    state.goBack();
    QCOMPARE(state.viewDate(), today);
    QCOMPARE(date.count(), 1);
    QVERIFY(!state.canGoBack());
    state.goBack(); // nothing left
    QCOMPARE(state.viewDate(), today);

    state.goForward();
    QCOMPARE(state.viewDate(), QDate(2024, 1, 17));
    state.goForward();
    state.goForward();
    QCOMPARE(state.viewMode(), QStringLiteral("month"));
    QCOMPARE(state.weekHorizon(), 3);
    QVERIFY(!state.canGoForward());
    // Restores persisted like any change.
    QCOMPARE(state.preferences()->value(QStringLiteral("ui/weekHorizon")), std::optional<QString>("3"));

    // A new move clears the forward list.
    state.goBack();
    QVERIFY(state.canGoForward());
    state.setViewDate(QDate(2024, 6, 1));
    QVERIFY(!state.canGoForward());
    state.goBack();
    QCOMPARE(state.viewDate(), QDate(2024, 1, 17));
    QCOMPARE(state.weekHorizon(), 7);
}

void TestAppState::density()
{
    AppState state;
    QVERIFY(state.initialize(m_path));
    QCOMPARE(state.density(QStringLiteral("tasks")), QStringLiteral("comfortable"));
    QSignalSpy changed(&state, &AppState::densityChanged);
    state.setDensity(QStringLiteral("tasks"), QStringLiteral("compact"));
    state.setDensity(QStringLiteral("tasks"), QStringLiteral("compact"));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(state.density(QStringLiteral("tasks")), QStringLiteral("compact"));
    QCOMPARE(state.density(QStringLiteral("agenda")), QStringLiteral("comfortable"));
    state.setDensity(QStringLiteral("tasks"), QStringLiteral("roomy"));
    QCOMPARE(state.preferences()->value(QStringLiteral("ui/density/tasks")), std::optional<QString>("comfortable"));
}

void TestAppState::remoteCalendarIds()
{
    AppState state;
    QVERIFY(state.initialize(m_path));
    const QStringList types{"caldav", "icloud", "zoho", "google", "microsoft", "webcal", "kettlebrook"};
    for (const QString &type : types) {
        Account account;
        account.id = QStringLiteral("acc-") + type;
        account.name = type;
        account.type = type;
        QVERIFY(state.accounts()->insert(account));
        Calendar calendar;
        calendar.id = QStringLiteral("cal-") + type;
        calendar.account_id = account.id;
        calendar.url = calendar.id;
        calendar.name = type;
        QVERIFY(state.calendars()->insert(calendar));
    }
    QCOMPARE(state.remoteCalendarIds(),
             (QSet<QString>{"cal-caldav", "cal-icloud", "cal-zoho", "cal-google", "cal-microsoft"}));
}

void TestAppState::failsOnAFileThatIsNotADatabase()
{
    QFile file(m_path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("not a database at all, but somebody's notes\n");
    file.close();
    AppState state;
    QSignalSpy ready(&state, &AppState::databaseReady);
    QVERIFY(!state.initialize(m_path));
    QCOMPARE(ready.count(), 0);
    QVERIFY(!state.preferences());
    AppState missing;
    QVERIFY(!missing.initialize(m_dir->filePath(QStringLiteral("no/such/folder/calendar.db"))));
}

QTEST_GUILESS_MAIN(TestAppState)
#include "tst_appstate.moc"
