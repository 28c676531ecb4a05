// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Commands.h"

const QList<CommandSpec> &allCommands()
{
    static const QList<CommandSpec> commands = {
        initCommand(),          icsParseCommand(),         icsExpandCommand(),
        addCommand(),           agendaCommand(),           calendarsCommand(),
        accountsCommand(),      importCommand(),           exportCommand(),
        tasksCommand(),         taskCompleteCommand(),     taskReopenCommand(),
        sampleDataAddCommand(), sampleDataRemoveCommand(),
    };
    return commands;
}
