// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/AppEnvironment.h"
#include "app/Application.h"
#include "app/SingleInstance.h"

#include <QLoggingCategory>

int main(int argc, char *argv[])
{
    // Only warnings and worse outside a development instance, unless the user set rules.
    if (!AppEnvironment::isDevInstance() && qEnvironmentVariableIsEmpty("QT_LOGGING_RULES"))
        QLoggingCategory::setFilterRules(QStringLiteral("*.debug=false\n*.info=false"));

    Application app(argc, argv);
    auto *guard = new SingleInstance(&app);

    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    if (guard->forwardToRunningInstance(arguments))
        return 0;

    app.setSingleInstance(guard);
    app.setPendingCommand(SingleInstance::commandFromArguments(arguments));
    return app.run();
}
