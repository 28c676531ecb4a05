// SPDX-License-Identifier: GPL-3.0-or-later
#include "ical/EventText.h"

#include "ical/ICal.h"
#include "storage/StorageFormat.h"

namespace {

// The name of a content line: the text before the first ";" or ":".
QByteArray lineName(const QByteArray &line)
{
    qsizetype end = 0;
    while (end < line.size() && line.at(end) != ';' && line.at(end) != ':')
        ++end;
    return line.left(end).toUpper();
}

struct Lines
{
    QList<QByteArray> lines;
    qsizetype eventBegin = -1;
    qsizetype eventEnd = -1; // the END:VEVENT line of the first event
};

Lines split(const QByteArray &raw)
{
    Lines result;
    QByteArray text = raw;
    text.replace("\r\n", "\n");
    result.lines = text.split('\n');
    if (!result.lines.isEmpty() && result.lines.constLast().isEmpty())
        result.lines.removeLast();
    for (qsizetype i = 0; i < result.lines.size(); ++i) {
        if (result.eventBegin < 0 && result.lines.at(i).startsWith("BEGIN:VEVENT")) {
            result.eventBegin = i;
        } else if (result.eventBegin >= 0 && result.lines.at(i).startsWith("END:VEVENT")) {
            result.eventEnd = i;
            break;
        }
    }
    return result;
}

QByteArray join(const QList<QByteArray> &lines)
{
    QByteArray out;
    for (const QByteArray &line : lines)
        out += line + "\r\n";
    return out;
}

// Removes the first event's lines of the given names, but only the event's own: lines inside a
// nested component (an alarm's DESCRIPTION) stay.
void removeProperty(Lines &text, const QList<QByteArray> &names)
{
    if (text.eventEnd < 0)
        return;
    int depth = 0;
    for (qsizetype i = text.eventEnd - 1; i > text.eventBegin; --i) {
        const QByteArray &line = text.lines.at(i);
        if (line.startsWith("END:"))
            ++depth;
        else if (line.startsWith("BEGIN:"))
            --depth;
        else if (depth == 0 && names.contains(lineName(line))) {
            text.lines.removeAt(i);
            --text.eventEnd;
        }
    }
}

QByteArray utcText(const QDateTime &value)
{
    return value.toUTC().toString(QStringLiteral("yyyyMMdd'T'HHmmss'Z'")).toLatin1();
}

} // namespace

namespace EventText {

QByteArray escaped(const QString &text)
{
    QByteArray out;
    for (const QChar c : text) {
        if (c == QLatin1Char('\\'))
            out += "\\\\";
        else if (c == QLatin1Char(','))
            out += "\\,";
        else if (c == QLatin1Char(';'))
            out += "\\;";
        else if (c == QLatin1Char('\n'))
            out += "\\n";
        else if (c != QLatin1Char('\r'))
            out += QString(c).toUtf8();
    }
    return out;
}

QByteArray withRawValue(const QByteArray &raw, const QByteArray &name, const QByteArray &value)
{
    Lines text = split(raw);
    if (text.eventEnd < 0)
        return raw;
    removeProperty(text, {name.toUpper()});
    if (!value.isEmpty())
        text.lines.insert(text.eventEnd, name.toUpper() + ':' + value);
    return join(text.lines);
}

QByteArray withText(const QByteArray &raw, const QByteArray &name, const QString &value)
{
    return withRawValue(raw, name, escaped(value));
}

QByteArray updatedText(const QByteArray &previous, const Event &event)
{
    QByteArray text = previous.isEmpty() ? ICal::buildEventIcs(event) : previous;
    if (event.is_all_day) {
        Lines lines = split(text);
        removeProperty(lines, {"DTSTART", "DTEND", "DURATION"});
        if (lines.eventEnd >= 0) {
            const QDate first = event.start_time.date();
            const QDate afterLast = event.end_time ? event.end_time->date() : first.addDays(1);
            lines.lines.insert(lines.eventEnd,
                               "DTEND;VALUE=DATE:" + afterLast.toString(QStringLiteral("yyyyMMdd")).toLatin1());
            lines.lines.insert(lines.eventEnd,
                               "DTSTART;VALUE=DATE:" + first.toString(QStringLiteral("yyyyMMdd")).toLatin1());
            text = join(lines.lines);
        }
    } else {
        // Date-only lines would survive a reschedule; an event that became timed drops them.
        Lines lines = split(text);
        removeProperty(lines, {"DURATION"});
        for (qsizetype i = lines.eventEnd - 1; i > lines.eventBegin && lines.eventEnd >= 0; --i) {
            if (lines.lines.at(i).startsWith("DTSTART;VALUE=DATE")
                || lines.lines.at(i).startsWith("DTEND;VALUE=DATE")) {
                lines.lines.removeAt(i);
                --lines.eventEnd;
            }
        }
        text = ICal::rescheduleEventIcs(join(lines.lines), event.start_time,
                                        event.end_time ? *event.end_time : QDateTime());
        if (!text.endsWith("\r\n"))
            text += "\r\n";
    }
    text = withText(text, "SUMMARY", event.title);
    text = withText(text, "LOCATION", event.location);
    text = withText(text, "DESCRIPTION", event.description);
    text = withRawValue(text, "RRULE", event.recurrence_rule.toUtf8());
    text = withRawValue(text, "RECURRENCE-ID", event.recurrence_id.toUtf8());
    Lines lines = split(text);
    removeProperty(lines, {"EXDATE"});
    for (const QString &exception : StorageFormat::parseStringListJson(event.exception_dates)) {
        if (!exception.isEmpty() && lines.eventEnd >= 0)
            lines.lines.insert(lines.eventEnd++,
                               (exception.contains(QLatin1Char('T')) ? "EXDATE:" : "EXDATE;VALUE=DATE:")
                                   + exception.toLatin1());
    }
    text = join(lines.lines);
    if (event.sequence > 0)
        text = withRawValue(text, "SEQUENCE", QByteArray::number(event.sequence));
    if (event.last_modified.isValid())
        text = withRawValue(text, "LAST-MODIFIED", utcText(event.last_modified));
    return text;
}

} // namespace EventText
