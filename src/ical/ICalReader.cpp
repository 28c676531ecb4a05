// SPDX-License-Identifier: GPL-3.0-or-later
// The event and task readers. They work on the UTF-8 bytes: lines are views into the text (a
// folded line is joined once into a reused buffer), parameters are looked up only where a
// property needs one, zones are looked up once per name, and each record's raw_icalendar is
// assembled in a reused buffer and copied out once at its exact size.
#include "ical/ICal.h"

#include "ical/ICalBytes.h"
#include "ical/LineReader.h"
#include "ical/TextPool.h"
#include "ical/ZoneCache.h"

#include <cstring>
#include <string>

namespace ICal {

namespace {

using namespace Bytes;

enum class Property {
    Unknown,
    Uid,
    Summary,
    Description,
    Location,
    DtStart,
    DtEnd,
    Due,
    Duration,
    RRule,
    RecurrenceId,
    Status,
    Sequence,
    Url,
    Organizer,
    Created,
    LastModified,
    RelatedTo,
    Completed,
    Priority,
    PercentComplete,
    Categories,
    RepeatMode,
    SortOrder,
};

struct PropertyName
{
    QByteArrayView name;
    Property property;
};

// The properties each reader knows; every other name is ignored.
constexpr PropertyName kEventProperties[] = {
    {"UID", Property::Uid},
    {"SUMMARY", Property::Summary},
    {"DESCRIPTION", Property::Description},
    {"LOCATION", Property::Location},
    {"DTSTART", Property::DtStart},
    {"DTEND", Property::DtEnd},
    {"DURATION", Property::Duration},
    {"RRULE", Property::RRule},
    {"RECURRENCE-ID", Property::RecurrenceId},
    {"STATUS", Property::Status},
    {"SEQUENCE", Property::Sequence},
    {"URL", Property::Url},
    {"ORGANIZER", Property::Organizer},
    {"CREATED", Property::Created},
    {"LAST-MODIFIED", Property::LastModified},
    {"RELATED-TO", Property::RelatedTo},
};

constexpr PropertyName kTaskProperties[] = {
    {"UID", Property::Uid},
    {"SUMMARY", Property::Summary},
    {"DESCRIPTION", Property::Description},
    {"DTSTART", Property::DtStart},
    {"DUE", Property::Due},
    {"COMPLETED", Property::Completed},
    {"STATUS", Property::Status},
    {"PRIORITY", Property::Priority},
    {"PERCENT-COMPLETE", Property::PercentComplete},
    {"RRULE", Property::RRule},
    {"CATEGORIES", Property::Categories},
    {"RELATED-TO", Property::RelatedTo},
    {"SEQUENCE", Property::Sequence},
    {"CREATED", Property::Created},
    {"LAST-MODIFIED", Property::LastModified},
    {"X-KETTLEBROOK-REPEAT-MODE", Property::RepeatMode},
    {"X-KETTLEBROOK-SORT-ORDER", Property::SortOrder},
};

template<std::size_t N>
Property classify(QByteArrayView name, const PropertyName (&known)[N])
{
    char upper[32];
    const qsizetype length = upperAsciiName(name, upper, sizeof upper);
    if (length <= 0)
        return Property::Unknown;
    for (const PropertyName &entry : known) {
        if (entry.name.size() == length && std::memcmp(entry.name.data(), upper, length) == 0)
            return entry.property;
    }
    return Property::Unknown;
}

// Upper bound for reserving the result list: the number of component starts, but never more
// records than the text could hold at a few hundred bytes each, so that text full of empty
// components cannot make the reader reserve gigabytes.
qsizetype reservation(QByteArrayView text, QByteArrayView begin)
{
    qsizetype count = 0;
    for (qsizetype at = text.indexOf(begin); at >= 0; at = text.indexOf(begin, at + begin.size()))
        ++count;
    return std::min(count, text.size() / 256 + 16);
}

std::optional<QByteArrayView> tzid(const LineParts &parts)
{
    return parameter(parts.parameters, "TZID");
}

QDateTime readDateTime(const LineParts &parts, ZoneCache &zones, bool *isDateOnly = nullptr)
{
    return Bytes::dateTime(parts.value, tzid(parts), zones, isDateOnly);
}

// The relation type of a RELATED-TO line: the RELTYPE parameter, PARENT when absent.
bool isParentRelation(const LineParts &parts)
{
    const std::optional<QByteArrayView> type = parameter(parts.parameters, "RELTYPE");
    return !type || equalsIgnoringCase(*type, "PARENT");
}

// What one parse shares between its records.
struct Context
{
    ZoneCache zones;
    TextPool texts;
};

// The lines of the component being read, each followed by CR LF, gathered in one reused buffer.
class Collected
{
public:
    void restart(QByteArrayView head)
    {
        m_text.clear();
        m_text.append(head.data(), head.size());
    }
    void appendLine(QByteArrayView line)
    {
        m_text.append(line.data(), line.size());
        m_text.append("\r\n", 2);
    }
    void append(QByteArrayView bytes) { m_text.append(bytes.data(), bytes.size()); }
    QByteArray bytes() const { return QByteArray(m_text.data(), qsizetype(m_text.size())); }

private:
    std::string m_text;
};

// What an event keeps aside until its end.
struct EventExtras
{
    qint64 durationSeconds = 0;
    bool endGiven = false;
};

void readEventLine(Event &event, EventExtras &extras, QByteArrayView line, Context &context)
{
    ZoneCache &zones = context.zones;
    const LineParts parts = splitLine(line);
    switch (classify(parts.name, kEventProperties)) {
    case Property::Uid:
        event.uid = context.texts.unescaped(parts.value);
        break;
    case Property::Summary:
        event.title = context.texts.sharedUnescaped(parts.value);
        break;
    // Deliberately no nesting: an alarm's DESCRIPTION after the event's own replaces it.
    case Property::Description:
        event.description = context.texts.sharedUnescaped(parts.value);
        break;
    case Property::Location:
        event.location = context.texts.sharedUnescaped(parts.value);
        break;
    case Property::DtStart: {
        bool dateOnly = false;
        const std::optional<QByteArrayView> zone = tzid(parts);
        event.start_time = Bytes::dateTime(parts.value, zone, zones, &dateOnly);
        // Deliberately never set back to false by a later timed DTSTART.
        if (dateOnly)
            event.is_all_day = true;
        // Deliberately the raw TZID, also when it names no known zone.
        if (zone)
            event.timezone = zones.name(*zone);
        break;
    }
    case Property::DtEnd:
        event.end_time = readDateTime(parts, zones);
        extras.endGiven = true;
        break;
    case Property::Duration:
        extras.durationSeconds = durationSeconds(parts.value);
        break;
    case Property::RRule:
        event.recurrence_rule = context.texts.sharedText(parts.value);
        break;
    case Property::RecurrenceId: {
        const QDateTime instant = readDateTime(parts, zones);
        event.recurrence_id = instant.isValid() ? instant.toUTC().toString(QStringLiteral("yyyyMMdd'T'HHmmss'Z'"))
                                                : context.texts.text(parts.value);
        break;
    }
    case Property::Status:
        event.status = lowerText(parts.value);
        break;
    case Property::Sequence:
        event.sequence = integer(parts.value).value_or(0);
        break;
    case Property::Url:
        event.event_url = context.texts.sharedText(parts.value);
        break;
    case Property::Organizer: {
        QByteArrayView address = parts.value;
        // Deliberately only a "mailto:" prefix (any letter case) is cut; other values stay whole.
        if (address.size() >= 7 && equalsIgnoringCase(address.first(7), "MAILTO:"))
            address = address.sliced(7);
        event.organizer_email = context.texts.sharedText(address);
        // Deliberately the raw CN value, quotes and all.
        if (const std::optional<QByteArrayView> name = parameter(parts.parameters, "CN"))
            event.organizer_name = context.texts.sharedText(*name);
        break;
    }
    case Property::Created:
        event.created = readDateTime(parts, zones);
        break;
    case Property::LastModified:
        event.last_modified = readDateTime(parts, zones);
        break;
    case Property::RelatedTo:
        // Deliberately only the first parent relation counts; CHILD and SIBLING are ignored.
        if (event.related_to_uid.isEmpty() && isParentRelation(parts))
            event.related_to_uid = context.texts.sharedUnescaped(parts.value);
        break;
    default:
        break;
    }
}

void finishEvent(Event &event, const EventExtras &extras, const Collected &collected)
{
    // Deliberately a DTEND anywhere in the component wins over DURATION.
    if (!extras.endGiven && extras.durationSeconds >= 1 && event.start_time.isValid())
        event.end_time = event.start_time.addSecs(extras.durationSeconds);
    // Deliberately an override names its series by its own UID.
    if (!event.recurrence_id.isEmpty() && event.master_event_uid.isEmpty())
        event.master_event_uid = event.uid;
    event.raw_icalendar = collected.bytes();
}

// CATEGORIES: split at every comma (empty items dropped), each item trimmed, then unescaped.
QStringList categories(QByteArrayView value)
{
    QStringList items;
    qsizetype start = 0;
    while (start <= value.size()) {
        qsizetype end = value.indexOf(',', start);
        if (end < 0)
            end = value.size();
        if (end > start)
            items.append(unescapeText(decode(value.sliced(start, end - start)).trimmed()));
        start = end + 1;
    }
    return items;
}

void readTaskLine(Task &task, QByteArrayView line, Context &context)
{
    ZoneCache &zones = context.zones;
    const LineParts parts = splitLine(line);
    switch (classify(parts.name, kTaskProperties)) {
    case Property::Uid:
        task.uid = context.texts.unescaped(parts.value);
        break;
    case Property::Summary:
        task.title = context.texts.sharedUnescaped(parts.value);
        break;
    case Property::Description:
        task.description = context.texts.sharedUnescaped(parts.value);
        break;
    case Property::DtStart: {
        bool dateOnly = false;
        task.start_date = readDateTime(parts, zones, &dateOnly);
        task.start_is_date_only = dateOnly;
        break;
    }
    case Property::Due: {
        bool dateOnly = false;
        task.due_date = readDateTime(parts, zones, &dateOnly);
        task.due_is_date_only = dateOnly;
        break;
    }
    case Property::Completed:
        task.completed_date = readDateTime(parts, zones);
        break;
    case Property::Status:
        task.status = lowerText(parts.value);
        break;
    case Property::Priority:
        task.priority = integer(parts.value).value_or(0);
        break;
    case Property::PercentComplete:
        task.percent_complete = integer(parts.value).value_or(0);
        break;
    case Property::RRule:
        task.recurrence_rule = context.texts.sharedText(parts.value);
        break;
    case Property::Categories:
        task.categories = categories(parts.value);
        break;
    case Property::RelatedTo:
        // Unlike events, a later parent relation replaces an earlier one.
        if (isParentRelation(parts))
            task.parent_task_uid = context.texts.sharedUnescaped(parts.value);
        break;
    case Property::Sequence:
        task.sequence = integer(parts.value).value_or(0);
        break;
    case Property::Created:
        task.created = readDateTime(parts, zones);
        break;
    case Property::LastModified:
        task.last_modified = readDateTime(parts, zones);
        break;
    case Property::RepeatMode:
        if (decode(parts.value).trimmed() == QLatin1String("fromCompletionDate"))
            task.repeat_mode = QStringLiteral("fromCompletionDate");
        break;
    case Property::SortOrder: {
        const std::optional<qint32> order = integer(decode(parts.value).trimmed().toUtf8());
        if (order && *order > 0)
            task.sort_order = *order;
        break;
    }
    default:
        break;
    }
}

Task freshTask()
{
    Task task;
    task.due_is_date_only = false;
    task.start_is_date_only = false;
    return task;
}

} // namespace

QList<Event> parseEvents(QByteArrayView utf8)
{
    // Each event is read in place at the end of the list and taken back off when it is dropped.
    QList<Event> events;
    events.reserve(reservation(utf8, "BEGIN:VEVENT"));
    Context context;
    LineReader reader(utf8);
    Collected collected;
    EventExtras extras;
    bool inside = false;
    QByteArrayView line;
    while (reader.next(&line)) {
        if (line == QByteArrayView("BEGIN:VEVENT")) {
            // Deliberately a BEGIN:VEVENT inside an unterminated event starts it again.
            if (inside)
                events.last() = Event();
            else
                events.emplaceBack();
            extras = EventExtras();
            collected.restart(kCalendarHead);
            collected.appendLine(line);
            inside = true;
            continue;
        }
        if (!inside)
            continue;
        collected.appendLine(line);
        if (line == QByteArrayView("END:VEVENT")) {
            inside = false;
            Event &event = events.last();
            if (event.uid.isEmpty()) {
                events.removeLast();
                continue;
            }
            collected.append(kCalendarTail);
            finishEvent(event, extras, collected);
            continue;
        }
        readEventLine(events.last(), extras, line, context);
    }
    if (inside)
        events.removeLast();
    return events;
}

QList<Event> parseEvents(const QString &text)
{
    return parseEvents(QByteArrayView(text.toUtf8()));
}

QList<Task> parseTasks(QByteArrayView utf8)
{
    QList<Task> tasks;
    tasks.reserve(reservation(utf8, "BEGIN:VTODO"));
    Context context;
    LineReader reader(utf8);
    Collected collected;
    bool inside = false;
    QByteArrayView line;
    while (reader.next(&line)) {
        if (line == QByteArrayView("BEGIN:VTODO")) {
            if (inside)
                tasks.last() = freshTask();
            else
                tasks.append(freshTask());
            // Deliberately without the VCALENDAR envelope, unlike events.
            collected.restart({});
            collected.appendLine(line);
            inside = true;
            continue;
        }
        if (!inside)
            continue;
        collected.appendLine(line);
        if (line == QByteArrayView("END:VTODO")) {
            inside = false;
            Task &task = tasks.last();
            if (task.uid.isEmpty())
                tasks.removeLast();
            else
                task.raw_icalendar = collected.bytes();
            continue;
        }
        readTaskLine(tasks.last(), line, context);
    }
    if (inside)
        tasks.removeLast();
    return tasks;
}

QList<Task> parseTasks(const QString &text)
{
    return parseTasks(QByteArrayView(text.toUtf8()));
}

} // namespace ICal
