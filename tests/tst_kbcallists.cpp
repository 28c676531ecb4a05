// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/AccountRepository.h"
#include "storage/CalendarRepository.h"
#include "storage/Clock.h"
#include "storage/Database.h"

#include "support/KbcalRunner.h"

#include <QBuffer>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>
#include <QTimeZone>

namespace {

using Result = KbcalResult;

QJsonArray jsonArray(const Result &result)
{
    QJsonParseError error;
    const QJsonDocument doc = QJsonDocument::fromJson(result.out.toUtf8(), &error);
    if (error.error != QJsonParseError::NoError || !doc.isArray())
        return QJsonArray();
    return doc.array();
}

QStringList ids(const QJsonArray &records)
{
    QStringList list;
    for (const QJsonValue &record : records)
        list.append(record.toObject().value(QStringLiteral("id")).toString());
    return list;
}

} // namespace

// kbcal calendars and kbcal accounts, run in-process over a small store.
class TestKbcalLists : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void emptyStore_data();
    void emptyStore();
    void calendarsAsJson();
    void calendarsAsText();
    void accountsAsJson();
    void accountsAsText();

private:
    void fill();

    std::unique_ptr<QTemporaryDir> m_dir;
};

void TestKbcalLists::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    QVERIFY(m_dir->isValid());
}

void TestKbcalLists::cleanup()
{
    m_dir.reset();
    Clock::setFixedNow(QDateTime());
}

void TestKbcalLists::fill()
{
    Clock::setFixedNow(QDateTime(QDate(2024, 3, 14), QTime(9, 30), QTimeZone::utc()));
    Database database;
    QVERIFY(database.open(m_dir->filePath(QStringLiteral("calendar.db"))));
    database.migrate();
    AccountRepository accounts(&database);
    CalendarRepository calendars(&database);

    Account local;
    local.id = QStringLiteral("local");
    local.name = QStringLiteral("On this device");
    local.type = QStringLiteral("kettlebrook");
    QVERIFY(accounts.insert(local));
    Account dav;
    dav.id = QStringLiteral("dav");
    dav.name = QStringLiteral("Fastmail");
    dav.type = QStringLiteral("caldav");
    dav.server_url = QStringLiteral("https://caldav.fastmail.com");
    dav.username = QStringLiteral("sam@example.org");
    dav.enabled = false;
    dav.last_sync_error = QStringLiteral("HTTP 401");
    QVERIFY(accounts.insert(dav));
    Account gone;
    gone.id = QStringLiteral("gone");
    gone.name = QStringLiteral("Old server");
    gone.type = QStringLiteral("caldav");
    QVERIFY(accounts.insert(gone));
    QVERIFY(accounts.remove(QStringLiteral("gone")));
    QVERIFY(accounts.reorder({QStringLiteral("local"), QStringLiteral("dav")}));

    const auto calendar = [](const QString &id, const QString &account, const QString &name) {
        Calendar c;
        c.id = id;
        c.account_id = account;
        c.name = name;
        c.url = QStringLiteral("local://calendar/") + id;
        return c;
    };
    Calendar personal = calendar(QStringLiteral("personal"), QStringLiteral("local"), QStringLiteral("Personal"));
    personal.is_default = true;
    QVERIFY(calendars.insert(personal));
    Calendar holidays = calendar(QStringLiteral("holidays"), QStringLiteral("dav"), QStringLiteral("Holidays"));
    holidays.is_read_only = true;
    holidays.is_visible = false;
    holidays.color = QStringLiteral("#00AA00");
    QVERIFY(calendars.insert(holidays));
    Calendar archive = calendar(QStringLiteral("archive"), QStringLiteral("gone"), QStringLiteral("Archive"));
    archive.sort_order = 5;
    QVERIFY(calendars.insert(archive));
}

void TestKbcalLists::emptyStore_data()
{
    QTest::addColumn<QString>("command");
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("id");
    // A new store holds what every start seeds while signed out: the on-device calendar.
    QTest::newRow("calendars") << "calendars"
                               << "NAME      ID                            ACCOUNT         COLOUR   STATE\n"
                                  "Personal  kettlebrook-personal-default  On This Device  #4285F4\n"
                               << "kettlebrook-personal-default";
    QTest::newRow("accounts") << "accounts"
                              << "NAME            ID                      TYPE         SERVER  USER  STATE\n"
                                 "On This Device  personal-local-account  kettlebrook                enabled\n"
                              << "personal-local-account";
}

void TestKbcalLists::emptyStore()
{
    QFETCH(QString, command);
    QFETCH(QString, text);
    const Result asText = runKbcal({QStringLiteral("--data-dir"), m_dir->path(), command});
    QCOMPARE(asText.status, 0);
    QCOMPARE(asText.out, text);
    QVERIFY(asText.err.isEmpty());
    const Result asJson = runKbcal({QStringLiteral("--data-dir"), m_dir->path(), command, QStringLiteral("--json")});
    QCOMPARE(asJson.status, 0);
    const QJsonDocument doc = QJsonDocument::fromJson(asJson.out.toUtf8());
    QVERIFY(doc.isArray());
    QCOMPARE(doc.array().size(), 1);
    QTEST(doc.array().first().toObject().value(QStringLiteral("id")).toString(), "id");
}

void TestKbcalLists::calendarsAsJson()
{
    fill();
    const Result result = runKbcal(
        {QStringLiteral("--data-dir"), m_dir->path(), QStringLiteral("calendars"), QStringLiteral("--json")});
    QCOMPARE(result.status, 0);
    QVERIFY(result.err.isEmpty());
    const QJsonArray records = jsonArray(result);
    QCOMPARE(ids(records), (QStringList{"holidays", "personal", "archive"}));
    const QJsonObject holidays = records.at(0).toObject();
    QCOMPARE(holidays.size(), 22);
    QCOMPARE(records.at(1).toObject().value(QStringLiteral("is_default")), QJsonValue(true));
    QCOMPARE(records.at(2).toObject().value(QStringLiteral("sort_order")).toInt(), 5);
}

void TestKbcalLists::calendarsAsText()
{
    fill();
    const Result result = runKbcal({QStringLiteral("--data-dir"), m_dir->path(), QStringLiteral("calendars")});
    QCOMPARE(result.status, 0);
    QCOMPARE(result.out,
             QStringLiteral("NAME      ID        ACCOUNT         COLOUR   STATE\n"
                            "Holidays  holidays  Fastmail        #00AA00  hidden, read-only\n"
                            "Personal  personal  On this device  #4285F4  default\n"
                            "Archive   archive   Old server      #4285F4\n"));
}

void TestKbcalLists::accountsAsJson()
{
    fill();
    const Result result
        = runKbcal({QStringLiteral("--data-dir"), m_dir->path(), QStringLiteral("accounts"), QStringLiteral("--json")});
    QCOMPARE(result.status, 0);
    const QJsonArray records = jsonArray(result);
    // Manual order first; the removed account is not listed.
    QCOMPARE(ids(records), (QStringList{"local", "dav"}));
    const QJsonObject dav = records.at(1).toObject();
    QCOMPARE(dav.size(), 18);
    QVERIFY(!dav.contains(QStringLiteral("sort_order")));
}

void TestKbcalLists::accountsAsText()
{
    fill();
    const Result result = runKbcal({QStringLiteral("--data-dir"), m_dir->path(), QStringLiteral("accounts")});
    QCOMPARE(result.status, 0);
    QCOMPARE(
        result.out,
        QStringLiteral("NAME            ID     TYPE         SERVER                       USER             STATE\n"
                       "On this device  local  kettlebrook                                                enabled\n"
                       "Fastmail        dav    caldav       https://caldav.fastmail.com  sam@example.org  "
                       "disabled, sync error: HTTP 401\n"));
}

QTEST_GUILESS_MAIN(TestKbcalLists)
#include "tst_kbcallists.moc"
