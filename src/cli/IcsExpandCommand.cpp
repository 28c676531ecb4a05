// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/CommandContext.h"
#include "cli/Commands.h"
#include "cli/JsonRecords.h"
#include "cli/TimeArgument.h"
#include "ical/ICal.h"
#include "ical/Recurrence.h"

#include <QCoreApplication>
#include <QFile>
#include <QJsonObject>

namespace {

// tr() for this file's free functions; lupdate takes the context from the macro.
struct Text
{
    Q_DECLARE_TR_FUNCTIONS(kbcal)
};

// One line per occurrence, in local time: "2024-01-05 09:00 - 10:00  Title".
QString occurrenceLine(const Event &event)
{
    const QDateTime start = event.start_time.toLocalTime();
    if (event.is_all_day)
        return start.date().toString(Qt::ISODate) + QLatin1String("  ") + Text::tr("all day") + QLatin1String("  ")
            + event.title;
    QString when = start.toString(QStringLiteral("yyyy-MM-dd HH:mm"));
    if (event.end_time) {
        const QDateTime end = event.end_time->toLocalTime();
        when += QLatin1String(" - ")
            + end.toString(end.date() == start.date() ? QStringLiteral("HH:mm") : QStringLiteral("yyyy-MM-dd HH:mm"));
    }
    return when + QLatin1String("  ") + event.title;
}

// The rows the calendar views' range query would return for the span: those that overlap it,
// and every series master that starts before its end. The expansion relies on that choice.
QList<Event> rowsForSpan(const QList<Event> &events, const QDateTime &from, const QDateTime &to)
{
    QList<Event> rows;
    for (const Event &event : events) {
        if (event.start_time.isValid() && event.start_time < to
            && (!event.end_time || *event.end_time > from || !event.recurrence_rule.isEmpty()))
            rows.append(event);
    }
    return rows;
}

} // namespace

CommandDefinition icsExpandCommand()
{
    CommandDefinition definition;
    definition.words = {QStringLiteral("ics"), QStringLiteral("expand")};
    definition.synopsis = QStringLiteral("[FILE|-] --from T --to T [--json]");
    definition.summary = Text::tr("Expand the events of iCalendar text over a span.");
    definition.description
        = Text::tr("Reads iCalendar text from FILE, or from standard input when FILE is '-' or absent, and "
                   "lists the occurrences of its events in the span [--from, --to) exactly as the calendar "
                   "views show them: single events first, then each series' occurrences with changed "
                   "occurrences in place. T is an ISO 8601 date-time or a date (local midnight). No "
                   "database is used.");
    definition.options = {
        QCommandLineOption(QStringLiteral("from"), Text::tr("Start of the span (included)."), QStringLiteral("T")),
        QCommandLineOption(QStringLiteral("to"), Text::tr("End of the span (excluded)."), QStringLiteral("T")),
    };
    definition.maxArguments = 1;
    definition.run = [](CommandContext &context) {
        const QCommandLineParser &parser = context.parser();
        if (!parser.isSet(QStringLiteral("from")) || !parser.isSet(QStringLiteral("to")))
            return context.usageError(Text::tr("both --from and --to are required"));
        const QDateTime from = parseTimeArgument(parser.value(QStringLiteral("from")));
        if (!from.isValid())
            return context.usageError(Text::tr("invalid time '%1'").arg(parser.value(QStringLiteral("from"))));
        const QDateTime to = parseTimeArgument(parser.value(QStringLiteral("to")));
        if (!to.isValid())
            return context.usageError(Text::tr("invalid time '%1'").arg(parser.value(QStringLiteral("to"))));
        if (to <= from)
            return context.fail(Text::tr("the span is empty: --to must be after --from"));

        const QString path = context.arguments().value(0, QStringLiteral("-"));
        QByteArray text;
        if (path == QLatin1String("-")) {
            text = context.in() ? context.in()->readAll() : QByteArray();
        } else {
            QFile file(path);
            if (!file.open(QIODevice::ReadOnly))
                return context.fail(Text::tr("cannot read %1: %2").arg(path, file.errorString()));
            text = file.readAll();
        }

        const QList<Event> occurrences
            = Recurrence::expandEvents(rowsForSpan(ICal::parseEvents(QByteArrayView(text)), from, to), from, to);
        if (context.json()) {
            context.printJson(QJsonObject{{QStringLiteral("occurrences"), JsonRecords::toJsonArray(occurrences)}});
        } else {
            for (const Event &occurrence : occurrences)
                context.out() << occurrenceLine(occurrence) << '\n';
            context.out().flush();
        }
        return 0;
    };
    return definition;
}
