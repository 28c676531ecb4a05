// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSqlQuery>
#include <QString>
#include <QTimeZone>
#include <QVariant>
#include <QVariantList>

// Small helpers shared by the repositories.
namespace SqlSupport {

// "?,?,?" with `count` placeholders, joined by "," without spaces.
QString placeholders(qsizetype count);
// Binds `values` in order to the positional parameters and executes the statement.
bool execute(QSqlQuery &query, const QVariantList &values);
// The value to bind for a NOT NULL text column: the text, or empty text (never NULL).
QVariant requiredText(const QString &text);
// The zone of an IANA identifier, invalid when no such zone is known. Looked up once per name and
// thread: reading a span converts every zoned event row.
QTimeZone zoneNamed(const QString &name);

} // namespace SqlSupport
