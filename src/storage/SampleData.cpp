// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/SampleData.h"

#include "ical/ICal.h"
#include "storage/AccountRepository.h"
#include "storage/CalendarRepository.h"
#include "storage/Clock.h"
#include "storage/Database.h"
#include "storage/EventRepository.h"
#include "storage/LogCategories.h"
#include "storage/TaskRepository.h"

#include <QSqlError>
#include <QSqlQuery>
#include <QTimeZone>

#include <algorithm>

namespace {

const QString kAccountId = QStringLiteral("sample-account");
const QString kWork = QStringLiteral("sample-cal-work");
const QString kPersonal = QStringLiteral("sample-cal-personal");
const QString kFamily = QStringLiteral("sample-cal-family");
const QString kBirthdays = QStringLiteral("sample-cal-birthdays");

struct SampleCalendar
{
    QString id;
    const char *name;
    const char *color;
};

struct SampleEvent
{
    const char *key;
    const char *title;
    QString calendarId;
    int dayOffset;
    // Local clock time and length; an all-day event has allDays > 0 instead.
    QTime start;
    int minutes = 0;
    int allDays = 0;
    const char *location = "";
    const char *description = "";
    const char *rule = "";
};

struct SampleTask
{
    const char *key;
    const char *title;
    QString calendarId;
    int dueOffset; // days from today
    int priority = 0; // 0 = none
    bool completed = false;
    const char *description = "";
};

QList<SampleCalendar> sampleCalendars()
{
    return {
        {kWork, "Work", "#1E88E5"},
        {kPersonal, "Personal", "#43A047"},
        {kFamily, "Family", "#FB8C00"},
        {kBirthdays, "Birthdays", "#E91E63"},
    };
}

QList<SampleEvent> sampleEvents()
{
    return {
        {"yesterday-retro", "Sprint retrospective", kWork, -1, QTime(15, 0), 60, 0, "Room 4.12",
         "What went well, what did not, and one thing to change next sprint."},
        {"today-deadline", "Project Phoenix deadline", kWork, 0, QTime(), 0, 1, "",
         "Final build and release notes go to the client by the end of the day."},
        {"today-run", "Morning run", kPersonal, 0, QTime(6, 30), 45, 0, "Riverside park", "5 km easy pace."},
        {"today-standup", "Team standup", kWork, 0, QTime(9, 30), 15, 0, "Video call", "",
         "FREQ=DAILY;BYDAY=MO,TU,WE,TH,FR"},
        {"today-design", "Design review", kWork, 0, QTime(11, 0), 60, 0, "Room 2.03",
         "Walk through the new onboarding screens with the design team."},
        {"today-lunch", "Lunch with Sarah", kPersonal, 0, QTime(12, 30), 60, 0, "Café Lindenblatt"},
        {"today-sprint", "Sprint planning", kWork, 0, QTime(14, 0), 90, 0, "Room 4.12",
         "Bring estimates for the open stories.", "FREQ=WEEKLY;INTERVAL=2;BYDAY=MO,WE,FR"},
        {"today-yoga", "Yoga class", kPersonal, 0, QTime(18, 0), 60, 0, "Studio Om, Hauptstraße 12"},
        {"today-date", "Date night", kFamily, 0, QTime(19, 30), 150, 0, "Trattoria Roma",
         "Table for two is booked under our name."},
        {"tom-client", "Client presentation", kWork, 1, QTime(10, 0), 90, 0, "Client office, 3rd floor",
         "Demo of release 2.0; laptop, adapter and printed handouts."},
        {"tom-dentist", "Dentist appointment", kPersonal, 1, QTime(16, 0), 45, 0, "Dr. Weber, Marktplatz 3", "",
         "FREQ=WEEKLY"},
        {"d2-1on1", "1:1 with manager", kWork, 2, QTime(10, 0), 30, 0, "Room 1.07",
         "Career goals and feedback on the last quarter."},
        {"d2-pickup", "Pick up kids", kFamily, 2, QTime(15, 15), 30, 0, "Lindenschule", "",
         "FREQ=WEEKLY;BYDAY=MO,WE,FR"},
        {"d2-redeye", "Red-eye to Tokyo (multi-day timed)", kWork, 2, QTime(22, 45), 13 * 60 + 15, 0,
         "Airport, terminal 1", "Flight NH 204; check in online the day before."},
        {"d3-bookclub", "Book club", kPersonal, 3, QTime(19, 0), 120, 0, "Anna's place",
         "This month: \"The Left Hand of Darkness\".", "FREQ=MONTHLY;BYDAY=1TH"},
        {"d5-happy-hour", "Happy hour", kWork, 5, QTime(17, 30), 90, 0, "The Corner Pub"},
        {"d5-birthday", "Emma's birthday party", kBirthdays, 5, QTime(15, 0), 180, 0, "Playground café",
         "Emma turns 7. Present is wrapped and in the hall cupboard."},
        {"d6-conf", "DevConf 2026 (multi-day all-day)", kWork, 6, QTime(), 0, 3, "Congress Center",
         "Talks on Qt, databases and tooling; badge pick-up at the north entrance."},
    };
}

QList<SampleTask> sampleTasks()
{
    return {
        {"review-mockups", "Review design mockups", kWork, 0, 1, false, "Comments go into the design document."},
        {"q1-report", "Prepare Q1 report", kWork, 4, 5},
        {"anniversary", "Book restaurant for anniversary", kFamily, 6, 1},
        {"buy-gift", "Buy birthday gift for Mom", kFamily, 3, 5, false, "She mentioned the new gardening book."},
        {"dentist-followup", "Schedule dentist follow-up", kPersonal, 2},
        {"buy-milk", "Buy milk", kPersonal, 0},
        {"renew-license", "Renew driver's license", kPersonal, 14, 9},
        {"old-completed", "File expense report", kWork, -2, 0, true},
    };
}

const QString kUtcStamp = QStringLiteral("yyyyMMdd'T'HHmmss'Z'");
const QString kDateStamp = QStringLiteral("yyyyMMdd");

QByteArray eventText(const QString &uid, const SampleEvent &item, const QDateTime &start, const QDateTime &end)
{
    QString text = QString::fromLatin1(ICal::kCalendarHead)
        + QStringLiteral("BEGIN:VEVENT\r\nUID:%1\r\nSUMMARY:%2\r\n").arg(uid, QString::fromUtf8(item.title));
    if (item.allDays > 0) {
        text += QStringLiteral("DTSTART;VALUE=DATE:%1\r\n").arg(start.date().toString(kDateStamp));
        text += QStringLiteral("DTEND;VALUE=DATE:%1\r\n").arg(end.date().toString(kDateStamp));
    } else {
        text += QStringLiteral("DTSTART:%1\r\n").arg(start.toUTC().toString(kUtcStamp));
        text += QStringLiteral("DTEND:%1\r\n").arg(end.toUTC().toString(kUtcStamp));
    }
    if (*item.location)
        text += QStringLiteral("LOCATION:%1\r\n").arg(QString::fromUtf8(item.location));
    if (*item.description)
        text += QStringLiteral("DESCRIPTION:%1\r\n").arg(QString::fromUtf8(item.description));
    if (*item.rule)
        text += QStringLiteral("RRULE:%1\r\n").arg(QString::fromUtf8(item.rule));
    text += QStringLiteral("END:VEVENT\r\n") + QString::fromLatin1(ICal::kCalendarTail);
    return text.toUtf8();
}

QByteArray taskText(const QString &uid, const SampleTask &item, const QDate &due)
{
    QString text = QString::fromLatin1(ICal::kCalendarHead)
        + QStringLiteral("BEGIN:VTODO\r\nUID:%1\r\nSUMMARY:%2\r\nSTATUS:%3\r\n")
              .arg(uid, QString::fromUtf8(item.title),
                   item.completed ? QStringLiteral("COMPLETED") : QStringLiteral("NEEDS-ACTION"));
    if (item.priority > 0)
        text += QStringLiteral("PRIORITY:%1\r\n").arg(item.priority);
    text += QStringLiteral("DUE:%1\r\n").arg(due.toString(kDateStamp));
    text += QStringLiteral("END:VTODO\r\nEND:VCALENDAR\r\n");
    return text.toUtf8();
}

bool run(Database &database, const QString &sql, const QVariantList &values = {}, int *affected = nullptr)
{
    QSqlQuery query(database.connection());
    query.prepare(sql);
    for (const QVariant &value : values)
        query.addBindValue(value);
    if (!query.exec()) {
        qCWarning(lcDatabase).noquote() << "Sample data statement failed:" << query.lastError().text();
        return false;
    }
    if (affected)
        *affected = query.numRowsAffected();
    return true;
}

void seedAccountAndCalendars(AccountRepository &accounts, CalendarRepository &calendars)
{
    const QDateTime now = Clock::nowUtc();
    // An account removed by the user but not yet reaped still holds the id.
    const QList<Account> known = accounts.getAllIncludingDeleted();
    const bool haveAccount
        = std::any_of(known.cbegin(), known.cend(), [](const Account &account) { return account.id == kAccountId; });
    if (!haveAccount) {
        Account account;
        account.id = kAccountId;
        account.name = QStringLiteral("Sample Data");
        account.type = QStringLiteral("kettlebrook");
        account.color = QStringLiteral("#9E9E9E");
        account.created_at = now;
        account.updated_at = now;
        accounts.insert(account);
    }
    int order = 1000;
    for (const SampleCalendar &sample : sampleCalendars()) {
        order += 10;
        if (calendars.getById(sample.id))
            continue;
        Calendar calendar;
        calendar.id = sample.id;
        calendar.account_id = kAccountId;
        calendar.url = QStringLiteral("local://calendar/") + sample.id;
        calendar.name = QString::fromUtf8(sample.name);
        calendar.color = QString::fromLatin1(sample.color);
        calendar.supported_components = QStringLiteral("[\"VEVENT\"]");
        calendar.sort_order = order;
        calendar.created_at = now;
        calendar.updated_at = now;
        calendars.insert(calendar);
    }
}

} // namespace

void seedSampleData(AccountRepository &accounts, CalendarRepository &calendars, EventRepository &events,
                    TaskRepository &tasks)
{
    seedAccountAndCalendars(accounts, calendars);

    const QDateTime now = Clock::nowUtc();
    const QDate today = Clock::nowLocal().date();
    const QByteArray localZone = QTimeZone::systemTimeZoneId();
    const QString zoneName = QTimeZone(localZone).isValid() ? QString::fromUtf8(localZone) : QStringLiteral("UTC");

    for (const SampleEvent &item : sampleEvents()) {
        Event event;
        event.id = QStringLiteral("sample-event-") + QLatin1String(item.key);
        if (events.getById(event.id))
            continue;
        event.uid = event.id;
        event.calendar_id = item.calendarId;
        event.title = QString::fromUtf8(item.title);
        event.location = QString::fromUtf8(item.location);
        event.description = QString::fromUtf8(item.description);
        event.recurrence_rule = QString::fromUtf8(item.rule);
        const QDate day = today.addDays(item.dayOffset);
        if (item.allDays > 0) {
            // All-day values are midnight UTC of their dates, as the iCalendar reader gives them.
            event.is_all_day = true;
            event.start_time = QDateTime(day, QTime(0, 0), Qt::UTC);
            event.end_time = QDateTime(day.addDays(item.allDays), QTime(0, 0), Qt::UTC);
        } else {
            const QDateTime localStart(day, item.start, Qt::LocalTime);
            event.start_time = localStart.toUTC();
            event.end_time = localStart.addSecs(qint64(item.minutes) * 60).toUTC();
            event.timezone = zoneName;
        }
        event.status = QStringLiteral("confirmed");
        event.raw_icalendar = eventText(event.uid, item, event.start_time, *event.end_time);
        event.created = now;
        event.last_modified = now;
        event.sync_status = QStringLiteral("synced");
        events.insert(event);
    }

    for (const SampleTask &item : sampleTasks()) {
        Task task;
        task.id = QStringLiteral("sample-task-") + QLatin1String(item.key);
        if (tasks.getById(task.id))
            continue;
        task.uid = task.id;
        task.calendar_id = item.calendarId;
        task.title = QString::fromUtf8(item.title);
        task.description = QString::fromUtf8(item.description);
        task.priority = item.priority;
        const QDate due = today.addDays(item.dueOffset);
        task.due_date = QDateTime(due, QTime(0, 0), Qt::UTC);
        task.due_is_date_only = true;
        if (item.completed) {
            task.status = QStringLiteral("completed");
            task.percent_complete = 100;
            task.completed_date = QDateTime(today.addDays(-1), QTime(17, 40), Qt::LocalTime).toUTC();
        }
        task.raw_icalendar = taskText(task.uid, item, due);
        task.created = now;
        task.last_modified = now;
        task.sync_status = QStringLiteral("synced");
        tasks.insert(task);
    }
}

int removeSampleData(Database &database)
{
    int removed = 0;
    const QStringList statements{
        QStringLiteral("DELETE FROM events WHERE id LIKE 'sample-event-%'"),
        QStringLiteral("DELETE FROM tasks WHERE id LIKE 'sample-task-%'"),
        QStringLiteral("DELETE FROM calendars WHERE id LIKE 'sample-cal-%'"),
        QStringLiteral("DELETE FROM accounts WHERE id = 'sample-account'"),
    };
    for (const QString &sql : statements) {
        int affected = 0;
        if (run(database, sql, {}, &affected))
            removed += affected;
    }
    return removed;
}
