// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "cli/CommandSpec.h"

// Every command of kbcal, in the order `kbcal --help` lists them.
const QList<CommandSpec> &allCommands();

// One function per command, each in its own source file.
CommandSpec initCommand();
CommandSpec icsParseCommand();
CommandSpec addCommand();
CommandSpec agendaCommand();
CommandSpec icsExpandCommand();
CommandSpec sampleDataAddCommand();
CommandSpec sampleDataRemoveCommand();
CommandSpec taskCompleteCommand();
CommandSpec taskReopenCommand();
CommandSpec tasksCommand();
CommandSpec importCommand();
CommandSpec exportCommand();
CommandSpec calendarsCommand();
CommandSpec accountsCommand();
