// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/LocalDates.h"

#include <QTest>
#include <QTimeZone>

// The fast local date must agree with a full conversion to local time (the tests run in
// Europe/Berlin, with its clock changes).
class TestLocalDates : public QObject
{
    Q_OBJECT

private slots:
    void edges_data();
    void edges();
    void agreesWithLocalTimeEverywhere();
};

void TestLocalDates::edges_data()
{
    QTest::addColumn<QDateTime>("instant");
    QTest::addColumn<QDate>("date");
    const QTimeZone berlin("Europe/Berlin");
    QTest::newRow("local midnight") << QDateTime(QDate(2024, 1, 10), QTime(0, 0), berlin) << QDate(2024, 1, 10);
    QTest::newRow("a millisecond before")
        << QDateTime(QDate(2024, 1, 9), QTime(23, 59, 59, 999), berlin) << QDate(2024, 1, 9);
    QTest::newRow("utc evening is local tomorrow")
        << QDateTime(QDate(2024, 7, 1), QTime(22, 30), Qt::UTC) << QDate(2024, 7, 2);
    QTest::newRow("night the clocks go forward")
        << QDateTime(QDate(2024, 3, 31), QTime(3, 30), berlin) << QDate(2024, 3, 31);
    QTest::newRow("night the clocks go back")
        << QDateTime(QDate(2024, 10, 27), QTime(23, 30), berlin) << QDate(2024, 10, 27);
    QTest::newRow("new york evening") << QDateTime(QDate(2024, 1, 10), QTime(19, 0), QTimeZone("America/New_York"))
                                      << QDate(2024, 1, 11);
    QTest::newRow("before 1970") << QDateTime(QDate(1969, 12, 31), QTime(23, 30), berlin) << QDate(1969, 12, 31);
}

void TestLocalDates::edges()
{
    QFETCH(QDateTime, instant);
    QFETCH(QDate, date);
    QCOMPARE(LocalDates::dateOf(instant), date);
}

void TestLocalDates::agreesWithLocalTimeEverywhere()
{
    // Every 7 minutes and 13 seconds over two years, clock changes included.
    const qint64 start = QDateTime(QDate(2023, 1, 1), QTime(0, 0), Qt::UTC).toMSecsSinceEpoch();
    const qint64 step = (7 * 60 + 13) * 1000;
    for (qint64 ms = start; ms < start + 2LL * 366 * 86400 * 1000; ms += step) {
        const QDate expected = QDateTime::fromMSecsSinceEpoch(ms, Qt::LocalTime).date();
        if (LocalDates::dateOf(ms) != expected)
            QFAIL(qPrintable(QDateTime::fromMSecsSinceEpoch(ms, Qt::UTC).toString(Qt::ISODate)));
    }
}

QTEST_GUILESS_MAIN(TestLocalDates)
#include "tst_localdates.moc"
