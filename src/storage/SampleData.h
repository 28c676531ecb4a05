// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class AccountRepository;
class CalendarRepository;
class Database;
class EventRepository;
class TaskRepository;

// The sample week that shows a new user what the calendar looks like: the account "sample-account"
// with four calendars (work, personal, family, birthdays), about twenty events around today
// (yesterday to six days ahead, some of them recurring, one all-day across several days, one timed
// across midnight) and eight tasks, one of them completed. Every sample row has an id beginning
// "sample-", so it can be told apart from the user's own data and removed again.
//
// Events are placed at local clock times relative to Clock::nowLocal() and stored in UTC, carrying
// the local zone's name so that they read back, and recur, in local time.

// Adds whatever part of the sample data is missing; rows already there are left as they are, so
// seeding twice adds nothing. Rows are stored "synced": they exist nowhere else.
void seedSampleData(AccountRepository &accounts, CalendarRepository &calendars, EventRepository &events,
                    TaskRepository &tasks);

// Deletes the sample events, tasks, calendars and account, in that order, and returns the number of
// rows the statements that succeeded removed. When the user has put events of their own into a
// sample calendar, the database refuses to delete the calendars and the account, and they stay.
int removeSampleData(Database &database);
