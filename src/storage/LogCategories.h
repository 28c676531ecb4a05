// SPDX-License-Identifier: GPL-3.0-or-later
// Every logging category of the program, declared in one place.
#pragma once

#include <QLoggingCategory>

Q_DECLARE_LOGGING_CATEGORY(lcDatabase) // calendar.database
Q_DECLARE_LOGGING_CATEGORY(lcRepository) // calendar.repository
Q_DECLARE_LOGGING_CATEGORY(lcICal) // calendar.ical
Q_DECLARE_LOGGING_CATEGORY(lcExpansion) // calendar.expansion (warnings and above unless enabled)
Q_DECLARE_LOGGING_CATEGORY(lcApp) // calendar.app
Q_DECLARE_LOGGING_CATEGORY(lcSingleInstance) // calendar.singleinstance
Q_DECLARE_LOGGING_CATEGORY(lcNotifications) // calendar.notifications
Q_DECLARE_LOGGING_CATEGORY(lcUi) // calendar.ui
Q_DECLARE_LOGGING_CATEGORY(lcCalDav) // calendar.caldav
Q_DECLARE_LOGGING_CATEGORY(lcSync) // calendar.sync
Q_DECLARE_LOGGING_CATEGORY(lcCloud) // calendar.cloud
Q_DECLARE_LOGGING_CATEGORY(lcServices) // calendar.services
