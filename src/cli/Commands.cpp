// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Commands.h"

const QList<CommandSpec> &allCommands()
{
    static const QList<CommandSpec> commands = {
        initCommand(),
        icsParseCommand(),
        addCommand(),
        agendaCommand(),
        calendarsCommand(),
        accountsCommand(),
    };
    return commands;
}
