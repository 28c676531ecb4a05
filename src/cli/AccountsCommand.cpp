// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/CommandContext.h"
#include "cli/Commands.h"
#include "cli/JsonRecords.h"
#include "cli/TextTable.h"
#include "storage/AccountRepository.h"
#include "storage/Database.h"
#include "storage/StorageFormat.h"

#include <QCoreApplication>

namespace {

// tr() for this file's free functions; lupdate takes the context from the macro.
struct Text
{
    Q_DECLARE_TR_FUNCTIONS(kbcal)
};

QString stateOf(const Account &account)
{
    QStringList state;
    state.append(account.enabled ? Text::tr("enabled") : Text::tr("disabled"));
    if (account.last_sync_time)
        state.append(Text::tr("last sync %1").arg(StorageFormat::dateTimeText(*account.last_sync_time)));
    if (!account.last_sync_error.isEmpty())
        state.append(Text::tr("sync error: %1").arg(account.last_sync_error));
    return state.join(QStringLiteral(", "));
}

} // namespace

CommandDefinition accountsCommand()
{
    CommandDefinition definition;
    definition.words = {QStringLiteral("accounts")};
    definition.synopsis = QStringLiteral("[--json]");
    definition.summary = Text::tr("List the accounts.");
    definition.description
        = Text::tr("Lists the accounts (calendar sources) in the order the desktop program shows them. "
                   "Removed accounts whose removal has not been synced yet are not listed. With --json, "
                   "prints the account records.");
    definition.run = [](CommandContext &context) {
        Database *database = context.database();
        if (!database)
            return 1;
        const QList<Account> accounts = AccountRepository(database).getAll();
        if (context.json()) {
            context.printJson(JsonRecords::toJsonArray(accounts));
            return 0;
        }
        if (accounts.isEmpty()) {
            context.out() << Text::tr("No accounts.") << Qt::endl;
            return 0;
        }
        TextTable table({Text::tr("NAME"), Text::tr("ID"), Text::tr("TYPE"), Text::tr("SERVER"), Text::tr("USER"),
                         Text::tr("STATE")});
        for (const Account &account : accounts) {
            table.addRow(
                {account.name, account.id, account.type, account.server_url, account.username, stateOf(account)});
        }
        table.print(context.out());
        return 0;
    };
    return definition;
}
