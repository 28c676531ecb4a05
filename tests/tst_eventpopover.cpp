// SPDX-License-Identifier: GPL-3.0-or-later
#include "ModalAnswer.h"

#include "app/AppState.h"
#include "app/UndoStack.h"
#include "ical/ICal.h"
#include "ical/Recurrence.h"
#include "storage/CalendarRepository.h"
#include "storage/Clock.h"
#include "storage/EventRepository.h"
#include "storage/PreferencesRepository.h"
#include "storage/StorageFormat.h"
#include "ui/EventEditor.h"
#include "ui/EventPopover.h"
#include "ui/RecurrenceScopeDialog.h"
#include "ui/SpanCache.h"

#include <QKeySequence>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTextDocument>
#include <QTimeZone>

Q_DECLARE_METATYPE(Event)

namespace {

const QTimeZone kBerlin("Europe/Berlin");

QDateTime at(int month, int day, int hour, int minute = 0)
{
    return QDateTime(QDate(2024, month, day), QTime(hour, minute), kBerlin);
}

QDateTime utcDay(int year, int month, int day)
{
    return QDateTime(QDate(year, month, day), QTime(0, 0), QTimeZone::utc());
}

// An event of `title`; without a zone it keeps the record's default one.
Event timed(const QString &title, const QDateTime &start, const QDateTime &end, const QString &zone = {})
{
    Event event;
    event.title = title;
    if (!zone.isEmpty())
        event.timezone = zone;
    event.start_time = start;
    if (end.isValid())
        event.end_time = end;
    return event;
}

} // namespace

// The event details card: its wording, placement, and the edit and delete it offers.
class TestEventPopover : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void timeText_data();
    void timeText();
    void repeatText_data();
    void repeatText();
    void details();
    void placement_data();
    void placement();
    void deleteAsksThenRemovesWithUndo_data();
    void deleteAsksThenRemovesWithUndo();
    void deleteOccurrenceOfSeries();
    void keyboard();
    void readOnlyCalendarOffersNoChanges();

private:
    Event store(Event event);
    EventPopover *popover();
    QStringList detailTexts();

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<AppState> m_state;
    std::unique_ptr<SpanCache> m_cache;
    std::unique_ptr<EventEditor> m_editor;
    std::unique_ptr<EventPopover> m_popover;
};

void TestEventPopover::initTestCase()
{
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
}

void TestEventPopover::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    Clock::setFixedNow(QDateTime(QDate(2024, 1, 7), QTime(12, 0), kBerlin));
    m_state = std::make_unique<AppState>();
    QVERIFY(m_state->initialize(m_dir->filePath(QStringLiteral("calendar.db"))));
    m_cache = std::make_unique<SpanCache>(m_state.get());
    m_editor = std::make_unique<EventEditor>(m_state.get());
}

void TestEventPopover::cleanup()
{
    m_popover.reset();
    m_editor.reset();
    m_cache.reset();
    m_state.reset();
    Clock::setFixedNow(QDateTime());
}

Event TestEventPopover::store(Event event)
{
    event.id = StorageFormat::newId();
    event.uid = event.id;
    if (event.calendar_id.isEmpty())
        event.calendar_id = AppState::kLocalCalendarId;
    event.created = Clock::nowUtc();
    event.last_modified = event.created;
    event.raw_icalendar = ICal::buildEventIcs(event);
    [&] {
        QVERIFY(m_state->events()->insert(event));
    }();
    m_cache->invalidate();
    return m_state->events()->getById(event.id).value_or(Event());
}

EventPopover *TestEventPopover::popover()
{
    if (!m_popover)
        m_popover = std::make_unique<EventPopover>(m_state.get(), m_cache.get(), m_editor.get());
    return m_popover.get();
}

QStringList TestEventPopover::detailTexts()
{
    QStringList texts;
    for (QLabel *label : popover()->findChildren<QLabel *>(QStringLiteral("detailText")))
        texts.append(label->text());
    return texts;
}

void TestEventPopover::timeText_data()
{
    QTest::addColumn<QString>("timeFormat");
    QTest::addColumn<bool>("allDay");
    QTest::addColumn<QDateTime>("start");
    QTest::addColumn<QDateTime>("end"); // invalid: no end
    QTest::addColumn<QString>("zone");
    QTest::addColumn<QString>("expected");

    const QString utc = QStringLiteral("UTC");
    QTest::newRow("24-hour") << "24" << false << at(1, 9, 10) << at(1, 9, 11) << utc
                             << "Tuesday, January 9 · 10:00 – 11:00";
    QTest::newRow("ends at midnight") << "24" << false << at(1, 9, 22) << at(1, 10, 0) << utc
                                      << "Tuesday, January 9 · 22:00 – 00:00";
    QTest::newRow("overnight") << "24" << false << at(1, 9, 22) << at(1, 10, 2) << utc
                               << "Tuesday, January 9, 22:00 – Wednesday, January 10, 02:00";
    QTest::newRow("no end") << "12" << false << at(1, 12, 14, 5) << QDateTime() << utc
                            << "Friday, January 12 · 2:05 PM";
    QTest::newRow("another zone, shown local")
        << "24" << false << QDateTime(QDate(2024, 1, 9), QTime(9, 0), QTimeZone("America/New_York"))
        << QDateTime(QDate(2024, 1, 9), QTime(10, 0), QTimeZone("America/New_York")) << "America/New_York"
        << "Tuesday, January 9 · 15:00 – 16:00";
    QTest::newRow("all day") << "24" << true << utcDay(2024, 1, 9) << utcDay(2024, 1, 10) << utc
                             << "Tuesday, January 9 · All day";
    QTest::newRow("all day over three days") << "12" << true << utcDay(2024, 1, 9) << utcDay(2024, 1, 12) << utc
                                             << "Tuesday, January 9 – Thursday, January 11";
    QTest::newRow("all day into next year") << "24" << true << utcDay(2024, 12, 30) << utcDay(2025, 1, 2) << utc
                                            << "Monday, December 30 – Wednesday, January 1, 2025";
    // Quick entry writes all-day values at local midnight; a zone west of UTC reads UTC midnight
    // back as the evening before.
    QTest::newRow("all day at local midnight")
        << "24" << true << at(1, 9, 0) << at(1, 10, 0) << utc << "Tuesday, January 9 · All day";
    QTest::newRow("all day read into a western zone")
        << "24" << true << utcDay(2024, 1, 9) << utcDay(2024, 1, 11) << "America/New_York"
        << "Tuesday, January 9 – Wednesday, January 10";
}

void TestEventPopover::timeText()
{
    QFETCH(QString, timeFormat);
    QFETCH(bool, allDay);
    QFETCH(QDateTime, start);
    QFETCH(QDateTime, end);
    QFETCH(QString, zone);
    QFETCH(QString, expected);
    m_state->preferences()->setValue(QStringLiteral("ui/timeFormat"), timeFormat);

    Event event = timed(QStringLiteral("Dentist"), start, end, zone);
    event.is_all_day = allDay;
    popover()->showFor(store(event), QRect(200, 200, 120, 40));
    QCOMPARE(popover()->timeText(), expected);
    QVERIFY(popover()->repeatText().isEmpty());
}

void TestEventPopover::repeatText_data()
{
    QTest::addColumn<QString>("rule");
    QTest::addColumn<QDateTime>("start");
    QTest::addColumn<QString>("expected");

    const QDateTime tuesday = at(1, 9, 9); // Tuesday 9 January, 09:00
    QTest::newRow("daily") << "FREQ=DAILY" << tuesday << "Every day";
    QTest::newRow("weekdays") << "FREQ=WEEKLY;BYDAY=MO,TU,WE,TH,FR" << tuesday << "Every weekday";
    QTest::newRow("weekly on its own day") << "FREQ=WEEKLY" << tuesday << "Every week on Tuesday";
    QTest::newRow("weekly on three days")
        << "FREQ=WEEKLY;BYDAY=FR,MO,WE" << tuesday << "Every week on Monday, Wednesday and Friday";
    QTest::newRow("fortnightly on two days")
        << "FREQ=WEEKLY;INTERVAL=2;BYDAY=TH,MO" << tuesday << "Every 2 weeks on Monday and Thursday";
    QTest::newRow("monthly") << "FREQ=MONTHLY" << at(1, 31, 9) << "Every month on day 31";
    QTest::newRow("yearly") << "FREQ=YEARLY" << tuesday << "Every year on January 9";
    QTest::newRow("count") << "FREQ=DAILY;COUNT=5" << tuesday << "Every day, 5 times";
    QTest::newRow("until a date") << "FREQ=DAILY;UNTIL=20240131" << tuesday << "Every day, until January 30, 2024";
    QTest::newRow("until an instant") << "FREQ=WEEKLY;UNTIL=20240131T235959Z" << tuesday
                                      << "Every week on Tuesday, until January 31, 2024";
    QTest::newRow("hourly does not repeat here") << "FREQ=HOURLY" << tuesday << "";
}

void TestEventPopover::repeatText()
{
    QFETCH(QString, rule);
    QFETCH(QDateTime, start);
    QFETCH(QString, expected);

    Event series = timed(QStringLiteral("Series"), start, start.addSecs(1800), QStringLiteral("Europe/Berlin"));
    series.recurrence_rule = rule;
    const Event master = store(series);
    // Shown on an occurrence a few weeks into the series, as a view would hand it over.
    const QList<Event> occurrences = Recurrence::expandSeries(master, start.addDays(20), start.addDays(120));
    const Event shown = occurrences.isEmpty() ? master : occurrences.first();
    popover()->showFor(shown, QRect(200, 200, 120, 40));
    QCOMPARE(popover()->repeatText(), expected);
}

void TestEventPopover::details()
{
    Event event = timed(QStringLiteral("Quarterly planning with the platform team and guests from sales"), at(1, 9, 10),
                        at(1, 9, 12));
    event.location = QStringLiteral("Harbour room <3rd floor> & terrace");
    event.description = QString(QStringLiteral("Bring last quarter's numbers. ")).repeated(20);
    Reminder reminder;
    reminder.minutes_before = 1440;
    Reminder soon;
    soon.minutes_before = 10;
    event.reminders = {reminder, soon};
    for (const auto &[name, status] : {std::pair{"Maya <Chen> & co", "accepted"}, std::pair{"", "declined"}}) {
        Attendee attendee;
        attendee.name = QLatin1String(name);
        attendee.email = QStringLiteral("jonas@example.com");
        attendee.status = QLatin1String(status);
        event.attendees.append(attendee);
    }
    popover()->showFor(store(event), QRect(200, 200, 120, 40));

    const QStringList texts = detailTexts();
    QVERIFY(texts.contains(QStringLiteral("Personal")));
    QVERIFY2(texts.contains(QStringLiteral("Harbour room <3rd floor> & terrace")),
             qPrintable(texts.join(QLatin1Char('|')))); // as typed, not as markup
    QVERIFY(texts.contains(QStringLiteral("10 min before, 1 day(s) before")));
    // The people line is rich text; a name shows as typed, not as markup.
    QTextDocument rendered;
    rendered.setHtml(texts.filter(QStringLiteral("Going")).value(0));
    const QString people = rendered.toPlainText();
    QVERIFY2(people.contains(QStringLiteral("Maya <Chen> & co · Going")), qPrintable(people));
    QVERIFY(people.contains(QStringLiteral("jonas@example.com")));
    QVERIFY(people.contains(QStringLiteral("Not going")));
    // The long description is cut to a few lines and says so.
    const QString notes = texts.filter(QStringLiteral("Bring")).value(0);
    QVERIFY(notes.endsWith(QChar(0x2026)));
    QVERIFY(notes.size() < event.description.size() / 2);
}

void TestEventPopover::placement_data()
{
    QTest::addColumn<QRect>("anchor");
    QTest::addColumn<QRect>("expected");
    const QSize card(344, 300); // on a 1600 × 900 screen
    QTest::newRow("room on the right") << QRect(400, 200, 150, 60) << QRect(QPoint(556, 200), card);
    QTest::newRow("flips to the left") << QRect(1300, 200, 150, 60) << QRect(QPoint(950, 200), card);
    QTest::newRow("kept above the bottom edge") << QRect(400, 800, 150, 60) << QRect(QPoint(556, 600), card);
    QTest::newRow("wide bar: below") << QRect(100, 100, 1400, 24) << QRect(QPoint(627, 130), card);
    QTest::newRow("wide bar low down: above") << QRect(100, 700, 1400, 24) << QRect(QPoint(627, 394), card);
}

void TestEventPopover::placement()
{
    QFETCH(QRect, anchor);
    QFETCH(QRect, expected);
    const QRect screen(0, 0, 1600, 900);
    const QRect placed = EventPopover::placement(anchor, QSize(344, 300), screen);
    QCOMPARE(placed, expected);
    QVERIFY(screen.contains(placed));
    QVERIFY(!placed.intersects(anchor));
}

void TestEventPopover::deleteAsksThenRemovesWithUndo_data()
{
    QTest::addColumn<bool>("confirm");
    QTest::newRow("confirmed") << true;
    QTest::newRow("cancelled") << false;
}

void TestEventPopover::deleteAsksThenRemovesWithUndo()
{
    QFETCH(bool, confirm);
    if (QKeySequence(QKeySequence::Undo).toString(QKeySequence::NativeText) != QLatin1String("Ctrl+Z"))
        QSKIP("The undo shortcut of this platform is not Ctrl+Z");

    const Event stored = store(timed(QStringLiteral("Dentist"), at(1, 9, 10), at(1, 9, 11)));
    popover()->showFor(stored, QRect(200, 200, 120, 40));

    QString text;
    ModalAnswer answer([&](QWidget *dialog) {
        auto *box = qobject_cast<QMessageBox *>(dialog);
        QVERIFY(box);
        text = box->text();
        if (confirm)
            box->findChild<QPushButton *>(QStringLiteral("confirmDelete"))->click();
        else
            box->button(QMessageBox::Cancel)->click();
    });
    popover()->findChild<QPushButton *>(QStringLiteral("deleteButton"))->click();
    QVERIFY(answer.seen());
    QCOMPARE(answer.title(), QStringLiteral("Delete event?"));
    QCOMPARE(text, QStringLiteral("Delete \"Dentist\"? You can undo with Ctrl+Z."));
    QVERIFY(!popover()->isVisible());

    const std::optional<Event> after = m_state->events()->getById(stored.id);
    QCOMPARE(after->deleted_at.has_value(), confirm);
    QCOMPARE(m_state->undoStack()->count(), confirm ? 1 : 0);
    if (!confirm)
        return;
    QSignalSpy undone(m_state->undoStack(), &UndoStack::undone);
    m_state->undoStack()->undo();
    QCOMPARE(undone.first().first().toString(), QStringLiteral("Deleted \"Dentist\""));
    QVERIFY(!m_state->events()->getById(stored.id)->deleted_at);
}

void TestEventPopover::deleteOccurrenceOfSeries()
{
    Event series = timed(QStringLiteral("Standup"), at(1, 8, 9), at(1, 8, 10), QStringLiteral("Europe/Berlin"));
    series.recurrence_rule = QStringLiteral("FREQ=DAILY");
    const Event master = store(series);
    const Event wednesday = Recurrence::expandSeries(master, at(1, 10, 0), at(1, 11, 0)).value(0);
    popover()->showFor(wednesday, QRect(200, 200, 120, 40));

    // The scope question is the confirmation; no second box follows it.
    ModalAnswer answer([](QWidget *dialog) {
        QVERIFY(!qobject_cast<QMessageBox *>(dialog));
        dialog->findChild<QRadioButton *>(QLatin1String(RecurrenceScopeDialog::kThisEventName))->click();
        dialog->findChild<QPushButton *>(QLatin1String(RecurrenceScopeDialog::kConfirmName))->click();
    });
    popover()->deleteOccurrence();
    QVERIFY(answer.seen());
    QCOMPARE(answer.title(), QStringLiteral("Delete repeating event"));
    const Event after = m_state->events()->getById(master.id).value();
    QCOMPARE(after.exception_dates, QStringLiteral("[\"20240110T080000Z\"]"));
    QCOMPARE(Recurrence::expandSeries(after, at(1, 8, 0), at(1, 15, 0)).size(), 6);
    QCOMPARE(m_state->undoStack()->count(), 1);
}

void TestEventPopover::keyboard()
{
    const Event stored = store(timed(QStringLiteral("Lunch"), at(1, 9, 12), at(1, 9, 13)));
    QSignalSpy requested(popover(), &EventPopover::editRequested);
    // Escape closes; Enter asks for the editor and closes.
    popover()->showFor(stored, QRect(200, 200, 120, 40));
    QTest::keyClick(popover(), Qt::Key_Escape);
    QVERIFY(!popover()->isVisible());
    QCOMPARE(requested.size(), 0);
    popover()->showFor(stored, QRect(200, 200, 120, 40));
    QTest::keyClick(popover(), Qt::Key_Return);
    QCOMPARE(requested.size(), 1);
    QCOMPARE(requested.first().first().value<Event>().id, stored.id);
    QVERIFY(!popover()->isVisible());
}

void TestEventPopover::readOnlyCalendarOffersNoChanges()
{
    Calendar holidays;
    holidays.id = QStringLiteral("holidays");
    holidays.account_id = AppState::kLocalAccountId;
    holidays.url = QStringLiteral("https://example.com/holidays.ics");
    holidays.name = QStringLiteral("Holidays");
    holidays.color = QStringLiteral("#30A46C");
    holidays.is_read_only = true;
    QSignalSpy refreshed(m_cache.get(), &SpanCache::invalidated);
    QVERIFY(m_state->calendars()->insert(holidays));
    QVERIFY(refreshed.wait()); // the cache learns the calendar on the next turn of the event loop

    Event event = timed(QStringLiteral("New Year's Day"), utcDay(2024, 1, 1), utcDay(2024, 1, 2));
    event.calendar_id = holidays.id;
    event.is_all_day = true;
    const Event stored = store(event);
    popover()->showFor(stored, QRect(200, 200, 120, 40));
    QVERIFY(!popover()->findChild<QPushButton *>(QStringLiteral("editButton"))->isVisible());
    QVERIFY(!popover()->findChild<QPushButton *>(QStringLiteral("deleteButton"))->isVisible());
    QSignalSpy requested(popover(), &EventPopover::editRequested);
    QTest::keyClick(popover(), Qt::Key_Delete);
    QTest::keyClick(popover(), Qt::Key_Return);
    QCOMPARE(requested.size(), 0);
    QVERIFY(!m_state->events()->getById(stored.id)->deleted_at);
    QVERIFY(detailTexts().contains(QStringLiteral("Holidays (read-only)")));
}

QTEST_MAIN(TestEventPopover)
#include "tst_eventpopover.moc"
