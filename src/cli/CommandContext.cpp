// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/CommandContext.h"

#include "app/AppEnvironment.h"
#include "app/AppState.h"
#include "cli/Cli.h"
#include "cli/CommandDefinition.h"
#include "storage/Database.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

CommandContext::CommandContext(const CommandDefinition &definition, QCommandLineParser &parser, QTextStream &out,
                               QTextStream &err, QIODevice *in, bool progressWanted)
    : m_definition(definition)
    , m_parser(parser)
    , m_out(out)
    , m_err(err)
    , m_in(in)
    , m_progress(progressWanted)
{ }

CommandContext::~CommandContext() = default;

bool CommandContext::json() const
{
    return m_definition.acceptsJson && m_parser.isSet(QStringLiteral("json"));
}

QString CommandContext::dataDirectory() const
{
    const QString explicitDir = m_parser.value(QStringLiteral("data-dir"));
    if (explicitDir.isEmpty())
        return AppEnvironment::dataDirectory();
    QDir().mkpath(explicitDir);
    return explicitDir;
}

AppState *CommandContext::state()
{
    if (m_state)
        return m_state.get();
    if (m_stateFailed)
        return nullptr;
    m_stateFailed = true;

    const QString folder = dataDirectory();
    if (!QFileInfo(folder).isDir()) {
        fail(QCoreApplication::translate("kbcal", "cannot create the data folder %1").arg(folder));
        return nullptr;
    }
    auto state = std::make_unique<AppState>();
    if (!state->initialize(folder + QStringLiteral("/calendar.db"))) {
        Database *database = state->database();
        const QString reason = database ? database->lastError() : QString();
        if (!database || !database->isOpen())
            fail(QCoreApplication::translate("kbcal", "cannot open the calendar database in %1: %2")
                     .arg(folder, reason));
        else
            fail(QCoreApplication::translate("kbcal", "cannot prepare the calendar database in %1: %2")
                     .arg(folder, reason));
        return nullptr;
    }
    m_stateFailed = false;
    m_state = std::move(state);
    return m_state.get();
}

Database *CommandContext::database()
{
    AppState *started = state();
    return started ? started->database() : nullptr;
}

int CommandContext::fail(const QString &message)
{
    m_err << "kbcal: " << message << Qt::endl;
    return 1;
}

int CommandContext::usageError(const QString &message)
{
    m_err << "kbcal: " << message << '\n' << Cli::usageLine(m_definition) << Qt::endl;
    return 2;
}

void CommandContext::printJson(const QJsonValue &value)
{
    QJsonDocument doc;
    if (value.isArray())
        doc = QJsonDocument(value.toArray());
    else
        doc = QJsonDocument(value.toObject());
    m_out << QString::fromUtf8(doc.toJson(QJsonDocument::Indented));
    m_out.flush();
}
