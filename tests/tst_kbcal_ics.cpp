// SPDX-License-Identifier: GPL-3.0-or-later
// `kbcal ics parse`, in process against buffers and once as a process, and the JSON text writer
// it streams its records with.
#include "cli/JsonRecords.h"
#include "cli/JsonText.h"
#include "ical/ICal.h"

#include "support/KbcalRunner.h"

#include <QBuffer>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QTest>
#include <QTimeZone>

namespace {

using Result = KbcalResult;

const QString kFeed = QStringLiteral(KB_TEST_DATA_DIR "/ical/generated-feed-300-events.ics");

const QByteArray kSmall = "BEGIN:VCALENDAR\r\n"
                          "BEGIN:VEVENT\r\nUID:e1\r\nSUMMARY:Standup\r\nDTSTART;TZID=Europe/Berlin:20240105T090000\r\n"
                          "DURATION:PT15M\r\nEND:VEVENT\r\n"
                          "BEGIN:VTODO\r\nUID:t1\r\nSUMMARY:Buy milk\r\nCATEGORIES:Home,Shop\r\n"
                          "DUE;VALUE=DATE:20240301\r\nEND:VTODO\r\n"
                          "BEGIN:VEVENT\r\nUID:e2\r\nSUMMARY:Holiday\\nabroad\r\nDTSTART;VALUE=DATE:20240710\r\n"
                          "END:VEVENT\r\nEND:VCALENDAR\r\n";

QJsonObject parseObject(const QString &text)
{
    QJsonParseError error;
    const QJsonDocument doc = QJsonDocument::fromJson(text.toUtf8(), &error);
    if (error.error != QJsonParseError::NoError)
        qWarning("JSON error at %d: %s", error.offset, qPrintable(error.errorString()));
    return doc.object();
}

QJsonObject expectedDocument(const QByteArray &text)
{
    return QJsonObject{{QStringLiteral("events"), JsonRecords::toJsonArray(ICal::parseEvents(text))},
                       {QStringLiteral("tasks"), JsonRecords::toJsonArray(ICal::parseTasks(text))}};
}

} // namespace

class TestKbcalIcs : public QObject
{
    Q_OBJECT

private slots:
    void jsonShape();
    void textOutput();
    void emptyInput();
    void unreadableFile_data();
    void unreadableFile();
    void databaseUntouched();
    void usage();
    void jsonTextMatchesJsonRecords_data();
    void jsonTextMatchesJsonRecords();
    void endToEndProcess();
};

void TestKbcalIcs::jsonShape()
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("small.ics"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(kSmall);
    file.close();

    const Result result = runKbcal({"ics", "parse", path, "--json"});
    QCOMPARE(result.status, 0);
    QCOMPARE(result.err, QString());
    const QJsonObject doc = parseObject(result.out);
    QCOMPARE(doc.keys(), (QStringList{"events", "tasks"}));

    // The records themselves are the reader's; here only that every field of each is written.
    const QJsonArray events = doc.value(QStringLiteral("events")).toArray();
    QCOMPARE(events.size(), 2);
    QCOMPARE(events.at(0).toObject().keys(), JsonRecords::toJson(Event()).keys());
    const QJsonArray tasks = doc.value(QStringLiteral("tasks")).toArray();
    QCOMPARE(tasks.size(), 1);
    QCOMPARE(tasks.at(0).toObject().keys(), JsonRecords::toJson(Task()).keys());
    QCOMPARE(doc, expectedDocument(kSmall));
}

void TestKbcalIcs::textOutput()
{
    const Result result = runKbcal({"ics", "parse"}, kSmall);
    QCOMPARE(result.status, 0);
    QCOMPARE(result.err, QString());
    QCOMPARE(
        result.out.split(QLatin1Char('\n')),
        (QStringList{"event  2024-01-05T09:00:00+01:00  2024-01-05T09:15:00+01:00  Standup  [uid e1]",
                     "event  2024-07-10T00:00:00Z  -  Holiday abroad  [all day; uid e2]",
                     "task   needs-action  Buy milk  [due 2024-03-01T00:00:00Z; categories Home, Shop; uid t1]", ""}));
}

void TestKbcalIcs::emptyInput()
{
    const Result text = runKbcal({"ics", "parse", "-"}, "BEGIN:VCALENDAR\r\nEND:VCALENDAR\r\n");
    QCOMPARE(text.status, 0);
    QCOMPARE(text.out, QStringLiteral("No events or tasks found.\n"));
    // Without a file the text comes from standard input too.
    const Result json = runKbcal({"ics", "parse", "--json"});
    QCOMPARE(json.status, 0);
    QCOMPARE(parseObject(json.out),
             (QJsonObject{{QStringLiteral("events"), QJsonArray()}, {QStringLiteral("tasks"), QJsonArray()}}));
}

void TestKbcalIcs::unreadableFile_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("reason");
    QTest::newRow("missing") << "missing.ics"
                             << "No such file or directory";
    QTest::newRow("folder") << "."
                            << "";
}

void TestKbcalIcs::unreadableFile()
{
    QFETCH(QString, name);
    QFETCH(QString, reason);
    QTemporaryDir dir;
    const QString path = dir.filePath(name);
    const Result result = runKbcal({"ics", "parse", path, "--json"});
    QCOMPARE(result.status, 1);
    QCOMPARE(result.out, QString());
    QCOMPARE(result.err.count(QLatin1Char('\n')), 1);
    if (reason.isEmpty())
        QVERIFY2(result.err.startsWith(QStringLiteral("kbcal: cannot read %1: ").arg(path)), qPrintable(result.err));
    else
        QCOMPARE(result.err, QStringLiteral("kbcal: cannot read %1: %2\n").arg(path, reason));
}

void TestKbcalIcs::databaseUntouched()
{
    QTemporaryDir dir;
    const QString data = dir.filePath(QStringLiteral("data"));
    const Result result = runKbcal({"--data-dir", data, "ics", "parse", "-"}, kSmall);
    QCOMPARE(result.status, 0);
    QVERIFY(!QFile::exists(data + QStringLiteral("/calendar.db")));
}

void TestKbcalIcs::usage()
{
    const Result extra = runKbcal({"ics", "parse", "a.ics", "b.ics"});
    QCOMPARE(extra.status, 2);
    QVERIFY2(extra.err.startsWith(QStringLiteral("kbcal: unexpected argument 'b.ics'")), qPrintable(extra.err));
    const Result help = runKbcal({"ics", "parse", "--help"});
    QCOMPARE(help.status, 0);
    QVERIFY(help.out.startsWith(QStringLiteral("Usage: kbcal [--data-dir DIR] ics parse [FILE|-] [--json]")));
}

void TestKbcalIcs::jsonTextMatchesJsonRecords_data()
{
    QTest::addColumn<Event>("event");
    QTest::addColumn<Task>("task");

    QTest::newRow("defaults") << Event() << Task();

    QString awkward;
    for (char16_t c = 0; c < 0x80; ++c)
        awkward.append(QChar(c));
    awkward += QString::fromUtf8("\u00e9\u20ac\U0001F600\u2028\ufeff\ufffd");
    awkward += QChar(0xD800);
    awkward += QLatin1Char('x');
    awkward += QChar(0xDC00);
    awkward += QChar(0xDBFF);

    Event event;
    event.id = awkward;
    event.title = QStringLiteral("quote \" backslash \\ tab \t");
    event.description = awkward;
    event.start_time = QDateTime(QDate(2024, 1, 5), QTime(9, 0), QTimeZone("America/New_York"));
    event.end_time = QDateTime(QDate(2024, 1, 5), QTime(9, 0));
    event.created = QDateTime(QDate(2024, 1, 5), QTime(9, 0), Qt::UTC);
    event.last_modified = QDateTime(QDate(2024, 1, 5), QTime(9, 0), Qt::OffsetFromUTC, 5400);
    event.deleted_at = QDateTime();
    event.sequence = -2147483647 - 1;
    event.is_all_day = true;
    event.raw_icalendar = "\xef\xbb\xbf"
                          "BEGIN:VEVENT\r\n\xff\xc3(\0end";
    Reminder reminder;
    reminder.id = QStringLiteral("r1");
    reminder.minutes_before = 15;
    reminder.trigger_time = QDateTime(QDate(2024, 1, 5), QTime(8, 45), Qt::UTC);
    event.reminders = {reminder, Reminder()};
    Attendee attendee;
    attendee.email = QStringLiteral("a@example.org");
    attendee.rsvp = true;
    event.attendees = {attendee};

    Task task;
    task.title = awkward;
    task.categories = {awkward, QString(), QStringLiteral("plain")};
    task.due_date = QDateTime(QDate(9999, 12, 31), QTime(23, 0), Qt::UTC);
    task.start_date = QDateTime(QDate(2024, 3, 31), QTime(2, 30), QTimeZone("Europe/Berlin"));
    task.completed_date = QDateTime(QDate(2024, 3, 1), QTime(0, 0), Qt::UTC).addSecs(qint64(1) << 40);
    task.priority = 9;
    task.percent_complete = 100;
    task.sort_order = -5;
    task.raw_icalendar = QByteArray("a\0b", 3);
    QTest::newRow("awkward values") << event << task;
}

void TestKbcalIcs::jsonTextMatchesJsonRecords()
{
    QFETCH(Event, event);
    QFETCH(Task, task);
    QByteArray eventText;
    JsonText::appendRecord(eventText, event);
    QCOMPARE(eventText, QJsonDocument(JsonRecords::toJson(event)).toJson(QJsonDocument::Compact));
    QByteArray taskText;
    JsonText::appendRecord(taskText, task);
    QCOMPARE(taskText, QJsonDocument(JsonRecords::toJson(task)).toJson(QJsonDocument::Compact));
}

void TestKbcalIcs::endToEndProcess()
{
    // As a process the JSON goes straight to the standard output device.
    QFile file(kFeed);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray text = file.readAll();
    QProcess process;
    process.start(QStringLiteral(KB_BINARY_DIR "/bin/kbcal"),
                  {QStringLiteral("ics"), QStringLiteral("parse"), kFeed, QStringLiteral("--json")});
    QVERIFY(process.waitForFinished(60000));
    QCOMPARE(process.exitCode(), 0);
    QCOMPARE(process.readAllStandardError(), QByteArray());
    const QByteArray out = process.readAllStandardOutput();
    QVERIFY(out.endsWith("]}\n"));
    QCOMPARE(QJsonDocument::fromJson(out).object(), expectedDocument(text));
}

QTEST_GUILESS_MAIN(TestKbcalIcs)
#include "tst_kbcal_ics.moc"
