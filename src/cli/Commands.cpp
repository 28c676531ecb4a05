// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Commands.h"

const QList<CommandSpec> &allCommands()
{
    static const QList<CommandSpec> commands = {
        initCommand(),
        calendarsCommand(),
        accountsCommand(),
    };
    return commands;
}
