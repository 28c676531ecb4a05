// SPDX-License-Identifier: GPL-3.0-or-later
#include "StoreFixture.h"

#include "storage/Clock.h"
#include "storage/TaskRepository.h"

#include <QRegularExpression>
#include <QSignalSpy>
#include <QTimeZone>

namespace {

QDateTime utc(const QString &text)
{
    QDateTime value = QDateTime::fromString(text, Qt::ISODate);
    value.setTimeZone(QTimeZone::utc());
    return value;
}

Task makeTask(const QString &id, const QString &calendarId = QStringLiteral("cal-a"))
{
    Task task;
    task.id = id;
    task.uid = id + QStringLiteral("@test");
    task.calendar_id = calendarId;
    task.title = id;
    task.raw_icalendar = "BEGIN:VCALENDAR\r\nEND:VCALENDAR\r\n";
    task.created = utc(QStringLiteral("2025-01-01T00:00:00"));
    task.last_modified = task.created;
    return task;
}

QStringList idsOf(const QList<Task> &tasks)
{
    QStringList ids;
    for (const Task &task : tasks)
        ids.append(task.id);
    return ids;
}

} // namespace

class TestTaskRepository : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void fullRecordRoundTrip();
    void emptyRepeatModeIsFromDueDate();
    void categoriesColumn_data();
    void categoriesColumn();
    void calendarOrder();
    void range_data();
    void range();
    void lookupsByUid();
    void writesAndTombstones();
    void markSyncedSendsNoSignal();
    void changeSignalIsCoalesced();
    void completion_data();
    void completion();

private:
    StoreFixture m_store;
    std::unique_ptr<TaskRepository> m_repo;
};

void TestTaskRepository::init()
{
    QVERIFY(m_store.open());
    QVERIFY(m_store.addCalendar(QStringLiteral("cal-a")));
    QVERIFY(m_store.addCalendar(QStringLiteral("cal-b")));
    m_repo = std::make_unique<TaskRepository>(m_store.database());
    Clock::setFixedNow(utc(QStringLiteral("2025-03-12T12:00:00")));
}

void TestTaskRepository::cleanup()
{
    m_repo.reset();
    m_store.close();
    Clock::setFixedNow(QDateTime());
}

void TestTaskRepository::fullRecordRoundTrip()
{
    Task task = makeTask(QStringLiteral("t1"));
    task.etag = QStringLiteral("\"e\"");
    task.href = QStringLiteral("/dav/t1.ics");
    task.description = QStringLiteral("Two\nlines");
    task.status = QStringLiteral("in-process");
    task.priority = 3;
    task.percent_complete = 40;
    task.due_date = QDateTime(QDate(2025, 3, 14), QTime(17, 0), QTimeZone("Europe/Berlin"));
    task.due_is_date_only = false;
    task.start_date = utc(QStringLiteral("2025-03-10T00:00:00"));
    task.completed_date = utc(QStringLiteral("2025-03-11T08:00:00"));
    task.categories = {QStringLiteral("Work"), QStringLiteral("Zürich, \"HQ\"")};
    task.parent_task_uid = QStringLiteral("parent@test");
    task.sort_order = 30;
    task.color = QStringLiteral("#112233");
    task.recurrence_rule = QStringLiteral("FREQ=WEEKLY");
    task.repeat_mode = QStringLiteral("fromCompletionDate");
    task.sequence = 4;
    task.raw_icalendar = QStringLiteral("BEGIN:VTODO\r\nSUMMARY:Grüße\r\nEND:VTODO\r\n").toUtf8();
    task.sync_status = QStringLiteral("pending");
    task.deleted_at = utc(QStringLiteral("2025-03-12T09:00:00"));
    QVERIFY(m_repo->insert(task));

    const std::optional<Task> back = m_repo->getById(task.id);
    QVERIFY(back);
    QCOMPARE(*back, task);
    QCOMPARE(m_store.scalar(QStringLiteral("SELECT due_date FROM tasks")).toString(),
             QStringLiteral("2025-03-14T17:00:00+01:00"));
    QCOMPARE(m_store.scalar(QStringLiteral("SELECT typeof(raw_icalendar) FROM tasks")).toString(), "text");

    // Absent optional dates are NULL and read back absent.
    Task bare = makeTask(QStringLiteral("t2"));
    QVERIFY(m_repo->insert(bare));
    QVERIFY(m_store
                .scalar(QStringLiteral("SELECT due_date IS NULL AND start_date IS NULL AND completed_date IS NULL "
                                       "AND deleted_at IS NULL FROM tasks WHERE id = 't2'"))
                .toBool());
    QCOMPARE(*m_repo->getById(bare.id), bare);
}

void TestTaskRepository::emptyRepeatModeIsFromDueDate()
{
    Task task = makeTask(QStringLiteral("t"));
    task.repeat_mode.clear();
    QVERIFY(m_repo->insert(task));
    QCOMPARE(m_store.scalar(QStringLiteral("SELECT repeat_mode FROM tasks")).toString(), QStringLiteral("fromDueDate"));
    QVERIFY(m_store.exec(QStringLiteral("UPDATE tasks SET repeat_mode = ''")));
    QCOMPARE(m_repo->getById(task.id)->repeat_mode, QStringLiteral("fromDueDate"));
    task.repeat_mode.clear();
    QVERIFY(m_repo->update(task));
    QCOMPARE(m_store.scalar(QStringLiteral("SELECT repeat_mode FROM tasks")).toString(), QStringLiteral("fromDueDate"));
}

void TestTaskRepository::categoriesColumn_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QStringList>("read");

    QTest::newRow("strings") << R"(["a","b"])" << QStringList{"a", "b"};
    QTest::newRow("non-string element reads empty") << R"(["a",7,null])" << QStringList{"a", "", ""};
    QTest::newRow("object") << R"({"a":1})" << QStringList();
}

void TestTaskRepository::categoriesColumn()
{
    QFETCH(QString, stored);
    QFETCH(QStringList, read);

    Task task = makeTask(QStringLiteral("t"));
    task.categories = {QStringLiteral("a"), QStringLiteral("b")};
    QVERIFY(m_repo->insert(task));
    QCOMPARE(m_store.scalar(QStringLiteral("SELECT categories FROM tasks")).toString(), QStringLiteral(R"(["a","b"])"));

    QSqlQuery query(m_store.database()->connection());
    query.prepare(QStringLiteral("UPDATE tasks SET categories = ?"));
    query.addBindValue(stored);
    QVERIFY(query.exec());
    QCOMPARE(m_repo->getById(task.id)->categories, read);
}

void TestTaskRepository::calendarOrder()
{
    Task undated = makeTask(QStringLiteral("undated"));
    Task later = makeTask(QStringLiteral("later"));
    later.due_date = utc(QStringLiteral("2025-03-20T00:00:00"));
    Task sooner2 = makeTask(QStringLiteral("sooner-2"));
    sooner2.due_date = utc(QStringLiteral("2025-03-14T00:00:00"));
    sooner2.sort_order = 20;
    Task sooner1 = makeTask(QStringLiteral("sooner-1"));
    sooner1.due_date = sooner2.due_date;
    sooner1.sort_order = 10;
    Task elsewhere = makeTask(QStringLiteral("elsewhere"), QStringLiteral("cal-b"));
    Task gone = makeTask(QStringLiteral("gone"));
    for (const Task &task : {undated, later, sooner2, sooner1, elsewhere, gone})
        QVERIFY(m_repo->insert(task));
    QVERIFY(m_repo->remove(gone.id));
    QCOMPARE(idsOf(m_repo->getByCalendar(QStringLiteral("cal-a"))),
             (QStringList{"sooner-1", "sooner-2", "later", "undated"}));
}

void TestTaskRepository::range_data()
{
    QTest::addColumn<QStringList>("calendars");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("every calendar") << QStringList() << QStringList{"starts-inside", "due-at-start", "due-inside", "b"};
    QTest::newRow("one calendar") << QStringList{"cal-a"} << QStringList{"starts-inside", "due-at-start", "due-inside"};
}

void TestTaskRepository::range()
{
    QFETCH(QStringList, calendars);
    QFETCH(QStringList, expected);

    const QDateTime start = utc(QStringLiteral("2025-03-10T00:00:00"));
    const QDateTime end = utc(QStringLiteral("2025-03-17T00:00:00"));
    auto due = [](const QString &id, const QDateTime &when, const QString &calendar = QStringLiteral("cal-a")) {
        Task task = makeTask(id, calendar);
        task.due_date = when;
        return task;
    };
    Task startsInside = makeTask(QStringLiteral("starts-inside"));
    startsInside.start_date = start.addDays(2);
    Task startsBefore = makeTask(QStringLiteral("starts-before"));
    startsBefore.start_date = start.addDays(-1);
    const QList<Task> tasks{
        due(QStringLiteral("due-at-start"), start), // the start is included
        due(QStringLiteral("due-inside"), start.addDays(3)),
        due(QStringLiteral("due-at-end"), end), // the end is not
        due(QStringLiteral("b"), start.addDays(4), QStringLiteral("cal-b")),
        due(QStringLiteral("deleted"), start.addDays(1)),
        startsInside,
        startsBefore,
        makeTask(QStringLiteral("undated")),
    };
    for (const Task &task : tasks)
        QVERIFY(m_repo->insert(task));
    QVERIFY(m_repo->remove(QStringLiteral("deleted")));

    // By due date; a task with only a start date has none and comes first.
    QCOMPARE(idsOf(m_repo->getInRange(start, end, calendars)), expected);
}

void TestTaskRepository::lookupsByUid()
{
    Task inA = makeTask(QStringLiteral("in-a"));
    inA.uid = QStringLiteral("shared");
    Task inB = makeTask(QStringLiteral("in-b"), QStringLiteral("cal-b"));
    inB.uid = QStringLiteral("shared");
    QVERIFY(m_repo->insert(inA));
    QVERIFY(m_repo->insert(inB));
    QCOMPARE(m_repo->getByUidAndCalendar(QStringLiteral("shared"), QStringLiteral("cal-b"))->id, inB.id);
    QVERIFY(m_repo->getByUid(QStringLiteral("shared")));

    QVERIFY(m_repo->remove(inA.id));
    QVERIFY(m_repo->remove(inB.id));
    // Tombstones: found in their calendar, not as a live task.
    QVERIFY(!m_repo->getByUid(QStringLiteral("shared")));
    QVERIFY(m_repo->getByUidAndCalendar(QStringLiteral("shared"), QStringLiteral("cal-a"))->deleted_at);
}

void TestTaskRepository::writesAndTombstones()
{
    Task task = makeTask(QStringLiteral("t"));
    task.sync_status.clear();
    QVERIFY(m_repo->insert(task));
    QCOMPARE(m_repo->getById(task.id)->sync_status, QStringLiteral("synced"));
    QVERIFY(m_repo->getPending(QStringLiteral("cal-a")).isEmpty());

    Clock::setFixedNow(utc(QStringLiteral("2025-03-12T13:00:00")));
    Task other = makeTask(QStringLiteral("other"));
    QVERIFY(m_repo->insert(other));
    task.title = QStringLiteral("Renamed");
    task.last_modified = utc(QStringLiteral("1999-01-01T00:00:00"));
    QVERIFY(m_repo->update(task));
    Task back = *m_repo->getById(task.id);
    QCOMPARE(back.title, QStringLiteral("Renamed"));
    QCOMPARE(back.sync_status, QStringLiteral("pending"));
    QCOMPARE(back.last_modified, Clock::nowUtc());
    QCOMPARE(back.created, task.created);

    Clock::setFixedNow(utc(QStringLiteral("2025-03-12T14:00:00")));
    QVERIFY(m_repo->remove(other.id));
    back = *m_repo->getById(other.id);
    QCOMPARE(*back.deleted_at, Clock::nowUtc());
    QCOMPARE(back.sync_status, QStringLiteral("pending"));
    // Pending rows by last modification, tombstones included.
    QCOMPARE(idsOf(m_repo->getPending(QStringLiteral("cal-a"))), (QStringList{"t", "other"}));

    QVERIFY(m_repo->hardDelete(other.id));
    QVERIFY(!m_repo->getById(other.id));
    QVERIFY(!m_repo->hardDelete(other.id));
    QVERIFY(!m_repo->remove(other.id));
    QTest::ignoreMessage(QtWarningMsg, "TaskRepository::update failed: no task with id other");
    QVERIFY(!m_repo->update(other));
    QTest::ignoreMessage(QtWarningMsg,
                         QRegularExpression(QStringLiteral("^TaskRepository::insert failed: UNIQUE constraint")));
    QVERIFY(!m_repo->insert(task));
}

void TestTaskRepository::markSyncedSendsNoSignal()
{
    Task task = makeTask(QStringLiteral("t"));
    task.sync_status = QStringLiteral("pending");
    QVERIFY(m_repo->insert(task));
    QSignalSpy spy(m_repo.get(), &TaskRepository::tasksChanged);
    QVERIFY(spy.wait(1000)); // the insert
    QVERIFY(m_repo->markSynced(task.id, QStringLiteral("/dav/t.ics"), QStringLiteral("\"1\"")));
    QVERIFY(!spy.wait(300));
    const Task back = *m_repo->getById(task.id);
    QCOMPARE(back.sync_status, QStringLiteral("synced"));
    QCOMPARE(back.href, QStringLiteral("/dav/t.ics"));
    QCOMPARE(back.etag, QStringLiteral("\"1\""));
    QVERIFY(!m_repo->markSynced(QStringLiteral("missing"), QString(), QString()));
    QVERIFY(!m_repo->setCompleted(QStringLiteral("missing"), true));
    QVERIFY(!spy.wait(300));
}

void TestTaskRepository::changeSignalIsCoalesced()
{
    QSignalSpy spy(m_repo.get(), &TaskRepository::tasksChanged);
    QVERIFY(m_repo->insert(makeTask(QStringLiteral("a"), QStringLiteral("cal-a"))));
    QVERIFY(m_repo->insert(makeTask(QStringLiteral("b"), QStringLiteral("cal-b"))));
    QVERIFY(m_repo->remove(QStringLiteral("a")));
    QVERIFY(spy.wait(1000));
    QTest::qWait(300);
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.first().at(0).toString(), QStringLiteral("cal-a"));
}

void TestTaskRepository::completion_data()
{
    QTest::addColumn<QString>("rule");
    QTest::addColumn<QString>("repeatMode");
    QTest::addColumn<QDateTime>("due"); // invalid: none
    QTest::addColumn<bool>("dateOnly");
    QTest::addColumn<QDateTime>("start"); // invalid: none
    QTest::addColumn<QString>("statusBefore");
    QTest::addColumn<bool>("complete");
    QTest::addColumn<QString>("status");
    QTest::addColumn<QDateTime>("dueAfter");
    QTest::addColumn<QDateTime>("startAfter");
    QTest::addColumn<QString>("dueLine"); // expected in the regenerated text

    // The clock stands at Thursday 13 March 2025, 15:30 in Berlin.
    const QDateTime none;
    const QDateTime monday = utc(QStringLiteral("2025-03-10T00:00:00"));
    const QDateTime mondayNine = utc(QStringLiteral("2025-03-10T09:00:00"));
    const QTimeZone berlin("Europe/Berlin");

    QTest::newRow("plain") << ""
                           << "fromDueDate" << monday << true << none << "needs-action" << true << "completed" << monday
                           << none << "DUE;VALUE=DATE:20250310";
    QTest::newRow("reopen") << ""
                            << "fromDueDate" << monday << true << none << "completed" << false << "needs-action"
                            << monday << none << "DUE;VALUE=DATE:20250310";
    QTest::newRow("weekly from due date, date only")
        << "FREQ=WEEKLY"
        << "fromDueDate" << monday << true << none << "needs-action" << true << "needs-action" << monday.addDays(7)
        << none << "DUE;VALUE=DATE:20250317";
    QTest::newRow("weekly from completion date")
        << "FREQ=WEEKLY"
        << "fromCompletionDate" << monday << true << none << "needs-action" << true << "needs-action"
        << QDateTime(QDate(2025, 3, 20), QTime(0, 0), Qt::LocalTime) << none << "DUE;VALUE=DATE:20250320";
    QTest::newRow("timed, from completion date")
        << "FREQ=DAILY"
        << "fromCompletionDate" << mondayNine << false << none << "needs-action" << true << "needs-action"
        << QDateTime(QDate(2025, 3, 14), QTime(15, 30), berlin) << none << "DUE:20250314T143000Z";
    QTest::newRow("start date when there is no due date") << "FREQ=DAILY;INTERVAL=2"
                                                          << "fromDueDate" << none << true << monday << "needs-action"
                                                          << true << "needs-action" << none << monday.addDays(2) << "";
    QTest::newRow("rule without a next occurrence") << "FREQ=DAILY;COUNT=1"
                                                    << "fromDueDate" << monday << true << none << "needs-action" << true
                                                    << "completed" << monday << none << "DUE;VALUE=DATE:20250310";
    QTest::newRow("no anchor") << "FREQ=WEEKLY"
                               << "fromDueDate" << none << true << none << "needs-action" << true << "completed" << none
                               << none << "";
    QTest::newRow("already completed") << "FREQ=WEEKLY"
                                       << "fromDueDate" << monday << true << none << "completed" << true << "completed"
                                       << monday << none << "DUE;VALUE=DATE:20250310";
}

void TestTaskRepository::completion()
{
    QFETCH(QString, rule);
    QFETCH(QString, repeatMode);
    QFETCH(QDateTime, due);
    QFETCH(bool, dateOnly);
    QFETCH(QDateTime, start);
    QFETCH(QString, statusBefore);
    QFETCH(bool, complete);
    QFETCH(QString, status);
    QFETCH(QDateTime, dueAfter);
    QFETCH(QDateTime, startAfter);
    QFETCH(QString, dueLine);

    Clock::setFixedNow(QDateTime(QDate(2025, 3, 13), QTime(15, 30), QTimeZone("Europe/Berlin")));
    Task task = makeTask(QStringLiteral("t"));
    task.recurrence_rule = rule;
    task.repeat_mode = repeatMode;
    if (due.isValid())
        task.due_date = due;
    task.due_is_date_only = dateOnly;
    if (start.isValid())
        task.start_date = start;
    task.status = statusBefore;
    if (statusBefore == QLatin1String("completed")) {
        task.completed_date = utc(QStringLiteral("2025-03-01T10:00:00"));
        task.percent_complete = 100;
    }
    task.sequence = 2;
    task.sync_status = QStringLiteral("synced");
    QVERIFY(m_repo->insert(task));

    QVERIFY(m_repo->setCompleted(task.id, complete));
    const Task after = *m_repo->getById(task.id);
    QCOMPARE(after.status, status);
    QCOMPARE(after.sequence, 3);
    QCOMPARE(after.sync_status, QStringLiteral("pending"));
    if (status == QLatin1String("completed")) {
        QCOMPARE(after.completed_date, std::optional<QDateTime>(Clock::nowUtc()));
        QCOMPARE(after.percent_complete, 100);
    } else {
        QVERIFY(!after.completed_date);
        QCOMPARE(after.percent_complete, 0);
    }
    QCOMPARE(after.due_date.has_value(), dueAfter.isValid());
    if (dueAfter.isValid())
        QCOMPARE(*after.due_date, dueAfter);
    QCOMPARE(after.start_date.has_value(), startAfter.isValid());
    if (startAfter.isValid())
        QCOMPARE(*after.start_date, startAfter);
    QCOMPARE(after.due_is_date_only, dateOnly);

    // The text for upload is written anew from the record.
    const QString text = QString::fromUtf8(after.raw_icalendar);
    QVERIFY2(text.contains(QStringLiteral("\r\nSTATUS:%1\r\n").arg(status.toUpper())), qPrintable(text));
    QVERIFY2(text.contains(QStringLiteral("\r\nSEQUENCE:3\r\n")), qPrintable(text));
    if (!dueLine.isEmpty())
        QVERIFY2(text.contains(QStringLiteral("\r\n") + dueLine + QStringLiteral("\r\n")), qPrintable(text));
}

QTEST_GUILESS_MAIN(TestTaskRepository)
#include "tst_taskrepository.moc"
