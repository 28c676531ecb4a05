// SPDX-License-Identifier: GPL-3.0-or-later
#include "ICalReference.h"

#include "ical/ICal.h"

#include <QStringDecoder>
#include <QTimeZone>

namespace ICalReference {

namespace {

const QByteArray kByteOrderMark("\xEF\xBB\xBF");

// Text of one line; a U+FEFF inside the text is a character like any other.
QString decodeLine(const QByteArray &line)
{
    QStringDecoder decoder(QStringDecoder::Utf8,
                           QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
    return decoder.decode(line);
}

// Lines split at LF (a CR before it dropped) and unfolded on the bytes, so that a character
// whose bytes a fold split comes back whole.
QList<QByteArray> unfold(QByteArrayView utf8)
{
    QByteArray text = utf8.toByteArray();
    if (text.startsWith(kByteOrderMark))
        text.remove(0, kByteOrderMark.size());
    QList<QByteArray> lines;
    const QList<QByteArray> pieces = text.split('\n');
    for (qsizetype i = 0; i < pieces.size(); ++i) {
        QByteArray piece = pieces.at(i);
        if (i + 1 < pieces.size() && piece.endsWith('\r'))
            piece.chop(1);
        if (!lines.isEmpty() && !piece.isEmpty() && (piece.at(0) == ' ' || piece.at(0) == '\t'))
            lines.last().append(piece.mid(1));
        else
            lines.append(piece);
    }
    return lines;
}

QByteArray crlf(const QByteArray &line)
{
    return line + "\r\n";
}

// A decimal number, or nullopt. QString::toInt reads up to a NUL and ignores the rest, but digits
// followed by NUL bytes are no number.
std::optional<int> integer(const QString &value)
{
    bool ok = false;
    const int number = value.toInt(&ok);
    if (!ok || value.contains(QChar(0)))
        return std::nullopt;
    return number;
}

int integerOrZero(const QString &value)
{
    return integer(value).value_or(0);
}

bool isParent(const ICal::ContentLine &line)
{
    QString type = line.parameter(u"RELTYPE");
    if (type.isNull())
        type = QStringLiteral("PARENT");
    return type.compare(QLatin1String("PARENT"), Qt::CaseInsensitive) == 0;
}

struct EventReading
{
    Event event;
    qint64 duration = 0;
    bool endGiven = false;
    QByteArray collected;
};

void readEventLine(EventReading &reading, const ICal::ContentLine &line)
{
    Event &event = reading.event;
    const QString &name = line.name;
    const QString &value = line.value;
    bool dateOnly = false;
    if (name == QLatin1String("UID")) {
        event.uid = ICal::unescapeText(value);
    } else if (name == QLatin1String("SUMMARY")) {
        event.title = ICal::unescapeText(value);
    } else if (name == QLatin1String("DESCRIPTION")) {
        event.description = ICal::unescapeText(value);
    } else if (name == QLatin1String("LOCATION")) {
        event.location = ICal::unescapeText(value);
    } else if (name == QLatin1String("DTSTART")) {
        event.start_time = ICal::parseDateTime(value, line.parameters, &dateOnly);
        if (dateOnly)
            event.is_all_day = true;
        const QString tzid = line.parameter(u"TZID");
        if (!tzid.isNull())
            event.timezone = tzid;
    } else if (name == QLatin1String("DTEND")) {
        event.end_time = ICal::parseDateTime(value, line.parameters);
        reading.endGiven = true;
    } else if (name == QLatin1String("DURATION")) {
        reading.duration = ICal::parseDurationSeconds(value);
    } else if (name == QLatin1String("RRULE")) {
        event.recurrence_rule = value;
    } else if (name == QLatin1String("RECURRENCE-ID")) {
        const QDateTime instant = ICal::parseDateTime(value, line.parameters);
        event.recurrence_id
            = instant.isValid() ? instant.toUTC().toString(QStringLiteral("yyyyMMdd'T'HHmmss'Z'")) : value;
    } else if (name == QLatin1String("STATUS")) {
        event.status = value.toLower();
    } else if (name == QLatin1String("SEQUENCE")) {
        event.sequence = integerOrZero(value);
    } else if (name == QLatin1String("URL")) {
        event.event_url = value;
    } else if (name == QLatin1String("ORGANIZER")) {
        event.organizer_email = value.startsWith(QLatin1String("mailto:"), Qt::CaseInsensitive) ? value.mid(7) : value;
        const QString cn = line.parameter(u"CN");
        if (!cn.isNull())
            event.organizer_name = cn;
    } else if (name == QLatin1String("CREATED")) {
        event.created = ICal::parseDateTime(value, line.parameters);
    } else if (name == QLatin1String("LAST-MODIFIED")) {
        event.last_modified = ICal::parseDateTime(value, line.parameters);
    } else if (name == QLatin1String("RELATED-TO")) {
        if (event.related_to_uid.isEmpty() && isParent(line))
            event.related_to_uid = ICal::unescapeText(value);
    }
}

void readTaskLine(Task &task, const ICal::ContentLine &line)
{
    const QString &name = line.name;
    const QString &value = line.value;
    bool dateOnly = false;
    if (name == QLatin1String("UID")) {
        task.uid = ICal::unescapeText(value);
    } else if (name == QLatin1String("SUMMARY")) {
        task.title = ICal::unescapeText(value);
    } else if (name == QLatin1String("DESCRIPTION")) {
        task.description = ICal::unescapeText(value);
    } else if (name == QLatin1String("DTSTART")) {
        task.start_date = ICal::parseDateTime(value, line.parameters, &dateOnly);
        task.start_is_date_only = dateOnly;
    } else if (name == QLatin1String("DUE")) {
        task.due_date = ICal::parseDateTime(value, line.parameters, &dateOnly);
        task.due_is_date_only = dateOnly;
    } else if (name == QLatin1String("COMPLETED")) {
        task.completed_date = ICal::parseDateTime(value, line.parameters);
    } else if (name == QLatin1String("STATUS")) {
        task.status = value.toLower();
    } else if (name == QLatin1String("PRIORITY")) {
        task.priority = integerOrZero(value);
    } else if (name == QLatin1String("PERCENT-COMPLETE")) {
        task.percent_complete = integerOrZero(value);
    } else if (name == QLatin1String("RRULE")) {
        task.recurrence_rule = value;
    } else if (name == QLatin1String("CATEGORIES")) {
        task.categories.clear();
        for (const QString &item : value.split(QLatin1Char(','), Qt::SkipEmptyParts))
            task.categories.append(ICal::unescapeText(item.trimmed()));
    } else if (name == QLatin1String("RELATED-TO")) {
        if (isParent(line))
            task.parent_task_uid = ICal::unescapeText(value);
    } else if (name == QLatin1String("SEQUENCE")) {
        task.sequence = integerOrZero(value);
    } else if (name == QLatin1String("CREATED")) {
        task.created = ICal::parseDateTime(value, line.parameters);
    } else if (name == QLatin1String("LAST-MODIFIED")) {
        task.last_modified = ICal::parseDateTime(value, line.parameters);
    } else if (name == QLatin1String("X-KETTLEBROOK-REPEAT-MODE")) {
        if (value.trimmed() == QLatin1String("fromCompletionDate"))
            task.repeat_mode = QStringLiteral("fromCompletionDate");
    } else if (name == QLatin1String("X-KETTLEBROOK-SORT-ORDER")) {
        const std::optional<int> order = integer(value.trimmed());
        if (order && *order > 0)
            task.sort_order = *order;
    }
}

QString describeOptional(const std::optional<QDateTime> &value)
{
    return value ? ICalReference::describe(*value) : QStringLiteral("absent");
}

QString flag(bool value)
{
    return value ? QStringLiteral("true") : QStringLiteral("false");
}

} // namespace

QList<Event> parseEvents(QByteArrayView utf8)
{
    QList<Event> events;
    EventReading reading;
    bool inside = false;
    for (const QByteArray &line : unfold(utf8)) {
        if (line == "BEGIN:VEVENT") {
            reading = EventReading();
            reading.collected = crlf(line);
            inside = true;
        } else if (inside && line == "END:VEVENT") {
            inside = false;
            reading.collected += crlf(line);
            Event &event = reading.event;
            if (event.uid.isEmpty())
                continue;
            if (!reading.endGiven && reading.duration >= 1 && event.start_time.isValid())
                event.end_time = event.start_time.addSecs(reading.duration);
            if (!event.recurrence_id.isEmpty() && event.master_event_uid.isEmpty())
                event.master_event_uid = event.uid;
            event.raw_icalendar = ICal::kCalendarHead + reading.collected + ICal::kCalendarTail;
            events.append(event);
        } else if (inside) {
            reading.collected += crlf(line);
            readEventLine(reading, ICal::parsePropertyLine(decodeLine(line)));
        }
    }
    return events;
}

QList<Task> parseTasks(QByteArrayView utf8)
{
    QList<Task> tasks;
    Task task;
    QByteArray collected;
    bool inside = false;
    for (const QByteArray &line : unfold(utf8)) {
        if (line == "BEGIN:VTODO") {
            task = Task();
            task.due_is_date_only = false;
            task.start_is_date_only = false;
            collected = crlf(line);
            inside = true;
        } else if (inside && line == "END:VTODO") {
            inside = false;
            collected += crlf(line);
            if (task.uid.isEmpty())
                continue;
            task.raw_icalendar = collected;
            tasks.append(task);
        } else if (inside) {
            collected += crlf(line);
            readTaskLine(task, ICal::parsePropertyLine(decodeLine(line)));
        }
    }
    return tasks;
}

QString describe(const QDateTime &value)
{
    if (!value.isValid())
        return QStringLiteral("invalid");
    QString zone;
    switch (value.timeSpec()) {
    case Qt::UTC:
        zone = QStringLiteral("UTC");
        break;
    case Qt::LocalTime:
        zone = QStringLiteral("local");
        break;
    case Qt::OffsetFromUTC:
        zone = QStringLiteral("offset");
        break;
    case Qt::TimeZone:
        zone = QString::fromUtf8(value.timeZone().id());
        break;
    }
    return value.toString(Qt::ISODate) + QLatin1Char(' ') + zone;
}

QString describe(const Event &e)
{
    QStringList fields{
        QStringLiteral("uid=") + e.uid,
        QStringLiteral("title=") + e.title,
        QStringLiteral("description=") + e.description,
        QStringLiteral("location=") + e.location,
        QStringLiteral("start_time=") + describe(e.start_time),
        QStringLiteral("end_time=") + describeOptional(e.end_time),
        QStringLiteral("is_all_day=") + flag(e.is_all_day),
        QStringLiteral("timezone=") + e.timezone,
        QStringLiteral("recurrence_rule=") + e.recurrence_rule,
        QStringLiteral("recurrence_id=") + e.recurrence_id,
        QStringLiteral("master_event_uid=") + e.master_event_uid,
        QStringLiteral("status=") + e.status,
        QStringLiteral("sequence=") + QString::number(e.sequence),
        QStringLiteral("event_url=") + e.event_url,
        QStringLiteral("organizer_email=") + e.organizer_email,
        QStringLiteral("organizer_name=") + e.organizer_name,
        QStringLiteral("created=") + describe(e.created),
        QStringLiteral("last_modified=") + describe(e.last_modified),
        QStringLiteral("related_to_uid=") + e.related_to_uid,
        QStringLiteral("raw_icalendar=") + QString::fromLatin1(e.raw_icalendar.toHex()),
    };
    // Fields the reader never sets must keep their defaults.
    Event defaults;
    defaults.uid = e.uid;
    defaults.title = e.title;
    defaults.description = e.description;
    defaults.location = e.location;
    defaults.start_time = e.start_time;
    defaults.end_time = e.end_time;
    defaults.is_all_day = e.is_all_day;
    defaults.timezone = e.timezone;
    defaults.recurrence_rule = e.recurrence_rule;
    defaults.recurrence_id = e.recurrence_id;
    defaults.master_event_uid = e.master_event_uid;
    defaults.status = e.status;
    defaults.sequence = e.sequence;
    defaults.event_url = e.event_url;
    defaults.organizer_email = e.organizer_email;
    defaults.organizer_name = e.organizer_name;
    defaults.created = e.created;
    defaults.last_modified = e.last_modified;
    defaults.related_to_uid = e.related_to_uid;
    defaults.raw_icalendar = e.raw_icalendar;
    if (!(defaults == e))
        fields.append(QStringLiteral("other fields changed"));
    return fields.join(QLatin1Char('\n'));
}

QString describe(const Task &t)
{
    QStringList fields{
        QStringLiteral("uid=") + t.uid,
        QStringLiteral("title=") + t.title,
        QStringLiteral("description=") + t.description,
        QStringLiteral("status=") + t.status,
        QStringLiteral("priority=") + QString::number(t.priority),
        QStringLiteral("percent_complete=") + QString::number(t.percent_complete),
        QStringLiteral("due_date=") + describeOptional(t.due_date),
        QStringLiteral("start_date=") + describeOptional(t.start_date),
        QStringLiteral("completed_date=") + describeOptional(t.completed_date),
        QStringLiteral("categories=") + t.categories.join(QStringLiteral("|")) + QStringLiteral(" (")
            + QString::number(t.categories.size()) + QLatin1Char(')'),
        QStringLiteral("parent_task_uid=") + t.parent_task_uid,
        QStringLiteral("sort_order=") + QString::number(t.sort_order),
        QStringLiteral("recurrence_rule=") + t.recurrence_rule,
        QStringLiteral("repeat_mode=") + t.repeat_mode,
        QStringLiteral("sequence=") + QString::number(t.sequence),
        QStringLiteral("created=") + describe(t.created),
        QStringLiteral("last_modified=") + describe(t.last_modified),
        QStringLiteral("due_is_date_only=") + flag(t.due_is_date_only),
        QStringLiteral("start_is_date_only=") + flag(t.start_is_date_only),
        QStringLiteral("raw_icalendar=") + QString::fromLatin1(t.raw_icalendar.toHex()),
    };
    Task defaults;
    defaults.uid = t.uid;
    defaults.title = t.title;
    defaults.description = t.description;
    defaults.status = t.status;
    defaults.priority = t.priority;
    defaults.percent_complete = t.percent_complete;
    defaults.due_date = t.due_date;
    defaults.start_date = t.start_date;
    defaults.completed_date = t.completed_date;
    defaults.categories = t.categories;
    defaults.parent_task_uid = t.parent_task_uid;
    defaults.sort_order = t.sort_order;
    defaults.recurrence_rule = t.recurrence_rule;
    defaults.repeat_mode = t.repeat_mode;
    defaults.sequence = t.sequence;
    defaults.created = t.created;
    defaults.last_modified = t.last_modified;
    defaults.due_is_date_only = t.due_is_date_only;
    defaults.start_is_date_only = t.start_is_date_only;
    defaults.raw_icalendar = t.raw_icalendar;
    if (!(defaults == t))
        fields.append(QStringLiteral("other fields changed"));
    return fields.join(QLatin1Char('\n'));
}

QString describe(const QList<Event> &events)
{
    QStringList parts;
    for (const Event &event : events)
        parts.append(describe(event));
    return QString::number(events.size()) + QStringLiteral(" events\n") + parts.join(QStringLiteral("\n--\n"));
}

QString describe(const QList<Task> &tasks)
{
    QStringList parts;
    for (const Task &task : tasks)
        parts.append(describe(task));
    return QString::number(tasks.size()) + QStringLiteral(" tasks\n") + parts.join(QStringLiteral("\n--\n"));
}

} // namespace ICalReference
