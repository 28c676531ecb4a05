// SPDX-License-Identifier: GPL-3.0-or-later
// How fast the calendar views get their events: a database filled with a large generated calendar,
// then, for a mid-period week and month, the median time of one redraw's read through the event
// repository (range query, child rows, record conversion) and of the recurrence expansion, beside
// the cost of the range statement alone in plain SQLite (rows stepped, not converted). Optionally
// also times a whole `kbcal import` of the file.
//
// bench_event_storage --rows FILE.tsv | --ics FILE.ics [--repeat N] [--kbcal PATH]
#include "ical/ICal.h"
#include "ical/Recurrence.h"
#include "storage/Database.h"
#include "storage/EventImport.h"
#include "storage/EventRepository.h"
#include "storage/StorageFormat.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QSet>
#include <QSqlError>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QTextStream>

#include <algorithm>
#include <cstdio>

#include <sys/resource.h>

namespace {

const QString kColumns = QStringLiteral(
    "id, calendar_id, uid, provider_event_id, etag, href, title, description, location, geo_location, start_time, "
    "end_time, is_all_day, timezone, recurrence_rule, recurrence_dates, exception_dates, recurrence_id, "
    "master_event_uid, status, event_url, conference_url, organizer_email, organizer_name, sequence, raw_icalendar, "
    "color, created, last_modified, sync_status, deleted_at, related_to_uid");

void print(const QString &line)
{
    std::printf("%s\n", qPrintable(line));
    std::fflush(stdout);
}

double median(QList<double> values)
{
    std::sort(values.begin(), values.end());
    const qsizetype n = values.size();
    return n % 2 ? values[n / 2] : (values[n / 2 - 1] + values[n / 2]) / 2;
}

QString unescapeTsv(const QString &field)
{
    QString out;
    out.reserve(field.size());
    for (qsizetype i = 0; i < field.size(); ++i) {
        if (field[i] != QLatin1Char('\\') || i + 1 == field.size()) {
            out += field[i];
            continue;
        }
        const QChar c = field[++i];
        out += c == QLatin1Char('n') ? QLatin1Char('\n')
            : c == QLatin1Char('t')  ? QLatin1Char('\t')
            : c == QLatin1Char('r')  ? QLatin1Char('\r')
                                     : c;
    }
    return out;
}

bool exec(QSqlDatabase db, const QString &sql)
{
    QSqlQuery query(db);
    if (!query.exec(sql)) {
        print(QStringLiteral("statement failed: %1: %2").arg(sql, query.lastError().text()));
        return false;
    }
    return true;
}

bool addCalendar(QSqlDatabase db, const QString &id)
{
    QSqlQuery query(db);
    query.prepare(
        QStringLiteral("INSERT OR IGNORE INTO calendars (id, account_id, url, name) VALUES (?, 'bench', ?, ?)"));
    query.addBindValue(id);
    query.addBindValue(QString(QStringLiteral("local://calendar/") + id));
    query.addBindValue(id);
    return query.exec();
}

// The generator's storage rows (id, calendar_id, uid, title, start_time, end_time, recurrence_rule,
// deleted_at, raw_icalendar), inserted with one bare statement in one transaction.
qint64 fillFromRows(QSqlDatabase db, const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return -1;
    QTextStream in(&file);
    QElapsedTimer timer;
    timer.start();
    db.transaction();
    QSqlQuery insert(db);
    insert.prepare(QStringLiteral("INSERT INTO events (id, calendar_id, uid, title, start_time, end_time, "
                                  "recurrence_rule, deleted_at, raw_icalendar, created, last_modified, "
                                  "recurrence_id, master_event_uid) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"));
    QSet<QString> calendars;
    qint64 rows = 0;
    const QString stamp = QStringLiteral("2025-01-01T12:00:00Z");
    while (!in.atEnd()) {
        const QStringList fields = in.readLine().split(QLatin1Char('\t'));
        if (fields.size() != 9)
            continue;
        if (!calendars.contains(fields[1])) {
            calendars.insert(fields[1]);
            addCalendar(db, fields[1]);
        }
        for (int i = 0; i < 9; ++i) {
            const QString value = unescapeTsv(fields[i]);
            insert.bindValue(
                i, value.isEmpty() && i >= 5 && i <= 7 ? QVariant(QMetaType::fromType<QString>()) : QVariant(value));
        }
        insert.bindValue(9, stamp);
        insert.bindValue(10, stamp);
        // The rows carry no recurrence id column; an override shows it in its text.
        const QString raw = unescapeTsv(fields[8]);
        const qsizetype at = raw.indexOf(QLatin1String("\nRECURRENCE-ID"));
        QString recurrenceId;
        if (at >= 0) {
            const qsizetype colon = raw.indexOf(QLatin1Char(':'), at);
            recurrenceId = raw.mid(colon + 1, raw.indexOf(QLatin1Char('\r'), colon) - colon - 1);
        }
        insert.bindValue(11,
                         recurrenceId.isEmpty() ? QVariant(QMetaType::fromType<QString>()) : QVariant(recurrenceId));
        insert.bindValue(12, recurrenceId.isEmpty() ? QString() : unescapeTsv(fields[2]));
        if (!insert.exec()) {
            print(QStringLiteral("insert failed: %1").arg(insert.lastError().text()));
            db.rollback();
            return -1;
        }
        ++rows;
    }
    db.commit();
    print(QStringLiteral("filled %1 rows from %2 in %3 ms (bare statement, one transaction)")
              .arg(rows)
              .arg(path)
              .arg(timer.elapsed()));
    return rows;
}

// The range statement alone: the same SQL and bounds, rows stepped but not turned into records.
int plainRangeRows(QSqlDatabase db, const QDateTime &start, const QDateTime &end)
{
    QSqlQuery query(db);
    query.setForwardOnly(true);
    query.prepare(QStringLiteral("SELECT %1 FROM events WHERE start_time < ? AND (end_time IS NULL OR end_time > ? OR "
                                 "(recurrence_rule IS NOT NULL AND recurrence_rule != '')) AND deleted_at IS NULL "
                                 "ORDER BY start_time")
                      .arg(kColumns));
    query.addBindValue(end.toString(Qt::ISODate));
    query.addBindValue(start.toString(Qt::ISODate));
    query.exec();
    int rows = 0;
    while (query.next())
        ++rows;
    return rows;
}

double cpuSeconds(int who)
{
    rusage usage{};
    getrusage(who, &usage);
    return usage.ru_utime.tv_sec + usage.ru_utime.tv_usec / 1e6 + usage.ru_stime.tv_sec + usage.ru_stime.tv_usec / 1e6;
}

// A data folder migrated by `kbcal init`, holding one empty calendar "bench-cal".
bool prepareDataFolder(const QString &kbcal, const QString &folder)
{
    QProcess init;
    init.setStandardOutputFile(QProcess::nullDevice());
    init.start(kbcal, {QStringLiteral("--data-dir"), folder, QStringLiteral("init")});
    if (!init.waitForFinished(-1) || init.exitCode() != 0)
        return false;
    bool ok = false;
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("side"));
        db.setDatabaseName(folder + QStringLiteral("/calendar.db"));
        ok = db.open()
            && exec(db,
                    QStringLiteral("INSERT INTO accounts (id, name, type) VALUES ('bench', 'Bench', "
                                   "'kettlebrook')"))
            && addCalendar(db, QStringLiteral("bench-cal"));
        db.close();
    }
    QSqlDatabase::removeDatabase(QStringLiteral("side"));
    return ok;
}

// The floor under an import: the parsed events written with one bare prepared statement of all
// columns in one transaction (64 MB page cache, as the import uses), no lookups, no child rows.
void measurePlainInsert(const QString &kbcal, const QList<Event> &events)
{
    QTemporaryDir dir;
    if (!prepareDataFolder(kbcal, dir.path()))
        return;
    {
        QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), QStringLiteral("plain"));
        db.setDatabaseName(dir.filePath(QStringLiteral("calendar.db")));
        db.open();
        exec(db, QStringLiteral("PRAGMA journal_mode=WAL"));
        exec(db, QStringLiteral("PRAGMA cache_size=-65536"));
        const double cpu = cpuSeconds(RUSAGE_SELF);
        QElapsedTimer timer;
        timer.start();
        db.transaction();
        QSqlQuery insert(db);
        QStringList marks;
        for (int i = 0; i < 32; ++i)
            marks.append(QStringLiteral("?"));
        insert.prepare(
            QStringLiteral("INSERT INTO events (%1) VALUES (%2)").arg(kColumns, marks.join(QLatin1Char(','))));
        int id = 0;
        for (const Event &e : events) {
            const QVariantList values{QString::number(++id),
                                      QStringLiteral("bench-cal"),
                                      e.uid,
                                      e.provider_event_id,
                                      e.etag,
                                      e.href,
                                      e.title,
                                      e.description,
                                      e.location,
                                      e.geo_location,
                                      StorageFormat::dateTimeValue(e.start_time),
                                      StorageFormat::dateTimeValue(e.end_time),
                                      int(e.is_all_day),
                                      e.timezone,
                                      e.recurrence_rule,
                                      e.recurrence_dates,
                                      e.exception_dates,
                                      e.recurrence_id,
                                      e.master_event_uid,
                                      e.status,
                                      e.event_url,
                                      e.conference_url,
                                      e.organizer_email,
                                      e.organizer_name,
                                      e.sequence,
                                      QString::fromUtf8(e.raw_icalendar),
                                      e.color,
                                      QStringLiteral("2025-01-01T12:00:00Z"),
                                      QStringLiteral("2025-01-01T12:00:00Z"),
                                      QStringLiteral("pending"),
                                      QVariant(QMetaType::fromType<QString>()),
                                      e.related_to_uid};
            for (int i = 0; i < 32; ++i)
                insert.bindValue(i, values.at(i));
            if (!insert.exec()) {
                print(QStringLiteral("plain insert failed: %1").arg(insert.lastError().text()));
                break;
            }
        }
        db.commit();
        print(QStringLiteral("plain SQLite insert of the parsed events (bare statement, one transaction): %1 ms wall, "
                             "%2 s CPU")
                  .arg(timer.elapsed())
                  .arg(cpuSeconds(RUSAGE_SELF) - cpu, 0, 'f', 2));
        db.close();
    }
    QSqlDatabase::removeDatabase(QStringLiteral("plain"));
}

void measureSpan(Database &database, EventRepository &repository, const QString &name, const QDateTime &start,
                 const QDateTime &end, int repeat)
{
    QList<double> plain, read, expand;
    int rows = 0, events = 0, occurrences = 0;
    QElapsedTimer timer;
    for (int i = 0; i < repeat; ++i) {
        timer.start();
        rows = plainRangeRows(database.connection(), start, end);
        plain.append(timer.nsecsElapsed() / 1e6);

        timer.start();
        const QList<Event> found = repository.getInRange(start, end);
        read.append(timer.nsecsElapsed() / 1e6);
        events = found.size();

        timer.start();
        occurrences = Recurrence::expandEvents(found, start, end).size();
        expand.append(timer.nsecsElapsed() / 1e6);
    }
    const double plainMs = median(plain);
    const double readMs = median(read);
    print(QStringLiteral("%1 [%2, %3): %4 rows, %5 occurrences")
              .arg(name, start.toString(Qt::ISODate), end.toString(Qt::ISODate))
              .arg(rows)
              .arg(occurrences));
    print(QStringLiteral("  range statement alone (plain SQLite): %1 ms").arg(plainMs, 0, 'f', 1));
    print(QStringLiteral("  repository getInRange + child rows:   %1 ms (%2x the statement; %3 events)")
              .arg(readMs, 0, 'f', 1)
              .arg(readMs / plainMs, 0, 'f', 2)
              .arg(events));
    print(QStringLiteral("  recurrence expansion:                 %1 ms").arg(median(expand), 0, 'f', 1));
    print(QStringLiteral("  one redraw (read + expansion):        %1 ms  (median of %2)")
              .arg(readMs + median(expand), 0, 'f', 1)
              .arg(repeat));
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication app(argc, argv);
    QCommandLineParser parser;
    parser.addOption(
        {QStringLiteral("rows"), QStringLiteral("Fill from the generator's TSV rows."), QStringLiteral("FILE")});
    parser.addOption(
        {QStringLiteral("ics"), QStringLiteral("Fill by importing an iCalendar file."), QStringLiteral("FILE")});
    parser.addOption({QStringLiteral("kbcal"), QStringLiteral("Also time `kbcal import` of the --ics file."),
                      QStringLiteral("PATH")});
    parser.addOption({QStringLiteral("repeat"), QStringLiteral("Redraws per span (default 30)."), QStringLiteral("N"),
                      QStringLiteral("30")});
    parser.addOption({QStringLiteral("database"),
                      QStringLiteral("Keep the filled database in FILE; an existing FILE is measured as it is."),
                      QStringLiteral("FILE")});
    parser.addHelpOption();
    parser.process(app);
    const int repeat = std::max(1, parser.value(QStringLiteral("repeat")).toInt());

    QTemporaryDir dir;
    QString path = parser.value(QStringLiteral("database"));
    const bool reuse = !path.isEmpty() && QFile::exists(path);
    if (path.isEmpty())
        path = dir.filePath(QStringLiteral("calendar.db"));
    Database database;
    if (!database.open(path))
        return 1;
    database.migrate();
    QSqlDatabase db = database.connection();
    if (!reuse
        && !exec(db, QStringLiteral("INSERT INTO accounts (id, name, type) VALUES ('bench', 'Bench', 'kettlebrook')")))
        return 1;

    EventRepository repository(&database);
    if (reuse) {
        print(QStringLiteral("measuring the existing database %1").arg(path));
    } else if (parser.isSet(QStringLiteral("ics"))) {
        const QString path = parser.value(QStringLiteral("ics"));
        if (parser.isSet(QStringLiteral("kbcal"))) {
            QFile file(path);
            file.open(QIODevice::ReadOnly);
            const QByteArray text = file.readAll();
            QElapsedTimer timer;
            timer.start();
            const QList<Event> events = ICal::parseEvents(QByteArrayView(text));
            print(QStringLiteral("parsed %1 events in %2 ms").arg(events.size()).arg(timer.elapsed()));
            measurePlainInsert(parser.value(QStringLiteral("kbcal")), events);
        }
        addCalendar(db, QStringLiteral("bench-cal"));
        const double cpu = cpuSeconds(RUSAGE_SELF);
        QElapsedTimer timer;
        timer.start();
        const EventImport::Result result
            = EventImport::importFile(database, repository, path, QStringLiteral("bench-cal"));
        if (!result.error.isEmpty()) {
            print(QStringLiteral("import failed: %1").arg(result.error));
            return 1;
        }
        print(QStringLiteral("imported %1 events from %2 in process (read, parse, store): %3 ms wall, %4 s CPU")
                  .arg(result.imported + result.updated)
                  .arg(path)
                  .arg(timer.elapsed())
                  .arg(cpuSeconds(RUSAGE_SELF) - cpu, 0, 'f', 2));
    } else if (parser.isSet(QStringLiteral("rows"))) {
        if (fillFromRows(db, parser.value(QStringLiteral("rows"))) < 0)
            return 1;
    } else {
        print(QStringLiteral("give --rows FILE or --ics FILE"));
        return 2;
    }
    exec(db, QStringLiteral("ANALYZE"));

    // Mid-period of the generated five years (2022 to 2026).
    const QDateTime weekStart(QDate(2024, 7, 1), QTime(0, 0), Qt::UTC);
    measureSpan(database, repository, QStringLiteral("week"), weekStart, weekStart.addDays(7), repeat);
    measureSpan(database, repository, QStringLiteral("month"), weekStart, weekStart.addMonths(1), repeat);

    if (parser.isSet(QStringLiteral("kbcal")) && parser.isSet(QStringLiteral("ics"))) {
        // A fresh data folder holding one empty calendar, as a new user has it.
        QTemporaryDir importDir;
        if (!prepareDataFolder(parser.value(QStringLiteral("kbcal")), importDir.path()))
            return 1;
        QProcess kbcal;
        kbcal.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        rusage before{};
        getrusage(RUSAGE_CHILDREN, &before);
        QElapsedTimer timer;
        timer.start();
        kbcal.start(parser.value(QStringLiteral("kbcal")),
                    {QStringLiteral("--data-dir"), importDir.path(), QStringLiteral("import"),
                     parser.value(QStringLiteral("ics")), QStringLiteral("--calendar"), QStringLiteral("bench-cal")});
        kbcal.waitForFinished(-1);
        const qint64 ms = timer.elapsed();
        rusage after{};
        getrusage(RUSAGE_CHILDREN, &after);
        auto seconds = [](const timeval &a, const timeval &b) {
            return (b.tv_sec - a.tv_sec) + (b.tv_usec - a.tv_usec) / 1e6;
        };
        print(QStringLiteral("kbcal import (whole process, fresh data folder): %1 ms wall, %2 s user + %3 s system "
                             "CPU, exit status %4: %5")
                  .arg(ms)
                  .arg(seconds(before.ru_utime, after.ru_utime), 0, 'f', 2)
                  .arg(seconds(before.ru_stime, after.ru_stime), 0, 'f', 2)
                  .arg(kbcal.exitCode())
                  .arg(QString::fromUtf8(kbcal.readAllStandardOutput()).trimmed()));
    }
    return 0;
}
