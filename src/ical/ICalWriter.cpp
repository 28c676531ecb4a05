// SPDX-License-Identifier: GPL-3.0-or-later
// The calendar objects the program writes itself. Values are written as they are: nothing is
// escaped or folded, on purpose, because the stored text must stay byte-for-byte what was sent.
#include "ical/ICal.h"

#include "storage/Clock.h"

namespace {

const QString kUtcStamp = QStringLiteral("yyyyMMdd'T'HHmmss'Z'");

QString utcText(const QDateTime &value)
{
    return value.toUTC().toString(kUtcStamp);
}

} // namespace

namespace ICal {

QByteArray buildEventIcs(const Event &event)
{
    const QString start = utcText(event.start_time);
    const QString end = event.end_time ? utcText(*event.end_time) : start;
    QString text = QString::fromLatin1(kCalendarHead)
        + QStringLiteral("BEGIN:VEVENT\r\nUID:%1\r\nSUMMARY:%2\r\nDTSTART:%3\r\nDTEND:%4\r\n")
              .arg(event.uid, event.title, start, end);
    if (!event.related_to_uid.isEmpty())
        text += QStringLiteral("RELATED-TO;RELTYPE=PARENT:%1\r\n").arg(event.related_to_uid);
    text += QStringLiteral("END:VEVENT\r\n") + QString::fromLatin1(kCalendarTail);
    return text.toUtf8();
}

QByteArray buildTaskIcs(const Task &task)
{
    const QString status = task.status.isEmpty() ? QStringLiteral("NEEDS-ACTION") : task.status.toUpper();
    QString text = QString::fromLatin1(kCalendarHead)
        + QStringLiteral("BEGIN:VTODO\r\nUID:%1\r\nDTSTAMP:%2\r\nSUMMARY:%3\r\nSTATUS:%4\r\n")
              .arg(task.uid, utcText(Clock::nowUtc()), task.title, status);
    if (task.sequence > 0)
        text += QStringLiteral("SEQUENCE:%1\r\n").arg(task.sequence);
    if (task.priority > 0)
        text += QStringLiteral("PRIORITY:%1\r\n").arg(task.priority);
    if (task.percent_complete > 0)
        text += QStringLiteral("PERCENT-COMPLETE:%1\r\n").arg(task.percent_complete);
    // A date-only value is written from the date as held, not converted to UTC first.
    if (task.start_date) {
        if (task.start_is_date_only)
            text += QStringLiteral("DTSTART;VALUE=DATE:%1\r\n").arg(task.start_date->date().toString(QStringLiteral("yyyyMMdd")));
        else
            text += QStringLiteral("DTSTART:%1\r\n").arg(utcText(*task.start_date));
    }
    if (task.due_date) {
        if (task.due_is_date_only)
            text += QStringLiteral("DUE;VALUE=DATE:%1\r\n").arg(task.due_date->date().toString(QStringLiteral("yyyyMMdd")));
        else
            text += QStringLiteral("DUE:%1\r\n").arg(utcText(*task.due_date));
    }
    if (task.completed_date)
        text += QStringLiteral("COMPLETED:%1\r\n").arg(utcText(*task.completed_date));
    if (!task.recurrence_rule.isEmpty())
        text += QStringLiteral("RRULE:%1\r\n").arg(task.recurrence_rule);
    if (!task.categories.isEmpty())
        text += QStringLiteral("CATEGORIES:%1\r\n").arg(task.categories.join(QLatin1Char(',')));
    if (!task.parent_task_uid.isEmpty())
        text += QStringLiteral("RELATED-TO;RELTYPE=PARENT:%1\r\n").arg(task.parent_task_uid);
    if (task.repeat_mode == QLatin1String("fromCompletionDate"))
        text += QStringLiteral("X-KETTLEBROOK-REPEAT-MODE:fromCompletionDate\r\n");
    if (task.sort_order > 0)
        text += QStringLiteral("X-KETTLEBROOK-SORT-ORDER:%1\r\n").arg(task.sort_order);
    if (!task.description.isEmpty())
        text += QStringLiteral("DESCRIPTION:%1\r\n").arg(task.description);
    text += QStringLiteral("END:VTODO\r\n") + QString::fromLatin1(kCalendarTail);
    return text.toUtf8();
}

} // namespace ICal
