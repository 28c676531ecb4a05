// SPDX-License-Identifier: GPL-3.0-or-later
// A migrated database in a temporary folder, with an account and calendars to hang rows on.
#pragma once

#include "storage/Database.h"

#include <QSqlError>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <QTest>

#include <memory>

class StoreFixture
{
public:
    // Opens and migrates a fresh database; false (with a test failure message) when that fails.
    bool open()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        m_database = std::make_unique<Database>();
        if (!m_dir->isValid() || !m_database->open(m_dir->filePath(QStringLiteral("calendar.db"))))
            return false;
        m_database->migrate();
        return m_database->isUpToDate()
            && exec(QStringLiteral("INSERT INTO accounts (id, name, type) VALUES ('acc', 'Local', 'kettlebrook')"));
    }

    void close()
    {
        m_database.reset();
        m_dir.reset();
    }

    bool addCalendar(const QString &id, const QString &name = QString())
    {
        QSqlQuery query(m_database->connection());
        query.prepare(QStringLiteral("INSERT INTO calendars (id, account_id, url, name) VALUES (?, 'acc', ?, ?)"));
        query.addBindValue(id);
        query.addBindValue(QString(QStringLiteral("local://calendar/") + id));
        query.addBindValue(name.isEmpty() ? id : name);
        return query.exec();
    }

    bool exec(const QString &sql) const
    {
        QSqlQuery query(m_database->connection());
        if (!query.exec(sql)) {
            qWarning().noquote() << sql << query.lastError().text();
            return false;
        }
        return true;
    }

    QVariant scalar(const QString &sql, const QVariantList &values = {}) const
    {
        QSqlQuery query(m_database->connection());
        query.prepare(sql);
        for (const QVariant &value : values)
            query.addBindValue(value);
        if (!query.exec() || !query.next())
            return QVariant();
        return query.value(0);
    }

    Database *database() const { return m_database.get(); }
    QString folder() const { return m_dir->path(); }

private:
    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<Database> m_database;
};
