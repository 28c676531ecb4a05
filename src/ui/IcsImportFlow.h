// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class AppState;
class QWidget;

// Importing an .ics file from the desktop: read it, let the user pick the calendar, import, and
// report the result; every problem is a message box with a title and one sentence.
namespace IcsImportFlow {

// Asks for a file to import; empty when the user cancelled.
QString chooseFile(QWidget *parent);
void run(QWidget *parent, AppState *appState, const QString &path);

} // namespace IcsImportFlow
