// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QList>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <optional>

// How record fields are written to and read from their columns.
//
// Date-times are ISO 8601 text with seconds and no fraction: "2025-03-14T09:30:00Z" for UTC,
// "2025-03-14T10:30:00+01:00" for a value in a zone or at an offset, no suffix for floating
// local time. Booleans are 0/1 (any non-zero reads as true). List columns hold compact JSON.
namespace StorageFormat {

// ISO text of a date-time; empty text for an invalid value.
QString dateTimeText(const QDateTime &value);
// The value to bind for a date-time column: its ISO text.
QVariant dateTimeValue(const QDateTime &value);
// The value to bind for an optional date-time column: its ISO text, or a NULL string when absent.
QVariant dateTimeValue(const std::optional<QDateTime> &value);

// Reads ISO text; empty or unreadable text gives an invalid value. SQLite's own
// datetime('now') form ("2025-03-14 09:30:00", used by column defaults) is UTC.
QDateTime parseDateTime(const QString &text);
// Reads an optional date-time column: NULL or empty text is absent.
std::optional<QDateTime> parseOptionalDateTime(const QVariant &column);

int boolValue(bool value);
bool readBool(const QVariant &column);

// Compact JSON array of strings: ["a","b"], [] when empty.
QString stringListJson(const QStringList &items);
// Elements of a JSON array of strings; a non-string element reads as empty text; anything that is
// not a JSON array gives an empty list.
QStringList parseStringListJson(const QString &text);
// Compact JSON array of integers: [15,60], [] when empty.
QString intListJson(const QList<qint32> &items);
// Elements of a JSON array of numbers; anything that is not a JSON array gives an empty list.
QList<qint32> parseIntListJson(const QString &text);

// A new random identifier: a UUID in the 36-character hyphenated form without braces.
QString newId();

} // namespace StorageFormat
