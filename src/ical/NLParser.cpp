// SPDX-License-Identifier: GPL-3.0-or-later
#include "ical/NLParser.h"

#include "ical/ICal.h"
#include "storage/Clock.h"
#include "storage/StorageFormat.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QTimeZone>

#include <algorithm>
#include <array>
#include <limits>

namespace NLParser {
namespace {

// tr() for this file's free functions; lupdate takes the context from the macro.
struct Text
{
    Q_DECLARE_TR_FUNCTIONS(NLParser)
};

QRegularExpression compile(const char *pattern)
{
    QRegularExpression expression(QString::fromLatin1(pattern), QRegularExpression::CaseInsensitiveOption);
    expression.optimize();
    return expression;
}

// The text as the patterns see it. Every run of the blanks that "\s" matches (tab, line feed,
// vertical tab, form feed, carriage return, space) is shortened to its first character, and an
// unpaired surrogate becomes U+FFFD. The patterns treat a run of blanks exactly like a single one
// (a run is always consumed whole or not at all), so they find the same matches; but a long run
// can no longer make "\s*(am|pm)?\s+" backtrack quadratically (100,000 blanks took seconds), and
// broken UTF-16 no longer makes every match fail. Spans are mapped back to the caller's text.
class Subject
{
public:
    explicit Subject(const QString &text)
    {
        m_text.reserve(text.size());
        m_origin.reserve(text.size() + 1);
        const qsizetype size = text.size();
        for (qsizetype i = 0; i < size; ++i) {
            const char16_t c = text.at(i).unicode();
            if (isBlank(c) && !m_text.isEmpty() && isBlank(m_text.back().unicode()))
                continue;
            m_origin.append(i);
            if (QChar::isHighSurrogate(c) && i + 1 < size && QChar::isLowSurrogate(text.at(i + 1).unicode())) {
                m_text.append(text.at(i));
                m_text.append(text.at(i + 1));
                m_origin.append(++i);
            } else if (QChar::isSurrogate(c)) {
                m_text.append(QChar(QChar::ReplacementCharacter));
            } else {
                m_text.append(QChar(c));
            }
        }
        m_origin.append(size);
    }

    QRegularExpressionMatch match(const QRegularExpression &expression) const { return expression.match(m_text); }

    // The whole match, as a span of the caller's text.
    Span span(const QRegularExpressionMatch &match) const
    {
        const qsizetype begin = m_origin.at(match.capturedStart(0));
        const qsizetype end = m_origin.at(match.capturedEnd(0));
        return Span{begin, end - begin};
    }

private:
    static bool isBlank(char16_t c) { return c == u' ' || (c >= u'\t' && c <= u'\r'); }

    QString m_text;
    QList<qsizetype> m_origin; // position in the caller's text of each character, then its size
};

// Captured words compared by their case folding: case-insensitive matching also accepts
// characters such as U+017F (long s) for "s" and U+212A (Kelvin sign) for "k".
QString folded(const QRegularExpressionMatch &match, int group)
{
    return match.captured(group).toCaseFolded();
}

// 1-based position of the word's first three letters in the list, 0 when it is not there.
template<std::size_t N>
int indexByPrefix(const QString &word, const std::array<const char *, N> &prefixes)
{
    const QStringView prefix = QStringView(word).left(3);
    for (std::size_t i = 0; i < N; ++i) {
        if (prefix == QLatin1String(prefixes[i]))
            return int(i) + 1;
    }
    return 0;
}

int weekdayNumber(const QString &name)
{
    static constexpr std::array<const char *, 7> kDays = {"mon", "tue", "wed", "thu", "fri", "sat", "sun"};
    return indexByPrefix(name, kDays);
}

int monthNumber(const QString &name)
{
    static constexpr std::array<const char *, 12> kMonths
        = {"jan", "feb", "mar", "apr", "may", "jun", "jul", "aug", "sep", "oct", "nov", "dec"};
    return indexByPrefix(name, kMonths);
}

// Decimal digits as a number; nothing when it exceeds `limit` (the digits may be any number long).
std::optional<qint64> boundedNumber(QStringView digits, qint64 limit)
{
    qint64 value = 0;
    for (const QChar c : digits) {
        value = value * 10 + (c.unicode() - u'0');
        if (value > limit)
            return std::nullopt;
    }
    return value;
}

// A 12-hour reading: "pm" with an hour of 11 or less adds 12, "am" with 12 gives 0; anything
// else (no marker, "pm" after 12, "am" before 12, out-of-range hours) keeps the hour.
int withMarker(int hour, const QString &marker)
{
    if (marker == QLatin1String("pm") && hour <= 11)
        return hour + 12;
    if (marker == QLatin1String("am") && hour == 12)
        return 0;
    return hour;
}

// Hours and minutes read by the patterns have at most two digits; an impossible value gives an
// invalid time rather than QTime's silent midnight later on.
QTime clockTime(int hour, int minute)
{
    return QTime::isValid(hour, minute, 0) ? QTime(hour, minute) : QTime();
}

int minuteField(const QRegularExpressionMatch &match, int group)
{
    return match.captured(group).isEmpty() ? 0 : match.captured(group).toInt();
}

std::optional<QDate> dateOf(int patternIndex, const QRegularExpressionMatch &match, const QDate &today)
{
    switch (patternIndex) {
    case 0: {
        const QString word = folded(match, 1);
        if (word == QLatin1String("tomorrow"))
            return today.addDays(1);
        if (word == QLatin1String("yesterday"))
            return today.addDays(-1);
        return today;
    }
    case 1:
    case 2: {
        const int target = weekdayNumber(folded(match, 1));
        if (target == 0)
            return std::nullopt;
        int difference = target - today.dayOfWeek();
        // "next friday" is never today; a bare "friday" is today when today is a Friday.
        if (patternIndex == 1 ? difference <= 0 : difference < 0)
            difference += 7;
        return today.addDays(difference);
    }
    case 3: {
        // More days than any calendar date can be away: an invalid date, as for "jan 40".
        const std::optional<qint64> count = boundedNumber(match.capturedView(1), Q_INT64_C(1000000000000));
        if (!count)
            return QDate();
        const bool weeks = folded(match, 2).startsWith(QLatin1String("week"));
        return today.addDays(weeks ? *count * 7 : *count);
    }
    case 4: {
        const int month = monthNumber(folded(match, 1));
        if (month == 0)
            return std::nullopt;
        // An impossible day ("jan 40", "feb 30") stays invalid; it is not moved to a real date.
        QDate date(today.year(), month, match.captured(2).toInt());
        if (date.isValid() && date < today)
            date = date.addYears(1);
        return date;
    }
    }
    return std::nullopt;
}

std::optional<TimeMatch> timeOf(int patternIndex, const QRegularExpressionMatch &match)
{
    TimeMatch result;
    switch (patternIndex) {
    case 0: {
        const QString startMarker = folded(match, 3);
        const QString endMarker = folded(match, 6);
        // A side without a marker borrows the other side's: "from 9 to 11am", "from 11pm to 1".
        result.start = clockTime(withMarker(match.captured(1).toInt(), startMarker.isEmpty() ? endMarker : startMarker),
                                 minuteField(match, 2));
        result.end = clockTime(withMarker(match.captured(4).toInt(), endMarker.isEmpty() ? startMarker : endMarker),
                               minuteField(match, 5));
        result.isRange = true;
        return result;
    }
    case 1:
        result.start = QTime(12, 0);
        return result;
    case 2:
        result.start = QTime(0, 0);
        return result;
    case 3:
        // Without a marker the hour is a 24-hour value: "at 7" is 07:00.
        result.start = clockTime(withMarker(match.captured(1).toInt(), folded(match, 3)), minuteField(match, 2));
        return result;
    case 4: {
        const int digits = match.captured(1).toInt();
        if (digits / 100 > 23 || digits % 100 > 59)
            return std::nullopt;
        result.start = QTime(digits / 100, digits % 100);
        return result;
    }
    case 5:
        result.start = clockTime(withMarker(match.captured(1).toInt(), folded(match, 3)), minuteField(match, 2));
        return result;
    }
    return std::nullopt;
}

// The minutes of "N[.F] unit", truncated, computed exactly from the digits (no binary rounding:
// "for 2.9999999999999999999 min" is 2). -1 when the count does not fit in an int.
int durationMinutes(QStringView number, bool hours)
{
    const qsizetype point = number.indexOf(QLatin1Char('.'));
    const QStringView whole = point < 0 ? number : number.left(point);
    const QStringView fraction = point < 0 ? QStringView() : number.mid(point + 1);
    const int factor = hours ? 60 : 1;
    const std::optional<qint64> wholePart = boundedNumber(whole, std::numeric_limits<int>::max());
    if (!wholePart)
        return -1;
    // floor(0.fraction × factor): multiply the fraction's digits by the factor from the right;
    // what carries past the point is the whole part of the product.
    int carry = 0;
    for (qsizetype i = fraction.size() - 1; i >= 0; --i)
        carry = ((fraction.at(i).unicode() - u'0') * factor + carry) / 10;
    const qint64 minutes = *wholePart * factor + carry;
    return minutes > std::numeric_limits<int>::max() ? -1 : int(minutes);
}

// A wall-clock time that the zone skips (02:30 on the night the clocks go forward) is read with
// the offset in force before the jump, as iCalendar does, so it lands as far after the jump as it
// was after the last valid time: 02:30 becomes 03:30. Jumps are at least a day apart, so a day
// earlier the old offset still holds.
QDateTime skippedWallTime(const QDate &date, const QTime &time, const QTimeZone &zone)
{
    const int offsetBefore = zone.offsetFromUtc(QDateTime(date.addDays(-1), time, Qt::UTC));
    return QDateTime(date, time, Qt::OffsetFromUTC, offsetBefore).toTimeZone(zone);
}

// The date and wall-clock time in the zone (or offset, or local time) of the reference time.
// Invalid when either part is, instead of QDateTime's fallback to midnight for a bad time.
QDateTime inZoneOf(const QDateTime &reference, const QDate &date, const QTime &time)
{
    if (!date.isValid() || !time.isValid())
        return QDateTime();
    switch (reference.timeSpec()) {
    case Qt::UTC:
        return QDateTime(date, time, Qt::UTC);
    case Qt::OffsetFromUTC:
        return QDateTime(date, time, Qt::OffsetFromUTC, reference.offsetFromUtc());
    case Qt::TimeZone: {
        const QDateTime value(date, time, reference.timeZone());
        return value.isValid() ? value : skippedWallTime(date, time, reference.timeZone());
    }
    case Qt::LocalTime:
        break;
    }
    const QDateTime value(date, time, Qt::LocalTime);
    return value.isValid() ? value : skippedWallTime(date, time, QTimeZone::systemTimeZone()).toLocalTime();
}

// ISO 8601 text, in which every stored date-time is kept, has four-digit years.
bool storable(const QDateTime &value)
{
    if (!value.isValid())
        return false;
    const int year = value.date().year();
    const int utcYear = value.toUTC().date().year();
    return year >= 1 && year <= 9999 && utcYear >= 1 && utcYear <= 9999;
}

QString spannedText(const QString &text, const QList<Span> &spans)
{
    return spans.isEmpty() ? QString() : text.mid(spans.constFirst().start, spans.constFirst().length);
}

// A parse together with the matches it was made from, so that a problem can be named.
struct Parse
{
    ParseResult result;
    std::optional<DateMatch> date;
    std::optional<TimeMatch> time;
    std::optional<DurationMatch> duration;
    bool durationUsed = false;
};

QString titleOutside(const QString &text, QList<Span> spans)
{
    QString title;
    if (spans.isEmpty()) {
        title = text.trimmed();
    } else {
        std::sort(spans.begin(), spans.end(), [](const Span &a, const Span &b) { return a.start < b.start; });
        qsizetype position = 0;
        for (const Span &span : std::as_const(spans)) {
            if (span.start > position)
                title += QStringView(text).mid(position, span.start - position);
            position = std::max(position, span.start + span.length);
        }
        if (position < text.size())
            title += QStringView(text).mid(position);
        title = title.simplified();
    }
    static const QRegularExpression cleanup = compile(R"(^(?:on|at|for)\s+|\s+(?:on|at|for)$)");
    title.remove(cleanup);
    return title.simplified();
}

Parse parseWithMatches(const QString &text, const QDateTime &now)
{
    Parse parse;
    ParseResult &result = parse.result;
    if (text.trimmed().isEmpty()) {
        result.start = defaultStart(now);
        return parse;
    }

    QList<Span> spans;
    QDate date = now.date();
    QTime startTime;
    QTime endTime;
    parse.date = matchDate(text, now.date());
    if (parse.date) {
        date = parse.date->date;
        spans += parse.date->spans;
    }
    parse.time = matchTime(text);
    if (parse.time) {
        startTime = parse.time->start;
        endTime = parse.time->end;
        spans += parse.time->spans;
        result.hasTime = true;
    } else if (parse.date) {
        result.allDay = true;
        startTime = QTime(0, 0);
    } else {
        const QDateTime fallback = defaultStart(now);
        date = fallback.date();
        startTime = fallback.time();
    }
    int minutes = 60;
    parse.duration = matchDuration(text);
    if (parse.duration) {
        minutes = parse.duration->minutes;
        spans += parse.duration->spans;
    }

    result.start = inZoneOf(now, date, startTime);
    const bool isRange = parse.time && parse.time->isRange;
    if (isRange) {
        QDateTime end = inZoneOf(now, date, endTime);
        // Deliberate: an end not after the start is the next day's ("from 10pm to 1am"), even
        // when the marker borrowed by the end puts it hours later ("from 11pm to 1" is 13:00).
        if (end.isValid() && result.start.isValid() && end <= result.start)
            end = inZoneOf(now, date.addDays(1), endTime);
        result.end = end;
    } else if (result.allDay) {
        result.end = inZoneOf(now, date.addDays(1), QTime(0, 0));
    } else {
        parse.durationUsed = parse.duration.has_value();
        result.end = minutes >= 0 && result.start.isValid() ? result.start.addSecs(qint64(minutes) * 60) : QDateTime();
    }
    result.title = titleOutside(text, spans);
    return parse;
}

QString problemOf(const QString &text, const QDateTime &now, const Parse &parse)
{
    if (!now.isValid())
        return Text::tr("the reference time is not valid");
    if (parse.date && !parse.date->date.isValid())
        return Text::tr("\"%1\" is not a valid date").arg(spannedText(text, parse.date->spans));
    if (parse.time && (!parse.time->start.isValid() || (parse.time->isRange && !parse.time->end.isValid())))
        return Text::tr("\"%1\" is not a valid time").arg(spannedText(text, parse.time->spans));
    if (parse.durationUsed && parse.duration->minutes < 0)
        return Text::tr("\"%1\" is too long").arg(spannedText(text, parse.duration->spans));
    if (!storable(parse.result.start) || !parse.result.end || !storable(*parse.result.end)) {
        if (parse.date)
            return Text::tr("\"%1\" falls outside the years 1 to 9999").arg(spannedText(text, parse.date->spans));
        return Text::tr("the event would fall outside the years 1 to 9999");
    }
    return QString();
}

} // namespace

std::optional<DateMatch> matchDate(const QString &text, const QDate &today)
{
    static const std::array<QRegularExpression, 5> patterns = {
        compile(R"(\b(today|tomorrow|yesterday|tonight)\b)"),
        compile(
            R"(\bnext\s+(monday|tuesday|wednesday|thursday|friday|saturday|sunday|mon|tue|tues|wed|thu|thur|thurs|fri|sat|sun)\b)"),
        compile(
            R"(\b(?:on\s+)?(monday|tuesday|wednesday|thursday|friday|saturday|sunday|mon|tue|tues|wed|thu|thur|thurs|fri|sat|sun)\b)"),
        compile(R"(\bin\s+(\d+)\s+(days?|weeks?)\b)"),
        compile(
            R"(\b(?:on\s+)?(jan|feb|mar|apr|may|jun|jul|aug|sep|sept|oct|nov|dec|january|february|march|april|june|july|august|september|october|november|december)\s+(\d{1,2})\b)"),
    };
    const Subject subject(text);
    for (int i = 0; i < int(patterns.size()); ++i) {
        const QRegularExpressionMatch match = subject.match(patterns[i]);
        if (!match.hasMatch())
            continue;
        if (const std::optional<QDate> date = dateOf(i, match, today))
            return DateMatch{*date, {subject.span(match)}};
    }
    return std::nullopt;
}

std::optional<TimeMatch> matchTime(const QString &text)
{
    static const std::array<QRegularExpression, 6> patterns = {
        compile(R"(\bfrom\s+(\d{1,2})(?::(\d{2}))?\s*(am|pm)?\s+to\s+(\d{1,2})(?::(\d{2}))?\s*(am|pm)?\b)"),
        compile(R"(\b(?:at\s+)?noon\b)"),
        compile(R"(\b(?:at\s+)?midnight\b)"),
        compile(R"(\bat\s+(\d{1,2})(?::(\d{2}))?\s*(am|pm)?\b)"),
        compile(R"(\bat\s+(\d{4})\b)"),
        compile(R"(\b(\d{1,2})(?::(\d{2}))?\s*(am|pm)\b)"),
    };
    const Subject subject(text);
    for (int i = 0; i < int(patterns.size()); ++i) {
        const QRegularExpressionMatch match = subject.match(patterns[i]);
        if (!match.hasMatch())
            continue;
        // "at 2460" is no HHMM time; the next pattern is tried.
        if (std::optional<TimeMatch> time = timeOf(i, match)) {
            time->spans = {subject.span(match)};
            return time;
        }
    }
    return std::nullopt;
}

std::optional<DurationMatch> matchDuration(const QString &text)
{
    static const QRegularExpression pattern
        = compile(R"(\bfor\s+(\d+(?:\.\d+)?)\s*(min|mins|minute|minutes|h|hr|hrs|hour|hours)\b)");
    const Subject subject(text);
    const QRegularExpressionMatch match = subject.match(pattern);
    if (!match.hasMatch())
        return std::nullopt;
    const bool hours = folded(match, 2).startsWith(QLatin1Char('h'));
    return DurationMatch{durationMinutes(match.capturedView(1), hours), {subject.span(match)}};
}

QDateTime defaultStart(const QDateTime &now)
{
    if (!now.isValid())
        return QDateTime();
    // Seconds are dropped by going back in time rather than by setting the wall clock, which in
    // the repeated hour of a daylight-saving change could pick the other occurrence.
    const QTime time = now.time();
    const QDateTime start = now.addMSecs(-qint64(time.second() * 1000 + time.msec()));
    const int minute = time.minute();
    if (minute == 0 || minute == 30)
        return start;
    return start.addSecs(qint64((minute < 30 ? 30 : 60) - minute) * 60);
}

ParseResult parse(const QString &text, const QDateTime &now)
{
    return parseWithMatches(text, now).result;
}

QString problem(const QString &line, const QDateTime &now)
{
    if (line.trimmed().isEmpty())
        return QString();
    return problemOf(line, now, parseWithMatches(line, now));
}

std::optional<Event> eventFromLine(const QString &line, const QString &calendarId, const QDateTime &now)
{
    const QString trimmed = line.trimmed();
    if (trimmed.isEmpty())
        return std::nullopt;
    const Parse parse = parseWithMatches(line, now);
    if (!problemOf(line, now, parse).isEmpty())
        return std::nullopt;

    Event event;
    // Line breaks in the text would break the SUMMARY line of the event's iCalendar text, which
    // is written unescaped; like every parsed title, the fallback is one line.
    event.title = parse.result.title.isEmpty() ? trimmed.simplified() : parse.result.title;
    event.start_time = parse.result.start;
    event.end_time = parse.result.end;
    event.is_all_day = parse.result.allDay;
    event.timezone = QStringLiteral("UTC");
    event.calendar_id = calendarId;
    event.status = QStringLiteral("confirmed");
    event.sync_status = QStringLiteral("pending");
    event.id = StorageFormat::newId();
    event.uid = event.id;
    event.created = Clock::nowUtc();
    event.last_modified = event.created;
    event.sequence = 0;
    event.raw_icalendar = ICal::buildEventIcs(event);
    return event;
}

} // namespace NLParser
