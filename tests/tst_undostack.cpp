// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/UndoStack.h"

#include <QSignalSpy>
#include <QTest>

class TestUndoStack : public QObject
{
    Q_OBJECT

private slots:
    void keepsTheLastTwentyAndUndoesNewestFirst();
    void entryWithoutClosureIsIgnored();
    void changedComesBeforeUndone();
    void closureThatPushesAddsWithoutTheOldEntry();
};

void TestUndoStack::keepsTheLastTwentyAndUndoesNewestFirst()
{
    UndoStack stack;
    QList<int> restored;
    for (int i = 1; i <= 25; ++i)
        stack.push({QStringLiteral("Moved \"%1\"").arg(i), [&restored, i] {
                        restored.append(i);
                    }});
    QCOMPARE(stack.count(), UndoStack::kCapacity);

    QSignalSpy undone(&stack, &UndoStack::undone);
    for (int i = 0; i < 20; ++i)
        stack.undo();
    QCOMPARE(stack.count(), 0);
    QList<int> expected;
    for (int i = 25; i >= 6; --i)
        expected.append(i);
    QCOMPARE(restored, expected); // the five oldest were dropped unrun
    QCOMPARE(undone.first().first().toString(), QStringLiteral("Moved \"25\""));
    QCOMPARE(undone.last().first().toString(), QStringLiteral("Moved \"6\""));

    QSignalSpy changed(&stack, &UndoStack::changed);
    stack.undo(); // the 21st: nothing left, nothing emitted
    QCOMPARE(changed.count(), 0);
    QCOMPARE(undone.count(), 20);
    QCOMPARE(restored.size(), 20);
}

void TestUndoStack::entryWithoutClosureIsIgnored()
{
    UndoStack stack;
    QSignalSpy changed(&stack, &UndoStack::changed);
    stack.push({QStringLiteral("Deleted \"x\""), {}});
    QCOMPARE(stack.count(), 0);
    QCOMPARE(changed.count(), 0);
}

void TestUndoStack::changedComesBeforeUndone()
{
    UndoStack stack;
    QStringList order;
    connect(&stack, &UndoStack::changed, this, [&] { order.append(QStringLiteral("changed")); });
    connect(&stack, &UndoStack::undone, this, [&](const QString &s) { order.append(s); });
    stack.push({QStringLiteral("Resized \"Standup\""), [&] {
                    order.append(QStringLiteral("closure"));
                }});
    order.clear();
    stack.undo();
    QCOMPARE(order, (QStringList{"closure", "changed", "Resized \"Standup\""}));
}

void TestUndoStack::closureThatPushesAddsWithoutTheOldEntry()
{
    UndoStack stack;
    stack.push({QStringLiteral("first"), [] {
                }});
    stack.push({QStringLiteral("second"), [&stack] {
                    stack.push({QStringLiteral("pushed by undo"), [] {
                                }});
                }});
    QSignalSpy undone(&stack, &UndoStack::undone);
    stack.undo();
    QCOMPARE(stack.count(), 2);
    stack.undo();
    QCOMPARE(undone.last().first().toString(), QStringLiteral("pushed by undo"));
    stack.undo();
    QCOMPARE(undone.last().first().toString(), QStringLiteral("first"));
}

QTEST_GUILESS_MAIN(TestUndoStack)
#include "tst_undostack.moc"
