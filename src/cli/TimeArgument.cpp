// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/TimeArgument.h"

#include <QDate>

QDateTime parseTimeArgument(const QString &text)
{
    const QString trimmed = text.trimmed();
    if (trimmed.size() == 10) {
        const QDate date = QDate::fromString(trimmed, Qt::ISODate);
        return date.isValid() ? date.startOfDay() : QDateTime();
    }
    if (!trimmed.contains(QLatin1Char('T')))
        return QDateTime();
    return QDateTime::fromString(trimmed, Qt::ISODate);
}
