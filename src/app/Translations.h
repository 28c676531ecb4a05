// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <QStringList>

// The interface languages. The choice is kept under "ui/language" in the per-user native
// settings store of the organisation/application ("system" by default), not in the database, so
// that it applies before the database is opened.
namespace Translations {

// "en", "es", "de", "fr", "ja"; the first is the fallback.
QStringList supportedLanguages();
// The stored choice. With resolveSystem and the value "system": the two-letter language of the
// system locale when supported, else "en". Otherwise the stored value as it is.
QString resolvedLanguage(bool resolveSystem);
void setLanguage(const QString &language);
// The resolution itself, from a stored value and a system locale name such as "de_DE".
QString resolveLanguage(const QString &stored, const QString &systemLocaleName, bool resolveSystem);

} // namespace Translations
