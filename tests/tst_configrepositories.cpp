// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/AccountRepository.h"
#include "storage/CalendarRepository.h"
#include "storage/Clock.h"
#include "storage/Database.h"
#include "storage/FilterRuleRepository.h"
#include "storage/PreferencesRepository.h"
#include "storage/TemplateRepository.h"
#include "storage/ViewRepository.h"

#include <QRegularExpression>
#include <QSignalSpy>
#include <QSqlError>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QTest>
#include <QTimeZone>

#include <memory>

namespace {

const QDateTime kNow(QDate(2024, 3, 14), QTime(9, 30), QTimeZone::utc());
const QString kNowText = QStringLiteral("2024-03-14T09:30:00Z");

Account makeAccount(const QString &id, const QString &name, const QString &type = QStringLiteral("caldav"),
                    const QString &server = QString(), const QString &user = QString(),
                    const QDateTime &createdAt = QDateTime())
{
    Account account;
    account.id = id;
    account.name = name;
    account.type = type;
    account.server_url = server;
    account.username = user;
    account.created_at = createdAt;
    return account;
}

Calendar makeCalendar(const QString &id, const QString &accountId, const QString &name, bool isDefault = false)
{
    Calendar calendar;
    calendar.id = id;
    calendar.account_id = accountId;
    calendar.url = QStringLiteral("local://calendar/") + id;
    calendar.name = name;
    calendar.is_default = isDefault;
    return calendar;
}

CalendarView makeView(const QString &id, const QString &name, int sortOrder = 0)
{
    CalendarView view;
    view.id = id;
    view.name = name;
    view.sort_order = sortOrder;
    return view;
}

FilterRule makeRule(const QString &id, const QString &name, int priority = 100, bool enabled = true)
{
    FilterRule rule;
    rule.id = id;
    rule.name = name;
    rule.type = QStringLiteral("pattern");
    rule.conditions = QStringLiteral("{\"runtimeType\":\"pattern\",\"titleContains\":[\"x\"]}");
    rule.priority = priority;
    rule.enabled = enabled;
    return rule;
}

template<typename Record>
QStringList idsOf(const QList<Record> &records)
{
    QStringList ids;
    for (const Record &record : records)
        ids.append(record.id);
    return ids;
}

} // namespace

class TestConfigRepositories : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void accountRoundTrip();
    void accountTombstones();
    void reorderAssignsTensInListOrder_data();
    void reorderAssignsTensInListOrder();
    void reorderIsAllOrNothing_data();
    void reorderIsAllOrNothing();
    void dedupeMergesCalDavDuplicates();
    void dedupeKeepsTheOldestOfThree();
    void dedupeLeavesTombstonesAlone();

    void calendarRoundTripAndOrder();
    void setDefaultLeavesExactlyOneDefault();
    void setDefaultFailureRollsBack();
    void calendarRemoveRefusedWhileEventsRemain();

    void defaultViewSortsFirst();
    void viewTombstones();
    void filterRulesEnabledAndOrder();
    void filterRuleSetEnabledMarksPending();

    void templateInsertFillsIdsAndTimes();
    void templateReminders_data();
    void templateReminders();
    void templateTombstoneIsNotFound();

    void preferences_data();
    void preferences();
    void preferenceSignals();

    void failedWritesLogAndStayQuiet_data();
    void failedWritesLogAndStayQuiet();

private:
    QSqlDatabase db() const { return m_database->connection(); }
    QVariant scalar(const QString &sql) const;
    bool exec(const QString &sql) const;

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<Database> m_database;
};

void TestConfigRepositories::init()
{
    Clock::setFixedNow(kNow);
    m_dir = std::make_unique<QTemporaryDir>();
    QVERIFY(m_dir->isValid());
    m_database = std::make_unique<Database>();
    QVERIFY(m_database->open(m_dir->filePath(QStringLiteral("calendar.db"))));
    m_database->migrate();
    QVERIFY(m_database->isUpToDate());
    // Any warning a test does not expect is a failure.
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
}

void TestConfigRepositories::cleanup()
{
    m_database.reset();
    m_dir.reset();
    Clock::setFixedNow(QDateTime());
}

QVariant TestConfigRepositories::scalar(const QString &sql) const
{
    QSqlQuery query(db());
    if (!query.exec(sql) || !query.next())
        return QVariant();
    return query.value(0);
}

bool TestConfigRepositories::exec(const QString &sql) const
{
    QSqlQuery query(db());
    return query.exec(sql);
}

void TestConfigRepositories::accountRoundTrip()
{
    AccountRepository repo(m_database.get());
    Account account = makeAccount(QStringLiteral("a1"), QStringLiteral("Work"), QStringLiteral("icloud"),
                                  QStringLiteral("https://caldav.icloud.com"), QStringLiteral("me@example.org"),
                                  QDateTime(QDate(2024, 1, 2), QTime(3, 4, 5), QTimeZone::utc()));
    account.calendar_home_set = QStringLiteral("https://caldav.icloud.com/123/calendars/");
    account.principal_url = QStringLiteral("https://caldav.icloud.com/123/principal/");
    account.sync_interval_minutes = 30;
    account.last_sync_time = QDateTime(QDate(2024, 3, 1), QTime(8, 0), QTimeZone::utc());
    account.last_sync_error = QStringLiteral("timeout");
    account.enabled = false;
    account.color = QStringLiteral("#112233");
    account.exclude_from_sync = true;
    account.trusted_cert_sha256 = QStringLiteral("AB:CD");
    account.pending_cert_sha256 = QStringLiteral("EF:01");
    account.updated_at = account.created_at;
    QVERIFY(repo.insert(account));

    const std::optional<Account> read = repo.getById(QStringLiteral("a1"));
    QVERIFY(read);
    QCOMPARE(*read, account);
    QCOMPARE(scalar(QStringLiteral("SELECT sort_order FROM accounts")).toInt(), 0);

    // Update rewrites the fields and stamps updated_at, but leaves created_at alone.
    account.name = QStringLiteral("Work (iCloud)");
    account.last_sync_time.reset();
    QVERIFY(repo.update(account));
    const std::optional<Account> updated = repo.getById(QStringLiteral("a1"));
    QVERIFY(updated);
    QCOMPARE(updated->name, QStringLiteral("Work (iCloud)"));
    QVERIFY(!updated->last_sync_time);
    QCOMPARE(updated->created_at, account.created_at);
    QCOMPARE(scalar(QStringLiteral("SELECT updated_at FROM accounts")).toString(), kNowText);

    // Unset creation and update times are stored as now; empty texts are stored as empty text.
    QVERIFY(repo.insert(makeAccount(QStringLiteral("a2"), QStringLiteral("Local"), QStringLiteral("kettlebrook"))));
    QCOMPARE(scalar(QStringLiteral("SELECT created_at || '|' || updated_at FROM accounts WHERE id = 'a2'")).toString(),
             kNowText + QLatin1Char('|') + kNowText);
    QCOMPARE(scalar(QStringLiteral("SELECT server_url IS NULL FROM accounts WHERE id = 'a2'")).toInt(), 0);
    QVERIFY(repo.findByServer(QStringLiteral("kettlebrook"), QString(), QString()));
}

void TestConfigRepositories::accountTombstones()
{
    AccountRepository repo(m_database.get());
    const QString server = QStringLiteral("https://dav.example.org");
    const QString user = QStringLiteral("sam");
    QVERIFY(repo.insert(
        makeAccount(QStringLiteral("gone"), QStringLiteral("Gone"), QStringLiteral("caldav"), server, user)));
    QVERIFY(repo.insert(makeAccount(QStringLiteral("live"), QStringLiteral("Live"))));
    CalendarRepository calendars(m_database.get());
    QVERIFY(calendars.insert(makeCalendar(QStringLiteral("c1"), QStringLiteral("gone"), QStringLiteral("Cal"))));

    QSignalSpy spy(&repo, &AccountRepository::accountsChanged);
    QVERIFY(repo.remove(QStringLiteral("gone")));
    QCOMPARE(spy.size(), 1);

    QCOMPARE(idsOf(repo.getAll()), QStringList{"live"});
    QVERIFY(!repo.getById(QStringLiteral("gone")));
    QVERIFY(!repo.findByServer(QStringLiteral("caldav"), server, user));
    const QList<Account> all = repo.getAllIncludingDeleted();
    QCOMPARE(idsOf(all), (QStringList{"gone", "live"}));
    QCOMPARE(all.at(0).deleted_at, std::optional<QDateTime>(kNow));
    QCOMPARE(all.at(0).updated_at, kNow);
    QVERIFY(!all.at(1).deleted_at);
    // The account's calendars stay where they are.
    QVERIFY(calendars.getById(QStringLiteral("c1")));

    // A live account is never removed by the reaper; a tombstone is (once its calendar is gone).
    QVERIFY(repo.reapTombstone(QStringLiteral("live")));
    QCOMPARE(scalar(QStringLiteral("SELECT COUNT(*) FROM accounts WHERE id = 'live'")).toInt(), 1);
    QVERIFY(calendars.remove(QStringLiteral("c1")));
    QVERIFY(repo.reapTombstone(QStringLiteral("gone")));
    QCOMPARE(idsOf(repo.getAllIncludingDeleted()), QStringList{"live"});
}

void TestConfigRepositories::reorderAssignsTensInListOrder_data()
{
    QTest::addColumn<QString>("table");
    QTest::addColumn<QString>("orderColumn");
    QTest::newRow("accounts") << "accounts"
                              << "sort_order";
    QTest::newRow("views") << "calendar_views"
                           << "sort_order";
    QTest::newRow("filter rules") << "filter_rules"
                                  << "priority";
}

namespace {

// Inserts the records x, y and z (named so that name order is x, y, z) into `table` and returns
// the function that reorders that table, with the spy on its change signal.
struct ReorderFixture
{
    std::unique_ptr<QObject> repository;
    std::function<bool(const QStringList &)> reorder;
    std::function<QStringList()> liveIds;
    std::unique_ptr<QSignalSpy> spy;
};

ReorderFixture makeReorderFixture(Database *database, const QString &table)
{
    ReorderFixture fixture;
    const QStringList ids = {QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("z")};
    if (table == QLatin1String("accounts")) {
        auto *repo = new AccountRepository(database);
        fixture.repository.reset(repo);
        for (const QString &id : ids)
            repo->insert(makeAccount(id, id.toUpper()));
        fixture.reorder = [repo](const QStringList &order) {
            return repo->reorder(order);
        };
        fixture.liveIds = [repo]() {
            return idsOf(repo->getAll());
        };
        fixture.spy = std::make_unique<QSignalSpy>(repo, &AccountRepository::accountsChanged);
    } else if (table == QLatin1String("calendar_views")) {
        auto *repo = new ViewRepository(database);
        fixture.repository.reset(repo);
        for (const QString &id : ids)
            repo->insert(makeView(id, id.toUpper()));
        fixture.reorder = [repo](const QStringList &order) {
            return repo->reorder(order);
        };
        fixture.liveIds = [repo]() {
            QStringList live = idsOf(repo->getAll());
            live.removeAll(QStringLiteral("all-calendars"));
            return live;
        };
        fixture.spy = std::make_unique<QSignalSpy>(repo, &ViewRepository::viewsChanged);
    } else {
        auto *repo = new FilterRuleRepository(database);
        fixture.repository.reset(repo);
        for (const QString &id : ids)
            repo->insert(makeRule(id, id.toUpper()));
        fixture.reorder = [repo](const QStringList &order) {
            return repo->reorder(order);
        };
        fixture.liveIds = [repo]() {
            return idsOf(repo->getAll());
        };
        fixture.spy = std::make_unique<QSignalSpy>(repo, &FilterRuleRepository::filterRulesChanged);
    }
    return fixture;
}

} // namespace

void TestConfigRepositories::reorderAssignsTensInListOrder()
{
    QFETCH(QString, table);
    QFETCH(QString, orderColumn);
    ReorderFixture fixture = makeReorderFixture(m_database.get(), table);
    QCOMPARE(fixture.liveIds(), (QStringList{"x", "y", "z"}));
    QVERIFY(exec(QStringLiteral("UPDATE %1 SET updated_at = 'old'").arg(table)));
    if (table != QLatin1String("accounts"))
        QVERIFY(exec(QStringLiteral("UPDATE %1 SET sync_status = 'synced'").arg(table)));

    QVERIFY(fixture.reorder({QStringLiteral("z"), QStringLiteral("x"), QStringLiteral("y")}));
    QCOMPARE(fixture.spy->size(), 1);
    QCOMPARE(fixture.liveIds(), (QStringList{"z", "x", "y"}));
    QCOMPARE(scalar(QStringLiteral("SELECT group_concat(id || '=' || %1, ',') FROM (SELECT id, %1 FROM %2 WHERE id "
                                   "IN ('x','y','z') ORDER BY id)")
                        .arg(orderColumn, table))
                 .toString(),
             QStringLiteral("x=20,y=30,z=10"));
    QCOMPARE(scalar(QStringLiteral("SELECT COUNT(*) FROM %1 WHERE id IN ('x','y','z') AND updated_at = '%2'")
                        .arg(table, kNowText))
                 .toInt(),
             3);
    if (table != QLatin1String("accounts")) {
        QCOMPARE(scalar(QStringLiteral("SELECT COUNT(*) FROM %1 WHERE sync_status = 'pending'").arg(table)).toInt(), 3);
    }

    // An empty list has nothing to place.
    QVERIFY(fixture.reorder({}));
    QCOMPARE(fixture.spy->size(), 1);
}

void TestConfigRepositories::reorderIsAllOrNothing_data()
{
    QTest::addColumn<QString>("table");
    QTest::addColumn<QString>("orderColumn");
    QTest::addColumn<QStringList>("order");
    QTest::addColumn<bool>("failOnZ");

    QTest::newRow("accounts: unknown id last") << "accounts"
                                               << "sort_order" << QStringList{"y", "x", "nope"} << false;
    QTest::newRow("filter rules: statement fails half way") << "filter_rules"
                                                            << "priority" << QStringList{"y", "x", "z"} << true;
}

void TestConfigRepositories::reorderIsAllOrNothing()
{
    QFETCH(QString, table);
    QFETCH(QString, orderColumn);
    QFETCH(QStringList, order);
    QFETCH(bool, failOnZ);
    ReorderFixture fixture = makeReorderFixture(m_database.get(), table);
    QVERIFY(exec(QStringLiteral("UPDATE %1 SET %2 = 1000 WHERE id = 'x'").arg(table, orderColumn)));
    const bool hasSyncStatus = table != QLatin1String("accounts");
    if (hasSyncStatus)
        QVERIFY(exec(QStringLiteral("UPDATE %1 SET sync_status = 'synced'").arg(table)));
    const QString snapshotSql
        = QStringLiteral("SELECT group_concat(id || '=' || %1 || '@' || updated_at || '/' || %3, ',') FROM (SELECT * "
                         "FROM %2 ORDER BY id)")
              .arg(orderColumn, table, hasSyncStatus ? QStringLiteral("sync_status") : QStringLiteral("''"));
    const QString before = scalar(snapshotSql).toString();
    QVERIFY(before.contains(QLatin1String("x=1000@")));
    if (failOnZ) {
        QVERIFY(exec(QStringLiteral("CREATE TRIGGER refuse_z BEFORE UPDATE OF %1 ON %2 WHEN OLD.id = 'z' BEGIN "
                                    "SELECT RAISE(ABORT, 'refused'); END")
                         .arg(orderColumn, table)));
    }
    Clock::setFixedNow(kNow.addDays(1));

    QVERIFY(!fixture.reorder(order));
    QCOMPARE(fixture.spy->size(), 0);
    const QString after = scalar(snapshotSql).toString();
    QCOMPARE(after, before);
    QCOMPARE(fixture.liveIds(), (QStringList{"y", "z", "x"}));
    // No transaction was left open: the next reorder goes through.
    QVERIFY(fixture.reorder({QStringLiteral("x")}));
    QCOMPARE(fixture.spy->size(), 1);
    QCOMPARE(scalar(QStringLiteral("SELECT %1 FROM %2 WHERE id = 'x'").arg(orderColumn, table)).toInt(), 10);
}

void TestConfigRepositories::dedupeMergesCalDavDuplicates()
{
    AccountRepository accounts(m_database.get());
    CalendarRepository calendars(m_database.get());
    const QString server = QStringLiteral("https://caldav.icloud.com");
    const QString user = QStringLiteral("sam@example.org");
    const QDateTime monday(QDate(2024, 3, 4), QTime(10, 0), QTimeZone::utc());
    const QDateTime friday(QDate(2024, 3, 8), QTime(10, 0), QTimeZone::utc());
    // The newer account sorts first by name, so the keeper is chosen by age, not by list order.
    QVERIFY(accounts.insert(
        makeAccount(QStringLiteral("old"), QStringLiteral("Zed"), QStringLiteral("icloud"), server, user, monday)));
    QVERIFY(accounts.insert(
        makeAccount(QStringLiteral("new"), QStringLiteral("Abe"), QStringLiteral("icloud"), server, user, friday)));
    QVERIFY(accounts.insert(
        makeAccount(QStringLiteral("g1"), QStringLiteral("G1"), QStringLiteral("google"), server, user, monday)));
    QVERIFY(accounts.insert(
        makeAccount(QStringLiteral("g2"), QStringLiteral("G2"), QStringLiteral("google"), server, user, friday)));
    // Same server but no user name: not an identity, left alone.
    QVERIFY(accounts.insert(
        makeAccount(QStringLiteral("n1"), QStringLiteral("N1"), QStringLiteral("caldav"), server, QString(), monday)));
    QVERIFY(accounts.insert(
        makeAccount(QStringLiteral("n2"), QStringLiteral("N2"), QStringLiteral("caldav"), server, QString(), friday)));
    // Another kind on the same server and user is another identity.
    QVERIFY(accounts.insert(
        makeAccount(QStringLiteral("z1"), QStringLiteral("Z1"), QStringLiteral("zoho"), server, user, friday)));
    QVERIFY(calendars.insert(makeCalendar(QStringLiteral("home"), QStringLiteral("new"), QStringLiteral("Home"))));
    QVERIFY(calendars.insert(makeCalendar(QStringLiteral("work"), QStringLiteral("new"), QStringLiteral("Work"))));
    QVERIFY(calendars.insert(makeCalendar(QStringLiteral("kept"), QStringLiteral("old"), QStringLiteral("Kept"))));
    QVERIFY(calendars.insert(makeCalendar(QStringLiteral("gcal"), QStringLiteral("g2"), QStringLiteral("G"))));

    QSignalSpy spy(&accounts, &AccountRepository::accountsChanged);
    QCOMPARE(accounts.dedupeCalDavAccounts(), 1);
    QCOMPARE(spy.size(), 1);

    QCOMPARE(idsOf(accounts.getAll()), (QStringList{"g1", "g2", "n1", "n2", "z1", "old"}));
    const QList<Account> all = accounts.getAllIncludingDeleted();
    const auto newer = std::find_if(all.cbegin(), all.cend(), [](const Account &a) { return a.id == "new"; });
    QVERIFY(newer != all.cend());
    QCOMPARE(newer->deleted_at, std::optional<QDateTime>(kNow));
    QCOMPARE(idsOf(calendars.getByAccount(QStringLiteral("old"))), (QStringList{"home", "kept", "work"}));
    QVERIFY(calendars.getByAccount(QStringLiteral("new")).isEmpty());
    QCOMPARE(calendars.getById(QStringLiteral("gcal"))->account_id, QStringLiteral("g2"));

    // A second run finds nothing more to merge.
    QCOMPARE(accounts.dedupeCalDavAccounts(), 0);
    QCOMPARE(spy.size(), 1);
}

void TestConfigRepositories::dedupeKeepsTheOldestOfThree()
{
    AccountRepository accounts(m_database.get());
    CalendarRepository calendars(m_database.get());
    const QString server = QStringLiteral("https://dav.example.org");
    const QString user = QStringLiteral("kim");
    QVERIFY(accounts.insert(makeAccount(QStringLiteral("b"), QStringLiteral("B"), QStringLiteral("caldav"), server,
                                        user, QDateTime(QDate(2023, 6, 1), QTime(0, 0), QTimeZone::utc()))));
    // Stored in SQLite's own datetime('now') form, as a column default would have written it.
    QVERIFY(exec(QStringLiteral("INSERT INTO accounts (id, name, type, server_url, username, created_at) VALUES "
                                "('a', 'A', 'caldav', 'https://dav.example.org', 'kim', '2023-01-15 08:00:00')")));
    QVERIFY(accounts.insert(makeAccount(QStringLiteral("c"), QStringLiteral("C"), QStringLiteral("caldav"), server,
                                        user, QDateTime(QDate(2023, 1, 15), QTime(9, 0), QTimeZone::utc()))));
    QVERIFY(calendars.insert(makeCalendar(QStringLiteral("cb"), QStringLiteral("b"), QStringLiteral("CB"))));
    QVERIFY(calendars.insert(makeCalendar(QStringLiteral("cc"), QStringLiteral("c"), QStringLiteral("CC"))));

    QCOMPARE(accounts.dedupeCalDavAccounts(), 2);
    QCOMPARE(idsOf(accounts.getAll()), QStringList{"a"});
    QCOMPARE(idsOf(calendars.getByAccount(QStringLiteral("a"))), (QStringList{"cb", "cc"}));
}

void TestConfigRepositories::dedupeLeavesTombstonesAlone()
{
    AccountRepository accounts(m_database.get());
    CalendarRepository calendars(m_database.get());
    const QString server = QStringLiteral("https://dav.example.org");
    const QString user = QStringLiteral("kim");
    // The user removed the account and added it again before the removal was pushed.
    QVERIFY(accounts.insert(makeAccount(QStringLiteral("removed"), QStringLiteral("R"), QStringLiteral("caldav"),
                                        server, user, QDateTime(QDate(2023, 1, 1), QTime(0, 0), QTimeZone::utc()))));
    QVERIFY(accounts.remove(QStringLiteral("removed")));
    QVERIFY(accounts.insert(
        makeAccount(QStringLiteral("readded"), QStringLiteral("R"), QStringLiteral("caldav"), server, user)));
    QVERIFY(calendars.insert(makeCalendar(QStringLiteral("cal"), QStringLiteral("readded"), QStringLiteral("Cal"))));

    QCOMPARE(accounts.dedupeCalDavAccounts(), 0);
    QCOMPARE(idsOf(accounts.getAll()), QStringList{"readded"});
    QCOMPARE(calendars.getById(QStringLiteral("cal"))->account_id, QStringLiteral("readded"));
}

void TestConfigRepositories::calendarRoundTripAndOrder()
{
    AccountRepository accounts(m_database.get());
    QVERIFY(accounts.insert(makeAccount(QStringLiteral("acc"), QStringLiteral("Acc"))));
    QVERIFY(accounts.insert(makeAccount(QStringLiteral("other"), QStringLiteral("Other"))));
    CalendarRepository repo(m_database.get());
    QSignalSpy spy(&repo, &CalendarRepository::calendarsChanged);

    Calendar full = makeCalendar(QStringLiteral("full"), QStringLiteral("acc"), QStringLiteral("Full"));
    full.description = QStringLiteral("every field set");
    full.color = QStringLiteral("#ABCDEF");
    full.timezone = QStringLiteral("Europe/Berlin");
    full.is_visible = false;
    full.is_read_only = true;
    full.ctag = QStringLiteral("ctag-1");
    full.sync_token = QStringLiteral("token");
    full.delta_sync_token = QStringLiteral("delta");
    full.supported_components = QStringLiteral("[\"VEVENT\",\"VTODO\"]");
    full.sort_order = 3;
    full.canonical_key = QStringLiteral("key");
    full.sync_enabled = true;
    full.is_shared = true;
    full.shared_with_me = true;
    full.last_sync_error = QStringLiteral("HTTP 500");
    full.created_at = QDateTime(QDate(2024, 1, 1), QTime(0, 0), QTimeZone::utc());
    full.updated_at = full.created_at;
    QVERIFY(repo.insert(full));
    QCOMPARE(*repo.getById(QStringLiteral("full")), full);

    QVERIFY(repo.insert(makeCalendar(QStringLiteral("b"), QStringLiteral("acc"), QStringLiteral("Beta"))));
    QVERIFY(repo.insert(makeCalendar(QStringLiteral("a"), QStringLiteral("other"), QStringLiteral("Alpha"))));
    QCOMPARE(spy.size(), 3);
    QCOMPARE(idsOf(repo.getAll()), (QStringList{"a", "b", "full"}));
    QCOMPARE(idsOf(repo.getByAccount(QStringLiteral("acc"))), (QStringList{"b", "full"}));

    full.name = QStringLiteral("Renamed");
    full.sort_order = -1;
    QVERIFY(repo.update(full));
    QCOMPARE(spy.size(), 4);
    const Calendar updated = *repo.getById(QStringLiteral("full"));
    QCOMPARE(updated.name, QStringLiteral("Renamed"));
    QCOMPARE(updated.created_at, full.created_at);
    QCOMPARE(updated.updated_at, kNow);
    QCOMPARE(idsOf(repo.getAll()), (QStringList{"full", "a", "b"}));

    QVERIFY(repo.remove(QStringLiteral("b")));
    QCOMPARE(spy.size(), 5);
    QVERIFY(!repo.getById(QStringLiteral("b")));
}

void TestConfigRepositories::setDefaultLeavesExactlyOneDefault()
{
    AccountRepository accounts(m_database.get());
    QVERIFY(accounts.insert(makeAccount(QStringLiteral("acc"), QStringLiteral("Acc"))));
    CalendarRepository repo(m_database.get());
    QVERIFY(repo.insert(makeCalendar(QStringLiteral("A"), QStringLiteral("acc"), QStringLiteral("A"), true)));
    QVERIFY(repo.insert(makeCalendar(QStringLiteral("B"), QStringLiteral("acc"), QStringLiteral("B"))));
    QVERIFY(repo.insert(makeCalendar(QStringLiteral("C"), QStringLiteral("acc"), QStringLiteral("C"))));
    QVERIFY(exec(QStringLiteral("UPDATE calendars SET updated_at = 'before'")));
    QSignalSpy spy(&repo, &CalendarRepository::calendarsChanged);

    QVERIFY(repo.setDefault(QStringLiteral("B")));
    QCOMPARE(spy.size(), 1);
    QCOMPARE(scalar(QStringLiteral("SELECT group_concat(id, ',') FROM calendars WHERE is_default = 1")).toString(),
             QStringLiteral("B"));
    // The old and the new default are stamped with the same now; the bystander is untouched.
    QCOMPARE(scalar(QStringLiteral("SELECT group_concat(id || '@' || updated_at, ',') FROM (SELECT * FROM calendars "
                                   "ORDER BY id)"))
                 .toString(),
             QStringLiteral("A@%1,B@%1,C@before").arg(kNowText));

    // Choosing the current default again only touches its own updated_at.
    QVERIFY(exec(QStringLiteral("UPDATE calendars SET updated_at = 'before'")));
    QVERIFY(repo.setDefault(QStringLiteral("B")));
    QCOMPARE(scalar(QStringLiteral("SELECT group_concat(id || '=' || is_default || '@' || updated_at, ',') FROM "
                                   "(SELECT * FROM calendars ORDER BY id)"))
                 .toString(),
             QStringLiteral("A=0@before,B=1@%1,C=0@before").arg(kNowText));
    QCOMPARE(spy.size(), 2);
}

void TestConfigRepositories::setDefaultFailureRollsBack()
{
    AccountRepository accounts(m_database.get());
    QVERIFY(accounts.insert(makeAccount(QStringLiteral("acc"), QStringLiteral("Acc"))));
    CalendarRepository repo(m_database.get());
    QVERIFY(repo.insert(makeCalendar(QStringLiteral("A"), QStringLiteral("acc"), QStringLiteral("A"), true)));
    QVERIFY(repo.insert(makeCalendar(QStringLiteral("B"), QStringLiteral("acc"), QStringLiteral("B"))));
    QVERIFY(exec(QStringLiteral("CREATE TRIGGER refuse_b BEFORE UPDATE OF is_default ON calendars WHEN NEW.id = 'B' "
                                "BEGIN SELECT RAISE(ABORT, 'B refused'); END")));
    QSignalSpy spy(&repo, &CalendarRepository::calendarsChanged);

    // An unknown id clears nothing: the default stays.
    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression(QStringLiteral("^CalendarRepository::setDefault set failed: .*missing")));
    QVERIFY(!repo.setDefault(QStringLiteral("missing")));
    QVERIFY(repo.getById(QStringLiteral("A"))->is_default);

    // The clear of A ran first; it is rolled back with the failed set.
    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression(QStringLiteral("^CalendarRepository::setDefault set failed: B refused")));
    QVERIFY(!repo.setDefault(QStringLiteral("B")));
    QCOMPARE(spy.size(), 0);
    QVERIFY(repo.getById(QStringLiteral("A"))->is_default);
    QVERIFY(!repo.getById(QStringLiteral("B"))->is_default);

    QVERIFY(exec(QStringLiteral("DROP TRIGGER refuse_b")));
    QVERIFY(exec(QStringLiteral("CREATE TRIGGER refuse_a BEFORE UPDATE OF is_default ON calendars WHEN OLD.id = 'A' "
                                "BEGIN SELECT RAISE(ABORT, 'A refused'); END")));
    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression(QStringLiteral("^CalendarRepository::setDefault clear failed: A refused")));
    QVERIFY(!repo.setDefault(QStringLiteral("B")));
    QCOMPARE(spy.size(), 0);
    QVERIFY(repo.getById(QStringLiteral("A"))->is_default);
    QVERIFY(!repo.getById(QStringLiteral("B"))->is_default);

    // No transaction was left open: the next change goes through.
    QVERIFY(exec(QStringLiteral("DROP TRIGGER refuse_a")));
    QVERIFY(repo.setDefault(QStringLiteral("B")));
    QVERIFY(repo.getById(QStringLiteral("B"))->is_default);
}

void TestConfigRepositories::calendarRemoveRefusedWhileEventsRemain()
{
    AccountRepository accounts(m_database.get());
    QVERIFY(accounts.insert(makeAccount(QStringLiteral("acc"), QStringLiteral("Acc"))));
    CalendarRepository repo(m_database.get());
    QVERIFY(repo.insert(makeCalendar(QStringLiteral("cal"), QStringLiteral("acc"), QStringLiteral("Cal"))));
    // A tombstoned event still holds on to its calendar.
    QVERIFY(exec(QStringLiteral("INSERT INTO events (id, calendar_id, uid, title, start_time, raw_icalendar, "
                                "deleted_at) VALUES ('e', 'cal', 'e', 'T', '2024-03-14T10:00:00Z', '', "
                                "'2024-03-14T11:00:00Z')")));
    QSignalSpy spy(&repo, &CalendarRepository::calendarsChanged);

    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression(QStringLiteral("^CalendarRepository::remove failed: .*FOREIGN KEY")));
    QVERIFY(!repo.remove(QStringLiteral("cal")));
    QCOMPARE(spy.size(), 0);
    QVERIFY(repo.getById(QStringLiteral("cal")));
}

void TestConfigRepositories::defaultViewSortsFirst()
{
    ViewRepository repo(m_database.get());
    QVERIFY(repo.insert(makeView(QStringLiteral("v2"), QStringLiteral("Family"), -5)));
    QVERIFY(repo.insert(makeView(QStringLiteral("v1"), QStringLiteral("Aardvark"), 0)));
    QVERIFY(repo.insert(makeView(QStringLiteral("v3"), QStringLiteral("Bees"), 0)));
    QCOMPARE(idsOf(repo.getAll()), (QStringList{"all-calendars", "v2", "v1", "v3"}));
    const CalendarView builtIn = repo.getAll().constFirst();
    QCOMPARE(builtIn.name, QStringLiteral("All Calendars"));
    QCOMPARE(builtIn.calendar_ids, QStringLiteral("[]"));
    QVERIFY(builtIn.is_default);
    // Its times come from SQLite's column default and still read as UTC.
    QVERIFY(builtIn.created_at.isValid());
    QCOMPARE(builtIn.created_at.offsetFromUtc(), 0);
}

void TestConfigRepositories::viewTombstones()
{
    ViewRepository repo(m_database.get());
    CalendarView view = makeView(QStringLiteral("v"), QStringLiteral("Work"));
    view.calendar_ids = QStringLiteral("[\"a\",\"b\"]");
    view.sync_status = QStringLiteral("synced");
    view.color = QStringLiteral("#123456");
    QVERIFY(repo.insert(view));
    QCOMPARE(repo.getById(QStringLiteral("v"))->calendar_ids, view.calendar_ids);
    QCOMPARE(repo.getById(QStringLiteral("v"))->sync_status, QStringLiteral("synced"));

    QSignalSpy spy(&repo, &ViewRepository::viewsChanged);
    QVERIFY(repo.remove(QStringLiteral("v")));
    QCOMPARE(spy.size(), 1);
    QCOMPARE(idsOf(repo.getAll()), QStringList{"all-calendars"});
    QCOMPARE(idsOf(repo.getAllIncludingDeleted()), (QStringList{"all-calendars", "v"}));
    const CalendarView tombstone = *repo.getById(QStringLiteral("v"));
    QCOMPARE(tombstone.deleted_at, std::optional<QDateTime>(kNow));
    QCOMPARE(tombstone.sync_status, QStringLiteral("pending"));

    QVERIFY(repo.hardDelete(QStringLiteral("v")));
    QCOMPARE(spy.size(), 2);
    QVERIFY(!repo.getById(QStringLiteral("v")));
}

void TestConfigRepositories::filterRulesEnabledAndOrder()
{
    FilterRuleRepository repo(m_database.get());
    QVERIFY(repo.insert(makeRule(QStringLiteral("r1"), QStringLiteral("Zeta"), 10)));
    QVERIFY(repo.insert(makeRule(QStringLiteral("r2"), QStringLiteral("Alpha"), 10)));
    QVERIFY(repo.insert(makeRule(QStringLiteral("r3"), QStringLiteral("First"), 5)));
    QVERIFY(repo.insert(makeRule(QStringLiteral("off"), QStringLiteral("Off"), 1, false)));
    QVERIFY(repo.insert(makeRule(QStringLiteral("del"), QStringLiteral("Deleted"), 1)));
    QVERIFY(repo.remove(QStringLiteral("del")));

    QCOMPARE(idsOf(repo.getEnabled()), (QStringList{"r3", "r2", "r1"}));
    QCOMPARE(idsOf(repo.getAll()), (QStringList{"off", "r3", "r2", "r1"}));
    QCOMPARE(idsOf(repo.getAllIncludingDeleted()), (QStringList{"del", "off", "r3", "r2", "r1"}));
    QVERIFY(repo.getById(QStringLiteral("del"))->deleted_at);

    FilterRule full = makeRule(QStringLiteral("full"), QStringLiteral("Full"), 42);
    full.type = QStringLiteral("specific");
    full.calendar_ids = QStringLiteral("[\"c\"]");
    full.conditions = QStringLiteral("{\"runtimeType\":\"specific\"}");
    full.action = QStringLiteral("dim");
    full.event_uid = QStringLiteral("uid-1");
    full.event_calendar_id = QStringLiteral("c");
    full.suppress_reminders = true;
    full.sync_status = QStringLiteral("synced");
    full.created_at = QDateTime(QDate(2024, 2, 2), QTime(2, 2, 2), QTimeZone::utc());
    full.updated_at = full.created_at;
    QVERIFY(repo.insert(full));
    QCOMPARE(*repo.getById(QStringLiteral("full")), full);

    full.action = QStringLiteral("hide");
    full.sync_status = QStringLiteral("pending");
    QVERIFY(repo.update(full));
    const FilterRule updated = *repo.getById(QStringLiteral("full"));
    QCOMPARE(updated.action, QStringLiteral("hide"));
    QCOMPARE(updated.created_at, full.created_at);
    QCOMPARE(updated.updated_at, kNow);
}

void TestConfigRepositories::filterRuleSetEnabledMarksPending()
{
    FilterRuleRepository repo(m_database.get());
    FilterRule rule = makeRule(QStringLiteral("r"), QStringLiteral("R"));
    rule.sync_status = QStringLiteral("synced");
    rule.updated_at = QDateTime(QDate(2020, 1, 1), QTime(0, 0), QTimeZone::utc());
    QVERIFY(repo.insert(rule));
    QSignalSpy spy(&repo, &FilterRuleRepository::filterRulesChanged);

    QVERIFY(repo.setEnabled(QStringLiteral("r"), false));
    QCOMPARE(spy.size(), 1);
    const FilterRule disabled = *repo.getById(QStringLiteral("r"));
    QVERIFY(!disabled.enabled);
    QCOMPARE(disabled.sync_status, QStringLiteral("pending"));
    QCOMPARE(disabled.updated_at, kNow);
    QVERIFY(repo.getEnabled().isEmpty());
}

void TestConfigRepositories::templateInsertFillsIdsAndTimes()
{
    TemplateRepository repo(m_database.get());
    QSignalSpy spy(&repo, &TemplateRepository::templatesChanged);
    Template preset;
    preset.name = QStringLiteral("Standup");
    preset.title = QStringLiteral("Daily standup");
    preset.duration_minutes = 15;
    preset.recurrence_rule = QStringLiteral("FREQ=DAILY");
    const std::optional<Template> stored = repo.insert(preset);
    QVERIFY(stored);
    QCOMPARE(spy.size(), 1);
    QVERIFY(QRegularExpression(QStringLiteral("^[0-9a-f]{8}-[0-9a-f]{4}-[0-9a-f]{4}-[0-9a-f]{4}-[0-9a-f]{12}$"))
                .match(stored->id)
                .hasMatch());
    QCOMPARE(stored->created_at, kNow);
    QCOMPARE(stored->updated_at, kNow);
    QCOMPARE(*repo.getById(stored->id), *stored);
    QCOMPARE(scalar(QStringLiteral("SELECT sync_status FROM event_templates")).toString(), QStringLiteral("pending"));

    // A given id and creation time are kept; updated_at is always now.
    preset.id = QStringLiteral("fixed");
    preset.created_at = QDateTime(QDate(2023, 5, 5), QTime(5, 5), QTimeZone::utc());
    preset.updated_at = preset.created_at;
    const std::optional<Template> fixed = repo.insert(preset);
    QVERIFY(fixed);
    QCOMPARE(fixed->id, QStringLiteral("fixed"));
    QCOMPARE(repo.getById(QStringLiteral("fixed"))->created_at, preset.created_at);
    QCOMPARE(repo.getById(QStringLiteral("fixed"))->updated_at, kNow);

    QVERIFY(exec(QStringLiteral("UPDATE event_templates SET sync_status = 'synced'")));
    Template changed = *fixed;
    changed.title = QStringLiteral("Weekly sync");
    QVERIFY(repo.update(changed));
    QCOMPARE(repo.getById(QStringLiteral("fixed"))->title, QStringLiteral("Weekly sync"));
    QCOMPARE(scalar(QStringLiteral("SELECT sync_status FROM event_templates WHERE id = 'fixed'")).toString(),
             QStringLiteral("pending"));
    QCOMPARE(spy.size(), 3);
}

void TestConfigRepositories::templateReminders_data()
{
    QTest::addColumn<QList<qint32>>("reminders");
    QTest::addColumn<QString>("stored");
    QTest::newRow("two") << QList<qint32>{10, 60} << "[10,60]";
    QTest::newRow("default") << Template().reminders << "[15]";
}

void TestConfigRepositories::templateReminders()
{
    QFETCH(QList<qint32>, reminders);
    QFETCH(QString, stored);
    TemplateRepository repo(m_database.get());
    Template preset;
    preset.id = QStringLiteral("t");
    preset.name = QStringLiteral("T");
    preset.title = QStringLiteral("T");
    preset.reminders = reminders;
    QVERIFY(repo.insert(preset));
    QCOMPARE(scalar(QStringLiteral("SELECT reminders FROM event_templates")).toString(), stored);
    QCOMPARE(repo.getById(QStringLiteral("t"))->reminders, reminders);
}

void TestConfigRepositories::templateTombstoneIsNotFound()
{
    TemplateRepository repo(m_database.get());
    Template preset;
    preset.id = QStringLiteral("t");
    preset.name = QStringLiteral("T");
    preset.title = QStringLiteral("T");
    QVERIFY(repo.insert(preset));
    QVERIFY(repo.remove(QStringLiteral("t")));
    QVERIFY(!repo.getById(QStringLiteral("t")));
    QVERIFY(repo.getAll().isEmpty());
    const QList<Template> all = repo.getAllIncludingDeleted();
    QCOMPARE(all.size(), 1);
    QCOMPARE(all.constFirst().deleted_at, std::optional<QDateTime>(kNow));
    QVERIFY(repo.hardDelete(QStringLiteral("t")));
    QVERIFY(repo.getAllIncludingDeleted().isEmpty());
}

void TestConfigRepositories::preferences_data()
{
    QTest::addColumn<bool>("present");
    QTest::addColumn<QString>("stored");
    QTest::addColumn<bool>("boolWithFalseFallback");
    QTest::addColumn<bool>("boolWithTrueFallback");
    QTest::addColumn<int>("intWithFallback7");

    QTest::newRow("missing") << false << "" << false << true << 7;
    QTest::newRow("1") << true << "1" << true << true << 1;
    QTest::newRow("true") << true << "true" << true << true << 7;
    QTest::newRow("0") << true << "0" << false << false << 0;
    QTest::newRow("TRUE") << true << "TRUE" << false << false << 7;
    QTest::newRow("empty") << true << "" << false << false << 7;
    QTest::newRow("-42") << true << "-42" << false << false << -42;
    QTest::newRow("0x10") << true << "0x10" << false << false << 7;
    QTest::newRow("too large") << true << "99999999999" << false << false << 7;
}

void TestConfigRepositories::preferences()
{
    QFETCH(bool, present);
    QFETCH(QString, stored);
    QFETCH(bool, boolWithFalseFallback);
    QFETCH(bool, boolWithTrueFallback);
    QFETCH(int, intWithFallback7);
    PreferencesRepository repo(m_database.get());
    const QString key = QStringLiteral("ui/some");
    if (present)
        QVERIFY(repo.setValue(key, stored));
    QCOMPARE(repo.value(key).has_value(), present);
    if (present)
        QCOMPARE(*repo.value(key), stored);
    QCOMPARE(repo.boolValue(key, false), boolWithFalseFallback);
    QCOMPARE(repo.boolValue(key, true), boolWithTrueFallback);
    QCOMPARE(repo.intValue(key, 7), intWithFallback7);
}

void TestConfigRepositories::preferenceSignals()
{
    PreferencesRepository repo(m_database.get());
    QSignalSpy spy(&repo, &PreferencesRepository::changed);
    QVERIFY(repo.setValue(QStringLiteral("ui/theme"), QStringLiteral("dark")));
    QVERIFY(repo.setValue(QStringLiteral("ui/theme"), QStringLiteral("light")));
    QVERIFY(repo.setBool(QStringLiteral("weather/enabled"), true));
    QCOMPARE(*repo.value(QStringLiteral("ui/theme")), QStringLiteral("light"));
    QCOMPARE(*repo.value(QStringLiteral("weather/enabled")), QStringLiteral("1"));
    QVERIFY(repo.setBool(QStringLiteral("weather/enabled"), false));
    QCOMPARE(*repo.value(QStringLiteral("weather/enabled")), QStringLiteral("0"));
    QCOMPARE(scalar(QStringLiteral("SELECT COUNT(*) FROM settings WHERE key = 'ui/theme'")).toInt(), 1);
    QCOMPARE(scalar(QStringLiteral("SELECT type FROM settings WHERE key = 'ui/theme'")).toString(),
             QStringLiteral("string"));
    QVERIFY(repo.remove(QStringLiteral("ui/theme")));
    QVERIFY(!repo.value(QStringLiteral("ui/theme")));

    QCOMPARE(spy.size(), 5);
    QStringList keys;
    for (const QList<QVariant> &arguments : std::as_const(spy))
        keys.append(arguments.at(0).toString());
    QCOMPARE(keys, (QStringList{"ui/theme", "ui/theme", "weather/enabled", "weather/enabled", "ui/theme"}));

    // A refused write changes nothing and says nothing.
    QVERIFY(exec(QStringLiteral("CREATE TRIGGER refuse BEFORE INSERT ON settings BEGIN SELECT RAISE(ABORT, 'no'); "
                                "END")));
    QVERIFY(!repo.setValue(QStringLiteral("ui/new"), QStringLiteral("x")));
    QCOMPARE(spy.size(), 5);
    QVERIFY(!repo.value(QStringLiteral("ui/new")));
}

void TestConfigRepositories::failedWritesLogAndStayQuiet_data()
{
    // The row name is the operation tried.
    QTest::addColumn<QString>("warning"); // empty: the failure is silent
    QTest::newRow("account insert") << QStringLiteral("AccountRepository::insert failed:");
    QTest::newRow("account update") << QStringLiteral("AccountRepository::update failed:");
    QTest::newRow("account remove") << QStringLiteral("AccountRepository::remove failed:");
    QTest::newRow("calendar insert") << QStringLiteral("CalendarRepository::insert failed:");
    QTest::newRow("view insert") << QStringLiteral("ViewRepository::insert failed:");
    QTest::newRow("view remove") << QString();
    QTest::newRow("rule insert") << QStringLiteral("FilterRuleRepository::insert failed:");
    QTest::newRow("rule enable") << QString();
    QTest::newRow("template insert") << QStringLiteral("TemplateRepository::insert failed:");
}

void TestConfigRepositories::failedWritesLogAndStayQuiet()
{
    const QLatin1String operation(QTest::currentDataTag());
    QFETCH(QString, warning);
    AccountRepository accounts(m_database.get());
    CalendarRepository calendars(m_database.get());
    ViewRepository views(m_database.get());
    FilterRuleRepository rules(m_database.get());
    TemplateRepository templates(m_database.get());
    QVERIFY(accounts.insert(makeAccount(QStringLiteral("acc"), QStringLiteral("Acc"))));
    QVERIFY(accounts.insert(makeAccount(QStringLiteral("dead"), QStringLiteral("Dead"))));
    QVERIFY(accounts.remove(QStringLiteral("dead")));
    QVERIFY(calendars.insert(makeCalendar(QStringLiteral("cal"), QStringLiteral("acc"), QStringLiteral("Cal"))));
    QVERIFY(views.insert(makeView(QStringLiteral("v"), QStringLiteral("V"))));
    QVERIFY(rules.insert(makeRule(QStringLiteral("r"), QStringLiteral("R"))));
    Template preset;
    preset.id = QStringLiteral("t");
    preset.name = QStringLiteral("T");
    preset.title = QStringLiteral("T");
    QVERIFY(templates.insert(preset));

    // Every write to these tables is refused from here on.
    const QStringList tables
        = {QStringLiteral("accounts"), QStringLiteral("calendars"), QStringLiteral("calendar_views"),
           QStringLiteral("filter_rules"), QStringLiteral("event_templates")};
    const QStringList verbs = {QStringLiteral("INSERT"), QStringLiteral("UPDATE"), QStringLiteral("DELETE")};
    for (const QString &table : tables) {
        for (const QString &verb : verbs) {
            QVERIFY(exec(QStringLiteral("CREATE TRIGGER refuse_%1_%2 BEFORE %2 ON %1 BEGIN SELECT RAISE(ABORT, "
                                        "'read-only test'); END")
                             .arg(table, verb)));
        }
    }
    QSignalSpy accountSpy(&accounts, &AccountRepository::accountsChanged);
    QSignalSpy calendarSpy(&calendars, &CalendarRepository::calendarsChanged);
    QSignalSpy viewSpy(&views, &ViewRepository::viewsChanged);
    QSignalSpy ruleSpy(&rules, &FilterRuleRepository::filterRulesChanged);
    QSignalSpy templateSpy(&templates, &TemplateRepository::templatesChanged);
    if (!warning.isEmpty()) {
        // The exact prefix, one blank, then the database's own error text.
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(QLatin1Char('^') + QRegularExpression::escape(warning)
                                                + QStringLiteral(" read-only test")));
    }

    bool ok = true;
    if (operation == QLatin1String("account insert"))
        ok = accounts.insert(makeAccount(QStringLiteral("new"), QStringLiteral("New")));
    else if (operation == QLatin1String("account update"))
        ok = accounts.update(makeAccount(QStringLiteral("acc"), QStringLiteral("Renamed")));
    else if (operation == QLatin1String("account remove"))
        ok = accounts.remove(QStringLiteral("acc"));
    else if (operation == QLatin1String("calendar insert"))
        ok = calendars.insert(makeCalendar(QStringLiteral("new"), QStringLiteral("acc"), QStringLiteral("New")));
    else if (operation == QLatin1String("view insert"))
        ok = views.insert(makeView(QStringLiteral("new"), QStringLiteral("New")));
    else if (operation == QLatin1String("view remove"))
        ok = views.remove(QStringLiteral("v"));
    else if (operation == QLatin1String("rule insert"))
        ok = rules.insert(makeRule(QStringLiteral("new"), QStringLiteral("New")));
    else if (operation == QLatin1String("rule enable"))
        ok = rules.setEnabled(QStringLiteral("r"), false);
    else if (operation == QLatin1String("template insert"))
        ok = templates.insert(preset).has_value();
    else
        QFAIL("unknown operation");

    QVERIFY(!ok);
    QCOMPARE(accountSpy.size() + calendarSpy.size() + viewSpy.size() + ruleSpy.size() + templateSpy.size(), 0);
}

QTEST_GUILESS_MAIN(TestConfigRepositories)
#include "tst_configrepositories.moc"
