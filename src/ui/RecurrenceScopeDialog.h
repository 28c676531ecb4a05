// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "ui/EventEditor.h"

#include <QString>

class QWidget;

// The question asked before changing one occurrence of a repeating event. Implemented on the
// dialogs branch; declared here so that the timeline can ask it.
namespace RecurrenceScopeDialog {
bool ask(QWidget *parent, EventEditor::Scope *scope, const QString &verb);
}
