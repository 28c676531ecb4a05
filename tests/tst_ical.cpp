// SPDX-License-Identifier: GPL-3.0-or-later
// The iCalendar reader and writers. Runs with TZ=Europe/Berlin, so "local"
// below is Berlin time.
#include "support/ICalReference.h"

#include "ical/ICal.h"
#include "ical/ICalBytes.h"
#include "ical/ZoneCache.h"
#include "storage/Clock.h"
#include "storage/StorageFormat.h"

#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <QTest>
#include <QTimeZone>

using ICalReference::describe;

namespace {

QByteArray lines(const QStringList &items)
{
    QByteArray text;
    for (const QString &item : items)
        text += item.toUtf8() + "\r\n";
    return text;
}

// A calendar object around the given lines; a single event with UID "u1" unless
// they hold their own BEGIN:VEVENT.
QByteArray eventText(const QStringList &body)
{
    if (body.join(QLatin1Char('\n')).contains(QLatin1String("BEGIN:VEVENT")))
        return lines(QStringList{QStringLiteral("BEGIN:VCALENDAR")} + body
                     + QStringList{QStringLiteral("END:VCALENDAR")});
    return lines(
        QStringList{QStringLiteral("BEGIN:VCALENDAR"), QStringLiteral("BEGIN:VEVENT"), QStringLiteral("UID:u1")} + body
        + QStringList{QStringLiteral("END:VEVENT"), QStringLiteral("END:VCALENDAR")});
}

QByteArray taskText(const QStringList &body)
{
    if (body.join(QLatin1Char('\n')).contains(QLatin1String("BEGIN:VTODO")))
        return lines(QStringList{QStringLiteral("BEGIN:VCALENDAR")} + body
                     + QStringList{QStringLiteral("END:VCALENDAR")});
    return lines(QStringList{QStringLiteral("BEGIN:VCALENDAR"), QStringLiteral("BEGIN:VTODO"), QStringLiteral("UID:t1")}
                 + body + QStringList{QStringLiteral("END:VTODO"), QStringLiteral("END:VCALENDAR")});
}

// The fields of a record by name, as describe() writes them.
QMap<QString, QString> fieldsOf(const QString &description)
{
    QMap<QString, QString> fields;
    // Values may hold line feeds: a line without "=" at a known start continues
    // the previous one.
    QString key;
    for (const QString &line : description.split(QLatin1Char('\n'))) {
        const qsizetype equals = line.indexOf(QLatin1Char('='));
        const QString candidate = equals > 0 ? line.left(equals) : QString();
        if (!candidate.isEmpty() && !candidate.contains(QLatin1Char(' ')) && candidate == candidate.toLower()
            && !fields.contains(candidate)) {
            key = candidate;
            fields.insert(key, line.mid(equals + 1));
        } else if (!key.isEmpty()) {
            fields[key] += QLatin1Char('\n') + line;
        }
    }
    return fields;
}

// Checks "field=value" expectations against the last record.
template<typename Record>
void checkFields(const QList<Record> &records, const QStringList &expected)
{
    if (expected.isEmpty())
        return;
    QVERIFY(!records.isEmpty());
    const QMap<QString, QString> fields = fieldsOf(describe(records.constLast()));
    for (const QString &expectation : expected) {
        const qsizetype equals = expectation.indexOf(QLatin1Char('='));
        const QString key = expectation.left(equals);
        QVERIFY2(fields.contains(key), qPrintable(QStringLiteral("no field ") + key));
        QCOMPARE(fields.value(key), expectation.mid(equals + 1));
    }
}

QString readFixture(const QString &name, QByteArray *bytes)
{
    QFile file(QStringLiteral(KB_TEST_DATA_DIR "/ical/") + name);
    if (!file.open(QIODevice::ReadOnly))
        return file.errorString();
    *bytes = file.readAll();
    return QString();
}

const QByteArray kHead = ICal::kCalendarHead;
const QByteArray kTail = ICal::kCalendarTail;

} // namespace

class TestICal : public QObject
{
    Q_OBJECT

private slots:
    void unfoldLines_data();
    void unfoldLines();
    void propertyLine_data();
    void propertyLine();
    void unescape_data();
    void unescape();
    void dateTimeRule_data();
    void dateTimeRule();
    void duration_data();
    void duration();
    void zoneNames_data();
    void zoneNames();

    void events_data();
    void events();
    void eventRawText();
    void tasks_data();
    void tasks();
    void taskRawText();
    void fixtures_data();
    void fixtures();
    void textOverloads();

    void buildEvent_data();
    void buildEvent();
    void buildTask_data();
    void buildTask();
    void reschedule_data();
    void reschedule();

    void hostileText_data();
    void hostileText();
    void manyDistinctZoneNames();
    void sameResultsAsPlainReader();
    void byteRulesMatchTextRules();
    void fuzzFindings_data();
    void fuzzFindings();

    void cleanup() { Clock::setFixedNow(QDateTime()); }
};

void TestICal::unfoldLines_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("CR LF") << "A:1\r\nB:2" << QStringList{"A:1", "B:2"};
    QTest::newRow("trailing break gives an empty line") << "A:1\r\n" << QStringList{"A:1", ""};
    QTest::newRow("empty lines kept") << "A\r\n\r\n\nB" << QStringList{"A", "", "", "B"};
    QTest::newRow("space fold") << "A:one\r\n two" << QStringList{"A:onetwo"};
    QTest::newRow("only the first blank goes") << "A:one\r\n  two" << QStringList{"A:one two"};
    QTest::newRow("first line folds onto nothing") << " A:1\r\nB" << QStringList{" A:1", "B"};
    QTest::newRow("lone CR stays") << "A:1\rB:2\r\nC" << QStringList{"A:1\rB:2", "C"};
    QTest::newRow("other white space is no fold") << "A\r\n\vB" << QStringList{"A", "\vB"};
}

void TestICal::unfoldLines()
{
    QFETCH(QString, text);
    QFETCH(QStringList, expected);
    QCOMPARE(ICal::unfoldLines(text), expected);
}

void TestICal::propertyLine_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QStringList>("parameters"); // "NAME=value" in order
    QTest::addColumn<QString>("value");

    QTest::newRow("plain") << "SUMMARY:Lunch"
                           << "SUMMARY" << QStringList{} << "Lunch";
    QTest::newRow("no colon: bare name") << "summary;x=1"
                                         << "SUMMARY;X=1" << QStringList{} << "";
    QTest::newRow("parameters keep quotes")
        << "ORGANIZER;cn=\"Doe, Jane\";ROLE=CHAIR:mailto:j@x.org"
        << "ORGANIZER" << QStringList{"CN=\"Doe, Jane\"", "ROLE=CHAIR"} << "mailto:j@x.org";
    QTest::newRow("first colon splits inside quotes") << "ORGANIZER;CN=\"a:b\":mailto:x"
                                                      << "ORGANIZER" << QStringList{"CN=\"a"} << "b\":mailto:x";
    QTest::newRow("semicolon inside quotes splits") << "X;A=\"1;B=2\":v"
                                                    << "X" << QStringList{"A=\"1", "B=2\""} << "v";
    QTest::newRow("pieces without name or equals skipped") << "X;=1;flag;;B=:v"
                                                           << "X" << QStringList{"B="} << "v";
    QTest::newRow("full case mapping of the name") << QString::fromUtf8("u\u0131d:x") << "UID" << QStringList{} << "x";
}

void TestICal::propertyLine()
{
    QFETCH(QString, line);
    QFETCH(QString, name);
    QFETCH(QStringList, parameters);
    QFETCH(QString, value);
    const ICal::ContentLine parsed = ICal::parsePropertyLine(line);
    QCOMPARE(parsed.name, name);
    QStringList actual;
    for (const auto &[key, raw] : parsed.parameters)
        actual.append(key + QLatin1Char('=') + raw);
    QCOMPARE(actual, parameters);
    QCOMPARE(parsed.value, value);

    // The byte reader's split gives the same name, parameters and value.
    const QByteArray bytes = line.toUtf8();
    const ICal::Bytes::LineParts parts = ICal::Bytes::splitLine(bytes);
    QCOMPARE(QString::fromUtf8(parts.value), value);
    char upper[64];
    const qsizetype length = ICal::Bytes::upperAsciiName(parts.name, upper, sizeof upper);
    if (!bytes.contains(':'))
        QCOMPARE(QString::fromUtf8(upper, length), name);
    for (const auto &[key, raw] : parsed.parameters) {
        const auto found = ICal::Bytes::parameter(parts.parameters, key.toUtf8());
        QVERIFY(found);
        QCOMPARE(QString::fromUtf8(*found), parsed.parameter(key));
    }
}

void TestICal::unescape_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("expected");

    QTest::newRow("comma and line feed") << "a\\,b\\nc"
                                         << "a,b\nc";
    QTest::newRow("backslash") << "a\\\\nb"
                               << "a\\nb";
    QTest::newRow("unknown escape kept") << "a\\tb"
                                         << "a\\tb";
    QTest::newRow("trailing backslash kept") << "ab\\"
                                             << "ab\\";
}

void TestICal::unescape()
{
    QFETCH(QString, text);
    QFETCH(QString, expected);
    QCOMPARE(ICal::unescapeText(text), expected);
}

void TestICal::dateTimeRule_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("tzid"); // null: no TZID parameter
    QTest::addColumn<QString>("expected");
    QTest::addColumn<bool>("dateOnly");

    QTest::newRow("date") << "20240105" << QString() << "2024-01-05T00:00:00Z UTC" << true;
    QTest::newRow("eight characters with T are no date") << "2024T105" << QString() << "invalid" << false;
    QTest::newRow("February 30") << "20240230" << QString() << "invalid" << true;
    QTest::newRow("UTC") << "20240105T090000Z" << QString() << "2024-01-05T09:00:00Z UTC" << false;
    QTest::newRow("UTC inside the local spring-forward gap")
        << "20240331T023000Z" << QString() << "2024-03-31T02:30:00Z UTC" << false;
    QTest::newRow("zone") << "20240105T090000"
                          << "Europe/Berlin"
                          << "2024-01-05T09:00:00+01:00 Europe/Berlin" << false;
    QTest::newRow("unknown zone is floating") << "20240105T090000"
                                              << "Mars/Olympus"
                                              << "2024-01-05T09:00:00 local" << false;
    QTest::newRow("no TZID is floating") << "20240105T090000" << QString() << "2024-01-05T09:00:00 local" << false;
    QTest::newRow("hour 24") << "20240105T240000Z" << QString() << "invalid" << false;
}

void TestICal::dateTimeRule()
{
    QFETCH(QString, value);
    QFETCH(QString, tzid);
    QFETCH(QString, expected);
    QFETCH(bool, dateOnly);
    QList<std::pair<QString, QString>> parameters;
    if (!tzid.isNull())
        parameters.append({QStringLiteral("TZID"), tzid});
    bool isDateOnly = !dateOnly;
    QCOMPARE(describe(ICal::parseDateTime(value, parameters, &isDateOnly)), expected);
    QCOMPARE(isDateOnly, dateOnly);

    ICal::ZoneCache zones;
    const QByteArray tzidBytes = tzid.toUtf8();
    isDateOnly = !dateOnly;
    const QDateTime bytes = ICal::Bytes::dateTime(
        value.toUtf8(), tzid.isNull() ? std::nullopt : std::optional<QByteArrayView>(tzidBytes), zones, &isDateOnly);
    QCOMPARE(describe(bytes), expected);
    QCOMPARE(isDateOnly, dateOnly);
}

void TestICal::duration_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<qint64>("seconds");

    QTest::newRow("days and time") << "P1DT2H3M4S" << qint64(93784);
    QTest::newRow("month is 30 days") << "P1M" << qint64(2592000);
    QTest::newRow("hours before T count nothing") << "P1H" << qint64(0);
    QTest::newRow("negative") << "-PT15M" << qint64(0);
    QTest::newRow("number without unit") << "PT1H30" << qint64(3600);
    QTest::newRow("T does not end a number") << "P1T2H" << qint64(43200);
    QTest::newRow("huge saturates") << "P99999999999999999999999D" << std::numeric_limits<qint64>::max();
}

void TestICal::duration()
{
    QFETCH(QString, value);
    QFETCH(qint64, seconds);
    QCOMPARE(ICal::parseDurationSeconds(value), seconds);
}

void TestICal::zoneNames_data()
{
    QTest::addColumn<QByteArray>("id");
    QTest::addColumn<bool>("shaped");

    QTest::newRow("area/city") << QByteArray("Europe/Berlin") << true;
    QTest::newRow("UTC offset id") << QByteArray("UTC+01:00") << true;
    QTest::newRow("parent folder") << QByteArray("../../etc/passwd") << false;
    QTest::newRow("empty") << QByteArray() << false;
}

void TestICal::zoneNames()
{
    QFETCH(QByteArray, id);
    QFETCH(bool, shaped);
    QCOMPARE(ICal::ZoneCache::hasZoneShape(id), shaped);
}

void TestICal::events_data()
{
    QTest::addColumn<QStringList>("body");
    QTest::addColumn<int>("count");
    QTest::addColumn<QStringList>("expected");

    // Start, zone and all-day flag.
    QTest::newRow("date-only start") << QStringList{"DTSTART;VALUE=DATE:20240105"} << 1
                                     << QStringList{"start_time=2024-01-05T00:00:00Z UTC", "is_all_day=true",
                                                    "timezone=UTC", "end_time=absent"};
    QTest::newRow("VALUE=DATE is not consulted")
        << QStringList{"DTSTART;VALUE=DATE:20240105T090000Z"} << 1
        << QStringList{"start_time=2024-01-05T09:00:00Z UTC", "is_all_day=false"};
    QTest::newRow("zoned start") << QStringList{"DTSTART;TZID=Europe/Berlin:20240105T090000"} << 1
                                 << QStringList{"start_time=2024-01-05T09:00:00+01:00 Europe/Berlin",
                                                "timezone=Europe/Berlin"};
    QTest::newRow("quoted TZID keeps its quotes")
        << QStringList{"DTSTART;TZID=\"Europe/Berlin\":20240105T090000"} << 1
        << QStringList{"start_time=2024-01-05T09:00:00 local", "timezone=\"Europe/Berlin\""};
    QTest::newRow("a timed start keeps an earlier all-day flag")
        << QStringList{"DTSTART;VALUE=DATE:20240105", "DTSTART:20240106T100000Z"} << 1
        << QStringList{"start_time=2024-01-06T10:00:00Z UTC", "is_all_day=true"};

    // End and duration.
    QTest::newRow("duration") << QStringList{"DTSTART:20240105T090000Z", "DURATION:PT1H30M"} << 1
                              << QStringList{"end_time=2024-01-05T10:30:00Z UTC"};
    QTest::newRow("DTEND before DURATION wins")
        << QStringList{"DTEND:20240105T093000Z", "DTSTART:20240105T090000Z", "DURATION:PT5H"} << 1
        << QStringList{"end_time=2024-01-05T09:30:00Z UTC"};

    // Text.
    QTest::newRow("folded description with a tab") << QStringList{"DESCRIPTION:first half,\r\n\tsecond half"} << 1
                                                   << QStringList{"description=first half,second half"};
    QTest::newRow("RRULE raw") << QStringList{"RRULE:FREQ=WEEKLY;BYDAY=MO\\,TU"} << 1
                               << QStringList{"recurrence_rule=FREQ=WEEKLY;BYDAY=MO\\,TU"};

    // Status, sequence.
    QTest::newRow("status lower-cased") << QStringList{"STATUS:CANCELLED"} << 1 << QStringList{"status=cancelled"};
    QTest::newRow("sequence with blanks and sign") << QStringList{"SEQUENCE: +7 "} << 1 << QStringList{"sequence=7"};

    // Organizer.
    QTest::newRow("organizer with quoted CN and MAILTO")
        << QStringList{"ORGANIZER;CN=\"Doe, Jane\":MAILTO:jane@example.org"} << 1
        << QStringList{"organizer_email=jane@example.org", "organizer_name=\"Doe, Jane\""};
    QTest::newRow("organizer colon in a quoted CN")
        << QStringList{"ORGANIZER;CN=\"Team: Ops\":mailto:ops@example.org"} << 1
        << QStringList{"organizer_email= Ops\":mailto:ops@example.org", "organizer_name=\"Team"};

    // Overrides.
    QTest::newRow("override in a zone") << QStringList{"RECURRENCE-ID;TZID=America/New_York:20240105T090000"} << 1
                                        << QStringList{"recurrence_id=20240105T140000Z", "master_event_uid=u1"};
    QTest::newRow("unreadable override kept raw") << QStringList{"RECURRENCE-ID:next monday"} << 1
                                                  << QStringList{"recurrence_id=next monday", "master_event_uid=u1"};

    // Created, last modified.
    QTest::newRow("created and last modified")
        << QStringList{"CREATED:20230101T120000Z", "LAST-MODIFIED;TZID=Europe/Berlin:20230201T120000"} << 1
        << QStringList{"created=2023-01-01T12:00:00Z UTC", "last_modified=2023-02-01T12:00:00+01:00 Europe/Berlin"};

    // Related-to.
    QTest::newRow("parent by default") << QStringList{"RELATED-TO:task\\,1"} << 1
                                       << QStringList{"related_to_uid=task,1"};
    QTest::newRow("empty parent leaves room")
        << QStringList{"RELATED-TO:", "RELATED-TO:later"} << 1 << QStringList{"related_to_uid=later"};

    // Alarms are not nested.
    QTest::newRow("alarm description after the event's replaces it")
        << QStringList{"DESCRIPTION:Agenda", "BEGIN:VALARM", "DESCRIPTION:Reminder", "END:VALARM"} << 1
        << QStringList{"description=Reminder"};

    // Components.
    QTest::newRow("no UID dropped") << QStringList{"BEGIN:VEVENT", "SUMMARY:x", "END:VEVENT"} << 0 << QStringList{};
    QTest::newRow("restart loses the unterminated event")
        << QStringList{"BEGIN:VEVENT", "UID:a", "SUMMARY:lost", "BEGIN:VEVENT", "UID:b", "END:VEVENT"} << 1
        << QStringList{"uid=b", "title="};
    QTest::newRow("lines outside events ignored")
        << QStringList{"SUMMARY:outside", "BEGIN:VTODO",  "UID:todo", "SUMMARY:task",
                       "END:VTODO",       "BEGIN:VEVENT", "UID:a",    "END:VEVENT"}
        << 1 << QStringList{"uid=a", "title="};
    QTest::newRow("BEGIN must be the whole line")
        << QStringList{"BEGIN:VEVENT ", "UID:a", "END:VEVENT", "begin:vevent", "UID:b", "END:VEVENT"} << 0
        << QStringList{};
}

void TestICal::events()
{
    QFETCH(QStringList, body);
    QFETCH(int, count);
    QFETCH(QStringList, expected);
    const QByteArray text = eventText(body);
    const QList<Event> events = ICal::parseEvents(text);
    QCOMPARE(events.size(), count);
    checkFields(events, expected);
    QCOMPARE(describe(events), describe(ICalReference::parseEvents(text)));
}

void TestICal::eventRawText()
{
    // Bare line feeds, a fold and an alarm: the raw text holds the unfolded lines
    // with CR LF, from BEGIN:VEVENT to END:VEVENT, inside the program's envelope.
    const QByteArray text = "BEGIN:VCALENDAR\nPRODID:-//Other//"
                            "EN\nBEGIN:VTIMEZONE\nTZID:X\nEND:VTIMEZONE\n"
                            "BEGIN:VEVENT\nUID:raw-1\nDESCRIPTION:one\n  "
                            "two\nX-CUSTOM;A=\"b\":c\n\nBEGIN:VALARM\n"
                            "TRIGGER:-PT5M\nEND:VALARM\nEND:VEVENT\nEND:VCALENDAR\n";
    const QList<Event> events = ICal::parseEvents(text);
    QCOMPARE(events.size(), 1);
    QCOMPARE(events.at(0).raw_icalendar,
             kHead
                 + "BEGIN:VEVENT\r\nUID:raw-1\r\nDESCRIPTION:one "
                   "two\r\nX-CUSTOM;A=\"b\":c\r\n\r\nBEGIN:VALARM\r\n"
                   "TRIGGER:-PT5M\r\nEND:VALARM\r\nEND:VEVENT\r\n"
                 + kTail);
    QCOMPARE(events.at(0).description, QStringLiteral("one two"));
    QVERIFY(events.at(0).reminders.isEmpty());
    QVERIFY(events.at(0).attendees.isEmpty());
}

void TestICal::tasks_data()
{
    QTest::addColumn<QStringList>("body");
    QTest::addColumn<int>("count");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("fresh task") << QStringList{} << 1
                                << QStringList{
                                       "status=needs-action",      "repeat_mode=fromDueDate", "due_date=absent",
                                       "start_date=absent",        "completed_date=absent",   "due_is_date_only=false",
                                       "start_is_date_only=false", "categories= (0)",         "priority=0"};
    QTest::newRow("date-only due") << QStringList{"DUE;VALUE=DATE:20240301"} << 1
                                   << QStringList{"due_date=2024-03-01T00:00:00Z UTC", "due_is_date_only=true",
                                                  "start_is_date_only=false"};
    QTest::newRow("numbers") << QStringList{"PRIORITY:5", "PERCENT-COMPLETE:100", "SEQUENCE:4"} << 1
                             << QStringList{"priority=5", "percent_complete=100", "sequence=4"};
    QTest::newRow("unreadable numbers are 0") << QStringList{"PRIORITY:5", "PRIORITY:high", "PERCENT-COMPLETE:50%"} << 1
                                              << QStringList{"priority=0", "percent_complete=0"};
    QTest::newRow("categories") << QStringList{"CATEGORIES:Work, Home,,Errands"} << 1
                                << QStringList{"categories=Work|Home|Errands (3)"};
    QTest::newRow("categories unescaped after the split")
        << QStringList{"CATEGORIES:a\\,b,c\\;d"} << 1 << QStringList{"categories=a\\|b|c;d (3)"};
    QTest::newRow("parent task") << QStringList{"RELATED-TO:p\\,1"} << 1 << QStringList{"parent_task_uid=p,1"};
    QTest::newRow("repeat from completion") << QStringList{"X-KETTLEBROOK-REPEAT-MODE: fromCompletionDate "} << 1
                                            << QStringList{"repeat_mode=fromCompletionDate"};
    QTest::newRow("other repeat modes leave the default")
        << QStringList{"X-KETTLEBROOK-REPEAT-MODE:FROMCOMPLETIONDATE"} << 1 << QStringList{"repeat_mode=fromDueDate"};
    QTest::newRow("sort order") << QStringList{"X-KETTLEBROOK-SORT-ORDER: 30 "} << 1 << QStringList{"sort_order=30"};
    QTest::newRow("event properties are not task properties")
        << QStringList{"LOCATION:Home", "URL:x", "ORGANIZER:mailto:a@b", "DURATION:PT1H"} << 1
        << QStringList{"description=", "title="};
    QTest::newRow("unterminated task lost")
        << QStringList{"BEGIN:VTODO", "UID:a", "BEGIN:VTODO", "UID:b", "END:VTODO", "BEGIN:VTODO", "UID:c"} << 1
        << QStringList{"uid=b"};
}

void TestICal::tasks()
{
    QFETCH(QStringList, body);
    QFETCH(int, count);
    QFETCH(QStringList, expected);
    const QByteArray text = taskText(body);
    const QList<Task> tasks = ICal::parseTasks(text);
    QCOMPARE(tasks.size(), count);
    checkFields(tasks, expected);
    QCOMPARE(describe(tasks), describe(ICalReference::parseTasks(text)));
}

void TestICal::taskRawText()
{
    const QByteArray text = "BEGIN:VCALENDAR\nBEGIN:VTODO\nUID:t\nSUMMARY:fold\n "
                            "ed\nEND:VTODO\nEND:VCALENDAR\n";
    const QList<Task> tasks = ICal::parseTasks(text);
    QCOMPARE(tasks.size(), 1);
    QCOMPARE(tasks.at(0).raw_icalendar, QByteArray("BEGIN:VTODO\r\nUID:t\r\nSUMMARY:folded\r\nEND:VTODO\r\n"));
}

void TestICal::fixtures_data()
{
    // Whole files, compared with the plain reader; the rows above pin what the fields hold.
    QTest::addColumn<QString>("file");
    QTest::addColumn<int>("events");
    QTest::addColumn<int>("tasks");

    QTest::newRow("event without UID") << "event-without-uid.ics" << 1 << 0;
    QTest::newRow("unterminated event") << "unterminated-event.ics" << 1 << 0;
    QTest::newRow("alarm after description") << "alarm-after-description.ics" << 1 << 0;
    QTest::newRow("bare line feeds") << "lf-line-ends.ics" << 1 << 0;
    QTest::newRow("override instance") << "override-instance.ics" << 2 << 0;
    QTest::newRow("fold inside a UTF-8 character") << "fold-inside-utf8-character.ics" << 1 << 0;
    QTest::newRow("byte order mark before an event") << "byte-order-mark-before-event.ics" << 1 << 0;
    QTest::newRow("tasks with private properties") << "tasks-with-private-properties.ics" << 0 << 2;
    QTest::newRow("generated feed") << "generated-feed-300-events.ics" << 300 << 40;
}

void TestICal::fixtures()
{
    QFETCH(QString, file);
    QFETCH(int, events);
    QFETCH(int, tasks);
    QByteArray text;
    const QString error = readFixture(file, &text);
    QVERIFY2(error.isEmpty(), qPrintable(error));
    const QList<Event> parsedEvents = ICal::parseEvents(text);
    const QList<Task> parsedTasks = ICal::parseTasks(text);
    QCOMPARE(parsedEvents.size(), events);
    QCOMPARE(parsedTasks.size(), tasks);
    QCOMPARE(describe(parsedEvents), describe(ICalReference::parseEvents(text)));
    QCOMPARE(describe(parsedTasks), describe(ICalReference::parseTasks(text)));
}

void TestICal::textOverloads()
{
    QByteArray text;
    QVERIFY(readFixture(QStringLiteral("generated-feed-300-events.ics"), &text).isEmpty());
    const QString decoded = QString::fromUtf8(text);
    QCOMPARE(describe(ICal::parseEvents(decoded)), describe(ICal::parseEvents(text)));
    QCOMPARE(describe(ICal::parseTasks(decoded)), describe(ICal::parseTasks(text)));
    QCOMPARE(describe(ICal::parseEvents(QByteArrayView(text))), describe(ICal::parseEvents(text)));
}

void TestICal::buildEvent_data()
{
    QTest::addColumn<QDateTime>("start");
    QTest::addColumn<QDateTime>("end"); // invalid: no end
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("related");
    QTest::addColumn<bool>("allDay");
    QTest::addColumn<QByteArray>("body");

    const QTimeZone berlin("Europe/Berlin");
    QTest::newRow("UTC times") << QDateTime(QDate(2024, 1, 5), QTime(9, 0), Qt::UTC)
                               << QDateTime(QDate(2024, 1, 5), QTime(10, 0), Qt::UTC) << "Lunch"
                               << "" << false
                               << QByteArray("UID:e1\r\nSUMMARY:Lunch\r\nDTSTART:20240105T090000Z\r\n"
                                             "DTEND:20240105T100000Z\r\n");
    QTest::newRow("zoned times converted to UTC") << QDateTime(QDate(2024, 7, 5), QTime(9, 0), berlin)
                                                  << QDateTime(QDate(2024, 7, 5), QTime(9, 30), berlin) << "Call"
                                                  << "" << false
                                                  << QByteArray("UID:e1\r\nSUMMARY:Call\r\nDTSTART:"
                                                                "20240705T070000Z\r\nDTEND:20240705T073000Z\r\n");
    QTest::newRow("nothing escaped") << QDateTime(QDate(2024, 1, 5), QTime(9, 0), Qt::UTC) << QDateTime()
                                     << "50%2 off, today; \\o/\nsecond line"
                                     << "" << false
                                     << QByteArray("UID:e1\r\nSUMMARY:50%2 off, today; \\o/\nsecond line\r\n"
                                                   "DTSTART:20240105T090000Z\r\nDTEND:20240105T090000Z\r\n");
    QTest::newRow("all-day written timed")
        << QDateTime(QDate(2024, 1, 5), QTime(0, 0), berlin) << QDateTime(QDate(2024, 1, 6), QTime(0, 0), berlin)
        << QString::fromUtf8("Gr\u00fc\u00dfe") << "" << true
        << QString::fromUtf8("UID:e1\r\nSUMMARY:Gr\u00fc\u00dfe\r\nDTSTART:20240104T230000Z\r\n"
                             "DTEND:20240105T230000Z\r\n")
               .toUtf8();
}

void TestICal::buildEvent()
{
    QFETCH(QDateTime, start);
    QFETCH(QDateTime, end);
    QFETCH(QString, title);
    QFETCH(QString, related);
    QFETCH(bool, allDay);
    QFETCH(QByteArray, body);
    Event event;
    event.uid = QStringLiteral("e1");
    event.title = title;
    event.start_time = start;
    if (end.isValid())
        event.end_time = end;
    event.related_to_uid = related;
    event.is_all_day = allDay;
    event.description = QStringLiteral("not written");
    event.sequence = 4;
    QCOMPARE(ICal::buildEventIcs(event), kHead + "BEGIN:VEVENT\r\n" + body + "END:VEVENT\r\n" + kTail);
}

void TestICal::buildTask_data()
{
    QTest::addColumn<Task>("task");
    QTest::addColumn<QByteArray>("body"); // after the head lines

    const QTimeZone berlin("Europe/Berlin");
    Task minimal;
    minimal.uid = QStringLiteral("t1");
    minimal.title = QStringLiteral("Buy milk");
    minimal.status.clear();
    QTest::newRow("minimal") << minimal << QByteArray("STATUS:NEEDS-ACTION\r\n");

    Task full = minimal;
    full.status = QStringLiteral("in-process");
    full.sequence = 2;
    full.priority = 1;
    full.percent_complete = 40;
    full.start_date = QDateTime(QDate(2024, 2, 10), QTime(8, 0), berlin);
    full.start_is_date_only = false;
    full.due_date = QDateTime(QDate(2024, 3, 1), QTime(0, 0), berlin);
    full.due_is_date_only = true;
    full.completed_date = QDateTime(QDate(2024, 2, 20), QTime(12, 0), berlin);
    full.recurrence_rule = QStringLiteral("FREQ=WEEKLY");
    full.categories = {QStringLiteral("Home"), QStringLiteral("a,b")};
    full.parent_task_uid = QStringLiteral("parent");
    full.repeat_mode = QStringLiteral("fromCompletionDate");
    full.sort_order = 30;
    full.description = QStringLiteral("Line one\nLine two; \\ raw");
    full.color = QStringLiteral("#ff0000");
    QTest::newRow("every line, in order") << full
                                          << QByteArray("STATUS:IN-PROCESS\r\nSEQUENCE:2\r\nPRIORITY:1\r\nPERCENT-"
                                                        "COMPLETE:40\r\n"
                                                        "DTSTART:20240210T070000Z\r\nDUE;VALUE=DATE:"
                                                        "20240301\r\nCOMPLETED:20240220T110000Z\r\n"
                                                        "RRULE:FREQ=WEEKLY\r\nCATEGORIES:Home,a,b\r\nRELATED-TO;"
                                                        "RELTYPE=PARENT:parent\r\n"
                                                        "X-KETTLEBROOK-REPEAT-MODE:fromCompletionDate\r\nX-"
                                                        "KETTLEBROOK-SORT-ORDER:30\r\n"
                                                        "DESCRIPTION:Line one\nLine two; \\ raw\r\n");

    Task dates = minimal;
    dates.status = QStringLiteral("completed");
    dates.percent_complete = 100;
    dates.start_date = QDateTime(QDate(2024, 2, 10), QTime(0, 0), berlin);
    dates.start_is_date_only = true;
    dates.due_date = QDateTime(QDate(2024, 3, 1), QTime(10, 0), Qt::UTC);
    dates.due_is_date_only = false;

    Task defaults = minimal;
    defaults.status = QStringLiteral("needs-action");
    defaults.repeat_mode = QStringLiteral("fromDueDate");
    defaults.priority = 0;
    defaults.sort_order = -5;
    defaults.sequence = -1;
    QTest::newRow("defaults and negatives are not written") << defaults << QByteArray("STATUS:NEEDS-ACTION\r\n");
}

void TestICal::buildTask()
{
    QFETCH(Task, task);
    QFETCH(QByteArray, body);
    Clock::setFixedNow(QDateTime(QDate(2024, 6, 1), QTime(12, 30, 15), QTimeZone("Europe/Berlin")));
    const QByteArray expected = kHead + "BEGIN:VTODO\r\nUID:" + task.uid.toUtf8() + "\r\nDTSTAMP:20240601T103015Z\r\n"
        + "SUMMARY:" + task.title.toUtf8() + "\r\n" + body + "END:VTODO\r\n" + kTail;
    QCOMPARE(ICal::buildTaskIcs(task), expected);
}

void TestICal::reschedule_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QDateTime>("start");
    QTest::addColumn<QDateTime>("end");
    QTest::addColumn<QByteArray>("expected");

    const QDateTime start(QDate(2024, 2, 1), QTime(10, 0), QTimeZone("Europe/Berlin"));
    const QDateTime end(QDate(2024, 2, 1), QTime(11, 0), QTimeZone("Europe/Berlin"));
    const QByteArray simple = "BEGIN:VCALENDAR\r\nBEGIN:VEVENT\r\nUID:a\r\nDTSTART:20240105T090000Z\r\n"
                              "DTEND:20240105T100000Z\r\nEND:VEVENT\r\nEND:VCALENDAR\r\n";

    QTest::newRow("invalid start") << simple << QDateTime() << end << simple;
    QTest::newRow("start and end replaced") << simple << start << end
                                            << QByteArray("BEGIN:VCALENDAR\r\nBEGIN:VEVENT\r\nUID:a\r\nDTSTART:"
                                                          "20240201T090000Z\r\n"
                                                          "DTEND:20240201T100000Z\r\nEND:VEVENT\r\nEND:VCALENDAR\r\n");
    QTest::newRow("TZID goes with the old value")
        << QByteArray("BEGIN:VEVENT\r\nDTSTART;TZID=Europe/Berlin:20240105T090000\r\n"
                      "DTEND;TZID=Europe/Berlin:20240105T100000\r\nEND:VEVENT")
        << start << end
        << QByteArray("BEGIN:VEVENT\r\nDTSTART:20240201T090000Z\r\nDTEND:"
                      "20240201T100000Z\r\nEND:VEVENT");
    QTest::newRow("date-only start kept, time added")
        << QByteArray("BEGIN:VEVENT\r\nUID:a\r\nDTSTART;VALUE=DATE:"
                      "20240105\r\nDTEND;VALUE=DATE:20240106\r\n"
                      "END:VEVENT\r\n")
        << start << end
        << QByteArray("BEGIN:VEVENT\r\nUID:a\r\nDTSTART;VALUE=DATE:"
                      "20240105\r\nDTEND;VALUE=DATE:20240106\r\n"
                      "DTSTART:20240201T090000Z\r\nDTEND:20240201T100000Z\r\nEND:"
                      "VEVENT\r\n");
    QTest::newRow("duration dropped, end added") << QByteArray("BEGIN:VEVENT\r\nDTSTART:20240105T090000Z\r\nDURATION:"
                                                               "PT1H\r\nSUMMARY:x\r\nEND:VEVENT\r\n")
                                                 << start << end
                                                 << QByteArray("BEGIN:VEVENT\r\nDTSTART:20240201T090000Z\r\nSUMMARY:"
                                                               "x\r\nDTEND:20240201T100000Z\r\n"
                                                               "END:VEVENT\r\n");
    QTest::newRow("unterminated event gets nothing added")
        << QByteArray("BEGIN:VEVENT\r\nUID:a\r\nDURATION:PT1H") << start << end << QByteArray("BEGIN:VEVENT\r\nUID:a");
}

void TestICal::reschedule()
{
    QFETCH(QByteArray, text);
    QFETCH(QDateTime, start);
    QFETCH(QDateTime, end);
    QFETCH(QByteArray, expected);
    QCOMPARE(ICal::rescheduleEventIcs(text, start, end), expected);
}

void TestICal::hostileText_data()
{
    // Sizes are a few megabytes: enough to show linear behaviour, small enough
    // for a fast suite.
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("events");
    QTest::addColumn<QStringList>("expected");

    const QByteArray bigValue(8 << 20, 'x');
    QTest::newRow("8 MiB line in an event") << "BEGIN:VEVENT\r\nUID:big\r\nSUMMARY:" + bigValue + "\r\nEND:VEVENT\r\n"
                                            << 1 << QStringList{"uid=big"};
    QTest::newRow("8 MiB line without any break") << bigValue << 0 << QStringList{};
    QByteArray escaped;
    for (int i = 0; i < 50000; ++i)
        escaped += "\xc3\xa4\\,b\\n";
    QTest::newRow("long escaped text") << "BEGIN:VEVENT\r\nUID:long\r\nDESCRIPTION:" + escaped + "\r\nEND:VEVENT\r\n"
                                       << 1 << QStringList{"uid=long"};
    QByteArray folds = "BEGIN:VEVENT\r\nUID:folds\r\nDESCRIPTION:";
    for (int i = 0; i < 1000000; ++i)
        folds += "\r\n y";
    QTest::newRow("a million folds in one line") << folds + "\r\nEND:VEVENT\r\n" << 1 << QStringList{"uid=folds"};
    QByteArray emptyLines;
    for (int i = 0; i < 1000000; ++i)
        emptyLines += "\r\n";
    QTest::newRow("a million empty lines in an event") << "BEGIN:VEVENT\r\nUID:empty" + emptyLines
            + "\r\nEND:VEVENT\r\n" << 1 << QStringList{"uid=empty"};
    QByteArray nested = "BEGIN:VEVENT\r\nUID:nested\r\n";
    for (int i = 0; i < 200000; ++i)
        nested += "BEGIN:VALARM\r\n";
    nested += "SUMMARY:deep\r\n";
    for (int i = 0; i < 200000; ++i)
        nested += "END:VALARM\r\n";
    QTest::newRow("deep nesting in an event") << nested + "END:VEVENT\r\n" << 1 << QStringList{"title=deep"};
    QByteArray restarts;
    for (int i = 0; i < 200000; ++i)
        restarts += "BEGIN:VEVENT\r\nUID:x\r\n";
    QByteArray empties;
    for (int i = 0; i < 200000; ++i)
        empties += "BEGIN:VEVENT\r\nEND:VEVENT\r\n";
    const QByteArray nul(1, '\0');
    QTest::newRow("NUL bytes") << "BEGIN:VEVENT\r\nUID:n" + nul + "l\r\nSUM" + nul + "MARY:x\r\nDTSTART:2024" + nul
            + "105\r\nEND:VEVENT\r\n" + nul
                               << 1
                               << QStringList{QString::fromUtf8("uid=n\0l", 7), "title=", "start_time=invalid",
                                              "is_all_day=true"};
    QTest::newRow("invalid UTF-8") << QByteArray("BEGIN:VEVENT\r\nUID:\xff\xfe\r\nSUMMARY:a\xc3(\xe2\x82\r\n"
                                                 "LOCATION:\xf0\x9f\x98\r\nD\xc3TSTART:"
                                                 "20240105T090000Z\r\nEND:VEVENT")
                                   << 1 << QStringList{QString::fromUtf8("uid=\ufffd\ufffd"), "start_time=invalid"};
}

void TestICal::hostileText()
{
    QFETCH(QByteArray, text);
    QFETCH(int, events);
    QFETCH(QStringList, expected);
    const QList<Event> parsed = ICal::parseEvents(text);
    QCOMPARE(parsed.size(), events);
    checkFields(parsed, expected);
    // The same text read for tasks must not trip either.
    QCOMPARE(ICal::parseTasks(text).size(), 0);
    if (QTest::currentDataTag() == QByteArrayView("8 MiB line in an event")) {
        QCOMPARE(parsed.at(0).title.size(), 8 << 20);
        QCOMPARE(parsed.at(0).raw_icalendar.size(), kHead.size() + (8 << 20) + 45 + kTail.size());
    } else if (QTest::currentDataTag() == QByteArrayView("long escaped text")) {
        QCOMPARE(parsed.at(0).description, QString::fromUtf8("\u00e4,b\n").repeated(50000));
    } else if (QTest::currentDataTag() == QByteArrayView("a million folds in one line")) {
        QCOMPARE(parsed.at(0).description, QString(1000000, QLatin1Char('y')));
    } else if (QTest::currentDataTag() == QByteArrayView("a million empty lines in an event")) {
        QCOMPARE(parsed.at(0).raw_icalendar.size(), kHead.size() + 14 + 11 + 2000000 + 12 + kTail.size());
    }
}

void TestICal::manyDistinctZoneNames()
{
    // Made-up zone names beyond the lookup cap are taken as unknown; zones named
    // before stay known.
    QByteArray text = "BEGIN:VEVENT\r\nUID:first\r\nDTSTART;TZID=Europe/"
                      "Berlin:20240105T090000\r\nEND:VEVENT\r\n";
    const int names = int(ICal::ZoneCache::kMaxLookups) + 500;
    for (int i = 0; i < names; ++i)
        text += "BEGIN:VEVENT\r\nUID:e" + QByteArray::number(i) + "\r\nDTSTART;TZID=Made/Up" + QByteArray::number(i)
            + ":20240105T090000\r\nEND:VEVENT\r\n";
    text += "BEGIN:VEVENT\r\nUID:last\r\nDTSTART;TZID=Europe/"
            "Berlin:20240105T090000\r\nEND:VEVENT\r\n";
    const QList<Event> events = ICal::parseEvents(text);
    QCOMPARE(events.size(), names + 2);
    QCOMPARE(describe(events.constFirst().start_time), QStringLiteral("2024-01-05T09:00:00+01:00 Europe/Berlin"));
    QCOMPARE(describe(events.constLast().start_time), QStringLiteral("2024-01-05T09:00:00+01:00 Europe/Berlin"));
    QCOMPARE(events.at(names).timezone, QStringLiteral("Made/Up%1").arg(names - 1));
    QCOMPARE(describe(events.at(names).start_time), QStringLiteral("2024-01-05T09:00:00 local"));
}

void TestICal::sameResultsAsPlainReader()
{
    // Random edits of real calendar text, read by the byte readers and by the
    // plain reader.
    QByteArray base;
    QVERIFY(readFixture(QStringLiteral("generated-feed-300-events.ics"), &base).isEmpty());
    base = base.left(60000);
    for (const char *name : {"override-instance.ics", "tasks-with-private-properties.ics", "lf-line-ends.ics"}) {
        QByteArray more;
        QVERIFY(readFixture(QString::fromLatin1(name), &more).isEmpty());
        base += more;
    }
    // Pieces to insert, split at '|' (one of them a NUL byte).
    static const char kPieces[]
        = "\r\n|\n|\r| |\t|:|;|=|,|\\|\\n|\\N|\"|T|Z|\xc3|\xbc|\xef\xbb\xbf|\xe2\x82\xac|\xff|\0|"
          "BEGIN:VEVENT\r\n|END:VEVENT\r\n|BEGIN:VTODO\r\n|END:VTODO\r\n|UID:x\r\n|"
          "TZID=Europe/Berlin|TZID=|VALUE=DATE:|20240105|20240105T090000|DURATION:P1W|PT|"
          "RELTYPE=CHILD|mailto:|CN=|9|-|u\304\261d:";
    const QList<QByteArray> pieces = QByteArray(kPieces, sizeof kPieces - 1).split('|');
    QRandomGenerator random(20240105);
    for (int round = 0; round < 300; ++round) {
        QByteArray text = base;
        const int edits = 1 + int(random.bounded(40));
        for (int e = 0; e < edits; ++e) {
            const qsizetype at = random.bounded(text.size() + 1);
            switch (random.bounded(3)) {
            case 0:
                text.insert(at, pieces.at(random.bounded(pieces.size())));
                break;
            case 1:
                text.remove(at, random.bounded(8));
                break;
            default:
                if (at < text.size())
                    text[at] = char(random.bounded(256));
                break;
            }
        }
        const QString events = describe(ICal::parseEvents(text));
        const QString expectedEvents = describe(ICalReference::parseEvents(text));
        if (events != expectedEvents) {
            QFile dump(QDir::temp().filePath(QStringLiteral("ical-mismatch.ics")));
            if (dump.open(QIODevice::WriteOnly))
                dump.write(text);
            QCOMPARE(events, expectedEvents);
        }
        QCOMPARE(describe(ICal::parseTasks(text)), describe(ICalReference::parseTasks(text)));
    }
}

void TestICal::byteRulesMatchTextRules()
{
    // Random short values from a small alphabet, read by the byte rules and by
    // the text rules.
    const QByteArray alphabet = "0123456789T Z+-\t\xc3\xa4:;,P DHMSW";
    QRandomGenerator random(7);
    ICal::ZoneCache zones;
    const QByteArray tzid = "Europe/Berlin";
    for (int i = 0; i < 200000; ++i) {
        QByteArray value;
        const int length = int(random.bounded(18));
        for (int c = 0; c < length; ++c)
            value += alphabet.at(random.bounded(alphabet.size()));
        // Mostly digits in the shape of dates, so that valid values come up too.
        if (i % 2 == 0) {
            value = QByteArray::number(1990 + random.bounded(50))
                + QByteArray::number(random.bounded(13)).rightJustified(2, '0')
                + QByteArray::number(random.bounded(32)).rightJustified(2, '0');
            if (i % 4 == 0)
                value += "T" + QByteArray::number(random.bounded(250000)).rightJustified(6, '0');
            if (i % 8 == 0)
                value += "Z";
        }
        const QString text = QString::fromUtf8(value);
        bool textDateOnly = false;
        bool byteDateOnly = false;
        const QDateTime fromText
            = ICal::parseDateTime(text, {{QStringLiteral("TZID"), QString::fromUtf8(tzid)}}, &textDateOnly);
        const QDateTime fromBytes = ICal::Bytes::dateTime(value, QByteArrayView(tzid), zones, &byteDateOnly);
        QVERIFY2(describe(fromText) == describe(fromBytes) && textDateOnly == byteDateOnly, value.constData());

        bool ok = false;
        const int number = text.toInt(&ok);
        const std::optional<qint32> byteNumber = ICal::Bytes::integer(value);
        QVERIFY2(ok == byteNumber.has_value() && (!ok || number == *byteNumber), value.constData());
    }
}

void TestICal::fuzzFindings_data()
{
    // Inputs the fuzzers found to break an earlier version, named after the
    // defect.
    QTest::addColumn<QString>("file");
    const QDir dir(QStringLiteral(KB_TEST_DATA_DIR "/ical/fuzz"));
    const QStringList files = dir.entryList({QStringLiteral("*.ics")}, QDir::Files, QDir::Name);
    for (const QString &file : files)
        QTest::newRow(qPrintable(file)) << dir.filePath(file);
    if (files.isEmpty())
        QTest::newRow("none") << QString();
}

void TestICal::fuzzFindings()
{
    QFETCH(QString, file);
    if (file.isEmpty())
        QSKIP("no fuzz findings kept");
    QFile input(file);
    QVERIFY(input.open(QIODevice::ReadOnly));
    const QByteArray text = input.readAll();
    QCOMPARE(describe(ICal::parseEvents(text)), describe(ICalReference::parseEvents(text)));
    QCOMPARE(describe(ICal::parseTasks(text)), describe(ICalReference::parseTasks(text)));
}

QTEST_GUILESS_MAIN(TestICal)
#include "tst_ical.moc"
