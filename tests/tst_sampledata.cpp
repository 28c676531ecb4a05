// SPDX-License-Identifier: GPL-3.0-or-later
#include "StoreFixture.h"

#include "storage/AccountRepository.h"
#include "storage/CalendarRepository.h"
#include "storage/Clock.h"
#include "storage/EventRepository.h"
#include "storage/SampleData.h"
#include "storage/TaskRepository.h"

#include <QRegularExpression>
#include <QTimeZone>

class TestSampleData : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void seedsAccountAndCalendars();
    void eventsSitAroundToday_data();
    void eventsSitAroundToday();
    void eventTextFollowsTheTemplate();
    void tasks();
    void seedingTwiceAddsNothing();
    void removedAccountIsNotSeededAgain();
    void removeDeletesEverything();
    void removeKeepsCalendarsHoldingUserEvents();

private:
    int count(const QString &sql) const { return m_store.scalar(sql).toInt(); }
    void seed() { seedSampleData(*m_accounts, *m_calendars, *m_events, *m_tasks); }

    StoreFixture m_store;
    std::unique_ptr<AccountRepository> m_accounts;
    std::unique_ptr<CalendarRepository> m_calendars;
    std::unique_ptr<EventRepository> m_events;
    std::unique_ptr<TaskRepository> m_tasks;
};

void TestSampleData::init()
{
    QVERIFY(m_store.open());
    m_accounts = std::make_unique<AccountRepository>(m_store.database());
    m_calendars = std::make_unique<CalendarRepository>(m_store.database());
    m_events = std::make_unique<EventRepository>(m_store.database());
    m_tasks = std::make_unique<TaskRepository>(m_store.database());
    // Wednesday 12 March 2025, 10:00 in Berlin.
    Clock::setFixedNow(QDateTime(QDate(2025, 3, 12), QTime(10, 0), QTimeZone("Europe/Berlin")));
}

void TestSampleData::cleanup()
{
    m_accounts.reset();
    m_calendars.reset();
    m_events.reset();
    m_tasks.reset();
    m_store.close();
    Clock::setFixedNow(QDateTime());
}

void TestSampleData::seedsAccountAndCalendars()
{
    seed();
    QCOMPARE(m_store
                 .scalar(QStringLiteral("SELECT name || '|' || type || '|' || color FROM accounts WHERE id = "
                                        "'sample-account'"))
                 .toString(),
             QStringLiteral("Sample Data|kettlebrook|#9E9E9E"));
    QSqlQuery query(m_store.database()->connection());
    QVERIFY(query.exec(QStringLiteral(
        "SELECT id, account_id, url, supported_components FROM calendars WHERE id LIKE 'sample-%' ORDER BY id")));
    QStringList ids;
    while (query.next()) {
        const QString id = query.value(0).toString();
        ids.append(id);
        QCOMPARE(query.value(1).toString(), QStringLiteral("sample-account"));
        QCOMPARE(query.value(2).toString(), QStringLiteral("local://calendar/") + id);
        QCOMPARE(query.value(3).toString(), QStringLiteral(R"(["VEVENT"])"));
    }
    QCOMPARE(ids, (QStringList{"sample-cal-birthdays", "sample-cal-family", "sample-cal-personal", "sample-cal-work"}));
}

void TestSampleData::eventsSitAroundToday_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QString>("title");
    QTest::addColumn<int>("dayOffset");
    QTest::addColumn<QString>("rule");

    QTest::newRow("yesterday-retro") << "yesterday-retro"
                                     << "Sprint retrospective" << -1 << "";
    QTest::newRow("today-deadline") << "today-deadline"
                                    << "Project Phoenix deadline" << 0 << "";
    QTest::newRow("tom-dentist") << "tom-dentist"
                                 << "Dentist appointment" << 1 << "FREQ=WEEKLY";
    QTest::newRow("d2-redeye") << "d2-redeye"
                               << "Red-eye to Tokyo (multi-day timed)" << 2 << "";
    QTest::newRow("d6-conf") << "d6-conf"
                             << "DevConf 2026 (multi-day all-day)" << 6 << "";
}

void TestSampleData::eventsSitAroundToday()
{
    QFETCH(QString, key);
    QFETCH(QString, title);
    QFETCH(int, dayOffset);
    QFETCH(QString, rule);

    seed();
    const std::optional<Event> event = m_events->getById(QStringLiteral("sample-event-") + key);
    QVERIFY(event);
    QCOMPARE(event->uid, event->id);
    QCOMPARE(event->title, title);
    QCOMPARE(event->recurrence_rule, rule);
    QCOMPARE(event->status, QStringLiteral("confirmed"));
    QCOMPARE(event->sync_status, QStringLiteral("synced"));
    QVERIFY(event->calendar_id.startsWith(QStringLiteral("sample-cal-")));
    QVERIFY(event->end_time && *event->end_time > event->start_time);
    const QDate day = QDate(2025, 3, 12).addDays(dayOffset);
    if (event->is_all_day) {
        QCOMPARE(event->start_time, QDateTime(day, QTime(0, 0), Qt::UTC));
    } else {
        // Local clock times, stored in UTC, read back in the local zone.
        QCOMPARE(event->start_time.toLocalTime().date(), day);
        QCOMPARE(m_store.scalar(QStringLiteral("SELECT substr(start_time, 20) FROM events WHERE id = ?"), {event->id})
                     .toString(),
                 QStringLiteral("Z"));
        QCOMPARE(event->start_time.timeZone().id(), QByteArray("Europe/Berlin"));
    }
    const bool multiDay = key == QLatin1String("d2-redeye") || key == QLatin1String("d6-conf");
    const bool spansDays = event->is_all_day
        ? event->start_time.secsTo(*event->end_time) > 86400
        : event->end_time->addSecs(-1).toLocalTime().date() > event->start_time.toLocalTime().date();
    QCOMPARE(spansDays, multiDay);
}

void TestSampleData::eventTextFollowsTheTemplate()
{
    seed();
    const Event standup = *m_events->getById(QStringLiteral("sample-event-today-standup"));
    const QString expectedStart = standup.start_time.toUTC().toString(QStringLiteral("yyyyMMdd'T'HHmmss'Z'"));
    const QString expectedEnd = standup.end_time->toUTC().toString(QStringLiteral("yyyyMMdd'T'HHmmss'Z'"));
    QCOMPARE(QString::fromUtf8(standup.raw_icalendar),
             QStringLiteral("BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//Kettlebrook//Calendar Desktop//EN\r\n"
                            "BEGIN:VEVENT\r\nUID:sample-event-today-standup\r\nSUMMARY:Team standup\r\n"
                            "DTSTART:%1\r\nDTEND:%2\r\nLOCATION:%3\r\nRRULE:FREQ=DAILY;BYDAY=MO,TU,WE,TH,FR\r\n"
                            "END:VEVENT\r\nEND:VCALENDAR\r\n")
                 .arg(expectedStart, expectedEnd, standup.location));

    const QString conference
        = QString::fromUtf8(m_events->getById(QStringLiteral("sample-event-d6-conf"))->raw_icalendar);
    QVERIFY2(conference.contains(QStringLiteral("\r\nDTSTART;VALUE=DATE:20250318\r\nDTEND;VALUE=DATE:20250321\r\n")),
             qPrintable(conference));
}

void TestSampleData::tasks()
{
    seed();
    QCOMPARE(count(QStringLiteral("SELECT COUNT(*) FROM tasks WHERE id LIKE 'sample-task-%'")), 8);
    const QStringList keys{"review-mockups",   "q1-report", "anniversary",   "buy-gift",
                           "dentist-followup", "buy-milk",  "renew-license", "old-completed"};
    for (const QString &key : keys) {
        const std::optional<Task> task = m_tasks->getById(QStringLiteral("sample-task-") + key);
        QVERIFY2(task, qPrintable(key));
        QCOMPARE(task->sync_status, QStringLiteral("synced"));
        QCOMPARE(task->status,
                 key == QLatin1String("old-completed") ? QStringLiteral("completed") : QStringLiteral("needs-action"));
        QVERIFY(task->raw_icalendar.startsWith("BEGIN:VCALENDAR\r\nVERSION:2.0\r\n"));
        QVERIFY(task->raw_icalendar.endsWith("END:VTODO\r\nEND:VCALENDAR\r\n"));
    }
    const Task milk = *m_tasks->getById(QStringLiteral("sample-task-buy-milk"));
    QCOMPARE(milk.title, QStringLiteral("Buy milk"));
    QCOMPARE(QString::fromUtf8(milk.raw_icalendar),
             QStringLiteral("BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//Kettlebrook//Calendar Desktop//EN\r\n"
                            "BEGIN:VTODO\r\nUID:sample-task-buy-milk\r\nSUMMARY:Buy milk\r\nSTATUS:NEEDS-ACTION\r\n"
                            "DUE:20250312\r\nEND:VTODO\r\nEND:VCALENDAR\r\n"));
    const Task report = *m_tasks->getById(QStringLiteral("sample-task-old-completed"));
    QCOMPARE(report.title, QStringLiteral("File expense report"));
    QVERIFY(report.completed_date);
    QVERIFY(QString::fromUtf8(report.raw_icalendar).contains(QStringLiteral("\r\nSTATUS:COMPLETED\r\n")));
}

void TestSampleData::seedingTwiceAddsNothing()
{
    seed();
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
    seed();
    QCOMPARE(count(QStringLiteral("SELECT COUNT(*) FROM accounts WHERE id = 'sample-account'")), 1);
    QCOMPARE(count(QStringLiteral("SELECT COUNT(*) FROM calendars WHERE id LIKE 'sample-cal-%'")), 4);
    QCOMPARE(count(QStringLiteral("SELECT COUNT(*) FROM events WHERE id LIKE 'sample-event-%'")), 18);
    QCOMPARE(count(QStringLiteral("SELECT COUNT(*) FROM tasks WHERE id LIKE 'sample-task-%'")), 8);

    // A removed piece comes back, the rest stays as the user left it.
    QVERIFY(m_store.exec(QStringLiteral("DELETE FROM events WHERE id = 'sample-event-today-run'")));
    QVERIFY(m_store.exec(QStringLiteral("UPDATE events SET title = 'Renamed' WHERE id = 'sample-event-today-yoga'")));
    seed();
    QCOMPARE(count(QStringLiteral("SELECT COUNT(*) FROM events WHERE id LIKE 'sample-event-%'")), 18);
    QCOMPARE(m_events->getById(QStringLiteral("sample-event-today-yoga"))->title, QStringLiteral("Renamed"));
}

void TestSampleData::removedAccountIsNotSeededAgain()
{
    seed();
    // The user removed the account; its tombstone waits for configuration sync.
    QVERIFY(m_accounts->remove(QStringLiteral("sample-account")));
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
    seed();
    QVERIFY(!m_accounts->getById(QStringLiteral("sample-account")));
    QCOMPARE(count(QStringLiteral("SELECT COUNT(*) FROM accounts WHERE id = 'sample-account'")), 1);
}

void TestSampleData::removeDeletesEverything()
{
    QVERIFY(m_store.addCalendar(QStringLiteral("mine")));
    seed();
    QCOMPARE(removeSampleData(*m_store.database()), 18 + 8 + 4 + 1);
    QCOMPARE(count(QStringLiteral("SELECT COUNT(*) FROM events")), 0);
    QCOMPARE(count(QStringLiteral("SELECT COUNT(*) FROM tasks")), 0);
    QCOMPARE(count(QStringLiteral("SELECT COUNT(*) FROM calendars")), 1);
    QCOMPARE(count(QStringLiteral("SELECT COUNT(*) FROM accounts")), 1);
    QCOMPARE(removeSampleData(*m_store.database()), 0);
}

void TestSampleData::removeKeepsCalendarsHoldingUserEvents()
{
    seed();
    Event mine;
    mine.id = QStringLiteral("my-own");
    mine.uid = mine.id;
    mine.calendar_id = QStringLiteral("sample-cal-work");
    mine.title = QStringLiteral("Mine");
    mine.start_time = QDateTime(QDate(2025, 3, 12), QTime(9, 0), Qt::UTC);
    QVERIFY(m_events->insert(mine));

    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression(QStringLiteral("^Sample data statement failed: FOREIGN KEY")));
    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression(QStringLiteral("^Sample data statement failed: FOREIGN KEY")));
    QCOMPARE(removeSampleData(*m_store.database()), 18 + 8);
    QCOMPARE(count(QStringLiteral("SELECT COUNT(*) FROM calendars WHERE id LIKE 'sample-cal-%'")), 4);
    QVERIFY(m_events->getById(mine.id));
}

QTEST_GUILESS_MAIN(TestSampleData)
#include "tst_sampledata.moc"
