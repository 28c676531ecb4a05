// SPDX-License-Identifier: GPL-3.0-or-later
#include "StoreFixture.h"

#include "ical/Recurrence.h"
#include "storage/Clock.h"
#include "storage/EventRepository.h"

#include <QLoggingCategory>
#include <QRegularExpression>
#include <QTimeZone>

using namespace Qt::StringLiterals;

// Editing an occurrence "and all that follow" through a real event repository over a database.
class TestSeriesSplit : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void split_data();
    void split();
    void newSeriesWithoutEnd();
    void failedMasterUpdateWritesNothing();
    void failedInsertLeavesMasterEnded();

private:
    Event storedMaster(const QString &rule);
    int eventCount() const { return m_store.scalar(u"SELECT COUNT(*) FROM events"_s).toInt(); }

    StoreFixture m_store;
    std::unique_ptr<EventRepository> m_repository;
    const QDateTime m_now = QDateTime(QDate(2024, 5, 1), QTime(12, 0), Qt::UTC);
};

namespace {

const QTimeZone &berlin()
{
    static const QTimeZone zone("Europe/Berlin");
    return zone;
}

QDateTime inBerlin(int year, int month, int day, int hour)
{
    return QDateTime(QDate(year, month, day), QTime(hour, 0), berlin());
}

} // namespace

void TestSeriesSplit::initTestCase()
{
    // Every test opens a fresh database; its migration log lines would drown the results.
    QLoggingCategory::setFilterRules(u"calendar.database.info=false"_s);
}

void TestSeriesSplit::init()
{
    Clock::setFixedNow(m_now);
    QVERIFY(m_store.open());
    QVERIFY(m_store.addCalendar(u"cal"_s, u"Home"_s));
    m_repository = std::make_unique<EventRepository>(m_store.database());
}

void TestSeriesSplit::cleanup()
{
    m_repository.reset();
    m_store.close();
    Clock::setFixedNow(QDateTime());
}

Event TestSeriesSplit::storedMaster(const QString &rule)
{
    Event master;
    master.id = u"master-id"_s;
    master.uid = u"master-uid"_s;
    master.calendar_id = u"cal"_s;
    master.title = u"Jour fixe"_s;
    master.description = u"Weekly round"_s;
    master.location = u"Room 4.12"_s;
    master.color = u"#336699"_s;
    master.timezone = u"Europe/Berlin"_s;
    master.status = u"tentative"_s;
    master.organizer_email = u"anna@example.com"_s;
    master.organizer_name = u"Anna"_s;
    master.start_time = inBerlin(2024, 1, 1, 9);
    master.end_time = inBerlin(2024, 1, 1, 10);
    master.recurrence_rule = rule;
    master.sequence = 2;
    master.sync_status = u"synced"_s;
    master.href = u"/cal/master.ics"_s;
    master.raw_icalendar = "BEGIN:VCALENDAR\r\nEND:VCALENDAR\r\n";
    master.created = QDateTime(QDate(2023, 12, 1), QTime(8, 0), Qt::UTC);
    master.last_modified = master.created;
    if (!m_repository->insert(master))
        qWarning("the master could not be stored");
    return master;
}

void TestSeriesSplit::split_data()
{
    QTest::addColumn<QString>("rule");
    QTest::addColumn<QString>("endedRule");
    QTest::addColumn<QString>("newRule");

    // The split is at 5 February 09:00 Berlin (08:00 UTC): the old series may run until one second before.
    QTest::newRow("count") << "FREQ=WEEKLY;COUNT=10;BYDAY=MO"
                           << "FREQ=WEEKLY;BYDAY=MO;UNTIL=20240205T075959Z"
                           << "FREQ=WEEKLY;BYDAY=MO";
    QTest::newRow("open-ended") << "FREQ=WEEKLY"
                                << "FREQ=WEEKLY;UNTIL=20240205T075959Z"
                                << "FREQ=WEEKLY";
}

void TestSeriesSplit::split()
{
    QFETCH(QString, rule);
    QFETCH(QString, endedRule);
    QFETCH(QString, newRule);

    const Event master = storedMaster(rule);
    const std::optional<Event> created = Recurrence::splitSeries(*m_repository, master, inBerlin(2024, 2, 5, 9),
                                                                 inBerlin(2024, 2, 5, 10), inBerlin(2024, 2, 5, 12));
    QVERIFY(created.has_value());

    const std::optional<Event> ended = m_repository->getById(master.id);
    QVERIFY(ended.has_value());
    QCOMPARE(ended->recurrence_rule, endedRule);
    QCOMPARE(ended->sequence, 3);
    QCOMPARE(ended->sync_status, u"pending"_s);
    QCOMPARE(ended->last_modified, m_now);
    QCOMPARE(ended->start_time, master.start_time);
    QCOMPARE(ended->uid, master.uid);

    QVERIFY(QRegularExpression(u"^[0-9a-f]{8}-[0-9a-f]{4}-[0-9a-f]{4}-[0-9a-f]{4}-[0-9a-f]{12}$"_s)
                .match(created->id)
                .hasMatch());
    const std::optional<Event> stored = m_repository->getById(created->id);
    QVERIFY(stored.has_value());
    for (const Event &series : {*created, *stored}) {
        QCOMPARE(series.uid, created->id);
        QCOMPARE(series.recurrence_rule, newRule);
        QCOMPARE(series.calendar_id, master.calendar_id);
        QCOMPARE(series.title, master.title);
        QCOMPARE(series.description, master.description);
        QCOMPARE(series.location, master.location);
        QCOMPARE(series.color, master.color);
        QCOMPARE(series.timezone, master.timezone);
        QCOMPARE(series.status, master.status);
        QCOMPARE(series.organizer_email, master.organizer_email);
        QCOMPARE(series.organizer_name, master.organizer_name);
        QCOMPARE(series.is_all_day, master.is_all_day);
        QCOMPARE(series.start_time, inBerlin(2024, 2, 5, 10));
        QCOMPARE(series.end_time, std::optional(inBerlin(2024, 2, 5, 12)));
        QCOMPARE(series.created, m_now);
        QCOMPARE(series.sync_status, u"pending"_s);
        QCOMPARE(series.sequence, 0);
        QVERIFY(series.href.isEmpty());
        QVERIFY(series.recurrence_id.isEmpty());
    }
    QCOMPARE(eventCount(), 2);

    // The two series meet without overlap: the old one's last occurrence is the Monday before.
    const QList<Event> shown
        = Recurrence::expandEvents({*ended, *stored}, QDateTime(QDate(2024, 1, 29), QTime(0, 0), Qt::UTC),
                                   QDateTime(QDate(2024, 2, 13), QTime(0, 0), Qt::UTC));
    QStringList starts;
    for (const Event &occurrence : shown)
        starts.append(occurrence.start_time.toUTC().toString(Qt::ISODate));
    QCOMPARE(starts.first(), u"2024-01-29T08:00:00Z"_s);
    QVERIFY(!starts.contains(u"2024-02-05T08:00:00Z"_s));
    QVERIFY(starts.contains(u"2024-02-05T09:00:00Z"_s));
}

void TestSeriesSplit::newSeriesWithoutEnd()
{
    const Event master = storedMaster(u"FREQ=DAILY"_s);
    const std::optional<Event> created = Recurrence::splitSeries(*m_repository, master, inBerlin(2024, 3, 1, 9),
                                                                 inBerlin(2024, 3, 1, 9), std::nullopt);
    QVERIFY(created.has_value());
    QVERIFY(!created->end_time.has_value());
    const std::optional<Event> stored = m_repository->getById(created->id);
    QVERIFY(stored.has_value());
    QVERIFY(!stored->end_time.has_value());
}

void TestSeriesSplit::failedMasterUpdateWritesNothing()
{
    const Event master = storedMaster(u"FREQ=WEEKLY;COUNT=10"_s);
    QVERIFY(m_store.exec(
        u"CREATE TRIGGER refuse_update BEFORE UPDATE ON events BEGIN SELECT RAISE(ABORT, 'refused'); END"_s));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"EventRepository::update failed:"_s));
    const std::optional<Event> created = Recurrence::splitSeries(*m_repository, master, inBerlin(2024, 2, 5, 9),
                                                                 inBerlin(2024, 2, 5, 9), std::nullopt);
    QVERIFY(!created.has_value());
    QCOMPARE(eventCount(), 1);
    QCOMPARE(m_repository->getById(master.id)->recurrence_rule, u"FREQ=WEEKLY;COUNT=10"_s);
}

void TestSeriesSplit::failedInsertLeavesMasterEnded()
{
    const Event master = storedMaster(u"FREQ=WEEKLY;COUNT=10"_s);
    QVERIFY(m_store.exec(
        u"CREATE TRIGGER refuse_insert BEFORE INSERT ON events BEGIN SELECT RAISE(ABORT, 'refused'); END"_s));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(u"EventRepository::insert failed:"_s));
    const std::optional<Event> created = Recurrence::splitSeries(*m_repository, master, inBerlin(2024, 2, 5, 9),
                                                                 inBerlin(2024, 2, 5, 9), std::nullopt);
    QVERIFY(!created.has_value());
    QCOMPARE(eventCount(), 1);
    QCOMPARE(m_repository->getById(master.id)->recurrence_rule, u"FREQ=WEEKLY;UNTIL=20240205T075959Z"_s);
}

QTEST_GUILESS_MAIN(TestSeriesSplit)
#include "tst_seriessplit.moc"
