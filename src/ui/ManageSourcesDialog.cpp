// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/ManageSourcesDialog.h"

#include "app/AppState.h"
#include "storage/AccountRepository.h"
#include "storage/CalendarRepository.h"
#include "storage/Clock.h"
#include "storage/EventRepository.h"
#include "storage/StorageFormat.h"
#include "storage/TaskRepository.h"

#include <QColorDialog>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QMessageBox>
#include <QPainter>
#include <QPushButton>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace {

QIcon swatch(const QString &color)
{
    QPixmap pixmap(14, 14);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(color));
    painter.drawRoundedRect(QRectF(1, 1, 12, 12), 3, 3);
    return QIcon(pixmap);
}

// Asks for a calendar's name and colour; false when cancelled.
bool askNameAndColor(QWidget *parent, const QString &title, QString &name, QString &color)
{
    QDialog dialog(parent);
    dialog.setWindowTitle(title);
    auto *form = new QFormLayout(&dialog);
    auto *nameEdit = new QLineEdit(name, &dialog);
    auto *colorButton = new QPushButton(&dialog);
    QString chosen = color;
    const auto showColor = [&] {
        colorButton->setIcon(swatch(chosen));
        colorButton->setText(chosen);
    };
    showColor();
    QObject::connect(colorButton, &QPushButton::clicked, &dialog, [&] {
        const QColor picked = QColorDialog::getColor(QColor(chosen), &dialog, QObject::tr("Calendar colour"));
        if (picked.isValid()) {
            chosen = picked.name().toUpper();
            showColor();
        }
    });
    form->addRow(QObject::tr("Name"), nameEdit);
    form->addRow(QObject::tr("Colour"), colorButton);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    form->addRow(buttons);
    if (dialog.exec() != QDialog::Accepted || nameEdit->text().trimmed().isEmpty())
        return false;
    name = nameEdit->text().trimmed();
    color = chosen;
    return true;
}

} // namespace

ManageSourcesDialog::ManageSourcesDialog(AppState *appState, QWidget *parent)
    : QDialog(parent)
    , m_appState(appState)
{
    setWindowTitle(tr("Calendars"));
    resize(520, 420);
    auto *layout = new QVBoxLayout(this);
    m_tree = new QTreeWidget(this);
    m_tree->setHeaderLabels({tr("Calendar"), tr("")});
    m_tree->header()->setStretchLastSection(false);
    m_tree->header()->setSectionResizeMode(0, QHeaderView::Stretch);
    m_tree->setRootIsDecorated(false);
    layout->addWidget(m_tree);

    auto *buttons = new QHBoxLayout;
    auto *add = new QPushButton(tr("New Calendar…"), this);
    m_edit = new QPushButton(tr("Edit…"), this);
    m_default = new QPushButton(tr("Make Default"), this);
    m_remove = new QPushButton(tr("Delete…"), this);
    buttons->addWidget(add);
    buttons->addWidget(m_edit);
    buttons->addWidget(m_default);
    buttons->addStretch(1);
    buttons->addWidget(m_remove);
    layout->addLayout(buttons);
    auto *close = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(close, &QDialogButtonBox::rejected, this, &QDialog::accept);
    layout->addWidget(close);

    connect(add, &QPushButton::clicked, this, &ManageSourcesDialog::addCalendar);
    connect(m_edit, &QPushButton::clicked, this, &ManageSourcesDialog::editCalendar);
    connect(m_default, &QPushButton::clicked, this, &ManageSourcesDialog::makeDefault);
    connect(m_remove, &QPushButton::clicked, this, &ManageSourcesDialog::removeCalendar);
    connect(m_tree, &QTreeWidget::itemSelectionChanged, this, &ManageSourcesDialog::updateButtons);
    connect(m_tree, &QTreeWidget::itemDoubleClicked, this, &ManageSourcesDialog::editCalendar);
    reload();
}

void ManageSourcesDialog::reload()
{
    m_tree->clear();
    QFont bold = font();
    bold.setBold(true);
    const QList<Calendar> calendars = m_appState->calendars()->getAll();
    for (const Account &account : m_appState->accounts()->getAll()) {
        auto *accountItem = new QTreeWidgetItem(m_tree, {account.name});
        accountItem->setFont(0, bold);
        accountItem->setFlags(Qt::ItemIsEnabled);
        for (const Calendar &calendar : calendars) {
            if (calendar.account_id != account.id)
                continue;
            auto *item
                = new QTreeWidgetItem(accountItem, {calendar.name, calendar.is_default ? tr("Default") : QString()});
            item->setIcon(0, swatch(calendar.color));
            item->setData(0, Qt::UserRole, calendar.id);
        }
    }
    m_tree->expandAll();
    updateButtons();
}

QString ManageSourcesDialog::selectedCalendarId() const
{
    const QList<QTreeWidgetItem *> items = m_tree->selectedItems();
    return items.isEmpty() ? QString() : items.constFirst()->data(0, Qt::UserRole).toString();
}

void ManageSourcesDialog::updateButtons()
{
    const std::optional<Calendar> calendar = m_appState->calendars()->getById(selectedCalendarId());
    m_edit->setEnabled(calendar.has_value());
    m_default->setEnabled(calendar && !calendar->is_default && !calendar->is_read_only);
    m_remove->setEnabled(calendar && calendar->url.startsWith(QLatin1String("local://calendar/")));
}

void ManageSourcesDialog::addCalendar()
{
    QString name;
    QString color = QStringLiteral("#4285F4");
    if (!askNameAndColor(this, tr("New Calendar"), name, color))
        return;
    const QDateTime now = Clock::nowUtc();
    if (!m_appState->accounts()->getById(AppState::kLocalAccountId)) {
        Account account;
        account.id = AppState::kLocalAccountId;
        account.name = tr("On This Device");
        account.type = QStringLiteral("kettlebrook");
        account.created_at = now;
        account.updated_at = now;
        m_appState->accounts()->insert(account);
    }
    Calendar calendar;
    calendar.id = StorageFormat::newId();
    calendar.account_id = AppState::kLocalAccountId;
    calendar.url = QStringLiteral("local://calendar/") + calendar.id;
    calendar.name = name;
    calendar.color = color;
    calendar.sort_order = int(m_appState->calendars()->getAll().size()) * 10 + 10;
    calendar.created_at = now;
    calendar.updated_at = now;
    if (!m_appState->calendars()->insert(calendar))
        QMessageBox::warning(this, tr("New Calendar"), tr("The calendar could not be saved."));
    reload();
}

void ManageSourcesDialog::editCalendar()
{
    std::optional<Calendar> calendar = m_appState->calendars()->getById(selectedCalendarId());
    if (!calendar)
        return;
    if (!askNameAndColor(this, tr("Edit Calendar"), calendar->name, calendar->color))
        return;
    calendar->updated_at = Clock::nowUtc();
    m_appState->calendars()->update(*calendar);
    reload();
}

void ManageSourcesDialog::makeDefault()
{
    m_appState->calendars()->setDefault(selectedCalendarId());
    reload();
}

void ManageSourcesDialog::removeCalendar()
{
    const std::optional<Calendar> calendar = m_appState->calendars()->getById(selectedCalendarId());
    if (!calendar)
        return;
    const auto answer = QMessageBox::question(
        this, tr("Delete calendar?"),
        tr("Delete \"%1\" with all its events and tasks? This cannot be undone.").arg(calendar->name),
        QMessageBox::Yes | QMessageBox::Cancel, QMessageBox::Cancel);
    if (answer != QMessageBox::Yes)
        return;
    // The calendar lives on this device only, so its rows go for good with it.
    for (const Event &event : m_appState->events()->getByCalendar(calendar->id))
        m_appState->events()->hardDelete(event.id);
    for (const Event &event : m_appState->events()->getPending(calendar->id))
        m_appState->events()->hardDelete(event.id);
    for (const Task &task : m_appState->tasks()->getByCalendar(calendar->id))
        m_appState->tasks()->hardDelete(task.id);
    for (const Task &task : m_appState->tasks()->getPending(calendar->id))
        m_appState->tasks()->hardDelete(task.id);
    if (!m_appState->calendars()->remove(calendar->id))
        QMessageBox::warning(this, tr("Delete calendar?"), tr("The calendar could not be deleted."));
    reload();
}
