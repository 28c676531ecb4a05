// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/EventEditor.h"

#include <QString>

class QWidget;

// The question asked before changing one occurrence of a repeating event: does the change reach
// only this event, this and the following events, or every event of the series?
namespace RecurrenceScopeDialog {

// Object names of the three choices and the confirm button, for keyboard-free automation.
inline constexpr char kThisEventName[] = "scopeThisEvent";
inline constexpr char kThisAndFollowingName[] = "scopeThisAndFollowing";
inline constexpr char kAllEventsName[] = "scopeAllEvents";
inline constexpr char kConfirmName[] = "scopeConfirm";

// Asks modally; `verb` is the translated action, used as the title and the heading ("Move
// repeating event", "Delete repeating event"). "Only this event" is preselected. True with
// `*scope` set when the user confirmed; false (and `*scope` untouched) when cancelled.
bool ask(QWidget *parent, EventEditor::Scope *scope, const QString &verb);

} // namespace RecurrenceScopeDialog
