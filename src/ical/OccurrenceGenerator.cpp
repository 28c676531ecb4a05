// SPDX-License-Identifier: GPL-3.0-or-later
#include "ical/OccurrenceGenerator.h"

#include "ical/RuleText.h"

#include <QLatin1StringView>

#include <algorithm>
#include <bit>
#include <numeric>

namespace {

constexpr qint64 kDay = WallClockZone::kDayMs;
// Candidates are skipped only when their wall-clock reading lies at least this far before the
// first start needed: more than any offset from UTC, so none of them can be a needed start.
constexpr qint64 kSkipMargin = 3 * kDay;

constexpr quint8 weekdayBit(int weekday)
{
    return quint8(1u << weekday);
}

// a >= 0, b > 0.
qint64 ceilDiv(qint64 a, qint64 b)
{
    return a / b + (a % b != 0 ? 1 : 0);
}

qint64 monthIndex(QDate date)
{
    return qint64(date.year()) * 12 + (date.month() - 1);
}

int daysInMonthOfCommonYear(int month)
{
    static constexpr int kDays[12] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    return kDays[month - 1];
}

// The day of the month after `steps` additions of `stepMonths` months to a date on `day` of the
// month `startMonth`. Each addition clamps the day to the length of the month it reaches and the
// next addition starts from the clamped day, so the day is the smallest of the start day and the
// lengths of every month visited. The months of the year visited repeat every `period` steps, so
// the 30-day months are all seen within one period; February's length depends on the year, so its
// visits are followed until one falls in a common year.
int clampedDay(int day, qint64 startMonth, qint64 stepMonths, qint64 steps)
{
    if (day <= 28 || steps <= 0)
        return day;
    const qint64 period = 12 / std::gcd(stepMonths % 12, qint64(12));
    qint64 firstFebruary = 0;
    for (qint64 i = 1; i <= std::min(steps, period); ++i) {
        const int month = int((startMonth + i * stepMonths) % 12) + 1;
        if (month == 2) {
            if (firstFebruary == 0)
                firstFebruary = i;
        } else {
            day = std::min(day, daysInMonthOfCommonYear(month));
        }
    }
    for (qint64 i = firstFebruary; firstFebruary > 0 && i <= steps && day > 28; i += period) {
        const int year = int((startMonth + i * stepMonths) / 12);
        day = std::min(day, QDate::isLeapYear(year) ? 29 : 28);
    }
    return day;
}

} // namespace

CompiledRule CompiledRule::fromRule(const Recurrence::RecurrenceRule &rule)
{
    CompiledRule compiled;
    if (rule.freq == QLatin1StringView("DAILY"))
        compiled.frequency = Frequency::Daily;
    else if (rule.freq == QLatin1StringView("WEEKLY"))
        compiled.frequency = Frequency::Weekly;
    else if (rule.freq == QLatin1StringView("MONTHLY"))
        compiled.frequency = Frequency::Monthly;
    else if (rule.freq == QLatin1StringView("YEARLY"))
        compiled.frequency = Frequency::Yearly;
    compiled.interval = std::max(rule.interval, 1);
    compiled.count = std::max(rule.count, 0);
    compiled.hasUntil = rule.until.isValid();
    if (compiled.hasUntil)
        compiled.untilMs = rule.until.toMSecsSinceEpoch();
    for (const QString &item : rule.byDay) {
        if (const int weekday = RuleText::weekdayNumber(item))
            compiled.weekdays |= weekdayBit(weekday);
    }
    return compiled;
}

CompiledRule CompiledRule::fromText(QStringView text)
{
    CompiledRule compiled;
    QStringView freq;
    RuleText::forEachPiece(text, [&](QLatin1StringView key, QStringView value) {
        if (key == QLatin1StringView("FREQ")) {
            freq = value;
        } else if (key == QLatin1StringView("INTERVAL")) {
            compiled.interval = RuleText::intervalValue(value);
        } else if (key == QLatin1StringView("COUNT")) {
            compiled.count = RuleText::countValue(value);
        } else if (key == QLatin1StringView("UNTIL")) {
            const QDateTime until = RuleText::untilValue(value);
            compiled.hasUntil = until.isValid();
            compiled.untilMs = compiled.hasUntil ? until.toMSecsSinceEpoch() : 0;
        } else if (key == QLatin1StringView("BYDAY")) {
            compiled.weekdays = 0;
            qsizetype pos = 0;
            while (pos <= value.size()) {
                qsizetype end = value.indexOf(u',', pos);
                if (end < 0)
                    end = value.size();
                if (const int weekday = RuleText::weekdayNumber(value.sliced(pos, end - pos)))
                    compiled.weekdays |= weekdayBit(weekday);
                pos = end + 1;
            }
        }
    });
    if (freq.compare(QLatin1StringView("DAILY"), Qt::CaseInsensitive) == 0)
        compiled.frequency = Frequency::Daily;
    else if (freq.compare(QLatin1StringView("WEEKLY"), Qt::CaseInsensitive) == 0)
        compiled.frequency = Frequency::Weekly;
    else if (freq.compare(QLatin1StringView("MONTHLY"), Qt::CaseInsensitive) == 0)
        compiled.frequency = Frequency::Monthly;
    else if (freq.compare(QLatin1StringView("YEARLY"), Qt::CaseInsensitive) == 0)
        compiled.frequency = Frequency::Yearly;
    return compiled;
}

// The state of one generation: the series, the bounds, and the list being filled.
struct OccurrenceGenerator::Run
{
    const CompiledRule &rule;
    const WallClockZone &clock;
    qint64 startMs;
    qint64 startWall;
    qint64 rangeEndMs;
    // Wall-clock readings before this may be skipped; the lowest value when nothing may.
    qint64 skipBefore;
    qint64 limit;
    std::vector<qint64> &out;

    qint64 instantOf(qint64 wall) const { return wall == startWall ? startMs : clock.toInstant(wall); }
    bool beyondEnd(qint64 instant) const { return rule.hasUntil && instant > rule.untilMs; }

    void daily();
    void weekly();
    void monthly(bool yearly);
};

void OccurrenceGenerator::Run::daily()
{
    const qint64 step = qint64(rule.interval) * kDay;
    qint64 emitted = 0;
    qint64 wall = startWall;
    if (skipBefore > startWall) {
        // Candidates 0 .. skip-1 lie before skipBefore. Every one of them counts when there is no
        // weekday set; with one, the weekdays of successive candidates repeat every 7 candidates.
        const qint64 skip = ceilDiv(skipBefore - startWall, step);
        if (rule.weekdays == 0) {
            emitted = skip;
        } else {
            const int firstWeekday = WallClockZone::weekday(startWall);
            const int shift = int(rule.interval % 7);
            int matchingIn[8] = {};
            for (int j = 0; j < 7; ++j) {
                const int weekday = (firstWeekday - 1 + j * shift) % 7 + 1;
                matchingIn[j + 1] = matchingIn[j] + ((rule.weekdays & weekdayBit(weekday)) ? 1 : 0);
            }
            emitted = (skip / 7) * matchingIn[7] + matchingIn[skip % 7];
        }
        if (emitted >= limit)
            return;
        wall = startWall + skip * step;
    }
    qint64 instant = instantOf(wall);
    for (;;) {
        if (rule.weekdays == 0 || (rule.weekdays & weekdayBit(WallClockZone::weekday(wall)))) {
            if (beyondEnd(instant) || instant >= rangeEndMs)
                return;
            out.push_back(instant);
            if (++emitted >= limit)
                return;
        }
        wall += step;
        instant = instantOf(wall);
        if (instant > rangeEndMs)
            return;
    }
}

void OccurrenceGenerator::Run::weekly()
{
    const int startWeekday = WallClockZone::weekday(startWall);
    const quint8 weekdays = rule.weekdays != 0 ? rule.weekdays : weekdayBit(startWeekday);
    const qint64 weekStep = 7 * qint64(rule.interval) * kDay;
    // Weeks start on Monday whatever WKST says: deliberate, the anchor users' series depend on.
    const qint64 firstMonday = startWall - (startWeekday - 1) * kDay;
    qint64 emitted = 0;
    qint64 week = 0;
    for (;;) {
        const qint64 monday = firstMonday + week * weekStep;
        for (int weekday = 1; weekday <= 7; ++weekday) {
            if (!(weekdays & weekdayBit(weekday)))
                continue;
            const qint64 instant = instantOf(monday + (weekday - 1) * kDay);
            if (instant < startMs)
                continue;
            if (beyondEnd(instant) || instant >= rangeEndMs)
                return;
            out.push_back(instant);
            if (++emitted >= limit)
                return;
        }
        qint64 next = week + 1;
        if (week == 0 && skipBefore > kNoLowerBound + 6 * kDay) {
            // Weeks 1 .. skip-1 end before skipBefore. Only the first week can hold candidates before
            // the series start, so each of them counts every one of its weekdays.
            const qint64 lastSkippableMonday = skipBefore - 6 * kDay;
            const qint64 skip
                = lastSkippableMonday > firstMonday ? ceilDiv(lastSkippableMonday - firstMonday, weekStep) : 0;
            if (skip > 1) {
                emitted += (skip - 1) * std::popcount(unsigned(weekdays));
                if (emitted >= limit)
                    return;
                next = skip;
            }
        }
        week = next;
        if (instantOf(firstMonday + week * weekStep) > rangeEndMs)
            return;
    }
}

void OccurrenceGenerator::Run::monthly(bool yearly)
{
    const qint64 stepMonths = yearly ? 12 * qint64(rule.interval) : qint64(rule.interval);
    const qint64 msOfDay = startWall - WallClockZone::dayNumber(startWall) * kDay;
    QDate date = WallClockZone::dateOf(startWall);
    qint64 emitted = 0;
    // Calendar arithmetic skips year 0, month indices do not: skip only in the common era.
    if (skipBefore > startWall && date.year() >= 1) {
        const qint64 startMonth = monthIndex(date);
        const qint64 targetMonth = monthIndex(WallClockZone::dateOf(skipBefore));
        if (targetMonth > startMonth) {
            // Candidates 0 .. skip-1 fall in months before skipBefore's, and each of them counts.
            const qint64 skip = ceilDiv(targetMonth - startMonth, stepMonths);
            if (skip >= limit)
                return;
            const qint64 month = startMonth + skip * stepMonths;
            date = QDate(int(month / 12), int(month % 12) + 1, clampedDay(date.day(), startMonth, stepMonths, skip));
            emitted = skip;
        }
    }
    qint64 instant = instantOf(WallClockZone::wallMs(date, msOfDay));
    while (!beyondEnd(instant) && instant < rangeEndMs) {
        out.push_back(instant);
        if (++emitted >= limit)
            return;
        // Added to the previous candidate, not to the series start: a day clamped to a short month
        // stays clamped (31 Jan, 29 Feb, 29 Mar, ...). Deliberate, existing series depend on it.
        date = yearly ? date.addYears(rule.interval) : date.addMonths(rule.interval);
        if (!date.isValid())
            return;
        instant = instantOf(WallClockZone::wallMs(date, msOfDay));
    }
}

OccurrenceGenerator::OccurrenceGenerator(const CompiledRule &rule, const QDateTime &seriesStart)
    : m_rule(rule)
    , m_seriesStart(seriesStart)
    , m_valid(seriesStart.isValid())
    , m_clock(seriesStart)
{
    if (m_valid) {
        m_startMs = seriesStart.toMSecsSinceEpoch();
        m_startWall = WallClockZone::wallMs(seriesStart);
    }
}

void OccurrenceGenerator::starts(qint64 rangeEndMs, qint64 neededFromMs, Method method, std::vector<qint64> &out) const
{
    out.clear();
    if (!m_valid)
        return;
    if (m_rule.frequency == CompiledRule::Frequency::Single) {
        out.push_back(m_startMs);
        return;
    }
    qint64 skipBefore = kNoLowerBound;
    if (method == Method::SkipAhead && neededFromMs > kNoLowerBound + kSkipMargin)
        skipBefore = std::min(neededFromMs, rangeEndMs) - kSkipMargin;
    // COUNT counts from the series start, not from the span asked for: deliberate.
    const qint64 limit
        = m_rule.count > 0 ? std::min<qint64>(m_rule.count, Recurrence::kMaxOccurrences) : Recurrence::kMaxOccurrences;
    Run run{m_rule, m_clock, m_startMs, m_startWall, rangeEndMs, skipBefore, limit, out};
    switch (m_rule.frequency) {
    case CompiledRule::Frequency::Daily:
        run.daily();
        break;
    case CompiledRule::Frequency::Weekly:
        run.weekly();
        break;
    case CompiledRule::Frequency::Monthly:
        run.monthly(false);
        break;
    case CompiledRule::Frequency::Yearly:
        run.monthly(true);
        break;
    case CompiledRule::Frequency::Single:
        break;
    }
}

QDateTime OccurrenceGenerator::dateTimeAt(qint64 instantMs) const
{
    if (instantMs == m_startMs)
        return m_seriesStart;
    return m_clock.dateTimeAt(instantMs);
}
