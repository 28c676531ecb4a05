// SPDX-License-Identifier: GPL-3.0-or-later
#include "StoreFixture.h"

#include "storage/EventRepository.h"
#include "storage/FilterRuleRepository.h"
#include "storage/SpanQuery.h"

#include <QTest>
#include <QTimeZone>

namespace {

const QTimeZone kBerlin("Europe/Berlin");

QDateTime berlin(int month, int day, int hour, int minute = 0)
{
    return QDateTime(QDate(2024, month, day), QTime(hour, minute), kBerlin);
}

Event single(const QString &id, const QString &calendarId, const QDateTime &start, const QDateTime &end)
{
    Event event;
    event.id = id;
    event.uid = id;
    event.calendar_id = calendarId;
    event.title = id;
    event.start_time = start;
    event.end_time = end;
    event.timezone
        = start.timeSpec() == Qt::TimeZone ? QString::fromUtf8(start.timeZone().id()) : QStringLiteral("UTC");
    return event;
}

FilterRule rule(const QString &conditions, const QString &action)
{
    FilterRule r;
    r.id = conditions + action;
    r.name = r.id;
    r.conditions = conditions;
    r.action = action;
    return r;
}

QStringList titlesOf(const QList<Event> &events)
{
    QStringList titles;
    for (const Event &event : events)
        titles.append(event.title);
    return titles;
}

} // namespace

class TestSpanQuery : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void spanBounds_data();
    void spanBounds();
    void seriesAndSinglesInStartOrder();
    void filterMarksAndCounts();
    void emptyOrInvertedSpan();
    void calendarsAndTombstones();

private:
    StoreFixture m_store;
};

void TestSpanQuery::init()
{
    QVERIFY(m_store.open());
    QVERIFY(m_store.addCalendar(QStringLiteral("home")));
    QVERIFY(m_store.addCalendar(QStringLiteral("work")));
}

void TestSpanQuery::cleanup()
{
    m_store.close();
}

void TestSpanQuery::spanBounds_data()
{
    QTest::addColumn<QDateTime>("start");
    QTest::addColumn<QDateTime>("end");
    QTest::addColumn<bool>("shown");

    // The span is Monday 11 March 00:00 to Monday 18 March 00:00, Berlin time.
    QTest::newRow("ends at the span start") << berlin(3, 10, 23) << berlin(3, 11, 0) << false;
    QTest::newRow("ends just after the span start") << berlin(3, 10, 23) << berlin(3, 11, 0, 1) << true;
    QTest::newRow("starts at the span end") << berlin(3, 18, 0) << berlin(3, 18, 1) << false;
    QTest::newRow("first minutes, stored in New York")
        << berlin(3, 10, 23).toTimeZone(QTimeZone("America/New_York"))
        << berlin(3, 11, 0, 30).toTimeZone(QTimeZone("America/New_York")) << true;
    // Stored with offsets far from the span's: the query must still see them at its edges.
    const QTimeZone auckland("Pacific/Auckland");
    const QTimeZone honolulu("Pacific/Honolulu");
    QTest::newRow("Auckland, last half hour")
        << berlin(3, 17, 23, 30).toTimeZone(auckland) << berlin(3, 18, 0).toTimeZone(auckland) << true;
    QTest::newRow("Auckland, right after")
        << berlin(3, 18, 0).toTimeZone(auckland) << berlin(3, 18, 0, 30).toTimeZone(auckland) << false;
    QTest::newRow("Honolulu, first half hour")
        << berlin(3, 11, 0).toTimeZone(honolulu) << berlin(3, 11, 0, 30).toTimeZone(honolulu) << true;
    QTest::newRow("Honolulu, right before")
        << berlin(3, 10, 23, 30).toTimeZone(honolulu) << berlin(3, 11, 0).toTimeZone(honolulu) << false;
}

void TestSpanQuery::spanBounds()
{
    QFETCH(QDateTime, start);
    QFETCH(QDateTime, end);
    QFETCH(bool, shown);
    EventRepository events(m_store.database());
    QVERIFY(events.insert(single(QStringLiteral("e"), QStringLiteral("home"), start, end)));
    FilterRuleRepository rules(m_store.database());
    const SpanContents span = SpanQuery(events, rules).contents(berlin(3, 11, 0), berlin(3, 18, 0));
    QCOMPARE(span.start, berlin(3, 11, 0).toUTC());
    QCOMPARE(span.end, berlin(3, 18, 0).toUTC());
    QCOMPARE(span.occurrences.size(), shown ? 1 : 0);
}

void TestSpanQuery::seriesAndSinglesInStartOrder()
{
    EventRepository events(m_store.database());
    Event standup = single(QStringLiteral("standup"), QStringLiteral("work"), berlin(1, 8, 9), berlin(1, 8, 9, 15));
    standup.recurrence_rule = QStringLiteral("FREQ=DAILY;COUNT=100");
    QVERIFY(events.insert(standup));
    // Wednesday's standup moved to 11:00.
    Event moved = single(QStringLiteral("moved"), QStringLiteral("work"), berlin(3, 13, 11), berlin(3, 13, 11, 15));
    moved.uid = QStringLiteral("standup");
    moved.title = QStringLiteral("standup (moved)");
    moved.master_event_uid = QStringLiteral("standup");
    moved.recurrence_id = berlin(3, 13, 9).toUTC().toString(QStringLiteral("yyyyMMdd'T'HHmmss'Z'"));
    QVERIFY(events.insert(moved));
    QVERIFY(
        events.insert(single(QStringLiteral("lunch"), QStringLiteral("home"), berlin(3, 12, 12), berlin(3, 12, 13))));
    QVERIFY(events.insert(single(QStringLiteral("early"), QStringLiteral("home"), berlin(3, 13, 7), berlin(3, 13, 8))));
    FilterRuleRepository rules(m_store.database());

    const SpanContents span = SpanQuery(events, rules).contents(berlin(3, 12, 0), berlin(3, 14, 0));
    QCOMPARE(titlesOf(span.occurrences), (QStringList{"standup", "lunch", "early", "standup (moved)"}));
    QCOMPARE(span.occurrences.at(0).start_time, berlin(3, 12, 9));
    QCOMPARE(span.hiddenCount, 0);
}

void TestSpanQuery::filterMarksAndCounts()
{
    const QList<Event> rows = {
        single(QStringLiteral("gym"), QStringLiteral("home"), berlin(3, 12, 18), berlin(3, 12, 19)),
        single(QStringLiteral("dentist"), QStringLiteral("home"), berlin(3, 13, 8), berlin(3, 13, 9)),
        single(QStringLiteral("review"), QStringLiteral("work"), berlin(3, 14, 18), berlin(3, 14, 19)),
        single(QStringLiteral("outside"), QStringLiteral("home"), berlin(3, 20, 18), berlin(3, 20, 19)),
    };
    FilterRule dim
        = rule(QStringLiteral(R"({"runtimeType":"pattern","titleContains":["dentist"]})"), QStringLiteral("dim"));
    dim.suppress_reminders = true;
    const QList<FilterRule> rules
        = {rule(QStringLiteral(R"({"runtimeType":"time","timeExact":"18:00"})"), QStringLiteral("hide")), dim};

    const SpanContents span = SpanQuery::fromRows(rows, rules, berlin(3, 11, 0), berlin(3, 18, 0));
    // A row the query brought in from beyond the span is neither shown nor counted as hidden.
    QCOMPARE(titlesOf(span.occurrences), QStringList{"dentist"});
    QCOMPARE(span.hiddenCount, 2);
    QCOMPARE(span.dimmedIds, QSet<QString>{"dentist"});
    QCOMPARE(span.suppressedReminderIds, (QSet<QString>{"gym", "review", "dentist"}));
}

void TestSpanQuery::emptyOrInvertedSpan()
{
    const QList<Event> rows
        = {single(QStringLiteral("e"), QStringLiteral("home"), berlin(3, 12, 18), berlin(3, 12, 19))};
    QVERIFY(SpanQuery::fromRows(rows, {}, berlin(3, 12, 0), berlin(3, 12, 0)).occurrences.isEmpty());
    QVERIFY(SpanQuery::fromRows(rows, {}, berlin(3, 13, 0), berlin(3, 12, 0)).occurrences.isEmpty());
    QVERIFY(SpanQuery::fromRows(rows, {}, QDateTime(), berlin(3, 13, 0)).occurrences.isEmpty());
    QCOMPARE(SpanQuery::fromRows(rows, {}, berlin(3, 12, 0), berlin(3, 13, 0)).occurrences.size(), 1);
}

void TestSpanQuery::calendarsAndTombstones()
{
    EventRepository events(m_store.database());
    QVERIFY(events.insert(single(QStringLiteral("h"), QStringLiteral("home"), berlin(3, 12, 9), berlin(3, 12, 10))));
    QVERIFY(events.insert(single(QStringLiteral("w"), QStringLiteral("work"), berlin(3, 12, 11), berlin(3, 12, 12))));
    QVERIFY(events.insert(single(QStringLiteral("d"), QStringLiteral("work"), berlin(3, 12, 13), berlin(3, 12, 14))));
    QVERIFY(events.remove(QStringLiteral("d")));
    FilterRuleRepository rules(m_store.database());
    const SpanQuery query(events, rules);
    QCOMPARE(titlesOf(query.contents(berlin(3, 11, 0), berlin(3, 18, 0)).occurrences), (QStringList{"h", "w"}));
    QCOMPARE(titlesOf(query.contents(berlin(3, 11, 0), berlin(3, 18, 0), {QStringLiteral("work")}).occurrences),
             QStringList{"w"});

    // The rules are read on every call: a new rule shows at once.
    FilterRule hideHome
        = rule(QStringLiteral(R"({"runtimeType":"pattern","titleExact":["h"]})"), QStringLiteral("hide"));
    QVERIFY(rules.insert(hideHome));
    const SpanContents filtered = query.contents(berlin(3, 11, 0), berlin(3, 18, 0));
    QCOMPARE(titlesOf(filtered.occurrences), QStringList{"w"});
    QCOMPARE(filtered.hiddenCount, 1);
}

QTEST_GUILESS_MAIN(TestSpanQuery)
#include "tst_spanquery.moc"
