// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/Clock.h"

#include <QTime>

namespace {

QDateTime &fixedNow()
{
    static QDateTime instant;
    return instant;
}

QDateTime withoutMilliseconds(QDateTime value)
{
    const QTime t = value.time();
    value.setTime(QTime(t.hour(), t.minute(), t.second()));
    return value;
}

} // namespace

namespace Clock {

QDateTime nowUtc()
{
    if (fixedNow().isValid())
        return fixedNow().toUTC();
    return withoutMilliseconds(QDateTime::currentDateTimeUtc());
}

QDateTime nowLocal()
{
    if (fixedNow().isValid())
        return fixedNow().toLocalTime();
    return withoutMilliseconds(QDateTime::currentDateTime());
}

void setFixedNow(const QDateTime &instant)
{
    fixedNow() = instant;
}

} // namespace Clock
