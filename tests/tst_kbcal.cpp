// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/KbcalRunner.h"

#include <QBuffer>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QTest>

namespace {

using Result = KbcalResult;

} // namespace

class TestKbcal : public QObject
{
    Q_OBJECT

private slots:
    void usage_data();
    void usage();
    void initCreatesTheDatabase();
    void initIsIdempotent();
    void dataFolderThatCannotBeCreated();
    void fileThatIsNotADatabase();
    void endToEndProcess();
};

void TestKbcal::usage_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("outContains");
    QTest::addColumn<QString>("errStartsWith");

    QTest::newRow("help") << QStringList{"--help"} << 0 << "init"
                          << "";
    QTest::newRow("command help") << QStringList{"init", "--help"} << 0 << "Usage: kbcal [--data-dir DIR] init"
                                  << "";
    QTest::newRow("no command") << QStringList{} << 2 << ""
                                << "kbcal: missing command";
    QTest::newRow("unknown command") << QStringList{"frobnicate"} << 2 << ""
                                     << "kbcal: unknown command 'frobnicate'";
    QTest::newRow("unknown global option") << QStringList{"--colour", "init"} << 2 << ""
                                           << "kbcal: unknown option '--colour'";
    QTest::newRow("unexpected argument") << QStringList{"init", "extra"} << 2 << ""
                                         << "kbcal: unexpected argument 'extra'";
}

void TestKbcal::usage()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, status);
    QFETCH(QString, outContains);
    QFETCH(QString, errStartsWith);
    const Result result = runKbcal(arguments);
    QCOMPARE(result.status, status);
    QVERIFY2(result.out.contains(outContains), qPrintable(result.out));
    if (errStartsWith.isEmpty())
        QVERIFY(result.err.isEmpty());
    else
        QVERIFY2(result.err.startsWith(errStartsWith), qPrintable(result.err));
    if (status == 2)
        QVERIFY(result.err.contains(QStringLiteral("Usage: kbcal")));
}

void TestKbcal::initCreatesTheDatabase()
{
    QTemporaryDir dir;
    const QString folder = dir.filePath(QStringLiteral("nested/data"));
    const Result result = runKbcal({"--data-dir", folder, "init", "--json"});
    QCOMPARE(result.status, 0);
    QVERIFY(result.err.isEmpty());
    QJsonParseError error;
    const QJsonDocument doc = QJsonDocument::fromJson(result.out.toUtf8(), &error);
    QCOMPARE(error.error, QJsonParseError::NoError);
    const QJsonObject object = doc.object();
    QCOMPARE(object.size(), 2);
    QCOMPARE(object.value(QStringLiteral("database")).toString(), folder + QStringLiteral("/calendar.db"));
    QCOMPARE(object.value(QStringLiteral("schema_version")).toInt(), 9);
    QVERIFY(QFile::exists(folder + QStringLiteral("/calendar.db")));
}

void TestKbcal::initIsIdempotent()
{
    QTemporaryDir dir;
    QCOMPARE(runKbcal({"init", "--data-dir", dir.path()}).status, 0);
    const Result again = runKbcal({"init", "--data-dir=" + dir.path()});
    QCOMPARE(again.status, 0);
    QCOMPARE(again.out.trimmed(), QStringLiteral("Database ready: %1/calendar.db (schema version 9)").arg(dir.path()));
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("check"));
        db.setDatabaseName(dir.filePath(QStringLiteral("calendar.db")));
        QVERIFY(db.open());
        QSqlQuery query(db);
        QVERIFY(query.exec(QStringLiteral("SELECT COUNT(*) FROM schema_version")) && query.next());
        QCOMPARE(query.value(0).toInt(), 9);
    }
    QSqlDatabase::removeDatabase(QStringLiteral("check"));
}

void TestKbcal::dataFolderThatCannotBeCreated()
{
    QTemporaryDir dir;
    const QString blocker = dir.filePath(QStringLiteral("a-file"));
    QFile file(blocker);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.close();
    const QString folder = blocker + QStringLiteral("/data");
    const Result result = runKbcal({"--data-dir", folder, "init"});
    QCOMPARE(result.status, 1);
    QVERIFY(result.out.isEmpty());
    QCOMPARE(result.err, QStringLiteral("kbcal: cannot create the data folder %1\n").arg(folder));
}

void TestKbcal::fileThatIsNotADatabase()
{
    QTemporaryDir dir;
    const QByteArray content("BEGIN:VCALENDAR\r\nthis is somebody's file\r\n");
    {
        QFile file(dir.filePath(QStringLiteral("calendar.db")));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    const Result result = runKbcal({"--data-dir", dir.path(), "init", "--json"});
    QCOMPARE(result.status, 1);
    QVERIFY(result.out.isEmpty());
    QCOMPARE(result.err.count(QLatin1Char('\n')), 1);
    QVERIFY2(
        result.err.startsWith(QStringLiteral("kbcal: cannot prepare the calendar database in %1: ").arg(dir.path())),
        qPrintable(result.err));
}

void TestKbcal::endToEndProcess()
{
    QTemporaryDir dir;
    QProcess process;
    QProcessEnvironment env = QProcessEnvironment::systemEnvironment();
    env.insert(QStringLiteral("CALENDAR_DATA_DIR"), dir.path());
    process.setProcessEnvironment(env);
    process.start(QStringLiteral(KB_BINARY_DIR "/bin/kbcal"), {QStringLiteral("init"), QStringLiteral("--json")});
    QVERIFY(process.waitForFinished(30000));
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 0);
    QCOMPARE(process.readAllStandardError(), QByteArray());
    const QJsonDocument doc = QJsonDocument::fromJson(process.readAllStandardOutput());
    QCOMPARE(doc.object().value(QStringLiteral("schema_version")).toInt(), 9);

    // A failure prints exactly one line, even though the database layer logs its own warnings.
    QFile notes(dir.filePath(QStringLiteral("elsewhere/calendar.db")));
    QDir().mkpath(dir.filePath(QStringLiteral("elsewhere")));
    QVERIFY(notes.open(QIODevice::WriteOnly));
    notes.write("plain text");
    notes.close();
    process.start(QStringLiteral(KB_BINARY_DIR "/bin/kbcal"),
                  {QStringLiteral("--data-dir"), dir.filePath(QStringLiteral("elsewhere")), QStringLiteral("init")});
    QVERIFY(process.waitForFinished(30000));
    QCOMPARE(process.exitCode(), 1);
    QCOMPARE(process.readAllStandardOutput(), QByteArray());
    const QByteArray err = process.readAllStandardError();
    QCOMPARE(err.count('\n'), 1);
    QVERIFY(err.startsWith("kbcal: "));
}

QTEST_GUILESS_MAIN(TestKbcal)
#include "tst_kbcal.moc"
