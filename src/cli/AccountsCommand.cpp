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

QString tr(const char *text)
{
    return QCoreApplication::translate("kbcal", text);
}

QString stateOf(const Account &account)
{
    QStringList state;
    state.append(account.enabled ? tr("enabled") : tr("disabled"));
    if (account.last_sync_time)
        state.append(tr("last sync %1").arg(StorageFormat::dateTimeText(*account.last_sync_time)));
    if (!account.last_sync_error.isEmpty())
        state.append(tr("sync error: %1").arg(account.last_sync_error));
    return state.join(QStringLiteral(", "));
}

} // namespace

CommandSpec accountsCommand()
{
    CommandSpec spec;
    spec.words = {QStringLiteral("accounts")};
    spec.synopsis = QStringLiteral("[--json]");
    spec.summary = tr("List the accounts.");
    spec.description = tr("Lists the accounts (calendar sources) in the order the desktop program shows them. "
                          "Removed accounts whose removal has not been synced yet are not listed. With --json, "
                          "prints the account records.");
    spec.run = [](CommandContext &context) {
        Database *database = context.database();
        if (!database)
            return 1;
        const QList<Account> accounts = AccountRepository(database).getAll();
        if (context.json()) {
            context.printJson(JsonRecords::toJsonArray(accounts));
            return 0;
        }
        if (accounts.isEmpty()) {
            context.out() << tr("No accounts.") << Qt::endl;
            return 0;
        }
        TextTable table({tr("NAME"), tr("ID"), tr("TYPE"), tr("SERVER"), tr("USER"), tr("STATE")});
        for (const Account &account : accounts) {
            table.addRow(
                {account.name, account.id, account.type, account.server_url, account.username, stateOf(account)});
        }
        table.print(context.out());
        return 0;
    };
    return spec;
}
