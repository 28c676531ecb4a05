// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/CommandContext.h"
#include "cli/Commands.h"
#include "cli/JsonRecords.h"
#include "cli/TimeArgument.h"
#include "storage/CalendarRepository.h"
#include "storage/Clock.h"
#include "storage/Database.h"
#include "storage/EventRepository.h"
#include "storage/FilterRuleRepository.h"
#include "storage/SpanQuery.h"

#include <QCoreApplication>
#include <QHash>
#include <QJsonArray>
#include <QJsonObject>
#include <QLocale>
#include <QMap>

#include <algorithm>

namespace {

// tr() for this file's free functions; lupdate takes the context from the macro.
struct Text
{
    Q_DECLARE_TR_FUNCTIONS(kbcal)
};

// The local dates an occurrence is listed under, clipped to the span. All-day events cover
// their own dates (end exclusive), whatever zone they are stored in; timed events the local
// dates from their start to just before their end.
QList<QDate> daysOf(const Event &event, const QDate &firstDay, const QDate &lastDay)
{
    QDate from;
    QDate to;
    if (event.is_all_day) {
        from = event.start_time.date();
        to = event.end_time && event.end_time->date() > from ? event.end_time->date().addDays(-1) : from;
    } else {
        from = event.start_time.toLocalTime().date();
        to = from;
        if (event.end_time && *event.end_time > event.start_time)
            to = event.end_time->addMSecs(-1).toLocalTime().date();
    }
    QList<QDate> days;
    for (QDate day = std::max(from, firstDay); day.isValid() && day <= std::min(to, lastDay); day = day.addDays(1))
        days.append(day);
    return days;
}

// The time of an occurrence as listed under `day`: "all day", "09:00", "09:00–10:00"; a start or
// end on another day carries its date.
QString timeText(const Event &event, const QDate &day)
{
    if (event.is_all_day)
        return Text::tr("all day");
    const auto instant = [&day](const QDateTime &value) -> QString {
        const QDateTime local = value.toLocalTime();
        QString text;
        if (local.date() != day)
            text = QLocale().toString(local.date(), QStringLiteral("ddd d MMM")) + QLatin1Char(' ');
        return text + local.toString(QStringLiteral("HH:mm"));
    };
    QString text = instant(event.start_time);
    if (event.end_time && *event.end_time > event.start_time)
        text += QChar(0x2013) + instant(*event.end_time);
    return text;
}

void printText(CommandContext &context, const SpanContents &span, const QHash<QString, QString> &calendarNames)
{
    QTextStream &out = context.out();
    const QDate firstDay = span.start.toLocalTime().date();
    const QDate lastDay = span.end.addMSecs(-1).toLocalTime().date();
    QMap<QDate, QList<const Event *>> byDay;
    for (const Event &event : span.occurrences) {
        for (const QDate &day : daysOf(event, firstDay, lastDay))
            byDay[day].append(&event);
    }

    const QLocale locale;
    if (byDay.isEmpty()) {
        out << Text::tr("No events from %1 to %2.")
                   .arg(locale.toString(firstDay, QLocale::ShortFormat), locale.toString(lastDay, QLocale::ShortFormat))
            << '\n';
    }
    bool firstGroup = true;
    for (auto it = byDay.cbegin(); it != byDay.cend(); ++it) {
        if (!firstGroup)
            out << '\n';
        firstGroup = false;
        out << locale.toString(it.key(), QStringLiteral("dddd d MMMM yyyy")) << '\n';
        // All-day events head their day; the rest keep the order of their starts.
        QList<const Event *> listed = it.value();
        std::stable_sort(listed.begin(), listed.end(),
                         [](const Event *a, const Event *b) { return a->is_all_day && !b->is_all_day; });
        for (const Event *event : std::as_const(listed)) {
            QString line = QStringLiteral("  ") + timeText(*event, it.key()).leftJustified(11) + QStringLiteral("  ")
                + (event->title.isEmpty() ? Text::tr("(no title)") : event->title);
            if (!event->location.isEmpty())
                line += QStringLiteral(", ") + event->location;
            line += QStringLiteral("  [") + calendarNames.value(event->calendar_id, event->calendar_id)
                + QLatin1Char(']');
            if (span.dimmedIds.contains(event->id))
                line += QLatin1Char(' ') + Text::tr("(dimmed)");
            if (span.suppressedReminderIds.contains(event->id))
                line += QLatin1Char(' ') + Text::tr("(reminders off)");
            out << line.replace(QLatin1Char('\n'), QLatin1Char(' ')) << '\n';
        }
    }
    if (span.hiddenCount > 0) {
        out << '\n'
            << (span.hiddenCount == 1 ? Text::tr("1 event hidden by filter rules.")
                                      : Text::tr("%1 events hidden by filter rules.").arg(span.hiddenCount))
            << '\n';
    }
    out.flush();
}

QJsonObject toJson(const SpanContents &span)
{
    QJsonArray occurrences;
    for (const Event &event : span.occurrences) {
        QJsonObject object = JsonRecords::toJson(event);
        object.insert(QStringLiteral("dimmed"), span.dimmedIds.contains(event.id));
        object.insert(QStringLiteral("reminders_suppressed"), span.suppressedReminderIds.contains(event.id));
        occurrences.append(object);
    }
    return QJsonObject{{QStringLiteral("occurrences"), occurrences},
                       {QStringLiteral("hidden_count"), span.hiddenCount}};
}

} // namespace

CommandDefinition agendaCommand()
{
    CommandDefinition definition;
    definition.words = {QStringLiteral("agenda")};
    definition.synopsis = QStringLiteral("[--from D] [--to D | --days N] [--calendar ID]... [--json]");
    definition.summary = Text::tr("Show the events of a span of days.");
    definition.description = Text::tr(
        "Shows the occurrences of the stored events from --from (default: today at 00:00 local time) up to, not "
        "including, --to, or for --days days (default: 7), exactly as the calendar views show them: recurring "
        "events expanded, and the enabled filter rules applied (hidden events are counted, dimmed ones marked). "
        "A date without a time is local midnight. Without --calendar, the visible calendars are shown.");
    definition.options = {
        QCommandLineOption(QStringLiteral("from"), Text::tr("Start of the span (date or date-time)."),
                           QStringLiteral("D")),
        QCommandLineOption(QStringLiteral("to"), Text::tr("End of the span, not included (date or date-time)."),
                           QStringLiteral("D")),
        QCommandLineOption(QStringLiteral("days"), Text::tr("Length of the span in days (1 to 36600)."),
                           QStringLiteral("N")),
        QCommandLineOption(QStringLiteral("calendar"), Text::tr("Show this calendar (repeatable)."),
                           QStringLiteral("ID")),
    };
    definition.run = [](CommandContext &context) {
        QCommandLineParser &parser = context.parser();
        QDateTime from = Clock::nowLocal().date().startOfDay();
        if (parser.isSet(QStringLiteral("from"))) {
            from = parseTimeArgument(parser.value(QStringLiteral("from")));
            if (!from.isValid())
                return context.usageError(
                    Text::tr("invalid date for --from: '%1'").arg(parser.value(QStringLiteral("from"))));
        }
        if (parser.isSet(QStringLiteral("to")) && parser.isSet(QStringLiteral("days")))
            return context.usageError(Text::tr("--to and --days cannot be used together"));
        QDateTime to = from.addDays(7);
        if (parser.isSet(QStringLiteral("to"))) {
            to = parseTimeArgument(parser.value(QStringLiteral("to")));
            if (!to.isValid())
                return context.usageError(
                    Text::tr("invalid date for --to: '%1'").arg(parser.value(QStringLiteral("to"))));
            if (!(from < to))
                return context.usageError(Text::tr("--to must be later than the start of the span"));
        } else if (parser.isSet(QStringLiteral("days"))) {
            bool ok = false;
            const int days = parser.value(QStringLiteral("days")).toInt(&ok);
            if (!ok || days < 1 || days > 36600)
                return context.usageError(
                    Text::tr("invalid number of days: '%1'").arg(parser.value(QStringLiteral("days"))));
            to = from.addDays(days);
        }

        Database *database = context.database();
        if (!database)
            return 1;
        const QList<Calendar> calendars = CalendarRepository(database).getAll();
        QHash<QString, QString> calendarNames;
        QStringList visible;
        for (const Calendar &calendar : calendars) {
            calendarNames.insert(calendar.id, calendar.name);
            if (calendar.is_visible)
                visible.append(calendar.id);
        }
        QStringList calendarIds = parser.values(QStringLiteral("calendar"));
        calendarIds.removeDuplicates();
        for (const QString &id : std::as_const(calendarIds)) {
            if (!calendarNames.contains(id))
                return context.fail(Text::tr("no calendar with the id %1").arg(id));
        }
        // Without a choice, the visible calendars; when that is all of them, no calendar filter.
        bool nothingToShow = false;
        if (calendarIds.isEmpty() && visible.size() != calendars.size()) {
            calendarIds = visible;
            nothingToShow = visible.isEmpty();
        }

        SpanContents span;
        if (nothingToShow) {
            span.start = from.toUTC();
            span.end = to.toUTC();
        } else {
            EventRepository events(database);
            FilterRuleRepository rules(database);
            span = SpanQuery(events, rules).contents(from, to, calendarIds);
        }

        if (context.json())
            context.printJson(toJson(span));
        else
            printText(context, span, calendarNames);
        return 0;
    };
    return definition;
}
