// SPDX-License-Identifier: GPL-3.0-or-later
#include "ModalAnswer.h"

#include "app/AppState.h"
#include "app/UndoStack.h"
#include "storage/AccountRepository.h"
#include "storage/CalendarRepository.h"
#include "storage/Clock.h"
#include "storage/EventRepository.h"
#include "storage/FilterRuleRepository.h"
#include "storage/PreferencesRepository.h"
#include "storage/StorageFormat.h"
#include "ui/EventEditor.h"
#include "ui/MainWindow.h"
#include "ui/MonthView.h"
#include "ui/SpanCache.h"
#include "ui/ThemeManager.h"
#include "ui/TimelineView.h"

#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTimeZone>

namespace {

const QTimeZone kBerlin("Europe/Berlin");

// Presses the button of a message box or dialog button box whose text is `text`.
void press(QWidget *dialog, const QString &text)
{
    for (QAbstractButton *button : dialog->findChildren<QAbstractButton *>()) {
        if (button->text().remove(QLatin1Char('&')) == text) {
            button->click();
            return;
        }
    }
    QFAIL(qPrintable(QStringLiteral("no button %1 in %2").arg(text, dialog->windowTitle())));
}

} // namespace

// The main window's receiving end of forwarded commands, its menu commands and the state it keeps.
class TestMainWindow : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();
    void quickAddFromCommand();
    void quickAddThatCannotBeRead();
    void quickAddWithoutCalendars();
    void showToday();
    void viewFollowsTheState();
    void importIcsFromCommand_data();
    void importIcsFromCommand();
    void importIntoTheChosenCalendar();
    void windowStateRoundTrip();
    void hiddenCountInTheStatusBar();
    void sampleDataCommands();
    void undoShowsTheSummary();

private:
    QString status() const { return m_window->statusBar()->currentMessage(); }
    QString writeFile(const QString &name, const QByteArray &content);

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<AppState> m_state;
    std::unique_ptr<MainWindow> m_window;
};

void TestMainWindow::init()
{
    m_dir = std::make_unique<QTemporaryDir>();
    Clock::setFixedNow(QDateTime(QDate(2024, 3, 13), QTime(14, 10), kBerlin));
    m_state = std::make_unique<AppState>();
    QVERIFY(m_state->initialize(m_dir->filePath(QStringLiteral("calendar.db"))));
    m_window = std::make_unique<MainWindow>(m_state.get());
    m_window->resize(1200, 800);
}

void TestMainWindow::cleanup()
{
    m_window.reset();
    m_state.reset();
    Clock::setFixedNow(QDateTime());
}

QString TestMainWindow::writeFile(const QString &name, const QByteArray &content)
{
    const QString path = m_dir->filePath(name);
    QFile file(path);
    if (file.open(QIODevice::WriteOnly))
        file.write(content);
    return path;
}

void TestMainWindow::quickAddFromCommand()
{
    m_window->quickAddFromCommand(QStringLiteral("  Lunch with Sam tomorrow at 12:30 for 45 min "));
    QVERIFY(m_window->isVisible());
    QCOMPARE(status(), QStringLiteral("Added:   Lunch with Sam tomorrow at 12:30 for 45 min "));
    const QList<Event> stored = m_state->events()->getByCalendar(AppState::kLocalCalendarId);
    QCOMPARE(stored.size(), 1);
    QCOMPARE(stored.first().title, QStringLiteral("Lunch with Sam"));
    QCOMPARE(stored.first().start_time, QDateTime(QDate(2024, 3, 14), QTime(12, 30), kBerlin));
    QCOMPARE(*stored.first().end_time, QDateTime(QDate(2024, 3, 14), QTime(13, 15), kBerlin));
    QCOMPARE(stored.first().sync_status, QStringLiteral("pending"));

    // Blank text: the window comes forward and nothing else happens.
    m_window->statusBar()->clearMessage();
    m_window->quickAddFromCommand(QStringLiteral("   "));
    QCOMPARE(status(), QString());
    QCOMPARE(m_state->events()->getByCalendar(AppState::kLocalCalendarId).size(), 1);
}

void TestMainWindow::quickAddThatCannotBeRead()
{
    m_window->quickAddFromCommand(QStringLiteral("Party jan 40"));
    QCOMPARE(status(), QStringLiteral("Quick-add couldn't parse: \"Party jan 40\""));
    QVERIFY(m_state->events()->getByCalendar(AppState::kLocalCalendarId).isEmpty());
}

void TestMainWindow::quickAddWithoutCalendars()
{
    QVERIFY(m_state->calendars()->remove(AppState::kLocalCalendarId));
    m_window->quickAddFromCommand(QStringLiteral("Standup"));
    QCOMPARE(status(), QStringLiteral("Quick-add ignored: no calendars configured."));
}

void TestMainWindow::showToday()
{
    m_state->setViewDate(QDate(2023, 5, 1));
    m_window->showToday();
    QCOMPARE(m_state->viewDate(), QDate(2024, 3, 13));
    QVERIFY(m_window->isVisible());
}

void TestMainWindow::viewFollowsTheState()
{
    m_window->show();
    auto *views = m_window->findChild<QStackedWidget *>();
    QVERIFY(views);
    m_state->setViewMode(QStringLiteral("week"));
    m_state->setWeekHorizon(7);
    // A seven-day view is the calendar week holding the date (Monday first here).
    m_state->preferences()->setValue(QStringLiteral("ui/weekStartDay"), QStringLiteral("1"));
    m_state->setViewDate(QDate(2024, 3, 14));
    QCOMPARE(m_window->visibleFirstDay(), QDate(2024, 3, 11));
    QCOMPARE(m_window->visibleDayCount(), 7);
    QVERIFY(qobject_cast<TimelineView *>(views->currentWidget()));
    // Other horizons start on the date itself.
    m_state->setWeekHorizon(3);
    QCOMPARE(m_window->visibleFirstDay(), QDate(2024, 3, 14));
    QCOMPARE(m_window->visibleDayCount(), 3);
    m_state->setViewMode(QStringLiteral("day"));
    QCOMPARE(m_window->visibleDayCount(), 1);
    m_state->setViewMode(QStringLiteral("month"));
    QVERIFY(qobject_cast<MonthView *>(views->currentWidget()));
    QCOMPARE(m_window->visibleFirstDay(), QDate(2024, 2, 26));
    QCOMPARE(m_window->visibleDayCount(), 42);
    QVERIFY(m_window->windowTitle().startsWith(QStringLiteral("March 2024")));

    // The neighbours of what is on screen are loaded when the program is idle.
    QTRY_VERIFY(m_window->spanCache()->isCached(QDate(2024, 4, 1), 42));
}

void TestMainWindow::importIcsFromCommand_data()
{
    QTest::addColumn<QString>("file"); // empty: a file that does not exist
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<bool>("removeCalendars");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("text");

    QTest::newRow("missing file") << QString() << QByteArray() << false << "Couldn't open file"
                                  << "Couldn't open \"missing.ics\" for reading.";
    QTest::newRow("no events") << "tasks.ics"
                               << QByteArray(
                                      "BEGIN:VCALENDAR\r\nBEGIN:VTODO\r\nUID:t\r\nEND:VTODO\r\nEND:VCALENDAR\r\n")
                               << false << "Nothing to import"
                               << "No events found in \"tasks.ics\".";
    QTest::newRow("no writable calendar")
        << "invite.ics"
        << QByteArray("BEGIN:VCALENDAR\r\nBEGIN:VEVENT\r\nUID:u1\r\nSUMMARY:Review\r\nDTSTART:20240314T090000Z\r\n"
                      "END:VEVENT\r\nEND:VCALENDAR\r\n")
        << true << "No calendars configured"
        << "Add a writable calendar first; then re-import \"invite.ics\".";
}

void TestMainWindow::importIcsFromCommand()
{
    QFETCH(QString, file);
    QFETCH(QByteArray, content);
    QFETCH(bool, removeCalendars);
    const QString path = file.isEmpty() ? m_dir->filePath(QStringLiteral("missing.ics")) : writeFile(file, content);
    if (removeCalendars)
        QVERIFY(m_state->calendars()->remove(AppState::kLocalCalendarId));
    QString text;
    ModalAnswer answer([&text](QWidget *dialog) {
        if (auto *box = qobject_cast<QMessageBox *>(dialog))
            text = box->text();
        dialog->close();
    });
    m_window->importIcsFromCommand(path);
    QVERIFY(answer.seen());
    QTEST(answer.title(), "title");
    QTEST(text, "text");
}

void TestMainWindow::importIntoTheChosenCalendar()
{
    Calendar work;
    work.id = QStringLiteral("work");
    work.account_id = AppState::kLocalAccountId;
    work.url = QStringLiteral("local://calendar/work");
    work.name = QStringLiteral("Work");
    QVERIFY(m_state->calendars()->insert(work));
    m_state->preferences()->setValue(QStringLiteral("ui/defaultCalendarId"), work.id);
    const QString path = writeFile(
        QStringLiteral("invite.ics"),
        "BEGIN:VCALENDAR\r\nBEGIN:VEVENT\r\nUID:u1\r\nSUMMARY:Review\r\nDTSTART:20240314T090000Z\r\nEND:VEVENT\r\n"
        "BEGIN:VEVENT\r\nUID:u2\r\nSUMMARY:Retro\r\nDTSTART:20240315T090000Z\r\nEND:VEVENT\r\nEND:VCALENDAR\r\n");

    QString prompt;
    QString chosen;
    QString result;
    ModalAnswer choose([&](QWidget *dialog) {
        prompt = dialog->findChild<QLabel *>()->text();
        chosen = dialog->findChild<QComboBox *>()->currentText();
        press(dialog, QStringLiteral("Import"));
    });
    // The result comes in a second box once the first is answered.
    QTimer::singleShot(0, this, [&] {
        auto *after = new ModalAnswer([&](QWidget *dialog) {
            if (auto *box = qobject_cast<QMessageBox *>(dialog))
                result = box->text();
            dialog->close();
        });
        connect(m_window.get(), &QObject::destroyed, [after] { delete after; });
    });
    m_window->importIcsFromCommand(path);
    QCOMPARE(choose.title(), QStringLiteral("Import events"));
    QCOMPARE(prompt, QStringLiteral("Import 2 events from \"invite.ics\" into:"));
    QCOMPARE(chosen, QStringLiteral("Work"));
    QTRY_COMPARE(result, QStringLiteral("Imported 2 events into Work."));
    QCOMPARE(m_state->events()->getByCalendar(work.id).size(), 2);
}

void TestMainWindow::windowStateRoundTrip()
{
    m_window->show();
    m_window->resize(1300, 760);
    auto *splitter = m_window->findChild<QSplitter *>();
    splitter->setSizes({300, 1000});
    const QSize saved = m_window->size();
    m_window->close(); // no tray here: the window saves its state and closes
    const std::optional<QString> geometry = m_state->preferences()->value(QStringLiteral("ui/window/geometry"));
    QVERIFY(geometry && !geometry->isEmpty());
    QVERIFY(m_state->preferences()->value(QStringLiteral("ui/window/state")));
    QVERIFY(m_state->preferences()->value(QStringLiteral("ui/window/splitter")));

    MainWindow again(m_state.get());
    again.show();
    QCOMPARE(again.size(), saved);
    QCOMPARE(again.findChild<QSplitter *>()->sizes().first(), 300);
}

void TestMainWindow::hiddenCountInTheStatusBar()
{
    m_window->show();
    EventEditor editor(m_state.get());
    Event draft;
    draft.calendar_id = AppState::kLocalCalendarId;
    draft.title = QStringLiteral("Focus time");
    draft.start_time = QDateTime(QDate(2024, 3, 13), QTime(9, 0), kBerlin);
    draft.end_time = draft.start_time.addSecs(3600);
    QVERIFY(editor.create(draft));
    FilterRule rule;
    rule.id = StorageFormat::newId();
    rule.name = QStringLiteral("Hide focus time");
    rule.type = QStringLiteral("pattern");
    rule.conditions = QStringLiteral(R"({"runtimeType":"pattern","titleExact":["Focus time"]})");
    QVERIFY(m_state->filterRules()->insert(rule));
    QTRY_COMPARE(m_state->filterHiddenCount(), 1);
    bool shown = false;
    for (QLabel *label : m_window->statusBar()->findChildren<QLabel *>())
        shown = shown || label->text() == QLatin1String("1 hidden by filter rules");
    QVERIFY(shown);
}

void TestMainWindow::sampleDataCommands()
{
    QAction *add = nullptr;
    QAction *clear = nullptr;
    for (QAction *action : m_window->findChildren<QAction *>()) {
        if (action->text() == QStringLiteral("Add &Sample Data"))
            add = action;
        if (action->text() == QStringLiteral("&Clear Sample Data…"))
            clear = action;
    }
    QVERIFY(add && clear);
    add->trigger();
    QCOMPARE(m_state->calendars()->getByAccount(QStringLiteral("sample-account")).size(), 4);

    // Cancelling the question keeps everything.
    ModalAnswer cancel([](QWidget *dialog) { press(dialog, QStringLiteral("Cancel")); });
    clear->trigger();
    QCOMPARE(cancel.title(), QStringLiteral("Clear sample data?"));
    QCOMPARE(m_state->calendars()->getByAccount(QStringLiteral("sample-account")).size(), 4);

    ModalAnswer confirm([](QWidget *dialog) { press(dialog, QStringLiteral("Yes")); });
    clear->trigger();
    QVERIFY(confirm.seen());
    QVERIFY(m_state->calendars()->getByAccount(QStringLiteral("sample-account")).isEmpty());
    QVERIFY(!m_state->accounts()->getById(QStringLiteral("sample-account")));
}

void TestMainWindow::undoShowsTheSummary()
{
    EventEditor editor(m_state.get());
    Event draft;
    draft.calendar_id = AppState::kLocalCalendarId;
    draft.title = QStringLiteral("Dentist");
    draft.start_time = QDateTime(QDate(2024, 3, 14), QTime(9, 0), kBerlin);
    draft.end_time = draft.start_time.addSecs(3600);
    const Event created = editor.create(draft).value();
    QVERIFY(editor.remove(created));
    m_state->undoStack()->undo();
    QCOMPARE(status(), QStringLiteral("Undone: Deleted \"Dentist\""));
    QVERIFY(!m_state->events()->getById(created.id)->deleted_at);
}

QTEST_MAIN(TestMainWindow)
#include "tst_mainwindow.moc"
