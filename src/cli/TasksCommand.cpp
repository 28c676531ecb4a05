// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/CommandContext.h"
#include "cli/Commands.h"
#include "cli/JsonRecords.h"
#include "storage/CalendarRepository.h"
#include "storage/Database.h"
#include "storage/TaskRepository.h"

#include <QCoreApplication>

namespace {

// tr() for this file's free functions; lupdate takes the context from the macro.
struct Text
{
    Q_DECLARE_TR_FUNCTIONS(kbcal)
};

// "[x] 2025-03-14  Title  (id)": done mark, due date, title, id.
QString taskLine(const Task &task)
{
    const bool done = task.status == QLatin1String("completed");
    QString due;
    if (task.due_date) {
        due = task.due_is_date_only ? task.due_date->date().toString(Qt::ISODate)
                                    : task.due_date->toLocalTime().toString(QStringLiteral("yyyy-MM-dd HH:mm"));
    }
    return QStringLiteral("[%1] %2  %3  (%4)")
        .arg(done ? QLatin1Char('x') : QLatin1Char(' '))
        .arg(due.leftJustified(16), task.title, task.id);
}

} // namespace

CommandDefinition tasksCommand()
{
    CommandDefinition definition;
    definition.words = {QStringLiteral("tasks")};
    definition.synopsis = QStringLiteral("[--calendar ID] [--json]");
    definition.summary = Text::tr("List tasks.");
    definition.description
        = Text::tr("Lists the tasks of the calendar ID, or of every calendar, by due date; tasks without a "
                   "due date come last in each calendar. Deleted tasks are not listed.");
    definition.options = {
        QCommandLineOption(QStringLiteral("calendar"), Text::tr("List the tasks of the calendar ID."),
                           QStringLiteral("ID")),
    };
    definition.run = [](CommandContext &context) {
        Database *database = context.database();
        if (!database)
            return 1;
        const CalendarRepository calendars(database);
        QStringList ids;
        const QString requested = context.parser().value(QStringLiteral("calendar"));
        if (!requested.isEmpty()) {
            if (!calendars.getById(requested))
                return context.fail(Text::tr("there is no calendar %1").arg(requested));
            ids.append(requested);
        } else {
            for (const Calendar &calendar : calendars.getAll())
                ids.append(calendar.id);
        }
        const TaskRepository repository(database);
        QList<Task> tasks;
        for (const QString &id : std::as_const(ids))
            tasks += repository.getByCalendar(id);

        if (context.json()) {
            context.printJson(JsonRecords::toJsonArray(tasks));
        } else {
            for (const Task &task : std::as_const(tasks))
                context.out() << taskLine(task) << '\n';
            context.out().flush();
        }
        return 0;
    };
    return definition;
}
