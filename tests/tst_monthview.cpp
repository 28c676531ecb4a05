// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/AppState.h"
#include "app/UndoStack.h"
#include "storage/CalendarRepository.h"
#include "storage/Clock.h"
#include "storage/EventRepository.h"
#include "storage/FilterRuleRepository.h"
#include "storage/PreferencesRepository.h"
#include "ui/EventEditor.h"
#include "ui/MonthLayout.h"
#include "ui/MonthView.h"
#include "ui/SpanCache.h"
#include "ui/ThemeManager.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimeZone>

namespace {

const QTimeZone kBerlin("Europe/Berlin");

QDateTime local(const QDate &date, int hour, int minute = 0)
{
    return QDateTime(date, QTime(hour, minute), kBerlin);
}

QDateTime utcMidnight(const QDate &date)
{
    return QDateTime(date, QTime(0, 0), QTimeZone::utc());
}

} // namespace

// The month grid: which days it covers, where events go, and what clicks and drags do.
class TestMonthView : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void gridFor_data();
    void gridFor();
    void coveredDays_data();
    void coveredDays();
    void shiftAllDay_data();
    void shiftAllDay();
    void chipsOverflowIntoMore();
    void cellOrder();
    void clicksOpenDaysAndAskForEvents();
    void dragMovesToAnotherDay();
    void dragMovesAnAllDayEvent();
    void readOnlyEventsStayPut();
    void filterRulesDimAndHide();
    void keyboardMovesTheFocusedDay();
    void firstDayOfWeekFollowsThePreference();

private:
    Event add(const QString &title, const QDateTime &start, const QDateTime &end, const QString &color = {},
              bool allDay = false);
    Event addAllDay(const QString &title, const QDate &first, int days, const QString &color = {});
    void addRule(const QString &title, const QString &action);
    // Shows March 2024, Monday first, once pending changes have reached the cache.
    void showMarch();
    void drag(const QPoint &from, const QPoint &to);
    // Waits until the last change has reached the cache (the repository coalesces its signal).
    void settle();

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<AppState> m_state;
    std::unique_ptr<SpanCache> m_cache;
    std::unique_ptr<EventEditor> m_editor;
    std::unique_ptr<MonthView> m_view;
    bool m_changed = false; // a change has been written that the cache may not have seen yet
};

void TestMonthView::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    // Wednesday 13 March 2024, noon.
    Clock::setFixedNow(local(QDate(2024, 3, 13), 12));
    m_state = std::make_unique<AppState>();
    QVERIFY(m_state->initialize(m_dir->filePath(QStringLiteral("calendar.db"))));
    m_state->preferences()->setValue(QStringLiteral("ui/weekStartDay"), QStringLiteral("1"));
    m_state->theme()->setMode(QStringLiteral("light"));
    m_cache = std::make_unique<SpanCache>(m_state.get());
    m_editor = std::make_unique<EventEditor>(m_state.get());
    m_view = std::make_unique<MonthView>(m_state.get(), m_cache.get(), m_editor.get());
    m_view->resize(980, 720);
}

void TestMonthView::cleanup()
{
    m_view.reset();
    m_editor.reset();
    m_cache.reset();
    m_state.reset();
    Clock::setFixedNow(QDateTime());
}

Event TestMonthView::add(const QString &title, const QDateTime &start, const QDateTime &end, const QString &color,
                         bool allDay)
{
    Event draft;
    draft.calendar_id = AppState::kLocalCalendarId;
    draft.title = title;
    draft.start_time = start;
    draft.end_time = end;
    draft.is_all_day = allDay;
    draft.timezone = allDay ? QString() : QStringLiteral("Europe/Berlin");
    draft.color = color;
    m_changed = true;
    return m_editor->create(draft).value_or(Event());
}

Event TestMonthView::addAllDay(const QString &title, const QDate &first, int days, const QString &color)
{
    return add(title, utcMidnight(first), utcMidnight(first.addDays(days)), color, true);
}

void TestMonthView::addRule(const QString &title, const QString &action)
{
    FilterRule rule;
    rule.id = title + action;
    rule.name = title;
    rule.type = QStringLiteral("pattern");
    rule.conditions = QStringLiteral(R"({"runtimeType":"pattern","titleExact":["%1"]})").arg(title);
    rule.action = action;
    QVERIFY(m_state->filterRules()->insert(rule));
    m_changed = true;
}

void TestMonthView::showMarch()
{
    if (m_changed)
        settle();
    m_view->setMonth(QDate(2024, 3, 13));
    m_view->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_view.get()));
    QTest::qWait(0);
}

void TestMonthView::drag(const QPoint &from, const QPoint &to)
{
    QTest::mousePress(m_view.get(), Qt::LeftButton, Qt::NoModifier, from);
    const int steps = 6;
    for (int i = 1; i <= steps; ++i)
        QTest::mouseMove(m_view.get(), from + (to - from) * i / steps);
    QTest::mouseRelease(m_view.get(), Qt::LeftButton, Qt::NoModifier, to);
}

void TestMonthView::settle()
{
    // Writes announce themselves with a delay; the cache answers the last announcement.
    QSignalSpy invalidated(m_cache.get(), &SpanCache::invalidated);
    QVERIFY(invalidated.wait(2000));
    while (invalidated.wait(250)) { }
    m_changed = false;
}

void TestMonthView::gridFor_data()
{
    QTest::addColumn<QDate>("date");
    QTest::addColumn<int>("firstDayOfWeek");
    QTest::addColumn<QDate>("first");

    // Monday first: a month starting on the first, a middle and the last day of the week.
    QTest::newRow("starts Monday") << QDate(2024, 1, 17) << int(Qt::Monday) << QDate(2024, 1, 1);
    QTest::newRow("starts Sunday") << QDate(2024, 9, 1) << int(Qt::Monday) << QDate(2024, 8, 26);
    // Sunday first.
    QTest::newRow("Sunday first, starts Saturday") << QDate(2024, 6, 1) << int(Qt::Sunday) << QDate(2024, 5, 26);
    QTest::newRow("Saturday first") << QDate(2024, 3, 5) << int(Qt::Saturday) << QDate(2024, 2, 24);
    // A February that fills exactly four weeks.
    QTest::newRow("four-week February") << QDate(2015, 2, 14) << int(Qt::Sunday) << QDate(2015, 2, 1);
    QTest::newRow("year boundary") << QDate(2025, 1, 1) << int(Qt::Monday) << QDate(2024, 12, 30);
}

void TestMonthView::gridFor()
{
    QFETCH(QDate, date);
    QFETCH(int, firstDayOfWeek);
    QFETCH(QDate, first);

    const auto [gridFirst, days] = MonthView::gridFor(date, Qt::DayOfWeek(firstDayOfWeek));
    QCOMPARE(gridFirst, first);
    QCOMPARE(days, 42);
    QCOMPARE(gridFirst.dayOfWeek(), firstDayOfWeek);
    const QDate monthFirst(date.year(), date.month(), 1);
    QVERIFY(gridFirst <= monthFirst);
    QVERIFY(gridFirst.addDays(days - 1) >= monthFirst.addDays(monthFirst.daysInMonth() - 1));
}

void TestMonthView::coveredDays_data()
{
    QTest::addColumn<Event>("event");
    QTest::addColumn<QDate>("first");
    QTest::addColumn<QDate>("last");
    QTest::addColumn<bool>("bar");

    const auto event = [](const QDateTime &start, const QDateTime &end, bool allDay) {
        Event occurrence;
        occurrence.is_all_day = allDay;
        occurrence.start_time = start;
        if (end.isValid())
            occurrence.end_time = end;
        return occurrence;
    };
    const QDate day(2024, 3, 13);
    const QDate next = day.addDays(1);
    const QDateTime morning = local(day, 9, 30);
    QTest::newRow("timed") << event(morning, local(day, 10, 30), false) << day << day << false;
    QTest::newRow("timed until midnight") << event(morning, local(next, 0), false) << day << day << false;
    QTest::newRow("overnight, shorter than a day")
        << event(local(day, 22), local(next, 2), false) << day << next << false;
    QTest::newRow("timed over three dates")
        << event(morning, local(day.addDays(2), 9), false) << day << day.addDays(2) << true;
    QTest::newRow("no end") << event(morning, {}, false) << day << day << false;
    QTest::newRow("all day") << event(utcMidnight(day), utcMidnight(next), true) << day << day << true;
    const QDateTime fourDaysEnd = utcMidnight(day.addDays(4));
    QTest::newRow("four all days") << event(utcMidnight(day), fourDaysEnd, true) << day << day.addDays(3) << true;
    // The same days seen through the event's zone, where midnight UTC is 01:00.
    QTest::newRow("all days shown in their zone")
        << event(utcMidnight(day).toTimeZone(kBerlin), fourDaysEnd.toTimeZone(kBerlin), true) << day << day.addDays(3)
        << true;
    QTest::newRow("all days at local midnights")
        << event(local(day, 0), local(day.addDays(2), 0), true) << day << next << true;
    QTest::newRow("all day without end") << event(utcMidnight(day), {}, true) << day << day << true;
}

void TestMonthView::coveredDays()
{
    QFETCH(Event, event);
    QFETCH(QDate, first);
    QFETCH(QDate, last);
    QFETCH(bool, bar);

    const auto [from, to] = MonthLayout::coveredDays(event);
    QCOMPARE(from, first);
    QCOMPARE(to, last);
    QCOMPARE(MonthLayout::isBar(event), bar);
}

void TestMonthView::shiftAllDay_data()
{
    QTest::addColumn<QDateTime>("time");
    QTest::addColumn<int>("days");
    QTest::addColumn<QDateTime>("expected");

    const QDateTime midnight = utcMidnight(QDate(2024, 3, 28));
    // Summer time starts in Berlin on 31 March; midnights stay midnights.
    QTest::newRow("UTC midnight") << midnight << 5 << utcMidnight(QDate(2024, 4, 2));
    QTest::newRow("UTC midnight seen in Berlin") << midnight.toTimeZone(kBerlin) << 5 << utcMidnight(QDate(2024, 4, 2));
    QTest::newRow("Berlin midnight, backwards") << local(QDate(2024, 4, 2), 0) << -5 << local(QDate(2024, 3, 28), 0);
}

void TestMonthView::shiftAllDay()
{
    QFETCH(QDateTime, time);
    QFETCH(int, days);
    QFETCH(QDateTime, expected);

    const QDateTime shifted = MonthLayout::shiftAllDay(time, days);
    QCOMPARE(shifted, expected);
    QCOMPARE(shifted.timeZone(), time.timeZone());
}

void TestMonthView::chipsOverflowIntoMore()
{
    const QDate day(2024, 3, 12);
    QList<Event> events;
    for (int hour = 8; hour < 16; ++hour)
        events.append(add(QStringLiteral("Meeting %1").arg(hour), local(day, hour), local(day, hour, 45)));
    add(QStringLiteral("Alone"), local(day.addDays(1), 9), local(day.addDays(1), 10));
    showMarch();

    // The earliest events show, one under the other; the rest are counted on the last line.
    int shown = 0;
    int lastTop = -1;
    for (const Event &event : std::as_const(events)) {
        const QRect rect = m_view->eventRect(event.id, day);
        if (!rect.isValid())
            break;
        QVERIFY(rect.top() > lastTop);
        QVERIFY(m_view->dayRect(day).contains(rect));
        lastTop = rect.top();
        ++shown;
    }
    QVERIFY2(shown >= 1 && shown < events.size(), qPrintable(QString::number(shown)));
    for (qsizetype i = shown; i < events.size(); ++i)
        QVERIFY(!m_view->eventRect(events[i].id, day).isValid());
    QCOMPARE(m_view->moreCount(day), int(events.size()) - shown);
    const QRect more = m_view->moreRect(day);
    QVERIFY(more.isValid());
    QVERIFY(more.top() > lastTop);
    QVERIFY(m_view->dayRect(day).contains(more));

    // A day whose events fit has no "+N more".
    QCOMPARE(m_view->moreCount(day.addDays(1)), 0);
    QVERIFY(!m_view->moreRect(day.addDays(1)).isValid());

    // A taller view shows more of them.
    m_view->resize(980, 1400);
    int shownTall = 0;
    for (const Event &event : std::as_const(events))
        shownTall += m_view->eventRect(event.id, day).isValid() ? 1 : 0;
    QVERIFY(shownTall > shown);
    QCOMPARE(m_view->moreCount(day), int(events.size()) - shownTall);
}

void TestMonthView::cellOrder()
{
    const QDate day(2024, 3, 20);
    const Event timedEarly = add(QStringLiteral("Early"), local(day, 7), local(day, 8));
    const Event allDay = addAllDay(QStringLiteral("Holiday"), day, 1);
    const Event timedLate = add(QStringLiteral("Late"), local(day, 18), local(day, 19));
    const Event multiDay = addAllDay(QStringLiteral("Conference"), day, 3);
    showMarch();

    const int multiTop = m_view->eventRect(multiDay.id, day).top();
    const int allDayTop = m_view->eventRect(allDay.id, day).top();
    const int earlyTop = m_view->eventRect(timedEarly.id, day).top();
    const int lateTop = m_view->eventRect(timedLate.id, day).top();
    QVERIFY(multiTop >= 0);
    QVERIFY(multiTop < allDayTop);
    QVERIFY(allDayTop < earlyTop);
    QVERIFY(earlyTop < lateTop);
    // The next day's chips start below the bar that covers it.
    const Event next = add(QStringLiteral("Next"), local(day.addDays(1), 9), local(day.addDays(1), 10));
    settle();
    QVERIFY(m_view->eventRect(next.id, day.addDays(1)).top() > m_view->eventRect(multiDay.id, day.addDays(1)).top());
}

void TestMonthView::clicksOpenDaysAndAskForEvents()
{
    const QDate crowded(2024, 3, 12);
    for (int hour = 8; hour < 18; ++hour)
        add(QStringLiteral("Meeting %1").arg(hour), local(crowded, hour), local(crowded, hour, 30));
    showMarch();
    QSignalSpy opened(m_view.get(), &MonthView::dayOpened);
    QSignalSpy created(m_view.get(), &MonthView::createRequested);
    const auto clickAt = [this](const QPoint &pos) {
        QTest::mouseClick(m_view.get(), Qt::LeftButton, {}, pos);
    };

    // "+N more" and the day numbers open the day, also one of the previous month shown in the grid.
    QVERIFY(m_view->moreRect(crowded).isValid());
    clickAt(m_view->moreRect(crowded).center());
    for (const QDate &day : {QDate(2024, 3, 1), QDate(2024, 2, 27)})
        clickAt(m_view->dayNumberRect(day).center());
    QCOMPARE(opened.size(), 3);
    QCOMPARE(opened.at(0).at(0).toDate(), crowded);
    QCOMPARE(opened.at(1).at(0).toDate(), QDate(2024, 3, 1));
    QCOMPARE(opened.at(2).at(0).toDate(), QDate(2024, 2, 27));

    // A click on empty space does nothing; a double click there asks for an all-day event.
    const QDate day(2024, 3, 21);
    clickAt(m_view->dayRect(day).center() + QPoint(0, 20));
    QCOMPARE(opened.size(), 3);
    QCOMPARE(created.size(), 0);
    QTest::mouseDClick(m_view.get(), Qt::LeftButton, Qt::NoModifier, m_view->dayRect(day).center() + QPoint(0, 20));
    QCOMPARE(created.size(), 1);
    QCOMPARE(created.at(0).at(0).toDateTime(), QDateTime(day, QTime(0, 0)));
    QCOMPARE(created.at(0).at(1).toDateTime(), QDateTime(day.addDays(1), QTime(0, 0)));
    QCOMPARE(created.at(0).at(2).toBool(), true);
    QCOMPARE(opened.size(), 3);
}

void TestMonthView::dragMovesToAnotherDay()
{
    const QDate from(2024, 3, 13);
    const QDate to(2024, 3, 28);
    const Event event = add(QStringLiteral("Review"), local(from, 10, 15), local(from, 11, 45));
    // Across the change to summer time (31 March) the wall-clock time stays.
    const Event later = add(QStringLiteral("Standup"), local(QDate(2024, 3, 29), 9), local(QDate(2024, 3, 29), 9, 15));
    showMarch();
    QSignalSpy activated(m_view.get(), &MonthView::eventActivated);

    drag(m_view->eventRect(event.id, from).center(), m_view->dayRect(to).center());
    settle();
    QCOMPARE(activated.size(), 0); // a drag is not a click
    std::optional<Event> moved = m_state->events()->getById(event.id);
    QVERIFY(moved);
    QCOMPARE(moved->start_time.toTimeZone(kBerlin), local(to, 10, 15));
    QCOMPARE(moved->end_time->toTimeZone(kBerlin), local(to, 11, 45));
    QVERIFY(m_view->eventRect(event.id, to).isValid());
    QVERIFY(!m_view->eventRect(event.id, from).isValid());

    m_state->undoStack()->undo();
    settle();
    moved = m_state->events()->getById(event.id);
    QCOMPARE(moved->start_time.toTimeZone(kBerlin), local(from, 10, 15));
    QVERIFY(m_view->eventRect(event.id, from).isValid());

    const QDate afterChange(2024, 4, 1);
    QVERIFY(m_view->dayRect(afterChange).isValid());
    drag(m_view->eventRect(later.id, QDate(2024, 3, 29)).center(), m_view->dayRect(afterChange).center());
    settle();
    QCOMPARE(m_state->events()->getById(later.id)->start_time.toTimeZone(kBerlin), local(afterChange, 9));

    // A click without moving activates instead.
    const QRect rect = m_view->eventRect(event.id, from);
    QTest::mouseClick(m_view.get(), Qt::LeftButton, Qt::NoModifier, rect.center());
    QCOMPARE(activated.size(), 1);
    QCOMPARE(activated.at(0).at(0).value<Event>().id, event.id);
    QCOMPARE(m_state->selectedEventId(), event.id);
}

void TestMonthView::dragMovesAnAllDayEvent()
{
    const Event trip = addAllDay(QStringLiteral("Trip"), QDate(2024, 3, 5), 2);
    showMarch();
    // Grabbed by its second day and dropped on the 20th: it now ends there.
    const QPoint grab(m_view->dayRect(QDate(2024, 3, 6)).center().x(),
                      m_view->eventRect(trip.id, QDate(2024, 3, 6)).center().y());
    drag(grab, m_view->dayRect(QDate(2024, 3, 20)).center());
    settle();
    const std::optional<Event> moved = m_state->events()->getById(trip.id);
    QVERIFY(moved);
    QVERIFY(moved->is_all_day);
    QCOMPARE(moved->start_time, utcMidnight(QDate(2024, 3, 19)));
    QCOMPARE(*moved->end_time, utcMidnight(QDate(2024, 3, 21)));

    // An all-day event of a zone with summer time, dropped across the change: still whole days.
    Event draft;
    draft.calendar_id = AppState::kLocalCalendarId;
    draft.title = QStringLiteral("Visit");
    draft.is_all_day = true;
    draft.timezone = QStringLiteral("Europe/Berlin");
    draft.start_time = utcMidnight(QDate(2024, 3, 27));
    draft.end_time = utcMidnight(QDate(2024, 3, 28));
    const Event visit = m_editor->create(draft).value_or(Event());
    settle();
    const QDate target(2024, 4, 3);
    drag(m_view->eventRect(visit.id, QDate(2024, 3, 27)).center(), m_view->dayRect(target).center());
    settle();
    const std::optional<Event> visited = m_state->events()->getById(visit.id);
    QCOMPARE(visited->start_time, utcMidnight(target));
    QCOMPARE(*visited->end_time, utcMidnight(target.addDays(1)));
    QVERIFY(m_view->eventRect(visit.id, target).isValid());
    QVERIFY(!m_view->eventRect(visit.id, target.addDays(1)).isValid());
}

void TestMonthView::readOnlyEventsStayPut()
{
    Calendar holidays;
    holidays.id = QStringLiteral("holidays");
    holidays.account_id = AppState::kLocalAccountId;
    holidays.name = QStringLiteral("Holidays");
    holidays.is_read_only = true;
    QVERIFY(m_state->calendars()->insert(holidays));
    Event event;
    event.id = event.uid = QStringLiteral("feast");
    event.calendar_id = holidays.id;
    event.title = QStringLiteral("Feast");
    event.start_time = local(QDate(2024, 3, 14), 12);
    event.end_time = local(QDate(2024, 3, 14), 13);
    QVERIFY(m_state->events()->insert(event));
    m_changed = true;
    showMarch();

    const QRect rect = m_view->eventRect(event.id, QDate(2024, 3, 14));
    QVERIFY(rect.isValid());
    drag(rect.center(), m_view->dayRect(QDate(2024, 3, 22)).center());
    QTest::qWait(0);
    QCOMPARE(m_state->events()->getById(event.id)->start_time, event.start_time);
    QCOMPARE(m_state->undoStack()->count(), 0);
}

void TestMonthView::filterRulesDimAndHide()
{
    addRule(QStringLiteral("Dim me"), QStringLiteral("dim"));
    addRule(QStringLiteral("Secret"), QStringLiteral("hide"));
    const QString red = QStringLiteral("#d50000");
    const Event dimmed = addAllDay(QStringLiteral("Dim me"), QDate(2024, 3, 19), 1, red);
    const Event plain = addAllDay(QStringLiteral("Plain"), QDate(2024, 3, 20), 1, red);
    const QDate day(2024, 3, 12);
    const Event secret = add(QStringLiteral("Secret"), local(day, 9), local(day, 10));
    add(QStringLiteral("Secret"), local(day.addDays(14), 9), local(day.addDays(14), 10));
    QCOMPARE(m_state->filterHiddenCount(), 0);
    showMarch();

    // Dimmed: paler than the same colour at full strength, toward the surface.
    const QImage image = m_view->grab().toImage();
    const auto fill = [&](const Event &event, const QDate &day) {
        const QRect bar = m_view->eventRect(event.id, day);
        return image.pixelColor(bar.left() + 2, bar.center().y());
    };
    const QColor surface = m_state->theme()->colors().surface;
    QCOMPARE(fill(plain, QDate(2024, 3, 20)), QColor(red));
    QVERIFY(fill(dimmed, QDate(2024, 3, 19)).lightness() > QColor(red).lightness());
    QVERIFY(fill(dimmed, QDate(2024, 3, 19)).lightness() < surface.lightness());

    // Hidden: not drawn, but counted, and the count follows the data while the view is on screen.
    QCOMPARE(m_state->filterHiddenCount(), 2);
    QVERIFY(!m_view->eventRect(secret.id, day).isValid());
    add(QStringLiteral("Secret"), local(day.addDays(15), 9), local(day.addDays(15), 10));
    settle();
    QCOMPARE(m_state->filterHiddenCount(), 3);
}

void TestMonthView::keyboardMovesTheFocusedDay()
{
    showMarch();
    m_view->setFocus();
    QSignalSpy opened(m_view.get(), &MonthView::dayOpened);
    QTest::keyClick(m_view.get(), Qt::Key_Right);
    QTest::keyClick(m_view.get(), Qt::Key_Down);
    QTest::keyClick(m_view.get(), Qt::Key_Return);
    QCOMPARE(opened.size(), 1);
    QCOMPARE(opened.takeFirst().at(0).toDate(), QDate(2024, 3, 21));

    // Leaving the month brings the next one.
    QTest::keyClick(m_view.get(), Qt::Key_Down);
    QTest::keyClick(m_view.get(), Qt::Key_Down);
    QCOMPARE(m_state->viewDate(), QDate(2024, 4, 4));
    QCOMPARE(m_view->firstDay(), QDate(2024, 4, 1));
    QTest::keyClick(m_view.get(), Qt::Key_Enter);
    QCOMPARE(opened.takeFirst().at(0).toDate(), QDate(2024, 4, 4));
}

void TestMonthView::firstDayOfWeekFollowsThePreference()
{
    showMarch();
    QCOMPARE(m_view->firstDay(), QDate(2024, 2, 26));
    const QRect monday = m_view->dayRect(QDate(2024, 3, 4));
    m_state->preferences()->setValue(QStringLiteral("ui/weekStartDay"), QStringLiteral("7"));
    QCOMPARE(m_view->firstDay(), QDate(2024, 2, 25));
    QCOMPARE(m_view->dayCount(), 42);
    // Monday moved one column to the right.
    QVERIFY(m_view->dayRect(QDate(2024, 3, 4)).left() > monday.left());
}

QTEST_MAIN(TestMonthView)
#include "tst_monthview.moc"
