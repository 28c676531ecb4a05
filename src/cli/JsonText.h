// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/Event.h"
#include "storage/Task.h"

#include <QByteArray>

// Compact JSON text of records written straight from their fields, for commands that print
// thousands of them: byte for byte what QJsonDocument(JsonRecords::toJson(record)).toJson(
// QJsonDocument::Compact) gives (keys in sorted order), without building the JSON objects, which
// costs several times more than the text itself. The tests hold the two to the same bytes.
namespace JsonText {

void appendRecord(QByteArray &out, const Event &event);
void appendRecord(QByteArray &out, const Task &task);

// A JSON string literal of the text, escaped as QJsonDocument escapes it.
void appendString(QByteArray &out, QStringView text);

} // namespace JsonText
