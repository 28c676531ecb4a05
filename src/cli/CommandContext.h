// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QCommandLineParser>
#include <QJsonValue>
#include <QString>
#include <QStringList>
#include <QTextStream>

#include <memory>

class AppState;
class Database;
struct CommandDefinition;

// What a running command sees: its parsed options and arguments, the three streams, and the
// calendar store, opened on first use exactly as the desktop program opens it.
class CommandContext
{
public:
    CommandContext(const CommandDefinition &definition, QCommandLineParser &parser, QTextStream &out, QTextStream &err,
                   QIODevice *in, bool progressWanted);
    ~CommandContext();

    const CommandDefinition &definition() const { return m_definition; }
    QCommandLineParser &parser() { return m_parser; }
    QStringList arguments() const { return m_parser.positionalArguments(); }
    bool json() const;
    // True when progress of long work should be written to standard error.
    bool progress() const { return m_progress; }

    QTextStream &out() { return m_out; }
    QTextStream &err() { return m_err; }
    QIODevice *in() { return m_in; }

    // The data folder: --data-dir, else CALENDAR_DATA_DIR, else the desktop program's default.
    QString dataDirectory() const;
    // Starts the calendar store on first use exactly as the desktop program does (database opened
    // and migrated, the on-device calendar seeded when signed out); null after printing an error
    // line.
    AppState *state();
    // The database of state(); null after printing an error line.
    Database *database();

    // Prints "kbcal: MESSAGE" on standard error and returns exit status 1.
    int fail(const QString &message);
    // Prints a usage error and the command's usage line on standard error; returns exit status 2.
    int usageError(const QString &message);
    // Prints one JSON document on standard output.
    void printJson(const QJsonValue &value);

private:
    const CommandDefinition &m_definition;
    QCommandLineParser &m_parser;
    QTextStream &m_out;
    QTextStream &m_err;
    QIODevice *m_in;
    bool m_progress;
    std::unique_ptr<AppState> m_state;
    bool m_stateFailed = false;
};
