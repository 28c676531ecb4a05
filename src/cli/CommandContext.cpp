// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/CommandContext.h"

#include "app/AppEnvironment.h"
#include "cli/Cli.h"
#include "cli/CommandSpec.h"
#include "storage/Database.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

CommandContext::CommandContext(const CommandSpec &spec, QCommandLineParser &parser, QTextStream &out, QTextStream &err,
                               QIODevice *in, bool progressWanted)
    : m_spec(spec)
    , m_parser(parser)
    , m_out(out)
    , m_err(err)
    , m_in(in)
    , m_progress(progressWanted)
{ }

CommandContext::~CommandContext() = default;

bool CommandContext::json() const
{
    return m_spec.acceptsJson && m_parser.isSet(QStringLiteral("json"));
}

QString CommandContext::dataDirectory() const
{
    const QString explicitDir = m_parser.value(QStringLiteral("data-dir"));
    if (explicitDir.isEmpty())
        return AppEnvironment::dataDirectory();
    QDir().mkpath(explicitDir);
    return explicitDir;
}

Database *CommandContext::database()
{
    if (m_database)
        return m_database.get();
    if (m_databaseFailed)
        return nullptr;
    m_databaseFailed = true;

    const QString folder = dataDirectory();
    if (!QFileInfo(folder).isDir()) {
        fail(QCoreApplication::translate("kbcal", "cannot create the data folder %1").arg(folder));
        return nullptr;
    }
    auto database = std::make_unique<Database>();
    const QString path = folder + QStringLiteral("/calendar.db");
    if (!database->open(path)) {
        fail(QCoreApplication::translate("kbcal", "cannot open the calendar database in %1: %2")
                 .arg(folder, database->lastError()));
        return nullptr;
    }
    database->migrate();
    if (!database->isUpToDate()) {
        fail(QCoreApplication::translate("kbcal", "cannot prepare the calendar database in %1: %2")
                 .arg(folder, database->lastError()));
        return nullptr;
    }
    m_databaseFailed = false;
    m_database = std::move(database);
    return m_database.get();
}

int CommandContext::fail(const QString &message)
{
    m_err << "kbcal: " << message << Qt::endl;
    return 1;
}

int CommandContext::usageError(const QString &message)
{
    m_err << "kbcal: " << message << '\n' << Cli::usageLine(m_spec) << Qt::endl;
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
