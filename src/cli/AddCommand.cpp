// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/AppState.h"
#include "cli/CommandContext.h"
#include "cli/Commands.h"
#include "cli/JsonRecords.h"
#include "cli/TimeArgument.h"
#include "ical/NLParser.h"
#include "storage/CalendarChoice.h"
#include "storage/Clock.h"
#include "storage/EventRepository.h"
#include "storage/StorageFormat.h"

#include <QCoreApplication>
#include <QJsonObject>
#include <QLocale>

namespace {

// tr() for this file's free functions; lupdate takes the context from the macro.
struct Text
{
    Q_DECLARE_TR_FUNCTIONS(kbcal)
};

QString yesNo(bool value)
{
    return value ? Text::tr("yes") : Text::tr("no");
}

void printParse(CommandContext &context, const NLParser::ParseResult &result)
{
    if (context.json()) {
        context.printJson(QJsonObject{
            {QStringLiteral("title"), result.title},
            {QStringLiteral("start"), JsonRecords::dateTime(result.start)},
            {QStringLiteral("end"), JsonRecords::dateTime(result.end)},
            {QStringLiteral("all_day"), result.allDay},
            {QStringLiteral("has_time"), result.hasTime},
        });
        return;
    }
    const QString end = result.end ? StorageFormat::dateTimeText(*result.end) : QString();
    context.out() << Text::tr("Title:    %1").arg(result.title) << '\n'
                  << Text::tr("Start:    %1").arg(StorageFormat::dateTimeText(result.start)) << '\n'
                  << Text::tr("End:      %1").arg(end) << '\n'
                  << Text::tr("All day:  %1").arg(yesNo(result.allDay)) << '\n'
                  << Text::tr("Has time: %1").arg(yesNo(result.hasTime)) << Qt::endl;
}

} // namespace

CommandDefinition addCommand()
{
    CommandDefinition definition;
    definition.words = {QStringLiteral("add")};
    definition.synopsis = QStringLiteral("TEXT... [--calendar ID] [--now T] [--dry-run] [--json]");
    definition.summary = Text::tr("Add an event from one line of text (quick-add).");
    definition.description = Text::tr(
        "Joins the words into one line and reads it as the desktop quick-add box does, for example:\n"
        "  kbcal add Lunch with Sam tomorrow at 12:30 for 45 min\n"
        "T is an ISO 8601 date-time (2024-01-05T09:00:00Z, 2024-01-05T10:00:00+01:00, or local time without "
        "an offset) or a date (2024-01-05, local midnight). With --dry-run nothing is stored and the reading "
        "is printed. Put -- before the text when one of its words begins with a dash.");
    definition.options = {
        QCommandLineOption(QStringLiteral("calendar"), Text::tr("Add the event to the calendar with this id."),
                           QStringLiteral("ID")),
        QCommandLineOption(QStringLiteral("now"), Text::tr("Read the text as if it were this time (default: now)."),
                           QStringLiteral("T")),
        QCommandLineOption(QStringLiteral("dry-run"), Text::tr("Print how the text is read; store nothing.")),
    };
    definition.minArguments = 1;
    definition.maxArguments = -1;
    definition.run = [](CommandContext &context) {
        const QString line = context.arguments().join(QLatin1Char(' '));
        if (line.trimmed().isEmpty())
            return context.usageError(Text::tr("the text of the event is empty"));
        QDateTime now = Clock::nowLocal();
        if (context.parser().isSet(QStringLiteral("now"))) {
            const QString text = context.parser().value(QStringLiteral("now"));
            now = parseTimeArgument(text);
            if (!now.isValid())
                return context.usageError(Text::tr("'%1' is not a date or date-time for --now").arg(text));
        }

        // A line naming a date or time that does not exist is refused, not turned into an event
        // at a made-up time; a dry run says so too, since it shows what adding would do.
        const QString problem = NLParser::problem(line, now);
        if (!problem.isEmpty())
            return context.fail(problem);

        if (context.parser().isSet(QStringLiteral("dry-run"))) {
            printParse(context, NLParser::parse(line, now));
            return 0;
        }
        AppState *state = context.state();
        if (!state)
            return 1;
        const CalendarChoice::Choice choice
            = CalendarChoice::forNewEvents(*state->database(), context.parser().value(QStringLiteral("calendar")));
        if (!choice.calendar)
            return context.fail(choice.error);
        const std::optional<Event> event = NLParser::eventFromLine(line, choice.calendar->id, now);
        if (!event || !state->events()->insert(*event))
            return context.fail(Text::tr("the event could not be stored in %1").arg(choice.calendar->name));
        const Event stored = state->events()->getById(event->id).value_or(*event);
        if (context.json()) {
            context.printJson(JsonRecords::toJson(stored));
        } else {
            const QLocale locale;
            const QDateTime start = stored.start_time.toLocalTime();
            const QString when = stored.is_all_day ? locale.toString(start.date(), QStringLiteral("ddd yyyy-MM-dd"))
                                                   : locale.toString(start, QStringLiteral("ddd yyyy-MM-dd HH:mm"));
            context.out() << Text::tr("Added \"%1\" on %2 to %3").arg(stored.title, when, choice.calendar->name)
                          << Qt::endl;
        }
        return 0;
    };
    return definition;
}
