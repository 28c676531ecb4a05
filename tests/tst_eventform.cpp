// SPDX-License-Identifier: GPL-3.0-or-later
#include "ModalAnswer.h"

#include "app/AppState.h"
#include "ical/ICal.h"
#include "ical/Recurrence.h"
#include "storage/CalendarRepository.h"
#include "storage/Clock.h"
#include "storage/EventRepository.h"
#include "storage/PreferencesRepository.h"
#include "storage/StorageFormat.h"
#include "storage/Template.h"
#include "ui/EventEditor.h"
#include "ui/EventFormDialog.h"
#include "ui/RecurrenceScopeDialog.h"
#include "ui/ReminderListEditor.h"
#include "ui/RepeatPresets.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimeEdit>
#include <QTimeZone>
#include <QToolButton>

Q_DECLARE_METATYPE(Event)
Q_DECLARE_METATYPE(RepeatPresets::Preset)

namespace {

const QTimeZone kBerlin("Europe/Berlin");

QDateTime at(int day, int hour, int minute = 0)
{
    return QDateTime(QDate(2024, 1, day), QTime(hour, minute), kBerlin);
}

QDateTime utcDay(int day)
{
    return QDateTime(QDate(2024, 1, day), QTime(0, 0), QTimeZone::utc());
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

// The fields a save is expected to change whatever was edited.
Event withoutSaveMarks(Event event)
{
    event.sync_status.clear();
    event.sequence = 0;
    event.last_modified = QDateTime();
    event.raw_icalendar.clear();
    return event;
}

// Answers the scope question of a repeating event with `choice`.
void chooseScope(QWidget *dialog, const char *choice)
{
    dialog->findChild<QRadioButton *>(QLatin1String(choice))->click();
    dialog->findChild<QPushButton *>(QLatin1String(RecurrenceScopeDialog::kConfirmName))->click();
}

template<typename T>
T *field(const QWidget &form, const char *name)
{
    T *widget = form.findChild<T *>(QLatin1String(name));
    if (!widget)
        qWarning("no field %s", name);
    return widget;
}

} // namespace

// The event form: what it stores for new and existing events, series scopes,
// and its fields.
class TestEventForm : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void scopeQuestion();
    void occurrenceEdit_data();
    void occurrenceEdit();
    void repeatChangeNeedsWiderScope();
    void roundTrip_data();
    void roundTrip();
    void repeatPresetToRule_data();
    void repeatPresetToRule();
    void storedRuleToPreset_data();
    void storedRuleToPreset();
    void allDayEndIsExclusive();
    void endFollowsStart_data();
    void endFollowsStart();
    void endBeforeStartBlocksSave();
    void calendarPreselection_data();
    void calendarPreselection();
    void reminders();
    void emptyTitle();
    void timeZones();
    void readOnlyCalendarOpensReadOnly();
    void keyboard();

private:
    Event store(Event event);
    Event dailyStandup();
    QList<Event> weekOf(const QString &calendarId) const;
    // A form on screen for a new event, by default 10:00–11:00 on Tuesday 9
    // January.
    std::unique_ptr<EventFormDialog> newForm(const QDateTime &start = at(9, 10), const QDateTime &end = at(9, 11),
                                             bool allDay = false);
    std::unique_ptr<EventFormDialog> formFor(const Event &occurrence);

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<AppState> m_state;
    std::unique_ptr<EventEditor> m_editor;
};

void TestEventForm::initTestCase()
{
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
}

void TestEventForm::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    Clock::setFixedNow(QDateTime(QDate(2024, 1, 7), QTime(12, 0), kBerlin));
    m_state = std::make_unique<AppState>();
    QVERIFY(m_state->initialize(m_dir->filePath(QStringLiteral("calendar.db"))));
    m_state->preferences()->setValue(QStringLiteral("ui/timeFormat"), QStringLiteral("24"));
    m_editor = std::make_unique<EventEditor>(m_state.get());
}

void TestEventForm::cleanup()
{
    m_editor.reset();
    m_state.reset();
    Clock::setFixedNow(QDateTime());
}

// Stored as a server would have left it: synced, with its text.
Event TestEventForm::store(Event event)
{
    if (event.id.isEmpty())
        event.id = StorageFormat::newId();
    if (event.uid.isEmpty())
        event.uid = event.id;
    if (event.calendar_id.isEmpty())
        event.calendar_id = AppState::kLocalCalendarId;
    event.created = QDateTime(QDate(2023, 12, 1), QTime(8, 0), QTimeZone::utc());
    event.last_modified = event.created;
    event.sync_status = QStringLiteral("synced");
    event.sequence = 2;
    event.raw_icalendar = ICal::buildEventIcs(event);
    for (Reminder &reminder : event.reminders)
        reminder.event_id = event.id;
    for (Attendee &attendee : event.attendees)
        attendee.event_id = event.id;
    [&] {
        QVERIFY(m_state->events()->insert(event));
    }();
    return m_state->events()->getById(event.id).value_or(Event());
}

// Standup, every day 09:00–10:00 from Monday 8 January 2024.
Event TestEventForm::dailyStandup()
{
    Event event = timed(QStringLiteral("Standup"), at(8, 9), at(8, 10), QStringLiteral("Europe/Berlin"));
    event.recurrence_rule = QStringLiteral("FREQ=DAILY");
    return store(event);
}

QList<Event> TestEventForm::weekOf(const QString &calendarId) const
{
    return Recurrence::expandEvents(m_state->events()->getByCalendar(calendarId), at(8, 0), at(15, 0));
}

std::unique_ptr<EventFormDialog> TestEventForm::newForm(const QDateTime &start, const QDateTime &end, bool allDay)
{
    auto form = std::make_unique<EventFormDialog>(m_state.get(), m_editor.get());
    form->setNewEvent(start, end, allDay);
    form->show();
    return form;
}

std::unique_ptr<EventFormDialog> TestEventForm::formFor(const Event &occurrence)
{
    auto form = std::make_unique<EventFormDialog>(m_state.get(), m_editor.get());
    form->setEvent(occurrence);
    form->show();
    return form;
}

void TestEventForm::scopeQuestion()
{
    // Each choice is carried through by occurrenceEdit; here the question itself
    // and its cancel.
    for (const bool confirm : {true, false}) {
        QString heading;
        ModalAnswer answer([&](QWidget *dialog) {
            for (QLabel *label : dialog->findChildren<QLabel *>()) {
                if (label->text() == QLatin1String("Move repeating event"))
                    heading = label->text();
            }
            dialog->findChild<QRadioButton *>(QLatin1String(RecurrenceScopeDialog::kAllEventsName))->click();
            if (confirm)
                dialog->findChild<QPushButton *>(QLatin1String(RecurrenceScopeDialog::kConfirmName))->click();
            else
                QTest::keyClick(dialog, Qt::Key_Escape);
        });
        EventEditor::Scope scope = EventEditor::Scope::ThisAndFollowing;
        QCOMPARE(RecurrenceScopeDialog::ask(nullptr, &scope, QStringLiteral("Move repeating event")), confirm);
        QCOMPARE(answer.title(), QStringLiteral("Move repeating event"));
        QCOMPARE(heading, QStringLiteral("Move repeating event"));
        QCOMPARE(scope, confirm ? EventEditor::Scope::AllEvents : EventEditor::Scope::ThisAndFollowing);
    }
}

void TestEventForm::occurrenceEdit_data()
{
    QTest::addColumn<QString>("choice");
    QTest::addColumn<int>("rows");
    QTest::addColumn<QList<int>>("hours"); // start hour of each day of the week, Monday first
    QTest::addColumn<QString>("masterRule");

    QTest::newRow("only this event: an override")
        << RecurrenceScopeDialog::kThisEventName << 2 << QList<int>{9, 9, 11, 9, 9, 9, 9} << "FREQ=DAILY";
    QTest::newRow("this and following: a split")
        << RecurrenceScopeDialog::kThisAndFollowingName << 2 << QList<int>{9, 9, 11, 11, 11, 11, 11}
        << "FREQ=DAILY;UNTIL=20240110T075959Z";
    QTest::newRow("all events: the master shifts")
        << RecurrenceScopeDialog::kAllEventsName << 1 << QList<int>{11, 11, 11, 11, 11, 11, 11} << "FREQ=DAILY";
}

void TestEventForm::occurrenceEdit()
{
    QFETCH(QString, choice);
    QFETCH(QList<int>, hours);

    const Event master = dailyStandup();
    const Event wednesday = weekOf(master.calendar_id).value(2);
    QCOMPARE(wednesday.recurrence_id, QStringLiteral("20240110T080000Z"));

    auto form = formFor(wednesday);
    field<QLineEdit>(*form, "titleEdit")->setText(QStringLiteral("Standup (late)"));
    field<QTimeEdit>(*form, "startTime")->setTime(QTime(11, 0));
    QCOMPARE(field<QTimeEdit>(*form, "endTime")->time(), QTime(12, 0));

    ModalAnswer answer([&](QWidget *dialog) { chooseScope(dialog, qPrintable(choice)); });
    QVERIFY(form->save());
    QCOMPARE(answer.title(), QStringLiteral("Save repeating event"));

    QTEST(int(m_state->events()->getByCalendar(master.calendar_id).size()), "rows");
    QTEST(m_state->events()->getById(master.id)->recurrence_rule, "masterRule");
    // The saved event is the override, the new series, or the master that moved
    // with it.
    const bool all = choice == QLatin1String(RecurrenceScopeDialog::kAllEventsName);
    const Event saved = form->savedEvent();
    QCOMPARE(saved.id == master.id, all);
    QCOMPARE(saved.start_time, at(all ? 8 : 10, 11));
    QCOMPARE(*saved.end_time, at(all ? 8 : 10, 12));
    QCOMPARE(saved.sync_status, QStringLiteral("pending"));

    const QList<Event> after = weekOf(master.calendar_id);
    QCOMPARE(after.size(), 7);
    for (int day = 0; day < 7; ++day) {
        const QDateTime start = after.at(day).start_time.toLocalTime();
        QCOMPARE(start, QDateTime(QDate(2024, 1, 8 + day), QTime(hours.at(day), 0)));
        QCOMPARE(after.at(day).title,
                 hours.at(day) == 11 ? QStringLiteral("Standup (late)") : QStringLiteral("Standup"));
    }
}

void TestEventForm::repeatChangeNeedsWiderScope()
{
    const Event master = dailyStandup();
    auto form = formFor(weekOf(master.calendar_id).at(1));
    auto *repeat = field<QComboBox>(*form, "repeat");
    repeat->setCurrentIndex(repeat->findData(int(RepeatPresets::Preset::Weekly)));
    ModalAnswer answer([](QWidget *dialog) {
        dialog->findChild<QPushButton *>(QLatin1String(RecurrenceScopeDialog::kConfirmName))->click();
    });
    QVERIFY(!form->save());
    QVERIFY(answer.seen());
    QVERIFY(field<QLabel>(*form, "formError")->isVisibleTo(form.get()));
    QCOMPARE(m_state->events()->getByCalendar(master.calendar_id).size(), 1);
    QCOMPARE(m_state->events()->getById(master.id)->recurrence_rule, QStringLiteral("FREQ=DAILY"));
}

void TestEventForm::roundTrip_data()
{
    QTest::addColumn<Event>("event");

    Event full = timed(QStringLiteral("Design review"), at(9, 10), at(9, 11, 30), QStringLiteral("Europe/Berlin"));
    full.location = QStringLiteral("Room 4.12, Building B");
    full.description = QStringLiteral("Agenda:\n- onboarding flow\n- empty states");
    full.color = QStringLiteral("#30A46C");
    full.conference_url = QStringLiteral("https://meet.example.com/abc-defg");
    full.organizer_email = QStringLiteral("maya@example.com");
    full.organizer_name = QStringLiteral("Maya Chen");
    for (const int minutes : {10, 1440}) {
        Reminder reminder;
        reminder.minutes_before = minutes;
        full.reminders.append(reminder);
    }
    Attendee attendee;
    attendee.email = QStringLiteral("jonas@example.com");
    attendee.name = QStringLiteral("Jonas Weber");
    attendee.status = QStringLiteral("accepted");
    full.attendees = {attendee};
    QTest::newRow("timed with every field") << full;

    Event allDay = timed(QStringLiteral("Offsite"), utcDay(9), utcDay(12));
    allDay.is_all_day = true;
    QTest::newRow("all-day over three days") << allDay;
    Event quickAllDay = timed(QStringLiteral("Mum's birthday"), at(14, 0), at(15, 0)); // quick entry: local midnight
    quickAllDay.is_all_day = true;
    QTest::newRow("all-day at local midnight") << quickAllDay;

    const QTimeZone newYork("America/New_York");
    QTest::newRow("another zone") << timed(QStringLiteral("Call"), QDateTime(QDate(2024, 1, 10), QTime(9, 0), newYork),
                                           QDateTime(QDate(2024, 1, 10), QTime(9, 45), newYork),
                                           QStringLiteral("America/New_York"));
    QTest::newRow("UTC") << timed(QStringLiteral("Release window"), utcDay(11).addSecs(8 * 3600),
                                  utcDay(11).addSecs(10 * 3600));
    QTest::newRow("no end") << timed(QStringLiteral("Parcel arrives"), at(12, 14), {}, QStringLiteral("Europe/Berlin"));
    const QDateTime plusFive(QDate(2024, 1, 9), QTime(10, 0), QTimeZone(5 * 3600));
    QTest::newRow("zone this computer does not know")
        << timed(QStringLiteral("Imported"), plusFive, plusFive.addSecs(3600), QStringLiteral("Custom/Headquarters"));

    Event custom = timed(QStringLiteral("Piano lesson"), at(9, 17), at(9, 18), QStringLiteral("Europe/Berlin"));
    custom.recurrence_rule = QStringLiteral("FREQ=WEEKLY;INTERVAL=2;BYDAY=TU,TH");
    QTest::newRow("series with a custom rule") << custom;
    custom.recurrence_rule = QStringLiteral("freq=daily");
    QTest::newRow("series with a rule in lower case") << custom;
}

void TestEventForm::roundTrip()
{
    QFETCH(Event, event);
    const Event stored = store(event);
    QVERIFY(!stored.id.isEmpty());
    const bool series = !stored.recurrence_rule.isEmpty();
    const Event opened
        = series ? Recurrence::expandSeries(stored, stored.start_time, stored.start_time.addSecs(1)).value(0) : stored;
    QCOMPARE(opened.start_time, stored.start_time);

    {
        // Opened and saved without a change: the form describes the event exactly
        // and writes nothing.
        EventFormDialog form(m_state.get(), m_editor.get());
        form.setEvent(opened);
        QCOMPARE(form.editedEvent(), opened);
        QVERIFY(form.save());
        QCOMPARE(m_state->events()->getById(stored.id).value(), stored);
    }

    // A new title only: everything else stays as it was.
    auto form = formFor(opened);
    field<QLineEdit>(*form, "titleEdit")->setText(stored.title + QStringLiteral(" (moved)"));
    ModalAnswer answer([](QWidget *dialog) { chooseScope(dialog, RecurrenceScopeDialog::kAllEventsName); });
    QVERIFY(form->save());
    QCOMPARE(answer.seen(), series);
    const Event after = m_state->events()->getById(stored.id).value();
    QCOMPARE(after.sync_status, QStringLiteral("pending"));
    QCOMPARE(after.sequence, stored.sequence + 1);
    QVERIFY(after.last_modified > stored.last_modified);
    QVERIFY(after.raw_icalendar.contains(QByteArray("SUMMARY:" + after.title.toUtf8())));
    Event expected = stored;
    expected.title = stored.title + QStringLiteral(" (moved)");
    QCOMPARE(withoutSaveMarks(after), withoutSaveMarks(expected));
}

void TestEventForm::repeatPresetToRule_data()
{
    using RepeatPresets::Preset;
    QTest::addColumn<Preset>("preset");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("stored"); // empty for Custom: the rule is refused

    QTest::newRow("does not repeat") << Preset::None << QString() << QString();
    QTest::newRow("daily") << Preset::Daily << QString() << QStringLiteral("FREQ=DAILY");
    QTest::newRow("weekdays") << Preset::Weekdays << QString() << QStringLiteral("FREQ=WEEKLY;BYDAY=MO,TU,WE,TH,FR");
    QTest::newRow("weekly") << Preset::Weekly << QString() << QStringLiteral("FREQ=WEEKLY");
    QTest::newRow("monthly") << Preset::Monthly << QString() << QStringLiteral("FREQ=MONTHLY");
    QTest::newRow("yearly") << Preset::Yearly << QString() << QStringLiteral("FREQ=YEARLY");
    QTest::newRow("custom") << Preset::Custom << QStringLiteral("FREQ=WEEKLY;INTERVAL=2;BYDAY=MO,TH")
                            << QStringLiteral("FREQ=WEEKLY;INTERVAL=2;BYDAY=MO,TH");
    QTest::newRow("custom with prefix and blanks")
        << Preset::Custom << QStringLiteral("  RRULE:FREQ=MONTHLY;COUNT=6 ") << QStringLiteral("FREQ=MONTHLY;COUNT=6");
    QTest::newRow("custom hourly") << Preset::Custom << QStringLiteral("FREQ=HOURLY") << QString();
    QTest::newRow("custom empty") << Preset::Custom << QStringLiteral(" ") << QString();
}

void TestEventForm::repeatPresetToRule()
{
    QFETCH(RepeatPresets::Preset, preset);
    QFETCH(QString, typed);
    QFETCH(QString, stored);
    const bool custom = preset == RepeatPresets::Preset::Custom;
    const bool valid = !custom || !stored.isEmpty();

    auto form = newForm();
    field<QLineEdit>(*form, "titleEdit")->setText(QStringLiteral("Gym"));
    auto *repeat = field<QComboBox>(*form, "repeat");
    repeat->setCurrentIndex(repeat->findData(int(preset)));
    auto *customRule = field<QLineEdit>(*form, "customRule");
    QCOMPARE(customRule->isVisibleTo(form.get()), custom);
    if (custom)
        customRule->setText(typed);

    auto *hint = field<QLabel>(*form, "ruleHint");
    QCOMPARE(field<QPushButton>(*form, "saveButton")->isEnabled(), valid);
    QCOMPARE(hint->property("error").toBool(), !valid);
    QCOMPARE(form->save(), valid);
    const QList<Event> events = m_state->events()->getByCalendar(AppState::kLocalCalendarId);
    if (!valid) {
        QVERIFY(hint->isVisibleTo(form.get()));
        QCOMPARE(hint->text(),
                 QStringLiteral("This calendar repeats by FREQ=DAILY, FREQ=WEEKLY, FREQ=MONTHLY or "
                                "FREQ=YEARLY; start the rule with one of them."));
        QVERIFY(events.isEmpty());
        return;
    }
    if (custom) // a valid rule is read back in words
        QVERIFY(hint->text().startsWith(QLatin1String("Every")));
    QCOMPARE(events.size(), 1);
    QCOMPARE(events.first().recurrence_rule, stored);
    if (!stored.isEmpty())
        QVERIFY(events.first().raw_icalendar.contains(QByteArray("RRULE:" + stored.toUtf8() + "\r\n")));
}

void TestEventForm::storedRuleToPreset_data()
{
    using RepeatPresets::Preset;
    QTest::addColumn<QString>("rule");
    QTest::addColumn<Preset>("preset");

    // A stored rule is recognised by comparing it with the presets' own rules, which
    // repeatPresetToRule pins one by one; one of them stands for the rest here.
    QTest::newRow("none") << QString() << Preset::None;
    QTest::newRow("weekly") << QStringLiteral("FREQ=WEEKLY") << Preset::Weekly;
    QTest::newRow("weekly, lower case, trailing separator") << QStringLiteral("freq=weekly;") << Preset::Weekly;
    QTest::newRow("weekly on one day") << QStringLiteral("FREQ=WEEKLY;BYDAY=TU") << Preset::Custom;
    QTest::newRow("daily with a count") << QStringLiteral("FREQ=DAILY;COUNT=10") << Preset::Custom;
    QTest::newRow("weekdays in another order") << QStringLiteral("FREQ=WEEKLY;BYDAY=FR,MO,TU,WE,TH") << Preset::Custom;
}

void TestEventForm::storedRuleToPreset()
{
    QFETCH(QString, rule);
    QFETCH(RepeatPresets::Preset, preset);
    Event event = timed(QStringLiteral("Run"), at(9, 7), at(9, 8), QStringLiteral("Europe/Berlin"));
    event.recurrence_rule = rule;
    const Event stored = store(event);
    auto form = formFor(rule.isEmpty() ? stored : Recurrence::expandSeries(stored, at(9, 0), at(10, 0)).value(0));
    QCOMPARE(RepeatPresets::Preset(field<QComboBox>(*form, "repeat")->currentData().toInt()), preset);
    auto *custom = field<QLineEdit>(*form, "customRule");
    QCOMPARE(custom->isVisibleTo(form.get()), preset == RepeatPresets::Preset::Custom);
    if (preset == RepeatPresets::Preset::Custom)
        QCOMPARE(custom->text(), rule);
    // The rule is kept exactly as written as long as the choice is not changed.
    QCOMPARE(form->editedEvent().recurrence_rule, rule);
}

void TestEventForm::allDayEndIsExclusive()
{
    {
        auto form = newForm(QDate(2024, 1, 9).startOfDay(), QDate(2024, 1, 10).startOfDay(), true);
        QVERIFY(field<QCheckBox>(*form, "allDay")->isChecked());
        QVERIFY(!field<QTimeEdit>(*form, "startTime")->isVisibleTo(form.get()));
        QVERIFY(!field<QComboBox>(*form, "timeZone")->isVisibleTo(form.get()));
        QCOMPARE(field<QDateEdit>(*form, "endDate")->date(), QDate(2024, 1, 9));
        field<QDateEdit>(*form, "endDate")->setDate(QDate(2024, 1, 11));
        field<QLineEdit>(*form, "titleEdit")->setText(QStringLiteral("Conference"));
        QVERIFY(form->save());
        const Event saved = m_state->events()->getById(form->savedEvent().id).value();
        QVERIFY(saved.is_all_day);
        QCOMPARE(saved.start_time, utcDay(9));
        QCOMPARE(*saved.end_time, utcDay(12));
        QVERIFY(saved.raw_icalendar.contains("DTSTART;VALUE=DATE:20240109\r\n"));
        QVERIFY(saved.raw_icalendar.contains("DTEND;VALUE=DATE:20240112\r\n"));

        // Opened again, it shows its last day, not the exclusive end.
        auto again = formFor(saved);
        QCOMPARE(field<QDateEdit>(*again, "startDate")->date(), QDate(2024, 1, 9));
        QCOMPARE(field<QDateEdit>(*again, "endDate")->date(), QDate(2024, 1, 11));
    }
    {
        // A timed event made all-day covers the day it was on; made timed again, it
        // gets its hours back.
        auto form = newForm();
        auto *allDay = field<QCheckBox>(*form, "allDay");
        allDay->setChecked(true);
        QCOMPARE(field<QDateEdit>(*form, "endDate")->date(), QDate(2024, 1, 9));
        Event edited = form->editedEvent();
        QCOMPARE(edited.start_time, utcDay(9));
        QCOMPARE(*edited.end_time, utcDay(10));
        QCOMPARE(edited.timezone, QStringLiteral("UTC"));
        allDay->setChecked(false);
        edited = form->editedEvent();
        QCOMPARE(edited.start_time, at(9, 10));
        QCOMPARE(*edited.end_time, at(9, 11));
        QCOMPARE(edited.timezone, QStringLiteral("Europe/Berlin"));
    }
    // A timed event ending at midnight becomes a one-day event, not two.
    auto form = newForm(at(9, 20), at(10, 0));
    field<QCheckBox>(*form, "allDay")->setChecked(true);
    QCOMPARE(*form->editedEvent().end_time, utcDay(10));
}

void TestEventForm::endFollowsStart_data()
{
    QTest::addColumn<bool>("allDay");
    QTest::addColumn<QDateTime>("start");
    QTest::addColumn<QDateTime>("end");
    QTest::addColumn<QDate>("newDate");
    QTest::addColumn<QTime>("newTime");
    QTest::addColumn<QDateTime>("expectedEnd");

    QTest::newRow("later the same day") << false << at(9, 10) << at(9, 11) << QDate(2024, 1, 9) << QTime(13, 30)
                                        << at(9, 14, 30);
    QTest::newRow("another day") << false << at(9, 10) << at(9, 11, 45) << QDate(2024, 1, 11) << QTime(10, 0)
                                 << at(11, 11, 45);
    QTest::newRow("overnight keeps its length")
        << false << at(9, 22) << at(10, 2) << QDate(2024, 1, 9) << QTime(23, 0) << at(10, 3);
    // Five hours of real time across the spring change of clocks.
    QTest::newRow("across the clock change")
        << false << QDateTime(QDate(2024, 3, 30), QTime(22, 0), kBerlin)
        << QDateTime(QDate(2024, 3, 31), QTime(4, 0), kBerlin) << QDate(2024, 3, 30) << QTime(23, 0)
        << QDateTime(QDate(2024, 3, 31), QTime(5, 0), kBerlin);
    QTest::newRow("all-day over three days")
        << true << utcDay(9) << utcDay(12) << QDate(2024, 1, 15) << QTime() << utcDay(18);
}

void TestEventForm::endFollowsStart()
{
    QFETCH(bool, allDay);
    QFETCH(QDateTime, start);
    QFETCH(QDateTime, end);
    QFETCH(QDate, newDate);
    QFETCH(QTime, newTime);

    auto form = newForm(start, end, allDay);
    field<QDateEdit>(*form, "startDate")->setDate(newDate);
    if (newTime.isValid())
        field<QTimeEdit>(*form, "startTime")->setTime(newTime);
    const Event edited = form->editedEvent();
    QCOMPARE(edited.start_time.date(), newDate);
    QTEST(*edited.end_time, "expectedEnd");
    QVERIFY(field<QPushButton>(*form, "saveButton")->isEnabled());
}

void TestEventForm::endBeforeStartBlocksSave()
{
    auto form = newForm();
    field<QTimeEdit>(*form, "endTime")->setTime(QTime(9, 30));
    auto *error = field<QLabel>(*form, "timeHint");
    QVERIFY(error->isVisibleTo(form.get()));
    QVERIFY(error->property("error").toBool());
    QCOMPARE(error->text(), QStringLiteral("The event ends before it starts."));
    QVERIFY(!field<QPushButton>(*form, "saveButton")->isEnabled());
    QVERIFY(!form->save());
    QVERIFY(m_state->events()->getByCalendar(AppState::kLocalCalendarId).isEmpty());

    // Moving the end to the next day makes it a valid overnight event.
    field<QDateEdit>(*form, "endDate")->setDate(QDate(2024, 1, 10));
    QVERIFY(!error->isVisibleTo(form.get()));
    QCOMPARE(*form->editedEvent().end_time, at(10, 9, 30));

    // An all-day event's last day before its first is refused the same way.
    field<QCheckBox>(*form, "allDay")->setChecked(true);
    field<QDateEdit>(*form, "endDate")->setDate(QDate(2024, 1, 8));
    QVERIFY(!field<QPushButton>(*form, "saveButton")->isEnabled());
}

void TestEventForm::calendarPreselection_data()
{
    QTest::addColumn<QString>("preference");
    QTest::addColumn<QString>("defaultId");
    QTest::addColumn<QString>("expected");

    const auto row = [](const char *name, const char *preference, const char *defaultId, const QString &expected) {
        QTest::newRow(name) << QString::fromLatin1(preference) << QString::fromLatin1(defaultId) << expected;
    };
    row("preference names a writable calendar", "work", "team", QStringLiteral("work"));
    row("preference names a read-only calendar", "holidays", "team", QStringLiteral("team"));
    row("preference names no calendar", "gone", "team", QStringLiteral("team"));
    row("default calendar is read-only", "", "holidays", AppState::kLocalCalendarId);
}

void TestEventForm::calendarPreselection()
{
    QFETCH(QString, preference);
    QFETCH(QString, defaultId);
    QFETCH(QString, expected);

    const auto addCalendar = [this](const QString &id, int order, bool readOnly) {
        Calendar calendar;
        calendar.id = id;
        calendar.account_id = AppState::kLocalAccountId;
        calendar.url = QStringLiteral("local://calendar/") + id;
        calendar.name = id;
        calendar.sort_order = order;
        calendar.is_read_only = readOnly;
        QVERIFY(m_state->calendars()->insert(calendar));
    };
    addCalendar(QStringLiteral("holidays"), 5, true);
    addCalendar(QStringLiteral("work"), 10, false);
    addCalendar(QStringLiteral("team"), 20, false);
    QVERIFY(m_state->calendars()->setDefault(defaultId));
    if (!preference.isEmpty())
        m_state->preferences()->setValue(QStringLiteral("ui/defaultCalendarId"), preference);

    auto form = newForm();
    auto *calendar = field<QComboBox>(*form, "calendar");
    QCOMPARE(calendar->currentData().toString(), expected);
    QStringList offered;
    for (int i = 0; i < calendar->count(); ++i)
        offered.append(calendar->itemData(i).toString());
    offered.sort();
    QCOMPARE(offered, (QStringList{AppState::kLocalCalendarId, QStringLiteral("team"), QStringLiteral("work")}));
    QCOMPARE(form->editedEvent().calendar_id, expected);
}

void TestEventForm::reminders()
{
    {
        // A new event starts with 15 minutes; the menu does not offer that one
        // twice.
        auto form = newForm();
        QCOMPARE(form->editedEvent().reminders.size(), 1);
        QCOMPARE(form->editedEvent().reminders.first().minutes_before, 15);
        auto *menu = field<QMenu>(*form, "addReminderMenu");
        emit menu->aboutToShow();
        QAction *dayBefore = nullptr;
        for (QAction *action : menu->actions()) {
            if (action->text() == QLatin1String("1 day(s) before"))
                dayBefore = action;
            if (action->text() == QLatin1String("15 min before"))
                QVERIFY(!action->isEnabled());
        }
        QVERIFY(dayBefore && dayBefore->isEnabled());
        dayBefore->trigger();
        QStringList shown;
        for (QLabel *row : form->findChildren<QLabel *>(QStringLiteral("reminderLabel")))
            shown.append(row->text());
        shown.sort();
        QCOMPARE(shown, (QStringList{"1 day(s) before", "15 min before"}));
        field<QLineEdit>(*form, "titleEdit")->setText(QStringLiteral("Flight"));
        QVERIFY(form->save());
        QList<int> stored;
        const Event saved = m_state->events()->getById(form->savedEvent().id).value();
        for (const Reminder &reminder : saved.reminders)
            stored.append(reminder.minutes_before);
        std::sort(stored.begin(), stored.end());
        QCOMPARE(stored, (QList<int>{15, 1440}));
    }
    {
        // Removing the only reminder leaves none.
        auto form = newForm();
        form->findChild<QToolButton *>(QStringLiteral("removeReminder"))->click();
        QVERIFY(form->editedEvent().reminders.isEmpty());
        QVERIFY(form->findChildren<QLabel *>(QStringLiteral("reminderLabel")).isEmpty());
    }
    // A template brings its own reminders, duration, place and repeat.
    Template preset;
    preset.name = QStringLiteral("1:1");
    preset.title = QStringLiteral("One-on-one");
    preset.location = QStringLiteral("Small meeting room");
    preset.duration_minutes = 30;
    preset.recurrence_rule = QStringLiteral("FREQ=WEEKLY");
    preset.reminders = {10, 60};
    auto form = newForm();
    form->applyTemplate(preset);
    const Event edited = form->editedEvent();
    QCOMPARE(edited.title, QStringLiteral("One-on-one"));
    QCOMPARE(edited.location, QStringLiteral("Small meeting room"));
    QCOMPARE(*edited.end_time, at(9, 10, 30));
    QCOMPARE(edited.recurrence_rule, QStringLiteral("FREQ=WEEKLY"));
    QList<int> minutes;
    for (const Reminder &reminder : edited.reminders)
        minutes.append(reminder.minutes_before);
    QCOMPARE(minutes, (QList<int>{10, 60}));
}

void TestEventForm::emptyTitle()
{
    auto form = newForm();
    field<QLineEdit>(*form, "titleEdit")->setText(QStringLiteral("   "));
    QVERIFY(field<QPushButton>(*form, "saveButton")->isEnabled());
    QVERIFY(form->save());
    QCOMPARE(m_state->events()->getById(form->savedEvent().id)->title, QStringLiteral("(No title)"));
}

void TestEventForm::timeZones()
{
    // New events are in the system's zone.
    QCOMPARE(field<QComboBox>(*newForm(), "timeZone")->currentText(), QStringLiteral("Europe/Berlin"));
    QCOMPARE(newForm()->editedEvent().timezone, QStringLiteral("Europe/Berlin"));

    const QTimeZone newYork("America/New_York");
    const QDateTime nine(QDate(2024, 1, 10), QTime(9, 0), newYork);
    auto form = formFor(store(
        timed(QStringLiteral("Standup with Toronto"), nine, nine.addSecs(1800), QStringLiteral("America/New_York"))));
    // Shown in the event's own zone, with the local time beside it.
    QCOMPARE(field<QTimeEdit>(*form, "startTime")->time(), QTime(9, 0));
    QCOMPARE(field<QTimeEdit>(*form, "endTime")->time(), QTime(9, 30));
    auto *localHint = field<QLabel>(*form, "timeHint");
    QVERIFY(localHint->isVisibleTo(form.get()));
    QVERIFY(!localHint->property("error").toBool());
    QCOMPARE(localHint->text(), QStringLiteral("Wednesday, January 10 · 15:00 – 15:30 in your time zone"));

    // Another zone keeps the wall-clock times.
    auto *zone = field<QComboBox>(*form, "timeZone");
    zone->setEditText(QStringLiteral("Asia/Tokyo"));
    const Event edited = form->editedEvent();
    QCOMPARE(edited.timezone, QStringLiteral("Asia/Tokyo"));
    QCOMPARE(edited.start_time, QDateTime(QDate(2024, 1, 10), QTime(9, 0), QTimeZone("Asia/Tokyo")));

    zone->setEditText(QStringLiteral("Mars/Olympus_Mons"));
    QVERIFY(!field<QPushButton>(*form, "saveButton")->isEnabled());
    QCOMPARE(localHint->text(), QStringLiteral("\"Mars/Olympus_Mons\" is not a time zone this computer knows."));
    QVERIFY(localHint->property("error").toBool());
    zone->setEditText(QStringLiteral("Europe/Lisbon"));
    QVERIFY(field<QPushButton>(*form, "saveButton")->isEnabled());
    QVERIFY(!localHint->property("error").toBool());
}

void TestEventForm::readOnlyCalendarOpensReadOnly()
{
    Calendar holidays;
    holidays.id = QStringLiteral("holidays");
    holidays.account_id = AppState::kLocalAccountId;
    holidays.url = QStringLiteral("https://example.com/holidays.ics");
    holidays.name = QStringLiteral("Holidays");
    holidays.is_read_only = true;
    QVERIFY(m_state->calendars()->insert(holidays));
    Event event = timed(QStringLiteral("New Year's Day"), utcDay(1), utcDay(2));
    event.calendar_id = holidays.id;
    event.is_all_day = true;
    const Event stored = store(event);

    auto form = formFor(stored);
    QVERIFY(!field<QPushButton>(*form, "saveButton")->isVisible());
    QVERIFY(!field<QLineEdit>(*form, "titleEdit")->isEnabled());
    QVERIFY(field<QPlainTextEdit>(*form, "description")->isReadOnly());
    QVERIFY(field<QLabel>(*form, "readOnlyBanner")->isVisible());
    QCOMPARE(field<QComboBox>(*form, "calendar")->currentText(), QStringLiteral("Holidays"));
    QVERIFY(!form->save());
    QCOMPARE(m_state->events()->getById(stored.id).value(), stored);
}

void TestEventForm::keyboard()
{
    {
        // Enter in the title saves.
        auto form = newForm();
        auto *title = field<QLineEdit>(*form, "titleEdit");
        QTest::keyClicks(title, QStringLiteral("Coffee with Ana"));
        QTest::keyClick(title, Qt::Key_Return);
        QCOMPARE(form->result(), int(QDialog::Accepted));
        QCOMPARE(m_state->events()->getById(form->savedEvent().id)->title, QStringLiteral("Coffee with Ana"));
    }
    {
        // So does Ctrl+Enter in the description, while a plain Enter there starts a
        // new line.
        auto form = newForm(at(10, 10), at(10, 11));
        auto *description = field<QPlainTextEdit>(*form, "description");
        QTest::keyClicks(description, QStringLiteral("line one"));
        QTest::keyClick(description, Qt::Key_Return);
        QTest::keyClicks(description, QStringLiteral("line two"));
        QCOMPARE(form->result(), int(QDialog::Rejected));
        QTest::keyClick(description, Qt::Key_Return, Qt::ControlModifier);
        QCOMPARE(form->result(), int(QDialog::Accepted));
        QCOMPARE(m_state->events()->getById(form->savedEvent().id)->description, QStringLiteral("line one\nline two"));
    }
    {
        // And Enter in the (editable) time zone box.
        auto form = newForm(at(11, 10), at(11, 11));
        QTest::keyClick(field<QComboBox>(*form, "timeZone"), Qt::Key_Return);
        QCOMPARE(form->result(), int(QDialog::Accepted));
    }
    {
        // Escape cancels without writing.
        auto form = newForm(at(12, 10), at(12, 11));
        QTest::keyClicks(field<QLineEdit>(*form, "titleEdit"), QStringLiteral("Never mind"));
        QTest::keyClick(field<QLineEdit>(*form, "titleEdit"), Qt::Key_Escape);
        QCOMPARE(form->result(), int(QDialog::Rejected));
        QVERIFY(form->isHidden());
    }
    QCOMPARE(m_state->events()->getByCalendar(AppState::kLocalCalendarId).size(), 3);
}

QTEST_MAIN(TestEventForm)
#include "tst_eventform.moc"
