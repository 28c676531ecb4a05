// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/Database.h"

#include <QFile>
#include <QRegularExpression>
#include <QSignalSpy>
#include <QSqlError>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QTest>

#include <map>

namespace {

QList<Migration> firstMigrations(int upToVersion)
{
    QList<Migration> list;
    for (const Migration &m : Database::builtInMigrations()) {
        if (m.version <= upToVersion)
            list.append(m);
    }
    return list;
}

bool exec(const QSqlDatabase &db, const QString &sql)
{
    QSqlQuery query(db);
    if (!query.exec(sql)) {
        qWarning() << sql << query.lastError().text();
        return false;
    }
    return true;
}

QVariant scalar(const QSqlDatabase &db, const QString &sql)
{
    QSqlQuery query(db);
    if (!query.exec(sql) || !query.next())
        return QVariant();
    return query.value(0);
}

QStringList columnNames(const QSqlDatabase &db, const QString &table)
{
    QStringList names;
    QSqlQuery query(db);
    query.exec(QStringLiteral("PRAGMA table_info(%1)").arg(table));
    while (query.next())
        names.append(query.value(1).toString());
    return names;
}

// Groups schema lines by table: columns in table order, then the table's indexes sorted.
QStringList normalizedSchema(const QStringList &lines)
{
    std::map<QString, QPair<QStringList, QStringList>> tables;
    for (const QString &line : lines) {
        const QStringList parts = line.split(QLatin1Char(' '));
        if (parts.size() < 3)
            continue;
        if (parts.at(0) == QLatin1String("column"))
            tables[parts.at(1)].first.append(line);
        else if (parts.at(0) == QLatin1String("index"))
            tables[parts.at(1)].second.append(line);
    }
    QStringList result;
    for (auto &[table, entries] : tables) {
        entries.second.sort();
        result << entries.first << entries.second;
    }
    return result;
}

QStringList actualSchema(const QSqlDatabase &db)
{
    QStringList lines;
    QSqlQuery tables(db);
    tables.exec(QStringLiteral("SELECT name FROM sqlite_master WHERE type = 'table' AND name NOT LIKE 'sqlite_%'"));
    while (tables.next()) {
        const QString table = tables.value(0).toString();
        std::map<QString, QString> references;
        QSqlQuery fk(db);
        fk.exec(QStringLiteral("PRAGMA foreign_key_list(%1)").arg(table));
        while (fk.next())
            references[fk.value(3).toString()]
                = fk.value(2).toString() + QLatin1Char('(') + fk.value(4).toString() + QLatin1Char(')');
        QSqlQuery info(db);
        info.exec(QStringLiteral("PRAGMA table_info(%1)").arg(table));
        while (info.next()) {
            const QString column = info.value(1).toString();
            QString line = QStringLiteral("column %1 %2 %3 notnull=%4 pk=%5 default=%6")
                               .arg(table, column, info.value(2).toString())
                               .arg(info.value(3).toInt())
                               .arg(info.value(5).toInt() > 0 ? 1 : 0)
                               .arg(info.value(4).toString());
            if (references.count(column))
                line += QStringLiteral(" references=") + references[column];
            lines.append(line);
        }
    }
    static const QRegularExpression indexSql(
        QStringLiteral(
            "^CREATE (UNIQUE )?INDEX (?:IF NOT EXISTS )?(\\w+) ON (\\w+)\\s*(\\(.*\\))(?:\\s+WHERE\\s+(.*))?$"),
        QRegularExpression::DotMatchesEverythingOption);
    QSqlQuery indexes(db);
    indexes.exec(QStringLiteral("SELECT sql FROM sqlite_master WHERE type = 'index' AND sql IS NOT NULL"));
    while (indexes.next()) {
        const QString sql = indexes.value(0).toString().simplified();
        const QRegularExpressionMatch m = indexSql.match(sql);
        if (!m.hasMatch()) {
            lines.append(QStringLiteral("unreadable index ") + sql);
            continue;
        }
        QString line = QStringLiteral("index %1 %2 unique=%3 on=%4")
                           .arg(m.captured(3), m.captured(2))
                           .arg(m.capturedLength(1) > 0 ? 1 : 0)
                           .arg(m.captured(4).replace(QStringLiteral("( "), QStringLiteral("(")));
        if (m.capturedLength(5) > 0)
            line += QStringLiteral(" where=") + m.captured(5);
        lines.append(line);
    }
    return lines;
}

} // namespace

class TestDatabase : public QObject
{
    Q_OBJECT

private slots:
    void splitStatements_data();
    void splitStatements();
    void freshDatabaseHasFinalSchema();
    void migrateTwiceAppliesNothing();
    void upgradeFromVersion5DeduplicatesEvents();
    void failingMigrationRollsBackAndIsRetried();
    void unreadableScriptStopsTheRun();
    void failedCommitIsAFailedMigration();
    void openFailsForMissingFolder();
    void fileThatIsNotADatabaseIsLeftAlone();
};

void TestDatabase::splitStatements_data()
{
    QTest::addColumn<QString>("script");
    QTest::addColumn<QStringList>("statements");

    QTest::newRow("two statements") << "CREATE TABLE a (x);\nCREATE TABLE b (y);\n"
                                    << QStringList{"CREATE TABLE a (x)", "CREATE TABLE b (y)"};
    QTest::newRow("whole-line comments dropped") << "-- first\n  -- indented comment\nSELECT 1;\n"
                                                 << QStringList{"SELECT 1"};
    QTest::newRow("comment mentioning BEGIN does not open a block") << "-- BEGIN here\nSELECT 1;\nSELECT 2;\n"
                                                                    << QStringList{"SELECT 1", "SELECT 2"};
    QTest::newRow("comment at end of code line stays") << "SELECT 1; -- trailing\nSELECT 2;\n"
                                                       << QStringList{"SELECT 1; -- trailing\nSELECT 2"};
    QTest::newRow("trigger body kept whole")
        << "CREATE TRIGGER t AFTER INSERT ON a BEGIN\n  UPDATE b SET y = 1;\n  UPDATE b SET y = 2;\nEND;\nSELECT 3;\n"
        << QStringList{"CREATE TRIGGER t AFTER INSERT ON a BEGIN\n  UPDATE b SET y = 1;\n  UPDATE b SET y = 2;\nEND",
                       "SELECT 3"};
    QTest::newRow("any line holding BEGIN opens a block")
        << "INSERT INTO a VALUES ('BEGINNER');\nSELECT 1;\nEND_MARK;\nSELECT 2;\n"
        << QStringList{"INSERT INTO a VALUES ('BEGINNER');\nSELECT 1;\nEND_MARK", "SELECT 2"};
    QTest::newRow("last statement without semicolon") << "SELECT 1;\nSELECT 2" << QStringList{"SELECT 1", "SELECT 2"};
    QTest::newRow("only one trailing semicolon removed") << "SELECT 1;;\n" << QStringList{"SELECT 1;"};
    QTest::newRow("carriage returns") << "SELECT 1;\r\nSELECT 2;\r\n" << QStringList{"SELECT 1", "SELECT 2"};
}

void TestDatabase::splitStatements()
{
    QFETCH(QString, script);
    QFETCH(QStringList, statements);
    QCOMPARE(Database::splitStatements(script), statements);
}

void TestDatabase::freshDatabaseHasFinalSchema()
{
    QTemporaryDir dir;
    Database database;
    QSignalSpy applied(&database, &Database::migrationApplied);
    QSignalSpy errors(&database, &Database::migrationError);
    QVERIFY(database.open(dir.filePath(QStringLiteral("calendar.db"))));
    database.migrate();
    QCOMPARE(errors.count(), 0);
    QCOMPARE(applied.count(), 9);
    QVERIFY(database.isUpToDate());
    const QSqlDatabase db = database.connection();

    QCOMPARE(scalar(db, QStringLiteral("PRAGMA journal_mode")).toString(), QStringLiteral("wal"));
    QCOMPARE(scalar(db, QStringLiteral("PRAGMA foreign_keys")).toInt(), 1);

    QSqlQuery versions(db);
    QVERIFY(versions.exec(QStringLiteral("SELECT version, name, applied_at FROM schema_version ORDER BY version")));
    QStringList rows;
    while (versions.next()) {
        rows.append(versions.value(0).toString() + QLatin1Char(' ') + versions.value(1).toString());
        QVERIFY(!versions.value(2).toString().isEmpty());
    }
    QCOMPARE(rows,
             (QStringList{"1 initial", "2 event_sync", "3 tasks_sync", "4 accounts_sort_order", "5 provider_event_idx",
                          "6 events_uid_unique", "7 tasks_dateonly_repeat", "8 accounts_soft_delete",
                          "9 event_related_to"}));

    QFile expectedFile(QStringLiteral(KB_TEST_DATA_DIR "/schema/final-schema.txt"));
    QVERIFY(expectedFile.open(QIODevice::ReadOnly | QIODevice::Text));
    QStringList expected;
    for (const QString &line : QString::fromUtf8(expectedFile.readAll()).split(QLatin1Char('\n'))) {
        if (!line.isEmpty() && !line.startsWith(QLatin1Char('#')))
            expected.append(line);
    }
    const QStringList actual = normalizedSchema(actualSchema(db));
    const QStringList wanted = normalizedSchema(expected);
    for (const QString &line : wanted) {
        if (!actual.contains(line))
            qWarning().noquote() << "missing:" << line;
    }
    for (const QString &line : actual) {
        if (!wanted.contains(line))
            qWarning().noquote() << "unexpected:" << line;
    }
    QCOMPARE(actual, wanted);
}

void TestDatabase::migrateTwiceAppliesNothing()
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("calendar.db"));
    {
        Database database;
        QVERIFY(database.open(path));
        database.migrate();
        QCOMPARE(database.schemaVersion(), 9);
    }
    Database again;
    QSignalSpy applied(&again, &Database::migrationApplied);
    QVERIFY(again.open(path));
    again.migrate();
    QCOMPARE(applied.count(), 0);
    QCOMPARE(scalar(again.connection(), QStringLiteral("SELECT COUNT(*) FROM schema_version")).toInt(), 9);
    QCOMPARE(scalar(again.connection(), QStringLiteral("SELECT COUNT(*) FROM calendar_views")).toInt(), 1);
}

void TestDatabase::upgradeFromVersion5DeduplicatesEvents()
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("calendar.db"));
    {
        Database v5;
        v5.setMigrations(firstMigrations(5));
        QVERIFY(v5.open(path));
        v5.migrate();
        QCOMPARE(v5.schemaVersion(), 5);
        const QSqlDatabase db = v5.connection();
        QVERIFY(exec(db, "INSERT INTO accounts (id, name, type) VALUES ('a', 'A', 'caldav')"));
        QVERIFY(exec(db, "INSERT INTO calendars (id, account_id, url, name) VALUES ('c', 'a', 'u', 'C')"));
        QVERIFY(exec(db, "INSERT INTO calendars (id, account_id, url, name) VALUES ('d', 'a', 'v', 'D')"));
        // Three copies of one master: two with a NULL recurrence id, one with an empty one. The
        // oldest is 'm-2'; 'm-1' and 'm-3' share the later time, the smaller id would win a tie.
        const char *events[] = {
            "INSERT INTO events (id, calendar_id, uid, title, start_time, raw_icalendar, created, deleted_at)"
            " VALUES ('m-3', 'c', 'U1', 'copy', '2024-01-01T09:00:00Z', '', '2024-02-01T00:00:00Z', "
            "'2024-03-01T00:00:00Z')",
            "INSERT INTO events (id, calendar_id, uid, title, start_time, raw_icalendar, created, recurrence_id)"
            " VALUES ('m-1', 'c', 'U1', 'copy', '2024-01-01T09:00:00Z', '', '2024-02-01T00:00:00Z', '')",
            "INSERT INTO events (id, calendar_id, uid, title, start_time, raw_icalendar, created)"
            " VALUES ('m-2', 'c', 'U1', 'oldest', '2024-01-01T09:00:00Z', '', '2024-01-15T00:00:00Z')",
            // An override of the same series and the same uid in another calendar are distinct keys.
            "INSERT INTO events (id, calendar_id, uid, title, start_time, raw_icalendar, created, recurrence_id)"
            " VALUES ('o-1', 'c', 'U1', 'override', '2024-01-08T09:00:00Z', '', '2024-02-01T00:00:00Z',"
            " '20240108T090000Z')",
            "INSERT INTO events (id, calendar_id, uid, title, start_time, raw_icalendar, created)"
            " VALUES ('x-1', 'd', 'U1', 'other calendar', '2024-01-01T09:00:00Z', '', '2024-03-01T00:00:00Z')",
            // Equal creation times: the smaller id is kept.
            "INSERT INTO events (id, calendar_id, uid, title, start_time, raw_icalendar, created)"
            " VALUES ('t-b', 'c', 'U2', 'tie', '2024-01-01T09:00:00Z', '', '2024-01-01T00:00:00Z')",
            "INSERT INTO events (id, calendar_id, uid, title, start_time, raw_icalendar, created)"
            " VALUES ('t-a', 'c', 'U2', 'tie', '2024-01-01T09:00:00Z', '', '2024-01-01T00:00:00Z')",
        };
        for (const char *sql : events)
            QVERIFY(exec(db, QString::fromLatin1(sql)));
        for (const char *id : {"m-1", "m-2", "m-3", "t-a", "t-b"}) {
            const QString e = QString::fromLatin1(id);
            QVERIFY(exec(
                db, QStringLiteral("INSERT INTO attendees (id, event_id, email) VALUES ('at-%1', '%1', 'x')").arg(e)));
            QVERIFY(exec(
                db,
                QStringLiteral("INSERT INTO attachments (id, event_id, filename) VALUES ('af-%1', '%1', 'f')").arg(e)));
            QVERIFY(exec(db,
                         QStringLiteral("INSERT INTO reminders (id, event_id, minutes_before) VALUES ('r-%1', '%1', 5)")
                             .arg(e)));
        }
    }

    Database database;
    QSignalSpy applied(&database, &Database::migrationApplied);
    QVERIFY(database.open(path));
    database.migrate();
    QList<int> versions;
    for (const QList<QVariant> &args : applied)
        versions.append(args.at(0).toInt());
    QCOMPARE(versions, (QList<int>{6, 7, 8, 9}));

    const QSqlDatabase db = database.connection();
    QSqlQuery ids(db);
    QVERIFY(ids.exec(QStringLiteral("SELECT id FROM events ORDER BY id")));
    QStringList kept;
    while (ids.next())
        kept.append(ids.value(0).toString());
    QCOMPARE(kept, (QStringList{"m-2", "o-1", "t-a", "x-1"}));
    for (const QString &table :
         {QStringLiteral("attendees"), QStringLiteral("attachments"), QStringLiteral("reminders")}) {
        QSqlQuery children(db);
        QVERIFY(children.exec(QStringLiteral("SELECT event_id FROM %1 ORDER BY event_id").arg(table)));
        QStringList owners;
        while (children.next())
            owners.append(children.value(0).toString());
        QCOMPARE(owners, (QStringList{"m-2", "t-a"}));
    }

    // The unique key now rejects a second master whatever form its recurrence id takes.
    QVERIFY(!exec(db,
                  "INSERT INTO events (id, calendar_id, uid, title, start_time, raw_icalendar, recurrence_id)"
                  " VALUES ('dup', 'c', 'U1', 'again', '2024-01-01T09:00:00Z', '', '')"));
    QVERIFY(columnNames(db, QStringLiteral("events")).contains(QStringLiteral("related_to_uid")));
}

void TestDatabase::failingMigrationRollsBackAndIsRetried()
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("calendar.db"));
    {
        Database v6;
        v6.setMigrations(firstMigrations(6));
        QVERIFY(v6.open(path));
        v6.migrate();
        QCOMPARE(v6.schemaVersion(), 6);
        // A column that migration 7 adds in its second statement, so that statement fails after
        // the first one already ran.
        QVERIFY(exec(v6.connection(), "ALTER TABLE tasks ADD COLUMN start_is_date_only INTEGER"));
    }
    {
        Database database;
        QSignalSpy applied(&database, &Database::migrationApplied);
        QSignalSpy errors(&database, &Database::migrationError);
        QVERIFY(database.open(path));
        database.migrate();
        QCOMPARE(applied.count(), 0);
        QCOMPARE(errors.count(), 1);
        QCOMPARE(errors.at(0).at(0).toInt(), 7);
        QVERIFY(errors.at(0).at(1).toString().contains(QStringLiteral("duplicate column")));
        QCOMPARE(database.schemaVersion(), 6);
        QVERIFY(!database.isUpToDate());
        const QStringList columns = columnNames(database.connection(), QStringLiteral("tasks"));
        QVERIFY(!columns.contains(QStringLiteral("due_is_date_only")));
        QVERIFY(!columns.contains(QStringLiteral("repeat_mode")));
        QVERIFY(!columnNames(database.connection(), QStringLiteral("accounts")).contains(QStringLiteral("deleted_at")));
        QVERIFY(exec(database.connection(), "ALTER TABLE tasks DROP COLUMN start_is_date_only"));
    }
    // The next start retries from the first unapplied version.
    Database database;
    QSignalSpy applied(&database, &Database::migrationApplied);
    QVERIFY(database.open(path));
    database.migrate();
    QCOMPARE(applied.count(), 3);
    QCOMPARE(applied.at(0).at(0).toInt(), 7);
    QVERIFY(database.isUpToDate());
}

void TestDatabase::unreadableScriptStopsTheRun()
{
    QTemporaryDir dir;
    Database database;
    QList<Migration> list = firstMigrations(1);
    list.append({2, QStringLiteral("missing"), QStringLiteral(":/sql/sql/migrations/nothing-here.sql")});
    list.append(Database::builtInMigrations().at(2));
    database.setMigrations(list);
    QSignalSpy errors(&database, &Database::migrationError);
    QVERIFY(database.open(dir.filePath(QStringLiteral("calendar.db"))));
    database.migrate();
    QCOMPARE(errors.count(), 1);
    QCOMPARE(errors.at(0).at(0).toInt(), 2);
    QCOMPARE(errors.at(0).at(1).toString(),
             QStringLiteral("Cannot read migration file: :/sql/sql/migrations/nothing-here.sql"));
    QCOMPARE(database.schemaVersion(), 1);
}

void TestDatabase::failedCommitIsAFailedMigration()
{
    // A deferred foreign key is only checked at COMMIT, so every statement of this script succeeds and
    // the commit itself is refused.
    QTemporaryDir dir;
    const QString scriptPath = dir.filePath(QStringLiteral("002_orphan.sql"));
    {
        QFile script(scriptPath);
        QVERIFY(script.open(QIODevice::WriteOnly));
        script.write("CREATE TABLE parent (id TEXT PRIMARY KEY);\n"
                     "CREATE TABLE child (parent_id TEXT REFERENCES parent(id) DEFERRABLE INITIALLY DEFERRED);\n"
                     "INSERT INTO child VALUES ('missing');\n");
    }
    QList<Migration> list = firstMigrations(1);
    list.append({2, QStringLiteral("orphan"), scriptPath});
    list.append(Database::builtInMigrations().at(1));
    Database database;
    database.setMigrations(list);
    QSignalSpy applied(&database, &Database::migrationApplied);
    QSignalSpy errors(&database, &Database::migrationError);
    QVERIFY(database.open(dir.filePath(QStringLiteral("calendar.db"))));
    database.migrate();
    QCOMPARE(applied.count(), 1);
    QCOMPARE(errors.count(), 1);
    QCOMPARE(errors.at(0).at(0).toInt(), 2);
    QVERIFY(errors.at(0).at(1).toString().contains(QStringLiteral("FOREIGN KEY")));
    QCOMPARE(database.schemaVersion(), 1);
    QVERIFY(!database.connection().tables().contains(QStringLiteral("parent")));
    // Nothing is left open on the shared connection: a later write of its own still commits.
    QVERIFY(database.connection().transaction());
    QVERIFY(exec(database.connection(), "CREATE TABLE later (x)"));
    QVERIFY(database.connection().commit());
}

void TestDatabase::openFailsForMissingFolder()
{
    QTemporaryDir dir;
    Database database;
    QVERIFY(!database.open(dir.filePath(QStringLiteral("no/such/folder/calendar.db"))));
    QVERIFY(!database.isOpen());
    QVERIFY(!database.lastError().isEmpty());
    QCOMPARE(database.schemaVersion(), -1);
}

void TestDatabase::fileThatIsNotADatabaseIsLeftAlone()
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("calendar.db"));
    const QByteArray content = QByteArray("These are my notes, not a database.\n").repeated(200);
    {
        QFile file(path);
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(content);
    }
    {
        Database database;
        QSignalSpy applied(&database, &Database::migrationApplied);
        database.open(path);
        database.migrate();
        QCOMPARE(applied.count(), 0);
        QVERIFY(!database.isUpToDate());
        QVERIFY(!database.lastError().isEmpty());
    }
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.readAll(), content);
    QVERIFY(!QFile::exists(path + QStringLiteral("-wal")));
}

QTEST_GUILESS_MAIN(TestDatabase)
#include "tst_database.moc"
