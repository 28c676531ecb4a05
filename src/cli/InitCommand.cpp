// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/CommandContext.h"
#include "cli/Commands.h"
#include "storage/Database.h"

#include <QCoreApplication>
#include <QJsonObject>

CommandDefinition initCommand()
{
    CommandDefinition definition;
    definition.words = {QStringLiteral("init")};
    definition.synopsis = QStringLiteral("[--json]");
    definition.summary = QCoreApplication::translate("kbcal", "Create or migrate the database.");
    definition.description = QCoreApplication::translate(
        "kbcal", "Creates the calendar database in the data folder, or brings an existing one up to date.");
    definition.run = [](CommandContext &context) {
        Database *database = context.database();
        if (!database)
            return 1;
        const QString path = database->connection().databaseName();
        const int version = database->schemaVersion();
        if (context.json()) {
            context.printJson(
                QJsonObject{{QStringLiteral("database"), path}, {QStringLiteral("schema_version"), version}});
        } else {
            context.out()
                << QCoreApplication::translate("kbcal", "Database ready: %1 (schema version %2)").arg(path).arg(version)
                << Qt::endl;
        }
        return 0;
    };
    return definition;
}
