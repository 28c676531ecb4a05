// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/EventWording.h"

#include "ical/Recurrence.h"
#include "storage/PreferencesRepository.h"

#include <QCoreApplication>
#include <QKeySequence>
#include <QLocale>
#include <QStringList>
#include <QTimeZone>

namespace {

// tr() for this file's free functions; lupdate takes the context from the macro.
struct Text
{
    Q_DECLARE_TR_FUNCTIONS(EventWording)
};

// "Tuesday, January 9", with the year when it is not the current one.
QString dayText(const QDate &date, int currentYear)
{
    const QLocale locale;
    const QString day = locale.dayName(date.dayOfWeek(), QLocale::LongFormat);
    const QString month = locale.monthName(date.month(), QLocale::LongFormat);
    if (date.year() == currentYear)
        return Text::tr("%1, %2 %3").arg(day, month).arg(date.day());
    return Text::tr("%1, %2 %3, %4").arg(day, month).arg(date.day()).arg(date.year());
}

QString monthDay(const QDate &date)
{
    return Text::tr("%1 %2").arg(QLocale().monthName(date.month(), QLocale::LongFormat)).arg(date.day());
}

// "Monday", "Monday and Thursday", "Monday, Wednesday and Friday".
QString joinedDays(const QList<int> &days)
{
    QStringList names;
    for (int day : days)
        names.append(QLocale().dayName(day, QLocale::LongFormat));
    if (names.size() == 1)
        return names.constFirst();
    const QString last = names.takeLast();
    return Text::tr("%1 and %2").arg(names.join(Text::tr(", ")), last);
}

int weekdayNumber(const QString &code)
{
    static const QStringList codes{QStringLiteral("MO"), QStringLiteral("TU"), QStringLiteral("WE"),
                                   QStringLiteral("TH"), QStringLiteral("FR"), QStringLiteral("SA"),
                                   QStringLiteral("SU")};
    return int(codes.indexOf(code)) + 1; // 0 for ordinals such as "1MO", which the expansion ignores
}

// The last day an occurrence can fall on when the rule ends at `until`: a date-only UNTIL means
// midnight UTC, so a 09:00 series with UNTIL=20240131 last meets on January 30.
QDate lastDayBefore(const QDateTime &until, const QDateTime &seriesStart)
{
    const QTimeZone zone = seriesStart.timeZone();
    const QDate day = until.toTimeZone(zone).date();
    return QDateTime(day, seriesStart.time(), zone) > until ? day.addDays(-1) : day;
}

QString everyDays(const QList<int> &days, int interval)
{
    const QList<int> weekdays{1, 2, 3, 4, 5};
    if (days.size() == 7 || days.isEmpty())
        return interval == 1 ? Text::tr("Every day") : Text::tr("Every %1 days").arg(interval);
    if (interval == 1 && days == weekdays)
        return Text::tr("Every weekday");
    if (interval == 1)
        return Text::tr("Every week on %1").arg(joinedDays(days));
    return Text::tr("Every %1 weeks on %2").arg(interval).arg(joinedDays(days));
}

} // namespace

namespace EventWording {

bool prefers24Hour(const PreferencesRepository *preferences)
{
    return preferences
        && preferences->value(QStringLiteral("ui/timeFormat")).value_or(QString()) == QLatin1String("24");
}

QString timeOfDay(const QTime &time, bool twentyFourHour)
{
    return time.toString(twentyFourHour ? QStringLiteral("HH:mm") : QStringLiteral("h:mm AP"));
}

QDate allDayDate(const QDateTime &value)
{
    return value.time() >= QTime(12, 0) ? value.date().addDays(1) : value.date();
}

QString timeRange(const Event &occurrence, bool twentyFourHour, int currentYear)
{
    if (occurrence.is_all_day) {
        // All-day values name dates, not instants: no conversion into local time.
        const QDate first = allDayDate(occurrence.start_time);
        QDate last = occurrence.end_time ? allDayDate(*occurrence.end_time).addDays(-1) : first;
        if (last < first)
            last = first;
        if (last == first)
            return Text::tr("%1 · All day").arg(dayText(first, currentYear));
        return Text::tr("%1 – %2").arg(dayText(first, currentYear), dayText(last, currentYear));
    }

    const QDateTime start = occurrence.start_time.toLocalTime();
    if (!occurrence.end_time)
        return Text::tr("%1 · %2").arg(dayText(start.date(), currentYear), timeOfDay(start.time(), twentyFourHour));
    const QDateTime end = occurrence.end_time->toLocalTime();
    // An event that ends at midnight belongs to the day it started on.
    const bool sameDay
        = end.date() == start.date() || (end.time() == QTime(0, 0) && end.date() == start.date().addDays(1));
    if (sameDay) {
        return Text::tr("%1 · %2 – %3")
            .arg(dayText(start.date(), currentYear), timeOfDay(start.time(), twentyFourHour),
                 timeOfDay(end.time(), twentyFourHour));
    }
    return Text::tr("%1, %2 – %3, %4")
        .arg(dayText(start.date(), currentYear), timeOfDay(start.time(), twentyFourHour),
             dayText(end.date(), currentYear), timeOfDay(end.time(), twentyFourHour));
}

QString repeatRule(const QString &ruleText, const QDateTime &seriesStart)
{
    if (ruleText.trimmed().isEmpty())
        return QString();
    const Recurrence::RecurrenceRule rule = Recurrence::parseRule(ruleText);
    QList<int> days;
    for (const QString &code : rule.byDay) {
        const int day = weekdayNumber(code);
        if (day > 0 && !days.contains(day))
            days.append(day);
    }
    std::sort(days.begin(), days.end());
    const int interval = rule.interval;

    QString text;
    if (rule.freq == QLatin1String("DAILY")) {
        // A daily rule with weekdays keeps only the matching days, every `interval` days.
        if (interval == 1 || days.isEmpty())
            text = everyDays(days, interval);
        else
            text = Text::tr("Every %1 days, on %2").arg(interval).arg(joinedDays(days));
    } else if (rule.freq == QLatin1String("WEEKLY")) {
        if (days.isEmpty())
            days.append(seriesStart.date().dayOfWeek());
        if (days.size() == 7)
            text = interval == 1 ? Text::tr("Every day") : Text::tr("Every %1 weeks, every day").arg(interval);
        else
            text = everyDays(days, interval);
    } else if (rule.freq == QLatin1String("MONTHLY")) {
        const int day = seriesStart.date().day();
        text = interval == 1 ? Text::tr("Every month on day %1").arg(day)
                             : Text::tr("Every %1 months on day %2").arg(interval).arg(day);
    } else if (rule.freq == QLatin1String("YEARLY")) {
        const QString date = monthDay(seriesStart.date());
        text = interval == 1 ? Text::tr("Every year on %1").arg(date)
                             : Text::tr("Every %1 years on %2").arg(interval).arg(date);
    } else {
        return QString();
    }

    if (rule.count == 1)
        text = Text::tr("%1, once").arg(text);
    else if (rule.count > 1)
        text = Text::tr("%1, %2 times").arg(text).arg(rule.count);
    else if (rule.until.isValid())
        text = Text::tr("%1, until %2")
                   .arg(text, QLocale().toString(lastDayBefore(rule.until, seriesStart), Text::tr("MMMM d, yyyy")));
    return text;
}

QString deleteQuestion(const QString &title)
{
    return Text::tr("Delete \"%1\"? You can undo with %2.")
        .arg(title, QKeySequence(QKeySequence::Undo).toString(QKeySequence::NativeText));
}

QString displayTitle(const QString &title)
{
    return title.trimmed().isEmpty() ? Text::tr("(No title)") : title;
}

} // namespace EventWording
