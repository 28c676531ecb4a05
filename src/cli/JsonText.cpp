// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/JsonText.h"

#include "cli/JsonRecords.h"

#include <QJsonDocument>

namespace JsonText {

namespace {

constexpr char kHex[] = "0123456789abcdef";

void appendUnicodeEscape(QByteArray &out, char16_t unit)
{
    const char escape[]
        = {'\\', 'u', kHex[(unit >> 12) & 0xF], kHex[(unit >> 8) & 0xF], kHex[(unit >> 4) & 0xF], kHex[unit & 0xF]};
    out.append(escape, sizeof escape);
}

// Writes one record object: fields must come in sorted key order.
class ObjectWriter
{
public:
    explicit ObjectWriter(QByteArray &out)
        : m_out(out)
    {
        m_out.append('{');
    }
    ~ObjectWriter() { m_out.append('}'); }

    void text(const char *key, const QString &value)
    {
        name(key);
        appendString(m_out, value);
    }
    void number(const char *key, qint32 value)
    {
        name(key);
        m_out.append(QByteArray::number(value));
    }
    void boolean(const char *key, bool value)
    {
        name(key);
        m_out.append(value ? "true" : "false");
    }
    void dateTime(const char *key, const QDateTime &value) { jsonValue(key, JsonRecords::dateTime(value)); }
    void dateTime(const char *key, const std::optional<QDateTime> &value)
    {
        jsonValue(key, JsonRecords::dateTime(value));
    }
    void utf8(const char *key, const QByteArray &value) { text(key, QString::fromUtf8(value)); }
    template<typename Record>
    void records(const char *key, const QList<Record> &values)
    {
        name(key);
        m_out.append('[');
        for (qsizetype i = 0; i < values.size(); ++i) {
            if (i > 0)
                m_out.append(',');
            m_out.append(QJsonDocument(JsonRecords::toJson(values.at(i))).toJson(QJsonDocument::Compact));
        }
        m_out.append(']');
    }
    void strings(const char *key, const QStringList &values)
    {
        name(key);
        m_out.append('[');
        for (qsizetype i = 0; i < values.size(); ++i) {
            if (i > 0)
                m_out.append(',');
            appendString(m_out, values.at(i));
        }
        m_out.append(']');
    }

private:
    void name(const char *key)
    {
        if (!m_first)
            m_out.append(',');
        m_first = false;
        m_out.append('"').append(key).append("\":");
    }
    void jsonValue(const char *key, const QJsonValue &value)
    {
        name(key);
        if (value.isString())
            appendString(m_out, value.toString());
        else
            m_out.append("null");
    }

    QByteArray &m_out;
    bool m_first = true;
};

} // namespace

void appendString(QByteArray &out, QStringView text)
{
    out.append('"');
    const char16_t *p = text.utf16();
    const char16_t *const end = p + text.size();
    while (p < end) {
        // Plain ASCII runs go out in one piece.
        const char16_t *run = p;
        while (run < end && *run >= 0x20 && *run < 0x80 && *run != '"' && *run != '\\')
            ++run;
        if (run > p) {
            const qsizetype count = run - p;
            const qsizetype at = out.size();
            out.resize(at + count);
            char *dest = out.data() + at;
            for (qsizetype i = 0; i < count; ++i)
                dest[i] = char(p[i]);
            p = run;
            continue;
        }
        const char16_t c = *p++;
        if (c < 0x80) {
            switch (c) {
            case '"':
                out.append("\\\"");
                break;
            case '\\':
                out.append("\\\\");
                break;
            case '\b':
                out.append("\\b");
                break;
            case '\f':
                out.append("\\f");
                break;
            case '\n':
                out.append("\\n");
                break;
            case '\r':
                out.append("\\r");
                break;
            case '\t':
                out.append("\\t");
                break;
            default:
                appendUnicodeEscape(out, c);
                break;
            }
        } else if (c < 0x800) {
            out.append(char(0xC0 | (c >> 6))).append(char(0x80 | (c & 0x3F)));
        } else if (QChar::isHighSurrogate(c) && p < end && QChar::isLowSurrogate(*p)) {
            const char32_t code = QChar::surrogateToUcs4(c, *p++);
            out.append(char(0xF0 | (code >> 18)))
                .append(char(0x80 | ((code >> 12) & 0x3F)))
                .append(char(0x80 | ((code >> 6) & 0x3F)))
                .append(char(0x80 | (code & 0x3F)));
        } else if (QChar::isSurrogate(c)) {
            appendUnicodeEscape(out, c);
        } else {
            out.append(char(0xE0 | (c >> 12))).append(char(0x80 | ((c >> 6) & 0x3F))).append(char(0x80 | (c & 0x3F)));
        }
    }
    out.append('"');
}

void appendRecord(QByteArray &out, const Event &event)
{
    ObjectWriter object(out);
    object.records("attendees", event.attendees);
    object.text("calendar_id", event.calendar_id);
    object.text("color", event.color);
    object.text("conference_url", event.conference_url);
    object.dateTime("created", event.created);
    object.dateTime("deleted_at", event.deleted_at);
    object.text("description", event.description);
    object.dateTime("end_time", event.end_time);
    object.text("etag", event.etag);
    object.text("event_url", event.event_url);
    object.text("exception_dates", event.exception_dates);
    object.text("geo_location", event.geo_location);
    object.text("href", event.href);
    object.text("id", event.id);
    object.boolean("is_all_day", event.is_all_day);
    object.dateTime("last_modified", event.last_modified);
    object.text("location", event.location);
    object.text("master_event_uid", event.master_event_uid);
    object.text("organizer_email", event.organizer_email);
    object.text("organizer_name", event.organizer_name);
    object.text("provider_event_id", event.provider_event_id);
    object.utf8("raw_icalendar", event.raw_icalendar);
    object.text("recurrence_dates", event.recurrence_dates);
    object.text("recurrence_id", event.recurrence_id);
    object.text("recurrence_rule", event.recurrence_rule);
    object.text("related_to_uid", event.related_to_uid);
    object.records("reminders", event.reminders);
    object.number("sequence", event.sequence);
    object.dateTime("start_time", event.start_time);
    object.text("status", event.status);
    object.text("sync_status", event.sync_status);
    object.text("timezone", event.timezone);
    object.text("title", event.title);
    object.text("uid", event.uid);
}

void appendRecord(QByteArray &out, const Task &task)
{
    ObjectWriter object(out);
    object.text("calendar_id", task.calendar_id);
    object.strings("categories", task.categories);
    object.text("color", task.color);
    object.dateTime("completed_date", task.completed_date);
    object.dateTime("created", task.created);
    object.dateTime("deleted_at", task.deleted_at);
    object.text("description", task.description);
    object.dateTime("due_date", task.due_date);
    object.boolean("due_is_date_only", task.due_is_date_only);
    object.text("etag", task.etag);
    object.text("href", task.href);
    object.text("id", task.id);
    object.dateTime("last_modified", task.last_modified);
    object.text("parent_task_uid", task.parent_task_uid);
    object.number("percent_complete", task.percent_complete);
    object.number("priority", task.priority);
    object.utf8("raw_icalendar", task.raw_icalendar);
    object.text("recurrence_rule", task.recurrence_rule);
    object.text("repeat_mode", task.repeat_mode);
    object.number("sequence", task.sequence);
    object.number("sort_order", task.sort_order);
    object.dateTime("start_date", task.start_date);
    object.boolean("start_is_date_only", task.start_is_date_only);
    object.text("status", task.status);
    object.text("sync_status", task.sync_status);
    object.text("title", task.title);
    object.text("uid", task.uid);
}

} // namespace JsonText
