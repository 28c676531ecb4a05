// SPDX-License-Identifier: GPL-3.0-or-later
#include "ical/ICal.h"
#include "ical/Recurrence.h"

#include <QDir>
#include <QFile>
#include <QTest>

using namespace Qt::StringLiterals;

// Golden cases of recurrence expansion: each NAME.ics in tests/data/recurrence is read with the
// iCalendar reader and expanded; its NAME.expected lists the span and the starts that must come
// out, in order. A new case is two new files.
//
// NAME.expected: lines starting with "#" are comments, blank lines are ignored; the line
// "span START END" gives the span [START, END); every other line is the start of one occurrence in
// the result, as ISO 8601 (compared in UTC).
class TestRecurrenceCorpus : public QObject
{
    Q_OBJECT

private slots:
    void everyCaseHasBothFiles();
    void corpus_data();
    void corpus();
};

namespace {

QDir corpusDir()
{
    return QDir(QStringLiteral(KB_TEST_DATA_DIR "/recurrence"));
}

QByteArray readAll(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QByteArray();
    return file.readAll();
}

} // namespace

void TestRecurrenceCorpus::everyCaseHasBothFiles()
{
    const QDir dir = corpusDir();
    const QStringList ics = dir.entryList({u"*.ics"_s}, QDir::Files, QDir::Name);
    const QStringList expected = dir.entryList({u"*.expected"_s}, QDir::Files, QDir::Name);
    QVERIFY(!ics.isEmpty());
    QStringList icsNames;
    for (const QString &name : ics)
        icsNames.append(QFileInfo(name).completeBaseName());
    QStringList expectedNames;
    for (const QString &name : expected)
        expectedNames.append(QFileInfo(name).completeBaseName());
    QCOMPARE(icsNames, expectedNames);
}

void TestRecurrenceCorpus::corpus_data()
{
    QTest::addColumn<QString>("icsPath");
    QTest::addColumn<QString>("expectedPath");
    const QDir dir = corpusDir();
    const QStringList cases = dir.entryList({u"*.ics"_s}, QDir::Files, QDir::Name);
    for (const QString &name : cases) {
        const QString base = QFileInfo(name).completeBaseName();
        QTest::newRow(qPrintable(base)) << dir.filePath(name) << dir.filePath(base + u".expected");
    }
}

void TestRecurrenceCorpus::corpus()
{
    QFETCH(QString, icsPath);
    QFETCH(QString, expectedPath);

    const QByteArray expectedText = readAll(expectedPath);
    QVERIFY2(!expectedText.isEmpty(), qPrintable(expectedPath));
    QDateTime rangeStart;
    QDateTime rangeEnd;
    QStringList expected;
    const QList<QByteArray> lines = expectedText.split('\n');
    for (const QByteArray &raw : lines) {
        const QString line = QString::fromUtf8(raw).trimmed();
        if (line.isEmpty() || line.startsWith(u'#'))
            continue;
        if (line.startsWith(u"span ")) {
            const QStringList parts = line.split(u' ', Qt::SkipEmptyParts);
            QCOMPARE(parts.size(), 3);
            rangeStart = QDateTime::fromString(parts.at(1), Qt::ISODate);
            rangeEnd = QDateTime::fromString(parts.at(2), Qt::ISODate);
            continue;
        }
        const QDateTime start = QDateTime::fromString(line, Qt::ISODate);
        QVERIFY2(start.isValid(), qPrintable(line));
        expected.append(start.toUTC().toString(Qt::ISODate));
    }
    QVERIFY2(rangeStart.isValid() && rangeEnd.isValid(), "no span line");

    const QList<Event> events = ICal::parseEvents(QByteArrayView(readAll(icsPath)));
    QVERIFY(!events.isEmpty());
    QStringList starts;
    for (const Event &occurrence : Recurrence::expandEvents(events, rangeStart, rangeEnd))
        starts.append(occurrence.start_time.toUTC().toString(Qt::ISODate));
    QCOMPARE(starts, expected);
}

QTEST_GUILESS_MAIN(TestRecurrenceCorpus)
#include "tst_recurrencecorpus.moc"
