// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <QString>

#include <optional>

class Database;

// Key/value preferences (table `settings`) under slash-separated keys ("ui/theme"). Values are
// stored as text; the table's `type` column is never written and keeps its default.
//
// Every successful write emits changed(key) at once, whether or not the value differs (callers
// that must stay quiet on an unchanged value compare first). A failed write returns false and
// emits nothing.
class PreferencesRepository : public QObject
{
    Q_OBJECT

public:
    explicit PreferencesRepository(Database *database, QObject *parent = nullptr);

    // The stored text; nothing when the key has no row (or it cannot be read).
    std::optional<QString> value(const QString &key) const;
    // True for the stored text "1" or "true" exactly, false for any other stored text, `fallback`
    // when the key has no row.
    bool boolValue(const QString &key, bool fallback) const;
    // The stored text read as a base-10 integer (surrounding blanks allowed); `fallback` when the
    // key has no row or its text is not a whole number that fits an int ("12abc", "", "1.5").
    int intValue(const QString &key, int fallback) const;

    // Inserts or replaces the value of `key`.
    bool setValue(const QString &key, const QString &value);
    // Stores "1" or "0".
    bool setBool(const QString &key, bool value);
    // Deletes the key's row; succeeds (and signals) also when there was none.
    bool remove(const QString &key);

signals:
    void changed(const QString &key);

private:
    Database *m_database;
};
