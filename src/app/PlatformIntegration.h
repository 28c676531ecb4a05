// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

// Start at log-in and the .ics file association, per user, without elevation.
//
// Windows: the Run value under HKCU\Software\Microsoft\Windows\CurrentVersion\Run and the .ics
// class under HKCU\Software\Classes. Linux: an XDG autostart entry whose Exec ends in
// --background, and a .desktop entry plus the text/calendar default in mimeapps.list. The Linux
// files are written only when their content would change, and nothing else in them is touched.
namespace PlatformIntegration {

// "KettlebrookCalendar", plus "-" and the instance name when CALENDAR_INSTANCE is set.
QString autostartValueName();
bool isAutostartEnabled();
void setAutostartEnabled(bool enabled);
// Called once on every start. Failures are ignored.
void registerIcsFileAssociation();

#ifndef Q_OS_WIN
// The files the Linux integration writes (under XDG_CONFIG_HOME and XDG_DATA_HOME).
QString autostartFilePath();
QString desktopEntryPath();
QString mimeAppsListPath();
#endif

} // namespace PlatformIntegration
