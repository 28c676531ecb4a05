// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/Database.h"

#include "storage/LogCategories.h"

#include <QFile>
#include <QSqlError>
#include <QSqlQuery>
#include <QStringDecoder>

Database::Database(QObject *parent)
    : QObject(parent)
    , m_connectionName(QString::fromLatin1(QSqlDatabase::defaultConnection))
    , m_migrations(builtInMigrations())
{ }

Database::~Database()
{
    if (m_db.isValid()) {
        if (m_db.isOpen())
            m_db.close();
        m_db = QSqlDatabase();
        QSqlDatabase::removeDatabase(m_connectionName);
    }
}

const QList<Migration> &Database::builtInMigrations()
{
    static const QList<Migration> list = {
        {1, QStringLiteral("initial"), QStringLiteral(":/sql/sql/migrations/001_initial.sql")},
        {2, QStringLiteral("event_sync"), QStringLiteral(":/sql/sql/migrations/002_event_sync.sql")},
        {3, QStringLiteral("tasks_sync"), QStringLiteral(":/sql/sql/migrations/003_tasks_sync.sql")},
        {4, QStringLiteral("accounts_sort_order"), QStringLiteral(":/sql/sql/migrations/004_accounts_sort_order.sql")},
        {5, QStringLiteral("provider_event_idx"),
         QStringLiteral(":/sql/sql/migrations/005_provider_event_id_index.sql")},
        {6, QStringLiteral("events_uid_unique"), QStringLiteral(":/sql/sql/migrations/006_events_uid_unique.sql")},
        {7, QStringLiteral("tasks_dateonly_repeat"),
         QStringLiteral(":/sql/sql/migrations/007_tasks_dateonly_and_repeat_mode.sql")},
        {8, QStringLiteral("accounts_soft_delete"),
         QStringLiteral(":/sql/sql/migrations/008_accounts_soft_delete.sql")},
        {9, QStringLiteral("event_related_to"), QStringLiteral(":/sql/sql/migrations/009_event_related_to.sql")},
    };
    return list;
}

bool Database::open(const QString &path)
{
    m_lastError.clear();
    m_db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"), m_connectionName);
    m_db.setDatabaseName(path);
    if (!m_db.open()) {
        m_lastError = m_db.lastError().text();
        qCCritical(lcDatabase).noquote() << "Failed to open database:" << m_lastError;
        return false;
    }
    QSqlQuery pragma(m_db);
    pragma.exec(QStringLiteral("PRAGMA journal_mode=WAL"));
    pragma.exec(QStringLiteral("PRAGMA foreign_keys=ON"));
    m_open = true;
    return true;
}

int Database::schemaVersion() const
{
    if (!m_open)
        return -1;
    QSqlQuery query(m_db);
    if (!query.exec(QStringLiteral("SELECT MAX(version) FROM schema_version")) || !query.next())
        return -1;
    return query.value(0).isNull() ? 0 : query.value(0).toInt();
}

bool Database::isUpToDate() const
{
    const int latest = m_migrations.isEmpty() ? 0 : m_migrations.constLast().version;
    return schemaVersion() == latest;
}

void Database::migrate()
{
    QSqlQuery query(m_db);
    if (!query.exec(QStringLiteral("CREATE TABLE IF NOT EXISTS schema_version ("
                                   "version INTEGER PRIMARY KEY, "
                                   "name TEXT NOT NULL, "
                                   "applied_at TEXT NOT NULL DEFAULT (datetime('now')))"))) {
        m_lastError = query.lastError().text();
        qCCritical(lcDatabase).noquote() << "Failed to create schema_version table:" << m_lastError;
        return;
    }
    const int current = schemaVersion();

    for (const Migration &migration : std::as_const(m_migrations)) {
        if (migration.version <= current)
            continue;
        QFile file(migration.resourcePath);
        if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) {
            const QString message = QStringLiteral("Cannot read migration file: %1").arg(migration.resourcePath);
            m_lastError = message;
            qCCritical(lcDatabase).noquote() << message;
            emit migrationError(migration.version, message);
            return;
        }
        const QString script = QString::fromUtf8(file.readAll());
        if (!applyMigration(migration, script))
            return;
    }
}

bool Database::applyMigration(const Migration &migration, const QString &script)
{
    // A migration that cannot run inside its own transaction must not run at all: half of a script applied
    // without a way back would leave the schema in a state no later start can repair.
    if (!m_db.transaction()) {
        m_lastError = m_db.lastError().text();
        qCCritical(lcDatabase).noquote() << "Migration" << migration.version << "failed:" << m_lastError;
        emit migrationError(migration.version, m_lastError);
        return false;
    }
    const QStringList statements = splitStatements(script);
    QSqlQuery query(m_db);
    for (const QString &statement : statements) {
        if (!query.exec(statement)) {
            m_lastError = query.lastError().text();
            qCCritical(lcDatabase).noquote() << "Migration" << migration.version << "failed:" << m_lastError
                                             << "\nStatement:" << statement.left(200);
            query.finish();
            m_db.rollback();
            emit migrationError(migration.version, m_lastError);
            return false;
        }
    }
    query.prepare(QStringLiteral("INSERT INTO schema_version (version, name) VALUES (?, ?)"));
    query.addBindValue(migration.version);
    query.addBindValue(migration.name);
    if (!query.exec()) {
        m_lastError = query.lastError().text();
        query.finish();
        m_db.rollback();
        emit migrationError(migration.version, m_lastError);
        return false;
    }
    query.finish();
    if (!m_db.commit()) {
        m_lastError = m_db.lastError().text();
        qCCritical(lcDatabase).noquote() << "Migration" << migration.version << "failed:" << m_lastError;
        m_db.rollback();
        emit migrationError(migration.version, m_lastError);
        return false;
    }
    qCInfo(lcDatabase).noquote() << "Applied migration" << migration.version << migration.name;
    emit migrationApplied(migration.version, migration.name);
    return true;
}

QStringList Database::splitStatements(const QString &script)
{
    QStringList statements;
    QString buffer;
    int depth = 0;

    const auto closeStatement = [&]() {
        QString statement = buffer.trimmed();
        buffer.clear();
        if (statement.isEmpty() || statement == QLatin1String(";"))
            return;
        if (statement.endsWith(QLatin1Char(';')))
            statement.chop(1);
        statement = statement.trimmed();
        if (!statement.isEmpty())
            statements.append(statement);
    };

    const QStringList lines = script.split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        const QString trimmed = line.trimmed();
        if (trimmed.startsWith(QLatin1String("--")))
            continue;
        buffer += line + QLatin1Char('\n');
        const QString upper = trimmed.toUpper();
        // Deliberately coarse: any line mentioning BEGIN opens a block (trigger bodies).
        if (upper.contains(QLatin1String("BEGIN")))
            ++depth;
        if (upper.startsWith(QLatin1String("END")) && depth >= 1)
            --depth;
        if (depth == 0 && trimmed.endsWith(QLatin1Char(';')))
            closeStatement();
    }
    closeStatement();
    return statements;
}
