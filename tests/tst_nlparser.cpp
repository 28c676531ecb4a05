// SPDX-License-Identifier: GPL-3.0-or-later
#include "ical/NLParser.h"
#include "storage/Clock.h"

#include "support/KbcalRunner.h"

#include <QBuffer>
#include <QDir>
#include <QElapsedTimer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QTimeZone>

using namespace NLParser;

namespace {

QDateTime utc(int year, int month, int day, int hour = 0, int minute = 0, int second = 0)
{
    return QDateTime(QDate(year, month, day), QTime(hour, minute, second), Qt::UTC);
}

QDateTime berlin(int year, int month, int day, int hour = 0, int minute = 0)
{
    return QDateTime(QDate(year, month, day), QTime(hour, minute), QTimeZone("Europe/Berlin"));
}

// Friday, 15 March 2024, 14:10 UTC: the reference time of most rows.
const QDateTime kFriday = utc(2024, 3, 15, 14, 10);

constexpr int kNoMatch = -2;

using Result = KbcalResult;

} // namespace

class TestNLParser : public QObject
{
    Q_OBJECT

private slots:
    void cleanup();

    void defaultStart_data();
    void defaultStart();
    void matchDate_data();
    void matchDate();
    void matchTime_data();
    void matchTime();
    void matchDuration_data();
    void matchDuration();
    void parse_data();
    void parse();
    void emptyText_data();
    void emptyText();
    void keepsTheZoneOfTheReference_data();
    void keepsTheZoneOfTheReference();
    void spansPointIntoTheCallersText();
    void longInputsStayFast_data();
    void longInputsStayFast();
    void problem_data();
    void problem();

    void eventFromLine();
    void eventFromLineTitleFallback_data();
    void eventFromLineTitleFallback();
    void eventFromLineInLocalTime();

    void kbcalDryRunJson();
    void kbcalDryRunText();
    void kbcalDefaultsToTheClock();
    void kbcalErrors_data();
    void kbcalErrors();
    void kbcalStoresTheEvent();
};

void TestNLParser::cleanup()
{
    Clock::setFixedNow(QDateTime());
}

void TestNLParser::defaultStart_data()
{
    QTest::addColumn<QDateTime>("now");
    QTest::addColumn<QDateTime>("expected");

    QTest::newRow("14:10 to half past") << utc(2024, 3, 15, 14, 10) << utc(2024, 3, 15, 14, 30);
    QTest::newRow("14:30:45 drops the seconds") << utc(2024, 3, 15, 14, 30, 45) << utc(2024, 3, 15, 14, 30);
    QTest::newRow("milliseconds dropped")
        << QDateTime(QDate(2024, 3, 15), QTime(14, 30, 0, 999), Qt::UTC) << utc(2024, 3, 15, 14, 30);
    QTest::newRow("zone kept") << berlin(2024, 3, 15, 9, 5) << berlin(2024, 3, 15, 9, 30);
    // 01:50 CET + 10 minutes is 03:00 CEST: the clocks go forward at 02:00.
    QTest::newRow("across the jump") << berlin(2024, 3, 31, 1, 50) << berlin(2024, 3, 31, 3, 0);
    QTest::newRow("invalid") << QDateTime() << QDateTime();
}

void TestNLParser::defaultStart()
{
    QFETCH(QDateTime, now);
    QFETCH(QDateTime, expected);
    const QDateTime start = NLParser::defaultStart(now);
    QCOMPARE(start, expected);
    if (expected.isValid()) {
        QCOMPARE(start.timeSpec(), now.timeSpec());
        QCOMPARE(start.time().second(), 0);
        QCOMPARE(start.time().msec(), 0);
    }
}

void TestNLParser::matchDate_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QDate>("today");
    QTest::addColumn<bool>("matches");
    QTest::addColumn<QDate>("date");
    QTest::addColumn<QString>("consumed");

    const QDate friday(2024, 3, 15);
    const QDate monday(2024, 3, 18);
    auto row
        = [](const char *name, const QString &text, const QDate &today, const QDate &date, const QString &consumed) {
              QTest::newRow(name) << text << today << true << date << consumed;
          };

    row("today", "Plan today", friday, friday, "today");
    row("tomorrow", "Review tomorrow", friday, QDate(2024, 3, 16), "tomorrow");
    row("letter case ignored", "TOMORROW lunch", friday, QDate(2024, 3, 16), "TOMORROW");
    row("not inside a word", "todays tomorrowland tomorrow", friday, QDate(2024, 3, 16), "tomorrow");

    row("next monday from friday", "Gym next monday", friday, monday, "next monday");
    row("next monday on a monday is a week on", "Gym next monday", monday, QDate(2024, 3, 25), "next monday");

    row("friday on a friday is today", "Call mom friday", friday, friday, "friday");
    row("wed wraps to next week", "Dentist wed", friday, QDate(2024, 3, 20), "wed");

    row("in 3 days", "Trip in 3 days", friday, QDate(2024, 3, 18), "in 3 days");
    row("in 2 weeks", "Trip in 2 weeks", friday, QDate(2024, 3, 29), "in 2 weeks");
    row("leading zeros", "in 0000000000000000000000007 days", friday, QDate(2024, 3, 22),
        "in 0000000000000000000000007 days");
    row("more days than any date", "in 99999999999999 days", friday, QDate(), "in 99999999999999 days");

    row("dec 3 later this year", "Dentist dec 3", friday, QDate(2024, 12, 3), "dec 3");
    row("dec 3 in late december", "Dentist dec 3", QDate(2024, 12, 28), QDate(2025, 12, 3), "dec 3");
    row("the same day stays", "on March 15", friday, friday, "on March 15");
    row("yesterday's month day is next year", "mar 14", friday, QDate(2025, 3, 14), "mar 14");
    row("jan 40 stays invalid", "Party jan 40", friday, QDate(), "jan 40");
    row("feb 29 in a common year", "feb 29", QDate(2023, 1, 10), QDate(), "feb 29");
    // A leap day that has passed moves on one year, where it has no such day: Qt's addYears
    // takes the last day of February.
    row("feb 29 passed in a leap year", "feb 29", friday, QDate(2025, 2, 28), "feb 29");

    // Order: the first pattern that matches anywhere wins, and only its first match counts.
    row("relative word before next", "next monday tomorrow", friday, QDate(2024, 3, 16), "tomorrow");
    row("next before bare weekday", "friday next monday", friday, monday, "next monday");
    row("weekday before in N days", "in 3 days friday", friday, friday, "friday");

    // Case-insensitive matching also accepts U+017F (long s) for "s" and U+212A (Kelvin) for "k".
    row("long s folds to s", QString::fromUtf8("Meet x\u017Fat"), friday, QDate(2024, 3, 16),
        QString::fromUtf8("\u017Fat"));
    row("kelvin sign folds to k", QString::fromUtf8("in 2 wee\u212As"), friday, QDate(2024, 3, 29),
        QString::fromUtf8("in 2 wee\u212As"));

    QTest::newRow("nothing") << "Standup" << friday << false << QDate() << QString();
    QTest::newRow("number without unit") << "in 3 months" << friday << false << QDate() << QString();
    QTest::newRow("three digits are no day") << "jan 123" << friday << false << QDate() << QString();
}

void TestNLParser::matchDate()
{
    QFETCH(QString, text);
    QFETCH(QDate, today);
    QFETCH(bool, matches);
    QFETCH(QDate, date);
    QFETCH(QString, consumed);
    const std::optional<DateMatch> match = NLParser::matchDate(text, today);
    QCOMPARE(match.has_value(), matches);
    if (!match)
        return;
    QCOMPARE(match->date, date);
    QCOMPARE(match->spans.size(), 1);
    QCOMPARE(text.mid(match->spans.first().start, match->spans.first().length), consumed);
}

void TestNLParser::matchTime_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("matches");
    QTest::addColumn<QTime>("start");
    QTest::addColumn<bool>("isRange");
    QTest::addColumn<QTime>("end");
    QTest::addColumn<QString>("consumed");

    auto at = [](const char *name, const QString &text, const QTime &start, const QString &consumed) {
        QTest::newRow(name) << text << true << start << false << QTime() << consumed;
    };
    auto range
        = [](const char *name, const QString &text, const QTime &start, const QTime &end, const QString &consumed) {
              QTest::newRow(name) << text << true << start << true << end << consumed;
          };

    range("start borrows the end's marker", "from 9 to 11am", QTime(9, 0), QTime(11, 0), "from 9 to 11am");
    range("end borrows the start's marker", "from 11pm to 1", QTime(23, 0), QTime(13, 0), "from 11pm to 1");
    range("start marker wins over borrowing", "from 10pm to 1am", QTime(22, 0), QTime(1, 0), "from 10pm to 1am");
    range("no markers are 24-hour values", "from 14 to 16", QTime(14, 0), QTime(16, 0), "from 14 to 16");
    // The blank after a bare end hour belongs to the match when a word follows.
    range("trailing blank before a word", "from 9 to 11 standup", QTime(9, 0), QTime(11, 0), "from 9 to 11 ");
    range("impossible end", "from 9 to 25", QTime(9, 0), QTime(), "from 9 to 25");

    at("noon", "Lunch at noon", QTime(12, 0), "at noon");

    at("at 7 is morning", "Flight at 7", QTime(7, 0), "at 7");
    at("at 12am", "at 12am", QTime(0, 0), "at 12am");
    at("at 13pm keeps 13", "at 13pm", QTime(13, 0), "at 13pm");
    at("at 25 is impossible", "Meet at 25", QTime(), "at 25");

    at("at 1530", "Meet at 1530", QTime(15, 30), "at 1530");
    QTest::newRow("at 2460 finds nothing") << "Meet at 2460" << false << QTime() << false << QTime() << QString();
    at("at 1260 falls through to a marker", "at 1260 5pm", QTime(17, 0), "5pm");

    at("marker", "Call 5pm", QTime(17, 0), "5pm");

    // Order of the patterns.
    range("range before noon", "at noon from 9 to 10", QTime(9, 0), QTime(10, 0), "from 9 to 10");
    at("noon before a marker", "5pm at noon", QTime(12, 0), "at noon");
    at("midnight before at", "at 3 midnight", QTime(0, 0), "midnight");
    at("first match only", "at 7 at 9", QTime(7, 0), "at 7 ");

    QTest::newRow("nothing") << "Standup" << false << QTime() << false << QTime() << QString();
}

void TestNLParser::matchTime()
{
    QFETCH(QString, text);
    QFETCH(bool, matches);
    QFETCH(QTime, start);
    QFETCH(bool, isRange);
    QFETCH(QTime, end);
    QFETCH(QString, consumed);
    const std::optional<TimeMatch> match = NLParser::matchTime(text);
    QCOMPARE(match.has_value(), matches);
    if (!match)
        return;
    QCOMPARE(match->start, start);
    QCOMPARE(match->isRange, isRange);
    if (isRange)
        QCOMPARE(match->end, end);
    QCOMPARE(match->spans.size(), 1);
    QCOMPARE(text.mid(match->spans.first().start, match->spans.first().length), consumed);
}

void TestNLParser::matchDuration_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("minutes");

    QTest::newRow("45 min") << "Lunch for 45 min" << 45;
    QTest::newRow("h") << "for 2 h" << 120;
    QTest::newRow("1.5 hours") << "for 1.5 hours" << 90;
    QTest::newRow("2.9 min truncated") << "for 2.9 min" << 2;
    // Exact decimal arithmetic: a double would round these to 3 and 70.
    QTest::newRow("many nines stay below 3") << "for 2.99999999999999999999 min" << 2;
    QTest::newRow("just below 70 minutes") << "for 1.1666666666666666666666 h" << 69;
    QTest::newRow("35791394 hours fit") << "for 35791394 hours" << 2147483640;
    QTest::newRow("too long in minutes") << "for 2147483648 min" << -1;
    QTest::newRow("too long in hours") << "for 35791395 hours" << -1;
    QTest::newRow("first match only") << "for 5 min for 2 h" << 5;
    QTest::newRow("no unit") << "Call for 30" << kNoMatch;
    QTest::newRow("unit glued to a word") << "for 5 minutesx" << kNoMatch;
    QTest::newRow("days are no duration") << "for 2 days" << kNoMatch;
}

void TestNLParser::matchDuration()
{
    QFETCH(QString, text);
    QFETCH(int, minutes);
    const std::optional<DurationMatch> match = NLParser::matchDuration(text);
    QCOMPARE(match.has_value(), minutes != kNoMatch);
    if (match) {
        QCOMPARE(match->minutes, minutes);
        QCOMPARE(match->spans.size(), 1);
        QVERIFY(text.mid(match->spans.first().start).startsWith(QLatin1String("for")));
    }
}

void TestNLParser::parse_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QDateTime>("now");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QDateTime>("start");
    QTest::addColumn<QDateTime>("end");
    QTest::addColumn<bool>("allDay");
    QTest::addColumn<bool>("hasTime");

    QTest::newRow("default start on the next day")
        << "Late call" << utc(2024, 3, 15, 23, 50) << "Late call" << utc(2024, 3, 16, 0, 0) << utc(2024, 3, 16, 1, 0)
        << false << false;
    QTest::newRow("party jan 40") << "Party jan 40" << kFriday << "Party" << QDateTime() << QDateTime() << true
                                  << false;
    QTest::newRow("from 11pm to 1 ends at 13:00 the next day")
        << "from 11pm to 1" << kFriday << "" << utc(2024, 3, 15, 23, 0) << utc(2024, 3, 16, 13, 0) << false << true;
    QTest::newRow("empty range moves a day")
        << "from 9 to 9" << kFriday << "" << utc(2024, 3, 15, 9, 0) << utc(2024, 3, 16, 9, 0) << false << true;
    QTest::newRow("meet at 2460") << "Meet at 2460" << kFriday << "Meet at 2460" << utc(2024, 3, 15, 14, 30)
                                  << utc(2024, 3, 15, 15, 30) << false << false;
    QTest::newRow("lunch with sam") << "Lunch with Sam tomorrow at 12:30 for 45 min" << kFriday << "Lunch with Sam"
                                    << utc(2024, 3, 16, 12, 30) << utc(2024, 3, 16, 13, 15) << false << true;

    QTest::newRow("tonight implies no time")
        << "Party tonight" << kFriday << "Party" << utc(2024, 3, 15) << utc(2024, 3, 16) << true << false;
    QTest::newRow("duration ignored for all-day") << "Retreat tomorrow for 3 hours" << kFriday << "Retreat"
                                                  << utc(2024, 3, 16) << utc(2024, 3, 17) << true << false;
    QTest::newRow("zero duration") << "Ping at 9 for 0.01 h" << kFriday << "Ping" << utc(2024, 3, 15, 9, 0)
                                   << utc(2024, 3, 15, 9, 0) << false << true;
    QTest::newRow("duration too long to count")
        << "Nap at 9 for 35791395 hours" << kFriday << "Nap" << utc(2024, 3, 15, 9, 0) << QDateTime() << false << true;

    // Title: what no matcher consumed, simplified, then one cleanup pass.
    QTest::newRow("overlapping spans merged") << "Launch jan 5 pm" << kFriday << "Launch" << utc(2025, 1, 5, 17, 0)
                                              << utc(2025, 1, 5, 18, 0) << false << true;
    QTest::newRow("runs of blanks") << "Meeting   with\tBob   tomorrow    at  noon" << kFriday << "Meeting with Bob"
                                    << utc(2024, 3, 16, 12, 0) << utc(2024, 3, 16, 13, 0) << false << true;
    QTest::newRow("leading at removed") << "at home tomorrow" << kFriday << "home" << utc(2024, 3, 16)
                                        << utc(2024, 3, 17) << true << false;
    QTest::newRow("at 1530 at 9 keeps the number")
        << "at 1530 at 9" << kFriday << "1530" << utc(2024, 3, 15, 9, 0) << utc(2024, 3, 15, 10, 0) << false << true;

    // Inputs found while hardening the matchers against arbitrary text.
    QTest::newRow("unpaired surrogate") << QStringLiteral("Lunch ") + QChar(0xD800)
            + QStringLiteral(" tomorrow at noon")
                                        << kFriday << QStringLiteral("Lunch ") + QChar(0xD800)
                                        << utc(2024, 3, 16, 12, 0) << utc(2024, 3, 16, 13, 0) << false << true;
    QTest::newRow("surrogate pair kept") << QString::fromUtf8("Party \U0001F389 tomorrow") << kFriday
                                         << QString::fromUtf8("Party \U0001F389") << utc(2024, 3, 16)
                                         << utc(2024, 3, 17) << true << false;
}

void TestNLParser::parse()
{
    QFETCH(QString, text);
    QFETCH(QDateTime, now);
    QFETCH(QString, title);
    QFETCH(QDateTime, start);
    QFETCH(QDateTime, end);
    QFETCH(bool, allDay);
    QFETCH(bool, hasTime);
    const ParseResult result = NLParser::parse(text, now);
    QCOMPARE(result.title, title);
    QCOMPARE(result.start, start);
    QVERIFY(result.end.has_value());
    QCOMPARE(*result.end, end);
    QCOMPARE(result.allDay, allDay);
    QCOMPARE(result.hasTime, hasTime);
}

void TestNLParser::emptyText_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << "";
}

void TestNLParser::emptyText()
{
    QFETCH(QString, text);
    const ParseResult result = NLParser::parse(text, kFriday);
    QCOMPARE(result.title, QString());
    QCOMPARE(result.start, utc(2024, 3, 15, 14, 30));
    QVERIFY(!result.end);
    QVERIFY(!result.allDay);
    QVERIFY(!result.hasTime);
}

void TestNLParser::keepsTheZoneOfTheReference_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QDateTime>("now");
    QTest::addColumn<QDateTime>("start");
    QTest::addColumn<QDateTime>("end");

    const QDateTime india(QDate(2024, 3, 15), QTime(23, 50), Qt::OffsetFromUTC, 5 * 3600 + 1800);
    QTest::newRow("offset") << "Call at 9" << india
                            << QDateTime(QDate(2024, 3, 15), QTime(9, 0), Qt::OffsetFromUTC, 19800)
                            << QDateTime(QDate(2024, 3, 15), QTime(10, 0), Qt::OffsetFromUTC, 19800);
    QTest::newRow("zone") << "Review tomorrow" << berlin(2024, 10, 26, 18, 0) << berlin(2024, 10, 27)
                          << berlin(2024, 10, 28);
    // The night the clocks go forward: 02:30 does not exist and is read with the winter offset,
    // which makes it 03:30 summer time.
    QTest::newRow("skipped time in a zone") << "Brunch tomorrow at 2:30" << berlin(2024, 3, 30, 23, 45)
                                            << utc(2024, 3, 31, 1, 30) << utc(2024, 3, 31, 2, 30);
    QTest::newRow("repeated hour") << "Call sunday at 2:30" << berlin(2024, 10, 26, 12, 0)
                                   << berlin(2024, 10, 27, 2, 30) << berlin(2024, 10, 27, 2, 30).addSecs(3600);
}

void TestNLParser::keepsTheZoneOfTheReference()
{
    QFETCH(QString, text);
    QFETCH(QDateTime, now);
    QFETCH(QDateTime, start);
    QFETCH(QDateTime, end);
    const ParseResult result = NLParser::parse(text, now);
    QVERIFY(result.start.isValid());
    QCOMPARE(result.start, start);
    QCOMPARE(result.start.timeSpec(), now.timeSpec());
    if (now.timeSpec() == Qt::TimeZone)
        QCOMPARE(result.start.timeZone(), now.timeZone());
    if (now.timeSpec() == Qt::OffsetFromUTC)
        QCOMPARE(result.start.offsetFromUtc(), now.offsetFromUtc());
    QVERIFY(result.end && result.end->isValid());
    QCOMPARE(*result.end, end);
    QCOMPARE(result.end->timeSpec(), now.timeSpec());
}

void TestNLParser::spansPointIntoTheCallersText()
{
    // Runs of blanks are matched as one internally; the spans still cover the caller's text.
    const QString text = QStringLiteral("Gym  next \t\t monday   at    6am   for  1.5   hours");
    const auto date = NLParser::matchDate(text, QDate(2024, 3, 15));
    QVERIFY(date);
    QCOMPARE(text.mid(date->spans.first().start, date->spans.first().length), QStringLiteral("next \t\t monday"));
    const auto time = NLParser::matchTime(text);
    QVERIFY(time);
    QCOMPARE(text.mid(time->spans.first().start, time->spans.first().length), QStringLiteral("at    6am"));
    const auto duration = NLParser::matchDuration(text);
    QVERIFY(duration);
    QCOMPARE(duration->minutes, 90);
    QCOMPARE(text.mid(duration->spans.first().start, duration->spans.first().length),
             QStringLiteral("for  1.5   hours"));
    QCOMPARE(NLParser::parse(text, kFriday).title, QStringLiteral("Gym"));
}

void TestNLParser::longInputsStayFast_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QDateTime>("start");
    QTest::addColumn<QDateTime>("end");
    QTest::addColumn<QString>("title");

    // "\s*(am|pm)?\s+" after "from 1" backtracked over every split of a blank run: 100,000
    // blanks took eight seconds, a megabyte would have taken hours.
    const QString blanks(200000, QLatin1Char(' '));
    QTest::newRow("blank run after from")
        << QStringLiteral("from 1") + blanks + QStringLiteral("x from 9 to 11am") << utc(2024, 3, 15, 9, 0)
        << utc(2024, 3, 15, 11, 0) << QStringLiteral("from 1 x");
    QTest::newRow("many blank runs")
        << QStringLiteral("from 1 %1x ").arg(QString(10000, QLatin1Char('\t'))).repeated(100)
        << utc(2024, 3, 15, 14, 30) << utc(2024, 3, 15, 15, 30)
        << QStringList(100, QStringLiteral("from 1 x")).join(QLatin1Char(' '));
    QTest::newRow("long digit run") << QStringLiteral("Pay for ") + QString(300000, QLatin1Char('9'))
            + QStringLiteral(" at noon")
                                    << utc(2024, 3, 15, 12, 0) << utc(2024, 3, 15, 13, 0)
                                    << QStringLiteral("Pay for ") + QString(300000, QLatin1Char('9'));
}

void TestNLParser::longInputsStayFast()
{
    QFETCH(QString, text);
    QFETCH(QDateTime, start);
    QFETCH(QDateTime, end);
    QFETCH(QString, title);
    QElapsedTimer timer;
    timer.start();
    const ParseResult result = NLParser::parse(text, kFriday);
    const qint64 elapsed = timer.elapsed();
    QCOMPARE(result.start, start);
    QCOMPARE(*result.end, end);
    QCOMPARE(result.title, title);
    // Linear work takes milliseconds; the margin is for a busy machine.
    QVERIFY2(elapsed < 3000, qPrintable(QStringLiteral("%1 ms").arg(elapsed)));
}

void TestNLParser::problem_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QDateTime>("now");
    QTest::addColumn<QString>("message");

    QTest::newRow("fine") << "Lunch tomorrow at noon" << kFriday << "";
    QTest::newRow("jan 40") << "Party jan 40" << kFriday << "\"jan 40\" is not a valid date";
    QTest::newRow("days beyond counting")
        << "in 99999999999999 days" << kFriday << "\"in 99999999999999 days\" is not a valid date";
    QTest::newRow("at 25") << "Meet at 25" << kFriday << "\"at 25\" is not a valid time";
    QTest::newRow("duration") << "Nap for 35791395 hours" << kFriday << "\"for 35791395 hours\" is too long";
    QTest::newRow("ignored duration is fine") << "Retreat tomorrow for 99999999999 hours" << kFriday << "";
    QTest::newRow("year 10000") << "in 3000000 days" << kFriday
                                << "\"in 3000000 days\" falls outside the years 1 to 9999";
    QTest::newRow("tomorrow at the end of time")
        << "tomorrow" << utc(9999, 12, 31, 12, 0) << "\"tomorrow\" falls outside the years 1 to 9999";
    QTest::newRow("default start at the end of time")
        << "Standup" << utc(9999, 12, 31, 23, 40) << "the event would fall outside the years 1 to 9999";
    QTest::newRow("invalid reference") << "Standup" << QDateTime() << "the reference time is not valid";
}

void TestNLParser::problem()
{
    QFETCH(QString, line);
    QFETCH(QDateTime, now);
    QFETCH(QString, message);
    QCOMPARE(NLParser::problem(line, now), message);
    QCOMPARE(NLParser::eventFromLine(line, QStringLiteral("cal"), now).has_value(),
             message.isEmpty() && !line.trimmed().isEmpty());
}

void TestNLParser::eventFromLine()
{
    Clock::setFixedNow(utc(2024, 3, 15, 13, 0, 7));
    const std::optional<Event> event = NLParser::eventFromLine(
        QStringLiteral("  Gym next monday at 6am for 1.5 hours "), QStringLiteral("cal-1"), kFriday);
    QVERIFY(event);
    static const QRegularExpression uuid(
        QStringLiteral("^[0-9a-f]{8}-[0-9a-f]{4}-[0-9a-f]{4}-[0-9a-f]{4}-[0-9a-f]{12}$"));
    QVERIFY2(uuid.match(event->id).hasMatch(), qPrintable(event->id));

    Event expected;
    expected.id = event->id;
    expected.uid = event->id;
    expected.calendar_id = QStringLiteral("cal-1");
    expected.title = QStringLiteral("Gym");
    expected.start_time = utc(2024, 3, 18, 6, 0);
    expected.end_time = utc(2024, 3, 18, 7, 30);
    expected.is_all_day = false;
    expected.timezone = QStringLiteral("UTC");
    expected.status = QStringLiteral("confirmed");
    expected.sync_status = QStringLiteral("pending");
    expected.sequence = 0;
    expected.created = utc(2024, 3, 15, 13, 0, 7);
    expected.last_modified = expected.created;
    expected.raw_icalendar = "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//Kettlebrook//Calendar Desktop//EN\r\n"
                             "BEGIN:VEVENT\r\nUID:"
        + event->id.toUtf8()
        + "\r\nSUMMARY:Gym\r\nDTSTART:20240318T060000Z\r\nDTEND:20240318T073000Z\r\n"
          "END:VEVENT\r\nEND:VCALENDAR\r\n";
    QCOMPARE(event->raw_icalendar, expected.raw_icalendar);
    QCOMPARE(*event, expected);

    const std::optional<Event> another
        = NLParser::eventFromLine(QStringLiteral("Gym next monday"), QStringLiteral("cal-1"), kFriday);
    QVERIFY(another);
    QVERIFY(another->id != event->id);
    QVERIFY(another->is_all_day);
    QVERIFY(another->raw_icalendar.contains("DTSTART:20240318T000000Z\r\nDTEND:20240319T000000Z\r\n"));
}

void TestNLParser::eventFromLineTitleFallback_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("title");

    QTest::newRow("nothing left: the whole line") << "  tomorrow at 9  "
                                                  << "tomorrow at 9";
    // A line break would end the SUMMARY line of the unescaped iCalendar text early.
    QTest::newRow("line breaks become blanks") << "tomorrow\r\nat 9"
                                               << "tomorrow at 9";
    QTest::newRow("title with a line break") << "Lunch\nEND:VEVENT tomorrow"
                                             << "Lunch END:VEVENT";
}

void TestNLParser::eventFromLineTitleFallback()
{
    QFETCH(QString, line);
    QFETCH(QString, title);
    const std::optional<Event> event = NLParser::eventFromLine(line, QStringLiteral("cal"), kFriday);
    QVERIFY(event);
    QCOMPARE(event->title, title);
    QVERIFY(event->raw_icalendar.contains(QByteArray("\r\nSUMMARY:" + title.toUtf8() + "\r\nDTSTART:")));
    QCOMPARE(event->raw_icalendar.count("\r\n"), 10);
    QCOMPARE(event->raw_icalendar.count('\n'), 10);
}

void TestNLParser::eventFromLineInLocalTime()
{
    // The desktop program passes the local time (the tests run in Europe/Berlin, UTC+1 in March).
    const QDateTime now(QDate(2024, 3, 15), QTime(14, 10), Qt::LocalTime);
    const std::optional<Event> event = NLParser::eventFromLine(QStringLiteral("Standup"), QStringLiteral("cal"), now);
    QVERIFY(event);
    QCOMPARE(event->start_time, QDateTime(QDate(2024, 3, 15), QTime(14, 30), Qt::LocalTime));
    QCOMPARE(event->start_time.timeSpec(), Qt::LocalTime);
    QCOMPARE(event->timezone, QStringLiteral("UTC"));
    QVERIFY(event->raw_icalendar.contains("DTSTART:20240315T133000Z\r\nDTEND:20240315T143000Z\r\n"));
}

void TestNLParser::kbcalDryRunJson()
{
    const Result result = runKbcal({"add", "Gym", "next", "monday", "at", "6am", "for", "1.5", "hours", "--now",
                                    "2024-03-15T14:10:00Z", "--dry-run", "--json"});
    QCOMPARE(result.err, QString());
    QCOMPARE(result.status, 0);
    QJsonParseError error;
    const QJsonObject object = QJsonDocument::fromJson(result.out.toUtf8(), &error).object();
    QCOMPARE(error.error, QJsonParseError::NoError);
    QCOMPARE(object,
             (QJsonObject{{"title", "Gym"},
                          {"start", "2024-03-18T06:00:00Z"},
                          {"end", "2024-03-18T07:30:00Z"},
                          {"all_day", false},
                          {"has_time", true}}));
}

void TestNLParser::kbcalDryRunText()
{
    const Result result
        = runKbcal({"add", "Gym", "next", "monday", "at", "6am", "--now", "2024-03-15T14:10:00Z", "--dry-run"});
    QCOMPARE(result.status, 0);
    QCOMPARE(result.err, QString());
    QCOMPARE(result.out,
             QStringLiteral("Title:    Gym\n"
                            "Start:    2024-03-18T06:00:00Z\n"
                            "End:      2024-03-18T07:00:00Z\n"
                            "All day:  no\n"
                            "Has time: yes\n"));
}

void TestNLParser::kbcalDefaultsToTheClock()
{
    // Without --now the line is read against the local time: 13:10 UTC is 14:10 in Berlin.
    Clock::setFixedNow(utc(2024, 3, 15, 13, 10));
    const Result result = runKbcal({"add", "Standup", "--dry-run", "--json"});
    QCOMPARE(result.status, 0);
    const QJsonObject object = QJsonDocument::fromJson(result.out.toUtf8()).object();
    QCOMPARE(object.value(QStringLiteral("start")).toString(), QStringLiteral("2024-03-15T14:30:00"));
}

void TestNLParser::kbcalErrors_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("firstLine");

    QTest::newRow("no text") << QStringList{"--dry-run"} << 2 << "kbcal: missing argument";
    QTest::newRow("empty text") << QStringList{"", " ", "--dry-run"} << 2 << "kbcal: the text of the event is empty";
    QTest::newRow("bad now") << QStringList{"Standup", "--now", "yesterday", "--dry-run"} << 2
                             << "kbcal: 'yesterday' is not a date or date-time for --now";
    QTest::newRow("dry run that succeeds") << QStringList{"Standup", "--dry-run"} << 0 << "";
    QTest::newRow("impossible date") << QStringList{"Party", "jan", "40", "--dry-run", "--json"} << 1
                                     << "kbcal: \"jan 40\" is not a valid date";
}

void TestNLParser::kbcalErrors()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, status);
    QFETCH(QString, firstLine);
    QTemporaryDir dir;
    const QString dataDir = dir.filePath(QStringLiteral("data"));
    const Result result = runKbcal(QStringList{"--data-dir", dataDir, "add"} + arguments);
    QCOMPARE(result.status, status);
    QCOMPARE(result.out.isEmpty(), status != 0);
    QCOMPARE(result.err.section(QLatin1Char('\n'), 0, 0), firstLine);
    if (status == 0)
        QCOMPARE(result.err, QString());
    else if (status == 2)
        QVERIFY(result.err.contains(QStringLiteral("Usage: kbcal [--data-dir DIR] add TEXT...")));
    else
        QCOMPARE(result.err.count(QLatin1Char('\n')), 1);
    QVERIFY(QDir(dir.path()).isEmpty());
}

void TestNLParser::kbcalStoresTheEvent()
{
    QTemporaryDir dir;
    const QString dataDir = dir.filePath(QStringLiteral("data"));
    const Result result = runKbcal({"--data-dir", dataDir, "add", "Lunch with Sam", "tomorrow", "at", "12:30", "--now",
                                    "2024-03-15T14:10:00+01:00", "--json"});
    QCOMPARE(result.status, 0);
    QCOMPARE(result.err, QString());
    const QJsonObject event = QJsonDocument::fromJson(result.out.toUtf8()).object();
    QCOMPARE(event.value(QStringLiteral("title")).toString(), QStringLiteral("Lunch with Sam"));
    QCOMPARE(event.value(QStringLiteral("calendar_id")).toString(), QStringLiteral("kettlebrook-personal-default"));
    QCOMPARE(event.value(QStringLiteral("sync_status")).toString(), QStringLiteral("pending"));
    QCOMPARE(event.value(QStringLiteral("id")).toString(), event.value(QStringLiteral("uid")).toString());
    QVERIFY(
        event.value(QStringLiteral("raw_icalendar")).toString().contains(QStringLiteral("SUMMARY:Lunch with Sam\r\n")));

    // It is stored: the agenda of that day lists it.
    const Result agenda = runKbcal({"--data-dir", dataDir, "agenda", "--from", "2024-03-16", "--days", "1", "--json"});
    QCOMPARE(agenda.status, 0);
    const QJsonArray occurrences
        = QJsonDocument::fromJson(agenda.out.toUtf8()).object().value(QStringLiteral("occurrences")).toArray();
    QCOMPARE(occurrences.size(), 1);
    QCOMPARE(occurrences.first().toObject().value(QStringLiteral("id")), event.value(QStringLiteral("id")));

    const Result unknown = runKbcal({"--data-dir", dataDir, "add", "Standup", "--calendar", "nope"});
    QCOMPARE(unknown.status, 1);
    QVERIFY2(unknown.err.startsWith(QStringLiteral("kbcal: ")), qPrintable(unknown.err));
    QCOMPARE(unknown.err.count(QLatin1Char('\n')), 1);
}

QTEST_GUILESS_MAIN(TestNLParser)
#include "tst_nlparser.moc"
