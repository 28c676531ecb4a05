// SPDX-License-Identifier: GPL-3.0-or-later
// The calendar objects the program writes itself, and the time change of a stored event.
#include "ical/ICal.h"

#include "storage/Clock.h"

namespace {

const QString kUtcStamp = QStringLiteral("yyyyMMdd'T'HHmmss'Z'");
const QString kDateStamp = QStringLiteral("yyyyMMdd");

QString utcText(const QDateTime &value)
{
    return value.toUTC().toString(kUtcStamp);
}

} // namespace

namespace ICal {

// Deliberately nothing is escaped and no line is folded, in both writers: values go out as they
// are held, and no DTSTAMP is written for an event.
QByteArray buildEventIcs(const Event &event)
{
    const QString start = utcText(event.start_time);
    const QString end = event.end_time ? utcText(*event.end_time) : start;
    // One arg() call fills all four in one pass, so a "%2" inside a title stays as it is.
    QString text = QString::fromLatin1(kCalendarHead)
        + QStringLiteral("BEGIN:VEVENT\r\nUID:%1\r\nSUMMARY:%2\r\nDTSTART:%3\r\nDTEND:%4\r\n")
              .arg(event.uid, event.title, start, end);
    if (!event.related_to_uid.isEmpty())
        text += QStringLiteral("RELATED-TO;RELTYPE=PARENT:") + event.related_to_uid + QStringLiteral("\r\n");
    text += QStringLiteral("END:VEVENT\r\n") + QString::fromLatin1(kCalendarTail);
    return text.toUtf8();
}

QByteArray rescheduleEventIcs(const QByteArray &rawText, const QDateTime &newStart, const QDateTime &newEnd)
{
    if (rawText.isEmpty() || !newStart.isValid())
        return rawText;
    const QByteArray startLine = QByteArrayLiteral("DTSTART:") + utcText(newStart).toLatin1();
    const QByteArray endLine
        = QByteArrayLiteral("DTEND:") + (newEnd.isValid() ? utcText(newEnd) : utcText(newStart)).toLatin1();

    enum class Where { Before, Inside, After };
    Where where = Where::Before;
    bool startReplaced = false;
    bool endReplaced = false;
    QList<QByteArrayView> out;
    // Deliberately split without unfolding: the lines are matched as they stand in the text.
    qsizetype from = 0;
    while (true) {
        const qsizetype lf = rawText.indexOf('\n', from);
        QByteArrayView line
            = lf < 0 ? QByteArrayView(rawText).sliced(from) : QByteArrayView(rawText).sliced(from, lf - from);
        if (lf >= 0 && line.endsWith('\r'))
            line.chop(1);
        if (where == Where::Before) {
            out.append(line);
            if (line.startsWith("BEGIN:VEVENT"))
                where = Where::Inside;
        } else if (where == Where::After) {
            out.append(line);
        } else if (line.startsWith("END:VEVENT")) {
            if (!startReplaced)
                out.append(startLine);
            if (!endReplaced)
                out.append(endLine);
            out.append(line);
            where = Where::After;
        } else if (line.startsWith("DTSTART;VALUE=DATE") || line.startsWith("DTEND;VALUE=DATE")) {
            // Deliberately kept: a date-only start or end stays, and the new time is added beside it.
            out.append(line);
        } else if (line.startsWith("DTSTART")) {
            // Deliberately replaced whole: a TZID parameter goes with the old value.
            out.append(startLine);
            startReplaced = true;
        } else if (line.startsWith("DTEND")) {
            out.append(endLine);
            endReplaced = true;
        } else if (!line.startsWith("DURATION")) {
            out.append(line);
        }
        if (lf < 0)
            break;
        from = lf + 1;
    }

    QByteArray text;
    qsizetype size = 0;
    for (const QByteArrayView line : std::as_const(out))
        size += line.size() + 2;
    text.reserve(size);
    for (qsizetype i = 0; i < out.size(); ++i) {
        if (i > 0)
            text.append("\r\n");
        text.append(out.at(i));
    }
    return text;
}

QByteArray buildTaskIcs(const Task &task)
{
    const QString status = task.status.isEmpty() ? QStringLiteral("NEEDS-ACTION") : task.status.toUpper();
    QString text = QString::fromLatin1(kCalendarHead)
        + QStringLiteral("BEGIN:VTODO\r\nUID:%1\r\nDTSTAMP:%2\r\nSUMMARY:%3\r\nSTATUS:%4\r\n")
              .arg(task.uid, utcText(Clock::nowUtc()), task.title, status);
    const auto line = [&text](QLatin1String name, const QString &value) {
        text += name + value + QStringLiteral("\r\n");
    };
    if (task.sequence > 0)
        line(QLatin1String("SEQUENCE:"), QString::number(task.sequence));
    if (task.priority > 0)
        line(QLatin1String("PRIORITY:"), QString::number(task.priority));
    if (task.percent_complete > 0)
        line(QLatin1String("PERCENT-COMPLETE:"), QString::number(task.percent_complete));
    // A date-only value is written from the date as held, not converted to UTC first.
    if (task.start_date) {
        if (task.start_is_date_only)
            line(QLatin1String("DTSTART;VALUE=DATE:"), task.start_date->date().toString(kDateStamp));
        else
            line(QLatin1String("DTSTART:"), utcText(*task.start_date));
    }
    if (task.due_date) {
        if (task.due_is_date_only)
            line(QLatin1String("DUE;VALUE=DATE:"), task.due_date->date().toString(kDateStamp));
        else
            line(QLatin1String("DUE:"), utcText(*task.due_date));
    }
    if (task.completed_date)
        line(QLatin1String("COMPLETED:"), utcText(*task.completed_date));
    if (!task.recurrence_rule.isEmpty())
        line(QLatin1String("RRULE:"), task.recurrence_rule);
    if (!task.categories.isEmpty())
        line(QLatin1String("CATEGORIES:"), task.categories.join(QLatin1Char(',')));
    if (!task.parent_task_uid.isEmpty())
        line(QLatin1String("RELATED-TO;RELTYPE=PARENT:"), task.parent_task_uid);
    // The default mode is never written.
    if (task.repeat_mode == QLatin1String("fromCompletionDate"))
        line(QLatin1String("X-KETTLEBROOK-REPEAT-MODE:"), task.repeat_mode);
    if (task.sort_order > 0)
        line(QLatin1String("X-KETTLEBROOK-SORT-ORDER:"), QString::number(task.sort_order));
    // Deliberately raw: a line feed in the description breaks the written line.
    if (!task.description.isEmpty())
        line(QLatin1String("DESCRIPTION:"), task.description);
    text += QStringLiteral("END:VTODO\r\n") + QString::fromLatin1(kCalendarTail);
    return text.toUtf8();
}

} // namespace ICal
