// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Commands.h"

const QList<CommandDefinition> &allCommands()
{
    static const QList<CommandDefinition> commands = {
        initCommand(),          icsParseCommand(),         icsExpandCommand(),
        addCommand(),           agendaCommand(),           calendarsCommand(),
        accountsCommand(),      importCommand(),           exportCommand(),
        tasksCommand(),         taskCompleteCommand(),     taskReopenCommand(),
        sampleDataAddCommand(), sampleDataRemoveCommand(),
    };
    return commands;
}
