// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/SingleInstance.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLocalSocket>
#include <QProcess>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

namespace {

QJsonObject message(const QStringList &arguments)
{
    const QByteArray bytes = SingleInstance::commandFromArguments(QStringList{QStringLiteral("calendar")} + arguments);
    if (!bytes.endsWith('\n'))
        return QJsonObject{{QStringLiteral("error"), QStringLiteral("no line feed")}};
    return QJsonDocument::fromJson(bytes).object();
}

// Records every signal of the guard as one line, in order.
struct Recorder
{
    explicit Recorder(SingleInstance &guard)
    {
        QObject::connect(&guard, &SingleInstance::focusRequested, [this] { lines.append(QStringLiteral("focus")); });
        QObject::connect(&guard, &SingleInstance::showTodayRequested,
                         [this] { lines.append(QStringLiteral("show-today")); });
        QObject::connect(&guard, &SingleInstance::newEventRequested,
                         [this] { lines.append(QStringLiteral("new-event")); });
        QObject::connect(&guard, &SingleInstance::quickAddRequested,
                         [this](const QString &text) { lines.append(QStringLiteral("quick-add:") + text); });
        QObject::connect(&guard, &SingleInstance::openIcsRequested,
                         [this](const QString &path) { lines.append(QStringLiteral("open-ics:") + path); });
    }
    QStringList lines;
};

} // namespace

class TestSingleInstance : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void commandFromArguments_data();
    void commandFromArguments();
    void bareIcsPathNeedsAnExistingFile();
    void dispatch_data();
    void dispatch();
    void serverNameCarriesTheInstance();
    void messagesOverTheSocket();
    void oversizedMessageMeansFocus();
    void secondProcessForwardsToAFrozenFirst();

private:
    QTemporaryDir m_dir;
};

void TestSingleInstance::initTestCase()
{
    // A name of its own, so that a running calendar on this machine is never involved.
    qputenv("CALENDAR_INSTANCE", QByteArray("test-") + QByteArray::number(QCoreApplication::applicationPid()));
    qputenv("CALENDAR_DATA_DIR", m_dir.filePath(QStringLiteral("data")).toUtf8());
}

void TestSingleInstance::commandFromArguments_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("json");

    QTest::newRow("no arguments") << QStringList{} << R"({"cmd":"focus"})";
    QTest::newRow("show today") << QStringList{"--show-today"} << R"({"cmd":"show-today"})";
    QTest::newRow("later command wins") << QStringList{"--new-event", "--show-today"} << R"({"cmd":"show-today"})";
    QTest::newRow("quick-add next argument")
        << QStringList{"--quick-add", "lunch tomorrow 1pm"} << R"({"cmd":"quick-add","text":"lunch tomorrow 1pm"})";
    QTest::newRow("quick-add consumes what follows")
        << QStringList{"--quick-add", "--show-today"} << R"({"cmd":"quick-add","text":"--show-today"})";
    QTest::newRow("quick-add equals") << QStringList{"--quick-add=Dentist at 9"}
                                      << R"({"cmd":"quick-add","text":"Dentist at 9"})";
    QTest::newRow("quick-add equals empty") << QStringList{"--quick-add="} << R"({"cmd":"quick-add","text":""})";
    QTest::newRow("quick-add prefix is case-sensitive") << QStringList{"--QUICK-ADD=x"} << R"({"cmd":"focus"})";
    QTest::newRow("quick-add last is ignored") << QStringList{"--quick-add"} << R"({"cmd":"focus"})";
    QTest::newRow("ics last is ignored") << QStringList{"--show-today", "--ics"} << R"({"cmd":"show-today"})";
    QTest::newRow("ics with path, file need not exist")
        << QStringList{"--ics", "missing.ics"} << R"({"cmd":"open-ics","path":"missing.ics"})";
    QTest::newRow("earlier text stays") << QStringList{"--quick-add", "foo", "--ics", "a.ics"}
                                        << R"({"cmd":"open-ics","path":"a.ics","text":"foo"})";
    QTest::newRow("background with quick-add")
        << QStringList{"--background", "--quick-add", "Call Sam"} << R"({"cmd":"quick-add","text":"Call Sam"})";
    QTest::newRow("unknown arguments ignored") << QStringList{"--frobnicate", "hello"} << R"({"cmd":"focus"})";
    QTest::newRow("missing bare ics ignored") << QStringList{"nowhere/Invite.ics"} << R"({"cmd":"focus"})";
}

void TestSingleInstance::commandFromArguments()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, json);
    const QByteArray bytes = SingleInstance::commandFromArguments(QStringList{QStringLiteral("calendar")} + arguments);
    QCOMPARE(QString::fromUtf8(bytes), json + QLatin1Char('\n'));
}

void TestSingleInstance::bareIcsPathNeedsAnExistingFile()
{
    const QString path = m_dir.filePath(QStringLiteral("Invite.ICS"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("BEGIN:VCALENDAR\r\nEND:VCALENDAR\r\n");
    file.close();
    QCOMPARE(message({path}), (QJsonObject{{"cmd", "open-ics"}, {"path", path}}));

    // A relative path is forwarded as it was typed.
    const QString previous = QDir::currentPath();
    QDir::setCurrent(m_dir.path());
    const QJsonObject relative = message({QStringLiteral("Invite.ICS")});
    QDir::setCurrent(previous);
    QCOMPARE(relative, (QJsonObject{{"cmd", "open-ics"}, {"path", "Invite.ICS"}}));

    // A folder that merely ends in .ics is not a file.
    QVERIFY(QDir(m_dir.path()).mkdir(QStringLiteral("folder.ics")));
    QCOMPARE(message({m_dir.filePath(QStringLiteral("folder.ics"))}), (QJsonObject{{"cmd", "focus"}}));
}

void TestSingleInstance::dispatch_data()
{
    QTest::addColumn<QByteArray>("line");
    QTest::addColumn<QString>("signal");

    QTest::newRow("show today, with its line feed") << QByteArray("{\"cmd\":\"show-today\"}\n") << "show-today";
    QTest::newRow("new event") << QByteArray(R"({"cmd":"new-event"})") << "new-event";
    QTest::newRow("quick-add") << QByteArray(R"({"cmd":"quick-add","text":"Lunch at 12"})") << "quick-add:Lunch at 12";
    QTest::newRow("quick-add without text") << QByteArray(R"({"cmd":"quick-add"})") << "quick-add:";
    QTest::newRow("open-ics reads only path")
        << QByteArray(R"({"cmd":"open-ics","path":"a.ics","text":"foo"})") << "open-ics:a.ics";
    QTest::newRow("unknown command") << QByteArray(R"({"cmd":"reboot"})") << "focus";
    QTest::newRow("no cmd") << QByteArray(R"({"text":"x"})") << "focus";
    QTest::newRow("not json") << QByteArray("hello\n") << "focus";
    QTest::newRow("binary") << QByteArray("\x00\xff\xfe{", 4) << "focus";
}

void TestSingleInstance::dispatch()
{
    QFETCH(QByteArray, line);
    QFETCH(QString, signal);
    SingleInstance guard;
    Recorder recorder(guard);
    guard.dispatchCommand(line);
    QCOMPARE(recorder.lines, QStringList{signal});
}

void TestSingleInstance::serverNameCarriesTheInstance()
{
    const QString name = SingleInstance::serverName();
    QVERIFY(name.startsWith(QStringLiteral("kettlebrook-calendar-")));
    QVERIFY(name.endsWith(QStringLiteral("-test-") + QString::number(QCoreApplication::applicationPid())));
    qputenv("CALENDAR_INSTANCE", "dev");
    QVERIFY(SingleInstance::serverName().endsWith(QStringLiteral("-dev")));
    initTestCase();
}

void TestSingleInstance::messagesOverTheSocket()
{
    SingleInstance first;
    QVERIFY(!first.forwardToRunningInstance({QStringLiteral("calendar")}));
    QVERIFY(first.isListening());
    Recorder recorder(first);

    // Several messages on one connection, the last split in two writes.
    QLocalSocket socket;
    socket.connectToServer(SingleInstance::serverName());
    QVERIFY(socket.waitForConnected(1000));
    socket.write("{\"cmd\":\"show-today\"}\n{\"cmd\":\"quick-add\",\"text\":\"A\"}\n{\"cmd\":\"new-");
    socket.flush();
    QTRY_COMPARE(recorder.lines.size(), 2);
    socket.write("event\"}\n");
    socket.flush();
    QTRY_COMPARE(recorder.lines, (QStringList{"show-today", "quick-add:A", "new-event"}));
}

void TestSingleInstance::oversizedMessageMeansFocus()
{
    SingleInstance first;
    QVERIFY(!first.forwardToRunningInstance({QStringLiteral("calendar")}));
    Recorder recorder(first);
    QLocalSocket socket;
    socket.connectToServer(SingleInstance::serverName());
    QVERIFY(socket.waitForConnected(1000));
    socket.write(QByteArray(SingleInstance::kMaxMessageBytes + 100, 'x'));
    socket.flush();
    QTRY_COMPARE(recorder.lines, QStringList{"focus"});
    QTRY_COMPARE(socket.state(), QLocalSocket::UnconnectedState);

    // The guard keeps serving after the bad connection.
    QLocalSocket next;
    next.connectToServer(SingleInstance::serverName());
    QVERIFY(next.waitForConnected(1000));
    next.write("{\"cmd\":\"new-event\"}\n");
    next.flush();
    QTRY_COMPARE(recorder.lines, (QStringList{"focus", "new-event"}));
}

void TestSingleInstance::secondProcessForwardsToAFrozenFirst()
{
    SingleInstance first;
    QVERIFY(!first.forwardToRunningInstance({QStringLiteral("calendar")}));
    Recorder recorder(first);

    // This process runs no event loop while the second one runs: the first instance is "frozen".
    QProcess second;
    QElapsedTimer clock;
    clock.start();
    second.start(QStringLiteral(KB_BINARY_DIR "/bin/kettlebrook-calendar"),
                 {QStringLiteral("--quick-add"), QStringLiteral("Lunch with Sam tomorrow at 12:30")});
    QVERIFY(second.waitForFinished(10000));
    const qint64 elapsed = clock.elapsed();
    QCOMPARE(second.exitStatus(), QProcess::NormalExit);
    QCOMPARE(second.exitCode(), 0);
    QVERIFY2(elapsed < 5000, qPrintable(QString::number(elapsed)));
    QVERIFY(recorder.lines.isEmpty());
    // Once it recovers, the command runs.
    QTRY_COMPARE(recorder.lines, QStringList{"quick-add:Lunch with Sam tomorrow at 12:30"});
    // The forwarding process never opened the database.
    QVERIFY(!QFile::exists(m_dir.filePath(QStringLiteral("data/calendar.db"))));
}

QTEST_GUILESS_MAIN(TestSingleInstance)
#include "tst_singleinstance.moc"
