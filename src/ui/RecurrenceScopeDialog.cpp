// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/RecurrenceScopeDialog.h"

#include "ui/Typography.h"

#include <QButtonGroup>
#include <QCoreApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace {

// tr() for this file's free functions; lupdate takes the context from the macro.
struct Text
{
    Q_DECLARE_TR_FUNCTIONS(RecurrenceScopeDialog)
};

} // namespace

namespace RecurrenceScopeDialog {

bool ask(QWidget *parent, EventEditor::Scope *scope, const QString &verb)
{
    QDialog dialog(parent);
    dialog.setWindowTitle(verb);
    dialog.setObjectName(QStringLiteral("RecurrenceScopeDialog"));

    auto *layout = new QVBoxLayout(&dialog);
    layout->setContentsMargins(22, 20, 22, 16);
    layout->setSpacing(6);

    auto *heading = new QLabel(verb, &dialog);
    QFont headingFont = Typography::semibold(dialog.font());
    headingFont.setPointSizeF(headingFont.pointSizeF() * 1.15);
    heading->setFont(headingFont);
    layout->addWidget(heading);

    auto *prompt = new QLabel(Text::tr("This is one event of a repeating series. Apply to:"), &dialog);
    prompt->setWordWrap(true);
    prompt->setForegroundRole(QPalette::PlaceholderText);
    layout->addWidget(prompt);
    layout->addSpacing(8);

    auto *group = new QButtonGroup(&dialog);
    const auto addChoice = [&](const QString &text, const char *name, EventEditor::Scope value) {
        auto *radio = new QRadioButton(text, &dialog);
        radio->setObjectName(QLatin1String(name));
        group->addButton(radio, int(value));
        layout->addWidget(radio);
        return radio;
    };
    addChoice(Text::tr("Only this event"), kThisEventName, EventEditor::Scope::ThisEvent)->setChecked(true);
    addChoice(Text::tr("This and following events"), kThisAndFollowingName, EventEditor::Scope::ThisAndFollowing);
    addChoice(Text::tr("All events"), kAllEventsName, EventEditor::Scope::AllEvents);
    layout->addSpacing(12);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, &dialog);
    QPushButton *confirm = buttons->button(QDialogButtonBox::Ok);
    confirm->setObjectName(QLatin1String(kConfirmName));
    confirm->setDefault(true);
    QObject::connect(buttons, &QDialogButtonBox::accepted, &dialog, &QDialog::accept);
    QObject::connect(buttons, &QDialogButtonBox::rejected, &dialog, &QDialog::reject);
    layout->addWidget(buttons);

    // Drawn from the palette so that the choices read as well on a dark theme as on a light one.
    const QPalette pal = dialog.palette();
    dialog.setStyleSheet(
        QStringLiteral("QRadioButton { spacing: 8px; padding: 3px 0; }"
                       "QRadioButton::indicator { width: 12px; height: 12px; border-radius: 8px;"
                       "  border: 2px solid %1; background: %2; }"
                       "QRadioButton::indicator:checked { border: 5px solid %3; width: 6px; height: 6px; }"
                       "QRadioButton:focus { color: %3; }"
                       "QPushButton { border: 1px solid %4; border-radius: 6px; padding: 5px 16px; background: %2;"
                       "  color: %5; }"
                       "QPushButton:default { background: %3; color: %6; border-color: %3; font-weight: 600; }")
            .arg(pal.color(QPalette::PlaceholderText).name(), pal.color(QPalette::Base).name(),
                 pal.color(QPalette::Highlight).name(), pal.color(QPalette::Mid).name(),
                 pal.color(QPalette::ButtonText).name(), pal.color(QPalette::HighlightedText).name()));
    dialog.setMinimumWidth(dialog.fontMetrics().horizontalAdvance(QLatin1Char('x')) * 56);
    group->checkedButton()->setFocus();
    if (dialog.exec() != QDialog::Accepted)
        return false;
    if (scope)
        *scope = EventEditor::Scope(group->checkedId());
    return true;
}

} // namespace RecurrenceScopeDialog
