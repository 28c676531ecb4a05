// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/CommandContext.h"
#include "cli/Commands.h"
#include "storage/CalendarChoice.h"
#include "storage/Database.h"
#include "storage/EventImport.h"
#include "storage/EventRepository.h"

#include <QCoreApplication>
#include <QJsonObject>

namespace {

// tr() for this file's free functions; lupdate takes the context from the macro.
struct Text
{
    Q_DECLARE_TR_FUNCTIONS(kbcal)
};

} // namespace

CommandDefinition importCommand()
{
    CommandDefinition definition;
    definition.words = {QStringLiteral("import")};
    definition.synopsis = QStringLiteral("FILE [--calendar ID] [--json]");
    definition.summary = Text::tr("Import the events of an iCalendar file.");
    definition.description
        = Text::tr("Imports the events of FILE into a calendar: --calendar, else the calendar chosen for new "
                   "events (the preference ui/defaultCalendarId, else the default calendar, else the first "
                   "one). An event already in the calendar (same UID and recurrence id) is updated, any "
                   "other is added. Either the whole file is imported or, on an error, nothing.");
    definition.options = {
        QCommandLineOption(QStringLiteral("calendar"), Text::tr("Import into the calendar ID."), QStringLiteral("ID")),
    };
    definition.minArguments = 1;
    definition.maxArguments = 1;
    definition.run = [](CommandContext &context) {
        Database *database = context.database();
        if (!database)
            return 1;
        const CalendarChoice::Choice choice
            = CalendarChoice::forNewEvents(*database, context.parser().value(QStringLiteral("calendar")));
        if (!choice.calendar)
            return context.fail(choice.error);

        EventRepository events(database);
        EventImport::Progress progress;
        if (context.progress()) {
            progress = [&context](int done, int total) {
                context.err() << Text::tr("Importing: %1 of %2 events").arg(done).arg(total) << '\r';
                if (done == total)
                    context.err() << '\n';
                context.err().flush();
            };
        }
        const EventImport::Result result = EventImport::importFile(*database, events, context.arguments().constFirst(),
                                                                   choice.calendar->id, progress);
        if (!result.error.isEmpty())
            return context.fail(result.error);

        if (context.json()) {
            context.printJson(QJsonObject{{QStringLiteral("calendar_id"), choice.calendar->id},
                                          {QStringLiteral("imported"), result.imported},
                                          {QStringLiteral("updated"), result.updated}});
        } else {
            context.out() << EventImport::summary(result, choice.calendar->name) << Qt::endl;
        }
        return 0;
    };
    return definition;
}
