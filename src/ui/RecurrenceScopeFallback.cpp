// SPDX-License-Identifier: GPL-3.0-or-later
#include "ui/RecurrenceScopeDialog.h"

// Built only while the scope dialog itself is not part of the tree (see CMakeLists.txt): without
// the question there is no answer, so a change to an occurrence of a series is not made.
bool RecurrenceScopeDialog::ask(QWidget *, EventEditor::Scope *, const QString &)
{
    return false;
}
