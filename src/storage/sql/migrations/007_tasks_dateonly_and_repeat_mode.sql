-- Date-only flags of DUE and DTSTART, and how a recurring task rolls forward.
ALTER TABLE tasks ADD COLUMN due_is_date_only INTEGER NOT NULL DEFAULT 1;
ALTER TABLE tasks ADD COLUMN start_is_date_only INTEGER NOT NULL DEFAULT 1;
ALTER TABLE tasks ADD COLUMN repeat_mode TEXT NOT NULL DEFAULT 'fromDueDate';
