// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/TimelineMath.h"

#include <QTest>

using TimelineMath::kMinutesPerDay;

namespace {
const QDate kMonday(2024, 1, 8);
}

// The arithmetic behind the timeline's gestures and labels.
class TestTimelineMath : public QObject
{
    Q_OBJECT

private slots:
    void snapping_data();
    void snapping();
    void movedStart_data();
    void movedStart();
    void resizedEnd_data();
    void resizedEnd();
    void sweptRange_data();
    void sweptRange();
    void gridMinutesRoundTrip();
    void columns_data();
    void columns();
    void labels_data();
    void labels();
};

void TestTimelineMath::snapping_data()
{
    QTest::addColumn<int>("minutes");
    QTest::addColumn<int>("nearest");
    QTest::addColumn<int>("floor");
    QTest::newRow("on a quarter") << 600 << 600 << 600;
    QTest::newRow("just after") << 607 << 600 << 600;
    QTest::newRow("past the middle") << 608 << 615 << 600;
    QTest::newRow("just before") << 614 << 615 << 600;
    QTest::newRow("midnight") << 0 << 0 << 0;
    QTest::newRow("before the first day") << -8 << -15 << -15;
    QTest::newRow("late on a later day") << 2 * kMinutesPerDay + 1433 << 3 * kMinutesPerDay
                                         << 2 * kMinutesPerDay + 1425;
}

void TestTimelineMath::snapping()
{
    QFETCH(int, minutes);
    QFETCH(int, nearest);
    QFETCH(int, floor);
    QCOMPARE(TimelineMath::snapToQuarter(minutes), nearest);
    QCOMPARE(TimelineMath::floorToQuarter(minutes), floor);
}

void TestTimelineMath::movedStart_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("press");
    QTest::addColumn<int>("current");
    QTest::addColumn<int>("expected");
    QTest::newRow("an hour later") << 600 << 610 << 670 << 660;
    QTest::newRow("pointer wobble snaps back") << 600 << 610 << 616 << 600;
    QTest::newRow("off-grid start lands on the grid") << 610 << 620 << 650 << 645;
    QTest::newRow("next day, same time") << 600 << 620 << kMinutesPerDay + 620 << kMinutesPerDay + 600;
    QTest::newRow("two days back, half an hour earlier")
        << 3 * kMinutesPerDay + 600 << 3 * kMinutesPerDay + 640 << kMinutesPerDay + 610 << kMinutesPerDay + 570;
    QTest::newRow("started the day before the span") << -120 << 30 << 90 << -60;
}

void TestTimelineMath::movedStart()
{
    QFETCH(int, start);
    QFETCH(int, press);
    QFETCH(int, current);
    QFETCH(int, expected);
    QCOMPARE(TimelineMath::movedStart(start, press, current), expected);
}

void TestTimelineMath::resizedEnd_data()
{
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("end");
    QTest::addColumn<int>("press");
    QTest::addColumn<int>("current");
    QTest::addColumn<int>("expected");
    QTest::newRow("half an hour longer") << 600 << 660 << 658 << 690 << 690;
    QTest::newRow("snapped to the nearest quarter") << 600 << 660 << 658 << 683 << 690;
    QTest::newRow("shorter") << 600 << 720 << 718 << 650 << 645;
    QTest::newRow("never below a quarter hour") << 600 << 660 << 658 << 560 << 615;
    QTest::newRow("off-grid start keeps a quarter hour") << 610 << 660 << 658 << 600 << 625;
    QTest::newRow("to midnight") << 1320 << 1380 << 1378 << 1440 << 1440;
}

void TestTimelineMath::resizedEnd()
{
    QFETCH(int, start);
    QFETCH(int, end);
    QFETCH(int, press);
    QFETCH(int, current);
    QFETCH(int, expected);
    QCOMPARE(TimelineMath::resizedEnd(start, end, press, current), expected);
}

void TestTimelineMath::sweptRange_data()
{
    QTest::addColumn<int>("press");
    QTest::addColumn<int>("current");
    QTest::addColumn<int>("start");
    QTest::addColumn<int>("end");
    QTest::newRow("downwards") << 547 << 640 << 540 << 645;
    QTest::newRow("upwards") << 640 << 547 << 540 << 645;
    QTest::newRow("ends on a quarter") << 540 << 600 << 540 << 600;
    QTest::newRow("within one quarter") << 541 << 549 << 540 << 555;
    QTest::newRow("a point") << 600 << 600 << 600 << 615;
}

void TestTimelineMath::sweptRange()
{
    QFETCH(int, press);
    QFETCH(int, current);
    QFETCH(int, start);
    QFETCH(int, end);
    const TimelineMath::MinuteRange range = TimelineMath::sweptRange(press, current);
    QCOMPARE(range.start, start);
    QCOMPARE(range.end, end);
}

void TestTimelineMath::gridMinutesRoundTrip()
{
    for (int minute : {-90, 0, 615, kMinutesPerDay, 3 * kMinutesPerDay + 1439}) {
        const QDateTime time = TimelineMath::dateTimeAt(kMonday, minute);
        QCOMPARE(TimelineMath::gridMinuteOf(kMonday, time), minute);
        QCOMPARE(TimelineMath::gridMinuteOf(kMonday, time.toUTC()), minute);
    }
    QCOMPARE(TimelineMath::dateTimeAt(kMonday, -90), QDateTime(QDate(2024, 1, 7), QTime(22, 30)));
}

void TestTimelineMath::columns_data()
{
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("width");
    QTest::newRow("a week in 703") << 7 << 703;
    QTest::newRow("21 days in 640") << 21 << 640;
    QTest::newRow("one day") << 1 << 517;
}

void TestTimelineMath::columns()
{
    QFETCH(int, count);
    QFETCH(int, width);
    const int left = 56;
    QCOMPARE(TimelineMath::dayLeft(0, count, left, width), left);
    QCOMPARE(TimelineMath::dayLeft(count, count, left, width), left + width);
    // Every pixel belongs to the column whose edges enclose it; outside pixels clamp.
    for (int x = left; x < left + width; ++x) {
        const int index = TimelineMath::dayIndexAt(x, count, left, width);
        QVERIFY(TimelineMath::dayLeft(index, count, left, width) <= x);
        QVERIFY(x < TimelineMath::dayLeft(index + 1, count, left, width));
    }
    QCOMPARE(TimelineMath::dayIndexAt(left - 30, count, left, width), 0);
    QCOMPARE(TimelineMath::dayIndexAt(left + width + 30, count, left, width), count - 1);
}

void TestTimelineMath::labels_data()
{
    QTest::addColumn<bool>("use24");
    QTest::addColumn<QTime>("start");
    QTest::addColumn<QTime>("end");
    QTest::addColumn<QString>("hour");
    QTest::addColumn<QString>("time");
    QTest::addColumn<QString>("range");
    QTest::addColumn<QString>("overnight");
    const auto row = [](const char *name, bool use24, QTime start, QTime end, const char *hour, const char *time,
                        const char *range, const char *overnight) {
        QTest::newRow(name) << use24 << start << end << QString::fromUtf8(hour) << QString::fromUtf8(time)
                            << QString::fromUtf8(range) << QString::fromUtf8(overnight);
    };
    row("morning", false, QTime(9, 30), QTime(10, 45), "9 AM", "9:30 AM", "9:30 – 10:45 AM", "9:30 AM – 10:45 AM");
    row("across noon", false, QTime(11, 0), QTime(13, 30), "11 AM", "11 AM", "11 AM – 1:30 PM", "11 AM – 1:30 PM");
    row("midnight", false, QTime(0, 5), QTime(0, 50), "12 AM", "12:05 AM", "12:05 – 12:50 AM", "12:05 AM – 12:50 AM");
    row("noon", false, QTime(12, 0), QTime(12, 30), "12 PM", "12 PM", "12 – 12:30 PM", "12 PM – 12:30 PM");
    row("24-hour", true, QTime(9, 5), QTime(17, 0), "09:00", "09:05", "09:05 – 17:00", "09:05 – 17:00");
}

void TestTimelineMath::labels()
{
    QFETCH(bool, use24);
    QFETCH(QTime, start);
    QFETCH(QTime, end);
    QFETCH(QString, hour);
    QFETCH(QString, time);
    QFETCH(QString, range);
    QFETCH(QString, overnight);
    QCOMPARE(TimelineMath::hourLabel(start.hour(), use24), hour);
    QCOMPARE(TimelineMath::timeText(start, use24), time);
    QCOMPARE(TimelineMath::rangeText(start, end, use24), range);
    QCOMPARE(TimelineMath::rangeText(start, end, use24, false), overnight);
}

QTEST_APPLESS_MAIN(TestTimelineMath)
#include "tst_timelinemath.moc"
