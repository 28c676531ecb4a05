// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/ReminderListEditor.h"

#include "app/NotificationService.h"
#include "ui/IconFont.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

QList<int> ReminderListEditor::presetMinutes()
{
    return {0, 5, 10, 15, 30, 60, 1440};
}

ReminderListEditor::ReminderListEditor(QWidget *parent)
    : QWidget(parent)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);
    m_rows = new QVBoxLayout;
    m_rows->setContentsMargins(0, 0, 0, 0);
    m_rows->setSpacing(0);
    layout->addLayout(m_rows);

    m_addButton = new QPushButton(tr("Add reminder"), this);
    m_addButton->setObjectName(QStringLiteral("addReminder"));
    m_addButton->setFlat(true);
    m_addButton->setAutoDefault(false);
    m_addButton->setCursor(Qt::PointingHandCursor);
    auto *menu = new QMenu(m_addButton);
    menu->setObjectName(QStringLiteral("addReminderMenu"));
    connect(menu, &QMenu::aboutToShow, this, [this, menu] {
        menu->clear();
        for (int minutes : presetMinutes()) {
            QAction *action
                = menu->addAction(reminderOffsetLabel(minutes), this, [this, minutes] { addReminder(minutes); });
            action->setEnabled(std::none_of(m_reminders.cbegin(), m_reminders.cend(),
                                            [minutes](const Reminder &r) { return r.minutes_before == minutes; }));
        }
    });
    // The menu opens beneath the button; a push button's own menu would reserve room for an arrow.
    connect(m_addButton, &QPushButton::clicked, menu,
            [this, menu] { menu->popup(m_addButton->mapToGlobal(QPoint(0, m_addButton->height()))); });
    auto *addRow = new QHBoxLayout;
    addRow->setContentsMargins(0, 0, 0, 0);
    addRow->addWidget(m_addButton);
    addRow->addStretch(1);
    layout->addLayout(addRow);
    rebuild();
}

void ReminderListEditor::setReminders(const QList<Reminder> &reminders)
{
    m_reminders = reminders;
    rebuild();
}

void ReminderListEditor::addReminder(int minutesBefore)
{
    const bool present = std::any_of(m_reminders.cbegin(), m_reminders.cend(),
                                     [minutesBefore](const Reminder &r) { return r.minutes_before == minutesBefore; });
    if (present || m_readOnly)
        return;
    Reminder reminder;
    reminder.minutes_before = minutesBefore;
    m_reminders.append(reminder);
    rebuild();
    emit remindersChanged();
}

void ReminderListEditor::removeReminder(int minutesBefore)
{
    const auto removed
        = m_reminders.removeIf([minutesBefore](const Reminder &r) { return r.minutes_before == minutesBefore; });
    if (removed == 0)
        return;
    rebuild();
    emit remindersChanged();
}

void ReminderListEditor::setReadOnly(bool readOnly)
{
    m_readOnly = readOnly;
    m_addButton->setVisible(!readOnly);
    rebuild();
}

void ReminderListEditor::rebuild()
{
    while (QLayoutItem *item = m_rows->takeAt(0)) {
        // A row may be going away from its own remove button's click: detach now, delete later.
        if (QWidget *widget = item->widget()) {
            widget->hide();
            widget->setParent(nullptr);
            widget->deleteLater();
        }
        delete item;
    }
    QList<int> minutes;
    for (const Reminder &reminder : std::as_const(m_reminders)) {
        if (!minutes.contains(reminder.minutes_before))
            minutes.append(reminder.minutes_before);
    }
    std::sort(minutes.begin(), minutes.end());
    if (minutes.isEmpty() && m_readOnly) {
        auto *none = new QLabel(tr("No reminders"), this);
        none->setForegroundRole(QPalette::PlaceholderText);
        m_rows->addWidget(none);
    }
    for (int value : std::as_const(minutes)) {
        auto *row = new QWidget(this);
        row->setObjectName(QStringLiteral("reminderRow"));
        auto *rowLayout = new QHBoxLayout(row);
        rowLayout->setContentsMargins(0, 0, 0, 0);
        rowLayout->setSpacing(6);
        auto *label = new QLabel(reminderOffsetLabel(value), row);
        label->setObjectName(QStringLiteral("reminderLabel"));
        rowLayout->addWidget(label);
        if (!m_readOnly) {
            auto *remove = new QToolButton(row);
            remove->setObjectName(QStringLiteral("removeReminder"));
            remove->setAutoRaise(true);
            remove->setIcon(IconFont::icon(IconFont::Glyph::Close, palette().color(QPalette::PlaceholderText)));
            remove->setIconSize(QSize(14, 14));
            remove->setToolTip(tr("Remove this reminder"));
            remove->setAccessibleName(tr("Remove reminder %1").arg(reminderOffsetLabel(value)));
            connect(remove, &QToolButton::clicked, this, [this, value] { removeReminder(value); });
            rowLayout->addWidget(remove);
        }
        rowLayout->addStretch(1);
        m_rows->addWidget(row);
    }
}
