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
Q_DECLARE_METATYPE(EventEditor::Scope)
Q_DECLARE_METATYPE(RepeatPresets::Preset)

namespace {

const QTimeZone kBerlin("Europe/Berlin");

QDateTime at(int day, int hour, int minute = 0)
{
    return QDateTime(QDate(2024, 1, day), QTime(hour, minute), kBerlin);
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

} // namespace

// The event form: what it stores for new and existing events, series scopes, and its fields.
class TestEventForm : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();

    void scopeQuestion_data();
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
    void reminderPresets_data();
    void reminderPresets();
    void newEventReminders();
    void emptyTitle();
    void timeZones();
    void readOnlyCalendarOpensReadOnly();
    void keyboard();

private:
    Event store(Event event);
    Event dailyStandup();
    QList<Event> weekOf(const QString &calendarId) const;
    template<typename T>
    static T *field(const EventFormDialog &form, const char *name)
    {
        T *widget = form.findChild<T *>(QLatin1String(name));
        if (!widget)
            qWarning("no field %s", name);
        return widget;
    }

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
    Event event;
    event.title = QStringLiteral("Standup");
    event.start_time = at(8, 9);
    event.end_time = at(8, 10);
    event.timezone = QStringLiteral("Europe/Berlin");
    event.recurrence_rule = QStringLiteral("FREQ=DAILY");
    return store(event);
}

QList<Event> TestEventForm::weekOf(const QString &calendarId) const
{
    return Recurrence::expandEvents(m_state->events()->getByCalendar(calendarId), at(8, 0), at(15, 0));
}

void TestEventForm::scopeQuestion_data()
{
    QTest::addColumn<QString>("choice");
    QTest::addColumn<bool>("confirm");
    QTest::addColumn<bool>("answered");
    QTest::addColumn<EventEditor::Scope>("expected");
    QTest::newRow("only this") << RecurrenceScopeDialog::kThisEventName << true << true
                               << EventEditor::Scope::ThisEvent;
    QTest::newRow("following") << RecurrenceScopeDialog::kThisAndFollowingName << true << true
                               << EventEditor::Scope::ThisAndFollowing;
    QTest::newRow("all") << RecurrenceScopeDialog::kAllEventsName << true << true << EventEditor::Scope::AllEvents;
    QTest::newRow("cancelled") << RecurrenceScopeDialog::kAllEventsName << false << false
                               << EventEditor::Scope::ThisAndFollowing; // untouched
}

void TestEventForm::scopeQuestion()
{
    QFETCH(QString, choice);
    QFETCH(bool, confirm);
    QFETCH(bool, answered);
    QFETCH(EventEditor::Scope, expected);
    QString heading;
    ModalAnswer answer([&](QWidget *dialog) {
        for (QLabel *label : dialog->findChildren<QLabel *>()) {
            if (label->text() == QLatin1String("Move repeating event"))
                heading = label->text();
        }
        dialog->findChild<QRadioButton *>(choice)->click();
        if (confirm)
            dialog->findChild<QPushButton *>(QLatin1String(RecurrenceScopeDialog::kConfirmName))->click();
        else
            QTest::keyClick(dialog, Qt::Key_Escape);
    });
    EventEditor::Scope scope = EventEditor::Scope::ThisAndFollowing;
    QCOMPARE(RecurrenceScopeDialog::ask(nullptr, &scope, QStringLiteral("Move repeating event")), answered);
    QVERIFY(answer.seen());
    QCOMPARE(answer.title(), QStringLiteral("Move repeating event"));
    QCOMPARE(heading, QStringLiteral("Move repeating event"));
    QCOMPARE(scope, expected);
}

void TestEventForm::occurrenceEdit_data()
{
    QTest::addColumn<QString>("choice");
    QTest::addColumn<int>("rows");
    QTest::addColumn<QList<int>>("hours"); // start hour of each day of the week, Monday first

    QTest::newRow("only this event: an override")
        << RecurrenceScopeDialog::kThisEventName << 2 << QList<int>{9, 9, 11, 9, 9, 9, 9};
    QTest::newRow("this and following: a split")
        << RecurrenceScopeDialog::kThisAndFollowingName << 2 << QList<int>{9, 9, 11, 11, 11, 11, 11};
    QTest::newRow("all events: the master shifts")
        << RecurrenceScopeDialog::kAllEventsName << 1 << QList<int>{11, 11, 11, 11, 11, 11, 11};
}

void TestEventForm::occurrenceEdit()
{
    QFETCH(QString, choice);
    QFETCH(int, rows);
    QFETCH(QList<int>, hours);

    const Event master = dailyStandup();
    const QList<Event> before = weekOf(master.calendar_id);
    QCOMPARE(before.size(), 7);
    const Event wednesday = before.at(2);
    QCOMPARE(wednesday.recurrence_id, QStringLiteral("20240110T080000Z"));

    EventFormDialog form(m_state.get(), m_editor.get());
    form.setEvent(wednesday);
    form.show();
    field<QLineEdit>(form, "titleEdit")->setText(QStringLiteral("Standup (late)"));
    field<QTimeEdit>(form, "startTime")->setTime(QTime(11, 0));
    QCOMPARE(field<QTimeEdit>(form, "endTime")->time(), QTime(12, 0));

    ModalAnswer answer([&](QWidget *dialog) {
        dialog->findChild<QRadioButton *>(choice)->click();
        dialog->findChild<QPushButton *>(QLatin1String(RecurrenceScopeDialog::kConfirmName))->click();
    });
    QVERIFY(form.save());
    QVERIFY(answer.seen());
    QCOMPARE(answer.title(), QStringLiteral("Save repeating event"));

    const QList<Event> stored = m_state->events()->getByCalendar(master.calendar_id);
    QCOMPARE(stored.size(), rows);
    const Event storedMaster = m_state->events()->getById(master.id).value();
    // The saved event is the override, the new series, or the master that moved with it.
    const Event saved = form.savedEvent();
    const int savedDay = choice == QLatin1String(RecurrenceScopeDialog::kAllEventsName) ? 8 : 10;
    QCOMPARE(saved.start_time, at(savedDay, 11));
    QCOMPARE(*saved.end_time, at(savedDay, 12));
    QCOMPARE(saved.title, QStringLiteral("Standup (late)"));
    QCOMPARE(saved.sync_status, QStringLiteral("pending"));

    if (choice == QLatin1String(RecurrenceScopeDialog::kThisEventName)) {
        QVERIFY(saved.id != master.id);
        QCOMPARE(saved.master_event_uid, master.uid);
        QCOMPARE(saved.recurrence_id, QStringLiteral("20240110T080000Z"));
        QVERIFY(saved.recurrence_rule.isEmpty());
        QCOMPARE(storedMaster.title, QStringLiteral("Standup"));
        QCOMPARE(storedMaster.recurrence_rule, QStringLiteral("FREQ=DAILY"));
    } else if (choice == QLatin1String(RecurrenceScopeDialog::kThisAndFollowingName)) {
        QVERIFY(saved.id != master.id);
        QCOMPARE(saved.recurrence_rule, QStringLiteral("FREQ=DAILY"));
        QCOMPARE(storedMaster.recurrence_rule, QStringLiteral("FREQ=DAILY;UNTIL=20240110T075959Z"));
        QCOMPARE(storedMaster.title, QStringLiteral("Standup"));
    } else {
        QCOMPARE(saved.id, master.id);
        QCOMPARE(storedMaster.start_time, at(8, 11));
        QCOMPARE(*storedMaster.end_time, at(8, 12));
        QCOMPARE(storedMaster.recurrence_rule, QStringLiteral("FREQ=DAILY"));
    }

    const QList<Event> after = weekOf(master.calendar_id);
    QCOMPARE(after.size(), 7);
    for (int day = 0; day < 7; ++day) {
        const Event &occurrence = after.at(day);
        QCOMPARE(occurrence.start_time.toLocalTime().date(), QDate(2024, 1, 8 + day));
        QCOMPARE(occurrence.start_time.toLocalTime().time().hour(), hours.at(day));
        QCOMPARE(occurrence.title, hours.at(day) == 11 ? QStringLiteral("Standup (late)") : QStringLiteral("Standup"));
    }
}

void TestEventForm::repeatChangeNeedsWiderScope()
{
    const Event master = dailyStandup();
    const Event tuesday = weekOf(master.calendar_id).at(1);
    EventFormDialog form(m_state.get(), m_editor.get());
    form.setEvent(tuesday);
    form.show();
    auto *repeat = field<QComboBox>(form, "repeat");
    repeat->setCurrentIndex(repeat->findData(int(RepeatPresets::Preset::Weekly)));
    ModalAnswer answer([](QWidget *dialog) {
        dialog->findChild<QPushButton *>(QLatin1String(RecurrenceScopeDialog::kConfirmName))->click();
    });
    QVERIFY(!form.save());
    QVERIFY(answer.seen());
    QVERIFY(field<QLabel>(form, "formError")->isVisibleTo(&form));
    QCOMPARE(m_state->events()->getByCalendar(master.calendar_id).size(), 1);
    QCOMPARE(m_state->events()->getById(master.id)->recurrence_rule, QStringLiteral("FREQ=DAILY"));
}

void TestEventForm::roundTrip_data()
{
    QTest::addColumn<Event>("event");

    Event full;
    full.title = QStringLiteral("Design review");
    full.location = QStringLiteral("Room 4.12, Building B");
    full.description = QStringLiteral("Agenda:\n- onboarding flow\n- empty states");
    full.color = QStringLiteral("#30A46C");
    full.timezone = QStringLiteral("Europe/Berlin");
    full.start_time = at(9, 10);
    full.end_time = at(9, 11, 30);
    full.conference_url = QStringLiteral("https://meet.example.com/abc-defg");
    full.organizer_email = QStringLiteral("maya@example.com");
    full.organizer_name = QStringLiteral("Maya Chen");
    Reminder tenMinutes;
    tenMinutes.minutes_before = 10;
    Reminder oneDay;
    oneDay.minutes_before = 1440;
    full.reminders = {tenMinutes, oneDay};
    Attendee attendee;
    attendee.email = QStringLiteral("jonas@example.com");
    attendee.name = QStringLiteral("Jonas Weber");
    attendee.status = QStringLiteral("accepted");
    full.attendees = {attendee};
    QTest::newRow("timed with every field") << full;

    Event allDay;
    allDay.title = QStringLiteral("Offsite");
    allDay.is_all_day = true;
    allDay.start_time = QDateTime(QDate(2024, 1, 9), QTime(0, 0), QTimeZone::utc());
    allDay.end_time = QDateTime(QDate(2024, 1, 12), QTime(0, 0), QTimeZone::utc());
    QTest::newRow("all-day over three days") << allDay;

    Event quickAllDay;
    quickAllDay.title = QStringLiteral("Mum's birthday");
    quickAllDay.is_all_day = true;
    quickAllDay.start_time = at(14, 0); // quick entry writes local midnight
    quickAllDay.end_time = at(15, 0);
    QTest::newRow("all-day at local midnight") << quickAllDay;

    Event newYork;
    newYork.title = QStringLiteral("Call with the New York office");
    newYork.timezone = QStringLiteral("America/New_York");
    newYork.start_time = QDateTime(QDate(2024, 1, 10), QTime(9, 0), QTimeZone("America/New_York"));
    newYork.end_time = newYork.start_time.addSecs(2700);
    QTest::newRow("another zone") << newYork;

    Event utc;
    utc.title = QStringLiteral("Release window");
    utc.start_time = QDateTime(QDate(2024, 1, 11), QTime(8, 0), QTimeZone::utc());
    utc.end_time = utc.start_time.addSecs(7200);
    QTest::newRow("UTC") << utc;

    Event noEnd;
    noEnd.title = QStringLiteral("Parcel arrives");
    noEnd.timezone = QStringLiteral("Europe/Berlin");
    noEnd.start_time = at(12, 14);
    QTest::newRow("no end") << noEnd;

    Event unknownZone;
    unknownZone.title = QStringLiteral("Imported with a private zone");
    unknownZone.timezone = QStringLiteral("Custom/Headquarters");
    unknownZone.start_time = QDateTime(QDate(2024, 1, 9), QTime(10, 0), QTimeZone(5 * 3600));
    unknownZone.end_time = unknownZone.start_time.addSecs(3600);
    QTest::newRow("zone this computer does not know") << unknownZone;

    Event custom;
    custom.title = QStringLiteral("Piano lesson");
    custom.timezone = QStringLiteral("Europe/Berlin");
    custom.start_time = at(9, 17);
    custom.end_time = at(9, 18);
    custom.recurrence_rule = QStringLiteral("FREQ=WEEKLY;INTERVAL=2;BYDAY=TU,TH");
    QTest::newRow("series with a custom rule") << custom;

    Event lowerCase = custom;
    lowerCase.title = QStringLiteral("Stretch");
    lowerCase.recurrence_rule = QStringLiteral("freq=daily");
    QTest::newRow("series with a rule in lower case") << lowerCase;
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
        // Opened and saved without a change: the form describes the event exactly and writes nothing.
        EventFormDialog form(m_state.get(), m_editor.get());
        form.setEvent(opened);
        QCOMPARE(form.editedEvent(), opened);
        QVERIFY(form.save());
        QCOMPARE(m_state->events()->getById(stored.id).value(), stored);
    }

    // A new title only: everything else stays as it was.
    EventFormDialog form(m_state.get(), m_editor.get());
    form.setEvent(opened);
    form.show();
    field<QLineEdit>(form, "titleEdit")->setText(stored.title + QStringLiteral(" (moved)"));
    ModalAnswer answer([](QWidget *dialog) {
        dialog->findChild<QRadioButton *>(QLatin1String(RecurrenceScopeDialog::kAllEventsName))->click();
        dialog->findChild<QPushButton *>(QLatin1String(RecurrenceScopeDialog::kConfirmName))->click();
    });
    QVERIFY(form.save());
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
    QTest::addColumn<bool>("valid");
    QTest::addColumn<QString>("stored");

    QTest::newRow("does not repeat") << Preset::None << QString() << true << QString();
    QTest::newRow("daily") << Preset::Daily << QString() << true << QStringLiteral("FREQ=DAILY");
    QTest::newRow("weekdays") << Preset::Weekdays << QString() << true
                              << QStringLiteral("FREQ=WEEKLY;BYDAY=MO,TU,WE,TH,FR");
    QTest::newRow("weekly") << Preset::Weekly << QString() << true << QStringLiteral("FREQ=WEEKLY");
    QTest::newRow("monthly") << Preset::Monthly << QString() << true << QStringLiteral("FREQ=MONTHLY");
    QTest::newRow("yearly") << Preset::Yearly << QString() << true << QStringLiteral("FREQ=YEARLY");
    QTest::newRow("custom") << Preset::Custom << QStringLiteral("FREQ=WEEKLY;INTERVAL=2;BYDAY=MO,TH") << true
                            << QStringLiteral("FREQ=WEEKLY;INTERVAL=2;BYDAY=MO,TH");
    QTest::newRow("custom with prefix and blanks") << Preset::Custom << QStringLiteral("  RRULE:FREQ=MONTHLY;COUNT=6 ")
                                                   << true << QStringLiteral("FREQ=MONTHLY;COUNT=6");
    QTest::newRow("custom hourly") << Preset::Custom << QStringLiteral("FREQ=HOURLY") << false << QString();
    QTest::newRow("custom words") << Preset::Custom << QStringLiteral("every tuesday") << false << QString();
    QTest::newRow("custom empty") << Preset::Custom << QStringLiteral(" ") << false << QString();
}

void TestEventForm::repeatPresetToRule()
{
    QFETCH(RepeatPresets::Preset, preset);
    QFETCH(QString, typed);
    QFETCH(bool, valid);
    QFETCH(QString, stored);

    EventFormDialog form(m_state.get(), m_editor.get());
    form.setNewEvent(at(9, 10), at(9, 11), false);
    form.show();
    field<QLineEdit>(form, "titleEdit")->setText(QStringLiteral("Gym"));
    auto *repeat = field<QComboBox>(form, "repeat");
    repeat->setCurrentIndex(repeat->findData(int(preset)));
    auto *custom = field<QLineEdit>(form, "customRule");
    QCOMPARE(custom->isVisibleTo(&form), preset == RepeatPresets::Preset::Custom);
    if (preset == RepeatPresets::Preset::Custom)
        custom->setText(typed);

    auto *save = field<QPushButton>(form, "saveButton");
    auto *hint = field<QLabel>(form, "ruleHint");
    QCOMPARE(save->isEnabled(), valid);
    QCOMPARE(hint->property("error").toBool(), !valid);
    QCOMPARE(form.save(), valid);
    const QList<Event> events = m_state->events()->getByCalendar(AppState::kLocalCalendarId);
    if (preset == RepeatPresets::Preset::Custom && valid) // a valid rule is read back in words
        QVERIFY(hint->text().startsWith(QLatin1String("Every")));
    if (!valid) {
        QVERIFY(hint->isVisibleTo(&form));
        QCOMPARE(hint->text(),
                 QStringLiteral("This calendar repeats by FREQ=DAILY, FREQ=WEEKLY, FREQ=MONTHLY or "
                                "FREQ=YEARLY; start the rule with one of them."));
        QVERIFY(events.isEmpty());
        return;
    }
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

    QTest::newRow("none") << QString() << Preset::None;
    QTest::newRow("daily") << QStringLiteral("FREQ=DAILY") << Preset::Daily;
    QTest::newRow("weekdays") << QStringLiteral("FREQ=WEEKLY;BYDAY=MO,TU,WE,TH,FR") << Preset::Weekdays;
    QTest::newRow("weekly") << QStringLiteral("FREQ=WEEKLY") << Preset::Weekly;
    QTest::newRow("monthly") << QStringLiteral("FREQ=MONTHLY") << Preset::Monthly;
    QTest::newRow("yearly") << QStringLiteral("FREQ=YEARLY") << Preset::Yearly;
    QTest::newRow("weekly, lower case, trailing separator") << QStringLiteral("freq=weekly;") << Preset::Weekly;
    QTest::newRow("weekly on one day") << QStringLiteral("FREQ=WEEKLY;BYDAY=TU") << Preset::Custom;
    QTest::newRow("daily with a count") << QStringLiteral("FREQ=DAILY;COUNT=10") << Preset::Custom;
    QTest::newRow("weekdays in another order") << QStringLiteral("FREQ=WEEKLY;BYDAY=FR,MO,TU,WE,TH") << Preset::Custom;
}

void TestEventForm::storedRuleToPreset()
{
    QFETCH(QString, rule);
    QFETCH(RepeatPresets::Preset, preset);
    Event event;
    event.title = QStringLiteral("Run");
    event.timezone = QStringLiteral("Europe/Berlin");
    event.start_time = at(9, 7);
    event.end_time = at(9, 8);
    event.recurrence_rule = rule;
    const Event stored = store(event);
    const Event opened = rule.isEmpty() ? stored : Recurrence::expandSeries(stored, at(9, 0), at(10, 0)).value(0);

    EventFormDialog form(m_state.get(), m_editor.get());
    form.setEvent(opened);
    form.show();
    QCOMPARE(RepeatPresets::Preset(field<QComboBox>(form, "repeat")->currentData().toInt()), preset);
    auto *custom = field<QLineEdit>(form, "customRule");
    QCOMPARE(custom->isVisibleTo(&form), preset == RepeatPresets::Preset::Custom);
    if (preset == RepeatPresets::Preset::Custom)
        QCOMPARE(custom->text(), rule);
    // The rule is kept exactly as written as long as the choice is not changed.
    QCOMPARE(form.editedEvent().recurrence_rule, rule);
}

void TestEventForm::allDayEndIsExclusive()
{
    {
        EventFormDialog form(m_state.get(), m_editor.get());
        form.setNewEvent(QDateTime(QDate(2024, 1, 9), QTime(0, 0)), QDateTime(QDate(2024, 1, 10), QTime(0, 0)), true);
        form.show();
        QVERIFY(field<QCheckBox>(form, "allDay")->isChecked());
        QVERIFY(!field<QTimeEdit>(form, "startTime")->isVisibleTo(&form));
        QVERIFY(!field<QComboBox>(form, "timeZone")->isVisibleTo(&form));
        QCOMPARE(field<QDateEdit>(form, "endDate")->date(), QDate(2024, 1, 9));
        field<QDateEdit>(form, "endDate")->setDate(QDate(2024, 1, 11));
        field<QLineEdit>(form, "titleEdit")->setText(QStringLiteral("Conference"));
        QVERIFY(form.save());
        const Event saved = m_state->events()->getById(form.savedEvent().id).value();
        QVERIFY(saved.is_all_day);
        QCOMPARE(saved.start_time, QDateTime(QDate(2024, 1, 9), QTime(0, 0), QTimeZone::utc()));
        QCOMPARE(*saved.end_time, QDateTime(QDate(2024, 1, 12), QTime(0, 0), QTimeZone::utc()));
        QVERIFY(saved.raw_icalendar.contains("DTSTART;VALUE=DATE:20240109\r\n"));
        QVERIFY(saved.raw_icalendar.contains("DTEND;VALUE=DATE:20240112\r\n"));

        // Opened again, it shows its last day, not the exclusive end.
        EventFormDialog again(m_state.get(), m_editor.get());
        again.setEvent(saved);
        QCOMPARE(again.findChild<QDateEdit *>(QStringLiteral("startDate"))->date(), QDate(2024, 1, 9));
        QCOMPARE(again.findChild<QDateEdit *>(QStringLiteral("endDate"))->date(), QDate(2024, 1, 11));
    }
    {
        // A timed event made all-day covers the day it was on; made timed again, it gets its hours back.
        EventFormDialog form(m_state.get(), m_editor.get());
        form.setNewEvent(at(9, 10), at(9, 11), false);
        form.show();
        auto *allDay = field<QCheckBox>(form, "allDay");
        allDay->setChecked(true);
        QCOMPARE(field<QDateEdit>(form, "endDate")->date(), QDate(2024, 1, 9));
        Event edited = form.editedEvent();
        QCOMPARE(edited.start_time, QDateTime(QDate(2024, 1, 9), QTime(0, 0), QTimeZone::utc()));
        QCOMPARE(*edited.end_time, QDateTime(QDate(2024, 1, 10), QTime(0, 0), QTimeZone::utc()));
        QCOMPARE(edited.timezone, QStringLiteral("UTC"));
        allDay->setChecked(false);
        edited = form.editedEvent();
        QCOMPARE(edited.start_time, at(9, 10));
        QCOMPARE(*edited.end_time, at(9, 11));
        QCOMPARE(edited.timezone, QStringLiteral("Europe/Berlin"));
    }
    {
        // A timed event ending at midnight becomes a one-day event, not two.
        EventFormDialog form(m_state.get(), m_editor.get());
        form.setNewEvent(at(9, 20), at(10, 0), false);
        field<QCheckBox>(form, "allDay")->setChecked(true);
        QCOMPARE(*form.editedEvent().end_time, QDateTime(QDate(2024, 1, 10), QTime(0, 0), QTimeZone::utc()));
    }
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
        << true << QDateTime(QDate(2024, 1, 9), QTime(0, 0), QTimeZone::utc())
        << QDateTime(QDate(2024, 1, 12), QTime(0, 0), QTimeZone::utc()) << QDate(2024, 1, 15) << QTime()
        << QDateTime(QDate(2024, 1, 18), QTime(0, 0), QTimeZone::utc());
}

void TestEventForm::endFollowsStart()
{
    QFETCH(bool, allDay);
    QFETCH(QDateTime, start);
    QFETCH(QDateTime, end);
    QFETCH(QDate, newDate);
    QFETCH(QTime, newTime);
    QFETCH(QDateTime, expectedEnd);

    EventFormDialog form(m_state.get(), m_editor.get());
    form.setNewEvent(start, end, allDay);
    form.show();
    field<QDateEdit>(form, "startDate")->setDate(newDate);
    if (newTime.isValid())
        field<QTimeEdit>(form, "startTime")->setTime(newTime);
    const Event edited = form.editedEvent();
    QCOMPARE(edited.start_time.date(), newDate);
    QCOMPARE(*edited.end_time, expectedEnd);
    QVERIFY(field<QPushButton>(form, "saveButton")->isEnabled());
}

void TestEventForm::endBeforeStartBlocksSave()
{
    EventFormDialog form(m_state.get(), m_editor.get());
    form.setNewEvent(at(9, 10), at(9, 11), false);
    form.show();
    field<QTimeEdit>(form, "endTime")->setTime(QTime(9, 30));
    auto *error = field<QLabel>(form, "timeHint");
    QVERIFY(error->isVisibleTo(&form));
    QVERIFY(error->property("error").toBool());
    QCOMPARE(error->text(), QStringLiteral("The event ends before it starts."));
    QVERIFY(!field<QPushButton>(form, "saveButton")->isEnabled());
    QVERIFY(!form.save());
    QVERIFY(m_state->events()->getByCalendar(AppState::kLocalCalendarId).isEmpty());

    // Moving the end to the next day makes it a valid overnight event.
    field<QDateEdit>(form, "endDate")->setDate(QDate(2024, 1, 10));
    QVERIFY(!error->isVisibleTo(&form));
    QCOMPARE(*form.editedEvent().end_time, at(10, 9, 30));

    // An all-day event's last day before its first is refused the same way.
    field<QCheckBox>(form, "allDay")->setChecked(true);
    field<QDateEdit>(form, "endDate")->setDate(QDate(2024, 1, 8));
    QVERIFY(!field<QPushButton>(form, "saveButton")->isEnabled());
}

void TestEventForm::calendarPreselection_data()
{
    QTest::addColumn<QString>("preference");
    QTest::addColumn<QString>("defaultId");
    QTest::addColumn<QString>("expected");

    const QString personal = AppState::kLocalCalendarId;
    QTest::newRow("preference names a writable calendar") << "work"
                                                          << "team"
                                                          << "work";
    QTest::newRow("preference names a read-only calendar") << "holidays"
                                                           << "team"
                                                           << "team";
    QTest::newRow("preference names no calendar") << "gone"
                                                  << "team"
                                                  << "team";
    QTest::newRow("no preference") << ""
                                   << "team"
                                   << "team";
    QTest::newRow("default calendar is read-only") << ""
                                                   << "holidays" << personal;
}

void TestEventForm::calendarPreselection()
{
    QFETCH(QString, preference);
    QFETCH(QString, defaultId);
    QFETCH(QString, expected);

    const auto addCalendar = [this](const QString &id, const QString &name, int order, bool readOnly) {
        Calendar calendar;
        calendar.id = id;
        calendar.account_id = AppState::kLocalAccountId;
        calendar.url = QStringLiteral("local://calendar/") + id;
        calendar.name = name;
        calendar.sort_order = order;
        calendar.is_read_only = readOnly;
        QVERIFY(m_state->calendars()->insert(calendar));
    };
    addCalendar(QStringLiteral("holidays"), QStringLiteral("Holidays"), 5, true);
    addCalendar(QStringLiteral("work"), QStringLiteral("Work"), 10, false);
    addCalendar(QStringLiteral("team"), QStringLiteral("Team"), 20, false);
    QVERIFY(m_state->calendars()->setDefault(defaultId));
    if (!preference.isEmpty())
        m_state->preferences()->setValue(QStringLiteral("ui/defaultCalendarId"), preference);

    EventFormDialog form(m_state.get(), m_editor.get());
    form.setNewEvent(at(9, 10), at(9, 11), false);
    auto *calendar = field<QComboBox>(form, "calendar");
    QCOMPARE(calendar->currentData().toString(), expected);
    QStringList offered;
    for (int i = 0; i < calendar->count(); ++i)
        offered.append(calendar->itemData(i).toString());
    offered.sort();
    QCOMPARE(offered, (QStringList{AppState::kLocalCalendarId, QStringLiteral("team"), QStringLiteral("work")}));
    QCOMPARE(form.editedEvent().calendar_id, expected);
}

void TestEventForm::reminderPresets_data()
{
    QTest::addColumn<int>("minutes");
    QTest::addColumn<QString>("label");
    QTest::newRow("at the start") << 0 << "At time of event";
    QTest::newRow("5 minutes") << 5 << "5 min before";
    QTest::newRow("10 minutes") << 10 << "10 min before";
    QTest::newRow("30 minutes") << 30 << "30 min before";
    QTest::newRow("1 hour") << 60 << "1 hour(s) before";
    QTest::newRow("1 day") << 1440 << "1 day(s) before";
}

void TestEventForm::reminderPresets()
{
    QFETCH(int, minutes);
    QFETCH(QString, label);

    EventFormDialog form(m_state.get(), m_editor.get());
    form.setNewEvent(at(9, 10), at(9, 11), false);
    form.show();
    auto *menu = field<QMenu>(form, "addReminderMenu");
    emit menu->aboutToShow();
    QAction *offered = nullptr;
    for (QAction *action : menu->actions()) {
        if (action->text() == label)
            offered = action;
        // The default reminder is already there and is not offered twice.
        if (action->text() == QLatin1String("15 min before"))
            QVERIFY(!action->isEnabled());
    }
    QVERIFY(offered);
    QVERIFY(offered->isEnabled());
    offered->trigger();

    QStringList shown;
    for (QLabel *row : form.findChildren<QLabel *>(QStringLiteral("reminderLabel")))
        shown.append(row->text());
    QVERIFY(shown.contains(label));
    QVERIFY(shown.contains(QStringLiteral("15 min before")));
    QCOMPARE(shown.size(), 2);

    field<QLineEdit>(form, "titleEdit")->setText(QStringLiteral("Flight"));
    QVERIFY(form.save());
    QList<int> stored;
    const Event saved = m_state->events()->getById(form.savedEvent().id).value();
    for (const Reminder &reminder : saved.reminders)
        stored.append(reminder.minutes_before);
    std::sort(stored.begin(), stored.end());
    QList<int> expected{15, minutes};
    std::sort(expected.begin(), expected.end());
    QCOMPARE(stored, expected);
}

void TestEventForm::newEventReminders()
{
    {
        EventFormDialog form(m_state.get(), m_editor.get());
        form.setNewEvent(at(9, 10), at(9, 11), false);
        form.show();
        QCOMPARE(form.editedEvent().reminders.size(), 1);
        QCOMPARE(form.editedEvent().reminders.first().minutes_before, 15);
        // Removing the only reminder leaves none.
        form.findChild<QToolButton *>(QStringLiteral("removeReminder"))->click();
        QVERIFY(form.editedEvent().reminders.isEmpty());
        QVERIFY(form.findChildren<QLabel *>(QStringLiteral("reminderLabel")).isEmpty());
    }
    {
        // A template brings its own reminders, duration, place and repeat.
        Template preset;
        preset.name = QStringLiteral("1:1");
        preset.title = QStringLiteral("One-on-one");
        preset.location = QStringLiteral("Small meeting room");
        preset.duration_minutes = 30;
        preset.recurrence_rule = QStringLiteral("FREQ=WEEKLY");
        preset.reminders = {10, 60};
        EventFormDialog form(m_state.get(), m_editor.get());
        form.setNewEvent(at(9, 10), at(9, 11), false);
        form.applyTemplate(preset);
        const Event edited = form.editedEvent();
        QCOMPARE(edited.title, QStringLiteral("One-on-one"));
        QCOMPARE(edited.location, QStringLiteral("Small meeting room"));
        QCOMPARE(*edited.end_time, at(9, 10, 30));
        QCOMPARE(edited.recurrence_rule, QStringLiteral("FREQ=WEEKLY"));
        QList<int> minutes;
        for (const Reminder &reminder : edited.reminders)
            minutes.append(reminder.minutes_before);
        QCOMPARE(minutes, (QList<int>{10, 60}));
    }
}

void TestEventForm::emptyTitle()
{
    EventFormDialog form(m_state.get(), m_editor.get());
    form.setNewEvent(at(9, 10), at(9, 11), false);
    form.show();
    field<QLineEdit>(form, "titleEdit")->setText(QStringLiteral("   "));
    QVERIFY(field<QPushButton>(form, "saveButton")->isEnabled());
    QVERIFY(form.save());
    QCOMPARE(m_state->events()->getById(form.savedEvent().id)->title, QStringLiteral("(No title)"));
}

void TestEventForm::timeZones()
{
    {
        // New events are in the system's zone.
        EventFormDialog form(m_state.get(), m_editor.get());
        form.setNewEvent(at(9, 10), at(9, 11), false);
        QCOMPARE(form.findChild<QComboBox *>(QStringLiteral("timeZone"))->currentText(),
                 QStringLiteral("Europe/Berlin"));
        QCOMPARE(form.editedEvent().timezone, QStringLiteral("Europe/Berlin"));
    }

    Event call;
    call.title = QStringLiteral("Standup with Toronto");
    call.timezone = QStringLiteral("America/New_York");
    call.start_time = QDateTime(QDate(2024, 1, 10), QTime(9, 0), QTimeZone("America/New_York"));
    call.end_time = call.start_time.addSecs(1800);
    const Event stored = store(call);

    EventFormDialog form(m_state.get(), m_editor.get());
    form.setEvent(stored);
    form.show();
    // Shown in the event's own zone, with the local time beside it.
    QCOMPARE(field<QTimeEdit>(form, "startTime")->time(), QTime(9, 0));
    QCOMPARE(field<QTimeEdit>(form, "endTime")->time(), QTime(9, 30));
    auto *localHint = field<QLabel>(form, "timeHint");
    QVERIFY(localHint->isVisibleTo(&form));
    QVERIFY(!localHint->property("error").toBool());
    QCOMPARE(localHint->text(), QStringLiteral("Wednesday, January 10 · 15:00 – 15:30 in your time zone"));

    // Another zone keeps the wall-clock times.
    auto *zone = field<QComboBox>(form, "timeZone");
    zone->setEditText(QStringLiteral("Asia/Tokyo"));
    Event edited = form.editedEvent();
    QCOMPARE(edited.timezone, QStringLiteral("Asia/Tokyo"));
    QCOMPARE(edited.start_time, QDateTime(QDate(2024, 1, 10), QTime(9, 0), QTimeZone("Asia/Tokyo")));

    zone->setEditText(QStringLiteral("Mars/Olympus_Mons"));
    QVERIFY(!field<QPushButton>(form, "saveButton")->isEnabled());
    QCOMPARE(localHint->text(), QStringLiteral("\"Mars/Olympus_Mons\" is not a time zone this computer knows."));
    QVERIFY(localHint->property("error").toBool());
    zone->setEditText(QStringLiteral("Europe/Lisbon"));
    QVERIFY(field<QPushButton>(form, "saveButton")->isEnabled());
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
    Event event;
    event.calendar_id = holidays.id;
    event.title = QStringLiteral("New Year's Day");
    event.is_all_day = true;
    event.start_time = QDateTime(QDate(2024, 1, 1), QTime(0, 0), QTimeZone::utc());
    event.end_time = event.start_time.addDays(1);
    const Event stored = store(event);

    EventFormDialog form(m_state.get(), m_editor.get());
    form.setEvent(stored);
    form.show();
    QVERIFY(!field<QPushButton>(form, "saveButton")->isVisible());
    QVERIFY(!field<QLineEdit>(form, "titleEdit")->isEnabled());
    QVERIFY(field<QPlainTextEdit>(form, "description")->isReadOnly());
    QVERIFY(field<QLabel>(form, "readOnlyBanner")->isVisible());
    QCOMPARE(field<QComboBox>(form, "calendar")->currentText(), QStringLiteral("Holidays"));
    QVERIFY(!form.save());
    QCOMPARE(m_state->events()->getById(stored.id).value(), stored);
}

void TestEventForm::keyboard()
{
    {
        // Enter in the title saves.
        EventFormDialog form(m_state.get(), m_editor.get());
        form.setNewEvent(at(9, 10), at(9, 11), false);
        form.show();
        auto *title = field<QLineEdit>(form, "titleEdit");
        QTest::keyClicks(title, QStringLiteral("Coffee with Ana"));
        QTest::keyClick(title, Qt::Key_Return);
        QCOMPARE(form.result(), int(QDialog::Accepted));
        QCOMPARE(m_state->events()->getById(form.savedEvent().id)->title, QStringLiteral("Coffee with Ana"));
    }
    {
        // So does Enter in the (editable) time zone box, and Ctrl+Enter in the description, while
        // a plain Enter there starts a new line.
        EventFormDialog form(m_state.get(), m_editor.get());
        form.setNewEvent(at(10, 10), at(10, 11), false);
        form.show();
        auto *description = field<QPlainTextEdit>(form, "description");
        QTest::keyClicks(description, QStringLiteral("line one"));
        QTest::keyClick(description, Qt::Key_Return);
        QTest::keyClicks(description, QStringLiteral("line two"));
        QCOMPARE(form.result(), int(QDialog::Rejected));
        QCOMPARE(description->toPlainText(), QStringLiteral("line one\nline two"));
        QTest::keyClick(description, Qt::Key_Return, Qt::ControlModifier);
        QCOMPARE(form.result(), int(QDialog::Accepted));
        QCOMPARE(m_state->events()->getById(form.savedEvent().id)->description, QStringLiteral("line one\nline two"));

        EventFormDialog zoneForm(m_state.get(), m_editor.get());
        zoneForm.setNewEvent(at(11, 10), at(11, 11), false);
        zoneForm.show();
        QTest::keyClick(field<QComboBox>(zoneForm, "timeZone"), Qt::Key_Return);
        QCOMPARE(zoneForm.result(), int(QDialog::Accepted));
    }
    {
        // Escape cancels without writing.
        EventFormDialog form(m_state.get(), m_editor.get());
        form.setNewEvent(at(12, 10), at(12, 11), false);
        form.show();
        QTest::keyClicks(field<QLineEdit>(form, "titleEdit"), QStringLiteral("Never mind"));
        QTest::keyClick(field<QLineEdit>(form, "titleEdit"), Qt::Key_Escape);
        QCOMPARE(form.result(), int(QDialog::Rejected));
        QVERIFY(form.isHidden());
    }
    QCOMPARE(m_state->events()->getByCalendar(AppState::kLocalCalendarId).size(), 3);
}

QTEST_MAIN(TestEventForm)
#include "tst_eventform.moc"
