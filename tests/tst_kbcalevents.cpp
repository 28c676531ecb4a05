// SPDX-License-Identifier: GPL-3.0-or-later
// kbcal's event and task commands, run in-process against buffers: ics expand, import, export,
// tasks, task complete/reopen and sample-data.
#include "ical/ICal.h"
#include "storage/Clock.h"

#include "support/KbcalRunner.h"

#include <QBuffer>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QTest>

namespace {

using Result = KbcalResult;

QString fixture(const QString &name)
{
    return QStringLiteral(KB_TEST_DATA_DIR "/import/") + name;
}

QStringList titles(const QJsonArray &records)
{
    QStringList list;
    for (const QJsonValue &record : records)
        list.append(record.toObject().value(QStringLiteral("title")).toString());
    return list;
}

} // namespace

class TestKbcalEvents : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void icsExpand();
    void icsExpandUsage_data();
    void icsExpandUsage();
    void importIntoNamedCalendar();
    void importCalendarChoice_data();
    void importCalendarChoice();
    void importErrors_data();
    void importErrors();
    void importProgressGoesToStandardError();
    void exportWritesOneCalendarObject();
    void exportUsage();
    void tasksAndCompletion();
    void taskErrors();
    void sampleData();

private:
    // Runs SQL on the data folder's database, as another program would.
    bool sql(const QString &statement);
    QStringList withDataDir(const QStringList &arguments) const
    {
        return QStringList{QStringLiteral("--data-dir"), m_dir->path()} + arguments;
    }

    std::unique_ptr<QTemporaryDir> m_dir;
};

void TestKbcalEvents::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    QCOMPARE(runKbcal(withDataDir({"init"})).status, 0);
    QVERIFY(sql(QStringLiteral("INSERT INTO accounts (id, name, type) VALUES ('acc', 'Local', 'kettlebrook')")));
    QVERIFY(sql(QStringLiteral("INSERT INTO calendars (id, account_id, url, name, sort_order) VALUES "
                               "('feed', 'acc', 'https://example.org/feed.ics', 'Holidays', 0), "
                               "('home', 'acc', 'local://calendar/home', 'Home', 20), "
                               "('work', 'acc', 'local://calendar/work', 'Work', 10)")));
    QVERIFY(sql(QStringLiteral("UPDATE calendars SET is_read_only = 1 WHERE id = 'feed'")));
    // These calendars stand in for the on-device one that the first start seeded.
    QVERIFY(sql(QStringLiteral("DELETE FROM calendars WHERE id = 'kettlebrook-personal-default'")));
    QVERIFY(sql(QStringLiteral("DELETE FROM accounts WHERE id = 'personal-local-account'")));
}

void TestKbcalEvents::cleanup()
{
    m_dir.reset();
    Clock::setFixedNow(QDateTime());
}

bool TestKbcalEvents::sql(const QString &statement)
{
    bool ok = false;
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("side"));
        db.setDatabaseName(m_dir->filePath(QStringLiteral("calendar.db")));
        ok = db.open();
        QSqlQuery query(db);
        ok = ok && query.exec(statement);
        if (!ok)
            qWarning().noquote() << statement << query.lastError().text();
    }
    QSqlDatabase::removeDatabase(QStringLiteral("side"));
    return ok;
}

void TestKbcalEvents::icsExpand()
{
    const Result result = runKbcal({"ics", "expand", fixture(QStringLiteral("three-events.ics")), "--from",
                                    "2025-03-10T00:00:00Z", "--to", "2025-03-17", "--json"});
    QCOMPARE(result.status, 0);
    QCOMPARE(result.err, QString());
    const QJsonArray occurrences = result.json().object().value(QStringLiteral("occurrences")).toArray();
    // The single event first, then the series with its moved occurrence in place.
    QCOMPARE(titles(occurrences),
             (QStringList{"Dinner at Café Müller", "Standup", "Standup", "Standup (moved)", "Standup", "Standup"}));
    QCOMPARE(occurrences.at(0).toObject().value(QStringLiteral("start_time")).toString(),
             QStringLiteral("2025-03-14T19:00:00+01:00"));

    // Text: one line per occurrence, local time.
    const Result text = runKbcal(
        {"ics", "expand", fixture(QStringLiteral("three-events.ics")), "--from", "2025-03-12", "--to", "2025-03-13"});
    QCOMPARE(text.status, 0);
    QCOMPARE(text.out, QStringLiteral("2025-03-12 10:30 - 10:45  Standup (moved)\n"));
}

void TestKbcalEvents::icsExpandUsage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("error");

    QTest::newRow("no span") << QStringList{"ics", "expand", "x.ics"} << 2
                             << "kbcal: both --from and --to are required";
    QTest::newRow("unreadable time") << QStringList{"ics", "expand", "--from", "monday", "--to", "2025-03-01"} << 2
                                     << "kbcal: invalid time 'monday'";
    QTest::newRow("empty span") << QStringList{"ics", "expand", "--from", "2025-03-02", "--to", "2025-03-01"} << 1
                                << "kbcal: the span is empty: --to must be after --from";
}

void TestKbcalEvents::icsExpandUsage()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, status);
    QFETCH(QString, error);
    const Result result = runKbcal(arguments);
    QCOMPARE(result.status, status);
    QCOMPARE(result.out, QString());
    QCOMPARE(result.err.section(QLatin1Char('\n'), 0, 0), error);
}

void TestKbcalEvents::importIntoNamedCalendar()
{
    const Result first
        = runKbcal(withDataDir({"import", fixture(QStringLiteral("three-events.ics")), "--calendar", "home"}));
    QCOMPARE(first.status, 0);
    QCOMPARE(first.out, QStringLiteral("Imported 3 events into Home.\n"));
    QCOMPARE(first.err, QString());

    const Result again = runKbcal(
        withDataDir({"import", fixture(QStringLiteral("three-events.ics")), "--calendar", "home", "--json"}));
    QCOMPARE(again.status, 0);
    QCOMPARE(again.json().object(), (QJsonObject{{"calendar_id", "home"}, {"imported", 0}, {"updated", 3}}));
}

void TestKbcalEvents::importCalendarChoice_data()
{
    QTest::addColumn<QString>("preference"); // empty: not set
    QTest::addColumn<QString>("defaultCalendar"); // empty: none
    QTest::addColumn<QString>("expected");

    QTest::newRow("first writable calendar") << ""
                                             << ""
                                             << "work";
    QTest::newRow("default calendar") << ""
                                      << "home"
                                      << "home";
    QTest::newRow("preference wins") << "home"
                                     << "work"
                                     << "home";
    QTest::newRow("preference naming no calendar") << "gone"
                                                   << "home"
                                                   << "home";
    QTest::newRow("read-only preference") << "feed"
                                          << ""
                                          << "work";
    QTest::newRow("read-only default") << ""
                                       << "feed"
                                       << "work";
}

void TestKbcalEvents::importCalendarChoice()
{
    QFETCH(QString, preference);
    QFETCH(QString, defaultCalendar);
    QFETCH(QString, expected);
    if (!preference.isEmpty())
        QVERIFY(sql(
            QStringLiteral("INSERT INTO settings (key, value) VALUES ('ui/defaultCalendarId', '%1')").arg(preference)));
    if (!defaultCalendar.isEmpty())
        QVERIFY(sql(QStringLiteral("UPDATE calendars SET is_default = 1 WHERE id = '%1'").arg(defaultCalendar)));
    const Result result = runKbcal(withDataDir({"import", fixture(QStringLiteral("one-event.ics")), "--json"}));
    QCOMPARE(result.status, 0);
    QCOMPARE(result.json().object().value(QStringLiteral("calendar_id")).toString(), expected);
}

void TestKbcalEvents::importErrors_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("calendar");
    QTest::addColumn<QString>("error");

    QTest::newRow("read-only calendar") << "one-event.ics"
                                        << "feed"
                                        << "kbcal: The calendar Holidays is read-only.\n";
    QTest::newRow("broken event") << "event-with-unreadable-start.ics"
                                  << "work"
                                  << "kbcal: Could not store the event \"Broken\" from "
                                     "event-with-unreadable-start.ics; nothing was imported.\n";
}

void TestKbcalEvents::importErrors()
{
    QFETCH(QString, file);
    QFETCH(QString, calendar);
    QFETCH(QString, error);
    const Result result = runKbcal(withDataDir({"import", fixture(file), "--calendar", calendar}));
    QCOMPARE(result.status, 1);
    QCOMPARE(result.out, QString());
    QCOMPARE(result.err, error);
    const Result exported = runKbcal(withDataDir({"export"}));
    QVERIFY(!exported.out.contains(QStringLiteral("BEGIN:VEVENT")));
}

void TestKbcalEvents::importProgressGoesToStandardError()
{
    const Result quiet = runKbcal(withDataDir({"import", fixture(QStringLiteral("three-events.ics")), "--json"}));
    QCOMPARE(quiet.err, QString());
    const Result loud
        = runKbcal(withDataDir({"import", fixture(QStringLiteral("three-events-later.ics")), "--json", "--progress"}));
    QCOMPARE(loud.status, 0);
    QVERIFY2(loud.err.contains(QStringLiteral("Importing: 2 of 2 events")), qPrintable(loud.err));
    QCOMPARE(loud.json().object().value(QStringLiteral("imported")).toInt(), 1);
}

void TestKbcalEvents::exportWritesOneCalendarObject()
{
    QCOMPARE(
        runKbcal(withDataDir({"import", fixture(QStringLiteral("three-events.ics")), "--calendar", "work"})).status, 0);
    QCOMPARE(runKbcal(withDataDir({"import", fixture(QStringLiteral("one-event.ics")), "--calendar", "home"})).status,
             0);

    const Result all = runKbcal(withDataDir({"export"}));
    QCOMPARE(all.status, 0);
    const QString text = all.out;
    QVERIFY(text.startsWith(QString::fromLatin1(ICal::kCalendarHead)));
    QVERIFY(text.endsWith(QString::fromLatin1(ICal::kCalendarTail)));
    QCOMPARE(text.count(QStringLiteral("BEGIN:VCALENDAR")), 1);
    QCOMPARE(text.count(QStringLiteral("BEGIN:VEVENT\r\n")), 4);
    QCOMPARE(text.count(QStringLiteral("END:VEVENT\r\n")), 4);
    QVERIFY(!text.contains(QStringLiteral("VTODO")));
    // The alarm stays inside its event.
    QVERIFY(text.contains(QStringLiteral("BEGIN:VALARM\r\nACTION:DISPLAY\r\nTRIGGER:-PT30M\r\nEND:VALARM\r\n")));
    const QStringList lines = text.split(QStringLiteral("\r\n"));
    for (const QString &line : lines)
        QVERIFY2(line.toUtf8().size() <= 75, qPrintable(line));

    // What is written reads back as the same events.
    QStringList uids;
    for (const Event &event : ICal::parseEvents(text.toUtf8()))
        uids.append(event.uid + QLatin1Char('|') + event.recurrence_id);
    uids.sort();
    QCOMPARE(uids,
             (QStringList{"dinner@example.com|", "single@example.com|", "standup@example.com|",
                          "standup@example.com|20250312T083000Z"}));

    const Result home = runKbcal(withDataDir({"export", "--calendar", "home"}));
    QCOMPARE(home.out.count(QStringLiteral("BEGIN:VEVENT")), 1);
    QVERIFY(home.out.contains(QStringLiteral("SUMMARY:Haircut\r\n")));
    const Result both = runKbcal(withDataDir({"export", "--calendar", "home", "--calendar", "work"}));
    QCOMPARE(both.out.count(QStringLiteral("BEGIN:VEVENT")), 4);
}

void TestKbcalEvents::exportUsage()
{
    const Result unknown = runKbcal(withDataDir({"export", "--calendar", "nope"}));
    QCOMPARE(unknown.status, 1);
    QCOMPARE(unknown.err, QStringLiteral("kbcal: there is no calendar nope\n"));
    QCOMPARE(unknown.out, QString());
    QCOMPARE(runKbcal(withDataDir({"export", "--json"})).status, 2);
}

void TestKbcalEvents::tasksAndCompletion()
{
    QCOMPARE(runKbcal(withDataDir({"sample-data", "add"})).status, 0);
    const Result all = runKbcal(withDataDir({"tasks", "--json"}));
    QCOMPARE(all.status, 0);
    const QJsonArray tasks = all.json().array();
    QCOMPARE(tasks.size(), 8);
    QVERIFY(tasks.at(0).toObject().value(QStringLiteral("categories")).isArray());

    const Result work = runKbcal(withDataDir({"tasks", "--calendar", "sample-cal-work"}));
    QCOMPARE(work.status, 0);
    QCOMPARE(work.out.count(QLatin1Char('\n')), 3);
    QVERIFY(work.out.contains(QStringLiteral("[x] ")));
    QVERIFY(work.out.contains(QStringLiteral("File expense report  (sample-task-old-completed)")));

    const Result done = runKbcal(withDataDir({"task", "complete", "sample-task-buy-milk", "--json"}));
    QCOMPARE(done.status, 0);
    QCOMPARE(done.json().object().value(QStringLiteral("status")).toString(), QStringLiteral("completed"));
    QCOMPARE(done.json().object().value(QStringLiteral("sync_status")).toString(), QStringLiteral("pending"));
    const Result reopened = runKbcal(withDataDir({"task", "reopen", "sample-task-buy-milk"}));
    QCOMPARE(reopened.status, 0);
    QCOMPARE(reopened.out, QStringLiteral("Reopened: Buy milk\n"));
    const Result doneText = runKbcal(withDataDir({"task", "complete", "sample-task-buy-milk"}));
    QCOMPARE(doneText.out, QStringLiteral("Completed: Buy milk\n"));
}

void TestKbcalEvents::taskErrors()
{
    const Result unknown = runKbcal(withDataDir({"task", "complete", "nope"}));
    QCOMPARE(unknown.status, 1);
    QCOMPARE(unknown.err, QStringLiteral("kbcal: there is no task nope\n"));
    QCOMPARE(runKbcal(withDataDir({"task", "reopen"})).status, 2);
    QCOMPARE(runKbcal(withDataDir({"tasks", "--calendar", "nope"})).status, 1);
}

void TestKbcalEvents::sampleData()
{
    const Result added = runKbcal(withDataDir({"sample-data", "add", "--json"}));
    QCOMPARE(added.status, 0);
    QCOMPARE(added.json().object(), (QJsonObject{{"calendars", 4}, {"events", 18}, {"tasks", 8}}));
    QCOMPARE(runKbcal(withDataDir({"sample-data", "add", "--json"})).json().object(), added.json().object());
    const Result removed = runKbcal(withDataDir({"sample-data", "remove", "--json"}));
    QCOMPARE(removed.status, 0);
    QCOMPARE(removed.json().object(), (QJsonObject{{"removed", 31}}));
    QCOMPARE(runKbcal(withDataDir({"sample-data", "remove"})).out, QStringLiteral("Removed 0 sample rows.\n"));
}

QTEST_GUILESS_MAIN(TestKbcalEvents)
#include "tst_kbcalevents.moc"
