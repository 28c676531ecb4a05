-- Local change tracking and tombstones for tasks.
ALTER TABLE tasks ADD COLUMN sync_status TEXT NOT NULL DEFAULT 'synced';
ALTER TABLE tasks ADD COLUMN deleted_at TEXT;
CREATE INDEX IF NOT EXISTS idx_tasks_sync_status ON tasks(sync_status);
CREATE INDEX IF NOT EXISTS idx_tasks_calendar_pending ON tasks(calendar_id, sync_status) WHERE sync_status = 'pending';
