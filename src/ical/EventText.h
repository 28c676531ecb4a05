// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/Event.h"

#include <QByteArray>
#include <QString>

// Keeps an event's stored iCalendar text in step with a local edit, so that sync uploads what the
// user changed while everything else the text holds (properties the program does not read, alarms,
// attendees) travels along unchanged. Only the first VEVENT of the text is touched.
namespace EventText {

// The text with every line of property `name` removed from the first event and, when `value` is
// not empty, one line "NAME:value" (text escaped) added before its END:VEVENT.
QByteArray withText(const QByteArray &raw, const QByteArray &name, const QString &value);
// The same with a value written as it is (rules, dates).
QByteArray withRawValue(const QByteArray &raw, const QByteArray &name, const QByteArray &value);
// Escapes text for a property value: backslash, comma, semicolon and line breaks.
QByteArray escaped(const QString &text);

// The text of an edited event: the previous text (or a new object when there is none) with the
// event's times, title, location, description, rule, exception dates and recurrence id written in.
// All-day events get date values; timed ones UTC date-times.
QByteArray updatedText(const QByteArray &previous, const Event &event);

} // namespace EventText
