// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/CommandContext.h"
#include "cli/Commands.h"
#include "cli/JsonRecords.h"
#include "cli/TextTable.h"
#include "storage/AccountRepository.h"
#include "storage/CalendarRepository.h"
#include "storage/Database.h"

#include <QCoreApplication>
#include <QHash>

namespace {

// tr() for this file's free functions; lupdate takes the context from the macro.
struct Text
{
    Q_DECLARE_TR_FUNCTIONS(kbcal)
};

QString flagsOf(const Calendar &calendar)
{
    QStringList flags;
    if (calendar.is_default)
        flags.append(Text::tr("default"));
    if (!calendar.is_visible)
        flags.append(Text::tr("hidden"));
    if (calendar.is_read_only)
        flags.append(Text::tr("read-only"));
    if (calendar.is_shared)
        flags.append(Text::tr("shared"));
    if (calendar.shared_with_me)
        flags.append(Text::tr("shared with me"));
    if (!calendar.last_sync_error.isEmpty())
        flags.append(Text::tr("sync error: %1").arg(calendar.last_sync_error));
    return flags.join(QStringLiteral(", "));
}

} // namespace

CommandDefinition calendarsCommand()
{
    CommandDefinition definition;
    definition.words = {QStringLiteral("calendars")};
    definition.synopsis = QStringLiteral("[--json]");
    definition.summary = Text::tr("List the calendars.");
    definition.description
        = Text::tr("Lists every calendar in the order the desktop program shows them, with its account, "
                   "colour and state. With --json, prints the calendar records.");
    definition.run = [](CommandContext &context) {
        Database *database = context.database();
        if (!database)
            return 1;
        const QList<Calendar> calendars = CalendarRepository(database).getAll();
        if (context.json()) {
            context.printJson(JsonRecords::toJsonArray(calendars));
            return 0;
        }
        if (calendars.isEmpty()) {
            context.out() << Text::tr("No calendars.") << Qt::endl;
            return 0;
        }
        // Tombstoned accounts too: their calendars are still there until sync removes them.
        QHash<QString, QString> accountNames;
        for (const Account &account : AccountRepository(database).getAllIncludingDeleted())
            accountNames.insert(account.id, account.name);
        TextTable table({Text::tr("NAME"), Text::tr("ID"), Text::tr("ACCOUNT"), Text::tr("COLOUR"), Text::tr("STATE")});
        for (const Calendar &calendar : calendars) {
            table.addRow({calendar.name, calendar.id, accountNames.value(calendar.account_id, calendar.account_id),
                          calendar.color, flagsOf(calendar)});
        }
        table.print(context.out());
        return 0;
    };
    return definition;
}
