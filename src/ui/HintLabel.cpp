// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/HintLabel.h"

#include <QLabel>
#include <QStyle>
#include <QVariant>

namespace HintLabel {

void show(QLabel *label, const QString &text, bool isError)
{
    label->setText(text);
    label->setVisible(!text.isEmpty());
    if (label->property("error").toBool() != isError) {
        label->setProperty("error", isError);
        // A style sheet reads dynamic properties only when the widget is polished again.
        label->style()->unpolish(label);
        label->style()->polish(label);
    }
}

} // namespace HintLabel
