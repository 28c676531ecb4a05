// SPDX-License-Identifier: GPL-3.0-or-later
#include "storage/LogCategories.h"

Q_LOGGING_CATEGORY(lcDatabase, "calendar.database")
Q_LOGGING_CATEGORY(lcRepository, "calendar.repository")
Q_LOGGING_CATEGORY(lcICal, "calendar.ical")
Q_LOGGING_CATEGORY(lcExpansion, "calendar.expansion", QtWarningMsg)
Q_LOGGING_CATEGORY(lcApp, "calendar.app")
Q_LOGGING_CATEGORY(lcSingleInstance, "calendar.singleinstance")
Q_LOGGING_CATEGORY(lcNotifications, "calendar.notifications")
Q_LOGGING_CATEGORY(lcUi, "calendar.ui")
Q_LOGGING_CATEGORY(lcCalDav, "calendar.caldav")
Q_LOGGING_CATEGORY(lcSync, "calendar.sync")
Q_LOGGING_CATEGORY(lcCloud, "calendar.cloud")
Q_LOGGING_CATEGORY(lcServices, "calendar.services")
