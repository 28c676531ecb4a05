// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Cli.h"

#include <QCoreApplication>
#include <QFile>

#include <cstdio>
#ifdef Q_OS_WIN
#include <io.h>
#define isatty _isatty
#define fileno _fileno
#else
#include <unistd.h>
#endif

namespace {

// The program's own log lines reach the terminal only with --verbose or QT_LOGGING_RULES, so that
// a failing command prints its one error line and nothing else.
void messageHandler(QtMsgType type, const QMessageLogContext &context, const QString &message)
{
    static const bool rulesGiven = !qEnvironmentVariableIsEmpty("QT_LOGGING_RULES");
    if (type == QtFatalMsg || rulesGiven || Cli::verboseLogging()) {
        const QString line = qFormatLogMessage(type, context, message);
        std::fprintf(stderr, "%s\n", line.toLocal8Bit().constData());
    }
}

} // namespace

int main(int argc, char *argv[])
{
    qInstallMessageHandler(messageHandler);
    QCoreApplication app(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Kettlebrook"));
    QCoreApplication::setApplicationName(QStringLiteral("Calendar"));
    QCoreApplication::setApplicationVersion(QStringLiteral("1.3.2"));

    QFile in;
    in.open(stdin, QIODevice::ReadOnly);
    QTextStream out(stdout);
    QTextStream err(stderr);
    Cli cli(out, err, &in, isatty(fileno(stderr)) != 0);
    QStringList arguments = QCoreApplication::arguments();
    arguments.removeFirst();
    return cli.run(arguments);
}
