// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Translations.h"

#include <QLocale>
#include <QSettings>

namespace Translations {

QStringList supportedLanguages()
{
    return {QStringLiteral("en"), QStringLiteral("es"), QStringLiteral("de"), QStringLiteral("fr"),
            QStringLiteral("ja")};
}

QString resolveLanguage(const QString &stored, const QString &systemLocaleName, bool resolveSystem)
{
    if (!resolveSystem || stored != QLatin1String("system"))
        return stored;
    const QString system = systemLocaleName.left(2);
    return supportedLanguages().contains(system) ? system : supportedLanguages().constFirst();
}

QString resolvedLanguage(bool resolveSystem)
{
    const QString stored = QSettings().value(QStringLiteral("ui/language"), QStringLiteral("system")).toString();
    return resolveLanguage(stored, QLocale::system().name(), resolveSystem);
}

void setLanguage(const QString &language)
{
    QSettings().setValue(QStringLiteral("ui/language"), language);
}

} // namespace Translations
