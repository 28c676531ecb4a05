// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "storage/Event.h"

#include <QDate>
#include <QMainWindow>
#include <QPointer>

class AppState;
class EventEditor;
class EventPopover;
class MainToolbar;
class MonthView;
class NotificationService;
class QLabel;
class QSplitter;
class QStackedWidget;
class QSystemTrayIcon;
class Sidebar;
class SpanCache;
class TimelineView;

// The main window: toolbar, sidebar, the day/week/month views and the status bar, the menus and
// their shortcuts, and the receiving end of the commands a second launch forwards.
class MainWindow : public QMainWindow
{
    Q_OBJECT

public:
    explicit MainWindow(AppState *appState, QWidget *parent = nullptr);
    ~MainWindow() override;

    void setTrayIcon(QSystemTrayIcon *trayIcon);
    void setNotificationService(NotificationService *service);
    SpanCache *spanCache() const { return m_cache; }
    // The days the current view covers.
    QDate visibleFirstDay() const;
    int visibleDayCount() const;

public slots:
    // Brings the window forward: restores it when minimised, shows, raises and focuses it.
    void focusWindow();
    void showToday();
    void quickAddFromCommand(const QString &text);
    void importIcsFromCommand(const QString &path);
    void newEvent();
    void openEventOnDate(const QString &eventId, const QDate &date);
    void syncNow();

protected:
    void closeEvent(QCloseEvent *event) override;
    void changeEvent(QEvent *event) override;

private:
    void buildMenus();
    void buildStatusBar();
    void restoreWindowState();
    void saveWindowState();
    void applyTheme();
    void showCurrentView();
    void updateRangeText();
    void prefetchNeighbours();
    void step(int direction);
    void openForm(const Event *occurrence, const QDateTime &start, const QDateTime &end, bool allDay);
    void showEventPopover(const Event &occurrence, const QRect &anchor);
    std::optional<Event> quickAdd(const QString &text);
    QString targetCalendarId() const;
    void addSampleData();
    void clearSampleData();
    void showStatus(const QString &message, int timeoutMs);

    AppState *m_appState;
    SpanCache *m_cache;
    EventEditor *m_editor;
    MainToolbar *m_toolbar;
    QSplitter *m_splitter;
    Sidebar *m_sidebar;
    QStackedWidget *m_views;
    TimelineView *m_timeline;
    MonthView *m_month;
    EventPopover *m_popover;
    QLabel *m_filterLabel;
    QLabel *m_syncLabel;
    QPointer<QSystemTrayIcon> m_trayIcon;
    QPointer<NotificationService> m_notifications;
};
