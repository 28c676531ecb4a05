// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/EventLayout.h"

#include <QTest>

using namespace EventLayout;

Q_DECLARE_METATYPE(QList<TimedItem>)
Q_DECLARE_METATYPE(QList<DayRangeItem>)

namespace {

// "column/columns/span" per item, for compact expectations.
QStringList describe(const QList<TimedPlacement> &placements)
{
    QStringList out;
    for (const TimedPlacement &p : placements)
        out.append(QStringLiteral("%1/%2/%3").arg(p.column).arg(p.columns).arg(p.span));
    return out;
}

} // namespace

class TestEventLayout : public QObject
{
    Q_OBJECT

private slots:
    void timed_data();
    void timed();
    void timedNeverOverlapsInOneColumn();
    void lanes_data();
    void lanes();
};

void TestEventLayout::timed_data()
{
    QTest::addColumn<QList<TimedItem>>("items");
    QTest::addColumn<int>("minimum");
    QTest::addColumn<QStringList>("expected");

    QTest::newRow("alone") << QList<TimedItem>{{540, 600}} << 0 << QStringList{"0/1/1"};
    QTest::newRow("back to back share a column")
        << QList<TimedItem>{{540, 600}, {600, 660}} << 0 << QStringList{"0/1/1", "0/1/1"};
    QTest::newRow("two overlapping") << QList<TimedItem>{{540, 660}, {600, 720}} << 0 << QStringList{"0/2/1", "1/2/1"};
    QTest::newRow("same start: longer first")
        << QList<TimedItem>{{540, 570}, {540, 660}} << 0 << QStringList{"1/2/1", "0/2/1"};
    QTest::newRow("chain makes one cluster, third reuses the first column")
        << QList<TimedItem>{{540, 600}, {570, 660}, {620, 700}} << 0 << QStringList{"0/2/1", "1/2/1", "0/2/1"};
    QTest::newRow("item spreads over free columns") << QList<TimedItem>{{540, 720}, {540, 600}, {540, 600}, {660, 700}}
                                                    << 0 << QStringList{"0/3/1", "1/3/1", "2/3/1", "1/3/2"};
    QTest::newRow("separate clusters keep their own columns")
        << QList<TimedItem>{{540, 600}, {550, 610}, {800, 860}} << 0 << QStringList{"0/2/1", "1/2/1", "0/1/1"};
    QTest::newRow("minimum height makes short items overlap")
        << QList<TimedItem>{{540, 545}, {550, 560}} << 30 << QStringList{"0/2/1", "1/2/1"};
    QTest::newRow("zero-length items still get a column")
        << QList<TimedItem>{{540, 540}, {540, 540}} << 0 << QStringList{"0/2/1", "1/2/1"};
}

void TestEventLayout::timed()
{
    QFETCH(QList<TimedItem>, items);
    QFETCH(int, minimum);
    QFETCH(QStringList, expected);
    QCOMPARE(describe(layoutTimed(items, minimum)), expected);
}

void TestEventLayout::timedNeverOverlapsInOneColumn()
{
    // A busy pseudo-random day: no two overlapping items may share a column, and no widened item
    // may cover a column where an overlapping item sits.
    QList<TimedItem> items;
    quint32 seed = 12345;
    const auto next = [&seed](int range) {
        seed = seed * 1103515245u + 12345u;
        return int((seed >> 16) % quint32(range));
    };
    for (int i = 0; i < 60; ++i) {
        const int start = next(20) * 60 + next(4) * 15;
        items.append({start, start + 15 + next(12) * 15});
    }
    const QList<TimedPlacement> placements = layoutTimed(items);
    for (qsizetype a = 0; a < items.size(); ++a) {
        for (qsizetype b = a + 1; b < items.size(); ++b) {
            const bool overlap = items[a].start < items[b].end && items[b].start < items[a].end;
            if (!overlap)
                continue;
            QCOMPARE(placements[a].columns, placements[b].columns);
            const int aFirst = placements[a].column, aLast = aFirst + placements[a].span - 1;
            const int bFirst = placements[b].column, bLast = bFirst + placements[b].span - 1;
            QVERIFY2(aLast < bFirst || bLast < aFirst, qPrintable(QStringLiteral("%1 and %2").arg(a).arg(b)));
        }
    }
}

void TestEventLayout::lanes_data()
{
    QTest::addColumn<QList<DayRangeItem>>("items");
    QTest::addColumn<QList<int>>("expected");
    QTest::newRow("disjoint share a lane") << QList<DayRangeItem>{{0, 1}, {2, 3}} << QList<int>{0, 0};
    QTest::newRow("same day stacks") << QList<DayRangeItem>{{2, 2}, {2, 2}, {2, 2}} << QList<int>{0, 1, 2};
    QTest::newRow("longer first on the same day") << QList<DayRangeItem>{{1, 1}, {1, 4}} << QList<int>{1, 0};
    QTest::newRow("gap reused") << QList<DayRangeItem>{{0, 6}, {0, 1}, {3, 4}, {2, 2}} << QList<int>{0, 1, 1, 1};
    QTest::newRow("touching days conflict") << QList<DayRangeItem>{{0, 2}, {2, 4}} << QList<int>{0, 1};
}

void TestEventLayout::lanes()
{
    QFETCH(QList<DayRangeItem>, items);
    QFETCH(QList<int>, expected);
    QCOMPARE(packLanes(items), expected);
}

QTEST_GUILESS_MAIN(TestEventLayout)
#include "tst_eventlayout.moc"
