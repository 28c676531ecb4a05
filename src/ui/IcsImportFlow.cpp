// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/IcsImportFlow.h"

#include "app/AppState.h"
#include "ical/ICal.h"
#include "storage/CalendarRepository.h"
#include "storage/EventImport.h"
#include "storage/EventRepository.h"
#include "storage/PreferencesRepository.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QMessageBox>
#include <QPainter>
#include <QProgressDialog>
#include <QPushButton>
#include <QStandardPaths>
#include <QVBoxLayout>

namespace {

// tr() for this file's free functions; lupdate takes the context from the macro.
struct Text
{
    Q_DECLARE_TR_FUNCTIONS(IcsImportFlow)
};

QIcon swatch(const QString &color)
{
    QPixmap pixmap(14, 14);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(color));
    painter.drawEllipse(QRectF(1, 1, 12, 12));
    return QIcon(pixmap);
}

// The calendar to import into, or an empty id when the user cancelled.
QString chooseCalendar(QWidget *parent, AppState *appState, const QList<Calendar> &calendars, int count,
                       const QString &fileName)
{
    QDialog dialog(parent);
    dialog.setWindowTitle(Text::tr("Import events"));
    auto *layout = new QVBoxLayout(&dialog);
    const QString prompt = count == 1 ? Text::tr("Import 1 event from \"%1\" into:").arg(fileName)
                                      : Text::tr("Import %1 events from \"%2\" into:").arg(count).arg(fileName);
    layout->addWidget(new QLabel(prompt, &dialog));
    auto *combo = new QComboBox(&dialog);
    const QString preferred
        = appState->preferences()->value(QStringLiteral("ui/defaultCalendarId")).value_or(QString());
    for (const Calendar &calendar : calendars) {
        combo->addItem(swatch(calendar.color), calendar.name, calendar.id);
        if (calendar.id == preferred)
            combo->setCurrentIndex(combo->count() - 1);
    }
    layout->addWidget(combo);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, &dialog);
    QPushButton *import = buttons->addButton(Text::tr("Import"), QDialogButtonBox::AcceptRole);
    import->setDefault(true);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    layout->addWidget(buttons);
    if (dialog.exec() != QDialog::Accepted)
        return QString();
    return combo->currentData().toString();
}

} // namespace

namespace IcsImportFlow {

QString chooseFile(QWidget *parent)
{
    return QFileDialog::getOpenFileName(parent, Text::tr("Import Calendar File"),
                                        QStandardPaths::writableLocation(QStandardPaths::DownloadLocation),
                                        Text::tr("iCalendar files (*.ics *.ICS);;All files (*)"));
}

void run(QWidget *parent, AppState *appState, const QString &path)
{
    const QString fileName = QFileInfo(path).fileName();
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        QMessageBox::warning(parent, Text::tr("Couldn't open file"),
                             Text::tr("Couldn't open \"%1\" for reading.").arg(fileName));
        return;
    }
    const QByteArray text = file.readAll();
    file.close();

    const int count = int(ICal::parseEvents(text).size());
    if (count == 0) {
        QMessageBox::information(parent, Text::tr("Nothing to import"),
                                 Text::tr("No events found in \"%1\".").arg(fileName));
        return;
    }
    QList<Calendar> writable;
    for (const Calendar &calendar : appState->calendars()->getAll()) {
        if (!calendar.is_read_only)
            writable.append(calendar);
    }
    if (writable.isEmpty()) {
        QMessageBox::information(parent, Text::tr("No calendars configured"),
                                 Text::tr("Add a writable calendar first; then re-import \"%1\".").arg(fileName));
        return;
    }
    const QString calendarId = chooseCalendar(parent, appState, writable, count, fileName);
    if (calendarId.isEmpty())
        return;
    QString calendarName;
    for (const Calendar &calendar : std::as_const(writable)) {
        if (calendar.id == calendarId)
            calendarName = calendar.name;
    }

    QProgressDialog progress(Text::tr("Importing events…"), QString(), 0, count, parent);
    progress.setWindowTitle(Text::tr("Import events"));
    progress.setMinimumDuration(400);
    const EventImport::Result result = EventImport::importText(*appState->database(), *appState->events(), text,
                                                               calendarId, fileName, [&progress](int done, int total) {
                                                                   progress.setMaximum(total);
                                                                   progress.setValue(done);
                                                               });
    progress.reset();
    if (!result.error.isEmpty()) {
        QMessageBox::warning(parent, Text::tr("Import events"), result.error);
        return;
    }
    QMessageBox::information(parent, Text::tr("Import events"), EventImport::summary(result, calendarName));
}

} // namespace IcsImportFlow
