// SPDX-License-Identifier: GPL-3.0-or-later
#include "ical/TimeZones.h"

#include "ical/ZoneCache.h"

namespace TimeZones {

QTimeZone named(const QString &id)
{
    if (id == QLatin1String("UTC"))
        return QTimeZone::utc();
    return ICal::ZoneCache::lookup(id.toUtf8());
}

QString systemZoneId()
{
    const QByteArray id = QTimeZone::systemTimeZoneId();
    return ICal::ZoneCache::lookup(id).isValid() ? QString::fromUtf8(id) : QStringLiteral("UTC");
}

} // namespace TimeZones
