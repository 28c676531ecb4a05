// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QObject>
#include <QSqlDatabase>
#include <QString>
#include <QStringList>

// One built-in schema migration: its version, short name and the resource path of its script.
struct Migration
{
    int version = 0;
    QString name;
    QString resourcePath;
};

// Owns the single SQLite connection of the process and keeps the schema up to date.
//
// open() opens the file in write-ahead-log mode with foreign keys enforced; migrate() applies
// every built-in migration newer than the recorded schema version, each in its own transaction,
// and records it in `schema_version`. A failed migration is rolled back completely and stops the
// run, so the schema stays at the last committed version and the next start retries.
class Database : public QObject
{
    Q_OBJECT

public:
    explicit Database(QObject *parent = nullptr);
    ~Database() override;

    bool open(const QString &path);
    void migrate();

    bool isOpen() const { return m_open; }
    QSqlDatabase connection() const { return m_db; }

    // The highest recorded migration version, 0 for a fresh file, -1 when it cannot be read.
    int schemaVersion() const;
    // True when every migration of the list has been applied.
    bool isUpToDate() const;
    // The text of the last open or migration failure; empty when there was none.
    QString lastError() const { return m_lastError; }

    // The built-in migrations in ascending version order.
    static const QList<Migration> &builtInMigrations();
    // Replaces the migration list this object runs (tests run partial or broken lists).
    void setMigrations(const QList<Migration> &migrations) { m_migrations = migrations; }

    // Splits a script into statements, line by line. Whole-line "--" comments are dropped; a line
    // holding "BEGIN" opens a block that only a line starting with "END" closes, so the
    // semicolons inside trigger bodies do not split them.
    static QStringList splitStatements(const QString &script);

signals:
    void migrationApplied(int version, const QString &name);
    void migrationError(int version, const QString &error);

private:
    bool applyMigration(const Migration &migration, const QString &script);

    QSqlDatabase m_db;
    QString m_connectionName;
    bool m_open = false;
    QString m_lastError;
    QList<Migration> m_migrations;
};
