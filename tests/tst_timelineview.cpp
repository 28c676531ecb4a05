// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/AppState.h"
#include "app/UndoStack.h"
#include "storage/CalendarRepository.h"
#include "storage/Clock.h"
#include "storage/EventRepository.h"
#include "storage/FilterRuleRepository.h"
#include "storage/PreferencesRepository.h"
#include "ui/AllDayStrip.h"
#include "ui/EventBlockPainter.h"
#include "ui/EventEditor.h"
#include "ui/SpanCache.h"
#include "ui/ThemeManager.h"
#include "ui/TimelineGrid.h"
#include "ui/TimelineHeader.h"
#include "ui/TimelineMath.h"
#include "ui/TimelineView.h"

#include "ScopeQuestionStandIn.h"

#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <QTimeZone>

using TimelineMath::kMinutesPerDay;

namespace {

const QTimeZone kBerlin("Europe/Berlin");
// The week on screen: Monday 8 to Sunday 14 January 2024; "now" is Wednesday 10
// at 10:30.
const QDate kMonday(2024, 1, 8);

QDateTime at(int day, int hour, int minute = 0)
{
    return QDateTime(QDate(2024, 1, day), QTime(hour, minute), kBerlin);
}

void sendMouse(QWidget *widget, QEvent::Type type, const QPoint &pos, Qt::MouseButton button, Qt::MouseButtons buttons)
{
    QMouseEvent event(type, QPointF(pos), QPointF(widget->mapToGlobal(pos)), button, buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

// Press, move in a few steps, release: what a hand does.
void drag(QWidget *widget, const QPoint &from, const QPoint &to)
{
    sendMouse(widget, QEvent::MouseButtonPress, from, Qt::LeftButton, Qt::LeftButton);
    for (int step = 1; step <= 4; ++step)
        sendMouse(widget, QEvent::MouseMove, from + (to - from) * step / 4, Qt::NoButton, Qt::LeftButton);
    sendMouse(widget, QEvent::MouseButtonRelease, to, Qt::LeftButton, Qt::NoButton);
}

void click(QWidget *widget, const QPoint &pos)
{
    sendMouse(widget, QEvent::MouseButtonPress, pos, Qt::LeftButton, Qt::LeftButton);
    sendMouse(widget, QEvent::MouseButtonRelease, pos, Qt::LeftButton, Qt::NoButton);
}

void doubleClick(QWidget *widget, const QPoint &pos)
{
    click(widget, pos);
    sendMouse(widget, QEvent::MouseButtonDblClick, pos, Qt::LeftButton, Qt::LeftButton);
    sendMouse(widget, QEvent::MouseButtonRelease, pos, Qt::LeftButton, Qt::NoButton);
}

QDateTime utcDay(int day)
{
    return QDateTime(QDate(2024, 1, day), QTime(0, 0), QTimeZone::utc());
}

} // namespace

// The day/week view as drawn and as handled: layout of events, drags through
// the editor, creation gestures, filters, zoom and labels.
class TestTimelineView : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

    void midnightCrossingDrawnInBothDays();
    void crowdedStripFoldsIntoMore();
    void gestureMovesOrResizes_data();
    void gestureMovesOrResizes();
    void dragThatChangesNothing_data();
    void dragThatChangesNothing();
    void dragSurvivesNewData();
    void seriesClickSelectsAndDragAsksForScope();
    void allDayBarMovesByDays();
    void gestureRequestsNewEvent_data();
    void gestureRequestsNewEvent();
    void dimmedEventsDrawnDimmed();
    void hiddenCountReachesAppState();
    void hourLabelsFollowTimeFormat();
    void ctrlWheelZoomsKeepingTimeUnderPointer();
    void currentTimeLineFollowsClock();
    void headerClickActivatesDay();
    void keyboardWalksThroughEvents();

private:
    Event add(const QString &title, const QDateTime &start, const QDateTime &end, bool allDay = false,
              const QString &rule = QString());
    // Lets the span cache pick up changes and the view lay them out again.
    void settle();
    QList<TimelineView::DrawnItem> itemsOf(const QString &title) const;
    QPoint gridPoint(int day, int minute) const;
    QPoint toGrid(const QPoint &viewPoint) const;
    TimelineHeader *header() const { return m_view->findChild<TimelineHeader *>(QStringLiteral("timelineHeader")); }
    AllDayStrip *strip() const { return m_view->findChild<AllDayStrip *>(QStringLiteral("allDayStrip")); }
    // Adds a rule of `action` for titles containing `word`.
    void addRule(const QString &word, const QString &action);

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<AppState> m_state;
    std::unique_ptr<SpanCache> m_cache;
    std::unique_ptr<EventEditor> m_editor;
    std::unique_ptr<TimelineView> m_view;
    TimelineGrid *m_grid = nullptr;
};

void TestTimelineView::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    Clock::setFixedNow(at(10, 10, 30));
    ScopeQuestionStandIn::answer() = ScopeQuestionStandIn::Answer();
    m_state = std::make_unique<AppState>();
    QVERIFY(m_state->initialize(m_dir->filePath(QStringLiteral("calendar.db"))));
    m_state->theme()->setMode(QStringLiteral("light"));
    m_cache = std::make_unique<SpanCache>(m_state.get());
    m_editor = std::make_unique<EventEditor>(m_state.get());
    m_view = std::make_unique<TimelineView>(m_state.get(), m_cache.get(), m_editor.get());
    m_view->resize(1000, 800);
    m_view->setDays(kMonday, 7);
    m_view->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_view.get()));
    m_grid = m_view->findChild<TimelineGrid *>(QStringLiteral("timelineGrid"));
    QVERIFY(m_grid);
}

void TestTimelineView::cleanup()
{
    m_view.reset();
    m_editor.reset();
    m_cache.reset();
    m_state.reset();
    m_dir.reset();
    Clock::setFixedNow(QDateTime());
}

Event TestTimelineView::add(const QString &title, const QDateTime &start, const QDateTime &end, bool allDay,
                            const QString &rule)
{
    Event draft;
    draft.calendar_id = AppState::kLocalCalendarId;
    draft.title = title;
    draft.start_time = start;
    draft.end_time = end;
    draft.is_all_day = allDay;
    draft.timezone = allDay ? QStringLiteral("UTC") : QStringLiteral("Europe/Berlin");
    draft.recurrence_rule = rule;
    return m_editor->create(draft).value_or(Event());
}

void TestTimelineView::settle()
{
    QSignalSpy invalidated(m_cache.get(), &SpanCache::invalidated);
    QVERIFY(invalidated.wait(1000));
    QCoreApplication::processEvents();
}

QList<TimelineView::DrawnItem> TestTimelineView::itemsOf(const QString &title) const
{
    QList<TimelineView::DrawnItem> found;
    for (const TimelineView::DrawnItem &item : m_view->drawnItems()) {
        if (item.occurrence.title == title)
            found.append(item);
    }
    return found;
}

QPoint TestTimelineView::toGrid(const QPoint &viewPoint) const
{
    return m_grid->mapFrom(m_view.get(), viewPoint);
}

QPoint TestTimelineView::gridPoint(int day, int minute) const
{
    const int x = toGrid(header()->mapTo(m_view.get(), header()->dayRect(day).center())).x();
    return {x, TimelineMath::yAt(minute, m_state->hourHeight()) + 1};
}

void TestTimelineView::addRule(const QString &word, const QString &action)
{
    FilterRule rule;
    rule.id = word + action;
    rule.name = word;
    rule.conditions = QStringLiteral(R"({"runtimeType":"pattern","titleContains":["%1"]})").arg(word);
    rule.action = action;
    QVERIFY(m_state->filterRules()->insert(rule));
}

void TestTimelineView::midnightCrossingDrawnInBothDays()
{
    add(QStringLiteral("Red-eye"), at(9, 22), at(10, 2));
    settle();
    const QList<TimelineView::DrawnItem> pieces = itemsOf(QStringLiteral("Red-eye"));
    QCOMPARE(pieces.size(), 2);
    const QRect tuesday = pieces.at(0).rect;
    const QRect wednesday = pieces.at(1).rect;
    QVERIFY(header()->dayRect(1).contains(QPoint(tuesday.center().x(), 5)));
    QVERIFY(header()->dayRect(2).contains(QPoint(wednesday.center().x(), 5)));
    QCOMPARE(toGrid(wednesday.topLeft()).y(), 1);
    // No bar in the all-day strip for it: it lasts four hours.
    QVERIFY(!pieces.at(0).allDay && !pieces.at(1).allDay);
}

void TestTimelineView::crowdedStripFoldsIntoMore()
{
    for (int i = 0; i < 5; ++i)
        add(QStringLiteral("All day %1").arg(i), utcDay(8), utcDay(9), true);
    add(QStringLiteral("Tuesday"), utcDay(9), utcDay(10), true);
    settle();
    AllDayStrip *strip = this->strip();
    QVERIFY(!strip->isExpanded());
    QCOMPARE(strip->visibleLanes(), AllDayStrip::kCollapsedLanes - 1);
    QCOMPARE(strip->overflowCount(0), 5 - strip->visibleLanes());
    QCOMPARE(strip->overflowCount(1), 0);
    const auto bars = [this] {
        const QList<TimelineView::DrawnItem> items = m_view->drawnItems();
        return int(std::count_if(items.cbegin(), items.cend(), [](const auto &item) { return item.allDay; }));
    };
    QCOMPARE(bars(), strip->visibleLanes() + 1);
    const int collapsedHeight = strip->height();
    click(strip, strip->overflowRect(0).center());
    QVERIFY(strip->isExpanded());
    QVERIFY(strip->height() > collapsedHeight);
    QCOMPARE(bars(), 6);
}

void TestTimelineView::gestureMovesOrResizes_data()
{
    QTest::addColumn<bool>("resize");
    QTest::addColumn<int>("toDay"); // column index the pointer ends in
    QTest::addColumn<int>("pointerMinutes"); // how far the pointer moves vertically
    QTest::addColumn<QDateTime>("expectedStart");
    QTest::addColumn<QDateTime>("expectedEnd");
    QTest::newRow("move to Thursday, earlier") << false << 3 << -95 << at(11, 8, 30) << at(11, 9, 30);
    QTest::newRow("resize longer") << true << 1 << 44 << at(9, 10) << at(9, 11, 45);
    QTest::newRow("resize to the minimum") << true << 1 << -120 << at(9, 10) << at(9, 10, 15);
}

void TestTimelineView::gestureMovesOrResizes()
{
    QFETCH(bool, resize);
    QFETCH(int, toDay);
    QFETCH(int, pointerMinutes);
    const Event created = add(QStringLiteral("Planning"), at(9, 10), at(9, 11));
    settle();
    const QList<TimelineView::DrawnItem> items = itemsOf(QStringLiteral("Planning"));
    QCOMPARE(items.size(), 1);
    const QRect box = items.first().rect;
    const QPoint from = toGrid(resize ? QPoint(box.center().x(), box.bottom() - 2) : box.center());
    const QPoint to(gridPoint(toDay, 0).x(), from.y() + TimelineMath::yAt(pointerMinutes, m_state->hourHeight()));
    QSignalSpy activated(m_view.get(), &TimelineView::eventActivated);
    drag(m_grid, from, to);
    QCOMPARE(activated.count(), 0);

    // Through the editor: stored, marked for sync, and undoable.
    const Event stored = m_state->events()->getById(created.id).value();
    QTEST(stored.start_time, "expectedStart");
    QTEST(*stored.end_time, "expectedEnd");
    QCOMPARE(stored.sync_status, QStringLiteral("pending"));
    QCOMPARE(m_state->undoStack()->count(), 1);
}

void TestTimelineView::dragThatChangesNothing_data()
{
    QTest::addColumn<bool>("readOnly");
    QTest::addColumn<bool>("escape"); // pressed before the button is released
    QTest::addColumn<int>("pixels"); // how far the pointer moves down
    QTest::addColumn<bool>("opens");
    QTest::newRow("a short drag is a click") << false << false << 2 << true;
    QTest::newRow("Escape cancels the drag") << false << true << 120 << false;
    QTest::newRow("a read-only event does not move, but opens") << true << false << 120 << true;
}

void TestTimelineView::dragThatChangesNothing()
{
    QFETCH(bool, readOnly);
    QFETCH(bool, escape);
    QFETCH(int, pixels);
    QFETCH(bool, opens);
    if (readOnly) {
        std::optional<Calendar> calendar = m_state->calendars()->getById(AppState::kLocalCalendarId);
        calendar->is_read_only = true;
        QVERIFY(m_state->calendars()->update(*calendar));
    }
    const Event created = add(QStringLiteral("Call"), at(10, 14), at(10, 15));
    settle();
    const QRect box = itemsOf(QStringLiteral("Call")).first().rect;
    const QPoint from = toGrid(box.center());
    const QPoint to = from + QPoint(1, pixels);
    QSignalSpy activated(m_view.get(), &TimelineView::eventActivated);
    sendMouse(m_grid, QEvent::MouseButtonPress, from, Qt::LeftButton, Qt::LeftButton);
    for (int step = 1; step <= 4; ++step)
        sendMouse(m_grid, QEvent::MouseMove, from + (to - from) * step / 4, Qt::NoButton, Qt::LeftButton);
    if (escape) {
        QVERIFY(m_grid->isDragging());
        QTest::keyClick(m_grid, Qt::Key_Escape);
        QVERIFY(!m_grid->isDragging());
    }
    sendMouse(m_grid, QEvent::MouseButtonRelease, to, Qt::LeftButton, Qt::NoButton);
    QCOMPARE(activated.count(), opens ? 1 : 0);
    if (opens) {
        QCOMPARE(activated.first().first().value<Event>().id, created.id);
        const QRect global = activated.first().at(1).toRect();
        QCOMPARE(global, QRect(m_view->mapToGlobal(box.topLeft()), box.size()));
    }
    QCOMPARE(m_state->events()->getById(created.id)->start_time, at(10, 14));
    QCOMPARE(m_state->undoStack()->count(), 0);
}

void TestTimelineView::dragSurvivesNewData()
{
    const Event call = add(QStringLiteral("Call"), at(10, 14), at(10, 15));
    settle();
    const QPoint from = toGrid(itemsOf(QStringLiteral("Call")).first().rect.center());
    const QPoint to = from + QPoint(0, m_state->hourHeight());
    sendMouse(m_grid, QEvent::MouseButtonPress, from, Qt::LeftButton, Qt::LeftButton);
    sendMouse(m_grid, QEvent::MouseMove, to, Qt::NoButton, Qt::LeftButton);
    QVERIFY(m_grid->isDragging());
    // A sync lands mid-drag: an earlier event now comes first in the layout.
    const Event early = add(QStringLiteral("Early"), at(10, 8), at(10, 9));
    settle();
    QVERIFY(m_grid->isDragging());
    sendMouse(m_grid, QEvent::MouseButtonRelease, to, Qt::LeftButton, Qt::NoButton);
    QCOMPARE(m_state->events()->getById(call.id)->start_time, at(10, 15));
    QCOMPARE(m_state->events()->getById(early.id)->start_time, at(10, 8));
}

void TestTimelineView::seriesClickSelectsAndDragAsksForScope()
{
    const Event master = add(QStringLiteral("Standup"), at(8, 9), at(8, 9, 30), false, QStringLiteral("FREQ=DAILY"));
    settle();
    QList<TimelineView::DrawnItem> items = itemsOf(QStringLiteral("Standup"));
    QCOMPARE(items.size(), 7);
    const QPoint from = toGrid(items.at(2).rect.center()); // Wednesday

    // A click selects; only the occurrence clicked carries the ring, not the whole series.
    click(m_grid, from);
    QCOMPARE(m_state->selectedEventId(), master.id);
    const QList<TimelineView::DrawnItem> drawn = m_view->drawnItems();
    QCOMPARE(int(std::count_if(drawn.cbegin(), drawn.cend(), [](const auto &item) { return item.selected; })), 1);
    QVERIFY(itemsOf(QStringLiteral("Standup")).at(2).selected);
    click(m_grid, gridPoint(4, 15 * 60));
    QVERIFY(m_state->selectedEventId().isEmpty());

    const QPoint to = from + QPoint(0, m_state->hourHeight());

    ScopeQuestionStandIn::answer().confirm = false;
    drag(m_grid, from, to);
    QCOMPARE(ScopeQuestionStandIn::answer().asked, QStringList{QStringLiteral("Move repeating event")});
    QCOMPARE(m_state->undoStack()->count(), 0);

    ScopeQuestionStandIn::answer().confirm = true;
    ScopeQuestionStandIn::answer().scope = EventEditor::Scope::ThisEvent;
    drag(m_grid, from, to);
    QCOMPARE(m_state->undoStack()->count(), 1);
    settle();
    items = itemsOf(QStringLiteral("Standup"));
    QCOMPARE(items.size(), 7);
    for (const TimelineView::DrawnItem &item : std::as_const(items)) {
        const QTime time = item.occurrence.start_time.toLocalTime().time();
        QCOMPARE(time,
                 item.occurrence.start_time.toLocalTime().date() == QDate(2024, 1, 10) ? QTime(10, 0) : QTime(9, 0));
    }
    QCOMPARE(m_state->events()->getById(master.id)->start_time, at(8, 9));
}

void TestTimelineView::allDayBarMovesByDays()
{
    const Event created = add(QStringLiteral("Offsite"), utcDay(8), utcDay(10), true);
    settle();
    AllDayStrip *strip = this->strip();
    const QRect box = itemsOf(QStringLiteral("Offsite")).first().rect;
    const QPoint from = strip->mapFrom(m_view.get(), QPoint(header()->dayRect(0).center().x(), box.center().y()));
    const QPoint to(header()->dayRect(3).center().x(), from.y());
    drag(strip, from, to);
    const std::optional<Event> stored = m_state->events()->getById(created.id);
    QCOMPARE(stored->start_time, utcDay(11));
    QCOMPARE(*stored->end_time, utcDay(13));
    QCOMPARE(m_state->undoStack()->count(), 1);
}

void TestTimelineView::gestureRequestsNewEvent_data()
{
    QTest::addColumn<bool>("allDay"); // a double click in the all-day strip
    QTest::addColumn<int>("fromMinute"); // a double click when equal to toMinute, else a sweep
    QTest::addColumn<int>("toMinute");
    QTest::addColumn<QDateTime>("start");
    QTest::addColumn<QDateTime>("end");
    const QDate friday(2024, 1, 12);
    QTest::newRow("double click: an hour, snapped down")
        << false << 14 * 60 + 40 << 14 * 60 + 40 << QDateTime(friday, QTime(14, 30))
        << QDateTime(friday, QTime(15, 30));
    QTest::newRow("double click late: ends at midnight")
        << false << 23 * 60 + 50 << 23 * 60 + 50 << QDateTime(friday, QTime(23, 45))
        << QDateTime(friday.addDays(1), QTime(0, 45));
    QTest::newRow("sweep up") << false << 16 * 60 + 20 << 14 * 60 + 50 << QDateTime(friday, QTime(14, 45))
                              << QDateTime(friday, QTime(16, 30));
    QTest::newRow("all-day strip") << true << 0 << 0 << friday.startOfDay() << friday.addDays(1).startOfDay();
}

void TestTimelineView::gestureRequestsNewEvent()
{
    QFETCH(bool, allDay);
    QFETCH(int, fromMinute);
    QFETCH(int, toMinute);
    QSignalSpy requested(m_view.get(), &TimelineView::createRequested);
    if (allDay) {
        doubleClick(strip(), QPoint(header()->dayRect(4).center().x(), strip()->height() / 2));
    } else if (fromMinute == toMinute) {
        doubleClick(m_grid, gridPoint(4, fromMinute));
    } else {
        // Sweeping past the column border keeps the day it started on.
        drag(m_grid, gridPoint(4, fromMinute), QPoint(gridPoint(5, 0).x(), gridPoint(4, toMinute).y()));
    }
    QCOMPARE(requested.count(), 1);
    QTEST(requested.first().at(0).toDateTime(), "start");
    QTEST(requested.first().at(1).toDateTime(), "end");
    QCOMPARE(requested.first().at(2).toBool(), allDay);
}

void TestTimelineView::dimmedEventsDrawnDimmed()
{
    addRule(QStringLiteral("Lunch"), QStringLiteral("dim"));
    add(QStringLiteral("Lunch"), at(11, 12), at(11, 13));
    add(QStringLiteral("Workshop"), at(12, 12), at(12, 13));
    settle();
    const TimelineView::DrawnItem lunch = itemsOf(QStringLiteral("Lunch")).first();
    const TimelineView::DrawnItem workshop = itemsOf(QStringLiteral("Workshop")).first();
    QVERIFY(lunch.dimmed);
    QVERIFY(!workshop.dimmed);
}

void TestTimelineView::hiddenCountReachesAppState()
{
    addRule(QStringLiteral("Secret"), QStringLiteral("hide"));
    add(QStringLiteral("Secret one"), at(9, 12), at(9, 13));
    add(QStringLiteral("Secret two"), at(10, 12), at(10, 13));
    add(QStringLiteral("Secret next week"), at(16, 12), at(16, 13));
    add(QStringLiteral("Public"), at(10, 15), at(10, 16));
    settle();
    QCOMPARE(m_state->filterHiddenCount(), 2);
    QVERIFY(itemsOf(QStringLiteral("Secret one")).isEmpty());
    QCOMPARE(itemsOf(QStringLiteral("Public")).size(), 1);
    m_view->setDays(kMonday.addDays(7), 7);
    QCOMPARE(m_state->filterHiddenCount(), 1);
    // A hidden view leaves the count to the view on screen.
    m_view->hide();
    m_view->setDays(kMonday, 7);
    QCOMPARE(m_state->filterHiddenCount(), 1);
    m_view->show();
    QCOMPARE(m_state->filterHiddenCount(), 2);
}

void TestTimelineView::hourLabelsFollowTimeFormat()
{
    QVERIFY(m_state->preferences()->setValue(QStringLiteral("ui/timeFormat"), QStringLiteral("24")));
    QCOMPARE(m_grid->hourLabel(13), QStringLiteral("13:00"));
    QVERIFY(m_state->preferences()->remove(QStringLiteral("ui/timeFormat"))); // unset is 12-hour
    QCOMPARE(m_grid->hourLabel(23), QStringLiteral("11 PM"));
}

void TestTimelineView::ctrlWheelZoomsKeepingTimeUnderPointer()
{
    QScrollBar *bar = m_view->findChild<QScrollArea *>()->verticalScrollBar();
    m_view->scrollToTime(QTime(8, 0));
    const int before = m_state->hourHeight();
    QCOMPARE(before, AppState::kMinHourHeight);
    const QPoint pointer = gridPoint(2, 11 * 60);
    const double minuteBefore = TimelineMath::minuteAt(pointer.y(), before);
    const int viewportY = pointer.y() - bar->value();
    const auto turn = [&](int delta, Qt::KeyboardModifiers modifiers) {
        QWheelEvent wheel(QPointF(pointer), QPointF(m_grid->mapToGlobal(pointer)), QPoint(), QPoint(0, delta),
                          Qt::NoButton, modifiers, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(m_grid, &wheel);
    };
    QSignalSpy changed(m_state.get(), &AppState::hourHeightChanged);
    turn(240, Qt::ControlModifier);
    QCOMPARE(changed.count(), 1);
    const int after = m_state->hourHeight();
    QVERIFY(after > before);
    QCOMPARE(m_grid->height(), 24 * after + 1);
    const double minuteAfter = TimelineMath::minuteAt(bar->value() + viewportY, after);
    QVERIFY2(std::abs(minuteAfter - minuteBefore) < 1.5,
             qPrintable(QStringLiteral("%1 vs %2").arg(minuteAfter).arg(minuteBefore)));

    // Without Ctrl the wheel scrolls and leaves the zoom alone; zooming out stops
    // at the minimum.
    turn(-120, Qt::NoModifier);
    QCOMPARE(m_state->hourHeight(), after);
    for (int i = 0; i < 10; ++i)
        turn(-240, Qt::ControlModifier);
    QCOMPARE(m_state->hourHeight(), AppState::kMinHourHeight);
}

void TestTimelineView::currentTimeLineFollowsClock()
{
    const int hour = m_state->hourHeight();
    QCOMPARE(m_grid->nowLineY(), TimelineMath::yAt(10 * 60 + 30, hour));
    Clock::setFixedNow(at(10, 15, 45));
    QCOMPARE(m_grid->nowLineY(), TimelineMath::yAt(15 * 60 + 45, hour));
    m_view->setDays(kMonday.addDays(7), 7);
    QCOMPARE(m_grid->nowLineY(), -1);
}

void TestTimelineView::headerClickActivatesDay()
{
    QSignalSpy activated(m_view.get(), &TimelineView::dayActivated);
    click(header(), header()->dayRect(4).center());
    QCOMPARE(activated.count(), 1);
    QCOMPARE(activated.first().first().toDate(), QDate(2024, 1, 12));
}

void TestTimelineView::keyboardWalksThroughEvents()
{
    const Event holiday = add(QStringLiteral("Holiday"), utcDay(8), utcDay(9), true);
    const Event design = add(QStringLiteral("Design"), at(9, 10), at(9, 11));
    const Event review = add(QStringLiteral("Review"), at(10, 20), at(10, 21));
    settle();
    m_view->scrollToTime(QTime(8, 0));
    m_grid->setFocus();
    // All-day bars first, then the timed events in the order of the days.
    QTest::keyClick(m_grid, Qt::Key_Tab);
    QCOMPARE(m_state->selectedEventId(), holiday.id);
    QTest::keyClick(m_grid, Qt::Key_Tab);
    QCOMPARE(m_state->selectedEventId(), design.id);
    QScrollBar *bar = m_view->findChild<QScrollArea *>()->verticalScrollBar();
    const int before = bar->value();
    QTest::keyClick(m_grid, Qt::Key_Tab);
    QCOMPARE(m_state->selectedEventId(), review.id);
    QVERIFY(bar->value() > before); // scrolled to bring 20:00 into view
    QTest::keyClick(m_grid, Qt::Key_Backtab);
    QCOMPARE(m_state->selectedEventId(), design.id);

    QSignalSpy activated(m_view.get(), &TimelineView::eventActivated);
    QTest::keyClick(m_grid, Qt::Key_Return);
    QCOMPARE(activated.count(), 1);
    QCOMPARE(activated.first().first().value<Event>().id, design.id);

    const int top = bar->value();
    QTest::keyClick(m_grid, Qt::Key_Down);
    QCOMPARE(bar->value(), top + m_state->hourHeight() / 2);
    QTest::keyClick(m_grid, Qt::Key_Up);
    QCOMPARE(bar->value(), top);
}

QTEST_MAIN(TestTimelineView)
#include "tst_timelineview.moc"
