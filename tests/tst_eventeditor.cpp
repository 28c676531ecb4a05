// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/AppState.h"
#include "app/UndoStack.h"
#include "ical/EventText.h"
#include "ical/ICal.h"
#include "ical/Recurrence.h"
#include "storage/CalendarRepository.h"
#include "storage/Clock.h"
#include "storage/EventRepository.h"
#include "storage/StorageFormat.h"
#include "ui/EventEditor.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimeZone>

Q_DECLARE_METATYPE(EventEditor::Scope)

namespace {

const QTimeZone kBerlin("Europe/Berlin");

QDateTime at(int day, int hour, int minute = 0)
{
    return QDateTime(QDate(2024, 1, day), QTime(hour, minute), kBerlin);
}

} // namespace

// Changes made through the editor: times, scopes of a series, deletes, and their undo.
class TestEventEditor : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void createMarksPendingAndWritesText();
    void moveAndUndo();
    void resizeKeepsStart();
    void remindersFollowTheEvent();
    void moveInSeries_data();
    void moveInSeries();
    void moveOneOccurrenceMakesAnOverride();
    void deleteAndUndo();
    void deleteInSeries_data();
    void deleteInSeries();
    void saveToAnotherCalendar();
    void textPatching_data();
    void textPatching();

private:
    Event addSingle(const QString &title, const QDateTime &start, const QDateTime &end);
    // A daily series at 09:00–10:00 from Monday 8 January 2024.
    Event addDailySeries();
    QList<Event> week() const;
    // The local start of each occurrence of the week, as "d hh:mm".
    QStringList weekStarts() const;

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<AppState> m_state;
    std::unique_ptr<EventEditor> m_editor;
};

void TestEventEditor::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    Clock::setFixedNow(QDateTime(QDate(2024, 1, 7), QTime(12, 0), kBerlin));
    m_state = std::make_unique<AppState>();
    QVERIFY(m_state->initialize(m_dir->filePath(QStringLiteral("calendar.db"))));
    m_editor = std::make_unique<EventEditor>(m_state.get());
}

void TestEventEditor::cleanup()
{
    m_editor.reset();
    m_state.reset();
    Clock::setFixedNow(QDateTime());
}

Event TestEventEditor::addSingle(const QString &title, const QDateTime &start, const QDateTime &end)
{
    Event draft;
    draft.calendar_id = AppState::kLocalCalendarId;
    draft.title = title;
    draft.start_time = start;
    draft.end_time = end;
    draft.timezone = QStringLiteral("Europe/Berlin");
    const std::optional<Event> created = m_editor->create(draft);
    return created.value_or(Event());
}

Event TestEventEditor::addDailySeries()
{
    Event draft;
    draft.calendar_id = AppState::kLocalCalendarId;
    draft.title = QStringLiteral("Standup");
    draft.start_time = at(8, 9);
    draft.end_time = at(8, 10);
    draft.timezone = QStringLiteral("Europe/Berlin");
    draft.recurrence_rule = QStringLiteral("FREQ=DAILY");
    return m_editor->create(draft).value_or(Event());
}

QList<Event> TestEventEditor::week() const
{
    const QDateTime start = at(8, 0);
    const QDateTime end = start.addDays(7);
    return Recurrence::expandEvents(m_state->events()->getInRange(start.toUTC(), end.toUTC()), start, end);
}

QStringList TestEventEditor::weekStarts() const
{
    QStringList starts;
    for (const Event &occurrence : week())
        starts.append(occurrence.start_time.toTimeZone(kBerlin).toString(QStringLiteral("d hh:mm")));
    return starts;
}

void TestEventEditor::createMarksPendingAndWritesText()
{
    Event draft;
    draft.calendar_id = AppState::kLocalCalendarId;
    draft.title = QStringLiteral("Dinner, with Sam");
    draft.location = QStringLiteral("Luigi's; upstairs");
    draft.start_time = at(9, 19);
    draft.end_time = at(9, 21);
    draft.recurrence_rule = QStringLiteral("FREQ=WEEKLY");
    const std::optional<Event> created = m_editor->create(draft);
    QVERIFY(created);
    QCOMPARE(created->id, created->uid);
    QCOMPARE(created->sync_status, QStringLiteral("pending"));
    const QByteArray text = m_state->events()->getById(created->id)->raw_icalendar;
    QVERIFY(text.contains("DTSTART:20240109T180000Z\r\n"));
    QVERIFY(text.contains("RRULE:FREQ=WEEKLY\r\n"));
    // The stored text reads back as the event that was created.
    const QList<Event> parsed = ICal::parseEvents(text);
    QCOMPARE(parsed.size(), 1);
    QCOMPARE(parsed.first().title, draft.title);
    QCOMPARE(parsed.first().location, draft.location);
    QCOMPARE(parsed.first().start_time, draft.start_time);
}

void TestEventEditor::moveAndUndo()
{
    const Event event = addSingle(QStringLiteral("Dentist"), at(9, 10), at(9, 11));
    QSignalSpy undone(m_state->undoStack(), &UndoStack::undone);
    QVERIFY(m_editor->move(event, at(10, 14, 15)));
    std::optional<Event> moved = m_state->events()->getById(event.id);
    QCOMPARE(moved->start_time, at(10, 14, 15));
    QCOMPARE(*moved->end_time, at(10, 15, 15));
    QCOMPARE(moved->sync_status, QStringLiteral("pending"));
    QCOMPARE(moved->sequence, 1);
    QVERIFY(moved->raw_icalendar.contains("DTSTART:20240110T131500Z\r\n"));
    QCOMPARE(m_state->undoStack()->count(), 1);

    m_state->undoStack()->undo();
    QCOMPARE(undone.first().first().toString(), QStringLiteral("Moved \"Dentist\""));
    const std::optional<Event> back = m_state->events()->getById(event.id);
    QCOMPARE(back->start_time, at(9, 10));
    QVERIFY(back->raw_icalendar.contains("DTSTART:20240109T090000Z\r\n"));
    QCOMPARE(back->sync_status, QStringLiteral("pending"));
}

void TestEventEditor::resizeKeepsStart()
{
    const Event event = addSingle(QStringLiteral("Review"), at(9, 10), at(9, 11));
    QVERIFY(!m_editor->resize(event, at(9, 10)));
    QVERIFY(m_editor->resize(event, at(9, 12, 45)));
    const std::optional<Event> resized = m_state->events()->getById(event.id);
    QCOMPARE(resized->start_time, at(9, 10));
    QCOMPARE(*resized->end_time, at(9, 12, 45));
    QSignalSpy undone(m_state->undoStack(), &UndoStack::undone);
    m_state->undoStack()->undo();
    QCOMPARE(undone.first().first().toString(), QStringLiteral("Resized \"Review\""));
    QCOMPARE(*m_state->events()->getById(event.id)->end_time, at(9, 11));
}

void TestEventEditor::remindersFollowTheEvent()
{
    Event draft;
    draft.calendar_id = AppState::kLocalCalendarId;
    draft.title = QStringLiteral("Call");
    draft.start_time = at(9, 10);
    draft.end_time = at(9, 11);
    Reminder reminder;
    reminder.minutes_before = 15;
    reminder.acknowledged = true;
    draft.reminders = {reminder};
    const Event created = m_editor->create(draft).value();
    Event stored = m_state->events()->getById(created.id).value();
    QCOMPARE(*stored.reminders.first().trigger_time, at(9, 9, 45));
    QVERIFY(!stored.reminders.first().acknowledged); // lies ahead, so it fires

    QVERIFY(m_editor->move(stored, at(11, 8)));
    stored = m_state->events()->getById(created.id).value();
    QCOMPARE(stored.reminders.size(), 1);
    QCOMPARE(*stored.reminders.first().trigger_time, at(11, 7, 45));
}

void TestEventEditor::moveInSeries_data()
{
    QTest::addColumn<EventEditor::Scope>("scope");
    QTest::addColumn<int>("index"); // of the occurrence moved, Monday first
    QTest::addColumn<QDateTime>("to");
    QTest::addColumn<QStringList>("starts");
    QTest::addColumn<QString>("masterRule");
    QTest::addColumn<QDateTime>("masterStart");
    using Scope = EventEditor::Scope;
    const QString daily = QStringLiteral("FREQ=DAILY");

    QTest::newRow("this and following: a split")
        << Scope::ThisAndFollowing << 3 << at(11, 11)
        << QStringList{"8 09:00", "9 09:00", "10 09:00", "11 11:00", "12 11:00", "13 11:00", "14 11:00"}
        << QStringLiteral("FREQ=DAILY;UNTIL=20240111T075959Z") << at(8, 9);
    QTest::newRow("this and following from the first: the whole series")
        << Scope::ThisAndFollowing << 0 << at(8, 8)
        << QStringList{"8 08:00", "9 08:00", "10 08:00", "11 08:00", "12 08:00", "13 08:00", "14 08:00"} << daily
        << at(8, 8);
    QTest::newRow("all events: the master shifts")
        << Scope::AllEvents << 4 << at(12, 9, 30)
        << QStringList{"8 09:30", "9 09:30", "10 09:30", "11 09:30", "12 09:30", "13 09:30", "14 09:30"} << daily
        << at(8, 9, 30);
}

void TestEventEditor::moveInSeries()
{
    QFETCH(EventEditor::Scope, scope);
    QFETCH(int, index);
    QFETCH(QDateTime, to);
    const Event master = addDailySeries();
    QVERIFY(EventEditor::isPartOfSeries(week().at(index)));
    QVERIFY(m_editor->move(week().at(index), to, scope));
    QTEST(weekStarts(), "starts");
    const Event moved = m_state->events()->getById(master.id).value();
    QTEST(moved.recurrence_rule, "masterRule");
    QTEST(moved.start_time, "masterStart");
    QCOMPARE(*moved.end_time, moved.start_time.addSecs(3600));
    // Only a split makes a second row.
    QCOMPARE(m_state->events()->getByCalendar(AppState::kLocalCalendarId).size(),
             index > 0 && scope != EventEditor::Scope::AllEvents ? 2 : 1);

    m_state->undoStack()->undo();
    QCOMPARE(weekStarts(),
             (QStringList{"8 09:00", "9 09:00", "10 09:00", "11 09:00", "12 09:00", "13 09:00", "14 09:00"}));
    QCOMPARE(m_state->events()->getById(master.id)->recurrence_rule, QStringLiteral("FREQ=DAILY"));
    QCOMPARE(m_state->events()->getByCalendar(AppState::kLocalCalendarId).size(), 1);
}

void TestEventEditor::moveOneOccurrenceMakesAnOverride()
{
    const Event master = addDailySeries();
    QVERIFY(m_editor->move(week().at(2), at(10, 15), EventEditor::Scope::ThisEvent));
    const Event override = week().at(2);
    QCOMPARE(override.start_time, at(10, 15));
    QVERIFY(override.id != master.id);
    QCOMPARE(override.recurrence_id, QStringLiteral("20240110T080000Z"));
    QCOMPARE(override.master_event_uid, master.uid);
    QVERIFY(override.recurrence_rule.isEmpty());
    QVERIFY(m_state->events()->getById(override.id)->raw_icalendar.contains("RECURRENCE-ID:20240110T080000Z\r\n"));
    QCOMPARE(weekStarts(),
             (QStringList{"8 09:00", "9 09:00", "10 15:00", "11 09:00", "12 09:00", "13 09:00", "14 09:00"}));
    // The master itself is untouched.
    QCOMPARE(m_state->events()->getById(master.id)->sequence, 0);

    // Moved again, the override itself changes.
    QVERIFY(m_editor->move(override, at(10, 16), EventEditor::Scope::ThisEvent));
    QCOMPARE(week().at(2).id, override.id);
    QCOMPARE(week().at(2).start_time, at(10, 16));

    m_state->undoStack()->undo();
    m_state->undoStack()->undo();
    QCOMPARE(week().at(2).start_time, at(10, 9));
    QVERIFY(!m_state->events()->getById(override.id));
}

void TestEventEditor::deleteAndUndo()
{
    const Event event = addSingle(QStringLiteral("Lunch"), at(9, 12), at(9, 13));
    QSignalSpy undone(m_state->undoStack(), &UndoStack::undone);
    QVERIFY(m_editor->remove(event));
    QVERIFY(m_state->events()->getById(event.id)->deleted_at);
    QCOMPARE(week().size(), 0);
    m_state->undoStack()->undo();
    QCOMPARE(undone.first().first().toString(), QStringLiteral("Deleted \"Lunch\""));
    QVERIFY(!m_state->events()->getById(event.id)->deleted_at);
    QCOMPARE(week().size(), 1);
}

void TestEventEditor::deleteInSeries_data()
{
    QTest::addColumn<EventEditor::Scope>("scope");
    QTest::addColumn<int>("index");
    QTest::addColumn<QStringList>("starts");
    QTest::addColumn<int>("rows"); // live rows left: the master and the override before the delete
    using Scope = EventEditor::Scope;
    // Wednesday is an override moved to 15:00 before the delete.
    QTest::newRow("one occurrence") << Scope::ThisEvent << 1 << QStringList{"8 09:00",  "10 15:00", "11 09:00",
                                                                            "12 09:00", "13 09:00", "14 09:00"}
                                    << 2;
    QTest::newRow("the override") << Scope::ThisEvent << 2
                                  << QStringList{"8 09:00", "9 09:00", "11 09:00", "12 09:00", "13 09:00", "14 09:00"}
                                  << 1;
    QTest::newRow("this and following") << Scope::ThisAndFollowing << 4
                                        << QStringList{"8 09:00", "9 09:00", "10 15:00", "11 09:00"} << 2;
    QTest::newRow("all events, overrides along") << Scope::AllEvents << 5 << QStringList{} << 0;
}

void TestEventEditor::deleteInSeries()
{
    QFETCH(EventEditor::Scope, scope);
    QFETCH(int, index);
    const Event master = addDailySeries();
    QVERIFY(m_editor->move(week().at(2), at(10, 15), EventEditor::Scope::ThisEvent));
    const QStringList before = weekStarts();
    QVERIFY(m_editor->remove(week().at(index), scope));
    QTEST(weekStarts(), "starts");
    QTEST(int(m_state->events()->getByCalendar(AppState::kLocalCalendarId).size()), "rows");
    if (scope == EventEditor::Scope::ThisEvent && index == 1) {
        const Event stored = m_state->events()->getById(master.id).value();
        QCOMPARE(StorageFormat::parseStringListJson(stored.exception_dates), QStringList{"20240109T080000Z"});
        QVERIFY(stored.raw_icalendar.contains("EXDATE:20240109T080000Z\r\n"));
    }
    m_state->undoStack()->undo();
    QCOMPARE(weekStarts(), before);
    QCOMPARE(m_state->events()->getByCalendar(AppState::kLocalCalendarId).size(), 2);
}

void TestEventEditor::saveToAnotherCalendar()
{
    Calendar work;
    work.id = QStringLiteral("work");
    work.account_id = AppState::kLocalAccountId;
    work.url = QStringLiteral("local://calendar/work");
    work.name = QStringLiteral("Work");
    QVERIFY(m_state->calendars()->insert(work));

    // An event that only lives here simply changes calendar.
    const Event local = addSingle(QStringLiteral("Plan"), at(9, 10), at(9, 11));
    Event edited = local;
    edited.calendar_id = work.id;
    edited.title = QStringLiteral("Plan Q1");
    QVERIFY(m_editor->save(local, edited));
    QCOMPARE(m_state->events()->getById(local.id)->calendar_id, work.id);
    QCOMPARE(m_state->events()->getById(local.id)->title, QStringLiteral("Plan Q1"));

    // One a server holds leaves a tombstone there and starts anew in the other calendar.
    Event pushed = addSingle(QStringLiteral("Sync"), at(9, 14), at(9, 15));
    QVERIFY(m_state->events()->markSynced(pushed.id, QStringLiteral("/cal/sync.ics"), QStringLiteral("\"e1\"")));
    edited = pushed;
    edited.calendar_id = work.id;
    QVERIFY(m_editor->save(pushed, edited));
    QVERIFY(m_state->events()->getById(pushed.id)->deleted_at);
    const QList<Event> inWork = m_state->events()->getByCalendar(work.id);
    QCOMPARE(inWork.size(), 2);
}

void TestEventEditor::textPatching_data()
{
    QTest::addColumn<QByteArray>("raw");
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QByteArray>("expected");
    const QByteArray head = "BEGIN:VCALENDAR\r\nBEGIN:VEVENT\r\nUID:1\r\n";
    const QByteArray tail = "END:VEVENT\r\nEND:VCALENDAR\r\n";
    QTest::newRow("add escaped") << head + tail << QByteArray("LOCATION") << "Room 1, floor 2; east\nwing"
                                 << head + "LOCATION:Room 1\\, floor 2\\; east\\nwing\r\n" + tail;
    QTest::newRow("replace with parameters") << head + "LOCATION;LANGUAGE=en:Old\r\n" + tail << QByteArray("LOCATION")
                                             << "New" << head + "LOCATION:New\r\n" + tail;
    QTest::newRow("remove when empty") << head + "DESCRIPTION:x\r\n" + tail << QByteArray("DESCRIPTION") << ""
                                       << head + tail;
    QTest::newRow("alarm text kept") << head + "BEGIN:VALARM\r\nDESCRIPTION:Reminder\r\nEND:VALARM\r\n" + tail
                                     << QByteArray("DESCRIPTION") << "Agenda"
                                     << head
            + "BEGIN:VALARM\r\nDESCRIPTION:Reminder\r\nEND:VALARM\r\nDESCRIPTION:Agenda\r\n" + tail;
    QTest::newRow("only the first event")
        << head + tail.left(12) + "BEGIN:VEVENT\r\nSUMMARY:Other\r\n" + tail << QByteArray("SUMMARY") << "First"
        << head + "SUMMARY:First\r\n" + tail.left(12) + "BEGIN:VEVENT\r\nSUMMARY:Other\r\n" + tail;
    QTest::newRow("no event: unchanged") << QByteArray("BEGIN:VCALENDAR\r\nEND:VCALENDAR\r\n") << QByteArray("SUMMARY")
                                         << "x" << QByteArray("BEGIN:VCALENDAR\r\nEND:VCALENDAR\r\n");
}

void TestEventEditor::textPatching()
{
    QFETCH(QByteArray, raw);
    QFETCH(QByteArray, name);
    QFETCH(QString, value);
    QFETCH(QByteArray, expected);
    QCOMPARE(EventText::withText(raw, name, value), expected);
}

QTEST_GUILESS_MAIN(TestEventEditor)
#include "tst_eventeditor.moc"
