// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/CommandContext.h"
#include "cli/Commands.h"
#include "storage/Database.h"

#include <QCoreApplication>
#include <QJsonObject>

CommandSpec initCommand()
{
    CommandSpec spec;
    spec.words = {QStringLiteral("init")};
    spec.synopsis = QStringLiteral("[--json]");
    spec.summary = QCoreApplication::translate("kbcal", "Create or migrate the database.");
    spec.description = QCoreApplication::translate(
        "kbcal", "Creates the calendar database in the data folder, or brings an existing one up to date.");
    spec.run = [](CommandContext &context) {
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
    return spec;
}
