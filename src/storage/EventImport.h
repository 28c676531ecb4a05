// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QString>

#include <functional>

class Database;
class EventRepository;

// Importing the events of an iCalendar file into one calendar: the operation behind the desktop
// program's import and `kbcal import`.
//
// Each event of the text is matched by its (uid, recurrence id) in the target calendar, the key of
// the calendar's unique index: a new key is inserted with a fresh id, a known one is updated in
// place (keeping its id, server href, etag and provider id, and its reminders and attendees, which
// the file does not carry in a form the reader takes). When the file holds the same key more than
// once, the last one counts. Tasks in the file are not imported.
//
// Every imported or updated event is stored "pending": what the file holds is a local change that
// no server has seen. In a calendar that syncs, this is what makes the sync push the events (a
// new resource, or a PUT over the known href with its etag); a "synced" mark would claim the row
// equals a remote copy that does not exist, and the events would never reach the server. In an
// on-device calendar the mark is never read.
//
// The whole import runs in one transaction: when any event cannot be stored, nothing of the file
// is kept and the calendar is as it was.
namespace EventImport {

struct Result
{
    int imported = 0; // new events
    int updated = 0; // events already in the calendar, updated
    QString error; // empty on success; a translated sentence naming the problem otherwise
};

// Called now and then with the number of events stored so far and their total.
using Progress = std::function<void(int done, int total)>;

// Imports UTF-8 iCalendar text. `source` names the text in messages (a file name).
Result importText(Database &database, EventRepository &repository, const QByteArray &text, const QString &calendarId,
                  const QString &source, const Progress &progress = {});
// Reads the file and imports it.
Result importFile(Database &database, EventRepository &repository, const QString &path, const QString &calendarId,
                  const Progress &progress = {});

// The sentence that reports a successful import: "Imported 3 events into Personal.", "Updated 1
// existing event in Work.", "Imported 2 and updated 1 in Work.".
QString summary(const Result &result, const QString &calendarName);

} // namespace EventImport
