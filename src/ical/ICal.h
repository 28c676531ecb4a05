// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/Event.h"
#include "storage/Task.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QDateTime>
#include <QList>
#include <QString>
#include <QStringList>

// Reading iCalendar text (RFC 5545) into records and writing the small objects the program
// writes itself. iCalendar text is handled as UTF-8 bytes throughout, as it travels on the wire
// and in files; record fields are decoded text.
//
// The reader is deliberately small: it recognises a fixed set of properties, ignores the rest,
// and keeps each component's text in raw_icalendar so that a later upload sends back what it did
// not understand. It never fails as a whole: unreadable values become defaults or invalid values.
namespace ICal {

// The envelope of every calendar object the program writes, and that the event reader wraps
// around each event it keeps. Lines end in CR LF.
inline constexpr char kCalendarHead[]
    = "BEGIN:VCALENDAR\r\nVERSION:2.0\r\nPRODID:-//Kettlebrook//Calendar Desktop//EN\r\n";
inline constexpr char kCalendarTail[] = "END:VCALENDAR\r\n";

// One content line: upper-cased name, parameters (upper-cased name to raw value, in order of
// appearance) and the value after the first colon.
struct ContentLine
{
    QString name;
    QList<std::pair<QString, QString>> parameters;
    QString value;

    // The raw value of a parameter (name given upper-case), or a null string when it is absent; a
    // parameter given as "NAME=" is present with an empty value. When a name repeats, the last one
    // counts.
    QString parameter(QStringView name) const;
};

// Every VEVENT that carries a UID, in the order in which they stand; each record's raw_icalendar
// holds its unfolded lines inside the program's envelope. A byte order mark at the start of the
// text is skipped. Folded lines are joined before the bytes are decoded, so a character split by
// a fold comes back whole; invalid UTF-8 decodes to U+FFFD in the text fields and stays as it was
// in raw_icalendar. Never fails: the worst text gives an empty list.
//
// The QString overloads read text.toUtf8(). Memory: besides the records (about 720 bytes each
// plus their text) only a few small buffers; short repeated texts share one string.
QList<Event> parseEvents(QByteArrayView utf8);
QList<Event> parseEvents(const QString &text);
// Every VTODO that carries a UID, in order; raw_icalendar holds the lines from BEGIN:VTODO to
// END:VTODO without an envelope.
QList<Task> parseTasks(QByteArrayView utf8);
QList<Task> parseTasks(const QString &text);
// A QByteArray converts to both of the above; these pick the byte readers.
inline QList<Event> parseEvents(const QByteArray &utf8)
{
    return parseEvents(QByteArrayView(utf8));
}
inline QList<Task> parseTasks(const QByteArray &utf8)
{
    return parseTasks(QByteArrayView(utf8));
}

// Splits text at CR LF or LF and joins folded lines (a piece beginning with a space or a tab
// continues the previous line, without that first character). Empty pieces are kept as lines.
QStringList unfoldLines(const QString &text);
// Splits a content line. The value starts after the first ":" wherever it stands (also inside a
// quoted parameter value); a line without ":" is a bare name. Parameter values keep their quotes.
ContentLine parsePropertyLine(const QString &line);
// Undoes text escaping: "\," "\;" "\n" "\N" "\\". Any other backslash stays as it is.
QString unescapeText(const QString &text);
// Reads a DATE or DATE-TIME value. Eight characters without "T" are a date at midnight UTC
// (isDateOnly set, also when the date is unreadable); a trailing "Z" means UTC; otherwise a known
// TZID places the wall-clock time in that zone, else the time is floating local time. Only names
// shaped like zone identifiers are looked up (see ZoneCache::hasZoneShape). Invalid when unreadable.
QDateTime parseDateTime(const QString &value, const QList<std::pair<QString, QString>> &parameters,
                        bool *isDateOnly = nullptr);
// Seconds of a DURATION value; 0 for an empty, negative or unreadable value. Hours, minutes and
// seconds count only after "T" (before it "M" is a month of 30 days); sums too large for 64 bits
// saturate.
qint64 parseDurationSeconds(const QString &value);

// The minimal calendar object for a new event: UID, SUMMARY, DTSTART and DTEND in UTC (the start
// again when there is no end), RELATED-TO when set. Values are written as they are, unescaped.
QByteArray buildEventIcs(const Event &event);
// The stored text with its first event moved to a new start and end (UTC); later components keep
// their times. An empty text or an invalid start returns the text unchanged.
QByteArray rescheduleEventIcs(const QByteArray &rawText, const QDateTime &newStart, const QDateTime &newEnd);
// The calendar object of a task for upload, with the private repeat-mode and sort-order properties.
QByteArray buildTaskIcs(const Task &task);

} // namespace ICal
