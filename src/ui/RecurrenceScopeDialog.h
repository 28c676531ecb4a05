// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/EventEditor.h"

#include <QString>

class QWidget;

// The question asked before changing one occurrence of a repeating event: this event, this and
// the following events, or all events. Implemented on the dialogs branch; declared here so that
// the views can ask it.
namespace RecurrenceScopeDialog {

// Asks modally; `verb` is the translated action ("Move repeating event"). True with `*scope` set
// when the user confirmed; false (and `*scope` untouched) when cancelled.
bool ask(QWidget *parent, EventEditor::Scope *scope, const QString &verb);

} // namespace RecurrenceScopeDialog
