// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/MainWindow.h"

#include "app/AppState.h"
#include "app/NotificationService.h"
#include "app/UndoStack.h"
#include "ical/NLParser.h"
#include "storage/AccountRepository.h"
#include "storage/CalendarChoice.h"
#include "storage/CalendarRepository.h"
#include "storage/Clock.h"
#include "storage/EventRepository.h"
#include "storage/PreferencesRepository.h"
#include "storage/SampleData.h"
#include "ui/EventEditor.h"
#include "ui/EventFormDialog.h"
#include "ui/EventPopover.h"
#include "ui/IcsImportFlow.h"
#include "ui/MainToolbar.h"
#include "ui/ManageSourcesDialog.h"
#include "ui/MonthView.h"
#include "ui/Sidebar.h"
#include "ui/SpanCache.h"
#include "ui/ThemeManager.h"
#include "ui/TimelineView.h"

#include <QActionGroup>
#include <QApplication>
#include <QCloseEvent>
#include <QKeySequence>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>
#include <QSystemTrayIcon>
#include <QTimer>
#include <QVBoxLayout>

namespace {

QString prefKey(const char *key)
{
    return QString::fromLatin1(key);
}

} // namespace

MainWindow::MainWindow(AppState *appState, QWidget *parent)
    : QMainWindow(parent)
    , m_appState(appState)
    , m_cache(new SpanCache(appState, this))
    , m_editor(new EventEditor(appState, this))
{
    setWindowTitle(tr("Kettlebrook Calendar"));
    setObjectName(QStringLiteral("MainWindow"));
    resize(1280, 820);

    auto *central = new QWidget(this);
    auto *layout = new QVBoxLayout(central);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    m_toolbar = new MainToolbar(appState, central);
    layout->addWidget(m_toolbar);

    m_splitter = new QSplitter(Qt::Horizontal, central);
    m_splitter->setChildrenCollapsible(true);
    m_splitter->setHandleWidth(1);
    m_sidebar = new Sidebar(appState, m_cache, m_splitter);
    m_views = new QStackedWidget(m_splitter);
    m_timeline = new TimelineView(appState, m_cache, m_editor, m_views);
    m_month = new MonthView(appState, m_cache, m_editor, m_views);
    m_views->addWidget(m_timeline);
    m_views->addWidget(m_month);
    m_splitter->addWidget(m_sidebar);
    m_splitter->addWidget(m_views);
    m_splitter->setStretchFactor(0, 0);
    m_splitter->setStretchFactor(1, 1);
    m_splitter->setSizes({250, 1030});
    layout->addWidget(m_splitter, 1);
    setCentralWidget(central);

    m_popover = new EventPopover(appState, m_cache, m_editor, this);

    buildMenus();
    buildStatusBar();
    restoreWindowState();

    connect(m_toolbar, &MainToolbar::sidebarToggled, this, [this] { m_sidebar->setVisible(!m_sidebar->isVisible()); });
    connect(m_toolbar, &MainToolbar::todayClicked, this, [this] { m_appState->setViewDate(Clock::nowLocal().date()); });
    connect(m_toolbar, &MainToolbar::previousClicked, this, [this] { step(-1); });
    connect(m_toolbar, &MainToolbar::nextClicked, this, [this] { step(1); });
    connect(m_toolbar, &MainToolbar::quickAddSubmitted, this, [this](const QString &text) {
        if (const std::optional<Event> event = quickAdd(text))
            m_appState->setViewDate(event->start_time.toLocalTime().date());
    });

    connect(appState, &AppState::currentDateChanged, this, &MainWindow::showCurrentView);
    connect(appState, &AppState::viewModeChanged, this, &MainWindow::showCurrentView);
    connect(appState, &AppState::weekHorizonChanged, this, &MainWindow::showCurrentView);
    connect(appState, &AppState::firstDayOfWeekChanged, this, &MainWindow::showCurrentView);
    connect(appState, &AppState::filterHiddenCountChanged, this, [this](int count) {
        m_filterLabel->setText(count > 0 ? tr("%1 hidden by filter rules").arg(count) : QString());
    });
    connect(appState->undoStack(), &UndoStack::undone, this,
            [this](const QString &summary) { showStatus(tr("Undone: %1").arg(summary), 4000); });
    connect(m_editor, &EventEditor::failed, this, [this](const QString &message) { showStatus(message, 6000); });
    connect(appState->theme(), &ThemeManager::themeChanged, this, &MainWindow::applyTheme);

    connect(m_timeline, &TimelineView::eventActivated, this, &MainWindow::showEventPopover);
    connect(m_month, &MonthView::eventActivated, this, &MainWindow::showEventPopover);
    connect(
        m_timeline, &TimelineView::createRequested, this,
        [this](const QDateTime &start, const QDateTime &end, bool allDay) { openForm(nullptr, start, end, allDay); });
    connect(
        m_month, &MonthView::createRequested, this,
        [this](const QDateTime &start, const QDateTime &end, bool allDay) { openForm(nullptr, start, end, allDay); });
    connect(m_timeline, &TimelineView::dayActivated, this, [this](const QDate &date) {
        m_appState->setViewMode(QStringLiteral("day"));
        m_appState->setViewDate(date);
    });
    connect(m_month, &MonthView::dayOpened, this, [this](const QDate &date) {
        m_appState->setViewMode(QStringLiteral("day"));
        m_appState->setViewDate(date);
    });
    connect(m_popover, &EventPopover::editRequested, this,
            [this](const Event &occurrence) { openForm(&occurrence, {}, {}, false); });
    connect(m_cache, &SpanCache::invalidated, this, &MainWindow::prefetchNeighbours);

    applyTheme();
    showCurrentView();
    const int workdayStart = m_appState->preferences()->intValue(prefKey("ui/workdayStart"), 9);
    m_timeline->scrollToTime(QTime(qBound(0, workdayStart, 23), 0).addSecs(-1800));
}

MainWindow::~MainWindow() = default;

void MainWindow::setTrayIcon(QSystemTrayIcon *trayIcon)
{
    m_trayIcon = trayIcon;
}

void MainWindow::setNotificationService(NotificationService *service)
{
    m_notifications = service;
}

void MainWindow::buildMenus()
{
    QMenu *file = menuBar()->addMenu(tr("&File"));
    QAction *newEventAction = file->addAction(tr("&New Event…"), this, &MainWindow::newEvent);
    newEventAction->setShortcut(QKeySequence::New);
    QAction *importAction = file->addAction(tr("&Import Calendar File…"), this, [this] {
        const QString path = IcsImportFlow::chooseFile(this);
        if (!path.isEmpty())
            importIcsFromCommand(path);
    });
    importAction->setShortcut(QKeySequence::Open);
    file->addAction(tr("&Manage Calendars…"), this, [this] { ManageSourcesDialog(m_appState, this).exec(); });
    file->addSeparator();
    QAction *quit = file->addAction(tr("&Quit"), qApp, &QCoreApplication::quit);
    quit->setShortcut(QKeySequence::Quit);

    QMenu *edit = menuBar()->addMenu(tr("&Edit"));
    QAction *undo = edit->addAction(tr("&Undo"), m_appState->undoStack(), &UndoStack::undo);
    undo->setShortcut(QKeySequence::Undo);
    undo->setEnabled(false);
    connect(m_appState->undoStack(), &UndoStack::changed, undo,
            [this, undo] { undo->setEnabled(m_appState->undoStack()->count() > 0); });
    QAction *find = edit->addAction(tr("&Quick Add"), this, [this] {
        m_toolbar->quickAddField()->setFocus(Qt::ShortcutFocusReason);
        m_toolbar->quickAddField()->selectAll();
    });
    find->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_L));

    QMenu *view = menuBar()->addMenu(tr("&View"));
    const auto addViewAction = [this, view](const QString &text, const QKeySequence &key, auto slot) {
        QAction *action = view->addAction(text, this, slot);
        action->setShortcut(key);
        action->setShortcutContext(Qt::WindowShortcut);
        return action;
    };
    addViewAction(tr("&Today"), QKeySequence(Qt::Key_T), [this] { m_appState->setViewDate(Clock::nowLocal().date()); });
    addViewAction(tr("&Previous"), QKeySequence(Qt::Key_Left), [this] { step(-1); });
    addViewAction(tr("&Next"), QKeySequence(Qt::Key_Right), [this] { step(1); });
    view->addSeparator();
    addViewAction(tr("&Day"), QKeySequence(Qt::Key_D), [this] { m_appState->setViewMode(QStringLiteral("day")); });
    addViewAction(tr("&Week"), QKeySequence(Qt::Key_W), [this] { m_appState->setViewMode(QStringLiteral("week")); });
    addViewAction(tr("&Month"), QKeySequence(Qt::Key_M), [this] { m_appState->setViewMode(QStringLiteral("month")); });
    view->addSeparator();
    addViewAction(tr("&Back"), QKeySequence(Qt::ALT | Qt::Key_Left), [this] { m_appState->goBack(); });
    addViewAction(tr("&Forward"), QKeySequence(Qt::ALT | Qt::Key_Right), [this] { m_appState->goForward(); });
    addViewAction(tr("Zoom &In"), QKeySequence::ZoomIn,
                  [this] { m_appState->setHourHeight(m_appState->hourHeight() + 12); });
    addViewAction(tr("Zoom &Out"), QKeySequence::ZoomOut,
                  [this] { m_appState->setHourHeight(m_appState->hourHeight() - 12); });
    view->addSeparator();
    QAction *weekNumbers = view->addAction(tr("Show Week &Numbers"));
    weekNumbers->setCheckable(true);
    weekNumbers->setChecked(m_appState->preferences()->boolValue(prefKey("ui/showWeekNumbers"), false));
    connect(weekNumbers, &QAction::toggled, this,
            [this](bool on) { m_appState->preferences()->setBool(QStringLiteral("ui/showWeekNumbers"), on); });
    QAction *twentyFour = view->addAction(tr("24-Hour Clock"));
    twentyFour->setCheckable(true);
    twentyFour->setChecked(m_appState->preferences()->value(prefKey("ui/timeFormat")).value_or(QStringLiteral("12"))
                           == QLatin1String("24"));
    connect(twentyFour, &QAction::toggled, this, [this](bool on) {
        m_appState->preferences()->setValue(QStringLiteral("ui/timeFormat"),
                                            on ? QStringLiteral("24") : QStringLiteral("12"));
    });
    QMenu *theme = view->addMenu(tr("T&heme"));
    auto *themes = new QActionGroup(theme);
    const QList<std::pair<QString, QString>> modes = {{QStringLiteral("light"), tr("Light")},
                                                      {QStringLiteral("dark"), tr("Dark")},
                                                      {QStringLiteral("system"), tr("System")}};
    for (const auto &[mode, label] : modes) {
        QAction *action = theme->addAction(label);
        action->setCheckable(true);
        action->setChecked(m_appState->theme()->mode() == mode);
        themes->addAction(action);
        connect(action, &QAction::triggered, this, [this, mode] { m_appState->theme()->setMode(mode); });
    }

    QMenu *tools = menuBar()->addMenu(tr("&Tools"));
    tools->addAction(tr("Add &Sample Data"), this, &MainWindow::addSampleData);
    tools->addAction(tr("&Clear Sample Data…"), this, &MainWindow::clearSampleData);
    tools->addSeparator();
    tools->addAction(tr("Send &Test Notification"), this, [this] {
        if (m_notifications)
            m_notifications->showTestNotification();
        if (!m_trayIcon || !m_trayIcon->isVisible())
            showStatus(tr("Notifications need a system tray, and this desktop has none."), 6000);
    });

    QMenu *help = menuBar()->addMenu(tr("&Help"));
    help->addAction(tr("&About Kettlebrook Calendar"), this, [this] {
        QMessageBox::about(this, tr("About Kettlebrook Calendar"),
                           tr("<b>Kettlebrook Calendar</b> %1<br>Your calendars and tasks, on your desktop.")
                               .arg(QCoreApplication::applicationVersion()));
    });
}

void MainWindow::buildStatusBar()
{
    m_filterLabel = new QLabel(this);
    m_syncLabel = new QLabel(this);
    statusBar()->addPermanentWidget(m_filterLabel);
    statusBar()->addPermanentWidget(m_syncLabel);
    statusBar()->setSizeGripEnabled(false);
}

void MainWindow::showStatus(const QString &message, int timeoutMs)
{
    statusBar()->showMessage(message, timeoutMs);
}

void MainWindow::restoreWindowState()
{
    PreferencesRepository *preferences = m_appState->preferences();
    if (const auto geometry = preferences->value(prefKey("ui/window/geometry")))
        restoreGeometry(QByteArray::fromBase64(geometry->toLatin1()));
    if (const auto state = preferences->value(prefKey("ui/window/state")))
        restoreState(QByteArray::fromBase64(state->toLatin1()));
    if (const auto splitter = preferences->value(prefKey("ui/window/splitter")))
        m_splitter->restoreState(QByteArray::fromBase64(splitter->toLatin1()));
}

void MainWindow::saveWindowState()
{
    PreferencesRepository *preferences = m_appState->preferences();
    preferences->setValue(prefKey("ui/window/geometry"), QString::fromLatin1(saveGeometry().toBase64()));
    preferences->setValue(prefKey("ui/window/state"), QString::fromLatin1(saveState().toBase64()));
    preferences->setValue(prefKey("ui/window/splitter"), QString::fromLatin1(m_splitter->saveState().toBase64()));
}

void MainWindow::closeEvent(QCloseEvent *event)
{
    saveWindowState();
    const bool trayShown = m_trayIcon && m_trayIcon->isVisible();
    if (trayShown && m_appState->preferences()->boolValue(prefKey("ui/closeToTray"), true)) {
        hide();
        event->ignore();
        if (!m_appState->preferences()->boolValue(prefKey("ui/closeToTrayBalloonShown"), false)) {
            m_trayIcon->showMessage(tr("Kettlebrook Calendar is still running"),
                                    tr("Reminders keep coming. Click the tray icon to open the calendar."),
                                    QSystemTrayIcon::Information, 8000);
            m_appState->preferences()->setBool(QStringLiteral("ui/closeToTrayBalloonShown"), true);
        }
        return;
    }
    event->accept();
    qApp->quit();
}

void MainWindow::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::PaletteChange)
        m_toolbar->applyTheme();
    QMainWindow::changeEvent(event);
}

void MainWindow::applyTheme()
{
    const ThemeManager::Colors &c = m_appState->theme()->colors();
    qApp->setPalette(m_appState->theme()->palette());
    const QString sheet
        = QStringLiteral(
              "#MainToolbar { background: %1; border-bottom: 1px solid %2; }"
              "#RangeLabel { font-size: 17px; font-weight: 600; color: %3; padding-left: 4px; }"
              "#TodayButton { border: 1px solid %2; border-radius: 6px; padding: 4px 12px; color: %3; background: %1; }"
              "#TodayButton:hover { background: %4; }"
              "#ModeFirst, #ModeMiddle, #ModeLast { border: 1px solid %2; padding: 4px 12px; color: %3; background: "
              "%1; }"
              "#ModeFirst { border-top-left-radius: 6px; border-bottom-left-radius: 6px; }"
              "#ModeLast { border-top-right-radius: 6px; border-bottom-right-radius: 6px; }"
              "#ModeMiddle, #ModeLast { border-left: none; }"
              "#ModeFirst:checked, #ModeMiddle:checked, #ModeLast:checked { background: %5; color: %6; border-color: "
              "%5; }"
              "#QuickAdd { border: 1px solid %2; border-radius: 6px; padding: 5px 8px; background: %7; color: %3; }"
              "#QuickAdd:focus { border-color: %5; }"
              "QSplitter::handle { background: %2; }"
              "QStatusBar { background: %1; border-top: 1px solid %2; color: %8; }"
              "QMenuBar { background: %1; color: %3; }")
              .arg(c.surface.name(), c.border.name(), c.text.name(), c.surfaceAlt.name(), c.accent.name(),
                   c.accentText.name(), c.surfaceAlt.name(), c.textMuted.name());
    setStyleSheet(sheet);
    m_toolbar->applyTheme();
}

QDate MainWindow::visibleFirstDay() const
{
    return m_views->currentWidget() == m_month ? m_month->firstDay() : m_timeline->firstDay();
}

int MainWindow::visibleDayCount() const
{
    return m_views->currentWidget() == m_month ? m_month->dayCount() : m_timeline->dayCount();
}

void MainWindow::showCurrentView()
{
    const QString mode = m_appState->viewMode();
    const QDate date = m_appState->viewDate();
    if (mode == QLatin1String("month")) {
        m_month->setMonth(date);
        m_views->setCurrentWidget(m_month);
    } else if (mode == QLatin1String("day")) {
        m_timeline->setDays(date, 1);
        m_views->setCurrentWidget(m_timeline);
    } else {
        const int horizon = m_appState->weekHorizon();
        QDate first = date;
        // A seven-day view is a calendar week; other horizons start on the date itself.
        if (horizon == 7) {
            const int back = (date.dayOfWeek() - int(m_appState->firstDayOfWeek()) + 7) % 7;
            first = date.addDays(-back);
        }
        m_timeline->setDays(first, horizon);
        m_views->setCurrentWidget(m_timeline);
    }
    m_toolbar->refresh();
    updateRangeText();
    prefetchNeighbours();
}

void MainWindow::prefetchNeighbours()
{
    const QDate first = visibleFirstDay();
    const int days = visibleDayCount();
    if (!first.isValid() || days <= 0)
        return;
    if (m_views->currentWidget() == m_month) {
        for (int offset : {1, -1}) {
            const auto [gridFirst, gridDays]
                = MonthView::gridFor(m_appState->viewDate().addMonths(offset), m_appState->firstDayOfWeek());
            m_cache->prefetch(gridFirst, gridDays);
        }
    } else {
        m_cache->prefetch(first.addDays(days), days);
        m_cache->prefetch(first.addDays(-days), days);
    }
}

void MainWindow::updateRangeText()
{
    const QLocale locale;
    const QString mode = m_appState->viewMode();
    const QDate date = m_appState->viewDate();
    QString text;
    // Translatable date formats let each language order day, month and year its own way; the two ends
    // of a range have formats of their own because languages name the shared month or year on either end.
    if (mode == QLatin1String("month")) {
        //: Date format (QDate::toString) of the month view's title
        text = locale.toString(date, tr("MMMM yyyy"));
    } else if (mode == QLatin1String("day")) {
        //: Date format (QDate::toString) of the day view's title
        text = locale.toString(date, tr("dddd, MMMM d, yyyy"));
    } else {
        const QDate first = m_timeline->firstDay();
        const QDate last = first.addDays(m_timeline->dayCount() - 1);
        if (first.year() != last.year())
            //: Date format (QDate::toString) of both ends of a range across two years
            text = locale.toString(first, tr("MMM d, yyyy")) + QStringLiteral(" – ")
                + locale.toString(last, tr("MMM d, yyyy"));
        else if (first.month() != last.month())
            text = locale.toString(first, tr("MMM d", "first day of a range across two months")) + QStringLiteral(" – ")
                + locale.toString(last, tr("MMM d, yyyy", "last day of a range across two months"));
        else
            text = locale.toString(first, tr("MMMM d", "first day of a range within one month")) + QStringLiteral(" – ")
                + locale.toString(last, tr("d, yyyy", "last day of a range within one month"));
    }
    m_toolbar->setRangeText(text);
    setWindowTitle(text + QStringLiteral(" — ") + tr("Kettlebrook Calendar"));
}

void MainWindow::step(int direction)
{
    const QString mode = m_appState->viewMode();
    const QDate date = m_appState->viewDate();
    if (mode == QLatin1String("month"))
        m_appState->setViewDate(date.addMonths(direction));
    else if (mode == QLatin1String("day"))
        m_appState->setViewDate(date.addDays(direction));
    else
        m_appState->setViewDate(date.addDays(direction * m_appState->weekHorizon()));
}

void MainWindow::focusWindow()
{
    if (isMinimized())
        showNormal();
    else
        show();
    raise();
    activateWindow();
    setFocus(Qt::ActiveWindowFocusReason);
}

void MainWindow::showToday()
{
    focusWindow();
    m_appState->setViewDate(Clock::nowLocal().date());
}

QString MainWindow::targetCalendarId() const
{
    const CalendarChoice::Choice choice = CalendarChoice::forNewEvents(*m_appState->database());
    return choice.calendar ? choice.calendar->id : QString();
}

std::optional<Event> MainWindow::quickAdd(const QString &text)
{
    if (m_appState->calendars()->getAll().isEmpty()) {
        showStatus(tr("Quick-add ignored: no calendars configured."), 5000);
        return std::nullopt;
    }
    const std::optional<Event> event = NLParser::eventFromLine(text, targetCalendarId(), Clock::nowLocal());
    if (!event || !event->start_time.isValid()) {
        showStatus(tr("Quick-add couldn't parse: \"%1\"").arg(text), 5000);
        return std::nullopt;
    }
    if (!m_appState->events()->insert(*event)) {
        showStatus(tr("Quick-add couldn't save: \"%1\"").arg(text), 5000);
        return std::nullopt;
    }
    showStatus(tr("Added: %1").arg(text), 4000);
    return event;
}

void MainWindow::quickAddFromCommand(const QString &text)
{
    focusWindow();
    if (text.trimmed().isEmpty())
        return;
    quickAdd(text);
}

void MainWindow::importIcsFromCommand(const QString &path)
{
    focusWindow();
    IcsImportFlow::run(this, m_appState, path);
}

void MainWindow::newEvent()
{
    focusWindow();
    if (m_appState->calendars()->getAll().isEmpty()) {
        ManageSourcesDialog(m_appState, this).exec();
        if (m_appState->calendars()->getAll().isEmpty())
            return;
    }
    const QDateTime start = NLParser::defaultStart(Clock::nowLocal());
    openForm(nullptr, start, start.addSecs(3600), false);
}

void MainWindow::openForm(const Event *occurrence, const QDateTime &start, const QDateTime &end, bool allDay)
{
    m_popover->hide();
    EventFormDialog dialog(m_appState, m_editor, this);
    if (occurrence)
        dialog.setEvent(*occurrence);
    else
        dialog.setNewEvent(start, end, allDay);
    dialog.exec();
}

void MainWindow::showEventPopover(const Event &occurrence, const QRect &anchor)
{
    m_appState->setSelectedEventId(occurrence.id);
    m_popover->showFor(occurrence, anchor);
}

void MainWindow::openEventOnDate(const QString &eventId, const QDate &date)
{
    focusWindow();
    m_appState->setViewDate(date);
    m_appState->setSelectedEventId(eventId);
}

void MainWindow::syncNow()
{
    m_appState->requestSync();
    showStatus(tr("Nothing to sync: this calendar has no remote accounts yet."), 4000);
}

void MainWindow::addSampleData()
{
    seedSampleData(*m_appState->accounts(), *m_appState->calendars(), *m_appState->events(), *m_appState->tasks());
    showStatus(tr("Sample data added."), 4000);
}

void MainWindow::clearSampleData()
{
    const auto answer = QMessageBox::question(this, tr("Clear sample data?"),
                                              tr("This removes the sample calendars with all their events and tasks."),
                                              QMessageBox::Yes | QMessageBox::Cancel, QMessageBox::Cancel);
    if (answer != QMessageBox::Yes)
        return;
    const int removed = removeSampleData(*m_appState->database());
    // The removal runs plain statements; everything that shows calendars is told as if the
    // repositories had written.
    emit m_appState->calendars()->calendarsChanged();
    emit m_appState->accounts()->accountsChanged();
    showStatus(tr("Removed %1 sample items.").arg(removed), 4000);
}
