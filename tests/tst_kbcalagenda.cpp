// SPDX-License-Identifier: GPL-3.0-or-later
#include "StoreFixture.h"

#include "storage/Clock.h"
#include "storage/EventRepository.h"
#include "storage/FilterRuleRepository.h"

#include "support/KbcalRunner.h"

#include <QBuffer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTest>
#include <QTimeZone>

namespace {

using Result = KbcalResult;

QDateTime berlin(int day, int hour, int minute = 0)
{
    return QDateTime(QDate(2024, 3, day), QTime(hour, minute), QTimeZone("Europe/Berlin"));
}

Event makeEvent(const QString &id, const QString &calendarId, const QString &title, const QDateTime &start,
                qint64 minutes = 60)
{
    Event event;
    event.id = id;
    event.uid = id;
    event.calendar_id = calendarId;
    event.title = title;
    event.start_time = start;
    event.end_time = start.addSecs(minutes * 60);
    event.timezone = QStringLiteral("Europe/Berlin");
    return event;
}

FilterRule makeRule(const QString &id, const QString &conditions, const QString &action, bool suppress = false)
{
    FilterRule rule;
    rule.id = id;
    rule.name = id;
    rule.conditions = conditions;
    rule.action = action;
    rule.suppress_reminders = suppress;
    return rule;
}

struct Occurrence
{
    QString title;
    QString start;
    bool dimmed = false;
    bool suppressed = false;
};

} // namespace

// kbcal agenda, run in-process over a small store; the week of Monday 11 March 2024 in Berlin.
class TestKbcalAgenda : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void json();
    void span_data();
    void span();
    void calendars_data();
    void calendars();
    void text();
    void emptySpanAsText();
    void usage_data();
    void usage();

private:
    QJsonObject agendaJson(const QStringList &extra, int expectedStatus = 0);

    StoreFixture m_store;
};

void TestKbcalAgenda::initTestCase()
{
    qputenv("TZ", "Europe/Berlin");
    tzset();
}

void TestKbcalAgenda::init()
{
    // "Now" is Wednesday 13 March, 15:00 in Berlin.
    Clock::setFixedNow(berlin(13, 15));
    QVERIFY(m_store.open());
    QVERIFY(m_store.addCalendar(QStringLiteral("home"), QStringLiteral("Home")));
    QVERIFY(m_store.addCalendar(QStringLiteral("work"), QStringLiteral("Work")));
    QVERIFY(m_store.addCalendar(QStringLiteral("hidden"), QStringLiteral("Hidden")));
    QVERIFY(m_store.exec(QStringLiteral("UPDATE calendars SET is_visible = 0 WHERE id = 'hidden'")));

    Database &database = *m_store.database();
    EventRepository events(&database);
    Event standup
        = makeEvent(QStringLiteral("standup"), QStringLiteral("work"), QStringLiteral("Standup"), berlin(4, 9), 15);
    standup.recurrence_rule = QStringLiteral("FREQ=WEEKLY;BYDAY=MO,WE");
    QVERIFY(events.insert(standup));
    QVERIFY(events.insert(
        makeEvent(QStringLiteral("dentist"), QStringLiteral("home"), QStringLiteral("Dentist"), berlin(12, 8, 30))));
    QVERIFY(
        events.insert(makeEvent(QStringLiteral("gym"), QStringLiteral("home"), QStringLiteral("Gym"), berlin(14, 18))));
    QVERIFY(events.insert(
        makeEvent(QStringLiteral("train"), QStringLiteral("home"), QStringLiteral("Night train"), berlin(15, 0, 30))));
    QVERIFY(events.insert(
        makeEvent(QStringLiteral("late"), QStringLiteral("home"), QStringLiteral("Late show"), berlin(17, 23, 30))));
    QVERIFY(events.insert(
        makeEvent(QStringLiteral("next"), QStringLiteral("home"), QStringLiteral("Next week"), berlin(18, 0, 30))));
    QVERIFY(events.insert(
        makeEvent(QStringLiteral("secret"), QStringLiteral("hidden"), QStringLiteral("Secret"), berlin(13, 10))));
    Event trip = makeEvent(QStringLiteral("trip"), QStringLiteral("home"), QStringLiteral("Trip"),
                           QDateTime(QDate(2024, 3, 15), QTime(0, 0), QTimeZone::utc()));
    trip.is_all_day = true;
    trip.timezone = QStringLiteral("UTC");
    trip.end_time = QDateTime(QDate(2024, 3, 17), QTime(0, 0), QTimeZone::utc());
    QVERIFY(events.insert(trip));

    FilterRuleRepository rules(&database);
    QVERIFY(rules.insert(makeRule(QStringLiteral("hide-gym"),
                                  QStringLiteral(R"({"runtimeType":"pattern","titleExact":["gym"]})"),
                                  QStringLiteral("hide"))));
    QVERIFY(rules.insert(makeRule(QStringLiteral("dim-dentist"),
                                  QStringLiteral(R"({"runtimeType":"pattern","titleContains":["dent"]})"),
                                  QStringLiteral("dim"), true)));
    QVERIFY(
        rules.insert(makeRule(QStringLiteral("dim-standup"),
                              QStringLiteral(R"({"runtimeType":"time","timeExact":"09:00"})"), QStringLiteral("dim"))));
    FilterRule disabled
        = makeRule(QStringLiteral("off"), QStringLiteral(R"({"runtimeType":"allDay"})"), QStringLiteral("hide"));
    disabled.enabled = false;
    QVERIFY(rules.insert(disabled));
}

void TestKbcalAgenda::cleanup()
{
    m_store.close();
    Clock::setFixedNow(QDateTime());
}

QJsonObject TestKbcalAgenda::agendaJson(const QStringList &extra, int expectedStatus)
{
    const Result result = runKbcal(
        QStringList{QStringLiteral("--data-dir"), m_store.folder(), QStringLiteral("agenda"), QStringLiteral("--json")}
        + extra);
    if (result.status != expectedStatus)
        qWarning().noquote() << "kbcal agenda" << extra << "exited with" << result.status << result.err;
    QJsonParseError error;
    const QJsonDocument doc = QJsonDocument::fromJson(result.out.toUtf8(), &error);
    if (error.error != QJsonParseError::NoError)
        return QJsonObject();
    return doc.object();
}

namespace {

QStringList titles(const QJsonObject &agenda)
{
    QStringList list;
    for (const QJsonValue &value : agenda.value(QStringLiteral("occurrences")).toArray())
        list.append(value.toObject().value(QStringLiteral("title")).toString());
    return list;
}

} // namespace

void TestKbcalAgenda::json()
{
    const QJsonObject agenda = agendaJson({QStringLiteral("--from"), QStringLiteral("2024-03-11")});
    QCOMPARE(agenda.keys(), (QStringList{"hidden_count", "occurrences"}));
    QCOMPARE(agenda.value(QStringLiteral("hidden_count")).toInt(), 1);
    QCOMPARE(titles(agenda), (QStringList{"Standup", "Dentist", "Standup", "Night train", "Trip", "Late show"}));

    const QJsonArray occurrences = agenda.value(QStringLiteral("occurrences")).toArray();
    const QList<Occurrence> expected = {
        {"Standup", "2024-03-11T09:00:00+01:00", true, false},
        {"Dentist", "2024-03-12T08:30:00+01:00", true, true},
        {"Standup", "2024-03-13T09:00:00+01:00", true, false},
        {"Night train", "2024-03-15T00:30:00+01:00", false, false},
        {"Trip", "2024-03-15T00:00:00Z", false, false},
        {"Late show", "2024-03-17T23:30:00+01:00", false, false},
    };
    QCOMPARE(occurrences.size(), expected.size());
    for (qsizetype i = 0; i < expected.size(); ++i) {
        const QJsonObject object = occurrences.at(i).toObject();
        QCOMPARE(object.value(QStringLiteral("title")).toString(), expected.at(i).title);
        QCOMPARE(object.value(QStringLiteral("start_time")).toString(), expected.at(i).start);
        QCOMPARE(object.value(QStringLiteral("dimmed")), QJsonValue(expected.at(i).dimmed));
        QCOMPARE(object.value(QStringLiteral("reminders_suppressed")), QJsonValue(expected.at(i).suppressed));
        // Every field of the event, its child lists, and the two marks.
        QCOMPARE(object.size(), 36);
        QVERIFY(object.value(QStringLiteral("reminders")).isArray());
    }
    // An occurrence carries its own slot.
    QCOMPARE(occurrences.at(2).toObject().value(QStringLiteral("recurrence_id")).toString(),
             QStringLiteral("20240313T080000Z"));
}

void TestKbcalAgenda::span_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QStringList>("expected");
    QTest::addColumn<int>("hidden");

    QTest::newRow("default: today 00:00, seven days")
        << QStringList{} << QStringList{"Standup", "Night train", "Trip", "Late show", "Next week", "Standup"} << 1;
    QTest::newRow("bare dates are local midnight")
        << QStringList{"--from", "2024-03-17", "--to", "2024-03-18"} << QStringList{"Trip", "Late show"} << 0;
    QTest::newRow("--days counts from --from") << QStringList{"--from", "2024-03-17", "--days", "2"}
                                               << QStringList{"Trip", "Late show", "Next week", "Standup"} << 0;
    QTest::newRow("a time of day starts the span")
        << QStringList{"--from", "2024-03-13T09:10:00", "--days", "1"} << QStringList{"Standup"} << 0;
    QTest::newRow("end is not included") << QStringList{"--from", "2024-03-11T06:00:00", "--to", "2024-03-11T09:00:00"}
                                         << QStringList{} << 0;
}

void TestKbcalAgenda::span()
{
    QFETCH(QStringList, arguments);
    QFETCH(QStringList, expected);
    QFETCH(int, hidden);
    const QJsonObject agenda = agendaJson(arguments);
    QCOMPARE(titles(agenda), expected);
    QCOMPARE(agenda.value(QStringLiteral("hidden_count")).toInt(), hidden);
}

void TestKbcalAgenda::calendars_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("visible calendars by default") << QStringList{} << QStringList{"Dentist", "Standup"};
    QTest::newRow("a hidden calendar when named") << QStringList{"--calendar", "hidden"} << QStringList{"Secret"};
}

void TestKbcalAgenda::calendars()
{
    QFETCH(QStringList, arguments);
    QFETCH(QStringList, expected);
    const QJsonObject agenda = agendaJson(QStringList{QStringLiteral("--from"), QStringLiteral("2024-03-12"),
                                                      QStringLiteral("--days"), QStringLiteral("2")}
                                          + arguments);
    QCOMPARE(titles(agenda), expected);
}

void TestKbcalAgenda::text()
{
    const Result result
        = runKbcal({QStringLiteral("--data-dir"), m_store.folder(), QStringLiteral("agenda"), QStringLiteral("--from"),
                    QStringLiteral("2024-03-13"), QStringLiteral("--days"), QStringLiteral("6")});
    QCOMPARE(result.status, 0);
    QVERIFY(result.err.isEmpty());
    // All-day events head their day even when stored at a later instant (UTC midnight); an event
    // across midnight is listed on both days, with the date of the end or start that lies elsewhere.
    QCOMPARE(result.out,
             QStringLiteral("Wednesday 13 March 2024\n"
                            "  09:00\u201309:15  Standup  [Work] (dimmed)\n"
                            "\n"
                            "Friday 15 March 2024\n"
                            "  all day      Trip  [Home]\n"
                            "  00:30\u201301:30  Night train  [Home]\n"
                            "\n"
                            "Saturday 16 March 2024\n"
                            "  all day      Trip  [Home]\n"
                            "\n"
                            "Sunday 17 March 2024\n"
                            "  23:30\u2013Mon 18 Mar 00:30  Late show  [Home]\n"
                            "\n"
                            "Monday 18 March 2024\n"
                            "  Sun 17 Mar 23:30\u201300:30  Late show  [Home]\n"
                            "  00:30\u201301:30  Next week  [Home]\n"
                            "  09:00\u201309:15  Standup  [Work] (dimmed)\n"
                            "\n"
                            "1 event hidden by filter rules.\n"));
}

void TestKbcalAgenda::emptySpanAsText()
{
    const Result result = runKbcal({QStringLiteral("--data-dir"), m_store.folder(), QStringLiteral("agenda"),
                                    QStringLiteral("--from"), QStringLiteral("2025-01-02"), QStringLiteral("--days"),
                                    QStringLiteral("2"), QStringLiteral("--calendar"), QStringLiteral("home")});
    QCOMPARE(result.status, 0);
    // The span's last day is the day before its exclusive end.
    const QLocale locale;
    QCOMPARE(result.out,
             QStringLiteral("No events from %1 to %2.\n")
                 .arg(locale.toString(QDate(2025, 1, 2), QLocale::ShortFormat),
                      locale.toString(QDate(2025, 1, 3), QLocale::ShortFormat)));
}

void TestKbcalAgenda::usage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("error");

    QTest::newRow("--to with --days") << QStringList{"--to", "2024-03-20", "--days", "3"} << 2
                                      << "kbcal: --to and --days cannot be used together";
    QTest::newRow("--to before --from") << QStringList{"--from", "2024-03-12", "--to", "2024-03-11"} << 2
                                        << "kbcal: --to must be later than the start of the span";
    QTest::newRow("zero days") << QStringList{"--days", "0"} << 2 << "kbcal: invalid number of days: '0'";
    QTest::newRow("unknown calendar") << QStringList{"--calendar", "nope"} << 1
                                      << "kbcal: no calendar with the id nope";
}

void TestKbcalAgenda::usage()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, status);
    QFETCH(QString, error);
    const Result result
        = runKbcal(QStringList{QStringLiteral("--data-dir"), m_store.folder(), QStringLiteral("agenda")} + arguments);
    QCOMPARE(result.status, status);
    QVERIFY(result.out.isEmpty());
    QCOMPARE(result.err.section(QLatin1Char('\n'), 0, 0), error);
    if (status == 2)
        QVERIFY(result.err.contains(QStringLiteral("Usage: kbcal [--data-dir DIR] agenda")));
}

QTEST_GUILESS_MAIN(TestKbcalAgenda)
#include "tst_kbcalagenda.moc"
