// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/Template.h"

#include <QList>
#include <QObject>
#include <QString>

#include <optional>

class Database;

// Stores the event templates (table `event_templates`), listed by `sort_order`, then by name.
// Every insert and update marks the row "pending" for configuration sync; removing a template
// leaves a "pending" tombstone, which configuration sync deletes with hardDelete() once the
// server has it. A template's reminders are stored as a compact JSON array of minutes ([15,60],
// [] for none); unreadable stored text reads back as no reminders.
//
// Every successful write emits templatesChanged() at once. A failed write returns false (or
// nothing) and emits nothing; insert and update also log a warning. A write whose statement ran
// succeeds even when no row has the given id.
class TemplateRepository : public QObject
{
    Q_OBJECT

public:
    explicit TemplateRepository(Database *database, QObject *parent = nullptr);

    QList<Template> getAll() const;
    QList<Template> getAllIncludingDeleted() const;
    // Live templates only: a tombstone is not found.
    std::optional<Template> getById(const QString &id) const;

    // Stores a new template: an empty id gets a new one, an unset created_at becomes now,
    // updated_at is now. Returns the record as stored (with those values), nothing on failure.
    std::optional<Template> insert(const Template &preset);
    // Writes every field except id and created_at; updated_at becomes now.
    bool update(const Template &preset);
    // Soft delete: stamps deleted_at and updated_at with now and marks the row "pending".
    bool remove(const QString &id);
    bool hardDelete(const QString &id);

signals:
    void templatesChanged();

private:
    QList<Template> select(const QString &sqlTail, const QVariantList &values) const;
    bool execWrite(const QString &sql, const QVariantList &values);

    Database *m_database;
};
