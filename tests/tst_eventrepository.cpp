// SPDX-License-Identifier: GPL-3.0-or-later
#include "StoreFixture.h"

#include "storage/Clock.h"
#include "storage/EventRepository.h"

#include <QFile>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTimeZone>

#ifdef Q_OS_UNIX
#include <sys/stat.h>
#endif

namespace {

const QRegularExpression kUuid(QStringLiteral("^[0-9a-f]{8}-[0-9a-f]{4}-[0-9a-f]{4}-[0-9a-f]{4}-[0-9a-f]{12}$"));

QDateTime utc(const QString &text)
{
    QDateTime value = QDateTime::fromString(text, Qt::ISODate);
    value.setTimeZone(QTimeZone::utc());
    return value;
}

Event makeEvent(const QString &id, const QString &calendarId, const QDateTime &start,
                const std::optional<QDateTime> &end, const QString &rule = QString())
{
    Event event;
    event.id = id;
    event.uid = id + QStringLiteral("@test");
    event.calendar_id = calendarId;
    event.title = id;
    event.start_time = start;
    event.end_time = end;
    event.recurrence_rule = rule;
    event.raw_icalendar = "BEGIN:VCALENDAR\r\nEND:VCALENDAR\r\n";
    event.created = utc(QStringLiteral("2025-01-01T00:00:00"));
    event.last_modified = event.created;
    return event;
}

QStringList idsOf(const QList<Event> &events)
{
    QStringList ids;
    for (const Event &event : events)
        ids.append(event.id);
    return ids;
}

} // namespace

class TestEventRepository : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void fullRecordRoundTrip();
    void timesAndZones_data();
    void timesAndZones();
    void recordWithoutTimestampsIsStampedOnInsert();
    void zoneNameThatIsAPathIsNeverOpened();
    void rangeSemantics_data();
    void rangeSemantics();
    void childRowsOfOneEvent();
    void childRowsInBatch();
    void updateReplacesChildRows();
    void updateBindsPendingAndNow();
    void tombstonesAreHidden();
    void undoDeleteOfPushedEvent();
    void undoDeleteAfterPurge();
    void hardDeleteRemovesChildRows();
    void markSynced();
    void uniqueKey_data();
    void uniqueKey();
    void recurrenceIdLookupTreatsNullAsEmpty();
    void search_data();
    void search();
    void changeSignalIsCoalesced();
    void failedChangeSendsNoSignal();
    void repositoryOutlivesTheDatabase();

private:
    StoreFixture m_store;
    std::unique_ptr<EventRepository> m_repo;
};

void TestEventRepository::init()
{
    QVERIFY(m_store.open());
    QVERIFY(m_store.addCalendar(QStringLiteral("cal-a")));
    QVERIFY(m_store.addCalendar(QStringLiteral("cal-b")));
    m_repo = std::make_unique<EventRepository>(m_store.database());
    Clock::setFixedNow(utc(QStringLiteral("2025-03-12T12:00:00")));
}

void TestEventRepository::cleanup()
{
    m_repo.reset();
    m_store.close();
    Clock::setFixedNow(QDateTime());
}

void TestEventRepository::fullRecordRoundTrip()
{
    const QTimeZone berlin("Europe/Berlin");
    Event event
        = makeEvent(QStringLiteral("e1"), QStringLiteral("cal-a"), QDateTime(QDate(2025, 3, 14), QTime(10, 30), berlin),
                    QDateTime(QDate(2025, 3, 14), QTime(11, 45), berlin), QStringLiteral("FREQ=WEEKLY"));
    event.timezone = QStringLiteral("Europe/Berlin");
    event.provider_event_id = QStringLiteral("prov-1");
    event.etag = QStringLiteral("\"etag-1\"");
    event.href = QStringLiteral("/cal/e1.ics");
    event.description = QStringLiteral("Line one\nLine two");
    event.location = QStringLiteral("Café Zentral");
    event.geo_location = QStringLiteral("52.5;13.4");
    event.is_all_day = true;
    event.recurrence_dates = QStringLiteral("[\"20250321\"]");
    event.exception_dates = QStringLiteral("[\"20250328T093000Z\"]");
    event.recurrence_id = QStringLiteral("20250314T093000Z");
    event.master_event_uid = QStringLiteral("master@test");
    event.status = QStringLiteral("tentative");
    event.event_url = QStringLiteral("https://example.org/e1");
    event.conference_url = QStringLiteral("https://meet.example.org/x");
    event.organizer_email = QStringLiteral("ana@example.org");
    event.organizer_name = QStringLiteral("Ana Müller");
    event.sequence = 7;
    event.raw_icalendar = QStringLiteral("BEGIN:VCALENDAR\r\nSUMMARY:Zürich ☕\r\nEND:VCALENDAR\r\n").toUtf8();
    event.color = QStringLiteral("#336699");
    event.sync_status = QStringLiteral("pending");
    event.related_to_uid = QStringLiteral("task-7");
    Reminder reminder;
    reminder.id = QStringLiteral("r1");
    reminder.event_id = event.id;
    reminder.minutes_before = 10;
    reminder.action = QStringLiteral("audio");
    reminder.acknowledged = true;
    reminder.trigger_time = utc(QStringLiteral("2025-03-14T09:20:00"));
    event.reminders = {reminder};
    Attendee attendee;
    attendee.id = QStringLiteral("a1");
    attendee.event_id = event.id;
    attendee.email = QStringLiteral("bo@example.org");
    attendee.name = QStringLiteral("Bo");
    attendee.role = QStringLiteral("optional");
    attendee.status = QStringLiteral("accepted");
    attendee.type = QStringLiteral("individual");
    attendee.rsvp = true;
    event.attendees = {attendee};

    QVERIFY(m_repo->insert(event));
    const std::optional<Event> back = m_repo->getById(event.id);
    QVERIFY(back);
    QCOMPARE(*back, event);
    QCOMPARE(back->start_time.timeZone().id(), QByteArray("Europe/Berlin"));
    // The iCalendar text is stored as text, not as a blob, and keeps its UTF-8 characters.
    QCOMPARE(m_store.scalar(QStringLiteral("SELECT typeof(raw_icalendar) FROM events")).toString(), "text");
    QVERIFY(m_store.scalar(QStringLiteral("SELECT raw_icalendar FROM events")).toString().contains(u"Zürich ☕"));
}

void TestEventRepository::timesAndZones_data()
{
    QTest::addColumn<QString>("timezone");
    QTest::addColumn<QDateTime>("start");
    QTest::addColumn<QString>("storedStart");
    QTest::addColumn<QByteArray>("readZone"); // empty: not converted into a zone
    QTest::addColumn<int>("readOffset");

    const QDateTime berlinStart(QDate(2025, 3, 14), QTime(10, 30), QTimeZone("Europe/Berlin"));
    const QDateTime utcStart = utc(QStringLiteral("2025-03-14T09:30:00"));
    QTest::newRow("utc") << "UTC" << utcStart << "2025-03-14T09:30:00Z" << QByteArray() << 0;
    QTest::newRow("zone") << "Europe/Berlin" << berlinStart << "2025-03-14T10:30:00+01:00"
                          << QByteArray("Europe/Berlin") << 3600;
    QTest::newRow("zone named, stored in utc")
        << "Europe/Berlin" << utcStart << "2025-03-14T09:30:00Z" << QByteArray("Europe/Berlin") << 3600;
    QTest::newRow("no zone name") << "" << berlinStart << "2025-03-14T10:30:00+01:00" << QByteArray() << 3600;
}

void TestEventRepository::timesAndZones()
{
    QFETCH(QString, timezone);
    QFETCH(QDateTime, start);
    QFETCH(QString, storedStart);
    QFETCH(QByteArray, readZone);
    QFETCH(int, readOffset);

    Event event = makeEvent(QStringLiteral("z"), QStringLiteral("cal-a"), start, start.addSecs(3600));
    event.timezone = timezone;
    QVERIFY(m_repo->insert(event));
    QCOMPARE(m_store.scalar(QStringLiteral("SELECT start_time FROM events")).toString(), storedStart);

    const Event back = *m_repo->getById(event.id);
    QCOMPARE(back.start_time, start);
    QCOMPARE(*back.end_time, start.addSecs(3600));
    QCOMPARE(back.start_time.offsetFromUtc(), readOffset);
    QCOMPARE(back.end_time->offsetFromUtc(), readOffset);
    if (readZone.isEmpty()) {
        QVERIFY(back.start_time.timeSpec() != Qt::TimeZone);
    } else {
        QCOMPARE(back.start_time.timeZone().id(), readZone);
        QCOMPARE(back.end_time->timeZone().id(), readZone);
    }

    // Without an end the column is NULL and reads back absent.
    event.end_time.reset();
    QVERIFY(m_repo->update(event));
    QVERIFY(m_store.scalar(QStringLiteral("SELECT end_time IS NULL FROM events")).toBool());
    QVERIFY(!m_repo->getById(event.id)->end_time.has_value());
}

void TestEventRepository::recordWithoutTimestampsIsStampedOnInsert()
{
    Event event = makeEvent(QStringLiteral("e"), QStringLiteral("cal-a"), utc(QStringLiteral("2025-03-14T09:00:00")),
                            std::nullopt);
    event.created = QDateTime();
    event.last_modified = QDateTime();
    event.sync_status.clear();
    event.title.clear(); // a NOT NULL column gets empty text, not NULL
    QVERIFY(m_repo->insert(event));
    const Event back = *m_repo->getById(event.id);
    QCOMPARE(back.created, Clock::nowUtc());
    QCOMPARE(back.last_modified, Clock::nowUtc());
    QCOMPARE(back.sync_status, QStringLiteral("synced"));
}

void TestEventRepository::zoneNameThatIsAPathIsNeverOpened()
{
#ifdef Q_OS_UNIX
    // A zone name from someone else's calendar that leads out of the zone folder to a pipe nobody
    // writes to: opening it would block the reading of every span for good.
    QTemporaryDir dir;
    const QString fifo = dir.filePath(QStringLiteral("zone"));
    QCOMPARE(::mkfifo(QFile::encodeName(fifo).constData(), 0600), 0);
    const QDateTime start = utc(QStringLiteral("2025-03-14T09:00:00"));
    Event event = makeEvent(QStringLiteral("z"), QStringLiteral("cal-a"), start, start.addSecs(3600));
    event.timezone = QStringLiteral("../../../../../../../..") + fifo;
    QVERIFY(m_repo->insert(event));
    const std::optional<Event> read = m_repo->getById(event.id);
    QVERIFY(read);
    QCOMPARE(read->start_time.toUTC(), event.start_time.toUTC());
    QCOMPARE(read->timezone, event.timezone);
#else
    QSKIP("named pipes are a Unix matter");
#endif
}

void TestEventRepository::rangeSemantics_data()
{
    QTest::addColumn<QDateTime>("start");
    QTest::addColumn<QDateTime>("end");
    QTest::addColumn<QStringList>("calendars");
    QTest::addColumn<QStringList>("expected");

    const QDateTime weekStart = utc(QStringLiteral("2025-03-10T09:00:00"));
    const QDateTime weekEnd = utc(QStringLiteral("2025-03-17T09:00:00"));
    const QStringList everything{"master-last-year", "no-end", "overlaps-start", "inside", "other-calendar"};
    QTest::newRow("week, every calendar") << weekStart << weekEnd << QStringList() << everything;
    QTest::newRow("one calendar") << weekStart << weekEnd << QStringList{"cal-a"}
                                  << QStringList{"master-last-year", "no-end", "overlaps-start", "inside"};
    QTest::newRow("range starts where an event ends")
        << utc(QStringLiteral("2025-03-10T09:30:00")) << weekEnd << QStringList()
        << QStringList{"master-last-year", "no-end", "inside", "other-calendar"};
    QTest::newRow("end one second later")
        << weekStart << weekEnd.addSecs(1) << QStringList()
        << QStringList{"master-last-year", "no-end", "overlaps-start", "inside", "other-calendar", "starts-at-end"};
}

void TestEventRepository::rangeSemantics()
{
    QFETCH(QDateTime, start);
    QFETCH(QDateTime, end);
    QFETCH(QStringList, calendars);
    QFETCH(QStringList, expected);

    const QString a = QStringLiteral("cal-a");
    QList<Event> events{
        // Ends exactly when the range starts: the end test is strict.
        makeEvent(QStringLiteral("ends-at-start"), a, utc(QStringLiteral("2025-03-10T08:00:00")),
                  utc(QStringLiteral("2025-03-10T09:00:00"))),
        makeEvent(QStringLiteral("overlaps-start"), a, utc(QStringLiteral("2025-03-10T08:30:00")),
                  utc(QStringLiteral("2025-03-10T09:30:00"))),
        makeEvent(QStringLiteral("inside"), a, utc(QStringLiteral("2025-03-12T10:00:00")),
                  utc(QStringLiteral("2025-03-12T11:00:00"))),
        makeEvent(QStringLiteral("other-calendar"), QStringLiteral("cal-b"), utc(QStringLiteral("2025-03-13T10:00:00")),
                  utc(QStringLiteral("2025-03-13T11:00:00"))),
        // Starts exactly when the range ends.
        makeEvent(QStringLiteral("starts-at-end"), a, utc(QStringLiteral("2025-03-17T09:00:00")),
                  utc(QStringLiteral("2025-03-17T10:00:00"))),
        makeEvent(QStringLiteral("no-end"), a, utc(QStringLiteral("2025-03-01T10:00:00")), std::nullopt),
        // A weekly series that began last year, its first occurrence long over.
        makeEvent(QStringLiteral("master-last-year"), a, utc(QStringLiteral("2024-05-06T09:00:00")),
                  utc(QStringLiteral("2024-05-06T10:00:00")), QStringLiteral("FREQ=WEEKLY")),
        // An empty rule is no rule.
        makeEvent(QStringLiteral("empty-rule"), a, utc(QStringLiteral("2024-05-06T09:00:00")),
                  utc(QStringLiteral("2024-05-06T10:00:00")), QStringLiteral("")),
        makeEvent(QStringLiteral("deleted"), a, utc(QStringLiteral("2025-03-12T10:00:00")),
                  utc(QStringLiteral("2025-03-12T11:00:00"))),
        makeEvent(QStringLiteral("later"), a, utc(QStringLiteral("2025-04-01T10:00:00")),
                  utc(QStringLiteral("2025-04-01T11:00:00"))),
    };
    for (const Event &event : events)
        QVERIFY(m_repo->insert(event));
    QVERIFY(m_repo->remove(QStringLiteral("deleted")));

    QCOMPARE(idsOf(m_repo->getInRange(start, end, calendars)), expected);
}

void TestEventRepository::childRowsOfOneEvent()
{
    Event event = makeEvent(QStringLiteral("e"), QStringLiteral("cal-a"),
                            QDateTime(QDate(2025, 3, 14), QTime(10, 0), QTimeZone("Europe/Berlin")), std::nullopt);
    Reminder generated; // no id, no action, no trigger time
    generated.minutes_before = 15;
    generated.action.clear();
    Reminder given;
    given.id = QStringLiteral("r-given");
    given.minutes_before = 5;
    given.action = QStringLiteral("email");
    given.trigger_time = utc(QStringLiteral("2025-03-14T06:00:00"));
    event.reminders = {generated, given};
    Attendee bea;
    bea.email = QStringLiteral("bea@example.org");
    bea.name = QStringLiteral("Bea");
    bea.role.clear();
    bea.status.clear();
    Attendee al;
    al.id = QStringLiteral("at-al");
    al.email = QStringLiteral("al@example.org");
    al.name = QStringLiteral("Al");
    al.role = QStringLiteral("chair");
    al.status = QStringLiteral("accepted");
    al.rsvp = true;
    event.attendees = {bea, al};
    QVERIFY(m_repo->insert(event));

    const Event back = *m_repo->getById(event.id);
    QCOMPARE(back.reminders.size(), 2);
    // By minutes before, ascending.
    QCOMPARE(back.reminders[0].id, QStringLiteral("r-given"));
    QCOMPARE(back.reminders[0].action, QStringLiteral("email"));
    QCOMPARE(*back.reminders[0].trigger_time, *given.trigger_time);
    QVERIFY(kUuid.match(back.reminders[1].id).hasMatch());
    QCOMPARE(back.reminders[1].event_id, event.id);
    QCOMPARE(back.reminders[1].action, QStringLiteral("display"));
    QCOMPARE(*back.reminders[1].trigger_time, event.start_time.addSecs(-15 * 60));
    QCOMPARE(m_store.scalar(QStringLiteral("SELECT trigger_time FROM reminders WHERE minutes_before = 15")).toString(),
             QStringLiteral("2025-03-14T09:45:00+01:00"));

    // By name, then email.
    QCOMPARE(back.attendees.size(), 2);
    QCOMPARE(back.attendees[0],
             (Attendee{QStringLiteral("at-al"), event.id, al.email, QStringLiteral("Al"), QStringLiteral("chair"),
                       QStringLiteral("accepted"), QString(), true}));
    QVERIFY(kUuid.match(back.attendees[1].id).hasMatch());
    QCOMPARE(back.attendees[1].role, QStringLiteral("required"));
    QCOMPARE(back.attendees[1].status, QStringLiteral("needs-action"));
    QCOMPARE(back.attendees[1].event_id, event.id);

    // The single-row readers leave child rows alone.
    QVERIFY(m_repo->getByUid(event.uid, event.calendar_id)->reminders.isEmpty());
}

void TestEventRepository::childRowsInBatch()
{
    const QDateTime start = utc(QStringLiteral("2025-03-12T10:00:00"));
    for (int i = 0; i < 5; ++i) {
        Event event = makeEvent(QStringLiteral("e%1").arg(i), QStringLiteral("cal-a"), start.addSecs(i * 3600),
                                start.addSecs(i * 3600 + 1800));
        // Event i carries i reminders and (i % 2) attendees.
        for (int r = 0; r < i; ++r) {
            Reminder reminder;
            reminder.minutes_before = 10 * (i - r);
            event.reminders.append(reminder);
        }
        if (i % 2) {
            Attendee attendee;
            attendee.email = QStringLiteral("p%1@example.org").arg(i);
            event.attendees.append(attendee);
        }
        QVERIFY(m_repo->insert(event));
    }
    const QList<Event> events = m_repo->getInRange(start, start.addDays(1));
    QCOMPARE(events.size(), 5);
    for (int i = 0; i < 5; ++i) {
        const Event &event = events[i];
        QCOMPARE(event.id, QStringLiteral("e%1").arg(i));
        QCOMPARE(event.reminders.size(), i);
        for (int r = 0; r < i; ++r) {
            QCOMPARE(event.reminders[r].event_id, event.id);
            QCOMPARE(event.reminders[r].minutes_before, 10 * (r + 1));
            QCOMPARE(*event.reminders[r].trigger_time, event.start_time.addSecs(-600 * (r + 1)));
        }
        QCOMPARE(event.attendees.size(), i % 2);
        if (i % 2)
            QCOMPARE(event.attendees[0].email, QStringLiteral("p%1@example.org").arg(i));
    }
    const QList<Event> byCalendar = m_repo->getByCalendar(QStringLiteral("cal-a"));
    QCOMPARE(byCalendar, events);
    QVERIFY(m_repo->getInRange(start.addYears(-3), start.addYears(-2)).isEmpty());
}

void TestEventRepository::updateReplacesChildRows()
{
    Event event = makeEvent(QStringLiteral("e"), QStringLiteral("cal-a"), utc(QStringLiteral("2025-03-12T10:00:00")),
                            std::nullopt);
    event.reminders = {Reminder{}, Reminder{}};
    event.attendees = {Attendee{}};
    QVERIFY(m_repo->insert(event));
    QCOMPARE(m_store.scalar(QStringLiteral("SELECT COUNT(*) FROM reminders")).toInt(), 2);

    Reminder only;
    only.minutes_before = 30;
    event.reminders = {only};
    event.attendees.clear();
    QVERIFY(m_repo->update(event));
    QCOMPARE(m_store.scalar(QStringLiteral("SELECT COUNT(*) FROM reminders")).toInt(), 1);
    QCOMPARE(m_store.scalar(QStringLiteral("SELECT COUNT(*) FROM attendees")).toInt(), 0);
    QCOMPARE(m_repo->getById(event.id)->reminders.constFirst().minutes_before, 30);
}

void TestEventRepository::updateBindsPendingAndNow()
{
    Event event = makeEvent(QStringLiteral("e"), QStringLiteral("cal-a"), utc(QStringLiteral("2025-03-12T10:00:00")),
                            std::nullopt);
    event.sync_status.clear();
    QVERIFY(m_repo->insert(event));
    QCOMPARE(m_repo->getById(event.id)->sync_status, QStringLiteral("synced"));

    event.title = QStringLiteral("Renamed");
    event.last_modified = utc(QStringLiteral("2001-01-01T00:00:00")); // ignored by update
    event.created = utc(QStringLiteral("2002-02-02T00:00:00")); // never rewritten
    QVERIFY(m_repo->update(event));
    Event back = *m_repo->getById(event.id);
    QCOMPARE(back.title, QStringLiteral("Renamed"));
    QCOMPARE(back.sync_status, QStringLiteral("pending"));
    QCOMPARE(back.created, utc(QStringLiteral("2025-01-01T00:00:00")));
    QCOMPARE(m_store.scalar(QStringLiteral("SELECT last_modified FROM events")).toString(),
             QStringLiteral("2025-03-12T12:00:00Z"));

    event.sync_status = QStringLiteral("synced");
    QVERIFY(m_repo->update(event));
    QCOMPARE(m_repo->getById(event.id)->sync_status, QStringLiteral("synced"));
}

void TestEventRepository::tombstonesAreHidden()
{
    const QDateTime start = utc(QStringLiteral("2025-03-12T10:00:00"));
    Event event = makeEvent(QStringLiteral("e"), QStringLiteral("cal-a"), start, start.addSecs(3600));
    event.related_to_uid = QStringLiteral("task-1");
    QVERIFY(m_repo->insert(event));
    QVERIFY(m_repo->remove(event.id));

    const Event tombstone = *m_repo->getById(event.id);
    QCOMPARE(*tombstone.deleted_at, Clock::nowUtc());
    QCOMPARE(tombstone.sync_status, QStringLiteral("pending"));
    QCOMPARE(tombstone.last_modified, Clock::nowUtc());
    QVERIFY(m_repo->getInRange(start.addDays(-1), start.addDays(1)).isEmpty());
    QVERIFY(m_repo->getByCalendar(QStringLiteral("cal-a")).isEmpty());
    QVERIFY(m_repo->getByRelatedToUid(QStringLiteral("task-1")).isEmpty());
    QVERIFY(m_repo->search(QStringLiteral("e"), 10).isEmpty());
    // The sync still sees it, so the deletion gets pushed.
    QCOMPARE(idsOf(m_repo->getPending(QStringLiteral("cal-a"))), QStringList{"e"});
    QVERIFY(!m_repo->remove(QStringLiteral("no-such-event")));
}

void TestEventRepository::undoDeleteOfPushedEvent()
{
    Event event = makeEvent(QStringLiteral("pushed"), QStringLiteral("cal-a"),
                            utc(QStringLiteral("2025-03-12T10:00:00")), std::nullopt);
    event.href = QStringLiteral("/dav/cal-a/pushed.ics");
    event.etag = QStringLiteral("\"42\"");
    event.provider_event_id = QStringLiteral("p-42");
    QVERIFY(m_repo->insert(event));
    QVERIFY(m_repo->remove(event.id));

    QTest::ignoreMessage(QtInfoMsg, "[Undo] cleared tombstone on existing row pushed ok= true");
    QVERIFY(m_repo->restore(event));
    const Event back = *m_repo->getById(event.id);
    QVERIFY(!back.deleted_at);
    QCOMPARE(back.sync_status, QStringLiteral("pending"));
    QCOMPARE(back.href, event.href);
    QCOMPARE(back.etag, event.etag);
    QCOMPARE(back.provider_event_id, event.provider_event_id);
    QCOMPARE(m_repo->getByCalendar(QStringLiteral("cal-a")).size(), 1);
}

void TestEventRepository::undoDeleteAfterPurge()
{
    Event event = makeEvent(QStringLiteral("purged"), QStringLiteral("cal-a"),
                            utc(QStringLiteral("2025-03-12T10:00:00")), std::nullopt);
    event.title = QStringLiteral("Dentist");
    event.href = QStringLiteral("/dav/cal-a/purged.ics");
    event.etag = QStringLiteral("\"7\"");
    event.provider_event_id = QStringLiteral("p-7");
    Reminder reminder;
    reminder.minutes_before = 60;
    event.reminders = {reminder};
    QVERIFY(m_repo->insert(event));
    QVERIFY(m_repo->remove(event.id));
    QVERIFY(m_repo->hardDelete(event.id));
    QVERIFY(!m_repo->getById(event.id));

    QTest::ignoreMessage(QtInfoMsg, "[Undo] re-inserted row purged title= Dentist ok= true");
    QVERIFY(m_repo->restore(event));
    const Event back = *m_repo->getById(event.id);
    QVERIFY(!back.deleted_at);
    QCOMPARE(back.sync_status, QStringLiteral("pending"));
    QVERIFY(back.href.isEmpty());
    QVERIFY(back.etag.isEmpty());
    QVERIFY(back.provider_event_id.isEmpty());
    QCOMPARE(back.reminders.size(), 1);
}

void TestEventRepository::hardDeleteRemovesChildRows()
{
    Event event = makeEvent(QStringLiteral("e"), QStringLiteral("cal-a"), utc(QStringLiteral("2025-03-12T10:00:00")),
                            std::nullopt);
    event.reminders = {Reminder{}};
    event.attendees = {Attendee{}};
    QVERIFY(m_repo->insert(event));
    QVERIFY(m_store.exec(
        QStringLiteral("INSERT INTO attachments (id, event_id, filename) VALUES ('att', 'e', 'agenda.pdf')")));
    QVERIFY(m_repo->hardDelete(event.id));
    for (const char *table : {"events", "reminders", "attendees", "attachments"})
        QCOMPARE(m_store.scalar(QStringLiteral("SELECT COUNT(*) FROM %1").arg(QLatin1String(table))).toInt(), 0);
    QVERIFY(!m_repo->hardDelete(event.id));
}

void TestEventRepository::markSynced()
{
    Event event = makeEvent(QStringLiteral("e"), QStringLiteral("cal-b"), utc(QStringLiteral("2025-03-12T10:00:00")),
                            std::nullopt);
    event.sync_status = QStringLiteral("pending");
    QVERIFY(m_repo->insert(event));
    QSignalSpy spy(m_repo.get(), &EventRepository::eventsChanged);
    QVERIFY(spy.wait(1000)); // the insert
    QVERIFY(m_repo->markSynced(event.id, QStringLiteral("/dav/e.ics"), QStringLiteral("\"9\"")));
    const Event back = *m_repo->getById(event.id);
    QCOMPARE(back.sync_status, QStringLiteral("synced"));
    QCOMPARE(back.href, QStringLiteral("/dav/e.ics"));
    QCOMPARE(back.etag, QStringLiteral("\"9\""));
    QVERIFY(m_repo->getPending(QStringLiteral("cal-b")).isEmpty());
    QVERIFY(spy.wait(1000));
    QCOMPARE(spy.last().at(0).toString(), QStringLiteral("cal-b"));
}

void TestEventRepository::uniqueKey_data()
{
    QTest::addColumn<QString>("firstRecurrenceId");
    QTest::addColumn<QString>("secondRecurrenceId");
    QTest::addColumn<QString>("secondCalendar");
    QTest::addColumn<bool>("accepted");

    QTest::newRow("same master") << QString() << QString() << "cal-a" << false;
    QTest::newRow("null and empty recurrence id collide") << QString() << QStringLiteral("") << "cal-a" << false;
    QTest::newRow("master and override") << QString() << "20250312T100000Z"
                                         << "cal-a" << true;
    QTest::newRow("other calendar") << QString() << QString() << "cal-b" << true;
}

void TestEventRepository::uniqueKey()
{
    QFETCH(QString, firstRecurrenceId);
    QFETCH(QString, secondRecurrenceId);
    QFETCH(QString, secondCalendar);
    QFETCH(bool, accepted);

    Event first = makeEvent(QStringLiteral("first"), QStringLiteral("cal-a"),
                            utc(QStringLiteral("2025-03-12T10:00:00")), std::nullopt);
    first.recurrence_id = firstRecurrenceId;
    QVERIFY(m_repo->insert(first));
    Event second = first;
    second.id = QStringLiteral("second");
    second.calendar_id = secondCalendar;
    second.recurrence_id = secondRecurrenceId;
    second.reminders = {Reminder{}};
    if (!accepted) {
        QTest::ignoreMessage(QtWarningMsg,
                             QRegularExpression(QStringLiteral("^EventRepository::insert failed: UNIQUE constraint")));
    }
    QCOMPARE(m_repo->insert(second), accepted);
    QCOMPARE(m_store.scalar(QStringLiteral("SELECT COUNT(*) FROM events")).toInt(), accepted ? 2 : 1);
    // A refused event leaves no child rows behind.
    QCOMPARE(m_store.scalar(QStringLiteral("SELECT COUNT(*) FROM reminders")).toInt(), accepted ? 1 : 0);
}

void TestEventRepository::recurrenceIdLookupTreatsNullAsEmpty()
{
    const QDateTime start = utc(QStringLiteral("2025-03-12T10:00:00"));
    Event master
        = makeEvent(QStringLiteral("m"), QStringLiteral("cal-a"), start, std::nullopt, QStringLiteral("FREQ=DAILY"));
    Event override = makeEvent(QStringLiteral("o"), QStringLiteral("cal-a"), start.addDays(1), std::nullopt);
    override.uid = master.uid;
    override.recurrence_id = QStringLiteral("20250313T100000Z");
    override.master_event_uid = master.uid;
    QVERIFY(m_repo->insert(master));
    QVERIFY(m_repo->insert(override));

    QCOMPARE(m_repo->getByUidAndRecurrenceId(master.uid, QStringLiteral("cal-a"), QString())->id, QStringLiteral("m"));
    QCOMPARE(m_repo->getByUidAndRecurrenceId(master.uid, QStringLiteral("cal-a"), QStringLiteral(""))->id,
             QStringLiteral("m"));
    QCOMPARE(m_repo->getByUidAndRecurrenceId(master.uid, QStringLiteral("cal-a"), override.recurrence_id)->id,
             QStringLiteral("o"));
    QVERIFY(!m_repo->getByUidAndRecurrenceId(master.uid, QStringLiteral("cal-b"), QString()));
    QVERIFY(!m_repo->getByUidAndRecurrenceId(master.uid, QStringLiteral("cal-a"), QStringLiteral("20250314T100000Z")));
}

void TestEventRepository::search_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("limit");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("blank") << "  " << 10 << QStringList();
    QTest::newRow("typed percent is a wildcard")
        << "50%" << 10 << QStringList{"team-50", "budget-50-percent", "room-501"};
    QTest::newRow("trimmed, any case") << "  LUNCH " << 10 << QStringList{"lunch"};
    QTest::newRow("description") << "quarterly" << 10 << QStringList{"lunch"};
    QTest::newRow("limit zero behaves as one") << "50" << 0 << QStringList{"team-50"};
}

void TestEventRepository::search()
{
    QFETCH(QString, text);
    QFETCH(int, limit);
    QFETCH(QStringList, expected);

    const QDateTime start = utc(QStringLiteral("2025-03-12T10:00:00"));
    Event team = makeEvent(QStringLiteral("team-50"), QStringLiteral("cal-a"), start, std::nullopt);
    team.title = QStringLiteral("Team 50 offsite");
    Event budget
        = makeEvent(QStringLiteral("budget-50-percent"), QStringLiteral("cal-b"), start.addDays(1), std::nullopt);
    budget.title = QStringLiteral("Budget at 50%");
    Event room = makeEvent(QStringLiteral("room-501"), QStringLiteral("cal-a"), start.addDays(2), std::nullopt);
    room.title = QStringLiteral("Review");
    room.location = QStringLiteral("Room 501");
    Event lunch = makeEvent(QStringLiteral("lunch"), QStringLiteral("cal-a"), start.addDays(3), std::nullopt);
    lunch.title = QStringLiteral("Lunch");
    lunch.description = QStringLiteral("Before the quarterly numbers");
    Event gone = makeEvent(QStringLiteral("gone"), QStringLiteral("cal-a"), start.addDays(4), std::nullopt);
    gone.title = QStringLiteral("Lunch 50");
    for (const Event &event : {team, budget, room, lunch, gone})
        QVERIFY(m_repo->insert(event));
    QVERIFY(m_repo->remove(gone.id));

    QCOMPARE(idsOf(m_repo->search(text, limit)), expected);
}

void TestEventRepository::changeSignalIsCoalesced()
{
    const QDateTime start = utc(QStringLiteral("2025-03-12T10:00:00"));
    Event inA = makeEvent(QStringLiteral("in-a"), QStringLiteral("cal-a"), start, std::nullopt);
    Event inB = makeEvent(QStringLiteral("in-b"), QStringLiteral("cal-b"), start, std::nullopt);
    QVERIFY(m_repo->insert(inA));
    QVERIFY(m_repo->insert(inB));
    QSignalSpy spy(m_repo.get(), &EventRepository::eventsChanged);
    QVERIFY(spy.wait(1000));
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.takeFirst().at(0).toString(), QStringLiteral("cal-b"));

    inA.title = QStringLiteral("A again");
    inB.title = QStringLiteral("B again");
    QVERIFY(m_repo->update(inA));
    QVERIFY(m_repo->update(inB));
    QVERIFY(spy.isEmpty()); // nothing before the quiet period
    QVERIFY(spy.wait(1000));
    QTest::qWait(300);
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.first().at(0).toString(), QStringLiteral("cal-b"));
}

void TestEventRepository::failedChangeSendsNoSignal()
{
    QSignalSpy spy(m_repo.get(), &EventRepository::eventsChanged);
    QVERIFY(!m_repo->remove(QStringLiteral("missing")));
    QVERIFY(!m_repo->hardDelete(QStringLiteral("missing")));
    QVERIFY(!m_repo->markSynced(QStringLiteral("missing"), QString(), QString()));
    Event ghost = makeEvent(QStringLiteral("ghost"), QStringLiteral("cal-a"),
                            utc(QStringLiteral("2025-03-12T10:00:00")), std::nullopt);
    ghost.reminders = {Reminder{}};
    QTest::ignoreMessage(QtWarningMsg, "EventRepository::update failed: no event with id ghost");
    QVERIFY(!m_repo->update(ghost));
    QCOMPARE(m_store.scalar(QStringLiteral("SELECT COUNT(*) FROM reminders")).toInt(), 0);
    Event orphan = makeEvent(QStringLiteral("orphan"), QStringLiteral("no-such-calendar"),
                             utc(QStringLiteral("2025-03-12T10:00:00")), std::nullopt);
    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression(QStringLiteral("^EventRepository::insert failed: FOREIGN KEY constraint")));
    QVERIFY(!m_repo->insert(orphan));
    QVERIFY(!spy.wait(300));
}

void TestEventRepository::repositoryOutlivesTheDatabase()
{
    // The application state owns the database as a member and the repositories as children, so
    // the database goes first; statements kept for reuse must not outlive it badly.
    const QDateTime start = utc(QStringLiteral("2025-03-12T10:00:00"));
    QVERIFY(m_repo->insert(makeEvent(QStringLiteral("e"), QStringLiteral("cal-a"), start, std::nullopt)));
    QCOMPARE(m_repo->getInRange(start.addDays(-1), start.addDays(1)).size(), 1);
    QVERIFY(m_repo->getById(QStringLiteral("e")));
    QTest::failOnWarning(QRegularExpression(QStringLiteral("still in use")));
    m_store.close();
    m_repo.reset();
}

QTEST_GUILESS_MAIN(TestEventRepository)
#include "tst_eventrepository.moc"
