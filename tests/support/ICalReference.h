// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/Event.h"
#include "storage/Task.h"

#include <QByteArrayView>
#include <QList>
#include <QString>

// A plain second reader, written line by line from the reading rules with the text-level
// functions of ICal (parsePropertyLine, unescapeText, parseDateTime, ...) and none of the byte
// readers' shortcuts. The tests and fuzzers hold ICal::parseEvents and ICal::parseTasks to its
// results, so a speed-up that changes a result shows.
namespace ICalReference {

QList<Event> parseEvents(QByteArrayView utf8);
QList<Task> parseTasks(QByteArrayView utf8);

// Every field of a record as text, date-times with their kind and zone, for exact comparisons
// (Event's operator== takes date-times equal when they name the same instant in different zones).
QString describe(const QDateTime &value);
QString describe(const Event &event);
QString describe(const Task &task);
QString describe(const QList<Event> &events);
QString describe(const QList<Task> &tasks);

} // namespace ICalReference
