// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>
#include <QTextStream>

struct CommandDefinition;
class QIODevice;

// The kbcal front end: parses the global options, finds the command, parses its options and runs
// it. The streams are passed in, so tests run commands in-process against buffers.
//
// Exit statuses: 0 success, 1 failure (one "kbcal: ..." line on standard error), 2 wrong usage.
class Cli
{
public:
    Cli(QTextStream &out, QTextStream &err, QIODevice *in, bool stderrIsTerminal);

    // Runs one command line; `arguments` excludes the program name.
    int run(const QStringList &arguments);

    // "Usage: kbcal [--data-dir DIR] COMMAND SYNOPSIS".
    static QString usageLine(const CommandDefinition &definition);
    // True once a command line asked for the program's log output (--verbose).
    static bool verboseLogging();

private:
    int printGeneralHelp();
    int generalUsageError(const QString &message);
    int runCommand(const CommandDefinition &definition, const QStringList &commandArguments);

    QTextStream &m_out;
    QTextStream &m_err;
    QIODevice *m_in;
    bool m_stderrIsTerminal;
};
