// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/Clock.h"
#include "storage/Event.h"
#include "storage/StorageFormat.h"
#include "storage/Task.h"
#include "storage/Template.h"

#include <QRegularExpression>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTest>
#include <QTimeZone>

using namespace StorageFormat;

// The conventions by which record fields are written to their columns and read back.
class TestStorageFormat : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void dateTimeRoundTripThroughColumn_data();
    void dateTimeRoundTripThroughColumn();
    void optionalDateTime();
    void booleans();
    void stringLists_data();
    void stringLists();
    void intLists();
    void newIdsAreBracelessUuids();
    void clockCanBePinned();
    void readingMatchesTheGeneralParser_data();
    void readingMatchesTheGeneralParser();

private:
    QSqlDatabase m_db;
};

void TestStorageFormat::initTestCase()
{
    m_db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("format"));
    m_db.setDatabaseName(QStringLiteral(":memory:"));
    QVERIFY(m_db.open());
    QSqlQuery(m_db).exec(QStringLiteral("CREATE TABLE t (v TEXT, b INTEGER)"));
}

void TestStorageFormat::cleanupTestCase()
{
    m_db.close();
    m_db = QSqlDatabase();
    QSqlDatabase::removeDatabase(QStringLiteral("format"));
}

void TestStorageFormat::dateTimeRoundTripThroughColumn_data()
{
    QTest::addColumn<QDateTime>("value");
    QTest::addColumn<QString>("text");
    const QDate d(2025, 3, 14);
    QTest::newRow("utc") << QDateTime(d, QTime(9, 30), Qt::UTC) << "2025-03-14T09:30:00Z";
    QTest::newRow("zone winter") << QDateTime(d, QTime(10, 30), QTimeZone("Europe/Berlin"))
                                 << "2025-03-14T10:30:00+01:00";
    QTest::newRow("offset") << QDateTime(d, QTime(10, 30), QTimeZone(-5 * 3600)) << "2025-03-14T10:30:00-05:00";
    QTest::newRow("floating local") << QDateTime(d, QTime(10, 30)) << "2025-03-14T10:30:00";
    QTest::newRow("milliseconds dropped") << QDateTime(d, QTime(9, 30, 5, 999), Qt::UTC) << "2025-03-14T09:30:05Z";
    QTest::newRow("invalid") << QDateTime() << "";
}

void TestStorageFormat::dateTimeRoundTripThroughColumn()
{
    QFETCH(QDateTime, value);
    QFETCH(QString, text);
    QSqlQuery(m_db).exec(QStringLiteral("DELETE FROM t"));
    QSqlQuery insert(m_db);
    insert.prepare(QStringLiteral("INSERT INTO t (v) VALUES (?)"));
    insert.addBindValue(dateTimeValue(value));
    QVERIFY(insert.exec());
    QSqlQuery read(m_db);
    QVERIFY(read.exec(QStringLiteral("SELECT v FROM t")) && read.next());
    QCOMPARE(read.value(0).toString(), text);
    const QDateTime back = parseDateTime(read.value(0).toString());
    QCOMPARE(back.isValid(), value.isValid());
    if (value.isValid()) {
        // Same instant, seconds precision.
        QCOMPARE(back.toSecsSinceEpoch(), value.toSecsSinceEpoch());
        QCOMPARE(back.offsetFromUtc(), value.offsetFromUtc());
    }
}

void TestStorageFormat::optionalDateTime()
{
    QCOMPARE(parseOptionalDateTime(QVariant(QMetaType::fromType<QString>())), std::nullopt);
    QCOMPARE(parseOptionalDateTime(QVariant(QString())), std::nullopt);
    QCOMPARE(parseOptionalDateTime(QVariant(QStringLiteral(""))), std::nullopt);
    const auto present = parseOptionalDateTime(QVariant(QStringLiteral("2024-01-05T09:00:00Z")));
    QVERIFY(present.has_value());
    QCOMPARE(*present, QDateTime(QDate(2024, 1, 5), QTime(9, 0), Qt::UTC));

    // An absent value is stored as SQL NULL, not as empty text or an epoch value.
    QSqlQuery(m_db).exec(QStringLiteral("DELETE FROM t"));
    QSqlQuery insert(m_db);
    insert.prepare(QStringLiteral("INSERT INTO t (v) VALUES (?)"));
    insert.addBindValue(dateTimeValue(std::optional<QDateTime>()));
    QVERIFY(insert.exec());
    QSqlQuery read(m_db);
    QVERIFY(read.exec(QStringLiteral("SELECT v IS NULL, v FROM t")) && read.next());
    QCOMPARE(read.value(0).toInt(), 1);
    QCOMPARE(parseOptionalDateTime(read.value(1)), std::nullopt);
}

void TestStorageFormat::booleans()
{
    QCOMPARE(boolValue(true), 1);
    QCOMPARE(boolValue(false), 0);
    QSqlQuery(m_db).exec(QStringLiteral("DELETE FROM t"));
    QSqlQuery(m_db).exec(QStringLiteral("INSERT INTO t (b) VALUES (0), (1), (2), (-1), (NULL)"));
    QSqlQuery read(m_db);
    QVERIFY(read.exec(QStringLiteral("SELECT b FROM t ORDER BY rowid")));
    QList<bool> values;
    while (read.next())
        values.append(readBool(read.value(0)));
    QCOMPARE(values, (QList<bool>{false, true, true, true, false}));
}

void TestStorageFormat::stringLists_data()
{
    QTest::addColumn<QStringList>("items");
    QTest::addColumn<QString>("json");
    QTest::newRow("two") << QStringList{"a", "b"} << R"(["a","b"])";
    QTest::newRow("empty") << QStringList{} << "[]";
    QTest::newRow("quotes and unicode") << QStringList{"say \"hi\"", "Café"} << R"(["say \"hi\"","Café"])";
}

void TestStorageFormat::stringLists()
{
    QFETCH(QStringList, items);
    QFETCH(QString, json);
    QCOMPARE(stringListJson(items), json);
    QCOMPARE(parseStringListJson(json), items);
}

void TestStorageFormat::intLists()
{
    QCOMPARE(intListJson({10, 60}), QStringLiteral("[10,60]"));
    QCOMPARE(intListJson({}), QStringLiteral("[]"));
    QCOMPARE(parseIntListJson(QStringLiteral("[15,60]")), (QList<qint32>{15, 60}));
    QCOMPARE(parseIntListJson(QStringLiteral("not json")), QList<qint32>{});
    QCOMPARE(parseIntListJson(QStringLiteral("[1,\"2\",null,3]")), (QList<qint32>{1, 3}));
    QCOMPARE(parseStringListJson(QStringLiteral("{\"a\":1}")), QStringList{});
    QCOMPARE(parseStringListJson(QStringLiteral("[\"a\",3,\"b\"]")), (QStringList{"a", "", "b"}));
}

void TestStorageFormat::newIdsAreBracelessUuids()
{
    static const QRegularExpression form(
        QStringLiteral("^[0-9a-f]{8}-[0-9a-f]{4}-[0-9a-f]{4}-[0-9a-f]{4}-[0-9a-f]{12}$"));
    const QString a = newId();
    const QString b = newId();
    QVERIFY2(form.match(a).hasMatch(), qPrintable(a));
    QVERIFY(a != b);
}

void TestStorageFormat::clockCanBePinned()
{
    const QDateTime pinned(QDate(2024, 1, 5), QTime(9, 0), Qt::UTC);
    Clock::setFixedNow(pinned);
    QCOMPARE(Clock::nowUtc(), pinned);
    QCOMPARE(Clock::nowUtc().timeSpec(), Qt::UTC);
    QCOMPARE(Clock::nowLocal().toUTC(), pinned);
    Clock::setFixedNow(QDateTime());
    QVERIFY(qAbs(Clock::nowUtc().secsTo(QDateTime::currentDateTimeUtc())) < 5);
    QCOMPARE(Clock::nowUtc().time().msec(), 0);
}

void TestStorageFormat::readingMatchesTheGeneralParser_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("utc") << "2025-03-14T09:30:00Z";
    QTest::newRow("east of utc") << "2025-03-14T10:30:00+01:00";
    QTest::newRow("half-hour offset") << "2025-07-01T10:30:00+05:30";
    QTest::newRow("floating") << "2025-03-14T10:30:00";
    QTest::newRow("floating in the spring gap") << "2025-03-30T02:30:00";
    QTest::newRow("no leap day") << "2025-02-29T10:00:00Z";
    QTest::newRow("hour 24") << "2025-03-14T24:00:00Z";
    QTest::newRow("fraction") << "2025-03-14T09:30:00.250Z";
    QTest::newRow("offset hour 24") << "2025-03-14T10:30:00+24:00";
    QTest::newRow("offset without colon") << "2025-03-14T10:30:00+0100";
    QTest::newRow("date only") << "2025-03-14";
    QTest::newRow("minutes only") << "2025-03-14T09:30Z";
    QTest::newRow("sqlite default") << "2025-03-14 09:30:00";
}

void TestStorageFormat::readingMatchesTheGeneralParser()
{
    QFETCH(QString, text);
    QDateTime expected = QDateTime::fromString(text, Qt::ISODate);
    if (text.size() == 19 && text.at(10) == QLatin1Char(' '))
        expected.setTimeZone(QTimeZone::utc());
    const QDateTime value = parseDateTime(text);
    QCOMPARE(value.isValid(), expected.isValid());
    if (!expected.isValid())
        return;
    QCOMPARE(value, expected);
    QCOMPARE(value.timeSpec(), expected.timeSpec());
    QCOMPARE(value.offsetFromUtc(), expected.offsetFromUtc());
    QCOMPARE(value.toString(Qt::ISODateWithMs), expected.toString(Qt::ISODateWithMs));
}

QTEST_GUILESS_MAIN(TestStorageFormat)
#include "tst_storageformat.moc"
