// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>

class AppState;
class QTreeWidget;
class QPushButton;

// Where the user adds, renames, recolours and removes calendars, and picks the default one.
// Calendars made here live on this device.
class ManageSourcesDialog : public QDialog
{
    Q_OBJECT

public:
    explicit ManageSourcesDialog(AppState *appState, QWidget *parent = nullptr);

private:
    void reload();
    void addCalendar();
    void editCalendar();
    void removeCalendar();
    void makeDefault();
    QString selectedCalendarId() const;
    void updateButtons();

    AppState *m_appState;
    QTreeWidget *m_tree;
    QPushButton *m_edit;
    QPushButton *m_remove;
    QPushButton *m_default;
};
