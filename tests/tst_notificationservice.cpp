// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/AppState.h"
#include "app/NotificationService.h"
#include "storage/Clock.h"
#include "storage/Database.h"
#include "storage/EventRepository.h"
#include "storage/PreferencesRepository.h"

#include <QApplication>
#include <QSignalSpy>
#include <QSqlQuery>
#include <QSystemTrayIcon>
#include <QTemporaryDir>
#include <QTest>
#include <QTimeZone>

namespace {

const QTimeZone kBerlin("Europe/Berlin");

} // namespace

class TestNotificationService : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void phrases_data();
    void phrases();
    void dueRemindersInOrderAcknowledgedTogether();
    void notShown_data();
    void notShown();
    void clickOpensTheLastEvent();
    void failingPollIsReported();
    void offsetLabels_data();
    void offsetLabels();

private:
    // An event starting `startOffsetSecs` from now with one reminder of `minutesBefore` that fell
    // due `dueAgoSecs` ago.
    void addEvent(const QString &id, const QString &title, qint64 startOffsetSecs, int minutesBefore, qint64 dueAgoSecs,
                  const QString &location = QString());
    void poll() { m_service->poll(); }
    bool acknowledged(const QString &eventId);

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<AppState> m_state;
    std::unique_ptr<NotificationService> m_service;
    QDateTime m_now;
};

void TestNotificationService::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    m_now = QDateTime(QDate(2024, 3, 5), QTime(14, 0), kBerlin);
    Clock::setFixedNow(m_now);
    m_state = std::make_unique<AppState>();
    QVERIFY(m_state->initialize(m_dir->filePath(QStringLiteral("calendar.db"))));
    m_service = std::make_unique<NotificationService>(m_state.get(), nullptr);
}

void TestNotificationService::cleanup()
{
    m_service.reset();
    m_state.reset();
    Clock::setFixedNow(QDateTime());
}

void TestNotificationService::addEvent(const QString &id, const QString &title, qint64 startOffsetSecs,
                                       int minutesBefore, qint64 dueAgoSecs, const QString &location)
{
    Event event;
    event.id = id;
    event.uid = id;
    event.calendar_id = AppState::kLocalCalendarId;
    event.title = title;
    event.location = location;
    event.start_time = m_now.addSecs(startOffsetSecs).toUTC();
    event.end_time = event.start_time.addSecs(3600);
    event.created = m_now.toUTC();
    event.last_modified = event.created;
    Reminder reminder;
    reminder.minutes_before = minutesBefore;
    reminder.trigger_time = m_now.addSecs(-dueAgoSecs).toUTC();
    event.reminders.append(reminder);
    QVERIFY(m_state->events()->insert(event));
}

bool TestNotificationService::acknowledged(const QString &eventId)
{
    QSqlQuery query(m_state->database()->connection());
    query.prepare(QStringLiteral("SELECT acknowledged FROM reminders WHERE event_id = ?"));
    query.addBindValue(eventId);
    return query.exec() && query.next() && query.value(0).toInt() == 1;
}

void TestNotificationService::phrases_data()
{
    QTest::addColumn<int>("minutesBefore");
    QTest::addColumn<qint64>("startOffset");
    QTest::addColumn<QString>("location");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("expectedTitle");
    QTest::addColumn<QString>("expectedBody");
    QTest::addColumn<QString>("timeFormat"); // empty: left unset
    const auto row = [](const char *name, int minutes, qint64 offset, const char *location, const char *title,
                        const char *expectedTitle, const char *body, const char *timeFormat = "") {
        QTest::newRow(name) << minutes << offset << QString::fromUtf8(location) << QString::fromUtf8(title)
                            << QString::fromUtf8(expectedTitle) << QString::fromUtf8(body)
                            << QString::fromLatin1(timeFormat);
    };
    row("in minutes", 10, 600, "", "Standup", "Standup", "In 10 minutes (2:10 PM)");
    row("starting now", 0, 1, "", "Call", "Call", "Starting now (2:00 PM)");
    row("negative offset", -5, 60, "", "Late", "Late", "In -5 minutes (2:01 PM)");
    row("hours truncated", 90, 5400, "", "Flight", "Flight", "In 1h (3:30 PM)");
    row("23 hours", 1439, 3600, "", "Review", "Review", "In 23h (3:00 PM)");
    row("tomorrow whatever the days", 2880, 7200, "", "Trip", "Trip", "Tomorrow at 4:00 PM");
    row("with location", 15, 900, "Room 4", "Sync", "Sync", "In 15 minutes (2:15 PM) · Room 4");
    row("no title", 5, 300, "", "", "Reminder", "In 5 minutes (2:05 PM)");
    // The phrase follows the reminder, not the time actually left: the event began 20 minutes ago.
    row("started 20 minutes ago", 10, -1200, "", "Retro", "Retro", "In 10 minutes (1:40 PM)");
    row("24-hour clock", 190, 3 * 3600 + 600, "", "Standup", "Standup", "In 3h (17:10)", "24");
}

void TestNotificationService::phrases()
{
    QFETCH(int, minutesBefore);
    QFETCH(qint64, startOffset);
    QFETCH(QString, location);
    QFETCH(QString, title);
    QFETCH(QString, timeFormat);
    if (!timeFormat.isEmpty()) // unset means the 12-hour clock
        m_state->preferences()->setValue(QStringLiteral("ui/timeFormat"), timeFormat);
    addEvent(QStringLiteral("e1"), title, startOffset, minutesBefore, 1, location);
    QSignalSpy shown(m_service.get(), &NotificationService::reminderShown);
    poll();
    QCOMPARE(shown.count(), 1);
    QTEST(shown.first().at(0).toString(), "expectedTitle");
    QTEST(shown.first().at(1).toString(), "expectedBody");
    QVERIFY(acknowledged(QStringLiteral("e1")));
    poll();
    QCOMPARE(shown.count(), 1);
}

void TestNotificationService::dueRemindersInOrderAcknowledgedTogether()
{
    addEvent(QStringLiteral("b"), QStringLiteral("Second"), 600, 10, 20);
    addEvent(QStringLiteral("c"), QStringLiteral("Third"), 900, 15, 5);
    addEvent(QStringLiteral("a"), QStringLiteral("First"), 300, 5, 60);
    addEvent(QStringLiteral("later"), QStringLiteral("Not yet"), 7200, 10, -600);
    QSignalSpy shown(m_service.get(), &NotificationService::reminderShown);
    poll();
    QCOMPARE(shown.count(), 3);
    QCOMPARE(shown.at(0).at(2).toString(), QStringLiteral("a"));
    QCOMPARE(shown.at(1).at(2).toString(), QStringLiteral("b"));
    QCOMPARE(shown.at(2).at(2).toString(), QStringLiteral("c"));
    QVERIFY(acknowledged(QStringLiteral("a")) && acknowledged(QStringLiteral("b"))
            && acknowledged(QStringLiteral("c")));
    QVERIFY(!acknowledged(QStringLiteral("later")));
}

void TestNotificationService::notShown_data()
{
    QTest::addColumn<qint64>("startOffset");
    QTest::addColumn<QString>("spoil"); // what happens to the event before the poll
    QTest::newRow("began 40 minutes ago") << qint64(-2400) << QString();
    QTest::newRow("began exactly 30 minutes ago") << qint64(-1800) << QString();
    QTest::newRow("deleted") << qint64(599) << QStringLiteral("delete");
    QTest::newRow("unreadable trigger") << qint64(
        599) << QStringLiteral("UPDATE reminders SET trigger_time = 'soon' WHERE event_id = 'e'");
}

void TestNotificationService::notShown()
{
    QFETCH(qint64, startOffset);
    QFETCH(QString, spoil);
    addEvent(QStringLiteral("e"), QStringLiteral("Standup"), startOffset, 10,
             600 - startOffset); // due 10 minutes before
    if (spoil == QLatin1String("delete"))
        QVERIFY(m_state->events()->remove(QStringLiteral("e")));
    else if (!spoil.isEmpty())
        QVERIFY(QSqlQuery(m_state->database()->connection()).exec(spoil));
    QSignalSpy shown(m_service.get(), &NotificationService::reminderShown);
    poll();
    poll();
    QCOMPARE(shown.count(), 0);
    // Left pending: a missed or unreadable reminder is not marked as seen.
    if (spoil != QLatin1String("delete"))
        QVERIFY(!acknowledged(QStringLiteral("e")));
}

void TestNotificationService::clickOpensTheLastEvent()
{
    QSystemTrayIcon tray;
    NotificationService service(m_state.get(), &tray);
    QSignalSpy clicked(&service, &NotificationService::reminderClicked);
    emit tray.messageClicked();
    QCOMPARE(clicked.count(), 0); // nothing shown yet

    addEvent(QStringLiteral("one"), QStringLiteral("One"), 600, 10, 2);
    addEvent(QStringLiteral("two"), QStringLiteral("Two"), 24 * 3600 + 600, 10, 1);
    service.poll();
    emit tray.messageClicked();
    QCOMPARE(clicked.count(), 1);
    QCOMPARE(clicked.first().at(0).toString(), QStringLiteral("two"));
    QCOMPARE(clicked.first().at(1).toDate(), QDate(2024, 3, 6));

    service.showTestNotification();
    emit tray.messageClicked();
    QCOMPARE(clicked.count(), 1);
}

void TestNotificationService::failingPollIsReported()
{
    addEvent(QStringLiteral("e"), QStringLiteral("Standup"), 600, 10, 1);
    QVERIFY(QSqlQuery(m_state->database()->connection()).exec(QStringLiteral("ALTER TABLE reminders RENAME TO r2")));
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^NotificationService poll failed: ")));
    QSignalSpy shown(m_service.get(), &NotificationService::reminderShown);
    poll();
    QCOMPARE(shown.count(), 0);
}

void TestNotificationService::offsetLabels_data()
{
    QTest::addColumn<int>("minutes");
    QTest::addColumn<QString>("label");
    QTest::newRow("0") << 0 << "At time of event";
    QTest::newRow("negative") << -10 << "At time of event";
    QTest::newRow("1") << 1 << "1 min before";
    QTest::newRow("60") << 60 << "1 hour(s) before";
    QTest::newRow("1439") << 1439 << "23 hour(s) before";
    QTest::newRow("1440") << 1440 << "1 day(s) before";
    QTest::newRow("10079") << 10079 << "6 day(s) before";
}

void TestNotificationService::offsetLabels()
{
    QFETCH(int, minutes);
    QFETCH(QString, label);
    QCOMPARE(reminderOffsetLabel(minutes), label);
}

QTEST_MAIN(TestNotificationService)
#include "tst_notificationservice.moc"
