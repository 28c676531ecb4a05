// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/Event.h"

#include <QDate>
#include <QDateTime>
#include <QString>

class PreferencesRepository;

// How an event is put into words on screen: its time range, its repeat rule and the question
// asked before deleting it. Day and month names come from the default QLocale.
namespace EventWording {

// The preference "ui/timeFormat" is "24" (else the 12-hour form, the default).
bool prefers24Hour(const PreferencesRepository *preferences);
// A time of day: "14:05" or "2:05 PM".
QString timeOfDay(const QTime &time, bool twentyFourHour);

// The date an all-day value stands for. All-day values are midnight of their date in the zone
// they were written in (UTC from calendar files, local time from quick entry); read into another
// zone, midnight moves by the offset, so the value is rounded to the nearest midnight (for
// offsets of up to 12 hours).
QDate allDayDate(const QDateTime &value);

// The time of an occurrence in local time: "Tuesday, January 9 · 10:00 – 11:00", across days
// "Tuesday, January 9, 22:00 – Wednesday, January 10, 02:00", all-day "Tuesday, January 9 · All
// day" or "Tuesday, January 9 – Thursday, January 11" (the stored end is exclusive), without an
// end "Tuesday, January 9 · 10:00". Dates outside `currentYear` carry their year.
QString timeRange(const Event &occurrence, bool twentyFourHour, int currentYear);

// A rule of the supported kind in words, as the expansion reads it: "Every day", "Every weekday",
// "Every 2 weeks on Monday and Thursday", "Every month on day 31", "Every year on March 14", with
// ", 5 times" or ", until January 31, 2025" appended. `seriesStart` supplies the weekday, day of
// month and date the rule falls back to. Empty for an empty rule or a FREQ that does not repeat.
QString repeatRule(const QString &rule, const QDateTime &seriesStart);

// The confirmation asked before deleting an event: "Delete "%1"? You can undo with %2." with the
// platform's undo shortcut.
QString deleteQuestion(const QString &title);

// The title as shown, "(No title)" for an empty one.
QString displayTitle(const QString &title);

} // namespace EventWording
