// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/AppEnvironment.h"

#include <QDir>
#include <QStandardPaths>

namespace AppEnvironment {

QString dataDirectory()
{
    const QString overridden = qEnvironmentVariable("CALENDAR_DATA_DIR");
    if (!overridden.isEmpty()) {
        QDir().mkpath(overridden);
        return overridden;
    }
    const QString folder = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)
        + QStringLiteral("/Kettlebrook/Calendar");
    if (!QDir(folder).exists())
        QDir().mkpath(folder);
    return folder;
}

QString databasePath()
{
    return dataDirectory() + QStringLiteral("/calendar.db");
}

QString instanceName()
{
    return qEnvironmentVariable("CALENDAR_INSTANCE");
}

bool isDevInstance()
{
    return instanceName() == QLatin1String("dev");
}

QString applicationId()
{
    QString id = QStringLiteral("app.kettlebrook.calendar");
    const QString instance = instanceName();
    if (!instance.isEmpty())
        id += QLatin1Char('.') + instance;
    return id;
}

} // namespace AppEnvironment
