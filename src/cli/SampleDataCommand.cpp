// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/CommandContext.h"
#include "cli/Commands.h"
#include "storage/AccountRepository.h"
#include "storage/CalendarRepository.h"
#include "storage/Database.h"
#include "storage/EventRepository.h"
#include "storage/SampleData.h"
#include "storage/TaskRepository.h"

#include <QCoreApplication>
#include <QJsonObject>
#include <QSqlQuery>

namespace {

// tr() for this file's free functions; lupdate takes the context from the macro.
struct Text
{
    Q_DECLARE_TR_FUNCTIONS(kbcal)
};

int countRows(Database *database, const QString &sql)
{
    QSqlQuery query(database->connection());
    return query.exec(sql) && query.next() ? query.value(0).toInt() : 0;
}

} // namespace

CommandDefinition sampleDataAddCommand()
{
    CommandDefinition definition;
    definition.words = {QStringLiteral("sample-data"), QStringLiteral("add")};
    definition.synopsis = QStringLiteral("[--json]");
    definition.summary = Text::tr("Add a sample week of events and tasks.");
    definition.description
        = Text::tr("Adds the account \"Sample Data\" with four calendars, a week of events around today and a "
                   "few tasks, to show what the calendar looks like. Whatever of it is already there is left "
                   "as it is. 'kbcal sample-data remove' takes it away again.");
    definition.run = [](CommandContext &context) {
        Database *database = context.database();
        if (!database)
            return 1;
        AccountRepository accounts(database);
        CalendarRepository calendarRepository(database);
        EventRepository events(database);
        TaskRepository tasks(database);
        seedSampleData(accounts, calendarRepository, events, tasks);
        const int calendars = countRows(database,
                                        QStringLiteral("SELECT COUNT(*) FROM calendars WHERE id LIKE "
                                                       "'sample-cal-%'"));
        const int eventCount = countRows(database,
                                         QStringLiteral("SELECT COUNT(*) FROM events WHERE id LIKE "
                                                        "'sample-event-%'"));
        const int taskCount = countRows(database,
                                        QStringLiteral("SELECT COUNT(*) FROM tasks WHERE id LIKE "
                                                       "'sample-task-%'"));
        if (context.json()) {
            context.printJson(QJsonObject{{QStringLiteral("calendars"), calendars},
                                          {QStringLiteral("events"), eventCount},
                                          {QStringLiteral("tasks"), taskCount}});
        } else {
            context.out() << Text::tr("Sample data: %1 calendars, %2 events, %3 tasks.")
                                 .arg(calendars)
                                 .arg(eventCount)
                                 .arg(taskCount)
                          << Qt::endl;
        }
        return 0;
    };
    return definition;
}

CommandDefinition sampleDataRemoveCommand()
{
    CommandDefinition definition;
    definition.words = {QStringLiteral("sample-data"), QStringLiteral("remove")};
    definition.synopsis = QStringLiteral("[--json]");
    definition.summary = Text::tr("Remove the sample events, tasks, calendars and account.");
    definition.description
        = Text::tr("Deletes everything 'kbcal sample-data add' created and prints how many rows went.");
    definition.run = [](CommandContext &context) {
        Database *database = context.database();
        if (!database)
            return 1;
        const int removed = removeSampleData(*database);
        if (context.json())
            context.printJson(QJsonObject{{QStringLiteral("removed"), removed}});
        else
            context.out() << Text::tr("Removed %1 sample rows.").arg(removed) << Qt::endl;
        return 0;
    };
    return definition;
}
