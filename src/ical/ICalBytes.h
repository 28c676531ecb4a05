// SPDX-License-Identifier: GPL-3.0-or-later
// Reading iCalendar values straight from UTF-8 bytes, without building the per-line structures of
// the text-level functions in ICal.h. The readers run on every download and import, over feeds of
// tens of thousands of events, so nothing here allocates unless a field value is produced.
// Every function gives exactly the result of its text-level counterpart in ICal.h.
#pragma once

#include <QByteArrayView>
#include <QDateTime>
#include <QString>

#include <optional>

namespace ICal {

class ZoneCache;

namespace Bytes {

// One content line cut at its first colon: the name (before the first ";"), the parameter part
// (after that ";", up to the colon) and the value. A line without a colon is a bare name.
struct LineParts
{
    QByteArrayView name;
    QByteArrayView parameters;
    QByteArrayView value;
};

LineParts splitLine(QByteArrayView line);

// True when every byte is below 0x80.
bool isAscii(QByteArrayView bytes);

// Writes the upper-cased name into `out` (at most `capacity` bytes) as the text functions would
// upper-case it, and returns its length; -1 when it is longer or does not upper-case to ASCII
// (such a name cannot be one the reader knows).
qsizetype upperAsciiName(QByteArrayView name, char *out, qsizetype capacity);

// The raw value of the parameter `upperName` (given upper-case) in a parameter part; when the
// name repeats the last one counts. Absent gives std::nullopt; "NAME=" gives an empty view.
std::optional<QByteArrayView> parameter(QByteArrayView parameters, QByteArrayView upperName);

// UTF-8 decoding that keeps a U+FEFF at the start of the value (it is text inside the line, not a
// byte order mark).
QString decode(QByteArrayView utf8);
// The value in lower case.
QString lowerText(QByteArrayView value);
// True when the value equals `upperWord` (ASCII, upper-case) ignoring case.
bool equalsIgnoringCase(QByteArrayView value, QByteArrayView upperWord);

// A decimal 32-bit integer with optional sign and surrounding ASCII white space; nullopt when the
// value is not one.
std::optional<qint32> integer(QByteArrayView value);

// Seconds of a DURATION value (see ICal::parseDurationSeconds); numbers too large saturate.
qint64 durationSeconds(QByteArrayView value);

// The date-time rule (see ICal::parseDateTime). `tzid` is the raw TZID parameter, if any.
QDateTime dateTime(QByteArrayView value, std::optional<QByteArrayView> tzid, ZoneCache &zones,
                   bool *isDateOnly = nullptr);

} // namespace Bytes
} // namespace ICal
