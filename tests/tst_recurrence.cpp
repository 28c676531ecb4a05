// SPDX-License-Identifier: GPL-3.0-or-later
#include "ical/OccurrenceGenerator.h"
#include "ical/Recurrence.h"
#include "ical/RecurrenceExpansion.h"
#include "ical/WallClockZone.h"

#include <QLoggingCategory>
#include <QRandomGenerator>
#include <QTest>
#include <QTimeZone>

using namespace Qt::StringLiterals;
using Recurrence::RecurrenceRule;
using Method = OccurrenceGenerator::Method;

namespace {

const QTimeZone &berlin()
{
    static const QTimeZone zone("Europe/Berlin");
    return zone;
}

const QTimeZone &newYork()
{
    static const QTimeZone zone("America/New_York");
    return zone;
}

QDateTime utc(int year, int month, int day, int hour = 0, int minute = 0, int second = 0)
{
    return QDateTime(QDate(year, month, day), QTime(hour, minute, second), Qt::UTC);
}

QDateTime inBerlin(int year, int month, int day, int hour, int minute = 0)
{
    return QDateTime(QDate(year, month, day), QTime(hour, minute), berlin());
}

QString iso(const QDateTime &value)
{
    return value.toUTC().toString(Qt::ISODate);
}

QStringList isoList(const QList<QDateTime> &values)
{
    QStringList texts;
    for (const QDateTime &value : values)
        texts.append(iso(value));
    return texts;
}

QStringList startsOf(const QList<Event> &events)
{
    QStringList texts;
    for (const Event &event : events)
        texts.append(iso(event.start_time));
    return texts;
}

Event series(const QString &rule, const QDateTime &start, const std::optional<QDateTime> &end = std::nullopt)
{
    Event master;
    master.id = QStringLiteral("id-") + rule;
    master.uid = QStringLiteral("uid-") + rule;
    master.title = QStringLiteral("Series");
    master.recurrence_rule = rule;
    master.start_time = start;
    master.end_time = end;
    return master;
}

// The rules read literally: every candidate from the series start, stepped with QDateTime's own
// calendar arithmetic. Exact wherever no candidate meets a time-zone transition.
QList<QDateTime> literalStarts(const RecurrenceRule &rule, const QDateTime &seriesStart, const QDateTime &rangeEnd)
{
    QList<QDateTime> out;
    QSet<int> weekdays;
    const QStringList codes{u"MO"_s, u"TU"_s, u"WE"_s, u"TH"_s, u"FR"_s, u"SA"_s, u"SU"_s};
    for (const QString &item : rule.byDay) {
        if (codes.contains(item))
            weekdays.insert(int(codes.indexOf(item)) + 1);
    }
    const auto beyond = [&rule](const QDateTime &c) {
        return rule.until.isValid() && c > rule.until;
    };
    const auto done = [&rule](int n) {
        return (rule.count > 0 && n >= rule.count) || n >= 10000;
    };
    int n = 0;
    if (rule.freq == u"DAILY") {
        QDateTime c = seriesStart;
        do {
            if (weekdays.isEmpty() || weekdays.contains(c.date().dayOfWeek())) {
                if (beyond(c) || c >= rangeEnd)
                    return out;
                out.append(c);
                if (done(++n))
                    return out;
            }
            c = c.addDays(rule.interval);
        } while (c <= rangeEnd);
    } else if (rule.freq == u"WEEKLY") {
        if (weekdays.isEmpty())
            weekdays.insert(seriesStart.date().dayOfWeek());
        QDateTime w = seriesStart.addDays(-(seriesStart.date().dayOfWeek() - 1));
        do {
            for (int d = 1; d <= 7; ++d) {
                if (!weekdays.contains(d))
                    continue;
                QDateTime c = w.addDays(d - 1);
                c.setTime(seriesStart.time());
                if (c < seriesStart)
                    continue;
                if (beyond(c) || c >= rangeEnd)
                    return out;
                out.append(c);
                if (done(++n))
                    return out;
            }
            w = w.addDays(7 * qint64(rule.interval));
        } while (w <= rangeEnd);
    } else if (rule.freq == u"MONTHLY" || rule.freq == u"YEARLY") {
        QDateTime c = seriesStart;
        while (!beyond(c) && c < rangeEnd) {
            out.append(c);
            if (done(++n))
                return out;
            c = rule.freq == u"MONTHLY" ? c.addMonths(rule.interval) : c.addYears(rule.interval);
        }
    } else {
        out.append(seriesStart);
    }
    return out;
}

// Random series and spans with a fixed seed: rules of every kind, starts in several kinds of
// clocks (including times inside transitions), spans near the series start, the cap and COUNT.
struct RandomCase
{
    Event master;
    QDateTime rangeStart;
    QDateTime rangeEnd;
    bool transitionFree = false; // no candidate can meet a time-zone transition
};

class CaseMaker
{
public:
    explicit CaseMaker(quint32 seed)
        : m_rng(seed)
    { }

    RandomCase next()
    {
        RandomCase c;
        const QString freq = pick(
            {u"DAILY"_s, u"DAILY"_s, u"WEEKLY"_s, u"WEEKLY"_s, u"MONTHLY"_s, u"YEARLY"_s, u"daily"_s, u"HOURLY"_s});
        QStringList pieces{QStringLiteral("FREQ=") + freq};
        const int interval = chance(60) ? 1 : chance(60) ? bounded(2, 5) : pick({5, 7, 12, 13, 48, 100, 400});
        if (interval != 1 || chance(10))
            pieces.append(QStringLiteral("INTERVAL=%1").arg(interval));
        int count = 0;
        if (chance(45))
            count = chance(60) ? bounded(1, 60) : chance(50) ? bounded(9990, 10011) : bounded(100, 5000);
        if (count > 0)
            pieces.append(QStringLiteral("COUNT=%1").arg(count));
        const QDateTime start = randomStart(&c.transitionFree);
        if (chance(35)) {
            const QDateTime until = start.toUTC().addSecs(qint64(bounded(0, 40 * 366)) * 86400 + bounded(-7200, 7200));
            pieces.append(chance(25) ? QStringLiteral("UNTIL=") + until.toString(u"yyyyMMdd"_s)
                                     : QStringLiteral("UNTIL=") + until.toString(u"yyyyMMdd'T'HHmmss'Z'"_s));
        }
        if (chance(55)) {
            QStringList items;
            const QStringList codes{u"MO"_s, u"TU"_s, u"WE"_s, u"TH"_s, u"FR"_s, u"SA"_s, u"SU"_s};
            for (const QString &code : codes) {
                if (chance(35))
                    items.append(chance(90) ? code : code.toLower());
            }
            if (chance(10))
                items.append(pick({u"1MO"_s, u"-1FR"_s, u"XX"_s}));
            pieces.append(QStringLiteral("BYDAY=") + items.join(u','));
        }
        if (chance(10))
            pieces.append(u"WKST=SU"_s);
        std::shuffle(pieces.begin(), pieces.end(), m_rng);

        c.master.id = QStringLiteral("id");
        c.master.uid = QStringLiteral("uid");
        c.master.recurrence_rule = pieces.join(u';');
        c.master.start_time = start;
        const int durationKind = bounded(0, 7);
        if (durationKind > 0) {
            static constexpr qint64 kDurations[] = {0, 0, 1800, 3600, 25 * 3600, 3 * 86400, -3600};
            c.master.end_time = start.addSecs(kDurations[durationKind]);
        }

        // The span: near the start, near where the cap or COUNT ends the series, or anywhere.
        const qint64 stepDays = freq.toUpper() == u"WEEKLY" ? 7 * qint64(interval)
            : freq.toUpper() == u"MONTHLY"                  ? 30 * qint64(interval)
            : freq.toUpper() == u"YEARLY"                   ? 365 * qint64(interval)
                                                            : qint64(interval);
        QDateTime anchor;
        const int where = bounded(0, 10);
        if (where < 3) {
            anchor = start.toUTC().addDays(bounded(-60, 400));
        } else if (where < 6) {
            const qint64 steps = where == 3 && count > 0 ? count : 10000;
            anchor = start.toUTC().addDays(std::min<qint64>(steps * stepDays, 200000) + bounded(-40, 40));
        } else {
            anchor = start.toUTC().addDays(bounded(-400, 45 * 366));
        }
        // Past 2036 zone offsets come from the zone itself, slowly; keep most zoned walks short of it.
        const bool zoned = start.timeSpec() == Qt::LocalTime
            || (start.timeSpec() == Qt::TimeZone && start.timeZone() != QTimeZone::utc());
        if (zoned && anchor > utc(2036, 6, 1) && chance(95))
            anchor = utc(2036, 6, 1).addDays(-bounded(0, 4000));
        c.rangeStart = anchor.addSecs(bounded(-86400, 86400));
        c.rangeEnd = c.rangeStart.addSecs(qint64(pick({1, 7, 7, 31, 92})) * 86400 + pick({0, 0, 1, -1, 3600}));
        return c;
    }

private:
    bool chance(int percent) { return int(m_rng.bounded(100)) < percent; }
    int bounded(int lowest, int highest) { return lowest + int(m_rng.bounded(quint32(highest - lowest))); }
    template<typename T>
    T pick(std::initializer_list<T> values)
    {
        return *(values.begin() + m_rng.bounded(quint32(values.size())));
    }

    QDateTime randomStart(bool *transitionFree)
    {
        static const QList<QTimeZone> zones{berlin(),
                                            newYork(),
                                            QTimeZone("Australia/Lord_Howe"),
                                            QTimeZone("America/Santiago"),
                                            QTimeZone("Pacific/Apia"),
                                            QTimeZone("Pacific/Kiritimati"),
                                            QTimeZone::utc()};
        const int year = chance(90) ? bounded(1960, 2036) : bounded(1850, 1960);
        const int month = bounded(1, 13);
        int day = chance(70) ? bounded(1, 29) : QDate(year, month, 1).daysInMonth() - bounded(0, 3);
        if (chance(5) && QDate::isLeapYear(year)) {
            day = 29;
            return randomClock(QDate(year, 2, day), transitionFree, zones);
        }
        return randomClock(QDate(year, month, day), transitionFree, zones);
    }

    QDateTime randomClock(QDate date, bool *transitionFree, const QList<QTimeZone> &zones)
    {
        const bool daytime = chance(60);
        const QTime time = daytime ? QTime(bounded(6, 22), pick({0, 15, 30, 45}))
                                   : pick({QTime(0, 0), QTime(0, 30), QTime(1, 30), QTime(2, 0), QTime(2, 30),
                                           QTime(3, 0), QTime(23, 30), QTime(23, 59, 59)});
        const int clock = bounded(0, 10);
        QDateTime start;
        if (clock < 3) {
            start = QDateTime(date, time, Qt::UTC);
            *transitionFree = true;
        } else if (clock == 3) {
            start = QDateTime(date, time, Qt::OffsetFromUTC, 19800);
            *transitionFree = true;
        } else if (clock == 4) {
            start = QDateTime(date, time, Qt::LocalTime);
            *transitionFree = daytime;
        } else {
            const QTimeZone &zone = zones.at(bounded(0, int(zones.size())));
            start = QDateTime(date, time, zone);
            const QByteArray id = zone.id();
            *transitionFree = zone == QTimeZone::utc()
                || (daytime && (id == "Europe/Berlin" || id == "America/New_York" || id == "America/Santiago"));
        }
        // A start inside a gap is invalid; take the hour after it.
        if (!start.isValid())
            start = QDateTime(date, time.addSecs(3600),
                              start.timeSpec() == Qt::TimeZone ? start.timeZone() : QTimeZone::systemTimeZone());
        return start;
    }

    QRandomGenerator m_rng;
};

} // namespace

class TestRecurrence : public QObject
{
    Q_OBJECT

private slots:
    void parseRule_data();
    void parseRule();
    void compiledRuleAgreesWithParsedRule();
    void parseExceptionDates_data();
    void parseExceptionDates();
    void truncateRule_data();
    void truncateRule();
    void occurrenceStarts_data();
    void occurrenceStarts();
    void expandSeries_data();
    void expandSeries();
    void recordWithoutRule_data();
    void recordWithoutRule();
    void occurrenceIsCopyOfMaster();
    void wallClockKeptAcrossTransitions_data();
    void wallClockKeptAcrossTransitions();
    void expandEventsOrderAndOverrides();
    void expandEventsOverrideWithoutSlot();
    void expandEventsLogsEmptyMaster();
    void skippingAheadMatchesWalk();
    void generationMatchesLiteralRules();
    void zoneTableMatchesZone_data();
    void zoneTableMatchesZone();
    void utcStampMatchesQt();
};

void TestRecurrence::parseRule_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("freq");
    QTest::addColumn<int>("interval");
    QTest::addColumn<int>("count");
    QTest::addColumn<QDateTime>("until");
    QTest::addColumn<QStringList>("byDay");

    QTest::newRow("empty") << QString() << QString() << 1 << 0 << QDateTime() << QStringList();
    QTest::newRow("lower case") << "freq=daily;interval=3;byday=mo,we"
                                << "DAILY" << 3 << 0 << QDateTime() << QStringList{"MO", "WE"};
    QTest::newRow("interval zero") << "FREQ=DAILY;INTERVAL=0"
                                   << "DAILY" << 1 << 0 << QDateTime() << QStringList();
    QTest::newRow("until utc") << "FREQ=DAILY;UNTIL=20240110T083000Z"
                               << "DAILY" << 1 << 0 << utc(2024, 1, 10, 8, 30) << QStringList();
    QTest::newRow("until floating is utc") << "FREQ=DAILY;UNTIL=20240110T083000"
                                           << "DAILY" << 1 << 0 << utc(2024, 1, 10, 8, 30) << QStringList();
    QTest::newRow("until date only is utc midnight") << "FREQ=DAILY;UNTIL=20240110"
                                                     << "DAILY" << 1 << 0 << utc(2024, 1, 10) << QStringList();
    QTest::newRow("until date with Z unreadable") << "UNTIL=20240110Z"
                                                  << "" << 1 << 0 << QDateTime() << QStringList();
    QTest::newRow("byday items kept as text") << "FREQ=WEEKLY;BYDAY=1mo,-1FR,,su"
                                              << "WEEKLY" << 1 << 0 << QDateTime() << QStringList{"1MO", "-1FR", "SU"};
    QTest::newRow("empty pieces, no equals, key missing") << ";;FREQ=MONTHLY;;garbage;=5;COUNT=4;"
                                                          << "MONTHLY" << 1 << 4 << QDateTime() << QStringList();
    QTest::newRow("later piece wins") << "COUNT=3;FREQ=DAILY;COUNT=7"
                                      << "DAILY" << 1 << 7 << QDateTime() << QStringList();
    QTest::newRow("value keeps further equals") << "FREQ=DAILY=X"
                                                << "DAILY=X" << 1 << 0 << QDateTime() << QStringList();
    QTest::newRow("non-ASCII key upper-cases")
        << QString::fromUtf8("FREQ=DAILY;\u0131NTERVAL=4") << "DAILY" << 4 << 0 << QDateTime() << QStringList();
}

void TestRecurrence::parseRule()
{
    QFETCH(QString, text);
    QFETCH(QString, freq);
    QFETCH(int, interval);
    QFETCH(int, count);
    QFETCH(QDateTime, until);
    QFETCH(QStringList, byDay);

    const RecurrenceRule rule = Recurrence::parseRule(text);
    QCOMPARE(rule.freq, freq);
    QCOMPARE(rule.interval, interval);
    QCOMPARE(rule.count, count);
    QCOMPARE(rule.until.isValid(), until.isValid());
    if (until.isValid()) {
        QCOMPARE(rule.until, until);
        QCOMPARE(rule.until.timeSpec(), Qt::UTC);
    }
    QCOMPARE(rule.byDay, byDay);
}

// The expansion reads rule text without building the parsed rule; both readings must agree.
void TestRecurrence::compiledRuleAgreesWithParsedRule()
{
    const QStringList keys{u"FREQ"_s,  u"freq"_s,  u"INTERVAL"_s, u"Interval"_s, u"COUNT"_s,
                           u"UNTIL"_s, u"BYDAY"_s, u"byday"_s,    u"WKST"_s,     QString::fromUtf8("\u0131NTERVAL"),
                           QString()};
    // The last value is empty.
    const QStringList values = QStringLiteral("DAILY|weekly|Monthly|YEARLY|HOURLY|0|-3|7|+5| 4|99999999999|20240110|"
                                              "20240110T083000Z|20240110T083000|20240110Z|2024011|MO,we,1FR,,SU|-1SU|"
                                              "\u017fa,\u017fu|x=y|")
                                   .split(u'|');
    QRandomGenerator rng(7);
    for (int i = 0; i < 4000; ++i) {
        QStringList pieces;
        const int n = int(rng.bounded(6));
        for (int p = 0; p < n; ++p) {
            const QString key = keys.at(int(rng.bounded(quint32(keys.size()))));
            const QString value = values.at(int(rng.bounded(quint32(values.size()))));
            pieces.append(rng.bounded(10) == 0 ? value : key + u'=' + value);
        }
        const QString text = pieces.join(u';');
        QVERIFY2(CompiledRule::fromText(text) == CompiledRule::fromRule(Recurrence::parseRule(text)), qPrintable(text));
    }
}

void TestRecurrence::parseExceptionDates_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QList<QDateTime>>("expected");

    QTest::newRow("empty") << QString() << QList<QDateTime>();
    QTest::newRow("not json") << "20240105" << QList<QDateTime>();
    QTest::newRow("date is utc midnight") << R"(["20240105"])" << QList<QDateTime>{utc(2024, 1, 5)};
    QTest::newRow("date-time without Z is local") << R"(["20240105T100000"])" << QList<QDateTime>{utc(2024, 1, 5, 9)};
    QTest::newRow("unreadable elements dropped")
        << R"(["20240105", 5, "2024-01-06", "20240230", "20240107T250000Z", "20240108TZ", null, "20240109T0900Z"])"
        << QList<QDateTime>{utc(2024, 1, 5)};
    QTest::newRow("duplicates") << R"(["20240105T090000Z","20240105T100000","20240106"])"
                                << QList<QDateTime>{utc(2024, 1, 5, 9), utc(2024, 1, 6)};
}

void TestRecurrence::parseExceptionDates()
{
    QFETCH(QString, text);
    QFETCH(QList<QDateTime>, expected);

    QSet<qint64> instants;
    for (const QDateTime &value : expected)
        instants.insert(value.toMSecsSinceEpoch());
    QCOMPARE(Recurrence::parseExceptionDates(text), instants);
}

void TestRecurrence::truncateRule_data()
{
    QTest::addColumn<QString>("rule");
    QTest::addColumn<QDateTime>("lastAllowed");
    QTest::addColumn<QString>("expected");

    QTest::newRow("count removed, until appended") << "FREQ=WEEKLY;COUNT=10;BYDAY=MO" << utc(2024, 3, 4, 8, 59, 59)
                                                   << "FREQ=WEEKLY;BYDAY=MO;UNTIL=20240304T085959Z";
    QTest::newRow("until replaced in place") << "FREQ=DAILY;UNTIL=20250101;INTERVAL=2" << utc(2024, 3, 4, 8, 59, 59)
                                             << "FREQ=DAILY;UNTIL=20240304T085959Z;INTERVAL=2";
    QTest::newRow("keys in any case") << "freq=daily;Count=5;until=20250101" << utc(2024, 3, 4)
                                      << "freq=daily;UNTIL=20240304T000000Z";
    QTest::newRow("zoned time written in utc")
        << "FREQ=DAILY" << inBerlin(2024, 7, 1, 9, 59).addSecs(59) << "FREQ=DAILY;UNTIL=20240701T075959Z";
    QTest::newRow("empty pieces dropped, bare piece kept")
        << ";FREQ=DAILY;;X-FOO;" << utc(2024, 1, 1) << "FREQ=DAILY;X-FOO;UNTIL=20240101T000000Z";
    QTest::newRow("empty rule") << "" << utc(2024, 1, 1) << "UNTIL=20240101T000000Z";
}

void TestRecurrence::truncateRule()
{
    QFETCH(QString, rule);
    QFETCH(QDateTime, lastAllowed);
    QFETCH(QString, expected);
    QCOMPARE(Recurrence::truncateRule(rule, lastAllowed), expected);
}

void TestRecurrence::occurrenceStarts_data()
{
    QTest::addColumn<QString>("rule");
    QTest::addColumn<QDateTime>("start");
    QTest::addColumn<QDateTime>("rangeEnd");
    QTest::addColumn<QStringList>("expected");

    // 2024-01-01 is a Monday.
    QTest::newRow("start equal to until emitted")
        << "FREQ=DAILY;UNTIL=20240103T090000Z" << utc(2024, 1, 1, 9) << utc(2024, 2, 1)
        << QStringList{"2024-01-01T09:00:00Z", "2024-01-02T09:00:00Z", "2024-01-03T09:00:00Z"};
    QTest::newRow("date-only until ends the day before")
        << "FREQ=DAILY;UNTIL=20240110" << utc(2024, 1, 7, 9) << utc(2024, 2, 1)
        << QStringList{"2024-01-07T09:00:00Z", "2024-01-08T09:00:00Z", "2024-01-09T09:00:00Z"};
    QTest::newRow("hourly gives the start alone")
        << "FREQ=HOURLY;COUNT=5" << utc(2024, 1, 1, 9) << utc(2023, 1, 1) << QStringList{"2024-01-01T09:00:00Z"};
    QTest::newRow("no frequency gives the start alone")
        << "COUNT=5" << utc(2024, 1, 1, 9) << utc(2025, 1, 1) << QStringList{"2024-01-01T09:00:00Z"};
    QTest::newRow("until before start") << "FREQ=WEEKLY;UNTIL=20231231" << utc(2024, 1, 1, 9) << utc(2025, 1, 1)
                                        << QStringList();
    QTest::newRow("invalid start") << "FREQ=DAILY" << QDateTime() << utc(2025, 1, 1) << QStringList();
}

void TestRecurrence::occurrenceStarts()
{
    QFETCH(QString, rule);
    QFETCH(QDateTime, start);
    QFETCH(QDateTime, rangeEnd);
    QFETCH(QStringList, expected);
    QCOMPARE(isoList(Recurrence::occurrenceStarts(Recurrence::parseRule(rule), start, rangeEnd)), expected);
}

void TestRecurrence::expandSeries_data()
{
    QTest::addColumn<Event>("master");
    QTest::addColumn<QDateTime>("rangeStart");
    QTest::addColumn<QDateTime>("rangeEnd");
    QTest::addColumn<QStringList>("expected");

    const QDateTime monday = utc(2024, 1, 1, 9);
    QTest::newRow("count counted from the series start")
        << series(u"FREQ=DAILY;COUNT=3"_s, monday, monday.addSecs(3600)) << utc(2024, 1, 3) << utc(2024, 2, 1)
        << QStringList{"2024-01-03T09:00:00Z"};
    QTest::newRow("date-only until") << series(u"FREQ=DAILY;UNTIL=20240110"_s, utc(2024, 1, 8, 9)) << utc(2024, 1, 1)
                                     << utc(2024, 2, 1) << QStringList{"2024-01-08T09:00:00Z", "2024-01-09T09:00:00Z"};

    Event excluded = series(u"FREQ=DAILY;COUNT=3"_s, utc(2024, 1, 4, 9));
    excluded.exception_dates = u"[\"20240105T090000Z\"]"_s;
    QTest::newRow("exception at the exact instant") << excluded << utc(2024, 1, 1) << utc(2024, 2, 1)
                                                    << QStringList{"2024-01-04T09:00:00Z", "2024-01-06T09:00:00Z"};
    excluded.exception_dates = u"[\"20240105\"]"_s;
    QTest::newRow("date exception misses a timed occurrence")
        << excluded << utc(2024, 1, 1) << utc(2024, 2, 1)
        << QStringList{"2024-01-04T09:00:00Z", "2024-01-05T09:00:00Z", "2024-01-06T09:00:00Z"};
    Event allDay = series(u"FREQ=DAILY;COUNT=3"_s, utc(2024, 1, 4), utc(2024, 1, 5));
    allDay.is_all_day = true;
    allDay.exception_dates = u"[\"20240105\"]"_s;
    QTest::newRow("date exception removes an all-day occurrence")
        << allDay << utc(2024, 1, 1) << utc(2024, 2, 1) << QStringList{"2024-01-04T00:00:00Z", "2024-01-06T00:00:00Z"};

    QTest::newRow("started before the span, ends inside")
        << series(u"FREQ=DAILY"_s, utc(2024, 1, 1, 23), utc(2024, 1, 2, 1)) << utc(2024, 1, 3) << utc(2024, 1, 4)
        << QStringList{"2024-01-02T23:00:00Z", "2024-01-03T23:00:00Z"};
    QTest::newRow("ends exactly at the span start")
        << series(u"FREQ=DAILY"_s, utc(2024, 1, 1, 22), utc(2024, 1, 2)) << utc(2024, 1, 3) << utc(2024, 1, 4)
        << QStringList{"2024-01-03T22:00:00Z"};
    QTest::newRow("no end lasts an hour")
        << series(u"FREQ=DAILY"_s, utc(2024, 1, 1, 23, 30)) << utc(2024, 1, 3) << utc(2024, 1, 4)
        << QStringList{"2024-01-02T23:30:00Z", "2024-01-03T23:30:00Z"};
    QTest::newRow("start at the span end excluded")
        << series(u"FREQ=DAILY"_s, utc(2024, 1, 1), utc(2024, 1, 1, 1)) << utc(2024, 1, 3) << utc(2024, 1, 4)
        << QStringList{"2024-01-03T00:00:00Z"};
    QTest::newRow("several days long") << series(u"FREQ=WEEKLY"_s, utc(2024, 1, 1), utc(2024, 1, 4)) << utc(2024, 1, 10)
                                       << utc(2024, 1, 11) << QStringList{"2024-01-08T00:00:00Z"};
    QTest::newRow("hourly start inside the span") << series(u"FREQ=HOURLY"_s, utc(2024, 1, 10, 9)) << utc(2024, 1, 1)
                                                  << utc(2024, 2, 1) << QStringList{"2024-01-10T09:00:00Z"};

    // The cap: the 10000th start of a daily series from 2000-01-01 is 9999 days later.
    const QDateTime capStart = utc(2000, 1, 1, 9);
    const QDateTime lastDaily = capStart.addDays(9999);
    QTest::newRow("daily cap") << series(u"FREQ=DAILY"_s, capStart) << lastDaily.addDays(-2).addSecs(-9 * 3600)
                               << lastDaily.addDays(3)
                               << QStringList{iso(lastDaily.addDays(-2)), iso(lastDaily.addDays(-1)), iso(lastDaily)};
    QTest::newRow("count beyond the cap") << series(u"FREQ=DAILY;COUNT=20000"_s, capStart) << lastDaily.addSecs(-3600)
                                          << lastDaily.addDays(3) << QStringList{iso(lastDaily)};
}

void TestRecurrence::expandSeries()
{
    QFETCH(Event, master);
    QFETCH(QDateTime, rangeStart);
    QFETCH(QDateTime, rangeEnd);
    QFETCH(QStringList, expected);
    QCOMPARE(startsOf(Recurrence::expandSeries(master, rangeStart, rangeEnd)), expected);
}

void TestRecurrence::recordWithoutRule_data()
{
    QTest::addColumn<QDateTime>("start");
    QTest::addColumn<std::optional<QDateTime>>("end");
    QTest::addColumn<bool>("taken");

    // The span is January 2024.
    QTest::newRow("inside") << utc(2024, 1, 5) << std::optional(utc(2024, 1, 6)) << true;
    QTest::newRow("ends at the span start") << utc(2023, 12, 31) << std::optional(utc(2024, 1, 1)) << false;
    QTest::newRow("starts at the span end") << utc(2024, 2, 1) << std::optional(utc(2024, 2, 2)) << false;
    QTest::newRow("invalid start") << QDateTime() << std::optional<QDateTime>() << false;
}

void TestRecurrence::recordWithoutRule()
{
    QFETCH(QDateTime, start);
    QFETCH(std::optional<QDateTime>, end);
    QFETCH(bool, taken);
    const Event single = series(QString(), start, end);
    const QList<Event> result = Recurrence::expandSeries(single, utc(2024, 1, 1), utc(2024, 2, 1));
    QCOMPARE(result.size(), taken ? 1 : 0);
    if (taken)
        QCOMPARE(result.first(), single);
}

void TestRecurrence::occurrenceIsCopyOfMaster()
{
    Event master = series(u"FREQ=WEEKLY;BYDAY=TU"_s, inBerlin(2024, 1, 2, 9), inBerlin(2024, 1, 2, 10, 30));
    master.calendar_id = QStringLiteral("cal");
    master.location = QStringLiteral("Room 4");
    master.attendees = {Attendee{}};
    master.reminders = {Reminder{}};
    master.sequence = 3;
    const QList<Event> occurrences = Recurrence::expandSeries(master, utc(2024, 7, 1), utc(2024, 7, 8));
    QCOMPARE(occurrences.size(), 1);
    const Event &occurrence = occurrences.first();
    QCOMPARE(iso(occurrence.start_time), u"2024-07-02T07:00:00Z"_s);
    QCOMPARE(occurrence.start_time.timeSpec(), Qt::TimeZone);
    QCOMPARE(occurrence.start_time.timeZone(), berlin());
    QCOMPARE(occurrence.start_time.time(), QTime(9, 0));
    QVERIFY(occurrence.end_time.has_value());
    QCOMPARE(iso(*occurrence.end_time), u"2024-07-02T08:30:00Z"_s);
    QCOMPARE(occurrence.recurrence_id, u"20240702T070000Z"_s);

    Event expected = master;
    expected.start_time = occurrence.start_time;
    expected.end_time = occurrence.end_time;
    expected.recurrence_id = occurrence.recurrence_id;
    QCOMPARE(occurrence, expected);
}

void TestRecurrence::wallClockKeptAcrossTransitions_data()
{
    QTest::addColumn<QString>("rule");
    QTest::addColumn<QDateTime>("start");
    QTest::addColumn<QDateTime>("rangeStart");
    QTest::addColumn<QDateTime>("rangeEnd");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("daily into summer time")
        << "FREQ=DAILY" << inBerlin(2024, 3, 1, 9) << utc(2024, 3, 30) << utc(2024, 4, 2)
        << QStringList{"2024-03-30T08:00:00Z", "2024-03-31T07:00:00Z", "2024-04-01T07:00:00Z"};
    QTest::newRow("daily into winter time")
        << "FREQ=DAILY" << inBerlin(2024, 3, 1, 9) << utc(2024, 10, 26) << utc(2024, 10, 28)
        << QStringList{"2024-10-26T07:00:00Z", "2024-10-27T08:00:00Z"};
    QTest::newRow("time in the spring gap moves past it that day only")
        << "FREQ=DAILY" << inBerlin(2024, 3, 1, 2, 30) << utc(2024, 3, 30) << utc(2024, 4, 2)
        << QStringList{"2024-03-30T01:30:00Z", "2024-03-31T01:30:00Z", "2024-04-01T00:30:00Z"};
    QTest::newRow("repeated hour takes the first")
        << "FREQ=DAILY" << inBerlin(2024, 10, 1, 2, 30) << utc(2024, 10, 26) << utc(2024, 10, 29)
        << QStringList{"2024-10-26T00:30:00Z", "2024-10-27T00:30:00Z", "2024-10-28T01:30:00Z"};
    QTest::newRow("weekly across both changes")
        << "FREQ=WEEKLY;BYDAY=MO" << inBerlin(2023, 10, 23, 9) << utc(2023, 10, 23) << utc(2023, 11, 1)
        << QStringList{"2023-10-23T07:00:00Z", "2023-10-30T08:00:00Z"};
    QTest::newRow("local time") << "FREQ=DAILY" << QDateTime(QDate(2024, 3, 1), QTime(9, 0), Qt::LocalTime)
                                << utc(2024, 3, 30) << utc(2024, 4, 1)
                                << QStringList{"2024-03-30T08:00:00Z", "2024-03-31T07:00:00Z"};
    QTest::newRow("new york") << "FREQ=DAILY" << QDateTime(QDate(2024, 3, 1), QTime(9, 0), newYork()) << utc(2024, 3, 9)
                              << utc(2024, 3, 11) << QStringList{"2024-03-09T14:00:00Z", "2024-03-10T13:00:00Z"};
    QTest::newRow("fixed offset stays fixed")
        << "FREQ=DAILY" << QDateTime(QDate(2024, 3, 1), QTime(9, 0), Qt::OffsetFromUTC, 3600) << utc(2024, 3, 30)
        << utc(2024, 4, 1) << QStringList{"2024-03-30T08:00:00Z", "2024-03-31T08:00:00Z"};
}

void TestRecurrence::wallClockKeptAcrossTransitions()
{
    QFETCH(QString, rule);
    QFETCH(QDateTime, start);
    QFETCH(QDateTime, rangeStart);
    QFETCH(QDateTime, rangeEnd);
    QFETCH(QStringList, expected);

    const QList<Event> occurrences = Recurrence::expandSeries(series(rule, start), rangeStart, rangeEnd);
    QCOMPARE(startsOf(occurrences), expected);
    for (const Event &occurrence : occurrences) {
        QCOMPARE(occurrence.start_time.timeSpec(), start.timeSpec());
        // The wall-clock time is kept on every day that has it.
        QDateTime sameTime = occurrence.start_time;
        sameTime.setTime(start.time());
        if (sameTime.isValid())
            QCOMPARE(occurrence.start_time.time(), start.time());
    }
}

void TestRecurrence::expandEventsOrderAndOverrides()
{
    const Event daily = series(u"FREQ=DAILY;COUNT=5"_s, utc(2024, 1, 1, 9), utc(2024, 1, 1, 10));
    Event weekly = series(u"FREQ=WEEKLY"_s, utc(2023, 12, 27, 12));
    Event single = series(QString(), utc(2024, 1, 2, 15), utc(2024, 1, 2, 16));
    single.id = single.uid = QStringLiteral("single");
    Event farSingle = single;
    farSingle.id = farSingle.uid = QStringLiteral("far");
    farSingle.start_time = utc(2030, 1, 1);

    Event moved = daily;
    moved.id = QStringLiteral("override-inside");
    moved.recurrence_rule.clear();
    moved.master_event_uid = daily.uid;
    moved.recurrence_id = QStringLiteral("20240103T090000Z");
    moved.start_time = utc(2024, 1, 3, 14);
    moved.end_time = utc(2024, 1, 3, 15);
    Event outside = moved;
    outside.id = QStringLiteral("override-outside");
    outside.recurrence_id = QStringLiteral("20240101T090000Z");
    outside.start_time = utc(2024, 1, 2, 20);
    Event orphan = moved;
    orphan.id = QStringLiteral("override-orphan");
    orphan.master_event_uid = QStringLiteral("nobody");

    const QList<Event> input{daily, single, orphan, weekly, moved, farSingle, outside};
    const QList<Event> result = Recurrence::expandEvents(input, utc(2024, 1, 2), utc(2024, 1, 5));
    QStringList ids;
    for (const Event &event : result)
        ids.append(event.id + u'@' + iso(event.start_time));
    const QString d = daily.id;
    const QString w = weekly.id;
    QCOMPARE(ids,
             (QStringList{u"single@2024-01-02T15:00:00Z"_s, u"far@2030-01-01T00:00:00Z"_s, d + u"@2024-01-02T09:00:00Z",
                          u"override-inside@2024-01-03T14:00:00Z"_s, d + u"@2024-01-04T09:00:00Z",
                          w + u"@2024-01-03T12:00:00Z"}));
}

void TestRecurrence::expandEventsOverrideWithoutSlot()
{
    Event master = series(u"FREQ=DAILY;COUNT=3"_s, utc(2024, 1, 1, 9));
    master.exception_dates = u"[\"20240102T090000Z\"]"_s;
    Event override = master;
    override.id = QStringLiteral("override");
    override.recurrence_rule.clear();
    override.master_event_uid = master.uid;
    override.recurrence_id = QStringLiteral("20240102T090000Z");
    override.start_time = utc(2024, 1, 2, 11);
    const QList<Event> result = Recurrence::expandEvents({override, master}, utc(2024, 1, 1), utc(2024, 2, 1));
    QCOMPARE(startsOf(result), (QStringList{u"2024-01-01T09:00:00Z"_s, u"2024-01-03T09:00:00Z"_s}));
}

void TestRecurrence::expandEventsLogsEmptyMaster()
{
    QLoggingCategory::setFilterRules(QStringLiteral("calendar.expansion.debug=true"));
    const Event master = series(u"FREQ=DAILY;COUNT=1"_s, utc(2024, 1, 1, 9));
    QTest::ignoreMessage(QtDebugMsg,
                         "master uid= uid-FREQ=DAILY;COUNT=1 title= Series rrule= FREQ=DAILY;COUNT=1 "
                         "dtstart= 2024-01-01T09:00:00Z → 0 occurrences in range 2024-02-01T00:00:00Z ... "
                         "2024-03-01T00:00:00Z");
    QVERIFY(Recurrence::expandEvents({master}, utc(2024, 2, 1), utc(2024, 3, 1)).isEmpty());
    QLoggingCategory::setFilterRules(QString());
}

// The expansion skips candidates that end before the span instead of walking to them. Many
// random series (every kind of rule, clocks with transitions, spans near the start, the cap and
// COUNT) must expand to exactly what the walk from the series start gives.
void TestRecurrence::skippingAheadMatchesWalk()
{
    CaseMaker maker(20240611);
    int nonEmpty = 0;
    int skippedSomething = 0;
    std::vector<qint64> skipping;
    std::vector<qint64> walking;
    for (int i = 0; i < 6000; ++i) {
        const RandomCase c = maker.next();
        const QString label = c.master.recurrence_rule + u" from " + c.master.start_time.toString(Qt::ISODate) + u' '
            + c.master.start_time.timeZoneAbbreviation() + u" span " + iso(c.rangeStart) + u" .. " + iso(c.rangeEnd);

        const qint64 duration = c.master.end_time ? c.master.start_time.msecsTo(*c.master.end_time) : 3600000;
        const qint64 neededFrom = c.rangeStart.toMSecsSinceEpoch() - duration;
        const OccurrenceGenerator generator(CompiledRule::fromText(c.master.recurrence_rule), c.master.start_time);
        generator.starts(c.rangeEnd.toMSecsSinceEpoch(), neededFrom, Method::SkipAhead, skipping);
        generator.starts(c.rangeEnd.toMSecsSinceEpoch(), OccurrenceGenerator::kNoLowerBound, Method::WalkFromStart,
                         walking);
        // The skip leaves out only starts before neededFrom: the starts it gives are a subsequence of the
        // walk's, and from neededFrom on the two agree.
        std::vector<qint64> neededSkipping;
        std::vector<qint64> neededWalking;
        std::copy_if(skipping.begin(), skipping.end(), std::back_inserter(neededSkipping),
                     [neededFrom](qint64 start) { return start >= neededFrom; });
        std::copy_if(walking.begin(), walking.end(), std::back_inserter(neededWalking),
                     [neededFrom](qint64 start) { return start >= neededFrom; });
        QVERIFY2(neededSkipping == neededWalking, qPrintable(label));
        QVERIFY2(std::includes(walking.begin(), walking.end(), skipping.begin(), skipping.end()), qPrintable(label));
        if (skipping.size() < walking.size())
            ++skippedSomething;

        const QList<Event> fast
            = RecurrenceExpansion::expandSeries(c.master, c.rangeStart, c.rangeEnd, Method::SkipAhead);
        const QList<Event> slow
            = RecurrenceExpansion::expandSeries(c.master, c.rangeStart, c.rangeEnd, Method::WalkFromStart);
        QCOMPARE(fast, slow);
        for (qsizetype k = 0; k < fast.size(); ++k) {
            QCOMPARE(fast.at(k).start_time.toString(Qt::ISODate), slow.at(k).start_time.toString(Qt::ISODate));
            QCOMPARE(fast.at(k).start_time.timeSpec(), slow.at(k).start_time.timeSpec());
        }
        if (!fast.isEmpty())
            ++nonEmpty;
    }
    // The cases must exercise both outcomes, and the skip must actually happen.
    QVERIFY(nonEmpty > 1000);
    QVERIFY(skippedSomething > 1000);
}

// Where no candidate meets a time-zone transition, stepping the wall clock gives what QDateTime's
// own day, month and year arithmetic gives when the rules are followed to the letter.
void TestRecurrence::generationMatchesLiteralRules()
{
    CaseMaker maker(4711);
    int compared = 0;
    for (int i = 0; i < 6000; ++i) {
        const RandomCase c = maker.next();
        // Past 2037 QDateTime misplaces wall-clock times on the days zones change their offset.
        const bool zoned = c.master.start_time.timeSpec() == Qt::LocalTime
            || (c.master.start_time.timeSpec() == Qt::TimeZone && c.master.start_time.timeZone() != QTimeZone::utc());
        if (!c.transitionFree || (zoned && c.rangeEnd > utc(2037, 1, 1)))
            continue;
        const RecurrenceRule rule = Recurrence::parseRule(c.master.recurrence_rule);
        const QList<QDateTime> expected = literalStarts(rule, c.master.start_time, c.rangeEnd);
        const QList<QDateTime> actual = Recurrence::occurrenceStarts(rule, c.master.start_time, c.rangeEnd);
        const QString label = c.master.recurrence_rule + u" from " + c.master.start_time.toString(Qt::ISODate);
        QVERIFY2(actual.size() == expected.size(), qPrintable(label));
        for (qsizetype k = 0; k < actual.size(); ++k) {
            QVERIFY2(actual.at(k) == expected.at(k), qPrintable(label + u" at " + QString::number(k)));
            QCOMPARE(actual.at(k).timeSpec(), expected.at(k).timeSpec());
            QCOMPARE(actual.at(k).time(), expected.at(k).time());
        }
        ++compared;
    }
    QVERIFY(compared > 2000);
}

void TestRecurrence::zoneTableMatchesZone_data()
{
    QTest::addColumn<QByteArray>("zone");
    for (const char *id : {"Europe/Berlin", "America/New_York", "Australia/Lord_Howe", "America/Santiago",
                           "Pacific/Apia", "Asia/Kolkata"})
        QTest::newRow(id) << QByteArray(id);
}

void TestRecurrence::zoneTableMatchesZone()
{
    QFETCH(QByteArray, zone);
    const QTimeZone timeZone(zone);
    const WallClockZone clock(QDateTime(QDate(2024, 1, 1), QTime(12, 0), timeZone));
    QRandomGenerator rng(99);
    const qint64 from = utc(1901, 1, 1).toMSecsSinceEpoch();
    const qint64 to = utc(2060, 1, 1).toMSecsSinceEpoch();
    for (int i = 0; i < 20000; ++i) {
        const qint64 instant = from + qint64(rng.bounded(double(to - from)));
        QCOMPARE(clock.offsetAt(instant), QDateTime::fromMSecsSinceEpoch(instant, timeZone).offsetFromUtc());
        // Every instant's own wall-clock reading leads back to it, except the later of two equal readings.
        const QDateTime local = QDateTime::fromMSecsSinceEpoch(instant, timeZone);
        const qint64 resolved = clock.toInstant(WallClockZone::wallMs(local));
        QVERIFY(resolved == instant || (resolved < instant && instant - resolved <= 2 * 3600000));
    }
}

void TestRecurrence::utcStampMatchesQt()
{
    QRandomGenerator rng(5);
    for (int i = 0; i < 5000; ++i) {
        const qint64 instant = qint64(rng.bounded(double(utc(9999, 12, 31).toMSecsSinceEpoch())))
            + (i % 2 ? 0 : utc(1, 1, 1).toMSecsSinceEpoch());
        QCOMPARE(RecurrenceExpansion::utcStamp(instant),
                 QDateTime::fromMSecsSinceEpoch(instant, Qt::UTC).toString(u"yyyyMMdd'T'HHmmss'Z'"_s));
    }
}

QTEST_GUILESS_MAIN(TestRecurrence)
#include "tst_recurrence.moc"
