// SPDX-License-Identifier: GPL-3.0-or-later
#include "ScopeQuestionStandIn.h"

#include "ui/RecurrenceScopeDialog.h"

ScopeQuestionStandIn::Answer &ScopeQuestionStandIn::answer()
{
    static Answer current;
    return current;
}

bool RecurrenceScopeDialog::ask(QWidget *, EventEditor::Scope *scope, const QString &verb)
{
    ScopeQuestionStandIn::Answer &current = ScopeQuestionStandIn::answer();
    current.asked.append(verb);
    if (current.confirm)
        *scope = current.scope;
    return current.confirm;
}
