// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/CommandContext.h"
#include "cli/Commands.h"
#include "ical/ICal.h"
#include "storage/CalendarRepository.h"
#include "storage/Database.h"
#include "storage/EventRepository.h"

#include <QCoreApplication>
#include <QSet>

namespace {

// tr() for this file's free functions; lupdate takes the context from the macro.
struct Text
{
    Q_DECLARE_TR_FUNCTIONS(kbcal)
};

// A content line folded at 75 octets, as the text is written to files; a continuation begins with
// a space, and a UTF-8 sequence is never split.
QByteArray folded(const QByteArray &line)
{
    if (line.size() <= 75)
        return line + "\r\n";
    QByteArray out;
    qsizetype start = 0;
    qsizetype limit = 75;
    while (start < line.size()) {
        qsizetype end = std::min(start + limit, line.size());
        while (end < line.size() && end > start + 1 && (uchar(line.at(end)) & 0xC0) == 0x80)
            --end;
        if (start > 0)
            out += ' ';
        out += line.mid(start, end - start) + "\r\n";
        start = end;
        limit = 74;
    }
    return out;
}

// The components of one stored calendar object (its events, the time zones they name), without
// the object's own envelope and properties. Time zones already written are left out.
void appendComponents(QByteArray &out, const QByteArray &object, QSet<QByteArray> &zonesWritten)
{
    const QList<QByteArray> lines = object.split('\n');
    int depth = 0;
    QByteArray component;
    bool isZone = false;
    for (QByteArray line : lines) {
        if (line.endsWith('\r'))
            line.chop(1);
        const QByteArray upper = line.toUpper();
        if (upper == "BEGIN:VCALENDAR" || upper == "END:VCALENDAR" || (depth == 0 && !upper.startsWith("BEGIN:")))
            continue;
        if (upper.startsWith("BEGIN:")) {
            if (depth == 0) {
                component.clear();
                isZone = upper == "BEGIN:VTIMEZONE";
            }
            ++depth;
        }
        component += folded(line);
        if (upper.startsWith("END:") && --depth == 0) {
            if (!isZone || !zonesWritten.contains(component)) {
                out += component;
                if (isZone)
                    zonesWritten.insert(component);
            }
        }
    }
}

} // namespace

CommandDefinition exportCommand()
{
    CommandDefinition definition;
    definition.words = {QStringLiteral("export")};
    definition.synopsis = QStringLiteral("[--calendar ID]...");
    definition.summary = Text::tr("Write the stored events as one iCalendar object.");
    definition.description
        = Text::tr("Writes the events of the named calendars (every calendar when none is named) to "
                   "standard output as one iCalendar object, each event in the text it was stored with.");
    definition.options = {
        QCommandLineOption(QStringLiteral("calendar"), Text::tr("Export the calendar ID (may be repeated)."),
                           QStringLiteral("ID")),
    };
    definition.acceptsJson = false;
    definition.run = [](CommandContext &context) {
        Database *database = context.database();
        if (!database)
            return 1;
        const CalendarRepository calendars(database);
        QStringList ids = context.parser().values(QStringLiteral("calendar"));
        if (ids.isEmpty()) {
            for (const Calendar &calendar : calendars.getAll())
                ids.append(calendar.id);
        } else {
            for (const QString &id : std::as_const(ids)) {
                if (!calendars.getById(id))
                    return context.fail(Text::tr("there is no calendar %1").arg(id));
            }
        }

        const EventRepository events(database);
        QByteArray text = ICal::kCalendarHead;
        QSet<QByteArray> zonesWritten;
        for (const QString &id : std::as_const(ids)) {
            for (const Event &event : events.getByCalendar(id)) {
                // An event stored without text of its own is written from its fields.
                appendComponents(text, event.raw_icalendar.isEmpty() ? ICal::buildEventIcs(event) : event.raw_icalendar,
                                 zonesWritten);
            }
        }
        text += ICal::kCalendarTail;
        context.out() << QString::fromUtf8(text);
        context.out().flush();
        return 0;
    };
    return definition;
}
