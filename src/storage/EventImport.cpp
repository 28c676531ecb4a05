// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/EventImport.h"

#include "ical/ICal.h"
#include "storage/Clock.h"
#include "storage/Database.h"
#include "storage/EventRepository.h"
#include "storage/StorageFormat.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QHash>
#include <QSqlError>
#include <QSqlQuery>

namespace {

// tr() for this file's free functions; lupdate takes the context from the macro.
struct Text
{
    Q_DECLARE_TR_FUNCTIONS(EventImport)
};

constexpr int kProgressEvery = 1000;

// Text that is iCalendar begins with "BEGIN:VCALENDAR", after an optional byte order mark and
// white space.
bool looksLikeICalendar(QByteArrayView text)
{
    if (text.startsWith("\xEF\xBB\xBF"))
        text = text.sliced(3);
    text = text.trimmed();
    constexpr QByteArrayView head("BEGIN:VCALENDAR");
    return text.size() >= head.size() && text.first(head.size()).compare(head, Qt::CaseInsensitive) == 0;
}

bool isBlank(QByteArrayView text)
{
    if (text.startsWith("\xEF\xBB\xBF"))
        text = text.sliced(3);
    return text.trimmed().isEmpty();
}

// Whether the calendar exists and takes writes; an error sentence otherwise.
QString checkCalendar(Database &database, const QString &calendarId)
{
    QSqlQuery query(database.connection());
    query.prepare(QStringLiteral("SELECT is_read_only FROM calendars WHERE id = ?"));
    query.addBindValue(calendarId);
    if (!query.exec())
        return Text::tr("Could not read the calendar %1: %2").arg(calendarId, query.lastError().text());
    if (!query.next())
        return Text::tr("There is no calendar %1.").arg(calendarId);
    if (query.value(0).toLongLong() != 0)
        return Text::tr("The calendar %1 is read-only.").arg(calendarId);
    return QString();
}

// The key of the calendar's unique index: uid and recurrence id, an absent one counting as empty.
QString keyOf(const QString &uid, const QString &recurrenceId)
{
    return uid + QLatin1Char('\n') + recurrenceId;
}

// Ids of the calendar's events (tombstones included) by their key.
QHash<QString, QString> idsByKey(const QSqlDatabase &connection, const QString &calendarId)
{
    QHash<QString, QString> ids;
    QSqlQuery query(connection);
    query.setForwardOnly(true);
    query.prepare(QStringLiteral("SELECT uid, COALESCE(recurrence_id, ''), id FROM events WHERE calendar_id = ?"));
    query.addBindValue(calendarId);
    if (query.exec()) {
        while (query.next())
            ids.insert(keyOf(query.value(0).toString(), query.value(1).toString()), query.value(2).toString());
    }
    return ids;
}

// A large import writes every index of the events table at random places; with SQLite's default
// 2 MB page cache much of that work goes into spilling pages to the log and reading them back. The
// connection gets 64 MB for the length of the import, then its own setting again.
class LargerPageCache
{
public:
    explicit LargerPageCache(const QSqlDatabase &connection)
        : m_connection(connection)
    {
        QSqlQuery query(m_connection);
        if (query.exec(QStringLiteral("PRAGMA cache_size")) && query.next())
            m_previous = query.value(0).toString();
        QSqlQuery(m_connection).exec(QStringLiteral("PRAGMA cache_size = -65536"));
    }
    ~LargerPageCache()
    {
        if (!m_previous.isEmpty())
            QSqlQuery(m_connection).exec(QStringLiteral("PRAGMA cache_size = ") + m_previous);
    }
    LargerPageCache(const LargerPageCache &) = delete;
    LargerPageCache &operator=(const LargerPageCache &) = delete;

private:
    QSqlDatabase m_connection;
    QString m_previous;
};

// The file's version of an event already in the calendar. What the file cannot carry stays as it
// was: the row's identity on the server, and the fields the reader never fills.
Event mergedUpdate(Event incoming, const Event &existing)
{
    incoming.id = existing.id;
    incoming.calendar_id = existing.calendar_id;
    incoming.provider_event_id = existing.provider_event_id;
    incoming.etag = existing.etag;
    incoming.href = existing.href;
    incoming.created = existing.created;
    if (incoming.recurrence_dates.isEmpty())
        incoming.recurrence_dates = existing.recurrence_dates;
    if (incoming.exception_dates.isEmpty())
        incoming.exception_dates = existing.exception_dates;
    if (incoming.conference_url.isEmpty())
        incoming.conference_url = existing.conference_url;
    if (incoming.geo_location.isEmpty())
        incoming.geo_location = existing.geo_location;
    if (incoming.color.isEmpty())
        incoming.color = existing.color;
    if (incoming.reminders.isEmpty())
        incoming.reminders = existing.reminders;
    if (incoming.attendees.isEmpty())
        incoming.attendees = existing.attendees;
    return incoming;
}

} // namespace

namespace EventImport {

Result importText(Database &database, EventRepository &repository, const QByteArray &text, const QString &calendarId,
                  const QString &source, const Progress &progress)
{
    Result result;
    if (isBlank(text)) {
        result.error = Text::tr("The file %1 is empty.").arg(source);
        return result;
    }
    if (!looksLikeICalendar(text)) {
        result.error = Text::tr("The file %1 is not an iCalendar file.").arg(source);
        return result;
    }
    const QList<Event> parsed = ICal::parseEvents(QByteArrayView(text));
    if (parsed.isEmpty()) {
        result.error = Text::tr("The file %1 holds no events.").arg(source);
        return result;
    }
    result.error = checkCalendar(database, calendarId);
    if (!result.error.isEmpty())
        return result;

    // One entry per (uid, recurrence id), in the order of first appearance; a later copy in the
    // same file replaces an earlier one.
    QHash<QString, qsizetype> slotOfKey;
    QList<qsizetype> chosen;
    slotOfKey.reserve(parsed.size());
    chosen.reserve(parsed.size());
    for (qsizetype i = 0; i < parsed.size(); ++i) {
        const QString key = keyOf(parsed[i].uid, parsed[i].recurrence_id);
        const auto it = slotOfKey.constFind(key);
        if (it == slotOfKey.constEnd()) {
            slotOfKey.insert(key, chosen.size());
            chosen.append(i);
        } else {
            chosen[*it] = i;
        }
    }

    QSqlDatabase connection = database.connection();
    const LargerPageCache cache(connection);
    if (!connection.transaction()) {
        result.error = Text::tr("Could not start the import: %1").arg(connection.lastError().text());
        return result;
    }
    // The events the calendar already holds, by the key of its unique index: one pass over the
    // calendar instead of one lookup per event of the file.
    const QHash<QString, QString> knownIds = idsByKey(connection, calendarId);
    const QDateTime now = Clock::nowUtc();
    const int total = int(chosen.size());
    for (int done = 0; done < total; ++done) {
        Event event = parsed[chosen[done]];
        bool stored = false;
        const QString knownId = knownIds.value(keyOf(event.uid, event.recurrence_id));
        const std::optional<Event> known = knownId.isEmpty() ? std::nullopt : repository.getById(knownId);
        if (known) {
            event = mergedUpdate(std::move(event), *known);
            event.sync_status = QStringLiteral("pending");
            stored = repository.update(event);
            result.updated += stored ? 1 : 0;
        } else {
            event.id = StorageFormat::newId();
            event.calendar_id = calendarId;
            event.sync_status = QStringLiteral("pending");
            if (!event.created.isValid())
                event.created = now;
            event.last_modified = now;
            stored = repository.insert(event);
            result.imported += stored ? 1 : 0;
        }
        if (!stored) {
            connection.rollback();
            const QString name = event.title.isEmpty() ? event.uid : event.title;
            return Result{
                0, 0, Text::tr("Could not store the event \"%1\" from %2; nothing was imported.").arg(name, source)};
        }
        if (progress && ((done + 1) % kProgressEvery == 0 || done + 1 == total))
            progress(done + 1, total);
    }
    if (!connection.commit()) {
        const QString reason = connection.lastError().text();
        connection.rollback();
        return Result{0, 0, Text::tr("Could not save the import: %1").arg(reason)};
    }
    return result;
}

Result importFile(Database &database, EventRepository &repository, const QString &path, const QString &calendarId,
                  const Progress &progress)
{
    const QString name = QFileInfo(path).fileName();
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return Result{0, 0, Text::tr("Cannot read %1: %2").arg(path, file.errorString())};
    return importText(database, repository, file.readAll(), calendarId, name, progress);
}

QString summary(const Result &result, const QString &calendarName)
{
    if (result.updated == 0) {
        if (result.imported == 1)
            return Text::tr("Imported 1 event into %1.").arg(calendarName);
        return Text::tr("Imported %1 events into %2.").arg(result.imported).arg(calendarName);
    }
    if (result.imported == 0) {
        if (result.updated == 1)
            return Text::tr("Updated 1 existing event in %1.").arg(calendarName);
        return Text::tr("Updated %1 existing events in %2.").arg(result.updated).arg(calendarName);
    }
    return Text::tr("Imported %1 and updated %2 in %3.").arg(result.imported).arg(result.updated).arg(calendarName);
}

} // namespace EventImport
