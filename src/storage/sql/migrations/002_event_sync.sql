-- Local change tracking and tombstones for events.
ALTER TABLE events ADD COLUMN sync_status TEXT NOT NULL DEFAULT 'synced';
ALTER TABLE events ADD COLUMN deleted_at TEXT;
CREATE INDEX IF NOT EXISTS idx_events_sync_status ON events(sync_status);
CREATE INDEX IF NOT EXISTS idx_events_calendar_pending ON events(calendar_id, sync_status) WHERE sync_status = 'pending';
