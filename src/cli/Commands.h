// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/CommandDefinition.h"

// Every command of kbcal, in the order `kbcal --help` lists them.
const QList<CommandDefinition> &allCommands();

// One function per command, each in its own source file.
CommandDefinition initCommand();
CommandDefinition icsParseCommand();
CommandDefinition addCommand();
CommandDefinition agendaCommand();
CommandDefinition icsExpandCommand();
CommandDefinition sampleDataAddCommand();
CommandDefinition sampleDataRemoveCommand();
CommandDefinition taskCompleteCommand();
CommandDefinition taskReopenCommand();
CommandDefinition tasksCommand();
CommandDefinition importCommand();
CommandDefinition exportCommand();
CommandDefinition calendarsCommand();
CommandDefinition accountsCommand();
