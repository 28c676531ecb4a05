// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Cli.h"

#include "cli/CommandContext.h"
#include "cli/Commands.h"

#include <QCommandLineParser>
#include <QCoreApplication>

namespace {

bool s_verbose = false;

// tr() for this file's free functions; lupdate takes the context from the macro.
struct Text
{
    Q_DECLARE_TR_FUNCTIONS(kbcal)
};

const QString kGeneralUsage = QStringLiteral("Usage: kbcal [--data-dir DIR] [--verbose] COMMAND [OPTIONS] [ARGS]");

QCommandLineOption jsonOption()
{
    return QCommandLineOption(QStringLiteral("json"), Text::tr("Print exactly one JSON document on standard output."));
}

QCommandLineOption progressOption()
{
    return QCommandLineOption(QStringLiteral("progress"), Text::tr("Report progress of long work on standard error."));
}

QCommandLineOption dataDirOption()
{
    return QCommandLineOption(QStringLiteral("data-dir"), Text::tr("Use the calendar data in DIR."),
                              QStringLiteral("DIR"));
}

QCommandLineOption helpOption()
{
    return QCommandLineOption({QStringLiteral("h"), QStringLiteral("help")}, Text::tr("Show this help."));
}

QString optionLabel(const QCommandLineOption &option)
{
    QStringList names;
    for (const QString &name : option.names())
        names.append(QString(name.size() == 1 ? QStringLiteral("-") : QStringLiteral("--")) + name);
    QString label = names.join(QStringLiteral(", "));
    if (!option.valueName().isEmpty())
        label += QLatin1Char(' ') + option.valueName();
    return label;
}

} // namespace

Cli::Cli(QTextStream &out, QTextStream &err, QIODevice *in, bool stderrIsTerminal)
    : m_out(out)
    , m_err(err)
    , m_in(in)
    , m_stderrIsTerminal(stderrIsTerminal)
{ }

bool Cli::verboseLogging()
{
    return s_verbose;
}

QString Cli::usageLine(const CommandDefinition &definition)
{
    QString line = QStringLiteral("Usage: kbcal [--data-dir DIR] ") + definition.name();
    if (!definition.synopsis.isEmpty())
        line += QLatin1Char(' ') + definition.synopsis;
    return line;
}

int Cli::run(const QStringList &arguments)
{
    QStringList rest = arguments;
    QString dataDir;
    while (!rest.isEmpty() && rest.constFirst().startsWith(QLatin1Char('-'))) {
        const QString option = rest.takeFirst();
        if (option == QLatin1String("--help") || option == QLatin1String("-h"))
            return printGeneralHelp();
        if (option == QLatin1String("--version")) {
            m_out << "kbcal " << QCoreApplication::applicationVersion() << Qt::endl;
            return 0;
        }
        if (option == QLatin1String("--verbose")) {
            s_verbose = true;
        } else if (option == QLatin1String("--data-dir")) {
            if (rest.isEmpty())
                return generalUsageError(Text::tr("missing value for --data-dir"));
            dataDir = rest.takeFirst();
        } else if (option.startsWith(QLatin1String("--data-dir="))) {
            dataDir = option.mid(11);
        } else {
            return generalUsageError(Text::tr("unknown option '%1'").arg(option));
        }
    }
    if (rest.isEmpty())
        return generalUsageError(Text::tr("missing command"));

    // The longest list of command words that matches the start of the line.
    const CommandDefinition *found = nullptr;
    for (const CommandDefinition &definition : allCommands()) {
        if (rest.size() < definition.words.size() || (found && found->words.size() >= definition.words.size()))
            continue;
        if (rest.mid(0, definition.words.size()) == definition.words)
            found = &definition;
    }
    if (!found) {
        QString attempted = rest.constFirst();
        if (rest.size() > 1 && !rest.at(1).startsWith(QLatin1Char('-')))
            attempted += QLatin1Char(' ') + rest.at(1);
        return generalUsageError(Text::tr("unknown command '%1'").arg(attempted));
    }

    QStringList commandArguments = rest.mid(found->words.size());
    if (!dataDir.isEmpty())
        commandArguments.prepend(QStringLiteral("--data-dir=") + dataDir);
    return runCommand(*found, commandArguments);
}

int Cli::runCommand(const CommandDefinition &definition, const QStringList &commandArguments)
{
    QCommandLineParser parser;
    parser.setOptionsAfterPositionalArgumentsMode(QCommandLineParser::ParseAsOptions);
    parser.addOptions(definition.options);
    if (definition.acceptsJson)
        parser.addOption(jsonOption());
    parser.addOption(progressOption());
    parser.addOption(dataDirOption());
    parser.addOption(helpOption());

    if (!parser.parse(QStringList{QStringLiteral("kbcal")} + commandArguments)) {
        m_err << "kbcal: " << parser.errorText() << '\n' << usageLine(definition) << Qt::endl;
        return 2;
    }
    if (parser.isSet(QStringLiteral("help"))) {
        m_out << usageLine(definition) << "\n\n" << definition.description << "\n\n" << Text::tr("Options:") << '\n';
        QList<QCommandLineOption> options = definition.options;
        if (definition.acceptsJson)
            options.append(jsonOption());
        options << progressOption() << dataDirOption() << helpOption();
        for (const QCommandLineOption &option : std::as_const(options))
            m_out << "  " << optionLabel(option).leftJustified(28) << ' ' << option.description() << '\n';
        m_out.flush();
        return 0;
    }

    const bool progress = parser.isSet(QStringLiteral("progress")) || m_stderrIsTerminal;
    CommandContext context(definition, parser, m_out, m_err, m_in, progress);
    const int count = parser.positionalArguments().size();
    if (count < definition.minArguments)
        return context.usageError(Text::tr("missing argument"));
    if (definition.maxArguments >= 0 && count > definition.maxArguments)
        return context.usageError(
            Text::tr("unexpected argument '%1'").arg(parser.positionalArguments().at(definition.maxArguments)));
    const int status = definition.run(context);
    m_out.flush();
    m_err.flush();
    return status;
}

int Cli::printGeneralHelp()
{
    m_out << kGeneralUsage << "\n\n"
          << Text::tr("The command-line companion of Kettlebrook Calendar: the same calendar store, from a terminal.")
          << "\n\n"
          << Text::tr("Commands:") << '\n';
    for (const CommandDefinition &definition : allCommands())
        m_out << "  " << definition.name().leftJustified(20) << ' ' << definition.summary << '\n';
    m_out << '\n'
          << Text::tr("Global options:") << '\n'
          << "  --data-dir DIR        "
          << Text::tr("Use the calendar data in DIR (default: CALENDAR_DATA_DIR, else the "
                      "desktop program's data folder).")
          << '\n'
          << "  --verbose             " << Text::tr("Show the program's log output on standard error.") << '\n'
          << "  --version             " << Text::tr("Show the version.") << '\n'
          << '\n'
          << Text::tr("Run 'kbcal COMMAND --help' for the options of a command.") << '\n';
    m_out.flush();
    return 0;
}

int Cli::generalUsageError(const QString &message)
{
    m_err << "kbcal: " << message << '\n'
          << kGeneralUsage << '\n'
          << Text::tr("Run 'kbcal --help' for the list of commands.") << Qt::endl;
    return 2;
}
