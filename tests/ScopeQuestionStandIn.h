// SPDX-License-Identifier: GPL-3.0-or-later
// Answers the scope question of a repeating event without a modal dialog: linked into a test in
// place of the real RecurrenceScopeDialog::ask, it answers as the test sets and records what was asked.
#pragma once

#include "ui/EventEditor.h"

#include <QStringList>

namespace ScopeQuestionStandIn {

struct Answer
{
    bool confirm = false; // false: the user cancels
    EventEditor::Scope scope = EventEditor::Scope::ThisEvent;
    QStringList asked; // the verbs of the questions asked, in order
};

// The answer the next questions get; reset it in each test.
Answer &answer();

} // namespace ScopeQuestionStandIn
