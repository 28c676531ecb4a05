// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCommandLineOption>
#include <QList>
#include <QString>
#include <QStringList>

#include <functional>

class CommandContext;

// One kbcal command: its words ("task complete"), its synopsis and options, and what it runs.
// A new command is a function returning one of these, listed in Commands.cpp.
struct CommandDefinition
{
    QStringList words; // e.g. {"ics", "parse"}
    QString synopsis; // the arguments after the words, e.g. "[FILE|-] [--json]"
    QString summary; // one line for `kbcal --help`
    QString description; // the paragraph of `kbcal COMMAND --help`
    QList<QCommandLineOption> options; // besides --json, --progress, --data-dir and --help
    bool acceptsJson = true;
    int minArguments = 0;
    int maxArguments = 0; // -1: no limit
    std::function<int(CommandContext &)> run;

    QString name() const { return words.join(QLatin1Char(' ')); }
};
