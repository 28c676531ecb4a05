// SPDX-License-Identifier: GPL-3.0-or-later
#include "ical/FilterRules.h"

#include <QTest>
#include <QTimeZone>

#include <algorithm>
#include <ctime>

namespace {

// All events fall in the week of Monday 11 March 2024; local times are Europe/Berlin (UTC+1).
QDateTime local(int day, int hour, int minute = 0)
{
    return QDateTime(QDate(2024, 3, day), QTime(hour, minute), QTimeZone("Europe/Berlin"));
}

Event makeEvent(const QString &id, const QString &calendarId, const QString &title, const QDateTime &start)
{
    Event event;
    event.id = id;
    event.uid = id + QStringLiteral("-uid");
    event.calendar_id = calendarId;
    event.title = title;
    event.start_time = start;
    if (start.isValid())
        event.end_time = start.addSecs(3600);
    return event;
}

// The same small week for every case.
QList<Event> week()
{
    QList<Event> events;
    Event standup
        = makeEvent(QStringLiteral("standup"), QStringLiteral("work"), QStringLiteral("Daily Standup"), local(11, 9));
    standup.recurrence_rule = QStringLiteral("FREQ=WEEKLY");
    standup.location = QStringLiteral("Room 4");
    events.append(standup);

    Event lunch = makeEvent(QStringLiteral("lunch"), QStringLiteral("home"), QStringLiteral("Lunch with Sam"),
                            local(12, 12, 30));
    lunch.description = QStringLiteral("Bring the Book");
    events.append(lunch);

    events.append(makeEvent(QStringLiteral("gym"), QStringLiteral("home"), QStringLiteral("gym"), local(15, 18)));

    // Stored at UTC midnight, as all-day events from feeds are: 01:00 on Wednesday in Berlin.
    Event holiday = makeEvent(QStringLiteral("holiday"), QStringLiteral("holidays"), QStringLiteral("Public Holiday"),
                              QDateTime(QDate(2024, 3, 13), QTime(0, 0), QTimeZone::utc()));
    holiday.is_all_day = true;
    holiday.recurrence_rule = QStringLiteral("FREQ=YEARLY");
    events.append(holiday);

    Event offsite
        = makeEvent(QStringLiteral("offsite"), QStringLiteral("work"), QStringLiteral("Offsite"), local(17, 0));
    offsite.is_all_day = true;
    events.append(offsite);

    // Sunday 23:30 in UTC is Monday 00:30 in Berlin.
    events.append(makeEvent(QStringLiteral("late"), QStringLiteral("work"), QStringLiteral("Late call"),
                            QDateTime(QDate(2024, 3, 10), QTime(23, 30), QTimeZone::utc())));

    Event review
        = makeEvent(QStringLiteral("review"), QStringLiteral("google"), QStringLiteral("Review"), local(14, 14));
    review.uid = QStringLiteral("series-9");
    review.provider_event_id = QStringLiteral("g-123");
    events.append(review);

    Event imported
        = makeEvent(QStringLiteral("imported"), QStringLiteral("home"), QStringLiteral("Imported"), local(16, 10));
    imported.uid.clear();
    events.append(imported);

    events.append(makeEvent(QStringLiteral("undated"), QStringLiteral("misc"), QStringLiteral("Undated"), QDateTime()));
    return events;
}

FilterRule rule(const QString &conditions, const QString &action = QStringLiteral("hide"), int priority = 100)
{
    static int counter = 0;
    FilterRule r;
    r.id = QStringLiteral("rule-%1").arg(++counter);
    r.name = r.id;
    r.conditions = conditions;
    r.action = action;
    r.priority = priority;
    return r;
}

FilterRule limited(FilterRule r, const QString &calendarIds)
{
    r.calendar_ids = calendarIds;
    return r;
}

FilterRule specific(const QString &eventCalendarId, const QString &eventUid)
{
    FilterRule r = rule(QStringLiteral("{\"runtimeType\":\"specific\"}"));
    r.event_calendar_id = eventCalendarId;
    r.event_uid = eventUid;
    return r;
}

QStringList sorted(QStringList list)
{
    list.sort();
    return list;
}

QStringList sorted(const QSet<QString> &set)
{
    return sorted(QStringList(set.cbegin(), set.cend()));
}

QStringList idsOf(const QList<Event> &events)
{
    QStringList ids;
    for (const Event &event : events)
        ids.append(event.id);
    return ids;
}

const QString kAllDay = QStringLiteral("{\"runtimeType\":\"allDay\"}");

} // namespace

class TestFilterRules : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void parseConditions_data();
    void parseConditions();
    void filter_data();
    void filter();
    void equalPriorityEitherMayDecide();
    void compiledRulesAreSortedByPriority();
    void occurrencesAreCountedOneByOne();
};

void TestFilterRules::initTestCase()
{
    // The time conditions look at local time; the expectations are written for Berlin.
    qputenv("TZ", "Europe/Berlin");
    tzset();
    QCOMPARE(local(11, 9).toLocalTime().time(), QTime(9, 0));
}

void TestFilterRules::parseConditions_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("kind"); // "" when nothing can be read
    QTest::addColumn<QString>("summary");

    QTest::newRow("pattern, all keys")
        << R"({"runtimeType":"pattern","titleContains":["a","b"],"titleExact":["T"],"descriptionContains":["d"],)"
           R"("locationContains":["l"],"caseSensitive":true})"
        << "pattern"
        << "contains=a,b exact=T description=d location=l cs=1";
    QTest::newRow("pattern, defaults") << R"({"runtimeType":"pattern"})"
                                       << "pattern"
                                       << "contains= exact= description= location= cs=0";
    QTest::newRow("pattern, odd entries")
        << R"({"runtimeType":"pattern","titleContains":["",7,null,"x"],"titleExact":["",1],"caseSensitive":"yes"})"
        << "pattern"
        << "contains=x exact= description= location= cs=0";
    QTest::newRow("time, all keys")
        << R"({"runtimeType":"time","timeExact":"09:00","timeRange":{"start":"08:00","end":"10:00"},)"
           R"("daysOfWeek":["Mon","tue","WED","thu","Fri","sat","SUN"],"recurringOnly":true})"
        << "time"
        << "exact=09:00 range=08:00-10:00 days=1,2,3,4,5,6,7 recurring=1";
    QTest::newRow("time, unknown day names") << R"({"runtimeType":"time","daysOfWeek":["monday","Mo","",2,true]})"
                                             << "time"
                                             << "exact= range=- days=0,0,0,0,0 recurring=0";
    QTest::newRow("time, wrong types") << R"({"runtimeType":"time","timeExact":900,"timeRange":"08:00-10:00"})"
                                       << "time"
                                       << "exact= range=- days= recurring=0";
    QTest::newRow("specific") << R"({"runtimeType":"specific","eventUid":"ignored"})"
                              << "specific"
                              << "";
    QTest::newRow("allDay") << R"({"runtimeType":"allDay","recurringOnly":true})"
                            << "allDay"
                            << "recurring=1";
    QTest::newRow("not JSON") << "{runtimeType: allDay"
                              << ""
                              << "";
    QTest::newRow("no runtimeType") << R"({"titleContains":["a"]})"
                                    << ""
                                    << "";
    QTest::newRow("unknown runtimeType") << R"({"runtimeType":"regex"})"
                                         << ""
                                         << "";
    QTest::newRow("runtimeType in other case") << R"({"runtimeType":"AllDay"})"
                                               << ""
                                               << "";
}

void TestFilterRules::parseConditions()
{
    QFETCH(QString, text);
    QFETCH(QString, kind);
    QFETCH(QString, summary);

    const std::optional<FilterCondition> condition = ::parseConditions(text);
    QCOMPARE(condition.has_value(), !kind.isEmpty());
    if (!condition)
        return;
    QString actualKind;
    QString actualSummary;
    if (const auto *p = std::get_if<PatternCondition>(&*condition)) {
        actualKind = QStringLiteral("pattern");
        actualSummary
            = QStringLiteral("contains=%1 exact=%2 description=%3 location=%4 cs=%5")
                  .arg(p->titleContains.join(QLatin1Char(',')), p->titleExact.join(QLatin1Char(',')),
                       p->descriptionContains.join(QLatin1Char(',')), p->locationContains.join(QLatin1Char(',')))
                  .arg(int(p->caseSensitive));
    } else if (const auto *t = std::get_if<TimeCondition>(&*condition)) {
        actualKind = QStringLiteral("time");
        QStringList days;
        for (int day : t->daysOfWeek)
            days.append(QString::number(day));
        actualSummary = QStringLiteral("exact=%1 range=%2-%3 days=%4 recurring=%5")
                            .arg(t->timeExact, t->rangeStart, t->rangeEnd, days.join(QLatin1Char(',')))
                            .arg(int(t->recurringOnly));
    } else if (std::holds_alternative<SpecificCondition>(*condition)) {
        actualKind = QStringLiteral("specific");
    } else if (const auto *a = std::get_if<AllDayCondition>(&*condition)) {
        actualKind = QStringLiteral("allDay");
        actualSummary = QStringLiteral("recurring=%1").arg(int(a->recurringOnly));
    }
    QCOMPARE(actualKind, kind);
    QCOMPARE(actualSummary, summary);
}

void TestFilterRules::filter_data()
{
    QTest::addColumn<QList<FilterRule>>("rules");
    QTest::addColumn<QStringList>("hidden");
    QTest::addColumn<QStringList>("dimmed");
    QTest::addColumn<QStringList>("suppressed"); // besides the hidden ones

    using L = QList<FilterRule>;
    using S = QStringList;
    const auto pattern = [](const char *keys) {
        return rule(QStringLiteral("{\"runtimeType\":\"pattern\",%1}").arg(QLatin1String(keys)));
    };
    const auto time = [](const char *keys, const QString &action = QStringLiteral("hide")) {
        return rule(QStringLiteral("{\"runtimeType\":\"time\"%1}").arg(QLatin1String(keys)), action);
    };

    // Pattern conditions.
    QTest::newRow("title contains, any case")
        << L{pattern(R"("titleContains":["STANDUP"])")} << S{"standup"} << S{} << S{};
    QTest::newRow("title contains, case-sensitive miss")
        << L{pattern(R"("titleContains":["STANDUP"],"caseSensitive":true)")} << S{} << S{} << S{};
    QTest::newRow("title exact, any case") << L{pattern(R"("titleExact":["GYM"])")} << S{"gym"} << S{} << S{};
    QTest::newRow("title exact is not contains") << L{pattern(R"("titleExact":["Lunch"])")} << S{} << S{} << S{};
    QTest::newRow("description contains")
        << L{pattern(R"("descriptionContains":["book"])")} << S{"lunch"} << S{} << S{};
    QTest::newRow("location contains") << L{pattern(R"("locationContains":["room"])")} << S{"standup"} << S{} << S{};
    QTest::newRow("several lists, any hit")
        << L{pattern(R"("titleContains":["gym"],"locationContains":["Room"])")} << S{"standup", "gym"} << S{} << S{};
    QTest::newRow("all lists empty") << L{pattern(R"("caseSensitive":false)")} << S{} << S{} << S{};
    QTest::newRow("single text for a list") << L{pattern(R"("titleContains":"review")")} << S{"review"} << S{} << S{};
    QTest::newRow("empty contains text matches nothing") << L{pattern(R"("titleContains":[""])")} << S{} << S{} << S{};

    // Time conditions.
    QTest::newRow("exact time") << L{time(R"(,"timeExact":"09:00")")} << S{"standup"} << S{} << S{};
    QTest::newRow("exact time is local") << L{time(R"(,"timeExact":"00:30")")} << S{"late"} << S{} << S{};
    QTest::newRow("range, both bounds inclusive")
        << L{time(R"(,"timeRange":{"start":"12:30","end":"18:00"})")} << S{"lunch", "gym", "review"} << S{} << S{};
    QTest::newRow("range 22:00 to 02:00 matches nothing")
        << L{time(R"(,"timeRange":{"start":"22:00","end":"02:00"})")} << S{} << S{} << S{};
    QTest::newRow("range with a start only")
        << L{time(R"(,"timeRange":{"start":"14:00"})")} << S{"gym", "review"} << S{} << S{};
    QTest::newRow("Mon and FRI") << L{time(R"(,"daysOfWeek":["Mon","FRI"])")} << S{"standup", "gym", "late"} << S{}
                                 << S{};
    QTest::newRow("weekday is local") << L{time(R"(,"daysOfWeek":["sun"])")} << S{"offsite"} << S{} << S{};
    QTest::newRow("day and time together")
        << L{time(R"(,"daysOfWeek":["mon"],"timeRange":{"start":"08:00"})")} << S{"standup"} << S{} << S{};
    QTest::newRow("only recurringOnly matches nothing") << L{time(R"(,"recurringOnly":true)")} << S{} << S{} << S{};
    QTest::newRow("recurringOnly with a range")
        << L{time(R"(,"recurringOnly":true,"timeRange":{"start":"00:00","end":"23:59"})")} << S{"standup", "holiday"}
        << S{} << S{};

    // Specific events.
    QTest::newRow("specific by calendar and uid") << L{specific("work", "standup-uid")} << S{"standup"} << S{} << S{};
    QTest::newRow("specific uid in another calendar") << L{specific("home", "standup-uid")} << S{} << S{} << S{};
    QTest::newRow("specific by provider id") << L{specific("elsewhere", "g-123")} << S{"review"} << S{} << S{};

    // All-day events.
    QTest::newRow("all-day") << L{rule(kAllDay)} << S{"holiday", "offsite"} << S{} << S{};
    QTest::newRow("all-day, recurring only")
        << L{rule(R"({"runtimeType":"allDay","recurringOnly":true})")} << S{"holiday"} << S{} << S{};

    // Actions.
    QTest::newRow("dim without suppressing") << L{rule(kAllDay, "dim")} << S{} << S{"holiday", "offsite"} << S{};
    FilterRule dimQuiet = rule(kAllDay, "dim");
    dimQuiet.suppress_reminders = true;
    QTest::newRow("dim and suppress") << L{dimQuiet} << S{} << S{"holiday", "offsite"} << S{"holiday", "offsite"};
    FilterRule hideLoud = rule(kAllDay, "hide");
    hideLoud.suppress_reminders = false;
    QTest::newRow("hide always suppresses") << L{hideLoud} << S{"holiday", "offsite"} << S{} << S{};
    FilterRule otherQuiet = rule(kAllDay, "highlight");
    otherQuiet.suppress_reminders = true;
    QTest::newRow("other action keeps without marks") << L{otherQuiet} << S{} << S{} << S{};
    QTest::newRow("action compared exactly") << L{rule(kAllDay, "Hide"), rule(kAllDay, "DIM")} << S{} << S{} << S{};

    // Order of rules.
    QTest::newRow("first match decides") << L{rule(kAllDay, "dim", 10), rule(kAllDay, "hide", 20)} << S{}
                                         << S{"holiday", "offsite"} << S{};
    QTest::newRow("priority, not list order")
        << L{rule(kAllDay, "hide", 50), rule(kAllDay, "dim", 5)} << S{} << S{"holiday", "offsite"} << S{};
    FilterRule dimGym = pattern(R"("titleExact":["gym"])");
    dimGym.action = QStringLiteral("dim");
    dimGym.priority = 1;
    QTest::newRow("a kept event is not looked at again")
        << L{dimGym, time(R"(,"timeExact":"18:00")")} << S{} << S{"gym"} << S{};

    // Calendar limits.
    QTest::newRow("limited to one calendar")
        << L{limited(pattern(R"("titleContains":["a"])"), R"(["home"])")} << S{"lunch"} << S{} << S{};
    QTest::newRow("limit elsewhere leaves the match alone")
        << L{limited(rule(kAllDay), R"(["home"])")} << S{} << S{} << S{};
    QTest::newRow("malformed limit is all calendars")
        << L{limited(rule(kAllDay), "[\"home\"")} << S{"holiday", "offsite"} << S{} << S{};
    QTest::newRow("non-text limit names no calendar") << L{limited(rule(kAllDay), "[7]")} << S{} << S{} << S{};

    // Rules that take no part.
    FilterRule disabled = rule(kAllDay);
    disabled.enabled = false;
    QTest::newRow("disabled rule") << L{disabled} << S{} << S{} << S{};
    FilterRule deleted = rule(kAllDay);
    deleted.deleted_at = QDateTime(QDate(2024, 3, 1), QTime(0, 0), QTimeZone::utc());
    QTest::newRow("deleted rule") << L{deleted} << S{} << S{} << S{};
    FilterRule broken = rule(QStringLiteral("{\"runtimeType\":\"pattern\",\"titleContains\":[\"a\""));
    broken.priority = 1;
    QTest::newRow("malformed conditions are skipped")
        << L{broken, rule(kAllDay, "dim", 2)} << S{} << S{"holiday", "offsite"} << S{};
}

void TestFilterRules::filter()
{
    QFETCH(QList<FilterRule>, rules);
    QFETCH(QStringList, hidden);
    QFETCH(QStringList, dimmed);
    QFETCH(QStringList, suppressed);

    const QList<Event> events = week();
    const FilterResult result = applyFilterRules(events, rules);

    QStringList visible = idsOf(events);
    for (const QString &id : std::as_const(hidden))
        QVERIFY2(visible.removeOne(id), qPrintable(id));
    QCOMPARE(idsOf(result.events), visible);
    QCOMPARE(result.hiddenCount, hidden.size());
    QCOMPARE(sorted(result.dimmedIds), sorted(dimmed));
    QCOMPARE(sorted(result.suppressedReminderIds), sorted(hidden + suppressed));
    // The kept events are passed on unchanged.
    for (const Event &kept : result.events)
        QVERIFY(events.contains(kept));
}

void TestFilterRules::equalPriorityEitherMayDecide()
{
    const QList<Event> events = week();
    const QList<FilterRule> rules = {rule(kAllDay, "hide", 10), rule(kAllDay, "dim", 10)};
    const FilterResult result = applyFilterRules(events, rules);
    const bool hiddenWon = result.hiddenCount == 2 && result.dimmedIds.isEmpty();
    const bool dimWon = result.hiddenCount == 0 && sorted(result.dimmedIds) == QStringList{"holiday", "offsite"};
    QVERIFY2(hiddenWon || dimWon, "one of the two rules decides both events");
    QCOMPARE(result.events.size(), events.size() - result.hiddenCount);
}

void TestFilterRules::compiledRulesAreSortedByPriority()
{
    FilterRule disabled = rule(kAllDay, "hide", 1);
    disabled.enabled = false;
    FilterRule limitedRule = limited(rule(kAllDay, "hide", 30), R"(["a","b","a"])");
    const QList<CompiledFilterRule> compiled
        = compileFilterRules({rule(kAllDay, "hide", 50), disabled, rule(QStringLiteral("nonsense"), "hide", 2),
                              limitedRule, rule(R"({"runtimeType":"time","timeExact":"09:00"})", "dim", -5)});
    QCOMPARE(compiled.size(), 3);
    QCOMPARE(compiled.at(0).rule.priority, -5);
    QVERIFY(std::holds_alternative<TimeCondition>(compiled.at(0).condition));
    QCOMPARE(compiled.at(1).rule.priority, 30);
    QCOMPARE(compiled.at(1).calendarIds, (QSet<QString>{"a", "b"}));
    QCOMPARE(compiled.at(2).rule.priority, 50);
    QVERIFY(compiled.at(2).calendarIds.isEmpty());
}

void TestFilterRules::occurrencesAreCountedOneByOne()
{
    // Expanded occurrences of one series share the master's id.
    Event first = makeEvent(QStringLiteral("series"), QStringLiteral("work"), QStringLiteral("Standup"), local(11, 9));
    first.recurrence_rule = QStringLiteral("FREQ=DAILY");
    Event second = first;
    second.start_time = local(12, 9);
    const FilterResult hidden
        = applyFilterRules({first, second}, {rule(R"({"runtimeType":"time","timeExact":"09:00"})")});
    QCOMPARE(hidden.hiddenCount, 2);
    QVERIFY(hidden.events.isEmpty());
    QCOMPARE(sorted(hidden.suppressedReminderIds), QStringList{"series"});
}

QTEST_GUILESS_MAIN(TestFilterRules)
#include "tst_filterrules.moc"
