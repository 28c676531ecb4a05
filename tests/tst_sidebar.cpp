// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/AppState.h"
#include "storage/AccountRepository.h"
#include "storage/CalendarRepository.h"
#include "storage/Clock.h"
#include "storage/EventRepository.h"
#include "storage/PreferencesRepository.h"
#include "storage/SampleData.h"
#include "storage/ViewRepository.h"
#include "ui/CalendarList.h"
#include "ui/MiniMonth.h"
#include "ui/Sidebar.h"
#include "ui/SpanCache.h"
#include "ui/ThemeManager.h"
#include "ui/ViewList.h"

#include <QTemporaryDir>
#include <QTest>
#include <QTimeZone>
#include <QToolButton>

namespace {

const QTimeZone kBerlin("Europe/Berlin");

QDateTime local(const QDate &date, int hour)
{
    return QDateTime(date, QTime(hour, 0), kBerlin);
}

} // namespace

// The sidebar: the mini month, the saved views and the calendar toggles.
class TestSidebar : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void weekNumbers_data();
    void weekNumbers();
    void weekNumberColumnFollowsThePreference();
    void clickingADaySetsTheDate();
    void followsTheDateOnScreen();
    void visibleRange_data();
    void visibleRange();
    void dotsMarkDaysWithEvents();
    void calendarsAreGroupedByAccount();
    void toggleWritesVisibility();
    void clickingAViewMakesItActive();

private:
    void insertEvent(const QString &id, const QString &calendarId, const QDateTime &start);

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<AppState> m_state;
    std::unique_ptr<SpanCache> m_cache;
    std::unique_ptr<Sidebar> m_sidebar;
    MiniMonth *m_mini = nullptr;
};

void TestSidebar::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    // Wednesday 13 March 2024.
    Clock::setFixedNow(local(QDate(2024, 3, 13), 12));
    m_state = std::make_unique<AppState>();
    QVERIFY(m_state->initialize(m_dir->filePath(QStringLiteral("calendar.db"))));
    m_state->preferences()->setValue(QStringLiteral("ui/weekStartDay"), QStringLiteral("1"));
    m_state->theme()->setMode(QStringLiteral("light"));
    m_cache = std::make_unique<SpanCache>(m_state.get());
    m_sidebar = std::make_unique<Sidebar>(m_state.get(), m_cache.get());
    m_sidebar->resize(260, 900);
    m_sidebar->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_sidebar.get()));
    m_mini = m_sidebar->miniMonth();
    QVERIFY(m_mini);
}

void TestSidebar::cleanup()
{
    m_sidebar.reset();
    m_cache.reset();
    m_state.reset();
    Clock::setFixedNow(QDateTime());
}

void TestSidebar::insertEvent(const QString &id, const QString &calendarId, const QDateTime &start)
{
    Event event;
    event.id = event.uid = id;
    event.calendar_id = calendarId;
    event.title = id;
    event.start_time = start;
    event.end_time = start.addSecs(3600);
    QVERIFY(m_state->events()->insert(event));
}

void TestSidebar::weekNumbers_data()
{
    QTest::addColumn<QDate>("month");
    QTest::addColumn<int>("firstDayOfWeek");
    QTest::addColumn<QList<int>>("numbers");

    QTest::newRow("January 2024") << QDate(2024, 1, 1) << 1 << QList<int>{1, 2, 3, 4, 5, 6};
    // 2020 has 53 ISO weeks; its last one reaches into January 2021.
    QTest::newRow("January 2021, Monday first") << QDate(2021, 1, 1) << 1 << QList<int>{53, 1, 2, 3, 4, 5};
    // 30 December 2024 belongs to week 1 of 2025.
    QTest::newRow("December 2024") << QDate(2024, 12, 1) << 1 << QList<int>{48, 49, 50, 51, 52, 1};
    // A row from Sunday 29 December 2024: most of it is in week 1.
    QTest::newRow("December 2024, Sunday first") << QDate(2024, 12, 1) << 7 << QList<int>{49, 50, 51, 52, 1, 2};
    // A row from Wednesday 30 December 2020 has five days of week 53 and two of week 1.
    QTest::newRow("January 2021, Wednesday first") << QDate(2021, 1, 1) << 3 << QList<int>{53, 1, 2, 3, 4, 5};
}

void TestSidebar::weekNumbers()
{
    QFETCH(QDate, month);
    QFETCH(int, firstDayOfWeek);
    QFETCH(QList<int>, numbers);

    m_state->preferences()->setValue(QStringLiteral("ui/weekStartDay"), QString::number(firstDayOfWeek));
    m_state->preferences()->setBool(QStringLiteral("ui/showWeekNumbers"), true);
    m_mini->showMonth(month);
    QCOMPARE(m_mini->firstDay().dayOfWeek(), firstDayOfWeek);
    QCOMPARE(m_mini->weekNumbers(), numbers);
}

void TestSidebar::weekNumberColumnFollowsThePreference()
{
    const QDate day(2024, 3, 13);
    QVERIFY(m_mini->weekNumbers().isEmpty());
    m_state->preferences()->setBool(QStringLiteral("ui/showWeekNumbers"), true);
    QCOMPARE(m_mini->weekNumbers().size(), 6);
    QCOMPARE(m_mini->weekNumbers().at(2), 11); // 11–17 March
    m_state->preferences()->setBool(QStringLiteral("ui/showWeekNumbers"), false);
    QVERIFY(m_mini->weekNumbers().isEmpty());
}

void TestSidebar::clickingADaySetsTheDate()
{
    QCOMPARE(m_mini->shownMonth(), QDate(2024, 3, 1));
    QTest::mouseClick(m_mini, Qt::LeftButton, Qt::NoModifier, m_mini->dayRect(QDate(2024, 3, 21)).center());
    QCOMPARE(m_state->viewDate(), QDate(2024, 3, 21));
    // A day of the next month shown in the grid: the mini month turns to it.
    QTest::mouseClick(m_mini, Qt::LeftButton, Qt::NoModifier, m_mini->dayRect(QDate(2024, 4, 2)).center());
    QCOMPARE(m_state->viewDate(), QDate(2024, 4, 2));
    QCOMPARE(m_mini->shownMonth(), QDate(2024, 4, 1));
    // A click on the title is not a day.
    QTest::mouseClick(m_mini, Qt::LeftButton, Qt::NoModifier, QPoint(20, 12));
    QCOMPARE(m_state->viewDate(), QDate(2024, 4, 2));
}

void TestSidebar::followsTheDateOnScreen()
{
    m_state->setViewDate(QDate(2024, 7, 4));
    QCOMPARE(m_mini->shownMonth(), QDate(2024, 7, 1));
    auto *next = m_mini->findChild<QToolButton *>(QStringLiteral("MiniMonthNext"));
    auto *previous = m_mini->findChild<QToolButton *>(QStringLiteral("MiniMonthPrevious"));
    QVERIFY(next && previous);
    QTest::mouseClick(next, Qt::LeftButton);
    QTest::mouseClick(next, Qt::LeftButton);
    QCOMPARE(m_mini->shownMonth(), QDate(2024, 9, 1));
    QTest::mouseClick(previous, Qt::LeftButton);
    QCOMPARE(m_mini->shownMonth(), QDate(2024, 8, 1));
    QCOMPARE(m_state->viewDate(), QDate(2024, 7, 4)); // browsing does not move the main view
}

void TestSidebar::visibleRange_data()
{
    QTest::addColumn<QString>("mode");
    QTest::addColumn<int>("horizon");
    QTest::addColumn<int>("firstDayOfWeek");
    QTest::addColumn<QDate>("from");
    QTest::addColumn<QDate>("to");

    // For Wednesday 13 March 2024.
    QTest::newRow("day") << "day" << 7 << 1 << QDate(2024, 3, 13) << QDate(2024, 3, 13);
    QTest::newRow("week, Monday first") << "week" << 7 << 1 << QDate(2024, 3, 11) << QDate(2024, 3, 17);
    QTest::newRow("week, Sunday first") << "week" << 7 << 7 << QDate(2024, 3, 10) << QDate(2024, 3, 16);
    QTest::newRow("two weeks") << "week" << 14 << 1 << QDate(2024, 3, 13) << QDate(2024, 3, 26);
    QTest::newRow("month") << "month" << 7 << 1 << QDate(2024, 3, 1) << QDate(2024, 3, 31);
}

void TestSidebar::visibleRange()
{
    QFETCH(QString, mode);
    QFETCH(int, horizon);
    QFETCH(int, firstDayOfWeek);
    QFETCH(QDate, from);
    QFETCH(QDate, to);

    const auto range = MiniMonth::visibleRange(mode, QDate(2024, 3, 13), horizon, Qt::DayOfWeek(firstDayOfWeek));
    QCOMPARE(range.first, from);
    QCOMPARE(range.second, to);

    m_state->preferences()->setValue(QStringLiteral("ui/weekStartDay"), QString::number(firstDayOfWeek));
    m_state->setViewMode(mode);
    m_state->setWeekHorizon(horizon);
    m_state->setViewDate(QDate(2024, 3, 13));
    QCOMPARE(m_mini->highlightedRange(), range);
}

void TestSidebar::dotsMarkDaysWithEvents()
{
    insertEvent(QStringLiteral("dentist"), AppState::kLocalCalendarId, local(QDate(2024, 3, 20), 9));
    Event trip;
    trip.id = trip.uid = QStringLiteral("trip");
    trip.calendar_id = AppState::kLocalCalendarId;
    trip.title = QStringLiteral("Trip");
    trip.is_all_day = true;
    trip.start_time = QDateTime(QDate(2024, 3, 28), QTime(0, 0), QTimeZone::utc());
    trip.end_time = QDateTime(QDate(2024, 4, 2), QTime(0, 0), QTimeZone::utc());
    QVERIFY(m_state->events()->insert(trip));
    QTest::qWait(300); // the event repository coalesces its change signal

    QVERIFY(m_mini->hasEvents(QDate(2024, 3, 20)));
    QVERIFY(!m_mini->hasEvents(QDate(2024, 3, 19)));
    QVERIFY(!m_mini->hasEvents(QDate(2024, 3, 27)));
    for (QDate day(2024, 3, 28); day <= QDate(2024, 4, 1); day = day.addDays(1))
        QVERIFY2(m_mini->hasEvents(day), qPrintable(day.toString()));
    QVERIFY(!m_mini->hasEvents(QDate(2024, 4, 2)));
}

void TestSidebar::calendarsAreGroupedByAccount()
{
    CalendarList *list = m_sidebar->calendarList();
    const int before = list->sizeHint().height();
    Account empty;
    empty.id = QStringLiteral("empty-account");
    empty.name = QStringLiteral("Empty");
    empty.type = QStringLiteral("caldav");
    QVERIFY(m_state->accounts()->insert(empty));
    QCOMPARE(list->sizeHint().height(), before); // no calendars, no header

    seedSampleData(*m_state->accounts(), *m_state->calendars(), *m_state->events(), *m_state->tasks());
    m_state->calendars()->calendarsChanged(); // the seeding writes behind the repository's back
    const QRect personal = list->rowRect(AppState::kLocalCalendarId);
    const QRect work = list->rowRect(QStringLiteral("sample-cal-work"));
    const QRect birthdays = list->rowRect(QStringLiteral("sample-cal-birthdays"));
    QVERIFY(personal.isValid() && work.isValid() && birthdays.isValid());
    // "On This Device" sorts before "Sample Data"; a header row separates the groups.
    QVERIFY(personal.bottom() < work.top());
    QVERIFY(work.top() - personal.bottom() > 1);
    QVERIFY(work.top() < birthdays.top());

    Calendar second;
    second.id = QStringLiteral("empty-calendar");
    second.account_id = empty.id;
    second.name = QStringLiteral("Shared");
    QVERIFY(m_state->calendars()->insert(second));
    QVERIFY(list->rowRect(second.id).isValid());
}

void TestSidebar::toggleWritesVisibility()
{
    insertEvent(QStringLiteral("lunch"), AppState::kLocalCalendarId, local(QDate(2024, 3, 14), 12));
    QTest::qWait(300);
    const QDate first(2024, 3, 11);
    QCOMPARE(m_cache->span(first, 7)->contents.occurrences.size(), 1);

    CalendarList *list = m_sidebar->calendarList();
    const QRect row = list->rowRect(AppState::kLocalCalendarId);
    QVERIFY(row.isValid());
    QTest::mouseClick(list, Qt::LeftButton, Qt::NoModifier, row.center());
    QVERIFY(!m_state->calendars()->getById(AppState::kLocalCalendarId)->is_visible);
    QTest::qWait(0);
    QCOMPARE(m_cache->span(first, 7)->contents.occurrences.size(), 0);
    QVERIFY(!m_mini->hasEvents(QDate(2024, 3, 14)));

    // By keyboard: the row is current after the click; Space flips it back.
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Space);
    QVERIFY(m_state->calendars()->getById(AppState::kLocalCalendarId)->is_visible);
    QTest::qWait(0);
    QCOMPARE(m_cache->span(first, 7)->contents.occurrences.size(), 1);
    QVERIFY(m_mini->hasEvents(QDate(2024, 3, 14)));
}

void TestSidebar::clickingAViewMakesItActive()
{
    CalendarView work;
    work.id = QStringLiteral("work-view");
    work.name = QStringLiteral("Work");
    work.calendar_ids = QStringLiteral("[\"sample-cal-work\"]");
    work.sort_order = 10;
    QVERIFY(m_state->views()->insert(work));

    ViewList *views = m_sidebar->viewList();
    const QRect all = views->rowRect(QStringLiteral("all-calendars"));
    const QRect workRow = views->rowRect(work.id);
    QVERIFY(all.isValid() && workRow.isValid());
    QVERIFY(all.top() < workRow.top()); // the default view first
    QCOMPARE(m_state->activeViewId(), QStringLiteral("all-calendars"));
    QTest::mouseClick(views, Qt::LeftButton, Qt::NoModifier, workRow.center());
    QCOMPARE(m_state->activeViewId(), work.id);
    QTest::mouseClick(views, Qt::LeftButton, Qt::NoModifier, all.center());
    QCOMPARE(m_state->activeViewId(), QStringLiteral("all-calendars"));
}

QTEST_MAIN(TestSidebar)
#include "tst_sidebar.moc"
