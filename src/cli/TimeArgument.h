// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QString>

// Reads a time given on the command line: an ISO 8601 date-time ("2024-01-05T09:00:00Z",
// "2024-01-05T10:00:00+01:00", or without an offset for local time) or a date ("2024-01-05",
// local midnight). Invalid when the text is neither.
QDateTime parseTimeArgument(const QString &text);
