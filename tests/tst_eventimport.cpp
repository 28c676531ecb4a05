// SPDX-License-Identifier: GPL-3.0-or-later
#include "StoreFixture.h"

#include "storage/Clock.h"
#include "storage/EventImport.h"
#include "storage/EventRepository.h"

#include <QRegularExpression>
#include <QTimeZone>

namespace {

QString fixture(const QString &name)
{
    return QStringLiteral(KB_TEST_DATA_DIR "/import/") + name;
}

const QRegularExpression kUuid(QStringLiteral("^[0-9a-f]{8}-[0-9a-f]{4}-[0-9a-f]{4}-[0-9a-f]{4}-[0-9a-f]{12}$"));

} // namespace

class TestEventImport : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void newEventsAreInserted();
    void knownEventsAreUpdated();
    void laterVersionOfAFile();
    void sameFileIntoAnotherCalendar();
    void duplicatesWithinOneFile();
    void refusedInput_data();
    void refusedInput();
    void failureMidwayLeavesTheCalendarAsItWas();
    void progressIsReported();
    void summary_data();
    void summary();

private:
    int eventCount() const { return m_store.scalar(QStringLiteral("SELECT COUNT(*) FROM events")).toInt(); }
    EventImport::Result import(const QString &name, const QString &calendarId = QStringLiteral("work"))
    {
        return EventImport::importFile(*m_store.database(), *m_repo, fixture(name), calendarId);
    }

    StoreFixture m_store;
    std::unique_ptr<EventRepository> m_repo;
};

void TestEventImport::init()
{
    QVERIFY(m_store.open());
    QVERIFY(m_store.addCalendar(QStringLiteral("work"), QStringLiteral("Work")));
    QVERIFY(m_store.addCalendar(QStringLiteral("home"), QStringLiteral("Home")));
    m_repo = std::make_unique<EventRepository>(m_store.database());
    Clock::setFixedNow(QDateTime(QDate(2025, 3, 12), QTime(12, 0), Qt::UTC));
}

void TestEventImport::cleanup()
{
    m_repo.reset();
    m_store.close();
    Clock::setFixedNow(QDateTime());
}

void TestEventImport::newEventsAreInserted()
{
    const EventImport::Result result = import(QStringLiteral("three-events.ics"));
    QCOMPARE(result.error, QString());
    QCOMPARE(result.imported, 3);
    QCOMPARE(result.updated, 0);
    QCOMPARE(eventCount(), 3);
    // Tasks in the file are not imported.
    QCOMPARE(m_store.scalar(QStringLiteral("SELECT COUNT(*) FROM tasks")).toInt(), 0);

    const QList<Event> events = m_repo->getByCalendar(QStringLiteral("work"));
    QCOMPARE(events.size(), 3);
    for (const Event &event : events) {
        QVERIFY(kUuid.match(event.id).hasMatch());
        QVERIFY(event.id != event.uid);
        QCOMPARE(event.calendar_id, QStringLiteral("work"));
        QCOMPARE(event.sync_status, QStringLiteral("pending"));
        QCOMPARE(event.last_modified, Clock::nowUtc());
        QVERIFY(event.href.isEmpty());
    }
    const Event override = *m_repo->getByUidAndRecurrenceId(QStringLiteral("standup@example.com"),
                                                            QStringLiteral("work"), QStringLiteral("20250312T083000Z"));
    QCOMPARE(override.title, QStringLiteral("Standup (moved)"));
    QCOMPARE(override.master_event_uid, QStringLiteral("standup@example.com"));
    const Event dinner = *m_repo->getByUid(QStringLiteral("dinner@example.com"), QStringLiteral("work"));
    // The event's own text is kept, alarm included, for a later upload.
    QVERIFY(dinner.raw_icalendar.contains("BEGIN:VALARM\r\nACTION:DISPLAY\r\nTRIGGER:-PT30M\r\nEND:VALARM\r\n"));
}

void TestEventImport::knownEventsAreUpdated()
{
    QCOMPARE(import(QStringLiteral("three-events.ics")).imported, 3);
    Event dinner = *m_repo->getByUid(QStringLiteral("dinner@example.com"), QStringLiteral("work"));
    // As the sync would leave it after pushing, then the user's own additions.
    QVERIFY(m_repo->markSynced(dinner.id, QStringLiteral("/dav/work/dinner.ics"), QStringLiteral("\"3\"")));
    dinner = *m_repo->getById(dinner.id);
    Reminder reminder;
    reminder.minutes_before = 45;
    dinner.reminders = {reminder};
    dinner.color = QStringLiteral("#FF0000");
    dinner.sync_status = QStringLiteral("synced");
    QVERIFY(m_repo->update(dinner));
    const Event standup
        = *m_repo->getByUidAndRecurrenceId(QStringLiteral("standup@example.com"), QStringLiteral("work"), QString());
    QVERIFY(m_repo->remove(standup.id));

    Clock::setFixedNow(QDateTime(QDate(2025, 3, 13), QTime(8, 0), Qt::UTC));
    const EventImport::Result again = import(QStringLiteral("three-events.ics"));
    QCOMPARE(again.error, QString());
    QCOMPARE(again.imported, 0);
    QCOMPARE(again.updated, 3);
    QCOMPARE(eventCount(), 3);

    const Event after = *m_repo->getById(dinner.id);
    QCOMPARE(after.href, QStringLiteral("/dav/work/dinner.ics"));
    QCOMPARE(after.etag, QStringLiteral("\"3\""));
    QCOMPARE(after.sync_status, QStringLiteral("pending"));
    QCOMPARE(after.color, QStringLiteral("#FF0000"));
    QCOMPARE(after.reminders.size(), 1);
    QCOMPARE(after.reminders.constFirst().minutes_before, 45);
    QCOMPARE(after.created, dinner.created);
    QCOMPARE(after.last_modified, Clock::nowUtc());
    // A deleted event that is imported again is back.
    QVERIFY(!m_repo->getById(standup.id)->deleted_at);
}

void TestEventImport::laterVersionOfAFile()
{
    QCOMPARE(import(QStringLiteral("three-events.ics")).imported, 3);
    const QString standupId
        = m_repo->getByUidAndRecurrenceId(QStringLiteral("standup@example.com"), QStringLiteral("work"), QString())->id;
    const EventImport::Result result = import(QStringLiteral("three-events-later.ics"));
    QCOMPARE(result.imported, 1);
    QCOMPARE(result.updated, 1);
    QCOMPARE(EventImport::summary(result, QStringLiteral("Work")), QStringLiteral("Imported 1 and updated 1 in Work."));
    QCOMPARE(m_repo->getById(standupId)->title, QStringLiteral("Daily standup"));
    QCOMPARE(eventCount(), 4);
}

void TestEventImport::sameFileIntoAnotherCalendar()
{
    QCOMPARE(import(QStringLiteral("three-events.ics")).imported, 3);
    const EventImport::Result result = import(QStringLiteral("three-events.ics"), QStringLiteral("home"));
    QCOMPARE(result.imported, 3);
    QCOMPARE(result.updated, 0);
    QCOMPARE(m_repo->getByCalendar(QStringLiteral("home")).size(), 3);
    QCOMPARE(m_repo->getByCalendar(QStringLiteral("work")).size(), 3);
}

void TestEventImport::duplicatesWithinOneFile()
{
    const EventImport::Result result = import(QStringLiteral("duplicate-uid.ics"));
    QCOMPARE(result.error, QString());
    QCOMPARE(result.imported, 2);
    QCOMPARE(result.updated, 0);
    const Event twice = *m_repo->getByUid(QStringLiteral("twice@example.com"), QStringLiteral("work"));
    QCOMPARE(twice.title, QStringLiteral("Second copy"));
    QCOMPARE(eventCount(), 2);
}

void TestEventImport::refusedInput_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("calendar");
    QTest::addColumn<QString>("error");

    QTest::newRow("empty file") << "empty.ics"
                                << "work"
                                << "The file empty.ics is empty.";
    QTest::newRow("not iCalendar") << "not-icalendar.csv.ics"
                                   << "work"
                                   << "The file not-icalendar.csv.ics is not an iCalendar file.";
    QTest::newRow("only tasks") << "tasks-only.ics"
                                << "work"
                                << "The file tasks-only.ics holds no events.";
    QTest::newRow("missing file") << "no-such-file.ics"
                                  << "work"
                                  << "Cannot read " KB_TEST_DATA_DIR "/import/no-such-file.ics: No such file or "
                                     "directory";
    QTest::newRow("unknown calendar") << "one-event.ics"
                                      << "nowhere"
                                      << "There is no calendar nowhere.";
    QTest::newRow("read-only calendar") << "one-event.ics"
                                        << "feed"
                                        << "The calendar feed is read-only.";
}

void TestEventImport::refusedInput()
{
    QFETCH(QString, file);
    QFETCH(QString, calendar);
    QFETCH(QString, error);

    QVERIFY(m_store.addCalendar(QStringLiteral("feed")));
    QVERIFY(m_store.exec(QStringLiteral("UPDATE calendars SET is_read_only = 1 WHERE id = 'feed'")));
    const EventImport::Result result = import(file, calendar);
    QCOMPARE(result.error, error);
    QCOMPARE(result.imported, 0);
    QCOMPARE(result.updated, 0);
    QCOMPARE(eventCount(), 0);
}

void TestEventImport::failureMidwayLeavesTheCalendarAsItWas()
{
    QCOMPARE(import(QStringLiteral("one-event.ics")).imported, 1);
    const QList<Event> before = m_repo->getByCalendar(QStringLiteral("work"));

    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression(QStringLiteral(
                             "^EventRepository::insert failed: NOT NULL constraint failed: events.start_time")));
    const EventImport::Result result = import(QStringLiteral("event-with-unreadable-start.ics"));
    QCOMPARE(result.error,
             QStringLiteral("Could not store the event \"Broken\" from event-with-unreadable-start.ics; "
                            "nothing was imported."));
    QCOMPARE(result.imported, 0);
    QCOMPARE(result.updated, 0);
    // The first good event of the file was stored before the failure, and is gone again.
    QCOMPARE(m_repo->getByCalendar(QStringLiteral("work")), before);
    QVERIFY(!m_repo->getByUid(QStringLiteral("good-1@example.com"), QStringLiteral("work")));

    // The connection is usable afterwards, outside any transaction.
    QVERIFY(!m_store.database()->connection().rollback());
    QCOMPARE(import(QStringLiteral("three-events.ics")).imported, 3);
}

void TestEventImport::progressIsReported()
{
    QList<std::pair<int, int>> calls;
    const EventImport::Result result
        = EventImport::importFile(*m_store.database(), *m_repo, fixture(QStringLiteral("three-events.ics")),
                                  QStringLiteral("work"), [&calls](int done, int total) {
                                      calls.append({done, total});
                                  });
    QCOMPARE(result.imported, 3);
    QCOMPARE(calls, (QList<std::pair<int, int>>{{3, 3}}));
}

void TestEventImport::summary_data()
{
    QTest::addColumn<int>("imported");
    QTest::addColumn<int>("updated");
    QTest::addColumn<QString>("sentence");

    QTest::newRow("one new") << 1 << 0 << "Imported 1 event into Personal.";
    QTest::newRow("several new") << 3 << 0 << "Imported 3 events into Personal.";
    QTest::newRow("one updated") << 0 << 1 << "Updated 1 existing event in Personal.";
    QTest::newRow("both") << 2 << 5 << "Imported 2 and updated 5 in Personal.";
}

void TestEventImport::summary()
{
    QFETCH(int, imported);
    QFETCH(int, updated);
    QFETCH(QString, sentence);
    QCOMPARE(EventImport::summary(EventImport::Result{imported, updated, QString()}, QStringLiteral("Personal")),
             sentence);
}

QTEST_GUILESS_MAIN(TestEventImport)
#include "tst_eventimport.moc"
