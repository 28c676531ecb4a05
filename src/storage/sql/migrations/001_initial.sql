-- First schema: every table, its indexes, and the default view.

CREATE TABLE IF NOT EXISTS accounts (
    id TEXT PRIMARY KEY,
    name TEXT NOT NULL,
    type TEXT NOT NULL,
    server_url TEXT,
    username TEXT,
    calendar_home_set TEXT,
    principal_url TEXT,
    sync_interval_minutes INTEGER NOT NULL DEFAULT 15,
    last_sync_time TEXT,
    last_sync_error TEXT,
    enabled INTEGER NOT NULL DEFAULT 1,
    color TEXT NOT NULL DEFAULT '#4285F4',
    exclude_from_sync INTEGER NOT NULL DEFAULT 0,
    trusted_cert_sha256 TEXT,
    pending_cert_sha256 TEXT,
    created_at TEXT NOT NULL DEFAULT (datetime('now')),
    updated_at TEXT NOT NULL DEFAULT (datetime('now'))
);

CREATE TABLE IF NOT EXISTS calendars (
    id TEXT PRIMARY KEY,
    account_id TEXT NOT NULL REFERENCES accounts(id),
    url TEXT NOT NULL,
    name TEXT NOT NULL,
    description TEXT,
    color TEXT NOT NULL DEFAULT '#4285F4',
    timezone TEXT NOT NULL DEFAULT 'UTC',
    is_visible INTEGER NOT NULL DEFAULT 1,
    is_read_only INTEGER NOT NULL DEFAULT 0,
    is_default INTEGER NOT NULL DEFAULT 0,
    ctag TEXT,
    sync_token TEXT,
    delta_sync_token TEXT,
    supported_components TEXT NOT NULL DEFAULT '["VEVENT"]',
    sort_order INTEGER NOT NULL DEFAULT 0,
    canonical_key TEXT,
    sync_enabled INTEGER NOT NULL DEFAULT 0,
    is_shared INTEGER NOT NULL DEFAULT 0,
    shared_with_me INTEGER NOT NULL DEFAULT 0,
    last_sync_error TEXT,
    created_at TEXT NOT NULL DEFAULT (datetime('now')),
    updated_at TEXT NOT NULL DEFAULT (datetime('now'))
);

CREATE INDEX IF NOT EXISTS idx_calendars_account ON calendars(account_id);

CREATE TABLE IF NOT EXISTS events (
    id TEXT PRIMARY KEY,
    calendar_id TEXT NOT NULL REFERENCES calendars(id),
    uid TEXT NOT NULL,
    provider_event_id TEXT,
    etag TEXT,
    href TEXT,
    title TEXT NOT NULL,
    description TEXT,
    location TEXT,
    geo_location TEXT,
    start_time TEXT NOT NULL,
    end_time TEXT,
    is_all_day INTEGER NOT NULL DEFAULT 0,
    timezone TEXT NOT NULL DEFAULT 'UTC',
    recurrence_rule TEXT,
    recurrence_dates TEXT,
    exception_dates TEXT,
    recurrence_id TEXT,
    master_event_uid TEXT,
    status TEXT NOT NULL DEFAULT 'confirmed',
    event_url TEXT,
    conference_url TEXT,
    organizer_email TEXT,
    organizer_name TEXT,
    sequence INTEGER NOT NULL DEFAULT 0,
    raw_icalendar TEXT NOT NULL,
    color TEXT,
    created TEXT NOT NULL DEFAULT (datetime('now')),
    last_modified TEXT NOT NULL DEFAULT (datetime('now'))
);

CREATE INDEX IF NOT EXISTS idx_events_calendar ON events(calendar_id);
CREATE INDEX IF NOT EXISTS idx_events_start_time ON events(start_time);
CREATE INDEX IF NOT EXISTS idx_events_end_time ON events(end_time);
CREATE INDEX IF NOT EXISTS idx_events_calendar_start ON events(calendar_id, start_time);
CREATE INDEX IF NOT EXISTS idx_events_uid_calendar ON events(uid, calendar_id);
CREATE INDEX IF NOT EXISTS idx_events_master_uid ON events(master_event_uid);

CREATE TABLE IF NOT EXISTS attendees (
    id TEXT PRIMARY KEY,
    event_id TEXT NOT NULL REFERENCES events(id),
    email TEXT NOT NULL,
    name TEXT,
    role TEXT NOT NULL DEFAULT 'required',
    status TEXT NOT NULL DEFAULT 'needs-action',
    type TEXT,
    rsvp INTEGER NOT NULL DEFAULT 0
);

CREATE INDEX IF NOT EXISTS idx_attendees_event ON attendees(event_id);

CREATE TABLE IF NOT EXISTS attachments (
    id TEXT PRIMARY KEY,
    event_id TEXT NOT NULL REFERENCES events(id),
    filename TEXT NOT NULL,
    url TEXT,
    mime_type TEXT,
    size INTEGER,
    provider_file_id TEXT
);

CREATE INDEX IF NOT EXISTS idx_attachments_event ON attachments(event_id);

CREATE TABLE IF NOT EXISTS reminders (
    id TEXT PRIMARY KEY,
    event_id TEXT NOT NULL REFERENCES events(id),
    minutes_before INTEGER NOT NULL,
    action TEXT NOT NULL DEFAULT 'display',
    acknowledged INTEGER NOT NULL DEFAULT 0,
    trigger_time TEXT
);

CREATE INDEX IF NOT EXISTS idx_reminders_event ON reminders(event_id);
CREATE INDEX IF NOT EXISTS idx_reminders_trigger ON reminders(trigger_time);

CREATE TABLE IF NOT EXISTS tasks (
    id TEXT PRIMARY KEY,
    calendar_id TEXT NOT NULL REFERENCES calendars(id),
    uid TEXT NOT NULL,
    etag TEXT,
    href TEXT,
    title TEXT NOT NULL,
    description TEXT,
    status TEXT NOT NULL DEFAULT 'needs-action',
    priority INTEGER NOT NULL DEFAULT 0,
    percent_complete INTEGER NOT NULL DEFAULT 0,
    due_date TEXT,
    start_date TEXT,
    completed_date TEXT,
    categories TEXT NOT NULL DEFAULT '[]',
    parent_task_uid TEXT,
    sort_order INTEGER NOT NULL DEFAULT 0,
    color TEXT,
    recurrence_rule TEXT,
    sequence INTEGER NOT NULL DEFAULT 0,
    raw_icalendar TEXT NOT NULL,
    created TEXT NOT NULL DEFAULT (datetime('now')),
    last_modified TEXT NOT NULL DEFAULT (datetime('now'))
);

CREATE INDEX IF NOT EXISTS idx_tasks_calendar ON tasks(calendar_id);
CREATE INDEX IF NOT EXISTS idx_tasks_due_date ON tasks(due_date);
CREATE INDEX IF NOT EXISTS idx_tasks_status ON tasks(status);
CREATE INDEX IF NOT EXISTS idx_tasks_uid_calendar ON tasks(uid, calendar_id);

CREATE TABLE IF NOT EXISTS filter_rules (
    id TEXT PRIMARY KEY,
    name TEXT NOT NULL,
    type TEXT NOT NULL,
    enabled INTEGER NOT NULL DEFAULT 1,
    calendar_ids TEXT NOT NULL DEFAULT '[]',
    conditions TEXT NOT NULL,
    action TEXT NOT NULL DEFAULT 'hide',
    priority INTEGER NOT NULL DEFAULT 100,
    event_uid TEXT,
    event_calendar_id TEXT,
    suppress_reminders INTEGER NOT NULL DEFAULT 0,
    sync_status TEXT NOT NULL DEFAULT 'pending',
    created_at TEXT NOT NULL DEFAULT (datetime('now')),
    updated_at TEXT NOT NULL DEFAULT (datetime('now')),
    deleted_at TEXT
);

CREATE TABLE IF NOT EXISTS calendar_views (
    id TEXT PRIMARY KEY,
    name TEXT NOT NULL,
    color TEXT,
    calendar_ids TEXT NOT NULL DEFAULT '[]',
    is_default INTEGER NOT NULL DEFAULT 0,
    sort_order INTEGER NOT NULL DEFAULT 0,
    sync_status TEXT NOT NULL DEFAULT 'pending',
    created_at TEXT NOT NULL DEFAULT (datetime('now')),
    updated_at TEXT NOT NULL DEFAULT (datetime('now')),
    deleted_at TEXT
);

CREATE TABLE IF NOT EXISTS event_templates (
    id TEXT PRIMARY KEY,
    name TEXT NOT NULL,
    title TEXT NOT NULL,
    description TEXT,
    location TEXT,
    color TEXT,
    is_all_day INTEGER NOT NULL DEFAULT 0,
    duration_minutes INTEGER NOT NULL DEFAULT 60,
    recurrence_rule TEXT,
    calendar_id TEXT,
    reminders TEXT NOT NULL DEFAULT '[15]',
    sort_order INTEGER NOT NULL DEFAULT 0,
    sync_status TEXT NOT NULL DEFAULT 'pending',
    created_at TEXT NOT NULL DEFAULT (datetime('now')),
    updated_at TEXT NOT NULL DEFAULT (datetime('now')),
    deleted_at TEXT
);

CREATE TABLE IF NOT EXISTS sync_queue (
    id TEXT PRIMARY KEY,
    operation TEXT NOT NULL,
    entity_type TEXT NOT NULL,
    entity_id TEXT NOT NULL,
    calendar_id TEXT NOT NULL,
    payload TEXT NOT NULL,
    attempts INTEGER NOT NULL DEFAULT 0,
    last_error TEXT,
    created_at TEXT NOT NULL DEFAULT (datetime('now')),
    last_attempt_at TEXT
);

CREATE TABLE IF NOT EXISTS settings (
    key TEXT PRIMARY KEY,
    value TEXT NOT NULL,
    type TEXT NOT NULL DEFAULT 'string'
);

-- The built-in view; its fixed id lets other devices recognise it.
INSERT INTO calendar_views (id, name, calendar_ids, is_default, sync_status)
VALUES ('all-calendars', 'All Calendars', '[]', 1, 'synced');
