// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/CommandContext.h"
#include "cli/Commands.h"
#include "cli/JsonRecords.h"
#include "storage/TaskRepository.h"

#include <QCoreApplication>

namespace {

// tr() for this file's free functions; lupdate takes the context from the macro.
struct Text
{
    Q_DECLARE_TR_FUNCTIONS(kbcal)
};

QString dueText(const Task &task)
{
    if (!task.due_date)
        return QString();
    return task.due_is_date_only ? task.due_date->date().toString(Qt::ISODate)
                                 : task.due_date->toLocalTime().toString(QStringLiteral("yyyy-MM-dd HH:mm"));
}

int changeTask(CommandContext &context, bool complete)
{
    const QString id = context.arguments().constFirst();
    Database *database = context.database();
    if (!database)
        return 1;
    TaskRepository tasks(database);
    const std::optional<Task> before = tasks.getById(id);
    if (!before || before->deleted_at)
        return context.fail(Text::tr("there is no task %1").arg(id));
    if (!tasks.setCompleted(id, complete))
        return context.fail(Text::tr("could not change the task %1").arg(id));
    const Task after = *tasks.getById(id);

    if (context.json()) {
        context.printJson(JsonRecords::toJson(after));
        return 0;
    }
    if (!complete)
        context.out() << Text::tr("Reopened: %1").arg(after.title) << '\n';
    else if (after.status == QLatin1String("completed"))
        context.out() << Text::tr("Completed: %1").arg(after.title) << '\n';
    else if (after.due_date)
        context.out() << Text::tr("Done; next due %1: %2").arg(dueText(after), after.title) << '\n';
    else
        context.out() << Text::tr("Done; next start %1: %2")
                             .arg(after.start_date ? after.start_date->date().toString(Qt::ISODate) : QString(),
                                  after.title)
                      << '\n';
    context.out().flush();
    return 0;
}

CommandDefinition taskChangeCommand(const QString &word, const QString &summary, const QString &description,
                                    bool complete)
{
    CommandDefinition definition;
    definition.words = {QStringLiteral("task"), word};
    definition.synopsis = QStringLiteral("ID [--json]");
    definition.summary = summary;
    definition.description = description;
    definition.minArguments = 1;
    definition.maxArguments = 1;
    definition.run = [complete](CommandContext &context) {
        return changeTask(context, complete);
    };
    return definition;
}

} // namespace

CommandDefinition taskCompleteCommand()
{
    return taskChangeCommand(
        QStringLiteral("complete"), Text::tr("Complete a task."),
        Text::tr("Marks the task ID as completed. A repeating task is not closed: it moves on to its "
                 "next date and stays open. Prints the task after the change."),
        true);
}

CommandDefinition taskReopenCommand()
{
    return taskChangeCommand(QStringLiteral("reopen"), Text::tr("Reopen a completed task."),
                             Text::tr("Marks the task ID as not completed. Prints the task after the change."), false);
}
